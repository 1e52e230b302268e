#include "inspection/views/HistoriesText.h"

#include "inspection/KnownMemories.h"
#include "inspection/NamesAsTyped.h"
#include "inspection/views/Lines.h"

#include <cmath>

namespace Inspection {

namespace {

using Rex::Value;

constexpr std::size_t fewDifferences = 6;
constexpr std::size_t fewSteps = 12;
constexpr std::size_t longestEnd = 40; // for a value

std::string endText( std::string const & value ) {
   return shortened( readable( value ), longestEnd );
}

// The reasons of all of it, once each; an empty one among them where none is listed.
std::set< std::string_view > reasonsOf( History const & history ) {
   std::set< std::string_view > reasons;
   for ( EndDifference const & it : history.differences ) {
      auto const * const known = knownMemory( it.table, it.table == "controls" ? it.place : it.field );
      reasons.insert( known ? known->reason : "" );
   }
   return reasons;
}

std::size_t entriesOf( Histories const & histories ) {
   std::set< std::string > entries;
   for ( History const & history : histories.all ) {
      for ( EndDifference const & it : history.differences ) {
         entries.insert( std::to_string( it.fap ) + " " + it.table + " " + it.place );
      }
   }
   return entries.size();
}

std::size_t failuresOf( Histories const & histories ) {
   return static_cast< std::size_t >(
      std::ranges::count_if( histories.all, []( History const & it ) { return !it.failure.empty(); } ) );
}

// "started on the last state", "started before event 3, on what 1 and 2 have left"
std::vector< std::string > stepsOf( Road const & road ) {
   std::vector< std::string > texts;
   std::size_t before = 0;
   bool isStarted = false;
   for ( RoadStep const & step : road ) {
      if ( !isStarted && !step.isStart ) {
         ++before;
         continue;
      }
      if ( step.isStart ) {
         bool const isLast = std::ranges::none_of(
            road, [&]( RoadStep const & it ) { return &it > &step && !it.isStart && it.detour == 0; } );
         texts.push_back( isStarted ? "start once more, on the chips as they are"
                          : isLast  ? "start on the last state"
                          : before  ? "start on a state with " + counted( before, "event", "events" ) + " done"
                                    : "start" );
         isStarted = true;
         continue;
      }
      texts.push_back( step.event.text() + ( step.detour == 0 && step.event.number
                                                ? "  (event " + std::to_string( step.event.number ) + ")"
                                                : "" ) );
   }
   return texts;
}

void showRoad( std::ostream & out, History const & history, bool all, Style const & style ) {
   auto const steps = stepsOf( history.road );
   for ( std::size_t step = 0; step < steps.size(); ++step ) {
      if ( step >= fewSteps && !all ) {
         out << "    ... and " << counted( steps.size() - step, "more step", "more steps" ) << "; --all shows them\n";
         break;
      }
      out << "  " << style.faint( std::to_string( step + 1 ) + "." ) << " " << steps[step] << '\n';
   }
}

void showDifferences( std::ostream & out, History const & history, bool all, Style const & style ) {
   std::size_t shown = 0;
   for ( EndDifference const & it : history.differences ) {
      if ( shown++ >= fewDifferences && !all ) {
         out << "    ... and " << counted( history.differences.size() - shown + 1, "more field", "more fields" )
             << "; --all shows them\n";
         break;
      }
      out << "     " << ( it.table == "published" ? "" : "FAP " + std::to_string( it.fap ) + " " ) << it.table << " "
          << style.place( it.place ) << ( it.place.empty() ? "" : " " ) << it.field << "  "
          << style.after( endText( it.own ) ) << style.faint( " by its own road, " )
          << style.before( endText( it.here ) ) << style.faint( " by this" ) << '\n';
   }
   for ( std::string_view const reason : reasonsOf( history ) ) {
      out << "     "
          << ( reason.empty() ? style.differs( "not known: no reason for it is listed" )
                              : style.strong( "known" ) + ": " + std::string( reason ) )
          << '\n';
   }
}

} // namespace

void showHistories( std::ostream & out, Histories const & histories, bool all, Style const & style ) {
   out << style.title( histories.name ) << "\n\n";
   std::string const roads = counted( histories.played, "road", "roads" ) + " to its last state" +
                             ( histories.isCut ? ", then the time was over" : "" );
   if ( !histories.remembers() ) {
      out << style.after( "No entry remembers its road" ) << ": " << roads << ", all with the same end.\n";
      return;
   }
   if ( std::size_t const entries = entriesOf( histories ) ) {
      out << style.before( counted( entries, "entry remembers", "entries remember" ) + " the road" );
   } else {
      out << style.after( "No entry remembers its road" );
   }
   std::size_t const failures = failuresOf( histories );
   out << ( failures ? "; " + style.before( counted( failures, "way", "ways" ) + " to end the process" ) : "" ) << ": "
       << roads << ".\n";
   for ( History const & history : histories.all ) {
      out << '\n';
      showRoad( out, history, all, style );
      if ( !history.failure.empty() ) {
         out << "     " << style.before( "ends the process" ) << ": "
             << history.failure.substr( 0, history.failure.find_last_not_of( '\n' ) + 1 ) << '\n';
      }
      showDifferences( out, history, all, style );
   }
}

Value historiesValue( Histories const & histories ) {
   Value::List list;
   for ( History const & history : histories.all ) {
      Value::List road;
      for ( RoadStep const & step : history.road ) {
         if ( step.isStart ) {
            road.push_back( Value::Object{ { "start", Value::Object{} } } );
         } else {
            road.push_back( valueOf( step.event ) );
         }
      }
      Value::List differences;
      for ( EndDifference const & it : history.differences ) {
         auto const * const known = knownMemory( it.table, it.table == "controls" ? it.place : it.field );
         differences.push_back( Value::Object{ { "fap", it.fap },
                                               { "table", it.table },
                                               { "place", it.place },
                                               { "field", it.field },
                                               { "own", it.own },
                                               { "here", it.here },
                                               { "known", known ? Value( std::string( known->reason ) ) : Value() } } );
      }
      Value::Object one{ { "road", road }, { "differences", differences } };
      if ( !history.failure.empty() ) {
         one["failure"] = history.failure;
      }
      list.push_back( one );
   }
   return Value::Object{ { "name", histories.name },
                         { "played", histories.played },
                         { "milliseconds", static_cast< std::int64_t >( std::lround( histories.seconds * 1000 ) ) },
                         { "cut", histories.isCut },
                         { "histories", list } };
}

} // namespace Inspection
