#include "simulator/SimulatedSwitch.h"

#include "interface/ManagedIntfStatusDir.h"
#include "simulator/ChipsMapping.h"
#include "simulator/TableMap.h"

#include <dlfcn.h>

namespace Simulator {

namespace {

using Corvo::makePtr;

// The state in which a slice is up: the first of the two in which plug-ins run.
constexpr DaceFapNi::SliceState sliceUp{ 31 };

// A state of a slice that nobody has told anything about.
constexpr DaceFapNi::SliceState sliceDown{ 0 };

SwitchDescription checked( SwitchDescription description ) {
   if ( DaceSal::schanDriver() ) {
      throw std::logic_error( "there is a switch in this process already" );
   }
   std::map< U16, FapDescription const * > byNumber;
   for ( auto & fap : description.faps ) {
      auto const number = fap.fapId.value();
      if ( !byNumber.emplace( number, &fap ).second ) {
         throw std::logic_error( "two FAPs have the number " + std::to_string( number ) );
      }
      if ( fap.name.empty() ) {
         fap.name = "Fap" + std::to_string( number );
      }
   }
   Toggle::settingsIs( description.toggles );
   return description;
}

// The handle that plug-ins are given: whatever driver the process has at the time, so that what stands before the chips
// hears of controls, too.
class DriverOfTheProcess final : public DaceSal::SchanDriver {
 public:
   void read( DaceSal::ChipId chip, DaceSal::SchanAddress const & at, std::span< U32 > words ) override {
      DaceSal::schanDriver()->read( chip, at, words );
   }
   bool write( DaceSal::ChipId chip, DaceSal::SchanAddress const & at, std::span< U32 const > words ) override {
      return DaceSal::schanDriver()->write( chip, at, words );
   }
   bool control( DaceSal::ChipId chip, U32 control, U32 value ) override {
      return DaceSal::schanDriver()->control( chip, control, value );
   }
   std::optional< U32 > controlValue( DaceSal::ChipId chip, U32 control ) const override {
      return DaceSal::schanDriver()->controlValue( chip, control );
   }
};

// An event, as a scenario has it.
Rex::Value eventOf( char const * kind, Rex::Value::Object const & what ) {
   return Rex::Value::Object{ { kind, what } };
}

} // namespace

void loadPlugin( std::string const & path ) {
   // Never unloaded: the loader keeps the caller that lies in it.
   if ( !::dlopen( path.c_str(), RTLD_NOW | RTLD_LOCAL ) ) {
      throw LibraryError( ::dlerror() );
   }
}

SimulatedSwitch::SimulatedSwitch( SwitchDescription description, ChipsMapping const * chips )
   : description_( checked( std::move( description ) ) ),
     journal_( { .cause = [this] { return cause(); },
                 .pathOf = [this]( Rex::Entity const & entity ) { return publishedPath( entity ); } } ),
     scheduler_( makePtr< Orb::TaskScheduler >() ),
     entityManager_( makePtr< Stordb::EntityManager >( state_.database(), scheduler_ ) ),
     context_( makePtr< Agent::MounterPlugin::MounterContext >( entityManager_, state_.shared() ) ), mapping_( chips ) {
   makeChips();
   shareObjects();
   cellStatus_ = tell( description_, state_ );
   DaceSal::schanDriverIs( &driver_ );
   using enum SwitchDescription::Journalled;
   if ( description_.journalled == kept ) {
      journal_.rowsAreKept();
   }
   if ( description_.journalled != none ) {
      journal_.listens();
   }
}

SimulatedSwitch::~SimulatedSwitch() {
   stop();
}

void SimulatedSwitch::makeChips() {
   for ( auto const & fap : description_.faps ) {
      auto const chipType = fap.revision.chipType();
      // A chip of another family has no address that is known here.
      if ( auto const * name = Hardware::chipTypeName( chipType ) ) {
         if ( mapping_ ) {
            driver_.chipIs( fap.fapId, name, addressMap( chipType ), mapping_->chip( fap.fapId ) );
         } else {
            boot( driver_.chipIs( fap.fapId, name, addressMap( chipType ) ), chipType, description_.bootNoise );
         }
         journal_.chipIs( fap.fapId.value(), chipType );
      }
   }
}

void SimulatedSwitch::shareObjects() {
   static DriverOfTheProcess handle;
   auto * const sdkHandle = static_cast< DaceSal::SchanDriver * >( &handle );
   state_.rootIs( "shared/agentSdkState",
                  makePtr< DaceFapNi::AgentSdkState >( sdkHandle, makePtr< DaceSal::SalGlobalConfig >() ) );
   state_.rootIs( "shared/agentScheduler", makePtr< DaceFapNi::TaskScheduler >( scheduler_ ) );
}

void SimulatedSwitch::start( std::string const & pluginPath ) {
   loadPlugin( pluginPath );
   start();
}

void SimulatedSwitch::start() {
   Rex::sassert( phase_ == Phase::made, "phase_ == Phase::made" );
   phase_ = Phase::starting;
   auto & loader = DaceFapNi::defaultPluginLoader();
   loader.contextIs( context_.get() );
   loader.initPlugins();
   initChips();
   auto const slice = entity< DaceFapNi::SliceSmStateInfo >( "shared/sliceSmStateData" );
   if ( slice && slice->sliceState() == sliceDown ) {
      Corvo::Publisher::ForeignWrite const agents;
      slice->sliceStateIs( sliceUp );
   }
   scheduler_->runUntilIdle();
   phase_ = Phase::running;
   journal_.eventEnds();
}

void SimulatedSwitch::initChips() {
   auto const configs = state_.shared()->writeAllowed< DaceFapNi::ChipInitConfigDir >( "chipInitConfigDir" );
   if ( !configs ) {
      return;
   }
   phase_ = Phase::chipInit;
   journal_.causeIsAnother();
   for ( auto const & [fapId, fapStatus] : cellStatus_->fapStatus() ) {
      configs->initChip( fapStatus );
   }
   phase_ = Phase::starting;
   journal_.causeIsAnother();
}

void SimulatedSwitch::stop() {
   if ( phase_ == Phase::stopped ) {
      return;
   }
   phase_ = Phase::stopped;
   DaceFapNi::defaultPluginLoader().releasePlugins();
   scheduler_->clear();
   journal_.hearsNoMore();
   DaceSal::schanDriverIs( nullptr );
}

void SimulatedSwitch::change( std::function< void() > const & what, std::string const & cause, Rex::Value event ) {
   bool const isEvent = phase_ == Phase::running;
   if ( isEvent ) {
      eventCause_ = cause;
      journal_.eventBegins( ++event_, std::move( event ) );
   }
   try {
      Corvo::Publisher::ForeignWrite const foreign;
      what();
   } catch ( Rex::ValueError const & ) {
      if ( isEvent ) {
         --event_;
         journal_.eventIsDropped();
      }
      throw;
   }
   if ( isEvent ) {
      scheduler_->runUntilIdle();
      journal_.eventEnds();
   }
}

SupervisedChips & SimulatedSwitch::supervise( Supervision supervision ) {
   supervised_ =
      std::make_unique< SupervisedChips >( driver_, description_, journal_, mapping_, std::move( supervision ) );
   return *supervised_;
}

void SimulatedSwitch::fault( Fault const & fault ) {
   SupervisedChips & chips = supervised_ ? *supervised_ : supervise();
   change( [&] { chips.arm( fault ); }, "fault", eventOf( "fault", *valueOf( fault ).object() ) );
}

void SimulatedSwitch::set( std::string const & path, std::string const & attribute, Rex::Value const & value ) {
   change( [&] { state_.attributeIs( path, attribute, value ); },
           path + " " + attribute,
           eventOf( "set", { { "path", path }, { "attribute", attribute }, { "value", value } } ) );
}

void SimulatedSwitch::setAttributes( std::string const & path, Rex::Value const & attributes ) {
   change( [&] { state_.attributesIs( path, attributes ); },
           path,
           eventOf( "set", { { "path", path }, { "value", attributes } } ) );
}

void SimulatedSwitch::setEntry( std::string const & path,
                                std::string const & attribute,
                                std::string const & key,
                                Rex::Value const & value ) {
   change( [&] { state_.entryIs( path, attribute, key, value ); },
           path + " " + attribute,
           eventOf( "set", { { "path", path }, { "attribute", attribute }, { "key", key }, { "value", value } } ) );
}

void SimulatedSwitch::deleteEntry( std::string const & path, std::string const & attribute, std::string const & key ) {
   change( [&] { state_.entryDel( path, attribute, key ); },
           path + " " + attribute,
           eventOf( "delete", { { "path", path }, { "attribute", attribute }, { "key", key } } ) );
}

void SimulatedSwitch::deleteEntity( std::string const & path ) {
   change( [&] { state_.entityDel( path ); }, path, eventOf( "delete", { { "path", path } } ) );
}

std::string SimulatedSwitch::cause() const {
   if ( phase_ == Phase::chipInit ) {
      return "chip-init";
   }
   for ( auto const * notification = Corvo::Publisher::current(); notification; notification = notification->outer ) {
      if ( auto text = causeOf( *notification ); !text.empty() ) {
         return text;
      }
   }
   return event_ == 0 ? "start" : eventCause_;
}

// What this agent makes for itself has no path in the tree, but for what it publishes.
std::string SimulatedSwitch::publishedPath( Rex::Entity const & entity ) const {
   if ( &entity == Interface::ManagedIntfStatusDir::newest() ) {
      return "managed/intfStatusDir";
   }
   if ( &entity == Interface::ManagedIntfStatusLocalDir::newest() ) {
      return "managed/intfStatusLocalDir";
   }
   auto const * root = state_.rootAbove( entity );
   bool const isSeen = root && root->kind != StateRoot::Kind::machinery; // by people
   return isSeen ? state_.pathOf( entity ) : std::string();
}

std::string SimulatedSwitch::causeOf( Corvo::Notification const & notification ) const {
   auto const * publisher = notification.publisher;
   auto const * entity = publisher ? dynamic_cast< Rex::Entity const * >( &publisher->node() ) : nullptr;
   auto const path = entity ? state_.pathOf( *entity ) : std::string();
   if ( path.empty() ) {
      return {};
   }
   if ( auto const * attribute = entity->typeData().attribute( notification.attribute ) ) {
      return path + " " + attribute->name;
   }
   // A directory announces its entries, by name.
   auto const * name = static_cast< std::string const * >( notification.key );
   return dynamic_cast< Rex::Dir const * >( entity ) && name ? path + " " + *name : path;
}

} // namespace Simulator
