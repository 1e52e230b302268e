// The library's front door: loading the library registers one plug-in, "L3SmPlugin", with the agent's loader.
#include "L3SmMounter.h"

namespace Agent::MounterPlugin {

template< class Mounter >
class Plugin : public PluginBase< MounterContext > {
 public:
   Plugin() : initCaller_( this ) {}

   // Makes the mounter and hands it the context. A mounter that was there before goes.
   void init( MounterContext * context ) override {
      mounter_ = Corvo::makePtr< Mounter >();
      mounter_->init( context );
   }
   void release() override { mounter_ = nullptr; }
   PluginBaseInitCaller & initCaller() { return initCaller_; }

 private:
   PluginBaseInitCaller initCaller_;
   Corvo::Ptr< Mounter > mounter_;
};

} // namespace Agent::MounterPlugin

namespace DaceFapNi {

namespace {

// The plug-in object, with its registration as the last step of its construction.
class L3SmPlugin : public Agent::MounterPlugin::Plugin< L3SmMounter > {
 public:
   L3SmPlugin() {
      auto & loader = defaultPluginLoader();
      auto * const caller = loader.initCallerAdd( initCaller() );
      loader.registerPlugin( loader.first(), "L3SmPlugin", loader.second(), "", "", caller );
   }
};

L3SmPlugin plugin;

} // namespace

} // namespace DaceFapNi
