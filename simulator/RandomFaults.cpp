#include "simulator/RandomFaults.h"

namespace Simulator {

Fault RandomFaults::next() {
   // How many of ten are of a kind: most of what happens to a chip is a bit that turns round.
   static constexpr Fault::Kind kinds[] = { Fault::Kind::flip,
                                            Fault::Kind::flip,
                                            Fault::Kind::flip,
                                            Fault::Kind::flip,
                                            Fault::Kind::flip,
                                            Fault::Kind::stuck,
                                            Fault::Kind::lost,
                                            Fault::Kind::lost,
                                            Fault::Kind::error,
                                            Fault::Kind::delay };
   constexpr U32 mostFirings = 2; // below which an operation that is tried again succeeds
   constexpr U32 mostMilliseconds = 3;
   Fault fault;
   fault.kind = kinds[chance_() % std::size( kinds )];
   fault.bit = static_cast< U32 >( chance_() % 32 );
   fault.value = chance_() % 2;
   fault.milliseconds = static_cast< U32 >( 1 + chance_() % mostMilliseconds );
   fault.count = static_cast< U32 >( 1 + chance_() % mostFirings );
   fault.seed = chance_() >> 1;
   return fault;
}

} // namespace Simulator
