#include "l3sm/RunLog.h"

#include "inspection/views/Terminal.h"

#include <iostream>

namespace Cli {

using namespace Inspection;

RunLog::RunLog( std::function< U32() > event ) : event_( std::move( event ) ) {
   Rex::logSinkIs( [this]( Rex::LogEntry const & entry ) { raised( entry ); } );
}

RunLog::~RunLog() {
   Rex::logSinkIs( {} );
}

void RunLog::raised( Rex::LogEntry const & entry ) {
   auto const [known, isNew] = byCode_.try_emplace( entry.message.code );
   known->second.lastEvent = event_();
   if ( !isNew ) {
      known->second.times += 1 + entry.heldBack;
      return;
   }
   std::string const text = Rex::logText( entry );
   std::string const code = entry.message.code;
   std::cerr << "event " << event_() << ": " << printable( text.substr( text.find( code ) ) ) << '\n';
}

void RunLog::end() const {
   for ( auto const & [code, repeated] : byCode_ ) {
      if ( repeated.times > 0 ) {
         std::cerr << printable( code ) << ": " << counted( repeated.times, "time", "times" )
                   << " more, the last in event " << repeated.lastEvent << '\n';
      }
   }
}

} // namespace Cli
