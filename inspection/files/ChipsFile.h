// Chip contents as files have them (`--chips`), and as a scenario gives them.
//
//    writeChips( out, chipsOf( sw ) );
//    ChipsFile const chips = readChips( "before.json" );      // InputError
//    chips.at( 0 ).contents.tables.at( "IppdFerTrapCfg" );
#pragma once

#include "inspection/files/Json.h"
#include "simulator/ChipContents.h"
#include "simulator/SimulatedSwitch.h"

#include <ostream>

namespace Inspection {

struct FapContents {
   Hardware::ChipType chipType{};
   Simulator::Contents contents;
};

using ChipsFile = std::map< U16, FapContents >; // by FAP

// What the chips of a switch hold.
ChipsFile chipsOf( Simulator::SimulatedSwitch const & sw );

void writeChips( std::ostream & out, ChipsFile const & chips );
// The object below "tables", each entry on a line that is indented by `indent`.
void writeTables( std::ostream & out,
                  Simulator::TablesContents const & tables,
                  Hardware::ChipType chipType,
                  int indent );

ChipsFile readChips( std::string const & path );
// Tables, their words as a file has them; whether a chip has a place for them is for Simulator::apply to say.
// Throws Rex::ValueError.
Simulator::TablesContents tablesFromValue( Rex::Value const & value );

// The contents of one chip, below its number in a scenario: {"tables": {...}, "controls": {"64": 255}}, or the tables
// alone. Throws Rex::ValueError.
Simulator::Contents contentsFromValue( Rex::Value const & value );
// The longer form.
Rex::Value valueOf( Simulator::Contents const & contents );

// The words of one entry, as files have them. Throws Rex::ValueError.
Simulator::Words wordsFromValue( Rex::Value const & value );
// The copies of an entry, which files number from zero on, in whatever order. Throws Rex::ValueError where one is
// missing, or there are no two.
std::vector< Simulator::Words > copiesOf( std::map< U32, Simulator::Words > const & instances );
// The chip of a name; throws Rex::ValueError.
Hardware::ChipType chipTypeFromValue( Rex::Value const & value );

// "0x00000a00"
std::string wordText( U32 word );

} // namespace Inspection
