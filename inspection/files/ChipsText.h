// Parts of a chips file, taken from their text.
//
//    Simulator::TableContents const table = tableFromText( R"({"0": {"3": {"0": {"words": ["0x00000a00"]}}}})" );
//
// Threading: one thread.
#pragma once

#include "inspection/files/ChipsFile.h"

#include <string_view>

namespace Inspection {

// The object below a table's name, as text that may be read on behind its end. Rex::ValueError.
Simulator::TableContents tableFromText( std::string_view text );
// A FAP's object below "controls".
std::map< U32, U32 > controlsFromText( std::string_view text );
Hardware::ChipType chipTypeFromText( std::string_view text );

// Throws InputError where a chip has no place for it. `pointer`: of the tables.
void checkFits( std::string const & path, std::string const & pointer, FapContents const & fap );

} // namespace Inspection
