// Agents as processes of their own, as `l3sm serve` is, and what can be asked of them.
//
//    ServedAgent agent( folder, "Linecard3", { "BCM88690_B0" }, server.url() );
//    ASSERT_TRUE( agent.isSoon( "running" ) );
//    agent.dies();                               // kill -9
//    agent.starts();
//    agent.ctl( "show" );                        // what `l3sm ctl --json show` prints
#pragma once

#include "Folder.h"

#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

class ServedAgent {
 public:
   ServedAgent( Folder const & folder,
                std::string slice,
                std::string const & theSwitch,
                std::string database,
                std::vector< std::string > more = {} )
      : folder_( folder ), slice_( std::move( slice ) ), database_( std::move( database ) ),
        more_( std::move( more ) ) {
      folder_.file( slice_ + ".json", theSwitch );
      starts();
   }
   ~ServedAgent() { dies(); }
   ServedAgent( ServedAgent const & ) = delete;
   ServedAgent & operator=( ServedAgent const & ) = delete;

   void starts() {
      std::vector< std::string > words{
         program(), "serve", folder_ / ( slice_ + ".json" ), "--slice", slice_, "--socket", socket() };
      if ( !database_.empty() ) {
         words.insert( words.end(), { "--database", database_ } );
      }
      words.insert( words.end(), more_.begin(), more_.end() );
      std::vector< char * > arguments;
      for ( auto & word : words ) {
         arguments.push_back( word.data() );
      }
      arguments.push_back( nullptr );
      process_ = ::fork();
      if ( process_ == 0 ) {
         ::prctl( PR_SET_PDEATHSIG, SIGKILL );
         int const log = ::open( ( folder_ / ( slice_ + ".log" ) ).c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600 );
         ::dup2( log, STDERR_FILENO );
         ::execv( arguments[0], arguments.data() );
         ::_exit( 127 );
      }
   }
   // Its further options, from the next start on.
   void moreIs( std::vector< std::string > more ) { more_ = std::move( more ); }
   void dies() { endsBy( SIGKILL ); }
   // Its exit status; 128 and the signal where one ended it.
   int endsBy( int signal ) {
      if ( process_ <= 0 ) {
         return 0;
      }
      ::kill( process_, signal );
      return ended();
   }
   int ended() {
      int status = 0;
      ::waitpid( process_, &status, 0 );
      process_ = 0;
      return WIFSIGNALED( status ) ? 128 + WTERMSIG( status ) : WEXITSTATUS( status );
   }
   pid_t process() const { return process_; }
   std::string log() const { return folder_.text( slice_ + ".log" ); }
   std::string socket() const { return folder_ / ( slice_ + ".ctl" ); }

   // What a command prints, of both kinds.
   std::string ctl( std::string const & command ) const {
      return output( "ctl --socket '" + socket() + "' --json " + command );
   }
   std::string phase() const {
      auto const text = ctl( "status" );
      std::string const key = "\"phase\": \"";
      auto const at = text.find( key );
      return at == std::string::npos
                ? std::string()
                : text.substr( at + key.size(), text.find( '"', at + key.size() ) - at - key.size() );
   }
   // Within 10 s.
   bool isSoon( std::string const & wanted ) const {
      for ( int tries = 0; tries < 1000; ++tries ) {
         if ( phase() == wanted ) {
            return true;
         }
         ::usleep( 10'000 );
      }
      return false;
   }
   std::string output( std::string const & arguments ) const {
      std::string const file = folder_ / ".output";
      std::string const line = "'" + program() + "' " + arguments + " </dev/null >'" + file + "' 2>&1";
      static_cast< void >( std::system( line.c_str() ) );
      return contentsOf( file );
   }

 private:
   static std::string program() { return L3SM_BINARY_DIR "/bin/l3sm"; }

   Folder const & folder_;
   std::string slice_;
   std::string database_;
   std::vector< std::string > more_;
   pid_t process_ = 0;
};
