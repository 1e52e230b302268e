// What a person asks about a run, as typed: a table, a field or one of its bits, a control, a path or an attribute of
// the state, a function of the plug-in, an interface.
//
//    WhySubject const subject = whySubjectOf( "IppdFerTrapCfg.cpuStrengthN:2" );      // InputError
//    whySubjectOf( "control.64" );
//    whySubjectOf( "interface/config/global.l3Mtu" );        // or "interface/config/global l3Mtu", as causes have it
//    whySubjectOf( "L3Sm::initIpTraps" );                    // or "initIpTraps"
//    whySubjectOf( "Ethernet1" );
#pragma once

#include "inspection/NamesAsTyped.h"
#include "rex/Value.h"

#include <set>

namespace Inspection {

struct WhySubject {
   enum class Kind : U8 { part, control, state, function, interface };

   Kind kind = Kind::part;
   TablePart part = {};
   U32 control = 0;
   std::string path = {};
   std::string attribute = {};            // empty: all of the path, and of what lies below it
   std::optional< std::string > key = {}; // one entry of the attribute
   std::string name = {};                 // of a function or an interface

   std::string text() const;
   // An attribute's value as the run begins with it: what the scenario says, or the default.
   std::optional< Rex::Value > valueAtStart( Rex::Value const & scenario ) const;
   // Whether a change of state is one of the subject.
   bool isState( std::string_view ofPath, std::string_view ofAttribute, std::optional< std::string_view > ofKey ) const;
};

WhySubject whySubjectOf( std::string const & typed );

// The functions of the plug-in that this program knows: those that touch a chip, hear of the state, ask a toggle or
// stand behind a gate.
std::vector< std::string > knownFunctions();
// Those that are known to have to do with what was asked about.
std::set< std::string, std::less<> > functionsThatTouch( WhySubject const & subject );

// What is published of interfaces goes through their machine.
constexpr std::string_view interfaceMachine = "L3IntfSm::RexIpIntfConfigFilter::";

} // namespace Inspection
