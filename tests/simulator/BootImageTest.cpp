#include "simulator/BootImage.h"
#include "simulator/ChipContents.h"
#include "simulator/TableMap.h"

#include "constants/Contexts.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

using namespace Simulator;
using Hardware::ChipType;

namespace {

// A chip as it boots.
struct Booted {
   explicit Booted( ChipType chipType_ ) : chipType( chipType_ ), chip( ChipId{ 0 }, "chip", addressMap( chipType_ ) ) {
      boot( chip, chipType );
      contents = contentsOf( chip, chipType );
   }
   Words const & words( char const * table, U32 variant, U32 array, U32 entry ) const {
      return contents.tables.at( table ).at( variant ).at( array ).at( entry ).copies[0];
   }
   U64 field( char const * table, U32 variant, U32 array, U32 entry, char const * name ) const {
      auto const & layout =
         *Catalogue::layout( *Catalogue::table( table ), static_cast< U8 >( chipType ), static_cast< U8 >( variant ) );
      return fieldBits( words( table, variant, array, entry ), *layout.field( name ) );
   }

   ChipType chipType;
   Chip chip;
   Contents contents;
};

TEST( BootImage, fillsEveryEntryOfEveryTableButTheLookupMemories ) {
   for ( ChipType const chipType : Hardware::allChipTypes ) {
      Booted const booted( chipType );
      for ( auto const & table : Catalogue::tables() ) {
         std::string const name = table.name;
         bool const isLookup =
            name == "Ipv4PcremFwdDestPcrem" || name == "PrivateHostReducedVrf" || name == "PpmcDoubleOutLifSwap";
         bool const isThere = std::ranges::count( table.chips, static_cast< U8 >( chipType ) ) == 1;
         EXPECT_EQ( booted.contents.tables.contains( name ), table.hasMemory && isThere && !isLookup ) << name;
      }
      EXPECT_EQ( booted.contents.tables.at( "VsiProfileEnablers" ).at( 1 ).at( 4 ).size(), 256u );
      EXPECT_EQ( booted.contents.tables.at( "IppbProgTrapCfg" ).at( 0 ).size(), 8u );
   }
}

TEST( BootImage, isNeverZeroAndTheSameInEveryCopy ) {
   Booted const booted( ChipType::BCM88850_A0 );
   for ( auto const & [name, variants] : booted.contents.tables ) {
      for ( auto const & [variant, arrays] : variants ) {
         for ( auto const & [array, entries] : arrays ) {
            for ( auto const & [entry, contents] : entries ) {
               ASSERT_EQ( contents.copies.size(), 1u ) << name;
               EXPECT_NE( contents.copies[0], Words( contents.copies[0].size(), 0 ) ) << name << " " << entry;
            }
         }
      }
   }
}

TEST( BootImage, setsNoBitOutsideTheFields ) {
   for ( ChipType const chipType : Hardware::allChipTypes ) {
      Booted const booted( chipType );
      // Fields of 5, 3 and 13 bits.
      for ( auto const & [entry, contents] : booted.contents.tables.at( "IppbFlpPortProfileMap" ).at( 0 ).at( 0 ) ) {
         EXPECT_LT( contents.copies[0][0], 1u << 5 );
      }
      for ( auto const & [entry, contents] : booted.contents.tables.at( "EtppInlifOrientationMap" ).at( 0 ).at( 0 ) ) {
         EXPECT_LT( contents.copies[0][0], 1u << 3 );
      }
      for ( auto const & [entry, contents] : booted.contents.tables.at( "IppbFlpacsAction" ).at( 0 ).at( 0 ) ) {
         EXPECT_LT( contents.copies[0][0], 0x2000u );
      }
   }
}

TEST( BootImage, isTheSameAtEveryBootAndDiffersFromChipToChipAndEntryToEntry ) {
   Booted const first( ChipType::BCM88690_B0 );
   Booted const second( ChipType::BCM88690_B0 );
   EXPECT_EQ( first.contents, second.contents );

   Booted const other( ChipType::BCM88800_A0 );
   EXPECT_NE( first.words( "InLifProfileCsFlagsLsb", 0, 1, 0 ), other.words( "InLifProfileCsFlagsLsb", 0, 1, 0 ) );

   std::set< Words > different;
   for ( auto const & [entry, contents] : first.contents.tables.at( "IppbFlpLePd0" ).at( 0 ).at( 0 ) ) {
      different.insert( contents.copies[0] );
   }
   EXPECT_EQ( different.size(), 64u );
}

TEST( BootImage, hasTheMicrocodesActions ) {
   Booted const booted( ChipType::BCM88690_B0 );
   // BCM88690_B0: the second stage counts one-label contexts 63 and 3, the first stage its label contexts 47 and 14.
   int flpacs = 0;
   int vtecs = 0;
   for ( U32 entry = 0; entry < 128; ++entry ) {
      U32 const toFlpacs = booted.words( "IppbFlpacsAction", 0, 0, entry )[0] & 0x3f;
      U32 const toVtecs = booted.words( "IppaVtecsAction", 0, 0, entry )[0] & 0x3f;
      flpacs += toFlpacs == 63 || toFlpacs == 3;
      vtecs += toVtecs == 47 || toVtecs == 14;
   }
   EXPECT_EQ( flpacs, 12 );
   EXPECT_EQ( vtecs, 11 );
   EXPECT_EQ( booted.words( "IppbFlpacsAction", 0, 0, 71 )[0], 0x33u << 6 | 3 );
}

TEST( BootImage, choosesPlainAndQosProgramsForBridgedVxlanAfterTheNopContextAndAfterOthers ) {
   char const * const table = "EtppcEncapsulation2ContextSelectionCam";
   Booted const booted( ChipType::BCM88690_B0 ); // contexts 31, 27, 62, 45 and, before, 10 for the NOP
   EXPECT_EQ( booted.field( table, 0, 0, 5, "program" ), 2u * 31 + 1 );
   EXPECT_EQ( booted.field( table, 0, 0, 5, "currentContext" ), 10u );
   EXPECT_EQ( booted.field( table, 0, 0, 6, "program" ), 2u * 31 + 1 );
   EXPECT_NE( booted.field( table, 0, 0, 6, "currentContext" ), 10u );
   EXPECT_EQ( booted.field( table, 0, 0, 11, "program" ), 2u * 62 + 1 );
   EXPECT_EQ( booted.field( table, 0, 0, 20, "program" ), 2u * 27 + 1 );
   EXPECT_EQ( booted.field( table, 0, 0, 28, "program" ), 2u * 45 + 1 );
   EXPECT_EQ( booted.field( table, 0, 0, 67, "program" ), 2u * 31 + 1 );

   Booted const profiled( ChipType::BCM88859_A2 ); // the plain context is 40, and profile 0 stands for the NOP
   EXPECT_EQ( profiled.field( table, 0, 0, 5, "program" ), 2u * 40 + 1 );
   EXPECT_EQ( profiled.field( table, 0, 0, 5, "currentContextProfile" ), 0u );
   EXPECT_NE( profiled.field( table, 0, 0, 6, "currentContextProfile" ), 0u );
}

TEST( BootImage, leadsEveryOtherRowOfTheEncapsulationElsewhere ) {
   using namespace DacePPExport;
   for ( ChipType const chipType : Hardware::allChipTypes ) {
      Booted const booted( chipType );
      std::map< U64, int > programs;
      for ( U32 entry = 0; entry < 68; ++entry ) {
         ++programs[booted.field( "EtppcEncapsulation2ContextSelectionCam", 0, 0, entry, "program" )];
      }
      EXPECT_EQ( programs[2 * ctx_encap_2_value( chipType, ctx_encap_2{ 22 } ) + 1], 4 ) << chipType;
      EXPECT_EQ( programs[2 * ctx_encap_2_value( chipType, ctx_encap_2{ 38 } ) + 1], 3 ) << chipType;
      EXPECT_EQ( programs[2 * ctx_encap_2_value( chipType, ctx_encap_2{ 23 } ) + 1], 2 ) << chipType;
      EXPECT_EQ( programs[2 * ctx_encap_2_value( chipType, ctx_encap_2{ 37 } ) + 1], 2 ) << chipType;
   }
}

TEST( BootImage, recyclesTwoUnnamedProfilesToTheTrapOfAnMtuFailure ) {
   Booted const booted( ChipType::BCM88690_B0 );
   EXPECT_EQ( booted.field( "IppeRecycFwdProfileMapping", 0, 0, 0, "recycFwdTrapCode2" ), 5u );
   EXPECT_EQ( booted.field( "IppeRecycFwdProfileMapping", 0, 0, 0, "recycFwdTrapCode8" ), 5u );
}

// The 29 bits of instruction number `number` of a context.
U64 instruction( Booted const & booted, U32 context, U32 number ) {
   struct {
      U32 first, toAnEntry, arrays;
   } const memories[] = { { 0, 2, 1 }, { 2, 4, 1 }, { 6, 4, 2 }, { 14, 4, 4 }, { 30, 4, 2 } };
   for ( U32 variant = 0; variant < 5; ++variant ) {
      auto const & memory = memories[variant];
      if ( number < memory.first + memory.toAnEntry * memory.arrays ) {
         U32 const in = number - memory.first;
         std::string const field = "ffcInstruction" + std::to_string( in % memory.toAnEntry );
         return booted.field( "FwdFfcTable", variant, in / memory.toAnEntry, context, field.c_str() );
      }
   }
   return ~U64{ 0 };
}

// A context's program for a key: its instructions from a header, and its literal ones.
struct Key {
   U64 database;
   std::vector< U64 > header;
   std::vector< U64 > literal;
   int others = 0;
};
Key keyOf( Booted const & booted, U32 context, U32 array ) {
   Key key{ booted.field( "FwdKbrTable", 0, array, context, "appDb" ), {}, {} };
   U64 const taking = booted.field( "FwdKbrTable", 0, array, context, "kbr" );
   for ( U32 number = 0; number < 38; ++number ) {
      if ( taking >> number & 1 ) {
         U64 const word = instruction( booted, context, number );
         if ( word >> 27 == 0 ) {
            key.header.push_back( word );
         } else if ( word >> 25 == 8 ) {
            key.literal.push_back( word );
         } else {
            ++key.others;
         }
      }
   }
   return key;
}

TEST( BootImage, buildsTheUnifiedIpv4KeyOfOneHeaderFieldAndOneLiteral ) {
   for ( ChipType const chipType : Hardware::allChipTypes ) {
      Booted const booted( chipType );
      U32 const context = DacePPExport::ctx_fwd2_value( chipType, DacePPExport::ctx_fwd2{ 23 } );
      Key const key = keyOf( booted, context, 6 );
      EXPECT_EQ( key.database, 23u );
      ASSERT_EQ( key.header.size(), 1u ) << chipType;
      ASSERT_EQ( key.literal.size(), 1u ) << chipType;
      EXPECT_EQ( key.others, 2 );
      // The leading 21 bits of the destination at the bottom of the key, the VRF (5 bits, 4 on the small chips) above.
      EXPECT_EQ( key.header[0], 1003u << 13 | 20u << 8 | 0u );
      bool const isSmall = chipType == ChipType::BCM88480_A0 || chipType == ChipType::BCM88480_B0;
      EXPECT_EQ( key.literal[0] & 0x1fff, ( isSmall ? 3u : 4u ) << 8 | 21u );
   }
}

TEST( BootImage, buildsOneKeyForTheReducedDatabaseAndHasOneOfHosts ) {
   for ( ChipType const chipType : Hardware::allChipTypes ) {
      Booted const booted( chipType );
      U32 const unified = DacePPExport::ctx_fwd2_value( chipType, DacePPExport::ctx_fwd2{ 23 } );
      int reduced = 0;
      for ( U32 context = 0; context < 64; ++context ) {
         for ( U32 array = 0; array < 18; ++array ) {
            reduced += booted.field( "FwdKbrTable", 0, array, context, "appDb" ) == 23;
         }
      }
      EXPECT_EQ( reduced, 1 ) << chipType;
      EXPECT_EQ( booted.field( "FwdKbrTable", 0, 9, unified, "appDb" ), 22u );
   }
}

TEST( BootImage, hasNoInstructionWithoutAFormat ) {
   Booted const booted( ChipType::BCM88800_A0 );
   for ( U32 context = 0; context < 64; ++context ) {
      for ( U32 number = 0; number < 38; ++number ) {
         U64 const word = instruction( booted, context, number );
         EXPECT_TRUE( word >> 27 != 2 || word >> 25 == 8 ) << context << " " << number;
      }
   }
}

} // namespace
