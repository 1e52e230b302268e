#include "inspection/FunctionTables.h"

#include "inspection/History.h"

#include <map>
#include <set>
#include <sstream>

namespace Inspection {

namespace {

using Rex::Value;
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
         touch.table = table.name;
         touch.function = function;
         touch.source = row.source.substr( 0, row.source.find( ':' ) );
         ( row.kind == Journal::Kind::read ? touch.reads : touch.writes ) = true;
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

std::string Touch::does() const {
   return !writes ? "reads" : !reads ? "writes" : "reads, writes";
}

std::vector< Touch > touchesOf( Catalogue::Table const & table ) {
   std::vector< Touch > all;
   for ( Touch const & touch : knownTouches() ) {
      if ( touch.table == table.name ) {
         all.push_back( touch );
      }
   }
   return all;
}

std::vector< Touch > touchesOf( Catalogue::Table const & table, std::vector< JournalFile > const & journals ) {
   std::map< std::string, Touch > touches;
   std::map< std::string, std::set< std::string > > fields;
   for ( JournalFile const & journal : journals ) {
      add( touches, fields, table, journal );
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

Value touchesValue( std::vector< Touch > const & touches ) {
   Value::List list;
   for ( Touch const & touch : touches ) {
      Value::List fields;
      std::istringstream names( touch.fields );
      for ( std::string name; names >> name; ) {
         fields.emplace_back( name );
      }
      Value::Object one;
      one["function"] = touch.function;
      one["source"] = touch.source;
      one["reads"] = touch.reads;
      one["writes"] = touch.writes;
      one["fields"] = fields;
      list.emplace_back( std::move( one ) );
   }
   return list;
}

} // namespace Inspection
