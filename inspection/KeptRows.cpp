#include "inspection/KeptRows.h"

#include "inspection/files/JournalReader.h"

namespace Inspection {

void KeptRows::row( Simulator::Row const & row ) {
   Simulator::Row & mine = rows_.emplace_back( row );
   for ( auto * text : { &mine.function, &mine.source, &mine.cause, &mine.reason, &mine.path, &mine.attribute } ) {
      *text = kept( *text );
   }
   if ( mine.key ) {
      mine.key = kept( *mine.key );
   }
   for ( auto * words : { &mine.words, &mine.before } ) {
      *words = words_.emplace_back( words->begin(), words->end() );
   }
   for ( auto * value : { &mine.published, &mine.publishedBefore } ) {
      *value = *value ? &values_.emplace_back( **value ) : nullptr;
   }
}

KeptRows rowsOf( std::string const & journal ) {
   KeptRows rows;
   JournalReader reader( journal );
   reader.read( rows );
   rows.remarks = reader.remarks();
   return rows;
}

} // namespace Inspection
