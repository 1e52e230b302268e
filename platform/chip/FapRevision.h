// What the agent knows of a FAP (one forwarding chip of the cell): its number, its kind, its revision.
//
//    FapRevision const revision{ 8, ChipType::BCM88850_A0, 7 };
//    FapId const fapId{ 2 };
//    driver.read( fapId, at, words ); // a FapId is the chip id of the driver
#pragma once

#include "chip/ChipId.h"
#include "chip/ChipType.h"

#include <array>
#include <ostream>

namespace Hardware::Dace {

// A generation of FAPs; the chips of this system are of type 3.
class FapType {
 public:
   constexpr FapType() = default;
   constexpr explicit FapType( U8 value ) : value_( value ) {}

   constexpr U8 value() const { return value_; }

   friend constexpr auto operator<=>( FapType, FapType ) = default;
   friend std::ostream & operator<<( std::ostream & out, FapType fapType ) { return out << unsigned{ fapType.value_ }; }

 private:
   U8 value_ = 0;
};

// The number of a FAP in its cell. FAPs are walked in the order of their numbers.
class FapId {
 public:
   constexpr FapId() = default;
   constexpr explicit FapId( U16 value ) : value_( value ) {}

   constexpr U16 value() const { return value_; }
   constexpr operator ChipId() const { return ChipId{ value_ }; } // NOLINT(google-explicit-constructor)

   friend constexpr auto operator<=>( FapId, FapId ) = default;
   friend std::ostream & operator<<( std::ostream & out, FapId fapId ) { return out << fapId.value_; }

 private:
   U16 value_ = 0;
};

// The revision of a FAP. Its first word, the major revision, is 8 or 9 on the chips whose second context-selection
// register has two array elements.
class FapRevision {
 public:
   constexpr FapRevision() = default;
   constexpr FapRevision( U32 fapRevMajor, ChipType chipType, U32 sdkVersion )
      : fapRevMajor_( fapRevMajor ), chipType_( chipType ), sdkVersion_( sdkVersion ) {}

   constexpr U32 fapRevMajor() const { return fapRevMajor_; }
   constexpr ChipType chipType() const { return chipType_; }
   constexpr U32 sdkVersion() const { return sdkVersion_; }

   friend constexpr bool operator==( FapRevision const &, FapRevision const & ) = default;

 private:
   U32 fapRevMajor_ = 0;
   ChipType chipType_{};
   U32 sdkVersion_ = 0;
};

// The major revision that a kind of chip has; 0 for a number that is none. The reference platform's own numbers, but
// for 8 and 9.
constexpr U32 fapRevMajorOf( ChipType chipType ) {
   switch ( chipType ) {
   case ChipType::BCM88690_B0:
      return 5;
   case ChipType::BCM88800_A0:
      return 6;
   case ChipType::BCM88480_A0:
   case ChipType::BCM88480_B0:
      return 7;
   case ChipType::BCM88850_A0:
      return 8;
   case ChipType::BCM88859_A2:
      return 9;
   }
   return 0;
}

// The driver's versions that are known, the newest last.
inline constexpr std::array sdkVersions{ 6u, 7u };

} // namespace Hardware::Dace
