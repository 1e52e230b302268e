// The last rows of an agent: what is played is what was heard, however much was forgotten before.
#include "agent/RowRing.h"
#include "BuildFolder.h"
#include "inspection/JournalSample.h"
#include "inspection/Play.h"

#include <random>

namespace {

using namespace Live;
using Inspection::Heard;
using Simulator::Row;

std::vector< std::string > played( RowRing const & ring ) {
   Heard heard;
   ring.play( heard );
   return heard.lines;
}

// Hands two readers the same.
class Both final : public Simulator::RowReader {
 public:
   Both( RowReader & a, RowReader & b ) : a_( a ), b_( b ) {}
   void eventBegins( U32 event, Rex::Value const & what ) override {
      a_.eventBegins( event, what );
      b_.eventBegins( event, what );
   }
   void row( Row const & row ) override {
      a_.row( row );
      b_.row( row );
   }
   void eventEnds( U32 event ) override {
      a_.eventEnds( event );
      b_.eventEnds( event );
   }

 private:
   RowReader & a_;
   RowReader & b_;
};

// An event with so many writes, of words and texts that differ from event to event.
void playEvent( Simulator::RowReader & reader, U32 event, std::size_t writes, U64 & seq ) {
   std::string const key = "Ethernet" + std::to_string( event );
   std::string const cause = "interface/status/subintf/intfStatus/" + key + " mtu";
   reader.eventBegins( event, Rex::Value::Object{ { "set", Rex::Value::Object{ { "path", key } } } } );
   for ( std::size_t i = 0; i < writes; ++i ) {
      std::vector< U32 > const words{ event, static_cast< U32 >( i ), 0 };
      std::vector< U32 > const before{ event - 1, 0, 0xffffffff };
      Row row{ .kind = Row::Kind::write, .event = event, .seq = ++seq };
      std::string const function = "L3Sm::f" + std::to_string( i % 3 );
      row.function = function;
      row.source = "L3Sm.cpp:41";
      row.cause = cause;
      row.causeNumber = event;
      row.originNumber = static_cast< U32 >( i % 3 );
      row.table = "EnablersVectors";
      row.tableNumber = Catalogue::table( row.table )->number;
      row.array = -1;
      row.entry = 70000;
      row.words = words;
      row.before = before;
      row.scope = Row::Scope::all;
      row.changed = true;
      reader.row( row );
   }
   reader.eventEnds( event );
}

TEST( RowRing, PlaysEveryKindOfRowAsItWasHeard ) {
   RowRing ring;
   Heard heard;
   Both both( ring, heard );
   Inspection::playSampleEvent( both, 0 );
   Inspection::playSampleEvent( both, 1 );
   Inspection::playSampleEvent( both, 7 );
   auto lines = heard.lines;
   lines.push_back( "complete 7 40" );
   EXPECT_EQ( played( ring ), lines );
   EXPECT_EQ( ring.firstEvent(), 0u );
   EXPECT_EQ( ring.rows(), 3u * 11 );
}

TEST( RowRing, KeepsARealRunWithItsLayouts ) {
   class Layouts final : public Simulator::RowReader {
    public:
      void row( Row const & row ) override {
         all.emplace_back( row.layout, row.table );
         numbers.insert( { row.originNumber, std::string( row.source ) } );
      }
      std::vector< std::pair< Catalogue::Layout const *, std::string_view > > all;
      std::set< std::pair< U32, std::string > > numbers; // with what they stand for
   };
   auto const scenario = Inspection::builtInScenario();
   Inspection::loadPlugin( buildFolder() + "/lib/libL3SmPlugin.so" );
   Simulator::SimulatedSwitch sw( scenario.description );
   RowRing ring;
   Heard heard;
   Layouts layouts;
   sw.journal().readerAdd( heard );
   sw.journal().readerAdd( layouts );
   sw.journal().readerAdd( ring );
   Inspection::play( scenario, sw );

   auto lines = played( ring );
   lines.pop_back(); // the ending
   EXPECT_GT( lines.size(), 100u );
   EXPECT_EQ( lines, heard.lines );
   Layouts again;
   ring.play( again );
   EXPECT_EQ( again.all, layouts.all );
   std::set< U32 > numbers;
   for ( auto const & [number, text] : again.numbers ) {
      EXPECT_TRUE( numbers.insert( number ).second ) << number << " stands for two texts";
   }
}

TEST( RowRing, ForgetsWholeEventsFromTheFront ) {
   RowRing ring( { .rows = 100 } );
   std::vector< std::vector< std::string > > events;
   U64 seq = 0;
   std::mt19937 random( 7 );
   for ( U32 event = 0; event < 1000; ++event ) {
      Heard heard;
      Both both( ring, heard );
      playEvent( both, event, random() % 12, seq );
      events.push_back( heard.lines );
      ASSERT_LE( ring.rows(), 100u );
      ASSERT_TRUE( ring.firstEvent() );
      if ( event > 100 ) {
         ASSERT_GE( ring.rows(), 100u - 100 / 16 - 2 * 12 ) << "forgets more than it must";
      }
      if ( event % 97 == 0 ) {
         std::vector< std::string > wanted;
         for ( U32 kept = *ring.firstEvent(); kept <= event; ++kept ) {
            wanted.insert( wanted.end(), events[kept].begin(), events[kept].end() );
         }
         auto lines = played( ring );
         lines.pop_back();
         ASSERT_EQ( lines, wanted );
      }
   }
}

TEST( RowRing, KeepsTheLastEventThatFillsItByItself ) {
   RowRing ring( { .rows = 100 } );
   U64 seq = 0;
   playEvent( ring, 1, 3, seq );
   playEvent( ring, 2, 98, seq ); // in one block with the first
   EXPECT_EQ( ring.firstEvent(), 2u );
   EXPECT_EQ( ring.rows(), 99u );
   EXPECT_EQ( played( ring ).size(), 98u + 3 );
}

TEST( RowRing, IsEmptyBehindAnEventThatIsLargerThanItself ) {
   RowRing ring( { .rows = 100 } );
   U64 seq = 0;
   playEvent( ring, 1, 3, seq );
   playEvent( ring, 2, 5000, seq );
   EXPECT_FALSE( ring.firstEvent() );
   EXPECT_EQ( played( ring ), std::vector< std::string >{ "complete 0 0" } );
   playEvent( ring, 3, 3, seq );
   EXPECT_EQ( ring.firstEvent(), 3u );
   EXPECT_EQ( played( ring ).size(), 3u + 3 );

   RowRing small( { .bytes = 1000 } );
   small.eventBegins( 1, Rex::Value::Object{ { "text", std::string( 2000, 'x' ) } } );
   small.eventEnds( 1 );
   EXPECT_FALSE( small.firstEvent() ) << "what an event was about counts, too";
}

TEST( RowRing, GoesOnPlayingWhatIsForgottenMeanwhile ) {
   RowRing ring( { .rows = 100 } );
   U64 seq = 0;
   for ( U32 event = 1; event <= 10; ++event ) {
      playEvent( ring, event, 3, seq );
   }
   auto playback = ring.playback();
   Heard heard;
   ASSERT_TRUE( playback.next( heard ) );
   for ( U32 event = 11; event <= 300; ++event ) {
      playEvent( ring, event, 3, seq );
   }
   EXPECT_GT( ring.firstEvent(), 10u );
   while ( playback.next( heard ) ) {
   }
   EXPECT_EQ( heard.lines.back(), "complete 10 30" );
   EXPECT_EQ( heard.lines.size(), 10u * 5 + 1 );
}

TEST( RowRing, TakesNoMoreMemoryHoweverManyKeysComeAndGo ) {
   RowRing ring( { .rows = 2000 } );
   U64 seq = 0;
   std::size_t most = 0;
   for ( U32 event = 1; event <= 40'000; ++event ) {
      playEvent( ring, event, event % 4, seq );
      if ( event == 4'000 ) {
         most = ring.bytes();
      }
      if ( event > 4'000 ) {
         ASSERT_LE( ring.bytes(), most * 3 / 2 ) << event;
      }
   }
   EXPECT_LE( ring.rows(), 2000u );
}

} // namespace
