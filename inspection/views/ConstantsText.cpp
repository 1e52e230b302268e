#include "inspection/views/ConstantsText.h"

#include "constants/Contexts.h"
#include "constants/DestinationId.h"
#include "constants/EgressPortProfiles.h"
#include "constants/MicrocodeActions.h"
#include "constants/WellKnown.h"
#include "inspection/files/ChipsFile.h"
#include "inspection/views/Terminal.h"
#include "simulator/BootImage.h"
#include "simulator/TableMap.h"

#include <algorithm>
#include <iomanip>

namespace Inspection {

namespace {

using namespace Hardware::Dace;
using Hardware::ChipType;
using Rex::Value;
using Object = Rex::Value::Object;

// The stages that choose between contexts.
struct Stage {
   char const * name;
   std::span< DacePPExport::ContextRow const > rows;
};

std::vector< Stage > stages() {
   return { { "ctx_fwd1", DacePPExport::ctx_fwd1_rows() },
            { "ctx_fwd2", DacePPExport::ctx_fwd2_rows() },
            { "ctx_encap_1", DacePPExport::ctx_encap_1_rows() },
            { "ctx_encap_2", DacePPExport::ctx_encap_2_rows() } };
}

// The place of a chip in rows by chip.
std::size_t columnOf( ChipType chipType ) {
   auto const & all = Hardware::allChipTypes;
   return static_cast< std::size_t >( std::find( all.begin(), all.end(), chipType ) - all.begin() );
}

using ActionEntry = U16 const & (*)( UcodeProfileType, ChipType, U32, U32, U32 );

Value actionWords( ActionEntry word, ChipType chipType ) {
   Object words;
   for ( U32 entry = 0; entry < DacePPExport::actionEntries; ++entry ) {
      words[std::to_string( entry )] = word( UcodeProfileType::routing, chipType, 0, 0, entry );
   }
   return words;
}

Value contexts( Stage const & stage, ChipType chipType ) {
   Object all;
   for ( auto const & row : stage.rows ) {
      auto const value = row.value[columnOf( chipType )];
      all[std::to_string( row.enumerator )] =
         Object{ { "name", row.name }, { "exists", value != 0 }, { "value", value } };
   }
   return all;
}

Value portProfiles( ChipType chipType ) {
   Object stagesOfPort;
   for ( auto const & row : egressPortProfileRows() ) {
      if ( !stagesOfPort.contains( row.name ) ) {
         stagesOfPort[row.name] = Object();
      }
      auto const value = row.value[columnOf( chipType )];
      ( *stagesOfPort[row.name].object() )[std::to_string( row.item )] =
         Object{ { "exists", value != 0 }, { "value", value } };
   }
   return stagesOfPort;
}

Value trapCodes() {
   Object codes;
   for ( auto const & [profile, code] : jericho2IppeRecycFwdProfileToTrapMap ) {
      codes[std::to_string( profile )] = code;
   }
   return codes;
}

Value ofChip( ChipType chipType ) {
   Object all;
   for ( auto const & stage : stages() ) {
      all[stage.name] = contexts( stage, chipType );
   }
   all["flpacsActionEntry"] = actionWords( DacePPExport::IPPB_FLPACS_ACTION_ENTRY, chipType );
   all["vtecsActionEntry"] = actionWords( DacePPExport::IPPA_VTECS_ACTION_ENTRY, chipType );
   all["egressPortProfiles"] = portProfiles( chipType );
   all["etpsArpAcResultType"] = EtpsArpAcResultType::hwValue();
   all["recycFwdProfileToTrapCode"] = trapCodes();
   return all;
}

Value numOutRif() {
   Object all;
   for ( auto const & row : numOutRifRows() ) {
      all[std::to_string( row.fapRevMajor )] = row.numOutRif;
   }
   return all;
}

Value wellKnownLifs() {
   Object all;
   for ( U32 offset = 0; offset < Jericho2VttConstants::wellKnownLifs; ++offset ) {
      all[std::to_string( offset )] = Jericho2VttConstants::wellKnownLifOffsetToHwIndex( offset );
   }
   return all;
}

// The destinations that a plug-in has the chips carry: the default result of an MPLS lookup, and the flooding of VXLAN.
struct Destination {
   U32 destination;
   U32 fws;
};
constexpr Destination destinations[] = { { 226, 3 }, { 0x2000, 4 }, { 0x3000, 4 } };

Value encodedDestinations() {
   Value::List all;
   for ( auto const & [destination, fws] : destinations ) {
      FapType const fapType( 3 );
      DestinationId id;
      id.destinationIs( destination );
      id.fwsIs( fws );
      all.emplace_back( Object{ { "destination", destination },
                                { "fws", fws },
                                { "word2", id.word2() },
                                { "lastByte", id.lastByte() },
                                { "fapType", fapType.value() },
                                { "value", id.encodedDestId( fapType ) } } );
   }
   return all;
}

} // namespace

void writeConstants( std::ostream & out ) {
   Object all;
   for ( auto const chipType : Hardware::allChipTypes ) {
      all[Hardware::chipTypeName( chipType )] = ofChip( chipType );
   }
   all["numOutRif"] = numOutRif();
   all["wellKnownLifOffsetToHwIndex"] = wellKnownLifs();
   all["encodedDestId"] = encodedDestinations();
   std::string text = toJson( all, 3 );
   text.pop_back(); // the boot images follow, in the shape of a file of chips
   out << text << ",\n \"boot\": {";
   char const * before = "\n";
   for ( auto const chipType : Hardware::allChipTypes ) {
      Simulator::Chip chip(
         DaceSal::ChipId{ 0 }, Hardware::chipTypeName( chipType ), Simulator::addressMap( chipType ) );
      boot( chip, chipType );
      out << before << "  \"" << chipType << "\": ";
      writeTables( out, contentsOf( chip, chipType ).tables, chipType, 3 );
      before = ",\n";
   }
   out << "}}\n";
}

void showConstants( std::ostream & out ) {
   Style const style = Style::of( out );
   Columns columns;
   auto const head = [&]( std::string const & title ) {
      std::vector< std::string > cells{ style.strong( title ) };
      for ( auto const chipType : Hardware::allChipTypes ) {
         cells.push_back( style.strong( Hardware::chipTypeName( chipType ) ) );
      }
      columns.row( cells );
   };
   auto const line = [&]( std::string const & what, auto const & values ) {
      std::vector< std::string > cells{ "  " + what };
      for ( auto const value : values ) {
         cells.push_back( value == 0 ? style.faint( "-" ) : std::to_string( value ) );
      }
      columns.row( cells );
   };
   out << "The reference platform's own numbers; the true ones belong to closed libraries. `-`: not on this chip.\n\n";
   for ( auto const & stage : stages() ) {
      head( stage.name );
      for ( auto const & row : stage.rows ) {
         line( std::to_string( row.enumerator ) + " " + row.name, row.value );
      }
      columns.row( {} );
   }
   head( "egressPortProfiles" );
   for ( auto const & row : egressPortProfileRows() ) {
      line( std::string( row.name ) + " item " + std::to_string( row.item ), row.value );
   }
   columns.print( out );
   out << "\netpsArpAcResultType " << unsigned{ EtpsArpAcResultType::hwValue() } << "\nrecycFwdProfileToTrapCode";
   for ( auto const & [profile, code] : jericho2IppeRecycFwdProfileToTrapMap ) {
      out << "  " << unsigned{ profile } << ": " << code;
   }
   out << "\nnumOutRif by major revision";
   for ( auto const & row : numOutRifRows() ) {
      out << "  " << row.fapRevMajor << ": " << row.numOutRif;
   }
   out << "\nwellKnownLifOffsetToHwIndex  0: " << Jericho2VttConstants::wellKnownLifOffsetToHwIndex( 0 ) << "  "
       << Jericho2VttConstants::wellKnownLifs - 1 << ": "
       << Jericho2VttConstants::wellKnownLifOffsetToHwIndex( Jericho2VttConstants::wellKnownLifs - 1 )
       << "\n\nAction words and boot images: l3sm constants --json\n";
}

} // namespace Inspection
