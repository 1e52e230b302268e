#include "toggle/Toggle.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <mutex>
#include <nlohmann/json.hpp>
#include <stdexcept>

namespace Toggle {

namespace {

struct State {
   std::mutex mutex;
   Settings settings;
   std::vector< Reading > readings;
   std::vector< Declared > declared;
};

State & state() {
   static auto * theState = new State; // toggles may still be read while static objects go
   return *theState;
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
   std::string const text( std::istreambuf_iterator< char >( in ), {} );
   std::map< std::string, bool > toggles;
   try {
      auto const object = nlohmann::json::parse( text );
      if ( !object.is_object() ) {
         throw std::runtime_error( path.string() + ":1: expected an object of toggle names and booleans" );
      }
      for ( auto const & [name, value] : object.items() ) {
         if ( !value.is_boolean() ) {
            throw std::runtime_error( path.string() + ": expected true or false for " + name + ", got " +
                                      value.dump() );
         }
         toggles[name] = value.get< bool >();
      }
   } catch ( nlohmann::json::parse_error const & error ) {
      auto const end = text.begin() + static_cast< std::ptrdiff_t >( std::min( error.byte, text.size() ) );
      auto const line = 1 + std::count( text.begin(), end, '\n' );
      throw std::runtime_error( path.string() + ":" + std::to_string( line ) + ": this is not JSON" );
   }
   return toggles;
}

} // namespace

void settingsIs( Settings const & settings ) {
   auto & the = state();
   std::lock_guard const lock( the.mutex );
   for ( auto const & reading : the.readings ) {
      if ( stateOf( settings, reading.name, reading.file, reading.defaultState ) != reading.state ) {
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

Declared::Declared( std::string toggleName, std::string toggleFile )
   : name( std::move( toggleName ) ), file( std::move( toggleFile ) ) {
   state().declared.push_back( *this );
}

std::vector< Declared > const & declared() {
   return state().declared;
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
      the.readings.push_back( { name, file, result, defaultState } );
   }
   return result;
}
