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

#include <iomanip>

namespace DaceFapNi {

using Strings = std::vector< std::string >;

inline Strings operator+( Strings left, Strings const & right ) {
   left.insert( left.end(), right.begin(), right.end() );
   return left;
}

// The first records that a listener heard.
inline Strings firstRecords( TraceListener const & listener, std::size_t count ) {
   Strings all = listener.records();
   all.resize( std::min( all.size(), count ) );
   return all;
}

class OverlayTest : public ChipFixture {
 public:
   static constexpr U16 fapCount = 6;

   void oneFapOfEachKind() {
      Simulator::SwitchDescription description;
      for ( U16 number = 0; auto const kind : Hardware::allChipTypes ) {
         description.faps.push_back( { .fapId = FapId( number++ ), .revision = revisionOf( kind ) } );
      }
      switchIs( std::move( description ) );
   }

   // The writes and controls since the last call, in their order: "<fap> <table> <variant>/<array>[/<entry>] = <words,
   // most significant first>" or "<fap> control <number> = <value>".
   Strings writes() {
      Strings all;
      auto const & journal = sw().journal();
      for ( ; seen_ < journal.size(); ++seen_ ) {
         auto const row = journal.row( seen_ );
         if ( row.kind == Simulator::Journal::Kind::read ) {
            continue;
         }
         std::ostringstream out;
         out << row.fap << ' ';
         if ( row.kind == Simulator::Journal::Kind::control ) {
            out << text( row );
         } else {
            out << text( row ).substr( 6 ) << " = 0x" << std::hex << std::setfill( '0' );
            for ( auto word = row.words.rbegin(); word != row.words.rend(); ++word ) {
               out << std::setw( 8 ) << *word;
            }
         }
         all.push_back( out.str() );
      }
      return all;
   }
   // Those of one FAP.
   Strings writes( U16 number ) {
      Strings all = writes();
      std::erase_if(
         all, [prefix = std::to_string( number ) + ' ']( auto const & row ) { return !row.starts_with( prefix ); } );
      return all;
   }

   // Every place of every FAP whose contents are others than before.
   std::set< std::string > changedPlacesOfAll() const {
      std::set< std::string > places;
      for ( U16 number = 0; number < fapCount; ++number ) {
         places.merge( changedPlaces( FapId( number ) ) );
      }
      return places;
   }

 private:
   std::size_t seen_ = 0;
};

} // namespace DaceFapNi
