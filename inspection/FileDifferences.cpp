#include "inspection/FileDifferences.h"

#include "inspection/ChipsSides.h"
#include "inspection/files/FileKind.h"
#include "inspection/files/Scenario.h"

#include <algorithm>

namespace Inspection {

namespace {

using Rex::Value;

bool areChips( FileKind kind ) {
   return kind == FileKind::chips || kind == FileKind::journal;
}

FileKind comparableKind( std::string const & path ) {
   auto const kind = kindOfFile( path );
   if ( !areChips( kind ) && kind != FileKind::state && kind != FileKind::scenario ) {
      throw InputError( inputName( path ),
                        std::string( kind == FileKind::empty ? "is empty" : "is " + std::string( nameOf( kind ) ) ) +
                           "; diff compares chips files, journals, states and saved scenarios" );
   }
   return kind;
}

// Takes what differs, but for what isn't asked for.
class Collector {
 public:
   Collector( DiffQuestion const & question, FileDifferences & into ) : question_( question ), into_( into ) {}

   void operator()( Difference it ) const {
      if ( !keep( it ) ) {
         return;
      }
      into_.counts.add( it );
      if ( !question_.countsOnly ) {
         into_.chips.push_back( std::move( it ) );
      }
   }

 private:
   bool keep( Difference & it ) const {
      ContentsFilter const & filter = question_.filter;
      if ( filter.fap() && *filter.fap() != it.fap ) {
         return false;
      }
      if ( it.table == Difference::chipType ) {
         return filter.isEverything();
      }
      if ( it.table == Difference::controls ) {
         return filter.isControl( it.entry );
      }
      if ( !filter.isTable( it.table ) || !filter.isPlace( it.variant, it.array, it.entry ) ) {
         return false;
      }
      std::erase_if( it.values, [&]( ValueDifference const & value ) {
         return !filter.isField( it.table, value.name.substr( 0, value.name.find( ' ' ) ) );
      } );
      return !it.values.empty();
   }

   DiffQuestion const & question_;
   FileDifferences & into_;
};

void refuseEvents( DiffQuestion const & question, std::string const & file ) {
   if ( !question.events.empty() ) {
      throw InputError( inputName( file ), "--at asks for an event, and only a journal has events" );
   }
}

void compareChipsFiles( DiffQuestion const & question, FileDifferences & into ) {
   Collector const collect( question, into );
   try {
      eachDifference( question.a, question.b, question.filter, collect );
   } catch ( PartsOutOfOrder ) {
      for ( auto const & file : { question.a, question.b } ) {
         if ( file == "-" ) {
            throw InputError( inputName( file ), "has its parts in another order than l3sm writes; give it as a file" );
         }
      }
      into.counts = {};
      into.chips.clear();
      for ( Difference & it : differencesOf( readChips( question.a ), readChips( question.b ) ) ) {
         collect( std::move( it ) );
      }
   }
}

void compareChips( DiffQuestion const & question, FileKind kindA, FileKind kindB, FileDifferences & into ) {
   Collector const collect( question, into );
   bool const isA = kindA == FileKind::journal;
   bool const isB = kindB == FileKind::journal;
   if ( !isA && !isB ) {
      refuseEvents( question, question.a );
   }
   auto const & events = question.events;
   if ( events.size() > 1 && isA != isB ) {
      throw InputError( "--at is given " + std::to_string( events.size() ) + " times, and there is one journal" );
   }
   std::optional< U32 > const first = events.empty() ? std::nullopt : std::optional( events.front() );
   std::optional< U32 > const second = events.empty() ? std::nullopt : std::optional( events.back() );
   auto const at = []( std::optional< U32 > event ) {
      return event ? " at event " + std::to_string( *event ) : std::string();
   };
   into.nameA += isA ? at( first ) : "";
   into.nameB += isB ? at( second ) : "";
   if ( isA && isB ) {
      ChipsOfJournal a( question.a, question.filter, { first } );
      ChipsOfJournal b( question.b, question.filter, { second } );
      into.remarks = a.remarks();
      std::ranges::copy_if( b.remarks(), std::back_inserter( into.remarks ), [&]( auto const & remark ) {
         return std::ranges::find( into.remarks, remark ) == into.remarks.end();
      } );
      eachDifference( a.chips( 0 ), b.chips( 0 ), question.filter, collect );
   } else if ( !isA && !isB ) {
      compareChipsFiles( question, into );
   } else {
      ChipsOfJournal journal( isA ? question.a : question.b, question.filter, { isA ? first : second } );
      into.remarks = journal.remarks();
      eachDifference( isA ? question.b : question.a, journal.chips( 0 ), question.filter, isA, collect );
   }
}

// Two events of one run: the journal is read once.
void compareEvents( DiffQuestion const & question, FileDifferences & into ) {
   auto const & events = question.events;
   std::optional< U32 > const second = events.size() > 1 ? std::optional( events[1] ) : std::nullopt;
   ChipsOfJournal journal( question.a, question.filter, { events[0], second } );
   into.remarks = journal.remarks();
   into.nameA += " at event " + std::to_string( events[0] );
   into.nameB += second ? " at event " + std::to_string( *second ) : " at its end";
   eachDifference( journal.chips( 0 ), journal.chips( 1 ), question.filter, Collector( question, into ) );
}

// What a scenario holds beside its chips; lists of things that have a number become objects, so that those are compared
// which are meant.
Value partsOf( Scenario const & scenario ) {
   Value const value = valueOf( scenario, Parts::all );
   auto const & parts = *value.object();
   Value::Object all = *parts.at( "state" ).object();
   Value::Object theSwitch = *parts.at( "switch" ).object();
   Value::Object faps;
   for ( Value const & fap : *theSwitch.at( "faps" ).list() ) {
      faps[Rex::toText( fap.object()->at( "fapId" ) )] = fap;
   }
   theSwitch["faps"] = std::move( faps );
   Value::Object events;
   std::size_t number = 0;
   for ( Value const & event : *parts.at( "events" ).list() ) {
      events[std::to_string( ++number )] = Rex::toText( event );
   }
   all["switch"] = std::move( theSwitch );
   all["toggles"] = parts.at( "toggles" );
   all["events"] = std::move( events );
   return all;
}

ChipsFile chipsOf( Scenario const & scenario ) {
   ChipsFile chips;
   for ( auto const & fap : scenario.description.faps ) {
      auto const contents = scenario.chips.find( fap.fapId.value() );
      chips[fap.fapId.value()] = { fap.revision.chipType(),
                                   contents == scenario.chips.end() ? Simulator::Contents() : contents->second };
   }
   return chips;
}

void compareScenarios( DiffQuestion const & question, FileDifferences & into ) {
   auto const a = readScenario( question.a );
   auto const b = readScenario( question.b );
   Collector const collect( question, into );
   for ( Difference & it : differencesOf( chipsOf( a ), chipsOf( b ) ) ) {
      collect( std::move( it ) );
   }
   if ( question.filter.isEverything() && !question.filter.fap() ) {
      eachPathDifference(
         partsOf( a ), partsOf( b ), [&]( PathDifference it ) { into.values.push_back( std::move( it ) ); } );
   }
}

void compareStates( DiffQuestion const & question, FileDifferences & into ) {
   if ( !question.filter.isEverything() || question.filter.fap() ) {
      throw InputError( inputName( question.a ), "is a state file, and tables and FAPs are of chips" );
   }
   into.areChips = false;
   eachPathDifference( readJson( question.a ), readJson( question.b ), [&]( PathDifference it ) {
      into.values.push_back( std::move( it ) );
   } );
}

} // namespace

FileDifferences differencesOf( DiffQuestion const & question ) {
   FileDifferences it{ .nameA = inputName( question.a ),
                       .nameB = inputName( question.b.empty() ? question.a : question.b ) };
   if ( question.a == "-" && question.b == "-" ) {
      throw InputError( it.nameA, "can be read once; name one of the two files" );
   }
   auto const kindA = comparableKind( question.a );
   if ( question.b.empty() ) {
      if ( kindA != FileKind::journal || question.events.empty() ) {
         throw InputError( kindA == FileKind::journal
                              ? "name the file to compare " + it.nameA + " with, or two of its events with --at"
                              : "name the file to compare " + it.nameA + " with" );
      }
      compareEvents( question, it );
      return it;
   }
   auto const kindB = comparableKind( question.b );
   if ( kindA != kindB && !( areChips( kindA ) && areChips( kindB ) ) ) {
      throw InputError( it.nameA + " is " + std::string( nameOf( kindA ) ) + " and " + it.nameB + " " +
                        std::string( nameOf( kindB ) ) +
                        "; give two of one kind, where a journal stands for the chips that it tells of" );
   }
   if ( areChips( kindA ) ) {
      compareChips( question, kindA, kindB, it );
      return it;
   }
   refuseEvents( question, question.a );
   if ( kindA == FileKind::scenario ) {
      compareScenarios( question, it );
   } else {
      compareStates( question, it );
   }
   return it;
}

} // namespace Inspection
