// Journals as a text that a test writes, and what their reader makes of them.
//
//    auto const reading = readingOf( beginRow + event0 + aWrite + endRow );
//    EXPECT_EQ( reading.heard.back(), "complete 0 1" );
#pragma once

#include "JournalSample.h"

using namespace Inspection;

inline std::string const beginRow =
   R"({"op": "begin", "format": 2, "l3sm": "1.0.0", "plugin": "", "scenario": {"switch": {"slice": {"name": "L"}, "faps": [)"
   R"({"fapId": 0, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}}]}}})"
   "\n";
inline std::string const event0 = R"({"op": "event", "event": 0, "what": {"start": {}}})"
                                  "\n";
inline std::string const endRow = R"({"op": "end", "ended": "complete", "events": 0, "operations": 1})"
                                  "\n";

// A write of a register, with what may be wrong about it.
inline std::string
written( std::string const & place, std::string const & words = R"(["0x00000a00"])", std::string const & more = "" ) {
   return R"({"op": "write", "seq": 1, "event": 0, "fap": 0, )" + place + R"(, "scope": "all", "words": )" + words +
          R"(, "changed": true)" + more + R"(, "function": "f", "source": "a.cpp:1", "cause": "start"})" + "\n";
}
inline std::string const aWrite = written( R"("table": "IppdFerTrapCfg", "variant": 0, "array": 3, "entry": null)" );

struct Reading {
   std::vector< std::string > heard;
   std::vector< std::string > remarks;
   std::string error;
};

inline Reading readingOf( std::string const & text, RowFilter const & filter = {}, char const * name = "run.jsonl" ) {
   Folder const folder;
   auto const path = folder.file( name, text );
   auto const withoutFolder = [&]( std::string line ) {
      auto const at = line.find( path );
      return at == std::string::npos ? line : line.replace( at, path.size(), name );
   };
   Reading reading;
   Heard heard;
   try {
      JournalReader journal( path );
      journal.read( heard, filter );
      for ( auto const & remark : journal.remarks() ) {
         reading.remarks.push_back( withoutFolder( remark ) );
      }
   } catch ( InputError const & error ) {
      reading.error = withoutFolder( error.what() );
   }
   reading.heard = heard.lines;
   return reading;
}

using Remarks = std::vector< std::string >;
