// What can be wrong with a chip: where, what, and how often.
//
//    Fault fault{ .table = "IppdFerTrapCfg", .array = 3, .copy = 1 };
//    fault.kindIs( "flip:7" );
//    check( fault, chipType );                       // Rex::ValueError
//    fault.placeText(), fault.kindText();            // "IppdFerTrapCfg[3]", "flip:7"
//
// Threading: plain data.
#pragma once

#include "chip/ChipType.h"
#include "rex/Clock.h"
#include "rex/Value.h"
#include "sal/Driver.h"

#include <map>
#include <optional>
#include <string>

namespace Simulator {

struct Fault {
   // lost: a write doesn't arrive. flip: a bit turns round. stuck: a bit is what it is, whatever is written. error: an
   // operation fails. delay: it takes its time.
   enum class Kind : U8 { lost, flip, stuck, error, delay };

   // Where; what isn't named means any.
   std::optional< U16 > fap = {};
   std::string table = {};
   std::optional< U32 > array = {};
   std::optional< U32 > entry = {};
   std::optional< U32 > copy = {};

   Kind kind = Kind::lost;
   U32 bit = 0;          // flip, stuck: of the entry
   bool value = false;   // stuck
   U32 milliseconds = 0; // delay
   // How often it fires at most. None: a flip once, the others without an end.
   std::optional< U32 > count = {};
   // How likely it is at an operation. A flip that is certain doesn't wait for one: memory decays by itself.
   double probability = 1;
   std::optional< Rex::Seconds > duration = {}; // from when it is armed
   U64 seed = 1;

   bool operator==( Fault const & ) const = default;

   // "lost", "flip:7", "stuck:3=1", "error", "delay:20". Throws Rex::ValueError.
   void kindIs( std::string const & text );
   std::string kindText() const;
   // "IppdFerTrapCfg[3].0", "any table".
   std::string placeText() const;
   // All that a person types: "IppdFerTrapCfg[3].0 --fap 0 --kind flip:7".
   std::string text() const;
};

// "TABLE[ARRAY][.ENTRY]". Throws Rex::ValueError.
void placeIs( Fault & fault, std::string const & text );

// {"fap": 0, "table": "IppdFerTrapCfg", "kind": "flip:7", …}: what isn't there means any. Throws Rex::ValueError.
Fault faultOf( Rex::Value const & value );
Rex::Value valueOf( Fault const & fault );

// Whether a chip of the kind can have it. Throws Rex::ValueError, its place seen from the fault's members.
void check( Fault const & fault, Hardware::ChipType chipType );
// Likewise, whether one of the chips of a switch can, of those that it means; by FAP.
void check( Fault const & fault, std::map< U16, Hardware::ChipType > const & faps );

} // namespace Simulator
