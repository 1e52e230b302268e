// Commands typed one after the other in a folder of their own, and what they answer, to the letter.
//
//    Session const session( "." );                        // the examples of the tree stand in the folder itself
//    session.play( "l3sm run urpf-and-ip-traps.json" );   // "$ l3sm run ...\nuRPF fail-forward ...\n"
//
// Below a command stand its output and what it says on standard error, and its exit status where that isn't 0. Line
// numbers of the source are written as `N`: they change with every edit of a file.
#pragma once

#include "BuildFolder.h"
#include "l3sm/Command.h"

#include <regex>

class Session {
 public:
   // Where in the folder the examples stand.
   explicit Session( std::string const & examples ) : folder( newFolder() ) {
      std::filesystem::path const source = L3SM_SOURCE_DIR;
      std::filesystem::create_directories( folder / examples );
      for ( auto const & example : std::filesystem::directory_iterator( source / "examples" ) ) {
         if ( example.path().extension() == ".json" ) {
            std::filesystem::copy_file( example.path(), folder / examples / example.path().filename() );
         }
      }
   }
   Session( Session const & ) = delete;
   Session & operator=( Session const & ) = delete;
   ~Session() { std::filesystem::remove_all( folder ); }

   // The command's line, and below it what it answered.
   std::string play( std::string const & command ) const {
      std::string const line = "ulimit -c 0; cd '" + folder.string() + "' && PATH='" + buildFolder() +
                               "/bin':$PATH && unset COLUMNS && { " + command + "\n} </dev/null >.answer 2>&1";
      int const status = WEXITSTATUS( std::system( line.c_str() ) );
      std::string answer = "$ " + command + "\n" + withoutMachine( contentsOf( folder / ".answer" ) );
      answer += status == 0 ? "" : "[" + std::to_string( status ) + "]\n";
      return answer;
   }

   // Line numbers move, a compiler cache may have the compiler see the sources from the build folder, and each machine
   // has the program in a place of its own.
   static std::string withoutMachine( std::string const & text ) {
      static std::regex const number( R"((\.cpp):\d+ *( |\n|"|:|$))" );
      static std::regex const fromBuildFolder( R"(\.\./\.\./(DaceL3Unicast/))" );
      static std::regex const prefix( std::regex_replace( buildFolder(), std::regex( R"([.+])" ), R"(\$&)" ) );
      std::string out = std::regex_replace( text, number, "$1:N$2" );
      out = std::regex_replace( out, fromBuildFolder, "$1" );
      return std::regex_replace( out, prefix, "/usr" );
   }

   std::filesystem::path const folder;
};
