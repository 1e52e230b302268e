// Whatever a person gets wrong is answered with one line and status 2, and nothing is written.
#include "l3sm/Command.h"

#include <gtest/gtest.h>

namespace {

// Plays the scenario with every output that there is, and expects the line, without "l3sm: " and the line's end.
void expectRefused( std::string const & scenario, std::string const & line ) {
   Command const l3sm( "run s.json --chips chips --journal journal --state state", { { "s.json", scenario } } );
   EXPECT_EQ( l3sm.errors, "l3sm: " + line + "\n" );
   EXPECT_EQ( l3sm.status, 2 );
   EXPECT_EQ( l3sm.output, "" );
   EXPECT_FALSE( l3sm.wrote( "chips" ) || l3sm.wrote( "journal" ) || l3sm.wrote( "state" ) );
}

void expectUsage( std::string const & arguments, std::string const & line ) {
   Command const l3sm( arguments );
   EXPECT_EQ( l3sm.errors, "l3sm: " + line + "\n" );
   EXPECT_EQ( l3sm.status, 2 );
   EXPECT_EQ( l3sm.output, "" );
}

TEST( WrongInput, brokenJsonIsToldWithItsLine ) {
   expectRefused( "{\n \"name\": \"x\",\n \"switch\": {,}\n}\n",
                  "s.json:3: syntax error while parsing object key - unexpected ','; expected string literal" );
   expectRefused( "{\"name\": \"x\"\n",
                  "s.json:1: syntax error while parsing object - unexpected end of input; expected '}'" );
   expectRefused(
      "", "s.json:1: syntax error while parsing value - unexpected end of input; expected '[', '{', or a literal" );
}

TEST( WrongInput, aKeyGivenTwiceIsAnError ) {
   expectRefused( scenarioWith( R"(, "state": {"evpn/status": {"mplsEnabled": true, "mplsEnabled": false}})" ),
                  "s.json: /state/evpn~1status/mplsEnabled: this key stands twice in the object" );
}

TEST( WrongInput, aFractionIsNoNumberHere ) {
   expectRefused( scenarioWith( R"(, "state": {"interface/config/global": {"l3Mtu": 1500.5}})" ),
                  "s.json: /state/interface~1config~1global/l3Mtu: 1500.5 is no whole number" );
}

TEST( WrongInput, aMissingFileIsTold ) {
   expectUsage( "run nowhere.json", "nowhere.json: can't be read: No such file or directory" );
   expectUsage( "run .", ".: can't be read: Is a directory" );
}

TEST( WrongInput, anUnknownPathIsToldWithTheOneThatWasMeant ) {
   expectRefused( scenarioWith( R"(, "state": {"evpn/statsu": {}})" ),
                  "s.json: /state/evpn~1statsu: there is no path \"evpn/statsu\"; did you mean \"evpn/status\"?" );
   expectRefused( scenarioWith( R"(, "events": [{"set": {"path": "no/where", "attribute": "a", "value": 1}}])" ),
                  "s.json: /events/0/set/path: there is no path \"no/where\"" );
}

TEST( WrongInput, anUnknownAttributeIsToldWithTheOneThatWasMeant ) {
   expectRefused(
      scenarioWith( R"(, "state": {"evpn/status": {"vxlanEnabeld": true}})" ),
      "s.json: /state/evpn~1status/vxlanEnabeld: Evpn::EvpnStatus has no attribute \"vxlanEnabeld\"; did you "
      "mean \"vxlanEnabled\"?" );
   expectRefused( scenarioWith( R"(, "events": [{"set": {"path": "evpn/status", "attribute": "speed", "value": 1}}])" ),
                  "s.json: /events/0/set/attribute: Evpn::EvpnStatus has no attribute \"speed\"" );
}

TEST( WrongInput, aValueOfTheWrongTypeIsToldWithItsPlace ) {
   expectRefused( scenarioWith( R"(, "state": {"evpn/status": {"vxlanEnabled": "yes"}})" ),
                  "s.json: /state/evpn~1status/vxlanEnabled: expected true or false, got \"yes\"" );
   expectRefused( scenarioWith( R"(, "events": [
      {"set": {"path": "evpn/status", "attribute": "vxlanEnabled", "value": true}},
      {"set": {"path": "interface/status/eth/vxlan", "attribute": "vtiStatus", "key": "Vxlan1",
               "value": {"udpPort": 65536}}}])" ),
                  "s.json: /events/1/set/value/udpPort: expected a number from 0 to 65535, got 65536" );
}

TEST( WrongInput, aKeyThatIsNoneIsToldWithItsPlace ) {
   expectRefused( scenarioWith( R"(, "events": [{"set": {"path": "shared/portStateInfo", "attribute": "portState",
                                               "key": "Ethernet1", "value": {}}}])" ),
                  "s.json: /events/0/set/key: expected a key from 0 to 65535, got \"Ethernet1\"" );
   expectRefused( scenarioWith( R"(, "events": [{"delete": {"path": "shared/portStateInfo", "attribute": "portState",
                                                  "key": "1"}}])" ),
                  "s.json: /events/0/delete/key: shared/portStateInfo has no entry \"1\" in portState" );
}

TEST( WrongInput, anEventThatFollowsFromAnEarlierOneIsCheckedAfterIt ) {
   expectRefused( scenarioWith( R"(, "events": [
      {"set": {"path": "shared/portStateInfo", "attribute": "portState", "key": "1", "value": {}}},
      {"delete": {"path": "shared/portStateInfo/portState/1"}},
      {"set": {"path": "shared/portStateInfo/portState/1", "attribute": "active", "value": true}}])" ),
                  "s.json: /events/2/set/path: shared/portStateInfo holds nothing at \"portState/1\"" );
}

TEST( WrongInput, anEventOfNoKindIsTold ) {
   expectRefused( scenarioWith( R"(, "events": [{"change": {}}])" ),
                  "s.json: /events/0/change: this key means nothing here; there may be delete, set" );
   expectRefused( scenarioWith( R"(, "events": [{}])" ),
                  "s.json: /events/0: an event is either {\"set\": {...}} or {\"delete\": {...}}" );
   expectRefused( scenarioWith( R"(, "events": [{"delete": {"path": "evpn/status", "attribute": "mplsEnabled"}}])" ),
                  "s.json: /events/0/delete: to delete an entry takes \"attribute\" and \"key\", to delete an entity "
                  "neither" );
   expectRefused( scenarioWith( R"(, "events": [{"set": {"path": "evpn/status", "attribute": "mplsEnabled"}}])" ),
                  "s.json: /events/0/set: \"value\" is missing" );
}

TEST( WrongInput, anUnknownChipTypeIsToldWithThoseThatThereAre ) {
   expectRefused(
      R"({"switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B1"}}]}})",
      "s.json: /switch/faps/0/revision/chipType: there is no chip type \"BCM88690_B1\"; there are BCM88690_B0, "
      "BCM88800_A0, BCM88850_A0, BCM88859_A2, BCM88480_A0, BCM88480_B0" );
}

TEST( WrongInput, aSwitchThatCannotBeIsTold ) {
   expectRefused( "{}", "s.json: \"switch\" is missing" );
   expectRefused( "[]", "s.json: expected an object, got a list" );
   expectRefused( R"({"switch": {"faps": []}})", "s.json: /switch/faps: a switch has at least one FAP" );
   expectRefused( R"({"switch": {"faps": [{"fapId": 0, "revision": {}}]}})",
                  "s.json: /switch/faps/0/revision: \"chipType\" is missing" );
   expectRefused( R"({"switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0"}},
                                          {"fapId": 0, "revision": {"chipType": "BCM88690_B0"}}]}})",
                  "s.json: /switch/faps/1/fapId: there is a FAP 0 already" );
   expectRefused(
      R"({"switch": {"faps": [{"fapId": 0, "ports": {"one": 1}, "revision": {"chipType": "BCM88690_B0"}}]}})",
      "s.json: /switch/faps/0/ports/one: expected a key from 0 to 65535, got \"one\"" );
}

TEST( WrongInput, anUnknownKeyIsToldWithTheOneThatWasMeant ) {
   expectRefused( scenarioWith( R"(, "event": [])" ),
                  "s.json: /event: this key means nothing here; did you mean \"events\"?" );
}

TEST( WrongInput, chipContentsThatTheChipHasNoPlaceForAreTold ) {
   auto const chips = []( std::string const & tables ) { return scenarioWith( R"(, "chips": )" + tables ); };
   expectRefused( chips( R"({"7": {}})" ), "s.json: /chips/7: the switch has no such FAP" );
   expectRefused( chips( R"({"0": {"IppdFerTrapCgf": {}}})" ),
                  "s.json: /chips/0/IppdFerTrapCgf: no table has this name; `l3sm catalogue` lists them" );
   expectRefused( chips( R"({"0": {"IppdFerTrapCfg": {"0": {"3": {"0": {"words": ["0x1", "0x2"]}}}}}})" ),
                  "s.json: /chips/0/IppdFerTrapCfg/0/3/0/words: an entry has 1 words, not 2" );
   expectRefused( chips( R"({"0": {"IppdFerTrapCfg": {"0": {"3": {"0": {"words": ["12"]}}}}}})" ),
                  "s.json: /chips/0/IppdFerTrapCfg/0/3/0/words/0: expected a word like \"0x00000a00\", got \"12\"" );
   expectRefused( chips( R"({"0": {"IppdFerTrapCfg": {"0": {"3": {"0": {}}}}}})" ),
                  "s.json: /chips/0/IppdFerTrapCfg/0/3/0: an entry has either \"words\" or \"instances\"" );
}

TEST( WrongInput, whatTheSwitchTellsCannotBeSet ) {
   expectRefused(
      scenarioWith( R"(, "state": {"hardware/dace/fap/status": {}})" ),
      "s.json: /state/hardware~1dace~1fap~1status: hardware/dace/fap/status is told by the description of the "
      "switch and can't be set" );
}

TEST( WrongInput, anUnknownVerbIsTold ) {
   expectUsage( "rnu", "there is no verb \"rnu\"; did you mean \"run\"?" );
   expectUsage( "fly", "there is no verb \"fly\"; l3sm --help lists them" );
   expectUsage( "", "say what to do; l3sm --help lists the verbs" );
}

TEST( WrongInput, aWrongOptionIsTold ) {
   expectUsage( "run --fast", "The following argument was not expected: --fast; l3sm run --help tells what there is" );
   expectUsage( "run a.json b.json",
                "The following argument was not expected: b.json; l3sm run --help tells what there is" );
   expectUsage( "run --chips", "--chips: 1 required FILE missing; l3sm run --help tells what there is" );
   expectUsage( "run --toggle Dace.json:ArmOrderedSwTable",
                "--toggle Dace.json:ArmOrderedSwTable: expected FILE:NAME=on or FILE:NAME=off, as in "
                "Dace.json:ArmOrderedSwTable=off" );
   expectUsage( "run --trace DaceFapNiL3Sm",
                "--trace DaceFapNiL3Sm: expected FACILITY/LEVEL with a level from 0 to 9, as in DaceFapNiL3Sm/8" );
   expectUsage( "run --trace DaceFapNiL3Sn/8",
                "--trace DaceFapNiL3Sn: no such facility; did you mean \"DaceFapNiL3Sm\"?" );
}

TEST( WrongInput, aFileThatCannotBeWrittenIsToldBeforeTheRun ) {
   expectUsage( "run --chips no/where.json", "no/where.json: can't be written: No such file or directory" );
   expectUsage( "run --journal no/where", "no/where: can't be written: No such file or directory" );
   expectUsage( "run --state .", ".: can't be written: Is a directory" );
   expectUsage( "run --trace */1 --trace-out no/where", "no/where: can't be written: No such file or directory" );
}

TEST( WrongInput, aFileThatCannotTakeEverythingIsToldOnce ) {
   for ( char const * option : { "--chips", "--state", "--journal", "--report", "--trace */9 --trace-out" } ) {
      expectUsage( std::string( "run --quiet " ) + option + " /dev/full",
                   "/dev/full: can't be written: No space left on device" );
   }
   expectUsage( "run --journal /proc/none", "/proc/none: can't be written: No such file or directory" );
   Command const l3sm( "catalogue 2>told >/dev/full; echo $?" );
   EXPECT_EQ( l3sm.output, "2\n" );
   EXPECT_EQ( l3sm.file( "told" ), "l3sm: standard output can't be written\n" );
}

TEST( WrongInput, aFileThatIsNamedTwiceIsTold ) {
   expectUsage( "run --chips same --journal same", "same: is named twice; give each file a name of its own" );
   std::string const scenario = scenarioWith( "" );
   Command const l3sm( "run s.json --chips ./s.json", { { "s.json", scenario } } );
   EXPECT_EQ( l3sm.status, 2 );
   EXPECT_EQ( l3sm.errors, "l3sm: ./s.json: is named twice; give each file a name of its own\n" );
   EXPECT_EQ( l3sm.file( "s.json" ), scenario );
   EXPECT_EQ( Command( "run --quiet --chips /dev/null --journal /dev/null" ).status, 0 );
}

TEST( WrongInput, aPlaceThatNothingHasIsTold ) {
   std::string const row = R"({"seq": 1, "event": 0, "op": "read", "fap": 0, "table": "IppdFerTrapCfg", "variant": 0,)"
                           R"( "array": 0, "entry": null, "scope": "any", "words": ["0x00000123"],)"
                           R"( "function": "f", "source": "s:1", "cause": "start"})"
                           "\n";
   auto const expectTold = [&]( std::string const & arguments, std::string const & line ) {
      Command const l3sm( "why j IppdFerTrapCfg " + arguments, { { "j", row } } );
      EXPECT_EQ( l3sm.status, line.empty() ? 0 : 2 );
      EXPECT_EQ( l3sm.errors, line.empty() ? "" : "l3sm: " + line + "\n" );
   };
   std::string const none = "IppdFerTrapCfg has no such variant, array index and entry; `l3sm catalogue "
                            "IppdFerTrapCfg` tells what it has";
   expectTold( "--fap 0 --variant 0 --array 7 --entry 0", "" );
   expectTold( "--variant 1", none );
   expectTold( "--array 8", none );
   expectTold( "--array -1", none );
   expectTold( "--entry 1", none );
   expectTold( "--fap 1", "j: it tells nothing of a FAP 1" );
}

TEST( WrongInput, aChipThatIsNoneIsToldWhereItStands ) {
   std::string const kinds = "there is no chip type \"BCM9\"; there are BCM88690_B0, BCM88800_A0, BCM88850_A0, "
                             "BCM88859_A2, BCM88480_A0, BCM88480_B0\n";
   Command const show( "show c.json", { { "c.json", R"({"faps": {"0": {"chipType": "BCM9"}}})" } } );
   EXPECT_EQ( show.status, 2 );
   EXPECT_EQ( show.errors, "l3sm: c.json: /faps/0/chipType: " + kinds );
}

TEST( WrongInput, aJournalIsOfUseForOneTable ) {
   expectUsage( "catalogue --journal j", "--journal tells which functions touch a table; name the table" );
}

TEST( WrongInput, aPluginThatCannotBeLoadedIsTold ) {
   expectUsage( "run --plugin ./none.so",
                "--plugin: ./none.so: cannot open shared object file: No such file or directory; name the plug-in's "
                "library with --plugin PATH" );
}

} // namespace
