// What the generator reads. It has names of its own for files and words, so it stands apart.
#include "Entries.h"
#include "EntryTools.h"

#include "generator/Check.h"
#include "generator/Emit.h"
#include "generator/Read.h"

namespace Fuzz {

// One table's file beside the chips that there are, up to the sources that it would give.
void catalogue( std::string const & bytes ) {
   static auto const chipsThere = ::readChips( L3SM_SOURCE_DIR "/catalogue/chips.yaml" );
   BytesFile const file( bytes );
   try {
      Model::Catalogue read{ .chips = chipsThere, .tables = { readTable( file.path(), chipsThere ) }, .fieldIds = {} };
      checkTable( read.tables.front(), read.chips );
      for ( auto const & field : read.tables.front().fieldNames ) {
         read.fieldIds.emplace( field, static_cast< unsigned >( read.fieldIds.size() + 1 ) );
      }
      emitAll( read );
   } catch ( Error const & ) { // NOLINT(bugprone-empty-catch)
   }
}

} // namespace Fuzz
