// Which FAPs a plug-in serves; and where it serves one not, what closes the gate and how to open it. Told by what was
// done and by the gates that were found closed at chip initialisation, by no rule of this program's own.
//
//    ServedFaps faps;
//    for ( Simulator::Row const & row : rows ) { faps.follow( row ); }
//    faps.of( 0 ).reason;                // "FAP type 3 is not served while the toggles ... are on"
//    faps.of( 0 ).remedy();              // "--toggle Dace.json:ArmOrderedSwTable=off opens it, as does ..."
#pragma once

#include "inspection/KnownToggles.h"
#include "simulator/Row.h"

#include <map>
#include <set>

namespace Inspection {

struct ServedFap {
   bool isServed = false;
   // Where it isn't: why, and each setting that opens the gate by itself. None: no toggle does.
   std::string reason = {};
   struct Opener {
      KnownToggle const * toggle;
      bool state;
      // "Dace.json:ArmOrderedSwTable=off", as --toggle takes it.
      std::string setting() const { return toggle->text() + ( state ? "=on" : "=off" ); }
   };
   std::vector< Opener > openers = {};

   // In one line; empty where it is served.
   std::string remedy() const;
};

class ServedFaps {
 public:
   void follow( Simulator::Row const & row );
   ServedFap of( U16 fap ) const;

 private:
   std::set< U16 > initialised_;
   std::map< U16, std::string > reasons_; // of the gate that was closed for it
};

// What opens a gate, by the toggles that its reason names.
std::vector< ServedFap::Opener > openersOf( std::string_view reason );

} // namespace Inspection
