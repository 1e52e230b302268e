#include "inspection/Replay.h"

#include "inspection/files/ChipsFile.h"
#include "inspection/files/ChipsReader.h"
#include "inspection/files/Scenario.h"

#include <fstream>

namespace Inspection {

namespace {

using Rex::Value;

// FAP by FAP, so that only one of them is held as contents.
std::vector< Difference > differencesFrom( std::string const & path, ReplayedChips & chips ) {
   std::vector< Difference > all;
   std::set< U16 > seen;
   auto const compare = [&]( ChipsFile const & a, U16 fap ) {
      ChipsFile b;
      if ( chips.chipTypes().contains( fap ) ) {
         b[fap] = { chips.chipTypes().at( fap ), chips.contents( fap ) };
      }
      auto differences = differencesOf( a, b );
      all.insert( all.end(), differences.begin(), differences.end() );
   };
   eachFap( path, {}, [&]( U16 fap, FapContents contents ) {
      seen.insert( fap );
      compare( ChipsFile{ { fap, std::move( contents ) } }, fap );
   } );
   for ( auto const & [fap, chipType] : chips.chipTypes() ) {
      if ( !seen.contains( fap ) ) {
         compare( {}, fap );
      }
   }
   return all;
}

} // namespace

Replay replayOf( ReplayQuestion const & question, OutputFile const & out ) {
   JournalReader journal( question.journal );
   ReplayedChips chips( journal );
   if ( !question.scenario.empty() ) {
      auto const scenario = readScenario( question.scenario );
      for ( auto const & fap : scenario.description.faps ) {
         chips.chipIs( fap.fapId.value(), fap.revision.chipType() );
      }
      scenario.fillChips( chips.driver() );
   }
   if ( !question.chips.empty() ) {
      for ( auto const & [fap, chipType] : chipTypesIn( question.chips ) ) {
         chips.chipIs( fap, chipType );
      }
   }
   journal.read( chips );

   Replay replay{ .reads = chips.reads(),
                  .writes = chips.writes(),
                  .controls = chips.controls(),
                  .chips = chips.chipTypes().size(),
                  .begunWith = chips.begunWith(),
                  .others = chips.others(),
                  .remarks = journal.remarks() };
   if ( !question.chips.empty() ) {
      replay.differences = differencesFrom( question.chips, chips );
   }
   if ( out.isWanted() ) {
      ChipsFile contents;
      for ( auto const & [fap, chipType] : chips.chipTypes() ) {
         contents[fap] = { chipType, chips.contents( fap ) };
      }
      std::ostringstream text;
      writeChips( text, contents );
      out.write( text.str() );
   }
   return replay;
}

Value valueOf( Replay const & replay ) {
   auto const numbers = []( OtherContentsList const & list ) {
      Value::List all;
      for ( U64 const seq : list.seqs ) {
         all.emplace_back( seq );
      }
      return all;
   };
   Value::List remarks;
   for ( auto const & remark : replay.remarks ) {
      remarks.emplace_back( remark );
   }
   return Value::Object{
      { "writes", replay.writes },
      { "controls", replay.controls },
      { "reads", replay.reads },
      { "begunWith", numbers( replay.begunWith ) },
      { "otherReads", numbers( replay.others ) },
      { "differences", replay.differences ? Value( differencesValue( *replay.differences ) ) : Value() },
      { "remarks", std::move( remarks ) },
   };
}

} // namespace Inspection
