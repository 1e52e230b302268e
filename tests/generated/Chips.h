// Names that the tests of the accessors share.
#pragma once

#include "generated/DaceFapNiPluginL3UnicastMetaInfo.h"

#include <gtest/gtest.h>

using Hardware::ChipType;

constexpr ChipType chip10 = ChipType::BCM88690_B0;
constexpr ChipType chip11 = ChipType::BCM88800_A0;
constexpr ChipType chip12 = ChipType::BCM88850_A0;
constexpr ChipType chip13{ 13 }; // the hole
constexpr ChipType chip14 = ChipType::BCM88859_A2;
constexpr ChipType chip15 = ChipType::BCM88480_A0;
constexpr ChipType chip16 = ChipType::BCM88480_B0;

// An S-channel address as the statics yield it.
struct Address {
   bool found = false;
   U32 address = 0xdead;
   U32 selectorA = 0xdead;
   U32 selectorB = 0xdead;
   friend bool operator==( Address const &, Address const & ) = default;
};

inline std::ostream & operator<<( std::ostream & out, Address const & at ) {
   return out << at.found << " " << std::hex << at.address << std::dec << " " << at.selectorA << "/" << at.selectorB;
}

template< class Table >
Address addressOf( U32 chip, U8 variant, U16 identifier, U32 entry, U16 arrayIndex ) {
   Address at;
   at.found =
      Table::getSchanAddress( chip, variant, at.address, at.selectorA, at.selectorB, identifier, entry, arrayIndex );
   return at;
}
