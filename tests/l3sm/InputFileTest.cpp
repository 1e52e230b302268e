// Where a scenario may come from: files, pipes and standard input, each read whole; what has no end is not swallowed.
#include "BuildFolder.h"
#include "l3sm/Command.h"

#include <gtest/gtest.h>

namespace {

std::string const one =
   R"({"name": "from outside", "switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0"}}]}})";
// The program at the end of a shell's line. Its own line has no standard input.
Command shell( std::string const & line, std::string const & arguments, Command::Files const & files = {} ) {
   return Command( "--help >/dev/null; { " + line + " '" + buildFolder() + "/bin/l3sm' " + arguments + " 2>&1; }",
                   files );
}

TEST( InputFile, mayBeStandardInput ) {
   EXPECT_EQ( shell( "cat s.json |", "run - --quiet --save - | head -2", { { "s.json", one } } ).output,
              "{\n \"name\": \"from outside\",\n" );
}

TEST( InputFile, isNamedInWhatIsWrongWithStandardInput ) {
   EXPECT_EQ( shell( "echo '{\"switch\": 1}' |", "run - --quiet" ).output,
              "l3sm: standard input:1:12: /switch: expected an object, got 1\n" );
}

TEST( InputFile, mayBeAPipe ) {
   EXPECT_EQ(
      shell( "mkfifo pipe; cat s.json >pipe &", "run pipe --quiet --save - | head -2", { { "s.json", one } } ).output,
      "{\n \"name\": \"from outside\",\n" );
}

TEST( InputFile, mayBeWrittenToStandardOutput ) {
   Command const file( "run --quiet --chips chips --state state --journal journal" );
   EXPECT_EQ( Command( "run --quiet --chips -" ).output, file.file( "chips" ) );
   EXPECT_EQ( Command( "run --quiet --state -" ).output, file.file( "state" ) );
   EXPECT_EQ( Command( "run --quiet --journal -" ).output, file.file( "journal" ) );
   EXPECT_NE( Command( "run --quiet --trace '*/1' --trace-out -" ).output, "" );
}

TEST( InputFile, isNoTerminal ) {
   if ( std::system( "script -qec true /dev/null > /dev/null 2>&1" ) != 0 ) {
      GTEST_SKIP() << "there is no script(1), or no terminal to be had";
   }
   std::string const rest = "is a terminal; name a file, or give the text through a pipe\r\n";
   auto const onTerminal = []( std::string const & arguments ) {
      return Command( "--help >/dev/null; script -qec '" + buildFolder() + "/bin/l3sm " + arguments + "' /dev/null" )
         .output;
   };
   EXPECT_EQ( onTerminal( "run -" ), "l3sm: standard input: " + rest );
   EXPECT_EQ( onTerminal( "run /dev/tty" ), "l3sm: /dev/tty: " + rest );
}

// 300 MB of blanks are a scenario by their form alone.
TEST( InputFile, isNotSwallowedWhereItHasNoEnd ) {
   if ( isSanitized() ) {
      GTEST_SKIP() << "the sanitizer's own memory is beyond every limit";
   }
   std::string const told =
      "holds more than the 256 MB that are read; a scenario need only name what differs from the defaults\n";
   std::string const limited = "ulimit -v 2000000; ";
   EXPECT_EQ( shell( limited, "run /dev/zero" ).output, "l3sm: /dev/zero: " + told );
   EXPECT_EQ( shell( "truncate -s 300M large.json;" + limited, "run large.json" ).output, "l3sm: large.json: " + told );
   EXPECT_EQ( shell( limited + "yes '' | head -c 300000000 |", "run -" ).output, "l3sm: standard input: " + told );
}

} // namespace
