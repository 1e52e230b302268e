#include "BuildFolder.h"
#include "ChipView.h"
#include "rex/Log.h"

#include <elf.h>
#include <fstream>
#include <gtest/gtest.h>

using namespace Test;

namespace {

constexpr char const * info = "routing/mpls/routingInfo/status";
constexpr char const * driver = "shared/driverSetupSmStateInfo";

// The actions of the microcode that lead to a lookup of one label: the entry, the word without its target, the target
// as this chip (BCM88690_B0) numbers its contexts.
struct Action {
   U32 entry;
   U64 upper;
   U64 target;
};
// To 63 (one label) and 3 (one label, terminated); two labels are 18.
constexpr Action flpacs[] = { { 8, 0x0f, 63 },
                              { 13, 0x45, 63 },
                              { 18, 0x5e, 63 },
                              { 22, 0x3e, 63 },
                              { 25, 0x31, 3 },
                              { 34, 0x07, 3 },
                              { 62, 0x0a, 63 },
                              { 71, 0x33, 3 },
                              { 73, 0x39, 3 },
                              { 104, 0x03, 3 },
                              { 105, 0x32, 63 },
                              { 108, 0x7c, 63 } };
// To 47 (label) and 14 (terminated label); with the fallback those become 44 and 23.
constexpr Action vtecs[] = { { 0, 0x5b, 47 },
                             { 48, 0x77, 14 },
                             { 55, 0x51, 47 },
                             { 92, 0x1a, 47 },
                             { 97, 0x3f, 14 },
                             { 101, 0x20, 14 },
                             { 107, 0x40, 47 },
                             { 119, 0x60, 47 },
                             { 121, 0x07, 14 },
                             { 124, 0x47, 47 },
                             { 125, 0x53, 14 } };

std::vector< std::string > writesOf( char const * table, std::span< Action const > actions ) {
   std::vector< std::string > texts;
   for ( auto const & action : actions ) {
      texts.push_back( std::string( "write " ) + table + " 0/0/" + std::to_string( action.entry ) );
   }
   return texts;
}

void expectFlpacs( TestSwitch const & sw, bool twoLabels ) {
   for ( auto const & action : flpacs ) {
      EXPECT_EQ( sw.field( { "IppbFlpacsAction", 0, 0, action.entry }, "flpacsAction" ),
                 action.upper << 6 | ( twoLabels ? 18 : action.target ) );
   }
}
void expectVtecs( TestSwitch const & sw, bool fallback ) {
   for ( auto const & action : vtecs ) {
      U64 const target = !fallback ? action.target : action.target == 47 ? 44 : 23;
      EXPECT_EQ( sw.field( { "IppaVtecsAction", 0, 0, action.entry }, "vtecsAction" ), action.upper << 6 | target );
   }
}

// What the operator is told.
class Logged {
 public:
   Logged() {
      Rex::logSinkIs( [this]( Rex::LogEntry const & entry ) { codes.emplace_back( entry.message.code ); } );
   }
   ~Logged() { Rex::logSinkIs( {} ); }
   std::vector< std::string > codes;
};
constexpr char const * conflict = "DACE_MULTI_LABEL_LOOKUP_COUNT_MPLS_FALLBACK_IP_NOT_SUPPORTED";

TEST( Mpls, startsWithTheMicrocodesOwnWords ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   expectFlpacs( sw, false );
   expectVtecs( sw, false );
   EXPECT_EQ( sw.operations( "FlpacsAction" ), writesOf( "IppbFlpacsAction", flpacs ) );
   EXPECT_EQ( sw.operations( "VtecsAction" ), writesOf( "IppaVtecsAction", vtecs ) );
   for ( auto const & row : sw.rows() ) {
      if ( row.table == "IppbFlpacsAction" || row.table == "IppaVtecsAction" ) {
         EXPECT_FALSE( row.changed );
      }
   }
}

TEST( Mpls, twoLabelsLeadElsewhereAndOneLabelBack ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   sw.set( info, "mplsLookupLabelCount", 2 );
   expectFlpacs( sw, true );
   EXPECT_EQ( sw.operations(), writesOf( "IppbFlpacsAction", flpacs ) ); // without a read, and nothing else
   sw.set( info, "mplsLookupLabelCount", 1 );
   expectFlpacs( sw, false );
}

TEST( Mpls, fallbackLeadsElsewhereAndBack ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   sw.set( info, "mplsLookupFallbackIp", true );
   expectVtecs( sw, true );
   EXPECT_EQ( sw.operations(), writesOf( "IppaVtecsAction", vtecs ) );
   sw.set( info, "mplsLookupFallbackIp", false );
   expectVtecs( sw, false );
}

TEST( Mpls, aConflictIsToldAndLeavesTheChip ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   sw.set( info, "mplsLookupLabelCount", 2 );
   Logged const logged;
   sw.set( info, "mplsLookupFallbackIp", true );
   EXPECT_EQ( logged.codes, std::vector< std::string >{ conflict } );
   EXPECT_TRUE( sw.rows().empty() );
   // What came first stays in force until the conflict is gone; then each setting rewrites its own table.
   sw.set( info, "mplsLookupLabelCount", 1 );
   EXPECT_EQ( sw.operations(), writesOf( "IppbFlpacsAction", flpacs ) );
   expectFlpacs( sw, false );
   expectVtecs( sw, false );
   sw.set( info, "mplsLookupFallbackIp", false );
   sw.set( info, "mplsLookupFallbackIp", true );
   expectVtecs( sw, true );
   EXPECT_EQ( logged.codes.size(), 1u );
   sw.set( info, "mplsLookupLabelCount", 2 );
   EXPECT_EQ( logged.codes.size(), 2u );
   EXPECT_TRUE( sw.rows().empty() );
}

TEST( Mpls, aConflictAtStartIsToldByBoth ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.setAttributes( info, Object{ { "mplsLookupLabelCount", 2 }, { "mplsLookupFallbackIp", true } } );
   Logged const logged;
   sw.start();
   EXPECT_EQ( logged.codes, ( std::vector< std::string >{ conflict, conflict } ) );
   EXPECT_TRUE( sw.operations( "FlpacsAction" ).empty() );
   EXPECT_TRUE( sw.operations( "VtecsAction" ).empty() );
}

TEST( Mpls, aChipWithoutTheContextsIsLeftAlone ) {
   struct {
      ChipType chip;
      bool flpacs;
      bool vtecs;
   } const rows[] = {
      { ChipType::BCM88800_A0, true, false }, // no context for a label or IP
      { ChipType::BCM88850_A0, true, true },
      { ChipType::BCM88859_A2, false, false }, // the contexts are there, but no action leads to one
      { ChipType::BCM88480_A0, false, false }, // no context for two labels, nor for a terminated label or IP
      { ChipType::BCM88480_B0, true, true },
   };
   for ( auto const & row : rows ) {
      TestSwitch sw( { row.chip } );
      sw.start();
      sw.set( info, "mplsLookupLabelCount", 2 );
      EXPECT_EQ( sw.operations( "FlpacsAction" ).size(), row.flpacs ? 12u : 0u ) << row.chip;
      sw.set( info, "mplsLookupLabelCount", 1 );
      sw.set( info, "mplsLookupFallbackIp", true );
      EXPECT_EQ( sw.operations( "VtecsAction" ).size(), row.vtecs ? 11u : 0u ) << row.chip;
   }
}

TEST( Mpls, aCountThatIsNeitherEndsTheProcessAtTheFirstAction ) {
   EXPECT_DEATH(
      {
         TestSwitch sw( { ChipType::BCM88690_B0 } );
         sw.start();
         sw.set( info, "mplsLookupLabelCount", 3 );
      },
      "Unexpected mplsLookupLabelCount value: 3" );
}

TEST( Mpls, aCountThatIsNeitherDoesNothingOnAChipWithoutTheContext ) {
   TestSwitch sw( { ChipType::BCM88480_A0 } );
   sw.start();
   sw.set( info, "mplsLookupLabelCount", 3 );
   EXPECT_TRUE( sw.rows().empty() );
}

TEST( Mpls, theFallbackIsForOneUcodeProfileTheLabelCountForAll ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.set( driver, "ucodeProfile", 1 );
   sw.start();
   EXPECT_TRUE( sw.operations( "VtecsAction" ).empty() );
   {
      Traced const traced( "DaceFapNiL3Sm", 5 );
      sw.set( info, "mplsLookupFallbackIp", true );
      EXPECT_EQ( traced.texts,
                 ( std::vector< std::string >{
                    "5 L3Sm::setupMplsLookupFbIpFwdContext: not supported ucode profile, return" } ) );
      EXPECT_TRUE( sw.rows().empty() );
   }
   sw.set( driver, "ucodeProfile", 2 );
   expectVtecs( sw, true );
   EXPECT_EQ( sw.rows()[0].cause, "shared/driverSetupSmStateInfo ucodeProfile" );
   sw.set( driver, "ucodeProfile", 1 );
   EXPECT_TRUE( sw.rows().empty() );
   sw.set( info, "mplsLookupFallbackIp", false );
   sw.set( info, "mplsLookupLabelCount", 2 );
   expectFlpacs( sw, true );
}

TEST( Mpls, tellsTheSettingAndEachEntry ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   Traced const traced( "DaceFapNiL3Sm", 5 );
   sw.set( info, "mplsLookupLabelCount", 2 );
   ASSERT_EQ( traced.texts.size(), 13u );
   EXPECT_EQ( traced.texts[0], "5 L3Sm::setupMplsFwdContext, mplsLookupLabelCount=2" );
   EXPECT_EQ( traced.texts[1], "5 L3Sm::doWriteFlpacsAction, entryIndex=8" );
   EXPECT_EQ( traced.texts[12], "5 L3Sm::doWriteFlpacsAction, entryIndex=108" );
   sw.set( info, "mplsLookupLabelCount", 1 );
   sw.set( info, "mplsLookupFallbackIp", true );
   EXPECT_EQ( traced.texts.back(), "5 L3Sm::setupMplsLookupFbIpFwdContext, mplsLookupFallbackIp=true" );
}

TEST( Mpls, waitsForInitialization ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.set( "shared/phySmStateData", "allEthPhyIntfConfigDir", nullptr );
   sw.start();
   Traced const traced( "DaceFapNiL3Sm", 5 );
   sw.set( info, "mplsLookupLabelCount", 2 );
   sw.set( driver, "ucodeProfile", 3 );
   EXPECT_TRUE( traced.texts.empty() );
   EXPECT_TRUE( sw.rows().empty() );
   sw.set( "shared/phySmStateData", "allEthPhyIntfConfigDir", Object{} );
   expectFlpacs( sw, true );
}

// The plug-in's file: sections and relocations, as far as a reader of messages needs them.
class ElfFile {
 public:
   explicit ElfFile( std::string const & path ) {
      std::ifstream in( path, std::ios::binary );
      bytes_.assign( std::istreambuf_iterator< char >( in ), {} );
   }
   template< class T >
   T at( U64 offset ) const {
      T value{};
      EXPECT_LE( offset + sizeof value, bytes_.size() );
      std::memcpy( &value, bytes_.data() + offset, sizeof value );
      return value;
   }
   std::optional< Elf64_Shdr > section( std::string const & name ) const {
      auto const header = at< Elf64_Ehdr >( 0 );
      auto const names = sectionAt( header, header.e_shstrndx );
      for ( U32 index = 0; index < header.e_shnum; ++index ) {
         auto const found = sectionAt( header, index );
         if ( text( names.sh_offset + found.sh_name ) == name ) {
            return found;
         }
      }
      return {};
   }
   // The text that the pointer at an address is relocated to.
   std::string pointedText( U64 address ) const {
      auto const relocations = section( ".rela.dyn" );
      for ( U64 at = 0; relocations && at < relocations->sh_size; at += sizeof( Elf64_Rela ) ) {
         auto const relocation = this->at< Elf64_Rela >( relocations->sh_offset + at );
         if ( relocation.r_offset == address ) {
            return text( offsetOf( static_cast< U64 >( relocation.r_addend ) ) );
         }
      }
      return "(not relocated)";
   }

 private:
   Elf64_Shdr sectionAt( Elf64_Ehdr const & header, U32 index ) const {
      return at< Elf64_Shdr >( header.e_shoff + U64{ index } * header.e_shentsize );
   }
   U64 offsetOf( U64 address ) const {
      auto const header = at< Elf64_Ehdr >( 0 );
      for ( U32 index = 0; index < header.e_phnum; ++index ) {
         auto const segment = at< Elf64_Phdr >( header.e_phoff + U64{ index } * header.e_phentsize );
         if ( segment.p_type == PT_LOAD && address - segment.p_vaddr < segment.p_filesz ) {
            return address - segment.p_vaddr + segment.p_offset;
         }
      }
      return 0;
   }
   std::string text( U64 offset ) const { return bytes_.data() + offset; }

   std::vector< char > bytes_;
};

TEST( MplsLog, theLibraryHoldsOneMessageInItsSection ) {
   ElfFile const library( buildFolder() + "/lib/libL3SmPlugin.so" );
   auto const section = library.section( ".veloro_logmsg" );
   ASSERT_TRUE( section );
   ASSERT_EQ( section->sh_size, 4 * 8u + 2 * 4 );
   U64 const at = section->sh_addr;
   EXPECT_EQ( library.pointedText( at ), "DACE_MULTI_LABEL_LOOKUP_COUNT_MPLS_FALLBACK_IP_NOT_SUPPORTED" );
   EXPECT_EQ( library.pointedText( at + 8 ),
              "Configurations 'mpls lookup label count 2' and 'mpls lookup fallback ip' cannot co-exist." );
   EXPECT_EQ( library.pointedText( at + 16 ),
              "Configuration 'mpls lookup fallback ip' doesn't support 2 MPLS label lookup." );
   EXPECT_EQ( library.pointedText( at + 24 ), "Please unconfigure either of the two." );
   EXPECT_EQ( library.at< U32 >( section->sh_offset + 32 ), 3u );
   EXPECT_EQ( library.at< U32 >( section->sh_offset + 36 ), 0u );
}

TEST( MplsLog, anOperatorSeesItWithoutALimit ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   sw.set( info, "mplsLookupLabelCount", 2 );
   Logged const logged;
   for ( int time = 0; time < 5; ++time ) {
      sw.set( info, "mplsLookupFallbackIp", true );
      sw.set( info, "mplsLookupFallbackIp", false );
   }
   EXPECT_EQ( logged.codes.size(), 5u );
}

} // namespace
