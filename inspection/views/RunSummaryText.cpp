#include "inspection/views/RunSummaryText.h"

#include "inspection/views/InterfacesText.h"

#include <algorithm>

namespace Inspection {

namespace {

constexpr std::size_t mostFaps = 8;      // told one by one
constexpr std::size_t mostFunctions = 5; // of those that did most
constexpr std::size_t mostGates = 8;
constexpr std::size_t mostToggles = 8; // that differ from their default
constexpr std::size_t fewEvents = 4;   // each of which may take more room
constexpr std::size_t roomForFew = 12; // lines
constexpr std::size_t roomForMany = 5;

class SummaryText {
 public:
   SummaryText( Lines & lines, Scenario const & scenario, RunSummary const & summary )
      : lines_( lines ), scenario_( scenario ), summary_( summary ) {}

   void writeSwitch() {
      lines_.title( scenario_.title() );
      lines_.blank();
      lines_.title( "Switch, slice " + scenario_.description.sliceName );
      std::map< U16, Simulator::FapDescription const * > faps;
      for ( auto const & fap : scenario_.description.faps ) {
         faps[fap.fapId.value()] = &fap;
      }
      std::size_t told = 0;
      for ( auto const & [number, fap] : faps ) {
         if ( ++told > mostFaps ) {
            break;
         }
         auto const & revision = fap->revision;
         auto const * const chip = Hardware::chipTypeName( revision.chipType() );
         lines_.put( 2,
                     "FAP " + std::to_string( number ) + "  " +
                        ( fap->name.empty() ? "Fap" + std::to_string( number ) : fap->name ) + "  " +
                        ( chip ? chip : "unknown chip" ) + ", major " + std::to_string( revision.fapRevMajor() ) +
                        ", SDK " + std::to_string( revision.sdkVersion() ) + ", " +
                        counted( fap->coreCount(), "core", "cores" ) + "  " + servedText( number ) );
      }
      if ( faps.size() > mostFaps ) {
         std::size_t served = 0;
         for ( auto const & [number, fap] : faps ) {
            served += summary_.served().of( number ).isServed;
         }
         lines_.put( 2,
                     "… and " + std::to_string( faps.size() - mostFaps ) + " more; of all " +
                        std::to_string( faps.size() ) + ", " + std::to_string( served ) + " are served" );
      }
      writeToggles();
      lines_.blank();
   }

   void writeStart() {
      auto const & start = summary_.start();
      lines_.title( "Start" );
      if ( start.isEmpty() ) {
         lines_.put( 2, "nothing was asked of any chip: there was nothing to program" );
         lines_.blank();
         return;
      }
      auto const functions = summary_.startFunctions();
      lines_.put( 2, countsText( start ) + ", by " + counted( functions.size(), "function", "functions" ) );
      writeFaps( summary_.startByFap() );
      writeFunctions( functions );
      writeGates( 0 );
      lines_.blank();
   }

   void writeTotals() {
      auto const shown = summary_.shown().size();
      if ( summary_.eventCount() <= shown ) {
         return;
      }
      lines_.title( counted( summary_.eventCount(), "event", "events" ) );
      RowCounts counts = summary_.total();
      counts -= summary_.start();
      lines_.put( 2, counts.isEmpty() ? "none did anything" : countsText( counts ) );
      if ( summary_.silentEvents() > 0 ) {
         lines_.put( 2, counted( summary_.silentEvents(), "of them", "of them" ) + " without any effect" );
      }
      writeFunctions( summary_.eventFunctions() );
      writeGates( 1 );
      lines_.put( 2, "below: those that did most, and the last" );
      lines_.blank();
   }

 private:
   std::string servedText( U16 fap ) const {
      auto const served = summary_.served().of( fap );
      return served.isServed ? "served" : "NOT SERVED: " + served.reason + "; " + served.remedy();
   }

   // Those that stand otherwise than by default, and those that nothing has read.
   void writeToggles() {
      std::vector< std::string > told;
      std::size_t defaults = 0;
      for ( auto const & reading : Toggle::readings() ) {
         auto const * const known = toggleNamed( reading.file, reading.name );
         if ( known && known->defaultState == reading.state ) {
            ++defaults;
         } else {
            told.push_back( reading.name + " (" + reading.file + ") " + ( reading.state ? "on" : "off" ) );
         }
      }
      if ( told.size() > mostToggles ) {
         std::size_t const left = told.size() - mostToggles;
         told.resize( mostToggles );
         told.push_back( "and " + std::to_string( left ) + " more" );
      }
      if ( defaults > 0 ) {
         told.push_back( std::to_string( defaults ) + ( told.empty() ? "" : " others" ) + " as by default" );
      }
      if ( !told.empty() ) {
         lines_.list( 2, "Toggles that were read:", told );
      }
      for ( auto const & [file, names] : scenario_.description.toggles ) {
         for ( auto const & [name, on] : names ) {
            auto const & readings = Toggle::readings();
            bool const wasRead =
               std::ranges::any_of( readings, [&, &file = file, &name = name]( auto const & reading ) {
                  return reading.file == file && reading.name == name;
               } );
            if ( !wasRead ) {
               lines_.put( 2, name + " (" + file + ") " + ( on ? "on" : "off" ) + ", but nothing has read it" );
            }
         }
      }
   }

   void writeFaps( std::map< U16, RowCounts > const & byFap ) {
      if ( byFap.size() < 2 ) {
         return;
      }
      std::vector< std::pair< std::string, std::set< U16 > > > alike;
      for ( auto const & [fap, counts] : byFap ) {
         auto const text = countsText( counts );
         auto const known = std::ranges::find_if( alike, [&]( auto const & one ) { return one.first == text; } );
         if ( known == alike.end() ) {
            alike.push_back( { text, { fap } } );
         } else {
            known->second.insert( fap );
         }
      }
      for ( std::size_t one = 0; one < std::min( alike.size(), mostFaps ); ++one ) {
         auto const & [text, faps] = alike[one];
         lines_.put( 4, fapsText( faps ) + ( faps.size() > 1 ? ", each: " : ": " ) + text );
      }
      if ( alike.size() > mostFaps ) {
         lines_.put( 4, "… and others" );
      }
   }

   void writeFunctions( std::vector< RunSummary::Function > const & functions ) {
      std::vector< std::string > items;
      for ( auto const & function : functions ) {
         if ( items.size() == mostFunctions ) {
            items.push_back( "and " + std::to_string( functions.size() - mostFunctions ) + " more" );
            break;
         }
         items.push_back( function.name + " " + std::to_string( function.counts.operations() ) );
      }
      if ( !items.empty() ) {
         lines_.list( 2, "most operations:", items );
      }
   }

   // Those that were closed in the events from one on, or at the start.
   void writeGates( U32 from ) {
      struct Told {
         RunSummary::Gate const * gate;
         std::set< U16 > faps;
         U64 count;
      };
      std::vector< Told > told;
      for ( auto const & gate : summary_.gates() ) {
         if ( from == 0 ? gate.firstEvent > 0 : gate.lastEvent == 0 ) {
            continue;
         }
         auto const known = std::ranges::find_if( told, [&]( Told const & one ) {
            return one.gate->origin == gate.origin && one.gate->reason == gate.reason;
         } );
         Told & one = known == told.end() ? told.emplace_back( Told{ &gate, {}, 0 } ) : *known;
         one.count += gate.count;
         if ( gate.fap ) {
            one.faps.insert( *gate.fap );
         }
      }
      if ( told.empty() ) {
         return;
      }
      std::ranges::stable_sort( told, []( Told const & a, Told const & b ) { return a.count > b.count; } );
      lines_.put( 2, "stopped at a gate:" );
      for ( std::size_t one = 0; one < std::min( told.size(), mostGates ); ++one ) {
         lines_.put( 4,
                     summary_.texts().origin( told[one].gate->origin ).function + ": " + told[one].gate->reason +
                        ( told[one].faps.empty() ? "" : " (" + fapsText( told[one].faps ) + ")" ) );
      }
      if ( told.size() > mostGates ) {
         lines_.put( 4, "… and " + std::to_string( told.size() - mostGates ) + " more" );
      }
   }

   Lines & lines_;
   Scenario const & scenario_;
   RunSummary const & summary_;
};

} // namespace

void writeEnding( Lines & lines, RunSummary const & summary, std::size_t events ) {
   auto const & ending = summary.ending();
   using enum Simulator::Ending::Kind;
   if ( ending.kind == interrupted ) {
      lines.title( "Interrupted after event " + std::to_string( ending.events ) + " of " + std::to_string( events ) );
      lines.blank();
   } else if ( ending.kind == assertion ) {
      lines.title( "Ended by an assertion in event " + std::to_string( ending.events ) + " of " +
                   std::to_string( events ) );
      lines.put( 2, ending.text );
      lines.put( 2, ending.function + "  " + ending.source );
      lines.blank();
   }
}

void writeRunSummary( Lines & lines,
                      Scenario const & scenario,
                      RunSummary const & summary,
                      Interfaces const & interfaces,
                      RunSummaryTextOptions const & options ) {
   SummaryText text( lines, scenario, summary );
   text.writeSwitch();
   text.writeStart();
   text.writeTotals();
   auto const shown = summary.shown();
   bool const isLong = shown.size() > fewEvents;
   for ( EventRows const * rows : shown ) {
      writeEvent( lines, *rows, { .unchanged = options.unchanged, .mostLines = isLong ? roomForMany : roomForFew } );
   }
   if ( options.eachInterface ) {
      writeEachInterface( lines, interfaces );
   } else {
      writeInterfaces( lines, interfaces );
   }
   writeEnding( lines, summary, scenario.events.size() );
   lines.list( 0,
               "More:",
               { "--event N|all|last (in full; 0: the start)",
                 "--fap N",
                 "--unchanged",
                 "--interfaces",
                 "--journal FILE and then l3sm why FILE TABLE.FIELD" } );
}

} // namespace Inspection
