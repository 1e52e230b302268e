#include "agent/database/StateModel.h"

#include "simulator/SwitchDescription.h"

namespace Live {

using Inspection::Event;
using Rex::ValueError;

StateModel::StateModel( Paths paths ) : paths_( std::move( paths ) ) {
   tell( Simulator::SwitchDescription(), tree_ ); // the directories that interfaces stand in
   std::map< std::string, std::string > wrong;
   for ( Event const & event : eventsBetween( {}, paths_, wrong ) ) {
      try {
         event.change( tree_ );
      } catch ( ValueError const & ) { // somebody has written it by hand; who follows tells of it
      }
   }
}

StateChange StateModel::change( Event const & event ) {
   if ( event.kind == Event::Kind::remove && !event.attribute && placeOf( event.path ).isRoot() ) {
      throw ValueError( "/path", event.path + " is always there: set its attributes, or delete what it holds" );
   }
   StateChange done{ pathChangesOf( event, PathLookup( paths_ ) ) };
   event.change( tree_ );
   for ( PathChange const & change : done.changes ) {
      bool const stays = change.kind == PathChange::Kind::stands || change.kind == PathChange::Kind::set;
      if ( stays && !paths_.contains( change.path ) ) {
         done.fresh.insert( change.path );
      }
   }
   for ( PathChange const & change : done.changes ) {
      apply( change, paths_ );
   }
   return done;
}

} // namespace Live
