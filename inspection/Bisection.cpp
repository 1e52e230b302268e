#include "inspection/Bisection.h"

#include "inspection/EventRows.h"
#include "simulator/PlaceAt.h"
#include "simulator/TableMap.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <tuple>

namespace Inspection {

namespace {

using Simulator::Row;

std::string valueAsTyped( std::string const & typed, TablePart const & field ) {
   bool const isHex = typed.starts_with( "0x" ) || typed.starts_with( "0X" );
   std::string digits;
   if ( isHex ) {
      digits = typed.substr( 2 );
      std::erase( digits, '\'' );
      std::ranges::transform( digits, digits.begin(), []( char letter ) { return std::tolower( letter ); } );
      if ( digits.empty() || digits.find_first_not_of( "0123456789abcdef" ) != std::string::npos ) {
         throw InputError( "\"" + typed + "\" is no number; give it in decimal, or in hexadecimal after 0x" );
      }
      digits.erase( 0, std::min( digits.find_first_not_of( '0' ), digits.size() - 1 ) );
   } else {
      U64 value = 0;
      auto const [end, error] = std::from_chars( typed.data(), typed.data() + typed.size(), value );
      if ( error != std::errc() || end != typed.data() + typed.size() ) {
         throw InputError( "\"" + typed +
                           "\" is no number of 64 bits; give it in decimal, or in hexadecimal after 0x" );
      }
      char text[17];
      digits.assign( text, std::to_chars( text, text + sizeof text, value, 16 ).ptr );
   }
   int const top = digits[0] <= '9' ? digits[0] - '0' : digits[0] - 'a' + 10;
   std::size_t const bits = 4 * ( digits.size() - 1 ) + static_cast< std::size_t >( std::bit_width( unsigned( top ) ) );
   if ( bits > field.width() ) {
      throw InputError( "0x" + digits + " doesn't fit in " + field.text() + ", which has " +
                        std::to_string( field.width() ) + " bits" );
   }
   return "0x" + digits;
}

class ConditionReader final : public Simulator::RowReader {
 public:
   ConditionReader( JournalReader const & journal, Condition const & condition, BisectionFilter const & filter )
      : chips_( journal ), condition_( condition ), filter_( filter ) {}

   void eventBegins( U32 event, Rex::Value const & what ) override {
      chips_.eventBegins( event, what );
      event_ = event;
      what_ = eventText( what );
   }

   void row( Row const & row ) override {
      auto const chipType = chips_.chipTypes().find( row.fap );
      if ( row.kind != Row::Kind::write || chipType == chips_.chipTypes().end() || !row.layout ||
           ( filter_.fap && row.fap != *filter_.fap ) ) {
         chips_.row( row );
         return;
      }
      auto const at = Simulator::addressOf( *row.layout, static_cast< U32 >( row.array ), row.entry.value_or( 0 ) );
      std::vector< Place > places;
      for ( Catalogue::Layout const & layout : condition_.field.table->layouts ) {
         if ( layout.chipType != static_cast< U8 >( chipType->second ) || !isWanted( layout ) ) {
            continue;
         }
         if ( auto const in = Simulator::placeIn( *condition_.field.table, layout, at );
              in && isWanted( in->array, in->entry ) ) {
            places.push_back( { row.fap, &layout, in->array, in->entry } );
         }
      }
      std::vector< std::string > before;
      for ( Place const & place : places ) {
         before.push_back( value( place ) );
      }
      chips_.row( row );
      for ( std::size_t number = 0; number < places.size(); ++number ) {
         turn( places[number], before[number], row );
      }
   }

   Bisection take( U32 events, std::vector< std::string > remarks ) {
      Bisection it{ .condition = condition_, .events = events };
      it.remarks = std::move( remarks );
      for ( auto & [place, holding] : turned_ ) {
         ( holding.holds ? it.holdings : it.former ).push_back( holding );
      }
      addUntouched( it.holdings );
      auto const begin = []( Holding const & of ) { return of.since ? of.since->seq : 0; };
      std::ranges::stable_sort( it.holdings, std::less(), begin );
      std::ranges::stable_sort( it.former, std::greater(), []( Holding const & of ) { return of.until->seq; } );
      return it;
   }

 private:
   struct Place {
      U16 fap;
      Catalogue::Layout const * layout;
      U32 array;
      U32 entry;
      friend auto operator<=>( Place const &, Place const & ) = default;
   };

   bool isWanted( Catalogue::Layout const & layout ) const {
      return layout.field( condition_.field.field ) &&
             ( !filter_.place.variant || *filter_.place.variant == layout.variant );
   }
   bool isWanted( U32 array, U32 entry ) const {
      return ( !filter_.place.array || *filter_.place.array == array ) &&
             ( !filter_.place.entry || *filter_.place.entry == entry );
   }

   // That of the first copy in which the condition holds, or of the first.
   std::string value( Place const & place ) {
      auto const entry =
         chips_.chip( place.fap ).entry( Simulator::addressOf( *place.layout, place.array, place.entry ) );
      auto const & field = *place.layout->field( condition_.field.field );
      std::string const first = Simulator::fieldText( entry.words( 0 ), field );
      for ( U32 copy = 1; copy < entry.copies(); ++copy ) {
         if ( Simulator::fieldText( entry.words( copy ), field ) == condition_.value ) {
            return condition_.value;
         }
      }
      return first;
   }

   void turn( Place const & place, std::string const & before, Row const & row ) {
      std::string const after = value( place );
      bool const held = before == condition_.value;
      bool const holds = after == condition_.value;
      if ( held == holds ) {
         return;
      }
      auto & holding = turned_
                          .try_emplace( place,
                                        Holding{ .fap = place.fap,
                                                 .layout = place.layout,
                                                 .array = place.array,
                                                 .entry = place.entry,
                                                 .holds = holds } )
                          .first->second;
      holding.holds = holds;
      auto const here = std::make_shared< Turn const >( Turn{ .event = event_,
                                                              .what = what_,
                                                              .seq = row.seq,
                                                              .function = std::string( row.function ),
                                                              .source = std::string( row.source ),
                                                              .cause = std::string( row.cause ),
                                                              .other = holds ? before : after } );
      if ( holds ) {
         holding.since = here;
         holding.until.reset();
      } else {
         holding.until = here;
      }
   }

   // Entries that hold it since before the start.
   void addUntouched( std::vector< Holding > & holdings ) {
      for ( auto const & [fap, chipType] : chips_.chipTypes() ) {
         for ( Catalogue::Layout const & layout : condition_.field.table->layouts ) {
            if ( layout.chipType != static_cast< U8 >( chipType ) || !isWanted( layout ) ||
                 ( filter_.fap && fap != *filter_.fap ) || !condition_.field.table->hasMemory ) {
               continue;
            }
            for ( U32 const array : Simulator::arrayIndices( layout ) ) {
               for ( U32 entry = 0; entry < Simulator::entryCount( layout ); ++entry ) {
                  Place const place{ fap, &layout, array, entry };
                  if ( isWanted( array, entry ) && !turned_.contains( place ) && value( place ) == condition_.value ) {
                     holdings.push_back(
                        { .fap = fap, .layout = &layout, .array = array, .entry = entry, .holds = true } );
                  }
               }
            }
         }
      }
   }

   ReplayedChips chips_;
   Condition const & condition_;
   BisectionFilter const & filter_;
   U32 event_ = 0;
   std::string what_;
   std::map< Place, Holding > turned_;
};

} // namespace

Condition conditionOf( std::string const & typed ) {
   auto const equals = typed.find( '=' );
   if ( equals == std::string::npos || equals == 0 || equals + 1 == typed.size() ) {
      throw InputError( "\"" + typed + "\" is no condition; give one as TABLE.FIELD=VALUE" );
   }
   auto const trimmed = []( std::string const & text ) {
      auto const first = text.find_first_not_of( ' ' );
      return first == std::string::npos ? "" : text.substr( first, text.find_last_not_of( ' ' ) + 1 - first );
   };
   Condition condition{ partNamed( trimmed( typed.substr( 0, equals ) ) ), {} };
   if ( condition.field.field.empty() || condition.field.bit ) {
      throw InputError( "\"" + typed + "\": a condition is on a field, as TABLE.FIELD=VALUE" );
   }
   condition.value = valueAsTyped( trimmed( typed.substr( equals + 1 ) ), condition.field );
   return condition;
}

Bisection bisect( JournalReader & journal, Condition const & condition, BisectionFilter const & filter ) {
   checkPlace( *condition.field.table, filter.place );
   if ( filter.fap && !journal.chipTypes().empty() && !journal.chipTypes().contains( *filter.fap ) ) {
      throw InputError( journal.path(), "it tells nothing of a FAP " + std::to_string( *filter.fap ) );
   }
   ConditionReader reader( journal, condition, filter );
   auto const ending = journal.read( reader, { .readsToo = journal.format() == 1 } );
   return reader.take( ending.events, journal.remarks() );
}

} // namespace Inspection
