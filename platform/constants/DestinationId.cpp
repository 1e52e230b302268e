#include "constants/DestinationId.h"

#include "assert/Assert.h"

namespace Hardware::Dace {

U32 DestinationId::encodedDestId( FapType fapType ) const {
   Rex::sassert( destination_ <= 0xffff, "destination_ <= 0xffff" );
   Rex::sassert( fws_ <= 7, "fws_ <= 7" );
   Rex::sassert( lastByte_ <= 1, "lastByte_ <= 1" );
   if ( fapType < FapType{ 3 } ) {
      return destination_ << 4 | U32{ lastByte_ } << 3 | fws_;
   }
   return fws_ << 17 | U32{ lastByte_ } << 16 | destination_;
}

std::ostream & operator<<( std::ostream & out, DestinationId const & destinationId ) {
   auto const flags = out.flags();
   out << std::hex << "destination 0x" << destinationId.destination();
   out << std::dec << " word2 " << destinationId.word2() << " fws " << destinationId.fws() << " lastByte "
       << unsigned{ destinationId.lastByte() };
   out.flags( flags );
   return out;
}

} // namespace Hardware::Dace
