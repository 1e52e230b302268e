#include "agent/Door.h"

#include "inspection/views/Terminal.h"

namespace Live {

namespace {

// How many rejected places are told; all of them can be asked for.
constexpr std::size_t mostTold = 100;

} // namespace

Rex::Value Door::told() const {
   Rex::Value::Object told;
   for ( auto const & [place, what] : rejected_ ) {
      if ( told.size() == mostTold ) {
         told["..."] = std::to_string( rejected_.size() - mostTold ) + " more";
         break;
      }
      told[Inspection::printable( place )] = what; // of two that are written alike one: no answer has a key twice
   }
   return told;
}

} // namespace Live
