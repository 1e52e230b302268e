#include "inspection/ShorterRoad.h"

#include "inspection/Play.h"
#include "rex/Log.h"

#include <algorithm>
#include <sstream>

namespace Inspection {

namespace {

std::vector< U32 > detoursOf( Road const & road ) {
   std::set< U32 > all;
   for ( RoadStep const & step : road ) {
      if ( step.detour != 0 ) {
         all.insert( step.detour );
      }
   }
   return { all.begin(), all.end() };
}

Road without( Road road, std::set< U32 > const & detours ) {
   std::erase_if( road, [&]( RoadStep const & step ) { return step.detour != 0 && detours.contains( step.detour ); } );
   return road;
}

// The detours of one road behind the begin of another.
Road withDetoursOf( Road begin, Road const & road ) {
   std::ranges::copy_if( road, std::back_inserter( begin ), []( RoadStep const & step ) { return step.detour != 0; } );
   return begin;
}

} // namespace

ShorterRoad::ShorterRoad( Scenario const & scenario ) : scenario_( scenario ) {
   auto const playOwn = [&] {
      RoadPlayer player( scenario_ );
      player.play( ownRoad( scenario_ ) );
      return player.end();
   };
   Child const child = inChild( [&]( std::ostream & ) { playOwn(); } );
   if ( !child.isFine ) {
      throw InputError( scenario.file, "the scenario ends the process: " + child.errors );
   }
   own_ = playOwn();
   state_ = stateAfter( ownRoad( scenario ) );
}

Rex::Value ShorterRoad::stateAfter( Road const & road ) const {
   Simulator::StateTree state;
   tell( scenario_.description, state );
   for ( auto const & [path, attributes] : scenario_.state ) {
      stateIs( state, path, attributes );
   }
   for ( RoadStep const & step : road ) {
      if ( !step.isStart ) {
         step.event.change( state );
      }
   }
   return state.value();
}

bool ShorterRoad::leadsThere( Road const & road ) const {
   try {
      return stateAfter( road ) == state_;
   } catch ( Rex::ValueError const & ) {
      return false;
   }
}

std::vector< EndDifference > ShorterRoad::differences( Road const & road ) const {
   Child const child = inChild( [&]( std::ostream & out ) {
      Rex::logSinkIs( []( auto const & ) {} );
      RoadPlayer player( scenario_ );
      player.play( road );
      for ( EndDifference const & it : player.differencesFrom( own_ ) ) {
         out << it.fap << '\n'
             << it.table << '\n'
             << it.place << '\n'
             << it.field << '\n'
             << it.own << '\n'
             << it.here << '\n';
      }
   } );
   std::vector< EndDifference > all;
   std::istringstream lines( child.isFine ? child.output : std::string() );
   auto const line = [&] {
      std::string text;
      std::getline( lines, text );
      return text;
   };
   for ( std::string fap = line(); !fap.empty(); fap = line() ) {
      EndDifference it{ static_cast< U16 >( std::stoul( fap ) ), {}, {}, {}, {}, {} };
      for ( std::string EndDifference::*const part : { &EndDifference::table,
                                                       &EndDifference::place,
                                                       &EndDifference::field,
                                                       &EndDifference::own,
                                                       &EndDifference::here } ) {
         it.*part = line();
      }
      all.push_back( std::move( it ) );
   }
   return all;
}

Road ShorterRoad::thatShows( std::string const & key, Road const & road ) const {
   return cut( road, [&]( Road const & it ) {
      return leadsThere( it ) && std::ranges::any_of( differences( it ), [&]( EndDifference const & difference ) {
                return difference.key() == key;
             } );
   } );
}

Road ShorterRoad::thatFails( std::string const & said, Road const & road ) const {
   return cut( road, [&]( Road const & it ) {
      Child const child = inChild( [&]( std::ostream & ) {
         Rex::logSinkIs( []( auto const & ) {} );
         RoadPlayer( scenario_ ).play( it );
      } );
      return !child.isFine && child.errors == said;
   } );
}

Road ShorterRoad::cut( Road road, Shows const & shows ) const {
   auto const becomes = [&]( Road const & other ) {
      bool const isShorter = shows( other );
      if ( isShorter ) {
         road = other;
      }
      return isShorter;
   };
   // Simple begins, alone and with the detours.
   Road const own = ownRoad( scenario_ );
   Road again = own;
   again.push_back( RoadStep::start() );
   Road const fresh = freshStart( scenario_ );
   if ( becomes( fresh ) || becomes( own ) || becomes( again ) ) {
      return road;
   }
   if ( !becomes( withDetoursOf( fresh, road ) ) ) {
      becomes( withDetoursOf( own, road ) );
   }
   // Detours: large parts first, then one by one. The last is the likeliest to show it.
   auto detours = detoursOf( road );
   for ( std::size_t size = detours.size(); size > 0; size /= 2 ) {
      for ( std::size_t from = 0; from < detours.size(); ) {
         std::size_t const to = std::min( from + size, detours.size() );
         std::set< U32 > const part( detours.begin() + static_cast< std::ptrdiff_t >( from ),
                                     detours.begin() + static_cast< std::ptrdiff_t >( to ) );
         if ( becomes( without( road, part ) ) ) {
            detours = detoursOf( road );
         } else {
            from = to;
         }
      }
   }
   // Second starts; events that the plug-in may find done.
   for ( std::size_t step = road.size(); step-- > 0; ) {
      if ( road[step].isStart && std::ranges::count( road, true, &RoadStep::isStart ) > 1 ) {
         Road other = road;
         other.erase( other.begin() + static_cast< std::ptrdiff_t >( step ) );
         becomes( other );
      }
   }
   for ( bool again_ = true; again_; ) {
      again_ = false;
      auto const start = std::ranges::find( road, true, &RoadStep::isStart );
      for ( auto step = start + 1; step < road.end() && !again_; ++step ) {
         if ( step->isStart || step->detour != 0 ) {
            continue;
         }
         Road other = road;
         auto const from = other.begin() + ( start - road.begin() );
         std::rotate( from, other.begin() + ( step - road.begin() ), other.begin() + ( step - road.begin() ) + 1 );
         again_ = becomes( other );
      }
   }
   return road;
}

} // namespace Inspection
