// What programs rely on in the constants, whatever their values: ranges, distinctness, gaps.
#include "constants/Contexts.h"
#include "constants/DestinationId.h"
#include "constants/EgressPortProfiles.h"
#include "constants/MicrocodeActions.h"
#include "constants/WellKnown.h"

#include <gtest/gtest.h>
#include <set>
#include <sstream>

using Hardware::ChipType;
using namespace DacePPExport;
using namespace Hardware::Dace;

namespace {

FapRevision revisionOf( ChipType chipType ) {
   return FapRevision{ 5, chipType, 7 };
}

TEST( Contexts, thatAChipHasHaveDistinctNumbersBelow64AndNever0 ) {
   for ( auto const rows : { ctx_fwd1_rows(), ctx_fwd2_rows(), ctx_encap_1_rows(), ctx_encap_2_rows() } ) {
      for ( std::size_t chip = 0; chip < 6; ++chip ) {
         std::set< int > seen;
         std::size_t present = 0;
         for ( auto const & row : rows ) {
            EXPECT_LT( row.value[chip], 64 );
            if ( row.value[chip] != 0 ) {
               seen.insert( row.value[chip] );
               ++present;
            }
         }
         EXPECT_EQ( seen.size(), present ) << rows[0].name << " chip " << chip;
      }
   }
}

TEST( Contexts, haveNumbersThatDifferFromChipToChip ) {
   EXPECT_EQ( ctx_fwd1_value( ChipType::BCM88690_B0, ctx_fwd1{ 36 } ), 45u );
   EXPECT_EQ( ctx_fwd1_value( ChipType::BCM88480_B0, ctx_fwd1{ 36 } ), 42u );
   EXPECT_EQ( ctx_fwd2_value( ChipType::BCM88800_A0, ctx_fwd2{ 23 } ), 1u );
   EXPECT_EQ( ctx_fwd2_value( ChipType::BCM88850_A0, ctx_fwd2{ 23 } ), 49u );
   EXPECT_EQ( ctx_encap_1_value( ChipType::BCM88859_A2, ctx_encap_1{ 12 } ), 1u );
   EXPECT_EQ( ctx_encap_1_value( ChipType::BCM88690_B0, ctx_encap_1{ 12 } ), 10u );
   EXPECT_EQ( ctx_encap_2_value( ChipType::BCM88690_B0, ctx_encap_2{ 37 } ), 45u );
   EXPECT_EQ( ctx_encap_2_value( ChipType::BCM88480_A0, ctx_encap_2{ 37 } ), 38u );
}

TEST( Contexts, areMissingOnSomeChipsAndHaveTheNumber0There ) {
   EXPECT_FALSE( ctx_fwd2_exists( ChipType::BCM88480_A0, ctx_fwd2{ 46 } ) );
   EXPECT_TRUE( ctx_fwd2_exists( ChipType::BCM88480_B0, ctx_fwd2{ 46 } ) );
   EXPECT_FALSE( ctx_fwd1_exists( ChipType::BCM88800_A0, ctx_fwd1{ 59 } ) );
   EXPECT_FALSE( ctx_fwd1_exists( ChipType::BCM88480_A0, ctx_fwd1{ 60 } ) );
   EXPECT_FALSE( ctx_fwd1_exists( ChipType::BCM88480_A0, ctx_fwd1{ 39 } ) );
   EXPECT_FALSE( ctx_fwd1_exists( ChipType::BCM88480_B0, ctx_fwd1{ 37 } ) );
   EXPECT_FALSE( ctx_fwd1_exists( ChipType::BCM88800_A0, ctx_fwd1{ 53 } ) );
   EXPECT_EQ( ctx_fwd1_value( ChipType::BCM88800_A0, ctx_fwd1{ 59 } ), 0u );
}

TEST( Contexts, ofAnUnknownNumberOrChipDoNotExist ) {
   EXPECT_FALSE( ctx_fwd1_exists( ChipType::BCM88690_B0, ctx_fwd1{ 63 } ) );
   EXPECT_EQ( ctx_fwd1_value( ChipType::BCM88690_B0, ctx_fwd1{ 63 } ), 0u );
   EXPECT_FALSE( ctx_encap_2_exists( ChipType{ 13 }, ctx_encap_2{ 22 } ) );
}

TEST( Contexts, thatEncapsulationProgramsAreMadeOfExistOnEveryChip ) {
   for ( ChipType const chipType : Hardware::allChipTypes ) {
      EXPECT_TRUE( ctx_encap_1_exists( chipType, ctx_encap_1{ 12 } ) );
      for ( U8 const context : { 22, 23, 37, 38 } ) {
         EXPECT_TRUE( ctx_encap_2_exists( chipType, ctx_encap_2{ context } ) ) << chipType << " " << int{ context };
      }
   }
}

// How many words of a list go to one of two contexts.
template< class Word >
int wordsTo( Word word, U32 a, U32 b ) {
   int count = 0;
   for ( U32 entry = 0; entry < 128; ++entry ) {
      count += ( word( entry ) & 0x3f ) == a || ( word( entry ) & 0x3f ) == b;
   }
   return count;
}

TEST( MicrocodeActions, have13BitsAndTheSameWordAtEachLook ) {
   for ( ChipType const chipType : Hardware::allChipTypes ) {
      for ( auto const profile : { UcodeProfileType{ 1 }, UcodeProfileType{ 2 } } ) {
         for ( U32 entry = 0; entry < 128; ++entry ) {
            EXPECT_LT( IPPB_FLPACS_ACTION_ENTRY( profile, chipType, 0, 0, entry ), 0x2000 );
            EXPECT_LT( IPPA_VTECS_ACTION_ENTRY( profile, chipType, 0, 0, entry ), 0x2000 );
         }
      }
   }
   EXPECT_EQ( &IPPB_FLPACS_ACTION_ENTRY( UcodeProfileType{ 2 }, ChipType::BCM88690_B0, 0, 0, 9 ),
              &IPPB_FLPACS_ACTION_ENTRY( UcodeProfileType{ 2 }, ChipType::BCM88690_B0, 0, 0, 9 ) );
}

TEST( MicrocodeActions, leadSeveralEntriesToMplsContextsOnEveryChipButOne ) {
   auto const profile = UcodeProfileType{ 2 };
   for ( ChipType const chipType : Hardware::allChipTypes ) {
      auto const flpacs = [&]( U32 entry ) { return IPPB_FLPACS_ACTION_ENTRY( profile, chipType, 0, 0, entry ); };
      auto const vtecs = [&]( U32 entry ) { return IPPA_VTECS_ACTION_ENTRY( profile, chipType, 0, 0, entry ); };
      bool const labelsElsewhere = chipType == ChipType::BCM88859_A2;
      EXPECT_EQ(
         wordsTo( flpacs, ctx_fwd2_value( chipType, ctx_fwd2{ 45 } ), ctx_fwd2_value( chipType, ctx_fwd2{ 47 } ) ),
         labelsElsewhere ? 0 : 12 )
         << chipType;
      EXPECT_EQ(
         wordsTo( vtecs, ctx_fwd1_value( chipType, ctx_fwd1{ 58 } ), ctx_fwd1_value( chipType, ctx_fwd1{ 61 } ) ),
         labelsElsewhere ? 0 : 11 )
         << chipType;
   }
}

TEST( MicrocodeActions, areMadeOfTheActionsUpperBitsAndTheChipsContext ) {
   // Entry 7 goes to one terminated label: context 3 on BCM88690_B0, 33 on BCM88800_A0.
   EXPECT_EQ( IPPB_FLPACS_ACTION_ENTRY( UcodeProfileType{ 2 }, ChipType::BCM88690_B0, 0, 0, 71 ), 0x33 << 6 | 3 );
   EXPECT_EQ( IPPB_FLPACS_ACTION_ENTRY( UcodeProfileType{ 2 }, ChipType::BCM88800_A0, 0, 0, 71 ), 0x33 << 6 | 33 );
   // The other image has the same actions 64 entries earlier.
   EXPECT_EQ( IPPB_FLPACS_ACTION_ENTRY( UcodeProfileType{ 1 }, ChipType::BCM88690_B0, 0, 0, 7 ), 0x33 << 6 | 3 );
}

TEST( MicrocodeActionsDeathTest, refuseAnotherProfileChipOrEntry ) {
   EXPECT_DEATH( IPPB_FLPACS_ACTION_ENTRY( UcodeProfileType{ 3 }, ChipType::BCM88690_B0, 0, 0, 0 ), "profileCount" );
   EXPECT_DEATH( IPPB_FLPACS_ACTION_ENTRY( UcodeProfileType{ 2 }, ChipType{ 13 }, 0, 0, 0 ), "allChipTypes.size" );
   EXPECT_DEATH( IPPA_VTECS_ACTION_ENTRY( UcodeProfileType{ 2 }, ChipType::BCM88690_B0, 0, 0, 128 ),
                 "entryIndex < actionEntries" );
}

TEST( EgressPortProfiles, fitTheirFields ) {
   for ( auto const & row : egressPortProfileRows() ) {
      for ( std::size_t chip = 0; chip < 6; ++chip ) {
         bool const wide = chip == 2 || chip == 3; // BCM88850_A0, BCM88859_A2
         int const limit = row.stage != EgressPortStage::Trap ? 4 : wide ? 16 : 8;
         EXPECT_LT( row.value[chip], limit ) << row.name;
      }
   }
}

TEST( EgressPortProfiles, lackTheFirstStageOnOneChip ) {
   for ( ChipType const chipType : Hardware::allChipTypes ) {
      EXPECT_EQ( Jericho2EgressPortEnc1Profile::exists( revisionOf( chipType ), 1 ),
                 chipType != ChipType::BCM88480_B0 );
      EXPECT_TRUE( Jericho2EgressPortEnc5Profile::exists( revisionOf( chipType ), 1 ) );
   }
   EXPECT_EQ( Jericho2EgressPortEnc1Profile::hwValue( revisionOf( ChipType::BCM88480_B0 ), 1 ), 0 );
   EXPECT_FALSE( Jericho2EgressPortEnc1Profile::exists( revisionOf( ChipType::BCM88690_B0 ), 2 ) );
   EXPECT_FALSE( Jericho2EgressPortEnc1Profile::exists( revisionOf( ChipType{ 13 } ), 1 ) );
}

TEST( EgressPortProfiles, giveATrapPortItsOwnValue ) {
   for ( ChipType const chipType : Hardware::allChipTypes ) {
      EXPECT_NE( Jericho2EgressPortTrapProfile::hwValue( revisionOf( chipType ), 1 ),
                 Jericho2EgressPortTrapProfile::hwValue( revisionOf( chipType ), 2 ) );
   }
   EXPECT_EQ( Jericho2EgressPortTrapProfile::hwValue( revisionOf( ChipType::BCM88850_A0 ), 1 ), 9 );
   EXPECT_EQ( Jericho2EgressPortTrapProfile::hwValue( revisionOf( ChipType::BCM88850_A0 ), 2 ), 12 );
}

DestinationId destinationOf( U32 destination, U32 fws ) {
   DestinationId destinationId;
   destinationId.destinationIs( destination );
   destinationId.fwsIs( fws );
   return destinationId;
}

TEST( DestinationId, isEncodedByNumberSchemeAndFapTypeInFewerThan21Bits ) {
   EXPECT_EQ( destinationOf( 226, 3 ).encodedDestId( FapType{ 3 } ), 0x600e2u );
   EXPECT_EQ( destinationOf( 0x2000, 4 ).encodedDestId( FapType{ 3 } ), 0x82000u );
   EXPECT_EQ( destinationOf( 0x3000, 4 ).encodedDestId( FapType{ 3 } ), 0x83000u );
   EXPECT_EQ( destinationOf( 0x3000, 4 ).encodedDestId( FapType{ 2 } ), 0x30004u );
   EXPECT_LT( destinationOf( 0xffff, 7 ).encodedDestId( FapType{ 3 } ), 1u << 20 );
}

TEST( DestinationId, isPrintedWithItsFourParts ) {
   DestinationId destinationId = destinationOf( 0x3000, 4 );
   destinationId.word2Is( 7 );
   destinationId.lastByteIs( 1 );
   std::ostringstream out;
   out << destinationId << " " << 10;
   EXPECT_EQ( out.str(), "destination 0x3000 word2 7 fws 4 lastByte 1 10" );
   EXPECT_EQ( destinationId.encodedDestId( FapType{ 3 } ), 0x93000u );
}

TEST( DestinationIdDeathTest, refusesWhatItCannotEncode ) {
   EXPECT_DEATH( destinationOf( 0x10000, 0 ).encodedDestId( FapType{ 3 } ), "destination_ <= 0xffff" );
   EXPECT_DEATH( destinationOf( 0, 8 ).encodedDestId( FapType{ 3 } ), "fws_ <= 7" );
}

TEST( WellKnown, lifsStandAtTheEndOfTheLifSpace ) {
   EXPECT_EQ( Jericho2VttConstants::wellKnownLifOffsetToHwIndex( 0 ), 4194240u );
   EXPECT_EQ( Jericho2VttConstants::wellKnownLifOffsetToHwIndex( 1 ), 4194242u );
   EXPECT_EQ( Jericho2VttConstants::wellKnownLifOffsetToHwIndex( 31 ), 4194302u );
   EXPECT_DEATH( Jericho2VttConstants::wellKnownLifOffsetToHwIndex( 32 ), "offset < wellKnownLifs" );
}

TEST( WellKnown, outgoingRouterInterfacesGoByMajorRevision ) {
   EXPECT_EQ( ExtendedVlanConstants::numOutRifSupportedByFapRevMajor( 5 ), 32768 );
   EXPECT_EQ( ExtendedVlanConstants::numOutRifSupportedByFapRevMajor( 8 ), 49152 );
   EXPECT_EQ( ExtendedVlanConstants::numOutRifSupportedByFapRevMajor( 1000 ), 4096 );
}

TEST( WellKnown, recycleProfilesShareTheTrapOfAnMtuFailure ) {
   EXPECT_EQ( jericho2IppeRecycFwdProfileToTrapMap.at( 13 ), 5 );
   EXPECT_EQ( jericho2IppeRecycFwdProfileToTrapMap.at( 6 ), 5 );
   for ( auto const & [profile, trapCode] : jericho2IppeRecycFwdProfileToTrapMap ) {
      EXPECT_LT( profile, 16 );
      EXPECT_LT( trapCode, 512 );
   }
   EXPECT_LT( EtpsArpAcResultType::hwValue(), 64 );
}

} // namespace
