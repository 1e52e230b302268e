// An L3Sm on inputs that tell whenever somebody subscribes to them or unsubscribes, so that a test sees in what order
// the machine goes through its inputs, and what its children are doing at that moment.
//
//    ObservedL3Sm observed;
//    observed.build();                              // constructed, not activated
//    observed.sm->hasNotificationActiveIs( true );
//    observed.looks;                                // "phySmState", "mplsRoutingInfo", ...
#pragma once

#include "MountedSwitch.h"

namespace Test {

// An entity that calls back when its publisher is asked for: subscribing and unsubscribing do so, setting doesn't.
template< class T >
class Watchful : public T {
 public:
   using T::T;
   Corvo::Publisher * publisher() const override {
      if ( looked ) {
         looked();
      }
      return T::publisher();
   }
   std::function< void() > looked;
};

struct ObservedL3Sm : MountedSwitch {
   using Looks = std::vector< std::string >;

   // With both interface directories, or waiting for them.
   explicit ObservedL3Sm( bool withDirectories = true, Simulator::SwitchDescription const & description = oneFap() );
   ~ObservedL3Sm();

   // Constructs the machine and nothing else. What it looked at is in `looks`.
   void build() { sm = Corvo::makePtr< DaceFapNi::L3Sm >( in ); }
   Looks take() { return std::exchange( looks, {} ); }
   U64 operations() const { return sw.journal().operationCount(); }

   Corvo::Ptr< Watchful< DaceFapNi::PhySmStateSharedStatus > > phySmStateSharedStatus;
   Corvo::Ptr< Watchful< DaceFapNi::PhySmStateInfo > > phySmState;
   Corvo::Ptr< Watchful< Mpls::RoutingInfo > > mplsRoutingInfo;
   Corvo::Ptr< Watchful< Vxlan::VtiStatusDir > > vtiStatusDir;
   Corvo::Ptr< Watchful< Evpn::EvpnStatus > > evpnStatus;
   Corvo::Ptr< Watchful< Hardware::DaceLag::Status > > daceLagStatus;
   Corvo::Ptr< Watchful< Routing::Hardware::PrefixLensInExactMatch > > mergedPrefixLens;
   Corvo::Ptr< Watchful< Routing::Hardware::Config > > routingHwConfig;
   Corvo::Ptr< Watchful< DaceFapNi::DriverSetupSmStateInfo > > driverSetupSmStateInfo;
   // The children's own.
   Corvo::Ptr< Watchful< Vxlan::EcnConfig > > vxlanEcnConfig;
   Corvo::Ptr< Watchful< Mpls::Config > > mplsConfig;
   Corvo::Ptr< Watchful< Tunnel::Decap::Config > > dgConfig;

   DaceFapNi::L3SmArguments in;
   Looks looks;
   std::function< void( std::string const & ) > onLook; // after it was noted
   Corvo::Ptr< DaceFapNi::L3Sm > sm;

 private:
   template< class T >
   void watch( Corvo::Ptr< Watchful< T > > & input, char const * name, auto & argument );
};

} // namespace Test
