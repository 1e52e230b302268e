// The verb `catalogue`: the chip tables, their geometry and where their fields lie.
#include "inspection/KeptRows.h"
#include "inspection/NamesAsTyped.h"
#include "inspection/files/Json.h"
#include "inspection/views/CatalogueText.h"
#include "inspection/views/ReplayText.h"
#include "l3sm/verbs/Verbs.h"

#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

using Rex::Value;

struct CatalogueOptions {
   std::string table;
   std::string chip;
   std::vector< std::string > journals;
   bool json = false;
};

// From the journals that were named, or else from those of the examples.
std::vector< Touch >
touchesOf( Catalogue::Table const & table, CatalogueOptions const & options, std::vector< std::string > & remarks ) {
   if ( options.journals.empty() ) {
      return Inspection::touchesOf( table );
   }
   std::vector< KeptRows > journals;
   for ( std::string const & path : options.journals ) {
      auto const & rows = journals.emplace_back( rowsOf( path ) );
      remarks.insert( remarks.end(), rows.remarks.begin(), rows.remarks.end() );
   }
   return Inspection::touchesOf( table, journals );
}

int answer( CatalogueOptions const & options ) {
   U8 const chipType = options.chip.empty() ? 0 : static_cast< U8 >( chipNamed( options.chip ) );
   Catalogue::Table const * const table = options.table.empty() ? nullptr : &tableNamed( options.table );
   if ( !table && !options.journals.empty() ) {
      throw InputError( "--journal tells which functions touch a table; name the table" );
   }
   if ( table && !isOnChip( *table, chipType ) ) {
      throw InputError( std::string( "the " ) + options.chip + " has no table " + table->name );
   }
   std::vector< std::string > remarks;
   auto const touches = table ? touchesOf( *table, options, remarks ) : std::vector< Touch >();
   if ( options.json ) {
      Value::Object classes;
      for ( auto const & each : Catalogue::tables() ) {
         if ( ( !table || table == &each ) && isOnChip( each, chipType ) ) {
            classes[each.name] = tableValue( each, chipType );
            if ( table ) {
               classes[each.name].object()->emplace( "touchedBy", touchesValue( touches ) );
            }
         }
      }
      Value::Object all{ { "classes", classes } };
      if ( !remarks.empty() ) {
         all["remarks"] = Value::List( remarks.begin(), remarks.end() );
      }
      std::cout << toJson( all, 5 ) << '\n';
   } else if ( table ) {
      std::string const runs = options.journals.empty() ? "the examples" : "these journals";
      showRemarks( std::cout, remarks, Style::of( std::cout ) );
      showTable( std::cout, *table, chipType, touches, runs, Style::of( std::cout ) );
   } else {
      listTables( std::cout, chipType, Style::of( std::cout ) );
   }
   return 0;
}

} // namespace

Action defineCatalogue( VerbOptions & verb ) {
   auto const options = std::make_shared< CatalogueOptions >();
   verb.text( "TABLE", options->table, "draw this table; without it, list all" );
   verb.text( "--chip", options->chip, "only what this chip has, as in BCM88690_B0" );
   verb.texts( "--journal",
               options->journals,
               "tell which functions touch the table from this journal, not from those of the examples",
               "FILE" );
   verb.flag( "--json", options->json, "for programs" );
   return [options] { return answer( *options ); };
}

} // namespace Cli
