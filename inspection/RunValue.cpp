#include "inspection/RunValue.h"

namespace Inspection {

namespace {

using Rex::Value;
using Simulator::Row;

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

} // namespace Inspection
