// Golden results: what a chip holds after start-up, as text for people, and the difference that a toggle makes.
//
// Fields that are 0 are left out; so is a field that is another view of smaller ones. Entries that follow each other
// with the same contents share a line.
#pragma once

#include "simulator/ChipContents.h"
#include "simulator/SimulatedSwitch.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace Golden {

// An entry's fields with their values in hexadecimal, in the order of the catalogue. Where the physical copies differ,
// each has its own: "copy 1 contextSelectionPerPortProfile".
using Fields = std::vector< std::pair< std::string, std::string > >;

struct Place {
   std::string table; // with variant and array index: "EnablersVectors 1/3"
   U32 entry;
   friend auto operator<=>( Place const &, Place const & ) = default;
};

struct Contents {
   std::map< U32, U32 > controls;
   std::map< Place, Fields > entries;
};

// What FAP 0 of a switch holds, at the places that the program wrote, and everywhere.
Contents written( Simulator::SimulatedSwitch const & sw );
Contents everything( Simulator::SimulatedSwitch const & sw );

// A line for each control and for each run of entries; a long one is broken, a field to a line.
std::string text( Contents const & contents );
// The same of the fields that differ, each with both values: "csProfile15 0xb, off 0x0".
std::string difference( Contents const & on, Contents const & off );

// What `make` gives in a process of its own, in which no toggle was read yet.
Contents inProcessOfItsOwn( std::function< Contents() > const & make );

// Compares with the file below tests/golden/, or, with L3SM_GOLDEN_WRITE in the environment, writes it.
void expectFile( std::string const & path, std::string const & contents );

} // namespace Golden
