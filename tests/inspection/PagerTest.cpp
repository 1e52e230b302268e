// What is longer than the screen goes through the pager that the environment names; what it can't show is shown as it
// is. Each in a child process, whose standard output is a terminal of five rows.
#include "inspection/views/Pager.h"
#include "inspection/Play.h"
#include "inspection/views/Terminal.h"

#include "Folder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <iostream>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

using namespace Inspection;

// A terminal, whose other end this process holds.
class Screen {
 public:
   Screen() : other_( ::posix_openpt( O_RDWR | O_NOCTTY ) ) {
      ::grantpt( other_ );
      ::unlockpt( other_ );
   }
   ~Screen() { ::close( other_ ); }
   bool isThere() const { return other_ >= 0; }
   Screen( Screen const & ) = delete;
   Screen & operator=( Screen const & ) = delete;

   // Standard output from here on.
   void begins() const {
      int const terminal = ::open( ::ptsname( other_ ), O_RDWR | O_NOCTTY );
      winsize const size{ .ws_row = 5, .ws_col = 77, .ws_xpixel = 0, .ws_ypixel = 0 };
      ::ioctl( terminal, TIOCSWINSZ, &size );
      ::dup2( terminal, STDOUT_FILENO );
   }
   // What it shows up to a last line that was written; a terminal passes on what it likes at a time.
   std::string textUpTo( std::string const & last ) const {
      constexpr int patience = 10000; // milliseconds, where the line doesn't come
      std::string all;
      pollfd shows{ .fd = other_, .events = POLLIN, .revents = 0 };
      while ( !all.ends_with( last + "\r\n" ) && ::poll( &shows, 1, patience ) == 1 ) {
         char text[4096];
         auto const size = ::read( other_, text, sizeof text );
         if ( size <= 0 ) {
            break;
         }
         all.append( text, static_cast< std::size_t >( size ) );
      }
      return all;
   }

 private:
   int other_;
};

void writeLines( int count ) {
   for ( int line = 1; line <= count; ++line ) {
      std::cout << "line " << line << '\n';
   }
}

// What a terminal shows of so many lines, and what the pager got.
struct Paged {
   std::string shown;
   std::string paged;
};
Paged pagedLines( int count, std::string const & pager ) {
   Folder const folder;
   Child const child = inChild( [&]( std::ostream & out ) {
      Screen const screen;
      screen.begins();
      ::setenv( "PAGER", ( pager.empty() ? "cat >'" + folder / "paged" + "'" : pager ).c_str(), 1 );
      {
         Pager const held;
         writeLines( count );
      }
      std::cout << "behind" << std::endl;
      out << screen.textUpTo( "behind" );
   } );
   EXPECT_TRUE( child.isFine ) << child.errors;
   return { child.output, folder.text( "paged" ) };
}

struct PagerTest : testing::Test {
   void SetUp() override {
      if ( !Screen().isThere() ) {
         GTEST_SKIP() << "there is no terminal to be had";
      }
   }
};

TEST_F( PagerTest, getsWhatIsLongerThanTheScreen ) {
   auto const paged = pagedLines( 6, "" );
   EXPECT_EQ( paged.paged, "line 1\nline 2\nline 3\nline 4\nline 5\nline 6\n" );
   EXPECT_EQ( paged.shown, "behind\r\n" );
}

TEST_F( PagerTest, isLeftOutWhereTheScreenIsLongEnough ) {
   auto const paged = pagedLines( 2, "" );
   EXPECT_EQ( paged.paged, "" );
   EXPECT_EQ( paged.shown, "line 1\r\nline 2\r\nbehind\r\n" );
}

TEST_F( PagerTest, isLeftOutWhereThereIsNone ) {
   EXPECT_EQ( pagedLines( 5, "/nowhere/pager 2>/dev/null" ).shown,
              "line 1\r\nline 2\r\nline 3\r\nline 4\r\nline 5\r\nbehind\r\n" );
}

TEST_F( PagerTest, isLeftOutWhereItIsSwitchedOff ) {
   Child const child = inChild( []( std::ostream & out ) {
      ::setenv( "PAGER", "more", 1 );
      out << Pager::commandFor( 6, 5 ) << ", ";
      Pager::off();
      out << Pager::commandFor( 6, 5 );
   } );
   EXPECT_EQ( child.output, "more, " );
}

TEST_F( PagerTest, isLeftOutWhereTheProcessFails ) {
   Child const child = inChild( []( std::ostream & out ) {
      Screen const screen;
      screen.begins();
      ::setenv( "PAGER", "false", 1 );
      Pager const held;
      writeLines( 6 );
      Pager::letThrough();
      std::cout << "behind" << std::endl;
      out << screen.textUpTo( "behind" );
   } );
   EXPECT_EQ( child.output, "line 1\r\nline 2\r\nline 3\r\nline 4\r\nline 5\r\nline 6\r\nbehind\r\n" );
}

TEST_F( PagerTest, isOfATerminalWhoseWidthIsThatOfLines ) {
   Child const child = inChild( []( std::ostream & out ) {
      Screen const screen;
      screen.begins();
      ::unsetenv( "COLUMNS" );
      out << lineWidth();
   } );
   EXPECT_EQ( child.output, "77" );
}

} // namespace
