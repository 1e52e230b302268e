#include "inspection/files/RecordingFolder.h"

#include "inspection/files/InputError.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <tuple>

namespace Inspection {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view ending = ".rec.jsonl";
constexpr std::string_view compressedEnding = ".rec.jsonl.zst";

} // namespace

std::optional< RecordingSegment > segmentOf( std::string const & path ) {
   std::string const file = fs::path( path ).filename().string();
   std::string_view name = file;
   if ( !name.ends_with( ending ) && !name.ends_with( compressedEnding ) ) {
      return std::nullopt;
   }
   name.remove_suffix( name.ends_with( ending ) ? ending.size() : compressedEnding.size() );
   auto const dash = name.rfind( '-' );
   U32 number = 0;
   auto const * const end = name.data() + name.size();
   if ( dash == std::string_view::npos || dash == 0 || dash + 1 == name.size() ) {
      return std::nullopt;
   }
   auto const read = std::from_chars( name.data() + dash + 1, end, number );
   if ( read.ec != std::errc() || read.ptr != end ) {
      return std::nullopt;
   }
   return RecordingSegment{ path, std::string( name.substr( 0, dash ) ), number };
}

std::vector< RecordingSegment > segmentsIn( std::string const & folder ) {
   std::vector< RecordingSegment > all;
   std::error_code wrong;
   fs::directory_iterator entry( folder, wrong );
   for ( fs::directory_iterator const end; !wrong && entry != end; entry.increment( wrong ) ) {
      if ( auto segment = segmentOf( entry->path().string() ) ) {
         all.push_back( std::move( *segment ) );
      }
   }
   if ( wrong ) {
      throw InputError( folder, "can't be read: " + wrong.message() );
   }
   std::ranges::sort( all, {}, []( RecordingSegment const & it ) { return std::tie( it.slice, it.number ); } );
   return all;
}

std::string segmentName( std::string const & slice, U32 number, bool isCompressed ) {
   return slice + "-" + std::to_string( number ) + std::string( isCompressed ? compressedEnding : ending );
}

} // namespace Inspection
