// What two chips of one kind hold where they don't hold the same.
//
//    ContentsApart const apart = contentsApart( chip, other, ChipType::BCM88690_B0 );
//    apart.a.tables.at( "IppdFerTrapCfg" );       // the entries that are others there
#pragma once

#include "simulator/ChipContents.h"

namespace Simulator {

struct ContentsApart {
   Contents a;
   Contents b;
};
ContentsApart contentsApart( Chip const & a, Chip const & b, Hardware::ChipType chipType );

} // namespace Simulator
