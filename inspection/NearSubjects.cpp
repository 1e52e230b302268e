#include "inspection/NearSubjects.h"

#include "inspection/NamesAsTyped.h"
#include "rex/Nearest.h"

#include <algorithm>
#include <cctype>

namespace Inspection {

namespace {

using Names = std::vector< std::string >;

std::string inSmallLetters( std::string text ) {
   std::ranges::transform( text, text.begin(), []( unsigned char letter ) { return std::tolower( letter ); } );
   return text;
}

// Whatever can be asked about by one name alone.
Names allNames( Names const & functions ) {
   Names names = tableNames();
   names.insert( names.end(), functions.begin(), functions.end() );
   for ( StatePath const & path : statePaths() ) {
      if ( !path.hasKey() ) {
         names.push_back( path.path );
      }
   }
   return names;
}

} // namespace

std::vector< StatePath const * > pathsWith( std::string const & attribute ) {
   std::vector< StatePath const * > found;
   for ( StatePath const & path : statePaths() ) {
      auto const isNamed = [&]( StateAttribute const & it ) { return it.attribute->name == attribute; };
      if ( std::ranges::any_of( path.attributes, isNamed ) ) {
         found.push_back( &path );
      }
   }
   return found;
}

std::string remedyOf( std::string const & typed, Names const & functions ) {
   if ( typed == "control" || typed == "controls" ) {
      return "; a control is said as in control.64";
   }
   if ( std::isdigit( static_cast< unsigned char >( typed.back() ) ) &&
        std::islower( static_cast< unsigned char >( typed.front() ) ) ) {
      std::string name = typed; // of an interface
      name.front() = static_cast< char >( std::toupper( static_cast< unsigned char >( name.front() ) ) );
      return "; did you mean \"" + name + "\"?";
   }
   Names const names = allNames( functions );
   constexpr std::size_t shortest = 3; // what is shorter is in too many of them
   if ( typed.size() >= shortest ) {
      Names within;
      std::ranges::copy_if(
         names, std::back_inserter( within ), [small = inSmallLetters( typed )]( auto const & name ) {
            return inSmallLetters( name ).find( small ) != std::string::npos;
         } );
      if ( !within.empty() ) {
         return within.size() == 1 ? "; did you mean \"" + within.front() + "\"?" : "; there is " + listed( within, 3 );
      }
   }
   Names near = names;
   for ( std::string const & function : functions ) {
      near.push_back( function.substr( function.rfind( ':' ) + 1 ) );
   }
   for ( StatePath const & path : statePaths() ) {
      for ( StateAttribute const & attribute : path.attributes ) {
         near.emplace_back( attribute.attribute->name );
      }
   }
   std::string const nearest = Rex::nearest( typed, near );
   auto const paths = pathsWith( nearest );
   return paths.empty() ? Rex::didYouMean( typed, near )
                        : "; did you mean \"" + paths.front()->path + "." + nearest + "\"?";
}

} // namespace Inspection
