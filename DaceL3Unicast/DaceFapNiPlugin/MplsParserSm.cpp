#include "MplsParserSm.h"

#include "assert/Assert.h"
#include "rex/Trace.h"

#include <array>

namespace DaceFapNi {

namespace {

Rex::TraceFacility const trace{ "DaceFapNiMplsParser" };

constexpr short parserSettingsConfiguredAttribute = 0x117;

constexpr U8 absent = 255;
using Settings = std::array< U8, 4 >;

// The controls of a FAP that a setting goes to, in the order of writing.
constexpr struct {
   U32 control;
   unsigned setting;
} controls[] = {
   { 70, 0 },
   { 71, 1 },
   { 69, 2 },
   { 72, 3 },
   { 73, 3 },
};

U8 present( U8 value ) {
   if ( value == absent ) {
      Rex::Impl::throwBadOptionalAccess();
   }
   return value;
}

} // namespace

MplsParserCfgSm::MplsParserCfgSm( ConfigPtr const & mplsConfig,
                                  CapabilityPtr const & mplsHwCapability,
                                  SalPtr const & switchControlSal,
                                  CellStatusPtr const & cellStatus )
   : mplsConfig_( mplsConfig ), mplsHwCapability_( mplsHwCapability ), switchControlSal_( switchControlSal ),
     cellStatus_( cellStatus ) {
   mplsConfig_.subscribe( mplsConfigDispatch, this );
   handleParserConfig();
}

MplsParserCfgSm::~MplsParserCfgSm() {
   hasNotificationActiveIs( false );
   rexDoZombieReactors( true );
   mplsConfig_.unsubscribe();
}

Corvo::Ptr< MplsParserCfgSm > MplsParserCfgSm::MplsParserCfgSmIs( ConfigPtr const & mplsConfig,
                                                                  CapabilityPtr const & mplsHwCapability,
                                                                  SalPtr const & switchControlSal,
                                                                  CellStatusPtr const & cellStatus ) {
   auto const sm = Corvo::makePtr< MplsParserCfgSm >( mplsConfig, mplsHwCapability, switchControlSal, cellStatus );
   sm->hasNotificationActiveIs( true );
   return sm;
}

Corvo::Ptr< MplsParserCfgSm > mplsParserCfgSmFactory( MplsParserCfgSm::ConfigPtr const & mplsConfig,
                                                      MplsParserCfgSm::CapabilityPtr const & mplsHwCapability,
                                                      MplsParserCfgSm::SalPtr const & switchControlSal,
                                                      MplsParserCfgSm::CellStatusPtr const & cellStatus ) {
   return MplsParserCfgSm::MplsParserCfgSmIs( mplsConfig, mplsHwCapability, switchControlSal, cellStatus );
}

void MplsParserCfgSm::hasNotificationActiveIs( bool active ) {
   if ( hasNotificationActive() != active ) {
      nodeFlagSet( Corvo::NodeFlag::notificationsActive, active );
      mplsConfig_.activeIs( active, mplsConfigDispatch, this );
   }
}

void MplsParserCfgSm::rexDoZombieReactors( bool zombie ) {
   markAndSweepFlagSet( zombie );
}

void MplsParserCfgSm::mplsConfigDispatch(
   Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const *, void const * ) {
   Corvo::Ptr< MplsParserCfgSm > const self = slot->owner< MplsParserCfgSm >();
   if ( attribute == parserSettingsConfiguredAttribute && !self->isZombie() ) {
      self->handleParserConfig();
   }
}

void MplsParserCfgSm::handleParserConfig() {
   trace( 0, "DaceL3UnicastMplsParserCfgSm::", "handleParserConfig" );
   Settings const configured{ mplsConfig_->parserSetting0(),
                              mplsConfig_->parserSetting1(),
                              mplsConfig_->parserSetting2(),
                              mplsConfig_->parserSetting3() };
   Settings effective{ mplsHwCapability_->parserDefault0(),
                       mplsHwCapability_->parserDefault1(),
                       mplsHwCapability_->parserDefault2(),
                       mplsHwCapability_->parserDefault3() };
   if ( mplsConfig_->parserSettingsConfigured() ) {
      for ( unsigned const setting : { 0, 1, 3, 2 } ) {
         U8 const value = configured[setting];
         effective[setting] = value != absent ? value : present( effective[setting] );
      }
   } else {
      present( effective[3] ); // the last to be written: its two controls belong together
   }
   for ( auto const & [fapId, fapStatus] : cellStatus_->fapStatus() ) {
      for ( auto const & row : controls ) {
         switchControlSal_->switchControlSet( fapId.value(), row.control, present( effective[row.setting] ), 0 );
      }
   }
}

} // namespace DaceFapNi
