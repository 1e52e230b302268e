#include "inspection/FunctionTables.h"

#include "inspection/FieldChanges.h"

#include <map>
#include <set>
#include <sstream>

namespace Inspection {

namespace {

using Rex::Value;
using Simulator::Row;

void add( std::map< std::string, Touch > & touches,
          std::map< std::string, std::set< std::string > > & fields,
          Catalogue::Table const & table,
          KeptRows const & journal ) {
   for ( Simulator::Row const & row : journal.all() ) {
      if ( row.table == table.name ) {
         std::string const function( row.function );
         Touch & touch = touches[function];
         touch.table = table.name;
         touch.function = function;
         touch.source = row.source.substr( 0, row.source.find( ':' ) );
         ( row.kind == Simulator::Row::Kind::read ? touch.reads : touch.writes ) = true;
         if ( row.kind == Simulator::Row::Kind::write ) {
            for ( auto const & change : fieldChanges( row ) ) {
               if ( change.before && change.isChange() ) {
                  fields[function].insert( change.field->name );
               }
            }
         }
      }
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

std::vector< Touch > touchesOf( Catalogue::Table const & table, std::vector< KeptRows > const & journals ) {
   std::map< std::string, Touch > touches;
   std::map< std::string, std::set< std::string > > fields;
   for ( KeptRows const & journal : journals ) {
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

std::vector< Touch > controlTouches( std::vector< KeptRows > const & journals ) {
   std::map< std::pair< U32, std::string >, Touch > touches;
   for ( KeptRows const & journal : journals ) {
      for ( Simulator::Row const & row : journal.all() ) {
         if ( row.kind == Row::Kind::control ) {
            std::string const function( row.function );
            touches[{ row.control, function }] = { .table = "control." + std::to_string( row.control ),
                                                   .function = function,
                                                   .source =
                                                      std::string( row.source.substr( 0, row.source.find( ':' ) ) ),
                                                   .writes = true };
         }
      }
   }
   std::vector< Touch > all;
   for ( auto const & touch : touches ) {
      all.push_back( touch.second );
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
