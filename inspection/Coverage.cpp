#include "inspection/Coverage.h"

#include "inspection/FieldChanges.h"
#include "inspection/Play.h"
#include "rex/Log.h"

#include <algorithm>
#include <sstream>

namespace Inspection {

using Hardware::ChipType;
using Simulator::Row;

std::span< Unwritten const > knownUnwritten() {
   constexpr std::string_view unused = "nothing in the plug-in names it";
   constexpr std::string_view lookup = "a lookup memory: routes fill it, the plug-in asks for its number alone";
   constexpr std::string_view nibble = "a format of a part of other entries, without a memory of its own";
   constexpr std::string_view noRecycling = "the chip has no profile for recycled packets";
   constexpr std::string_view noTwoLabels = "the chip lacks the context of two labels";
   constexpr std::string_view noFallback = "the chip lacks the contexts that fall back to IP";
   static constexpr Unwritten all[] = {
      { "CgmSnifTmTable", "", unused },
      { "EtppCfgRifInStack", "", unused },
      { "EtppTrapBitCruncherProgram", "", unused },
      { "EtppEnc1ContextSelectionPortProfile", "BCM88480_B0", noRecycling },
      { "EtppEnc2ContextSelectionPortProfile", "BCM88480_B0", noRecycling },
      { "EtppEnc3ContextSelectionPortProfile", "BCM88480_B0", noRecycling },
      { "EtppEnc4ContextSelectionPortProfile", "BCM88480_B0", noRecycling },
      { "EtppEnc5ContextSelectionPortProfile", "BCM88480_B0", noRecycling },
      { "EtppTrapContextSelectionPortProfile", "BCM88480_B0", noRecycling },
      { "FfcInstruction", "", nibble },
      { "IppaVtecsAction", "BCM88480_A0", noFallback },
      { "IppaVtecsAction", "BCM88800_A0", noFallback },
      { "IppaVtecsAction", "BCM88859_A2", noFallback },
      { "IppbFlpacsAction", "BCM88480_A0", noTwoLabels },
      { "IppbFlpacsAction", "BCM88859_A2", noTwoLabels },
      { "Ipv4PcremFwdDestPcrem", "", lookup },
      { "PpmcDoubleOutLifSwap", "", lookup },
      { "PrivateHostReducedVrf", "", lookup },
      { "PweInlifCsProfile", "", nibble },
      { "RoutingInlifCsProfile", "", nibble },
      { "RoutingVeloroInlifCsProfile", "", nibble },
      { "SystemHeaderPph", "", unused },
      { "VeloroL2FodoProfile", "", nibble },
   };
   return all;
}

void Coverage::row( Row const & row ) {
   if ( row.kind != Row::Kind::write || !row.layout ) {
      return;
   }
   TableCoverage & cell = cells_[{ row.tableNumber, row.layout->chipType }];
   ++cell.writes;
   cell.variants.insert( row.variant );
   cell.arrays.insert( row.array );
   if ( !row.changed ) {
      return;
   }
   ++cell.changes;
   for ( FieldChange const & change : fieldChanges( row ) ) {
      if ( change.isChange() ) {
         FieldCoverage & field = cell.fields[change.field->name];
         ++field.changes;
         if ( field.values.size() < FieldCoverage::mostValues ) {
            field.values.insert( change.after );
         }
      }
   }
}

TableCoverage const * Coverage::cell( Catalogue::Table const & table, ChipType chipType ) const {
   auto const found = cells_.find( { table.number, static_cast< U8 >( chipType ) } );
   return found == cells_.end() ? nullptr : &found->second;
}

bool Coverage::has( Catalogue::Table const & table, ChipType chipType ) {
   return std::ranges::find( table.chips, static_cast< U8 >( chipType ) ) != table.chips.end();
}

Unwritten const * Coverage::whyUnwritten( Catalogue::Table const & table, ChipType chipType ) {
   auto const all = knownUnwritten();
   auto const found = std::ranges::find_if( all, [&]( Unwritten const & it ) {
      return it.table == table.name && ( it.chip.empty() || it.chip == Hardware::chipTypeName( chipType ) );
   } );
   return found == all.end() ? nullptr : &*found;
}

std::set< std::string > Coverage::fieldsOf( Catalogue::Table const & table, ChipType chipType ) {
   std::set< std::string > fields;
   for ( Catalogue::Layout const & layout : table.layouts ) {
      if ( layout.chipType == static_cast< U8 >( chipType ) ) {
         for ( Catalogue::Field const & field : layout.fields ) {
            fields.insert( field.name );
         }
      }
   }
   return fields;
}

Coverage::Pairs Coverage::pairs() const {
   Pairs pairs;
   for ( Catalogue::Table const & table : Catalogue::tables() ) {
      for ( ChipType const chipType : Hardware::allChipTypes ) {
         if ( !has( table, chipType ) ) {
            continue;
         }
         auto const * const of = cell( table, chipType );
         ++pairs.all;
         pairs.writable += !whyUnwritten( table, chipType );
         pairs.written += of != nullptr;
         pairs.changed += of && of->changes > 0;
      }
   }
   return pairs;
}

std::string Coverage::text() const {
   std::ostringstream out;
   for ( auto const & [key, cell] : cells_ ) {
      out << key.first << ' ' << int{ key.second } << ' ' << cell.writes << ' ' << cell.changes << ' '
          << cell.variants.size();
      for ( U8 const variant : cell.variants ) {
         out << ' ' << int{ variant };
      }
      out << ' ' << cell.arrays.size();
      for ( int const array : cell.arrays ) {
         out << ' ' << array;
      }
      out << ' ' << cell.fields.size();
      for ( auto const & [name, field] : cell.fields ) {
         out << ' ' << name << ' ' << field.changes << ' ' << field.values.size();
         for ( std::string const & value : field.values ) {
            out << ' ' << value;
         }
      }
      out << '\n';
   }
   return out.str();
}

void Coverage::add( std::string const & text ) {
   std::istringstream in( text );
   U16 table = 0;
   int chip = 0;
   while ( in >> table >> chip ) {
      TableCoverage & cell = cells_[{ table, static_cast< U8 >( chip ) }];
      U64 writes = 0;
      U64 changes = 0;
      std::size_t count = 0;
      in >> writes >> changes >> count;
      cell.writes += writes;
      cell.changes += changes;
      int number = 0;
      for ( ; count > 0 && in >> number; --count ) {
         cell.variants.insert( static_cast< U8 >( number ) );
      }
      for ( in >> count; count > 0 && in >> number; --count ) {
         cell.arrays.insert( number );
      }
      std::string name;
      for ( in >> count; count > 0 && in >> name; --count ) {
         FieldCoverage & field = cell.fields[name];
         std::size_t values = 0;
         in >> changes >> values;
         field.changes += changes;
         std::string value;
         for ( ; values > 0 && in >> value; --values ) {
            if ( field.values.size() < FieldCoverage::mostValues ) {
               field.values.insert( value );
            }
         }
      }
   }
}

void cover( Coverage & coverage, Scenario const & scenario, std::string const & plugin ) {
   Child const child = inChild( [&]( std::ostream & out ) {
      Rex::logSinkIs( []( auto const & ) {} );
      loadPlugin( plugin );
      auto description = scenario.description;
      description.journalled = Simulator::SwitchDescription::Journalled::streamed;
      Simulator::SimulatedSwitch sw( description );
      Coverage here;
      sw.journal().readerAdd( here );
      play( scenario, sw );
      sw.journal().readerDel( here );
      out << here.text();
   } );
   coverage.add( child.output );
}

} // namespace Inspection
