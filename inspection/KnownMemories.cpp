#include "inspection/KnownMemories.h"

#include "inspection/FieldChanges.h"

#include <algorithm>

namespace Inspection {

namespace {

constexpr std::string_view ofVtis =
   "a VTI's UDP port is cleared when it goes; before the first one the control has no value";
constexpr std::string_view ofParser =
   "a setting of the MPLS parser counts when settings become configured or not, not when it changes itself";
constexpr std::string_view ofMpls =
   "two labels and the fall-back to IP exclude each other: while both are set, what was written before stays";
constexpr std::string_view ofInterfaces = "an interface's status is followed from the change that brings it up; what "
                                          "was changed before, while nobody followed "
                                          "it, counts at a start alone";

} // namespace

std::span< KnownMemory const > knownMemories() {
   static constexpr KnownMemory memories[] = {
      { "AdditionalHeadersMapTable0",
        "protocolSpecificInformation",
        "of several MPLS decap groups the one that changed last names the port, and with its removal none does, though "
        "others stay; a start takes them in the order of their ports",
        true,
        "gue" },
      { "EtppcEncapsulation2ContextSelectionCam",
        "program",
        "the programs of VXLAN bridging are exchanged row by row: once propagation was on, rows that booted with the "
        "other program have the plain one, too",
        false,
        "vxlan-qos" },
      { "FwdFfcTable",
        "",
        "an instruction that was changed for a prefix length is known to the plug-in that changed it alone: after a "
        "second start its removal leaves it as it is",
        false,
        "ffc-key" },
      { "IppaVtecsAction", "vtecsAction", ofMpls, false, "" },
      { "IppbFlpacsAction", "flpacsAction", ofMpls, false, "" },
      { "VsiProfileEnablers",
        "routingProfile3",
        "the hash mode of GUE packets is cleared with its slot; before the first one the entry holds what it booted "
        "with",
        false,
        "gue" },
      { "controls", "1", ofVtis, false, "gate" },
      { "controls", "69", ofParser, false, "" },
      { "controls", "70", ofParser, false, "" },
      { "controls", "97", ofVtis, false, "vti" },
      { "controls", "98", ofVtis, false, "vti" },
      { "controls", "103", ofVtis, false, "vti" },
      { "controls", "104", ofVtis, false, "vti" },
      { "published", "addr", ofInterfaces, false, "interface-address" },
      { "published", "maxMtu", ofInterfaces, false, "interface-standby" },
      { "published", "mtu", ofInterfaces, false, "interface-mtu" },
      { "published", "routedAddr", ofInterfaces, false, "interface-port" },
      { "published", "", ofInterfaces, false, "interface-port" },
   };
   return memories;
}

KnownMemory const * knownMemory( std::string_view table, std::string_view field ) {
   auto const all = knownMemories();
   auto const found = std::ranges::find_if(
      all, [&]( KnownMemory const & it ) { return it.table == table && ( it.field.empty() || it.field == field ); } );
   return found == all.end() ? nullptr : &*found;
}

std::set< KnownMemory const * > knownMemoriesOf( Simulator::Row const & row ) {
   std::set< KnownMemory const * > known;
   if ( row.kind != Simulator::Row::Kind::write ) {
      known.insert( knownMemory( "controls", std::to_string( row.control ) ) );
      return known;
   }
   for ( FieldChange const & change : fieldChanges( row ) ) {
      if ( change.isChange() ) {
         known.insert( knownMemory( row.table, change.field->name ) );
      }
   }
   return known;
}

} // namespace Inspection
