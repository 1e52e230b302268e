#include "inspection/views/InterfacesText.h"

#include <algorithm>

namespace Inspection {

namespace {

using One = Interfaces::One;

constexpr std::size_t mostNames = 8; // before the rest is only counted

// "  2 with MTU synced: Ethernet1 9000, Ethernet2 1500"
template< class Remark >
void writeSome( Lines & lines,
                std::string const & what,
                std::vector< One const * > const & some,
                Remark const & remark ) {
   std::vector< std::string > items;
   for ( One const * one : some ) {
      if ( items.size() == mostNames ) {
         items.push_back( "and " + std::to_string( some.size() - mostNames ) + " more" );
         break;
      }
      std::string const more = remark( *one );
      items.push_back( one->name + ( more.empty() ? "" : " " + more ) );
   }
   lines.list(
      2, ( some.empty() ? "none" : std::to_string( some.size() ) ) + " " + what + ( some.empty() ? "" : ":" ), items );
}

template< class Test >
std::vector< One const * > those( std::vector< One const * > const & all, Test const & test ) {
   std::vector< One const * > which;
   std::ranges::copy_if( all, std::back_inserter( which ), [&]( One const * one ) { return test( *one ); } );
   return which;
}

std::string mode( Interfaces const & interfaces ) {
   return interfaces.isActive ? "served, active" : "served, standby";
}

} // namespace

void writeInterfaces( Lines & lines, Interfaces const & interfaces ) {
   if ( interfaces.all.empty() ) {
      return;
   }
   auto const served = interfaces.served();
   lines.title( "Interfaces at the end" );
   writeSome( lines, mode( interfaces ), served, []( One const & ) { return std::string(); } );
   auto const some = [&]( std::string const & what, std::vector< One const * > const & which, auto const & remark ) {
      if ( !which.empty() ) {
         writeSome( lines, what, which, remark );
      }
   };
   some( "with MTU synced", those( served, []( One const & one ) { return one.isSynced; } ), []( One const & one ) {
      return std::to_string( one.mtu );
   } );
   auto const why = []( One const & one ) { return "(" + one.why + ")"; };
   some( "with MTU waiting", those( served, []( One const & one ) { return !one.isSynced; } ), why );
   some( "with another configuration in the directory",
         those( served, []( One const & one ) { return !one.note.empty(); } ),
         []( One const & one ) { return "(" + one.note + ")"; } );
   some( "served outside the managed directories",
         those( served, []( One const & one ) { return !one.isManaged; } ),
         []( One const & ) { return std::string(); } );
   some( "not served", interfaces.unserved(), why );
   lines.blank();
}

void writeEachInterface( Lines & lines, Interfaces const & interfaces ) {
   lines.title( "Interfaces at the end, " + std::string( interfaces.isActive ? "active" : "standby" ) + " slice" );
   if ( interfaces.all.empty() ) {
      lines.put( 2, "none is configured, and none belongs to a port" );
   }
   for ( One const & one : interfaces.all ) {
      std::string text = one.name + "  " + ( one.isServed ? "served" : "not served (" + one.why + ")" );
      if ( one.isServed ) {
         text += "  MTU " + std::to_string( one.mtu ) + ( one.isSynced ? " synced" : " waiting (" + one.why + ")" );
         text += one.isManaged ? "" : "  outside the managed directories";
      }
      text += one.note.empty() ? "" : "  " + one.note;
      lines.put( 2, text );
      if ( one.status ) {
         lines.put( 6,
                    "status: MTU " + std::to_string( one.status->mtu ) + ", at most " +
                       std::to_string( one.status->maxMtu ) + "; address " + one.status->addr + ", routed " +
                       one.status->routedAddr + ", burned in " + one.status->burnedInAddr );
      } else {
         lines.put( 6, "no status" );
      }
   }
   lines.blank();
}

} // namespace Inspection
