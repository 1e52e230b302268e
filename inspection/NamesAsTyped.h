// Names of tables, fields and chips as people type them on the command line: found, or refused with what was probably
// meant.
//
//    Catalogue::Table const & table = tableNamed( "IppdFerTrapCfg" );          // InputError
//    fieldNamed( table, "cpuStrengthN" );                                     // InputError
//    partNamed( "IppdFerTrapCfg.cpuStrengthN:2" );                            // a table, field or bit
//    partNamed( "cpuStrengthN" );                                             // likewise, where one table has it
//    checkPlace( table, { .array = 3 } );                                     // InputError where no chip has it
#pragma once

#include "chip/ChipType.h"
#include "generated/Catalogue.h"

#include <optional>
#include <string>
#include <vector>

namespace Inspection {

// Of all tables, in the order of the catalogue.
std::vector< std::string > tableNames();
// A field where a table is wanted is refused with its table.
Catalogue::Table const & tableNamed( std::string const & name );
// The name, if a layout of the table has the field.
std::string fieldNamed( Catalogue::Table const & table, std::string const & name );

// The first of some names, for a refusal: "IppdFerTrapCfg, EthernetTrap and 3 more".
std::string listed( std::vector< std::string > const & names, std::size_t most );

// A table, one field of it, or one bit of that.
struct TablePart {
   Catalogue::Table const * table = nullptr;
   std::string field = {}; // empty: all
   std::optional< U32 > bit = {};

   // "IppdFerTrapCfg.cpuStrengthN:2"
   std::string text() const;
   // How wide the field is where it is widest.
   U32 width() const;
};

// Understands "TABLE", "TABLE.FIELD", "TABLE.FIELD:BIT", and the last two without their table where one alone has the
// field.
TablePart partNamed( std::string const & typed );
// The tables that have a field of this name.
std::vector< Catalogue::Table const * > tablesWithField( std::string_view field );

// Where something lies in a table, as far as it was said.
struct TypedPlace {
   std::optional< U32 > variant = {};
   std::optional< U32 > array = {};
   std::optional< U32 > entry = {};
   std::optional< U32 > copy = {};
};

// Throws, with what there is, unless the table has the place on some chip.
void checkPlace( Catalogue::Table const & table, TypedPlace const & place );

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
// long to read, decimal beside it: "0x5", "0xeb (235)", "0x1'00000000". What is no such value, or several, stays as it
// is.
std::string readable( std::string const & value );

// Bits as "[7:4]", "[0]".
std::string bitsText( Catalogue::Field const & field );

} // namespace Inspection
