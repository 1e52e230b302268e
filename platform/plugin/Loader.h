// The plug-in loader: where a library registers its plug-in while it is being loaded, and from where the agent enters
// all plug-ins.
//
// A library registers in its static initialiser: it makes a static plug-in object, puts a caller in front of the
// loader's list, and calls registerPlugin. The agent then runs the callers; each ends in the plug-in's init. When the
// agent goes down it has the plug-ins release what they made, after which they can be entered again.
//
// Threading: libraries are loaded, and plug-ins initialised, on the agent's scheduler thread.
#pragma once

#include "corvo/Types.h"

#include <forward_list>
#include <string>
#include <vector>

namespace Plugin {

// What the loader calls: a plug-in that waits for its context.
class LoaderInitCaller {
 public:
   virtual ~LoaderInitCaller() = default;
   virtual void operator()() = 0;
   // The agent goes down: the plug-in drops what it made for its context.
   virtual void release() {}
};

// What a plug-in object embeds: calls init of the plug-in with a context.
template< class Context >
class PluginInitCaller {
 public:
   virtual ~PluginInitCaller() = default;
   virtual void operator()( Context * context ) = 0;
   virtual void release() {}
};

namespace Impl {

// One registration, as the library gave it.
struct Registration {
   std::string loaderFirst;
   std::string pluginName;
   std::string loaderSecond;
   std::string fourth;
   std::string fifth;
   LoaderInitCaller * caller;
};

class LoaderImpl {
 public:
   // Records a plug-in: the loader's first identifying string, the plug-in's name, the loader's second identifying
   // string, two strings that are empty here, and the caller.
   void registerPlugin( std::string const & loaderFirst,
                        std::string const & pluginName,
                        std::string const & loaderSecond,
                        std::string const & fourth,
                        std::string const & fifth,
                        LoaderInitCaller * caller );
   std::vector< Registration > const & registrations() const { return registrations_; }

 private:
   std::vector< Registration > registrations_;
};

} // namespace Impl

// The loader for plug-ins that take a Context.
template< class Context >
class Loader : public Impl::LoaderImpl {
 public:
   Loader( std::string first, std::string second ) : first_( std::move( first ) ), second_( std::move( second ) ) {}

   // Calls one plug-in with the loader's context. It lives in the loader's list for the life of the process.
   class LoaderInitCallerWithContext : public LoaderInitCaller {
    public:
      LoaderInitCallerWithContext( Loader & loader, PluginInitCaller< Context > & plugin )
         : loader_( loader ), plugin_( plugin ) {}
      void operator()() override { plugin_( loader_.context() ); }
      void release() override { plugin_.release(); }

    private:
      Loader & loader_;
      PluginInitCaller< Context > & plugin_;
   };

   Context * context() const { return context_; }
   void contextIs( Context * context ) { context_ = context; }
   std::string const & first() const { return first_; }
   std::string const & second() const { return second_; }

   // Puts a caller for this plug-in in front of the list.
   LoaderInitCaller * initCallerAdd( PluginInitCaller< Context > & plugin ) {
      initCallers_.emplace_front( *this, plugin );
      return &initCallers_.front();
   }
   // Enters all plug-ins, the newest first.
   void initPlugins() {
      for ( auto & caller : initCallers_ ) {
         caller();
      }
   }
   // Has all plug-ins drop what they made, in the order in which they were entered, and forgets the context.
   void releasePlugins() {
      for ( auto & caller : initCallers_ ) {
         caller.release();
      }
      context_ = nullptr;
   }

 private:
   Context * context_ = nullptr;
   std::string first_;
   std::string second_;
   std::forward_list< LoaderInitCallerWithContext > initCallers_;
};

} // namespace Plugin
