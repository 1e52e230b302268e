#include "inspection/Histories.h"

#include "inspection/Detours.h"
#include "inspection/Play.h"
#include "inspection/ShorterRoad.h"
#include "inspection/views/Progress.h"
#include "rex/Log.h"

#include <algorithm>
#include <chrono>
#include <sstream>
#include <sys/mman.h>

namespace Inspection {

namespace {

using Clock = std::chrono::steady_clock;

// One life of a switch, or several: a begin, and legs that each return to the last state.
struct Walk {
   Road begin;
   std::vector< Road > legs;

   // Up to a leg; 0: the begin alone.
   Road upTo( std::size_t leg ) const {
      Road road = begin;
      for ( std::size_t number = 0; number < leg; ++number ) {
         road.insert( road.end(), legs[number].begin(), legs[number].end() );
      }
      return road;
   }
};

// Where a child stands, for when it fails; in memory that parent and child share.
class SharedStand {
 public:
   struct Stand {
      std::size_t walk;
      std::size_t leg;
      std::size_t played;
   };
   SharedStand()
      : at_( static_cast< Stand * >(
           ::mmap( nullptr, sizeof( Stand ), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0 ) ) ) {
      if ( at_ == MAP_FAILED ) {
         throw InputError( "no memory to share with a child process" );
      }
   }
   SharedStand( SharedStand const & ) = delete;
   SharedStand & operator=( SharedStand const & ) = delete;
   ~SharedStand() { ::munmap( at_, sizeof( Stand ) ); }
   Stand & operator*() const { return *at_; }
   Stand * operator->() const { return at_; }

 private:
   Stand * at_;
};

class Explorer {
 public:
   Explorer( Scenario const & scenario, HistoryOptions const & options )
      : scenario_( scenario ), options_( options ), choose_( chanceOf( options.seed ) ), detours_( scenario ),
        shorter_( scenario ) {
      found_.name = scenario.title();
   }

   Histories explore() {
      begins_ = Clock::now();
      Progress progress( "histories" );
      while ( found_.played < options_.count && !isOver() && failures_ < options_.mostFailures ) {
         std::vector< Walk > walks;
         for ( std::size_t walk = 0; walk < walksOfABatch; ++walk ) {
            walks.push_back( anyWalk( walk ) );
         }
         play( walks );
         progress.stands( found_.played, options_.count );
         ++batch_;
      }
      found_.isCut = found_.played < options_.count;
      found_.seconds = std::chrono::duration< double >( playing_ ).count();
      std::ranges::stable_sort( found_.all, {}, []( History const & it ) { return lengthOf( it.road ); } );
      return std::move( found_ );
   }

 private:
   static constexpr std::size_t walksOfABatch = 16;
   static constexpr std::size_t legsOfAWalk = 60;

   bool isOver() const {
      return options_.seconds > 0 && std::chrono::duration< double >( playing_ ).count() >= options_.seconds;
   }

   // The first walks of all begin simply.
   Walk anyWalk( std::size_t number ) {
      Walk walk;
      std::size_t const kind = batch_ == 0 && number < 4 ? number : choose_( 6 );
      if ( kind == 0 ) {
         walk.begin = freshStart( scenario_ );
      } else if ( kind == 1 || kind == 2 ) {
         walk.begin = ownRoad( scenario_ );
      } else {
         walk.begin = Detours::anyOrder( scenario_, choose_ );
         auto const at = static_cast< std::ptrdiff_t >( kind < 5 ? 0 : choose_( walk.begin.size() + 1 ) );
         walk.begin.insert( walk.begin.begin() + at, RoadStep::start() );
      }
      if ( kind == 2 || kind == 4 ) {
         std::size_t const first = static_cast< std::size_t >(
                                      std::ranges::find( walk.begin, true, &RoadStep::isStart ) - walk.begin.begin() ) +
                                   1;
         auto const at = first + ( kind == 2 ? walk.begin.size() - first : choose_( walk.begin.size() - first + 1 ) );
         walk.begin.insert( walk.begin.begin() + static_cast< std::ptrdiff_t >( at ), RoadStep::start() );
      }
      U32 detour = 1;
      for ( std::size_t leg = 0; leg < legsOfAWalk && !detours_.isEmpty(); ++leg ) {
         walk.legs.push_back( detours_.any( choose_, detour ) );
      }
      return walk;
   }

   void play( std::vector< Walk > const & walks ) {
      for ( std::size_t from = 0; from < walks.size() && !isOver() && found_.played < options_.count; ) {
         *stand_ = { from, 0, 0 };
         auto const began = Clock::now();
         Child const child = inChild( [&]( std::ostream & out ) {
            Rex::logSinkIs( []( auto const & ) {} );
            beChild( walks, from, out );
         } );
         playing_ += Clock::now() - began;
         found_.played += stand_->played;
         take( walks, child.output );
         if ( child.isFine ) {
            break;
         }
         fails( walks[stand_->walk].upTo( stand_->leg ), child.errors );
         from = stand_->walk + 1;
      }
   }

   // Tells the walks and legs that end as none did before.
   void beChild( std::vector< Walk > const & walks, std::size_t from, std::ostream & out ) {
      RoadPlayer player( scenario_ );
      std::size_t const most = options_.count - found_.played;
      auto const until = Clock::now() +
                         std::chrono::duration_cast< Clock::duration >(
                            std::chrono::duration< double >( options_.seconds > 0 ? options_.seconds : 1e6 ) ) -
                         playing_;
      auto const isNew = [&] {
         ++stand_->played;
         U64 const fingerprint = player.fingerprint();
         if ( fingerprints_.contains( fingerprint ) ) {
            return;
         }
         fingerprints_.insert( fingerprint );
         out << "end " << fingerprint << '\n';
         for ( EndDifference const & it : player.differencesFrom( shorter_.own() ) ) {
            bool const isWanted = !options_.isPassedOver || !options_.isPassedOver( it );
            if ( isWanted && keys_.insert( it.key() ).second ) {
               out << "new " << stand_->walk << ' ' << stand_->leg << ' ' << it.key() << '\n';
            }
         }
      };
      for ( std::size_t walk = from; walk < walks.size(); ++walk ) {
         stand_->walk = walk;
         stand_->leg = 0;
         player.play( walks[walk].begin );
         isNew();
         for ( Road const & leg : walks[walk].legs ) {
            if ( stand_->played >= most || Clock::now() > until ) {
               return;
            }
            ++stand_->leg;
            for ( RoadStep const & step : leg ) {
               player.step( step );
            }
            isNew();
         }
      }
   }

   void take( std::vector< Walk > const & walks, std::string const & told ) {
      std::istringstream lines( told );
      for ( std::string word; lines >> word; ) {
         if ( word == "end" ) {
            U64 fingerprint = 0;
            lines >> fingerprint;
            fingerprints_.insert( fingerprint );
            continue;
         }
         std::size_t walk = 0;
         std::size_t leg = 0;
         std::string key;
         lines >> walk >> leg;
         std::getline( lines, key );
         key.erase( 0, 1 );
         if ( keys_.contains( key ) ) {
            continue; // a road that was cut down shows it, too
         }
         tell( walks[walk].upTo( leg ), key );
      }
   }

   void tell( Road const & road, std::string const & key ) {
      History history{ .differences = {}, .road = shorter_.thatShows( key, road ) };
      for ( EndDifference const & it : shorter_.differences( history.road ) ) {
         if ( keys_.insert( it.key() ).second ) {
            history.differences.push_back( it );
         }
      }
      if ( !history.differences.empty() ) {
         found_.all.push_back( std::move( history ) );
      }
      keys_.insert( key );
   }

   void fails( Road const & road, std::string const & said ) {
      ++failures_;
      if ( failureTexts_.insert( said ).second ) {
         found_.all.push_back( { .differences = {}, .road = shorter_.thatFails( said, road ), .failure = said } );
      }
   }

   Scenario const & scenario_;
   HistoryOptions const & options_;
   Choice choose_;
   Detours detours_;
   ShorterRoad shorter_;
   Histories found_;
   SharedStand stand_;
   Clock::time_point begins_;
   Clock::duration playing_{};
   std::size_t batch_ = 0;
   std::size_t failures_ = 0;
   std::set< U64 > fingerprints_;
   std::set< std::string > keys_;
   std::set< std::string > failureTexts_;
};

} // namespace

Histories explore( Scenario const & scenario, HistoryOptions const & options ) {
   return Explorer( scenario, options ).explore();
}

} // namespace Inspection
