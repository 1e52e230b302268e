// Values that fields pass through: set in an event, and not kept until its end, though the field didn't hold them
// before either. For as long as such a value stands, the chip does something that nobody has asked for.
//
//    PassingValues windows;
//    sw.journal().readerAdd( windows );
//    ...
//    for ( PassingValue const & it : windows.all() ) { … it.from, it.through, it.to, it.setBy, it.operations … }
#pragma once

#include "simulator/Row.h"

#include <map>
#include <set>
#include <string>

namespace Inspection {

struct PassingValue {
   U32 event;
   U16 fap;
   Catalogue::Layout const * layout; // null for a control
   std::string table;                // "controls" for a control
   U8 variant;
   int array;
   U32 entry;         // of a control its number
   std::string field; // of a control ""
   std::string from;  // as a dump has it
   std::string through;
   std::string to;
   std::string setBy; // the function that set it, and the one that ended it
   std::string setAt;
   std::string leftBy;
   std::string leftAt;
   U64 operations; // from the one that set it to the one that ended it
};

class PassingValues final : public Simulator::RowReader {
 public:
   // In the order of events, and then of places.
   std::vector< PassingValue > const & all() const { return all_; }

   void eventBegins( U32 event, Rex::Value const & what ) override;
   void row( Simulator::Row const & row ) override;
   void eventEnds( U32 event ) override;

 private:
   // A copy of an entry, or a control.
   struct Key {
      U16 fap;
      U16 table; // a control: the number behind the last table's
      U8 variant;
      int array;
      U32 entry;
      U32 copy;
      friend auto operator<=>( Key const &, Key const & ) = default;
   };
   struct Step {
      U64 seq;
      std::string const * function;
      std::string const * source;
      std::vector< U32 > words;
   };
   struct Track {
      Catalogue::Layout const * layout;
      std::vector< U32 > before;
      std::vector< Step > steps;
   };

   void step( Key const & key, Simulator::Row const & row, std::vector< U32 > before, std::vector< U32 > words );
   void follow( Key const & key, Track const & track );
   void follow( Key const & key, Track const & track, Catalogue::Field const * field );
   bool isTold( PassingValue const & it ) const;
   std::string const * kept( std::string_view text ) { return &*texts_.emplace( text ).first; }

   U32 event_ = 0;
   std::map< Key, Track > tracks_; // of the event under way
   std::set< std::string > texts_;
   std::vector< PassingValue > all_;
};

} // namespace Inspection
