// The peer of what reads large files: reads a file once, decompresses it where it is compressed, and does nothing else.
#include "inspection/files/ByteStreams.h"

#include <cstdio>
#include <vector>

int main( int argumentCount, char ** arguments ) {
   if ( argumentCount != 2 ) {
      return 2;
   }
   Inspection::ByteSource source( arguments[1] );
   std::vector< char > buffer( 1 << 18 );
   unsigned long long bytes = 0;
   while ( auto const size = source.read( buffer ) ) {
      bytes += size;
   }
   std::printf( "%llu\n", bytes );
   return 0;
}
