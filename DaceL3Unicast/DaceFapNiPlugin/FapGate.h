// Which FAPs the plug-in serves.
#pragma once

#include "chip/FapRevision.h"

#include <optional>
#include <source_location>

namespace DaceFapNi {

// The FAP type of a chip type. A chip type above 25 ends the process: "Unhandled chipType " and the chip type.
Hardware::Dace::FapType chipTypeToFapType( Hardware::ChipType chipType );

constexpr Hardware::Dace::FapType fapType3{ 3 };
constexpr Hardware::Dace::FapType fapType4{ 4 };

// Whether chip initialisation and the FFC modifier are for this FAP type. Type 4 never is; type 3 is not while another
// plug-in has taken over, which takes two toggles. The toggles are read only for a type that they can decide on.
//
// A type that isn't served is told as a gate of the caller, and of the FAP where it is one FAP's.
bool isServed( Hardware::Dace::FapType fapType,
               std::optional< U16 > fap = std::nullopt,
               std::source_location origin = std::source_location::current() );

} // namespace DaceFapNi
