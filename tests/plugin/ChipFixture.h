// A simulated switch under a test: what programming leaves on the chips, by table and field name, and in what order it
// got there.
//
//    class RoutingTest : public EveryChip {};
//    TEST_P( RoutingTest, leavesTheOtherHalfAlone ) {
//       chipIs( GetParam() );                              // FAP 0, as its boot image leaves it
//       L3Sm::initEnablersVectors( fap() );
//       EXPECT_EQ( field( "EnablersVectors", { .variant = 1, .array = 3, .entry = 21 }, "routingEnableVector" ), 0x1du
//       ); EXPECT_EQ( operations().front(), "write EnablersVectors 0/0/0" );
//    }
//    TEST_F( UrpfTest, followsTheSetting ) {
//       toggleIs( "Dace.json", "ArmOrderedSwTable", false );
//       switchIs( { faps } );
//       start();                                           // the plug-in mounts and programs
//       sw().set( "routing/hardware/config", "urpfLooseFailForward", true );
//    }
//
// A toggle is read once in a process: such tests rely on a process of their own, as ctest gives them.
#pragma once

#include "L3Sm.h"
#include "Programming.h"
#include "simulator/ChipContents.h"
#include "simulator/SimulatedSwitch.h"
#include "simulator/TableMap.h"

#include <gtest/gtest.h>
#include <optional>
#include <set>

namespace DaceFapNi {

using Hardware::ChipType;
using Hardware::Dace::FapId;
using Simulator::Words;

// The revision that a chip of the kind comes with here. 8 and 9 are those of the chips whose second context-selection
// register has two array elements.
inline Hardware::Dace::FapRevision revisionOf( ChipType chipType, U32 sdkVersion = 7 ) {
   static std::map< ChipType, U32 > const majors{ { ChipType::BCM88690_B0, 5 },
                                                  { ChipType::BCM88800_A0, 6 },
                                                  { ChipType::BCM88850_A0, 8 },
                                                  { ChipType::BCM88859_A2, 9 },
                                                  { ChipType::BCM88480_A0, 7 },
                                                  { ChipType::BCM88480_B0, 7 } };
   return { majors.at( chipType ), chipType, sdkVersion };
}

// How many physical copies most tables have; as many cores are what the chip can serve one by one.
inline U16 copiesOf( ChipType chipType ) {
   return chipType == ChipType::BCM88690_B0 || chipType == ChipType::BCM88850_A0 ? 2 : 1;
}

// What a test may say of its chip.
struct ChipOptions {
   std::optional< U16 > cores = {}; // none: one for each copy
   U32 sdkVersion = 7;
   std::optional< U32 > fapRevMajor = {}; // none: the chip's own
};

class ChipFixture : public testing::Test {
 public:
   // Before the switch is made.
   void toggleIs( std::string const & file, std::string const & name, bool state ) { toggles_[file][name] = state; }

   // A switch of one FAP, number 0, or of any description. Not started: static programming is called by hand.
   void chipIs( ChipType chipType, ChipOptions const & options = {} ) {
      auto revision = revisionOf( chipType, options.sdkVersion );
      if ( options.fapRevMajor ) {
         revision = { *options.fapRevMajor, chipType, options.sdkVersion };
      }
      switchIs( { .faps = { { .fapId = FapId( 0 ),
                              .cores = options.cores.value_or( copiesOf( chipType ) ),
                              .revision = revision } } } );
   }
   void switchIs( Simulator::SwitchDescription description ) {
      for ( auto const & [file, toggles] : toggles_ ) {
         description.toggles[file].insert( toggles.begin(), toggles.end() );
      }
      switch_.reset();
      switch_.emplace( std::move( description ) );
      for ( auto const & it : sw().description().faps ) {
         before_[it.fapId] = contents( it.fapId );
      }
   }
   // Enters the plug-in, which this program is linked with, and brings the slice up.
   void start() { sw().start(); }

   Simulator::SimulatedSwitch & sw() { return *switch_; }
   Simulator::SimulatedSwitch const & sw() const { return *switch_; }
   FapStatusPtr fap( FapId fapId = FapId( 0 ) ) const { return sw().cellStatus()->fapStatus( fapId ); }
   L3Sm::SwitchControlSalPtr sal() {
      return DaceSal::switchControlSalFactory( static_cast< DaceSal::SchanDriver * >( &sw().driver() ), nullptr );
   }
   ChipType chipType( FapId fapId = FapId( 0 ) ) const { return fap( fapId )->revision().chipType(); }

   // ---- what is on the chip

   Catalogue::Layout const & layout( char const * table, Place const & place, FapId fapId = FapId( 0 ) ) const {
      auto const * const found = Catalogue::table( table );
      Rex::sassert( found != nullptr, "Catalogue::table( table )" );
      auto const * const it = Catalogue::layout( *found, static_cast< U8 >( chipType( fapId ) ), place.variant );
      Rex::sassert( it != nullptr, "Catalogue::layout( table, chipType, variant )" );
      return *it;
   }
   Words words( char const * table, Place const & place, U32 copy = 0, FapId fapId = FapId( 0 ) ) const {
      auto const entry = sw().chip( fapId ).entry( address( table, place, fapId ) );
      auto const span = entry.words( copy );
      return { span.begin(), span.end() };
   }
   // A field of at most 64 bits.
   U64
   field( char const * table, Place const & place, char const * name, U32 copy = 0, FapId fapId = FapId( 0 ) ) const {
      return Simulator::fieldBits( words( table, place, copy, fapId ), fieldOf( table, place, name, fapId ) );
   }
   // What the chip is to hold beforehand, in every copy; and the same taken as its contents before.
   void wordsAre( char const * table, Place const & place, Words const & value, FapId fapId = FapId( 0 ) ) {
      sw().chip( fapId ).fill( address( table, place, fapId ), value );
      before_[fapId] = contents( fapId );
   }
   void fieldIs( char const * table, Place const & place, char const * name, U64 value, FapId fapId = FapId( 0 ) ) {
      auto all = words( table, place, 0, fapId );
      Simulator::fieldBitsIs( all, fieldOf( table, place, name, fapId ), value );
      wordsAre( table, place, all, fapId );
   }
   std::map< U32, U32 > const & controls( FapId fapId = FapId( 0 ) ) const { return sw().chip( fapId ).controls(); }
   Simulator::Contents contents( FapId fapId = FapId( 0 ) ) const {
      return Simulator::contentsOf( sw().chip( fapId ), chipType( fapId ) );
   }
   Simulator::Contents const & before( FapId fapId = FapId( 0 ) ) const { return before_.at( fapId ); }

   // The places whose contents are others than before: "VsiProfileFlags 1/0/5", variant, array index and entry.
   std::set< std::string > changedPlaces( FapId fapId = FapId( 0 ) ) const {
      std::set< std::string > places;
      auto const & old = before( fapId ).tables;
      for ( auto const & [table, variants] : contents( fapId ).tables ) {
         for ( auto const & [variant, arrays] : variants ) {
            for ( auto const & [array, entries] : arrays ) {
               for ( auto const & [entry, it] : entries ) {
                  if ( it != old.at( table ).at( variant ).at( array ).at( entry ) ) {
                     places.insert( table + " " + std::to_string( variant ) + "/" + std::to_string( array ) + "/" +
                                    std::to_string( entry ) );
                  }
               }
            }
         }
      }
      return places;
   }

   // ---- how it got there

   using Row = Simulator::Journal::Row;
   std::vector< Row > rows() const { return sw().journal().rows(); }

   // "read IppdFerTrapCfg 0/3" (variant, array index), "write EnablersVectors 0/1/22" (entry), "write ... core 1",
   // "control 64 = 255".
   static std::string text( Row const & row ) {
      using Kind = Simulator::Journal::Kind;
      if ( row.kind == Kind::control ) {
         return "control " + std::to_string( row.control ) + " = " + std::to_string( row.value );
      }
      std::string it = row.kind == Kind::read ? "read " : "write ";
      it += std::string( row.table ) + " " + std::to_string( row.variant ) + "/" + std::to_string( row.array );
      if ( row.entry ) {
         it += "/" + std::to_string( *row.entry );
      }
      if ( row.scope == Simulator::Journal::Scope::core ) {
         it += " core " + std::to_string( row.core );
      }
      return it;
   }
   // Every operation so far; of one table only, if that is named.
   std::vector< std::string > operations( std::string_view table = {} ) const {
      std::vector< std::string > all;
      for ( auto const & row : rows() ) {
         if ( table.empty() || row.table == table ) {
            all.push_back( text( row ) );
         }
      }
      return all;
   }

 private:
   DaceSal::SchanAddress address( char const * table, Place const & place, FapId fapId ) const {
      return Simulator::addressOf(
         layout( table, place, fapId ), static_cast< U32 >( place.array ), static_cast< U32 >( place.entry ) );
   }
   Catalogue::Field const & fieldOf( char const * table, Place const & place, char const * name, FapId fapId ) const {
      auto const * const found = layout( table, place, fapId ).field( name );
      Rex::sassert( found != nullptr && found->width <= 64, "layout->field( name )" );
      return *found;
   }

   Toggle::Settings toggles_;
   std::optional< Simulator::SimulatedSwitch > switch_;
   std::map< FapId, Simulator::Contents > before_;
};

// The same, once for each chip type.
class EveryChip : public ChipFixture, public testing::WithParamInterface< ChipType > {};

inline auto const everyChip = testing::ValuesIn( Hardware::allChipTypes );
inline std::string chipNameOf( testing::TestParamInfo< ChipType > const & info ) {
   return chipTypeName( info.param );
}

// What a test listens to: the records of every facility up to a level, as "<facility>/<level> <text>".
class TraceListener {
 public:
   explicit TraceListener( std::string facility, int level ) : facility_( std::move( facility ) ) {
      Rex::traceSinkIs( [this]( Rex::TraceRecord const & record ) {
         records_.push_back( record.facility + ( "/" + std::to_string( record.level ) + " " ) + record.text );
      } );
      Rex::traceLevelIs( facility_, level );
   }
   ~TraceListener() {
      Rex::traceLevelIs( facility_, -1 );
      Rex::traceSinkIs( {} );
   }
   TraceListener( TraceListener const & ) = delete;
   TraceListener & operator=( TraceListener const & ) = delete;
   std::vector< std::string > const & records() const { return records_; }

 private:
   std::string facility_;
   std::vector< std::string > records_;
};

} // namespace DaceFapNi
