#include "agent/LastWords.h"

#include "agent/SystemLog.h"
#include "assert/Assert.h"
#include "inspection/EventInput.h"
#include "inspection/FailureReport.h"
#include "inspection/LastSteps.h"

#include <algorithm>
#include <iterator>

namespace Live {

LastWords::LastWords( Inspection::Scenario const & scenario )
   : scenario_( scenario ), hook_( Rex::atFailure( [this] { say(); } ) ) {}

LastWords::~LastWords() {
   Rex::failureHookDel( hook_ );
}

void LastWords::follows( Simulator::SimulatedSwitch * sw ) {
   if ( sw_ ) {
      sw_->journal().readerDel( *this );
   }
   sw_ = sw;
   if ( sw_ ) {
      sw_->journal().readerAdd( *this );
   }
}

void LastWords::eventBegins( U32, Rex::Value const & what ) {
   what_ = &what;
   fap_.reset();
}

void LastWords::row( Simulator::Row const & row ) {
   if ( row.kind != Simulator::Row::Kind::publish && row.isOfFap ) {
      fap_ = row.fap;
   }
}

void LastWords::ends( Simulator::Ending const & ending ) {
   ending_ = ending;
}

void LastWords::say() const {
   if ( !sw_ ) {
      return;
   }
   auto const report = failureReportOf( scenario_,
                                        *sw_,
                                        { .ending = ending_,
                                          .eventText = what_ ? Inspection::EventInput::of( *what_ ).text() : "none",
                                          .fap = fap_ ? std::to_string( *fap_ ) + ", the last that was worked on"
                                                      : "none was worked on in this event" } );
   auto lines = Inspection::lastStepsBeforeFailure();
   std::ranges::copy( report.lines(), std::back_inserter( lines ) );
   for ( auto const & line : lines ) {
      Live::say( Level::error, line );
   }
}

} // namespace Live
