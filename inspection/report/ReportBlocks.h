// The rows of a run as the page keeps them: in blocks of columns, compressed, which the browser opens when it shows
// them. page/blocks.js reads what this writes.
//
//    ReportBlocks blocks;
//    blocks.rowAdd( { .what = 7, .cause = 2, .fap = 0, .flags = RowFlags::changed }, words, "" );
//    blocks.close();
//    for ( ReportBlock const & block : blocks.all() ) { … base64( block.bytes ) … }
//
// A block before compression, little endian: the number of rows n, of words w and of bytes of text t; n times what, n
// times cause, w words (32 bits each); n times FAP (16 bits); n flags (8 bits); and t bytes, a list of JSON. What a row
// has of words and of texts follows from what it is.
//
// Memory: the block under way, and the compressed ones.
#pragma once

#include "corvo/Types.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Inspection {

struct RowFlags {
   static constexpr U8 changed = 1;
   static constexpr U8 hasBefore = 2; // behind its words stand those from before
};

struct ReportBlock {
   std::string bytes; // compressed
   U32 firstRow;
   U64 firstOperation; // its number in the run
   U32 publications = 0;
   std::vector< U32 > tables = {}; // that are written here, ascending

   void tableAdd( U32 table ) {
      if ( table != latestTable ) {
         auto const at = std::ranges::lower_bound( tables, table );
         if ( at == tables.end() || *at != table ) {
            tables.insert( at, table );
         }
         latestTable = table;
      }
   }
   U32 latestTable = ~U32{ 0 };
};

class ReportBlocks {
 public:
   struct RowOf {
      U32 what;
      U32 cause;
      U16 fap;
      U8 flags = 0;
   };

   // `text`: a value of JSON, or several with commas between them.
   void rowAdd( RowOf const & row, std::string_view text = {} );
   void wordAdd( U32 word ) { words_.push_back( word ); }
   void wordsAdd( std::span< U32 const > words ) { words_.insert( words_.end(), words.begin(), words.end() ); }
   // Before a row is added; `operation`: the number of the next one.
   ReportBlock & under( U64 operation );
   U32 rowCount() const { return rows_; }
   void close();
   std::vector< ReportBlock > const & all() const { return blocks_; }

 private:
   static constexpr std::size_t rowsEach = 16384;

   U32 rows_ = 0;
   std::vector< ReportBlock > blocks_;
   bool isOpen_ = false;
   std::vector< U32 > whats_;
   std::vector< U32 > causes_;
   std::vector< U32 > words_;
   std::vector< U16 > faps_;
   std::string flags_;
   std::string text_;
};

// As `DecompressionStream( "deflate" )` opens it.
std::string deflated( std::string_view bytes );
void appendBase64( std::string & out, std::string_view bytes );

} // namespace Inspection
