// State machines on one chip of each kind, built by hand: the FAPs 0 to 5, in the order of the kinds' numbers.
//
//    class VxlanQosTest : public OverlayTest {};
//    TEST_F( VxlanQosTest, ... ) {
//       oneFapOfEachKind();
//       auto const sm = vxlanQosSmFactory( ecnConfig, sw().cellStatus() );
//       EXPECT_EQ( writes(), ( Strings{ "0 control 97 = 0", "0 UnknownDaProfile 0/0/18 = 0x00283000" } ) );
//    }
#pragma once

#include "ChipFixture.h"

namespace DaceFapNi {

using Strings = std::vector< std::string >;

Strings operator+( Strings left, Strings const & right );

// The first records that a listener heard.
Strings firstRecords( TraceListener const & listener, std::size_t count );

class OverlayTest : public ChipFixture {
 public:
   static constexpr U16 fapCount = 6;

   void oneFapOfEachKind();

   // The writes and controls since the last call, in their order: "<fap> <table> <variant>/<array>[/<entry>] = <words,
   // most significant first>" or "<fap> control <number> = <value>".
   Strings writes();
   // Those of one FAP.
   Strings writes( U16 number );

   // Every place of every FAP whose contents are others than before.
   std::set< std::string > changedPlacesOfAll() const;

 private:
   std::size_t seen_ = 0;
};

} // namespace DaceFapNi
