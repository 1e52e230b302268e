// Rows as bytes, with the texts that they refer to.
//
//    block.event( 17, what );
//    block.add( row );
//    block.whole = block.bytes.size();               // the event is over
//
//    RowRingDecoder decoder;
//    decoder.blockIs( block );
//    decoder.event( from, reader );                  // from its place in the bytes to the next one's
//
// Numbers are written seven bits a byte, those before words as what differs from them: most of both are small.
//
// Threading: one thread.
#pragma once

#include "inspection/files/RowTexts.h"
#include "simulator/Row.h"

#include <array>
#include <deque>
#include <unordered_map>

namespace Live {

// A place in the bytes of a block.
struct RowRingBytes {
   U8 const * at;
   U8 const * end;
   U64 number();
   std::string_view text( std::size_t size );
};

struct RowRingBlock {
   void event( U32 number, Rex::Value const & what );
   void add( Simulator::Row const & row );
   // Nothing is added any more.
   void isFull();
   std::size_t size() const { return bytes.capacity() + textBytes_; }

   std::vector< U8 > bytes;
   std::deque< std::string > texts;
   std::size_t rows = 0;       // events among them
   std::size_t first = 0;      // what stands before it is forgotten
   std::size_t forgotten = 0;  // that many rows
   std::size_t latest = 0;     // where the last event begins
   std::size_t latestRows = 0; // that many rows stand before it
   std::size_t whole = 0;      // events that are over end here
   U32 firstEvent = 0;
   U32 latestEvent = 0;

 private:
   // Texts that were looked up of late, by a number that is likely to stand for them.
   using Latest = std::array< U32, 256 >;

   U32 textNumber( std::string_view text );
   U32 textNumber( std::string_view text, Latest & known, U32 number );

   std::unordered_map< std::string_view, U32 > textNumbers_;
   std::size_t textBytes_ = 0;
   Latest functions_{};
   Latest sources_{};
   Latest causes_{};
   U64 seq_ = 0; // of the last operation
};

// Takes the rows of blocks apart, one block behind the other.
class RowRingDecoder {
 public:
   // The events from now on stand in this one.
   void blockIs( RowRingBlock const & block );
   // Hands over one event, which begins at `from`.
   void event( RowRingBytes & from, Simulator::RowReader & reader );
   U32 latestEvent() const { return event_; }
   U64 operations() const { return seq_; }

 private:
   Simulator::Row row( RowRingBytes & from, U8 head );
   void access( RowRingBytes & from, Simulator::Row & row, U8 head );
   Inspection::RowTexts::Text const & text( RowRingBytes & from ) { return numbered_[from.number()]; }

   Inspection::RowTexts texts_;                         // of all blocks
   std::vector< Inspection::RowTexts::Text > numbered_; // by their number in the block
   U32 event_ = 0;
   U64 seq_ = 0;
   std::vector< U32 > words_;
   std::vector< U32 > before_;
   Rex::Value published_;
   Rex::Value publishedBefore_;
};

} // namespace Live
