#include "inspection/files/Json.h"
#include "inspection/views/PathsText.h"
#include "l3sm/verbs/Verbs.h"

#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

struct PathsOptions {
   std::string path;
   bool json = false;
};

int answer( PathsOptions const & options ) {
   std::vector< StatePath const * > paths;
   if ( options.path.empty() ) {
      for ( StatePath const & path : statePaths() ) {
         paths.push_back( &path );
      }
   } else {
      paths = statePathsNamed( options.path );
   }
   if ( options.json ) {
      std::cout << toJson( pathsValue( paths ), 4 ) << '\n';
      return 0;
   }
   auto const style = Style::of( std::cout );
   if ( options.path.empty() ) {
      listPaths( std::cout, paths, style );
      std::cout << "\n`l3sm paths PATH` tells what its attributes take, their defaults, and who hears of them\n";
      return 0;
   }
   for ( StatePath const * path : paths ) {
      std::cout << ( path == paths.front() ? "" : "\n" );
      showPath( std::cout, *path, style );
   }
   return 0;
}

} // namespace

Action definePaths( VerbOptions & verb ) {
   auto const options = std::make_shared< PathsOptions >();
   verb.text( "PATH", options->path, "tell everything of this path, or of all that begin so; without it, list all" );
   verb.flag( "--json", options->json, "for programs" );
   return [options] { return answer( *options ); };
}

} // namespace Cli
