// The rows of one event, kept after it is over, with what they count. Used again for the next event, it keeps its
// memory.
//
//    EventRows rows;
//    rows.begins( 1, what );
//    rows.add( row );
//    rows.counts().writes;
#pragma once

#include "inspection/EventReach.h"
#include "simulator/Row.h"
#include "simulator/UnitStore.h"

#include <deque>
#include <map>
#include <memory>
#include <set>

namespace Inspection {

// How many rows of each kind.
struct RowCounts {
   U64 reads = 0;
   U64 writes = 0;
   U64 changes = 0; // writes that changed something
   U64 controls = 0;
   U64 gates = 0;
   U64 publications = 0;
   U64 faults = 0;

   void count( Simulator::Row const & row ) {
      using enum Simulator::Row::Kind;
      switch ( row.kind ) {
      case read:
         ++reads;
         break;
      case write:
         ++writes;
         changes += row.changed;
         break;
      case control:
         ++controls;
         break;
      case gate:
         ++gates;
         break;
      case publish:
         ++publications;
         break;
      case fault:
         ++faults;
         break;
      }
   }
   RowCounts & operator+=( RowCounts const & more );
   RowCounts & operator-=( RowCounts const & part );
   U64 operations() const { return reads + writes + controls; }
   bool isEmpty() const { return operations() + gates + publications + faults == 0; }
};

// Texts that many rows share, once each; they stay where they are.
class SharedTexts {
 public:
   struct Origin {
      std::string function;
      std::string source;
   };
   Origin const & origin( Simulator::Row const & row ) {
      bool const isKnown = row.originNumber < origins_.size() && origins_[row.originNumber];
      return isKnown ? *origins_[row.originNumber] : newOrigin( row );
   }
   std::string const & cause( Simulator::Row const & row ) {
      bool const isKnown = row.causeNumber < causes_.size() && causes_[row.causeNumber];
      return isKnown ? *causes_[row.causeNumber] : newCause( row );
   }
   Origin const & origin( U32 number ) const { return *origins_[number]; }
   std::string const & cause( U32 number ) const { return *causes_[number]; }

 private:
   Origin const & newOrigin( Simulator::Row const & row );
   std::string const & newCause( Simulator::Row const & row );

   std::vector< std::unique_ptr< Origin > > origins_;
   std::vector< std::unique_ptr< std::string > > causes_;
};

class EventRows {
 public:
   explicit EventRows( SharedTexts & texts ) : texts_( &texts ) {}

   void begins( U32 event, Rex::Value const & what, EventReach const & reach );
   void count( Simulator::Row const & row ) { counts_.count( row ); }
   void keep( Simulator::Row const & row );

   U32 event() const { return event_; }
   // As a scenario has it; of event 0 {"start": {}}.
   Rex::Value const & what() const { return what_; }
   EventReach const & reach() const { return reach_; }
   RowCounts const & counts() const { return counts_; }
   // The run broke off in it.
   bool isBroken() const { return isBroken_; }
   void breaksOff() { isBroken_ = true; }
   // Those that were kept, in their order.
   std::vector< Simulator::Row > const & rows() const { return rows_; }

 private:
   // A text that often comes several times, one behind the other.
   std::string_view kept( std::string_view text, std::string_view & latest ) {
      return latest == text ? latest : latest = own_.keep( text );
   }
   Rex::Value const * kept( Rex::Value const * value );

   SharedTexts * texts_;
   U32 event_ = 0;
   Rex::Value what_;
   EventReach reach_;
   RowCounts counts_;
   bool isBroken_ = false;
   std::vector< Simulator::Row > rows_;
   Simulator::UnitStore< U32 > words_;
   Simulator::TextStore own_;
   std::string_view latestPath_;
   std::string_view latestReason_;
   std::deque< Rex::Value > values_; // those of earlier events are overwritten
   std::size_t valueCount_ = 0;
};

// "set evpn/status evpnDciEnabled = true"; of event 0 "start".
std::string eventText( Rex::Value const & what );

} // namespace Inspection
