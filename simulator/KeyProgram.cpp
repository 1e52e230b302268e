#include "simulator/KeyProgram.h"

#include "constants/Contexts.h"
#include "simulator/TableMap.h"

#include <array>
#include <string>

namespace Simulator::KeyProgram {

namespace {

using DacePPExport::ctx_fwd2;
using Hardware::ChipType;

// Databases of the exact-match engine.
constexpr U64 privateHosts = 22;
constexpr U64 reducedPrefixes = 23;

// The seventh key of the unified IPv4 context, and the numbers of the instructions that it is made of.
constexpr U32 unifiedKey = 6;
constexpr U32 hostKey = 9; // another key of that context, of whole host addresses
constexpr U32 destinationInstruction = 16;
constexpr U32 vrfInstruction = 31;
constexpr std::array< U32, 2 > constantInstructions{ 3, 9 };

// The reduced database has prefixes of 21 bits: the destination's leading bits, then the VRF behind them.
constexpr U32 prefixLen = 21;
constexpr U32 destinationOffset = 992; // of the whole address in the headers, in bits
constexpr U32 vrfOffset = 0x5a8;       // of the VRF in the stage's registers, in bits

// The formats of an instruction, told by its upper bits.
enum class Format : U8 { constant, register_, literal, header };

U32 instruction( Format format, U32 fieldOffset, U32 fieldSize, U32 keyOffset, U32 ffcIndex ) {
   U32 const low = ( fieldSize & 0x1f ) << 8 | ( keyOffset & 0xff );
   switch ( format ) {
   case Format::constant:
      return 1u << 27 | ( ffcIndex & 7 ) << 24 | ( fieldOffset & 0x7ff ) << 13 | low;
   case Format::register_:
      return 3u << 27 | ( ffcIndex & 7 ) << 24 | ( fieldOffset & 0x1f ) << 13 | low;
   case Format::literal:
      return 8u << 25 | ( fieldOffset & 0xfff ) << 13 | low;
   case Format::header:
      break;
   }
   return ( ffcIndex & 7 ) << 24 | ( fieldOffset & 0x7ff ) << 13 | low;
}

// An instruction of one of the first so many formats.
U32 noiseInstruction( U64 noise, U64 formats ) {
   return instruction( static_cast< Format >( noise % formats ),
                       static_cast< U32 >( noise >> 8 ),
                       static_cast< U32 >( noise >> 24 ),
                       static_cast< U32 >( noise >> 32 ),
                       static_cast< U32 >( noise >> 48 ) );
}

// Number of the first instruction of a memory, and how many an entry of it has.
struct Memory {
   U32 first;
   U32 toAnEntry;
};
constexpr std::array< Memory, 5 > memories{ { { 0, 2 }, { 2, 4 }, { 6, 4 }, { 14, 4 }, { 30, 4 } } };

bool isUnifiedContext( BootRow const & row ) {
   return row.entry == ctx_fwd2_value( row.chipType, ctx_fwd2::ipv4Unified );
}

U32 unifiedInstruction( BootRow const & row, U32 number ) {
   bool const isSmall = row.chipType == ChipType::BCM88480_A0 || row.chipType == ChipType::BCM88480_B0;
   if ( number == destinationInstruction ) {
      return instruction( Format::header, destinationOffset + 32 - prefixLen, prefixLen - 1, 0, 0 );
   }
   if ( number == vrfInstruction ) {
      return instruction( Format::literal, vrfOffset, isSmall ? 3 : 4, prefixLen, 0 );
   }
   // The others that take part are neither from a header nor literal.
   bool const takesPart = number == constantInstructions[0] || number == constantInstructions[1];
   return noiseInstruction( row.noise.at( 100 + number ), takesPart ? 2 : 4 );
}

} // namespace

void instructions( BootRow const & row ) {
   Memory const memory = memories[row.layout.variant];
   for ( U32 element = 0; element < memory.toAnEntry; ++element ) {
      U32 const number = memory.first + row.array * memory.toAnEntry + element;
      U32 const word = isUnifiedContext( row ) ? unifiedInstruction( row, number )
                                               : noiseInstruction( row.noise.at( 100 + number ), 4 );
      fieldBitsIs( row.words, *row.layout.field( "ffcInstruction" + std::to_string( element ) ), word );
   }
   // What is left of the entry belongs to no instruction.
   U32 const used = 29 * memory.toAnEntry;
   for ( U32 bit = used; bit < 32 * row.words.size(); ++bit ) {
      row.words[bit / 32] &= ~( U32{ 1 } << bit % 32 );
   }
}

void builder( BootRow const & row ) {
   // About a quarter of the instructions takes part in a key.
   U64 taking = row.noise.at( 100 ) & row.noise.at( 101 ) & ( ( U64{ 1 } << 38 ) - 1 );
   taking |= taking == 0;
   U64 database = 24 + row.noise.at( 102 ) % 40;
   if ( isUnifiedContext( row ) && row.array == unifiedKey ) {
      taking = U64{ 1 } << destinationInstruction | U64{ 1 } << vrfInstruction | U64{ 1 } << constantInstructions[0] |
               U64{ 1 } << constantInstructions[1];
      database = reducedPrefixes;
   } else if ( isUnifiedContext( row ) && row.array == hostKey ) {
      database = privateHosts;
   }
   fieldBitsIs( row.words, *row.layout.field( "kbr" ), taking );
   fieldBitsIs( row.words, *row.layout.field( "appDb" ), database );
}

} // namespace Simulator::KeyProgram
