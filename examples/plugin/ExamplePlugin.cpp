// A plug-in of one's own. When the agent brings up a chip, it writes one register: a packet that fails the loose source
// check comes to the CPU under a code of its own.
#include "agent/Mounter.h"
#include "generated/DaceFapNiPluginL3UnicastMetaInfo.h"

namespace {

using namespace Agent::MounterPlugin;
using Hardware::Dace::Cell::FapStatus;

constexpr int looseTrap = 3; // the register is an array of traps
constexpr U16 ownTrapCode = 0x42;

void initChip( FapStatus const & fap ) {
   Hardware::IppdFerTrapCfg::WithStorage trap( fap.revision().chipType() );
   trap.doReadAny( fap.fapId(), looseTrap ); // what isn't set below stays as it is
   trap.cpuSnoopCodeNIs( ownTrapCode );
   trap.doWriteAll( fap.fapId(), looseTrap );
}

// What a plug-in does, stage by stage; agent/Mounter.h tells of them.
class ExampleMounter : public DaceFapNi::MounterBase {
 public:
   ExampleMounter() : MounterBase( "exampleMounter" ) {}

   void createPluginStatePhase2() override {
      auto const chipInit = localSharedState()->writeAllowed< DaceFapNi::ChipInitConfigDir >( "chipInitConfigDir" );
      auto const entry = chipInit->addChipInitConfig( "Example" );
      entry->callbackIs( []( auto const & fap, auto const &, auto const & ) { initChip( *fap ); } );
      entry->readyIs( true );
   }
   // It mounts no state.
   void startPluginRunnabilitySm() override {}
   void doMounts() override {}
   void doMountsComplete( Stordb::MountStatus, Corvo::Ptr< Stordb::EntityManager > const & ) override {}
};

// What loading the library leaves with the agent's loader.
class ExamplePlugin : public PluginBase< MounterContext > {
 public:
   ExamplePlugin() {
      auto & loader = DaceFapNi::defaultPluginLoader();
      auto * const caller = loader.initCallerAdd( initCaller_ );
      loader.registerPlugin( loader.first(), "ExamplePlugin", loader.second(), "", "", caller );
   }
   void init( MounterContext * context ) override {
      mounter_ = Corvo::makePtr< ExampleMounter >();
      mounter_->init( context );
   }
   void release() override { mounter_ = nullptr; }

 private:
   PluginBaseInitCaller initCaller_{ this };
   Corvo::Ptr< ExampleMounter > mounter_;
};

ExamplePlugin plugin;

} // namespace
