#include "inspection/ReplayedChips.h"

#include "inspection/FoldedWrites.h"
#include "inspection/files/ChipsFile.h"
#include "simulator/BootImage.h"
#include "simulator/TableMap.h"

#include <algorithm>
#include <ranges>

namespace Inspection {

using Rex::Value;
using Simulator::addressOf;
using Simulator::Chip;
using Simulator::Row;
using Simulator::Words;

namespace {

// An entry, by the address of its first copy.
U64 keyOf( U16 fap, Simulator::SchanAddress const & at ) {
   return U64{ fap } << 48 | U64{ at.selectorA } << 40 | U64{ at.selectorB } << 32 | at.address;
}

} // namespace

ReplayedChips::ReplayedChips( JournalReader const & journal, std::optional< U16 > only )
   : journal_( journal ), only_( only ), isBeginKnown_( journal.format() != 1 ) {
   // A boot image is put together once for each kind of chip.
   std::map< Hardware::ChipType, Chip const * > booted;
   for ( auto const & [fap, chipType] : journal.chipTypes() ) {
      if ( only && *only != fap ) {
         continue;
      }
      auto & image = booted[chipType];
      if ( image ) {
         make( fap, chipType ).takeContents( *image );
      } else {
         chipIs( fap, chipType );
         image = chips_[fap].chip;
      }
   }
   fill( journal.path() + ":1", journal.scenario() );
}

ReplayedChips::ReplayedChips( ReplayedChips const & before )
   : RowReader( before ), journal_( before.journal_ ), only_( before.only_ ), isBeginKnown_( before.isBeginKnown_ ),
     comparesAll_( before.comparesAll_ ), written_( before.written_ ), failing_( before.failing_ ),
     event_( before.event_ ), reads_( before.reads_ ), writes_( before.writes_ ), controls_( before.controls_ ),
     begunWith_( before.begunWith_ ), others_( before.others_ ) {
   for ( auto const & [fap, chipType] : before.chipTypes_ ) {
      make( fap, chipType ).takeContents( *before.chips_[fap].chip );
   }
}

// With nothing in it.
Chip & ReplayedChips::make( U16 fap, Hardware::ChipType chipType ) {
   auto & made =
      driver_.chipIs( DaceSal::ChipId{ fap }, Hardware::chipTypeName( chipType ), Simulator::addressMap( chipType ) );
   chipTypes_[fap] = chipType;
   chips_.resize( std::max< std::size_t >( chips_.size(), fap + 1u ) );
   chips_[fap] = { &made, chipType };
   return made;
}

void ReplayedChips::chipIs( U16 fap, Hardware::ChipType chipType ) {
   auto const known = chipTypes_.find( fap );
   if ( known == chipTypes_.end() ) {
      Simulator::boot( make( fap, chipType ), chipType );
   } else if ( known->second != chipType ) {
      throw InputError( "FAP " + std::to_string( fap ) + " is a " + Hardware::chipTypeName( known->second ) +
                        " in one file and a " + Hardware::chipTypeName( chipType ) + " in another" );
   }
}

// The scenario's chips, as a journal begins with them.
void ReplayedChips::fill( std::string const & file, Value const & scenario ) {
   auto const * const object = scenario.object();
   if ( !object || !object->contains( "chips" ) ) {
      return;
   }
   auto const fillEach = [&] {
      forEachMember( object->at( "chips" ), [&]( std::string const & key, Value const & part ) {
         auto const fap = Rex::Codec< U16 >::fromKey( key );
         auto const contents = contentsFromValue( part );
         auto const chipType = chipTypes_.find( fap );
         if ( only_ && *only_ != fap ) {
            return;
         }
         if ( chipType == chipTypes_.end() ) {
            std::vector< U32 > known;
            std::ranges::copy( std::views::keys( journal_.chipTypes() ), std::back_inserter( known ) );
            throw Rex::ValueError(
               "", "the switch that the journal begins with has no such FAP; it has " + ranges( known ) );
         }
         apply( contents.tables, chip( fap ), chipType->second );
         for ( auto const & [control, value] : contents.controls ) {
            chip( fap ).controlIs( control, value );
         }
      } );
   };
   inFile( file, [&] { Rex::below( "scenario", [&] { Rex::below( "chips", fillEach ); } ); } );
}

Simulator::Contents ReplayedChips::contents( U16 fap ) const {
   return contentsOf( *driver_.chip( DaceSal::ChipId{ fap } ), chipTypes_.at( fap ) );
}

void ReplayedChips::eventBegins( U32 event, Value const & ) {
   event_ = event;
}

void ReplayedChips::row( Row const & row ) {
   bool const isFault = row.kind == Row::Kind::fault;
   if ( !row.isOfChip() ) {
      return;
   }
   if ( journal_.format() == 1 ) {
      auto const told = journal_.chipTypes().find( row.fap );
      if ( told != journal_.chipTypes().end() ) {
         chipIs( row.fap, told->second );
      }
   }
   if ( row.fap >= chips_.size() || !chips_[row.fap].chip ) {
      throw Rex::ValueError(
         "", "nothing says what kind of chip FAP " + std::to_string( row.fap ) + " is; give --chips or --scenario" );
   }
   auto & chip = *chips_[row.fap].chip;
   auto const chipType = static_cast< U8 >( chips_[row.fap].chipType );
   if ( row.kind == Row::Kind::control ) {
      chip.controlIs( row.control, row.value );
      ++controls_;
      return;
   }
   auto const * layout = row.layout;
   if ( layout->chipType != chipType ) {
      // The journal didn't say what kind of chip it is, and another file has.
      layout = Catalogue::layout( Catalogue::tables()[row.tableNumber], chipType, row.variant );
      if ( !layout || layout->width != row.words.size() ||
           row.entry.value_or( 0 ) >= Simulator::entryCount( *layout ) ||
           static_cast< U32 >( row.array ) - layout->arrayIndexFirst >= layout->arrayElements ||
           ( row.scope == Row::Scope::core && static_cast< std::size_t >( row.core ) >= layout->selectors.size() ) ) {
         throw Rex::ValueError( "", std::string( row.table ) + " has no such place on this kind of chip" );
      }
   }
   if ( isFault ) {
      auto const at =
         addressOf( *layout, static_cast< U32 >( row.array ), row.entry.value_or( 0 ), static_cast< U32 >( row.core ) );
      chip.write( at, row.words );
      failing_.insert(
         keyOf( row.fap, addressOf( *layout, static_cast< U32 >( row.array ), row.entry.value_or( 0 ) ) ) );
      return;
   }
   if ( row.kind == Row::Kind::read ) {
      ++reads_;
      if ( comparesAll_ ) {
         compare( row, *layout, chip, row.words );
      }
      return;
   }
   ++writes_;
   if ( comparesAll_ && !row.before.empty() ) {
      compare( row, *layout, chip, row.before );
   }
   bool const isCore = row.scope == Row::Scope::core;
   U32 const first = isCore ? static_cast< U32 >( row.core ) : 0;
   U32 const last = isCore ? first : static_cast< U32 >( layout->selectors.size() ) - 1;
   for ( U32 copy = first; copy <= last; ++copy ) {
      chip.write( addressOf( *layout, static_cast< U32 >( row.array ), row.entry.value_or( 0 ), copy ), row.words );
   }
   if ( !isBeginKnown_ ) {
      auto const at = addressOf( *layout, static_cast< U32 >( row.array ), row.entry.value_or( 0 ) );
      written_.insert( keyOf( row.fap, at ) );
   }
}

void ReplayedChips::compare( Row const & row,
                             Catalogue::Layout const & layout,
                             Chip & chip,
                             Simulator::WordView journalled ) {
   U32 const copy = row.scope == Row::Scope::core ? static_cast< U32 >( row.core ) : 0;
   auto const at = addressOf( layout, static_cast< U32 >( row.array ), row.entry.value_or( 0 ), copy );
   auto const here = chip.entry( at ).words( copy );
   if ( std::ranges::equal( here, journalled ) ) {
      return;
   }
   auto const first = addressOf( layout, static_cast< U32 >( row.array ), row.entry.value_or( 0 ) );
   U64 const place = keyOf( row.fap, first );
   if ( failing_.contains( place ) ) {
      return; // what the agent takes for granted isn't what the chip holds
   }
   bool const isBegin = !isBeginKnown_ && !written_.contains( place );
   auto & list = isBegin ? begunWith_ : others_;
   list.seqs.push_back( row.seq );
   if ( list.first.size() < OtherContentsList::inFull ) {
      list.first.push_back( { .seq = row.seq,
                              .event = row.event,
                              .fap = row.fap,
                              .isBefore = row.kind == Row::Kind::write,
                              .table = &Catalogue::tables()[row.tableNumber],
                              .layout = &layout,
                              .array = static_cast< U32 >( row.array ),
                              .entry = row.entry.value_or( 0 ),
                              .journalled = Words( journalled.begin(), journalled.end() ),
                              .here = Words( here.begin(), here.end() ) } );
   }
   if ( isBegin ) {
      chip.fill( first, Words( journalled.begin(), journalled.end() ) );
   }
}

} // namespace Inspection
