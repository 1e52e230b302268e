// A journal with a row of every kind, and a reader that tells what it hears as lines.
#pragma once

#include "inspection/files/JournalReader.h"
#include "inspection/files/JournalWriter.h"
#include "inspection/files/Json.h"

#include "Folder.h"

#include <gtest/gtest.h>

namespace Inspection {

// Everything that a reader hears, a line each: rows as a journal has them.
class Heard final : public Simulator::RowReader {
 public:
   void eventBegins( U32 event, Rex::Value const & what ) override {
      lines.push_back( "event " + std::to_string( event ) + " " + toJson( what, 0 ) );
   }
   void row( Simulator::Row const & row ) override { lines.push_back( JournalWriter::line( row ) ); }
   void eventEnds( U32 event ) override { lines.push_back( "ends " + std::to_string( event ) ); }
   void ends( Simulator::Ending const & ending ) override {
      constexpr char const * kinds[] = { "complete", "interrupted", "assertion", "cut" };
      lines.push_back( std::string( kinds[static_cast< std::size_t >( ending.kind )] ) + " " +
                       std::to_string( ending.events ) + " " + std::to_string( ending.operations ) );
   }
   std::vector< std::string > lines;
};

inline Rex::Value sampleScenario() {
   return parseJson( R"({"switch": {"slice": {"name": "Linecard3"}, "faps": [
      {"fapId": 0, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}}]}})",
                     "sample" );
}

// Hands a reader one event with a row of every kind.
inline void playSampleEvent( Simulator::RowReader & reader, U32 event = 0 ) {
   using Simulator::Row;
   static std::vector< U32 > const words{ 0x0a00 };
   static std::vector< U32 > const before{ 0x0001 };
   static std::vector< U32 > const wide{ 4, 0 };
   static Rex::Value const published( 2000 );
   static Rex::Value const publishedBefore( 1500 );
   auto const of = [&]( Row::Kind kind, U64 seq ) {
      Row row{ .kind = kind, .event = event, .seq = seq + 5 * event };
      row.function = "L3Sm::f";
      row.source = "L3Sm.cpp:41";
      row.cause = "chip-init";
      row.table = "IppdFerTrapCfg";
      row.tableNumber = Catalogue::table( row.table )->number;
      row.array = 3;
      row.words = words;
      return row;
   };
   reader.eventBegins( event, parseJson( R"({"start": {}})", "sample" ) );
   reader.row( of( Row::Kind::read, 1 ) );
   auto write = of( Row::Kind::write, 2 );
   write.scope = Row::Scope::all;
   write.changed = true;
   write.before = before;
   reader.row( write );
   auto core = of( Row::Kind::write, 3 );
   core.table = "EnablersVectors";
   core.tableNumber = Catalogue::table( core.table )->number;
   core.array = 1;
   core.entry = 22;
   core.words = wide;
   core.scope = Row::Scope::core;
   core.core = 1;
   reader.row( core );
   auto control = of( Row::Kind::control, 4 );
   control.control = 64;
   control.value = 255;
   control.changed = true;
   control.valueBefore = 7;
   reader.row( control );
   auto firstControl = of( Row::Kind::control, 5 );
   firstControl.control = 65;
   firstControl.value = 1;
   firstControl.changed = true;
   reader.row( firstControl );
   auto fault = of( Row::Kind::fault, 0 );
   fault.scope = Row::Scope::core;
   fault.core = 1;
   fault.reason = "flip:9";
   fault.changed = true;
   fault.function = fault.source = {};
   reader.row( fault );
   auto gate = of( Row::Kind::gate, 0 );
   gate.reason = "FAP type 3 is \"not\" served";
   reader.row( gate );
   gate.isOfFap = false;
   reader.row( gate );
   auto publish = of( Row::Kind::publish, 0 );
   publish.path = "managed/intfStatusDir";
   publish.attribute = "mtu";
   publish.published = &published;
   publish.publishedBefore = &publishedBefore;
   reader.row( publish );
   publish.key = "Ethernet1";
   reader.row( publish );
   reader.eventEnds( event );
}

inline Simulator::Ending complete( U32 events = 0 ) {
   return { .kind = Simulator::Ending::Kind::complete, .events = events, .operations = 5 * ( events + 1 ) };
}

// A whole journal of two events.
inline void writeSample( std::string const & path ) {
   JournalWriter writer( path, { .scenario = sampleScenario() } );
   playSampleEvent( writer, 0 );
   playSampleEvent( writer, 1 );
   writer.ends( complete( 1 ) );
}

} // namespace Inspection
