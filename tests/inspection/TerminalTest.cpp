// On a terminal answers are coloured, unless NO_COLOR is set. `script` runs a command on a terminal of its own.
#include "inspection/views/Terminal.h"
#include "BuildFolder.h"
#include "l3sm/Command.h"

#include <gtest/gtest.h>

namespace {

bool hasTerminals() {
   return std::system( "script -qec true /dev/null > /dev/null 2>&1" ) == 0;
}

// Stands at the end of a command's line: the program itself has nothing to do there.
std::string onTerminal( std::string const & environment, std::string const & arguments ) {
   return "--help >/dev/null; " + environment + " script -qec '" + buildFolder() + "/bin/l3sm " + arguments +
          "' /dev/null";
}

bool isColoured( std::string const & text ) {
   return text.find( "\033[" ) != std::string::npos;
}

TEST( Terminal, takesNoOrdersFromAName ) {
   using Inspection::printable;
   EXPECT_EQ( printable( "Fap3/0 \"größer\" ✓ 🂡" ), "Fap3/0 \"größer\" ✓ 🂡" );
   EXPECT_EQ( printable( "\033[2J\n\x7f" ), "\\x1b[2J\\x0a\\x7f" );
   EXPECT_EQ( printable( "\xc2\x9b" ), "\\xc2\\x9b" ); // the same order as one character
   EXPECT_EQ( printable( "\x9b"
                         "1m \xff \xc3" ),
              "\\x9b1m \\xff \\xc3" ); // no UTF-8
}

TEST( Terminal, isColouredUnlessNobodyWantsIt ) {
   if ( !hasTerminals() ) {
      GTEST_SKIP() << "there is no script(1), or no terminal to be had";
   }
   for ( char const * arguments : { "catalogue", "catalogue IppdFerTrapCfg", "constants" } ) {
      Command const coloured( onTerminal( "env -u NO_COLOR", arguments ) );
      Command const plain( onTerminal( "env NO_COLOR=1", arguments ) );
      Command const piped( arguments );
      EXPECT_TRUE( isColoured( coloured.output ) ) << arguments;
      EXPECT_FALSE( isColoured( plain.output ) ) << arguments;
      EXPECT_FALSE( isColoured( piped.output ) ) << arguments;
      EXPECT_FALSE( piped.output.empty() ) << arguments;
   }
}

TEST( Terminal, saysNothingOfItsProgressWhereItIsQuick ) {
   Command const l3sm( "run --quiet" );
   EXPECT_EQ( l3sm.output + l3sm.errors, "" );
}

} // namespace
