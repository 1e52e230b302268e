// The driver of a simulated switch: one simulated chip for each FAP.
//
//    ChipDriver driver;
//    Chip & chip = driver.chipIs( ChipId{ 0 }, "BCM88690_B0", map );
//    DaceSal::schanDriverIs( &driver );
//
// An operation on a chip that the switch doesn't have ends the process by assertion, naming it.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "simulator/Chip.h"

#include <vector>

namespace Simulator {

class ChipDriver final : public DaceSal::SchanDriver {
 public:
   // Adds a chip, with nothing in it. The map must outlive it. A second chip of the same number replaces the first.
   Chip & chipIs( ChipId id, std::string name, AddressMap const & map ) {
      return chipIs( id, std::move( name ), map, ChipMemory::own( map ) );
   }
   // With what is in the memory.
   Chip & chipIs( ChipId id, std::string name, AddressMap const & map, ChipMemory memory );

   // The chip of the number, or null.
   Chip * chip( ChipId id ) { return id.value < byNumber_.size() ? byNumber_[id.value].get() : nullptr; }
   Chip const * chip( ChipId id ) const { return id.value < byNumber_.size() ? byNumber_[id.value].get() : nullptr; }
   // Every chip, in the order of their numbers.
   std::vector< Chip const * > chips() const;

   void read( ChipId id, SchanAddress const & at, std::span< U32 > words ) override;
   bool write( ChipId id, SchanAddress const & at, std::span< U32 const > words ) override;
   bool exchange( ChipId id, SchanAddress const & at, std::span< U32 const > words, std::span< U32 > before ) override;
   bool control( ChipId id, U32 control, U32 value ) override;
   std::optional< U32 > controlValue( ChipId id, U32 control ) const override;

 private:
   Chip & served( ChipId id ) {
      Chip * const it = chip( id );
      if ( !it ) [[unlikely]] {
         refuse( id );
      }
      return *it;
   }
   [[noreturn]] static void refuse( ChipId id );

   std::vector< std::unique_ptr< Chip > > byNumber_;
};

} // namespace Simulator
