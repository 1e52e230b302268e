// The sources of the plug-in as text, cut into their definitions: where a fact about it stands in the source alone.
//
//    PluginSource const source;
//    source.readersOf( "toggleJ2SRv6Enabled" );     // { "L3Sm::initEnablersVectors", ... }
//
// It goes by the layout that clang-format gives the files: a definition begins in the first column and ends with a
// brace in the first column.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

class PluginSource {
 public:
   struct Definition {
      std::string file;
      std::string name; // as the journal has it, "L3Sm::initIpTraps"; of a table, the table's
      std::string text;
   };

   explicit PluginSource( std::filesystem::path const & folder );

   // Of all files, in alphabetical order, each without its comments.
   struct File {
      std::string name;
      std::string text;
   };
   std::vector< File > const & files() const { return files_; }
   std::vector< Definition > const & definitions() const { return definitions_; }

   // The operations of the plug-in's classes that use a name: by themselves, or through functions and tables of no
   // class.
   std::set< std::string > readersOf( std::string const & name ) const;

 private:
   std::vector< File > files_;
   std::vector< Definition > definitions_;
};
