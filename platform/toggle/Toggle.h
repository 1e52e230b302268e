// The toggle service: switches that are set from outside, in JSON files of a folder.
//
// A file is an object of toggle names and booleans: {"ArmOrderedSwTable": false}. A missing folder, file or entry means
// the default. A reader caches what it got, so a toggle has one value for the life of a process.
//
// Threading: any thread may read; the settings are made before the first reader starts.
#pragma once

#include <map>
#include <string>
#include <vector>

// The state of a toggle. `file` is the file's name in the folder of the toggle files.
bool getToggleState( char const * name, char const * file, bool defaultState );

namespace Toggle {

// file, then name
using Settings = std::map< std::string, std::map< std::string, bool > >;

// Takes the place of what was set before. A toggle that was read already with another outcome can't be changed any
// more: throws std::logic_error, naming it.
void settingsIs( Settings const & settings );
Settings const & settings();

// Reads the toggle files of a folder (every *.json in it). Throws std::runtime_error with "FILE:LINE: ", or "FILE: "
// and the toggle where there is no line, and what is wrong.
Settings readFolder( std::string const & folder );

// A toggle that was read in this process, in the order of the first reading.
struct Reading {
   std::string name;
   std::string file;
   bool state;
   bool defaultState;
};
std::vector< Reading > const & readings();

// A toggle that a library tells of when it is loaded, so that those who set it can be told of a misspelt name:
//
//    static Toggle::Declared const mine{ "MyFeature", "Mine.json" };
struct Declared {
   std::string name;
   std::string file;
   Declared( std::string toggleName, std::string toggleFile );
};
std::vector< Declared > const & declared();

} // namespace Toggle
