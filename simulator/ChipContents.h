// The contents of a chip as people and files see them: by table, variant, array index and entry.
//
//    Contents const contents = contentsOf( chip, ChipType::BCM88690_B0 );
//    contents.tables.at( "IppdFerTrapCfg" ).at( 0 ).at( 3 ).at( 0 ).copies[0]; // the words of one register
//    apply( contents.tables, otherChip, ChipType::BCM88690_B0, "/chips/0" );
#pragma once

#include "constants/ChipType.h"
#include "generated/Catalogue.h"
#include "simulator/Chip.h"

#include <stdexcept>

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

// Contents that the chip has no place for. what() is "<place>: <what is wrong>"; the place is a JSON pointer.
class ContentsError : public std::runtime_error {
 public:
   ContentsError( std::string place, std::string const & text )
      : std::runtime_error( place + ": " + text ), place_( std::move( place ) ) {}
   std::string const & place() const { return place_; }

 private:
   std::string place_;
};

// Puts contents into a chip that is of the kind, beside what is there. Where an entry doesn't fit, ContentsError, and
// the chip is as it was. `place` is the pointer to the tables.
void apply( TablesContents const & tables, Chip & chip, Hardware::ChipType chipType, std::string const & place = "" );

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
