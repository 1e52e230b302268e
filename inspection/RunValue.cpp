#include "inspection/RunValue.h"

#include <algorithm>
#include <map>
#include <set>

namespace Inspection {

namespace {

using Rex::Value;
using Simulator::Row;

// What one function did to one FAP in one event, on one cause.
struct Deed {
   std::string_view function;
   std::string_view cause;
   std::set< std::string > tables; // "controls" for controls
   std::size_t reads = 0;
   std::size_t writes = 0;
   std::size_t changes = 0;
   std::size_t controls = 0;
};

using Deeds = std::vector< Deed >; // in the order of their first operations

void add( Deeds & deeds, Simulator::Row const & row ) {
   auto found = std::ranges::find_if(
      deeds, [&]( Deed const & deed ) { return deed.function == row.function && deed.cause == row.cause; } );
   if ( found == deeds.end() ) {
      found = deeds.insert( found, { row.function, row.cause, {} } );
   }
   bool const isControl = row.kind == Simulator::Row::Kind::control;
   found->tables.insert( isControl ? "controls" : std::string( row.table ) );
   found->reads += row.kind == Simulator::Row::Kind::read;
   found->writes += row.kind == Simulator::Row::Kind::write;
   found->changes += row.kind == Simulator::Row::Kind::write && row.changed;
   found->controls += isControl;
}

Value deedsValue( Deeds const & deeds ) {
   Value::List list;
   for ( Deed const & deed : deeds ) {
      Value::Object one;
      one["function"] = std::string( deed.function );
      one["cause"] = std::string( deed.cause );
      one["tables"] = Value::List( deed.tables.begin(), deed.tables.end() );
      one["reads"] = deed.reads;
      one["writes"] = deed.writes;
      one["changes"] = deed.changes;
      one["controls"] = deed.controls;
      list.emplace_back( std::move( one ) );
   }
   return list;
}

} // namespace

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

void addGate( Value::List & list, Row const & row ) {
   if ( row.kind != Row::Kind::gate ) {
      return;
   }
   Value::Object one;
   one["function"] = std::string( row.function );
   one["source"] = std::string( row.source );
   one["reason"] = std::string( row.reason );
   one["fap"] = row.isOfFap ? Value( row.fap ) : Value();
   one["event"] = row.event;
   one["cause"] = std::string( row.cause );
   list.emplace_back( std::move( one ) );
}

Value runValue( Scenario const & scenario, Simulator::SimulatedSwitch const & sw, KeptRows const & rows ) {
   std::vector< std::map< U16, Deeds > > byEvent( scenario.events.size() + 1 );
   Value::List gates;
   for ( Row const & row : rows.all() ) {
      if ( row.isOperation() ) {
         add( byEvent[row.event][row.fap], row );
      }
      addGate( gates, row );
   }
   Value::List events;
   for ( std::size_t event = 0; event < byEvent.size(); ++event ) {
      Value::Object faps;
      for ( auto const & [fap, deeds] : byEvent[event] ) {
         faps[std::to_string( fap )] = deedsValue( deeds );
      }
      Value::Object one;
      one["event"] = event;
      one["text"] = event == 0 ? "start-up" : scenario.events[event - 1].text();
      one["faps"] = std::move( faps );
      events.emplace_back( std::move( one ) );
   }
   Value::Object value;
   value["name"] = scenario.name;
   value["switch"] = switchValue( sw.description() );
   value["toggles"] = togglesValue();
   value["events"] = std::move( events );
   value["gates"] = std::move( gates );
   return value;
}

} // namespace Inspection
