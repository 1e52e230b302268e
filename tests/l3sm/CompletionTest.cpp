// The completion and the manual page know every verb and every option that the program has.
#include "l3sm/Command.h"

#include <gtest/gtest.h>
#include <regex>
#include <set>

namespace {

namespace fs = std::filesystem;

using Names = std::set< std::string >;

fs::path const source = L3SM_SOURCE_DIR;

Names matches( std::string const & text, char const * pattern ) {
   std::regex const name( pattern, std::regex::multiline );
   Names all;
   for ( std::sregex_iterator it( text.begin(), text.end(), name ), end; it != end; ++it ) {
      all.insert( ( *it )[1] );
   }
   return all;
}

std::string helpOf( std::string const & verb ) {
   Command const l3sm( verb + " --help" );
   EXPECT_EQ( l3sm.status, 0 );
   return l3sm.output;
}

Names const & verbs() {
   static Names const all = [] {
      std::string const help = helpOf( "" );
      return matches( help.substr( help.find( "Subcommands:" ) ), "^  ([a-z]+) " );
   }();
   return all;
}

Names optionsOf( std::string const & verb ) {
   return matches( helpOf( verb ), "^  (?:-[a-z],)?(--[a-z-]+)" );
}

// Those that take a value.
Names valuesOf( std::string const & verb ) {
   return matches( helpOf( verb ), "^  (?:-[a-z],)?(--[a-z-]+) [A-Z]" );
}

// What is offered for the last of the words.
Names completions( std::string const & words, Command::Files const & files = {} ) {
   std::string const script =
      "source '" + ( source / "completions/l3sm.bash" ).string() + "'; COMP_WORDS=(" + words +
      "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _l3sm \"$0\"; printf '%s\\n' \"${COMPREPLY[@]}\"";
   // Through the program's own line: it names itself, and bash follows.
   Command const bash( "--help >/dev/null; bash -c '" + std::regex_replace( script, std::regex( "'" ), "'\\''" ) +
                          "' '" L3SM_BINARY_DIR "/bin/l3sm'",
                       files );
   EXPECT_EQ( bash.errors, "" );
   return matches( bash.output, "^(.+)$" );
}

TEST( Completion, offersEveryVerb ) {
   Names expected = verbs();
   EXPECT_GE( expected.size(), 9u );
   expected.insert( { "--help", "--version" } );
   EXPECT_EQ( completions( "l3sm ''" ), expected );
   EXPECT_EQ( completions( "l3sm ca" ), Names{ "catalogue" } );
}

TEST( Completion, offersEveryOption ) {
   for ( std::string const & verb : verbs() ) {
      EXPECT_EQ( completions( "l3sm " + verb + " --" ), optionsOf( verb ) ) << verb;
   }
}

TEST( Completion, knowsWhatEveryOptionTakes ) {
   std::string const script = contentsOf( source / "completions/l3sm.bash" );
   Names const known = matches( script.substr( script.find( "case $previous" ) ), "[ |](--[a-z-]+)(?= ?[|)])" );
   for ( std::string const & verb : verbs() ) {
      for ( std::string const & option : valuesOf( verb ) ) {
         EXPECT_TRUE( known.contains( option ) ) << verb << ' ' << option;
      }
   }
}

TEST( Completion, offersTablesFieldsChipsAndFiles ) {
   EXPECT_EQ( completions( "l3sm catalogue IppdFer" ), Names{ "IppdFerTrapCfg" } );
   EXPECT_EQ( completions( "l3sm diff a b --table IppdFer" ), Names{ "IppdFerTrapCfg" } );
   EXPECT_EQ( completions( "l3sm why run.jsonl IppdFerTrapCfg.cpu" ),
              ( Names{ "IppdFerTrapCfg.cpuSnoopCodeN", "IppdFerTrapCfg.cpuStrengthN" } ) );
   EXPECT_EQ( completions( "l3sm catalogue --chip BCM8848" ), ( Names{ "BCM88480_A0", "BCM88480_B0" } ) );
   EXPECT_EQ( completions( "l3sm show ch", { { "chips.json", "" }, { "run.jsonl", "" } } ), Names{ "chips.json" } );
   EXPECT_EQ( completions( "l3sm run x.json --plugin p", { { "plugin.so", "" } } ), Names{ "plugin.so" } );
}

// ---- the manual page

// What the page says of each verb, without its marks.
std::map< std::string, std::string > manualByVerb() {
   std::istringstream lines( contentsOf( source / "docs/l3sm.1" ) );
   std::map< std::string, std::string > said;
   std::regex const verb( R"(\.BR? ([a-z]+)( ".*)?)" );
   std::regex const marks( R"(\\f[A-Z]|^\.[A-Z]+ )" );
   std::string current;
   bool areVerbs = false;
   for ( std::string line; std::getline( lines, line ); ) {
      if ( line.starts_with( ".SH" ) ) {
         areVerbs = line == ".SH VERBS";
      }
      if ( !areVerbs ) {
         continue;
      }
      std::smatch found;
      if ( std::regex_match( line, found, verb ) && verbs().contains( found[1] ) ) {
         current = found[1];
      }
      line = std::regex_replace( line, marks, "" );
      said[current] += std::regex_replace( line, std::regex( R"(\\-)" ), "-" ) + "\n";
   }
   return said;
}

TEST( Manual, hasEveryVerbAndItsOptions ) {
   auto const said = manualByVerb();
   Names const common{ "--help", "--json", "--no-pager" }; // said once, of all
   for ( std::string const & verb : verbs() ) {
      ASSERT_TRUE( said.contains( verb ) ) << verb;
      Names known = matches( said.at( verb ), "(--[a-z]+(?:-[a-z]+)*)" );
      known.insert( common.begin(), common.end() );
      Names expected = optionsOf( verb );
      expected.insert( common.begin(), common.end() );
      EXPECT_EQ( known, expected ) << verb;
   }
}

} // namespace
