// An agent that is nothing but a loop, commands and their socket, and clients of it.
//
//    ControlWorld world;
//    world.commands.add( … );
//    world.serve();
//    world.during( [&] { EXPECT_EQ( world.raw().ask( "garbage" ), … ); } );   // a client, on a thread of its own
#pragma once

#include "Folder.h"
#include "Soon.h"
#include "agent/control/ControlClient.h"
#include "agent/control/ControlServer.h"
#include "inspection/files/Json.h"

#include <atomic>
#include <ctime>
#include <poll.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

// A connection without manners.
class RawClient {
 public:
   explicit RawClient( std::string const & path ) : socket_( Live::connectTo( path ) ) {}

   // How much of it was taken.
   std::size_t send( std::string_view text ) const {
      std::size_t done = 0;
      while ( done < text.size() ) {
         auto const sent = ::send( number(), text.data() + done, text.size() - done, MSG_NOSIGNAL );
         pollfd writable{ number(), POLLOUT, 0 };
         if ( sent > 0 ) {
            done += static_cast< std::size_t >( sent );
         } else if ( errno != EAGAIN || ::poll( &writable, 1, 1000 ) == 0 ) {
            break;
         }
      }
      return done;
   }
   // A line; what came before the end, or before a long silence, where there is none.
   std::string line() {
      while ( in_.find( '\n' ) == std::string::npos && receive() ) {
      }
      auto const end = in_.find( '\n' );
      std::string const line = in_.substr( 0, end );
      in_.erase( 0, end == std::string::npos ? end : end + 1 );
      return line;
   }
   std::string ask( std::string const & text ) {
      send( text + "\n" );
      return line();
   }
   // Whether the agent ends the connection, whatever comes before.
   bool ends() {
      while ( receive() ) {
      }
      return hasEnded_;
   }
   // The same, while it reads nothing.
   bool endsUnread() const {
      pollfd end{ number(), 0, 0 }; // told of a hang-up whatever one asks for
      return ::poll( &end, 1, longestMilliseconds ) == 1;
   }
   void sendsNoMore() const { ::shutdown( number(), SHUT_WR ); }
   int number() const { return socket_.number(); }

 private:
   static constexpr int longestMilliseconds = std::chrono::milliseconds( longestWait ).count();

   bool receive() {
      pollfd readable{ number(), POLLIN, 0 };
      if ( ::poll( &readable, 1, longestMilliseconds ) <= 0 ) {
         return false;
      }
      std::vector< char > some( 1 << 20 );
      auto const got = ::recv( number(), some.data(), some.size(), 0 );
      in_.append( some.data(), got > 0 ? static_cast< std::size_t >( got ) : 0 );
      hasEnded_ = got <= 0;
      return got > 0;
   }
   Live::Descriptor socket_;
   std::string in_;
   bool hasEnded_ = false;
};

class ControlWorld {
 public:
   ControlWorld() {
      options.path = folder / "a.ctl";
      options.log = [this]( std::string const & line ) { log.push_back( line.substr( line.find( ": was" ) + 1 ) ); };
      commands.add(
         { .name = "echo",
           .does = "what it is given",
           .arguments = { { .name = "text", .what = "any" } },
           .answer = []( Live::Arguments const & given ) -> Live::Answer { return given.value( "text" ); } } );
      commands.add( { .name = "set",
                      .does = "changes a number",
                      .arguments = { { .name = "to", .type = Live::Argument::Type::number, .what = "the number" } },
                      .changes = true,
                      .answer = [this]( Live::Arguments const & given ) -> Live::Answer {
                         number = given.required< U32 >( "to" );
                         return *number;
                      } } );
   }
   void serve() { server.emplace( loop, commands, options ); }
   // A long answer.
   void addLong( std::string const & name, std::function< void( std::ostream & ) > write ) {
      commands.add( { .name = name, .does = "takes long", .answer = [=]( Live::Arguments const & ) -> Live::Answer {
                        return Live::LongAnswer{ write };
                     } } );
   }

   RawClient raw() const { return RawClient( options.path ); }
   Live::ControlClient client( int timeout = longestWait.count() ) const {
      return Live::ControlClient( { .path = options.path, .timeout = timeout } );
   }

   // Serves as long as the client goes on.
   void during( std::function< void() > const & goesOn ) {
      std::atomic< bool > isOver = false;
      std::thread other( [&] {
         try {
            goesOn();
         } catch ( std::exception const & error ) {
            ADD_FAILURE() << error.what();
         }
         isOver = true;
      } );
      while ( !isOver ) {
         auto const before = processorTime();
         loop.turn( 0.002 );
         auto const turn = processorTime() - before;
         longestTurn = std::max( longestTurn, turn );
         allTurns += turn;
         ++turns;
      }
      other.join();
   }
   // Until it is so; the server has still to hear of what clients have done.
   template< class Condition >
   bool turnsUntil( Condition const & holds ) {
      return soon( holds, [this] { loop.turn( 0.002 ); } );
   }

   Folder const folder;
   Live::EventLoop loop;
   Live::Commands commands;
   Live::ControlServer::Options options;
   std::optional< Live::ControlServer > server;
   std::vector< std::string > log;
   std::optional< U32 > number;
   double longestTurn = 0; // seconds of the processor
   double allTurns = 0;
   std::size_t turns = 0;

 private:
   static double processorTime() {
      timespec time{};
      ::clock_gettime( CLOCK_THREAD_CPUTIME_ID, &time );
      return static_cast< double >( time.tv_sec ) + static_cast< double >( time.tv_nsec ) / 1e9;
   }
};

inline std::string request( std::string const & method, std::string const & params = "" ) {
   return R"({"jsonrpc": "2.0", "id": 1, "method": ")" + method + "\"" +
          ( params.empty() ? "" : ", \"params\": " + params ) + "}";
}
