#include "ChipView.h"

namespace Test {

U32 majorOf( ChipType chipType ) {
   return chipType == ChipType::BCM88850_A0 ? 8 : chipType == ChipType::BCM88859_A2 ? 9 : 5;
}

Simulator::SwitchDescription switchOf( std::vector< ChipType > const & chips, Toggle::Settings toggles ) {
   Simulator::SwitchDescription description;
   description.toggles = std::move( toggles );
   for ( ChipType const chip : chips ) {
      FapId const fapId( static_cast< U16 >( description.faps.size() ) );
      description.faps.push_back( { .fapId = fapId, .revision = { majorOf( chip ), chip, 7 } } );
   }
   return description;
}

TestSwitch::TestSwitch( Simulator::SwitchDescription description ) : SimulatedSwitch( std::move( description ) ) {}
TestSwitch::TestSwitch( std::vector< ChipType > const & chips, Toggle::Settings toggles )
   : TestSwitch( switchOf( chips, std::move( toggles ) ) ) {}
TestSwitch::~TestSwitch() = default;

ChipType TestSwitch::chipType( FapId fap ) const {
   return std::ranges::find( description().faps, fap, &Simulator::FapDescription::fapId )->revision.chipType();
}

Simulator::Chip::Entry TestSwitch::entry( At const & at, FapId fap ) const {
   return chip( fap ).entry( Simulator::addressOf( layout( at, fap ), at.array, at.entry ) );
}

U64 TestSwitch::field( At const & at, char const * name, FapId fap ) const {
   return Simulator::fieldBits( entry( at, fap ).words(), *layout( at, fap ).field( name ) );
}

void TestSwitch::fieldIs( At const & at, char const * name, U64 value, FapId fap ) {
   auto const present = entry( at, fap ).words();
   std::vector< U32 > words( present.begin(), present.end() );
   Simulator::fieldBitsIs( words, *layout( at, fap ).field( name ), value );
   chip( fap ).fill( Simulator::addressOf( layout( at, fap ), at.array, at.entry ), words );
}

std::vector< Simulator::Row > TestSwitch::rows( std::optional< U32 > ofEvent ) const {
   std::vector< Simulator::Row > found;
   for ( auto const & row : journal().operations() ) {
      if ( row.event == ofEvent.value_or( event() ) ) {
         found.push_back( row );
      }
   }
   return found;
}

std::vector< std::string >
TestSwitch::operations( std::string const & part, FapId fap, std::optional< U32 > ofEvent ) const {
   std::vector< std::string > texts;
   for ( auto const & row : rows( ofEvent ) ) {
      if ( row.fap == fap.value() && row.table.find( part ) != std::string_view::npos ) {
         texts.push_back( text( row ) );
      }
   }
   return texts;
}

std::string TestSwitch::text( Simulator::Row const & row ) {
   if ( row.kind == Simulator::Row::Kind::control ) {
      return "control " + std::to_string( row.control ) + " = " + std::to_string( row.value );
   }
   return ( row.kind == Simulator::Row::Kind::read ? "read " : "write " ) + std::string( row.table ) + " " +
          std::to_string( row.variant ) + "/" + std::to_string( row.array ) + "/" +
          ( row.entry ? std::to_string( *row.entry ) : "-" );
}

void TestSwitch::announce( std::string const & path, short attribute ) {
   change( [&] { entity< Rex::Entity >( path )->publisher()->publish( attribute ); } );
}

Catalogue::Layout const & TestSwitch::layout( At const & at, FapId fap ) const {
   return *Catalogue::layout(
      *Catalogue::table( at.table ), static_cast< U8 >( chipType( fap ) ), static_cast< U8 >( at.variant ) );
}

Traced::Traced( std::string facility, int highest ) : facility_( std::move( facility ) ) {
   Rex::traceLevelIs( facility_, highest );
   Rex::traceSinkIs( [this]( Rex::TraceRecord const & record ) {
      if ( record.facility == facility_ ) {
         texts.push_back( std::to_string( record.level ) + " " + record.text );
      }
   } );
}

Traced::~Traced() {
   Rex::traceSinkIs( {} );
   Rex::traceLevelIs( facility_, -1 );
}

std::vector< std::string > Traced::with( std::string const & part ) const {
   std::vector< std::string > found;
   std::ranges::copy_if(
      texts, std::back_inserter( found ), [&]( auto const & text ) { return text.find( part ) != std::string::npos; } );
   return found;
}

} // namespace Test
