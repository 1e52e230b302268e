#include "inspection/Interruption.h"

namespace Inspection {

namespace {

volatile std::sig_atomic_t came = 0;

void note( int signal ) {
   came = signal;
   std::signal( SIGINT, SIG_DFL );
   std::signal( SIGTERM, SIG_DFL );
}

} // namespace

Interruption::Interruption() {
   came = 0;
   struct sigaction action {};
   action.sa_handler = note;
   action.sa_flags = SA_RESTART; // files are written as if nothing had come
   ::sigaction( SIGINT, &action, &interrupt_ );
   ::sigaction( SIGTERM, &action, &terminate_ );
}

Interruption::~Interruption() {
   ::sigaction( SIGINT, &interrupt_, nullptr );
   ::sigaction( SIGTERM, &terminate_, nullptr );
}

int Interruption::signal() const {
   return came;
}

} // namespace Inspection
