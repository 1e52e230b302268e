#include "agent/StateDoor.h"

namespace Live {

namespace {

using Inspection::Event;
using Rex::Value;

std::string placeIn( Event const & change ) {
   return change.path + ( change.attribute ? " " + *change.attribute : "" ) +
          ( change.key ? "[" + *change.key + "]" : "" );
}

Event eventOf( std::vector< Event > changes ) {
   if ( changes.size() == 1 ) {
      return std::move( changes.front() );
   }
   return { .kind = Event::Kind::transaction, .changes = std::move( changes ) };
}

// Nothing stands at its path yet, and something could.
Corvo::Ptr< Rex::Entity > entityAt( Simulator::StateTree const & state, std::string const & path ) {
   try {
      return state.entity( path );
   } catch ( Rex::ValueError const & ) {
      return nullptr;
   }
}

// What is set in a member of a collection that isn't there makes it.
void change( Simulator::StateTree & state, Event const & event ) {
   PathPlace const place = placeOf( event.path );
   bool const isMember = !place.attribute.empty() && !place.key.empty();
   bool const isThere = entityAt( state, event.path ) != nullptr;
   if ( event.kind == Event::Kind::set && isMember && !isThere ) {
      Value const value = event.key ? Value::Object{ { *event.key, event.value } } : event.value;
      state.entryIs( place.owner, place.attribute, place.key, Value::Object{ { *event.attribute, value } } );
   } else if ( event.kind == Event::Kind::remove && !event.attribute && !isThere ) {
      // It is as it is meant to be.
   } else {
      event.change( state );
   }
}

} // namespace

bool StateDoor::set( Event const & event ) {
   auto const place = placeIn( event );
   try {
      change( sw_.state(), event );
   } catch ( Rex::ValueError const & error ) {
      bool const isGone = event.kind == Event::Kind::remove && error.place() == "/key"; // as it is meant to be
      if ( !isGone ) {
         rejected_[place] = error.what();
         return false;
      }
   }
   if ( !rejected_.empty() ) {
      rejected_.erase( place );
      if ( event.kind == Event::Kind::remove && !event.attribute ) {
         std::erase_if( rejected_, [&]( auto const & it ) { return it.first.starts_with( event.path ); } );
      }
   }
   return true;
}

void StateDoor::play( std::vector< Event > changes ) {
   if ( changes.empty() ) {
      return;
   }
   Event const event = eventOf( std::move( changes ) );
   sw_.change(
      [&] {
         if ( event.changes.empty() ) {
            set( event );
         }
         for ( Event const & one : event.changes ) {
            set( one );
         }
      },
      event.cause(),
      valueOf( event ) );
}

} // namespace Live
