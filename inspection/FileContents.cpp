#include "inspection/FileContents.h"

#include "inspection/ChipsSides.h"
#include "inspection/files/ChipsReader.h"
#include "inspection/files/FileKind.h"

namespace Inspection {

namespace {

void ofJournal( ContentsQuestion const & question, ContentsHearer const & hearer ) {
   auto const fap = question.filter.fap();
   ChipsOfJournal journal( question.file, question.filter, { question.event } );
   auto & chips = journal.chips( 0 );
   if ( fap && !chips.chipTypes().contains( *fap ) ) {
      throw InputError( inputName( question.file ), "there is no FAP " + std::to_string( *fap ) );
   }
   hearer.remarks( journal.remarks() );
   for ( auto const & [number, chipType] : chips.chipTypes() ) {
      if ( !fap || *fap == number ) {
         FapContents contents{ chipType, chips.contents( number ) };
         question.filter.keep( contents.contents );
         hearer.fap( number, contents );
      }
   }
}

} // namespace

void eachContents( ContentsQuestion const & question, ContentsHearer const & hearer ) {
   if ( kindOfFile( question.file ) == FileKind::journal ) {
      ofJournal( question, hearer );
      return;
   }
   if ( question.event ) {
      throw InputError( inputName( question.file ), "--at asks for an event, and only a journal has events" );
   }
   eachFap( question.file,
            { .fap = question.filter.fap(), .tables = question.filter.tables() },
            [&]( U16 fap, FapContents contents ) {
               question.filter.keep( contents.contents );
               hearer.fap( fap, contents );
            } );
}

} // namespace Inspection
