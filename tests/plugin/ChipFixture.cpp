#include "ChipFixture.h"

namespace DaceFapNi {

Hardware::Dace::FapRevision revisionOf( ChipType chipType, U32 sdkVersion ) {
   static std::map< ChipType, U32 > const majors{ { ChipType::BCM88690_B0, 5 },
                                                  { ChipType::BCM88800_A0, 6 },
                                                  { ChipType::BCM88850_A0, 8 },
                                                  { ChipType::BCM88859_A2, 9 },
                                                  { ChipType::BCM88480_A0, 7 },
                                                  { ChipType::BCM88480_B0, 7 } };
   return { majors.at( chipType ), chipType, sdkVersion };
}

ChipFixture::ChipFixture() = default;
ChipFixture::~ChipFixture() = default;

void ChipFixture::toggleIs( std::string const & file, std::string const & name, bool state ) {
   toggles_[file][name] = state;
}

void ChipFixture::chipIs( ChipType chipType, ChipOptions const & options ) {
   auto revision = revisionOf( chipType, options.sdkVersion );
   if ( options.fapRevMajor ) {
      revision = { *options.fapRevMajor, chipType, options.sdkVersion };
   }
   switchIs(
      { .faps = {
           { .fapId = FapId( 0 ), .cores = options.cores.value_or( copiesOf( chipType ) ), .revision = revision } } } );
}

void ChipFixture::switchIs( Simulator::SwitchDescription description ) {
   for ( auto const & [file, toggles] : toggles_ ) {
      description.toggles[file].insert( toggles.begin(), toggles.end() );
   }
   switch_.reset();
   switch_.emplace( std::move( description ) );
   for ( auto const & it : sw().description().faps ) {
      before_[it.fapId] = contents( it.fapId );
   }
}

FapStatusPtr ChipFixture::fap( FapId fapId ) const {
   return sw().cellStatus()->fapStatus( fapId );
}

L3Sm::SwitchControlSalPtr ChipFixture::sal() {
   return DaceSal::switchControlSalFactory( static_cast< DaceSal::SchanDriver * >( &sw().driver() ), nullptr );
}

Catalogue::Layout const & ChipFixture::layout( char const * table, Place const & place, FapId fapId ) const {
   auto const * const found = Catalogue::table( table );
   Rex::sassert( found != nullptr, "Catalogue::table( table )" );
   auto const * const it = Catalogue::layout( *found, static_cast< U8 >( chipType( fapId ) ), place.variant );
   Rex::sassert( it != nullptr, "Catalogue::layout( table, chipType, variant )" );
   return *it;
}

Words ChipFixture::words( char const * table, Place const & place, U32 copy, FapId fapId ) const {
   auto const entry = sw().chip( fapId ).entry( address( table, place, fapId ) );
   auto const span = entry.words( copy );
   return { span.begin(), span.end() };
}

U64 ChipFixture::field( char const * table, Place const & place, char const * name, U32 copy, FapId fapId ) const {
   return Simulator::fieldBits( words( table, place, copy, fapId ), fieldOf( table, place, name, fapId ) );
}

void ChipFixture::wordsAre( char const * table, Place const & place, Words const & value, FapId fapId ) {
   sw().chip( fapId ).fill( address( table, place, fapId ), value );
   before_[fapId] = contents( fapId );
}

void ChipFixture::fieldIs( char const * table, Place const & place, char const * name, U64 value, FapId fapId ) {
   auto all = words( table, place, 0, fapId );
   Simulator::fieldBitsIs( all, fieldOf( table, place, name, fapId ), value );
   wordsAre( table, place, all, fapId );
}

Simulator::Contents ChipFixture::contents( FapId fapId ) const {
   return Simulator::contentsOf( sw().chip( fapId ), chipType( fapId ) );
}

std::set< std::string > ChipFixture::changedPlaces( FapId fapId ) const {
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

std::vector< ChipFixture::Row > ChipFixture::rows() const {
   return sw().journal().operations();
}

std::string ChipFixture::text( Row const & row ) {
   using Kind = Simulator::Row::Kind;
   if ( row.kind == Kind::control ) {
      return "control " + std::to_string( row.control ) + " = " + std::to_string( row.value );
   }
   std::string it = row.kind == Kind::read ? "read " : "write ";
   it += std::string( row.table ) + " " + std::to_string( row.variant ) + "/" + std::to_string( row.array );
   if ( row.entry ) {
      it += "/" + std::to_string( *row.entry );
   }
   if ( row.scope == Simulator::Row::Scope::core ) {
      it += " core " + std::to_string( row.core );
   }
   return it;
}

std::vector< std::string > ChipFixture::operations( std::string_view table ) const {
   std::vector< std::string > all;
   for ( auto const & row : rows() ) {
      if ( table.empty() || row.table == table ) {
         all.push_back( text( row ) );
      }
   }
   return all;
}

DaceSal::SchanAddress ChipFixture::address( char const * table, Place const & place, FapId fapId ) const {
   return Simulator::addressOf(
      layout( table, place, fapId ), static_cast< U32 >( place.array ), static_cast< U32 >( place.entry ) );
}

Catalogue::Field const &
ChipFixture::fieldOf( char const * table, Place const & place, char const * name, FapId fapId ) const {
   auto const * const found = layout( table, place, fapId ).field( name );
   Rex::sassert( found != nullptr && found->width <= 64, "layout->field( name )" );
   return *found;
}

TraceListener::TraceListener( std::string facility, int level, std::function< void() > told )
   : facility_( std::move( facility ) ), told_( std::move( told ) ) {
   Rex::traceSinkIs( [this]( Rex::TraceRecord const & record ) {
      records_.push_back( record.facility + ( "/" + std::to_string( record.level ) + " " ) + record.text );
      if ( told_ ) {
         told_();
      }
   } );
   Rex::traceLevelIs( facility_, level );
}

TraceListener::~TraceListener() {
   Rex::traceLevelIs( facility_, -1 );
   Rex::traceSinkIs( {} );
}

std::string chipNameOf( testing::TestParamInfo< ChipType > const & info ) {
   return chipTypeName( info.param );
}

} // namespace DaceFapNi
