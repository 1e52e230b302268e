#include "agent/MergeMachines.h"

#include <algorithm>

namespace {

// The inputs that are there, in the order in which they count.
template< class Input >
std::vector< Corvo::Ptr< Input const > > inputsOf( Corvo::Ptr< Input const > const & cli,
                                                   Corvo::Ptr< Rex::Dir const > const & dynamic ) {
   std::vector< Corvo::Ptr< Input const > > inputs;
   if ( cli ) {
      inputs.push_back( cli );
   }
   if ( dynamic ) {
      for ( auto const & [name, entity] : dynamic->entries() ) {
         if ( auto const input = Corvo::ptrCast< Input const >( entity ) ) {
            inputs.push_back( input );
         }
      }
   }
   return inputs;
}

template< class Entries >
auto keysOf( Entries const & entries ) {
   std::vector< typename Entries::key_type > keys;
   for ( auto const & [key, value] : entries ) {
      keys.push_back( key );
   }
   return keys;
}

} // namespace

namespace NexthopGroup {

using UdpDestPortMergeSm = NexthopGroupCliDynamicConfigUdpDestPortMergeSm;

UdpDestPortMergeSm::NexthopGroupCliDynamicConfigUdpDestPortMergeSm( Corvo::Ptr< Config > const & output,
                                                                    Corvo::Ptr< Config const > const & cli,
                                                                    Corvo::Ptr< Rex::Dir const > const & dynamic,
                                                                    Oxa::SmControl const & )
   : Oxa::MergeSm< L3::Tunnel::PayloadType, U16 >( cli, dynamic ), output_( output ), cli_( cli ), dynamic_( dynamic ) {
}

UdpDestPortMergeSm::~NexthopGroupCliDynamicConfigUdpDestPortMergeSm() {
   hasNotificationActiveIs( false );
}

Corvo::Ptr< UdpDestPortMergeSm >
UdpDestPortMergeSm::NexthopGroupCliDynamicConfigUdpDestPortMergeSmIs( Corvo::Ptr< Config > const & output,
                                                                      Corvo::Ptr< Config const > const & cli,
                                                                      Corvo::Ptr< Rex::Dir const > const & dynamic,
                                                                      Oxa::SmControl const & control ) {
   return Corvo::makePtr< UdpDestPortMergeSm >( output, cli, dynamic, control );
}

UdpDestPortMergeSm::Entries UdpDestPortMergeSm::wanted() const {
   Entries entries;
   for ( auto const & input : inputsOf( cli_, dynamic_ ) ) {
      entries.insert( input->udpDestPort().begin(), input->udpDestPort().end() );
   }
   return entries;
}

std::vector< L3::Tunnel::PayloadType > UdpDestPortMergeSm::presentKeys() const {
   return keysOf( output_->udpDestPort() );
}

void UdpDestPortMergeSm::entryIs( L3::Tunnel::PayloadType const & payloadType, U16 const & port ) {
   output_->udpDestPortIs( payloadType, port );
}

void UdpDestPortMergeSm::entryDel( L3::Tunnel::PayloadType const & payloadType ) {
   output_->udpDestPortDel( payloadType );
}

} // namespace NexthopGroup

namespace Tunnel::Decap {

DecapGroupConfigMergeSm::DecapGroupConfigMergeSm( Corvo::Ptr< Config > const & output,
                                                  Corvo::Ptr< ConfigInput const > const & cli,
                                                  Corvo::Ptr< Rex::Dir const > const & dynamic,
                                                  Corvo::Ptr< Stordb::EntityManager > const & )
   : Oxa::MergeSm< U16, U8 >( cli, dynamic ), output_( output ), cli_( cli ), dynamic_( dynamic ) {}

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

DecapGroupConfigMergeSm::Entries DecapGroupConfigMergeSm::wanted() const {
   Entries entries;
   for ( auto const & input : inputsOf( cli_, dynamic_ ) ) {
      for ( auto const & [udpPort, group] : input->decapGroup() ) {
         entries.emplace( udpPort, group->payloadType() );
      }
   }
   return entries;
}

std::vector< U16 > DecapGroupConfigMergeSm::presentKeys() const {
   std::vector< U16 > keys;
   for ( auto const & [udpPort, group] : output_->decapGroup() ) {
      keys.push_back( udpPort );
   }
   std::sort( keys.begin(), keys.end() );
   return keys;
}

void DecapGroupConfigMergeSm::entryIs( U16 const & udpPort, U8 const & payloadType ) {
   auto const present = output_->decapGroup( udpPort );
   if ( !present || present->payloadType() != payloadType ) {
      auto const group = Corvo::makePtr< DecapGroup >( udpPort );
      group->payloadTypeIs( payloadType );
      output_->decapGroupIs( group );
   }
}

void DecapGroupConfigMergeSm::entryDel( U16 const & udpPort ) {
   output_->decapGroupDel( udpPort );
}

} // namespace Tunnel::Decap

namespace Routing::Hardware {

PrefixLensInExactMatchMergerSm::PrefixLensInExactMatchMergerSm( Corvo::Ptr< RouteStatusGen const > const & routeStatus,
                                                                Corvo::Ptr< PrefixLensInExactMatch > const & output,
                                                                Oxa::SmControl const & )
   : Oxa::MergeSm< U8, U8 >( routeStatus, nullptr ), routeStatus_( routeStatus ), output_( output ) {}

PrefixLensInExactMatchMergerSm::~PrefixLensInExactMatchMergerSm() {
   hasNotificationActiveIs( false );
}

Corvo::Ptr< PrefixLensInExactMatchMergerSm > PrefixLensInExactMatchMergerSm::PrefixLensInExactMatchMergerSmIs(
   Corvo::Ptr< RouteStatusGen const > const & routeStatus,
   Corvo::Ptr< PrefixLensInExactMatch > const & output,
   Oxa::SmControl const & control ) {
   return Corvo::makePtr< PrefixLensInExactMatchMergerSm >( routeStatus, output, control );
}

PrefixLensInExactMatchMergerSm::Entries PrefixLensInExactMatchMergerSm::wanted() const {
   return routeStatus_ ? routeStatus_->prefixLensInExactMatch() : Entries{};
}

std::vector< U8 > PrefixLensInExactMatchMergerSm::presentKeys() const {
   return keysOf( output_->prefixLen() );
}

void PrefixLensInExactMatchMergerSm::entryIs( U8 const & key, U8 const & prefixLen ) {
   output_->prefixLenIs( key, prefixLen );
}

void PrefixLensInExactMatchMergerSm::entryDel( U8 const & key ) {
   output_->prefixLenDel( key );
}

} // namespace Routing::Hardware
