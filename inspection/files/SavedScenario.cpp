#include "inspection/files/SavedScenario.h"

#include "simulator/TableMap.h"

namespace Inspection {

namespace {

using Rex::Value;
using Simulator::Contents;

template< class Parts, class Differs >
void erase( Parts & all, Parts const & known, Differs const & differs ) {
   for ( auto part = all.begin(); part != all.end(); ) {
      auto const found = known.find( part->first );
      bool const isKnown = found != known.end() && !differs( part->second, found->second );
      part = isKnown ? all.erase( part ) : std::next( part );
   }
}

// The entries that are not in the boot image as they are here.
Simulator::TablesContents changedTables( Contents contents, Contents const & booted ) {
   erase( contents.tables, booted.tables, []( auto & variants, auto const & knownVariants ) {
      erase( variants, knownVariants, []( auto & arrays, auto const & knownArrays ) {
         erase( arrays, knownArrays, []( auto & entries, auto const & knownEntries ) {
            erase( entries, knownEntries, []( auto const & entry, auto const & known ) { return entry != known; } );
            return !entries.empty();
         } );
         return !arrays.empty();
      } );
      return !variants.empty();
   } );
   return std::move( contents.tables );
}

// Members on lines of their own, each with as many levels below it on lines of their own.
void writeMembers( std::ostream & out, Value const & object, int levels ) {
   char const * before = "";
   for ( auto const & [key, value] : *object.object() ) {
      out << before << "\n  " << quoted( key ) << ": " << toJson( value, levels, 2 );
      before = ",";
   }
}

} // namespace

Scenario savedScenario( Scenario const & begun, Simulator::SimulatedSwitch const & sw ) {
   Scenario saved;
   saved.name = begun.name;
   saved.description = begun.description;
   for ( auto const & fap : saved.description.faps ) {
      auto const chipType = fap.revision.chipType();
      Simulator::Chip fresh( fap.fapId, Hardware::chipTypeName( chipType ), Simulator::addressMap( chipType ) );
      Simulator::boot( fresh, chipType, Simulator::BootNoise::plain );
      auto contents = contentsOf( sw.chip( fap.fapId ), chipType );
      auto controls = contents.controls;
      saved.chips[fap.fapId.value()] = { .controls = std::move( controls ),
                                         .tables =
                                            changedTables( std::move( contents ), contentsOf( fresh, chipType ) ) };
   }
   Value const state = sw.state().value();
   for ( auto const & root : Simulator::stateRoots() ) {
      if ( root.kind == Simulator::StateRoot::Kind::state ) {
         saved.state.emplace( root.path(), state.object()->at( root.path() ) );
      }
   }
   return saved;
}

void writeScenario( std::ostream & out, Scenario const & scenario ) {
   auto const value = valueOf( scenario );
   auto const & parts = *value.object();
   out << "{\n \"name\": " << Rex::toText( parts.at( "name" ) );
   out << ",\n \"switch\": " << toJson( parts.at( "switch" ), 2, 1 );
   out << ",\n \"toggles\": " << toJson( parts.at( "toggles" ), 1, 1 );
   out << ",\n \"chips\": {";
   writeMembers( out, parts.at( "chips" ), 6 );
   out << "},\n \"state\": {";
   writeMembers( out, parts.at( "state" ), 3 );
   out << "},\n \"events\": " << toJson( parts.at( "events" ), 1, 1 ) << "}\n";
}

} // namespace Inspection
