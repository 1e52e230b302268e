#include "agent/MergeMachines.h"

namespace Rex {

// Hears every change of one entry of the directory.
class DirFollower::EntryNotifiee : public NotifieeConst {
 public:
   EntryNotifiee( Corvo::Ptr< Entity const > const & entry, Changed changed ) : changed_( std::move( changed ) ) {
      notifierEntityIs( entry );
      isRegisteredNotifieeIs( true );
   }
   void onAttribute( AttributeId, void const * ) override { changed_(); }

 private:
   Changed changed_;
};

DirFollower::DirFollower( Corvo::Ptr< Dir const > const & dir, Changed changed )
   : dir_( dir ), changed_( std::move( changed ) ) {}

DirFollower::~DirFollower() {
   activeIs( false );
}

void DirFollower::activeIs( bool active ) {
   if ( active_ == active ) {
      return;
   }
   active_ = active;
   dir_.activeIs( active, dirDispatch, this );
   followEntries();
}

void DirFollower::followEntries() {
   std::map< Corvo::String, Corvo::Ptr< EntryNotifiee > > followed;
   if ( active_ && dir_ ) {
      for ( auto const & [name, entity] : dir_->entries() ) {
         auto const known = entries_.find( name );
         auto const & notifiee = followed
                                    .emplace( name,
                                              known != entries_.end() && known->second->notifierEntity() == entity
                                                 ? known->second
                                                 : Corvo::makePtr< EntryNotifiee >( entity, changed_ ) )
                                    .first->second;
         notifiee->hasNotificationActiveIs( true );
      }
   }
   std::swap( entries_, followed );
   for ( auto const & [name, notifiee] : followed ) {
      if ( auto const kept = entries_.find( name ); kept == entries_.end() || kept->second != notifiee ) {
         notifiee->hasNotificationActiveIs( false );
      }
   }
}

void DirFollower::dirDispatch( Corvo::Publisher *, Corvo::Subscriber * slot, short, void const *, void const * ) {
   auto * const self = slot->owner< DirFollower >();
   self->followEntries();
   Changed const changed = self->changed_; // the follower may go while it runs
   changed();
}

} // namespace Rex

namespace {

// Makes a map attribute equal to `wanted`, announcing only what differs.
template< class Key, class Type, class Set, class Del >
void makeEqual( std::map< Key, Type > const & present, std::map< Key, Type > const & wanted, Set set, Del del ) {
   std::vector< Key > gone;
   for ( auto const & [key, value] : present ) {
      if ( !wanted.contains( key ) ) {
         gone.push_back( key );
      }
   }
   for ( auto const & key : gone ) {
      del( key );
   }
   for ( auto const & [key, value] : wanted ) {
      set( key, value );
   }
}

} // namespace

namespace NexthopGroup {

using MergeSm = NexthopGroupCliDynamicConfigUdpDestPortMergeSm;

MergeSm::NexthopGroupCliDynamicConfigUdpDestPortMergeSm( Corvo::Ptr< Config > const & output,
                                                         Corvo::Ptr< Config const > const & cli,
                                                         Corvo::Ptr< Rex::Dir const > const & dynamic,
                                                         Oxa::SmControl const & )
   : output_( output ), cli_( cli ), dynamic_( dynamic ), follower_( dynamic, [this] { merge(); } ) {}

MergeSm::~NexthopGroupCliDynamicConfigUdpDestPortMergeSm() {
   hasNotificationActiveIs( false );
}

Corvo::Ptr< MergeSm >
MergeSm::NexthopGroupCliDynamicConfigUdpDestPortMergeSmIs( Corvo::Ptr< Config > const & output,
                                                           Corvo::Ptr< Config const > const & cli,
                                                           Corvo::Ptr< Rex::Dir const > const & dynamic,
                                                           Oxa::SmControl const & control ) {
   return Corvo::makePtr< MergeSm >( output, cli, dynamic, control );
}

void MergeSm::hasNotificationActiveIs( bool active ) {
   if ( hasNotificationActive() == active ) {
      return;
   }
   nodeFlagSet( Corvo::NodeFlag::notificationsActive, active );
   cli_.activeIs( active, cliDispatch, this );
   follower_.activeIs( active );
   if ( active ) {
      merge();
   }
}

void MergeSm::merge() {
   Corvo::Ptr< MergeSm > const self = this;
   std::map< L3::Tunnel::PayloadType, U16 > wanted;
   auto const add = [&]( Config const & config ) {
      wanted.insert( config.udpDestPort().begin(), config.udpDestPort().end() ); // what is there stays
   };
   if ( cli_ ) {
      add( *cli_.ptr() );
   }
   if ( dynamic_ ) {
      for ( auto const & [name, entity] : dynamic_->entries() ) {
         if ( auto const input = Corvo::ptrCast< Config >( entity ) ) {
            add( *input );
         }
      }
   }
   makeEqual(
      output_->udpDestPort(),
      wanted,
      [&]( auto const & key, U16 port ) { output_->udpDestPortIs( key, port ); },
      [&]( auto const & key ) { output_->udpDestPortDel( key ); } );
}

void MergeSm::cliDispatch( Corvo::Publisher *, Corvo::Subscriber * slot, short, void const *, void const * ) {
   slot->owner< MergeSm >()->merge();
}

} // namespace NexthopGroup

namespace Tunnel::Decap {

// Hears the groups of one input and their payload types.
class DecapGroupConfigMergeSm::InputFollower : public Rex::NotifieeConst {
 public:
   InputFollower( Corvo::Ptr< Rex::Entity const > const & input, DecapGroupConfigMergeSm * sm ) : sm_( sm ) {
      notifierEntityIs( input );
      isRegisteredNotifieeIs( true );
      hasNotificationActiveIs( true );
   }
   void onAttribute( Rex::AttributeId, void const * ) override { sm_->changed(); }

 private:
   DecapGroupConfigMergeSm * sm_;
};

DecapGroupConfigMergeSm::DecapGroupConfigMergeSm( Corvo::Ptr< Config > const & output,
                                                  Corvo::Ptr< ConfigInput const > const & cli,
                                                  Corvo::Ptr< Rex::Dir const > const & dynamic,
                                                  Corvo::Ptr< Stordb::EntityManager > const & )
   : output_( output ), cli_( cli ), dynamic_( dynamic ), follower_( dynamic, [this] { changed(); } ) {}

DecapGroupConfigMergeSm::~DecapGroupConfigMergeSm() {
   hasNotificationActiveIs( false );
}

Corvo::Ptr< DecapGroupConfigMergeSm >
DecapGroupConfigMergeSm::DecapGroupConfigMergeSmIs( Corvo::Ptr< Config > const & output,
                                                    Corvo::Ptr< ConfigInput const > const & cli,
                                                    Corvo::Ptr< Rex::Dir const > const & dynamic,
                                                    Corvo::Ptr< Stordb::EntityManager > const & entityManager ) {
   return Corvo::makePtr< DecapGroupConfigMergeSm >( output, cli, dynamic, entityManager );
}

void DecapGroupConfigMergeSm::hasNotificationActiveIs( bool active ) {
   if ( hasNotificationActive() == active ) {
      return;
   }
   nodeFlagSet( Corvo::NodeFlag::notificationsActive, active );
   follower_.activeIs( active );
   changed();
}

void DecapGroupConfigMergeSm::changed() {
   Corvo::Ptr< DecapGroupConfigMergeSm > const self = this;
   std::map< U16, U8 > wanted; // payload type by port
   std::vector< Corvo::Ptr< InputFollower > > followed;
   auto const add = [&]( Corvo::Ptr< ConfigInput const > const & input ) {
      followed.push_back( Corvo::makePtr< InputFollower >( input, this ) );
      for ( auto const & [port, group] : input->decapGroup() ) {
         followed.push_back( Corvo::makePtr< InputFollower >( group, this ) );
         wanted.emplace( port, group->payloadType() ); // what is there stays
      }
   };
   if ( hasNotificationActive() ) {
      if ( cli_ ) {
         add( cli_ );
      }
      if ( dynamic_ ) {
         for ( auto const & [name, entity] : dynamic_->entries() ) {
            if ( auto const input = Corvo::ptrCast< ConfigInput >( entity ) ) {
               add( input );
            }
         }
      }
   }
   std::swap( inputs_, followed );
   if ( !hasNotificationActive() ) {
      return;
   }
   std::map< U16, U8 > present;
   for ( auto const & [port, group] : output_->decapGroup() ) {
      present.emplace( port, group->payloadType() );
   }
   makeEqual(
      present,
      wanted,
      [&]( U16 port, U8 payloadType ) {
         auto const known = present.find( port );
         if ( known == present.end() || known->second != payloadType ) {
            auto const group = Corvo::makePtr< DecapGroup >( port );
            group->payloadTypeIs( payloadType );
            output_->decapGroupIs( group );
         }
      },
      [&]( U16 port ) { output_->decapGroupDel( port ); } );
}

} // namespace Tunnel::Decap

namespace Routing::Hardware {

using PrefixMergerSm = PrefixLensInExactMatchMergerSm;

PrefixMergerSm::PrefixLensInExactMatchMergerSm( Corvo::Ptr< RouteStatusGen const > const & routeStatus,
                                                Corvo::Ptr< PrefixLensInExactMatch > const & output,
                                                Oxa::SmControl const & )
   : routeStatus_( routeStatus ), output_( output ) {}

PrefixMergerSm::~PrefixLensInExactMatchMergerSm() {
   hasNotificationActiveIs( false );
}

Corvo::Ptr< PrefixMergerSm >
PrefixMergerSm::PrefixLensInExactMatchMergerSmIs( Corvo::Ptr< RouteStatusGen const > const & routeStatus,
                                                  Corvo::Ptr< PrefixLensInExactMatch > const & output,
                                                  Oxa::SmControl const & control ) {
   return Corvo::makePtr< PrefixMergerSm >( routeStatus, output, control );
}

void PrefixMergerSm::hasNotificationActiveIs( bool active ) {
   if ( hasNotificationActive() == active ) {
      return;
   }
   nodeFlagSet( Corvo::NodeFlag::notificationsActive, active );
   routeStatus_.activeIs( active, routeStatusDispatch, this );
   if ( active ) {
      merge();
   }
}

void PrefixMergerSm::merge() {
   Corvo::Ptr< PrefixMergerSm > const self = this;
   makeEqual(
      output_->prefixLen(),
      routeStatus_ ? routeStatus_->prefixLensInExactMatch() : std::map< U8, U8 >{},
      [&]( U8 key, U8 length ) { output_->prefixLenIs( key, length ); },
      [&]( U8 key ) { output_->prefixLenDel( key ); } );
}

void PrefixMergerSm::routeStatusDispatch(
   Corvo::Publisher *, Corvo::Subscriber * slot, short, void const *, void const * ) {
   slot->owner< PrefixMergerSm >()->merge();
}

} // namespace Routing::Hardware
