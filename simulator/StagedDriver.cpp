#include "simulator/StagedDriver.h"

#include <algorithm>
#include <utility>

namespace Simulator {

namespace {
constexpr U32 controlBlock = ~U32{ 0 };
}

StagedDriver::Key StagedDriver::keyOf( ChipId chip, SchanAddress const & at ) {
   return { chip.value, at.selectorA << 8 | at.selectorB, at.address };
}

StagedDriver::Key StagedDriver::keyOf( ChipId chip, U32 control ) {
   return { chip.value, controlBlock, control };
}

StagedDriver::Change const * StagedDriver::find( Key const & key ) const {
   auto const found = places_.find( key );
   return found == places_.end() ? nullptr : &staged_[found->second];
}

StagedDriver::Change * StagedDriver::find( Key const & key ) {
   return const_cast< Change * >( std::as_const( *this ).find( key ) );
}

StagedDriver::Change & StagedDriver::staged( ChipId chip, SchanAddress const & at, std::size_t width ) {
   auto const [place, isNew] = places_.try_emplace( keyOf( chip, at ), staged_.size() );
   if ( !isNew ) {
      return staged_[place->second];
   }
   Change & change = staged_.emplace_back( Change{
      .chip = chip, .isControl = false, .at = at, .control = 0, .before = std::vector< U32 >( width ), .after = {} } );
   under_.read( chip, at, change.before );
   change.after = change.before;
   return change;
}

void StagedDriver::read( ChipId chip, SchanAddress const & at, std::span< U32 > words ) {
   if ( Change const * const change = find( keyOf( chip, at ) ); change && change->after.size() == words.size() ) {
      std::ranges::copy( change->after, words.begin() );
   } else {
      under_.read( chip, at, words );
   }
}

bool StagedDriver::write( ChipId chip, SchanAddress const & at, std::span< U32 const > words ) {
   Change & change = staged( chip, at, words.size() );
   if ( change.after.size() != words.size() ) {
      return under_.write( chip, at, words ); // which fails, saying why
   }
   bool const changed = !std::ranges::equal( change.after, words );
   change.after.assign( words.begin(), words.end() );
   return changed;
}

bool StagedDriver::exchange( ChipId chip,
                             SchanAddress const & at,
                             std::span< U32 const > words,
                             std::span< U32 > before ) {
   read( chip, at, before );
   return write( chip, at, words );
}

bool StagedDriver::control( ChipId chip, U32 control, U32 value ) {
   auto const [place, isNew] = places_.try_emplace( keyOf( chip, control ), staged_.size() );
   if ( isNew ) {
      auto const before = under_.controlValue( chip, control );
      auto const words = before ? std::vector< U32 >{ *before } : std::vector< U32 >();
      staged_.push_back(
         { .chip = chip, .isControl = true, .at = {}, .control = control, .before = words, .after = words } );
   }
   Change & change = staged_[place->second];
   bool const changed = change.after != std::vector< U32 >{ value };
   change.after = { value };
   return changed;
}

std::optional< U32 > StagedDriver::controlValue( ChipId chip, U32 control ) const {
   Change const * const change = find( keyOf( chip, control ) );
   return change ? std::optional( change->after.front() ) : under_.controlValue( chip, control );
}

std::vector< StagedDriver::Change > StagedDriver::changes() const {
   std::vector< Change > all;
   eachChange( [&]( Change const & change ) { all.push_back( change ); } );
   return all;
}

std::size_t StagedDriver::commit() {
   std::size_t handedOn = 0;
   eachChange( [&]( Change const & change ) {
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
   staged_.clear();
   places_.clear();
}

} // namespace Simulator
