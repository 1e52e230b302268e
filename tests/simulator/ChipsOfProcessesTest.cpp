// Chips that stay, and processes that are killed, that come together, or that are copied.
#include "Folder.h"
#include "simulator/ChipsMapping.h"
#include "simulator/TableMap.h"

#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Simulator;
using Hardware::ChipType;
using Hardware::Dace::FapId;

namespace {

constexpr ChipType chipKind = ChipType::BCM88690_B0;
constexpr U32 one = 0x11111111;
constexpr U32 two = 0xeeeeeeee;

// A process that does something, and what it says on its way.
class Process {
 public:
   using What = std::function< void( std::function< void() > const & say ) >;

   explicit Process( What const & what ) {
      int ends[2];
      EXPECT_EQ( ::pipe( ends ), 0 );
      process_ = ::fork();
      if ( process_ == 0 ) {
         ::prctl( PR_SET_PDEATHSIG, SIGKILL );
         what( [&] { EXPECT_EQ( ::write( ends[1], "!", 1 ), 1 ); } );
         ::_exit( 0 );
      }
      ::close( ends[1] );
      said_ = ends[0];
   }
   ~Process() {
      dies();
      ::close( said_ );
   }
   Process( Process const & ) = delete;
   Process & operator=( Process const & ) = delete;

   // False if it ends without saying more.
   bool says() const {
      char letter = 0;
      return ::read( said_, &letter, 1 ) == 1;
   }
   void dies() {
      if ( process_ > 0 ) {
         ::kill( process_, SIGKILL );
         ::waitpid( std::exchange( process_, 0 ), nullptr, 0 );
      }
   }

 private:
   pid_t process_;
   int said_;
};

struct ChipsOfProcesses : testing::Test {
   Folder folder;
   std::string path = folder / "chips";
   SwitchDescription description{ .faps = { { .fapId = FapId( 0 ), .revision = { 5, chipKind, 7 } } } };

   ChipsMapping opened() const { return ChipsMapping::open( path, description ).value(); }
   bool isInUse() const {
      try {
         opened();
      } catch ( ChipsInUse const & ) {
         return true;
      }
      return false;
   }
   static Chip chipOf( ChipsMapping const & chips ) {
      return { ChipId{ 0 }, "chip", addressMap( chipKind ), chips.chip( FapId( 0 ) ) };
   }
};

// Every entry of the chip, in each of its copies, again and again: all words of it the one or the other.
void writeEndlessly( Chip & chip, std::function< void() > const & say ) {
   for ( bool isFirst = true;; isFirst = false ) {
      for ( U32 const value : { one, two } ) {
         for ( auto const & range : chip.map().ranges() ) {
            std::vector< U32 > const words( range.width, value );
            for ( U32 copy = 0; copy < range.copies; ++copy ) {
               for ( U32 entry = 0; entry < range.count; ++entry ) {
                  chip.write( { range.base + entry, range.blocks[copy] >> 8, range.blocks[copy] & 0xff }, words );
               }
            }
            chip.controlIs( range.base % 500, value );
         }
      }
      if ( isFirst ) {
         say();
      }
   }
}

TEST_F( ChipsOfProcesses, holdOneOfTwoValuesInEachWordWhenTheOneWhoWritesIsKilled ) {
   U32 const kills = 30;
   ChipsMapping::make( path, description );
   std::set< bool > mixtures;
   for ( U32 kill = 0; kill < kills; ++kill ) {
      Process writer( [&]( auto const & say ) {
         auto const chips = opened();
         Chip chip = chipOf( chips );
         writeEndlessly( chip, say );
      } );
      ASSERT_TRUE( writer.says() );
      ::usleep( kill * 137 );
      writer.dies();

      auto const chips = opened();
      EXPECT_EQ( chips.generation(), 3 + 2 * kill );
      auto const memory = chips.chip( FapId( 0 ) );
      auto const ones = std::ranges::count( memory.words, one );
      auto const twos = std::ranges::count( memory.words, two );
      EXPECT_EQ( ones + twos, static_cast< std::ptrdiff_t >( memory.words.size() ) );
      mixtures.insert( ones > 0 && twos > 0 );
      for ( auto const & range : addressMap( chipKind ).ranges() ) {
         auto const value = memory.controls.value( range.base % 500 );
         ASSERT_TRUE( value == one || value == two );
      }
      EXPECT_LE( memory.controls.all().size(), 500u );
   }
   EXPECT_TRUE( mixtures.contains( true ) ) << "nobody was killed in the middle";
}

// The first value of a control is two stores.
TEST_F( ChipsOfProcesses, holdNoControlThatWasNeverSetWhenTheOneWhoSetsIsKilled ) {
   std::set< std::size_t > counts;
   for ( U32 kill = 0; kill < 40; ++kill ) {
      ChipsMapping::make( path, description );
      Process setter( [&]( auto const & say ) {
         auto const chips = opened();
         Chip chip = chipOf( chips );
         say();
         for ( U32 control = 0;; control = ( control + 1 ) % ChipControls::most ) {
            chip.controlIs( control, ~control );
            for ( U32 again = 0; again < 20; ++again ) {
               chip.controlIs( control, ~control );
            }
         }
      } );
      ASSERT_TRUE( setter.says() );
      ::usleep( kill * 40 );
      setter.dies();
      auto const controls = chipOf( opened() ).controls();
      counts.insert( controls.size() );
      U32 next = 0;
      for ( auto const & [control, value] : controls ) {
         ASSERT_EQ( control, next++ );
         ASSERT_EQ( value, ~control );
      }
   }
   EXPECT_GT( counts.size(), 3u ) << "all were killed at the same place";
}

TEST_F( ChipsOfProcesses, areWholeOrNotThereWhenTheOneWhoMakesThemIsKilled ) {
   for ( U32 kill = 0; kill < 40; ++kill ) {
      std::filesystem::remove( path );
      Process maker( [&]( auto const & say ) {
         say();
         ChipsMapping::make( path, description );
         say();
      } );
      ASSERT_TRUE( maker.says() );
      ::usleep( kill * 500 );
      maker.dies();
      auto const chips = ChipsMapping::open( path, description );
      EXPECT_EQ( chips.has_value(), std::filesystem::exists( path ) );
   }
   std::ofstream( path + ".new", std::ios::app ) << "what such a one has left";
   ChipsMapping::make( path, description );
   EXPECT_EQ( opened().generation(), 2u );
   EXPECT_FALSE( std::filesystem::exists( path + ".new" ) );
}

TEST_F( ChipsOfProcesses, areRefusedToASecondAgentWhateverItWants ) {
   ChipsMapping::make( path, description );
   Process agent( [&]( auto const & say ) {
      auto const chips = opened();
      say();
      ::pause();
   } );
   ASSERT_TRUE( agent.says() );
   auto const refusal = [&]( auto const & what ) -> std::string {
      try {
         what();
      } catch ( ChipsInUse const & refused ) {
         return refused.what();
      }
      return "isn't refused";
   };
   std::string const inUse = path + ": is in use: another agent has these chips";
   EXPECT_EQ( refusal( [&] { opened(); } ), inUse );
   EXPECT_EQ( refusal( [&] { ChipsMapping::make( path, description ); } ), inUse );
   agent.dies();
   EXPECT_EQ( opened().generation(), 3u ) << "those who were refused count for nothing";
}

TEST_F( ChipsOfProcesses, areRefusedToASecondAgentInMemoryToo ) {
   auto const chips = ChipsMapping::makeInMemory( description );
   try {
      ChipsMapping::of( chips.file(), description );
      FAIL() << "two have them";
   } catch ( ChipsInUse const & refused ) {
      EXPECT_STREQ( refused.what(), "the chips in memory: is in use: another agent has these chips" );
   }
   EXPECT_EQ( chips.generation(), 1u );
}

TEST_F( ChipsOfProcesses, areFreeWhenTheirAgentIsGoneThoughACopyOfItStays ) {
   ChipsMapping::make( path, description );
   pid_t copy = 0;
   {
      int ends[2];
      ASSERT_EQ( ::pipe( ends ), 0 );
      Process agent( [&]( auto const & say ) {
         auto const chips = opened();
         pid_t const child = ::fork();
         if ( child == 0 ) {
            ::pause();
         }
         EXPECT_EQ( ::write( ends[1], &child, sizeof child ), static_cast< ssize_t >( sizeof child ) );
         say();
         ::pause();
      } );
      ASSERT_TRUE( agent.says() );
      ASSERT_EQ( ::read( ends[0], &copy, sizeof copy ), static_cast< ssize_t >( sizeof copy ) );
      EXPECT_TRUE( isInUse() );
      ::close( ends[0] );
      ::close( ends[1] );
   }
   EXPECT_FALSE( isInUse() );
   ::kill( copy, SIGKILL );
}

// A copy that answers a question looks at one moment, and may try things out.
TEST_F( ChipsOfProcesses, areCopiedWithTheProcess ) {
   auto const chips = ChipsMapping::make( path, description );
   Chip chip = chipOf( chips );
   auto const & range = addressMap( chipKind ).ranges()[0];
   SchanAddress const at{ range.base, range.blocks[0] >> 8, range.blocks[0] & 0xff };
   auto const write = [&]( U32 value ) { chip.write( at, std::vector< U32 >( range.width, value ) ); };
   auto const value = [&] { return chip.entry( at ).words()[0]; };
   write( one );
   auto const unchanged =
      std::vector< U32 >( chips.expected( FapId( 0 ) ).words.begin(), chips.expected( FapId( 0 ) ).words.end() );
   int ends[2];
   ASSERT_EQ( ::pipe( ends ), 0 );
   Process copy( [&]( auto const & say ) {
      char letter = 0;
      EXPECT_EQ( ::read( ends[0], &letter, 1 ), 1 );
      bool const isOfThatMoment = value() == one && std::ranges::equal( unchanged, chips.expected( FapId( 0 ) ).words );
      write( 5 );
      pid_t const further = ::fork();
      if ( further == 0 ) {
         ::_exit( value() == 5 ? 0 : 1 );
      }
      int status = 0;
      ::waitpid( further, &status, 0 );
      if ( isOfThatMoment && status == 0 ) {
         say();
      }
   } );
   write( two );
   ASSERT_EQ( ::write( ends[1], "!", 1 ), 1 );
   EXPECT_TRUE( copy.says() );
   EXPECT_EQ( value(), two );
   EXPECT_EQ( ::close( ends[0] ) + ::close( ends[1] ), 0 );
}

} // namespace
