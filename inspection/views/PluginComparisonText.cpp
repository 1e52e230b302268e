#include "inspection/views/PluginComparisonText.h"

#include "inspection/NamesAsTyped.h"
#include "inspection/views/Lines.h"

#include <filesystem>
#include <tuple>

namespace Inspection {

namespace {

using Rex::Value;

constexpr std::size_t fewWays = 12;

// What differs the same way, wherever it does.
using Way = std::tuple< std::string, std::string, std::string, std::string, std::string, std::string >;

Way wayOf( SideDifference const & it ) {
   auto const text = []( std::optional< Effect > const & side, std::string Effect::*part ) {
      return side ? ( *side ).*part : std::string();
   };
   return { it.place.table,
            it.place.table == "controls" ? std::to_string( it.place.entry ) : it.place.field,
            text( it.here, &Effect::to ),
            text( it.there, &Effect::to ),
            text( it.here, &Effect::function ),
            text( it.there, &Effect::function ) };
}

struct Found {
   SideDifference const * first;
   RunDifferences const * run;
   std::set< RunDifferences const * > runs;
   std::set< std::string > chips;
   std::size_t places = 0;
};

std::string effectText( std::string const & value ) {
   constexpr std::size_t longestEffect = 36;
   return value.empty() ? "unknown" : shortened( readable( value ), longestEffect );
}

std::string nameOf( RunDifferences const & run ) {
   std::string const name = std::filesystem::path( run.scenario ).filename().string();
   return run.chip.empty() ? name : name + " on " + run.chip;
}

std::string placeOf( EffectPlace const & place ) {
   auto const * const table = Catalogue::table( place.table );
   std::string text = table ? "FAP " + std::to_string( place.fap ) : "";
   if ( table && hasVariants( *table ) ) {
      text += " variant " + std::to_string( place.variant );
   }
   bool const isArray = table && isArrayed( table->layouts.front() );
   text += isArray ? " [" + std::to_string( place.array ) + "]" : "";
   text += table && table->isMemory ? " " + std::to_string( place.entry ) : "";
   return text + ( place.copy ? " copy " + std::to_string( place.copy - 1 ) : "" );
}

void showSide( std::ostream & out, char const * name, std::optional< Effect > const & side, Style const & style ) {
   out << "    " << name << "  ";
   if ( !side ) {
      out << style.faint( "no change" ) << '\n';
      return;
   }
   out << effectText( side->from ) << style.faint( " → " ) << style.differs( effectText( side->to ) ) << "  "
       << side->function << ( side->source.empty() ? "" : "  " + style.faint( side->source ) ) << '\n';
}

void showEnds( std::ostream & out, PluginComparison const & comparison, Style const & style ) {
   for ( RunDifferences const & run : comparison.runs ) {
      if ( run.endHere != run.endThere ) {
         auto const text = []( std::string const & how ) { return how.empty() ? "comes to its end" : how; };
         out << '\n'
             << style.strong( nameOf( run ) ) << "  ends otherwise\n    here   " << text( run.endHere )
             << "\n    there  " << text( run.endThere ) << '\n';
      }
   }
}

Value sideValue( std::optional< Effect > const & side ) {
   if ( !side ) {
      return {};
   }
   return Value::Object{ { "from", side->from.empty() ? Value() : Value( side->from ) },
                         { "to", side->to },
                         { "function", side->function },
                         { "source", side->source } };
}

} // namespace

void showPluginComparison( std::ostream & out, PluginComparison const & comparison, bool all, Style const & style ) {
   std::map< Way, Found > ways;
   std::vector< Way > order;
   std::set< std::string > scenarios;
   std::size_t unequal = 0;
   std::size_t otherRoads = 0;
   for ( RunDifferences const & run : comparison.runs ) {
      scenarios.insert( run.scenario );
      unequal += !run.isEqual();
      otherRoads += run.isEqual() && run.isOtherRoad;
      for ( SideDifference const & it : run.differences ) {
         auto const [found, isNew] = ways.try_emplace( wayOf( it ), Found{ &it, &run, {}, {} } );
         if ( isNew ) {
            order.push_back( wayOf( it ) );
         }
         found->second.runs.insert( &run );
         found->second.chips.insert( run.chip );
         ++found->second.places;
      }
   }
   std::string const runs =
      counted( comparison.runs.size(), "run", "runs" ) + " of " + counted( scenarios.size(), "scenario", "scenarios" );
   out << style.faint( "here   " + comparison.plugin ) << '\n'
       << style.faint( "there  " + comparison.against ) << "\n\n";
   if ( unequal == 0 ) {
      out << style.after( "Equal" ) << " in all events of " << runs;
      out << ( otherRoads ? "; " + std::to_string( otherRoads ) + " of them by other operations" : "" ) << ".\n";
      return;
   }
   std::set< std::pair< std::string, std::string > > fields;
   for ( auto const & way : order ) {
      fields.emplace( std::get< 0 >( way ), std::get< 1 >( way ) );
   }
   out << style.before( counted( fields.size(), "field differs", "fields differ" ) ) << ", in " << unequal << " of "
       << runs << ".\n";
   std::size_t shown = 0;
   for ( Way const & way : order ) {
      if ( shown++ >= fewWays && !all ) {
         out << "\n... and " << counted( order.size() - shown + 1, "more way", "more ways" ) << "; --all shows them\n";
         break;
      }
      Found const & found = ways.at( way );
      SideDifference const & it = *found.first;
      std::string const & field = std::get< 1 >( way );
      out << '\n'
          << style.strong( it.place.table + ( field.empty() ? "" : "." + field ) ) << "  "
          << counted( found.runs.size(), "run", "runs" );
      if ( !found.chips.contains( "" ) ) {
         out << ", " << ( found.chips.size() == Hardware::allChipTypes.size() ? "every chip" : "" );
         if ( found.chips.size() < Hardware::allChipTypes.size() ) {
            std::string list;
            for ( std::string const & chip : found.chips ) {
               list += ( list.empty() ? "" : " " ) + chip;
            }
            out << list;
         }
      }
      out << style.faint( "  first: " ) << nameOf( *found.run ) << ", "
          << ( it.event == 0 ? "start" : "event " + std::to_string( it.event ) )
          << ( placeOf( it.place ).empty() ? "" : ", " ) << style.place( placeOf( it.place ) ) << '\n';
      showSide( out, "here ", it.here, style );
      showSide( out, "there", it.there, style );
   }
   showEnds( out, comparison, style );
}

Value pluginComparisonValue( PluginComparison const & comparison ) {
   Value::List runs;
   for ( RunDifferences const & run : comparison.runs ) {
      Value::List differences;
      for ( SideDifference const & it : run.differences ) {
         differences.push_back( Value::Object{ { "event", it.event },
                                               { "what", it.what },
                                               { "fap", it.place.fap },
                                               { "table", it.place.table },
                                               { "variant", it.place.variant },
                                               { "array", it.place.array },
                                               { "entry", it.place.entry },
                                               { "copy", it.place.copy ? Value( it.place.copy - 1 ) : Value() },
                                               { "field", it.place.field },
                                               { "here", sideValue( it.here ) },
                                               { "there", sideValue( it.there ) } } );
      }
      runs.push_back( Value::Object{ { "scenario", run.scenario },
                                     { "chip", run.chip.empty() ? Value() : Value( run.chip ) },
                                     { "equal", run.isEqual() },
                                     { "endHere", run.endHere },
                                     { "endThere", run.endThere },
                                     { "operationsHere", run.operationsHere },
                                     { "operationsThere", run.operationsThere },
                                     { "otherOperations", run.isOtherRoad },
                                     { "differences", differences } } );
   }
   return Value::Object{ { "equal", comparison.isEqual() },
                         { "plugin", comparison.plugin },
                         { "against", comparison.against },
                         { "runs", runs } };
}

} // namespace Inspection
