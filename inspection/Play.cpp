#include "inspection/Play.h"

#include "inspection/views/Progress.h"
#include "inspection/views/Terminal.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <poll.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace Inspection {

namespace {

constexpr int wrongInput = 2; // how a child tells of an InputError

// A stream whose text is in the parent's hands as soon as it is written.
class PipeBuffer : public std::streambuf {
 public:
   explicit PipeBuffer( int pipe ) : pipe_( pipe ) {}

 private:
   int overflow( int letter ) override {
      char const text = static_cast< char >( letter );
      return xsputn( &text, 1 ) == 1 ? letter : traits_type::eof();
   }
   std::streamsize xsputn( char const * text, std::streamsize size ) override {
      std::streamsize done = 0;
      while ( done < size ) {
         auto const written = ::write( pipe_, text + done, static_cast< std::size_t >( size - done ) );
         if ( written < 0 && errno != EINTR ) {
            break;
         }
         done += written < 0 ? 0 : written;
      }
      return done;
   }
   int pipe_;
};

// Whatever is thrown ends it: it must not go on as its parent.
[[noreturn]] void beChild( int output, int errors, std::function< void( std::ostream & ) > const & what ) {
   ::dup2( errors, STDERR_FILENO );
   PipeBuffer buffer( output );
   std::ostream out( &buffer );
   int status = 0;
   try {
      what( out );
   } catch ( InputError const & error ) {
      for ( auto const & line : error.lines() ) {
         std::cerr << printable( line ) << '\n';
      }
      status = wrongInput;
   } catch ( ... ) {
      std::terminate(); // which tells what was thrown
   }
   // Without the destructors and buffers that the parent has too.
   std::cerr.flush();
   ::_exit( status );
}

std::vector< std::string > linesOf( std::string const & text ) {
   std::vector< std::string > lines;
   std::istringstream in( text );
   for ( std::string line; std::getline( in, line ); ) {
      lines.push_back( printable( line ) );
   }
   return lines;
}

} // namespace

std::string pluginBeside() {
   std::error_code none;
   auto const above = std::filesystem::read_symlink( "/proc/self/exe", none ).parent_path().parent_path();
   auto const asBuilt = above / "lib" / "libL3SmPlugin.so";
   auto const asInstalled = above / L3SM_PLUGIN_FOLDER / "libL3SmPlugin.so";
   return ( exists( asBuilt, none ) ? asBuilt : asInstalled ).string();
}

void loadPlugin( std::string const & path ) {
   std::string const library = path.empty() ? pluginBeside() : path;
   std::string const remedy = "; name the plug-in's library with --plugin PATH";
   try {
      Simulator::loadPlugin( library );
   } catch ( Simulator::LibraryError const & error ) {
      throw InputError( "--plugin", error.what() + remedy );
   }
   if ( DaceFapNi::defaultPluginLoader().registrations().empty() ) {
      throw InputError( "--plugin", library + " registers no plug-in" + remedy );
   }
}

bool play( Scenario const & scenario, Simulator::SimulatedSwitch & sw, Onlooker const & onlooker ) {
   scenario.prepare( sw );
   sw.start();
   Progress progress( "playing events" );
   for ( auto const & event : scenario.events ) {
      if ( onlooker.stops && onlooker.stops() ) {
         return false;
      }
      progress.stands( event.number, scenario.events.size() );
      if ( onlooker.before ) {
         onlooker.before( event );
      }
      scenario.play( sw, event );
   }
   return !( onlooker.stops && onlooker.stops() );
}

Child inChild( std::function< void( std::ostream & ) > const & what ) {
   std::array< std::array< int, 2 >, 2 > pipes; // output, errors; each: where to read, where to write
   for ( auto & pipe : pipes ) {
      if ( ::pipe( pipe.data() ) != 0 ) {
         throw InputError( std::string( "no pipe to a child process: " ) + std::strerror( errno ) );
      }
   }
   std::cout.flush();
   std::cerr.flush();
   pid_t const child = ::fork();
   if ( child == 0 ) {
      ::close( pipes[0][0] );
      ::close( pipes[1][0] );
      beChild( pipes[0][1], pipes[1][1], what );
   }
   ::close( pipes[0][1] );
   ::close( pipes[1][1] );
   if ( child < 0 ) {
      ::close( pipes[0][0] );
      ::close( pipes[1][0] );
      throw InputError( std::string( "no child process: " ) + std::strerror( errno ) );
   }

   std::array< std::string, 2 > texts;
   std::array< pollfd, 2 > ends{ pollfd{ pipes[0][0], POLLIN, 0 }, pollfd{ pipes[1][0], POLLIN, 0 } };
   while ( ends[0].fd >= 0 || ends[1].fd >= 0 ) {
      ::poll( ends.data(), ends.size(), -1 );
      for ( std::size_t end = 0; end < ends.size(); ++end ) {
         if ( ends[end].fd < 0 || ends[end].revents == 0 ) {
            continue;
         }
         std::array< char, 1 << 16 > text;
         auto const size = ::read( ends[end].fd, text.data(), text.size() );
         if ( size > 0 ) {
            texts[end].append( text.data(), static_cast< std::size_t >( size ) );
         } else if ( size == 0 || errno != EINTR ) {
            ::close( ends[end].fd );
            ends[end].fd = -1;
         }
      }
   }
   int status = 0;
   while ( ::waitpid( child, &status, 0 ) < 0 && errno == EINTR ) {
   }
   auto const said = linesOf( texts[1] );
   if ( WIFEXITED( status ) && WEXITSTATUS( status ) == wrongInput ) {
      throw InputError( said );
   }
   Child result{ WIFEXITED( status ) && WEXITSTATUS( status ) == 0, std::move( texts[0] ), {} };
   for ( auto const & line : said ) {
      result.errors += line + '\n';
   }
   return result;
}

} // namespace Inspection
