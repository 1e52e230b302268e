#include "simulator/StagedDriver.h"

#include <algorithm>

namespace Simulator {

namespace {

constexpr U32 controlBlock = ~U32{ 0 };
constexpr std::size_t fewest = 1 << 10; // of the table; a power of two

} // namespace

StagedDriver::Key StagedDriver::keyOf( ChipId chip, SchanAddress const & at ) {
   return { chip.value, at.selectorA << 8 | at.selectorB, at.address };
}

StagedDriver::Key StagedDriver::keyOf( ChipId chip, U32 control ) {
   return { chip.value, controlBlock, control };
}

std::optional< U32 > StagedDriver::find( Key const & key ) const {
   for ( std::size_t at = key.hash(); !table_.empty(); ++at ) {
      U32 const number = table_[at & ( table_.size() - 1 )];
      if ( number == 0 ) {
         break;
      }
      if ( places_[number - 1].key == key ) {
         return number - 1;
      }
   }
   return std::nullopt;
}

void StagedDriver::grow() {
   table_.assign( std::max( fewest, 2 * table_.size() ), 0 );
   for ( U32 number = 0; number < places_.size(); ++number ) {
      std::size_t at = places_[number].key.hash();
      while ( table_[at & ( table_.size() - 1 )] != 0 ) {
         ++at;
      }
      table_[at & ( table_.size() - 1 )] = number + 1;
   }
}

template< class Begin >
StagedDriver::Place & StagedDriver::placeAt( Key const & key, std::size_t width, Begin const & begin ) {
   if ( 2 * ( places_.size() + 1 ) > table_.size() ) {
      grow();
   }
   std::size_t at = key.hash();
   for ( ; table_[at & ( table_.size() - 1 )] != 0; ++at ) {
      Place & place = places_[table_[at & ( table_.size() - 1 )] - 1];
      if ( place.key == key ) {
         return place;
      }
   }
   // One of those who begin it changes it. NOLINTNEXTLINE(misc-const-correctness)
   Place place{
      .key = key, .width = static_cast< U16 >( width ), .hasBefore = true, .words = words_.room( 2 * width ) };
   begin( place ); // fails where there is no such place below, and leaves none here
   std::ranges::copy( place.before(), place.after().begin() );
   table_[at & ( table_.size() - 1 )] = static_cast< U32 >( places_.size() + 1 );
   return places_.emplace_back( place );
}

void StagedDriver::read( ChipId chip, SchanAddress const & at, std::span< U32 > words ) {
   auto const number = find( keyOf( chip, at ) );
   if ( number && places_[*number].width == words.size() ) {
      std::ranges::copy( places_[*number].after(), words.begin() );
   } else {
      under_.read( chip, at, words );
   }
}

bool StagedDriver::exchange( ChipId chip,
                             SchanAddress const & at,
                             std::span< U32 const > words,
                             std::span< U32 > before ) {
   Place const & place = placeAt(
      keyOf( chip, at ), words.size(), [&]( Place const & fresh ) { under_.read( chip, at, fresh.before() ); } );
   if ( place.width != words.size() ) {
      return under_.write( chip, at, words ); // which fails, saying why
   }
   auto const now = place.after();
   if ( !before.empty() ) {
      std::ranges::copy( now, before.begin() );
   }
   bool const changed = !std::ranges::equal( now, words );
   std::ranges::copy( words, now.begin() );
   return changed;
}

bool StagedDriver::write( ChipId chip, SchanAddress const & at, std::span< U32 const > words ) {
   return exchange( chip, at, words, {} );
}

bool StagedDriver::control( ChipId chip, U32 control, U32 value ) {
   bool isFirst = false;
   Place const & place = placeAt( keyOf( chip, control ), 1, [&]( Place & fresh ) {
      auto const before = under_.controlValue( chip, control );
      isFirst = !before;
      fresh.hasBefore = before.has_value();
      fresh.words[0] = before.value_or( 0 );
   } );
   U32 & now = place.after()[0];
   bool const changed = isFirst || now != value;
   now = value;
   return changed;
}

std::optional< U32 > StagedDriver::controlValue( ChipId chip, U32 control ) const {
   auto const number = find( keyOf( chip, control ) );
   return number ? std::optional( places_[*number].after()[0] ) : under_.controlValue( chip, control );
}

StagedDriver::ChangeView StagedDriver::viewOf( U32 number ) const {
   Place const & place = places_[number];
   auto const & [chip, block, address] = place.key;
   bool const isControl = block == controlBlock;
   return { .place = number,
            .chip = ChipId{ static_cast< U16 >( chip ) },
            .isControl = isControl,
            .at = isControl ? SchanAddress{} : SchanAddress{ address, block >> 8, block & 0xff },
            .control = isControl ? address : 0,
            .before = place.hasBefore ? place.before() : std::span< U32 >{},
            .after = place.after() };
}

std::vector< StagedDriver::Change > StagedDriver::changes() const {
   std::vector< Change > all;
   eachChange( [&]( ChangeView const & change ) {
      all.push_back( { .chip = change.chip,
                       .isControl = change.isControl,
                       .at = change.at,
                       .control = change.control,
                       .before = { change.before.begin(), change.before.end() },
                       .after = { change.after.begin(), change.after.end() } } );
   } );
   return all;
}

std::size_t StagedDriver::commit() {
   std::size_t handedOn = 0;
   eachChange( [&]( ChangeView const & change ) {
      ++handedOn;
      if ( change.isControl ) {
         under_.control( change.chip, change.control, change.after.front() );
      } else {
         under_.write( change.chip, change.at, change.after );
      }
   } );
   drop();
   return handedOn;
}

void StagedDriver::drop() {
   for ( U32 number = 0; number < places_.size(); ++number ) {
      std::size_t at = places_[number].key.hash();
      while ( table_[at & ( table_.size() - 1 )] != number + 1 ) {
         ++at;
      }
      table_[at & ( table_.size() - 1 )] = 0;
   }
   places_.clear();
   words_.forget();
}

} // namespace Simulator
