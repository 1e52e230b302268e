#include "inspection/StateOfRun.h"

#include "inspection/EndOfRun.h"
#include "inspection/EventInput.h"
#include "inspection/files/FileKind.h"
#include "inspection/files/JournalReader.h"
#include "inspection/files/Scenario.h"

namespace Inspection {

namespace {

using Rex::Value;
using Simulator::Row;

// The managed directories hold the entities that stand at these paths.
struct Managed {
   char const * directory;
   char const * collection;
   char const * entities;
};
constexpr Managed managed[] = {
   { "managed/intfStatusDir", "intfStatus", "shared/phySmStateSharedStatus/allEthPhyIntfStatusDir/intfStatus/" },
   { "managed/intfStatusLocalDir", "intfStatusLocal", "interface/status/eth/phy/local/intfStatusLocal/" },
};

// Does to a state what a run did to it.
class StateOfRun final : public Simulator::RowReader {
 public:
   StateOfRun( Scenario const & begin, std::optional< U32 > last ) : last_( last ) {
      tell( begin.description, tree_ );
      for ( auto const & [path, attributes] : begin.state ) {
         stateIs( tree_, path, attributes );
      }
      comesUp();
   }

   void eventBegins( U32 event, Value const & what ) override {
      isOver_ = last_ && event > *last_;
      for ( EventInput const & input : isOver_ ? std::vector< EventInput >() : EventInput::allOf( what ) ) {
         if ( input.kind == EventInput::Kind::set || input.kind == EventInput::Kind::remove ) {
            Event{ .kind = input.kind == EventInput::Kind::set ? Event::Kind::set : Event::Kind::remove,
                   .path = input.path,
                   .attribute = input.attribute.empty() ? std::nullopt : std::optional( input.attribute ),
                   .key = input.key,
                   .value = input.value }
               .change( tree_ );
         }
      }
   }

   void row( Row const & row ) override {
      if ( isOver_ || row.kind != Row::Kind::publish ) {
         return;
      }
      std::string const path( row.path );
      std::string const attribute( row.attribute );
      std::string const key( row.key.value_or( "" ) );
      if ( path.starts_with( "managed/" ) ) {
         auto & names = managedNames_[path];
         row.published->isNull() ? names.erase( key ) : names.insert( key ).second;
      } else if ( !row.key ) {
         tree_.attributeIs( path, attribute, *row.published );
      } else if ( row.published->isNull() ) {
         tree_.entryDel( path, attribute, key );
      } else {
         tree_.entryIs( path, attribute, key, *row.published );
      }
   }

   Value::Object paths() const {
      Value all = tree_.value();
      for ( Managed const & it : managed ) {
         auto const names = managedNames_.find( it.directory );
         Value::Object entries;
         for ( std::string const & name : names == managedNames_.end() ? std::set< std::string >() : names->second ) {
            auto const entity = tree_.entity( it.entities + name );
            entries[name] = entity ? entity->value() : Value();
         }
         ( *all.object() )[it.directory] = Value::Object{ { it.collection, std::move( entries ) } };
      }
      return std::move( *all.object() );
   }

 private:
   // As the agent lets the slice do where the scenario doesn't say another state.
   void comesUp() {
      constexpr char const * slice = "shared/sliceSmStateData";
      constexpr int up = 31;
      auto const entity = tree_.entity( slice );
      if ( entity && objectOf( entity->value() ).at( "sliceState" ) == Value( 0 ) ) {
         tree_.attributeIs( slice, "sliceState", Value( up ) );
      }
   }

   Simulator::StateTree tree_;
   std::map< std::string, std::set< std::string > > managedNames_;
   std::optional< U32 > last_;
   bool isOver_ = false;
};

// Adds what stands at `rest` below a value; a key may hold slashes itself.
void addBelow( Value const & value,
               std::string const & path,
               std::string const & rest,
               std::vector< PathValue > & to ) {
   if ( rest.empty() ) {
      to.push_back( { path, value } );
      return;
   }
   for ( auto const & [step, member] : value.object() ? *value.object() : Value::Object() ) {
      if ( rest == step ) {
         addBelow( member, path + "/" + step, "", to );
      } else if ( rest.starts_with( step + "/" ) ) {
         addBelow( member, path + "/" + step, rest.substr( step.size() + 1 ), to );
      }
   }
}

} // namespace

ToldState toldState( std::string const & file, std::optional< U32 > event ) {
   auto const kind = kindOfFile( file );
   if ( kind == FileKind::journal ) {
      JournalReader journal( file );
      if ( journal.scenario().isNull() ) {
         throw InputError( journal.path(), "is of format 1, an older one, which doesn't tell the state" );
      }
      StateOfRun state( scenarioOf( journal.scenario(), journal.path() ), event );
      auto const ending = journal.read( state, { .last = event, .operationsToo = false, .gatesToo = false } );
      if ( event ) {
         checkEvent( journal.path(), *event, ending );
      }
      return { state.paths(), journal.remarks() };
   }
   if ( kind != FileKind::state ) {
      throw InputError( inputName( file ),
                        "is " + std::string( nameOf( kind ) ) +
                           ", which doesn't tell the state; `l3sm run --state FILE` and `--journal FILE` do" );
   }
   if ( event ) {
      throw InputError( inputName( file ), "--at asks for an event, and only a journal has events" );
   }
   return { objectOf( readJson( file ) ), {} };
}

std::vector< PathValue > partOf( Value::Object const & paths, std::string const & path ) {
   std::vector< PathValue > found;
   for ( auto const & [root, value] : paths ) {
      if ( path.empty() || root == path || root.starts_with( path + "/" ) ) {
         found.push_back( { root, value } );
      } else if ( path.starts_with( root + "/" ) ) {
         addBelow( value, root, path.substr( root.size() + 1 ), found );
      }
   }
   return found;
}

} // namespace Inspection
