#include "inspection/files/RowTexts.h"

#include "inspection/files/WrittenRow.h"
#include "inspection/views/Terminal.h"

#include <cstring>

namespace Inspection {

RowTexts::Text RowTexts::kept( std::string_view text ) {
   auto const known = numbers_.find( text );
   if ( known != numbers_.end() ) {
      return { known->first, known->second };
   }
   // A journal may come from anywhere, and these texts go to people as they are kept.
   if ( std::string const written = printable( text ); written != text ) {
      return kept( written );
   }
   auto const number = static_cast< U32 >( texts_.size() );
   std::string_view const keep = texts_.emplace_back( text );
   numbers_.emplace( keep, number );
   return { keep, number };
}

// A few places tell them apart, as they are alike in most others.
std::size_t RowTexts::TailHash::operator()( std::string_view text ) const {
   constexpr std::size_t step = sizeof( U64 );
   if ( text.size() < 8 * step ) {
      return std::hash< std::string_view >()( text );
   }
   U64 hash = text.size();
   auto const add = [&]( std::size_t at ) {
      U64 part = 0;
      std::memcpy( &part, text.data() + at, step );
      hash = ( hash ^ part ) * 0x9e3779b97f4a7c15;
      hash ^= hash >> 32;
   };
   for ( std::size_t at = 2 * step; at <= 5 * step; at += step ) {
      add( at );
   }
   for ( std::size_t from = 1; from <= 5; ++from ) {
      add( text.size() - from * step );
   }
   add( text.size() / 2 );
   return hash;
}

RowTexts::Tail const * RowTexts::tailOf( std::string_view text ) {
   auto & latest = latest_[text.size() % latest_.size()];
   if ( latest && latest->first == text ) {
      return &latest->second;
   }
   if ( auto const known = tails_.find( text ); known != tails_.end() ) {
      latest = &*known;
      return &known->second;
   }
   FormCursor at( text );
   std::string_view reason;
   std::string_view function;
   std::string_view source;
   std::string_view cause;
   if ( at.goesOn( ", \"reason\": \"" ) && !at.text( reason ) ) {
      return nullptr;
   }
   if ( !at.goesOn( ", \"function\": \"" ) || !at.text( function ) || !at.goesOn( ", \"source\": \"" ) ||
        !at.text( source ) || !at.goesOn( ", \"cause\": \"" ) || !at.text( cause ) || at.rest() != "}" ) {
      return nullptr;
   }
   Tail const tail{ kept( reason ).text, kept( function ).text, kept( source ), kept( cause ) };
   return &tails_.emplace( text, tail ).first->second;
}

} // namespace Inspection
