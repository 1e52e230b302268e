// How an agent brings up its chips, and how a plug-in takes part: it registers a callback that runs once for each chip.
//
//    auto const entry = chipInitConfigDir->addChipInitConfig( "L3Sm" );
//    entry->callbackIs( [ shared ]( auto const & fapStatus, auto const &, auto const & ) { ... } );
//    entry->readyIs( true );
//
// Threading: the agent's scheduler thread.
#pragma once

#include "sal/SwitchControlSal.h"
#include "state/CellStatus.h"

#include <functional>

namespace DaceSal::DriverSetupSalConfig {
class FapConfig : public Corvo::Node {};
} // namespace DaceSal::DriverSetupSalConfig

namespace DaceSal::DriverSetupSalStatus {
class FapStatus : public Corvo::Node {};
} // namespace DaceSal::DriverSetupSalStatus

namespace DaceFapNi {

using ChipInitCallback = std::function< void( Corvo::Ptr< Hardware::Dace::Cell::FapStatus const > const &,
                                              Corvo::Ptr< DaceSal::DriverSetupSalConfig::FapConfig > const &,
                                              Corvo::Ptr< DaceSal::DriverSetupSalStatus::FapStatus const > const & ) >;

// One plug-in's part of chip initialisation.
class ChipInitConfig : public Rex::KeyedEntity< Corvo::String > {
   REX_ENTITY( ChipInitConfig, Rex::KeyedEntity< Corvo::String > );
   REX_ATTRIBUTE( bool, ready, 0x102, false ); // the callback may be called

 public:
   ChipInitCallback const & callback() const { return callback_; }
   void callbackIs( ChipInitCallback callback ) { callback_ = std::move( callback ); }

 private:
   ChipInitCallback callback_;
};

class ChipInitConfigDir : public Rex::Entity {
   REX_ENTITY( ChipInitConfigDir, Rex::Entity );
   REX_COLLECTION( ChipInitConfig, chipInitConfig, 0x102 );

 public:
   // A new entry; it takes the place of one of the same name. Null from a directory that takes none.
   virtual Corvo::Ptr< ChipInitConfig > addChipInitConfig( Corvo::String const & name );
   // Runs the callback of every entry that is ready, for one chip, in the order in which the entries were added.
   void initChip( Corvo::Ptr< Hardware::Dace::Cell::FapStatus const > const & fapStatus ) const;
};

// What the agent got from the driver's SDK.
class AgentSdkState : public Rex::Entity {
   REX_ENTITY( AgentSdkState, Rex::Entity );

 public:
   AgentSdkState() = default;
   AgentSdkState( void * sdkHandle, Corvo::Ptr< DaceSal::SalGlobalConfig > config )
      : sdkHandle_( sdkHandle ), salGlobalConfig_( std::move( config ) ) {}
   void * sdkHandle() const { return sdkHandle_; }
   Corvo::Ptr< DaceSal::SalGlobalConfig > const & salGlobalConfig() const { return salGlobalConfig_; }

 private:
   void * sdkHandle_ = nullptr;
   Corvo::Ptr< DaceSal::SalGlobalConfig > salGlobalConfig_;
};

} // namespace DaceFapNi
