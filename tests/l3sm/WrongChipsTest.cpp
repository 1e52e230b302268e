// Chip contents that a chip has no place for, in a scenario and in a file of `--chips`.
#include "l3sm/WrongInput.h"

namespace {

// What stands below "0" from line 2, column 16 on.
WrongInput chips( char const * what, std::string const & contents, std::string const & lines ) {
   return member( what, R"("chips": {"0": )" + contents + "}", lines );
}

TEST( WrongChips, inAScenario ) {
   std::string const place = "/chips/0/IppdFerTrapCfg";
   expectTold( {
      member( "a FAP that isn't there", R"("chips": {§"7": {}})", "s.json:§: /chips/7: the switch has no such FAP" ),
      member( "a FAP that is none",
              R"("chips": {§"first": {}})",
              "s.json:§: /chips/first: expected a key from 0 to 65535, got \"first\"" ),
      chips( "a misspelt table",
             R"({§"IppdFerTrapCgf": {}})",
             "s.json:§: /chips/0/IppdFerTrapCgf: no table has this name; did you mean \"IppdFerTrapCfg\"?" ),
      chips( "a table like no other",
             R"({§"Wanted": {}})",
             "s.json:§: /chips/0/Wanted: no table has this name; `l3sm catalogue` lists them" ),
      chips( "a format",
             R"({§"FfcInstruction": {}})",
             "s.json:§: /chips/0/FfcInstruction: this is a format, which has no memory of its own" ),
      chips( "a table of other chips",
             R"({§"IppdInLifProfileMap": {}})",
             "s.json:§: /chips/0/IppdInLifProfileMap: the BCM88690_B0 has no such table" ),
      chips( "a variant that isn't there",
             R"({"IppdFerTrapCfg": {§"1": {}}})",
             "s.json:§: " + place + "/1: no such variant; there is only 0" ),
      chips( "an array index that isn't there",
             R"({"IppdFerTrapCfg": {"0": {§"8": {}}}})",
             "s.json:§: " + place + "/0/8: no such array index; there is 0 to 7" ),
      chips( "an entry that isn't there",
             R"({"IppdFerTrapCfg": {"0": {"3": {§"1": {"words": ["0x1"]}}}}})",
             "s.json:§: " + place + "/0/3/1: no such entry; there is only 0" ),
      chips( "too many words",
             R"({"IppdFerTrapCfg": {"0": {"3": {"0": {"words": §["0x1", "0x2"]}}}}})",
             "s.json:§: " + place + "/0/3/0/words: an entry has 1 words, not 2" ),
      chips( "a word that is none",
             R"({"IppdFerTrapCfg": {"0": {"3": {"0": {"words": [§"12"]}}}}})",
             "s.json:§: " + place + "/0/3/0/words/0: expected a word like \"0x00000a00\", got \"12\"" ),
      chips( "no words",
             R"({"IppdFerTrapCfg": {"0": {"3": {"0": §{}}}}})",
             "s.json:§: " + place + "/0/3/0: an entry has either \"words\" or \"instances\"" ),
      chips( "one instance",
             R"({"IppdFerTrapCfg": {"0": {"3": {"0": {"instances": §{"0": ["0x1"]}}}}}})",
             "s.json:§: " + place +
                "/0/3/0/instances: instances are two or more: give \"words\" where all hold the same" ),
      chips( "tables and more",
             R"({"tables": {}, §"contrls": {}})",
             "s.json:§: /chips/0/contrls: this key means nothing here; did you mean \"controls\"?" ),
      chips( "controls that are none",
             R"({"controls": {"64": §-1, §"x": 0}})",
             "s.json:§: /chips/0/controls/64: expected a number from 0 to 4294967295, got -1\n"
             "s.json:§: /chips/0/controls/x: expected a key from 0 to 4294967295, got \"x\"" ),
   } );
}

TEST( WrongChips, inAFile ) {
   auto const file = []( char const * what, std::string const & text, std::string const & lines ) {
      return WrongInput{ what, "show c.json", { { "c.json", text } }, lines };
   };
   expectTold( {
      file( "another file",
            R"({"switch": {}})",
            "c.json: is a scenario, no chips file; `l3sm run --chips FILE` writes one" ),
      file( "an unknown part",
            R"({"faps": {}, §"more": 1})",
            "c.json:§: /more: this key means nothing here; there may be faps" ),
      file( "chips that are cut",
            R"({"faps": {)"
            "\n§",
            "c.json:§: syntax error while parsing object key - unexpected end of input; expected string literal" ),
      file( "no chip type", R"({"faps": {"0": §{}}})", "c.json:§: /faps/0: \"chipType\" is missing" ),
      file(
         "an unknown chip type, and what is wrong elsewhere",
         "{\"faps\": {\"0\": {\"chipType\": §\"BCM9\"},\n\"1\": {\"chipType\": \"BCM88690_B0\", \"tables\": {§\"X\": "
         "{}}}}}",
         "c.json:§: /faps/0/chipType: there is no chip type \"BCM9\"; there are BCM88690_B0, BCM88800_A0, "
         "BCM88850_A0, BCM88859_A2, BCM88480_A0, BCM88480_B0\n"
         "c.json:§: /faps/1/tables/X: no table has this name; `l3sm catalogue` lists them" ),
   } );
}

} // namespace
