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
#include "simulator/UnitStore.h"

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
   // The same where it stands.
   struct ChangeView {
      U32 place; // its number, as placeOf() tells it
      ChipId chip;
      bool isControl;
      SchanAddress at;
      U32 control;
      std::span< U32 const > before;
      std::span< U32 const > after;
   };

   // `under` outlives this.
   explicit StagedDriver( DaceSal::SchanDriver & under ) : under_( under ) {}

   void read( ChipId chip, SchanAddress const & at, std::span< U32 > words ) override;
   bool write( ChipId chip, SchanAddress const & at, std::span< U32 const > words ) override;
   bool
   exchange( ChipId chip, SchanAddress const & at, std::span< U32 const > words, std::span< U32 > before ) override;
   bool control( ChipId chip, U32 control, U32 value ) override;
   std::optional< U32 > controlValue( ChipId chip, U32 control ) const override;

   // Places that were written to have numbers, in the order of the first write. None: it wasn't written to.
   std::size_t placeCount() const { return places_.size(); }
   std::optional< U32 > placeOf( ChipId chip, SchanAddress const & at ) const { return find( keyOf( chip, at ) ); }
   std::optional< U32 > placeOf( ChipId chip, U32 control ) const { return find( keyOf( chip, control ) ); }

   // Visits what a commit would change, in its order.
   template< class Visit >
   void eachChange( Visit const & visit ) const {
      for ( U32 number = 0; number < places_.size(); ++number ) {
         Place const & place = places_[number];
         if ( !place.hasBefore || !std::ranges::equal( place.before(), place.after() ) ) {
            visit( viewOf( number ) );
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
      std::size_t hash() const {
         U64 const mixed = ( U64{ chip } << 32 ^ U64{ block } << 40 ^ address ) * 0x9e3779b97f4a7c15;
         return mixed ^ mixed >> 32;
      }
   };
   struct Place {
      Key key;
      U16 width;
      bool hasBefore; // false: a control that has no value yet
      U32 * words;    // what stood there and, behind it, what would
      std::span< U32 > before() const { return { words, width }; }
      std::span< U32 > after() const { return { words + width, width }; }
   };
   static Key keyOf( ChipId chip, SchanAddress const & at );
   static Key keyOf( ChipId chip, U32 control );
   std::optional< U32 > find( Key const & key ) const;
   // The place, which is made where there is none: `begin( place )` tells what stood there then.
   template< class Begin >
   Place & placeAt( Key const & key, std::size_t width, Begin const & begin );
   void grow();
   ChangeView viewOf( U32 number ) const;

   DaceSal::SchanDriver & under_;
   std::vector< Place > places_; // in the order of the first write
   UnitStore< U32 > words_;
   std::vector< U32 > table_; // by hash, the next one in turn on collision: a place's number plus 1, or 0
};

} // namespace Simulator
