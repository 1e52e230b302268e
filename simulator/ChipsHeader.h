// What stands before the chips in a file that they stay in (ChipsMapping.h), so that whoever finds it knows whose chips
// they are, or why they can't be these.
//
//    ChipsHeader const header( description );
//    write( file, header.text() );               // last, when everything else is there
//    ChipsHeader( description ).check( found, sizeOfFile );      // ChipsRefused: "holds chips with other tables …"
//
// The header: a magic, the number of the format, its own length, the length of the file, the generation, the noise that
// the chips were booted with, a checksum, and for each FAP its number, its kind of chip, a sum of that kind's
// addresses, and where its two images begin. The checksum is of all but the generation, which changes: that holds its
// own complement, and is one store.
//
// Numbers stand as the machine has them, as the chips do.
//
// Threading: none.
#pragma once

#include "simulator/SwitchDescription.h"

#include <span>

namespace Simulator {

// What a file holds can't be the chips of the switch. what() says why.
class ChipsRefused : public std::runtime_error {
 public:
   using std::runtime_error::runtime_error;
};

class ChipsHeader {
 public:
   struct Place {
      U32 fap = 0;
      U32 chipType = 0;
      U64 addresses = 0;  // a sum of the kind's address map
      U64 chipAt = 0;     // where the image of the chip begins in the file
      U64 expectedAt = 0; // and that of what it is expected to hold
      friend bool operator==( Place const &, Place const & ) = default;
   };

   // The FAPs whose kind of chip is known here, in the order of their numbers.
   explicit ChipsHeader( SwitchDescription const & description );

   std::span< Place const > places() const { return places_; }
   // Of a file with this header.
   U64 fileBytes() const { return fileBytes_; }
   // With the generation 0.
   std::vector< std::byte > bytes() const;
   std::size_t size() const;

   // The longest that a header can be.
   static constexpr std::size_t most = std::size_t{ 1 } << 22;
   // Throws ChipsRefused unless `found`, the begin of a file of so many bytes, up to the most, begins with a header of
   // the same chips.
   void check( std::span< std::byte const > found, U64 fileBytes ) const;

   // The generation of a header in memory.
   static U32 generation( std::span< std::byte const > header );
   static void generationIs( std::span< std::byte > header, U32 generation );

 private:
   U32 noise_ = 0;
   std::vector< Place > places_;
   U64 fileBytes_ = 0;
};

} // namespace Simulator
