// Writes the contents of chips, one after the other: what `--chips` leaves.
//
//    ChipsWriter writer( out );
//    writer.add( 0, ChipType::BCM88690_B0, chip );
//    writer.end();
//    writeChipsOf( sw, out );                        // all of a switch
//
// Chips of one kind are much alike: what an entry's text is, is known where the chip of that kind before held the same.
// Memory: the text of one chip of each kind.
//
// Threading: one thread.
#pragma once

#include "simulator/ChipContents.h"
#include "simulator/SimulatedSwitch.h"

#include <map>
#include <ostream>

namespace Inspection {

class ChipsWriter {
 public:
   explicit ChipsWriter( std::ostream & out ) : out_( out ) {}
   void add( U16 fap, Hardware::ChipType chipType, Simulator::Chip const & chip );
   void end();

 private:
   // What was written of the latest chip of a kind.
   struct Known {
      struct Entry {
         std::size_t begin;
         std::size_t size;
      };
      std::string text;
      std::vector< Entry > entries; // by place among all entries; of size 0 where it had no value
      std::vector< U32 > words;     // of all entries that had one, copy by copy
   };
   void putTables( Known & known, Hardware::ChipType chipType, Simulator::Chip const & chip );

   std::ostream & out_;
   std::map< Hardware::ChipType, Known > known_;
   bool isFirst_ = true;
};

// One entry, as an object.
void appendEntry( std::string & text, Simulator::EntryContents const & entry, Catalogue::Layout const & layout );

void writeChipsOf( Simulator::SimulatedSwitch const & sw, std::ostream & out );

} // namespace Inspection
