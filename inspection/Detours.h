// Detours from the last state of a scenario: some of what is set there becomes another, and then, in another order,
// what it was.
//
//    Detours const detours( scenario );
//    Road const there = detours.any( choose, 7 );       // a dozen steps, all with numbers from 7 on
#pragma once

#include "inspection/RandomScenario.h"
#include "inspection/Roads.h"

namespace Inspection {

class Detours {
 public:
   explicit Detours( Scenario const & scenario );

   bool isEmpty() const { return turns_.empty(); }
   // Each way there and back has a number of its own, the first of them `number`, which becomes the next one.
   Road any( Choice const & choose, U32 & number ) const;

   // The events of a scenario in any order that keeps those apart which touch the same.
   static Road anyOrder( Scenario const & scenario, Choice const & choose );

 private:
   // One place of the state: what is set there, and what else can be.
   struct Turn {
      std::string place;
      Event back;
      std::vector< Event > there;
   };
   std::vector< Turn > turns_;
};

} // namespace Inspection
