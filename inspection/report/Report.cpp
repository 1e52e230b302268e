#include "inspection/report/Report.h"

#include "inspection/NamesAsTyped.h"
#include "inspection/RunValue.h"
#include "inspection/report/ReportPage.h"
#include "simulator/BootImage.h"
#include "simulator/TableMap.h"

#include <algorithm>
#include <set>

namespace Inspection {

namespace {

using Rex::Value;
using Simulator::Row;
using Simulator::SimulatedSwitch;
using Simulator::Words;

// Texts that many operations share, each once.
class Strings {
 public:
   std::size_t number( std::string_view text ) {
      auto const [known, isNew] = numbers_.try_emplace( std::string( text ), list_.size() );
      if ( isNew ) {
         list_.emplace_back( std::string( text ) );
      }
      return known->second;
   }
   Value::List const & list() const { return list_; }

 private:
   std::map< std::string, std::size_t > numbers_;
   Value::List list_;
};

Value::List wordsValue( Simulator::WordView words ) {
   return { words.begin(), words.end() };
}

// A row of numbers, in the order in which report/model.js reads them.
Value operationValue( Row const & row, Strings & strings ) {
   bool const isControl = row.kind == Simulator::Row::Kind::control;
   bool const isWrite = row.kind == Simulator::Row::Kind::write;
   Value before;
   if ( isControl ) {
      before = row.valueBefore ? Value( *row.valueBefore ) : Value();
   } else if ( isWrite ) {
      before = wordsValue( row.before.empty() ? row.words : row.before );
   }
   Value::List list;
   list.emplace_back( row.seq );
   list.emplace_back( row.event );
   list.emplace_back( static_cast< U32 >( row.kind ) );
   list.emplace_back( row.fap );
   list.emplace_back( isControl ? row.control : strings.number( row.table ) );
   list.emplace_back( isControl ? row.value : row.variant );
   list.emplace_back( row.array );
   list.push_back( row.entry ? Value( *row.entry ) : Value() );
   list.push_back( row.scope == Simulator::Row::Scope::core ? Value( row.core ) : Value() );
   list.push_back( isWrite ? Value( wordsValue( row.words ) ) : Value() );
   list.push_back( std::move( before ) );
   list.emplace_back( row.changed ? 1 : 0 );
   list.emplace_back( strings.number( row.function ) );
   list.emplace_back( strings.number( row.source ) );
   list.emplace_back( strings.number( row.cause ) );
   return list;
}

Value layoutValue( Catalogue::Layout const & layout ) {
   Value::List fields;
   for ( auto const & field : layout.fields ) {
      Value::Object one;
      one["name"] = field.name;
      one["offset"] = field.offset;
      one["width"] = field.width;
      fields.emplace_back( std::move( one ) );
   }
   Value::Object value;
   value["width"] = layout.width;
   value["arrayed"] = isArrayed( layout );
   value["fields"] = std::move( fields );
   return value;
}

// The tables that were touched, on the kinds of chip that the switch has.
Value tablesValue( std::set< std::string_view > const & names, Simulator::SwitchDescription const & description ) {
   std::set< U8 > chips;
   for ( auto const & fap : description.faps ) {
      chips.insert( static_cast< U8 >( fap.revision.chipType() ) );
   }
   Value::Object tables;
   for ( std::string_view const name : names ) {
      auto const & table = *Catalogue::table( name );
      Value::Object layouts;
      for ( auto const & layout : table.layouts ) {
         if ( chips.contains( layout.chipType ) ) {
            Value & variants =
               layouts.try_emplace( Catalogue::chipName( layout.chipType ), Value::Object() ).first->second;
            variants.object()->emplace( std::to_string( layout.variant ), layoutValue( layout ) );
         }
      }
      Value::Object one;
      one["kind"] = table.isMemory ? "Memory" : "Register";
      one["variants"] = table.variantCount;
      one["layouts"] = std::move( layouts );
      tables[std::string( name )] = std::move( one );
   }
   return tables;
}

Value eventsValue( Scenario const & scenario ) {
   Value::List events;
   Value::Object start;
   start["text"] = "start-up";
   events.emplace_back( std::move( start ) );
   for ( auto const & event : scenario.events ) {
      Value::Object one;
      one["text"] = event.text();
      events.emplace_back( std::move( one ) );
   }
   return events;
}

Value dataOf( Scenario const & scenario, SimulatedSwitch const & sw, KeptRows const & rows ) {
   auto const & description = sw.description();
   Strings strings;
   Value::List operations;
   Value::List gates;
   std::set< std::string_view > tables;
   for ( Row const & row : rows.all() ) {
      addGate( gates, row );
      if ( !row.isOperation() ) {
         continue;
      }
      operations.push_back( operationValue( row, strings ) );
      if ( row.kind != Row::Kind::control ) {
         tables.insert( row.table );
      }
   }
   Value::Object data;
   data["name"] = scenario.name;
   data["switch"] = switchValue( description );
   data["toggles"] = togglesValue();
   data["events"] = eventsValue( scenario );
   data["tables"] = tablesValue( tables, description );
   data["operations"] = std::move( operations );
   data["gates"] = std::move( gates );
   data["strings"] = strings.list();
   return data;
}

// Text in HTML, and JSON in a script: neither can end the element that it stands in.
std::string escaped( std::string const & text ) {
   std::string out;
   for ( char const letter : text ) {
      out += letter == '<' ? "&lt;" : letter == '&' ? "&amp;" : std::string( 1, letter );
   }
   return out;
}

std::string inScript( std::string const & json ) {
   std::string out;
   out.reserve( json.size() );
   for ( char const letter : json ) {
      if ( letter == '<' ) {
         out += "\\u003c";
      } else {
         out += letter;
      }
   }
   return out;
}

void put( std::string & page, std::string const & mark, std::string const & text ) {
   page.replace( page.find( mark ), mark.size(), text );
}

} // namespace

std::string reportOf( Scenario const & scenario, SimulatedSwitch const & sw, KeptRows const & rows ) {
   std::string page = reportPage;
   // From the end to the beginning: a mark that stands in what is put in is never found.
   put( page, "@SCRIPT@", reportScript );
   put( page, "@DATA@", inScript( Rex::toText( dataOf( scenario, sw, rows ) ) ) );
   put( page, "@STYLE@", reportStyle );
   put( page, "@TITLE@", escaped( scenario.name.empty() ? "l3sm run" : scenario.name ) );
   return page;
}

} // namespace Inspection
