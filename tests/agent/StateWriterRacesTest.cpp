// Writers among others: what happens to their events where somebody else writes in between. The database is one that
// does as the test says.
#include "agent/database/StateWriter.h"
#include "inspection/files/InputError.h"

#include <gmock/gmock.h>

namespace {

using namespace Live;
using Inspection::Event;
using testing::ElementsAre;

// A state in memory. Before each look at it, somebody else may write.
struct RacingStore final : StateStore {
   Paths paths{ { "evpn/status", { { "vxlanEnabled", "true" } } }, { "interface/status/eth/vxlan", {} } };
   unsigned entry = 1;
   std::vector< Transaction > log;
   std::vector< std::string > written;
   std::function< void() > meanwhile = [] {};  // before each commit
   std::function< void() > beforeMark = [] {}; // once, before who writes knows what was written last
   bool hasHistory = true;
   unsigned snapshots = 0;

   // By somebody else.
   void otherWrites( Event const & event, bool isPossible = true ) {
      if ( isPossible ) {
         for ( PathChange const & change : pathChangesOf( event, PathLookup( paths ) ) ) {
            apply( change, paths );
         }
      }
      goesOn( event );
   }

   std::string name() const override { return "a store"; }
   EventLoop & loop() override { return loop_; }
   Snapshot snapshot( std::string const & ) override {
      ++snapshots;
      return { .position = position(), .paths = paths };
   }
   Paths about( std::string const & ) override { return paths; }
   Mark mark() override {
      std::exchange( beforeMark, [] {} )();
      return { "e", std::to_string( entry ) };
   }
   bool isBehind( Position const & position, Mark const & mark ) const override { return position.entry != mark.entry; }
   std::optional< std::vector< Transaction > > since( Position const & position, Mark const & ) override {
      if ( !hasHistory ) {
         return std::nullopt;
      }
      std::vector< Transaction > all;
      for ( Transaction const & each : log ) {
         if ( std::stoul( each.position.entry ) > std::stoul( position.entry ) ) {
            all.push_back( each );
         }
      }
      return all;
   }
   std::string commit( StateChange const & change, Paths const &, Event const & event, Mark & mark ) override {
      meanwhile();
      if ( mark.entry != std::to_string( entry ) ) {
         mark = this->mark();
         return {};
      }
      for ( PathChange const & each : change.changes ) {
         apply( each, paths );
      }
      written.push_back( event.text() );
      goesOn( event );
      mark = this->mark();
      return mark.entry;
   }
   std::string load( Paths const & ) override { return {}; }
   Position place() override { return position(); }
   std::vector< AwaitedAgent > agents( std::vector< std::string >, Position const & ) override { return {}; }
   std::unique_ptr< StateWatch > watch( StateWatch::Answers ) override { return nullptr; }

 private:
   Position position() const { return { "s", "e", std::to_string( entry ) }; }
   void goesOn( Event const & event ) {
      ++entry;
      log.push_back( { .position = position(), .changes = { event } } );
   }
   EventLoop loop_;
};

Event const racingVxlan{ .number = 1,
                         .path = "interface/status/eth/vxlan",
                         .attribute = "vtiStatus",
                         .key = "Vxlan1",
                         .value = Rex::Value::Object{ { "udpPort", 4789 } } };
Event const racingPort{
   .number = 2, .path = "interface/status/eth/vxlan/vtiStatus/Vxlan1", .attribute = "udpPort", .value = 4790 };
Event const goneVxlan{ .kind = Event::Kind::remove, .path = "interface/status/eth/vxlan/vtiStatus/Vxlan1" };
Event const otherMpls{ .path = "evpn/status", .attribute = "mplsEnabled", .value = true };
Event const wrongEvent{ .path = "evpn/status", .attribute = "mplsEnabled", .value = "x" };

struct StateWriterRaces : testing::Test {
   RacingStore store;
   StateWriter writer{ store };

   static std::string refusalIn( std::function< void() > const & what ) {
      try {
         what();
      } catch ( Inspection::InputError const & error ) {
         return error.what();
      }
      return "nothing was refused";
   }
   // Somebody else writes before the commit of this number alone.
   void onceBefore( unsigned commit, std::function< void() > what ) {
      store.meanwhile = [what = std::move( what ), left = commit]() mutable {
         if ( left > 0 && --left == 0 ) {
            what();
         }
      };
   }
};

TEST_F( StateWriterRaces, writeAgainWhereSomebodyElseWasFirst ) {
   onceBefore( 1, [&] { store.otherWrites( otherMpls ); } );
   EXPECT_EQ( writer.write( racingVxlan ), "3" );
   EXPECT_EQ( store.paths.at( racingPort.path ), ( Attributes{ { "udpPort", "4789" } } ) );
   EXPECT_EQ( store.paths.at( "evpn/status" ).at( "mplsEnabled" ), "true" );
}

TEST_F( StateWriterRaces, giveUpWhereOthersWriteWithoutAPause ) {
   store.meanwhile = [&] { store.otherWrites( otherMpls ); };
   EXPECT_EQ( refusalIn( [&] { writer.write( racingVxlan ); } ), "a store: others write without a pause; try again" );
   onceBefore( 1, [] {} );
   writer.writeEach( { racingVxlan }, "events.json" );
   store.meanwhile = [&] { store.otherWrites( otherMpls ); };
   EXPECT_EQ( refusalIn( [&] { writer.writeEach( { racingPort }, "events.json" ); } ),
              "a store: others write without a pause; 0 of 1 events are written" );
   EXPECT_THAT( store.written, ElementsAre( racingVxlan.text() ) );
}

TEST_F( StateWriterRaces, writeEachWhereSomebodyElseWritesBetweenThem ) {
   onceBefore( 2, [&] { store.otherWrites( otherMpls ); } );
   writer.writeEach( { racingVxlan, racingPort }, "events.json" );
   EXPECT_THAT( store.written, ElementsAre( racingVxlan.text(), racingPort.text() ) );
   EXPECT_EQ( store.paths.at( racingPort.path ), ( Attributes{ { "udpPort", "4790" } } ) );
   EXPECT_EQ( store.paths.at( "evpn/status" ),
              ( Attributes{ { "mplsEnabled", "true" }, { "vxlanEnabled", "true" } } ) );
}

TEST_F( StateWriterRaces, sayHowFarTheyGotWhereSomebodyElseTakesAwayWhatTheyChange ) {
   onceBefore( 2, [&] { store.otherWrites( goneVxlan ); } );
   EXPECT_EQ( refusalIn( [&] {
                 writer.writeEach( { racingVxlan, racingPort }, "events.json" );
              } ),
              "events.json: event 2, " + racingPort.text() +
                 ": interface/status/eth/vxlan holds nothing at \"vtiStatus/Vxlan1\"; somebody else has changed the "
                 "state meanwhile, 1 of 2 events are written" );
   EXPECT_THAT( store.written, ElementsAre( racingVxlan.text() ) );
}

TEST_F( StateWriterRaces, takeInWhatSomebodyElseWritesBehindTheirLook ) {
   store.beforeMark = [&] { store.otherWrites( otherMpls ); };
   writer.writeEach( { racingVxlan, racingPort }, "events.json" );
   EXPECT_THAT( store.written, ElementsAre( racingVxlan.text(), racingPort.text() ) );
   EXPECT_EQ( store.snapshots, 1u );
}

TEST_F( StateWriterRaces, lookAtAllOfItWhereSomebodyElseHasWrittenWithoutLooking ) {
   store.beforeMark = [&] { store.otherWrites( wrongEvent, false ); };
   writer.writeEach( { racingVxlan, racingPort }, "events.json" );
   EXPECT_THAT( store.written, ElementsAre( racingVxlan.text(), racingPort.text() ) );
   EXPECT_EQ( store.snapshots, 2u );
}

TEST_F( StateWriterRaces, lookAtAllOfItWhereNobodyKnowsAnyMoreWhatWasWritten ) {
   store.hasHistory = false;
   store.beforeMark = [&] { store.otherWrites( otherMpls ); };
   writer.writeEach( { racingVxlan, racingPort }, "events.json" );
   EXPECT_THAT( store.written, ElementsAre( racingVxlan.text(), racingPort.text() ) );
   EXPECT_EQ( store.snapshots, 2u );
}

} // namespace
