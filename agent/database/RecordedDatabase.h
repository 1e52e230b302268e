// The database that a recording was made from, as far as the recording tells: its state at the beginning, and its
// transactions one behind the other.
//
//    RecordedDatabase database( loop, "/var/lib/l3sm/Linecard3-1.rec.jsonl.zst" );      // InputError
//    SliceAgent agent( loop, database, scenario );
//
// Where the recording ends, nothing more comes. A position that isn't one of the recording's is a gap.
//
// Threading: the agent's loop.
#pragma once

#include "agent/EventLoop.h"
#include "agent/database/Database.h"
#include "agent/database/Tether.h"
#include "agent/recording/RecordedSegments.h"

namespace Live {

class RecordedDatabase final : public Database {
 public:
   RecordedDatabase( EventLoop & loop, std::string path );

   std::string name() const override { return path_; }
   void snapshot() override;
   void since( Position const & position ) override;
   void publish( Report const & ) override {}
   void stop() override { tether_.cut(); }

   // Everything was told.
   bool isAtEnd() const { return isAtEnd_; }

 private:
   void rewind();
   void hand( Position const & position );
   Position positionOf( Inspection::RecordedEvent const & event ) const;

   EventLoop & loop_;
   std::string path_;
   std::optional< RecordedSegments > segments_;
   std::optional< RecordedSegments::Event > ahead_; // read, and not told yet
   Snapshot begun_;
   Position told_; // behind what was told
   bool isAtEnd_ = false;
   Tether tether_; // of what was asked for
};

} // namespace Live
