// Records what an agent was told, so that the run can be played again: inputs alone, and of what each did to the chips
// the number of operations and a hash over them.
//
//    Recorder recorder( sw, scenario, { .folder = "/var/lib/l3sm" }, [&] { return agent.position(); }, &metrics );
//    recorder.begin();                                   // InputError; before the switch starts, or between events
//    sw.journal().readerAdd( recorder );
//    recorder.mark( "before the upgrade" );
//    recorder.stop();
//
// Segments, <slice>-<n>.rec.jsonl.zst, an object a line:
//
//    {"op": "begin", "recording": {"slice": "Linecard3", "segment": 3, "event": 17}, "format": 2, "l3sm": "1.0.0",
//     "plugin": "sha256:…", "database": {"server": "…", "epoch": "…", "entry": "171-0"}, "scenario": {…}}
//    {"op": "event", "event": 18, "what": {"set": {…}}, "operations": 4, "hash": "0x…", "entry": "172-0"}
//    {"op": "command", "after": 18, "command": "freeze", "arguments": {…}}
//    {"op": "mark", "after": 18, "text": "before the upgrade"}
//    {"op": "fault", "after": 18, "fault": {…}}
//    {"op": "end", "ended": "rotated", "events": 18, "operations": 1234}
//
// `begin` holds what the segment begins with, chips and state, after the event that it names: a segment can be played
// by itself. Without an event, the run begins with it, by the event 0. An `event` has the entry of the database behind
// it, and a "database" where that is another than before; "isWhole": false, where the agent failed in it. `ended` is
// rotated, stopped, complete, interrupted or assertion; a segment without an end was left by an agent that was killed.
//
// The lines of an event are in the file when it is over, also if the process is killed then. A segment that is large
// enough is ended, never written on, and the oldest ones go. What can't be written ends the recording, with a line in
// the log and a metric, and the agent goes on.
//
// Threading: the agent's loop.
#pragma once

#include "agent/database/Database.h"
#include "agent/metrics/Metrics.h"
#include "inspection/OperationHash.h"
#include "inspection/files/ByteStreams.h"

namespace Live {

struct RecordingOptions {
   std::string folder = {}; // empty: it is told later
   std::size_t segmentBytes = std::size_t{ 64 } << 20;
   std::size_t segments = 8; // that are kept
   bool isCompressed = true;
   std::string plugin = {}; // which build of it was loaded (inspection/Version.h); empty: the one beside the program
};

class Recorder final : public Simulator::RowReader {
 public:
   using PositionNow = std::function< Position() >;

   // `begun`: what the switch was made from. All that is referred to outlives the recorder, which hears of the switch
   // from its start on, whether or not it records.
   Recorder( Simulator::SimulatedSwitch & sw,
             Inspection::Scenario const & begun,
             RecordingOptions options,
             PositionNow position = {},
             Metrics * metrics = nullptr );
   ~Recorder() override;

   // Records from now on, in a new segment, in this folder if it is told one. Throws InputError where it can't; does
   // nothing where it does already. Before the switch has started, the segment begins with the event 0.
   void begin( std::string const & folder = {} );
   void stop();
   bool isRecording() const { return sink_ != nullptr; }
   // The segment that is written, or was last.
   std::string const & path() const { return path_; }
   // Why it stopped by itself; empty: it didn't.
   std::string const & trouble() const { return trouble_; }

   // Nothing where it doesn't record, or nothing has happened yet.
   void mark( std::string const & text );
   void command( std::string const & name, Rex::Value const & arguments );
   void fault( Rex::Value const & fault );
   // With the watchdog: whether the segment is still there.
   void tick();

   void eventBegins( U32 event, Rex::Value const & what ) override;
   void row( Simulator::Row const & row ) override;
   void eventEnds( U32 event ) override;
   void ends( Simulator::Ending const & ending ) override;

 private:
   void beginSegment();
   void writeBegin();
   void endSegment( std::string const & how, std::string const & more = {} );
   void eventLine( bool isWhole );
   void note( char const * op, std::string const & more );
   void line( std::string const & text );
   template< class Write >
   void writing( Write const & write );

   Simulator::SimulatedSwitch & sw_;
   Inspection::Scenario const & begun_;
   RecordingOptions options_;
   PositionNow positionNow_;
   Metrics * metrics_;

   std::unique_ptr< Inspection::ByteSink > sink_; // none: it doesn't record
   std::string path_;
   std::string trouble_;
   U32 segment_ = 0;
   bool hasBegin_ = false; // its first line is written
   Position position_;     // that was told last

   Inspection::OperationHash hash_;
   std::optional< U32 > event_; // the last that was heard of
   std::string what_;           // of the one under way
   bool isInEvent_ = false;
   U64 operations_ = 0; // in the segment
};

} // namespace Live
