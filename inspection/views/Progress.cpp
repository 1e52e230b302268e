#include "inspection/views/Progress.h"

#include <iostream>
#include <unistd.h>

namespace Inspection {

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 1s;
constexpr auto pause = 100ms;
constexpr char const * eraseLine = "\r\033[K";

} // namespace

Progress::Progress( std::string doing )
   : Progress( std::move( doing ), std::chrono::steady_clock::now, ::isatty( STDERR_FILENO ) ? &std::cerr : nullptr ) {}

Progress::Progress( std::string doing, std::function< Time() > now, std::ostream * terminal )
   : doing_( std::move( doing ) ), now_( std::move( now ) ), terminal_( terminal ), next_( now_() + patience ) {}

Progress::~Progress() {
   if ( isShown_ ) {
      *terminal_ << eraseLine << std::flush;
   }
}

void Progress::stands( std::size_t done, std::size_t all ) {
   if ( !terminal_ ) {
      return;
   }
   Time const now = now_();
   if ( now < next_ ) {
      return;
   }
   next_ = now + pause;
   isShown_ = true;
   *terminal_ << eraseLine << doing_ << ": " << done << " of " << all << '\r' << std::flush;
}

} // namespace Inspection
