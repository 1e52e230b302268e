// Any scenario, for properties: what is chosen is chosen by rapidcheck, which finds a small one that fails.
//
//    rc::check( [] {
//       Scenario const scenario = anyScenario();
//       ...
//    } );
#pragma once

#include "inspection/RandomScenario.h"

#include <rapidcheck.h>

inline Inspection::Scenario anyScenario( Inspection::RandomScenarioOptions const & options = {} ) {
   return Inspection::randomScenario(
      []( std::size_t many ) {
         // Of all, however small the case that is tried.
         return *rc::gen::resize( rc::kNominalSize, rc::gen::inRange< std::size_t >( 0, many ) );
      },
      options );
}
