// The events of a recording's segments, one behind the other, and what each begins with.
//
//    RecordedSegments segments( path );              // a folder, or one file; InputError
//    while ( auto const event = segments.next() ) {
//       if ( event->isBegin ) { … segments.begun() … }
//    }
//
// Threading: one thread.
#pragma once

#include "inspection/files/RecordingReader.h"

#include <deque>
#include <memory>

namespace Live {

class RecordedSegments {
 public:
   struct Event : Inspection::RecordedEvent {
      bool isBegin = false; // nothing that came before leads here: begun() does
   };

   explicit RecordedSegments( std::string const & path );

   std::optional< Event > next();
   // What the segment that the last event is from begins with.
   Inspection::RecordingBegin const & begun() const { return reader_->begun(); }
   std::string const & path() const { return reader_->path(); }
   std::size_t count() const { return count_; }
   std::vector< std::string > const & remarks() const { return remarks_; }

 private:
   bool nextSegment();
   void remark();

   std::deque< std::string > paths_; // unread
   std::unique_ptr< Inspection::RecordingReader > reader_;
   std::size_t count_ = 0;
   bool isBegin_ = true;
   std::vector< std::string > remarks_;
};

} // namespace Live
