// The library as it was built: what it needs, what it takes from the platform, and what it offers to others.
#include "BuildFolder.h"
#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <memory>

namespace {

using Names = std::set< std::string >;

std::string const plugin = buildFolder() + "/lib/libL3SmPlugin.so";
std::string const platform = buildFolder() + "/lib/libL3SmPlatform.so";

std::vector< std::string > linesOf( std::string const & command ) {
   std::vector< std::string > lines;
   std::unique_ptr< FILE, int ( * )( FILE * ) > const pipe( ::popen( command.c_str(), "r" ), ::pclose );
   std::string line;
   for ( int c = 0; pipe && ( c = std::fgetc( pipe.get() ) ) != EOF; ) {
      if ( c == '\n' ) {
         lines.push_back( std::exchange( line, {} ) );
      } else {
         line += static_cast< char >( c );
      }
   }
   return lines;
}

struct Symbol {
   std::string name; // as the compiler writes it for people, or as it stands
   char kind;        // U is taken from elsewhere; W, V and w are weak
};

std::vector< Symbol > symbolsOf( std::string const & library, std::string const & options ) {
   std::vector< Symbol > symbols;
   for ( auto const & line : linesOf( "nm -D " + options + " '" + library + "'" ) ) {
      // The value's 16 digits or as many blanks, the kind, the name.
      if ( line.size() > 19 ) {
         symbols.push_back( { line.substr( 19 ), line[17] } );
      }
   }
   return symbols;
}

// The names up to their arguments.
Names demangled( std::vector< Symbol > const & symbols, auto holds ) {
   Names names;
   for ( auto const & symbol : symbols ) {
      if ( holds( symbol ) ) {
         names.insert( symbol.name.substr( 0, symbol.name.find( '(' ) ) );
      }
   }
   return names;
}

TEST( Library, needsThePlatformAndTheRuntimeOfTheLanguage ) {
   Names needed;
   for ( auto const & line : linesOf( "readelf --dynamic --wide '" + plugin + "'" ) ) {
      if ( line.find( "(NEEDED)" ) != std::string::npos ) {
         needed.insert( line.substr( line.find( '[' ) + 1, line.find( ']' ) - line.find( '[' ) - 1 ) );
      }
   }
   Names const runtime{ "libstdc++.so.6", "libgcc_s.so.1", "libc.so.6", "libm.so.6", "libasan.so.8", "libubsan.so.1" };
   // The platform goes by the version that its classes lie open at.
   EXPECT_EQ( std::erase_if( needed, []( auto & name ) { return name.starts_with( "libL3SmPlatform.so" ); } ), 1u );
   EXPECT_TRUE( needed.contains( "libstdc++.so.6" ) );
   EXPECT_TRUE( std::ranges::includes( runtime, needed ) ) << testing::PrintToString( needed );
   EXPECT_EQ( needed.contains( "libasan.so.8" ), isSanitized() );
}

// What the runtime of the language gives has a version; everything else must be the platform's.
TEST( Library, takesFromThePlatformWhatThePlatformHas ) {
   Names offered;
   for ( auto const & symbol : symbolsOf( platform, "--defined-only" ) ) {
      offered.insert( symbol.name );
   }
   ASSERT_GT( offered.size(), 500u );
   std::size_t taken = 0;
   for ( auto const & symbol : symbolsOf( plugin, "--undefined-only" ) ) {
      bool const isRuntime = symbol.name.find( '@' ) != std::string::npos || symbol.kind == 'w' ||
                             symbol.name.starts_with( "__asan" ) || symbol.name.starts_with( "__ubsan" );
      if ( !isRuntime ) {
         ++taken;
         EXPECT_TRUE( offered.contains( symbol.name ) ) << symbol.name;
      }
   }
   EXPECT_GT( taken, 100u );
}

TEST( Library, takesTheNamesThatAPlatformMustHave ) {
   auto const taken = demangled( symbolsOf( plugin, "--undefined-only --demangle" ), []( auto & ) { return true; } );
   for ( char const * name : { "getToggleState",
                               "DaceFapNi::defaultPluginLoader",
                               "Plugin::Impl::LoaderImpl::registerPlugin",
                               "Agent::MounterPlugin::MounterBase::init",
                               "DaceFapNi::MounterRunnabilitySm::MounterRunnabilitySmIs",
                               "DaceFapNi::MounterRunnabilitySmBase::runnableStatesIs",
                               "typeinfo for DaceFapNi::ChipInitConfigDir",
                               "Cell::path[abi:cxx11]",
                               "Stordb::EntityManager::getMountGroup",
                               "Stordb::EntityManager::getEntity",
                               "Stordb::Mount::handleFlags",
                               "Stordb::MountGroup::doMount",
                               "Stordb::MountGroup::doClose",
                               "DaceSal::switchControlSalFactory",
                               "Routing::Hardware::prefixLensInExactMatchFactory",
                               "Interface::syncMtuSubIntfWalkSmFactory",
                               "Interface::syncMtuDataFactory",
                               "Interface::SyncMtuSubIntfWalkSm::syncMtu",
                               "Interface::SyncMtuSubIntfWalkSm::reset",
                               "Interface::L3MtuSm::L3MtuSmIs",
                               "EthIntf::EthIntfVrfSmHelper::doStartSm",
                               "DacePPExport::ctx_fwd1_value",
                               "DacePPExport::ctx_fwd1_exists",
                               "DacePPExport::ctx_fwd2_value",
                               "DacePPExport::ctx_fwd2_exists",
                               "DacePPExport::ctx_encap_1_value",
                               "DacePPExport::ctx_encap_2_value",
                               "DacePPExport::IPPB_FLPACS_ACTION_ENTRY",
                               "DacePPExport::IPPA_VTECS_ACTION_ENTRY",
                               "Hardware::Dace::DestinationId::encodedDestId",
                               "Hardware::Dace::FfcModifierSm::findInterestingInstructions",
                               "Hardware::Dace::FfcModifierSm::handleFfcModification",
                               "DaceSal::AsicUtils::DaceSalAsicRegBase::doReadAny",
                               "DaceSal::AsicUtils::DaceSalAsicRegBase::doWriteAll",
                               "DaceSal::AsicUtils::DaceSalAsicTableBase::doReadAny",
                               "DaceSal::AsicUtils::DaceSalAsicTableBase::doWriteAll",
                               "DaceSal::AsicUtils::DaceSalAsicTableBase::doWriteCore",
                               "Rex::log",
                               "Rex::throwMutatorArgNullPointerException",
                               "Rex::Impl::throwBadOptionalAccess" } ) {
      EXPECT_TRUE( taken.contains( name ) ) << name;
   }
}

TEST( Library, offersNamesOfItsOwnOnly ) {
   auto const strong = []( auto & symbol ) { return std::string( "TDBR" ).find( symbol.kind ) != std::string::npos; };
   auto const offered = demangled( symbolsOf( plugin, "--defined-only --demangle" ), strong );
   ASSERT_GT( offered.size(), 100u );
   for ( auto const & name : offered ) {
      bool const own = name.starts_with( "DaceFapNi::" ) || name.starts_with( "Hardware::" ) ||
                       name.find( " for DaceFapNi::" ) != std::string::npos ||
                       name.find( " for Hardware::" ) != std::string::npos || name.starts_with( "__asan" ) ||
                       name.starts_with( "__odr_asan" );
      EXPECT_TRUE( own ) << name;
   }
   for ( char const * name : { "DaceFapNi::l3SmFactory",
                               "DaceFapNi::L3Sm::L3SmIs",
                               "DaceFapNi::l3IntfSmFactory",
                               "DaceFapNi::L3IntfSm::L3IntfSmIs",
                               "DaceFapNi::mplsParserCfgSmFactory",
                               "DaceFapNi::MplsParserCfgSm::MplsParserCfgSmIs",
                               "DaceFapNi::gueNexthopGroupSmFactory",
                               "DaceFapNi::GueNexthopGroupSm::GueNexthopGroupSmIs",
                               "DaceFapNi::vxlanQosSmFactory",
                               "DaceFapNi::VxlanQosSm::VxlanQosSmIs",
                               "DaceFapNi::vxlanSplitHorizonCfgSmFactory",
                               "DaceFapNi::VxlanSplitHorizonCfgSm::VxlanSplitHorizonCfgSmIs",
                               "DaceFapNi::daceL3UnicastVtiStatusDirSmFactory",
                               "DaceFapNi::DaceL3UnicastVtiStatusDirSm::DaceL3UnicastVtiStatusDirSmIs",
                               "DaceFapNi::remFfcModifierSmFactory",
                               "DaceFapNi::RemFfcModifierSm::RemFfcModifierSmIs",
                               "DaceFapNi::chipTypeToFapType",
                               "DaceFapNi::setOrientationForOutLifProfile",
                               "DaceFapNi::setLearningForUrpfOrFlpa",
                               "DaceFapNi::doWriteVttCsInLifProfLsb",
                               "Hardware::stringObj",
                               "Hardware::chipTypeVariantValid" } ) {
      bool const found = std::ranges::any_of( offered, [&]( auto & it ) { return it.starts_with( name ); } );
      EXPECT_TRUE( found ) << name;
   }
}

} // namespace
