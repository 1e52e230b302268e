// The announcements under way when somebody looked last: most rows of an event are the consequence of the same ones,
// and to tell of what takes a way through the state.
//
//    if ( !latest.areStill() ) {
//       latest.remember();
//       cause = toldAnew();
//    }
//
// Threading: the agent's scheduler thread.
#pragma once

#include "corvo/Publisher.h"
#include "rex/Dir.h"

#include <vector>

namespace Simulator {

class LatestAnnouncements {
 public:
   // Whether the same are under way as were remembered. Where there are none, nobody can tell.
   bool areStill() const {
      auto const * now = Corvo::Publisher::current();
      for ( auto const & before : latest_ ) {
         if ( !now || now->publisher != before.publisher || now->attribute != before.attribute ||
              now->key != before.key ) {
            return false;
         }
         now = now->outer;
      }
      return !now && !latest_.empty();
   }
   void remember() {
      latest_.clear();
      for ( auto const * now = Corvo::Publisher::current(); now; now = now->outer ) {
         if ( now->publisher && dynamic_cast< Rex::Dir const * >( &now->publisher->node() ) ) {
            latest_.clear(); // it tells of entries by name, and names may come one after the other in one place
            return;
         }
         latest_.push_back( { now->publisher, now->attribute, now->key } );
      }
   }
   void forget() { latest_.clear(); }

 private:
   struct Announced {
      Corvo::Publisher const * publisher;
      short attribute;
      void const * key;
   };
   std::vector< Announced > latest_; // the innermost first
};

} // namespace Simulator
