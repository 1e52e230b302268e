// A chip that can be made to fail, with nothing in it, below the driver that knows what it is expected to hold.
#pragma once

#include "simulator/Audit.h"
#include "simulator/BootImage.h"
#include "simulator/FaultyDriver.h"
#include "simulator/ShadowDriver.h"
#include "simulator/TableMap.h"

#include <gmock/gmock.h>

struct FailingChips : testing::Test {
   using ChipId = DaceSal::ChipId;
   using SchanAddress = DaceSal::SchanAddress;
   using Fault = Simulator::Fault;
   static constexpr auto chipType = Hardware::ChipType::BCM88690_B0;
   static constexpr ChipId fap{ 0 };

   Simulator::SwitchDescription const description{
      .faps = { { .fapId = Hardware::Dace::FapId( 0 ), .revision = { 5, chipType, 7 } } } };
   static Simulator::ChipDriver & withChip( Simulator::ChipDriver & driver ) {
      driver.chipIs( fap, "BCM88690_B0", Simulator::addressMap( chipType ) );
      return driver;
   }
   Simulator::ChipDriver chips;
   Simulator::ChipDriver expected;
   std::vector< std::string > fired;
   Rex::Seconds waited = 0;
   Simulator::FaultyDriver faulty{
      withChip( chips ),
      description,
      { .fired = [this]( auto const & it ) { fired.push_back( it.what + " " + std::to_string( it.place.copy ) ); },
        .delays = [this]( Rex::Seconds time ) { waited += time; } } };
   std::vector< std::string > degraded;
   Simulator::ShadowDriver shadow{
      withChip( expected ), faulty, [this]( ChipId, std::string const & why ) { degraded.push_back( why ); }, {} };

   // A register of one word with two copies, and of a memory the entry 72.
   static SchanAddress trapCfg( U32 copy = 0 ) { return at( "IppdFerTrapCfg", 3, 0, copy ); }
   static SchanAddress inlif( U32 copy = 0 ) { return at( "ErppInlifOrientationMap", 0, 72, copy ); }
   static SchanAddress at( char const * table, U32 array, U32 entry, U32 copy ) {
      return Simulator::addressOf(
         *Catalogue::layout( *Catalogue::table( table ), static_cast< U8 >( chipType ), 0 ), array, entry, copy );
   }
   static Fault fault( std::string const & kind, std::string const & place = {} ) {
      Fault fault;
      fault.kindIs( kind );
      if ( !place.empty() ) {
         placeIs( fault, place );
      }
      return fault;
   }
   static void write( DaceSal::SchanDriver & driver, SchanAddress const & at, U32 word ) {
      driver.write( fap, at, { &word, 1 } );
   }
   static U32 read( DaceSal::SchanDriver & driver, SchanAddress const & at ) {
      U32 word = 0;
      driver.read( fap, at, { &word, 1 } );
      return word;
   }
};
