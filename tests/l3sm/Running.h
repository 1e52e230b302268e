// The program as it runs, to be watched and ended: beside Command, which waits for its end.
//
//    Running l3sm( "run s.json --journal j", { { "s.json", text } } );
//    ASSERT_TRUE( l3sm.waitsForEvent( "j", 17 ) );
//    l3sm.kill( SIGTERM );
//    EXPECT_EQ( l3sm.wait(), 128 + SIGTERM );
#pragma once

#include "BuildFolder.h"
#include "ChildProgram.h"
#include "l3sm/Command.h"

#include <sys/stat.h>

class Running {
 public:
   // `pipes`: made before, each named in the arguments as a file to write.
   Running( std::string const & arguments, Command::Files const & files, std::vector< std::string > const & pipes = {} )
      : folder_( newFolder() ) {
      for ( auto const & [name, text] : files ) {
         std::ofstream( folder_ / name ) << text;
      }
      for ( auto const & name : pipes ) {
         ::mkfifo( ( folder_ / name ).c_str(), 0600 );
         pipe_ = ::open( ( folder_ / name ).c_str(), O_RDONLY | O_NONBLOCK );
      }
      std::string const line = "cd '" + folder_.string() + "' && exec '" + buildFolder() + "/bin/l3sm' " + arguments +
                               " </dev/null >.out 2>.errors";
      child_.begins( { "/bin/sh", "-c", line }, folder_ / ".errors" );
   }
   Running( Running const & ) = delete;
   Running & operator=( Running const & ) = delete;
   ~Running() {
      child_.dies();
      if ( pipe_ >= 0 ) {
         ::close( pipe_ );
      }
      std::filesystem::remove_all( folder_ );
   }

   // Until the journal has begun the event after it; false where the process ended before.
   bool waitsForEvent( std::string const & journal, std::size_t event ) {
      std::string const line = "{\"op\": \"event\", \"event\": " + std::to_string( event ) + ",";
      return until( [&] { return file( journal ).find( line ) != std::string::npos; } );
   }
   // Until a signal has its usual effect.
   bool waitsUntilNotCaught( int signal ) {
      return until( [&] {
         std::istringstream status( contentsOf( "/proc/" + std::to_string( child_.process() ) + "/status" ) );
         for ( std::string line; std::getline( status, line ); ) {
            if ( line.starts_with( "SigCgt:" ) ) {
               return ( std::stoull( line.substr( 7 ), nullptr, 16 ) >> ( signal - 1 ) & 1 ) == 0;
            }
         }
         return false;
      } );
   }
   // Reads so many bytes of what it writes into a pipe.
   void readsFrom( std::string const &, std::size_t bytes ) {
      char buffer[4096];
      std::size_t done = 0;
      until( [&] {
         auto const size = ::read( pipe_, buffer, std::min( sizeof buffer, bytes - done ) );
         done += size > 0 ? static_cast< std::size_t >( size ) : 0;
         return done >= bytes;
      } );
   }

   void kill( int signal ) const { ::kill( child_.process(), signal ); }
   // Its exit status; 128 + signal where a signal ended it, as shells say it.
   int wait() { return child_.ended(); }
   std::string file( std::string const & name ) const { return contentsOf( folder_ / name ); }
   std::string output() const { return file( ".out" ); }
   std::string errors() const { return file( ".errors" ); }

 private:
   template< class Condition >
   bool until( Condition const & holds ) const {
      while ( !holds() ) {
         if ( !child_.isRunning() ) {
            return holds();
         }
         ::usleep( 1000 );
      }
      return true;
   }

   std::filesystem::path const folder_;
   int pipe_ = -1;
   ChildProgram child_;
};
