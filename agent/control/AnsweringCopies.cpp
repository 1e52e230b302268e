#include "agent/control/AnsweringCopies.h"

#include "agent/control/JsonRpc.h"
#include "agent/control/SocketStream.h"
#include "assert/Assert.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <semaphore.h>
#include <sys/epoll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern "C" { // which this header forgets in some versions of the C library
#include <sys/pidfd.h>
}

namespace Live {

struct AnsweringCopies::Told {
   Told() { ::sem_init( &mayBegin, 1, 0 ); }
   ::sem_t mayBegin; // the agent has all that it needs to look after the copy
   std::atomic< U64 > written = 0;
};

namespace {

using Rex::Value;

constexpr int politeness = 10; // of the copy towards the agent
constexpr int whole = 0;       // how a copy tells that the client has its answer
constexpr int broken = 1;

// Leaves the copy nothing of the agent's to break.
void keepOnly( int socket ) {
   int const nowhere = ::open( "/dev/null", O_RDWR );
   for ( int const standard : { STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO } ) {
      ::dup2( nowhere, standard );
   }
   ::close_range( STDERR_FILENO + 1, static_cast< unsigned >( socket ) - 1, 0 );
   ::close_range( static_cast< unsigned >( socket ) + 1, ~0U, 0 );
}

// Instead of the answer, as long as nothing of it is with the client.
[[noreturn]] void tell( SocketBuffer & buffer, U64 written, Value const & id, CommandError const & error ) {
   if ( written > 0 ) {
      ::_exit( broken );
   }
   buffer.drop();
   try {
      std::ostream out( &buffer );
      out.exceptions( std::ios::badbit );
      out << errorLine( id, error.code(), error.what() );
      buffer.endLine();
   } catch ( ... ) {
      ::_exit( broken );
   }
   ::_exit( whole );
}

} // namespace

AnsweringCopies::~AnsweringCopies() {
   for ( Copy & copy : copies_ ) {
      if ( copy.process != 0 ) {
         end( copy );
         ::waitpid( copy.process, nullptr, 0 );
         copy.ended = {};
         ::close( copy.descriptor );
         ::munmap( copy.told, sizeof( Told ) );
      }
   }
}

std::list< AnsweringCopies::Copy >::iterator AnsweringCopies::find( Number number ) {
   return std::ranges::find( copies_, number, &Copy::number );
}

AnsweringCopies::Number AnsweringCopies::begin( LongCall call, Done done ) {
   turn_ = loop_.timer( 0, [this] { start(); } );
   copies_.push_back(
      { .number = ++latest_, .call = std::move( call ), .done = std::move( done ), .ended = {}, .late = {} } );
   return latest_;
}

void AnsweringCopies::forget( Number number ) {
   auto const copy = find( number );
   if ( copy == copies_.end() ) {
      return;
   }
   copy->done = {};
   if ( copy->process == 0 ) {
      copies_.erase( copy );
   } else {
      end( *copy );
   }
}

void AnsweringCopies::end( Copy & copy ) {
   ::pidfd_send_signal( copy.descriptor, SIGKILL, nullptr, 0 );
}

// One a turn: each takes the agent's time.
void AnsweringCopies::start() {
   auto const waiting = std::ranges::find( copies_, 0, &Copy::process );
   if ( waiting == copies_.end() || running_ >= limits_.atOnce ) {
      return;
   }
   turn_ = loop_.timer( 0, [this] { start(); } );
   if ( !start( *waiting ) ) {
      std::string const why = std::string( "no copy of the process: " ) + std::strerror( errno );
      Done const done = std::move( waiting->done );
      copies_.erase( waiting );
      done( { .isWhole = false, .hasBegun = false, .what = why } );
   }
}

bool AnsweringCopies::start( Copy & copy ) {
   void * const shared = ::mmap( nullptr, sizeof( Told ), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0 );
   if ( shared == MAP_FAILED ) {
      return false;
   }
   copy.told = new ( shared ) Told;
   pid_t const agent = ::getpid();
   pid_t const process = ::fork();
   if ( process == 0 ) {
      ::prctl( PR_SET_PDEATHSIG, SIGKILL );
      if ( ::getppid() != agent ) {
         ::_exit( broken );
      }
      while ( ::sem_wait( &copy.told->mayBegin ) != 0 ) { // a signal came
      }
      beCopy( copy, limits_.patience );
   }
   int const descriptor = process < 0 ? -1 : ::pidfd_open( process, 0 );
   if ( descriptor < 0 ) {
      int const reason = errno;
      if ( process > 0 ) {
         ::kill( process, SIGKILL );
         ::waitpid( process, nullptr, 0 );
      }
      ::munmap( shared, sizeof( Told ) );
      errno = reason;
      return false;
   }
   ++running_;
   copy.process = process;
   copy.descriptor = descriptor;
   copy.ended = loop_.io( descriptor, EPOLLIN, [this, number = copy.number]( U32 ) { ended( number ); } );
   copy.late = loop_.timer( limits_.time, [this, number = copy.number] {
      if ( auto const late = find( number ); late != copies_.end() ) {
         late->isLate = true;
         end( *late );
      }
   } );
   ::sem_post( &copy.told->mayBegin );
   return true;
}

void AnsweringCopies::ended( Number number ) {
   auto const copy = find( number );
   int status = 0;
   ::waitpid( copy->process, &status, 0 );
   CopyEnd const end{ .isWhole = WIFEXITED( status ) && WEXITSTATUS( status ) == whole,
                      .hasBegun = copy->told->written > 0,
                      .what = copy->isLate ? "the answer takes longer than " +
                                                std::to_string( static_cast< int >( limits_.time ) ) + " s"
                              : WIFSIGNALED( status )
                                 ? "the answer was ended by signal " + std::to_string( WTERMSIG( status ) )
                                 : "the client reads nothing" };
   // In this order: a file that a younger copy has inherited and not closed yet stays with the loop when it is closed.
   copy->ended = {};
   ::close( copy->descriptor );
   ::munmap( copy->told, sizeof( Told ) );
   --running_;
   Done const done = std::move( copy->done );
   copies_.erase( copy );
   turn_ = loop_.timer( 0, [this] { start(); } );
   if ( done ) {
      done( end );
   }
}

void AnsweringCopies::beCopy( Copy const & copy, int patience ) {
   auto const & [socket, id, answer] = copy.call;
   keepOnly( socket );
   ::setpriority( PRIO_PROCESS, 0, politeness );
   auto & written = copy.told->written;
   SocketBuffer buffer( socket, patience, written );
   // What fails for good here has no consequence for the agent, and is told: before the agent's own hooks, and instead.
   Rex::atFailure( [&] {
      auto const * const failure = Rex::failure();
      std::string const what = failure->text + ( failure->message.empty() ? "" : ": " + failure->message );
      tell( buffer, written, id, { CommandError::refused, "the agent would fail: " + what } );
   } );
   try {
      std::ostream out( &buffer );
      out.exceptions( std::ios::badbit ); // what the buffer throws goes on
      out << answerBegin( id );
      answer.write( out );
      out << answerEnd;
      buffer.endLine();
   } catch ( SocketBuffer::Stuck const & ) {
      ::_exit( broken );
   } catch ( ... ) {
      tell( buffer, written, id, commandErrorOf( std::current_exception() ) );
   }
   ::_exit( whole );
}

} // namespace Live
