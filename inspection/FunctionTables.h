// Which functions of the plug-in read and write a table, as journals show it.
//
//    touchesOf( table );                 // the journals of the examples
//    touchesOf( table, journals );       // those journals
#pragma once

#include "inspection/KeptRows.h"
#include "rex/Value.h"

#include <span>

namespace Inspection {

struct Touch {
   std::string table;
   std::string function;
   std::string source; // the file
   bool reads = false;
   bool writes = false;
   std::string fields = {}; // that its writes changed, one space between them

   friend bool operator==( Touch const &, Touch const & ) = default;
   // "reads, writes"
   std::string does() const;
};

// In alphabetical order of functions.
std::vector< Touch > touchesOf( Catalogue::Table const & table );
std::vector< Touch > touchesOf( Catalogue::Table const & table, std::vector< KeptRows > const & journals );

// Which functions set a control, as "control.64" in place of a table.
std::vector< Touch > controlTouches( std::vector< KeptRows > const & journals );

// What the journals of the examples show, of every table and control: KnownTouches.cpp, which a test compares and
// writes.
std::span< Touch const > knownTouches();

Rex::Value touchesValue( std::vector< Touch > const & touches );

} // namespace Inspection
