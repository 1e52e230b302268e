// The manual page's part on verbs is made from what the program declares; ./dev golden writes it anew. The pages as a
// whole are well formed.
#include "l3sm/Command.h"
#include "l3sm/CommandLine.h"
#include "l3sm/Completion.h"

#include <CLI/CLI.hpp>
#include <gtest/gtest.h>
#include <regex>

namespace {

namespace fs = std::filesystem;

fs::path const docs = L3SM_SOURCE_DIR "/docs";

// A text as roff takes it: no command at the beginning of a line, no quote that ends an argument.
std::string roff( std::string const & text ) {
   std::string out = std::regex_replace( text, std::regex( R"(\\)" ), R"(\e)" );
   out = std::regex_replace( out, std::regex( "-" ), R"(\-)" );
   out = std::regex_replace( out, std::regex( "`([^`]*)`" ), R"(\fB$1\fR)" );
   return out.starts_with( "." ) || out.starts_with( "'" ) ? R"(\&)" + out : out;
}

std::string sentence( std::string text ) {
   text[0] = static_cast< char >( std::toupper( static_cast< unsigned char >( text[0] ) ) );
   return roff( text ) + ( text.ends_with( '.' ) ? "\n" : ".\n" );
}

std::string places( CLI::App const & verb ) {
   std::string text;
   for ( auto const * place : Cli::placesOf( verb ) ) {
      std::string const type = place->get_type_name();
      std::string const name = type == "TEXT" || type.empty() ? place->get_name( true ) : type;
      bool const isMany = place->get_items_expected_max() > 1;
      std::string const word = R"(\fI)" + roff( name ) + R"(\fR)" + ( isMany ? "..." : "" );
      text += place->get_required() ? " " + word : " [" + word + "]";
   }
   return text;
}

std::string verbsSection() {
   CLI::App app;
   std::function< int() > action;
   Cli::defineCommandLine( app, action );
   std::string text;
   for ( auto const * verb : Cli::verbsOf( app ) ) {
      text += ".TP\n\\fB" + verb->get_name() + "\\fR" + places( *verb ) + "\n" + sentence( verb->get_description() );
      text += ".RS\n";
      for ( auto const * place : Cli::placesOf( *verb ) ) {
         std::string const type = place->get_type_name();
         std::string const name = type == "TEXT" || type.empty() ? place->get_name( true ) : type;
         text += ".TP\n\\fI" + roff( name ) + "\\fR\n" + sentence( place->get_description() );
      }
      for ( auto const * option : Cli::optionsOf( *verb ) ) {
         std::string const name = option->get_lnames().front();
         if ( name == "help" ) {
            continue;
         }
         std::string const type = option->get_type_name();
         std::string const letter = option->get_snames().empty() ? "" : "-" + option->get_snames().front() + ", ";
         text += ".TP\n\\fB" + roff( letter + "--" + name ) + "\\fR";
         text += Cli::takesValue( *option ) ? " \\fI" +
                                                 roff( type == "TEXT"                    ? "NAME"
                                                       : type == "UINT" || type == "INT" ? "N"
                                                                                         : type ) +
                                                 "\\fR"
                                            : "";
         text += "\n" + sentence( option->get_description() );
      }
      text += ".RE\n";
   }
   return text;
}

TEST( ManualGolden, tellsOfEveryVerbAndOptionWhatTheProgramDoes ) {
   fs::path const page = docs / "l3sm.1";
   std::string const before = contentsOf( page );
   std::string const begin = ".SH VERBS\n";
   auto const from = before.find( begin ) + begin.size();
   auto const to = before.find( ".SH EXIT STATUS\n" );
   ASSERT_LT( from, to );
   std::string const after = before.substr( 0, from ) + verbsSection() + before.substr( to );
   if ( std::getenv( "L3SM_GOLDEN_WRITE" ) ) {
      if ( after != before ) {
         std::ofstream( page ) << after;
      }
      return;
   }
   EXPECT_EQ( after, before ) << "To write docs/l3sm.1 anew: ./dev golden";
}

std::vector< std::string > const pages{
   "l3sm.1", "l3sm-scenario.5", "l3sm-journal.5", "l3sm-chips.5", "l3sm-serve.8", "l3sm-ctl.8" };

// What troff says of a page; nothing, where all is well.
TEST( Manual, isWellFormed ) {
   if ( std::system( "command -v groff > /dev/null" ) != 0 ) {
      GTEST_SKIP() << "left out: groff is missing";
   }
   for ( std::string const & page : pages ) {
      Command const groff( "--version >/dev/null; groff -man -Tutf8 -ww -z '" + ( docs / page ).string() + "'" );
      EXPECT_EQ( groff.errors, "" ) << page;
   }
}

// Each page is named where the others are, so that a reader finds it.
TEST( Manual, pagesNameOneAnother ) {
   for ( std::string const & page : pages ) {
      std::string const text = contentsOf( docs / page );
      for ( std::string const & other : pages ) {
         auto const dot = other.find( '.' );
         std::string const reference = std::regex_replace( other.substr( 0, dot ), std::regex( "-" ), R"(\-)" ) + " (" +
                                       other.substr( dot + 1 ) + ")";
         EXPECT_TRUE( page == other || text.find( ".BR " + reference ) != std::string::npos )
            << page << " lacks " << reference;
      }
   }
}

// What an agent is started with is told in its own page, too.
TEST( Manual, tellsEveryOptionOfAnAgent ) {
   CLI::App app;
   std::function< int() > action;
   Cli::defineCommandLine( app, action );
   for ( auto const * verb : Cli::verbsOf( app ) ) {
      if ( verb->get_name() != "serve" && verb->get_name() != "ctl" ) {
         continue;
      }
      std::string const page = "l3sm-" + verb->get_name() + ".8";
      std::string const text = contentsOf( docs / page );
      for ( auto const * option : Cli::optionsOf( *verb ) ) {
         std::string const name = option->get_lnames().front();
         bool const isEverywhere = name == "help" || name == "no-pager" || name == "json";
         EXPECT_TRUE( isEverywhere || text.find( R"(\-\-)" + roff( name ) ) != std::string::npos )
            << page << " lacks --" << name;
      }
   }
}

} // namespace
