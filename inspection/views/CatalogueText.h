// The chip tables: their geometry, where their fields lie, and which functions touch them.
#pragma once

#include "inspection/FunctionTables.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

// Chip type 0: every chip.
bool isOnChip( Catalogue::Table const & table, U8 chipType );

// A line for each table.
void listTables( std::ostream & out, U8 chipType, Style const & style );

// One table: its geometry, a drawing for each arrangement of its fields, and who touches it, in `runs`.
void showTable( std::ostream & out,
                Catalogue::Table const & table,
                U8 chipType,
                std::vector< Touch > const & touches,
                std::string const & runs,
                Style const & style );

// For programs.
Rex::Value tableValue( Catalogue::Table const & table, U8 chipType );

} // namespace Inspection
