#include "simulator/FaultyDriver.h"

#include "simulator/TableMap.h"

#include <algorithm>

namespace Simulator {

namespace {

using DaceSal::SchanError;

constexpr double millisecondsInSecond = 1000;

// From 0 to 1, the same on every machine.
double chanceOf( std::mt19937_64 & from ) {
   return static_cast< double >( from() >> 11 ) * 0x1p-53;
}

bool bitOf( std::span< U32 const > words, U32 bit ) {
   return words[bit / 32] >> bit % 32 & 1;
}

void turn( std::span< U32 > words, U32 bit ) {
   words[bit / 32] ^= U32{ 1 } << bit % 32;
}

bool isThere( std::span< U32 const > words, U32 bit ) {
   return bit / 32 < words.size();
}

} // namespace

FaultyDriver::FaultyDriver( ChipDriver & chips, SwitchDescription const & description, Options options )
   : chips_( chips ), options_( std::move( options ) ) {
   for ( auto const & fap : description.faps ) {
      if ( chips.chip( fap.fapId ) ) { // a chip of another family isn't there
         chipTypes_[fap.fapId.value()] = fap.revision.chipType();
      }
   }
}

U32 FaultyDriver::arm( Fault const & fault ) {
   check( fault, chipTypes_ );
   Armed & armed = armed_.emplace_back(
      Armed{ .number = ++last_, .fault = fault, .begun = Rex::now(), .chance = std::mt19937_64( fault.seed ) } );
   bool const isStuckHere = fault.kind == Fault::Kind::stuck && !fault.table.empty();
   if ( fault.probability >= 1 && ( fault.kind == Fault::Kind::flip || isStuckHere ) ) {
      decay( armed );
   }
   return last_;
}

bool FaultyDriver::disarm( U32 number ) {
   return std::erase_if( armed_, [&]( Armed const & it ) { return it.number == number; } ) > 0;
}

// ---- where

std::optional< TablePlace > FaultyDriver::placeOf( Fault const & fault, ChipId chip, SchanAddress const & at ) const {
   if ( fault.fap.value_or( chip.value ) != chip.value || !chipTypes_.contains( chip.value ) ) {
      return std::nullopt;
   }
   auto const isMeant = [&]( TablePlace const & place ) {
      return fault.array.value_or( place.array ) == place.array && fault.entry.value_or( place.entry ) == place.entry &&
             fault.copy.value_or( place.copy ) == place.copy;
   };
   auto const place = fault.table.empty() ? placeAt( chipTypeOf( chip ), at )
                                          : placeIn( *Catalogue::table( fault.table ), chipTypeOf( chip ), at );
   return place && isMeant( *place ) ? place : std::nullopt;
}

// Of its table: all that hold a value, and an entry that is named whether it has one or not.
std::vector< FaultyDriver::Decaying > FaultyDriver::placesOf( Fault const & fault ) const {
   std::vector< Decaying > all;
   Catalogue::Table const & table = *Catalogue::table( fault.table );
   for ( auto const & [fap, chipType] : chipTypes_ ) {
      ChipId const id{ fap };
      auto const * const layout = firstLayout( table, chipType );
      if ( !layout || fault.fap.value_or( fap ) != fap ) {
         continue;
      }
      for ( U32 const array : arrayIndices( *layout ) ) {
         U32 const first = fault.entry.value_or( 0 );
         U32 const end = fault.entry ? first + 1 : entryCount( *layout );
         for ( U32 entry = first; entry < end && fault.array.value_or( array ) == array; ++entry ) {
            bool const isMeant =
               fault.entry || chips_.chip( id )->entry( addressOf( *layout, array, entry ) ).hasValue();
            for ( U32 copy = 0; isMeant && copy < layout->selectors.size(); ++copy ) {
               if ( fault.copy.value_or( copy ) == copy ) {
                  all.push_back(
                     { id, addressOf( *layout, array, entry, copy ), { &table, layout, array, entry, copy } } );
               }
            }
         }
      }
   }
   return all;
}

// Of no table in particular: one that holds a value.
std::optional< FaultyDriver::Decaying > FaultyDriver::anyPlace( Armed & armed ) const {
   std::vector< U16 > faps;
   for ( auto const & it : chipTypes_ ) {
      if ( armed.fault.fap.value_or( it.first ) == it.first ) {
         faps.push_back( it.first );
      }
   }
   ChipId const id{ faps[armed.chance() % faps.size()] };
   Chip const & chip = *chips_.chip( id );
   U32 const number = chip.nextValued( static_cast< U32 >( armed.chance() % chip.map().entries() ) );
   if ( number == chip.map().entries() ) {
      return std::nullopt;
   }
   AddressMap::Range const & range = chip.map().rangeOf( number );
   U32 const copy = armed.fault.copy.value_or( static_cast< U32 >( armed.chance() % range.copies ) );
   if ( copy >= range.copies ) {
      return std::nullopt;
   }
   auto const at = range.at( number, copy );
   auto const place = placeAt( chipTypeOf( id ), at );
   return place ? std::optional( Decaying{ id, at, *place } ) : std::nullopt;
}

// ---- what

void FaultyDriver::tell(
   Armed & armed, ChipId chip, TablePlace const & place, std::span< U32 const > words, bool isByOperation ) {
   ++armed.fired;
   U32 const most = armed.fault.count.value_or( armed.fault.kind == Fault::Kind::flip ? 1 : ~U32{ 0 } );
   armed.isOver = armed.fired >= most;
   if ( options_.fired ) {
      options_.fired( { .what = armed.fault.kindText(),
                        .chip = chip,
                        .place = place,
                        .words = words,
                        .isByOperation = isByOperation } );
   }
}

// Turns the bit where it isn't as the fault has it; returns whether it did.
bool FaultyDriver::decayAt( Armed & armed, Decaying const & it ) {
   Fault const & fault = armed.fault;
   std::vector< U32 > words( it.place.layout->width );
   chips_.read( it.chip, it.at, words );
   if ( !isThere( words, fault.bit ) ||
        ( fault.kind == Fault::Kind::stuck && bitOf( words, fault.bit ) == fault.value ) ) {
      return false;
   }
   turn( words, fault.bit );
   chips_.write( it.chip, it.at, words );
   tell( armed, it.chip, it.place, words, false );
   return true;
}

void FaultyDriver::decay( Armed & armed ) {
   Fault const & fault = armed.fault;
   constexpr U32 mostTries = 1000; // to find a place at random
   U32 const count = fault.count.value_or( 1 );
   if ( fault.table.empty() ) {
      for ( U32 tries = 0; tries < mostTries && armed.fired < count; ++tries ) {
         if ( auto const place = anyPlace( armed ) ) {
            decayAt( armed, *place );
         }
      }
      return;
   }
   auto const places = placesOf( fault );
   if ( fault.kind == Fault::Kind::stuck ) {
      for ( auto const & place : places ) {
         if ( !armed.isOver ) {
            decayAt( armed, place );
         }
      }
      return;
   }
   for ( U32 done = 0; done < count && !places.empty(); ++done ) {
      decayAt( armed, places[armed.chance() % places.size()] );
   }
}

std::optional< TablePlace > FaultyDriver::fires( Armed & armed, ChipId chip, SchanAddress const & at ) {
   Fault const & fault = armed.fault;
   armed.isOver = armed.isOver || ( fault.duration && Rex::now() - armed.begun >= *fault.duration );
   if ( armed.isOver ) {
      return std::nullopt;
   }
   auto const place = placeOf( fault, chip, at );
   return place && ( fault.probability >= 1 || chanceOf( armed.chance ) < fault.probability ) ? place : std::nullopt;
}

// What happens to an operation before it reaches its chip.
void FaultyDriver::beforeAll( ChipId chip, SchanAddress const & at, bool isWrite ) {
   for ( Armed & armed : armed_ ) {
      bool const isError = armed.fault.kind == Fault::Kind::error;
      if ( !isError && armed.fault.kind != Fault::Kind::delay ) {
         continue;
      }
      auto const place = fires( armed, chip, at );
      if ( !place ) {
         continue;
      }
      std::vector< U32 > words( place->layout->width );
      chips_.read( chip, at, words );
      tell( armed, chip, *place, words, true );
      if ( isError ) {
         throw SchanError( std::string( isWrite ? "write to " : "read of " ) + place->table->name + " failed" );
      }
      Rex::Seconds const time = armed.fault.milliseconds / millisecondsInSecond;
      options_.delays ? options_.delays( time ) : Rex::nowIs( Rex::now() + time );
   }
}

void FaultyDriver::read( ChipId chip, SchanAddress const & at, std::span< U32 > words ) {
   beforeAll( chip, at, false );
   chips_.read( chip, at, words );
}

bool FaultyDriver::write( ChipId chip, SchanAddress const & at, std::span< U32 const > words ) {
   beforeAll( chip, at, true );
   std::vector< U32 > arriving( words.begin(), words.end() );
   std::vector< std::pair< Armed *, TablePlace > > fired;
   bool isLost = false;
   for ( Armed & armed : armed_ ) {
      Fault const & fault = armed.fault;
      bool const isFlip = fault.kind == Fault::Kind::flip && fault.probability < 1;
      bool const isStuck = fault.kind == Fault::Kind::stuck;
      if ( fault.kind != Fault::Kind::lost && !isFlip && !isStuck ) {
         continue;
      }
      if ( fault.kind != Fault::Kind::lost && !isThere( words, fault.bit ) ) {
         continue;
      }
      auto const place = fires( armed, chip, at );
      if ( !place || ( isStuck && bitOf( arriving, fault.bit ) == fault.value ) ) {
         continue;
      }
      isLost = isLost || fault.kind == Fault::Kind::lost;
      if ( fault.kind != Fault::Kind::lost ) {
         turn( arriving, fault.bit );
      }
      fired.emplace_back( &armed, *place );
   }
   bool const changed = !isLost && chips_.write( chip, at, arriving );
   if ( isLost ) {
      chips_.read( chip, at, arriving );
   }
   for ( auto & [armed, place] : fired ) {
      tell( *armed, chip, place, arriving, true );
   }
   return changed;
}

} // namespace Simulator
