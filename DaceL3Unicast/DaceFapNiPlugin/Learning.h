// Learning of forwarding contexts.
#pragma once

#include "chip/FapRevision.h"
#include "constants/Contexts.h"

#include <source_location>
#include <vector>

namespace DaceFapNi {

// Switches learning on or off for those of the contexts that the chip has; with `flpa`, the forwarding update of the
// context goes the opposite way. A context that the chip lacks is traced and left out.
void setLearningForUrpfOrFlpa( std::vector< DacePPExport::ctx_fwd1 > const & contexts,
                               Hardware::ChipType chipType,
                               Hardware::Dace::FapId fapId,
                               bool enable,
                               bool flpa,
                               std::source_location origin = std::source_location::current() );

} // namespace DaceFapNi
