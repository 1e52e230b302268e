// Whom each attribute of the state reaches is found by changing it: in a switch under way, and before the start. The
// switch stands in several states, so that a function that only a gate stops is heard of, too. ./dev golden writes the
// list anew.
#include "BuildFolder.h"
#include "inspection/GoldenList.h"
#include "inspection/Play.h"
#include "inspection/SampleValues.h"
#include "inspection/StatePaths.h"
#include "inspection/files/Json.h"
#include "rex/Dir.h"
#include "simulator/FunctionName.h"

#include <algorithm>
#include <set>

namespace {

using namespace Inspection;
using Rex::Attribute;
using Rex::Value;

// An entity of each kind that a collection or directory holds, on a chip of either generation.
constexpr char const * switchOfAll = R"(
 "switch": {"faps": [{"fapId": 0, "ports": {"10": 1}, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}},
                     {"fapId": 1, "ports": {"11": 1}, "revision": {"chipType": "BCM88850_A0", "sdkVersion": 7, "major": 8}}]},
 "toggles": {"Dace.json": {"ArmOrderedSwTable": false}, "VeloroSAI.json": {"VeloroSAIMode": false}},)";

constexpr char const * stateOfAll = R"(
  "bridging/config": {"bridgeMacAddr": "02:00:00:00:00:ff"},
  "interface/status/eth/phy/local": {"intfStatusLocal": {"Ethernet1": {}}},
  "interface/status/eth/vxlan": {"vtiStatus": {"Vxlan1": {}}},
  "interface/status/subintf": {"intfStatus": {"Ethernet1.1": {"parentIntfId": "Ethernet1"}}},
  "interface/status/subintf/local": {"intfStatusLocal": {"Ethernet1.1": {}}},
  "hardware/dace/lag/daceLagStatus": {"slotLoadBalance": {"0": {}}},
  "routing/nexthopgroup/input/config": {"bgp": {}},
  "routing/tunneldecap/input/cli": {"decapGroup": {"6635": {}}},
  "routing/tunneldecap/input/dynamic": {"bgp": {"decapGroup": {"6636": {}}}},
  "shared/phySmStateSharedStatus": {"allEthPhyIntfStatusDir": {"intfStatus": {"Ethernet1": {"burnedInAddr": "02:00:00:00:01:01"}}}},
  "shared/portStateInfo": {"portState": {"10": {"intfId": "Ethernet1", "active": true}}},)";

struct World {
   char const * name;
   char const * rest; // of the state
};
constexpr char const * enabled =
   R"("shared/phySmStateData": {"allEthPhyIntfConfigDir": {"intfConfig": {"Ethernet1": {}}}})";
World const active{ "active", enabled };
World const standby{ "standby",
                     R"("shared/phySmStateData": {"allEthPhyIntfConfigDir": {"intfConfig": {"Ethernet1": {}}}},
                        "shared/sliceSmStateData": {"smMode": 1})" };
World const disabled{
   "disabled",
   R"("shared/phySmStateData": {"allEthPhyIntfConfigDir": {"intfConfig": {"Ethernet1": {"enabled": false}}}})" };
World const early{ "early", R"("shared/phySmStateData": {"allEthPhyIntfConfigDir": null})" };

Scenario scenarioOfWorld( World const & world ) {
   std::string const text = std::string( "{" ) + switchOfAll + R"( "state": {)" + stateOfAll + world.rest + "}}";
   Scenario scenario = Inspection::scenarioOf( parseJson( text, world.name ), world.name );
   scenario.description.journalled = Simulator::SwitchDescription::Journalled::none;
   return scenario;
}

// An attribute of an entity that stands in a switch.
struct Place {
   std::string path;
   std::string attribute;
   auto operator<=>( Place const & ) const = default;
};

void addPlaces( std::vector< Place > & places, std::string const & path, Rex::Entity const & entity ) {
   if ( !dynamic_cast< Rex::Dir const * >( &entity ) ) {
      for ( auto const * attribute : entity.typeData().attributes() ) {
         places.push_back( { path, attribute->name } );
      }
   }
   entity.forEachChild(
      [&]( Rex::Entity & child ) { addPlaces( places, path + "/" + entity.stepTo( child ), child ); } );
}

std::vector< Place > placesOf( Simulator::SimulatedSwitch const & sw ) {
   std::vector< Place > places;
   for ( auto const & root : Simulator::stateRoots() ) {
      auto const entity = sw.state().entity( root.path() );
      if ( root.kind == Simulator::StateRoot::Kind::state && entity ) {
         addPlaces( places, root.path(), *entity );
      }
   }
   return places;
}

// Hears what the functions of the plug-in do.
class Ears : public DaceSal::OperationListener, public Rex::GateListener {
 public:
   struct Heard {
      std::string function;
      std::string what;
      std::string cause;
      bool isRead;
   };

   explicit Ears( Simulator::SimulatedSwitch const & sw ) : sw_( sw ) {
      DaceSal::operationListenerIs( this );
      Rex::gateListenerIs( this );
   }
   ~Ears() override {
      DaceSal::operationListenerIs( nullptr );
      Rex::gateListenerIs( nullptr );
   }
   void operation( DaceSal::Operation const & of ) override {
      std::ostringstream what;
      what << static_cast< int >( of.kind ) << ' ' << of.chip.value << ' ' << of.table << ' ' << int{ of.variant }
           << ' ' << of.arrayIndex << ' ' << of.entry << ' ' << of.core << ' ' << of.controlNumber << '='
           << of.controlValue;
      for ( U32 const word : of.words ) {
         what << ' ' << word;
      }
      bool const isRead = of.kind == DaceSal::Operation::Kind::read;
      add( { nameOf( of.origin ), what.str(), sw_.cause(), isRead } );
   }
   void gateClosed( Rex::ClosedGate const & gate ) override {
      add( { nameOf( gate.origin ), std::string( gate.reason ), sw_.cause(), false } );
   }

   std::vector< Heard > heard;
   std::function< void( Heard const & ) > tells = []( Heard const & ) {}; // at once

 private:
   void add( Heard one ) {
      tells( one );
      heard.push_back( std::move( one ) );
   }
   static std::string nameOf( std::source_location const & at ) {
      return Simulator::functionName( at.function_name() );
   }
   Simulator::SimulatedSwitch const & sw_;
};

// Runs `change`, unless the state refuses it.
template< class Change >
void tried( Change const & change ) {
   try {
      change();
   } catch ( Rex::ValueError const & ) {
   }
}

// An entry that says something of everything that it can.
Value entryOf( Attribute const & attribute ) {
   if ( !attribute.elementType() ) {
      return sampleValue( attribute, {} );
   }
   Value::Object entity;
   for ( auto const * of : attribute.elementType()->attributes() ) {
      if ( of->kind == Attribute::Kind::scalar ) {
         entity[of->name] = sampleValue( *of, {} );
      }
   }
   return entity;
}

// Some values that are not what is there: numbers may be alike in what they mean.
std::vector< Value > samplesOf( Attribute const & attribute, Value const & from ) {
   std::vector< Value > samples{ sampleValue( attribute, from ) };
   if ( attribute.valueType()->kind == Rex::ValueType::Kind::number ) {
      samples.insert( samples.end(), { 2, 5 } );
   }
   return samples;
}

// Every way in which an attribute changes, and back.
void changeInEveryWay( Simulator::SimulatedSwitch & sw, Place const & place ) {
   auto const entity = sw.state().entity( place.path );
   Attribute const & attribute = *entity->typeData().attribute( place.attribute );
   Value const before = attribute.value( *entity );
   auto const set = [&]( Value const & value ) { tried( [&] { sw.set( place.path, place.attribute, value ); } ); };
   switch ( attribute.kind ) {
   case Attribute::Kind::scalar:
      for ( Value const & value : samplesOf( attribute, before ) ) {
         set( value );
      }
      break;
   case Attribute::Kind::entity:
      set( Value::Object() );
      set( nullptr );
      break;
   case Attribute::Kind::map:
   case Attribute::Kind::collection:
      for ( std::string const key : { "1", "3", "4", "Ethernet9" } ) {
         tried( [&] { sw.setEntry( place.path, place.attribute, key, entryOf( attribute ) ); } );
         tried( [&] { sw.deleteEntry( place.path, place.attribute, key ); } );
      }
      set( Value::Object() );
      break;
   }
   set( before );
}

// The two parts of a line: what follows a word and a blank.
struct Line {
   std::string word;
   std::string rest;
};
std::vector< Line > hearerLinesOf( std::string const & text ) {
   std::vector< Line > lines;
   std::istringstream in( text );
   for ( std::string line; std::getline( in, line ); ) {
      lines.push_back( { line.substr( 0, line.find( ' ' ) ), line.substr( line.find( ' ' ) + 1 ) } );
   }
   return lines;
}

using Functions = std::map< Place, std::set< std::string > >;

// Runs `at( scenario, from, out )` in a child. Where that ends before it has said "end", another child goes on behind
// the place that it has come to. What it says it has heard are names of functions.
template< class At >
Functions inChildren( World const & world, At const & at ) {
   Functions functions;
   std::size_t next = 0;
   for ( bool isAtEnd = false; !isAtEnd; ++next ) {
      Child const child = inChild( [&]( std::ostream & out ) {
         loadPlugin( buildFolder() + "/lib/libL3SmPlugin.so" );
         at( scenarioOfWorld( world ), next, out );
      } );
      Place place;
      for ( Line const & line : hearerLinesOf( child.output ) ) {
         if ( line.word == "at" ) {
            next = std::stoul( line.rest );
         } else if ( line.word == "path" ) {
            place.path = line.rest;
         } else if ( line.word == "attribute" ) {
            place.attribute = line.rest;
         } else if ( line.word == "heard" ) {
            functions[place].insert( line.rest );
         } else {
            isAtEnd = line.word == "end";
         }
      }
   }
   return functions;
}

void tell( std::ostream & out, std::size_t index, Place const & place ) {
   out << "at " << index << "\npath " << place.path << "\nattribute " << place.attribute << '\n';
}

bool isScalar( Simulator::SimulatedSwitch const & sw, Place const & place ) {
   auto const & type = sw.state().entity( place.path )->typeData();
   return type.attribute( place.attribute )->kind == Attribute::Kind::scalar;
}

void hearChanges( Scenario const & scenario, std::size_t from, std::ostream & out ) {
   Simulator::SimulatedSwitch sw( scenario.description );
   scenario.prepare( sw );
   sw.start();
   auto places = placesOf( sw );
   std::ranges::stable_partition( places, [&]( Place const & place ) { return isScalar( sw, place ); } );
   Ears ears( sw );
   for ( std::size_t index = from; index < places.size(); ++index ) {
      tell( out, index, places[index] );
      // At once, as the next value may be one that the plug-in can't live with.
      std::set< std::string > told;
      ears.tells = [&]( Ears::Heard const & heard ) {
         bool const isOfChange = heard.cause == places[index].path + " " + places[index].attribute;
         if ( isOfChange && told.insert( heard.function ).second ) {
            out << "heard " << heard.function << '\n';
         }
      };
      ears.heard.clear();
      changeInEveryWay( sw, places[index] );
      if ( !isScalar( sw, places[index] ) ) {
         return; // the entities are others now: whoever has followed those before hears nothing of them
      }
   }
   out << "end\n";
}

using ByFunction = std::map< std::string, std::vector< Ears::Heard > >;

ByFunction startOf( Scenario const & scenario, std::function< void( Simulator::SimulatedSwitch & ) > const & change ) {
   Simulator::SimulatedSwitch sw( scenario.description );
   scenario.prepare( sw );
   change( sw );
   Ears ears( sw );
   sw.start();
   ByFunction functions;
   for ( auto & heard : ears.heard ) {
      functions[heard.function].push_back( std::move( heard ) );
   }
   return functions;
}

// Whether a function has done something else although it has read the same.
bool decidesOtherwise( std::vector< Ears::Heard > const & one, std::vector< Ears::Heard > const & other ) {
   for ( std::size_t index = 0; index < std::min( one.size(), other.size() ); ++index ) {
      if ( one[index].what != other[index].what ) {
         return !( one[index].isRead && other[index].isRead );
      }
   }
   return one.size() != other.size();
}

// What an attribute can be at the start, in place of what it is.
std::vector< std::function< void( Simulator::SimulatedSwitch & ) > >
changesBefore( Simulator::SimulatedSwitch const & sw, Place const & place ) {
   using Switch = Simulator::SimulatedSwitch;
   auto const entity = sw.state().entity( place.path );
   Attribute const & attribute = *entity->typeData().attribute( place.attribute );
   std::vector< std::function< void( Switch & ) > > changes;
   if ( attribute.kind == Attribute::Kind::scalar ) {
      for ( Value const & value : samplesOf( attribute, attribute.value( *entity ) ) ) {
         changes.push_back( [=]( Switch & of ) { of.set( place.path, place.attribute, value ); } );
      }
   } else if ( attribute.kind == Attribute::Kind::entity ) {
      changes.push_back( [=]( Switch & of ) { of.set( place.path, place.attribute, nullptr ); } );
   } else {
      std::string const key = sampleKey( *attribute.keyType() );
      Value const entry = entryOf( attribute );
      changes.push_back( [=]( Switch & of ) { of.setEntry( place.path, place.attribute, key, entry ); } );
   }
   return changes;
}

// What every switch can be, it is.
void allOn( Simulator::SimulatedSwitch & sw ) {
   for ( Place const & place : placesOf( sw ) ) {
      auto const type = sw.state().entity( place.path )->typeData().attribute( place.attribute )->valueType();
      if ( type && type->kind == Rex::ValueType::Kind::boolean ) {
         sw.set( place.path, place.attribute, true );
      }
   }
}

template< bool isOn >
void hearStart( Scenario const & scenario, std::size_t from, std::ostream & out ) {
   struct Change {
      Place place;
      std::function< void( Simulator::SimulatedSwitch & ) > carryOut;
   };
   std::vector< Change > changes;
   auto const base = startOf( scenario, [&]( Simulator::SimulatedSwitch & sw ) {
      isOn ? allOn( sw ) : void();
      for ( Place const & place : placesOf( sw ) ) {
         for ( auto const & change : changesBefore( sw, place ) ) {
            changes.push_back( { place, change } );
         }
      }
   } );
   for ( std::size_t index = from; index < changes.size(); ++index ) {
      tell( out, index, changes[index].place );
      auto const functions = startOf( scenario, [&]( Simulator::SimulatedSwitch & sw ) {
         isOn ? allOn( sw ) : void();
         changes[index].carryOut( sw );
      } );
      for ( auto const & [function, heard] : functions ) {
         auto const before = base.find( function );
         if ( before != base.end() && decidesOtherwise( before->second, heard ) ) {
            out << "heard " << function << '\n';
         }
      }
   }
   out << "end\n";
}

TEST( HearersGolden, areThoseThatAChangeReaches ) {
   std::map< std::tuple< std::string, std::string, std::string >, std::pair< bool, bool > > rows;
   auto const add = [&]( Functions const & functions, bool std::pair< bool, bool >::*when ) {
      for ( auto const & [place, names] : functions ) {
         auto const path = statePathOf( place.path )->path;
         for ( std::string const & name : names ) {
            rows[{ path, place.attribute, name }].*when = true;
         }
      }
   };
   statePaths(); // which makes a switch
   for ( World const & world : { active, standby, disabled, early } ) {
      add( inChildren( world, hearChanges ), &std::pair< bool, bool >::first );
   }
   add( inChildren( active, hearStart< false > ), &std::pair< bool, bool >::second );
   add( inChildren( active, hearStart< true > ), &std::pair< bool, bool >::second );
   std::string text;
   for ( auto const & [row, when] : rows ) {
      auto const & [path, attribute, function] = row;
      text += "      { \"" + path + "\", \"" + attribute + "\", \"" + function + "\", " +
              ( when.first ? "true" : "false" ) + ", " + ( when.second ? "true" : "false" ) + " },\n";
   }
   expectList( "inspection/KnownHearers.cpp", "hearers[] = {\n", text );
}

} // namespace
