// What a run's inputs and publications tell of one interface: whether it is served, what is configured for it, and why
// its MTU is not that.
//
//    InterfaceModel model( "Ethernet1" );
//    model.beginsWith( scenario );                  // as a journal begins
//    model.changed( event, input );                 // each event's input
//    model.published( row );                        // each publication
//    model.story().reasons;                         // { "the interface is not enabled (event 4)" }
//
// It follows the rules of the machine that serves interfaces: a port brings the interface into service when it is
// active and the interface is configured; from then on the machine keeps to the configuration and the status that stood
// there at that moment, also where other ones replace them, until the port is gone.
#pragma once

#include "inspection/EventInput.h"
#include "simulator/Row.h"

#include <map>
#include <string>
#include <vector>

namespace Inspection {

struct InterfaceStory {
   bool isKnown = false;    // the run names it
   std::string parent = {}; // of a subinterface, which has the MTU of this interface; the rest is the parent's
   bool isServed = false;
   bool isActive = false; // the slice; else standby
   bool isConfigured = false;
   U32 configuredMtu = 0; // of the interface itself; 0: it takes the global one
   U32 globalMtu = 0;
   U32 l3Mtu = 0; // what its status is to have
   std::optional< U32 > statusMtu = {};
   bool hasItsMtu = false;
   std::vector< std::string > reasons = {}; // why it hasn't, the first hides the others
};

class InterfaceModel {
 public:
   // A subinterface is called as its interface is, with a dot and a number behind it.
   explicit InterfaceModel( std::string const & name )
      : name_( name.substr( 0, name.find( '.' ) ) ), subInterface_( name == name_ ? "" : name ) {}

   void beginsWith( Rex::Value const & scenario );
   // The input of an event, before what follows from it.
   void changed( U32 event, EventInput const & input );
   void published( Simulator::Row const & row );
   InterfaceStory story() const;
   // Whether a gate of the machine that names no interface can have been closed for this one.
   bool canBeStoppedBy( std::string_view reason ) const;
   // Whether an input names the interface; or holds for all.
   bool isNamedBy( EventInput const & input ) const;
   bool concerns( EventInput const & input ) const;
   // The interfaces that the run names.
   std::vector< std::string > names() const;

 private:
   Rex::Value const * at( std::string const & path ) const;
   Rex::Value * makeAt( std::string const & path );
   void set( std::string const & path, std::optional< std::string > const & key, Rex::Value const & value );
   std::string configPath() const;
   std::string statusPath() const;
   U32 numberAt( Rex::Value const * of, char const * attribute, U32 otherwise ) const;
   U32 l3MtuOf( Rex::Value const * config ) const;
   // Where the port brings it into service.
   void portTold( std::string const & port );
   std::string since( std::string const & what ) const;
   std::string whyNotServed() const;
   std::string whoIsBehind( U32 mtu ) const;

   std::string name_;
   std::string subInterface_; // that is asked about, or nothing
   Rex::Value state_ = Rex::Value::Object();
   std::map< std::string, U32 > lastEvent_; // what has changed when: "enabled", "smMode", …
   bool isServed_ = false;
   std::string port_;                           // that serves it
   std::optional< Rex::Value > replacedConfig_; // which the machine keeps to all the same
   bool isStatusReplaced_ = false;              // by another entity, or by none
   bool hadStatus_ = false;                     // when it came into service
};

} // namespace Inspection
