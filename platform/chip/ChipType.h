// The chips by number, as every table, accessor and constant of the system keys them.
#pragma once

#include "corvo/Types.h"

#include <array>
#include <ostream>

namespace Hardware {

// The number of a chip and its revision. 13 is a hole, and every number below 10 or above 16 is another family.
enum class ChipType : U8 {
   BCM88690_B0 = 10,
   BCM88800_A0 = 11,
   BCM88850_A0 = 12,
   BCM88859_A2 = 14,
   BCM88480_A0 = 15,
   BCM88480_B0 = 16,
};

// The chips that the system serves, in the order of their numbers.
inline constexpr std::array allChipTypes{ ChipType::BCM88690_B0,
                                          ChipType::BCM88800_A0,
                                          ChipType::BCM88850_A0,
                                          ChipType::BCM88859_A2,
                                          ChipType::BCM88480_A0,
                                          ChipType::BCM88480_B0 };

// The chip's name, or null for a number that is none.
constexpr char const * chipTypeName( ChipType chipType ) {
   switch ( chipType ) {
   case ChipType::BCM88690_B0:
      return "BCM88690_B0";
   case ChipType::BCM88800_A0:
      return "BCM88800_A0";
   case ChipType::BCM88850_A0:
      return "BCM88850_A0";
   case ChipType::BCM88859_A2:
      return "BCM88859_A2";
   case ChipType::BCM88480_A0:
      return "BCM88480_A0";
   case ChipType::BCM88480_B0:
      return "BCM88480_B0";
   }
   return nullptr;
}

// The chip's name, or its number where it has none.
inline std::ostream & operator<<( std::ostream & out, ChipType chipType ) {
   if ( char const * name = chipTypeName( chipType ) ) {
      return out << name;
   }
   return out << static_cast< unsigned >( chipType );
}

} // namespace Hardware
