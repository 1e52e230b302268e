// Since when a field has a value, for people and for programs; and values that no field can have.
#include "inspection/views/BisectionText.h"
#include "chip/ChipType.h"
#include "inspection/files/Json.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

using namespace Inspection;

TurnPtr turnIn( U32 event, std::string other ) {
   return std::make_shared< Turn const >( Turn{ .event = event,
                                                .what = "set evpn/status evpnDciEnabled = true",
                                                .seq = 10 * event,
                                                .function = "L3Sm::f",
                                                .source = "L3Sm.cpp:" + std::to_string( 40 + event ),
                                                .cause = "evpn/status evpnDciEnabled",
                                                .other = std::move( other ) } );
}

Holding trapHolding( U32 array, TurnPtr since, TurnPtr until = {} ) {
   auto const & table = *Catalogue::table( "IppdFerTrapCfg" );
   return { .fap = 0,
            .layout = Catalogue::layout( table, static_cast< U8 >( Hardware::ChipType::BCM88690_B0 ), 0 ),
            .array = array,
            .entry = 0,
            .holds = !until,
            .since = std::move( since ),
            .until = std::move( until ) };
}

Bisection bisectionOf( std::vector< Holding > holdings, std::vector< Holding > former = {} ) {
   Bisection it{ .condition = conditionOf( "IppdFerTrapCfg.cpuStrengthN=5" ), .events = 12 };
   it.holdings = std::move( holdings );
   it.former = std::move( former );
   return it;
}

std::string bisectionTextOf( Bisection const & bisection, bool all = false ) {
   std::ostringstream text;
   showBisection( text, bisection, all, Style() );
   return text.str();
}

std::string conditionRefusal( std::string const & typed ) {
   try {
      return conditionOf( typed ).text();
   } catch ( InputError const & error ) {
      return error.what();
   }
}

TEST( BisectionText, saysThatAValueWasThereBeforeTheStart ) {
   auto onAnother = trapHolding( 3, {} );
   onAnother.fap = 1;
   EXPECT_EQ( bisectionTextOf( bisectionOf( { trapHolding( 3, {} ), onAnother } ) ),
              "IppdFerTrapCfg.cpuStrengthN = 0x5  holds since before the start in 2 entries  (12 events)\n"
              "\n"
              "since before the start\n"
              "    FAP 0 [3]; FAP 1 [3]\n" );
}

TEST( BisectionText, saysThatItNeverHeldOrDoesNoMore ) {
   EXPECT_EQ( bisectionTextOf( bisectionOf( {} ) ), "IppdFerTrapCfg.cpuStrengthN = 0x5  never held  (12 events)\n" );
   EXPECT_EQ( bisectionTextOf( bisectionOf( {}, { trapHolding( 3, {}, turnIn( 0, "0x1" ) ) } ) ),
              "IppdFerTrapCfg.cpuStrengthN = 0x5  holds nowhere at the end  (12 events)\n"
              "\n"
              "until the start  since before the start\n"
              "  L3Sm::f  L3Sm.cpp:40  on evpn/status evpnDciEnabled\n"
              "    FAP 0 [3]  0x5 → 0x1\n" );
}

TEST( BisectionText, showsEightTurnsUnlessAllAreAskedFor ) {
   std::vector< Holding > holdings;
   for ( U32 event = 1; event <= 6; ++event ) {
      holdings.push_back( trapHolding( event, turnIn( event, "0x1" ) ) );
   }
   std::vector< Holding > former;
   for ( U32 event = 7; event <= 10; ++event ) {
      former.push_back( trapHolding( event - 7, turnIn( event, "0x1" ), turnIn( event + 1, "0x2" ) ) );
   }
   auto const text = bisectionTextOf( bisectionOf( holdings, former ) );
   EXPECT_TRUE( text.starts_with(
      "IppdFerTrapCfg.cpuStrengthN = 0x5  holds in 6 entries, the latest since event 6  (12 events)\n" ) )
      << text;
   EXPECT_TRUE( text.ends_with( "    FAP 0 [1]  0x5 → 0x2\n"
                                "\n"
                                "... and 2 more; --all shows them\n" ) )
      << text;
   EXPECT_EQ( bisectionTextOf( bisectionOf( holdings, former ), true ).find( "--all" ), std::string::npos );
   for ( U32 event = 1; event <= 4; ++event ) {
      holdings.push_back( trapHolding( event, turnIn( event + 6, "0x1" ) ) );
   }
   EXPECT_TRUE( bisectionTextOf( bisectionOf( holdings ) ).ends_with( "\n... and 2 more; --all shows them\n" ) );
}

TEST( BisectionText, ofProgramsHasTheTurnsThatBeganAndEndedIt ) {
   auto const turn = []( char const * event, char const * other, char const * value ) {
      return std::string( R"({")" ) + other + R"(": ")" + value +
             R"(", "cause": "evpn/status evpnDciEnabled", "event": )" + event + R"(, "function": "L3Sm::f", "seq": )" +
             event + R"(0, "source": "L3Sm.cpp:4)" + event + R"(", "what": "set evpn/status evpnDciEnabled = true"})";
   };
   auto const it =
      bisectionOf( { trapHolding( 3, {} ) }, { trapHolding( 4, turnIn( 1, "0x1" ), turnIn( 2, "0x2" ) ) } );
   EXPECT_EQ( toJson( bisectionValue( it ), 0 ),
              R"({"events": 12, "field": "cpuStrengthN", "held": [{"array": 4, "entry": null, "fap": 0, "since": )" +
                 turn( "1", "before", "0x1" ) + R"(, "until": )" +
                 std::string( R"({"after": "0x2", "cause": "evpn/status evpnDciEnabled", "event": 2, )" ) +
                 R"("function": "L3Sm::f", "seq": 20, "source": "L3Sm.cpp:42", )"
                 R"("what": "set evpn/status evpnDciEnabled = true"}, "variant": 0}], )"
                 R"("holds": [{"array": 3, "entry": null, "fap": 0, "since": null, "variant": 0}], )"
                 R"("table": "IppdFerTrapCfg", "value": "0x5"})" );
}

TEST( BisectionText, refusesAValueThatTheFieldCannotHave ) {
   EXPECT_EQ( conditionRefusal( "IppdFerTrapCfg.cpuStrengthN=0x000F" ), "IppdFerTrapCfg.cpuStrengthN = 0xf" );
   EXPECT_EQ( conditionRefusal( "IppdFerTrapCfg.cpuStrengthN=0x" ),
              "\"0x\" is no number; give it in decimal, or in hexadecimal after 0x" );
   EXPECT_EQ( conditionRefusal( "IppdFerTrapCfg.cpuStrengthN=five" ),
              "\"five\" is no number of 64 bits; give it in decimal, or in hexadecimal after 0x" );
   EXPECT_EQ( conditionRefusal( "IppdFerTrapCfg.cpuStrengthN=16" ),
              "0x10 doesn't fit in IppdFerTrapCfg.cpuStrengthN, which has 4 bits" );
}

} // namespace
