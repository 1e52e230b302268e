// Reads the table of rooms in docs/architecture.md and every include of the tree: an include runs from a room to one
// that the table allows it, and the table allows only rooms above its own line. So no arrow runs back.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

using Names = std::set< std::string >;

struct Room {
   std::string folder;
   Names uses; // folders; "everything" allows all
};

// The lines of the table: | `platform/corvo` | what is in it | `platform/assert` … |
std::vector< Room > roomsOf( std::istream & document ) {
   std::vector< Room > rooms;
   for ( std::string line; std::getline( document, line ); ) {
      std::vector< std::string > cells;
      std::istringstream in( line );
      for ( std::string cell; std::getline( in, cell, '|' ); ) {
         cells.push_back( cell );
      }
      if ( !line.starts_with( "| `" ) || cells.size() != 4 ) {
         continue;
      }
      auto const names = []( std::string const & cell ) {
         Names found;
         for ( auto from = cell.find( '`' ); from != std::string::npos; from = cell.find( '`', from + 1 ) ) {
            auto const to = cell.find( '`', from + 1 );
            found.insert( cell.substr( from + 1, to - from - 1 ) );
            from = to;
         }
         return found;
      };
      rooms.push_back( { *names( cells[1] ).begin(), names( cells[3] ) } );
      if ( cells[3].find( "everything" ) != std::string::npos ) {
         rooms.back().uses.insert( "everything" );
      }
   }
   return rooms;
}

bool liesIn( std::string const & path, std::string const & folder ) {
   return path.starts_with( folder + "/" );
}

// The includes of a source, as they stand between the quotes or the brackets. What a generator writes out, in raw
// string literals, is not its own.
std::vector< std::string > includesOf( std::istream & source ) {
   std::vector< std::string > includes;
   bool inLiteral = false;
   for ( std::string line; std::getline( source, line ); ) {
      if ( !inLiteral && line.starts_with( "#include " ) ) {
         includes.push_back( line.substr( 9, line.find_first_of( "\">", 10 ) - 8 ) );
      }
      auto const opens = line.rfind( "R\"" );
      auto const closes = line.rfind( ")\"" );
      if ( closes != std::string::npos ) {
         inLiteral = false;
      }
      if ( opens != std::string::npos && ( closes == std::string::npos || closes < opens ) ) {
         inLiteral = true;
      }
   }
   return includes;
}

class Tree {
 public:
   Tree( fs::path root, std::vector< Room > rooms ) : root_( std::move( root ) ), rooms_( std::move( rooms ) ) {}

   // One line for each thing that is wrong, sorted.
   Names faults() const {
      Names all;
      for ( size_t i = 0; i < rooms_.size(); ++i ) {
         for ( auto const & used : rooms_[i].uses ) {
            auto const above =
               std::any_of( rooms_.begin(), rooms_.begin() + static_cast< int >( i ), [&]( auto & room ) {
                  return room.folder == used || liesIn( room.folder, used );
               } );
            if ( !above && used != "everything" ) {
               all.insert( rooms_[i].folder + " may use " + used + ", which doesn't stand above it" );
            }
         }
      }
      for ( auto const & entry : fs::directory_iterator( root_ ) ) {
         auto const folder = entry.path().filename().string();
         if ( entry.is_directory() && folder != "build" && !folder.starts_with( "." ) ) {
            for ( auto const & below : fs::recursive_directory_iterator( entry ) ) {
               if ( below.path().extension() == ".h" || below.path().extension() == ".cpp" ) {
                  sourceFaults( fs::relative( below.path(), root_ ), all );
               }
            }
         }
      }
      return all;
   }

 private:
   // The room in which a file lies, or null.
   Room const * roomOf( std::string const & file ) const {
      auto const found = std::ranges::find_if( rooms_, [&]( auto & room ) { return liesIn( file, room.folder ); } );
      return found == rooms_.end() ? nullptr : &*found;
   }

   // The file of the tree that an include names, or nothing: looked for where the build has the compiler look.
   std::string target( fs::path const & from, std::string const & name ) const {
      for ( auto const & folder :
            { from.parent_path(), fs::path(), fs::path( "platform" ), fs::path( "tests" ), plugin } ) {
         if ( fs::exists( root_ / folder / name ) ) {
            return ( folder / name ).lexically_normal().string();
         }
      }
      return {};
   }

   void sourceFaults( fs::path const & file, Names & all ) const {
      auto const * room = roomOf( file.string() );
      if ( !room ) {
         all.insert( file.string() + " lies in no room of the table" );
         return;
      }
      std::ifstream source( root_ / file );
      for ( auto const & include : includesOf( source ) ) {
         auto const name = include.substr( 1, include.size() - 2 );
         auto const what = file.string() + " includes " + include;
         auto const reached = target( file, name );
         if ( reached.empty() ) {
            bool const standard = include[0] == '<' && name.find_first_of( "./" ) == std::string::npos;
            if ( !standard && ( include[0] == '"' || liesIn( file.string(), plugin.string() ) ) ) {
               all.insert( what + ", which is neither in the tree nor of the standard library" );
            }
         } else if ( auto const allowed =
                        [&]( auto & used ) { return used == "everything" || liesIn( reached, used ); };
                     !liesIn( reached, room->folder ) && std::ranges::none_of( room->uses, allowed ) ) {
            all.insert( what + ", which " + room->folder + " may not use" );
         }
      }
   }

   inline static fs::path const plugin = "DaceL3Unicast/DaceFapNiPlugin";
   fs::path root_;
   std::vector< Room > rooms_;
};

Names treeFaults( fs::path const & root ) {
   std::ifstream document( root / "docs" / "architecture.md" );
   return Tree( root, roomsOf( document ) ).faults();
}

TEST( IncludeOrder, NoIncludeRunsAgainstTheTableOfRooms ) {
   EXPECT_EQ( treeFaults( L3SM_SOURCE_DIR ), Names{} );
}

TEST( IncludeOrder, EveryArrowBackIsFound ) {
   fs::path const root = fs::path( testing::TempDir() ) / ( "rooms-by-includes-" + std::to_string( getpid() ) );
   fs::remove_all( root );
   auto const file = [&]( fs::path const & path, std::string const & text ) {
      fs::create_directories( ( root / path ).parent_path() );
      std::ofstream( root / path ) << text;
   };
   file( "docs/architecture.md",
         "| `platform/low` | words | – |\n| `platform/high` | words | `platform/low` |\n"
         "| `DaceL3Unicast` | words | `platform` |\n| `door` | words | `platform`, `cellar` |\n| `tests` | | "
         "everything |\n" );
   file( "platform/low/Low.h", "#include <vector>\n#include <sys/wait.h>\n" );
   file( "platform/low/Bad.h", "#include \"high/High.h\"\n" );
   file( "platform/high/High.h", "#include \"low/Low.h\"\n#include \"high/Other.h\"\n" );
   file( "DaceL3Unicast/DaceFapNiPlugin/Plug.h",
         "#include \"high/High.h\"\n#include <sys/wait.h>\n#include <array>\n" );
   file( "door/Door.h", "#include \"DaceL3Unicast/DaceFapNiPlugin/Plug.h\"\n" );
   file( "door/Writer.cpp", "auto text = R\"(\n#include \"nowhere.h\"\n)\";\n" );
   file( "tests/Test.cpp", "#include \"Plug.h\"\n#include \"door/Door.h\"\n" );
   file( "attic/Attic.h", "" );

   EXPECT_EQ(
      treeFaults( root ),
      ( Names{
         "DaceL3Unicast/DaceFapNiPlugin/Plug.h includes <sys/wait.h>, which is neither in the tree nor of the "
         "standard library",
         "attic/Attic.h lies in no room of the table",
         "door may use cellar, which doesn't stand above it",
         "door/Door.h includes \"DaceL3Unicast/DaceFapNiPlugin/Plug.h\", which door may not use",
         "platform/high/High.h includes \"high/Other.h\", which is neither in the tree nor of the standard library",
         "platform/low/Bad.h includes \"high/High.h\", which platform/low may not use",
      } ) );
   fs::remove_all( root );
}

} // namespace
