#include "inspection/RunSummaryValue.h"

#include "simulator/SimulatedSwitch.h"

#include <algorithm>

namespace Inspection {

namespace {

using Rex::Value;
using Simulator::Row;

// What one function did to one FAP in one event, on one cause.
struct Deed {
   std::string_view function;
   std::string_view cause;
   std::set< std::string > tables; // "controls" for controls
   RowCounts counts;
};

using Deeds = std::vector< Deed >; // in the order of their first operations

void add( Deeds & deeds, Row const & row ) {
   auto found = std::ranges::find_if(
      deeds, [&]( Deed const & deed ) { return deed.function == row.function && deed.cause == row.cause; } );
   if ( found == deeds.end() ) {
      found = deeds.insert( found, { row.function, row.cause, {}, {} } );
   }
   found->tables.insert( row.kind == Row::Kind::control ? "controls" : std::string( row.table ) );
   found->counts.count( row );
}

Value deedsValue( Deeds const & deeds ) {
   Value::List list;
   for ( Deed const & deed : deeds ) {
      Value::Object one;
      one["function"] = std::string( deed.function );
      one["cause"] = std::string( deed.cause );
      one["tables"] = Value::List( deed.tables.begin(), deed.tables.end() );
      one["reads"] = deed.counts.reads;
      one["writes"] = deed.counts.writes;
      one["changes"] = deed.counts.changes;
      one["controls"] = deed.counts.controls;
      list.emplace_back( std::move( one ) );
   }
   return list;
}

Value publicationValue( Row const & row ) {
   Value::Object one{ { "path", std::string( row.path ) },
                      { "attribute", std::string( row.attribute ) },
                      { "value", *row.published },
                      { "before", *row.publishedBefore },
                      { "cause", std::string( row.cause ) } };
   if ( row.key ) {
      one["key"] = std::string( *row.key );
   }
   return one;
}

Value gateValue( RunSummary::Gate const & gate, SharedTexts const & texts ) {
   auto const & origin = texts.origin( gate.origin );
   return Value::Object{ { "function", origin.function },
                         { "source", origin.source },
                         { "reason", gate.reason },
                         { "fap", gate.fap ? Value( *gate.fap ) : Value() },
                         { "event", gate.firstEvent },
                         { "lastEvent", gate.lastEvent },
                         { "cause", gate.cause },
                         { "count", gate.count } };
}

Value switchValue( Simulator::SwitchDescription const & description ) {
   Value::List faps;
   for ( auto const & fap : description.faps ) {
      Value::Object ports;
      for ( auto const & [systemPort, fapPort] : fap.ports ) {
         ports[std::to_string( systemPort )] = fapPort;
      }
      Value::Object one;
      one["fapId"] = fap.fapId.value();
      one["name"] = fap.name;
      one["chipType"] = Hardware::chipTypeName( fap.revision.chipType() );
      one["major"] = fap.revision.fapRevMajor();
      one["sdkVersion"] = fap.revision.sdkVersion();
      one["cores"] = fap.coreCount();
      one["ports"] = std::move( ports );
      faps.emplace_back( std::move( one ) );
   }
   Value::Object value;
   value["slice"] = description.sliceName;
   value["faps"] = std::move( faps );
   return value;
}

Value togglesValue() {
   Value::List toggles;
   for ( auto const & reading : Toggle::readings() ) {
      Value::Object one;
      one["name"] = reading.name;
      one["file"] = reading.file;
      one["state"] = reading.state;
      toggles.emplace_back( std::move( one ) );
   }
   return toggles;
}

} // namespace

Value countsValue( RowCounts const & counts ) {
   return Value::Object{ { "reads", counts.reads },
                         { "writes", counts.writes },
                         { "changes", counts.changes },
                         { "controls", counts.controls },
                         { "gates", counts.gates },
                         { "publications", counts.publications } };
}

Value eventValue( EventRows const & rows ) {
   std::map< U16, Deeds > byFap;
   Value::List published;
   for ( Row const & row : rows.rows() ) {
      if ( row.isOperation() ) {
         add( byFap[row.fap], row );
      } else if ( row.kind == Row::Kind::publish ) {
         published.push_back( publicationValue( row ) );
      }
   }
   Value::Object faps;
   for ( auto const & [fap, deeds] : byFap ) {
      faps[std::to_string( fap )] = deedsValue( deeds );
   }
   Value::Object one{ { "event", rows.event() },
                      { "text", rows.event() == 0 ? "start-up" : eventText( rows.what() ) },
                      { "faps", std::move( faps ) },
                      { "published", std::move( published ) },
                      { "counts", countsValue( rows.counts() ) } };
   if ( rows.counts().isEmpty() && !rows.isBroken() ) {
      one["silence"] = rows.reach().silence();
   }
   return one;
}

Value endingValue( Simulator::Ending const & ending ) {
   constexpr char const * names[] = { "complete", "interrupted", "assertion", "cut" };
   Value::Object value{ { "ended", names[static_cast< std::size_t >( ending.kind )] },
                        { "events", ending.events },
                        { "operations", ending.operations } };
   if ( ending.kind == Simulator::Ending::Kind::assertion ) {
      value["text"] = ending.text;
      value["function"] = ending.function;
      value["source"] = ending.source;
   }
   return value;
}

Value runSummaryValue( Scenario const & scenario, RunSummary const & summary, Interfaces const & interfaces ) {
   Value::List events;
   if ( auto const * start = summary.startRows() ) {
      events.push_back( eventValue( *start ) );
   }
   for ( auto const * rows : summary.shown() ) {
      events.push_back( eventValue( *rows ) );
   }
   Value::List gates;
   for ( auto const & gate : summary.gates() ) {
      gates.push_back( gateValue( gate, summary.texts() ) );
   }
   Value::Object faps;
   for ( auto const & [fap, counts] : summary.byFap() ) {
      faps[std::to_string( fap )] = countsValue( counts );
   }
   Value::List functions;
   for ( auto const & function : summary.functions() ) {
      Value value = countsValue( function.counts );
      value.object()->emplace( "function", function.name );
      functions.push_back( std::move( value ) );
   }
   Value::Object value;
   value["name"] = scenario.name;
   value["switch"] = switchValue( scenario.description );
   value["toggles"] = togglesValue();
   value["eventCount"] = summary.eventCount();
   value["total"] = countsValue( summary.total() );
   value["faps"] = std::move( faps );
   value["functions"] = std::move( functions );
   value["events"] = std::move( events );
   value["gates"] = std::move( gates );
   value["interfaces"] = interfacesValue( interfaces );
   value["end"] = endingValue( summary.ending() );
   return value;
}

} // namespace Inspection
