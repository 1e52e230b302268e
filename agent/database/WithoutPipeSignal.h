// Writing to a connection that the other side has closed is an error like others, not the end of the process.
//
//    WithoutPipeSignal const guard;
//
// Threading: of the calling thread.
#pragma once

#include <csignal>
#include <ctime>

namespace Live {

class WithoutPipeSignal {
 public:
   WithoutPipeSignal() {
      sigemptyset( &pipe_ );
      sigaddset( &pipe_, SIGPIPE );
      ::pthread_sigmask( SIG_BLOCK, &pipe_, &before_ );
   }
   ~WithoutPipeSignal() {
      if ( sigismember( &before_, SIGPIPE ) == 0 ) {
         timespec const now{};
         ::sigtimedwait( &pipe_, nullptr, &now );
         ::pthread_sigmask( SIG_SETMASK, &before_, nullptr );
      }
   }
   WithoutPipeSignal( WithoutPipeSignal const & ) = delete;
   WithoutPipeSignal & operator=( WithoutPipeSignal const & ) = delete;

 private:
   sigset_t pipe_{};
   sigset_t before_{};
};

} // namespace Live
