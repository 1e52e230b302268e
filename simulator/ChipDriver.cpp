#include "simulator/ChipDriver.h"

#include "assert/Assert.h"

namespace Simulator {

Chip & ChipDriver::chipIs( ChipId id, std::string name, AddressMap const & map, ChipMemory memory ) {
   if ( byNumber_.size() <= id.value ) {
      byNumber_.resize( id.value + 1u );
   }
   byNumber_[id.value] = std::make_unique< Chip >( id, std::move( name ), map, std::move( memory ) );
   return *byNumber_[id.value];
}

std::vector< Chip const * > ChipDriver::chips() const {
   std::vector< Chip const * > all;
   for ( auto const & chip : byNumber_ ) {
      if ( chip ) {
         all.push_back( chip.get() );
      }
   }
   return all;
}

void ChipDriver::read( ChipId id, SchanAddress const & at, std::span< U32 > words ) {
   served( id ).read( at, words );
}

bool ChipDriver::write( ChipId id, SchanAddress const & at, std::span< U32 const > words ) {
   return served( id ).write( at, words );
}

bool ChipDriver::exchange( ChipId id, SchanAddress const & at, std::span< U32 const > words, std::span< U32 > before ) {
   Chip & chip = served( id );
   chip.read( at, before );
   return chip.write( at, words );
}

std::optional< U32 > ChipDriver::controlValue( ChipId id, U32 control ) const {
   Chip const * const it = chip( id );
   return it ? it->control( control ) : std::nullopt;
}

bool ChipDriver::control( ChipId id, U32 control, U32 value ) {
   return served( id ).controlIs( control, value );
}

void ChipDriver::refuse( ChipId id ) {
   Rex::SassertHelper( "chip" ) << "chip " << id.value << ": the switch has no such chip; no chip operation was made";
}

} // namespace Simulator
