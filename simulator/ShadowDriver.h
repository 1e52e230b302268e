// A driver that keeps beside each chip the image of what it is expected to hold: all that was written to it, whether it
// has arrived or not.
//
//    ShadowDriver shadow( expected, faulty, { .degraded = [&]( ChipId chip, std::string const & why ) { … } } );
//    DaceSal::schanDriverIs( &shadow );
//    shadow.isDegraded( ChipId{ 0 } );
//
// Reads go to the chip and are answered from the image, so that a bit that has turned round on the chip never finds its
// way back into what is written.
//
// An operation that a chip fails at is tried again, a few times. A chip that goes on failing is degraded: no further
// operation reaches it, and what it misses is the difference between it and its image. The others go on.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "simulator/ChipDriver.h"

#include <functional>
#include <set>

namespace Simulator {

class ShadowDriver final : public DaceSal::SchanDriver {
 public:
   static constexpr unsigned mostTries = 3;

   // Hears of a chip that is degraded from now on, within the operation that has failed.
   using Degraded = std::function< void( ChipId chip, std::string const & why ) >;
   // Hears of a write that hasn't reached its chip, because it is degraded.
   using Missed = std::function< void( ChipId chip, SchanAddress const & at ) >;

   // `expected` has a chip for each of those of `under`, and holds what they hold. Both outlive this.
   ShadowDriver( ChipDriver & expected, DaceSal::SchanDriver & under, Degraded degraded, Missed missed )
      : expected_( expected ), under_( &under ), degraded_( std::move( degraded ) ), missed_( std::move( missed ) ) {}

   void underIs( DaceSal::SchanDriver & under ) { under_ = &under; }

   bool isDegraded( ChipId chip ) const { return chips_.contains( chip.value ); }
   std::set< U16 > const & degraded() const { return chips_; }
   // The chip is tried again from now on.
   void triesAgain( ChipId chip ) { chips_.erase( chip.value ); }

   ChipDriver const & expected() const { return expected_; }

   void read( ChipId chip, SchanAddress const & at, std::span< U32 > words ) override;
   bool write( ChipId chip, SchanAddress const & at, std::span< U32 const > words ) override;
   bool
   exchange( ChipId chip, SchanAddress const & at, std::span< U32 const > words, std::span< U32 > before ) override;
   bool control( ChipId chip, U32 control, U32 value ) override;
   std::optional< U32 > controlValue( ChipId chip, U32 control ) const override {
      return expected_.controlValue( chip, control );
   }

   // What a copy of an entry holds on the chip itself; false where the chip doesn't tell.
   bool readChip( ChipId chip, SchanAddress const & at, std::span< U32 > words );
   // Gives a copy of an entry what it is expected to hold; false where the chip doesn't take it.
   bool repair( ChipId chip, SchanAddress const & at );
   bool repairControl( ChipId chip, U32 control );

 private:
   template< class Try >
   bool carriesOut( ChipId chip, Try const & tryOnce );
   void writeChip( ChipId chip, SchanAddress const & at, std::span< U32 const > words );

   ChipDriver & expected_;
   DaceSal::SchanDriver * under_;
   Degraded degraded_;
   Missed missed_;
   std::set< U16 > chips_; // that are degraded
};

} // namespace Simulator
