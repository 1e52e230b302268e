#include "agent/PublishedState.h"

#include <utility>

namespace Live {

using Simulator::Row;

void PublishedState::becomes( std::string const & path, std::string const & attribute, Rex::Value const & value ) {
   all_[path][attribute] = Rex::toText( value );
   changed_.insert( path );
}

void PublishedState::goes( std::string const & path ) {
   if ( all_.erase( path ) ) {
      changed_.insert( path );
   }
}

void PublishedState::row( Row const & row ) {
   if ( row.kind != Row::Kind::publish ) {
      return;
   }
   std::string const path( row.path );
   std::string const attribute( row.attribute );
   if ( !row.key ) {
      becomes( path, attribute, *row.published );
      return;
   }
   std::string const member = path + "/" + attribute + "/" + std::string( *row.key );
   if ( path.starts_with( "managed/" ) ) {
      row.published->isNull() ? goes( member ) : becomes( member, "managed", true );
   } else if ( row.published->isNull() ) {
      goes( member );
   } else if ( auto const * const object = row.published->object() ) {
      goes( member );
      for ( auto const & [name, value] : *object ) {
         becomes( member, name, value );
      }
   } else {
      becomes( member, attribute, *row.published ); // an entry of a map
   }
}

Paths PublishedState::takeChanged() {
   Paths taken;
   for ( auto const & path : std::exchange( changed_, {} ) ) {
      auto const found = all_.find( path );
      taken[path] = found == all_.end() ? Attributes() : found->second;
   }
   return taken;
}

} // namespace Live
