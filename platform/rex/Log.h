// Log records: what an operator is told. Each is known by a code that manuals and filters name.
//
//    REX_LOG_SECTION static constexpr Rex::LogMessage unsupported{
//       "FEATURE_NOT_SUPPORTED",                    // code
//       "The feature is not supported.",            // message
//       "This chip has no such table.",             // explanation
//       "Please unconfigure it.",                   // recommended action
//       Rex::LogMessage::error, 0 };
//    static Rex::LogHandle const unsupportedLog{ unsupported, Rex::Seconds{ 0 }, 1.0, 0, 0 };
//
//    Rex::log( unsupportedLog );
//
// A message stands in a section of its own of the library that raises it, so that all messages of a library can be
// listed without running it.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "corvo/Types.h"
#include "rex/Clock.h"

#include <functional>

// Put in front of the definition of a static LogMessage: places it in the section of the messages.
#define REX_LOG_SECTION [[gnu::section( ".veloro_logmsg" ), gnu::used]]

namespace Rex {

// One message, in the layout of the section: four texts, two numbers.
struct LogMessage {
   static constexpr U32 error = 3;

   char const * code;
   char const * message;
   char const * explanation;
   char const * recommendedAction;
   U32 severity; // lower is worse: 0 emergency, 3 error, 7 debugging
   U32 flags;    // none are known
};

// A message as it was raised.
struct LogEntry {
   Seconds time;
   LogMessage const & message;
   U32 heldBack; // how often it was raised since the entry before without being told
};

// What raises a message, and how often at most. It is a static object beside its message.
class LogHandle {
 public:
   // `interval`: no two entries within this time; 0 for no limit. `growth`: the interval is multiplied by it with every
   // entry. `free`: so many entries come before the interval counts. `most`: so many entries in all; 0 for no limit.
   LogHandle( LogMessage const & message, Seconds interval, double growth, unsigned free, unsigned most );
   LogHandle( LogHandle const & ) = delete;
   LogHandle & operator=( LogHandle const & ) = delete;

   LogMessage const & message() const { return message_; }

 private:
   friend void log( LogHandle const & handle );
   bool isDue( Seconds now ) const;

   LogMessage const & message_;
   double const growth_;
   unsigned const free_;
   unsigned const most_;
   mutable Seconds interval_;
   mutable Seconds last_ = 0;
   mutable unsigned told_ = 0;
   mutable U32 heldBack_ = 0;
};

// Raises a message.
void log( LogHandle const & handle );

// Where the entries go. The default prints each on standard error, in the form of logText. An empty function restores
// the default.
using LogSink = std::function< void( LogEntry const & ) >;
void logSinkIs( LogSink sink );

// "<time> <code>: <message> <explanation> <recommended action>", in one line.
Corvo::String logText( LogEntry const & entry );

} // namespace Rex
