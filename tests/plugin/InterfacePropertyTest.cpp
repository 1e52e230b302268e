// Random histories of ports, configurations, statuses, modes and deletions: whatever happened, what is served, managed
// and published is what the history says, nothing is written in standby, and nothing is left behind.
#include "InterfaceWorld.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <map>
#include <set>

namespace DaceFapNi {
namespace {

// One step of a history. What `a`, `b` and `c` mean is the step's business.
struct Step {
   unsigned kind;
   unsigned a;
   unsigned b;
   unsigned c;
};

std::ostream & operator<<( std::ostream & out, Step const & step ) {
   return out << "{" << step.kind << ", " << step.a << ", " << step.b << ", " << step.c << "}";
}

constexpr unsigned intfCount = 4;
constexpr unsigned portCount = 5;
constexpr unsigned subIntfCount = 3;

Netka::EthAddr address( U8 group, unsigned number ) {
   return Netka::EthAddr( std::array< U8, 6 >{ 2, 0, 0, 0, group, static_cast< U8 >( number ) } );
}

class History {
 public:
   explicit History( bool withHelper ) {
      if ( !withHelper ) {
         world_.helper = nullptr;
      }
      for ( unsigned i = 0; i < intfCount; ++i ) {
         intfs_.push_back( world_.intf( "Ethernet" + std::to_string( i + 1 ) ) );
      }
      world_.start();
   }

   void play( Step const & step ) {
      bool const standby = mode_ != 2;
      auto const before = published();
      act( step );
      if ( standby && mode_ != 2 ) {
         for ( auto const & entry : published() ) {
            RC_ASSERT( before.contains( entry.first ) && before.at( entry.first ) == entry.second );
         }
      }
      check();
   }

   void end() {
      std::vector< Corvo::Ptr< Rex::Entity > > watched{
         world_.slice, world_.ports, world_.globalConfig, world_.subIntfs };
      for ( auto const id : intfs_ ) {
         watched.push_back( world_.status( id ) );
         watched.push_back( world_.local( id ) );
      }
      watched.insert( watched.end(), configs_.begin(), configs_.end() );
      for ( auto const & [port, state] : world_.ports->portState() ) {
         watched.push_back( state );
      }
      world_.sm = nullptr;
      auto const before = published();
      for ( auto const & entity : watched ) {
         RC_ASSERT( !entity->publisher()->hasSubscribers() );
      }
      world_.scheduler->runUntilIdle();
      RC_ASSERT( published() == before );
   }

 private:
   void act( Step const & step ) {
      Netka::IntfId const id = intfs_[step.a % intfCount];
      auto const port = static_cast< U16 >( step.b % portCount );
      bool const on = step.c % 4 != 0;
      switch ( step.kind % 13 ) {
      case 0: // a port comes, or another takes its place
         world_.port( port, id, on );
         handled( port );
         break;
      case 1: // a port goes
         if ( auto const state = portOf( port ) ) {
            world_.portDel( port );
            served_.erase( state->intfId() );
            managed_.erase( state->intfId() );
         }
         break;
      case 2: // a port changes
         if ( auto const state = portOf( port ) ) {
            state->activeIs( on );
            state->portGenIdIs( state->portGenId() + 1 );
            handled( port );
         }
         break;
      case 3: // a configuration comes, or another takes its place
      {
         auto const config = Corvo::makePtr< Interface::EthPhyIntfConfig >( id );
         config->enabledIs( on );
         config->mtuIs( 1600 + step.b );
         configs_.push_back( config );
         world_.configDir->intfConfigIs( config );
      } break;
      case 4:
         world_.configDir->intfConfigDel( id );
         break;
      case 5:
         if ( auto const config = world_.config( id ) ) {
            config->enabledIs( on );
         }
         break;
      case 6:
         if ( auto const config = world_.config( id ) ) {
            config->addrIs( on ? address( 3, step.b ) : none );
            config->mtuIs( on ? 2000 + step.b : 0 );
         }
         break;
      case 7:
         mode_ = on ? 2 : static_cast< U8 >( step.b % 4 );
         world_.modeIs( mode_ );
         break;
      case 8:
         on ? world_.scheduler->runUntilIdle() : U32{ world_.scheduler->runOne() };
         break;
      case 9: // a subinterface comes or goes
      {
         auto const name = id.stringValue() + "." + std::to_string( step.b % subIntfCount );
         if ( on ) {
            world_.subIntf( name, id );
         } else {
            world_.subIntfs->intfStatusDel( Netka::IntfId( name ) );
         }
      } break;
      case 10:
         world_.globalConfig->l3MtuIs( 3000 + step.b );
         break;
      case 11: // the filter loses the status, or gets it back
         if ( auto const filter = world_.filter( id ) ) {
            filter->intfStatusIs( on ? world_.status( id ) : nullptr );
         }
         break;
      case 12: // a filter is torn down by itself: the interface goes out of service, its managed entries stay
         if ( auto const filter = on ? nullptr : world_.filter( id ) ) {
            filter->rexDoZombieReactors( true );
            served_.erase( id );
         } else {
            world_.status( id )->burnedInAddrIs( address( 4, step.b ) );
         }
         break;
      }
   }

   Corvo::Ptr< PortState > portOf( U16 port ) const {
      return world_.ports->portState( Hardware::Dace::SystemPhyPortId{ port } );
   }

   // An active port whose interface has a configuration brings it into service, with the configuration of that time.
   void handled( U16 port ) {
      auto const state = portOf( port );
      auto const config = world_.config( state->intfId() );
      if ( state->active() && config ) {
         served_.try_emplace( state->intfId(), config );
         managed_.insert( state->intfId() );
      }
   }

   void check() {
      std::set< Netka::IntfId > walked; // what others see of who is served
      for ( auto const * walk = Interface::SyncMtuSubIntfWalkSm::newest(); walk; walk = walk->older() ) {
         walked.insert( walk->intfId() );
      }
      for ( auto const id : intfs_ ) {
         RC_ASSERT( walked.contains( id ) == served_.contains( id ) );
         RC_ASSERT( world_.serves( id ) == served_.contains( id ) );
         RC_ASSERT( ( world_.sm->ethConfig( id ) != nullptr ) == served_.contains( id ) );
         RC_ASSERT( world_.manages( id ) == ( world_.helper && managed_.contains( id ) ) );
         if ( world_.serves( id ) ) {
            checkServed( id );
         }
      }
   }

   void checkServed( Netka::IntfId id ) {
      auto const filter = world_.filter( id );
      auto const & config = *served_[id];
      RC_ASSERT( filter->intfConfig()->notifier().get() == &config );
      bool const works = mode_ == 2 && filter->intfStatus() && config.enabled();
      if ( !works ) {
         RC_ASSERT( world_.walkResult( id ) == 0U );
         return;
      }
      auto const status = world_.status( id );
      bool const own = !config.addr().isZero();
      RC_ASSERT( status->addr() == ( own ? config.addr() : status->burnedInAddr() ) );
      RC_ASSERT( status->routedAddr() == ( own ? config.addr() : bridgeMac ) );
      if ( world_.walkResult( id ) == 0U ) { // nothing is under way: the MTU has arrived
         U32 const mtu = config.mtu() ? config.mtu() : world_.globalConfig->l3Mtu();
         RC_ASSERT( status->mtu() == mtu );
         RC_ASSERT( world_.local( id )->mtu() == mtu );
      } else {
         RC_ASSERT( world_.scheduler->pending() > 0U );
      }
   }

   // Everything that the interface machinery may write.
   std::map< std::string, std::string > published() const {
      std::map< std::string, std::string > all;
      for ( auto const id : intfs_ ) {
         auto const status = world_.status( id );
         all[id.stringValue()] = status->addr().stringValue() + " " + status->routedAddr().stringValue() + " " +
                                 std::to_string( status->maxMtu() ) + " " + std::to_string( status->mtu() ) + " " +
                                 std::to_string( world_.local( id )->mtu() );
         for ( unsigned number = 0; number < subIntfCount; ++number ) {
            auto const name = id.stringValue() + "." + std::to_string( number );
            auto const sub = world_.subIntfs->intfStatus( Netka::IntfId( name ) );
            if ( sub && sub->mtu() ) { // one that comes or goes without an MTU wasn't written
               all[name] = std::to_string( sub->mtu() );
            }
         }
      }
      return all;
   }

   InterfaceWorld world_;
   std::vector< Netka::IntfId > intfs_;
   std::vector< Corvo::Ptr< Interface::EthPhyIntfConfig > > configs_;
   std::map< Netka::IntfId, Corvo::Ptr< Interface::EthPhyIntfConfig > > served_;
   std::set< Netka::IntfId > managed_;
   U8 mode_ = 2;
};

} // namespace
} // namespace DaceFapNi

template<>
struct rc::Arbitrary< DaceFapNi::Step > {
   static Gen< DaceFapNi::Step > arbitrary() {
      return gen::build< DaceFapNi::Step >( gen::set( &DaceFapNi::Step::kind, gen::inRange( 0U, 13U ) ),
                                            gen::set( &DaceFapNi::Step::a, gen::inRange( 0U, DaceFapNi::intfCount ) ),
                                            gen::set( &DaceFapNi::Step::b, gen::inRange( 0U, 60U ) ),
                                            gen::set( &DaceFapNi::Step::c, gen::inRange( 0U, 4U ) ) );
   }
};

namespace DaceFapNi {
namespace {

TEST( InterfaceProperty, AnyHistoryKeepsTheInvariants ) {
   EXPECT_TRUE( rc::check( "invariants hold after every step of any history", []( bool withHelper ) {
      U32 const before = Corvo::Node::liveCount();
      {
         auto const steps = *rc::gen::scale( 3, rc::gen::arbitrary< std::vector< Step > >() ).as( "steps" );
         History history( withHelper );
         for ( auto const & step : steps ) {
            history.play( step );
         }
         history.end();
      }
      RC_ASSERT( Corvo::Node::liveCount() == before );
   } ) );
}

} // namespace
} // namespace DaceFapNi
