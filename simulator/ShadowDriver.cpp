#include "simulator/ShadowDriver.h"

namespace Simulator {

// Tries a few times; false where the chip is degraded, or is so from now on.
template< class Try >
bool ShadowDriver::carriesOut( ChipId chip, Try const & tryOnce ) {
   if ( !chips_.empty() && isDegraded( chip ) ) [[unlikely]] {
      return false;
   }
   for ( unsigned tries = 1;; ++tries ) {
      try {
         tryOnce();
         return true;
      } catch ( DaceSal::SchanError const & error ) {
         if ( tries == mostTries ) {
            chips_.insert( chip.value );
            if ( degraded_ ) {
               degraded_( chip, error.what() );
            }
            return false;
         }
      }
   }
}

void ShadowDriver::read( ChipId chip, SchanAddress const & at, std::span< U32 > words ) {
   carriesOut( chip, [&] { under_->read( chip, at, words ); } );
   expected_.read( chip, at, words );
}

bool ShadowDriver::write( ChipId chip, SchanAddress const & at, std::span< U32 const > words ) {
   bool const changed = expected_.write( chip, at, words );
   writeChip( chip, at, words );
   return changed;
}

void ShadowDriver::writeChip( ChipId chip, SchanAddress const & at, std::span< U32 const > words ) {
   if ( !carriesOut( chip, [&] { under_->write( chip, at, words ); } ) && missed_ ) {
      missed_( chip, at );
   }
}

bool ShadowDriver::exchange( ChipId chip,
                             SchanAddress const & at,
                             std::span< U32 const > words,
                             std::span< U32 > before ) {
   bool const changed = expected_.exchange( chip, at, words, before );
   writeChip( chip, at, words );
   return changed;
}

bool ShadowDriver::control( ChipId chip, U32 control, U32 value ) {
   bool const changed = expected_.control( chip, control, value );
   carriesOut( chip, [&] { under_->control( chip, control, value ); } );
   return changed;
}

bool ShadowDriver::readChip( ChipId chip, SchanAddress const & at, std::span< U32 > words ) {
   return carriesOut( chip, [&] { under_->read( chip, at, words ); } );
}

bool ShadowDriver::repair( ChipId chip, SchanAddress const & at ) {
   auto const & entry = expected_.chip( chip )->entry( at );
   std::vector< U32 > words( entry.width() );
   expected_.read( chip, at, words );
   return carriesOut( chip, [&] { under_->write( chip, at, words ); } );
}

bool ShadowDriver::repairControl( ChipId chip, U32 control ) {
   auto const value = expected_.controlValue( chip, control );
   return value && carriesOut( chip, [&] { under_->control( chip, control, *value ); } );
}

} // namespace Simulator
