// What a switch is made of, and what its agent finds in the state because of it.
//
//    SwitchDescription const description{ .faps = { { .fapId = FapId( 0 ), .revision = { 5, ChipType::BCM88690_B0, 7 }
//    } } }; tell( description, state );      // the cell with its FAPs, and the objects that are there from the start
#pragma once

#include "simulator/BootImage.h"
#include "simulator/StateTree.h"
#include "toggle/Toggle.h"

#include <optional>

namespace Simulator {

struct FapDescription {
   Hardware::Dace::FapId fapId{};
   std::string name = {};           // empty: "Fap<fapId>"
   std::optional< U16 > cores = {}; // as reported to the plug-in; none: one for each physical copy that the chip has
   std::map< U16, U16 > ports = {}; // system port key to FAP port number
   Hardware::Dace::FapRevision revision{};

   U16 coreCount() const;
   // How many physical copies the chip has of the tables that lie in its cores.
   U16 copies() const;
};

struct SwitchDescription {
   std::string sliceName = "Linecard1";
   std::vector< FapDescription > faps = {};
   Toggle::Settings toggles = {}; // what is not named has its default
   // none: nothing is recorded; streamed: for the readers of the journal; kept: for journal().rows() as well.
   enum class Journalled : U8 { none, streamed, kept };
   Journalled journalled = Journalled::kept;
   BootNoise bootNoise = BootNoise::plain;
   // Whether what its chips are expected to hold stands beside them. never: they don't fail, whatever the events say.
   enum class Supervised : U8 { never, whereChipsFail, always };
   Supervised supervised = Supervised::whereChipsFail;
};

// Puts into a fresh state what the description tells: the cell, which it returns, the slice, and the directories that
// interfaces stand in.
Corvo::Ptr< Hardware::Dace::Cell::CellStatus > tell( SwitchDescription const & description, StateTree & state );

} // namespace Simulator
