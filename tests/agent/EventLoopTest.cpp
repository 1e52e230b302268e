// The loop of an agent: what goes wrong in it comes out of it, and a service manager hears that it goes on.
#include "agent/EventLoop.h"
#include "Folder.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <system_error>
#include <unistd.h>

namespace {

using Live::EventLoop;

TEST( EventLoop, refusesAFileThatThereIsnt ) {
   EventLoop loop;
   EXPECT_THROW( static_cast< void >( loop.io( -1, EPOLLIN, []( U32 ) {} ) ), std::system_error );
   EXPECT_THROW( static_cast< void >( loop.signal( 0, [] {} ) ), std::system_error );
}

TEST( EventLoop, letsOutWhatIsThrownInIt ) {
   EventLoop loop;
   loop.soon( [] { throw std::runtime_error( "out of luck" ); } );
   EXPECT_THROW( loop.run(), std::runtime_error );
   EventLoop other;
   other.soon( [] { throw std::runtime_error( "out of luck" ); } );
   EXPECT_THROW( other.turn( 0 ), std::runtime_error );
}

TEST( EventLoop, endsWithTheStatusThatItIsTold ) {
   EventLoop loop;
   loop.soon( [&] { loop.end( 7 ); } );
   EXPECT_EQ( loop.run(), 7 );
}

TEST( EventLoop, hearsOfASignal ) {
   EventLoop loop;
   auto const heard = loop.signal( SIGUSR1, [&] { loop.end( 3 ); } );
   ::kill( ::getpid(), SIGUSR1 );
   EXPECT_EQ( loop.run(), 3 );
}

TEST( EventLoop, tellsAServiceManagerThatItGoesOnWhereThatAsksForIt ) {
   Folder const folder;
   int const manager = ::socket( AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0 );
   sockaddr_un address{ .sun_family = AF_UNIX, .sun_path = {} };
   ( folder / "notify" ).copy( address.sun_path, sizeof address.sun_path - 1 );
   ASSERT_EQ( ::bind( manager, reinterpret_cast< sockaddr * >( &address ), sizeof address ), 0 );
   auto const told = [&] {
      char text[64] = {};
      return ::recv( manager, text, sizeof text - 1, MSG_DONTWAIT ) < 0 ? std::string() : std::string( text );
   };
   ::setenv( "NOTIFY_SOCKET", ( folder / "notify" ).c_str(), 1 );

   EventLoop alone;
   alone.watchdog( 0, [&] { alone.end( 0 ); } );
   alone.run();
   EXPECT_EQ( told(), "" ) << "nobody has asked";

   ::setenv( "WATCHDOG_USEC", "2000", 1 );
   ::setenv( "WATCHDOG_PID", std::to_string( ::getpid() ).c_str(), 1 );
   EventLoop watched;
   int ticks = 0;
   watched.watchdog( 1e9, [&] { ++ticks == 2 ? watched.end( 0 ) : void(); } );
   watched.run();
   EXPECT_EQ( told(), "WATCHDOG=1" );
   EXPECT_EQ( told(), "WATCHDOG=1" );
   EXPECT_EQ( told(), "" );
   for ( char const * const name : { "NOTIFY_SOCKET", "WATCHDOG_USEC", "WATCHDOG_PID" } ) {
      ::unsetenv( name );
   }
   ::close( manager );
}

} // namespace
