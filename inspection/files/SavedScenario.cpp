#include "inspection/files/SavedScenario.h"

#include "simulator/TableMap.h"

namespace Inspection {

namespace {

using Rex::Value;

// Takes out the entries that are known as they are here, and what is empty then.
void keepChanged( Simulator::ArrayContents & entries, Simulator::ArrayContents const & known ) {
   std::erase_if( entries, [&]( auto const & entry ) {
      auto const found = known.find( entry.first );
      return found != known.end() && found->second == entry.second;
   } );
}
template< class Parts >
void keepChanged( Parts & all, Parts const & known ) {
   for ( auto part = all.begin(); part != all.end(); ) {
      if ( auto const found = known.find( part->first ); found != known.end() ) {
         keepChanged( part->second, found->second );
      }
      part = part->second.empty() ? all.erase( part ) : std::next( part );
   }
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
      auto & contents = saved.chips[fap.fapId.value()];
      contents = contentsOf( sw.chip( fap.fapId ), chipType );
      keepChanged( contents.tables, contentsOf( fresh, chipType ).tables );
   }
   saved.state = stateLeftBy( sw );
   return saved;
}

Value::Object stateLeftBy( Simulator::SimulatedSwitch const & sw ) {
   Value::Object left;
   Value const state = sw.state().value();
   for ( auto const & root : Simulator::stateRoots() ) {
      if ( root.kind == Simulator::StateRoot::Kind::state ) {
         left.emplace( root.path(), state.object()->at( root.path() ) );
      }
   }
   return left;
}

void writeScenario( std::ostream & out, Scenario const & scenario ) {
   auto const value = valueOf( scenario );
   auto const & parts = *value.object();
   out << "{\n \"name\": " << Rex::toText( parts.at( "name" ) );
   out << ",\n \"switch\": " << toJson( parts.at( "switch" ), 2, 1 );
   out << ",\n \"toggles\": " << toJson( parts.at( "toggles" ), 1, 1 );
   out << ",\n \"chips\": {";
   writeMembers( out, parts.at( "chips" ), 5 );
   out << "},\n \"state\": {";
   writeMembers( out, parts.at( "state" ), 3 );
   out << "},\n \"events\": " << toJson( parts.at( "events" ), 1, 1 ) << "}\n";
}

} // namespace Inspection
