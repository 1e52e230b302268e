// Reads a journal as a stream: what a run did to its chips and to its state, event by event.
//
//    JournalReader journal( "run.jsonl.zst" );                   // InputError: no journal, with what it is instead
//    Simulator::Ending const ending = journal.read( answer );    // hands the rows over; InputError "run.jsonl:17: ..."
//    for ( std::string const & remark : journal.remarks() ) { … }
//
// Its memory doesn't grow with the journal: a row's words and values are valid during the call, its texts as long as
// the reader lives. A journal that breaks off is read up to there: its Ending says cut. Rows whose answers nobody wants
// can be passed over unread, which is quicker than reading them.
//
// Format 1, which has no line that begins it, is read too: it knows no switch, and its operations have their layout
// only where they tell the kind of chip.
//
// Threading: one thread.
#pragma once

#include "chip/ChipType.h"
#include "inspection/files/ByteStreams.h"
#include "inspection/files/InputError.h"
#include "inspection/files/RowFilter.h"
#include "simulator/Row.h"

#include <functional>
#include <map>
#include <vector>

namespace Inspection {

class JournalReader {
 public:
   explicit JournalReader( std::string path );
   ~JournalReader();
   JournalReader( JournalReader const & ) = delete;
   JournalReader & operator=( JournalReader const & ) = delete;

   std::string const & path() const { return path_; }
   int format() const { return format_; }
   // The scenario that the run began with, without its events; null in format 1.
   Rex::Value const & scenario() const { return scenario_; }
   std::string const & plugin() const { return plugin_; }
   // The kinds of chip, by FAP, as far as the journal tells.
   std::map< U16, Hardware::ChipType > const & chipTypes() const;

   // Once. A reader may refuse a row with a Rex::ValueError, which is told with the row's line.
   Simulator::Ending read( Simulator::RowReader & reader, RowFilter const & filter = {} );
   // What is odd about the journal, a line each, ready to be shown; complete after read(): "run.jsonl: is cut in event
   // 17; what is told ends there".
   std::vector< std::string > const & remarks() const { return remarks_; }

 private:
   struct Parser;
   struct Line {
      std::string_view text;
      bool isWhole; // its end is there
   };

   bool nextLine( Line & line );
   void begin( Line const & line );
   void checkIsJournal( Line const & line ) const;
   void theSwitchIs();
   void tell( Simulator::Ending const & ending, bool isCutInLine );
   struct Reading;
   bool readQuickly( Line const & line, Reading & reading );
   std::string place() const { return path_ + ":" + std::to_string( lineNumber_ ); }

   std::string path_;
   ByteSource source_;
   std::vector< char > buffer_; // what was read, and room behind it that the parser may look at
   std::size_t from_ = 0;       // the unread part
   std::size_t to_ = 0;
   std::size_t searched_ = 0; // of it, without the end of a line
   bool isAtEnd_ = false;
   std::size_t lineNumber_ = 0;
   Line pending_{}; // the first line, where it belongs to the events

   int format_ = 2;
   Rex::Value scenario_;
   std::string plugin_;
   std::vector< std::string > remarks_;
   std::unique_ptr< Parser > parser_;
};

} // namespace Inspection
