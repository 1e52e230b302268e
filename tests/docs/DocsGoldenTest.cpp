// What the documents show is what the program prints, and every scenario in them is one that it takes: each block that
// can be run is run. ./dev golden writes the answers anew; look at what git makes of it.
#include "docs/Document.h"
#include "l3sm/Session.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

fs::path const source = L3SM_SOURCE_DIR;

std::vector< std::string > names() {
   std::vector< std::string > all{ "README.md" };
   for ( auto const & file : fs::directory_iterator( source / "docs" ) ) {
      if ( file.path().extension() == ".md" ) {
         all.push_back( "docs/" + file.path().filename().string() );
      }
   }
   std::ranges::sort( all );
   return all;
}

// The door to the tree, without its building: what a reader of README types.
constexpr char const * dev = R"(#!/bin/sh
case $1 in
run) exec l3sm "$@" ;;
l3sm) shift; exec l3sm "$@" ;;
*) echo "./dev $1 is not run from a document" >&2; exit 2 ;;
esac
)";

// A part of a scenario, with a switch where it has none.
std::string asScenario( std::string const & part ) {
   bool const hasSwitch = part.find( "\"switch\"" ) != std::string::npos;
   std::string const text =
      part.find_first_not_of( " \n" ) != std::string::npos && part[part.find_first_not_of( " \n" )] == '{'
         ? part.substr( part.find( '{' ) + 1, part.rfind( '}' ) - part.find( '{' ) - 1 )
         : part;
   return hasSwitch
             ? "{" + text + "}"
             : R"({"switch": {"faps": [{"fapId": 0, "ports": {"10": 1}, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}}]},)" +
                  text + "}";
}

struct DocsGolden : testing::TestWithParam< std::string > {};

TEST_P( DocsGolden, showWhatTheProgramPrints ) {
   fs::path const path = source / GetParam();
   std::string const before = contentsOf( path );
   std::string after = before;
   Session const session( "examples" );
   std::ofstream( session.folder / "dev" ) << dev;
   fs::permissions( session.folder / "dev", fs::perms::owner_all );
   std::ptrdiff_t moved = 0;
   for ( Block const & block : blocksOf( before ) ) {
      std::string const place = GetParam() + ":" + std::to_string( block.line );
      if ( block.info == "json scenario" || block.info == "json part" ) {
         std::ofstream( session.folder / ".part.json" )
            << ( block.info == "json part" ? asScenario( block.text ) : block.text );
         EXPECT_EQ( session.play( "l3sm run --quiet .part.json" ), "$ l3sm run --quiet .part.json\n" ) << place;
      } else if ( block.info.starts_with( "json " ) ) {
         std::ofstream( session.folder / block.info.substr( 5 ) ) << block.text;
      } else if ( block.isConsole() ) {
         std::string written;
         for ( Exchange const & exchange : exchangesOf( block ) ) {
            std::string const played = session.play( exchange.command );
            auto const answer = linesOf( played.substr( exchange.command.size() + 3 ) );
            std::vector< std::string > expected;
            for ( std::string const & line : exchange.expected ) {
               expected.push_back( Session::withoutMachine( line + "\n" ) );
               expected.back().pop_back();
            }
            bool const isTrue = areAsExpected( expected, answer );
            written += "$ " + exchange.command + "\n";
            for ( auto const & line : isTrue ? exchange.expected : shortened( exchange.expected, answer ) ) {
               written += line + "\n";
            }
            if ( !std::getenv( "L3SM_GOLDEN_WRITE" ) ) {
               EXPECT_TRUE( isTrue ) << place << ": ./dev golden writes it anew\n" << played;
            }
         }
         after.replace( static_cast< std::size_t >( static_cast< std::ptrdiff_t >( block.from ) + moved ),
                        block.text.size(),
                        written );
         moved += static_cast< std::ptrdiff_t >( written.size() ) - static_cast< std::ptrdiff_t >( block.text.size() );
      }
   }
   if ( std::getenv( "L3SM_GOLDEN_WRITE" ) && after != before ) {
      std::ofstream( path ) << after;
   }
}

INSTANTIATE_TEST_SUITE_P( All, DocsGolden, testing::ValuesIn( names() ), []( auto const & of ) {
   std::string name = of.param;
   std::ranges::replace_if(
      name, []( unsigned char letter ) { return !std::isalnum( letter ); }, '_' );
   return name;
} );

// A link that leads nowhere helps nobody.
TEST( Docs, linkToFilesThatAreThere ) {
   for ( std::string const & name : names() ) {
      std::string const text = contentsOf( source / name );
      std::regex const link( R"(\]\(([^)#:]+)\))" );
      for ( std::sregex_iterator it( text.begin(), text.end(), link ), end; it != end; ++it ) {
         fs::path const to = ( source / name ).parent_path() / ( *it )[1].str();
         EXPECT_TRUE( fs::exists( to ) ) << name << ": " << ( *it )[1];
      }
   }
}

} // namespace
