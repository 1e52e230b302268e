// A program that runs beside a test: it dies with it, and with the process. What it prints goes behind what stands in a
// file.
//
//    ChildProgram server;
//    server.begins( { "redis-server", "--port", "0" }, folder / "log" );
//    server.dies();                                      // kill -9
//
// Threading: one thread, which lives as long as the program.
#pragma once

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

class ChildProgram {
 public:
   using Words = std::vector< std::string >;

   ChildProgram() = default;
   ~ChildProgram() { dies(); }
   ChildProgram( ChildProgram const & ) = delete;
   ChildProgram & operator=( ChildProgram const & ) = delete;

   void begins( Words words, std::string const & log ) {
      std::vector< char * > arguments;
      for ( auto & word : words ) {
         arguments.push_back( word.data() );
      }
      arguments.push_back( nullptr );
      process_ = ::fork();
      if ( process_ == 0 ) {
         ::prctl( PR_SET_PDEATHSIG, SIGKILL );
         int const to = ::open( log.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600 );
         ::dup2( to, STDOUT_FILENO );
         ::dup2( to, STDERR_FILENO );
         ::execvp( arguments[0], arguments.data() );
         ::_exit( 127 );
      }
   }
   pid_t process() const { return process_; }
   bool isThere() const { return process_ > 0; }
   // Not where it has ended by itself.
   bool isRunning() const {
      siginfo_t info{};
      return isThere() && ::waitid( P_PID, static_cast< id_t >( process_ ), &info, WEXITED | WNOHANG | WNOWAIT ) == 0 &&
             info.si_pid == 0;
   }
   // Doesn't run for a while.
   void standsStill() const { ::kill( process_, SIGSTOP ); }
   void goesOn() const { ::kill( process_, SIGCONT ); }
   void dies() { endsBy( SIGKILL ); }
   // Its exit status; 128 and the signal where one ended it.
   int endsBy( int signal ) {
      if ( !isThere() ) {
         return 0;
      }
      ::kill( process_, signal );
      return ended();
   }
   int ended() {
      int status = 0;
      while ( isThere() && ::waitpid( process_, &status, 0 ) < 0 && errno == EINTR ) {
      }
      process_ = 0;
      return WIFSIGNALED( status ) ? 128 + WTERMSIG( status ) : WEXITSTATUS( status );
   }

 private:
   pid_t process_ = 0;
};
