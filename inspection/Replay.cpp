#include "inspection/Replay.h"

#include "inspection/ChipsSides.h"
#include "inspection/files/ChipsReader.h"
#include "inspection/files/ChipsWriter.h"
#include "inspection/files/Scenario.h"

namespace Inspection {

using Rex::Value;

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
      auto & all = replay.differences.emplace();
      eachDifference( question.chips, chips, {}, false, [&]( Difference it ) { all.push_back( std::move( it ) ); } );
   }
   out.stream( [&]( std::ostream & file ) {
      ChipsWriter writer( file );
      for ( auto const & [fap, chipType] : chips.chipTypes() ) {
         writer.add( fap, chipType, chips.chip( fap ) );
      }
      writer.end();
   } );
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
