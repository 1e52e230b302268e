// The verbs of chip programming. A programming function is a table of places and values beside these:
//
//    modify< Hardware::IppdFerTrapCfg >( fap, { .array = 3 }, []( auto & trap ) { trap.cpuStrengthNIs( 5 ); } );
//    write< Hardware::IppdPphAttributesByEei >( fap, { .entry = 8 }, []( auto & eei ) { eei.fheiTypeIs( 1 ); } );
//
// `modify` reads, changes and writes: what it doesn't name survives. `write` starts from a fresh, zeroed entry: what it
// doesn't name becomes 0. Both write every copy of the table. The place in the source that the journal names is the
// caller's.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "generated/DaceFapNiPluginL3UnicastMetaInfo.h"
#include "state/CellStatus.h"

#include <ranges>
#include <source_location>
#include <type_traits>

namespace DaceFapNi {

using FapStatusPtr = Corvo::Ptr< Hardware::Dace::Cell::FapStatus const >;
using CellStatusPtr = Corvo::Ptr< Hardware::Dace::Cell::CellStatus const >;

// What programming needs to know of a FAP.
struct Fap {
   Hardware::Dace::FapId id;
   Hardware::ChipType chipType{};

   Fap( Hardware::Dace::FapId id_, Hardware::ChipType chipType_ ) : id( id_ ), chipType( chipType_ ) {}
   explicit Fap( Hardware::Dace::Cell::FapStatus const & status )
      : Fap( status.fapId(), status.revision().chipType() ) {}
   explicit Fap( FapStatusPtr const & status ) : Fap( *status ) {}
};

// Where in a table: a register has no entry.
struct Place {
   U8 variant = 0;
   int array = 0;
   int entry = 0;
};

// A fresh accessor over a zeroed buffer of its own.
template< class Table >
typename Table::WithStorage accessor( Fap const & fap, U8 variant = 0 ) {
   return typename Table::WithStorage( fap.chipType, false, variant );
}

template< class Table >
constexpr bool isMemory = std::is_base_of_v< DaceSal::AsicUtils::DaceSalAsicTableBase, Table >;

// Reads the place from any one copy into the accessor's buffer. Returns what the driver returns.
template< class Table >
int readAny( Table & table,
             Fap const & fap,
             Place const & place,
             std::source_location origin = std::source_location::current() ) {
   if constexpr ( isMemory< Table > ) {
      return table.doReadAny( fap.id, place.array, place.entry, origin );
   } else {
      return table.doReadAny( fap.id, place.array, origin );
   }
}

// Writes the accessor's buffer to the place on all copies.
template< class Table >
void writeAll( Table const & table,
               Fap const & fap,
               Place const & place,
               std::source_location origin = std::source_location::current() ) {
   if constexpr ( isMemory< Table > ) {
      table.doWriteAll( fap.id, place.array, place.entry, origin );
   } else {
      table.doWriteAll( fap.id, place.array, origin );
   }
}

template< class Table, class Change >
void modify( Fap const & fap,
             Place const & place,
             Change change,
             std::source_location origin = std::source_location::current() ) {
   typename Table::WithStorage table( fap.chipType, false, place.variant );
   readAny( table, fap, place, origin );
   change( table );
   writeAll( table, fap, place, origin );
}

template< class Table, class Fill >
void write( Fap const & fap,
            Place const & place,
            Fill fill,
            std::source_location origin = std::source_location::current() ) {
   typename Table::WithStorage table( fap.chipType, false, place.variant );
   fill( table );
   writeAll( table, fap, place, origin );
}

// What a walk of a table goes through: the variants that its class has, and the array indices and the entries of the
// variant that an accessor is a view of.
template< class Table >
auto variantsOf( Fap const & fap ) {
   return std::views::iota( 0u, Table::tableVariantCount( static_cast< U32 >( fap.chipType ) ) );
}
template< class Table >
auto arraysOf( Table const & table ) {
   int const first = static_cast< int >( table.arrayIndex_min() );
   return std::views::iota( first, first + static_cast< int >( table.arrayElements() ) );
}
template< class Table >
auto entriesOf( Table const & table ) {
   return std::views::iota( static_cast< int >( table.index_min() ), static_cast< int >( table.entries() ) );
}

// Visits the FAPs of a cell in the order of their numbers, each with its status.
template< class Visit >
void forEachFap( CellStatusPtr const & cellStatus, Visit visit ) {
   for ( auto const & [id, fapStatus] : cellStatus->fapStatus() ) {
      visit( Fap( *fapStatus ), *fapStatus );
   }
}

} // namespace DaceFapNi
