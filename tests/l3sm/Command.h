// Runs the program as a person would, in a folder of its own, and keeps what it said.
//
//    Command const l3sm( "run scenario.json --quiet", { { "scenario.json", text } } );
//    EXPECT_EQ( l3sm.status, 2 );
//    EXPECT_EQ( l3sm.errors, "l3sm: scenario.json:1: ...\n" );
#pragma once

#include "BuildFolder.h"
#include "Folder.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <sys/wait.h>
#include <vector>

// The scenarios among the examples of the tree, in the order of their names.
inline std::set< std::filesystem::path > exampleScenarios() {
   std::set< std::filesystem::path > all;
   for ( auto const & example : std::filesystem::directory_iterator( L3SM_SOURCE_DIR "/examples" ) ) {
      if ( example.path().extension() == ".json" ) {
         all.insert( example.path() );
      }
   }
   return all;
}

// Their names, without the folder.
inline std::vector< std::string > exampleNames() {
   std::vector< std::string > names;
   for ( auto const & path : exampleScenarios() ) {
      names.push_back( path.stem() );
   }
   return names;
}

// What a test of an example is called, where the example is its parameter.
struct NameOfExample {
   template< class Info >
   std::string operator()( Info const & of ) const {
      std::string name = of.param;
      std::replace( name.begin(), name.end(), '-', '_' );
      return name;
   }
};

class Command {
 public:
   using Files = std::map< std::string, std::string >;

   explicit Command( std::string const & arguments, Files const & files = {} ) : folder( newFolder() ) {
      for ( auto const & [name, text] : files ) {
         std::ofstream( folder / name ) << text;
      }
      std::string const line = "cd '" + folder.string() + "' && '" + buildFolder() + "/bin/l3sm' " + arguments +
                               " </dev/null >.out 2>.errors";
      int const result = std::system( line.c_str() );
      status = WEXITSTATUS( result );
      output = contentsOf( folder / ".out" );
      errors = contentsOf( folder / ".errors" );
   }
   Command( Command const & ) = delete;
   Command & operator=( Command const & ) = delete;
   ~Command() { std::filesystem::remove_all( folder ); }

   bool wrote( std::string const & name ) const { return std::filesystem::exists( folder / name ); }
   std::string file( std::string const & name ) const { return contentsOf( folder / name ); }

   std::filesystem::path const folder;
   int status; // 128 + signal where a signal ended it, as shells say it
   std::string output;
   std::string errors;
};

// A scenario for one FAP that is served; `more` are further members of the object, each with a comma before it.
inline std::string scenarioWith( std::string const & more ) {
   return R"({"name": "one FAP",
 "switch": {"slice": {"name": "Linecard3"},
  "faps": [{"fapId": 0, "cores": 2, "ports": {"1": 10},
            "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}}]},
 "toggles": {"Dace.json": {"ArmOrderedSwTable": false}})" +
          more + "}\n";
}
