// What a run came to: a value of bounded size, whatever the run's length, made while the run goes on.
//
//    RunSummary summary( { .events = { 3 } } );
//    sw.journal().readerAdd( summary );
//    ... the run ...
//    summary.total().changes;  summary.shown();  summary.gates();  summary.ending();
//
// Everything is counted; rows are kept only of the events that are shown: those that were asked for or, where none was,
// the last few and, of a longer run, those before them that did most.
//
// Threading: one thread.
#pragma once

#include "inspection/EventRows.h"
#include "inspection/ServedFaps.h"

#include <functional>

namespace Inspection {

class RunSummary final : public Simulator::RowReader {
 public:
   struct Wanted {
      std::set< U32 > events = {};   // those; none: the summary's own choice
      bool everyEvent = false;       // handed to `whenOver` one by one; none is kept
      bool onlyTheLast = false;      // of the events, the last alone
      std::optional< U16 > fap = {}; // rows of this FAP, and those of none
      bool readsToo = false;         // keeps reads as well
      bool startToo = false;         // and the rows of the start, beside the others
   };
   // A gate that was found closed, by place, reason and FAP.
   struct Gate {
      U32 origin; // see texts()
      std::string reason;
      std::optional< U16 > fap;
      U32 firstEvent;
      U32 lastEvent;
      std::string cause; // of the first time
      U64 count;
   };
   struct Function {
      std::string name;
      RowCounts counts;
   };

   static constexpr std::size_t mostShown = 12; // of the summary's own choice
   static constexpr std::size_t mostCostly = 4; // of them those that did most, where there are more events

   explicit RunSummary( Wanted wanted ) : wanted_( std::move( wanted ) ) {}
   RunSummary() : RunSummary( Wanted{} ) {}

   // Whom the next event reaches.
   void nextReaches( EventReach const & reach ) { nextReach_ = reach; }
   // Hears of each event that is wanted when it is over.
   void whenOver( std::function< void( EventRows const & ) > hear ) { whenOver_ = std::move( hear ); }

   void eventBegins( U32 event, Rex::Value const & what ) override;
   void row( Simulator::Row const & row ) override;
   void eventEnds( U32 event ) override;
   void ends( Simulator::Ending const & ending ) override;

   // How many events have begun, the start aside.
   U32 eventCount() const { return events_; }
   U32 silentEvents() const { return silent_; }
   RowCounts const & total() const { return total_; }
   RowCounts const & start() const { return start_; }
   std::map< U16, RowCounts > byFap() const;
   std::map< U16, RowCounts > const & startByFap() const { return startByFap_; }
   // Those that did most first: in all, in the start alone, in the events alone.
   std::vector< Function > functions() const { return functionsOf( byOrigin_ ); }
   std::vector< Function > startFunctions() const { return functionsOf( startByOrigin_ ); }
   std::vector< Function > eventFunctions() const;
   std::vector< Gate > const & gates() const { return gates_; }
   SharedTexts const & texts() const { return texts_; }
   // By number; after the run has ended.
   std::vector< EventRows const * > shown() const;
   // Null where it wasn't wanted.
   EventRows const * startRows() const { return startRows_.get(); }
   ServedFaps const & served() const { return served_; }
   Simulator::Ending const & ending() const { return ending_; }
   // The last row that tells of a FAP, in the event that the run ended in.
   std::optional< U16 > lastFap() const { return lastFap_; }
   std::string const & lastCause() const { return lastCause_; }
   EventRows const & current() const { return *current_; }

 private:
   using Kept = std::unique_ptr< EventRows >;

   std::vector< Function > functionsOf( std::vector< RowCounts > const & byOrigin ) const;
   bool isWanted( U32 event ) const;
   void countGate( Simulator::Row const & row );
   void over( bool isWhole );
   void toCostliest( Kept rows );
   Kept fresh();

   Wanted wanted_;
   std::function< void( EventRows const & ) > whenOver_;
   EventReach nextReach_;
   SharedTexts texts_;
   Kept current_ = std::make_unique< EventRows >( texts_ );
   bool keepsRows_ = false;
   bool isOpen_ = false;
   std::deque< Kept > recent_;
   std::vector< Kept > costliest_;
   std::vector< Kept > asked_;
   Kept startRows_;
   std::vector< Kept > spare_;

   U32 events_ = 0;
   U32 silent_ = 0;
   RowCounts total_;
   RowCounts start_;
   std::vector< RowCounts > byFap_;
   std::vector< RowCounts > byOrigin_;
   std::map< U16, RowCounts > startByFap_;
   std::vector< RowCounts > startByOrigin_;
   std::vector< Gate > gates_;
   std::vector< std::vector< U32 > > gatesByOrigin_; // their indices
   ServedFaps served_;
   std::optional< U16 > lastFap_;
   std::string lastCause_;
   U32 lastCauseNumber_ = 0;
   Simulator::Ending ending_;
};

} // namespace Inspection
