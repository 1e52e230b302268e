// A file that is in memory alone, for what wants a file's name: it has one as long as it is open.
//
//    MemoryFile file( "rows" );
//    JournalWriter writer( file.path(), … );      // which may open and close it as it likes
//    file.eachLine( [&]( std::string_view line ) { … } );
//
// Threading: none.
#pragma once

#include "agent/control/ControlSocket.h"

#include <functional>
#include <string_view>

namespace Live {

class MemoryFile {
 public:
   // The name is for those who look at the process from outside.
   explicit MemoryFile( char const * name );

   std::string path() const { return "/proc/self/fd/" + std::to_string( file_.number() ); }
   void append( std::string_view text );
   // Without their ends.
   void eachLine( std::function< void( std::string_view ) > const & each ) const;

 private:
   Descriptor file_;
};

} // namespace Live
