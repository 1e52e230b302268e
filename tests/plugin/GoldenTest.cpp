#include "Golden.h"
#include "ChipFixture.h"

using namespace DaceFapNi;

namespace {

// A switch with one chip, started, with the toggle off that would keep the chip-init list from running.
struct StartedSwitch {
   Simulator::SimulatedSwitch sw;

   explicit StartedSwitch( ChipType chipType, Toggle::Settings toggles = {} )
      : sw( { .faps = { { .fapId = FapId( 0 ), .cores = copiesOf( chipType ), .revision = revisionOf( chipType ) } },
              .toggles = served( std::move( toggles ) ) } ) {
      sw.start();
   }
   static Toggle::Settings served( Toggle::Settings toggles ) {
      toggles["Dace.json"]["ArmOrderedSwTable"] = false;
      return toggles;
   }
};

class GoldenTest : public testing::TestWithParam< ChipType > {};

TEST_P( GoldenTest, holdsAfterStartWhatIsWrittenDown ) {
   std::string const name = chipTypeName( GetParam() );
   Golden::expectFile( name + ".txt",
                       "# " + name +
                          " after start-up, toggle ArmOrderedSwTable off: every control that was set, and every\n"
                          "# entry that was written, by table, variant/array and entry. Fields that are 0 are left "
                          "out.\n# Written by ./dev golden.\n\n" +
                          Golden::text( Golden::written( StartedSwitch( GetParam() ).sw ) ) );
}

INSTANTIATE_TEST_SUITE_P( Chips, GoldenTest, everyChip, chipNameOf );

// ---- toggles

struct ToggleName {
   char const * file;
   char const * name;
   friend std::ostream & operator<<( std::ostream & out, ToggleName const & it ) {
      return out << it.file << ":" << it.name;
   }
};

// Those that the chip-init list reads.
constexpr ToggleName toggles[] = {
   { "Dace.json", "CampusVtepToVtepBridgingGen4" },
   { "Dace.json", "DaceVplsPhase2" },
   { "Dace.json", "J2L2EvpnMplsMultiHomed" },
   { "Dace.json", "UrpfIgnoreDefaultRouteJericho2" },
   { "Dace.json", "V6LinkLocalSrcPuntToCpu" },
   { "DaceLib.json", "DaceEvpnDualEncapDciAaMh" },
   { "DaceToggles.json", "J2EvpnMcastVxlanMultihoming" },
   { "DaceToggles.json", "J2SRv6" },
};

class GoldenToggleTest : public testing::TestWithParam< ToggleName > {};

TEST_P( GoldenToggleTest, makesTheDifferenceThatIsWrittenDown ) {
   auto const & [file, name] = GetParam();
   // Chips with the same difference stand together.
   std::vector< std::pair< std::string, std::string > > chipsByDifference;
   for ( ChipType const chipType : Hardware::allChipTypes ) {
      auto const afterStart = [chipType = chipType]( Toggle::Settings const & settings ) {
         return Golden::inProcessOfItsOwn(
            [&] { return Golden::everything( StartedSwitch( chipType, settings ).sw ); } );
      };
      auto const difference = Golden::difference( afterStart( {} ), afterStart( { { file, { { name, false } } } } ) );
      EXPECT_FALSE( difference.empty() ) << chipType;
      auto const same = std::ranges::find( chipsByDifference, difference, []( auto const & it ) { return it.second; } );
      if ( same == chipsByDifference.end() ) {
         chipsByDifference.emplace_back( chipTypeName( chipType ), difference );
      } else {
         same->first += std::string( ", " ) + chipTypeName( chipType );
      }
   }
   std::string text = std::string( "# What " ) + name + " of " + file +
                      " changes after start-up: each field with its value, and the one with the\n"
                      "# toggle off. Written by ./dev golden.\n";
   for ( auto const & [chips, difference] : chipsByDifference ) {
      text += "\n# " + chips + "\n" + difference;
   }
   Golden::expectFile( std::string( "toggles/" ) + name + ".txt", text );
}

std::string toggleNameOf( testing::TestParamInfo< ToggleName > const & info ) {
   return info.param.name;
}
INSTANTIATE_TEST_SUITE_P( Toggles, GoldenToggleTest, testing::ValuesIn( toggles ), toggleNameOf );

} // namespace
