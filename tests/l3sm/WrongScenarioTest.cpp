// What can be wrong in a scenario but for its events and its chips: told with line and column, everything at once.
#include "l3sm/WrongInput.h"

namespace {

TEST( WrongScenario, textThatIsNoJson ) {
   std::string nested;
   std::string place;
   for ( int level = 0; level < 64; ++level ) {
      nested += "[";
      place += "/0";
   }
   expectTold( {
      scenario( "a comma too many",
                "{\n \"name\": \"größer\",\n \"switch\": {§,}\n}\n",
                "s.json:§: syntax error while parsing object key - unexpected ','; expected string literal" ),
      scenario( "a comma too few",
                "{\"name\": \"größer\"\n §\"switch\": {}}",
                "s.json:§: syntax error while parsing object - unexpected string literal; expected '}'" ),
      scenario( "a brace too few",
                "{\"name\": \"x\"\n§",
                "s.json:§: syntax error while parsing object - unexpected end of input; expected '}'" ),
      scenario(
         "a word that is none", "{\"name\":\n  §yes}", "s.json:§: syntax error while parsing value - invalid literal" ),
      scenario( "a second value",
                "{}\n§[]",
                "s.json:§: syntax error while parsing value - unexpected '['; expected end of input" ),
      scenario( "nothing", "", "s.json: is empty" ),
      scenario( "blanks", " \n\t\n", "s.json: is empty" ),
      scenario( "bytes that are no UTF-8",
                "{\"name\": \"§\xff\"}",
                "s.json:§: syntax error while parsing value - invalid string: ill-formed UTF-8 byte" ),
      scenario( "lists without an end", nested + "§[", "s.json:§: " + place + ": nested too deeply" ),
   } );
}

TEST( WrongScenario, jsonThatNobodyMeans ) {
   expectTold( {
      member( "a key that stands twice",
              R"("state": {"evpn/status": {"mplsEnabled": true, §"mplsEnabled": false}})",
              "s.json:§: /state/evpn~1status/mplsEnabled: this key stands twice in the object" ),
      member( "a fraction",
              R"("state": {"interface/config/global": {"l3Mtu": §1500.5}})",
              "s.json:§: /state/interface~1config~1global/l3Mtu: 1500.5 is no whole number" ),
      member( "a number that nothing holds",
              R"("state": {"interface/config/global": {"l3Mtu": §9223372036854775808}})",
              "s.json:§: /state/interface~1config~1global/l3Mtu: 9223372036854775808 is too large a number" ),
   } );
}

TEST( WrongScenario, partsThatAreMissingOrTooMany ) {
   expectTold( {
      scenario( "no switch", " §{}", "s.json:§: \"switch\" is missing" ),
      scenario( "a list", "\n§[]", "s.json:§: expected an object, got a list" ),
      scenario( "a number", "§7", "s.json:§: expected an object, got 7" ),
      member( "an unknown part",
              R"( §"event": [])",
              "s.json:§: /event: this key means nothing here; did you mean \"events\"?" ),
      member(
         "a part like no other",
         R"( §"wanted": [])",
         "s.json:§: /wanted: this key means nothing here; there may be $schema, chips, events, name, state, switch, "
         "toggles" ),
      member( "a name that is none", R"("name": §7)", "s.json:§: /name: expected a string, got 7" ),
      member( "a schema that is none", R"("$schema": §{})", "s.json:§: /$schema: expected a string, got an object" ),
      member( "states in a list", R"("state": §[])", "s.json:§: /state: expected an object, got a list" ),
      member( "events in an object", R"("events": §{})", "s.json:§: /events: expected a list, got an object" ),
   } );
}

TEST( WrongScenario, aSwitchThatCannotBe ) {
   std::string const kinds = "there are BCM88690_B0, BCM88800_A0, BCM88850_A0, BCM88859_A2, BCM88480_A0, BCM88480_B0";
   std::string const whole = R"({"fapId": 0, "revision": {"chipType": "BCM88690_B0"}})";
   expectTold( {
      scenario( "no list of FAPs", R"({"switch": §{}})", "s.json:§: /switch: \"faps\" is missing" ),
      scenario( "no FAP", R"({"switch": {"faps": §[]}})", "s.json:§: /switch/faps: a switch has at least one FAP" ),
      fap( "no number and no revision",
           "§{}",
           "s.json:§: /switch/faps/0: \"fapId\" is missing\ns.json:¶: /switch/faps/0: \"revision\" is missing" ),
      fap( "a FAP number that is none",
           R"({"fapId": §65536, "revision": {"chipType": "BCM88690_B0"}})",
           "s.json:§: /switch/faps/0/fapId: expected a number from 0 to 65535, got 65536" ),
      fap( "two FAPs of one number",
           whole + R"(, {"fapId": §0, "revision": {"chipType": "BCM88690_B0"}})",
           "s.json:§: /switch/faps/1/fapId: there is a FAP 0 already" ),
      fap( "no chip type",
           R"({"fapId": 0, "revision": §{}})",
           "s.json:§: /switch/faps/0/revision: \"chipType\" is missing" ),
      fap( "an unknown chip type",
           R"({"fapId": 0, "revision": {"chipType": §"BCM88690_B1"}})",
           "s.json:§: /switch/faps/0/revision/chipType: there is no chip type \"BCM88690_B1\"; " + kinds ),
      fap( "an unknown part of the revision",
           R"({"fapId": 0, "revision": {"chipType": "BCM88690_B0", §"minor": 1}})",
           "s.json:§: /switch/faps/0/revision/minor: a revision has chipType, sdkVersion and major, no \"minor\"" ),
      fap( "more cores than can be counted",
           R"({"fapId": 0, "cores": §65536, "revision": {"chipType": "BCM88690_B0"}})",
           "s.json:§: /switch/faps/0/cores: expected a number from 0 to 65535, got 65536" ),
      fap( "ports that are none",
           R"({"fapId": 0, "ports": {§"one": 1, "2": §"x"}, "revision": {"chipType": "BCM88690_B0"}})",
           "s.json:§: /switch/faps/0/ports/one: expected a key from 0 to 65535, got \"one\"\n"
           "s.json:§: /switch/faps/0/ports/2: expected a number from 0 to 65535, got \"x\"" ),
      scenario( "a slice without a name",
                R"({"switch": {"slice": {"name": §""}, "faps": [)" + whole + "]}}",
                "s.json:§: /switch/slice/name: a slice has a name" ),
   } );
}

TEST( WrongScenario, togglesThatThereAreNot ) {
   expectTold( {
      member( "a misspelt toggle",
              R"("toggles": {"Dace.json": {§"ArmOrderedSwTabel": false}})",
              "s.json:§: /toggles/Dace.json/ArmOrderedSwTabel: there is no such toggle; did you mean "
              "\"ArmOrderedSwTable\"?" ),
      member( "a misspelt file",
              R"("toggles": {§"Dace.jsn": {"ArmOrderedSwTable": false}})",
              "s.json:§: /toggles/Dace.jsn: no toggle is read from this file; did you mean \"Dace.json\"?" ),
      member( "the toggle of another file",
              R"("toggles": {"Dace.json": {§"J2SRv6": false}})",
              "s.json:§: /toggles/Dace.json/J2SRv6: this toggle is read from DaceToggles.json" ),
      member( "names like no others",
              R"("toggles": {"Dace.json": {§"Wanted": false}, §"Other": {}})",
              "s.json:§: /toggles/Dace.json/Wanted: there is no such toggle; `l3sm toggles` lists them\n"
              "s.json:§: /toggles/Other: no toggle is read from this file; `l3sm toggles` lists them" ),
      member( "a number",
              R"("toggles": {"Dace.json": {"ArmOrderedSwTable": §0}})",
              "s.json:§: /toggles/Dace.json/ArmOrderedSwTable: expected true or false, got 0" ),
   } );
   WrongInput quiet = member( "quietly",
                              R"("toggles": {"Dace.json": {§"ArmOrderedSwTabel": false}})",
                              "s.json:§: /toggles/Dace.json/ArmOrderedSwTabel: there is no such toggle; did you mean "
                              "\"ArmOrderedSwTable\"?" );
   quiet.arguments += " --quiet";
   expectTold( { quiet } );
}

TEST( WrongScenario, stateThatDoesNotFit ) {
   std::string const has = "It has vxlanEnabled, mplsEnabled, evpnDciEnabled";
   expectTold( {
      member( "a misspelt path",
              R"("state": {§"evpn/statsu": {}})",
              "s.json:§: /state/evpn~1statsu: there is no path \"evpn/statsu\"; did you mean \"evpn/status\"?" ),
      member( "a path like no other",
              R"("state": {§"no/where": {}})",
              "s.json:§: /state/no~1where: there is no path \"no/where\"; `l3sm paths` lists them" ),
      member( "a misspelt attribute",
              R"("state": {"evpn/status": {§"vxlanEnabeld": true}})",
              "s.json:§: /state/evpn~1status/vxlanEnabeld: Evpn::EvpnStatus has no attribute \"vxlanEnabeld\"; did "
              "you mean \"vxlanEnabled\"? " +
                 has ),
      member( "a value of another kind",
              R"("state": {"evpn/status": {"vxlanEnabled": §"yes"}})",
              "s.json:§: /state/evpn~1status/vxlanEnabled: expected true or false, got \"yes\"" ),
      member( "a value instead of attributes",
              R"("state": {"evpn/status": §true})",
              "s.json:§: /state/evpn~1status: expected an object, got true" ),
      member( "an address that is none",
              R"("state": {"bridging/config": {"bridgeMacAddr": §"02:00"}})",
              "s.json:§: /state/bridging~1config/bridgeMacAddr: expected an address such as \"02:00:00:00:00:01\", got "
              "\"02:00\"" ),
      member( "an entity that isn't there",
              R"("state": {§"shared/portStateInfo/portState/1": {"active": true}})",
              "s.json:§: /state/shared~1portStateInfo~1portState~11: shared/portStateInfo holds nothing at "
              "\"portState/1\"" ),
      member(
         "what the switch tells",
         R"("state": {§"hardware/dace/fap/status": {}})",
         "s.json:§: /state/hardware~1dace~1fap~1status: hardware/dace/fap/status is told by the description of the "
         "switch and can't be set" ),
      member( "machinery",
              R"("state": {§"shared/agentScheduler": {}})",
              "s.json:§: /state/shared~1agentScheduler: shared/agentScheduler has no attributes that can be set" ),
      member( "several entries",
              R"("state": {"shared/portStateInfo": {"portState": {"1": {§"activ": true},)"
              "\n"
              R"( §"x": {}, "3": {"intfId": §3}}}, "evpn/status": {"vxlanEnabled": §1}})",
              "s.json:§: /state/shared~1portStateInfo/portState/1/activ: DaceFapNi::PortState has no attribute "
              "\"activ\"; did you mean \"active\"? It has intfId, active, portGenId\n"
              "s.json:§: /state/shared~1portStateInfo/portState/x: expected a key from 0 to 65535, got \"x\"\n"
              "s.json:§: /state/shared~1portStateInfo/portState/3/intfId: expected a string, got 3\n"
              "s.json:§: /state/evpn~1status/vxlanEnabled: expected true or false, got 1" ),
   } );
}

// What a name holds must not move the cursor or colour the screen, nor fill it.
TEST( WrongScenario, namesThatGiveOrdersToATerminal ) {
   expectTold( {
      member( "a path with an escape",
              R"("state": {§"evpn\u001b[2J\n": {}})",
              "s.json:§: /state/evpn\\x1b[2J\\x0a: there is no path \"evpn\\x1b[2J\\x0a\"; `l3sm paths` lists them" ),
      member( "a value as long as a book",
              R"("name": §[")" + std::string( 100000, 'x' ) + R"("], "state": {"evpn/status": {"vxlanEnabled": §")" +
                 std::string( 100000, 'x' ) + R"("}})",
              "s.json:§: /name: expected a string, got a list\n"
              "s.json:§: /state/evpn~1status/vxlanEnabled: expected true or false, got \"" +
                 std::string( 537, 'x' ) + "..." ),
   } );
}

} // namespace
