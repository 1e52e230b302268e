// Values that fields pass through, from rows as a journal has them.
#include "inspection/PassingValues.h"
#include "chip/ChipType.h"

#include <gtest/gtest.h>

namespace {

using Inspection::PassingValue;
using Inspection::PassingValues;
using Simulator::Row;
using Words = std::vector< U32 >;

// Writes of one register with three fields in one word, of both copies or of one.
struct PassingValuesTest : testing::Test {
   void SetUp() override {
      table = Catalogue::table( "IppdFerTrapCfg" );
      ASSERT_NE( table, nullptr );
      layout = Catalogue::layout( *table, static_cast< U8 >( Hardware::ChipType::BCM88690_B0 ), 0 );
      field = layout->field( "cpuStrengthN" );
      windows.eventBegins( 1, {} );
   }

   Words with( U32 value ) const { return { value << field->offset }; }
   void write( Words const & before, Words const & words, char const * function, int core = -1 ) {
      windows.row( { .kind = Row::Kind::write,
                     .event = 1,
                     .seq = ++seq,
                     .function = function,
                     .source = "x.cpp:1",
                     .fap = 0,
                     .table = table->name,
                     .tableNumber = table->number,
                     .layout = layout,
                     .scope = core < 0 ? Row::Scope::all : Row::Scope::core,
                     .core = std::max( core, 0 ),
                     .words = words,
                     .changed = before != words,
                     .before = before } );
   }
   void read() { ++seq; }
   std::vector< PassingValue > const & end() {
      windows.eventEnds( 1 );
      return windows.all();
   }

   Catalogue::Table const * table = nullptr;
   Catalogue::Layout const * layout = nullptr;
   Catalogue::Field const * field = nullptr;
   PassingValues windows;
   U64 seq = 0;
};

TEST_F( PassingValuesTest, tellWhatWasSetAndNotKept ) {
   write( with( 5 ), with( 3 ), "A" );
   read();
   write( with( 3 ), with( 6 ), "B" );
   auto const all = end();
   ASSERT_EQ( all.size(), 1u );
   EXPECT_EQ( all[0].field, "cpuStrengthN" );
   EXPECT_EQ( all[0].from + " " + all[0].through + " " + all[0].to, "0x5 0x3 0x6" );
   EXPECT_EQ( all[0].setBy + " " + all[0].leftBy, "A B" );
   EXPECT_EQ( all[0].operations, 2u );
   EXPECT_EQ( all[0].event, 1u );
}

TEST_F( PassingValuesTest, tellAValueThatComesBack ) {
   write( with( 5 ), with( 3 ), "A" );
   write( with( 3 ), with( 5 ), "B" );
   auto const all = end();
   ASSERT_EQ( all.size(), 1u );
   EXPECT_EQ( all[0].from, all[0].to );
}

TEST_F( PassingValuesTest, tellEachValueOnTheWay ) {
   write( with( 5 ), with( 1 ), "A" );
   write( with( 1 ), with( 2 ), "A" );
   write( with( 2 ), with( 3 ), "A" );
   auto const all = end();
   ASSERT_EQ( all.size(), 2u );
   EXPECT_EQ( all[0].through + " " + all[1].through, "0x1 0x2" );
}

TEST_F( PassingValuesTest, tellNothingOfOneStepOrOfOtherEvents ) {
   write( with( 5 ), with( 3 ), "A" );
   write( with( 3 ), with( 3 ), "A" );
   EXPECT_TRUE( end().empty() );
   windows.eventBegins( 2, {} );
   write( with( 3 ), with( 6 ), "B" );
   windows.eventEnds( 2 );
   EXPECT_TRUE( windows.all().empty() );
}

// Two fields that are set one after the other each take one step.
TEST_F( PassingValuesTest, tellFieldsNotEntries ) {
   auto const * const other = layout->field( "snoopStrengthN" );
   Words both = with( 3 );
   both[0] |= 4u << other->offset;
   write( with( 5 ), with( 3 ), "A" );
   write( with( 3 ), both, "A" );
   EXPECT_TRUE( end().empty() );
}

TEST_F( PassingValuesTest, tellCopiesThatGoTheSameWayOnce ) {
   for ( int core : { 0, 1 } ) {
      write( with( 5 ), with( 3 ), "A", core );
   }
   for ( int core : { 0, 1 } ) {
      write( with( 3 ), with( 6 ), "B", core );
   }
   EXPECT_EQ( end().size(), 1u );
}

TEST_F( PassingValuesTest, tellControls ) {
   for ( U32 const value : { 1u, 255u } ) {
      windows.row( { .kind = Row::Kind::control,
                     .event = 1,
                     .seq = ++seq,
                     .function = "C",
                     .source = "x.cpp:2",
                     .changed = true,
                     .control = 64,
                     .value = value,
                     .valueBefore = value == 1 ? std::nullopt : std::optional( 1u ) } );
   }
   auto const all = end();
   ASSERT_EQ( all.size(), 1u );
   EXPECT_EQ( all[0].table, "controls" );
   EXPECT_EQ( all[0].from + " " + all[0].through + " " + all[0].to, "unset 1 255" );
}

} // namespace
