// The merge machines: each keeps one output equal to the union of its inputs.
//
// Where several inputs name one key, the one named first below counts. An input may be null: it contributes nothing.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "corvo/Watched.h"
#include "rex/Dir.h"
#include "rex/Notifiee.h"
#include "state/Overlays.h"
#include "state/Routing.h"
#include "stordb/Stordb.h"

namespace Oxa {

// How a state machine is controlled; the default says nothing special.
struct SmControl {
   void * control = nullptr;
   U64 word = 0;
   Corvo::String name;
   U16 mode = 3;
   friend bool operator==( SmControl const &, SmControl const & ) = default;
};

} // namespace Oxa

namespace Rex {

// Follows the entries of a directory and hears every change of every entry.
class DirFollower {
 public:
   using Changed = std::function< void() >;
   DirFollower( Corvo::Ptr< Dir const > const & dir, Changed changed );
   ~DirFollower();
   // Idempotent. Turning on follows what the directory holds then.
   void activeIs( bool active );

 private:
   class EntryNotifiee;
   void followEntries();
   static void dirDispatch( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * );

   Corvo::Watched< Dir const > dir_;
   Changed changed_;
   bool active_ = false;
   std::map< Corvo::String, Corvo::Ptr< EntryNotifiee > > entries_;
};

} // namespace Rex

namespace NexthopGroup {

// Destination ports: the static configuration first, then the directory's inputs by name.
class NexthopGroupCliDynamicConfigUdpDestPortMergeSm : public Corvo::Node {
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
   // Idempotent. Turning on merges at once.
   void hasNotificationActiveIs( bool active );

 private:
   void merge();
   static void cliDispatch( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * );

   Corvo::Ptr< Config > output_;
   Corvo::Watched< Config const > cli_;
   Corvo::Ptr< Rex::Dir const > dynamic_;
   Rex::DirFollower follower_;
};

} // namespace NexthopGroup

namespace Tunnel::Decap {

// Decap groups: the static input first, then the directory's inputs by name.
class DecapGroupConfigMergeSm : public Corvo::Node {
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
   // Idempotent. Turning on merges at once.
   void hasNotificationActiveIs( bool active );

 private:
   class InputFollower;
   // Follows what the inputs hold now, and makes the output equal to it.
   void changed();

   Corvo::Ptr< Config > output_;
   Corvo::Ptr< ConfigInput const > cli_;
   Corvo::Ptr< Rex::Dir const > dynamic_;
   Rex::DirFollower follower_;
   std::vector< Corvo::Ptr< InputFollower > > inputs_;
};

} // namespace Tunnel::Decap

namespace Routing::Hardware {

// Prefix lengths: those of the route status.
class PrefixLensInExactMatchMergerSm : public Corvo::Node {
 public:
   PrefixLensInExactMatchMergerSm( Corvo::Ptr< RouteStatusGen const > const & routeStatus,
                                   Corvo::Ptr< PrefixLensInExactMatch > const & output,
                                   Oxa::SmControl const & control );
   ~PrefixLensInExactMatchMergerSm() override;
   static Corvo::Ptr< PrefixLensInExactMatchMergerSm >
   PrefixLensInExactMatchMergerSmIs( Corvo::Ptr< RouteStatusGen const > const & routeStatus,
                                     Corvo::Ptr< PrefixLensInExactMatch > const & output,
                                     Oxa::SmControl const & control );
   // Idempotent. Turning on merges at once.
   void hasNotificationActiveIs( bool active );

 private:
   void merge();
   static void routeStatusDispatch( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * );

   Corvo::Watched< RouteStatusGen const > routeStatus_;
   Corvo::Ptr< PrefixLensInExactMatch > output_;
};

} // namespace Routing::Hardware
