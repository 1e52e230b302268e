#include "inspection/EventReach.h"

#include "rex/Entity.h"

namespace Inspection {

std::string EventReach::silence() const {
   if ( !isKnown ) {
      return "nothing was written or published, and no gate was closed";
   }
   return changesNothing ? "nothing changed: it had this value already"
          : !isHeard     ? "nobody listens to " + path
                         : "heard by its listeners, who found nothing to write or publish";
}

EventReach reachOf( Simulator::StateTree const & state, Event const & event ) {
   if ( event.kind == Event::Kind::transaction || event.fault ) {
      return {};
   }
   EventReach reach{ .isKnown = true, .path = event.path };
   Corvo::Ptr< Rex::Entity > entity;
   try {
      entity = state.entity( event.path );
   } catch ( Rex::ValueError const & ) {
      return { .path = event.path }; // the event is refused likewise
   }
   if ( !entity ) {
      return { .path = event.path };
   }
   reach.isHeard = entity->publisher()->hasSubscribers();
   auto const * const attribute = event.attribute ? entity->typeData().attribute( *event.attribute ) : nullptr;
   if ( !attribute || event.kind != Event::Kind::set ) {
      return reach;
   }
   using Kind = Rex::Attribute::Kind;
   if ( !event.key && attribute->kind == Kind::scalar ) {
      reach.changesNothing = attribute->value( *entity ) == event.value;
   } else if ( event.key && attribute->kind == Kind::map ) {
      reach.changesNothing = attribute->entry( *entity, *event.key ) == event.value;
   }
   return reach;
}

} // namespace Inspection
