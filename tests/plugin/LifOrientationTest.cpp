#include "ChipFixture.h"
#include "SharedFunctions.h"

using namespace DaceFapNi;

namespace {

using Values = std::map< int, U64 >;

Values const orientations{
   { 10, 0 }, { 11, 4 }, { 12, 5 }, { 13, 6 }, { 14, 7 }, { 24, 2 }, { 25, 2 }, { 26, 3 }, { 27, 0 },
   { 28, 3 }, { 29, 2 }, { 31, 1 }, { 32, 1 }, { 33, 1 }, { 34, 1 }, { 35, 1 }, { 36, 4 }, { 64, 6 },
   { 65, 6 }, { 66, 6 }, { 67, 7 }, { 68, 6 }, { 69, 5 }, { 70, 4 }, { 71, 2 }, { 72, 6 }, { 73, 6 },
   { 74, 6 }, { 75, 6 }, { 76, 6 }, { 77, 6 }, { 78, 6 }, { 79, 6 },
};
Values const filters{ { 24, 1 }, { 25, 2 }, { 27, 2 }, { 29, 1 }, { 30, 3 }, { 34, 1 }, { 35, 1 } };

class LifOrientationTest : public EveryChip {
 public:
   // Expects orientations and filters on the chip, everything else as before, and in that order.
   void expectInLifs( Values const & orientation, Values const & filter ) const {
      std::set< int > profiles;
      for ( auto const * values : { &orientation, &filter } ) {
         for ( auto const & [profile, value] : *values ) {
            profiles.insert( profile );
         }
      }
      std::vector< std::string > expected;
      for ( int profile = 0; profile < 256; ++profile ) {
         Place const place{ .entry = profile };
         auto erpp = old( "ErppInlifOrientationMap", profile );
         auto etpp = old( "EtppInlifOrientationMap", profile );
         if ( auto const it = orientation.find( profile ); it != orientation.end() ) {
            erpp = ( erpp & ~7u ) | static_cast< U32 >( it->second );
            etpp = static_cast< U32 >( it->second );
         }
         if ( auto const it = filter.find( profile ); it != filter.end() ) {
            erpp = ( erpp & ~0x18u ) | static_cast< U32 >( it->second << 3 );
         }
         EXPECT_EQ( words( "ErppInlifOrientationMap", place ), Words{ erpp } ) << profile;
         EXPECT_EQ( words( "EtppInlifOrientationMap", place ), Words{ etpp } ) << profile;
         if ( profiles.contains( profile ) ) {
            for ( char const * const operation : { "read ErppInlifOrientationMap 0/0/",
                                                   "read EtppInlifOrientationMap 0/0/",
                                                   "write ErppInlifOrientationMap 0/0/",
                                                   "write EtppInlifOrientationMap 0/0/" } ) {
               expected.push_back( operation + std::to_string( profile ) );
            }
         }
      }
      EXPECT_EQ( operations(), expected );
   }

 private:
   U32 old( char const * table, int profile ) const {
      return before().tables.at( table ).at( 0 ).at( 0 ).at( static_cast< U32 >( profile ) ).copies[0][0];
   }
};

Values without( Values values, int first, int last ) {
   for ( int profile = first; profile <= last; ++profile ) {
      values.erase( profile );
   }
   return values;
}

// ---- in-LIF profiles

TEST_P( LifOrientationTest, orientsInLifProfilesAndFiltersSameInterfaces ) {
   chipIs( GetParam() );
   L3Sm::initInlifOrientationMapTable( fap() );
   expectInLifs( orientations, filters );
}

TEST_P( LifOrientationTest, keepsTheOrientationOfAProfileThatHasOnlyAFilterAndTheReverse ) {
   chipIs( GetParam() );
   for ( int const profile : { 26, 30 } ) {
      wordsAre( "ErppInlifOrientationMap", { .entry = profile }, { 0x0d } ); // orientation 5, filter 1
      wordsAre( "EtppInlifOrientationMap", { .entry = profile }, { 5 } );
   }
   L3Sm::initInlifOrientationMapTable( fap() );
   EXPECT_EQ( words( "ErppInlifOrientationMap", { .entry = 30 } ), Words{ 0x1d } ); // orientation 5, filter 3
   EXPECT_EQ( words( "EtppInlifOrientationMap", { .entry = 30 } ), Words{ 5 } );
   EXPECT_EQ( words( "ErppInlifOrientationMap", { .entry = 26 } ), Words{ 0x0b } ); // orientation 3, filter 1
   EXPECT_EQ( words( "EtppInlifOrientationMap", { .entry = 26 } ), Words{ 3 } );
}

TEST_P( LifOrientationTest, leavesProfile36AloneWithoutDualEncapsulation ) {
   toggleIs( "DaceLib.json", "DaceEvpnDualEncapDciAaMh", false );
   chipIs( GetParam() );
   L3Sm::initInlifOrientationMapTable( fap() );
   expectInLifs( without( orientations, 36, 36 ), filters );
}

TEST_P( LifOrientationTest, leavesProfile71AloneWithoutBridgingBetweenVteps ) {
   toggleIs( "Dace.json", "CampusVtepToVtepBridgingGen4", false );
   chipIs( GetParam() );
   L3Sm::initInlifOrientationMapTable( fap() );
   expectInLifs( without( orientations, 71, 71 ), filters );
}

TEST_P( LifOrientationTest, leavesProfiles72To79AloneWithoutMultihoming ) {
   toggleIs( "DaceToggles.json", "J2EvpnMcastVxlanMultihoming", false );
   chipIs( GetParam() );
   L3Sm::initInlifOrientationMapTable( fap() );
   expectInLifs( without( orientations, 72, 79 ), filters );
}

// ---- out-LIF profiles

constexpr char erppOut[] = "ErppCfgMappingOutLifProfile";
constexpr char etppOut[] = "EtppOutlifOrientationMap";

TEST_P( LifOrientationTest, orientsOutLifProfilesInBothEgressStages ) {
   chipIs( GetParam() );
   for ( int profile = 0; profile < 16; ++profile ) {
      wordsAre( erppOut, { .entry = profile }, { 0xffff } );
   }
   L3Sm::initOutlifOrientationMap( fap() );
   std::map< int, U32 > const changed{
      { 1, 0xffef }, // same interface 1, in bits 3 and 4
      { 2, 0xfff9 },
      { 3, 0xfffa },
      { 4, 0xfffb },
   };
   for ( int profile = 0; profile < 16; ++profile ) {
      auto const it = changed.find( profile );
      EXPECT_EQ( words( erppOut, { .entry = profile } ), Words{ it == changed.end() ? 0xffff : it->second } )
         << profile;
   }
}

TEST_P( LifOrientationTest, packsTheOrientationsOfOutLifProfilesIntoOneRegister ) {
   chipIs( GetParam() );
   wordsAre( etppOut, {}, Words( 6, 0xffffffff ) ); // nothing of it is left
   L3Sm::initOutlifOrientationMap( fap() );
   Values const expected{
      { 2, 1 }, { 3, 2 }, { 4, 3 }, { 22, 4 }, { 23, 5 }, { 24, 6 }, { 25, 7 }, { 56, 6 }, { 57, 7 }, { 61, 5 } };
   Values found;
   auto const mapping = words( etppOut, {} );
   for ( int profile = 0; profile < 64; ++profile ) {
      U64 value = 0;
      for ( int bit = 0; bit < 3; ++bit ) {
         int const at = 3 * profile + bit;
         value |= U64{ mapping[static_cast< std::size_t >( at / 32 )] >> at % 32 & 1 } << bit;
      }
      if ( value != 0 ) {
         found[profile] = value;
      }
   }
   EXPECT_EQ( found, expected );
}

TEST_P( LifOrientationTest, leavesOutLifProfile61OutWithoutBridgingBetweenVteps ) {
   toggleIs( "Dace.json", "CampusVtepToVtepBridgingGen4", false );
   chipIs( GetParam() );
   L3Sm::initOutlifOrientationMap( fap() );
   // Bits 168 to 173: the profiles 56 and 57. Bits 183 to 185 would be 61.
   EXPECT_EQ( words( etppOut, {} )[5], 0x00003e00u );
}

TEST_P( LifOrientationTest, programsOutLifProfilesInOrder ) {
   chipIs( GetParam() );
   L3Sm::initOutlifOrientationMap( fap() );
   std::vector< std::string > expected;
   for ( char const * const profile : { "2", "3", "4", "1" } ) {
      expected.push_back( std::string( "read ErppCfgMappingOutLifProfile 0/0/" ) + profile );
      expected.push_back( std::string( "write ErppCfgMappingOutLifProfile 0/0/" ) + profile );
   }
   expected.push_back( "read EtppOutlifOrientationMap 0/0" );
   for ( int profile = 0; profile < 11; ++profile ) { // 2, 3, 4, 21 to 25, 56, 57, 61
      expected.push_back( "write EtppOutlifOrientationMap 0/0" );
   }
   EXPECT_EQ( operations(), expected );
   // Each write has one profile more: first 2 alone, last all.
   auto const writes = rows();
   EXPECT_EQ( writes[9].words[0], 0x00000040u );
   EXPECT_EQ( writes[10].words[0], 0x00000440u );
   EXPECT_EQ( writes[11].words[0], 0x00003440u );
   EXPECT_EQ( std::vector( writes[12].words.begin(), writes[12].words.end() ), ( Words{ 0x3440, 0, 0, 0, 0, 0 } ) );
}

// A chip whose reads fail.
class FailingReads final : public DaceSal::SchanDriver {
 public:
   FailingReads() { DaceSal::schanDriverIs( this ); }
   ~FailingReads() override { DaceSal::schanDriverIs( &under_ ); }
   void read( DaceSal::ChipId, DaceSal::SchanAddress const &, std::span< U32 > ) override {
      throw DaceSal::SchanError( "no answer" );
   }
   bool write( DaceSal::ChipId chip, DaceSal::SchanAddress const & at, std::span< U32 const > const words ) override {
      return under_.write( chip, at, words );
   }
   bool exchange( DaceSal::ChipId chip,
                  DaceSal::SchanAddress const & at,
                  std::span< U32 const > const words,
                  std::span< U32 > before ) override {
      return under_.exchange( chip, at, words, before );
   }
   bool control( DaceSal::ChipId chip, U32 control, U32 value ) override {
      return under_.control( chip, control, value );
   }
   std::optional< U32 > controlValue( DaceSal::ChipId chip, U32 control ) const override {
      return under_.controlValue( chip, control );
   }

 private:
   DaceSal::SchanDriver & under_ = *DaceSal::schanDriver();
};

// What the read returns is where the mapping starts.
TEST_P( LifOrientationTest, endsTheProcessWhereTheRegisterCannotBeRead ) {
   chipIs( GetParam() );
   FailingReads const failing;
   EXPECT_DEATH( L3Sm::initOutlifOrientationMap( fap() ), "x >= 0" );
}

TEST( LifOrientation, packsAnOrientationBesideTheOthers ) {
   Raw256 mapping;
   setOrientationForOutLifProfile( 1, mapping, 7 );
   setOrientationForOutLifProfile( 2, mapping, 5 );
   setOrientationForOutLifProfile( 22, mapping, 4 );
   EXPECT_EQ( mapping.word64( 0 ), 0x178u );
   EXPECT_EQ( mapping.word64( 1 ), 0x10u ); // bits 66 to 68
}

TEST( LifOrientation, losesTheBitsThatWouldCrossAWord ) {
   Raw256 mapping;
   setOrientationForOutLifProfile( 21, mapping, 7 ); // bits 63 to 65
   EXPECT_EQ( mapping.word64( 0 ), 0x8000000000000000u );
   EXPECT_EQ( mapping.word64( 1 ), 0u );
}

TEST( LifOrientationDeathTest, startsNoMappingFromAFailedRead ) {
   EXPECT_DEATH( Raw256( -1 ), "`x >= 0'" );
}

INSTANTIATE_TEST_SUITE_P( Chips, LifOrientationTest, everyChip, chipNameOf );

} // namespace
