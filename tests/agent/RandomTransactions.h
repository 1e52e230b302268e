// Random transactions that fit every one of some switches, and what agents' chips are compared with that have lived
// through them.
#pragma once

#include "BuildFolder.h"
#include "Served.h"
#include "agent/RedisServer.h"
#include "agent/database/Databases.h"
#include "agent/database/StateFile.h"
#include "agent/database/StateWriter.h"
#include "inspection/FileDifferences.h"
#include "inspection/KnownMemories.h"
#include "inspection/Play.h"
#include "inspection/RandomScenario.h"
#include "inspection/files/ChipsWriter.h"
#include "inspection/files/SavedScenario.h"
#include "rex/Log.h"

namespace RandomTransactions {

using namespace Inspection;
using Hardware::ChipType;

inline std::string switchOf( std::vector< ChipType > const & chips ) {
   Scenario scenario;
   for ( auto const chip : chips ) {
      Simulator::FapDescription fap{
         .fapId = Hardware::Dace::FapId( static_cast< U16 >( scenario.description.faps.size() ) ) };
      fap.revision = Hardware::Dace::FapRevision( Hardware::Dace::fapRevMajorOf( chip ), chip, 7 );
      scenario.description.faps.push_back( fap );
   }
   scenario.description.toggles["Dace.json"]["ArmOrderedSwTable"] = false; // or little is programmed
   auto value = valueOf( scenario, Parts::withoutEvents );
   return toJson( value, 0 );
}

// The chips after a start from where the events lead, without the plug-in's having seen any of them.
inline std::string chipsAfterStart( std::string const & theSwitch, Scenario const & told ) {
   Child const child = inChild( [&]( std::ostream & out ) {
      Rex::logSinkIs( []( auto const & ) {} );
      loadPlugin( buildFolder() + "/lib/libL3SmPlugin.so" );
      Scenario const scenario = scenarioOf( parseJson( theSwitch, "switch" ), "switch" );
      Simulator::SimulatedSwitch sw( scenario.description );
      for ( auto const & [path, attributes] : told.state ) {
         sw.change( [&, at = path, of = &attributes] { stateIs( sw.state(), at, *of ); } );
      }
      for ( Event const & event : told.events ) {
         sw.change( [&] { event.change( sw.state() ); } );
      }
      sw.start();
      writeChipsOf( sw, out );
   } );
   EXPECT_TRUE( child.isFine ) << child.errors;
   return child.output;
}

// The number of the first event that a run can't go on behind: it doesn't fit there, or ends the plug-in by design. 0:
// none.
// Nothing, where the state does that already.
inline std::optional< U32 > firstBad( std::string const & theSwitch, Scenario const & told ) {
   Child const child = inChild( [&]( std::ostream & out ) {
      Rex::logSinkIs( []( auto const & ) {} );
      loadPlugin( buildFolder() + "/lib/libL3SmPlugin.so" );
      Scenario scenario = scenarioOf( parseJson( theSwitch, "switch" ), "switch" );
      scenario.description.journalled = Simulator::SwitchDescription::Journalled::none;
      scenario.state = told.state;
      Simulator::SimulatedSwitch sw( scenario.description );
      scenario.prepare( sw );
      sw.start();
      for ( Event const & event : told.events ) {
         out << event.number << '\n' << std::flush;
         try {
            scenario.play( sw, event );
         } catch ( InputError const & ) {
            return;
         }
      }
      out << 0 << '\n';
   } );
   auto const lines = linesOf( child.output );
   return lines.empty() ? std::nullopt : std::optional( static_cast< U32 >( std::stoul( lines.back() ) ) );
}

// A state and events that every one of the switches lives through.
inline Scenario toldScenario( std::map< std::string, std::string > const & switches, std::size_t count ) {
   for ( U64 seed = 1;; ++seed ) {
      Scenario told = randomScenario(
         chanceOf( seed ), { .chipTypes = { ChipType::BCM88690_B0 }, .toggles = false, .mostEvents = count } );
      std::erase_if( told.events, []( Event const & event ) { // which stand where each plug-in publishes
         return event.path.starts_with( "shared/phySmStateSharedStatus" );
      } );
      for ( auto at = switches.begin(); at != switches.end(); ) {
         auto const bad = firstBad( at->second, told );
         if ( !bad ) {
            told.events.clear();
            break;
         }
         std::erase_if( told.events, [&]( Event const & event ) { return event.number == *bad; } );
         at = *bad ? switches.begin() : std::next( at );
      }
      if ( told.events.size() >= count / 2 ) {
         return told;
      }
   }
}

inline std::string unknownDifferences( Folder const & folder, std::string const & a, std::string const & b ) {
   std::ostringstream text;
   auto const all = differencesOf( { .a = folder.file( "a", a ), .b = folder.file( "b", b ) } );
   for ( Difference const & it : all.chips ) {
      for ( ValueDifference const & value : it.values ) {
         if ( !knownMemory( it.table, it.table == Difference::controls ? it.place : value.name ) ) {
            text << "FAP " << it.fap << ' ' << it.table << ' ' << it.place << ' ' << value.name << '\n';
         }
      }
   }
   return text.str();
}

} // namespace RandomTransactions
