// What an interface's model tells: whether it has its MTU, and why not.
#include "inspection/InterfaceModel.h"
#include "inspection/InterfacePaths.h"

#include <algorithm>
#include <set>

namespace Inspection {

using namespace InterfacePaths;

U32 InterfaceModel::numberAt( Value const * of, char const * attribute, U32 otherwise ) const {
   auto const * const value = memberOf( of, attribute );
   return value && value->integer() ? static_cast< U32 >( *value->integer() ) : otherwise;
}

U32 InterfaceModel::l3MtuOf( Value const * config ) const {
   if ( U32 const own = numberAt( config, "mtu", 0 ) ) {
      return own;
   }
   bool const hasGlobal = isTrue( at( capability ), "globalL3MtuSupported", true );
   U32 const global = hasGlobal ? numberAt( at( globalConfig ), "l3Mtu", defaultL3Mtu ) : 0;
   return global ? global : defaultL3Mtu;
}

std::string InterfaceModel::since( std::string const & what ) const {
   auto const found = lastEvent_.find( what );
   return found == lastEvent_.end() ? "" : " (event " + std::to_string( found->second ) + ")";
}

std::string InterfaceModel::whyNotServed() const {
   if ( !isThere( at( configs ) ) || !isThere( at( statuses ) ) ) {
      return "it is not served: the directories of interfaces are not there";
   }
   if ( !isThere( at( configPath() ) ) ) {
      return "it is not served: it has no configuration";
   }
   auto const * const all = at( ports );
   for ( auto const & [number, port] : all && all->object() ? *all->object() : Value::Object() ) {
      if ( textOf( memberOf( &port, "intfId" ) ) == name_ ) {
         return isTrue( &port, "active", false )
                   ? "it is not served: its port " + number + " was not told of anew since it could be"
                   : "it is not served: its port " + number + " is not active";
      }
   }
   return "it is not served: no port has it" + since( "port" );
}

std::string InterfaceModel::whoIsBehind( U32 mtu ) const {
   auto const isOther = [&]( std::string const & path ) {
      auto const * const it = at( path );
      return isThere( it ) && numberAt( it, "mtu", 0 ) != mtu;
   };
   if ( isOther( statusPath() ) || isOther( locals + "/" + name_ ) ) {
      return name_;
   }
   auto const * const all = at( subInterfaces );
   for ( auto const & [name, status] : all && all->object() ? *all->object() : Value::Object() ) {
      if ( textOf( memberOf( &status, "parentIntfId" ) ) == name_ && isOther( subInterfaces + "/" + name ) ) {
         return name;
      }
   }
   return {};
}

InterfaceStory InterfaceModel::story() const {
   auto const * const now = at( configPath() );
   auto const * const followed = isServed_ && replacedConfig_ ? &*replacedConfig_ : now;
   auto const * const status = at( statusPath() );
   auto const known = names();
   std::string const & asked = subInterface_.empty() ? name_ : subInterface_;
   InterfaceStory story{ .isKnown = std::ranges::find( known, asked ) != known.end(),
                         .parent = subInterface_.empty() ? "" : name_,
                         .isServed = isServed_,
                         .isActive = numberAt( at( slice ), "smMode", activeMode ) == activeMode,
                         .isConfigured = isThere( now ),
                         .configuredMtu = numberAt( now, "mtu", 0 ),
                         .globalMtu = numberAt( at( globalConfig ), "l3Mtu", defaultL3Mtu ),
                         .l3Mtu = l3MtuOf( now ) };
   if ( isThere( status ) ) {
      story.statusMtu = numberAt( status, "mtu", 0 );
   }
   std::string behind = whoIsBehind( story.l3Mtu );
   if ( !subInterface_.empty() ) {
      auto const * const own = at( subInterfaces + "/" + subInterface_ );
      story.statusMtu = isThere( own ) ? std::optional( numberAt( own, "mtu", 0 ) ) : std::nullopt;
      behind = story.statusMtu == story.l3Mtu ? "" : subInterface_;
   }
   story.hasItsMtu = isServed_ && isThere( status ) && behind.empty();
   if ( story.hasItsMtu ) {
      return story;
   }
   if ( !isServed_ ) {
      story.reasons.push_back( whyNotServed() );
   }
   if ( !story.isActive ) {
      story.reasons.push_back( "the slice is not the active one" + since( "smMode" ) );
   }
   if ( isServed_ && !hadStatus_ ) {
      story.reasons.emplace_back( "it had no status when it came into service" );
   } else if ( isServed_ && isStatusReplaced_ ) {
      story.reasons.push_back( "its status was replaced or taken away while it was served" + since( "status" ) +
                               ": the machine keeps to the one before" );
   }
   if ( isThere( followed ) && !isTrue( followed, "enabled", true ) ) {
      story.reasons.push_back( "the interface is not enabled" + since( "enabled" ) );
   }
   if ( isServed_ && replacedConfig_ ) {
      story.reasons.push_back( "its configuration was replaced while it was served" + since( "replaced" ) +
                               ": the machine keeps to the one before, whose L3 MTU is " +
                               std::to_string( l3MtuOf( followed ) ) );
   }
   if ( story.reasons.empty() ) {
      story.reasons.push_back( "the MTU hasn't reached " + ( behind.empty() ? name_ : behind ) + " yet" );
   }
   return story;
}

std::vector< std::string > InterfaceModel::names() const {
   std::set< std::string > all;
   for ( std::string const & root : { configs, statuses, locals, subInterfaces } ) {
      auto const * const it = at( root );
      for ( auto const & entry : it && it->object() ? *it->object() : Value::Object() ) {
         if ( isThere( &entry.second ) || entry.first == name_ ) {
            all.insert( entry.first );
         }
      }
   }
   auto const * const it = at( ports );
   for ( auto const & port : it && it->object() ? *it->object() : Value::Object() ) {
      if ( std::string const name = textOf( memberOf( &port.second, "intfId" ) ); !name.empty() ) {
         all.insert( name );
      }
   }
   return { all.begin(), all.end() };
}

} // namespace Inspection
