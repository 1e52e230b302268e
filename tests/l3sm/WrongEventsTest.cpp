// What can be wrong with the events of a scenario: told with the number that every other answer gives them, from 1.
#include "l3sm/WrongInput.h"

namespace {

std::string const vtis = R"("path": "interface/status/eth/vxlan", "attribute": "vtiStatus")";
std::string const ports = R"("path": "shared/portStateInfo", "attribute": "portState")";

TEST( WrongEvents, thatAreNone ) {
   expectTold( {
      events( "an unknown kind",
              R"({§"change": {}})",
              "s.json:§: event 1, /change: this key means nothing here; there may be delete, fault, set, transaction" ),
      events( "no kind",
              "§{}",
              "s.json:§: event 1: an event is {\"set\": {...}}, {\"delete\": {...}}, {\"transaction\": [...]}, "
              "or {\"fault\": {...}}" ),
      events( "two kinds",
              R"(§{"set": {}, "delete": {}})",
              "s.json:§: event 1: an event is {\"set\": {...}}, {\"delete\": {...}}, {\"transaction\": [...]}, "
              "or {\"fault\": {...}}" ),
      events( "a number", "§7", "s.json:§: event 1: expected an object, got 7" ),
      events( "a fault of no kind",
              R"({"fault": {"kind": §"melt"}})",
              "s.json:§: event 1, /fault/kind: expected lost, flip:BIT, stuck:BIT=V, error or delay:MS, got \"melt\"" ),
      events( "a fault of no table",
              R"({"fault": {"table": §"IppdFerTrapCfX", "kind": "lost"}})",
              "s.json:§: event 1, /fault/table: there is no table IppdFerTrapCfX; did you mean \"IppdFerTrapCfg\"?" ),
      events( "a fault of no FAP",
              R"({"fault": {"fap": §9, "kind": "lost"}})",
              "s.json:§: event 1, /fault/fap: the switch has no such FAP" ),
      events( "a fault in a transaction",
              R"({"transaction": [§{"fault": {"kind": "lost"}}]})",
              "s.json:§: event 1, /transaction/0: a transaction holds no fault" ),
   } );
}

TEST( WrongEvents, thatAreNoListHaveNoNumbers ) {
   expectTold( {
      member( "events by name, one with a key twice",
              R"("events": §{"first": {"set": 1, §"set": 2}})",
              "s.json:§: /events: expected a list, got an object\n"
              "s.json:§: /events/first/set: this key stands twice in the object" ),
      member( "events by a name that is a large number",
              R"("events": §{"99999999999": {"set": 1, §"set": 2}})",
              "s.json:§: /events: expected a list, got an object\n"
              "s.json:§: /events/99999999999/set: this key stands twice in the object" ),
   } );
}

TEST( WrongEvents, withPartsThatAreMissingOrTooMany ) {
   expectTold( {
      events( "nothing to set",
              R"({"set": §{}})",
              "s.json:§: event 1, /set: \"path\" is missing\n"
              "s.json:¶: event 1, /set: \"attribute\" is missing\n"
              "s.json:¶: event 1, /set: \"value\" is missing" ),
      events( "no value",
              R"({"set": §{"path": "evpn/status", "attribute": "mplsEnabled"}})",
              "s.json:§: event 1, /set: \"value\" is missing" ),
      events( "an attribute without a key",
              R"({"delete": §{"path": "evpn/status", "attribute": "mplsEnabled"}})",
              "s.json:§: event 1, /delete: to delete an entry takes \"attribute\" and \"key\", to delete an entity "
              "neither" ),
      events( "a value to delete",
              R"({"delete": {"path": "evpn/status", §"value": 1}})",
              "s.json:§: event 1, /delete/value: this key means nothing here; there may be attribute, key, path" ),
      events( "a key that is a number",
              "{\"set\": {" + ports + R"(, "key": §1, "value": {}}})",
              "s.json:§: event 1, /set/key: expected a string, got 1" ),
   } );
}

TEST( WrongEvents, thatNothingCanBeDoneWith ) {
   expectTold( {
      events( "an unknown path",
              R"({"set": {"path": §"evpn/statsu", "attribute": "a", "value": 1}})",
              "s.json:§: event 1, /set/path: there is no path \"evpn/statsu\"; did you mean \"evpn/status\"?" ),
      events( "an unknown attribute",
              R"({"set": {"path": "evpn/status", "attribute": §"speed", "value": 1}})",
              "s.json:§: event 1, /set/attribute: Evpn::EvpnStatus has no attribute \"speed\"; it has "
              "vxlanEnabled, mplsEnabled, evpnDciEnabled" ),
      events( "a value too large",
              "{\"set\": {" + vtis + R"(, "key": "Vxlan1", "value": {"udpPort": §65536}}})",
              "s.json:§: event 1, /set/value/udpPort: expected a number from 0 to 65535, got 65536" ),
      events( "a key that is none",
              "{\"set\": {" + ports + R"(, "key": §"Ethernet1", "value": {}}})",
              "s.json:§: event 1, /set/key: expected a key from 0 to 65535, got \"Ethernet1\"" ),
      events( "a key of what has no entries",
              R"({"set": {"path": "evpn/status", "attribute": "mplsEnabled", "key": §"1", "value": true}})",
              "s.json:§: event 1, /set/key: mplsEnabled has no entries: leave the key out" ),
      events( "an entry that isn't there",
              "{\"delete\": {" + ports + R"(, "key": §"1"}})",
              "s.json:§: event 1, /delete/key: shared/portStateInfo has no entry \"1\" in portState" ),
      events( "an entity that isn't there",
              R"({"delete": {"path": §"shared/portStateInfo/portState/1"}})",
              "s.json:§: event 1, /delete/path: shared/portStateInfo holds nothing at \"portState/1\"" ),
      events( "what the switch tells",
              R"({"set": {"path": §"hardware/dace/fap/status", "attribute": "x", "value": 1}})",
              "s.json:§: event 1, /set/path: hardware/dace/fap/status is told by the description of the switch and "
              "can't be set" ),
      member( "a path that was left out",
              R"("state": {"evpn/status": null}, "events": [)"
              R"({"set": {"path": §"evpn/status", "attribute": "mplsEnabled", "value": true}}])",
              "s.json:§: event 1, /set/path: nothing stands at evpn/status, which was left out" ),
   } );
}

TEST( WrongEvents, areLookedAtAfterThoseBeforeThem ) {
   expectTold( { events( "an entity that has gone again",
                         "\n{\"set\": {" + ports + R"(, "key": "1", "value": {}}},)" +
                            "\n{\"delete\": {\"path\": \"shared/portStateInfo/portState/1\"}},"
                            "\n{\"set\": {\"path\": §\"shared/portStateInfo/portState/1\", \"attribute\": \"active\", "
                            "\"value\": true}}",
                         "s.json:§: event 3, /set/path: shared/portStateInfo holds nothing at \"portState/1\"" ) } );
}

TEST( WrongEvents, areToldTogether ) {
   expectTold( { member( "with what is wrong elsewhere",
                         R"("toggles": {"Dace.json": {§"J2SRv6": true}}, "state": {"evpn/status": {§"speed": 1}},)"
                         "\n\"chips\": {\"0\": {\"IppdFerTrapCfg\": {\"0\": {§\"9\": {}}}}}, \"events\": [§{},"
                         "\n{\"set\": {\"path\": \"evpn/status\", \"attribute\": \"mplsEnabled\", \"value\": §0}}]",
                         "s.json:§: /toggles/Dace.json/J2SRv6: this toggle is read from DaceToggles.json\n"
                         "s.json:§: /state/evpn~1status/speed: Evpn::EvpnStatus has no attribute \"speed\"; it has "
                         "vxlanEnabled, mplsEnabled, evpnDciEnabled\n"
                         "s.json:§: /chips/0/IppdFerTrapCfg/0/9: no such array index; there is 0 to 7\n"
                         "s.json:§: event 1: an event is {\"set\": {...}}, {\"delete\": {...}}, "
                         "{\"transaction\": [...]}, or {\"fault\": {...}}\n"
                         "s.json:§: event 2, /set/value: expected true or false, got 0" ) } );
}

// Only the cause is wrong, not what it leads to.
TEST( WrongEvents, thatFollowFromAnotherAreNotToldAgain ) {
   std::string const vti = R"({"set": {"path": "interface/status/eth/vxlan/vtiStatus/Vxlan1", "attribute": )";
   expectTold( {
      events( "an entity that couldn't be made",
              "\n{\"set\": {" + vtis + R"(, "key": "Vxlan1", "value": {"udpPort": §"x"}}},)" + "\n" + vti +
                 R"("udpPort", "value": 4789}},)" + "\n{\"delete\": {" + vtis + R"(, "key": "Vxlan1"}},)" +
                 "\n{\"delete\": {" + vtis + R"(, "key": §"Vxlan2"}})",
              "s.json:§: event 1, /set/value/udpPort: expected a number from 0 to 65535, got \"x\"\n"
              "s.json:§: event 4, /delete/key: interface/status/eth/vxlan has no entry \"Vxlan2\" in vtiStatus" ),
      events( "an event that isn't one",
              "\n{\"set\": {" + vtis + R"(, "key": "Vxlan1", "value": {}, §"key": "Vxlan2"}},)" + "\n" + vti +
                 R"("udpPort", "value": 4789}})",
              "s.json:§: event 1, /set/key: this key stands twice in the object" ),
      member( "state that couldn't be set",
              R"("state": {"interface/status/eth/vxlan": {"vtiStatus": {"Vxlan1": {"udpPort": §-1}}}},)"
              "\n\"events\": [" +
                 vti + R"("udpPort", "value": 4789}}])",
              "s.json:§: /state/interface~1status~1eth~1vxlan/vtiStatus/Vxlan1/udpPort: expected a number from 0 to "
              "65535, got -1" ),
   } );
}

TEST( WrongEvents, areNotToldWithoutAnEnd ) {
   std::string list;
   std::string lines;
   for ( int event = 1; event <= 100; ++event ) {
      list += event == 1 ? "§{}" : ",\n§{}";
      if ( event <= 20 ) {
         lines += ( event == 1 ? "" : "\n" ) + std::string( "s.json:§: event " ) + std::to_string( event );
         lines +=
            ": an event is {\"set\": {...}}, {\"delete\": {...}}, {\"transaction\": [...]}, or {\"fault\": {...}}";
      }
   }
   expectTold( { events( "a hundred", list, lines + "\n... and 80 more" ) } );
}

} // namespace
