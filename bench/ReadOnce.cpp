// The peer of what reads large files: reads a file once, decompresses it where it is compressed, and touches every
// byte.
#include "inspection/files/ByteStreams.h"

#include <cstdio>
#include <numeric>
#include <vector>

int main( int argumentCount, char ** arguments ) {
   if ( argumentCount != 2 ) {
      return 2;
   }
   Inspection::ByteSource source( arguments[1] );
   std::vector< char > buffer( 1 << 18 );
   unsigned sum = 0;
   while ( auto const size = source.read( buffer ) ) {
      sum = std::accumulate( buffer.begin(), buffer.begin() + static_cast< std::ptrdiff_t >( size ), sum );
   }
   std::printf( "%u\n", sum );
   return 0;
}
