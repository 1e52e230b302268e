// The verb `report`: where its page comes from, and what it refuses.
#include "BuildFolder.h"
#include "l3sm/Command.h"

#include <gtest/gtest.h>

namespace {

constexpr char const * played = L3SM_SOURCE_DIR "/examples/interface-mtu.json";

std::string playing( std::string const & options ) {
   return std::string( "run '" ) + played + "' --quiet " + options;
}

// A second run of the program in the folder of the first.
std::string then( std::string const & arguments ) {
   return " && '" + buildFolder() + "/bin/l3sm' " + arguments;
}

TEST( Report, isTheSameOfARunOfItsJournalAndOfItsScenario ) {
   Command const l3sm( playing( "--journal run.jsonl --report run.html" ) + then( "report run.jsonl -o journal.html" ) +
                       then( "report '" + std::string( played ) + "' -o scenario.html" ) );
   EXPECT_EQ( l3sm.errors, "" );
   EXPECT_GT( l3sm.file( "run.html" ).size(), 100'000u );
   EXPECT_TRUE( l3sm.file( "journal.html" ) == l3sm.file( "run.html" ) );
   EXPECT_TRUE( l3sm.file( "scenario.html" ) == l3sm.file( "run.html" ) );
}

TEST( Report, readsACompressedJournal ) {
   Command const l3sm( playing( "--journal run.jsonl.zst --report run.html" ) +
                       then( "report run.jsonl.zst -o journal.html" ) );
   EXPECT_TRUE( l3sm.file( "journal.html" ) == l3sm.file( "run.html" ) );
}

TEST( Report, isOfOneFileThatTheNetworkHasNoPartIn ) {
   Command const l3sm( playing( "--report run.html" ) );
   std::string const page = l3sm.file( "run.html" );
   for ( char const * outside : { " src=", "<link", "@import", "url(http" } ) {
      EXPECT_EQ( page.find( outside ), std::string::npos ) << outside;
   }
}

TEST( Report, namesTheRunInItsTitleWhateverItsLetters ) {
   std::string text = contentsOf( played );
   std::string const name = "Interfaces: an MTU reaches the subinterfaces of its interface";
   text.replace( text.find( name ), name.size(), "</script><b>&" );
   Command const l3sm( "report odd.json -o odd.html", { { "odd.json", text } } );
   EXPECT_EQ( l3sm.status, 0 );
   EXPECT_NE( l3sm.file( "odd.html" ).find( "<title>&lt;/script>&lt;b>&amp;</title>" ), std::string::npos );
}

TEST( Report, refusesWhatItCannotShow ) {
   Command const noPage( "report run.jsonl" );
   EXPECT_EQ( noPage.status, 2 );
   EXPECT_EQ( noPage.errors, "l3sm: say where to write the page: l3sm report run.jsonl -o PAGE.html\n" );

   Command const empty( "report run.jsonl -o run.html", { { "run.jsonl", "" } } );
   EXPECT_EQ( empty.status, 2 );
   EXPECT_EQ( empty.errors, "l3sm: run.jsonl: is empty, no journal; `l3sm run --journal FILE` writes one\n" );
   EXPECT_FALSE( empty.wrote( "run.html" ) );

   Command const toggled( playing( "--journal run.jsonl" ) +
                          then( "report run.jsonl --toggle Dace.json:ArmOrderedSwTable=on -o run.html" ) );
   EXPECT_EQ( toggled.status, 2 );
   EXPECT_EQ( toggled.errors,
              "l3sm: run.jsonl: is a journal, whose toggles are what they were; --toggle needs a scenario\n" );
   EXPECT_FALSE( toggled.wrote( "run.html" ) );
}

} // namespace
