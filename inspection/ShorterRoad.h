// Cuts a road down to what it takes to show something.
//
//    ShorterRoad const shorter( scenario );                 // plays the scenario's own road; InputError where it fails
//    Road const road = shorter.thatShows( key, longRoad );  // leads to the same state, and ends with that difference
//
// Every attempt is played in a child process, as one may end it.
#pragma once

#include "inspection/Roads.h"

#include <functional>

namespace Inspection {

class ShorterRoad {
 public:
   explicit ShorterRoad( Scenario const & scenario );

   RoadEnd const & own() const { return own_; }
   // From where the scenario's own road ends; none where the road ends the process.
   std::vector< EndDifference > differences( Road const & road ) const;

   // `key`: that of a difference. The road itself where nothing shorter shows it.
   Road thatShows( std::string const & key, Road const & road ) const;
   // Likewise that ends the process with these words.
   Road thatFails( std::string const & said, Road const & road ) const;

 private:
   using Shows = std::function< bool( Road const & ) >;
   Road cut( Road road, Shows const & shows ) const;
   bool leadsThere( Road const & road ) const;
   Rex::Value stateAfter( Road const & road ) const;

   Scenario const & scenario_;
   RoadEnd own_;
   Rex::Value state_; // the last
};

} // namespace Inspection
