// Faults at random: the same under one seed, and none that a chip is given up for.
#include "simulator/RandomFaults.h"

#include <gtest/gtest.h>
#include <set>

namespace {

using Simulator::Fault;

std::vector< Fault > faults( U64 seed ) {
   Simulator::RandomFaults random( seed );
   std::vector< Fault > all;
   for ( int count = 0; count < 1000; ++count ) {
      all.push_back( random.next() );
   }
   return all;
}

TEST( RandomFaults, areTheSameUnderOneSeedAlone ) {
   EXPECT_EQ( faults( 7 ), faults( 7 ) );
   EXPECT_NE( faults( 7 ), faults( 8 ) );
}

TEST( RandomFaults, areOfEveryKindAndNeverAsManyAsAnOperationIsTried ) {
   std::set< Fault::Kind > kinds;
   for ( Fault const & fault : faults( 7 ) ) {
      kinds.insert( fault.kind );
      EXPECT_GE( fault.count.value(), 1u );
      EXPECT_LE( fault.count.value(), 2u ); // of three tries
   }
   EXPECT_EQ( kinds.size(), 5u );
}

} // namespace
