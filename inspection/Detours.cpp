#include "inspection/Detours.h"

#include <algorithm>

namespace Inspection {

namespace {

using Rex::Value;

// Where an event changes the state: below it lies what it replaces.
std::string placeOf( Event const & event ) {
   return event.path + ( event.attribute ? "/" + *event.attribute : "" ) + ( event.key ? "/" + *event.key : "" ) + "/";
}

bool touchesTheSame( std::string const & a, std::string const & b ) {
   return a.starts_with( b ) || b.starts_with( a );
}

// The event that makes a place what it is in the state; none where nothing can stand there.
std::optional< Event > eventOf( Simulator::StateTree const & state, Event const & like ) {
   if ( !like.attribute ) {
      return std::nullopt;
   }
   Corvo::Ptr< Rex::Entity > entity;
   try {
      entity = state.entity( like.path );
   } catch ( Rex::ValueError const & ) {
      return std::nullopt;
   }
   if ( !entity ) {
      return std::nullopt;
   }
   Value const value = entity->value();
   auto const attribute = value.object()->find( *like.attribute );
   if ( attribute == value.object()->end() ) {
      return std::nullopt;
   }
   Event event = like;
   event.number = 0;
   event.kind = Event::Kind::set;
   event.value = attribute->second;
   if ( like.key ) {
      auto const * const entries = attribute->second.object();
      auto const entry = entries ? entries->find( *like.key ) : Value::Object::const_iterator();
      bool const isThere = entries && entry != entries->end();
      event.kind = isThere ? Event::Kind::set : Event::Kind::remove;
      event.value = isThere ? entry->second : Value();
   }
   return event;
}

bool isAlike( Event const & a, Event const & b ) {
   return a.kind == b.kind && a.value == b.value;
}

// What other events could be meant: those of the scenario, and what random scenarios are made of.
std::vector< Event > ideas( Scenario const & scenario ) {
   std::vector< Event > all = scenario.events;
   Choice const choose = chanceOf( 1 );
   constexpr int many = 3000; // of some hundred different ones
   for ( int number = 0; number < many; ++number ) {
      all.push_back( randomEvent( choose ) );
   }
   return all;
}

void removal( std::vector< Event > & events, Event const & like ) {
   if ( like.key ) {
      Event event = like;
      event.kind = Event::Kind::remove;
      event.value = {};
      events.push_back( event );
   }
}

} // namespace

Detours::Detours( Scenario const & scenario ) {
   Simulator::StateTree state;
   tell( scenario.description, state );
   for ( auto const & [path, attributes] : scenario.state ) {
      stateIs( state, path, attributes );
   }
   for ( Event const & event : scenario.events ) {
      event.change( state );
   }
   for ( Event idea : ideas( scenario ) ) {
      idea.number = 0;
      auto const place = placeOf( idea );
      auto turn = std::ranges::find( turns_, place, &Turn::place );
      if ( turn == turns_.end() ) {
         auto const back = eventOf( state, idea );
         if ( !back ) {
            continue;
         }
         turn = turns_.insert( turn, { place, *back, {} } );
         removal( turn->there, *back );
      }
      turn->there.push_back( idea );
   }
   for ( Turn & turn : turns_ ) {
      std::vector< Event > others;
      for ( Event const & event : turn.there ) {
         bool const isKnown =
            std::ranges::any_of( others, [&]( Event const & other ) { return isAlike( event, other ); } );
         if ( !isKnown && !isAlike( event, turn.back ) ) {
            others.push_back( event );
         }
      }
      turn.there = std::move( others );
   }
   std::erase_if( turns_, []( Turn const & turn ) { return turn.there.empty(); } );
}

Road Detours::any( Choice const & choose, U32 & number ) const {
   std::size_t const wanted = 1 + choose( 3 );
   std::vector< Turn const * > chosen;
   for ( std::size_t tried = 0; tried < wanted; ++tried ) {
      Turn const & turn = turns_[choose( turns_.size() )];
      bool const isApart = std::ranges::none_of(
         chosen, [&]( Turn const * other ) { return touchesTheSame( turn.place, other->place ); } );
      if ( isApart ) {
         chosen.push_back( &turn );
      }
   }
   Road there;
   Road back;
   for ( Turn const * const turn : chosen ) {
      std::size_t const stays = turn->there.size() > 1 && choose( 4 ) == 3 ? 2 : 1;
      bool wasRemoved = turn->back.kind == Event::Kind::remove; // what isn't there can't be removed
      for ( std::size_t stay = 0; stay < stays; ++stay ) {
         Event const & event = turn->there[choose( turn->there.size() )];
         bool const removes = event.kind == Event::Kind::remove;
         if ( removes && wasRemoved ) {
            continue;
         }
         wasRemoved = removes;
         there.push_back( { .event = event, .detour = number } );
      }
      if ( !( wasRemoved && turn->back.kind == Event::Kind::remove ) ) {
         auto const at = back.begin() + static_cast< std::ptrdiff_t >( choose( back.size() + 1 ) );
         back.insert( at, { .event = turn->back, .detour = number } );
      }
      ++number;
   }
   there.insert( there.end(), back.begin(), back.end() );
   return there;
}

Road Detours::anyOrder( Scenario const & scenario, Choice const & choose ) {
   std::vector< Event > left = scenario.events;
   Road road;
   while ( !left.empty() ) {
      // Those that no event before them stands in the way of.
      std::vector< std::size_t > free;
      for ( std::size_t event = 0; event < left.size(); ++event ) {
         bool const isFree = std::all_of(
            left.begin(), left.begin() + static_cast< std::ptrdiff_t >( event ), [&]( Event const & earlier ) {
               return !touchesTheSame( placeOf( earlier ), placeOf( left[event] ) );
            } );
         if ( isFree ) {
            free.push_back( event );
         }
      }
      auto const next = left.begin() + static_cast< std::ptrdiff_t >( free[choose( free.size() )] );
      road.push_back( { .event = *next } );
      left.erase( next );
   }
   return road;
}

} // namespace Inspection
