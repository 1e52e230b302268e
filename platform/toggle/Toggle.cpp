#include "toggle/Toggle.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <nlohmann/json.hpp>
#include <stdexcept>

namespace Toggle {

namespace {

struct State {
   std::mutex mutex;
   Settings settings;
   std::vector< Reading > readings;
};

State & state() {
   static State theState;
   return theState;
}

bool stateOf( Settings const & settings, std::string const & name, std::string const & file, bool defaultState ) {
   auto const inFile = settings.find( file );
   if ( inFile == settings.end() ) {
      return defaultState;
   }
   auto const found = inFile->second.find( name );
   return found == inFile->second.end() ? defaultState : found->second;
}

std::map< std::string, bool > readFile( std::filesystem::path const & path ) {
   std::ifstream in( path );
   try {
      return nlohmann::json::parse( in ).get< std::map< std::string, bool > >();
   } catch ( nlohmann::json::exception const & error ) {
      throw std::runtime_error( path.string() + ": expected an object of toggle names and booleans: " + error.what() );
   }
}

} // namespace

void settingsIs( Settings const & settings ) {
   auto & the = state();
   std::lock_guard const lock( the.mutex );
   for ( auto const & reading : the.readings ) {
      // The default that the reader gave is not known any more; what it got is, and that is what must stay true.
      if ( stateOf( settings, reading.name, reading.file, reading.state ) != reading.state ) {
         throw std::logic_error( "toggle " + reading.name + " of " + reading.file +
                                 " was read already in this process and can't change any more" );
      }
   }
   the.settings = settings;
}

Settings const & settings() {
   return state().settings;
}

Settings readFolder( std::string const & folder ) {
   Settings settings;
   std::error_code none;
   for ( auto const & entry : std::filesystem::directory_iterator( folder, none ) ) {
      if ( entry.path().extension() != ".json" ) {
         continue;
      }
      settings[entry.path().filename()] = readFile( entry.path() );
   }
   return settings;
}

std::vector< Reading > const & readings() {
   return state().readings;
}

} // namespace Toggle

bool getToggleState( char const * name, char const * file, bool defaultState ) {
   auto & the = Toggle::state();
   std::lock_guard const lock( the.mutex );
   bool const result = Toggle::stateOf( the.settings, name, file, defaultState );
   bool const known = std::any_of( the.readings.begin(), the.readings.end(), [&]( Toggle::Reading const & reading ) {
      return reading.name == name && reading.file == file;
   } );
   if ( !known ) {
      the.readings.push_back( { name, file, result } );
   }
   return result;
}
