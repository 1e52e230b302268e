// A file is read at one go, and a name says which: no file of the rooms is longer than what a person takes in, and no
// two of them have the name of one module.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <set>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr char const * rooms[] = { "inspection", "l3sm", "agent", "simulator", "platform" };
constexpr long mostLines = 300;

template< class Visit >
void forEachSource( fs::path const & root, Visit const & visit ) {
   for ( char const * const room : rooms ) {
      for ( auto const & entry : fs::recursive_directory_iterator( root / room ) ) {
         if ( entry.path().extension() == ".h" || entry.path().extension() == ".cpp" ) {
            visit( entry.path() );
         }
      }
   }
}

// "room/File.cpp: 301 lines"
std::set< std::string > longFiles( fs::path const & root ) {
   std::set< std::string > found;
   forEachSource( root, [&]( fs::path const & path ) {
      std::ifstream file( path );
      auto const lines =
         std::count( std::istreambuf_iterator< char >( file ), std::istreambuf_iterator< char >(), '\n' );
      if ( lines > mostLines ) {
         found.insert( fs::relative( path, root ).string() + ": " + std::to_string( lines ) + " lines" );
      }
   } );
   return found;
}

// "agent/Log platform/rex/Log": modules, without the ends of their files, that have one name.
std::set< std::string > sharedNames( fs::path const & root ) {
   std::map< std::string, std::set< std::string > > byName;
   forEachSource( root, [&]( fs::path const & path ) {
      auto const module = fs::relative( path, root ).replace_extension();
      byName[module.filename()].insert( module );
   } );
   std::set< std::string > found;
   for ( auto const & [name, modules] : byName ) {
      std::string all;
      for ( std::string const & module : modules ) {
         all += ( all.empty() ? "" : " " ) + module;
      }
      if ( modules.size() > 1 ) {
         found.insert( all );
      }
   }
   return found;
}

TEST( Files, areShortEnoughToBeReadAtOnce ) {
   EXPECT_EQ( longFiles( L3SM_SOURCE_DIR ), std::set< std::string >() );
}

TEST( Files, haveANameOfTheirOwn ) {
   EXPECT_EQ( sharedNames( L3SM_SOURCE_DIR ), std::set< std::string >() );
}

TEST( Files, areToldWhereTheyAreTooLongOrShareAName ) {
   fs::path const root = fs::path( testing::TempDir() ) / ( "rooms-by-sizes-" + std::to_string( getpid() ) );
   fs::remove_all( root );
   for ( char const * const room : rooms ) {
      fs::create_directories( root / room );
   }
   std::ofstream( root / "agent/Log.h" ) << std::string( 300, '\n' );
   std::ofstream( root / "agent/Log.cpp" ) << std::string( 301, '\n' );
   std::ofstream( root / "platform/Log.h" );
   std::ofstream( root / "platform/Notes.txt" ) << std::string( 999, '\n' );
   EXPECT_EQ( longFiles( root ), std::set< std::string >{ "agent/Log.cpp: 301 lines" } );
   EXPECT_EQ( sharedNames( root ), std::set< std::string >{ "agent/Log platform/Log" } );
   fs::remove_all( root );
}

} // namespace
