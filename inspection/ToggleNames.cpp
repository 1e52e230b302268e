#include "inspection/ToggleNames.h"

#include "inspection/KnownToggles.h"
#include "inspection/files/InputError.h"
#include "rex/Nearest.h"

#include <algorithm>
#include <set>
#include <vector>

namespace Inspection {

namespace {

struct Name {
   std::string file;
   std::string name;
};

std::vector< Name > everyToggle() {
   std::vector< Name > all;
   for ( auto const & toggle : knownToggles() ) {
      all.push_back( { std::string( toggle.file ), std::string( toggle.name ) } );
   }
   for ( auto const & toggle : Toggle::declared() ) {
      all.push_back( { toggle.file, toggle.name } );
   }
   return all;
}

std::string oneOf( std::string const & wanted, std::vector< std::string > const & among ) {
   auto const near = Rex::didYouMean( wanted, among );
   return near.empty() ? "; `l3sm toggles` lists them" : near;
}

} // namespace

std::string wrongToggleFile( std::string const & file ) {
   std::set< std::string > files;
   for ( auto const & toggle : everyToggle() ) {
      files.insert( toggle.file );
   }
   return files.contains( file ) ? ""
                                 : "no toggle is read from this file" + oneOf( file, { files.begin(), files.end() } );
}

std::string wrongToggle( std::string const & file, std::string const & name ) {
   std::vector< std::string > names;
   std::string elsewhere;
   for ( auto const & toggle : everyToggle() ) {
      if ( toggle.name == name && toggle.file == file ) {
         return {};
      }
      names.push_back( toggle.name );
      elsewhere = toggle.name == name ? toggle.file : elsewhere;
   }
   return elsewhere.empty() ? "there is no such toggle" + oneOf( name, names )
                            : "this toggle is read from " + elsewhere;
}

void toggleIs( Toggle::Settings & toggles, std::string const & text ) {
   auto const colon = text.find( ':' );
   auto const equals = text.rfind( '=' );
   auto const state = equals == std::string::npos ? "" : text.substr( equals + 1 );
   bool const hasForm = colon != std::string::npos && colon > 0 && equals != std::string::npos && equals > colon + 1;
   if ( !hasForm || ( state != "on" && state != "off" ) ) {
      throw InputError( "--toggle " + text,
                        "expected FILE:NAME=on or FILE:NAME=off, as in Dace.json:ArmOrderedSwTable=off" );
   }
   auto const file = text.substr( 0, colon );
   auto const name = text.substr( colon + 1, equals - colon - 1 );
   if ( auto const wrong = wrongToggle( file, name ); !wrong.empty() ) {
      throw InputError( "--toggle " + text, wrong );
   }
   toggles[file][name] = state == "on";
}

} // namespace Inspection
