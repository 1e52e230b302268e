#include "OverlayTest.h"

#include <iomanip>

namespace DaceFapNi {

Strings operator+( Strings left, Strings const & right ) {
   left.insert( left.end(), right.begin(), right.end() );
   return left;
}

Strings firstRecords( TraceListener const & listener, std::size_t count ) {
   Strings all = listener.records();
   all.resize( std::min( all.size(), count ) );
   return all;
}

void OverlayTest::oneFapOfEachKind() {
   Simulator::SwitchDescription description;
   for ( U16 number = 0; auto const kind : Hardware::allChipTypes ) {
      description.faps.push_back( { .fapId = FapId( number++ ), .revision = revisionOf( kind ) } );
   }
   switchIs( std::move( description ) );
}

Strings OverlayTest::writes() {
   Strings all;
   auto const rows = sw().journal().operations();
   for ( ; seen_ < rows.size(); ++seen_ ) {
      auto const & row = rows[seen_];
      if ( row.kind == Simulator::Row::Kind::read ) {
         continue;
      }
      std::ostringstream out;
      out << row.fap << ' ';
      if ( row.kind == Simulator::Row::Kind::control ) {
         out << text( row );
      } else {
         out << text( row ).substr( 6 ) << " = 0x" << std::hex << std::setfill( '0' );
         for ( auto word = row.words.rbegin(); word != row.words.rend(); ++word ) {
            out << std::setw( 8 ) << *word;
         }
      }
      all.push_back( out.str() );
   }
   return all;
}

Strings OverlayTest::writes( U16 number ) {
   Strings all = writes();
   std::erase_if(
      all, [prefix = std::to_string( number ) + ' ']( auto const & row ) { return !row.starts_with( prefix ); } );
   return all;
}

std::set< std::string > OverlayTest::changedPlacesOfAll() const {
   std::set< std::string > places;
   for ( U16 number = 0; number < fapCount; ++number ) {
      places.merge( changedPlaces( FapId( number ) ) );
   }
   return places;
}

} // namespace DaceFapNi
