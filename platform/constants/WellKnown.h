// Numbers of the chips that the agent's parts have agreed on: well-known LIFs, limits, profiles, trap codes.
//
//    driver.control( fapId, 117, Jericho2VttConstants::wellKnownLifOffsetToHwIndex( 1 ) );
//
// Where a comment doesn't say otherwise, the numbers are the reference platform's own; the true ones belong to a closed
// library.
#pragma once

#include "corvo/Types.h"

#include <map>
#include <span>

namespace Hardware::Dace {

struct Jericho2VttConstants {
   // The LIFs that no interface owns stand at the end of the LIF space; an offset names one of them.
   static constexpr U32 wellKnownLifs = 32;

   // The LIF's index on the chip, 22 bits. An offset of 32 or more ends the process by assertion.
   static U32 wellKnownLifOffsetToHwIndex( U32 offset );
};

struct ExtendedVlanConstants {
   // How many outgoing router interfaces a FAP of the major revision supports; a small number that every FAP has room
   // for where the revision is unknown.
   static U16 numOutRifSupportedByFapRevMajor( U32 major );
};

// The rows behind numOutRifSupportedByFapRevMajor.
struct NumOutRifRow {
   U32 fapRevMajor;
   U16 numOutRif;
};
std::span< NumOutRifRow const > numOutRifRows();

// From the forwarding profile of a recycled packet, 0 to 15, to the code of the trap that it is sent to.
extern std::map< U8, U16 > const jericho2IppeRecycFwdProfileToTrapMap;

// The egress result format of an access circuit in an ARP entry: an entry of the format tables.
struct EtpsArpAcResultType {
   static U8 hwValue() { return 37; }
};

// Profiles with a meaning of their own, as LIF profiles another one than as VSI profiles: so they are called by their
// numbers.
enum class Jericho2LifProfiles : U8 { profile8 = 8, profile9 = 9, profile17 = 17, profile18 = 18 };

} // namespace Hardware::Dace
