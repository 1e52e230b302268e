#include "inspection/files/WrittenRow.h"

#include <bit>

namespace Inspection {

namespace {

using Simulator::Row;

static_assert( std::endian::native == std::endian::little );

constexpr U64 each( U64 byte ) {
   return byte * 0x0101010101010101;
}

// Eight digits of a hexadecimal number, all of them at once: a digit is 0x30 to 0x39, a letter 0x61 to 0x66.
bool hexadecimal( char const * digits, U32 & word ) {
   U64 text = 0;
   std::memcpy( &text, digits, sizeof text );
   U64 const letter = text >> 6 & each( 1 );
   U64 const low = text & each( 0x0f );
   U64 const isLetter = letter << 4; // the bit that a sum beyond 15 sets
   U64 const tooLargeDigit = ( low + each( 6 ) ) & ~isLetter;
   U64 const noLetter = ( ( low + each( 9 ) ) | ~( low + each( 15 ) ) ) & isLetter;
   if ( ( text & each( 0xf0 ) ) != each( 0x30 ) + letter * 0x30 ||
        ( ( tooLargeDigit | noLetter ) & each( 0x10 ) ) != 0 ) {
      return false;
   }
   U64 value = __builtin_bswap64( low + 9 * letter );
   value = ( value | value >> 4 ) & 0x00ff00ff00ff00ff;
   value = ( value | value >> 8 ) & 0x0000ffff0000ffff;
   word = static_cast< U32 >( value | value >> 16 );
   return true;
}

} // namespace

bool FormCursor::words( std::vector< U32 > & into ) {
   constexpr std::string_view begin = "\"0x";
   constexpr std::size_t size = 12; // of a word with its quotation marks
   into.clear();
   if ( left() < 2 || *at_++ != '[' ) {
      return false;
   }
   while ( left() > size + 1 ) {
      U32 word = 0;
      if ( std::memcmp( at_, begin.data(), begin.size() ) != 0 || !hexadecimal( at_ + begin.size(), word ) ||
           at_[size - 1] != '"' ) {
         return false;
      }
      into.push_back( word );
      at_ += size;
      if ( *at_ == ']' ) {
         ++at_;
         return true;
      }
      if ( at_[0] != ',' || at_[1] != ' ' ) {
         return false;
      }
      at_ += 2;
   }
   return false;
}

bool WrittenRow::begin( std::string_view line ) {
   constexpr std::size_t shortest = 32;
   constexpr std::size_t kindAt = 8;
   if ( line.size() < shortest ) {
      return false;
   }
   FormCursor at( line );
   bool isRight = false;
   switch ( line[kindAt] ) {
   case 'r':
      kind = Kind::read;
      isRight = at.goesOn( "{\"op\": \"read\", \"seq\": " ) && at.number( seq );
      break;
   case 'w':
      kind = Kind::write;
      isRight = at.goesOn( "{\"op\": \"write\", \"seq\": " ) && at.number( seq );
      break;
   case 'c':
      kind = Kind::control;
      isRight = at.goesOn( "{\"op\": \"control\", \"seq\": " ) && at.number( seq );
      break;
   case 'g':
      kind = Kind::gate;
      isRight = at.goesOn( "{\"op\": \"gate\"" );
      break;
   case 'p':
      kind = Kind::publish;
      isRight = at.goesOn( "{\"op\": \"publish\"" );
      break;
   default:
      break;
   }
   rest = at.rest();
   return isRight;
}

bool WrittenRow::readPlace() {
   FormCursor at( rest );
   if ( !at.goesOn( ", \"event\": " ) || !at.number( event ) ) {
      return false;
   }
   if ( kind == Kind::publish ) {
      rest = at.rest();
      return at.goesOn( ", \"path\": \"" );
   }
   isOfFap = at.goesOn( ", \"fap\": " );
   if ( isOfFap ? !at.number( fap ) : kind != Kind::gate ) {
      return false;
   }
   if ( kind == Kind::gate ) {
      rest = at.rest();
      return at.goesOn( ", \"reason\": \"" );
   }
   if ( kind != Kind::control && !( at.goesOn( ", \"table\": \"" ) && at.name( table ) ) ) {
      return false;
   }
   rest = at.rest();
   return true;
}

bool WrittenRow::access( Row & row, std::vector< U32 > & words, std::vector< U32 > & before ) {
   FormCursor at( rest );
   U16 array = 0;
   if ( !at.goesOn( ", \"variant\": " ) || !at.number( row.variant ) || !at.goesOn( ", \"array\": " ) ||
        !at.number( array ) || !at.goesOn( ", \"entry\": " ) ) {
      return false;
   }
   row.array = array;
   if ( !at.goesOn( "null" ) ) {
      U32 entry = 0;
      if ( !at.number( entry ) ) {
         return false;
      }
      row.entry = entry;
   }
   if ( !at.goesOn( ", \"scope\": \"" ) ) {
      return false;
   }
   if ( at.goesOn( "any\"" ) ) {
      row.scope = Row::Scope::any;
   } else if ( at.goesOn( "all\"" ) ) {
      row.scope = Row::Scope::all;
   } else {
      U8 core = 0;
      if ( !at.goesOn( "core\", \"core\": " ) || !at.number( core ) ) {
         return false;
      }
      row.scope = Row::Scope::core;
      row.core = core;
   }
   if ( !at.goesOn( ", \"words\": " ) || !at.words( words ) ) {
      return false;
   }
   row.words = words;
   if ( kind == Kind::write ) {
      row.changed = at.goesOn( ", \"changed\": true" );
      if ( !row.changed && !at.goesOn( ", \"changed\": false" ) ) {
         return false;
      }
      if ( at.goesOn( ", \"before\": " ) ) {
         if ( !at.words( before ) || before.size() != words.size() ) {
            return false;
         }
         row.before = before;
      } else if ( !row.changed ) {
         row.before = words;
      }
   }
   rest = at.rest();
   return true;
}

bool WrittenRow::control( Row & row ) {
   FormCursor at( rest );
   if ( !at.goesOn( ", \"control\": " ) || !at.number( row.control ) || !at.goesOn( ", \"value\": " ) ||
        !at.number( row.value ) ) {
      return false;
   }
   row.changed = at.goesOn( ", \"changed\": true" );
   if ( !row.changed && !at.goesOn( ", \"changed\": false" ) ) {
      return false;
   }
   if ( at.goesOn( ", \"before\": " ) ) {
      U32 before = 0;
      if ( !at.number( before ) ) {
         return false;
      }
      row.valueBefore = before;
   }
   rest = at.rest();
   return true;
}

} // namespace Inspection
