#include "agent/StateDoor.h"

namespace Live {

namespace {

using Inspection::Event;

std::string placeIn( Event const & change ) {
   return change.path + ( change.attribute ? " " + *change.attribute : "" ) +
          ( change.key ? "[" + *change.key + "]" : "" );
}

// Nothing stands at its path yet, and something could: what is set in a member of a collection makes it, and what is to
// go is gone.
void changeWhereNothingStands( Simulator::StateTree & state, Event const & event ) {
   PathPlace const place = placeOf( event.path );
   if ( event.kind == Event::Kind::set && place.isMember() ) {
      makingItsMember( event, place ).change( state );
   } else if ( event.kind == Event::Kind::set ) {
      event.change( state ); // which tells what is wrong
   }
}

void change( Simulator::StateTree & state, Event const & event ) {
   try {
      event.change( state );
   } catch ( Rex::ValueError const & error ) {
      bool const isGone = event.kind == Event::Kind::remove && error.place() == "/key"; // as it is meant to be
      if ( error.place() == "/path" ) {
         changeWhereNothingStands( state, event );
      } else if ( !isGone ) {
         throw;
      }
   }
}

} // namespace

void StateDoor::set( Event const & event ) {
   try {
      change( sw_.state(), event );
   } catch ( Rex::ValueError const & error ) {
      rejected_[placeIn( event )] = error.what();
      return;
   }
   if ( !rejected_.empty() ) {
      rejected_.erase( placeIn( event ) );
      if ( event.kind == Event::Kind::remove && !event.attribute ) {
         std::erase_if( rejected_, [&]( auto const & it ) {
            return Rex::isAtOrBelow( it.first.substr( 0, it.first.find( ' ' ) ), event.path );
         } );
      }
   }
}

void StateDoor::set( std::vector< Event > const & changes ) {
   for ( Event const & one : changes ) {
      set( one );
   }
}

void StateDoor::prepare( std::vector< Event > const & changes ) {
   sw_.change( [&] { set( changes ); } );
}

void StateDoor::play( std::vector< Event > const & changes ) {
   auto const all = [&] { set( changes ); };
   if ( changes.size() == 1 ) {
      sw_.change( all, changes.front().cause(), valueOf( changes.front() ) );
   } else if ( !changes.empty() ) {
      Event const event{ .kind = Event::Kind::transaction, .changes = changes };
      sw_.change( all, event.cause(), valueOf( event ) );
   }
}

} // namespace Live
