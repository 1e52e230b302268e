#include "simulator/ChipsHeader.h"

#include "simulator/ChipMemory.h"
#include "simulator/TableMap.h"

#include <algorithm>
#include <atomic>
#include <cstring>

namespace Simulator {

namespace {

using Place = ChipsHeader::Place;

constexpr std::array< char, 8 > magicOfChips{ 'L', '3', 'S', 'M', 'c', 'h', 'i', 'p' };
constexpr U32 formatOfChips = 1;

// What is alike in every header; the places follow it.
struct Begin {
   std::array< char, 8 > magic = magicOfChips;
   U32 format = formatOfChips;
   U32 headerBytes = 0;
   U64 fileBytes = 0;
   U64 generation = 0; // above it, its complement
   U32 noise = 0;
   U32 places = 0;
   U64 checksum = 0;
};
static_assert( sizeof( Begin ) == 48 && sizeof( Place ) == 32 ); // no padding, which nobody would check

class Sum {
 public:
   void add( std::span< std::byte const > bytes ) {
      for ( std::byte const byte : bytes ) {
         value_ = ( value_ ^ std::to_integer< U64 >( byte ) ) * 0x100000001b3;
      }
   }
   void add( U32 number ) { add( std::as_bytes( std::span( &number, 1 ) ) ); }
   U64 value() const { return value_; }

 private:
   U64 value_ = 0xcbf29ce484222325;
};

U64 sumOf( AddressMap const & map ) {
   Sum sum;
   for ( auto const & range : map.ranges() ) {
      for ( U32 const number : { range.blocks[0],
                                 range.blocks[1],
                                 range.base,
                                 range.count,
                                 range.width,
                                 range.copies,
                                 range.firstWord,
                                 range.firstEntry } ) {
         sum.add( number );
      }
   }
   return sum.value();
}

// Of a header, but for what changes and the sum itself.
U64 checksumOf( Begin begin, std::span< std::byte const > places ) {
   begin.generation = 0;
   begin.checksum = 0;
   Sum sum;
   sum.add( std::as_bytes( std::span( &begin, 1 ) ) );
   sum.add( places );
   return sum.value();
}

constexpr U64 withComplement( U32 generation ) {
   return U64{ ~generation } << 32 | generation;
}

U64 * generationOf( std::byte * header ) {
   return reinterpret_cast< U64 * >( header + offsetof( Begin, generation ) );
}

std::string fapsText( std::span< Place const > places ) {
   if ( places.empty() ) {
      return "no FAP";
   }
   std::string text = places.size() == 1 ? "FAP " : "FAPs ";
   for ( auto const & place : places ) {
      text += ( &place == places.data()    ? ""
                : &place == &places.back() ? " and "
                                           : ", " ) +
              std::to_string( place.fap );
   }
   return text;
}

std::string chipText( U32 chipType ) {
   auto const * const name = Hardware::chipTypeName( static_cast< Hardware::ChipType >( chipType ) );
   return name ? name : "chip of kind " + std::to_string( chipType );
}

[[noreturn]] void refuseCut( U64 bytes, U64 of ) {
   throw ChipsRefused( "is cut: " + std::to_string( bytes ) + " of " + std::to_string( of ) + " bytes are there" );
}

// The header as it is told there.
struct Found {
   Begin begin;
   std::span< std::byte const > places;
};

Found foundIn( std::span< std::byte const > bytes ) {
   if ( bytes.empty() ) {
      throw ChipsRefused( "is empty" );
   }
   if ( std::memcmp( bytes.data(), magicOfChips.data(), std::min( bytes.size(), magicOfChips.size() ) ) != 0 ) {
      throw ChipsRefused( "is no file of chips" );
   }
   Begin begin;
   if ( bytes.size() < sizeof begin ) {
      throw ChipsRefused( "is cut: it ends within its header" );
   }
   std::memcpy( &begin, bytes.data(), sizeof begin );
   if ( begin.format != formatOfChips ) {
      throw ChipsRefused( "has the format " + std::to_string( begin.format ) + ", and this build knows the format " +
                          std::to_string( formatOfChips ) );
   }
   if ( begin.headerBytes > bytes.size() ) {
      throw ChipsRefused( "is cut: it ends within its header" );
   }
   bool const isLong = begin.headerBytes >= sizeof begin;
   auto const places = bytes.first( isLong ? begin.headerBytes : sizeof begin ).subspan( sizeof begin );
   auto const generation = static_cast< U32 >( begin.generation );
   if ( !isLong || places.size() != std::size_t{ begin.places } * sizeof( Place ) ||
        begin.checksum != checksumOf( begin, places ) || begin.generation != withComplement( generation ) ) {
      throw ChipsRefused( "has a damaged header" );
   }
   return { begin, places };
}

} // namespace

ChipsHeader::ChipsHeader( SwitchDescription const & description )
   : noise_( static_cast< U32 >( description.bootNoise ) ) {
   std::map< U32, Hardware::ChipType > faps;
   for ( auto const & fap : description.faps ) {
      if ( Hardware::chipTypeName( fap.revision.chipType() ) ) {
         faps.emplace( fap.fapId.value(), fap.revision.chipType() );
      }
   }
   fileBytes_ =
      ( sizeof( Begin ) + faps.size() * sizeof( Place ) + ChipMemory::page - 1 ) / ChipMemory::page * ChipMemory::page;
   for ( auto const & [fap, chipType] : faps ) {
      auto const & map = addressMap( chipType );
      auto const bytes = ChipMemory::bytes( map );
      places_.push_back( { .fap = fap,
                           .chipType = static_cast< U32 >( chipType ),
                           .addresses = sumOf( map ),
                           .chipAt = fileBytes_,
                           .expectedAt = fileBytes_ + bytes } );
      fileBytes_ += 2 * bytes;
   }
}

std::size_t ChipsHeader::size() const {
   return sizeof( Begin ) + places_.size() * sizeof( Place );
}

std::vector< std::byte > ChipsHeader::bytes() const {
   auto const places = std::as_bytes( std::span( places_ ) );
   Begin begin{ .headerBytes = static_cast< U32 >( size() ),
                .fileBytes = fileBytes_,
                .generation = withComplement( 0 ),
                .noise = noise_,
                .places = static_cast< U32 >( places_.size() ) };
   begin.checksum = checksumOf( begin, places );
   std::vector< std::byte > bytes( size() );
   std::memcpy( bytes.data(), &begin, sizeof begin );
   std::memcpy( bytes.data() + sizeof begin, places.data(), places.size() );
   return bytes;
}

void ChipsHeader::check( std::span< std::byte const > found, U64 fileBytes ) const {
   auto const [begin, bytes] = foundIn( found );
   if ( begin.fileBytes > fileBytes ) {
      refuseCut( fileBytes, begin.fileBytes );
   }
   if ( begin.fileBytes < fileBytes ) {
      throw ChipsRefused( "is too long: " + std::to_string( fileBytes ) + " bytes, of which " +
                          std::to_string( begin.fileBytes ) + " are its chips" );
   }
   std::vector< Place > places( begin.places );
   std::memcpy( places.data(), bytes.data(), bytes.size() );
   if ( !std::ranges::equal( places, places_, {}, &Place::fap, &Place::fap ) ) {
      throw ChipsRefused( "holds the chips of " + fapsText( places ) + ", and the switch has " + fapsText( places_ ) );
   }
   for ( std::size_t fap = 0; fap < places.size(); ++fap ) {
      auto const & [there, here] = std::tie( places[fap], places_[fap] );
      if ( there.chipType != here.chipType ) {
         throw ChipsRefused( "holds a " + chipText( there.chipType ) + " for FAP " + std::to_string( here.fap ) +
                             ", and the switch has a " + chipText( here.chipType ) + " there" );
      }
      if ( there != here ) {
         throw ChipsRefused( "holds the chips of " + chipText( here.chipType ) +
                             " with other tables than this build's" );
      }
   }
   if ( begin.noise != noise_ ) {
      throw ChipsRefused( "holds chips that were booted with another noise" );
   }
}

U32 ChipsHeader::generation( std::span< std::byte const > header ) {
   Begin begin;
   std::memcpy( &begin, header.data(), sizeof begin );
   return static_cast< U32 >( begin.generation );
}

void ChipsHeader::generationIs( std::span< std::byte > header, U32 generation ) {
   std::atomic_ref( *generationOf( header.data() ) ).store( withComplement( generation ) );
}

} // namespace Simulator
