#include "inspection/files/RowLines.h"

#include "inspection/files/Json.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

namespace Inspection {

namespace {

using Simulator::Row;
using Simulator::WordView;

constexpr std::size_t wordSize = 14;  // `"0x00000000", `
constexpr std::size_t fewBytes = 512; // of all that a line has beside its words and texts

// Puts one text behind the other where there is room for them.
class Put {
 public:
   explicit Put( char * at ) : at_( at ) {}
   char * at() const { return at_; }

   Put & operator<<( std::string_view text ) {
      if ( !text.empty() ) { // which may have no place
         std::memcpy( at_, text.data(), text.size() );
         at_ += text.size();
      }
      return *this;
   }
   // With a text whose length the compiler knows: most of what a line has.
   template< std::size_t size >
   Put & operator<<( char const ( &text )[size] ) {
      std::memcpy( at_, text, size - 1 );
      at_ += size - 1;
      return *this;
   }
   template< std::integral Number >
   Put & operator<<( Number number ) {
      if constexpr ( std::same_as< Number, bool > ) {
         return *this << ( number ? std::string_view( "true" ) : "false" );
      } else {
         at_ = std::to_chars( at_, at_ + 24, number ).ptr;
         return *this;
      }
   }
   Put & operator<<( WordView words );

 private:
   char * at_;
};

// The digits of every byte.
constexpr auto digitsOfBytes = [] {
   std::array< std::array< char, 2 >, 256 > all{};
   constexpr std::string_view digits = "0123456789abcdef";
   for ( std::size_t byte = 0; byte < all.size(); ++byte ) {
      all[byte] = { digits[byte >> 4], digits[byte & 15] };
   }
   return all;
}();

Put & Put::operator<<( WordView words ) {
   *at_++ = '[';
   for ( U32 const word : words ) {
      std::memcpy( at_, "\"0x", 3 );
      for ( unsigned byte = 0; byte < 4; ++byte ) {
         std::memcpy( at_ + 3 + 2 * byte, digitsOfBytes[word >> ( 24 - 8 * byte ) & 255].data(), 2 );
      }
      std::memcpy( at_ + 11, "\", ", 3 );
      at_ += wordSize;
   }
   at_ -= words.empty() ? 0 : 2;
   *at_++ = ']';
   return *this;
}

// As JSON has it; most texts are the same there, but for their quotation marks.
bool isPlain( std::string_view text ) {
   return std::ranges::none_of( text, []( char letter ) {
      return letter == '"' || letter == '\\' || static_cast< unsigned char >( letter ) < 0x20;
   } );
}
std::string jsonOf( std::string_view text ) {
   return isPlain( text ) ? '"' + std::string( text ) + '"' : quoted( std::string( text ) );
}
std::string jsonOfValue( Rex::Value const & value ) {
   return value.text() ? jsonOf( *value.text() ) : toJson( value, 0 );
}

// The text of a number, made when it is first asked for.
template< class Make >
std::string const & known( std::vector< std::string > & texts, std::size_t number, Make const & make ) {
   if ( texts.size() <= number ) {
      texts.resize( number + 1 );
   }
   auto & text = texts[number];
   if ( text.empty() ) {
      text = make();
   }
   return text;
}

std::string_view scopeOf( Row const & row ) {
   using enum Row::Scope;
   return row.scope == any   ? ", \"scope\": \"any\""
          : row.scope == all ? ", \"scope\": \"all\""
                             : ", \"scope\": \"core\"";
}

void putAccess( Put & put, Row const & row ) {
   put << unsigned{ row.variant } << ", \"array\": " << row.array << ", \"entry\": ";
   if ( row.entry ) {
      put << *row.entry;
   } else {
      put << "null";
   }
   put << scopeOf( row );
   if ( row.scope == Row::Scope::core ) {
      put << ", \"core\": " << row.core;
   }
   put << ", \"words\": " << row.words;
   if ( row.kind == Row::Kind::write ) {
      put << ( row.changed ? std::string_view( ", \"changed\": true" ) : ", \"changed\": false" );
      if ( row.changed && !row.before.empty() ) {
         put << ", \"before\": " << row.before;
      }
   }
}

void putControl( Put & put, Row const & row ) {
   put << ", \"control\": " << row.control << ", \"value\": " << row.value << ", \"changed\": " << row.changed;
   if ( row.changed && row.valueBefore ) {
      put << ", \"before\": " << *row.valueBefore;
   }
}

bool isWithoutOrigin( Row const & row ) {
   return row.kind == Row::Kind::publish || row.kind == Row::Kind::fault;
}

std::string publicationOf( Row const & row ) {
   std::string text = ", \"path\": " + jsonOf( row.path ) + ", \"attribute\": " + jsonOf( row.attribute );
   if ( row.key ) {
      text += ", \"key\": " + jsonOf( *row.key );
   }
   return text + ", \"value\": " + jsonOfValue( *row.published ) +
          ", \"before\": " + jsonOfValue( *row.publishedBefore );
}

} // namespace

char * RowLines::room( std::size_t bytes ) {
   if ( capacity_ - size_ < bytes ) {
      capacity_ = 2 * ( size_ + bytes );
      std::unique_ptr< char[] > larger( new char[capacity_] );
      std::copy_n( buffer_.get(), size_, larger.get() );
      buffer_ = std::move( larger );
   }
   return buffer_.get() + size_;
}

std::string_view RowLines::tail( Row const & row ) {
   std::size_t const origin = isWithoutOrigin( row ) ? 0 : row.originNumber + std::size_t{ 1 };
   if ( tails_.size() <= origin ) {
      tails_.resize( origin + 1 );
   }
   Tail & tail = tails_[origin];
   if ( tail.text.empty() || tail.cause != row.causeNumber ) {
      tail.cause = row.causeNumber;
      tail.text = origin == 0 ? std::string()
                              : ", \"function\": " + jsonOf( row.function ) + ", \"source\": " + jsonOf( row.source );
      tail.text += ", \"cause\": " + jsonOf( row.cause ) + "}\n";
   }
   return tail.text;
}

std::string_view RowLines::table( Row const & row ) {
   return known( tables_, row.tableNumber, [&] { return ", \"table\": " + jsonOf( row.table ) + ", \"variant\": "; } );
}

std::string_view RowLines::event( Row const & row ) {
   if ( event_.text.empty() || event_.number != row.event ) {
      event_ = { row.event, std::to_string( row.event ) };
   }
   return event_.text;
}

std::string_view RowLines::reason( Row const & row ) {
   if ( reason_.text.empty() || reason_.of != row.reason ) {
      reason_ = { std::string( row.reason ), ", \"reason\": " + jsonOf( row.reason ) };
   }
   return reason_.text;
}

void RowLines::add( Row const & row ) {
   constexpr std::string_view begins[] = {
      "{\"op\": \"read\", \"seq\": ",
      "{\"op\": \"write\", \"seq\": ",
      "{\"op\": \"control\", \"seq\": ",
      "{\"op\": \"gate\", \"event\": ",
      "{\"op\": \"publish\", \"event\": ",
      "{\"op\": \"fault\", \"event\": ",
   };
   bool const isPublication = row.kind == Row::Kind::publish;
   auto const published = isPublication ? publicationOf( row ) : std::string();
   auto const ofTail = tail( row );
   auto const ofTable = row.words.empty() ? std::string_view() : table( row );
   bool const hasReason = row.kind == Row::Kind::gate || row.kind == Row::Kind::fault;
   auto const own = hasReason ? reason( row ) : std::string_view( published );
   Put put( room( fewBytes + wordSize * ( row.words.size() + row.before.size() ) + own.size() + ofTable.size() +
                  ofTail.size() ) );
   put << begins[static_cast< std::size_t >( row.kind )];
   if ( row.isOperation() ) {
      put << row.seq << ", \"event\": ";
   }
   put << event( row );
   if ( row.isOfFap && !isPublication ) {
      put << ", \"fap\": " << row.fap;
   }
   if ( row.kind == Row::Kind::control ) {
      putControl( put, row );
   } else if ( row.isOperation() || row.kind == Row::Kind::fault ) {
      put << ofTable;
      putAccess( put, row );
   }
   put << own << ofTail;
   size_ = static_cast< std::size_t >( put.at() - buffer_.get() );
}

} // namespace Inspection
