// The journal: every driver operation, reads included, with the function, the place in the source and the cause that
// made it.
//
//    Journal journal{ [&] { return switch.cause(); } };
//    journal.fileIs( "journal.jsonl" );
//    DaceSal::operationListenerIs( &journal );
//    ...
//    for ( Journal::Row const & row : journal.rows() ) { ... }
//
// A gate that a function of the plug-in found closed (rex/Gate.h) is told with the next operation, or with the last one
// where none follows.
//
// An operation costs a short binary record; text is made when the journal is flushed: when the owner says so, when the
// journal ends, and when the process fails, so that the file is complete up to the last operation. The names of
// functions and files are copied when they are first seen: a journal outlives the plug-in that it tells of.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "constants/ChipType.h"
#include "rex/Gate.h"
#include "sal/Driver.h"

#include <cstdio>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace Simulator {

class Journal final : public DaceSal::OperationListener, public Rex::GateListener {
 public:
   using Kind = DaceSal::Operation::Kind;
   using Scope = DaceSal::Operation::Scope;

   // A condition that kept a function from running. Its names are the journal's.
   struct Gate {
      std::string_view function;
      std::string_view source;
      std::string_view reason;
      std::optional< U16 > fap;
      U32 event;
      std::string_view cause;
   };

   // One operation. Its names are the journal's: valid while the journal is.
   struct Row {
      U64 seq; // from 1
      U32 event;
      Kind kind;
      U16 fap;
      std::string_view function;
      std::string_view source; // file and line
      std::string_view cause;
      bool changed; // reads: false

      // Reads and writes.
      std::string_view table;
      U8 variant;
      int array;
      std::optional< U32 > entry; // none for a register
      Scope scope;
      int core; // with Scope::core
      std::vector< U32 > words;

      // Controls.
      U32 control;
      U32 value;

      char const * chip = nullptr;         // kind of chip, where the journal was told
      std::vector< Gate > gates = {};      // found closed since the operation before
      std::vector< Gate > gatesAfter = {}; // the last operation: those found closed since
   };

   // `cause` tells what is being dispatched; it is asked at each operation.
   explicit Journal( std::function< std::string() > cause );
   ~Journal() override;
   Journal( Journal const & ) = delete;
   Journal & operator=( Journal const & ) = delete;

   // The number of the event that what follows belongs to; 0 at the start.
   void eventIs( U32 event ) { event_ = event; }

   // What kind of chip a FAP is, so that a reader can decode the words of its operations.
   void chipIs( U16 fap, Hardware::ChipType chipType );

   // Writes the journal to a file, one JSON object a line, at each flush from now on. A file that can't be made:
   // std::runtime_error, "<path>: <reason>".
   void fileIs( std::string const & path );
   // Brings the rows since the last flush to the file. A file that can't be written: std::runtime_error.
   void flush();

   std::size_t size() const { return records_.size(); }
   Row row( std::size_t index ) const;
   std::vector< Row > rows() const;

   // The row as a line of the file, without the line's end.
   static std::string json( Row const & row );

   void operation( DaceSal::Operation const & operation ) override;
   void gateClosed( Rex::ClosedGate const & gate ) override;

 private:
   struct Origin {
      std::string function;
      std::string source;
   };
   struct OriginKey {
      char const * function;
      char const * file;
      U32 line;
      bool operator==( OriginKey const & ) const = default;
   };
   struct OriginHash {
      std::size_t operator()( OriginKey const & key ) const;
   };
   // An operation as it is kept. What is only there for some kinds shares its place with what the others have.
   struct Record {
      std::size_t words; // index of the first, among the words of all
      U32 event;
      U32 origin;
      U32 cause;
      U32 entryOrControl;
      U32 value;
      int array;
      int core;
      U16 fap;
      U16 table;
      U16 width;
      U8 variant;
      Kind kind;
      Scope scope;
      bool changed;
      bool isRegister;
   };

   struct GateRecord {
      std::size_t before; // index of the operation that follows
      U32 origin;
      U32 cause;
      U32 event;
      std::string reason;
      std::optional< U16 > fap;
   };

   // The gates that were found closed just before an operation.
   std::vector< Gate > gatesBefore( std::size_t operation ) const;
   U32 originNumber( std::source_location const & at );
   U32 causeNumber( std::string cause );
   [[noreturn]] void giveUpFile();
   void flushAtFailure();

   std::function< std::string() > cause_;
   U32 event_ = 0;
   std::vector< Record > records_;
   std::vector< U32 > words_;
   std::deque< Origin > origins_;
   std::unordered_map< OriginKey, U32, OriginHash > originNumbers_;
   std::vector< std::string const * > causes_; // the keys of the numbers
   std::map< std::string, U32 > causeNumbers_;
   U32 latestCause_ = 0;
   std::deque< GateRecord > gates_; // in order
   std::map< U16, char const * > chips_;

   std::FILE * file_ = nullptr;
   std::string path_;
   std::size_t flushed_ = 0;      // rows
   std::ptrdiff_t toldAhead_ = 0; // gates before the next row that stand in the file already
   int failureHook_ = 0;
};

} // namespace Simulator
