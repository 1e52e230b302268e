// The segments of recordings in a folder, by their names: <slice>-<n>.rec.jsonl, or .rec.jsonl.zst.
//
//    for ( RecordingSegment const & segment : segmentsIn( "/var/lib/l3sm" ) ) { … }     // by slice, then by number
//
// Threading: none.
#pragma once

#include "corvo/Types.h"

#include <optional>
#include <string>
#include <vector>

namespace Inspection {

struct RecordingSegment {
   std::string path;
   std::string slice;
   U32 number;
};

std::optional< RecordingSegment > segmentOf( std::string const & path );
// InputError where the folder can't be read.
std::vector< RecordingSegment > segmentsIn( std::string const & folder );
std::string segmentName( std::string const & slice, U32 number, bool isCompressed );

} // namespace Inspection
