// What the page shows of a run, made as the run goes on or as its journal is read.
//
//    ReportData data( valueOf( scenario, Parts::withoutEvents ) );
//    journal.read( data );
//    report.write( reportOf( data ) );               // Report.h
//
// It has two parts: an index, which the page opens first (the events with their counts, causes, functions, FAPs and
// tables; names; layouts), and the rows in compressed blocks, which it opens as they are looked at.
//
// Memory: the compressed blocks, and for each event some dozen bytes beside its text.
#pragma once

#include "inspection/report/ReportBlocks.h"
#include "inspection/report/ReportTexts.h"
#include "inspection/report/SearchableValues.h"

#include <optional>

namespace Inspection {

class ReportData : public Simulator::RowReader {
 public:
   // `scenario`: what the journal begins with; null where it tells nothing.
   explicit ReportData( Rex::Value const & scenario );

   void eventBegins( U32 event, Rex::Value const & what ) override;
   void row( Simulator::Row const & row ) override;
   void eventEnds( U32 event ) override;
   void ends( Simulator::Ending const & ending ) override;

   std::string const & title() const { return title_; }
   U64 faults() const { return faults_; } // that fired
   // Once it has ended: JSON.
   std::string index() const;
   std::string values() const { return values_.json(); }
   std::vector< ReportBlock > const & blocks() const { return blocks_.all(); }

 private:
   static constexpr std::size_t kinds = 5;
   // How many rows of each kind, how many of the writes changed something, and how many of the controls.
   struct Tally {
      std::array< U32, kinds > rows{};
      U32 changes = 0;
      U32 changedControls = 0;
      void add( Simulator::Row const & row );
   };
   // Numbers that were met in an event or in a block.
   class Met {
    public:
      void add( U32 number );
      std::vector< U32 > taken(); // and begin anew

    private:
      std::vector< bool > isMet_;
      std::vector< U32 > all_;
   };
   // By number; most rows of a run count for the same few.
   class Tallies {
    public:
      Tally & operator[]( U32 number ) {
         if ( number >= all_.size() ) {
            all_.resize( std::size_t{ number } + 1 );
         }
         return all_[number];
      }
      // Those that were counted for, in their order: `each( number, tally )`.
      template< class Each >
      void each( Each const & each ) const {
         for ( std::size_t number = 0; number < all_.size(); ++number ) {
            if ( all_[number].rows != std::array< U32, kinds >{} ) {
               each( static_cast< U32 >( number ), all_[number] );
            }
         }
      }

    private:
      std::vector< Tally > all_;
   };
   struct EventOf {
      U32 number;
      U32 firstRow;
      Tally tally;
      U32 faps = 0;
      U32 functions = 0;
      U32 causes = 0;
      U32 tables = 0;
      bool isWhole = false;
   };
   struct Published {
      std::string value;
      U32 event = 0;
      U32 count = 0;
   };

   RowKey keyOf( Simulator::Row const & row );
   int layoutNumber( Simulator::Row const & row );
   U32 causeNumber( Simulator::Row const & row );
   void wordsOf( Simulator::Row const & row );
   void met( Simulator::Row const & row, RowKey const & key, U32 cause );
   void eventIsOver( bool isWhole );
   std::string layoutsJson() const;
   std::string eventsJson() const;
   std::string blocksJson() const;
   std::string publishedJson() const;

   std::string title_;
   std::string scenario_; // JSON: name, switch, toggles
   std::vector< U32 > fieldNames_;
   ReportTexts texts_;
   ReportRowKeys keys_;
   ReportSets sets_;
   ReportBlocks blocks_;
   SearchableValues values_;
   std::vector< EventOf > events_;
   std::string whats_; // JSON, by event
   bool isUnderWay_ = false;
   U64 nextOperation_ = 1;
   Met faps_;
   Met functions_;
   Met causes_;
   Met tables_;
   std::unordered_map< Catalogue::Layout const *, int > layoutNumbers_;
   struct LayoutOf {
      Catalogue::Layout const * layout;
      U32 table;
   };
   std::vector< LayoutOf > layouts_;
   U32 controls() { return latestControls_.number( texts_, "controls" ); }
   ReportTexts::Latest latestPath_;
   ReportTexts::Latest latestReason_;
   ReportTexts::Latest latestControls_;
   std::vector< std::pair< U32, U32 > > origins_; // function and source, by the row's number
   std::vector< U32 > causeNumbers_;
   Tallies byFunction_;
   Tallies byCause_;
   Tallies byTable_;
   Tallies byFap_;
   std::unordered_map< U32, Published > published_; // by what the row is
   U64 faults_ = 0;
   std::optional< Simulator::Ending > ending_;
};

} // namespace Inspection
