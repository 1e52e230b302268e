#include "inspection/report/SearchableValues.h"

#include "inspection/files/Json.h"
#include "simulator/ChipContents.h"

#include <array>
#include <charconv>

namespace Inspection {

namespace {

constexpr std::size_t valuesEach = 1024;
constexpr std::size_t contentsInAll = 1 << 20;

std::string hexadecimal( U64 number ) {
   std::array< char, 16 > digits{};
   auto const end = std::to_chars( digits.data(), digits.data() + digits.size(), number, 16 ).ptr;
   return "0x" + std::string( digits.data(), end );
}

U64 hashOf( Simulator::Row const & row ) {
   U64 hash = reinterpret_cast< std::uintptr_t >( row.layout );
   for ( U32 const word : row.words ) {
      hash = ( hash ^ word ) * 0x9e3779b97f4a7c15;
      hash ^= hash >> 29;
   }
   return hash;
}

} // namespace

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
   if ( row.kind == Kind::write && row.layout ) {
      if ( seen_.size() >= contentsInAll ) {
         isWhole_ = false;
      } else if ( seen_.insert( hashOf( row ) ).second ) {
         for ( auto & [name, value] : Simulator::decode( *row.layout, row.words ) ) {
            add( all_[{ std::string( row.table ), name }], std::move( value ), row );
         }
      }
   } else if ( row.kind == Kind::control ) {
      add( all_[{ "control " + std::to_string( row.control ), "" }], hexadecimal( row.value ), row );
   } else if ( row.kind == Kind::publish && !row.published->isNull() ) {
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
