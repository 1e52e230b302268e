// Numbers that look like chance and are the same at every run, and the row of a boot image that is made of them.
#pragma once

#include "chip/ChipType.h"
#include "generated/Catalogue.h"

#include <initializer_list>
#include <span>
#include <string_view>

namespace Simulator {

// A sequence of numbers that depends on a name and a place only.
class Noise {
 public:
   Noise( std::string_view name, std::initializer_list< U32 > place ) {
      for ( char const letter : name ) {
         seed_ = mixed( seed_ ^ static_cast< unsigned char >( letter ) );
      }
      for ( U32 const part : place ) {
         seed_ = mixed( seed_ ^ part );
      }
   }

   // The number at an index.
   U64 at( U64 index ) const { return mixed( seed_ + index ); }

 private:
   // A bijection of 64-bit numbers in which every bit of the input reaches every bit of the output.
   static constexpr U64 mixed( U64 x ) {
      x += 0x9e3779b97f4a7c15;
      x = ( x ^ x >> 30 ) * 0xbf58476d1ce4e5b9;
      x = ( x ^ x >> 27 ) * 0x94d049bb133111eb;
      return x ^ x >> 31;
   }

   U64 seed_ = 0;
};

// An entry of a boot image while it is put together: words full of noise in the table's fields.
struct BootRow {
   Catalogue::Layout const & layout;
   Hardware::ChipType chipType;
   U32 array;
   U32 entry;
   Noise const & noise;
   std::span< U32 > words;
};

} // namespace Simulator
