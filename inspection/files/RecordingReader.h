// Reads a segment of a recording, line by line: what an agent was told, and what each event did.
//
//    RecordingReader recording( "Linecard3-1.rec.jsonl.zst" );     // InputError: no recording, with what it is instead
//    recording.begun().scenario;                                   // what it begins with, without events
//    while ( auto const event = recording.next() ) { … }           // InputError "….zst:17: …"
//    recording.ended();                                            // "rotated"; empty: it is cut
//
// A segment that breaks off, its agent killed or its disk full, is read up to there.
//
// Threading: one thread.
#pragma once

#include "inspection/files/ByteStreams.h"
#include "rex/Value.h"

#include <optional>
#include <vector>

namespace Inspection {

// A place in the life of a database, as agents have it.
struct RecordedPosition {
   std::string server;
   std::string epoch;
   std::string entry;
};

struct RecordingBegin {
   std::string slice;
   U32 segment = 0;
   std::optional< U32 > event = {}; // after this one; none: before the start
   std::string version;             // of the program that wrote it
   std::string plugin;
   RecordedPosition position;
   Rex::Value scenario;
};

struct RecordedEvent {
   U32 event = 0;
   Rex::Value what;
   U64 operations = 0;
   U64 hash = 0;
   bool isWhole = true; // false: the agent failed in it
   RecordedPosition position;
};

class RecordingReader {
 public:
   explicit RecordingReader( std::string const & path );

   std::string const & path() const { return path_; }
   RecordingBegin const & begun() const { return begun_; }
   // The next event; none: the end. Marks, commands and faults are passed over.
   std::optional< RecordedEvent > next();
   // How the agent has ended it, when there are no more events: "rotated", "stopped", "complete", "interrupted",
   // "assertion"; empty: it is cut.
   std::string const & ended() const { return ended_; }
   // What failed, of an assertion.
   std::string const & failure() const { return failure_; }
   U32 lastEvent() const { return lastEvent_; }

 private:
   bool nextLine( std::string & line, bool & isWhole );
   void begin( Rex::Value const & value );
   std::optional< RecordedEvent > read( Rex::Value const & value );
   std::string place() const { return path_ + ":" + std::to_string( lineNumber_ ); }

   std::string path_;
   ByteSource source_;
   std::string buffer_;
   std::size_t from_ = 0;
   std::size_t lineNumber_ = 0;
   bool isOver_ = false;
   RecordingBegin begun_;
   RecordedPosition position_; // after the last event
   U32 lastEvent_ = 0;
   bool hasEvent_ = false;
   std::string ended_;
   std::string failure_;
};

} // namespace Inspection
