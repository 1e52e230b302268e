// Asks a running agent at its control socket.
//
//    ControlClient agent( { .path = controlPath( "Linecard3" ) } );          // InputError: nobody listens, …
//    Rex::Value const status = agent.call( "status" ).value();               // CommandError: the agent refuses
//    agent.call( "rows" ).eachMember( [&]( std::string_view line ) { … } ); // what is large, as it came
//
// Whoever waits gives up after a while in which nothing came, with an InputError that says so.
//
// Threading: one thread; blocks it.
#pragma once

#include "agent/control/Commands.h"
#include "agent/control/ControlSocket.h"

namespace Live {

// A result, as the agent has written it.
class ControlAnswer {
 public:
   ControlAnswer( std::string line, std::size_t begin, std::size_t size )
      : line_( std::move( line ) ), begin_( begin ), size_( size ) {}

   std::string_view text() const { return std::string_view( line_ ).substr( begin_, size_ ); }
   Rex::Value value() const;
   // Of a list: the text of each member.
   void eachMember( std::function< void( std::string_view ) > const & each ) const;

 private:
   std::string line_;
   std::size_t begin_; // of the result in it
   std::size_t size_;
};

class ControlClient {
 public:
   struct Options {
      std::string path;
      int timeout = 10;      // seconds in which nothing comes
      std::string name = {}; // for messages; empty: the path
   };

   explicit ControlClient( Options options );

   std::string const & name() const { return options_.name; }
   // `params`: an object, a list, or null.
   ControlAnswer call( std::string const & command, Rex::Value const & params = {} );

 private:
   void send( std::string_view text );
   std::string line();
   void wait( int events );
   [[noreturn]] void fail( std::string const & what ) const;

   Options options_;
   Descriptor socket_;
   std::int64_t latest_ = 0; // id of a call
   std::string ahead_;       // behind the line that was read last
};

} // namespace Live
