// Inputs that may be missing.
#pragma once

#include "corvo/Ptr.h"

namespace DaceFapNi {

// An input that isn't mounted counts as one in which nothing is configured.
template< class T >
Corvo::Ptr< T const > orEmpty( Corvo::Ptr< T const > const & input ) {
   return input ? input : Corvo::Ptr< T const >( Corvo::makePtr< T >() );
}

} // namespace DaceFapNi
