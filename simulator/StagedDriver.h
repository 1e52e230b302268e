// A driver that keeps what is written to itself: reads see it, the driver below doesn't, until it is committed or
// dropped.
//
//    StagedDriver staged( *DaceSal::schanDriver() );
//    DaceSal::schanDriverIs( &staged );
//    ...                                            // whatever programs the chips
//    for ( auto const & change : staged.changes() ) { … }
//    staged.commit();                               // the driver below gets what differs, and nothing else
//
// A commit writes in the order in which the places were first written, each copy for itself: what was written several
// times is written once, and what ends as it stood isn't written at all.
//
// A place that the driver below doesn't have fails as it does there, at the first look.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "sal/Driver.h"

#include <unordered_map>
#include <vector>

namespace Simulator {

class StagedDriver final : public DaceSal::SchanDriver {
 public:
   using ChipId = DaceSal::ChipId;
   using SchanAddress = DaceSal::SchanAddress;

   // One copy of an entry, or a control, that would become different.
   struct Change {
      ChipId chip;
      bool isControl;
      SchanAddress at;           // of an entry
      U32 control;               // of a control
      std::vector< U32 > before; // a control: one word, or none where it has no value
      std::vector< U32 > after;
   };

   // `under` outlives this.
   explicit StagedDriver( DaceSal::SchanDriver & under ) : under_( under ) {}

   void read( ChipId chip, SchanAddress const & at, std::span< U32 > words ) override;
   bool write( ChipId chip, SchanAddress const & at, std::span< U32 const > words ) override;
   bool
   exchange( ChipId chip, SchanAddress const & at, std::span< U32 const > words, std::span< U32 > before ) override;
   bool control( ChipId chip, U32 control, U32 value ) override;
   std::optional< U32 > controlValue( ChipId chip, U32 control ) const override;

   // Visits what a commit would change, in its order.
   template< class Visit >
   void eachChange( Visit const & visit ) const {
      for ( Change const & change : staged_ ) {
         if ( change.before != change.after ) {
            visit( change );
         }
      }
   }
   std::vector< Change > changes() const;
   // Hands the changes on, and forgets them. Returns how many there were.
   std::size_t commit();
   void drop();

 private:
   struct Key {
      U32 chip;
      U32 block; // the selectors; of a control a number that no block has
      U32 address;
      bool operator==( Key const & ) const = default;
   };
   struct KeyHash {
      std::size_t operator()( Key const & key ) const {
         return ( U64{ key.chip } << 32 ^ U64{ key.block } << 40 ^ key.address ) * 0x9e3779b97f4a7c15 >> 7;
      }
   };
   static Key keyOf( ChipId chip, SchanAddress const & at );
   static Key keyOf( ChipId chip, U32 control );
   Change * find( Key const & key );
   Change const * find( Key const & key ) const;
   Change & staged( ChipId chip, SchanAddress const & at, std::size_t width );

   DaceSal::SchanDriver & under_;
   std::vector< Change > staged_; // in the order of the first write
   std::unordered_map< Key, std::size_t, KeyHash > places_;
};

} // namespace Simulator
