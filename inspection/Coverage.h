// Which tables, fields and values runs have written and changed, on which kinds of chip: against the catalogue, and
// against what the plug-in can write at all.
//
//    Coverage coverage;
//    coverage.beginsWith( journal.chipTypes() );
//    journal.read( coverage );
//    coverage.percent();                                    // of the pairs of table and chip that can be written
//    coverage.cell( table, ChipType::BCM88690_B0 )->fields  // by name
//
// Several runs add up. Its memory is that of what was covered, not of the runs.
//
// Threading: one thread.
#pragma once

#include "inspection/files/Scenario.h"
#include "simulator/Row.h"

#include <map>
#include <set>

namespace Inspection {

struct FieldCoverage {
   static constexpr std::size_t mostValues = 16; // that are kept
   U64 changes = 0;
   std::set< std::string > values = {}; // that it was changed to, as a dump has them
};

// A table on one kind of chip.
struct TableCoverage {
   U64 writes = 0;
   U64 changes = 0;
   std::set< U8 > variants = {};
   std::set< int > arrays = {};
   std::map< std::string, FieldCoverage > fields = {}; // those that were changed
};

// Why the plug-in never writes a table of the catalogue; on one kind of chip, or on all.
struct Unwritten {
   std::string_view table;
   std::string_view chip; // empty: every
   std::string_view reason;
};
std::span< Unwritten const > knownUnwritten();

class Coverage final : public Simulator::RowReader {
 public:
   using Key = std::pair< U16, U8 >; // table and chip type, by number

   void beginsWith( std::map< U16, Hardware::ChipType > const & chipTypes ) { chipTypes_ = chipTypes; }
   void row( Simulator::Row const & row ) override;

   // Null where nothing was written.
   TableCoverage const * cell( Catalogue::Table const & table, Hardware::ChipType chipType ) const;
   // Why it can't be; null where it can.
   static Unwritten const * whyUnwritten( Catalogue::Table const & table, Hardware::ChipType chipType );
   static bool has( Catalogue::Table const & table, Hardware::ChipType chipType );
   // Fields of all its layouts on the kind of chip.
   static std::set< std::string > fieldsOf( Catalogue::Table const & table, Hardware::ChipType chipType );

   struct Pairs {
      std::size_t all = 0;      // of the catalogue
      std::size_t writable = 0; // by the plug-in
      std::size_t written = 0;
      std::size_t changed = 0;
      double percent() const { return 100.0 * static_cast< double >( written ) / static_cast< double >( writable ); }
   };
   Pairs pairs() const;

   // What another process has covered, as text and back.
   std::string text() const;
   void add( std::string const & text );

 private:
   std::map< U16, Hardware::ChipType > chipTypes_;
   std::map< Key, TableCoverage > cells_;
};

// Plays a scenario in a child process. InputError where it can't; a run that ends the process covers nothing.
void cover( Coverage & coverage, Scenario const & scenario, std::string const & plugin );

} // namespace Inspection
