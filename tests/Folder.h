// A folder of a test's own, which goes with it.
//
//    Folder const folder;
//    std::string const path = folder.file( "s.json", text );
//    folder.text( "run.jsonl" );
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

inline std::string contentsOf( std::filesystem::path const & path ) {
   std::ostringstream text;
   text << std::ifstream( path ).rdbuf();
   return text.str();
}

inline std::vector< std::string > linesOf( std::string const & text ) {
   std::vector< std::string > lines;
   std::istringstream in( text );
   for ( std::string line; std::getline( in, line ); ) {
      lines.push_back( line );
   }
   return lines;
}

// Whoever makes it removes it.
inline std::filesystem::path newFolder() {
   std::string name = ( std::filesystem::temp_directory_path() / "l3sm-test-" ).string();
   name.append( 6, 'X' ); // which mkdtemp replaces
   return ::mkdtemp( name.data() );
}

class Folder {
 public:
   Folder() : path_( newFolder() ) {}
   ~Folder() { std::filesystem::remove_all( path_ ); }
   Folder( Folder const & ) = delete;
   Folder & operator=( Folder const & ) = delete;

   std::string operator/( std::string const & name ) const { return ( path_ / name ).string(); }
   std::string text( std::string const & name ) const { return contentsOf( path_ / name ); }
   std::string file( std::string const & name, std::string_view text ) const {
      std::ofstream( path_ / name ) << text;
      return *this / name;
   }

 private:
   std::filesystem::path path_;
};
