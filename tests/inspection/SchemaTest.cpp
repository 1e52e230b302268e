// The schema of a scenario takes what the program takes, and refuses what can be refused without playing it. A
// validator of others judges it: python3-jsonschema. Where that is missing the tests are left out.
#include "inspection/SampleValues.h"
#include "inspection/StatePaths.h"
#include "inspection/files/Json.h"
#include "inspection/files/Scenario.h"
#include "inspection/files/ScenarioSchema.h"
#include "inspection/files/TypeSchema.h"
#include "inspection/views/PathsText.h"
#include "l3sm/Command.h"

#include <gtest/gtest.h>
#include <random>
#include <regex>

namespace {

using namespace Inspection;
using Rex::Value;

bool hasValidator() {
   static bool const has = std::system( "python3 -c 'import jsonschema' 2>/dev/null" ) == 0;
   return has;
}

#define NEEDS_VALIDATOR()                                                                                              \
   if ( !hasValidator() ) {                                                                                            \
      GTEST_SKIP() << "left out: python3-jsonschema is missing";                                                       \
   }

// What the validator says of each.
std::vector< std::string > verdictsOn( std::vector< Value > const & documents ) {
   std::string lines;
   for ( Value const & document : documents ) {
      lines += toJson( document, 0 ) + "\n";
   }
   Command const python( "--version; python3 '" L3SM_SOURCE_DIR "/tests/inspection/validate.py' schema documents",
                         { { "schema", toJson( scenarioSchema(), 4 ) }, { "documents", lines } } );
   EXPECT_EQ( python.errors, "" );
   std::vector< std::string > verdicts;
   std::istringstream out( python.output );
   for ( std::string line; std::getline( out, line ); ) {
      if ( line.starts_with( "valid" ) || line.starts_with( "invalid" ) ) {
         verdicts.push_back( line );
      }
   }
   EXPECT_EQ( verdicts.size(), documents.size() );
   return verdicts;
}

// What is wrong with a scenario; empty if the program takes it.
std::string refusalOf( Value const & scenario ) {
   try {
      scenarioOf( scenario, "s" );
      return {};
   } catch ( InputError const & error ) {
      return error.what();
   }
}

std::vector< Value > examples() {
   std::vector< Value > all;
   for ( auto const & example : std::filesystem::directory_iterator( L3SM_SOURCE_DIR "/examples" ) ) {
      if ( example.path().extension() == ".json" ) {
         all.push_back( readJson( example.path().string() ) );
      }
   }
   return all;
}

// A scenario that says everything a scenario can say: each attribute of each path, in the state and in an event.
Value everyPath() {
   Value::Object state;
   Value::List events;
   for ( StatePath const & path : statePaths() ) {
      if ( path.kind != StatePath::Kind::state ) {
         continue;
      }
      std::string const concrete = withSampleKeys( path.path );
      Value::Object attributes;
      for ( StateAttribute const & of : path.attributes ) {
         auto const & attribute = *of.attribute;
         Value const one = sampleValue( attribute, of.defaultValue );
         attributes[attribute.name] =
            attribute.keyType() ? Value( Value::Object{ { sampleKey( *attribute.keyType() ), one } } ) : one;
         events.push_back( eventFor( path, of ) );
      }
      if ( path.entries ) {
         attributes["name"] = Value::Object();
      }
      state[concrete] = attributes;
   }
   events.push_back(
      parseJson( R"({"delete": {"path": "shared/portStateInfo", "attribute": "portState", "key": "1"}})", "" ) );
   events.push_back( parseJson( R"({"transaction": [{"delete": {"path": "evpn/status"}}]})", "" ) );
   events.push_back( parseJson( R"({"delete": {"path": "vxlan/ecnConfig"}})", "" ) );
   events.push_back( parseJson( R"({"fault": {"kind": "lost"}})", "" ) );
   events.push_back( parseJson(
      R"({"fault": {"fap": 0, "table": "IppdFerTrapCfg", "array": 3, "entry": 0, "copy": 1, "kind": "stuck:7=1",
                    "count": 2, "probability": "0.25", "for": 60, "seed": 17}})",
      "" ) );
   Value scenario = parseJson( R"({
      "$schema": "../share/l3sm/scenario.schema.json",
      "name": "everything",
      "switch": {"slice": {"name": "Linecard3"},
                 "faps": [{"fapId": 0, "name": "Fap3/0", "cores": 2, "ports": {"1": 10},
                           "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}},
                          {"fapId": 1, "revision": {"chipType": "BCM88480_B0"}}]},
      "toggles": {"Dace.json": {"ArmOrderedSwTable": false}},
      "chips": {"0": {"IppdFerTrapCfg": {"0": {"3": {"0": {"words": ["0x00000123"]}},
                                               "4": {"0": {"instances": {"0": ["0x1"], "1": ["0x2"]}}}}}},
                "1": {"tables": {}, "controls": {"64": 255}}}})",
                               "" );
   ( *scenario.object() )["state"] = state;
   ( *scenario.object() )["events"] = events;
   return scenario;
}

TEST( Schema, takesEveryExample ) {
   NEEDS_VALIDATOR();
   auto const all = examples();
   EXPECT_GE( all.size(), 13u );
   for ( auto const & verdict : verdictsOn( all ) ) {
      EXPECT_EQ( verdict, "valid" );
   }
}

TEST( Schema, takesEveryAttributeOfEveryPathInTheStateAndInAnEvent ) {
   NEEDS_VALIDATOR();
   EXPECT_EQ( refusalOf( everyPath() ), "" );
   EXPECT_EQ( verdictsOn( { everyPath() } ), std::vector< std::string >{ "valid" } );
}

TEST( Schema, refusesWhatTheProgramRefuses ) {
   NEEDS_VALIDATOR();
   struct Case {
      char const * what;
      char const * scenario; // the switch is added
   };
   constexpr Case cases[] = {
      { "an unknown key", R"({"event": []})" },
      { "an unknown toggle", R"({"toggles": {"Dace.json": {"ArmOrderedSwTabel": false}}})" },
      { "a toggle of another file", R"({"toggles": {"Dace.json": {"J2DaceL3Ni": false}}})" },
      { "a toggle that is no boolean", R"({"toggles": {"Dace.json": {"ArmOrderedSwTable": "off"}}})" },
      { "an unknown path", R"({"state": {"evpn/statsu": {}}})" },
      { "an unknown attribute", R"({"state": {"evpn/status": {"vxlanEnabeld": true}}})" },
      { "a wrong type", R"({"state": {"evpn/status": {"vxlanEnabled": "yes"}}})" },
      { "a number out of range",
        R"({"state": {"interface/status/eth/vxlan": {"vtiStatus": {"V": {"udpPort": 65536}}}}})" },
      { "a key that is none", R"({"state": {"shared/portStateInfo": {"portState": {"Ethernet1": {}}}}})" },
      { "a key with a leading zero", R"({"state": {"shared/portStateInfo": {"portState": {"01": {}}}}})" },
      { "a key out of range", R"({"state": {"shared/portStateInfo": {"portState": {"65536": {}}}}})" },
      { "no MAC address", R"({"state": {"bridging/config": {"bridgeMacAddr": "02:00"}}})" },
      { "a chip that is none", R"({"state": {"shared/sliceSmStateData": {"revision": {"chipType": "BCM1"}}}})" },
      { "a path that the switch tells", R"({"state": {"shared/chipInitConfigDir": {}}})" },
      { "an event of no kind", R"({"events": [{}]})" },
      { "an event of two kinds",
        R"({"events": [{"set": {"path": "evpn/status", "attribute": "mplsEnabled", "value": true},
                                                 "delete": {"path": "evpn/status"}}]})" },
      { "an event with a wrong path",
        R"({"events": [{"set": {"path": "evpn", "attribute": "mplsEnabled", "value": true}}]})" },
      { "an event with a wrong attribute",
        R"({"events": [{"set": {"path": "evpn/status", "attribute": "mpls", "value": true}}]})" },
      { "an event without a value", R"({"events": [{"set": {"path": "evpn/status", "attribute": "mplsEnabled"}}]})" },
      { "an event with a wrong value",
        R"({"events": [{"set": {"path": "evpn/status", "attribute": "mplsEnabled", "value": 1}}]})" },
      { "a key where there is none",
        R"({"events": [{"set": {"path": "evpn/status", "attribute": "mplsEnabled", "key": "1", "value": true}}]})" },
      { "an entry with a wrong key",
        R"({"events": [{"set": {"path": "shared/portStateInfo", "attribute": "portState", "key": "E", "value": {}}}]})" },
      { "an entry with a wrong value",
        R"({"events": [{"set": {"path": "shared/portStateInfo", "attribute": "portState", "key": "1", "value": {"intfid": "E"}}}]})" },
      { "a fault without a kind", R"({"events": [{"fault": {"fap": 0}}]})" },
      { "a fault of a kind that is none", R"({"events": [{"fault": {"kind": "flip"}}]})" },
      { "a fault whose kind is no text", R"({"events": [{"fault": {"kind": 7}}]})" },
      { "a fault of a table that is none", R"({"events": [{"fault": {"kind": "lost", "table": "IppdFer"}}]})" },
      { "a fault that never fires", R"({"events": [{"fault": {"kind": "lost", "count": 0}}]})" },
      { "a fault that isn't likely", R"({"events": [{"fault": {"kind": "lost", "probability": "2"}}]})" },
      { "a fault with something more", R"({"events": [{"fault": {"kind": "lost", "duration": 1}}]})" },
      { "a deletion without a key",
        R"({"events": [{"delete": {"path": "shared/portStateInfo", "attribute": "portState"}}]})" },
      { "a table that is none", R"({"chips": {"0": {"IppdFerTrapCgf": {}}}})" },
      { "too many words", R"({"chips": {"0": {"IppdFerTrapCfg": {"0": {"3": {"0": {"words": ["0x1", "0x2"]}}}}}}})" },
      { "a word that is none", R"({"chips": {"0": {"IppdFerTrapCfg": {"0": {"3": {"0": {"words": ["12"]}}}}}}})" },
      { "an entry without words", R"({"chips": {"0": {"IppdFerTrapCfg": {"0": {"3": {"0": {}}}}}}})" },
      { "an array index that no chip has",
        R"({"chips": {"0": {"IppdFerTrapCfg": {"0": {"99": {"0": {"words": ["0x1"]}}}}}}})" },
      { "a control that is no number", R"({"chips": {"0": {"controls": {"64": "on"}}}})" },
   };
   std::vector< Value > scenarios;
   for ( Case const & each : cases ) {
      Value scenario = parseJson( each.scenario, each.what );
      ( *scenario.object() )["switch"] =
         parseJson( R"({"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0"}}]})", "" );
      EXPECT_NE( refusalOf( scenario ), "" ) << each.what;
      scenarios.push_back( scenario );
   }
   auto const verdicts = verdictsOn( scenarios );
   for ( std::size_t each = 0; each < verdicts.size(); ++each ) {
      EXPECT_NE( verdicts[each], "valid" ) << cases[each].what;
   }
}

// ---- what becomes of a scenario when somebody slips

using Random = std::mt19937;

std::size_t below( Random & random, std::size_t count ) {
   return random() % count;
}

Value * anyPartOf( Random & random, Value & value ) {
   std::vector< Value * > parts{ &value };
   for ( std::size_t next = 0; next < parts.size(); ++next ) {
      if ( auto * object = parts[next]->object() ) {
         for ( auto & [key, part] : *object ) {
            parts.push_back( &part );
         }
      } else if ( auto * list = parts[next]->list() ) {
         for ( auto & part : *list ) {
            parts.push_back( &part );
         }
      }
   }
   return parts[below( random, parts.size() )];
}

void slip( Random & random, Value & value ) {
   Value * const part = anyPartOf( random, value );
   auto * const object = part->object();
   if ( object && !object->empty() && below( random, 3 ) != 0 ) {
      auto const chosen =
         std::next( object->begin(), static_cast< std::ptrdiff_t >( below( random, object->size() ) ) );
      if ( below( random, 2 ) == 0 ) {
         object->erase( chosen );
      } else {
         std::vector< std::string > const names{
            chosen->first + "x", "0", "65536", "Ethernet9/1", "evpn/status", "key" };
         Value const moved = chosen->second;
         object->erase( chosen );
         ( *object )[names[below( random, names.size() )]] = moved;
      }
      return;
   }
   std::vector< Value > const others{ nullptr,
                                      true,
                                      false,
                                      0,
                                      1,
                                      255,
                                      256,
                                      65535,
                                      65536,
                                      4294967295,
                                      4294967296,
                                      -1,
                                      "",
                                      "x",
                                      "BCM88800_A0",
                                      "02:00:00:00:00:01",
                                      Value::List(),
                                      Value::Object() };
   *part = others[below( random, others.size() )];
}

// What only a switch can know.
bool isOfTheSwitch( std::string const & refusal ) {
   static std::regex const known(
      "the switch has no such FAP|there is a FAP|holds nothing at|has no entry|nothing stands at|which was left out|"
      "can't be set|no table has this name|the chip|no such|has no |expected instance|a slice has a name" );
   return std::regex_search( refusal, known );
}

TEST( Schema, judgesAsTheProgramDoesWhereSomebodySlips ) {
   NEEDS_VALIDATOR();
   constexpr int slips = 600;
   Random random( 20 );
   auto bases = examples();
   bases.push_back( everyPath() );
   bases.push_back( everyPath() );
   std::vector< Value > scenarios;
   std::vector< std::string > refusals;
   for ( int number = 0; number < slips; ++number ) {
      Value scenario = bases[below( random, bases.size() )];
      slip( random, scenario );
      refusals.push_back( refusalOf( scenario ) );
      scenarios.push_back( std::move( scenario ) );
   }
   auto const verdicts = verdictsOn( scenarios );
   int taken = 0;
   int left = 0;
   for ( std::size_t number = 0; number < verdicts.size(); ++number ) {
      bool const isValid = verdicts[number] == "valid";
      if ( refusals[number].empty() ) {
         ++taken;
         EXPECT_TRUE( isValid ) << verdicts[number] << '\n' << Rex::toText( scenarios[number] );
      } else if ( isValid ) {
         ++left;
         EXPECT_TRUE( isOfTheSwitch( refusals[number] ) ) << refusals[number];
      }
   }
   // The slips are of both kinds, and the schema sees most of those that the program refuses.
   EXPECT_GT( taken, slips / 10 );
   EXPECT_GT( slips - taken, slips / 3 );
   EXPECT_LT( left, ( slips - taken ) / 5 );
}

TEST( TypeSchema, writesARangeOfNumbersAsAPattern ) {
   for ( auto const & [least, most] : { std::pair( 0u, 0u ),
                                        std::pair( 0u, 7u ),
                                        std::pair( 0u, 65535u ),
                                        std::pair( 3u, 12u ),
                                        std::pair( 17u, 4032u ),
                                        std::pair( 99u, 1000u ) } ) {
      std::regex const pattern( numberPattern( least, most ) );
      for ( unsigned number = 0; number < 70000; number += number < 5000 ? 1 : 7 ) {
         ASSERT_EQ( std::regex_match( std::to_string( number ), pattern ), number >= least && number <= most )
            << number << " in " << least << '-' << most;
      }
      EXPECT_FALSE( std::regex_match( "01", pattern ) );
      EXPECT_FALSE( std::regex_match( "", pattern ) );
   }
}

} // namespace
