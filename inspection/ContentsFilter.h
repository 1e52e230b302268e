// Which part of what stands on chips is asked about: FAP, tables and their fields, a place in them, controls.
//
//    ContentsFilter const filter( { "IppdFerTrapCfg.cpuStrengthN", "controls" }, { .array = 3 }, fap );   // InputError
//    filter.keep( fapContents );                                     // takes out the rest
//    filter.isField( "IppdFerTrapCfg", "cpuSnoopCodeN" );            // false
#pragma once

#include "inspection/NamesAsTyped.h"
#include "inspection/files/ChipsFile.h"

namespace Inspection {

class ContentsFilter {
 public:
   ContentsFilter() = default;
   // `typed`: each a table, a field of one as "TABLE.FIELD", "controls" or "control.64"; none: everything. What no chip
   // has is refused.
   ContentsFilter( std::vector< std::string > const & typed, TypedPlace place, std::optional< U16 > fap );

   std::optional< U16 > fap() const { return fap_; }
   // Nothing is left out, but FAPs.
   bool isEverything() const;
   // The tables that are asked for by name; none: all of them, or none where `hasTables` is false.
   std::vector< std::string > tables() const;
   bool hasTables() const { return !parts_.empty() || ( !areAllControls_ && controls_.empty() ); }
   bool hasControls() const { return areAllControls_ || !controls_.empty() || isUnnamed_; }

   bool isTable( std::string_view table ) const;
   bool isField( std::string_view table, std::string_view field ) const;
   bool isPlace( U32 variant, U32 array, U32 entry ) const;
   bool isControl( U32 control ) const;

   // Takes out of a FAP's contents what isn't asked for, but for fields.
   void keep( Simulator::Contents & contents ) const;
   // The same of a single table.
   void keep( Simulator::TableContents & contents ) const;

 private:
   std::vector< TablePart > parts_;
   std::set< U32 > controls_;
   bool areAllControls_ = false;
   bool isUnnamed_ = true; // neither tables nor controls are named, and no place
   TypedPlace place_;
   std::optional< U16 > fap_;
};

} // namespace Inspection
