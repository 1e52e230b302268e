// The catalogue of chip tables as plain data, for those who show chips to people.
// Written by the generator from catalogue/. Do not edit: change the catalogue and run ./dev generate.
// clang-format off
//
//    Catalogue::Table const * table = Catalogue::table( "IppdFerTrapCfg" );
//    Catalogue::Layout const * layout = Catalogue::layout( *table, 10, 0 );      // BCM88690_B0, variant 0
//    U16 offset = layout->field( "cpuStrengthN" )->offset;
//
// An entry lies at base + entry + array index * arrayStep, in the block that the selectors of a copy pick.
//
// Threading: constant data.
#pragma once

#include "corvo/Types.h"

#include <span>
#include <string_view>

namespace Catalogue {

// The block of one physical copy.
struct Selector {
   U8 a;
   U8 b;
};

// A run of bits of an entry.
struct Field {
   char const * name;
   U16 offset;
   U16 width;
   bool readOnly; // part of the format's tag
};

// A table on one chip, in one variant.
struct Layout {
   U8 chipType;
   U8 variant;
   U32 entries; // 0 for a register
   U16 width;   // words
   U16 arrayElements;
   U16 arrayIndexMin; // what the chip calls the first element of the array
   S32 sdkDefinedId;  // -1: none
   U8 instanceCount;
   U32 base;
   U32 arrayStep; // 0: no array
   std::span< Selector const > selectors; // by copy
   std::span< Field const > fields;       // in the order of declaration
   U16 arrayIndexFirst; // the first index that the array is addressed by, arrayIndexMin but for few tables

   Field const * field( std::string_view name ) const; // null if the layout lacks it
};

struct Table {
   char const * name;
   U16 number; // place among all tables, alphabetically
   bool isMemory;
   bool hasMemory; // false: a format with no memory of its own
   std::span< U8 const > chips;
   U8 variantCount;
   std::span< Layout const > layouts;
};

std::span< Table const > tables();                       // by number
Table const * table( std::string_view name );            // null if unknown
Layout const * layout( Table const & table, U8 chipType, U8 variant ); // null if not there
char const * chipName( U8 chipType );                    // "BCM88690_B0"; null if unknown

} // namespace Catalogue
