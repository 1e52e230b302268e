#include "agent/recording/RecordedSegments.h"

#include "inspection/files/InputError.h"
#include "inspection/files/RecordingFolder.h"

#include <filesystem>
#include <set>

namespace Live {

using namespace Inspection;

RecordedSegments::RecordedSegments( std::string const & path ) {
   if ( !std::filesystem::is_directory( path ) ) {
      paths_.push_back( path );
      nextSegment();
      return;
   }
   std::set< std::string > slices;
   for ( auto const & segment : segmentsIn( path ) ) {
      slices.insert( segment.slice );
      if ( std::filesystem::file_size( segment.path ) == 0 ) {
         remarks_.push_back( segment.path + ": is empty: its agent was killed before it had a state" );
      } else {
         paths_.push_back( segment.path );
      }
   }
   if ( slices.size() > 1 ) {
      std::string all;
      for ( auto const & slice : slices ) {
         all += ( all.empty() ? "" : ", " ) + slice;
      }
      throw InputError( path, "there are recordings of several slices, " + all + "; name one of their segments" );
   }
   if ( paths_.empty() ) {
      throw InputError( path, "there is no recording in this folder" );
   }
   nextSegment();
}

bool RecordedSegments::nextSegment() {
   if ( paths_.empty() ) {
      return false;
   }
   auto const before = std::move( reader_ );
   reader_ = std::make_unique< RecordingReader >( paths_.front() );
   paths_.pop_front();
   ++count_;
   bool const goesOn = before && before->ended() == "rotated" && begun().event == before->lastEvent() &&
                       begun().segment == before->begun().segment + 1;
   isBegin_ = !goesOn;
   return true;
}

void RecordedSegments::remark() {
   auto const & reader = *reader_;
   std::string const behind = reader.lastEvent() == 0 ? "the start" : "event " + std::to_string( reader.lastEvent() );
   if ( reader.ended().empty() ) {
      remarks_.push_back( reader.path() + ": is cut behind " + behind +
                          ": its agent was killed, or couldn't write on" );
   } else if ( reader.ended() == "assertion" ) {
      remarks_.push_back( reader.path() + ": the agent failed in " + behind + ": " + reader.failure() );
   }
}

std::optional< RecordedSegments::Event > RecordedSegments::next() {
   while ( true ) {
      if ( auto read = reader_->next() ) {
         if ( !read->isWhole ) {
            continue; // it can't be played without failing again
         }
         Event event{ std::move( *read ), isBegin_ };
         isBegin_ = false;
         return event;
      }
      remark();
      if ( !nextSegment() ) {
         return std::nullopt;
      }
   }
}

} // namespace Live
