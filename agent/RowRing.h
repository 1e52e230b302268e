// What a running agent has done of late: the last rows of its journal, kept in memory for whoever asks why.
//
//    RowRing ring;                                    // of 200,000 rows
//    sw.journal().readerAdd( ring );
//    …
//    ring.firstEvent();                               // how far back it reaches
//    ring.play( why );                                // hands them to any reader, as a journal's file would
//
//    auto playback = ring.playback();                 // the same in slices: what is said meanwhile isn't in it, and
//    what while ( playback.next( reader ) ) { … }          // is forgotten meanwhile is
//
// Only whole events are kept, one behind the other without a gap: an event that is larger than the ring empties it. An
// event counts as a row of its own, so that those without any are bounded too. Rows are kept as bytes, in blocks that
// each have the texts they refer to: the texts go with the block, so that memory stays the same however long the agent
// runs and whatever its state is called.
//
// Threading: the agent's loop.
#pragma once

#include "simulator/Row.h"

#include <deque>
#include <memory>

namespace Live {

struct RowRingBlock;

class RowRing final : public Simulator::RowReader {
 public:
   struct Limits {
      std::size_t rows = 200'000;
      std::size_t bytes = 64 << 20;
   };
   class Playback;

   RowRing();
   explicit RowRing( Limits limits );
   ~RowRing() override;
   RowRing( RowRing const & ) = delete;
   RowRing & operator=( RowRing const & ) = delete;

   void eventBegins( U32 event, Rex::Value const & what ) override;
   void row( Simulator::Row const & row ) override;
   void eventEnds( U32 event ) override;

   // The first event that is still here; none: nothing has happened since the last that was too large.
   std::optional< U32 > firstEvent() const;
   std::size_t rows() const;
   // What they take in memory, without the management of it.
   std::size_t bytes() const;

   Playback playback() const;
   // All of it at once, with an ending: complete, after the last event.
   void play( Simulator::RowReader & reader ) const;

 private:
   using Block = RowRingBlock;

   void beginBlock();
   void forgetAll();
   void trim();

   Limits limits_;
   std::deque< std::shared_ptr< Block > > blocks_; // the last one is written
   std::size_t eventRows_ = 0;                     // of the event under way
   bool isTooLarge_ = false;                       // it is
};

class RowRing::Playback {
 public:
   Playback( Playback && ) noexcept;
   Playback & operator=( Playback && ) noexcept;
   ~Playback();

   // Hands over an event; false at the end, which the reader is told of then.
   bool next( Simulator::RowReader & reader );

 private:
   friend class RowRing;
   struct Impl;
   explicit Playback( std::unique_ptr< Impl > impl );
   std::unique_ptr< Impl > impl_;
};

} // namespace Live
