#include "rex/Log.h"

#include <cstdio>
#include <utility>

namespace Rex {

namespace {

Seconds theTime = 0;

LogSink & logSink() {
   static auto * sink = new LogSink; // messages may be raised while static objects go
   return *sink;
}

} // namespace

Seconds now() {
   return theTime;
}

void nowIs( Seconds now ) {
   theTime = now;
}

LogHandle::LogHandle( LogMessage const & message, Seconds interval, double growth, unsigned free, unsigned most )
   : message_( message ), growth_( growth ), free_( free ), most_( most ), interval_( interval ) {}

bool LogHandle::isDue( Seconds now ) const {
   if ( most_ && told_ >= most_ ) {
      return false;
   }
   return told_ == 0 || told_ < free_ || now - last_ >= interval_;
}

void log( LogHandle const & handle ) {
   Seconds const time = now();
   if ( !handle.isDue( time ) ) {
      ++handle.heldBack_;
      return;
   }
   if ( handle.told_++ >= handle.free_ && handle.told_ > 1 ) {
      handle.interval_ *= handle.growth_;
   }
   handle.last_ = time;
   LogEntry const entry{ time, handle.message_, std::exchange( handle.heldBack_, 0 ) };
   if ( auto const sink = logSink() ) {
      sink( entry );
   } else {
      std::fprintf( stderr, "%s\n", logText( entry ).c_str() );
   }
}

void logSinkIs( LogSink sink ) {
   logSink() = std::move( sink );
}

Corvo::String logText( LogEntry const & entry ) {
   char time[32];
   std::snprintf( time, sizeof time, "%.3f s ", entry.time );
   Corvo::String text = time;
   text += entry.message.code;
   for ( char const * part : { entry.message.message, entry.message.explanation, entry.message.recommendedAction } ) {
      text += part == entry.message.message ? ": " : " ";
      text += part;
   }
   if ( entry.heldBack ) {
      text += " (held back before: " + std::to_string( entry.heldBack ) + ")";
   }
   return text;
}

} // namespace Rex
