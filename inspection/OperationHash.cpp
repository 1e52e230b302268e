#include "inspection/OperationHash.h"

#include <cstdio>

namespace Inspection {

namespace {

using Simulator::Row;

constexpr U64 odd = 0x9e3779b97f4a7c15;

U64 mixed( U64 hash, U64 part ) {
   hash = ( hash ^ part ) * odd;
   return hash ^ hash >> 29;
}

// By the number of the table.
U64 nameHash( U16 table ) {
   static std::vector< U64 > const all = [] {
      std::vector< U64 > hashes;
      for ( Catalogue::Table const & each : Catalogue::tables() ) {
         U64 hash = 0;
         for ( char const letter : std::string_view( each.name ) ) {
            hash = mixed( hash, static_cast< unsigned char >( letter ) );
         }
         hashes.push_back( hash );
      }
      return hashes;
   }();
   return all[table];
}

} // namespace

void OperationHash::add( U64 part ) {
   hash_ = mixed( hash_, part );
}

void OperationHash::add( Simulator::WordView words ) {
   add( words.size() );
   for ( U32 const word : words ) {
      add( word );
   }
}

void OperationHash::add( Row const & row ) {
   if ( !row.isOperation() ) {
      return;
   }
   ++count_;
   add( static_cast< U64 >( row.kind ) << 16 | row.fap );
   if ( row.kind == Row::Kind::control ) {
      add( U64{ row.control } << 32 | row.value );
      return;
   }
   add( nameHash( row.tableNumber ) );
   add( U64{ row.variant } << 32 | static_cast< U32 >( row.array ) );
   add( row.entry ? U64{ *row.entry } : ~U64{ 0 } );
   add( static_cast< U64 >( row.scope ) << 32 |
        ( row.scope == Row::Scope::core ? static_cast< U32 >( row.core ) : 0 ) );
   add( row.words );
}

std::string OperationHash::hashText( U64 hash ) {
   char text[19];
   std::snprintf( text, sizeof text, "0x%016llx", static_cast< unsigned long long >( hash ) );
   return text;
}

} // namespace Inspection
