// The merge machines: each keeps one output equal to the union of its inputs.
//
//    auto const sm = DecapGroupConfigMergeSm::DecapGroupConfigMergeSmIs( output, cli, dynamic, entityManager );
//    sm->hasNotificationActiveIs( true );      // merges now, and on every change of an input
//
// Where several inputs name one key, the one named first below counts; entries of a directory count in the order of
// their names. An input may be null, and a directory may hold what is no input: they contribute nothing. Only what
// changes is announced: keys that go first, then those that come or change, in the order of the keys.
//
// Whoever hears the output may do anything, also change the inputs or drop the machine.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "rex/Dir.h"
#include "rex/TreeFollower.h"
#include "state/Overlays.h"
#include "state/Routing.h"
#include "stordb/Stordb.h"

namespace Oxa {

// How a state machine is controlled; the default says nothing special. The merge machines need no control.
struct SmControl {
   void * control = nullptr;
   U64 word = 0;
   Corvo::String name;
   U16 mode = 3;
   friend bool operator==( SmControl const &, SmControl const & ) = default;
};

// What the merge machines have in common. A derived machine says what is wanted, what is there, and how to change it.
template< class Key, class Value >
class MergeSm : public Corvo::Node {
 public:
   using Entries = std::map< Key, Value >;

   // Idempotent. Turning on merges at once; turning off leaves the output as it is.
   void hasNotificationActiveIs( bool active ) {
      if ( hasNotificationActive() == active ) {
         return;
      }
      nodeFlagSet( Corvo::NodeFlag::notificationsActive, active );
      first_.activeIs( active );
      second_.activeIs( active );
      ++round_;
      if ( active ) {
         merge();
      }
   }

 protected:
   MergeSm( Corvo::Ptr< Rex::Entity const > const & first, Corvo::Ptr< Rex::Entity const > const & second )
      : first_( first, [this] { merge(); } ), second_( second, [this] { merge(); } ) {}

   // The union of the inputs.
   virtual Entries wanted() const = 0;
   virtual std::vector< Key > presentKeys() const = 0;
   // Does nothing where the output has this value.
   virtual void entryIs( Key const & key, Value const & value ) = 0;
   virtual void entryDel( Key const & key ) = 0;

 private:
   void merge() {
      Corvo::Ptr< MergeSm > const self( this );
      // A change of an input during the walk merges anew, further in, and makes this round obsolete.
      U32 const round = ++round_;
      Entries const entries = wanted();
      for ( Key const & key : presentKeys() ) {
         if ( !entries.contains( key ) ) {
            entryDel( key );
         }
         if ( round != round_ ) {
            return;
         }
      }
      for ( auto const & [key, value] : entries ) {
         entryIs( key, value );
         if ( round != round_ ) {
            return;
         }
      }
   }

   Rex::TreeFollower first_;
   Rex::TreeFollower second_;
   U32 round_ = 0;
};

} // namespace Oxa

namespace NexthopGroup {

// Destination ports: the static configuration first, then the directory's inputs by name.
class NexthopGroupCliDynamicConfigUdpDestPortMergeSm : public Oxa::MergeSm< L3::Tunnel::PayloadType, U16 > {
 public:
   using Config = L3::Tunnel::UdpDestinationPortConfig;

   NexthopGroupCliDynamicConfigUdpDestPortMergeSm( Corvo::Ptr< Config > const & output,
                                                   Corvo::Ptr< Config const > const & cli,
                                                   Corvo::Ptr< Rex::Dir const > const & dynamic,
                                                   Oxa::SmControl const & control );
   ~NexthopGroupCliDynamicConfigUdpDestPortMergeSm() override;
   static Corvo::Ptr< NexthopGroupCliDynamicConfigUdpDestPortMergeSm >
   NexthopGroupCliDynamicConfigUdpDestPortMergeSmIs( Corvo::Ptr< Config > const & output,
                                                     Corvo::Ptr< Config const > const & cli,
                                                     Corvo::Ptr< Rex::Dir const > const & dynamic,
                                                     Oxa::SmControl const & control );

 private:
   Entries wanted() const override;
   std::vector< L3::Tunnel::PayloadType > presentKeys() const override;
   void entryIs( L3::Tunnel::PayloadType const & payloadType, U16 const & port ) override;
   void entryDel( L3::Tunnel::PayloadType const & payloadType ) override;

   Corvo::Ptr< Config > output_;
   Corvo::Ptr< Config const > cli_;
   Corvo::Ptr< Rex::Dir const > dynamic_;
};

} // namespace NexthopGroup

namespace Tunnel::Decap {

// Payload types by UDP port: the static input first, then the directory's inputs by name. The groups of the output are
// the machine's own; one whose payload type changes is replaced, so that the change is announced by the collection.
class DecapGroupConfigMergeSm : public Oxa::MergeSm< U16, U8 > {
 public:
   DecapGroupConfigMergeSm( Corvo::Ptr< Config > const & output,
                            Corvo::Ptr< ConfigInput const > const & cli,
                            Corvo::Ptr< Rex::Dir const > const & dynamic,
                            Corvo::Ptr< Stordb::EntityManager > const & entityManager );
   ~DecapGroupConfigMergeSm() override;
   static Corvo::Ptr< DecapGroupConfigMergeSm >
   DecapGroupConfigMergeSmIs( Corvo::Ptr< Config > const & output,
                              Corvo::Ptr< ConfigInput const > const & cli,
                              Corvo::Ptr< Rex::Dir const > const & dynamic,
                              Corvo::Ptr< Stordb::EntityManager > const & entityManager );

 private:
   Entries wanted() const override;
   std::vector< U16 > presentKeys() const override;
   void entryIs( U16 const & udpPort, U8 const & payloadType ) override;
   void entryDel( U16 const & udpPort ) override;

   Corvo::Ptr< Config > output_;
   Corvo::Ptr< ConfigInput const > cli_;
   Corvo::Ptr< Rex::Dir const > dynamic_;
};

} // namespace Tunnel::Decap

namespace Routing::Hardware {

// Prefix lengths: those of the route status.
class PrefixLensInExactMatchMergerSm : public Oxa::MergeSm< U8, U8 > {
 public:
   PrefixLensInExactMatchMergerSm( Corvo::Ptr< RouteStatusGen const > const & routeStatus,
                                   Corvo::Ptr< PrefixLensInExactMatch > const & output,
                                   Oxa::SmControl const & control );
   ~PrefixLensInExactMatchMergerSm() override;
   static Corvo::Ptr< PrefixLensInExactMatchMergerSm >
   PrefixLensInExactMatchMergerSmIs( Corvo::Ptr< RouteStatusGen const > const & routeStatus,
                                     Corvo::Ptr< PrefixLensInExactMatch > const & output,
                                     Oxa::SmControl const & control );

 private:
   Entries wanted() const override;
   std::vector< U8 > presentKeys() const override;
   void entryIs( U8 const & key, U8 const & prefixLen ) override;
   void entryDel( U8 const & key ) override;

   Corvo::Ptr< RouteStatusGen const > routeStatus_;
   Corvo::Ptr< PrefixLensInExactMatch > output_;
};

} // namespace Routing::Hardware
