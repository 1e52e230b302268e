#include "agent/VirtualTime.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace Live {

namespace {

constexpr double nanoseconds = 1e9; // in a second

VirtualTime * time_ = nullptr;

} // namespace

VirtualTime::VirtualTime() {
   if ( time_ ) {
      throw std::logic_error( "the process has a virtual time already" );
   }
   time_ = this;
}

VirtualTime::~VirtualTime() {
   time_ = nullptr;
}

VirtualTime * VirtualTime::ofProcess() {
   return time_;
}

VirtualTime::Nanoseconds VirtualTime::inNanoseconds( Rex::Seconds time ) {
   return static_cast< Nanoseconds >( std::llround( std::max( time, 0.0 ) * nanoseconds ) );
}

Rex::Seconds VirtualTime::inSeconds( Nanoseconds time ) {
   return static_cast< double >( time ) / nanoseconds;
}

void VirtualTime::add( Rex::Seconds after, Due due ) {
   due_.emplace( std::pair( now_ + spent_ + inNanoseconds( after ), ++count_ ), std::move( due ) );
}

VirtualTime::Appointment
VirtualTime::appointment( Rex::Seconds after, std::function< void() > what, Processor * processor ) {
   auto const kept = std::make_shared< std::function< void() > >( std::move( what ) );
   add( after, { kept, nullptr, processor } );
   return Appointment( kept );
}

void VirtualTime::after( Rex::Seconds time, std::function< void() > what, Processor * processor ) {
   auto const kept = std::make_shared< std::function< void() > >( std::move( what ) );
   add( time, { kept, kept, processor } );
}

bool VirtualTime::turn() {
   if ( due_.empty() ) {
      return false;
   }
   auto next = due_.extract( due_.begin() );
   auto const what = next.mapped().what.lock();
   auto * const processor = next.mapped().processor;
   if ( !what ) { // let go of; the processor may be gone with it
      return true;
   }
   now_ = next.key().first;
   if ( processor && processor->busyUntil > now_ ) {
      next.key().first = processor->busyUntil; // in the order in which they were asked for
      due_.insert( std::move( next ) );
      return true;
   }
   Rex::nowIs( now() );
   ( *what )();
   if ( processor && spent_ > 0 ) {
      processor->busyUntil = now_ + spent_;
   }
   spent_ = 0;
   return true;
}

void VirtualTime::turnsUntil( Rex::Seconds time ) {
   auto const end = inNanoseconds( time );
   while ( !due_.empty() && due_.begin()->first.first <= end ) {
      turn();
   }
   now_ = std::max( now_, end );
}

} // namespace Live
