#include "inspection/report/ReportBlocks.h"

#include <bit>
#include <stdexcept>
#include <zlib.h>

namespace Inspection {

static_assert( std::endian::native == std::endian::little, "columns are written as they lie in memory" );

namespace {

template< class Number >
void append( std::string & out, std::span< Number const > column ) {
   out.append( reinterpret_cast< char const * >( column.data() ), column.size_bytes() );
}

} // namespace

ReportBlock & ReportBlocks::under( U64 operation ) {
   if ( isOpen_ && whats_.size() >= rowsEach ) {
      close();
   }
   if ( !isOpen_ ) {
      blocks_.push_back( { .bytes = {}, .firstRow = rows_, .firstOperation = operation } );
      isOpen_ = true;
   }
   return blocks_.back();
}

void ReportBlocks::rowAdd( RowOf const & row, std::string_view text ) {
   whats_.push_back( row.what );
   causes_.push_back( row.cause );
   faps_.push_back( row.fap );
   flags_ += static_cast< char >( row.flags );
   if ( !text.empty() ) {
      text_ += text_.empty() ? "[" : ",";
      text_ += text;
   }
   ++rows_;
}

void ReportBlocks::close() {
   if ( !isOpen_ ) {
      return;
   }
   if ( !text_.empty() ) {
      text_ += "]";
   }
   U32 const head[] = {
      static_cast< U32 >( whats_.size() ), static_cast< U32 >( words_.size() ), static_cast< U32 >( text_.size() ) };
   std::string bytes;
   append( bytes, std::span< U32 const >( head ) );
   append( bytes, std::span< U32 const >( whats_ ) );
   append( bytes, std::span< U32 const >( causes_ ) );
   append( bytes, std::span< U32 const >( words_ ) );
   append( bytes, std::span< U16 const >( faps_ ) );
   bytes += flags_;
   bytes += text_;
   blocks_.back().bytes = deflated( bytes );
   whats_.clear();
   causes_.clear();
   words_.clear();
   faps_.clear();
   flags_.clear();
   text_.clear();
   isOpen_ = false;
}

std::string deflated( std::string_view bytes ) {
   constexpr int quick = 1; // a run waits for it; better ones save a tenth
   uLongf size = compressBound( bytes.size() );
   std::string out( size, '\0' );
   auto const * const from = reinterpret_cast< Bytef const * >( bytes.data() );
   if ( compress2( reinterpret_cast< Bytef * >( out.data() ), &size, from, bytes.size(), quick ) != Z_OK ) {
      throw std::bad_alloc();
   }
   out.resize( size );
   out.shrink_to_fit();
   return out;
}

void appendBase64( std::string & out, std::string_view bytes ) {
   constexpr char letters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
   auto const at = [&]( std::size_t index ) { return index < bytes.size() ? static_cast< U8 >( bytes[index] ) : 0U; };
   for ( std::size_t index = 0; index < bytes.size(); index += 3 ) {
      U32 const three = at( index ) << 16 | at( index + 1 ) << 8 | at( index + 2 );
      out += letters[three >> 18];
      out += letters[three >> 12 & 63];
      out += index + 1 < bytes.size() ? letters[three >> 6 & 63] : '=';
      out += index + 2 < bytes.size() ? letters[three & 63] : '=';
   }
}

} // namespace Inspection
