// What can be wrong on the command line: verbs, options, files to write, libraries, toggles and traces.
#include "l3sm/WrongInput.h"

namespace {

TEST( WrongCommand, verbsAndOptionsThatThereAreNot ) {
   expectTold( {
      { "nothing", "", {}, "say what to do; l3sm --help lists the verbs" },
      { "a misspelt verb", "rnu", {}, "there is no verb \"rnu\"; did you mean \"run\"?" },
      { "a verb like no other", "fly", {}, "there is no verb \"fly\"; l3sm --help lists them" },
      { "an unknown option",
        "run --fast",
        {},
        "The following argument was not expected: --fast; l3sm run --help tells what there is" },
      { "a second scenario",
        "run a.json b.json",
        {},
        "The following argument was not expected: b.json; l3sm run --help tells what there is" },
      { "an option without its value",
        "run --chips",
        {},
        "--chips: 1 required FILE missing; l3sm run --help tells what there is" },
      { "a word where a number is meant",
        "show c.json --fap first",
        {},
        "Could not convert: --fap = first; l3sm show --help tells what there is" },
      { "two ways to print", "run --quiet --json", {}, "--quiet prints nothing and --json does; give one of them" },
      { "a way to meet a drift that there is not",
        "serve s.json --on-drift stop",
        { { "s.json", scenarioWith( "" ) } },
        "--on-drift: expected commit or hold, got \"stop\"" },
      { "a journal for no table",
        "catalogue --journal j",
        {},
        "--journal tells which functions touch a table; name the table" },
   } );
}

TEST( WrongCommand, emptyNames ) {
   std::vector< WrongInput > table;
   for ( char const * option : { "--chips",
                                 "--journal",
                                 "--state",
                                 "--save",
                                 "--report",
                                 "--trace",
                                 "--trace-out",
                                 "--ring",
                                 "--plugin",
                                 "--toggle" } ) {
      table.push_back( { option,
                         std::string( "run " ) + option + " ''",
                         {},
                         std::string( option ) + ": an empty name is none; l3sm run --help tells what there is" } );
   }
   table.push_back(
      { "a scenario", "run ''", {}, "scenario: an empty name is none; l3sm run --help tells what there is" } );
   table.push_back(
      { "a chips file", "show ''", {}, "FILE: an empty name is none; l3sm show --help tells what there is" } );
   expectTold( table );
}

TEST( WrongCommand, filesThatCannotBeRead ) {
   expectTold( {
      { "a file that isn't there", "run nowhere.json", {}, "nowhere.json: can't be read: No such file or directory" },
      { "a folder", "run .", {}, ".: can't be read: Is a directory" },
      { "below a file", "run s/s.json", { { "s", "" } }, "s/s.json: can't be read: Not a directory" },
      { "chips that aren't there", "show nowhere.json", {}, "nowhere.json: can't be read: No such file or directory" },
      { "a journal as a scenario",
        "run j",
        { { "j", "{\"op\": \"read\"}\n{\"op\": \"write\"}\n" } },
        "j: is a journal, no scenario; `l3sm new` writes one" },
      { "chips as a scenario",
        "run c",
        { { "c", "{\"faps\": {}}" } },
        "c: is a chips file, no scenario; `l3sm new` writes one" },
      { "state as a scenario",
        "check s",
        { { "s", "{\"evpn/status\": {}}" } },
        "s: is a state file, no scenario; `l3sm new` writes one" },
      { "a page as a scenario",
        "compare p",
        { { "p", "<html>" } },
        "p: is a page for a browser, no scenario; `l3sm new` writes one" },
   } );
}

TEST( WrongCommand, filesThatCannotBeWritten ) {
   expectTold( {
      { "a folder that isn't there",
        "run --chips no/where.json",
        {},
        "no/where.json: can't be written: No such file or directory" },
      { "a journal there", "run --journal no/where", {}, "no/where: can't be written: No such file or directory" },
      { "a folder", "run --state .", {}, ".: can't be written: Is a directory" },
      { "a saved scenario there", "run --save no/where", {}, "no/where: can't be written: No such file or directory" },
      { "traces there",
        "run --trace '*/1' --trace-out no/where",
        {},
        "no/where: can't be written: No such file or directory" },
      { "where nobody writes",
        "run --journal /proc/none",
        {},
        "/proc/none: can't be written: No such file or directory" },
   } );
   for ( char const * option :
         { "--chips", "--state", "--save", "--journal", "--report", "--ring", "--trace '*/9' --trace-out" } ) {
      expectTold( { { "a full disk",
                      std::string( "run --quiet " ) + option + " /dev/full",
                      {},
                      "/dev/full: can't be written: No space left on device" } } );
   }
   Command const l3sm( "catalogue 2>told >/dev/full; echo $?" );
   EXPECT_EQ( l3sm.output, "2\n" );
   EXPECT_EQ( l3sm.file( "told" ), "l3sm: standard output can't be written\n" );
}

TEST( WrongCommand, filesThatAreNamedTwice ) {
   std::string const text = R"({"switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0"}}]}})";
   expectTold( {
      { "two outputs",
        "run --chips same --journal same",
        {},
        "same: is named twice; give each file a name of its own" },
      { "two ways to say it",
        "run --save same --state ./same",
        {},
        "same: is named twice; give each file a name of its own" },
      { "standard output",
        "run --quiet --chips - --state -",
        {},
        "standard output: is named twice; give each file a name of its own" },
      { "the scenario",
        "run s.json --save s.json",
        { { "s.json", text } },
        "s.json: is named twice; give each file a name of its own" },
      { "standard output and the summary",
        "run --chips -",
        {},
        "standard output: would take the summary, too; give --quiet" },
      { "standard output and the answer",
        "run --json --state -",
        {},
        "standard output: would take the summary, too; give --quiet" },
   } );
   Command const l3sm( "run s.json --chips ./s.json", { { "s.json", text } } );
   EXPECT_EQ( l3sm.errors, "l3sm: ./s.json: is named twice; give each file a name of its own\n" );
   EXPECT_EQ( l3sm.file( "s.json" ), text );
   EXPECT_EQ( Command( "run --quiet --chips /dev/null --journal /dev/null" ).status, 0 );
}

TEST( WrongCommand, togglesThatThereAreNot ) {
   std::string const form = ": expected FILE:NAME=on or FILE:NAME=off, as in Dace.json:ArmOrderedSwTable=off";
   std::vector< WrongInput > table;
   for ( char const * verb : { "run", "run --quiet", "check", "compare" } ) {
      table.push_back(
         { verb,
           std::string( verb ) + " --toggle Dace.json:ArmOrderedSwTabel=off",
           {},
           "--toggle Dace.json:ArmOrderedSwTabel=off: there is no such toggle; did you mean \"ArmOrderedSwTable\"?" } );
   }
   for ( char const * text : { "Dace.json:ArmOrderedSwTable",
                               "Dace.json:ArmOrderedSwTable=",
                               "Dace.json=off",
                               ":X=on",
                               "Dace.json:=on",
                               "Dace.json:ArmOrderedSwTable=true" } ) {
      table.push_back( { text, std::string( "run --toggle " ) + text, {}, std::string( "--toggle " ) + text + form } );
   }
   table.push_back( { "another file",
                      "run --toggle Dace.json:VeloroSAIMode=off",
                      {},
                      "--toggle Dace.json:VeloroSAIMode=off: this toggle is read from VeloroSAI.json" } );
   expectTold( table );
}

TEST( WrongCommand, tracesThatThereAreNot ) {
   std::string const all =
      "AleVxlanVtiStatusDirSm, AsicUtilsDaceFapNiPluginL3UnicastMetaInfo, DaceFapNiGueNexthopGroupSm, "
      "DaceFapNiL3Sm, DaceFapNiL3Vxlan, DaceFapNiMplsParser, DaceFapNiRemFfcModifierSm, "
      "FfcModifierSm, L3SmMounterDaceFapNi";
   std::string const form = ": expected FACILITY/LEVEL with a level from 0 to 9, as in DaceFapNiL3Sm/8";
   expectTold( {
      { "no level", "run --trace DaceFapNiL3Sm", {}, "--trace DaceFapNiL3Sm" + form },
      { "a level too high", "run --trace DaceFapNiL3Sm/10", {}, "--trace DaceFapNiL3Sm/10" + form },
      { "no facility", "run --trace /5", {}, "--trace /5" + form },
      { "a misspelt facility",
        "run --trace DaceFapNiL3Sn/8",
        {},
        "--trace DaceFapNiL3Sn: no such facility; did you mean \"DaceFapNiL3Sm\"?" },
      { "facilities like no other, and some that there are",
        "run --trace 'NOPE/5,*/1,DaceFapNiL3Sm/2,None/1'",
        {},
        "--trace NOPE: no such facility; there are " + all + "\n--trace None: no such facility; there are " + all },
   } );
}

TEST( WrongCommand, librariesThatAreNoPlugin ) {
   std::string const remedy = "; name the plug-in's library with --plugin PATH";
   expectTold( {
      { "a file that isn't there",
        "run --plugin ./none.so",
        {},
        "--plugin: ./none.so: cannot open shared object file: No such file or directory" + remedy },
      { "a text", "run --plugin ./s.so", { { "s.so", "text" } }, "--plugin: ./s.so: file too short" + remedy },
      { "another library", "run --plugin libm.so.6", {}, "--plugin: libm.so.6 registers no plug-in" + remedy },
      { "before the scenario is looked at",
        "check s.json --plugin libm.so.6",
        { { "s.json", "{" } },
        "--plugin: libm.so.6 registers no plug-in" + remedy },
   } );
}

} // namespace
