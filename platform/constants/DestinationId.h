// Where a packet is sent, before and after a chip's encoding.
//
//    DestinationId destinationId;
//    destinationId.fwsIs( 3 );
//    destinationId.destinationIs( 226 );
//    U32 const encoded = destinationId.encodedDestId( fapType );
//
// The encoding is the reference platform's own; the true one belongs to a closed library.
#pragma once

#include "chip/FapRevision.h"

#include <ostream>

namespace Hardware::Dace {

class DestinationId {
 public:
   // The number of the destination, below 65536.
   U32 destination() const { return destination_; }
   void destinationIs( U32 destination ) { destination_ = destination; }

   // The second word, the interface to leave by. It travels beside the encoded destination, not in it.
   U32 word2() const { return word2_; }
   void word2Is( U32 word2 ) { word2_ = word2; }

   // The forwarding scheme, which tells what the number counts: below 8.
   U32 fws() const { return fws_; }
   void fwsIs( U32 fws ) { fws_ = fws; }

   // The last byte, whether the CPU gets a copy as well: 0 or 1.
   U8 lastByte() const { return lastByte_; }
   void lastByteIs( U8 lastByte ) { lastByte_ = lastByte; }

   // The destination as FAPs of the type carry it, in 20 bits of the 21 that their tables have: FAPs of type 3 and
   // above with the scheme on top, older ones with the scheme below the number. A number or scheme out of its range
   // ends the process by assertion.
   U32 encodedDestId( FapType fapType ) const;

   friend bool operator==( DestinationId const &, DestinationId const & ) = default;

 private:
   U32 destination_ = 0;
   U32 word2_ = 0;
   U32 fws_ = 0;
   U8 lastByte_ = 0;
};

// "destination 0x2000 word2 0 fws 4 lastByte 0".
std::ostream & operator<<( std::ostream & out, DestinationId const & destinationId );

} // namespace Hardware::Dace
