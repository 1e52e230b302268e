#include "rex/Operations.h"

#include <algorithm>

namespace Rex {

namespace {

// Libraries come and go in any order; the list outlives them all.
std::vector< Operations const * > & offered() {
   static auto * all = new std::vector< Operations const * >;
   return *all;
}

} // namespace

Operations::Operations( char const * type, std::initializer_list< Operation > operations )
   : type_( type ), operations_( operations ) {
   offered().push_back( this );
}

Operations::~Operations() {
   std::erase( offered(), this );
}

Operation const * Operations::find( std::string_view type, std::string_view name ) {
   for ( auto const * set : offered() ) {
      auto const found = std::ranges::find( set->operations_, name, &Operation::name );
      if ( set->type_ == type && found != set->operations_.end() ) {
         return &*found;
      }
   }
   return nullptr;
}

std::vector< std::string > Operations::names( std::string_view type ) {
   std::vector< std::string > all;
   for ( auto const * set : offered() ) {
      if ( set->type_ == type ) {
         std::ranges::transform( set->operations_, std::back_inserter( all ), &Operation::name );
      }
   }
   return all;
}

} // namespace Rex
