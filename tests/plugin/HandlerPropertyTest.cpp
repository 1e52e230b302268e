// Random switches, chip contents and histories of the handlers' inputs. Whatever happened:
//    - the same inputs again change no word;
//    - the chips hold what a start with the final inputs leaves;
//    - bits that no handler owns are as they were.
#include "ChipView.h"
#include "simulator/ChipContents.h"
#include "state/Routing.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <set>

using namespace Test;
using Simulator::Contents;

namespace {

// ---- the inputs

// All inputs of the handlers. The two MPLS settings aren't on together, which is a conflict that leaves the chips as
// they are, and the ucode profile is the one with a fallback.
struct Inputs {
   std::map< int, int > lengths = {}; // by key
   bool loose = false;
   bool strict = false;
   int labels = 1;
   bool fallback = false;
   bool vxlan = false;
   bool mpls = false;
   bool dci = false;
   bool decapAll = false;
   std::map< int, int > hashModes = {}; // by slot; the own one is 3
   std::array< int, 4 > parser{ 255, 255, 255, 255 };
   bool parserConfigured = false;
};

std::ostream & operator<<( std::ostream & out, Inputs const & in ) {
   out << "lengths";
   for ( auto const & [key, length] : in.lengths ) {
      out << " " << key << ":" << length;
   }
   out << " loose " << in.loose << " strict " << in.strict << " labels " << in.labels << " fallback " << in.fallback
       << " vxlan " << in.vxlan << " mpls " << in.mpls << " dci " << in.dci << " decapAll " << in.decapAll << " modes";
   for ( auto const & [slot, mode] : in.hashModes ) {
      out << " " << slot << ":" << mode;
   }
   return out << " parser " << in.parser[0] << "," << in.parser[1] << "," << in.parser[2] << "," << in.parser[3] << " "
              << in.parserConfigured;
}

// Values by key, each key below a limit.
rc::Gen< std::map< int, int > > entries( int keys, std::vector< int > const & values ) {
   return rc::gen::exec( [=] {
      std::map< int, int > map;
      for ( int key = 0; key < keys; ++key ) {
         if ( *rc::gen::arbitrary< bool >() ) {
            map[key] = *rc::gen::elementOf( values );
         }
      }
      return map;
   } );
}

rc::Gen< Inputs > anyInputs() {
   auto const setting =
      rc::gen::weightedOneOf< int >( { { 1, rc::gen::just( 255 ) }, { 3, rc::gen::inRange( 0, 255 ) } } );
   return rc::gen::exec( [=] {
      Inputs in;
      in.lengths = *entries( 4, { 32, 24, 21, 16, 0 } );
      in.loose = *rc::gen::arbitrary< bool >();
      in.strict = *rc::gen::arbitrary< bool >();
      in.labels = *rc::gen::element( 1, 2 );
      in.fallback = in.labels == 1 && *rc::gen::arbitrary< bool >();
      in.vxlan = *rc::gen::arbitrary< bool >();
      in.mpls = *rc::gen::arbitrary< bool >();
      in.dci = *rc::gen::arbitrary< bool >();
      in.decapAll = *rc::gen::arbitrary< bool >();
      // A configuration that goes leaves the chip as it was, so the own slot's stays.
      in.hashModes = *entries( 5, { 0, 1, 2, 7 } );
      in.hashModes.emplace( 3, *rc::gen::element( 0, 1, 2, 7 ) );
      in.parser = { *setting, *setting, *setting, *setting };
      in.parserConfigured = *rc::gen::arbitrary< bool >();
      return in;
   } );
}

// ---- the switch

constexpr char const * route = "routing/hardware/route/status";
constexpr char const * mplsInfo = "routing/mpls/routingInfo/status";
constexpr char const * mplsConfig = "routing/mpls/config";
constexpr char const * lag = "hardware/dace/lag/daceLagStatus";

template< class T, class Map, class Set, class Del >
void mapIs( T const & present, Map const & wanted, Set set, Del del ) {
   std::set< int > gone;
   for ( auto const & [key, value] : present ) {
      gone.insert( key );
   }
   for ( auto const & [key, value] : wanted ) {
      gone.erase( key );
      set( key, value );
   }
   for ( int const key : gone ) {
      del( key );
   }
}

// Brings the inputs of a switch to `in`, as so many events.
void apply( TestSwitch & sw, Inputs const & in ) {
   std::map< int, int > lengths;
   for ( auto const & [key, length] : sw.entity< Routing::Hardware::RouteStatus >( route )->prefixLensInExactMatch() ) {
      lengths[key] = length;
   }
   mapIs(
      lengths,
      in.lengths,
      [&]( int key, int length ) { sw.setEntry( route, "prefixLensInExactMatch", std::to_string( key ), length ); },
      [&]( int key ) { sw.deleteEntry( route, "prefixLensInExactMatch", std::to_string( key ) ); } );
   sw.set( "routing/hardware/config", "urpfLooseFailForward", in.loose );
   sw.set( "routing/hardware/config", "urpfStrictFailForward", in.strict );
   // Out of the one setting before into the other.
   sw.set( mplsInfo, "mplsLookupFallbackIp", false );
   sw.set( mplsInfo, "mplsLookupLabelCount", in.labels );
   sw.set( mplsInfo, "mplsLookupFallbackIp", in.fallback );
   sw.set( "evpn/status", "vxlanEnabled", in.vxlan );
   sw.set( "evpn/status", "mplsEnabled", in.mpls );
   sw.set( "evpn/status", "evpnDciEnabled", in.dci );
   sw.set( "interface/status/eth/vxlan", "decapRouteAll", in.decapAll );
   std::map< int, int > modes;
   for ( auto const & [slot, config] : sw.entity< Hardware::DaceLag::Status >( lag )->slotLoadBalance() ) {
      modes[static_cast< int >( slot.value )] = config->guePktTypeHashMode();
   }
   mapIs(
      modes,
      in.hashModes,
      [&]( int slot, int mode ) {
         auto const path = std::string( lag ) + "/slotLoadBalance/" + std::to_string( slot );
         if ( modes.contains( slot ) && mode % 2 ) {
            sw.set( path, "guePktTypeHashMode", mode );
         } else {
            sw.setEntry( lag, "slotLoadBalance", std::to_string( slot ), Object{ { "guePktTypeHashMode", mode } } );
         }
      },
      [&]( int slot ) { sw.deleteEntry( lag, "slotLoadBalance", std::to_string( slot ) ); } );
   // Settings count when they are declared to be in force.
   sw.set( mplsConfig, "parserSettingsConfigured", false );
   for ( std::size_t setting = 0; setting < 4; ++setting ) {
      sw.set( mplsConfig, "parserSetting" + std::to_string( setting ), in.parser[setting] );
   }
   sw.set( mplsConfig, "parserSettingsConfigured", in.parserConfigured );
}

// Announces every input again, unchanged.
void announceAll( TestSwitch & sw ) {
   // What is merged is announced only where it differs: a length comes and goes that nobody looks at.
   sw.setEntry( route, "prefixLensInExactMatch", "200", 16 );
   sw.deleteEntry( route, "prefixLensInExactMatch", "200" );
   sw.announce( "routing/hardware/config", 0x192 );
   sw.announce( "routing/hardware/config", 0x193 );
   sw.announce( mplsInfo, 0x105 );
   sw.announce( mplsInfo, 0x106 );
   sw.announce( "shared/driverSetupSmStateInfo", 0x103 );
   sw.announce( "evpn/status", 0x102 );
   sw.announce( "evpn/status", 0x106 );
   sw.announce( "interface/status/eth/vxlan", 0x187 );
   sw.announce( std::string( lag ) + "/slotLoadBalance/3", 0x124 );
   sw.announce( mplsConfig, 0x117 );
}

// The FFC modifier is there; the route status reaches it and L3Sm through the merged state.
struct HandlerSwitch : TestSwitch {
   HandlerSwitch( std::vector< ChipType > const & chips, U32 seed )
      : TestSwitch( chips, { { "Dace.json", { { "ArmOrderedSwTable", false } } } } ) {
      setEntry( "shared/sliceSmStateData", "slotIds", "Linecard1", 3 );
      fillTables( seed );
   }
   std::vector< Contents > contents() const {
      std::vector< Contents > all;
      for ( auto const & fap : description().faps ) {
         all.push_back( Simulator::contentsOf( chip( fap.fapId ), fap.revision.chipType() ) );
      }
      return all;
   }

 private:
   // Gives the tables that the handlers change other contents than the boot image has, but for the key program and the
   // action words, which are found by their contents.
   void fillTables( U32 seed ) {
      for ( auto const & fap : description().faps ) {
         for ( char const * name : { "IppdFerTrapCfg",
                                     "IppbFlpLePd0",
                                     "IppbFlpLePd1",
                                     "IppbFlpLePd2",
                                     "FlpaInitContextEnablers",
                                     "FlpaResContextEnablers",
                                     "InLifProfileCsFlagsLsb",
                                     "ErppInlifOrientationMap",
                                     "EtppInlifOrientationMap",
                                     "VsiProfileEnablers" } ) {
            auto const & table = *Catalogue::table( name );
            for ( auto const & layout : table.layouts ) {
               if ( layout.chipType == static_cast< U8 >( fap.revision.chipType() ) ) {
                  for ( U32 const array : Simulator::arrayIndices( layout ) ) {
                     for ( U32 entry = 0; entry < Simulator::entryCount( layout ); ++entry ) {
                        std::vector< U32 > words( layout.width );
                        for ( U32 & word : words ) {
                           word = seed = seed * 1664525 + 1013904223;
                        }
                        chip( fap.fapId ).fill( Simulator::addressOf( layout, array, entry ), words );
                     }
                  }
               }
            }
         }
      }
   }
};

rc::Gen< std::vector< ChipType > > anyChips() {
   return rc::gen::exec( [] {
      std::vector< ChipType > chips{ *rc::gen::elementOf( Hardware::allChipTypes ) };
      if ( *rc::gen::arbitrary< bool >() ) {
         chips.push_back( *rc::gen::elementOf( Hardware::allChipTypes ) );
      }
      return chips;
   } );
}

// ---- what the handlers own

// Chip numbers of the contexts that matter, by chip: ctx_fwd1 36, 38, 39 (0 where it is missing), ctx_fwd2 23.
std::map< ChipType, std::array< U32, 4 > > const contexts{
   { ChipType::BCM88690_B0, { 45, 12, 16, 10 } },
   { ChipType::BCM88800_A0, { 44, 51, 8, 1 } },
   { ChipType::BCM88850_A0, { 26, 43, 1, 49 } },
   { ChipType::BCM88859_A2, { 16, 46, 41, 32 } },
   { ChipType::BCM88480_A0, { 3, 4, 0, 4 } },
   { ChipType::BCM88480_B0, { 42, 3, 54, 51 } },
};

// The bits of an entry that the handlers own: as (offset, width).
using Bits = std::vector< std::pair< unsigned, unsigned > >;
Bits ownedBits( ChipType chip, std::string const & table, U32 variant, U32 array, U32 entry ) {
   auto const & [unicast, loose, strict, unified] = contexts.at( chip );
   if ( table == "IppdFerTrapCfg" && ( array == 3 || array == 4 ) ) {
      return { { 9, 4 }, { 13, 3 } };
   }
   if ( table == "IppbFlpLePd0" && entry == unicast ) {
      return { { 32 + 44, 4 } };
   }
   if ( table == "IppbFlpLePd1" && ( entry == loose || entry == strict ) ) {
      return { { 32 + 44, 4 } };
   }
   if ( table == "IppbFlpLePd2" && entry == unified ) {
      return { { 32 + 24, 4 } };
   }
   bool const learns = entry == unicast || entry == loose || ( entry == strict && strict != 0 );
   if ( table == "FlpaInitContextEnablers" && learns ) {
      return { { 1, 1 }, { 39, 1 } };
   }
   if ( table == "FlpaResContextEnablers" && learns ) {
      return entry == unicast ? Bits{ { 19, 1 }, { 25, 1 } } : Bits{ { 19, 1 } };
   }
   if ( table == "InLifProfileCsFlagsLsb" && variant == 1 ) {
      Bits bits;
      for ( unsigned const profile : { 72, 73, 74, 75, 76, 77, 78, 79, 64, 68, 69, 70 } ) {
         bits.push_back( { 4 * profile, 1 } );
      }
      for ( unsigned const profile : { 64, 65, 66, 68 } ) {
         bits.push_back( { 4 * profile + 1, 1 } );
      }
      for ( unsigned const profile : { 29, 33, 35 } ) {
         bits.push_back( { 4 * profile, 3 } );
      }
      return bits;
   }
   if ( ( table == "ErppInlifOrientationMap" || table == "EtppInlifOrientationMap" ) &&
        ( entry == 31 || ( entry >= 72 && entry <= 79 ) ) ) {
      return { { 0, 3 } };
   }
   if ( table == "VsiProfileEnablers" && entry == 5 && array >= 1 && array <= 3 ) {
      return { { 15, 5 } };
   }
   if ( table == "IppbFlpacsAction" || table == "IppaVtecsAction" ) {
      return { { 0, 6 } };
   }
   if ( table == "FwdFfcTable" && entry == unified && array == 0 ) {
      return variant == 3 ? Bits{ { 58, 29 } } : variant == 4 ? Bits{ { 29, 29 } } : Bits{};
   }
   if ( table == "FwdKbrTable" && entry == unified && array == 6 ) {
      return { { 38, 6 } };
   }
   // Another machine's, which follows EVPN as well.
   if ( table == "ErppCfgSplitHorizonFilter" || table == "EtppCfgSplitHorizonFilter" ) {
      return { { 0, 64 } };
   }
   return {};
}

void clearBits( Simulator::Words & words, unsigned offset, unsigned width ) {
   for ( unsigned bit = offset; bit < offset + width && bit < 32 * words.size(); ++bit ) {
      words[bit / 32] &= ~( U32{ 1 } << bit % 32 );
   }
}

// The contents without what the handlers own.
Contents foreign( Contents contents, ChipType chip ) {
   contents.controls.clear();
   for ( auto & [table, variants] : contents.tables ) {
      for ( auto & [variant, arrays] : variants ) {
         for ( auto & [array, entries] : arrays ) {
            for ( auto & [entry, it] : entries ) {
               Bits const bits = ownedBits( chip, table, variant, array, entry );
               for ( auto & words : it.copies ) {
                  for ( auto const & [offset, width] : bits ) {
                     clearBits( words, offset, width );
                  }
               }
            }
         }
      }
   }
   return contents;
}

// ---- the properties

void check( std::string const & name, std::function< void() > const & property ) {
   EXPECT_TRUE( rc::check( name, property ) );
}

TEST( HandlerProperties, theSameInputsAgainChangeNoWord ) {
   check( "idempotent", [] {
      HandlerSwitch sw( *anyChips(), *rc::gen::arbitrary< U32 >() );
      apply( sw, *anyInputs() );
      sw.start();
      if ( *rc::gen::arbitrary< bool >() ) {
         apply( sw, *anyInputs() );
      }
      auto const before = sw.contents();
      U32 const last = sw.event();
      announceAll( sw );
      std::set< std::string > functions;
      for ( auto const & row : sw.journal().operations() ) {
         if ( row.event > last ) {
            RC_ASSERT( !row.changed );
            functions.emplace( row.function );
         }
      }
      RC_ASSERT( sw.contents() == before );
      // Every handler has run.
      for ( char const * function : { "L3Sm::handlePrefixLensInExactMatch",
                                      "L3Sm::handleUrpfFailFwdConfig",
                                      "L3Sm::handleEvpnEncapType",
                                      "L3Sm::handleEvpnDciGateway",
                                      "L3Sm::handleDecapRouteAll",
                                      "MplsParserCfgSm::handleParserConfig",
                                      "RemFfcModifierSm::writeFfcInstruction",
                                      "RemFfcModifierSm::handleAppDbModification" } ) {
         RC_ASSERT( functions.contains( function ) );
      }
   } );
}

TEST( HandlerProperties, aHistoryLeavesWhatAStartWithItsEndLeaves ) {
   check( "reversible", [] {
      auto const chips = *anyChips();
      auto const seed = *rc::gen::arbitrary< U32 >();
      auto const history = *rc::gen::nonEmpty( rc::gen::container< std::vector< Inputs > >( anyInputs() ) );
      std::vector< Contents > after;
      {
         HandlerSwitch sw( chips, seed );
         apply( sw, history.front() );
         sw.start();
         for ( auto const & in : history ) {
            apply( sw, in );
         }
         after = sw.contents();
      }
      HandlerSwitch sw( chips, seed );
      apply( sw, history.back() );
      sw.start();
      RC_ASSERT( sw.contents() == after );
   } );
}

TEST( HandlerProperties, foreignBitsNeverChange ) {
   check( "foreign bits", [] {
      auto const chips = *anyChips();
      HandlerSwitch sw( chips, *rc::gen::arbitrary< U32 >() );
      sw.start();
      std::vector< Contents > before;
      for ( std::size_t at = 0; at < chips.size(); ++at ) {
         before.push_back( foreign( sw.contents()[at], chips[at] ) );
      }
      for ( auto const & in : *rc::gen::container< std::vector< Inputs > >( anyInputs() ) ) {
         apply( sw, in );
      }
      auto const after = sw.contents();
      for ( std::size_t at = 0; at < chips.size(); ++at ) {
         auto const rest = foreign( after[at], chips[at] );
         for ( auto const & [table, contents] : rest.tables ) {
            if ( contents != before[at].tables.at( table ) ) {
               RC_FAIL( table );
            }
         }
      }
   } );
}

} // namespace
