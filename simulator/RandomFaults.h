// Faults that look like chance, and are the same under the same seed.
//
//    RandomFaults faults( 17 );
//    sw.fault( faults.next() );
//
// Each fires a few times, anywhere on any chip: bits that turn round or are stuck, writes that get lost, operations
// that fail or take their time, none so often that a chip is given up for good.
//
// Threading: one thread.
#pragma once

#include "simulator/Fault.h"

#include <random>

namespace Simulator {

class RandomFaults {
 public:
   explicit RandomFaults( U64 seed ) : chance_( seed ) {}
   Fault next();

 private:
   std::mt19937_64 chance_;
};

} // namespace Simulator
