#include "inspection/files/JsonText.h"

#include "inspection/files/InputFile.h"
#include "inspection/files/JsonPlaces.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ranges>

namespace Inspection {

namespace {

using Fault = JsonText::Fault;
using Placed = JsonText::Placed;
using Rex::Value;

constexpr std::size_t deepest = 64;
constexpr std::string_view fractionKey = "probability"; // the one that has fractions, which are kept as their text
constexpr std::size_t told = 20;                        // of many faults
constexpr std::size_t longestFault = 600;               // of a fault's text, which may quote what stands in the file

constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";

// Counts lines and columns of a text, forwards. Columns count characters.
class Counter {
 public:
   explicit Counter( std::string_view text ) : text_( text ) {}
   // "LINE:COLUMN", both from 1.
   std::string at( std::size_t offset ) {
      for ( offset = std::min( offset, text_.size() ); at_ < offset; ++at_ ) {
         bool const isEnd = text_[at_] == '\n';
         line_ += isEnd ? 1 : 0;
         column_ = isEnd ? 1 : column_ + ( ( static_cast< unsigned char >( text_[at_] ) & 0xc0 ) != 0x80 ? 1 : 0 );
      }
      return std::to_string( line_ ) + ":" + std::to_string( column_ );
   }

 private:
   std::string_view text_;
   std::size_t at_ = 0;
   std::size_t line_ = 1;
   std::size_t column_ = 1;
};

// Something that ends the reading.
struct Broken {
   std::size_t offset;
   std::string text;
};

// Builds a value from the events of the parser, and notes what JSON lets pass and nobody here means.
class ValueBuilder {
 public:
   using number_integer_t = nlohmann::json::number_integer_t;
   using number_unsigned_t = nlohmann::json::number_unsigned_t;
   using number_float_t = nlohmann::json::number_float_t;
   using string_t = nlohmann::json::string_t;
   using binary_t = nlohmann::json::binary_t;

   Value take() { return std::move( result_ ); }
   std::vector< Fault > faults;

   bool null() { return put( nullptr ); }
   bool boolean( bool value ) { return put( value ); }
   bool number_integer( number_integer_t value ) { return put( value ); }
   bool number_unsigned( number_unsigned_t value ) {
      if ( value > static_cast< number_unsigned_t >( std::numeric_limits< std::int64_t >::max() ) ) {
         note( std::to_string( value ) + " is too large a number" );
         return put( nullptr );
      }
      return put( value );
   }
   bool number_float( number_float_t, string_t const & text ) {
      if ( !levels_.empty() && levels_.back().key == fractionKey ) {
         return put( text );
      }
      note( text + " is no whole number" );
      return put( nullptr );
   }
   bool string( string_t & value ) { return put( std::move( value ) ); }
   bool binary( binary_t & ) { return false; } // JSON has none
   bool start_object( std::size_t ) { return open( Value::Object() ); }
   bool start_array( std::size_t ) { return open( Value::List() ); }
   bool end_object() { return close(); }
   bool end_array() { return close(); }
   bool key( string_t & key ) {
      auto & level = levels_.back();
      level.key = std::move( key );
      if ( level.value.object()->contains( level.key ) ) {
         note( "this key stands twice in the object", true );
      }
      return true;
   }
   bool parse_error( std::size_t position, std::string const & read, nlohmann::detail::exception const & error ) {
      std::string what = error.what();
      if ( auto const at = what.find( "column " ); at != std::string::npos ) {
         what = what.substr( what.find( ": ", at ) + 2 );
      }
      // The position is behind the last letter that was read; of a literal that stands in the wrong place all was.
      bool const isLiteral = what.find( " literal; expected" ) != std::string::npos;
      bool const isEnd = what.find( "unexpected end of input" ) != std::string::npos;
      throw Broken{ position - std::min( position,
                                         isEnd       ? 0
                                         : isLiteral ? read.size()
                                                     : 1 ),
                    what.substr( 0, what.find( "; last read" ) ) };
   }

 private:
   struct Level {
      Value value;
      std::string key;
      std::size_t index = 0;
   };

   void note( std::string text, bool isKey = false ) {
      std::string place;
      for ( auto const & level : levels_ ) {
         place += level.value.object() ? Rex::pointerStep( level.key ) : "/" + std::to_string( level.index );
      }
      faults.push_back( { std::move( place ), std::move( text ), isKey } );
   }
   bool put( Value value ) {
      if ( levels_.empty() ) {
         result_ = std::move( value );
         return true;
      }
      auto & level = levels_.back();
      if ( auto * object = level.value.object() ) {
         object->emplace( std::move( level.key ), std::move( value ) ); // the first of those with one key
      } else {
         level.value.list()->push_back( std::move( value ) );
         ++level.index;
      }
      return true;
   }
   bool open( Value value ) {
      if ( levels_.size() == deepest ) {
         note( "nested too deeply" );
         return false;
      }
      levels_.push_back( { std::move( value ), {}, 0 } );
      return true;
   }
   bool close() {
      Value value = std::move( levels_.back().value );
      levels_.pop_back();
      return put( std::move( value ) );
   }

   std::vector< Level > levels_;
   Value result_;
};

std::string shortened( std::string text ) {
   if ( text.size() > longestFault ) {
      text.resize( longestFault );
      while ( !text.empty() && ( static_cast< unsigned char >( text.back() ) & 0xc0 ) == 0x80 ) {
         text.pop_back(); // not in the middle of a character
      }
      text += "...";
   }
   return text;
}

std::string plain( Fault const & fault ) {
   return fault.place.empty() ? fault.text : fault.place + ": " + fault.text;
}

} // namespace

JsonText::JsonText( std::string name, std::string text ) : name_( std::move( name ) ), text_( std::move( text ) ) {
   if ( text_.starts_with( byteOrderMark ) ) {
      text_.erase( 0, byteOrderMark.size() );
   }
   if ( text_.find_first_not_of( " \t\r\n" ) == std::string::npos ) {
      throw InputError( name_, "is empty" );
   }
   ValueBuilder builder;
   try {
      bool const isWhole = nlohmann::json::sax_parse( text_, &builder );
      faults_ = std::move( builder.faults );
      if ( !isWhole ) {
         refuse( { faults_.back() } );
      }
   } catch ( Broken const & broken ) {
      throw InputError( name_ + ":" + Counter( text_ ).at( broken.offset ), shortened( broken.text ) );
   }
   value_ = builder.take();
}

std::vector< Fault > JsonText::with( std::vector< Fault > found ) const {
   // What the text is blamed for already, stands in its value as null.
   std::erase_if( found, [&]( Fault const & fault ) {
      return std::ranges::any_of(
         faults_, [&]( Fault const & of ) { return !of.isKey && Rex::isAtOrBelow( fault.place, of.place ); } );
   } );
   found.insert( found.end(), faults_.begin(), faults_.end() );
   return found;
}

std::vector< Placed > JsonText::placed( std::vector< Fault > faults ) const {
   struct Search {
      Fault fault;
      std::string pointer; // what isn't there, stands where what should hold it does
      std::size_t offset = JsonPlaces::nowhere;
      bool isDone( std::size_t found ) {
         offset = found;
         pointer.resize( found == JsonPlaces::nowhere ? pointer.rfind( '/' ) : pointer.size() );
         return found != JsonPlaces::nowhere;
      }
   };
   std::vector< Search > all;
   for ( auto & fault : faults ) {
      std::string pointer = fault.place;
      all.push_back( { std::move( fault ), std::move( pointer ) } );
   }
   std::vector< Placed > placed;
   if ( text_.empty() ) {
      for ( auto & search : all ) {
         placed.push_back( { name_, std::move( search.fault ) } );
      }
      return placed;
   }
   for ( bool isDone = false; !isDone; ) {
      JsonPlaces places;
      auto const isOpen = []( Search const & search ) { return search.offset == JsonPlaces::nowhere; };
      for ( auto const & search : all | std::views::filter( isOpen ) ) {
         places.want( search.pointer );
      }
      places.search( text_ );
      isDone = true;
      for ( auto & search : all ) {
         if ( isOpen( search ) ) {
            auto const & found = places.at( search.pointer );
            bool const isKey = search.fault.isKey && found.key != JsonPlaces::nowhere;
            isDone = search.isDone( isKey ? found.key : found.value ) && isDone;
         }
      }
   }
   std::ranges::stable_sort( all, {}, &Search::offset );
   for ( Counter counter( text_ ); auto & search : all ) {
      placed.push_back( { name_ + ":" + counter.at( search.offset ), std::move( search.fault ) } );
   }
   return placed;
}

void JsonText::refuse( std::vector< Fault > faults ) const {
   throw refusalOf( placed( std::move( faults ) ) );
}

JsonText readJsonText( std::string const & path ) {
   return { inputName( path ), readFile( path ) };
}

InputError refusalOf( std::vector< Placed > const & all ) {
   return refusalOf( all, plain );
}

InputError refusalOf( std::vector< Placed > const & all, std::string ( *said )( Fault const & ) ) {
   std::vector< std::string > lines;
   for ( auto const & [place, fault] : all ) {
      std::string const line = place + ": " + shortened( said( fault ) );
      if ( lines.empty() || lines.back() != line ) {
         lines.push_back( line );
      }
   }
   if ( lines.size() > told ) {
      std::string const more = "... and " + std::to_string( lines.size() - told ) + " more";
      lines.resize( told );
      lines.push_back( more );
   }
   return InputError( std::move( lines ) );
}

} // namespace Inspection
