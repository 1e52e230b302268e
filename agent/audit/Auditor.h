// Looks after an agent's chips: finds what they hold that nobody has written, and puts it right.
//
//    Auditor auditor( sw, metrics, { .period = 60, .log = … } );
//    auditor.works( 5 );                  // as much as falls due in five seconds, a slice at a time
//    auditor.runs();                      // a whole walk, now
//    auditor.triesAgain();                // also what was given up: hard places, chips that have failed
//    auditor.status();
//
// A place that is wrong for the first time is repaired, that copy alone. One that is wrong again within an hour is
// hard: told, counted and left, until it is right again, or tried again.
//
// Threading: the agent's loop, between events.
#pragma once

#include "agent/metrics/Metrics.h"
#include "inspection/WrongPlace.h"
#include "simulator/SimulatedSwitch.h"

#include <deque>

namespace Live {

// One place of a chip that was found wrong.
struct Finding {
   Inspection::WrongPlace wrong;
   U32 event;          // that was over when it was found
   U32 rightAt;        // the last event at which a whole walk had begun that found it right; 0: none yet
   Rex::Seconds found; // by the clock of the process
   bool isHard;
   bool isRepaired;

   Rex::Value value() const;
   std::string text() const; // a line for a log
};

class Auditor {
 public:
   struct Options {
      Rex::Seconds period; // in which all of every chip is looked at; 0: on demand alone
      std::function< void( std::string const & line ) > log = {};
      // Whether chips may be written to now; else what is found is told alone. None: always.
      std::function< bool() > mayRepair = {};
   };
   struct Outcome {
      U32 mismatches = 0;
      U32 repaired = 0;
      U32 hard = 0;
   };

   // The switch is supervised, and outlives this.
   Auditor( Simulator::SimulatedSwitch & sw, Metrics & metrics, Options options );

   // Does what falls due in so many seconds. True: there is more of it, and others may have their turn before works( 0
   // ).
   bool works( Rex::Seconds more );
   Outcome runs();
   Outcome triesAgain();

   U64 walks() const { return walks_; }
   Rex::Value status() const;

 private:
   struct Key {
      U16 fap;
      U32 block; // the selectors; of a control a number that no block has
      U32 address;
      auto operator<=>( Key const & ) const = default;
   };
   struct Place {
      Finding finding; // the last one there
      U64 walk;        // that has found it last
   };

   Simulator::SupervisedChips & chips() { return *sw_.supervised(); }
   void visit( Simulator::Mismatch const & it );
   bool isRepaired( Simulator::Mismatch const & it );
   void keep( Finding finding );
   void walkEnds();
   std::size_t valuedEntries() const;

   Simulator::SimulatedSwitch & sw_;
   Metrics & metrics_;
   Options options_;
   std::map< Key, Place > places_; // that were found wrong
   std::deque< Finding > latest_;
   Outcome all_;
   Outcome walk_; // the one under way
   U64 walks_ = 0;
   std::size_t entries_ = 0; // of the walk under way, as they were when it began; 0: none is
   double due_ = 0;          // entries to look at
   U32 begunAt_ = 0;         // the event at which the walk under way has begun
   U32 rightAt_ = 0;         // likewise the one before
};

} // namespace Live
