// What can be wrong with a place that is asked for.
#include "l3sm/Command.h"

#include <gtest/gtest.h>

namespace {

TEST( WrongInput, aPlaceThatNothingHasIsTold ) {
   std::string const row = R"({"seq": 1, "event": 0, "op": "read", "fap": 0, "table": "IppdFerTrapCfg", "variant": 0,)"
                           R"( "array": 0, "entry": null, "scope": "any", "words": ["0x00000123"],)"
                           R"( "function": "f", "source": "s:1", "cause": "start"})"
                           "\n";
   auto const expectTold = [&]( std::string const & arguments, std::string const & line ) {
      Command const l3sm( "why j IppdFerTrapCfg " + arguments, { { "j", row } } );
      EXPECT_EQ( l3sm.status, line.empty() ? 0 : 2 );
      EXPECT_EQ( l3sm.errors, line.empty() ? "" : "l3sm: " + line + "\n" );
   };
   expectTold( "--fap 0 --variant 0 --array 7 --entry 0", "" );
   expectTold( "--variant 1", "IppdFerTrapCfg has no variant 1; there is 0" );
   expectTold( "--array 8", "IppdFerTrapCfg has no array index 8; there is 0 to 7" );
   expectTold( "--array -1", "Could not convert: --array = -1; l3sm why --help tells what there is" );
   expectTold( "--entry 1", "IppdFerTrapCfg has no entry 1; there is 0" );
   expectTold( "--fap 1", "j: it tells nothing of a FAP 1" );
}

} // namespace
