// Writes a journal, format 2: a line that begins it with the scenario, and then, event by event, what happened.
//
//    JournalWriter writer( "run.jsonl.zst", scenarioValue );    // InputError
//    sw.journal().readerAdd( writer );
//
// The lines of an event are in the file when the event is over, also if this process is killed then. The last line
// tells how the run ended.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "inspection/files/ByteStreams.h"
#include "inspection/files/RowLines.h"

namespace Inspection {

class JournalWriter final : public Simulator::RowReader {
 public:
   struct Begin {
      Rex::Value scenario;  // without its events
      std::string plugin{}; // what tells one build of it from another
      // Of what is only the end of a run: the first event that it has.
      std::optional< U32 > reachesBackTo{};
   };

   JournalWriter( std::string path, Begin const & begin );

   void eventBegins( U32 event, Rex::Value const & what ) override;
   void row( Simulator::Row const & row ) override;
   void eventEnds( U32 event ) override;
   void ends( Simulator::Ending const & ending ) override;

   // The row as a line, without the line's end.
   static std::string line( Simulator::Row const & row );

 private:
   ByteSink sink_;
   RowLines lines_; // on their way to the sink
};

} // namespace Inspection
