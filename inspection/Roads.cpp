#include "inspection/Roads.h"

#include "inspection/PathDifferences.h"

#include "inspection/NamesAsTyped.h"
#include "inspection/files/Json.h"
#include "interface/ManagedIntfStatusDir.h"
#include "simulator/ChipContents.h"
#include "simulator/PlaceAt.h"

#include <algorithm>

namespace Inspection {

namespace {

using Simulator::SimulatedSwitch;
using Place = RoadEnd::Place;
constexpr U32 controlBlock = ~U32{ 0 };

constexpr U64 mixed( U64 x ) {
   x ^= x >> 31;
   x *= 0x9e3779b97f4a7c15;
   return x ^ x >> 29;
}

U64 hashOf( Place const & place, std::span< U32 const > words ) {
   U64 hash = mixed( U64{ place.chip } << 40 ^ U64{ place.block } << 20 ^ place.address );
   for ( U32 const word : words ) {
      hash = mixed( hash + word );
   }
   return hash;
}

// What the plug-in publishes, by path.
Rex::Value publishedBy( SimulatedSwitch const & sw ) {
   Rex::Value::Object all;
   auto const add = [&]( char const * path, Rex::Entity const * entity ) {
      all[path] = entity ? entity->value() : Rex::Value();
   };
   add( "managed/intfStatusDir", Interface::ManagedIntfStatusDir::newest() );
   add( "managed/intfStatusLocalDir", Interface::ManagedIntfStatusLocalDir::newest() );
   add( "shared/phySmStateSharedStatus", sw.state().entity( "shared/phySmStateSharedStatus" ).get() );
   return all;
}

} // namespace

std::size_t RoadEnd::Hash::operator()( Place const & place ) const {
   return hashOf( place, {} );
}

// Hands on, and keeps what stood at each place before it first became different.
class RoadPlayer::Driver final : public DaceSal::SchanDriver {
 public:
   explicit Driver( DaceSal::SchanDriver & under ) : under_( &under ) {}
   // Puts contents on chips that have just booted, and goes on with those.
   void moveTo( DaceSal::SchanDriver & under, RoadEnd const & left ) {
      under_ = &under;
      for ( auto const & [place, words] : left.changed ) {
         if ( place.block == controlBlock ) {
            under.control( DaceSal::ChipId{ static_cast< U16 >( place.chip ) }, place.address, words.now.front() );
         } else {
            under.write( DaceSal::ChipId{ static_cast< U16 >( place.chip ) }, atOf( place ), words.now );
         }
      }
   }

   void read( DaceSal::ChipId chip, DaceSal::SchanAddress const & at, std::span< U32 > words ) override {
      under_->read( chip, at, words );
   }
   bool write( DaceSal::ChipId chip, DaceSal::SchanAddress const & at, std::span< U32 const > words ) override {
      std::array< U32, 64 > before;
      bool const fits = words.size() <= before.size();
      std::span< U32 > const stood( before.data(), fits ? words.size() : 0 );
      if ( fits ) {
         under_->read( chip, at, stood );
      }
      bool const changed = under_->write( chip, at, words );
      if ( changed ) {
         became( { chip.value, at.selectorA << 8 | at.selectorB, at.address }, stood, words );
      }
      return changed;
   }
   bool control( DaceSal::ChipId chip, U32 control, U32 value ) override {
      auto const stood = under_->controlValue( chip, control );
      bool const changed = under_->control( chip, control, value );
      if ( changed ) {
         std::vector< U32 > const before = stood ? std::vector< U32 >{ *stood } : std::vector< U32 >();
         became( { chip.value, controlBlock, control }, before, std::span( &value, 1 ) );
      }
      return changed;
   }
   std::optional< U32 > controlValue( DaceSal::ChipId chip, U32 control ) const override {
      return under_->controlValue( chip, control );
   }

   U64 fingerprint() const { return fingerprint_; }
   std::unordered_map< Place, std::vector< U32 >, RoadEnd::Hash > const & booted() const { return booted_; }
   // What stands there now, into words that are used again.
   void contentsOf( Place const & place, std::vector< U32 > & words ) const {
      DaceSal::ChipId const chip{ static_cast< U16 >( place.chip ) };
      if ( place.block != controlBlock ) {
         words.resize( booted_.at( place ).size() );
         under_->read( chip, atOf( place ), words );
      } else if ( auto const value = under_->controlValue( chip, place.address ) ) {
         words.assign( 1, *value );
      } else {
         words.clear();
      }
   }

   static DaceSal::SchanAddress atOf( Place const & place ) {
      return { place.address, place.block >> 8, place.block & 0xff };
   }

 private:
   void became( Place const & place, std::span< U32 const > before, std::span< U32 const > after ) {
      fingerprint_ += hashOf( place, after ) - hashOf( place, before );
      booted_.try_emplace( place, before.begin(), before.end() );
   }

   DaceSal::SchanDriver * under_;
   U64 fingerprint_ = 0;
   std::unordered_map< Place, std::vector< U32 >, RoadEnd::Hash > booted_;
};

Road ownRoad( Scenario const & scenario ) {
   Road road{ RoadStep::start() };
   for ( Event const & event : scenario.events ) {
      road.push_back( { .event = event } );
   }
   return road;
}

Road freshStart( Scenario const & scenario ) {
   Road road = ownRoad( scenario );
   std::ranges::rotate( road, road.begin() + 1 );
   return road;
}

std::size_t lengthOf( Road const & road ) {
   auto const start = std::ranges::find( road, true, &RoadStep::isStart );
   return static_cast< std::size_t >( road.end() - start ) - 1;
}

RoadPlayer::RoadPlayer( Scenario const & scenario ) : scenario_( scenario ), description_( scenario.description ) {
   description_.journalled = Simulator::SwitchDescription::Journalled::none;
}

RoadPlayer::~RoadPlayer() {
   letGo();
}

void RoadPlayer::letGo() {
   if ( switch_ ) {
      switch_->stop();
   }
   switch_.reset();
}

void RoadPlayer::play( Road const & road ) {
   letGo();
   driver_.reset();
   before_.clear();
   for ( RoadStep const & it : road ) {
      step( it );
   }
}

void RoadPlayer::step( RoadStep const & step ) {
   if ( step.isStart ) {
      start();
      return;
   }
   if ( switch_ ) {
      switch_->change( [&] { step.event.change( switch_->state() ); }, "road" );
   }
   before_.push_back( step.event );
}

void RoadPlayer::start() {
   RoadEnd const left = driver_ ? end() : RoadEnd();
   letGo();
   switch_ = std::make_unique< SimulatedSwitch >( description_ );
   scenario_.prepare( *switch_ );
   if ( driver_ ) {
      driver_->moveTo( switch_->driver(), left );
   } else {
      driver_ = std::make_unique< Driver >( switch_->driver() );
   }
   for ( Event const & event : before_ ) {
      switch_->change( [&] { event.change( switch_->state() ); } );
   }
   DaceSal::schanDriverIs( driver_.get() );
   switch_->start();
}

U64 RoadPlayer::fingerprint() const {
   return driver_->fingerprint() ^ std::hash< std::string >()( Rex::toText( publishedBy( *switch_ ) ) );
}

RoadEnd RoadPlayer::end() const {
   RoadEnd all{ .changed = {}, .published = publishedBy( *switch_ ) };
   all.changed.reserve( driver_->booted().size() );
   for ( auto const & [place, booted] : driver_->booted() ) {
      RoadEnd::Contents & contents = all.changed[place];
      contents.booted = booted;
      driver_->contentsOf( place, contents.now );
   }
   return all;
}

std::vector< EndDifference > RoadPlayer::differencesFrom( RoadEnd const & own ) const {
   // Most places are alike: those that aren't are looked for first, and put into order.
   struct Pair {
      Place place;
      std::vector< U32 > own;
      std::vector< U32 > here;
   };
   std::vector< Pair > pairs;
   std::vector< U32 > now;
   for ( auto const & [place, booted] : driver_->booted() ) {
      auto const found = own.changed.find( place );
      auto const & there = found == own.changed.end() ? booted : found->second.now;
      driver_->contentsOf( place, now );
      if ( now != there ) {
         pairs.push_back( { place, there, now } );
      }
   }
   for ( auto const & [place, contents] : own.changed ) {
      if ( contents.now != contents.booted && !driver_->booted().contains( place ) ) {
         pairs.push_back( { place, contents.now, contents.booted } );
      }
   }
   std::ranges::sort( pairs, {}, &Pair::place );
   std::vector< EndDifference > all;
   for ( auto const & [place, a, b] : pairs ) {
      auto const fap = static_cast< U16 >( place.chip );
      auto const text = []( std::vector< U32 > const & words ) {
         return words.empty() ? "unset" : std::to_string( words.front() );
      };
      if ( place.block == controlBlock ) {
         all.push_back( { fap, "controls", std::to_string( place.address ), "", text( a ), text( b ) } );
         continue;
      }
      auto const at = Simulator::placeAt( scenario_.fap( fap ).revision.chipType(), Driver::atOf( place ) );
      if ( !at ) {
         continue;
      }
      auto const fieldsA = Simulator::decode( *at->layout, a );
      auto const fieldsB = Simulator::decode( *at->layout, b );
      for ( std::size_t field = 0; field < fieldsA.size(); ++field ) {
         if ( !( fieldsA[field] == fieldsB[field] ) ) {
            all.push_back( { fap,
                             at->table->name,
                             placeText( *at->table, *at->layout, at->array, at->entry ),
                             fieldsA[field].name,
                             fieldsA[field].value,
                             fieldsB[field].value } );
         }
      }
   }
   eachPathDifference( own.published, publishedBy( *switch_ ), [&]( PathDifference const & it ) {
      all.push_back(
         { 0, "published", it.path, it.value.name, it.value.a.value_or( "null" ), it.value.b.value_or( "null" ) } );
   } );
   // Copies that differ alike are one.
   auto const isSame = []( EndDifference const & a, EndDifference const & b ) {
      return a.key() == b.key() && a.here == b.here;
   };
   std::ranges::stable_sort( all, {}, &EndDifference::key );
   all.erase( std::ranges::unique( all, isSame ).begin(), all.end() );
   return all;
}

} // namespace Inspection
