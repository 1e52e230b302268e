#include "inspection/files/JsonPlaces.h"

#include "rex/Value.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace Inspection {

namespace {

// A string of JSON, with its quotes, as what it stands for.
std::string unescaped( std::string_view text ) {
   if ( text.find( '\\' ) == std::string_view::npos ) {
      return std::string( text.substr( 1, text.size() - 2 ) );
   }
   auto const value = nlohmann::json::parse( text, nullptr, false );
   return value.is_string() ? value.get< std::string >() : std::string();
}

} // namespace

void JsonPlaces::search( std::string_view text ) {
   text_ = text;
   at_ = 0;
   value( "" );
}

void JsonPlaces::value( std::string const & pointer ) {
   blanks();
   if ( auto const found = wanted_.find( pointer ); found != wanted_.end() && found->second.value == nowhere ) {
      found->second.value = at_;
   }
   bool const isAbove = isAboveWanted( pointer );
   if ( isAbove && next( '{' ) ) {
      members( pointer );
   } else if ( isAbove && next( '[' ) ) {
      elements( pointer );
   } else {
      skipValue();
   }
}

void JsonPlaces::members( std::string const & pointer ) {
   while ( at_ < text_.size() && !next( '}' ) ) {
      blanks();
      std::size_t const key = at_;
      std::string const inner = pointer + Rex::pointerStep( unescaped( string() ) );
      if ( auto const found = wanted_.find( inner ); found != wanted_.end() ) {
         found->second.key = key;
      }
      next( ':' );
      value( inner );
      next( ',' );
   }
}

void JsonPlaces::elements( std::string const & pointer ) {
   for ( std::size_t index = 0; at_ < text_.size() && !next( ']' ); ++index ) {
      value( pointer + "/" + std::to_string( index ) );
      next( ',' );
   }
}

bool JsonPlaces::isAboveWanted( std::string const & pointer ) const {
   auto const first = wanted_.lower_bound( pointer + "/" );
   return first != wanted_.end() && first->first.starts_with( pointer + "/" );
}

void JsonPlaces::skipValue() {
   int depth = 0;
   do {
      blanks();
      if ( at_ >= text_.size() ) {
         return;
      }
      switch ( text_[at_] ) {
      case '"':
         string();
         break;
      case '{':
      case '[':
         ++depth;
         ++at_;
         break;
      case '}':
      case ']':
         --depth;
         ++at_;
         break;
      case ',':
      case ':':
         ++at_;
         break;
      default:
         at_ = std::min( text_.find_first_of( " \t\r\n,:]}", at_ ), text_.size() );
      }
   } while ( depth > 0 );
}

std::string_view JsonPlaces::string() {
   std::size_t const begin = at_++;
   while ( at_ < text_.size() && text_[at_] != '"' ) {
      at_ += text_[at_] == '\\' ? 2 : 1;
   }
   at_ = std::min( at_ + 1, text_.size() );
   return text_.substr( begin, at_ - begin );
}

void JsonPlaces::blanks() {
   at_ = std::min( text_.find_first_not_of( " \t\r\n", at_ ), text_.size() );
}

bool JsonPlaces::next( char letter ) {
   blanks();
   bool const isThere = at_ < text_.size() && text_[at_] == letter;
   at_ += isThere ? 1 : 0;
   return isThere;
}

} // namespace Inspection
