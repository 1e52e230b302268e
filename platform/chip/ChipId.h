// The number by which a driver knows a chip.
#pragma once

#include "corvo/Types.h"

#include <compare>

namespace Hardware::Dace {

// A chip of the cell, as the driver counts them.
struct ChipId {
   U16 value = 0;
   friend constexpr auto operator<=>( ChipId, ChipId ) = default;
};

} // namespace Hardware::Dace
