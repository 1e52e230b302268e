#include "agent/SliceAgent.h"

#include "inspection/files/Json.h"

#include <unistd.h>

namespace Live {

namespace {

using Inspection::Event;

constexpr double microseconds = 1e6; // in a second

Inspection::Scenario streamed( Inspection::Scenario scenario ) {
   scenario.description.journalled = Simulator::SwitchDescription::Journalled::streamed;
   return scenario;
}

// What the file says; a path that it leaves out is none for a database either.
Paths baseOf( Inspection::Scenario const & scenario ) {
   auto state = scenario.state;
   std::erase_if( state, []( auto const & it ) { return it.second.isNull(); } );
   return flattened( state );
}

} // namespace

SliceAgent::SliceAgent( EventLoop & loop,
                        Database & database,
                        Inspection::Scenario scenario,
                        std::string version,
                        Simulator::ChipsMapping const * chips )
   : StateFollower( loop, database, door_, baseOf( scenario ), std::move( version ) ),
     scenario_( streamed( std::move( scenario ) ) ), lastWords_( scenario_ ),
     isWarm_( chips && chips->generation() > 1 ), sw_( scenario_.description, chips ), door_( sw_ ) {
   Inspection::Scenario prepared = scenario_;
   if ( isWarm_ ) {
      prepared.chips.clear(); // what they began with is there, or was programmed since
   }
   prepared.prepare( sw_ );
   sw_.supervise( { .delays = []( Rex::Seconds time ) { ::usleep( static_cast< useconds_t >( time * microseconds ) ); },
                    .degraded =
                       [this]( DaceSal::ChipId chip, std::string const & why ) {
                          failure_ = "FAP " + std::to_string( chip.value ) + ": " + why;
                          this->loop().soon( [this] { chipsAreAnother(); } );
                       } } );
   lastWords_.follows( &sw_ );
   sw_.journal().causesAreForgotten();
   sw_.journal().readerAdd( published_ );
}

SliceAgent::~SliceAgent() {
   end();
   sw_.journal().readerDel( published_ );
   lastWords_.follows( nullptr );
}

void SliceAgent::end() {
   if ( ends() ) {
      sw_.journal().ends( Simulator::Ending::Kind::complete );
      sw_.stop();
   }
}

void SliceAgent::start( std::vector< Event > const & changes ) {
   door_.prepare( changes );
   if ( !isWarm_ ) {
      sw_.start();
      return;
   }
   startChangingWrites_ = 0;
   staged_.emplace( sw_.supervised()->shadow() );
   DaceSal::schanDriverIs( &*staged_ );
   sw_.start();
   auto const drifts = driftOf( sw_.description(), *staged_ );
   drift_ = drifts.size();
   for ( auto * const onlooker : onlookers() ) {
      onlooker->startIsStaged( drifts );
   }
   if ( !isHeld_ || drift_ == 0 ) {
      commits();
   }
}

std::size_t SliceAgent::commits() {
   if ( !staged_ ) {
      return 0;
   }
   DaceSal::schanDriverIs( &sw_.supervised()->shadow() );
   startChangingWrites_ = staged_->commit();
   staged_.reset();
   goesOn();
   return *startChangingWrites_;
}

void SliceAgent::chipsAreAnother() {
   bool const isServing = phase() == Phase::running || phase() == Phase::degraded;
   if ( isServing && phaseIs( Phase::running ) ) {
      report( false );
   }
}

std::optional< std::size_t > SliceAgent::placesHeld() const {
   return staged_ ? std::optional( drift_ ) : std::nullopt;
}

std::optional< std::string > SliceAgent::degradation() const {
   return sw_.supervised()->shadow().degraded().empty() ? std::nullopt : std::optional( failure_ );
}

Paths SliceAgent::takePublished( bool isWhole ) {
   Paths const changed = published_.takeChanged();
   return isWhole ? published_.all() : changed;
}

} // namespace Live
