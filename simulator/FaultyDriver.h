// A driver whose chips fail where they are told to.
//
//    FaultyDriver faulty( chips, description, [&]( FiredFault const & fired ) { … } );
//    U32 const number = faulty.arm( { .table = "IppdFerTrapCfg", .kind = Fault::Kind::lost, .count = 1 } );
//    faulty.write( … );                              // doesn't arrive
//    faulty.disarm( number );
//
// It stands between a driver and its chips only while something is armed. What an operation throws is SchanError.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "simulator/ChipDriver.h"
#include "simulator/Fault.h"
#include "simulator/PlaceAt.h"
#include "simulator/SwitchDescription.h"

#include <functional>
#include <random>

namespace Simulator {

// What happened to one copy of an entry.
struct FiredFault {
   std::string what; // the fault's kind, or "missed": the chip is degraded
   ChipId chip;
   TablePlace place;
   std::span< U32 const > words; // that the copy holds since
   bool isByOperation;           // else by itself
};

class FaultyDriver final : public DaceSal::SchanDriver {
 public:
   struct Options {
      std::function< void( FiredFault const & ) > fired = {};
      // Lets time pass. None: the clock of the process is moved.
      std::function< void( Rex::Seconds ) > delays = {};
   };

   // The chips outlive this.
   FaultyDriver( ChipDriver & chips, SwitchDescription const & description, Options options );

   // From here on. Returns its number, from 1. Rex::ValueError where no chip can have it.
   U32 arm( Fault const & fault );
   // Returns whether it was armed.
   bool disarm( U32 number );
   void disarmAll() { armed_.clear(); }

   struct Armed {
      U32 number;
      Fault fault;
      U32 fired = 0;
      bool isOver = false; // it fires no more
      Rex::Seconds begun = 0;
      std::mt19937_64 chance = {};
   };
   std::vector< Armed > const & armed() const { return armed_; }
   // The table's entry that lies at an address.
   std::optional< TablePlace > placeOf( ChipId chip, SchanAddress const & at ) const {
      return placeAt( chipTypeOf( chip ), at );
   }

   void read( ChipId chip, SchanAddress const & at, std::span< U32 > words ) override;
   bool write( ChipId chip, SchanAddress const & at, std::span< U32 const > words ) override;
   bool control( ChipId chip, U32 control, U32 value ) override { return chips_.control( chip, control, value ); }
   std::optional< U32 > controlValue( ChipId chip, U32 control ) const override {
      return chips_.controlValue( chip, control );
   }

 private:
   struct Decaying {
      ChipId chip;
      SchanAddress at;
      TablePlace place;
   };

   Hardware::ChipType chipTypeOf( ChipId chip ) const { return chipTypes_.at( chip.value ); }
   std::optional< TablePlace > placeOf( Fault const & fault, ChipId chip, SchanAddress const & at ) const;
   // Where it fires at this operation.
   std::optional< TablePlace > fires( Armed & armed, ChipId chip, SchanAddress const & at );
   void tell( Armed & armed, ChipId chip, TablePlace const & place, std::span< U32 const > words, bool isByOperation );
   void beforeAll( ChipId chip, SchanAddress const & at, bool isWrite );
   std::vector< Decaying > placesOf( Fault const & fault ) const;
   std::optional< Decaying > anyPlace( Armed & armed ) const;
   bool decayAt( Armed & armed, Decaying const & it );
   void decay( Armed & armed );

   ChipDriver & chips_;
   Options options_;
   std::map< U16, Hardware::ChipType > chipTypes_;
   std::vector< Armed > armed_;
   U32 last_ = 0; // number
};

} // namespace Simulator
