// Names of tables, fields and chips as people type them on the command line: found, or refused with what was probably
// meant.
//
//    Catalogue::Table const & table = tableNamed( "IppdFerTrapCfg" );          // InputError
//    fieldNamed( table, "cpuStrengthN" );                                     // InputError
#pragma once

#include "constants/ChipType.h"
#include "generated/Catalogue.h"

#include <string>
#include <vector>

namespace Inspection {

Catalogue::Table const & tableNamed( std::string const & name );
// The name, if a layout of the table has the field.
std::string fieldNamed( Catalogue::Table const & table, std::string const & name );
Hardware::ChipType chipNamed( std::string const & name );

// An entry's place, as people read it: "variant 1 [3] 12". What can only be one way is left out: the variant of a table
// that has one, the array index of one that is no array, the entry of a register.
std::string placeText( Catalogue::Table const & table, Catalogue::Layout const & layout, U32 array, U32 entry );
// Without the variant.
std::string entryText( Catalogue::Layout const & layout, U32 array, U32 entry );
// Whether a table has variants, arrays.
bool hasVariants( Catalogue::Table const & table );
bool isArrayed( Catalogue::Layout const & layout );

// A field's value, from how a dump has it, for people: digits in groups of eight, and from 10 on, where it isn't too
// long to read, decimal beside it: "0x5", "0xeb (235)", "0x1'00000000".
std::string readable( std::string const & value );

// Bits as "[7:4]", "[0]".
std::string bitsText( Catalogue::Field const & field );

} // namespace Inspection
