// Reading from and writing to a chip through a driver that writes down what it is asked.
#include "Chips.h"

#include "sal/Driver.h"

#include <cstring>
#include <map>

namespace {

using namespace Hardware;
using DaceSal::ChipId;
using DaceSal::Operation;
using DaceSal::SchanAddress;

constexpr ChipId fap{ 7 };

class TransferTest : public testing::Test, public DaceSal::SchanDriver, public DaceSal::OperationListener {
 protected:
   TransferTest() {
      DaceSal::schanDriverIs( this );
      DaceSal::operationListenerIs( this );
   }
   ~TransferTest() override {
      DaceSal::schanDriverIs( nullptr );
      DaceSal::operationListenerIs( nullptr );
   }

   void read( ChipId chip, SchanAddress const & at, std::span< U32 > words ) override {
      note( "read", chip, at, words.size() );
      std::fill( words.begin(), words.end(), 0x5a5a5a5a );
      words[0] = 0x1234;
   }
   bool write( ChipId chip, SchanAddress const & at, std::span< U32 const > words ) override {
      note( "write", chip, at, words.size() );
      written.assign( words.begin(), words.end() );
      return at.selectorA == changedIn;
   }
   bool
   exchange( ChipId chip, SchanAddress const & at, std::span< U32 const > words, std::span< U32 > before ) override {
      std::fill( before.begin(), before.end(), 0 );
      return write( chip, at, words );
   }
   bool control( ChipId, U32, U32 ) override { return false; }

   void operation( Operation const & heard ) override {
      last = heard;
      lastWords.assign( heard.words.begin(), heard.words.end() );
      ++operations;
   }

   void note( char const * what, ChipId chip, SchanAddress const & at, std::size_t width ) {
      char text[96];
      std::snprintf( text,
                     sizeof text,
                     "%s chip %u 0x%x sel %u/%u width %zu",
                     what,
                     unsigned{ chip.value },
                     at.address,
                     at.selectorA,
                     at.selectorB,
                     width );
      calls.emplace_back( text );
   }

   std::vector< std::string > calls;
   std::vector< U32 > written;
   U32 changedIn = 0;
   Operation last;
   std::vector< U32 > lastWords;
   int operations = 0;
};

TEST_F( TransferTest, AReadTakesOneCopyAndFillsTheBuffer ) {
   IppbFlpLePd0::WithStorage program( chip10 );
   EXPECT_EQ( program.doReadAny( fap, 0, 9 ), 0 );
   EXPECT_EQ( calls, std::vector< std::string >{ "read chip 7 0x2730009 sel 10/2 width 8" } );
   EXPECT_EQ( program.strengthWidthVec(), 0x1234u );
   EXPECT_EQ( program.constStrengthVec(), 0x5a5a5a5a5a5a5a5au );
}

TEST_F( TransferTest, AWriteGoesToEveryCopyInOrder ) {
   EnablersVectors::WithStorage vectors( chip12, false, 1 );
   vectors.routingEnableVectorIs( 0x0000000400000008 );
   vectors.doWriteAll( fap, 3, 7 );
   EXPECT_EQ( calls,
              ( std::vector< std::string >{ "write chip 7 0x8f00c7 sel 4/14 width 2",
                                            "write chip 7 0x8f00c7 sel 4/26 width 2" } ) );
   EXPECT_EQ( written, ( std::vector< U32 >{ 8, 4 } ) );
   EXPECT_EQ( operations, 1 );
}

TEST_F( TransferTest, AChipWithOneCopyGetsOneWrite ) {
   EnablersVectors::WithStorage vectors( chip14, false, 0 );
   vectors.doWriteAll( fap, 2, 0 );
   EXPECT_EQ( calls, std::vector< std::string >{ "write chip 7 0x930040 sel 2/14 width 2" } );
}

TEST_F( TransferTest, OneCoreIsWrittenAlone ) {
   FwdKbrTable::WithStorage kbr( chip10 );
   kbr.doWriteCore( fap, 17, 1, 3 );
   EXPECT_EQ( calls, std::vector< std::string >{ "write chip 7 0x2600443 sel 24/9 width 2" } );
   EXPECT_EQ( last.scope, Operation::Scope::core );
   EXPECT_EQ( last.core, 1 );
}

TEST_F( TransferTest, ARegisterHasNoEntry ) {
   IppdFerTrapCfg::WithStorage cfg( chip15 );
   cfg.doReadAny( fap, 3 );
   cfg.cpuStrengthNIs( 5 );
   cfg.doWriteAll( fap, 3 );
   EXPECT_EQ(
      calls,
      ( std::vector< std::string >{ "read chip 7 0x1f6 sel 2/18 width 1", "write chip 7 0x1f6 sel 2/18 width 1" } ) );
   EXPECT_EQ( written, std::vector< U32 >{ ( 0x1234 & ~( 15u << 9 ) ) | 5u << 9 } );
   EXPECT_TRUE( last.isRegister );
   EXPECT_EQ( last.entry, 0u );
}

TEST_F( TransferTest, ABufferOfTheCallersServesAsWell ) {
   U8 room[9] = {};
   EnablersVectors vectors( chip11, room + 1, 8, false, 0 );
   vectors.doReadAny( fap, 0, 0 );
   EXPECT_EQ( room[0], 0 );
   EXPECT_EQ( vectors.routingEnableVector(), 0x5a5a5a5a00001234u );
}

TEST_F( TransferTest, TheListenerHearsWhatWasDoneAndFromWhere ) {
   FwdFfcTable::WithStorage ffc( chip12, false, 3 );
   ffc.ffcInstructionIs( 1, 1 );
   unsigned const line = __LINE__ + 1;
   ffc.doWriteAll( fap, 2, 63 );
   EXPECT_EQ( last.kind, Operation::Kind::write );
   EXPECT_EQ( last.scope, Operation::Scope::all );
   EXPECT_FALSE( last.isRegister );
   EXPECT_EQ( last.chip, fap );
   EXPECT_EQ( last.table, 31 ); // the place of FwdFfcTable in the alphabet of the tables, from 0
   EXPECT_EQ( last.variant, 3 );
   EXPECT_EQ( last.arrayIndex, 2 );
   EXPECT_EQ( last.entry, 63u );
   EXPECT_EQ( lastWords, ( std::vector< U32 >{ 1u << 29, 0, 0, 0 } ) );
   EXPECT_EQ( last.origin.line(), line );
   EXPECT_NE( std::string( last.origin.file_name() ).find( "TransferTest.cpp" ), std::string::npos );
   EXPECT_FALSE( last.changed );

   ffc.doReadAny( fap, 0, 1 );
   EXPECT_EQ( last.kind, Operation::Kind::read );
   EXPECT_EQ( last.scope, Operation::Scope::any );
   EXPECT_EQ( lastWords[0], 0x1234u );
}

TEST_F( TransferTest, AWriteChangedSomethingIfItDidSoInAnyCopy ) {
   FwdKbrTable::WithStorage kbr( chip10 );
   changedIn = 24; // the second copy
   kbr.doWriteAll( fap, 0, 0 );
   EXPECT_TRUE( last.changed );
   changedIn = 10;
   kbr.doWriteAll( fap, 0, 0 );
   EXPECT_TRUE( last.changed );
   changedIn = 0;
   kbr.doWriteAll( fap, 0, 0 );
   EXPECT_FALSE( last.changed );
}

TEST_F( TransferTest, ADifferentVariantGoesToItsOwnAddress ) {
   EgressOutrifMaxValue::WithStorage rif( chip14, false, 0 );
   rif.variantIs( 2 );
   rif.doWriteAll( fap, 0 );
   EXPECT_EQ( calls, std::vector< std::string >{ "write chip 7 0x905 sel 26/13 width 1" } );
}

using TransferDeathTest = TransferTest;

TEST_F( TransferDeathTest, ABufferShorterThanTheEntryIsNotMoved ) {
   U8 buf[8] = {};
   EnablersVectors vectors( chip10, buf, 4, false, 0 );
   EXPECT_DEATH( vectors.doReadAny( fap, 0, 0 ), "EnablersVectors::doReadAny: Assertion `len_ >= 8' failed" );
   EXPECT_DEATH( vectors.doWriteAll( fap, 0, 0 ), "EnablersVectors::doWriteAll: Assertion `len_ >= 8' failed" );
}

TEST_F( TransferDeathTest, APlaceOutOfRangeIsNotReached ) {
   IppbFlpLePd0::WithStorage program( chip10 );
   EXPECT_DEATH( program.doWriteAll( fap, 0, 64 ), "tableEntry < 64" );
   EXPECT_DEATH( program.doWriteAll( fap, 0, -1 ), "tableEntry < 64" );
   EXPECT_DEATH( program.doWriteAll( fap, 1, 0 ), "arrayIndex == 0" );
   EXPECT_DEATH( program.doReadAny( fap, -1, 0 ), "arrayIndex == 0" );
   IppdFerTrapCfg::WithStorage cfg( chip10 );
   EXPECT_DEATH( cfg.doReadAny( fap, 65536 ), "arrayIndex < 8" );
}

TEST_F( TransferDeathTest, ACoreWithoutACopyIsNamed ) {
   FwdKbrTable::WithStorage one( chip11 );
   EXPECT_DEATH( one.doWriteCore( fap, 0, 1, 0 ),
                 "FwdKbrTable has no copy for core 1 on BCM88800_A0: it has 1 copy\\. No chip operation was made\\." );
   FwdKbrTable::WithStorage two( chip12 );
   EXPECT_DEATH( two.doWriteCore( fap, 0, 2, 0 ), "has no copy for core 2 on BCM88850_A0: it has 2 copies" );
   EXPECT_DEATH( two.doWriteCore( fap, 0, -1, 0 ), "has no copy for core -1" );
}

TEST_F( TransferDeathTest, ADriverMustBeThere ) {
   DaceSal::schanDriverIs( nullptr );
   FwdKbrTable::WithStorage kbr( chip10 );
   EXPECT_DEATH( kbr.doReadAny( fap, 0, 0 ), "Assertion `schanDriver' failed" );
}

} // namespace
