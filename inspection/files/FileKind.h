// What a file is, by how it begins: for messages to those who have given one file for another.
//
//    if ( kindOf( text ) != FileKind::journal ) {
//       throw InputError( path, notA( FileKind::journal, text ) );
//       // "is a chips file, no journal; `l3sm run --journal FILE` writes one"
//    }
//
// Threading: none.
#pragma once

#include "corvo/Types.h"

#include <string>
#include <string_view>

namespace Inspection {

enum class FileKind : U8 { journal, chips, scenario, state, page, otherJson, otherText, binary, empty, recording };

// `text`: the file's beginning, decompressed; the more of it, the surer.
FileKind kindOf( std::string_view text );
// The same of a file. InputError where it can't be read.
FileKind kindOfFile( std::string const & path );

// "a journal", "a page for a browser"
std::string_view nameOf( FileKind kind );
// What is wrong with a file that was to be `wanted` and begins with `text`, with the remedy.
std::string notA( FileKind wanted, std::string_view text );

} // namespace Inspection
