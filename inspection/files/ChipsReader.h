// Chip contents from a file (`--chips`), read as a stream: what nobody asks for isn't taken apart.
//
//    eachFap( "chips.json", { .fap = 3, .tables = { "IppdFerTrapCfg" } }, [&]( U16 fap, FapContents contents ) { … } );
//
// InputError where the file can't be read, isn't of this kind, or a chip has no place for what it holds.
#pragma once

#include "inspection/files/ChipsFile.h"

#include <functional>

namespace Inspection {

struct ChipsFilter {
   std::optional< U16 > fap = {};
   std::vector< std::string > tables = {}; // none: all

   bool isWanted( std::string_view table ) const;
};

// One FAP at a time, in the file's order.
void eachFap( std::string const & path,
              ChipsFilter const & filter,
              std::function< void( U16 fap, FapContents contents ) > const & each );

std::map< U16, Hardware::ChipType > chipTypesIn( std::string const & path );

// The object below a table's name, as text that may be read on behind its end. Rex::ValueError.
Simulator::TableContents tableFromText( std::string_view text );
// A FAP's object below "controls".
std::map< U32, U32 > controlsFromText( std::string_view text );
Hardware::ChipType chipTypeFromText( std::string_view text );

// Throws InputError where a chip has no place for it. `pointer`: of the tables.
void checkFits( std::string const & path, std::string const & pointer, FapContents const & fap );

} // namespace Inspection
