#include "inspection/FailureReport.h"

#include "assert/Assert.h"
#include "inspection/SuspiciousInput.h"
#include "simulator/FunctionName.h"

#include <algorithm>
#include <array>
#include <cxxabi.h>
#include <dlfcn.h>
#include <execinfo.h>

namespace Inspection {

namespace {

constexpr std::size_t mostSuspicions = 6;

// The innermost function of the plug-in's library on the stack: an assertion of the platform stands in the platform,
// and says nothing of who called it.
std::pair< std::string, std::string > caller() {
   std::array< void *, 128 > frames;
   int const count = ::backtrace( frames.data(), static_cast< int >( frames.size() ) );
   Dl_info self{};
   ::dladdr( reinterpret_cast< void * >( &caller ), &self );
   Dl_info platform{};
   ::dladdr( reinterpret_cast< void * >( &Rex::failure ), &platform );
   for ( int frame = 0; frame < count; ++frame ) {
      Dl_info at{};
      bool const isKnown = ::dladdr( frames[static_cast< std::size_t >( frame )], &at ) != 0 && at.dli_fname;
      if ( !isKnown || at.dli_fbase == self.dli_fbase || at.dli_fbase == platform.dli_fbase || !at.dli_sname ) {
         continue;
      }
      int status = 0;
      char * const name = abi::__cxa_demangle( at.dli_sname, nullptr, nullptr, &status );
      if ( status != 0 ) {
         continue; // of the C library
      }
      std::string const text = name;
      std::free( name ); // NOLINT(cppcoreguidelines-no-malloc): as it was made
      return { Simulator::functionName( text ), std::string( Simulator::fileName( at.dli_fname ) ) };
   }
   return {};
}

} // namespace

FailureReport failureReportOf( Scenario const & scenario,
                               Simulator::SimulatedSwitch const & sw,
                               RunSummary const & summary,
                               bool isFollowed ) {
   auto const event = summary.ending().events;
   return failureReportOf(
      scenario,
      sw,
      { .ending = summary.ending(),
        .eventText = event == 0 || event > scenario.events.size() ? "start" : scenario.events[event - 1].text(),
        .fap = !isFollowed         ? "unknown: --quiet follows no operation"
               : summary.lastFap() ? std::to_string( *summary.lastFap() ) + ", the last that was worked on"
                                   : "none was worked on in this event" } );
}

FailureReport
failureReportOf( Scenario const & scenario, Simulator::SimulatedSwitch const & sw, FailurePlace const & place ) {
   FailureReport report;
   report.event = place.ending.events;
   report.eventText = place.eventText;
   report.fap = place.fap;
   report.function = place.ending.function;
   report.source = place.ending.source;
   report.text = place.ending.text;
   if ( auto const * failure = Rex::failure() ) {
      report.message = failure->message;
   }
   if ( auto const [function, library] = caller(); !function.empty() && function != report.function ) {
      report.source = "which called " + report.function + ", " + report.source;
      report.function = function + " in " + library + ",";
   }
   report.cause = sw.cause();
   report.suspicions = suspicionsOf( scenario, sw );
   return report;
}

std::vector< std::string > FailureReport::lines() const {
   std::vector< std::string > all{ "The run ended by an assertion: " + text + ( message.empty() ? "" : ", " + message ),
                                   "  event " + std::to_string( event ) + ": " + eventText };
   all.push_back( "  FAP: " + fap );
   all.push_back( "  function: " + function + ( source.starts_with( "which" ) ? " " : "  " ) + source );
   all.push_back( "  cause: " + cause );
   for ( std::size_t one = 0; one < std::min( suspicions.size(), mostSuspicions ); ++one ) {
      all.push_back( "  suspicious: " + suspicions[one] );
   }
   if ( suspicions.size() > mostSuspicions ) {
      all.push_back( "  suspicious: " + std::to_string( suspicions.size() - mostSuspicions ) + " more like these" );
   }
   if ( suspicions.empty() ) {
      all.push_back( "  suspicious: nothing in the scenario that is known here" );
   }
   return all;
}

} // namespace Inspection
