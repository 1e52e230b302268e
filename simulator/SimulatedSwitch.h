// A simulated switch: plays the agent that a plug-in is loaded into.
//
//    SimulatedSwitch sw( { .faps = { { .fapId = FapId( 0 ), .revision = { 5, ChipType::BCM88690_B0, 7 } } } } );
//    sw.setAttributes( "evpn/status", Rex::Value::Object{ { "vxlanEnabled", true } } );   // before the start
//    sw.start();                                                     // event 0; start( path ) loads a library first
//    sw.set( "evpn/status", "evpnDciEnabled", true );                // event 1
//    sw.change( [&] { sw.entity< Evpn::EvpnStatus >( "evpn/status" )->mplsEnabledIs( true ); } );   // event 2
//    for ( Row const & row : sw.journal().operations() ) { ... }
//    contentsOf( sw.chip( FapId( 0 ) ), ChipType::BCM88690_B0 );
//
// Life of a switch:
//    1. Made: chips with their boot image, the state tree with every path at its default. Paths may be left out
//       (deleteEntity), state and chips changed.
//    2. Started, event 0: the plug-ins are entered; the chip-init callbacks run for each FAP in the order of the
//       numbers; the slice comes up (state 31), the mounts are requested and complete; the scheduler runs until nothing
//       is left to do.
//    3. Running: each change is one event. It is another agent's write, and after it the scheduler runs until nothing
//    is
//       left to do.
//    4. Stopped, at the latest by the destructor: the plug-ins drop what they made, and no node stays behind. Another
//       switch may be made then.
//
// One switch at a time: it installs the driver and the listener of the process. Making a second one throws
// std::logic_error.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "simulator/SupervisedChips.h"
#include "simulator/SwitchDescription.h"

#include <stdexcept>

namespace Simulator {

class ChipsMapping;

// A library that can't be loaded. what() says which and why.
class LibraryError : public std::runtime_error {
 public:
   using std::runtime_error::runtime_error;
};

// Loads a plug-in's library, which registers it. One that registers none is fine. Never unloaded. Throws LibraryError.
void loadPlugin( std::string const & path );

class SimulatedSwitch {
 public:
   // Throws std::logic_error if there is a switch already, if two FAPs have one number, or if a toggle was read in this
   // process with another outcome.
   // With `chips`, which outlive the switch and were made for the same description, its chips stand in that memory, as
   // they are there.
   explicit SimulatedSwitch( SwitchDescription description, ChipsMapping const * chips = nullptr );
   ~SimulatedSwitch();
   SimulatedSwitch( SimulatedSwitch const & ) = delete;
   SimulatedSwitch & operator=( SimulatedSwitch const & ) = delete;

   SwitchDescription const & description() const { return description_; }

   // Enters the plug-ins that are registered, and brings the slice up. Once.
   void start();
   // The same after loadPlugin.
   void start( std::string const & pluginPath );
   // Idempotent.
   void stop();

   // The entity at a path, as a T; null if there is none. A test that changes it after the start does so in change().
   template< class T >
   Corvo::Ptr< T > entity( std::string const & path ) const {
      return Corvo::ptrCast< T >( state_.entity( path ) );
   }
   StateTree & state() { return state_; }
   StateTree const & state() const { return state_; }

   // Changes of state, each an event of its own once the switch has started. They throw as those of StateTree do; the
   // event hasn't happened then.
   void set( std::string const & path, std::string const & attribute, Rex::Value const & value );
   void setAttributes( std::string const & path, Rex::Value const & attributes );
   void setEntry( std::string const & path,
                  std::string const & attribute,
                  std::string const & key,
                  Rex::Value const & value );
   void deleteEntry( std::string const & path, std::string const & attribute, std::string const & key );
   // The entity at the path goes; before the start: the path is left out.
   void deleteEntity( std::string const & path );
   // Whatever `what` does, as one event.
   // `event` tells of it as a scenario does.
   void change( std::function< void() > const & what, std::string const & cause = "change", Rex::Value event = {} );

   // A fault is armed, as an event: what isn't supervised yet is so from now on. Throws Rex::ValueError.
   void fault( Fault const & fault );
   // Keeps beside the chips what they are expected to hold, from here on. Once, and not while something is staged.
   SupervisedChips & supervise( Supervision supervision = {} );
   // Null: nobody has asked for it.
   SupervisedChips * supervised() { return supervised_.get(); }
   SupervisedChips const * supervised() const { return supervised_.get(); }

   // The number of the event under way or, between events, of the last one.
   U32 event() const { return event_; }
   // What an operation made now is the consequence of: "chip-init"; "<path> <attribute>" of the innermost change that
   // is being announced and has a path; else "start", or the change that the event consists of.
   std::string cause() const;

   ChipDriver & driver() { return driver_; }
   Chip & chip( Hardware::Dace::FapId fapId ) { return *driver_.chip( fapId ); }
   Chip const & chip( Hardware::Dace::FapId fapId ) const { return *driver_.chip( fapId ); }
   Journal & journal() { return journal_; }
   Journal const & journal() const { return journal_; }
   Corvo::Ptr< Orb::TaskScheduler > const & scheduler() const { return scheduler_; }
   Corvo::Ptr< Stordb::EntityManager > const & entityManager() const { return entityManager_; }
   Corvo::Ptr< Agent::MounterPlugin::MounterContext > const & context() const { return context_; }
   Corvo::Ptr< Hardware::Dace::Cell::CellStatus > const & cellStatus() const { return cellStatus_; }

 private:
   enum class Phase : U8 { made, chipInit, starting, running, stopped };

   void makeChips();
   void shareObjects();
   void initChips();
   std::string publishedPath( Rex::Entity const & entity ) const;
   std::string causeOf( Corvo::Notification const & notification ) const;

   SwitchDescription description_;
   ChipDriver driver_;
   Journal journal_;
   Corvo::Ptr< Orb::TaskScheduler > scheduler_;
   StateTree state_;
   Corvo::Ptr< Stordb::EntityManager > entityManager_;
   Corvo::Ptr< Agent::MounterPlugin::MounterContext > context_;
   Corvo::Ptr< Hardware::Dace::Cell::CellStatus > cellStatus_;
   ChipsMapping const * mapping_; // null: the chips have memory of their own
   std::unique_ptr< SupervisedChips > supervised_;
   Phase phase_ = Phase::made;
   U32 event_ = 0;
   std::string eventCause_;
};

} // namespace Simulator
