#include "agent/SystemLog.h"

#include "inspection/views/Terminal.h"

#include <cstdio>
#include <cstdlib>

namespace Live {

void say( Level level, std::string const & line ) {
   static bool const isToJournal = std::getenv( "JOURNAL_STREAM" ) != nullptr;
   std::string const prefix = isToJournal ? "<" + std::to_string( static_cast< int >( level ) ) + ">" : "l3sm: ";
   std::fprintf( stderr, "%s%s\n", prefix.c_str(), Inspection::printable( line ).c_str() );
   std::fflush( stderr );
}

} // namespace Live
