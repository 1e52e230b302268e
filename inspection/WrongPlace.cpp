#include "inspection/WrongPlace.h"

#include "simulator/ChipContents.h"

#include <algorithm>

namespace Inspection {

using Rex::Value;
using Simulator::Mismatch;

namespace {

std::vector< U32 > bitsOf( Mismatch const & it ) {
   std::vector< U32 > bits;
   for ( std::size_t word = 0; word < it.expected.size(); ++word ) {
      for ( U32 bit = 0; bit < 32; ++bit ) {
         if ( ( it.expected[word] ^ it.found[word] ) >> bit & 1 ) {
            bits.push_back( static_cast< U32 >( word * 32 + bit ) );
         }
      }
   }
   return bits;
}

} // namespace

std::string WrongPlace::text() const {
   std::string line = "FAP " + std::to_string( fap ) + ' ' + place + ": ";
   for ( Field const & field : fields ) {
      line += ( &field == &fields.front() ? "" : ", " ) + field.name + " is " + field.found + ", not " + field.expected;
   }
   return line;
}

Value::Object WrongPlace::value() const {
   Value::Object all;
   for ( Field const & field : fields ) {
      all[field.name] = Value::Object{ { "expected", field.expected }, { "found", field.found } };
   }
   return { { "fap", fap },
            { "place", place },
            { "fields", std::move( all ) },
            { "bits", Value::List( bits.begin(), bits.end() ) } };
}

WrongPlace wrongPlaceOf( Simulator::SwitchDescription const & description, Mismatch const & it ) {
   WrongPlace wrong{ .fap = it.chip.value, .place = {}, .fields = {}, .bits = {} };
   if ( it.control ) {
      wrong.place = "control " + std::to_string( *it.control );
      wrong.fields.push_back( { "value",
                                std::to_string( it.expected.front() ),
                                it.found.empty() ? "none" : std::to_string( it.found.front() ) } );
      return wrong;
   }
   auto const fap =
      std::ranges::find( description.faps, it.chip.value, []( auto const & one ) { return one.fapId.value(); } );
   auto const place = Simulator::placeAt( fap->revision.chipType(), it.at );
   if ( !place ) {
      return wrong;
   }
   Catalogue::Layout const & layout = *place->layout;
   wrong.place = std::string( place->table->name ) +
                 ( layout.arrayElements > 1 ? "[" + std::to_string( place->array ) + "]" : "" ) +
                 ( layout.entries == 0 ? "" : "." + std::to_string( place->entry ) ) +
                 ( layout.selectors.size() > 1 ? " copy " + std::to_string( place->copy ) : "" );
   for ( auto const & field : layout.fields ) {
      auto const expected = Simulator::fieldText( it.expected, field );
      auto const found = Simulator::fieldText( it.found, field );
      if ( expected != found ) {
         wrong.fields.push_back( { field.name, expected, found } );
      }
   }
   wrong.bits = bitsOf( it );
   return wrong;
}

} // namespace Inspection
