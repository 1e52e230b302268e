#include "l3sm/Touches.h"

#include "l3sm/History.h"

#include <map>
#include <set>

namespace Cli {

namespace {

using Simulator::Journal;

void add( std::map< std::string, Touch > & touches,
          std::map< std::string, std::set< std::string > > & fields,
          Catalogue::Table const & table,
          JournalFile const & journal ) {
   History history;
   for ( Journal::Row const & row : journal.rows() ) {
      if ( row.kind != Journal::Kind::control && row.table == table.name ) {
         std::string const function( row.function );
         Touch & touch = touches[function];
         touch.function = function;
         touch.source = row.source.substr( 0, row.source.find( ':' ) );
         ++( row.kind == Journal::Kind::read ? touch.reads : touch.writes );
         if ( row.kind == Journal::Kind::write ) {
            for ( auto const & change : fieldChanges( *layoutOf( row ), history.before( row ), row.words ) ) {
               if ( change.before && change.isChange() ) {
                  fields[function].insert( change.field->name );
               }
            }
         }
      }
      history.follow( row );
   }
}

} // namespace

std::vector< Touch > touchesOf( Catalogue::Table const & table, std::vector< std::string > const & journals ) {
   std::map< std::string, Touch > touches;
   std::map< std::string, std::set< std::string > > fields;
   for ( std::string const & path : journals ) {
      add( touches, fields, table, readJournal( path ) );
   }
   std::vector< Touch > all;
   for ( auto & [function, touch] : touches ) {
      for ( std::string const & field : fields[function] ) {
         touch.fields += ( touch.fields.empty() ? "" : " " ) + field;
      }
      all.push_back( touch );
   }
   return all;
}

Rex::Value touchesValue( std::vector< Touch > const & touches ) {
   Rex::Value::List list;
   for ( Touch const & touch : touches ) {
      Rex::Value::Object one;
      one["function"] = touch.function;
      one["source"] = touch.source;
      one["reads"] = touch.reads;
      one["writes"] = touch.writes;
      list.emplace_back( std::move( one ) );
   }
   return list;
}

} // namespace Cli
