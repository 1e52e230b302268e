// The cell and its FAPs (forwarding chips), as the hardware status publishes them.
#pragma once

#include "chip/FapRevision.h"
#include "rex/Entity.h"

template<>
struct Rex::Codec< Hardware::Dace::FapId > {
   static ValueType type() { return Codec< U16 >::type(); }
   static Value toValue( Hardware::Dace::FapId id ) { return id.value(); }
   static Hardware::Dace::FapId fromValue( Value const & value ) {
      return Hardware::Dace::FapId( Codec< U16 >::fromValue( value ) );
   }
   static std::string toKey( Hardware::Dace::FapId id ) { return std::to_string( id.value() ); }
   static Hardware::Dace::FapId fromKey( std::string const & key ) {
      return Hardware::Dace::FapId( Codec< U16 >::fromKey( key ) );
   }
};

// {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}. Left out: the newest SDK, the chip's own major revision.
template<>
struct Rex::Codec< Hardware::Dace::FapRevision > {
   static ValueType type();
   static Value toValue( Hardware::Dace::FapRevision const & revision );
   static Hardware::Dace::FapRevision fromValue( Value const & value );
};

namespace Hardware::Dace {

// A port of a FAP, as the FAP numbers it.
struct FapPortId {
   U16 value = 0;
   friend auto operator<=>( FapPortId, FapPortId ) = default;
   friend std::ostream & operator<<( std::ostream & out, FapPortId port ) { return out << port.value; }
};

namespace Cell {

class FapStatus : public Rex::KeyedEntity< FapId > {
   REX_ENTITY( FapStatus, Rex::KeyedEntity< FapId > );
   REX_KEY( fapId );
   REX_ATTRIBUTE( Corvo::String, fapName, 0x102 );
   REX_ATTRIBUTE( FapRevision, revision, 0x103 );
   REX_ATTRIBUTE( U16, cores, 0x104, 0 );   // number of cores, each with its own recirculation port
   REX_MAP( U16, FapPortId, ports, 0x105 ); // by system port key
};

class CellStatus : public Rex::Entity {
   REX_ENTITY( CellStatus, Rex::Entity );
   REX_ORDERED_COLLECTION( FapStatus, fapStatus, 0x102 );
};

} // namespace Cell
} // namespace Hardware::Dace
