// A door through which changes of state come to what they are for; what doesn't fit is listed, and harms nothing else.
//
//    door.play( transaction.changes );               // one event, whatever is wrong with some of it
//    door.rejected();                                // "evpn/status vxlanEnabled" → "expected true or false, got 3"
//
// A value that doesn't fit leaves the last good one in place. It is listed until another comes for the same place, or
// the entity goes.
//
// Threading: the agent's loop.
#pragma once

#include "agent/database/Paths.h"

namespace Live {

class Door {
 public:
   using Rejected = std::map< std::string, std::string >; // "path attribute[key]" to what is wrong

   virtual ~Door() = default;

   // All of them at once, as one event.
   virtual void play( std::vector< Inspection::Event > const & changes ) = 0;
   // Something is wrong with what stands at a place, told by others.
   void reject( std::string const & place, std::string const & what ) { rejected_[place] = what; }
   Rejected const & rejected() const { return rejected_; }
   // The first hundred of them, and how many more there are.
   Rex::Value told() const;
   // Everything is judged anew: a whole state follows.
   void forget() { rejected_.clear(); }

 protected:
   Rejected rejected_;
};

} // namespace Live
