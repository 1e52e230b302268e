// The contents of a chip as people and files see them: by table, variant, array index and entry.
//
//    Contents const contents = contentsOf( chip, ChipType::BCM88690_B0 );
//    contents.tables.at( "IppdFerTrapCfg" ).at( 0 ).at( 3 ).at( 0 ).copies[0]; // the words of one register
//    apply( contents.tables, otherChip, ChipType::BCM88690_B0 );
#pragma once

#include "chip/ChipType.h"
#include "generated/Catalogue.h"
#include "simulator/Chip.h"

#include <string>
#include <vector>

namespace Simulator {

using Words = std::vector< U32 >;

// One entry: its words, once where all physical copies hold the same, else once for each copy.
struct EntryContents {
   std::vector< Words > copies;
   friend bool operator==( EntryContents const &, EntryContents const & ) = default;
};

using ArrayContents = std::map< U32, EntryContents >;   // by entry; a register has the entry 0
using VariantContents = std::map< U32, ArrayContents >; // by array index
using TableContents = std::map< U32, VariantContents >; // by variant
using TablesContents = std::map< std::string, TableContents >;

struct Contents {
   std::map< U32, U32 > controls;
   TablesContents tables;
   friend bool operator==( Contents const &, Contents const & ) = default;
};

// What the chip holds, without the entries that never got a value.
Contents contentsOf( Chip const & chip, Hardware::ChipType chipType );

// Throws Rex::ValueError, its places seen from the tables, where a chip of the kind has no place for some of them.
void check( TablesContents const & tables, Hardware::ChipType chipType );
// Puts contents into a chip that is of the kind, beside what is there. Where something doesn't fit, it throws as check
// does, and the chip is as it was.
void apply( TablesContents const & tables, Chip & chip, Hardware::ChipType chipType );

// The value of a field of an entry, in hexadecimal: "0x0", "0x1f".
std::string fieldText( std::span< U32 const > words, Catalogue::Field const & field );

// A field of an entry with its value in hexadecimal: "0x0", "0x1f".
struct DecodedField {
   char const * name;
   std::string value;
   friend bool operator==( DecodedField const & a, DecodedField const & b ) {
      return std::string_view( a.name ) == b.name && a.value == b.value;
   }
};

// Every field of an entry, in the order of the catalogue.
std::vector< DecodedField > decode( Catalogue::Layout const & layout, std::span< U32 const > words );

} // namespace Simulator
