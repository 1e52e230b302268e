#include "inspection/report/SearchableValues.h"

#include "inspection/files/Json.h"
#include "simulator/ChipContents.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace Inspection {

namespace {

constexpr std::size_t valuesEach = 1024;
constexpr std::size_t contentsInAll = 1 << 20;

std::string hexadecimal( U64 number ) {
   std::array< char, 16 > digits{};
   auto const end = std::to_chars( digits.data(), digits.data() + digits.size(), number, 16 ).ptr;
   return "0x" + std::string( digits.data(), end );
}

U64 mixed( U64 hash, U64 part ) {
   hash = ( hash ^ part ) * 0x9e3779b97f4a7c15;
   return hash ^ hash >> 29;
}

// Of what a row has put where: most rows of a long run have been there before.
U64 hashOf( Simulator::Row const & row ) {
   using Kind = Simulator::Row::Kind;
   if ( row.kind == Kind::control ) {
      return mixed( mixed( 1, row.control ), row.value );
   }
   std::hash< std::string_view > const ofText;
   if ( row.kind == Kind::publish ) {
      auto const * const number = row.published->integer();
      auto const * const text = row.published->text();
      U64 const value = number ? static_cast< U64 >( *number )
                        : text ? ofText( *text )
                               : ofText( Rex::toText( *row.published ) );
      return mixed( mixed( mixed( 2, ofText( row.path ) ), ofText( row.attribute ) ), value );
   }
   // Mixed before the words come, which else could undo what tells one table from another.
   U64 hash = mixed( 3, U64{ row.tableNumber } << 16 | U64{ row.variant } << 8 | row.layout->chipType );
   for ( U32 const word : row.words ) {
      hash = mixed( hash, word );
   }
   return hash;
}

} // namespace

bool SearchableValues::Hashes::add( U64 hash ) {
   hash += hash == 0; // which a free place holds
   if ( 2 * ++size_ > places_.size() ) {
      grow();
   }
   for ( std::size_t at = hash;; ++at ) {
      U64 & place = places_[at & ( places_.size() - 1 )];
      if ( place == hash ) {
         --size_;
         return false;
      }
      if ( place == 0 ) {
         place = hash;
         return true;
      }
   }
}

void SearchableValues::Hashes::grow() {
   auto const before = std::exchange( places_, std::vector< U64 >( std::max( fewest, 2 * places_.size() ) ) );
   for ( U64 const hash : before ) {
      std::size_t at = hash;
      while ( hash != 0 && places_[at & ( places_.size() - 1 )] != 0 ) {
         ++at;
      }
      if ( hash != 0 ) {
         places_[at & ( places_.size() - 1 )] = hash;
      }
   }
}

void SearchableValues::add( Values & values, std::string value, Simulator::Row const & row ) {
   if ( values.size() < valuesEach ) {
      bool const isOfFap = row.kind != Simulator::Row::Kind::publish;
      values.try_emplace( std::move( value ), First{ row.event, isOfFap ? row.fap : -1 } );
   } else if ( isWhole_ ) {
      isWhole_ = values.contains( value );
   }
}

void SearchableValues::follow( Simulator::Row const & row ) {
   using Kind = Simulator::Row::Kind;
   bool const isWrite = row.kind == Kind::write && row.layout;
   if ( !isWrite && row.kind != Kind::control && ( row.kind != Kind::publish || row.published->isNull() ) ) {
      return;
   }
   if ( seen_.size() >= contentsInAll ) {
      isWhole_ = false;
      return;
   }
   if ( !seen_.add( hashOf( row ) ) ) {
      return;
   }
   if ( isWrite ) {
      for ( auto & [name, value] : Simulator::decode( *row.layout, row.words ) ) {
         add( all_[{ std::string( row.table ), name }], std::move( value ), row );
      }
   } else if ( row.kind == Kind::control ) {
      add( all_[{ "control " + std::to_string( row.control ), "" }], hexadecimal( row.value ), row );
   } else {
      auto const * const number = row.published->integer();
      auto const * const text = row.published->text();
      add( all_[{ std::string( row.path ), std::string( row.attribute ) }],
           number && *number >= 0 ? hexadecimal( static_cast< U64 >( *number ) )
           : text                 ? *text
                                  : Rex::toText( *row.published ),
           row );
   }
}

std::string SearchableValues::json() const {
   std::string out = "[";
   for ( auto const & [where, values] : all_ ) {
      std::string const place = quoted( where.first ) + "," + quoted( where.second ) + ",";
      for ( auto const & [value, first] : values ) {
         out += out.size() > 1 ? ",\n" : "";
         out += place + quoted( value ) + "," + std::to_string( first.event ) + "," + std::to_string( first.fap );
      }
   }
   return out + "]";
}

} // namespace Inspection
