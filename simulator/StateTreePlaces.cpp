// Where a path leads in the tree.
#include "rex/Nearest.h"
#include "simulator/StateTree.h"

#include <algorithm>
#include <iterator>

namespace Simulator {

using Corvo::Ptr;
using Rex::Attribute;
using Rex::ValueError;

namespace {

// The ways to split `rest` in a head and what follows it, the shortest head first: a key may hold slashes itself.
template< class Visit >
bool anySplit( std::string const & rest, Visit const & visit ) {
   for ( auto at = rest.find( '/' ); at != std::string::npos; at = rest.find( '/', at + 1 ) ) {
      if ( visit( rest.substr( 0, at ), rest.substr( at + 1 ) ) ) {
         return true;
      }
   }
   return visit( rest, std::string() );
}

// The entity under a key, or null; also where the text can't be a key.
Ptr< Rex::Entity > childUnder( Attribute const & attribute, Rex::Entity const & of, std::string const & key ) {
   try {
      return attribute.child( of, key );
   } catch ( ValueError const & ) {
      return nullptr;
   }
}

} // namespace

StateRoot const & StateTree::rootOf( std::string const & path ) {
   static std::vector< std::string > const paths = [] {
      std::vector< std::string > all;
      std::ranges::transform( stateRoots(), std::back_inserter( all ), &StateRoot::path );
      return all;
   }();
   std::size_t longest = paths.size();
   for ( std::size_t root = 0; root < paths.size(); ++root ) {
      std::string const & candidate = paths[root];
      if ( Rex::isAtOrBelow( path, candidate ) &&
           ( longest == paths.size() || candidate.size() > paths[longest].size() ) ) {
         longest = root;
      }
   }
   if ( longest == paths.size() ) {
      auto const near = Rex::didYouMean( path, paths );
      throw ValueError( "/path",
                        "there is no path \"" + path + "\"" + ( near.empty() ? "; `l3sm paths` lists them" : near ) );
   }
   return stateRoots()[longest];
}

bool StateTree::enter( Place & place, Place const & next, std::string const & rest ) {
   Place attempt = next;
   if ( !attempt.entity || !( rest.empty() || descend( attempt, rest ) ) ) {
      return false;
   }
   place = attempt;
   return true;
}

bool StateTree::descend( Place & place, std::string const & rest ) {
   auto const owner = place.entity;
   if ( auto const dir = Corvo::ptrCast< Rex::Dir >( owner ) ) {
      bool const found = anySplit( rest, [&]( std::string const & name, std::string const & tail ) {
         return enter( place, { place.root, dir->entityPtr( name ), owner, name, {} }, tail );
      } );
      if ( !found && dir->elementType() && !rest.empty() && rest.find( '/' ) == std::string::npos ) {
         place = { place.root, nullptr, owner, rest, {} }; // an entry that can be made
         return true;
      }
      return found;
   }
   auto const end = std::min( rest.find( '/' ), rest.size() );
   std::string const name = rest.substr( 0, end );
   std::string const below = rest.substr( std::min( end + 1, rest.size() ) );
   auto const * attribute = owner->typeData().attribute( name );
   if ( !attribute ) {
      return false;
   }
   switch ( attribute->kind ) {
   case Attribute::Kind::entity:
      return enter( place, { place.root, attribute->child( *owner, {} ), owner, name, {} }, below );
   case Attribute::Kind::collection:
      return anySplit( below, [&]( std::string const & key, std::string const & tail ) {
         return enter( place, { place.root, childUnder( *attribute, *owner, key ), owner, name, key }, tail );
      } );
   case Attribute::Kind::scalar:
   case Attribute::Kind::map:
      break;
   }
   return false;
}

StateTree::Place StateTree::find( std::string const & path ) const {
   auto const & root = rootOf( path );
   std::string const rootPath = root.path();
   Place place{ &root, rootEntity( root ), nullptr, {}, {} };
   if ( path.size() > rootPath.size() ) {
      std::string const rest = path.substr( rootPath.size() + 1 );
      if ( !place.entity || !descend( place, rest ) ) {
         throw ValueError( "/path", rootPath + " holds nothing at \"" + rest + "\"" );
      }
   }
   return place;
}

} // namespace Simulator
