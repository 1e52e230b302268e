// Chips that a journal's rows are applied to: what stood on the chips at any event of a run, without the plug-in.
//
//    JournalReader journal( "run.jsonl.zst" );
//    ReplayedChips chips( journal );                  // booted, with the contents that the run began with
//    journal.read( chips );
//    chips.contents( 0 ).tables.at( "IppdFerTrapCfg" );
//
// Each read, and what each write found before it, is compared with what stands there: chips.others() tells where the
// journal and its own writes contradict each other. A journal that doesn't tell what its run began with (format 1) is
// believed where nothing has been written yet: chips.begunWith().
//
// Threading: one thread.
#pragma once

#include "inspection/files/JournalReader.h"
#include "simulator/ChipContents.h"
#include "simulator/ChipDriver.h"

#include <unordered_set>

namespace Inspection {

// A place where the journal tells of other contents than its writes have left.
struct OtherContents {
   U64 seq;
   U32 event;
   U16 fap;
   bool isBefore; // what a write found, else what a read got
   Catalogue::Table const * table;
   Catalogue::Layout const * layout;
   U32 array;
   U32 entry;
   Simulator::Words journalled;
   Simulator::Words here;
};

// The first of them in full, and where all are.
struct OtherContentsList {
   static constexpr std::size_t inFull = 100;
   std::vector< OtherContents > first;
   std::vector< U64 > seqs;
};

class ReplayedChips final : public Simulator::RowReader {
 public:
   // `only`: the other FAPs aren't there. InputError where the contents that the journal begins with don't fit its
   // chips.
   explicit ReplayedChips( JournalReader const & journal, std::optional< U16 > only = {} );
   // Goes on from where another is.
   ReplayedChips( ReplayedChips const & before );
   ReplayedChips & operator=( ReplayedChips const & ) = delete;

   // What the journal tells of contents isn't compared with what stands there, where nothing depends on it: nobody asks
   // for others().
   void isTrusted() { comparesAll_ = !isBeginKnown_; }

   // A FAP's kind of chip, where the journal doesn't tell it. InputError if it tells another.
   void chipIs( U16 fap, Hardware::ChipType chipType );

   void eventBegins( U32 event, Rex::Value const & what ) override;
   // A row of a FAP whose chip nobody has told: Rex::ValueError.
   void row( Simulator::Row const & row ) override;

   std::map< U16, Hardware::ChipType > const & chipTypes() const { return chipTypes_; }
   Simulator::Chip & chip( U16 fap ) { return *driver_.chip( DaceSal::ChipId{ fap } ); }
   Simulator::ChipDriver & driver() { return driver_; }
   Simulator::Contents contents( U16 fap ) const;

   U64 reads() const { return reads_; }
   U64 writes() const { return writes_; }
   U64 controls() const { return controls_; }
   U32 event() const { return event_; }
   OtherContentsList const & begunWith() const { return begunWith_; }
   OtherContentsList const & others() const { return others_; }

 private:
   Simulator::Chip & make( U16 fap, Hardware::ChipType chipType );
   void fill( std::string const & file, Rex::Value const & scenario );
   void compare( Simulator::Row const & row,
                 Catalogue::Layout const & layout,
                 Simulator::Chip & chip,
                 Simulator::WordView journalled );

   JournalReader const & journal_;
   std::optional< U16 > const only_;
   Simulator::ChipDriver driver_;
   std::map< U16, Hardware::ChipType > chipTypes_;
   struct Place {
      Simulator::Chip * chip = nullptr;
      Hardware::ChipType chipType{};
   };
   std::vector< Place > chips_; // by FAP
   bool isBeginKnown_ = true;
   bool comparesAll_ = true;
   std::unordered_set< U64 > written_; // entries, where it isn't known what the run began with
   std::unordered_set< U64 > failing_; // entries in which a fault has fired
   U32 event_ = 0;
   U64 reads_ = 0;
   U64 writes_ = 0;
   U64 controls_ = 0;
   OtherContentsList begunWith_;
   OtherContentsList others_;
};

} // namespace Inspection
