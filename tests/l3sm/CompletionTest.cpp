// What can follow on a line that is being typed: as the program says it, and as the shells offer it.
#include "BuildFolder.h"
#include "l3sm/Command.h"
#include "l3sm/Completions.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

TEST( Completion, offersEveryVerb ) {
   Names expected;
   for ( auto const * option : Cli::optionsOf( everything() ) ) {
      expected.insert( "--" + option->get_lnames().front() );
   }
   EXPECT_TRUE( expected.contains( "--version" ) );
   for ( auto const * verb : Cli::verbsOf( everything() ) ) {
      expected.insert( verb->get_name() );
   }
   EXPECT_GE( expected.size(), 14u );
   EXPECT_EQ( completions( { "l3sm", "" } ), expected );
   EXPECT_EQ( completions( { "l3sm", "cat" } ), Names{ "catalogue" } );
   EXPECT_EQ( completions( { "l3sm", "help", "cat" } ), Names{ "catalogue" } );
}

TEST( Completion, isItselfNotOffered ) {
   EXPECT_FALSE( completions( { "l3sm", "" } ).contains( "complete" ) );
   EXPECT_EQ( Command( "--help" ).output.find( "complete" ), std::string::npos );
}

TEST( Completion, offersEveryOptionOfAVerb ) {
   for ( auto const * verb : Cli::verbsOf( everything() ) ) {
      Names expected;
      for ( auto const * option : Cli::optionsOf( *verb ) ) {
         expected.insert( "--" + option->get_lnames().front() );
      }
      EXPECT_EQ( completions( { "l3sm", verb->get_name(), "--" } ), expected ) << verb->get_name();
   }
}

// A verb that declares a value of a new kind says in Candidates.cpp what can stand there.
TEST( Completion, knowsWhatCanStandInThePlaceOfEveryValue ) {
   for ( auto const * verb : Cli::verbsOf( everything() ) ) {
      auto all = Cli::optionsOf( *verb );
      auto const places = Cli::placesOf( *verb );
      all.insert( all.end(), places.begin(), places.end() );
      for ( auto const * option : all ) {
         if ( Cli::takesValue( *option ) ) {
            EXPECT_NE( Cli::placeOf( *option ), "" ) << verb->get_name() << ' ' << option->get_name( true, true );
         }
      }
   }
}

TEST( Completion, offersAnOptionOnceUnlessItMayBeRepeated ) {
   EXPECT_FALSE( completions( { "l3sm", "run", "--quiet", "--q" } ).contains( "--quiet" ) );
   EXPECT_FALSE( completions( { "l3sm", "report", "j", "-o", "p", "--o" } ).contains( "--out" ) );
   EXPECT_TRUE( completions( { "l3sm", "catalogue", "--journal", "j", "--j" } ).contains( "--journal" ) );
   EXPECT_TRUE( completions( { "l3sm", "run", "--toggle", "t", "--to" } ).contains( "--toggle" ) );
}

TEST( Completion, goesOnBehindAnOptionWithItsValue ) {
   EXPECT_EQ( completions( { "l3sm", "run", "--chips", "c", "--qui" } ), Names{ "--quiet" } );
   EXPECT_EQ( completions( { "l3sm", "run", "--chips", "c", "" } ), Names{ ":files" } ); // the scenario
   EXPECT_EQ( completions( { "l3sm", "run", "--fly", "--qui" } ), Names{ "--quiet" } );
}

TEST( Completion, offersTablesFieldsAndControls ) {
   EXPECT_EQ( completions( { "l3sm", "catalogue", "IppdFer" } ), Names{ "IppdFerTrapCfg" } );
   EXPECT_EQ( completions( { "l3sm", "show", "chips.json", "IppdFerTrapCfg", "IppdFer" } ), Names{ "IppdFerTrapCfg" } );
   EXPECT_EQ( completions( { "l3sm", "diff", "a", "b", "--table", "IppdFer" } ), Names{ "IppdFerTrapCfg" } );
   EXPECT_EQ( completions( { "l3sm", "why", "run.jsonl", "IppdFerTrapCfg.cpu" } ),
              ( Names{ "IppdFerTrapCfg.cpuSnoopCodeN", "IppdFerTrapCfg.cpuStrengthN" } ) );
   EXPECT_EQ( completions( { "l3sm", "why", "run.jsonl", "contr" } ), ( Names{ "control.", ":open" } ) );
   EXPECT_TRUE( completions( { "l3sm", "why", "run.jsonl", "control.6" } ).contains( "control.64" ) );
}

TEST( Completion, offersPathsAndTheirAttributes ) {
   EXPECT_EQ( completions( { "l3sm", "paths", "evpn/" } ), ( Names{ "evpn/status" } ) );
   EXPECT_EQ( completions( { "l3sm", "paths", "evpn/status/e" } ), ( Names{ "evpn/status/evpnDciEnabled" } ) );
   EXPECT_EQ( completions( { "l3sm", "paths", "interface/status/eth/vxlan/vtiStatus/Vxlan1/sec" } ),
              ( Names{ "interface/status/eth/vxlan/vtiStatus/Vxlan1/secUdpPort" } ) );
   EXPECT_TRUE(
      completions( { "l3sm", "why", "run.jsonl", "routing/hardware/" } ).contains( "routing/hardware/config" ) );
   EXPECT_EQ( completions( { "l3sm", "why", "run.jsonl", "evpn/status.e" } ), Names{ "evpn/status.evpnDciEnabled" } );
   EXPECT_EQ( completions( { "l3sm", "why", "run.jsonl", "L3Sm::handleEvpnD" } ),
              Names{ "L3Sm::handleEvpnDciGateway" } );
}

TEST( Completion, offersTogglesWithBothStates ) {
   EXPECT_EQ( completions( { "l3sm", "run", "--toggle", "Dace.json:Arm" } ),
              ( Names{ "Dace.json:ArmOrderedSwTable=off", "Dace.json:ArmOrderedSwTable=on" } ) );
   EXPECT_EQ( completions( { "l3sm", "run", "--toggle=Velo" } ),
              ( Names{ "--toggle=VeloroSAI.json:VeloroSAIMode=off", "--toggle=VeloroSAI.json:VeloroSAIMode=on" } ) );
}

TEST( Completion, offersFacilitiesAndTheLevelsOnWhichTheyTellSomething ) {
   EXPECT_EQ( completions( { "l3sm", "run", "--trace", "DaceFapNiMpls" } ),
              ( Names{ "DaceFapNiMplsParser/", ":open" } ) );
   EXPECT_EQ( completions( { "l3sm", "run", "--trace", "DaceFapNiMplsParser/" } ), Names{ "DaceFapNiMplsParser/0" } );
   EXPECT_EQ( completions( { "l3sm", "run", "--trace", "*/9,DaceFapNiMplsParser/" } ),
              Names{ "*/9,DaceFapNiMplsParser/0" } );
   EXPECT_EQ( completions( { "l3sm", "facilities", "DaceFapNiMpls" } ), Names{ "DaceFapNiMplsParser" } );
}

TEST( Completion, offersChips ) {
   EXPECT_EQ( completions( { "l3sm", "catalogue", "--chip", "BCM8848" } ), ( Names{ "BCM88480_A0", "BCM88480_B0" } ) );
}

TEST( Completion, offersWhatAnEventCanBeCalled ) {
   EXPECT_EQ( completions( { "l3sm", "run", "--event", "" } ), ( Names{ "all", "last" } ) );
}

TEST( Completion, offersTheCausesOfOperations ) {
   EXPECT_EQ( completions( { "l3sm", "why", "run.jsonl", "IppdFerTrapCfg", "--cause", "evpn/status e" } ),
              Names{ "evpn/status evpnDciEnabled" } );
   EXPECT_EQ( completions( { "l3sm", "why", "run.jsonl", "IppdFerTrapCfg", "--cause", "chip" } ),
              Names{ "chip-init" } );
   EXPECT_EQ( completions( { "l3sm", "why", "run.jsonl", "IppdFerTrapCfg", "--cause", "star" } ), Names{ "start" } );
}

TEST( Completion, offersTheSubjectsOfANewScenarioOneBehindTheOther ) {
   EXPECT_EQ( completions( { "l3sm", "new", "--with", "v" } ), ( Names{ "vti", "vxlan" } ) );
   EXPECT_EQ( completions( { "l3sm", "new", "--with", "qos,urpf,ev" } ), Names{ "qos,urpf,evpn" } );
   EXPECT_EQ( completions( { "l3sm", "new", "--with=qos,ev" } ), Names{ "--with=qos,evpn" } );
}

TEST( Completion, leavesFilesToTheShell ) {
   EXPECT_EQ( completions( { "l3sm", "run", "" } ), Names{ ":files" } );
   EXPECT_EQ( completions( { "l3sm", "run", "s.json", "--plugin", "" } ), Names{ ":files" } );
   EXPECT_EQ( completions( { "l3sm", "run", "s.json", "" } ), Names{} );
}

TEST( Completion, hasNothingToSayOfWhatItDoesNotKnow ) {
   EXPECT_EQ( completions( { "l3sm" } ), Names{} );
   EXPECT_EQ( completions( { "l3sm", "fly", "" } ), Names{} );
   EXPECT_EQ( completions( { "l3sm", "why", "run.jsonl", "x", "--fap", "" } ), Names{} );
   EXPECT_EQ( completions( { "l3sm", "run", "--quiet=" } ), Names{} );
   EXPECT_EQ( completions( { "l3sm", "run", "--fly=" } ), Names{} );
}

// ---- the shells

// Runs a shell's script, where the program can be found and `line` is what is being typed.
Names inShell( std::string const & shell, std::string const & script, std::string const & line, Command::Files files ) {
   files["script"] = script;
   Command const run( "--help > /dev/null; PATH='" + buildFolder() + "/bin':$PATH " + shell + " script '" +
                         std::string( L3SM_SOURCE_DIR "/completions" ) + "' '" + line + "'",
                      files );
   EXPECT_EQ( run.errors, "" );
   Names lines = choicesOf( run.output );
   lines.erase( "script" );
   return lines;
}

bool hasShell( std::string const & name ) {
   return std::system( ( "command -v " + name + " > /dev/null" ).c_str() ) == 0;
}

Names inBash( std::string const & line, Command::Files const & files = {} ) {
   return inShell( "bash",
                   R"(source "$1/l3sm.bash"
COMP_LINE=$2
COMP_POINT=${#COMP_LINE}
_l3sm l3sm
printf '%s\n' "${COMPREPLY[@]}")",
                   line,
                   files );
}

TEST( CompletionInBash, offersWhatTheProgramSays ) {
   EXPECT_EQ( inBash( "l3sm cat" ), Names{ "catalogue" } );
   EXPECT_EQ( inBash( "l3sm run --q" ), Names{ "--quiet" } );
   EXPECT_EQ( inBash( "l3sm catalogue --chip BCM8848" ), ( Names{ "BCM88480_A0", "BCM88480_B0" } ) );
}

// Readline takes what follows the last colon or equals sign for the word.
TEST( CompletionInBash, leavesOutWhatStandsBeforeAColonAlready ) {
   EXPECT_EQ( inBash( "l3sm run --toggle Dace.json:Arm" ),
              ( Names{ "ArmOrderedSwTable=off", "ArmOrderedSwTable=on" } ) );
   EXPECT_EQ( inBash( "l3sm run --toggle Dace.json:ArmOrderedSwTable=o" ), ( Names{ "off", "on" } ) );
   EXPECT_EQ( inBash( "l3sm why j L3Sm::handleEvpnD" ), Names{ "handleEvpnDciGateway" } );
}

TEST( CompletionInBash, offersFiles ) {
   EXPECT_EQ( inBash( "l3sm show ch", { { "chips.json", "" }, { "run.jsonl", "" } } ), Names{ "chips.json" } );
   EXPECT_EQ( inBash( "l3sm run x.json --plugin p", { { "plugin.so", "" } } ), Names{ "plugin.so" } );
   EXPECT_EQ( inBash( "l3sm run --chips=ch", { { "chips.json", "" } } ), Names{ "chips.json" } );
}

TEST( CompletionInFish, offersWhatTheProgramSays ) {
   if ( !hasShell( "fish" ) ) {
      GTEST_SKIP() << "left out: fish is missing";
   }
   auto const inFish = []( std::string const & line, Command::Files const & files = {} ) {
      return inShell( "fish --no-config", "source $argv[1]/l3sm.fish\ncomplete -C $argv[2]", line, files );
   };
   EXPECT_EQ( inFish( "l3sm cat" ), Names{ "catalogue" } );
   EXPECT_EQ( inFish( "l3sm run --q" ), Names{ "--quiet" } );
   EXPECT_EQ( inFish( "l3sm run --toggle Dace.json:Arm" ),
              ( Names{ "Dace.json:ArmOrderedSwTable=off", "Dace.json:ArmOrderedSwTable=on" } ) );
   EXPECT_EQ( inFish( "l3sm show ch", { { "chips.json", "" }, { "run.jsonl", "" } } ), Names{ "chips.json" } );
}

// A terminal of its own, in which a tab is typed: zsh completes on a line that is edited, and nowhere else. What the
// line has become is asked of the editor, behind a second key: on the screen an echo can stand beside it.
std::string inZsh( std::string const & line, Command::Files const & files = {} ) {
   auto const lines = inShell( "zsh -f",
                               R"(zmodload zsh/zpty
zpty shell zsh -f -i
typed() { zpty -w shell "$1" }
typed 'fpath=('$1' $fpath); autoload -Uz compinit; compinit -u -d ./dump; bindkey "^I" complete-word'
typed 'tell() { print -r -- $BUFFER > ./line; print to""ld }; zle -N tell; bindkey "^T" tell; print re""ady'
zpty -r shell out '*ready*'
zpty -n -w shell "$2"$'\t\x14'
zpty -r shell out '*told*'
sed 's/ *$//' ./line)",
                               line,
                               files );
   return lines.empty() ? "" : *lines.begin();
}

TEST( CompletionInZsh, offersWhatTheProgramSays ) {
   if ( !hasShell( "zsh" ) ) {
      GTEST_SKIP() << "left out: zsh is missing";
   }
   EXPECT_EQ( inZsh( "l3sm cat" ), "l3sm catalogue" );
   EXPECT_EQ( inZsh( "l3sm run --q" ), "l3sm run --quiet" );
   EXPECT_EQ( inZsh( "l3sm catalogue --chip BCM8848" ), "l3sm catalogue --chip BCM88480_" ); // of two
   EXPECT_EQ( inZsh( "l3sm paths evpn/status/evpnD" ), "l3sm paths evpn/status/evpnDciEnabled" );
   EXPECT_EQ( inZsh( "l3sm show ch", { { "chips.json", "" }, { "run.jsonl", "" } } ), "l3sm show chips.json" );
}

} // namespace
