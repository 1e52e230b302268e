// A simulated switch with the plug-in, seen as a reader of tables sees it: fields of its chips, and the operations that
// an event made, as text.
//
//    TestSwitch sw( { ChipType::BCM88690_B0 } );
//    sw.start();
//    sw.set( "evpn/status", "vxlanEnabled", true );
//    sw.field( { "InLifProfileCsFlagsLsb", 1 }, "csProfile72" );
//    sw.operations();               // of the last event: "write InLifProfileCsFlagsLsb 1/0/-"
#pragma once

#include "rex/Trace.h"
#include "simulator/SimulatedSwitch.h"
#include "simulator/TableMap.h"

#include <algorithm>

namespace Test {

using Hardware::ChipType;
using Hardware::Dace::FapId;
using Simulator::Journal;
using Object = Rex::Value::Object;

// A place in a table. A register has the entry 0.
struct At {
   char const * table;
   U32 variant = 0;
   U32 array = 0;
   U32 entry = 0;
};

// Major revisions as the chips have them: 8 and 9 are those with a second element of the in-LIF flags.
inline U32 majorOf( ChipType chipType ) {
   return chipType == ChipType::BCM88850_A0 ? 8 : chipType == ChipType::BCM88859_A2 ? 9 : 5;
}

// FAPs 0, 1, ... of these kinds, in slice "Linecard1".
inline Simulator::SwitchDescription switchOf( std::vector< ChipType > const & chips, Toggle::Settings toggles = {} ) {
   Simulator::SwitchDescription description;
   description.toggles = std::move( toggles );
   for ( ChipType const chip : chips ) {
      FapId const fapId( static_cast< U16 >( description.faps.size() ) );
      description.faps.push_back( { .fapId = fapId, .revision = { majorOf( chip ), chip, 7 } } );
   }
   return description;
}

class TestSwitch : public Simulator::SimulatedSwitch {
 public:
   explicit TestSwitch( Simulator::SwitchDescription description ) : SimulatedSwitch( std::move( description ) ) {}
   explicit TestSwitch( std::vector< ChipType > const & chips, Toggle::Settings toggles = {} )
      : TestSwitch( switchOf( chips, std::move( toggles ) ) ) {}

   ChipType chipType( FapId fap ) const {
      return std::ranges::find( description().faps, fap, &Simulator::FapDescription::fapId )->revision.chipType();
   }

   Simulator::Chip::Entry entry( At const & at, FapId fap = {} ) const {
      return chip( fap ).entry( Simulator::addressOf( layout( at, fap ), at.array, at.entry ) );
   }
   U64 field( At const & at, char const * name, FapId fap = {} ) const {
      return Simulator::fieldBits( entry( at, fap ).words(), *layout( at, fap ).field( name ) );
   }
   // Contents that no program wrote, in every copy.
   void fieldIs( At const & at, char const * name, U64 value, FapId fap = {} ) {
      auto const present = entry( at, fap ).words();
      std::vector< U32 > words( present.begin(), present.end() );
      Simulator::fieldBitsIs( words, *layout( at, fap ).field( name ), value );
      chip( fap ).fill( Simulator::addressOf( layout( at, fap ), at.array, at.entry ), words );
   }

   // The rows of an event; of the last one if none is named.
   std::vector< Journal::Row > rows( std::optional< U32 > ofEvent = {} ) const {
      std::vector< Journal::Row > found;
      for ( auto const & row : journal().rows() ) {
         if ( row.event == ofEvent.value_or( event() ) ) {
            found.push_back( row );
         }
      }
      return found;
   }
   // The same as text: "read <table> <variant>/<array>/<entry>", "write ...", "control <number> = <value>", of the
   // tables whose name contains `part`, on one FAP.
   std::vector< std::string >
   operations( std::string const & part = "", FapId fap = {}, std::optional< U32 > ofEvent = {} ) const {
      std::vector< std::string > texts;
      for ( auto const & row : rows( ofEvent ) ) {
         if ( row.fap == fap.value() && row.table.find( part ) != std::string_view::npos ) {
            texts.push_back( text( row ) );
         }
      }
      return texts;
   }
   static std::string text( Journal::Row const & row ) {
      if ( row.kind == Journal::Kind::control ) {
         return "control " + std::to_string( row.control ) + " = " + std::to_string( row.value );
      }
      return ( row.kind == Journal::Kind::read ? "read " : "write " ) + std::string( row.table ) + " " +
             std::to_string( row.variant ) + "/" + std::to_string( row.array ) + "/" +
             ( row.entry ? std::to_string( *row.entry ) : "-" );
   }

   // Announces an attribute again, unchanged.
   void announce( std::string const & path, short attribute ) {
      change( [&] { entity< Rex::Entity >( path )->publisher()->publish( attribute ); } );
   }

 private:
   Catalogue::Layout const & layout( At const & at, FapId fap ) const {
      return *Catalogue::layout(
         *Catalogue::table( at.table ), static_cast< U8 >( chipType( fap ) ), static_cast< U8 >( at.variant ) );
   }
};

// The records of a facility, up to a level.
class Traced {
 public:
   Traced( std::string facility, int highest ) : facility_( std::move( facility ) ) {
      Rex::traceLevelIs( facility_, highest );
      Rex::traceSinkIs( [this]( Rex::TraceRecord const & record ) {
         if ( record.facility == facility_ ) {
            texts.push_back( std::to_string( record.level ) + " " + record.text );
         }
      } );
   }
   ~Traced() {
      Rex::traceSinkIs( {} );
      Rex::traceLevelIs( facility_, -1 );
   }
   // Those that contain `part`.
   std::vector< std::string > with( std::string const & part ) const {
      std::vector< std::string > found;
      std::ranges::copy_if( texts, std::back_inserter( found ), [&]( auto const & text ) {
         return text.find( part ) != std::string::npos;
      } );
      return found;
   }
   std::vector< std::string > texts; // "<level> <text>"

 private:
   std::string facility_;
};

} // namespace Test
