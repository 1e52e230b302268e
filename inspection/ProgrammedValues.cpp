#include "inspection/ProgrammedValues.h"

#include "inspection/NamesAsTyped.h"
#include "inspection/files/ChipsFile.h"
#include "simulator/TableMap.h"

#include <set>
#include <sstream>
#include <tuple>

namespace Inspection {

namespace {

using Simulator::BootNoise;
using Simulator::SimulatedSwitch;
using Simulator::Words;

// One physical entry: FAP, table, variant, array index, entry, copy.
struct Cell {
   U16 fap;
   Catalogue::Layout const * layout;
   std::string_view table;
   U32 array;
   U32 entry;
   U32 copy;
   auto key() const { return std::tie( fap, table, layout->variant, array, entry, copy ); }
   bool operator<( Cell const & other ) const { return key() < other.key(); }
};

// What a run did to one of them.
struct Written {
   Words boot;
   Words end;
   bool whole = false; // it was written without having been read by the same function
};

struct Run {
   std::map< Cell, Written > cells;
   std::map< std::pair< U16, U32 >, U32 > controls;
};

Cell cellOf( Simulator::Row const & row, Hardware::ChipType chipType, U32 copy ) {
   auto const & table = *Catalogue::table( row.table );
   return { row.fap,
            Catalogue::layout( table, static_cast< U8 >( chipType ), row.variant ),
            row.table,
            static_cast< U32 >( row.array ),
            row.entry.value_or( 0 ),
            copy };
}

Words wordsOf( Simulator::Chip const & chip, Cell const & cell ) {
   auto const words = chip.entry( Simulator::addressOf( *cell.layout, cell.array, cell.entry ) ).words( cell.copy );
   return { words.begin(), words.end() };
}

Run playOnce( Scenario const & scenario, BootNoise bootNoise ) {
   auto description = scenario.description;
   description.bootNoise = bootNoise;
   SimulatedSwitch sw( description );
   play( scenario, sw );

   // What stood there before the run: on chips that nobody has programmed.
   Simulator::ChipDriver fresh;
   std::map< U16, Hardware::ChipType > chipTypes;
   for ( auto const & fap : description.faps ) {
      auto const chipType = fap.revision.chipType();
      chipTypes[fap.fapId.value()] = chipType;
      boot( fresh.chipIs( fap.fapId, Hardware::chipTypeName( chipType ), Simulator::addressMap( chipType ) ),
            chipType,
            bootNoise );
   }
   scenario.fillChips( fresh );

   Run run;
   std::set< std::pair< Cell, std::string_view > > read;
   for ( Simulator::Row const & row : sw.journal().operations() ) {
      if ( row.kind == Simulator::Row::Kind::control ) {
         run.controls[{ row.fap, row.control }] = row.value;
         continue;
      }
      Cell const first = cellOf( row, chipTypes.at( row.fap ), 0 );
      if ( row.kind == Simulator::Row::Kind::read ) {
         read.insert( { first, row.function } );
         continue;
      }
      bool const isCore = row.scope == Simulator::Row::Scope::core;
      for ( U32 copy = 0; copy < first.layout->selectors.size(); ++copy ) {
         if ( isCore && copy != static_cast< U32 >( row.core ) ) {
            continue;
         }
         Cell cell = first;
         cell.copy = copy;
         auto const [known, isNew] = run.cells.try_emplace( cell );
         if ( isNew ) {
            known->second.boot = wordsOf( *fresh.chip( DaceSal::ChipId{ row.fap } ), cell );
            known->second.end = wordsOf( *sw.driver().chip( DaceSal::ChipId{ row.fap } ), cell );
         }
         known->second.whole = known->second.whole || !read.contains( { first, row.function } );
      }
   }
   return run;
}

// The bits of an entry that were set.
Words setBits( Written const & plain, Written const & inverted ) {
   Words bits( plain.end.size(), ~U32{ 0 } );
   if ( plain.whole ) {
      return bits;
   }
   for ( std::size_t word = 0; word < bits.size(); ++word ) {
      U32 const noise = plain.boot[word] ^ inverted.boot[word];
      U32 const alike = ~( plain.end[word] ^ inverted.end[word] );
      U32 const changed = ( plain.boot[word] ^ plain.end[word] ) | ( inverted.boot[word] ^ inverted.end[word] );
      bits[word] = ( noise & alike ) | changed;
   }
   return bits;
}

// "0x5", or "0x4/0xf4" where only the bits 0xf4 were set; empty where none were.
std::string setText( std::string const & value, std::string const & bits, U16 width ) {
   if ( bits.find_first_not_of( "0x" ) == std::string::npos && bits == "0x0" ) {
      return {};
   }
   std::string all = "0x";
   all += width % 4 == 0 ? "" : std::to_string( ( 1 << width % 4 ) - 1 );
   all.append( width / 4, 'f' );
   return bits == all ? value : value + "/" + bits;
}

void tell( std::ostream & out, Run const & plain, Run const & inverted ) {
   for ( auto const & [key, value] : plain.controls ) {
      out << key.first << "\tcontrols\t0\t0\t" << key.second << '\t' << key.second << "\t\t" << value << '\n';
   }
   std::map< Cell, Written > const & cells = plain.cells;
   for ( auto const & [cell, written] : cells ) {
      auto const other = inverted.cells.find( cell );
      bool const isAlone = other == inverted.cells.end(); // where it wrote, depended on what it read
      Words const bits = isAlone ? Words( written.end.size(), ~U32{ 0 } ) : setBits( written, other->second );
      Words end = written.end;
      for ( std::size_t word = 0; word < end.size(); ++word ) {
         end[word] &= bits[word];
      }
      Cell firstCopy = cell;
      firstCopy.copy = 0;
      auto const first = cells.find( firstCopy );
      if ( cell.copy > 0 && first != cells.end() && first->second.end == written.end ) {
         continue; // like the first copy
      }
      std::string place = placeText( *Catalogue::table( cell.table ), *cell.layout, cell.array, cell.entry );
      place += cell.copy > 0 ? " instance " + std::to_string( cell.copy ) : "";
      auto const values = Simulator::decode( *cell.layout, end );
      auto const masks = Simulator::decode( *cell.layout, bits );
      for ( std::size_t field = 0; field < values.size(); ++field ) {
         std::string const text = setText( values[field].value, masks[field].value, cell.layout->fields[field].width );
         if ( !text.empty() ) {
            out << cell.fap << '\t' << cell.table << '\t' << unsigned{ cell.layout->variant } << '\t' << cell.array
                << '\t' << cell.entry << '\t' << place << '\t' << values[field].name << '\t' << text << '\n';
         }
      }
   }
}

std::vector< std::string > parts( std::string const & line ) {
   std::vector< std::string > all;
   std::istringstream in( line );
   for ( std::string part; std::getline( in, part, '\t' ); ) {
      all.push_back( part );
   }
   return all;
}

U32 number( std::string const & text ) {
   return static_cast< U32 >( std::stoul( text ) );
}

} // namespace

ProgrammedValues programmedValuesOf( Scenario const & scenario, std::string const & plugin ) {
   Child const child = inChild( [&]( std::ostream & out ) {
      loadPlugin( plugin );
      Run const plain = playOnce( scenario, BootNoise::plain );
      Run const inverted = playOnce( scenario, BootNoise::inverted );
      std::ostringstream text;
      tell( text, plain, inverted );
      for ( auto const & reading : Toggle::readings() ) {
         text << "toggle\t" << reading.file << '\t' << reading.name << '\t' << reading.state << '\t'
              << reading.defaultState << '\n';
      }
      out << text.str();
   } );
   ProgrammedValues programming;
   if ( !child.isFine ) {
      programming.failure = child.errors.empty() ? "the run was ended by a signal" : child.errors;
      return programming;
   }
   std::istringstream in( child.output );
   for ( std::string line; std::getline( in, line ); ) {
      auto const part = parts( line );
      if ( part[0] == "toggle" ) {
         programming.toggles.push_back( { part[2], part[1], part[3] == "1", part[4] == "1" } );
         continue;
      }
      ProgrammedPlace place{ static_cast< U16 >( number( part[0] ) ),
                             part[1],
                             part[5],
                             part[6],
                             { number( part[2] ), number( part[3] ), number( part[4] ) } };
      programming.values.emplace( std::move( place ), part[7] );
   }
   return programming;
}

} // namespace Inspection
