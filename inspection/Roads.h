// Roads to one state: the events of a scenario in this or that order, detours there and back, and starts of the
// plug-in, the first of which may come late: what stands before it is state that the plug-in finds.
//
//    RoadPlayer player( scenario );                       // the plug-in is loaded already
//    player.play( ownRoad( scenario ) );
//    RoadEnd const own = player.end();
//    player.play( freshStart( scenario ) );
//    for ( EndDifference const & it : player.differencesFrom( own ) ) { … it.table, it.field, it.own, it.here … }
//
// Each road is played on chips as they boot, or goes on where the one before has ended. Ends that are alike have the
// same fingerprint, which costs a number for each write.
//
// Threading: the agent's scheduler thread. One switch at a time stands in a process.
#pragma once

#include "inspection/files/Scenario.h"

#include <memory>
#include <unordered_map>

namespace Inspection {

struct RoadStep {
   bool isStart = false; // the plug-in starts, a second time on what it has left; else an event
   Event event = {};     // one of the scenario has its number
   U32 detour = 0;       // steps of one detour, there and back, have one number; 0: no detour

   static RoadStep start() { return { .isStart = true }; }
};

using Road = std::vector< RoadStep >;

// The scenario as it is: started, and then its events.
Road ownRoad( Scenario const & scenario );
// Started on the last state.
Road freshStart( Scenario const & scenario );
// How many steps the plug-in lives through, its first start not counted.
std::size_t lengthOf( Road const & road );

// One field, control or published value in which two ends differ.
struct EndDifference {
   U16 fap;
   std::string table; // "controls", "published"
   std::string place; // as people read it
   std::string field;
   std::string own;
   std::string here;

   // What remembers, whatever it holds.
   std::string key() const { return std::to_string( fap ) + " " + table + " " + place + " " + field; }
};

// Where a road has ended: the places that some write has changed, and what is published.
struct RoadEnd {
   struct Place {
      U32 chip;
      U32 block; // the selectors; of a control ~0
      U32 address;
      friend auto operator<=>( Place const &, Place const & ) = default;
   };
   struct Hash {
      std::size_t operator()( Place const & place ) const;
   };
   // Words, as many as the place has; of a control one, or none while it has no value.
   struct Contents {
      std::vector< U32 > booted;
      std::vector< U32 > now;
   };
   std::unordered_map< Place, Contents, Hash > changed;
   Rex::Value published = {};
};

class RoadPlayer {
 public:
   explicit RoadPlayer( Scenario const & scenario );
   ~RoadPlayer();
   RoadPlayer( RoadPlayer const & ) = delete;
   RoadPlayer & operator=( RoadPlayer const & ) = delete;

   // From chips as they boot. Throws Rex::ValueError where an event doesn't fit.
   void play( Road const & road );
   // Goes on.
   void step( RoadStep const & step );

   // Of what the chips hold and of what is published.
   U64 fingerprint() const;
   RoadEnd end() const;
   std::vector< EndDifference > differencesFrom( RoadEnd const & own ) const;

 private:
   class Driver;
   void start();
   void letGo();

   Scenario const & scenario_;
   Simulator::SwitchDescription description_;
   std::vector< Event > before_; // of the start that comes, or of the life that goes on
   std::unique_ptr< Simulator::SimulatedSwitch > switch_;
   std::unique_ptr< Driver > driver_;
};

} // namespace Inspection
