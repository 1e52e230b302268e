#include "agent/RowRing.h"

#include "agent/RowRingBlock.h"

namespace Live {

namespace {

constexpr std::size_t parts = 16; // of the ring, one of which is forgotten at once

} // namespace

RowRing::RowRing() : RowRing( Limits{} ) {}

RowRing::RowRing( Limits limits ) : limits_( limits ) {}

RowRing::~RowRing() = default;

// ---- what is heard

void RowRing::eventBegins( U32 event, Rex::Value const & what ) {
   auto const isWellFilled = [&] {
      Block const & last = *blocks_.back();
      return last.rows >= limits_.rows / parts || last.size() >= limits_.bytes / parts;
   };
   if ( blocks_.empty() || isWellFilled() ) {
      beginBlock();
   }
   isTooLarge_ = false;
   eventRows_ = 1;
   blocks_.back()->event( event, what );
}

void RowRing::beginBlock() {
   std::size_t likely = 0; // bytes
   if ( !blocks_.empty() ) {
      blocks_.back()->isFull();
      likely = std::min( blocks_.back()->bytes.size(), limits_.bytes / parts );
   }
   blocks_.push_back( std::make_shared< Block >() );
   blocks_.back()->bytes.reserve( likely );
}

void RowRing::row( Simulator::Row const & row ) {
   if ( isTooLarge_ ) {
      return;
   }
   Block & block = *blocks_.back();
   block.add( row );
   if ( ++eventRows_ > limits_.rows || block.bytes.size() - block.latest > limits_.bytes ) {
      isTooLarge_ = true;
      forgetAll();
   }
}

void RowRing::eventEnds( U32 ) {
   if ( isTooLarge_ || blocks_.empty() ) {
      return;
   }
   Block & block = *blocks_.back();
   if ( block.bytes.size() - block.latest > limits_.bytes ) { // what it was about is large by itself
      forgetAll();
      return;
   }
   block.whole = block.bytes.size();
   trim();
}

void RowRing::forgetAll() {
   blocks_.clear();
}

void RowRing::trim() {
   while ( blocks_.size() > 1 && ( rows() > limits_.rows || bytes() > limits_.bytes ) ) {
      blocks_.pop_front();
   }
   Block & block = *blocks_.back();
   if ( block.rows - block.forgotten > limits_.rows ) { // the last event is nearly all of it
      block.first = block.latest;
      block.forgotten = block.latestRows;
      block.firstEvent = block.latestEvent;
   }
}

// ---- what is told

std::optional< U32 > RowRing::firstEvent() const {
   return blocks_.empty() ? std::nullopt : std::optional( blocks_.front()->firstEvent );
}

std::size_t RowRing::rows() const {
   std::size_t all = 0;
   for ( auto const & block : blocks_ ) {
      all += block->rows - block->forgotten;
   }
   return all;
}

std::size_t RowRing::bytes() const {
   std::size_t all = 0;
   for ( auto const & block : blocks_ ) {
      all += block->size();
   }
   return all;
}

struct RowRing::Playback::Impl {
   struct Part {
      std::shared_ptr< Block const > block;
      std::size_t at;
      std::size_t end;
   };
   std::deque< Part > parts;
   RowRingDecoder decoder;
   bool isInPart = false;
};

RowRing::Playback::Playback( std::unique_ptr< Impl > impl ) : impl_( std::move( impl ) ) {}
RowRing::Playback::Playback( Playback && ) noexcept = default;
RowRing::Playback & RowRing::Playback::operator=( Playback && ) noexcept = default;
RowRing::Playback::~Playback() = default;

RowRing::Playback RowRing::playback() const {
   auto impl = std::make_unique< Playback::Impl >();
   for ( auto const & block : blocks_ ) {
      impl->parts.push_back( { block, block->first, block->whole } );
   }
   return Playback( std::move( impl ) );
}

bool RowRing::Playback::next( Simulator::RowReader & reader ) {
   auto & [left, decoder, isInPart] = *impl_;
   while ( !left.empty() && left.front().at >= left.front().end ) {
      left.pop_front();
      isInPart = false;
   }
   if ( left.empty() ) {
      reader.ends( { .events = decoder.latestEvent(), .operations = decoder.operations() } );
      return false;
   }
   auto & part = left.front();
   if ( !isInPart ) {
      decoder.blockIs( *part.block );
      isInPart = true;
   }
   U8 const * const begin = part.block->bytes.data(); // which moves as long as the block is written
   RowRingBytes from{ begin + part.at, begin + part.end };
   decoder.event( from, reader );
   part.at = static_cast< std::size_t >( from.at - begin );
   return true;
}

void RowRing::play( Simulator::RowReader & reader ) const {
   for ( auto playing = playback(); playing.next( reader ); ) {
   }
}

} // namespace Live
