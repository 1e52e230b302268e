// TreeFollower: hears every change of an entity and of all entities below it, however deep.
//
//    Rex::TreeFollower follower_{ inputs_, [this] { merge(); } };
//    follower_.activeIs( true );
//
// What comes below the root later is followed as well, and what leaves it no more. The function that is called may do
// anything: change the tree, drop the root, destroy the follower.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "rex/Notifiee.h"

#include <functional>

namespace Rex {

class TreeFollower {
 public:
   using Changed = std::function< void() >;
   // A null root stays silent.
   TreeFollower( Corvo::Ptr< Entity const > root, Changed changed );
   TreeFollower( TreeFollower const & ) = delete;
   TreeFollower & operator=( TreeFollower const & ) = delete;
   ~TreeFollower();

   // Idempotent. It is off at first. Turning on follows what is there then and calls nothing.
   void activeIs( bool active );

 private:
   class Branch;
   Corvo::Ptr< Entity const > const root_;
   Changed const changed_;
   Corvo::Ptr< Branch > branch_; // null while off
};

} // namespace Rex
