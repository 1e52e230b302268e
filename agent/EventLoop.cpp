#include "agent/EventLoop.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <stdexcept>
#include <system_error>
#include <systemd/sd-daemon.h>
#include <systemd/sd-event.h>
#include <utility>

namespace Live {

namespace {

constexpr double microseconds = 1e6; // in a second

// A loop that has ended looks after nothing any more: what is asked of it then is fine, and never comes.
int checked( int result, char const * what ) {
   if ( result < 0 && result != -ESTALE ) {
      throw std::system_error( -result, std::generic_category(), what );
   }
   return result;
}

std::uint64_t inMicroseconds( Rex::Seconds time ) {
   return static_cast< std::uint64_t >( std::max( time, 0.0 ) * microseconds );
}

} // namespace

struct EventLoop::Source::Impl {
   sd_event * loop = nullptr;
   std::exception_ptr * failure = nullptr;
   sd_event_source * source = nullptr;
   std::function< void( U32 ) > ready;
   // Of a timer, where time is virtual.
   VirtualTime * time = nullptr;
   VirtualTime::Processor * processor = nullptr;
   VirtualTime::Appointment appointment = {};

   void comesBy( Rex::Seconds after ) {
      appointment = time->appointment(
         after,
         [this] {
            auto const call = ready; // which may end this source
            call( 0 );
         },
         processor );
   }

   ~Impl() { sd_event_source_disable_unref( source ); }

   // What the loop calls: nothing is thrown through it.
   int come( U32 events ) {
      std::uint64_t now = 0;
      sd_event_now( loop, CLOCK_MONOTONIC, &now );
      Rex::nowIs( static_cast< double >( now ) / microseconds );
      auto const call = ready; // which may end this source
      auto * const failed = failure;
      auto * const of = loop;
      try {
         call( events );
      } catch ( ... ) {
         *failed = std::current_exception();
         sd_event_exit( of, 0 );
      }
      return 0;
   }
};

EventLoop::Source::Source() = default;
EventLoop::Source::Source( std::unique_ptr< Impl > impl ) : impl_( std::move( impl ) ) {}
EventLoop::Source::Source( Source && ) noexcept = default;
EventLoop::Source & EventLoop::Source::operator=( Source && ) noexcept = default;
EventLoop::Source::~Source() = default;

void EventLoop::Source::eventsIs( U32 events ) {
   checked( sd_event_source_set_io_events( impl_->source, events ), "events of a file" );
}

void EventLoop::Source::timeIs( Rex::Seconds after ) {
   if ( impl_->time ) {
      impl_->comesBy( after );
      return;
   }
   checked( sd_event_source_set_time_relative( impl_->source, inMicroseconds( after ) ), "time of a timer" );
   checked( sd_event_source_set_enabled( impl_->source, SD_EVENT_ONESHOT ), "timer" );
}

EventLoop::EventLoop( VirtualTime & time )
   : time_( &time ), processor_( std::make_unique< VirtualTime::Processor >() ) {}

EventLoop::EventLoop() {
   checked( sd_event_new( &loop_ ), "event loop" );
   deferred_ = std::make_unique< Source::Impl >();
   *deferred_ = { loop_, &failure_, nullptr, [this]( U32 ) {
                    for ( auto const & what : std::exchange( soon_, {} ) ) {
                       what();
                    }
                 } };
   checked( sd_event_add_defer(
               loop_,
               &deferred_->source,
               []( sd_event_source *, void * to ) { return static_cast< Source::Impl * >( to )->come( 0 ); },
               deferred_.get() ),
            "what is to be done soon" );
   sd_event_source_set_priority( deferred_->source, SD_EVENT_PRIORITY_IDLE ); // after files and timers that are ready
   sd_event_source_set_enabled( deferred_->source, SD_EVENT_OFF );
}

EventLoop::~EventLoop() {
   watchdog_ = {};
   deferred_.reset();
   sd_event_unref( loop_ );
}

void EventLoop::refuseVirtual() const {
   if ( time_ ) {
      throw std::logic_error( "a loop of virtual time has neither files nor signals, and runs with its time" );
   }
}

EventLoop::Source EventLoop::io( int file, U32 events, std::function< void( U32 ) > ready ) {
   refuseVirtual();
   auto impl = std::make_unique< Source::Impl >();
   *impl = { loop_, &failure_, nullptr, std::move( ready ) };
   checked( sd_event_add_io(
               loop_,
               &impl->source,
               file,
               events,
               []( sd_event_source *, int, U32 come, void * to ) {
                  return static_cast< Source::Impl * >( to )->come( come );
               },
               impl.get() ),
            "file in the event loop" );
   return Source( std::move( impl ) );
}

EventLoop::Source EventLoop::timer( Rex::Seconds after, std::function< void() > come ) {
   auto impl = std::make_unique< Source::Impl >();
   if ( time_ ) {
      impl->ready = [does = std::move( come )]( U32 ) { does(); };
      impl->time = time_;
      impl->processor = processor_.get();
      impl->comesBy( after );
      return Source( std::move( impl ) );
   }
   *impl = { loop_, &failure_, nullptr, [does = std::move( come )]( U32 ) { does(); } };
   checked(
      sd_event_add_time_relative(
         loop_,
         &impl->source,
         CLOCK_MONOTONIC,
         inMicroseconds( after ),
         1,
         []( sd_event_source *, std::uint64_t, void * to ) { return static_cast< Source::Impl * >( to )->come( 0 ); },
         impl.get() ),
      "timer" );
   return Source( std::move( impl ) );
}

EventLoop::Source EventLoop::signal( int number, std::function< void() > come ) {
   refuseVirtual();
   sigset_t set;
   sigemptyset( &set );
   sigaddset( &set, number );
   checked( -::pthread_sigmask( SIG_BLOCK, &set, nullptr ), "signal" );
   auto impl = std::make_unique< Source::Impl >();
   *impl = { loop_, &failure_, nullptr, [does = std::move( come )]( U32 ) { does(); } };
   checked( sd_event_add_signal(
               loop_,
               &impl->source,
               number,
               []( sd_event_source *, signalfd_siginfo const *, void * to ) {
                  return static_cast< Source::Impl * >( to )->come( 0 );
               },
               impl.get() ),
            "signal" );
   return Source( std::move( impl ) );
}

void EventLoop::soon( std::function< void() > what ) {
   if ( time_ ) {
      time_->after( 0, std::move( what ), processor_.get() );
      return;
   }
   soon_.push_back( std::move( what ) );
   checked( sd_event_source_set_enabled( deferred_->source, SD_EVENT_ONESHOT ), "what is to be done soon" );
}

Rex::Seconds EventLoop::clock() {
   if ( auto const * const time = VirtualTime::ofProcess() ) {
      return time->now();
   }
   return std::chrono::duration< double >( std::chrono::steady_clock::now().time_since_epoch() ).count();
}

int EventLoop::run() {
   refuseVirtual();
   int const status = checked( sd_event_loop( loop_ ), "event loop" );
   if ( failure_ ) {
      std::rethrow_exception( std::exchange( failure_, nullptr ) );
   }
   return status;
}

void EventLoop::end( int status ) {
   if ( loop_ ) {
      sd_event_exit( loop_, status );
   }
}

bool EventLoop::turn( Rex::Seconds wait ) {
   refuseVirtual();
   int const served = checked( sd_event_run( loop_, inMicroseconds( wait ) ), "event loop" );
   if ( failure_ ) {
      std::rethrow_exception( std::exchange( failure_, nullptr ) );
   }
   return served > 0;
}

void EventLoop::watchdog( Rex::Seconds otherwise, std::function< void() > tick ) {
   std::uint64_t period = 0;
   isWatched_ = sd_watchdog_enabled( 0, &period ) > 0;
   Rex::Seconds const wait = isWatched_ ? static_cast< double >( period ) / microseconds / 2 : otherwise;
   watchdog_ = timer( wait, [this, wait, does = std::move( tick )] {
      if ( isWatched_ ) {
         sd_notify( 0, "WATCHDOG=1" );
      }
      watchdog_.timeIs( wait );
      does();
   } );
}

} // namespace Live
