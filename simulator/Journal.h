// The journal of a switch under way: hears of every driver operation, of every gate that was found closed (rex/Gate.h)
// and of every value that is published (rex/WriteListener.h), and hands them, event by event, to those who read along.
//
//    Journal journal{ { .cause = [&] { return switch.cause(); }, .pathOf = … } };
//    journal.readerAdd( writer );                  // hears of each event when it is over
//    journal.eventBegins( 1, what );
//    ...
//    journal.eventEnds();                          // the readers have its rows now, and the journal forgets them
//    journal.ends( Ending::Kind::complete );
//
// An operation costs a short binary record; text is made by readers, when the event is over. When the process fails,
// the readers are handed what there is of the event under way, and an Ending that tells what has failed.
//
//    journal.rowsAreKept();                        // for tests: nothing is forgotten
//    for ( Row const & row : journal.operations() ) { ... }
//
// The names of functions and files are copied when they are first seen: a journal outlives the plug-in that it tells
// of, and what its rows refer to stays as long as they are kept.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "chip/ChipType.h"
#include "rex/Gate.h"
#include "rex/WriteListener.h"
#include "simulator/LatestAnnouncements.h"
#include "simulator/Row.h"
#include "simulator/WordStore.h"

#include <array>
#include <deque>
#include <functional>
#include <map>
#include <unordered_map>

namespace Simulator {

struct FiredFault;

class Journal final : public DaceSal::OperationListener, public Rex::GateListener, public Rex::WriteListener {
 public:
   using Kind = Row::Kind;
   using Scope = Row::Scope;

   struct Knowledge {
      std::function< std::string() > cause; // what is being dispatched; asked where that may be another than before
      // The path of an entity whose values are published; empty for others. None: nothing is published.
      std::function< std::string( Rex::Entity const & ) > pathOf = {};
   };

   explicit Journal( Knowledge knowledge );
   ~Journal() override;
   Journal( Journal const & ) = delete;
   Journal & operator=( Journal const & ) = delete;

   // Hears what happens in the process from now on; idempotent.
   void listens();
   void hearsNoMore();

   // What kind of chip a FAP is, so that its rows have their layout.
   void chipIs( U16 fap, Hardware::ChipType chipType );

   // A reader hears of what ends from now on; it outlives the journal, or is taken out.
   void readerAdd( RowReader & reader ) { readers_.push_back( &reader ); }
   void readerDel( RowReader & reader ) { std::erase( readers_, &reader ); }

   void eventBegins( U32 event, Rex::Value what );
   void eventEnds();
   // As if it had never begun.
   void eventIsDropped();
   // What comes from here on has another cause, whatever is being announced.
   void causeIsAnother() { latestAnnouncements_.forget(); }
   U32 event() const { return event_; }
   U64 operationCount() const { return operations_; }
   // The run is over; idempotent.
   void ends( Ending::Kind kind );

   // Rows are kept from now on.
   void rowsAreKept() { isKept_ = true; }
   // Now and then causes get other numbers: for a run without an end, whose state has ever new names. Readers may hold
   // on to a number for one event only.
   void causesAreForgotten() { forgetsCauses_ = true; }
   // The rows that are kept, or those of the event under way.
   std::vector< Row > rows() const;
   // Those of them that are driver operations.
   std::vector< Row > operations() const;

   // A fault has changed what a chip holds, or failed an operation: its row stands behind that of the operation.
   void faultFired( FiredFault const & fired );

   void operation( DaceSal::Operation const & operation ) override;
   void gateClosed( Rex::ClosedGate const & gate ) override;
   bool follows( Rex::Entity const & entity ) override;
   void written( Rex::Write const & write ) override;

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
   struct Publication {
      std::string path;
      std::string_view attribute;
      std::optional< std::string > key;
      Rex::Value before;
      Rex::Value after;
   };
   // A row as it is kept. What is only there for some kinds shares its place with what the others have.
   struct Record {
      union {
         U32 const * words; // and behind them those that stood there before
         std::string const * reason;
         Publication const * publication;
      };
      U64 seq;
      U32 event;
      U32 origin;
      U32 cause;
      U32 entryOrControl;
      U32 value;
      U32 valueBefore;
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
      bool hasBefore;
      bool isOfFap;
   };
   // Where an operation came from, when it was asked last at a place like this one.
   struct LatestOrigin {
      char const * function = nullptr;
      U32 line = 0;
      U32 number = 0;
   };
   using Layouts = std::vector< Catalogue::Layout const * >; // of one kind of chip, by table and variant

   Record & add( Kind kind, U32 origin );
   void takeFaults();
   U32 originNumber( std::source_location const & at );
   U32 numberOf( OriginKey const & key );
   U32 causeNumber();
   void tell( Record const & record, Row & row ) const;
   void access( Record const & record, Row & row ) const;
   void handOver();
   void forget();
   void failed();

   Knowledge knowledge_;
   U32 event_ = 0;
   U64 operations_ = 0;
   std::vector< RowReader * > readers_;
   bool isKept_ = false;
   bool forgetsCauses_ = false;
   bool hasEnded_ = false;
   Rex::Value what_;            // the event under way
   std::size_t handedOver_ = 0; // rows of events that are over

   std::vector< Record > records_;
   WordStore words_;
   std::deque< std::string > reasons_;
   std::vector< Record > faults_; // of the operation under way
   std::deque< Publication > publications_;

   std::array< LatestOrigin, 256 > latestOrigins_; // by a few bits of the place
   std::deque< Origin > origins_;
   std::unordered_map< OriginKey, U32, OriginHash > originNumbers_;
   std::vector< std::string const * > causes_; // the keys of the numbers
   std::map< std::string, U32 > causeNumbers_;
   U32 latestCause_ = 0;
   LatestAnnouncements latestAnnouncements_;
   std::vector< Layouts > layouts_; // by FAP
   std::string followed_;           // the path of the entity that was asked about last
   int failureHook_ = 0;
};

} // namespace Simulator
