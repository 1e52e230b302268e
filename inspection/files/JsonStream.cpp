#include "inspection/files/JsonStream.h"

#include "inspection/files/InputError.h"

#include <bit>
#include <cstring>
#include <immintrin.h>
#include <utility>

namespace Inspection {

namespace {

constexpr std::size_t padding = 64; // what simdjson may read behind a value

bool isSpace( char letter ) {
   return letter == ' ' || letter == '\n' || letter == '\r' || letter == '\t';
}

// Where the bytes of a block are `letter`, once those of `fold` are set.
inline std::uint64_t whereIs( __m128i const ( &block )[4], char letter, char fold = 0 ) {
   std::uint64_t mask = 0;
#pragma GCC unroll 4
   for ( int part = 0; part < 4; ++part ) {
      auto const folded = _mm_or_si128( block[part], _mm_set1_epi8( fold ) );
      auto const hits = _mm_movemask_epi8( _mm_cmpeq_epi8( folded, _mm_set1_epi8( letter ) ) );
      mask |= static_cast< std::uint64_t >( static_cast< std::uint32_t >( hits ) ) << 16 * part;
   }
   return mask;
}

inline bool has( __m128i const ( &block )[4], char letter ) {
   auto const wanted = _mm_set1_epi8( letter );
   auto const first = _mm_or_si128( _mm_cmpeq_epi8( block[0], wanted ), _mm_cmpeq_epi8( block[1], wanted ) );
   auto const second = _mm_or_si128( _mm_cmpeq_epi8( block[2], wanted ), _mm_cmpeq_epi8( block[3], wanted ) );
   return _mm_movemask_epi8( _mm_or_si128( first, second ) ) != 0;
}

// Each bit: whether an odd number of bits stands up to there.
inline std::uint64_t parity( std::uint64_t bits ) {
#pragma GCC unroll 6
   for ( unsigned by = 1; by < 64; by *= 2 ) {
      bits ^= bits << by;
   }
   return bits;
}

} // namespace

JsonStream::JsonStream( std::string path ) : source_( std::move( path ) ) {}

void JsonStream::refuse( std::string const & what ) const {
   throw InputError( path(), "byte " + std::to_string( dropped_ + from_ + 1 ) + ": " + what );
}

bool JsonStream::refill() {
   std::size_t const first = isKeeping_ ? kept_ : from_;
   if ( first > 0 ) {
      std::memmove( buffer_.data(), buffer_.data() + first, to_ - first );
      from_ -= first;
      to_ -= first;
      dropped_ += first;
      kept_ = 0;
   }
   if ( buffer_.size() < to_ + readAtOnce + padding ) {
      buffer_.resize( 2 * to_ + readAtOnce + padding );
   }
   auto const size = source_.read( { buffer_.data() + to_, readAtOnce } );
   to_ += size;
   return size > 0;
}

std::string_view JsonStream::ahead() {
   if ( from_ == to_ ) {
      refill();
   }
   return { buffer_.data() + from_, to_ - from_ };
}

bool JsonStream::peek( char & letter ) {
   while ( true ) {
      while ( from_ < to_ && isSpace( buffer_[from_] ) ) {
         ++from_;
      }
      if ( from_ < to_ ) {
         letter = buffer_[from_];
         return true;
      }
      if ( !refill() ) {
         return false;
      }
   }
}

void JsonStream::enter() {
   char letter = 0;
   if ( !peek( letter ) || letter != '{' ) {
      refuse( "expected an object" );
   }
   ++from_;
   isFirst_ = true;
}

bool JsonStream::nextKey( std::string & key ) {
   char letter = 0;
   if ( peek( letter ) && letter == '}' ) {
      ++from_;
      isFirst_ = false;
      return false;
   }
   if ( !std::exchange( isFirst_, false ) ) {
      if ( letter != ',' ) {
         refuse( source_.isCut() || from_ == to_ ? "the file is cut" : "expected \",\" or \"}\"" );
      }
      ++from_;
   }
   if ( !peek( letter ) || letter != '"' ) {
      refuse( from_ == to_ ? "the file is cut" : "expected a key" );
   }
   auto const text = value();
   key.assign( text.substr( 1, text.size() - 2 ) );
   if ( !peek( letter ) || letter != ':' ) {
      refuse( from_ == to_ ? "the file is cut" : "expected \":\"" );
   }
   ++from_;
   return true;
}

void JsonStream::skip() {
   pass( false );
}

std::string_view JsonStream::value() {
   pass( true );
   return { buffer_.data() + kept_, from_ - kept_ };
}

bool JsonStream::passIfSame( std::string_view value ) {
   char letter = 0;
   if ( !peek( letter ) ) {
      refuse( "the file is cut" );
   }
   while ( to_ - from_ < value.size() ) {
      if ( !refill() ) {
         return false;
      }
   }
   if ( std::memcmp( buffer_.data() + from_, value.data(), value.size() ) != 0 ) {
      return false;
   }
   from_ += value.size();
   return true;
}

void JsonStream::end() {
   char letter = 0;
   if ( peek( letter ) ) {
      refuse( "expected nothing more" );
   }
}

void JsonStream::pass( bool isKept ) {
   char letter = 0;
   if ( !peek( letter ) ) {
      refuse( "the file is cut" );
   }
   isKeeping_ = isKept;
   kept_ = from_;
   Scan scan;
   while ( true ) {
      char const * const found = endOf( buffer_.data() + from_, buffer_.data() + to_, scan );
      if ( found ) {
         from_ = static_cast< std::size_t >( found - buffer_.data() );
         break;
      }
      from_ = to_;
      if ( !refill() ) {
         refuse( "the file is cut" );
      }
   }
   isKeeping_ = false;
}

// Where the value ends, null if it goes on. A number or a word ends before what can't be part of it.
char const * JsonStream::endOfBytes( char const * from, char const * to, Scan & scan ) {
   for ( ; from < to; ++from ) {
      char const letter = *from;
      if ( scan.isInString ) {
         if ( scan.isEscaped ) {
            scan.isEscaped = false;
         } else if ( letter == '\\' ) {
            scan.isEscaped = true;
         } else if ( letter == '"' ) {
            scan.isInString = false;
            if ( scan.depth == 0 ) {
               return from + 1;
            }
         }
      } else if ( letter == '"' ) {
         scan.isInString = true;
      } else if ( letter == '{' || letter == '[' ) {
         ++scan.depth;
      } else if ( letter == '}' || letter == ']' ) {
         if ( scan.depth == 0 ) {
            return from;
         }
         if ( --scan.depth == 0 ) {
            return from + 1;
         }
      } else if ( scan.depth == 0 && ( letter == ',' || isSpace( letter ) ) ) {
         return from;
      }
   }
   return nullptr;
}

// The inside of an object or list goes 64 bytes at a time, and where it may end in them, from bracket to bracket.
char const * JsonStream::endOf( char const * from, char const * to, Scan & scan ) {
   if ( scan.depth == 0 ) {
      auto const few = std::min< std::ptrdiff_t >( to - from, 64 );
      if ( auto const * end = endOfBytes( from, from + few, scan ) ) {
         return end;
      }
      from += few;
   }
   for ( ; scan.depth > 0 && to - from >= 64; from += 64 ) {
      __m128i block[4];
      std::memcpy( block, from, sizeof block );
      if ( scan.isEscaped || has( block, '\\' ) ) {
         if ( auto const * end = endOfBytes( from, from + 64, scan ) ) {
            return end;
         }
         continue;
      }
      auto const inside = parity( whereIs( block, '"' ) ) ^ ( scan.isInString ? ~std::uint64_t{ 0 } : 0 );
      auto const closes = whereIs( block, '}', ' ' ) & ~inside;
      auto const opens = whereIs( block, '{', ' ' ) & ~inside;
      auto const closed = static_cast< std::size_t >( std::popcount( closes ) );
      scan.isInString = inside >> 63 != 0;
      if ( closed < scan.depth ) {
         scan.depth += static_cast< std::size_t >( std::popcount( opens ) ) - closed;
         continue;
      }
      for ( auto left = opens | closes; left != 0; left &= left - 1 ) {
         auto const at = std::countr_zero( left );
         scan.depth += ( opens >> at & 1 ) != 0 ? 1 : std::size_t{ 0 } - 1;
         if ( scan.depth == 0 ) {
            return from + at + 1;
         }
      }
   }
   return endOfBytes( from, to, scan );
}

} // namespace Inspection
