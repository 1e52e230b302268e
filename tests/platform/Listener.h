// A follower that notes what it hears, as "attribute" or "attribute key".
#pragma once

#include "rex/Entity.h"

#include <functional>
#include <string>
#include <vector>

using Heard = std::vector< std::string >;

struct Listener {
   Corvo::Subscriber slot;
   Heard heard;
   std::function< void() > react; // runs on every change

   explicit Listener( Rex::Entity const & entity, std::function< void() > reaction = {} )
      : react( std::move( reaction ) ) {
      slot.dispatchIs( dispatch, this );
      entity.publisher()->subscriberAdd( slot, false );
   }
   static void
   dispatch( Corvo::Publisher * publisher, Corvo::Subscriber * slot, short id, void const * key, void const * ) {
      auto const * attribute = static_cast< Rex::Entity const & >( publisher->node() ).typeData().attribute( id );
      std::string text = attribute ? attribute->name : "?";
      if ( key && attribute ) {
         text += " " + attribute->keyText( key );
      }
      auto & self = *slot->owner< Listener >();
      self.heard.push_back( text );
      if ( auto const reaction = self.react ) {
         reaction();
      }
   }
};
