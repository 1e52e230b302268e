#include "rex/EntityAttributes.h"
#include "state/CellStatus.h"
#include "state/Interfaces.h"
#include "state/Overlays.h"
#include "state/Routing.h"

#include <algorithm>
#include <iterator>

REX_DEFINE( Hardware::Dace::Cell::FapStatus, "Hardware::Dace::Cell::FapStatus" );
REX_DEFINE( Hardware::Dace::Cell::CellStatus, "Hardware::Dace::Cell::CellStatus" );

REX_DEFINE( Interface::IntfConfig, "Interface::IntfConfig" );
REX_DEFINE( Interface::EthPhyIntfConfig, "Interface::EthPhyIntfConfig" );
REX_DEFINE( Interface::AllEthPhyIntfConfigDir, "Interface::AllEthPhyIntfConfigDir" );
REX_DEFINE( Interface::IntfStatus, "Interface::IntfStatus" );
REX_DEFINE( Interface::EthIntfStatus, "Interface::EthIntfStatus" );
REX_DEFINE( Interface::EthPhyIntfStatus, "Interface::EthPhyIntfStatus" );
REX_DEFINE( Interface::AllEthPhyIntfStatusDir, "Interface::AllEthPhyIntfStatusDir" );
REX_DEFINE( Interface::IntfStatusLocal, "Interface::IntfStatusLocal" );
REX_DEFINE( Interface::EthIntfStatusLocal, "Interface::EthIntfStatusLocal" );
REX_DEFINE( Interface::EthPhyIntfStatusLocal, "Interface::EthPhyIntfStatusLocal" );
REX_DEFINE( Interface::EthPhyIntfStatusLocalDir, "Interface::EthPhyIntfStatusLocalDir" );
REX_DEFINE( Interface::SubIntfStatus, "Interface::SubIntfStatus" );
REX_DEFINE( Interface::SubIntfStatusDir, "Interface::SubIntfStatusDir" );
REX_DEFINE( Interface::SubIntfStatusLocal, "Interface::SubIntfStatusLocal" );
REX_DEFINE( Interface::SubIntfStatusLocalDir, "Interface::SubIntfStatusLocalDir" );
REX_DEFINE( Interface::GlobalIntfConfig, "Interface::GlobalIntfConfig" );
REX_DEFINE( Interface::EffectiveL3Mtu, "Interface::EffectiveL3Mtu" );
REX_DEFINE( Interface::Hardware::Capability, "Interface::Hardware::Capability" );

REX_DEFINE( Bridging::Config, "Bridging::Config" );
REX_DEFINE( Bridging::HwCapabilities, "Bridging::HwCapabilities" );
REX_DEFINE( RouterMac::HwCapability, "RouterMac::HwCapability" );
REX_DEFINE( Routing::Hardware::Config, "Routing::Hardware::Config" );
REX_DEFINE( Routing::Hardware::RouteStatusGen, "Routing::Hardware::RouteStatusGen" );
// The database knows this one type under a name with a single colon, and mounts must ask for it so.
REX_DEFINE( Routing::Hardware::RouteStatus, "Routing:Hardware::RouteStatus" );
REX_DEFINE( Routing::Hardware::PrefixLensInExactMatch, "Routing::Hardware::PrefixLensInExactMatch" );
REX_DEFINE( Mpls::RoutingInfo, "Mpls::RoutingInfo" );
REX_DEFINE( Mpls::Config, "Mpls::Config" );
REX_DEFINE( Mpls::Hardware::Capability, "Mpls::Hardware::Capability" );

REX_DEFINE( Vxlan::VtiStatus, "Vxlan::VtiStatus" );
REX_DEFINE( Vxlan::VtiStatusDir, "Vxlan::VtiStatusDir" );
REX_DEFINE( Vxlan::EcnConfig, "Vxlan::EcnConfig" );
REX_DEFINE( Evpn::EvpnStatus, "Evpn::EvpnStatus" );
REX_DEFINE( L3::Tunnel::UdpDestinationPortConfig, "L3::Tunnel::UdpDestinationPortConfig" );
REX_DEFINE( Tunnel::Decap::DecapGroup, "Tunnel::Decap::DecapGroup" );
REX_DEFINE( Tunnel::Decap::ConfigInput, "Tunnel::Decap::ConfigInput" );
REX_DEFINE( Tunnel::Decap::Config, "Tunnel::Decap::Config" );
REX_DEFINE( Hardware::Dace::LoadBalanceHwConfig, "Hardware::Dace::LoadBalanceHwConfig" );
REX_DEFINE( Hardware::DaceLag::Status, "Hardware::DaceLag::Status" );

namespace {

Hardware::ChipType chipTypeFromValue( Rex::Value const & value ) {
   auto const text = Rex::Codec< std::string >::fromValue( value );
   std::string known;
   for ( auto const chipType : Hardware::allChipTypes ) {
      if ( text == chipTypeName( chipType ) ) {
         return chipType;
      }
      known += known.empty() ? "" : ", ";
      known += chipTypeName( chipType );
   }
   throw Rex::ValueError( "", "there is no chip type \"" + text + "\"; there are " + known );
}

} // namespace

Rex::ValueType Rex::Codec< Hardware::Dace::FapRevision >::type() {
   std::vector< std::string > chipTypes;
   for ( auto const chipType : Hardware::allChipTypes ) {
      chipTypes.emplace_back( chipTypeName( chipType ) );
   }
   ValueType const chip{ .kind = ValueType::Kind::text, .name = "chip", .choices = std::move( chipTypes ) };
   return {
      .kind = ValueType::Kind::object,
      .name = "FAP revision",
      .members = { { "chipType", chip }, { "sdkVersion", Codec< U32 >::type() }, { "major", Codec< U32 >::type() } } };
}

Rex::Value Rex::Codec< Hardware::Dace::FapRevision >::toValue( Hardware::Dace::FapRevision const & revision ) {
   std::ostringstream chipType;
   chipType << revision.chipType();
   return Value::Object{
      { "chipType", chipType.str() },
      { "sdkVersion", revision.sdkVersion() },
      { "major", revision.fapRevMajor() },
   };
}

Hardware::Dace::FapRevision Rex::Codec< Hardware::Dace::FapRevision >::fromValue( Value const & value ) {
   Hardware::ChipType chipType{};
   U32 sdkVersion = Hardware::Dace::sdkVersions.back();
   std::optional< U32 > major;
   ValueErrors errors;
   for ( auto const & [name, part] : Impl::objectOf( value ) ) {
      errors.below( name, [&] {
         if ( name == "chipType" ) {
            chipType = chipTypeFromValue( part );
         } else if ( name == "sdkVersion" ) {
            sdkVersion = Codec< U32 >::fromValue( part );
         } else if ( name == "major" ) {
            major = Codec< U32 >::fromValue( part );
         } else {
            throw ValueError( { "", "a revision has chipType, sdkVersion and major, no \"" + name + "\"", true } );
         }
      } );
   }
   if ( !value.object()->contains( "chipType" ) ) {
      errors.of( [] { throw ValueError( "", "\"chipType\" is missing" ); } );
   }
   errors.end();
   return { major.value_or( Hardware::Dace::fapRevMajorOf( chipType ) ), chipType, sdkVersion };
}

Corvo::Ptr< Routing::Hardware::PrefixLensInExactMatch >
Routing::Hardware::prefixLensInExactMatchFactory( Corvo::String const & name ) {
   return Corvo::makePtr< PrefixLensInExactMatch >( name );
}

Corvo::String L3::Tunnel::stringValue( PayloadType payloadType ) {
   static constexpr char const * names[] = { "none", "mpls", "ethernet", "ipv4", "ipv6" };
   return payloadType.value < std::size( names ) ? names[payloadType.value] : std::to_string( payloadType.value );
}
