#include "inspection/PathDifferences.h"

namespace Inspection {

namespace {

using Rex::Value;
using Steps = std::vector< std::string >; // from a path down

std::string joined( std::string text, Steps::const_iterator from, Steps::const_iterator to ) {
   for ( ; from != to; ++from ) {
      text += "/" + *from;
   }
   return text;
}

std::optional< std::string > textOf( Value const * value ) {
   return value ? std::optional( Rex::toText( *value ) ) : std::nullopt;
}

// An entity in a collection has a path of its own; an entry that is a plain value, or stands on one side only, is one
// of its attribute.
PathDifference differenceAt( std::string const & path, Steps const & steps, Value const * a, Value const * b ) {
   PathDifference it{ .path = path, .value = { .name = "", .a = textOf( a ), .b = textOf( b ) } };
   if ( steps.size() == 2 ) {
      it.value.name = steps[0] + "[" + steps[1] + "]";
   } else if ( !steps.empty() ) {
      it.path = joined( path, steps.begin(), steps.end() - 1 );
      it.value.name = steps.back();
   }
   return it;
}

class SideBySide {
 public:
   SideBySide( std::string const & path, std::function< void( PathDifference ) > const & each )
      : path_( path ), each_( each ) {}

   void compare( Value const * a, Value const * b ) {
      auto const * const left = a ? a->object() : nullptr;
      auto const * const right = b ? b->object() : nullptr;
      if ( !left || !right ) {
         if ( !a || !b || !( *a == *b ) ) {
            each_( differenceAt( path_, steps_, a, b ) );
         }
         return;
      }
      for ( auto const & [key, part] : *left ) {
         auto const other = right->find( key );
         below( key, &part, other == right->end() ? nullptr : &other->second );
      }
      for ( auto const & [key, part] : *right ) {
         if ( !left->contains( key ) ) {
            below( key, nullptr, &part );
         }
      }
   }

 private:
   void below( std::string const & key, Value const * a, Value const * b ) {
      steps_.push_back( key );
      compare( a, b );
      steps_.pop_back();
   }

   std::string const & path_;
   std::function< void( PathDifference ) > const & each_;
   Steps steps_;
};

} // namespace

void eachPathDifference( Value const & a,
                         Value const & b,
                         std::function< void( PathDifference difference ) > const & each ) {
   std::set< std::string > paths;
   for ( auto const * side : { &a, &b } ) {
      for ( auto const & [path, attributes] : objectOf( *side ) ) {
         paths.insert( path );
      }
   }
   auto const at = []( Value const & side, std::string const & path ) {
      auto const found = side.object()->find( path );
      return found == side.object()->end() ? nullptr : &found->second;
   };
   for ( auto const & path : paths ) {
      SideBySide( path, each ).compare( at( a, path ), at( b, path ) );
   }
}

} // namespace Inspection
