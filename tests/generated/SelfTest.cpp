#include "SelfTest.h"

namespace SelfTest {

namespace {

using Buffer = std::array< U8, 80 >; // as wide as the widest entry

void bitOfIs( Buffer & buf, unsigned bit, bool value ) {
   U8 const mask = static_cast< U8 >( 1 << bit % 8 );
   buf[bit / 8] = static_cast< U8 >( value ? buf[bit / 8] | mask : buf[bit / 8] & ~mask );
}

bool bitOf( Words const & words, unsigned bit ) {
   return ( words[bit / 32] >> bit % 32 & 1 ) != 0;
}

void bitIs( Words & words, unsigned bit ) {
   words[bit / 32] |= 1u << bit % 32;
}

// The values that a field is tried with: zero, ones, every other bit, and one without a pattern.
std::array< Words, 4 > values( unsigned width ) {
   std::array< Words, 4 > all{};
   for ( unsigned bit = 0; bit < width; ++bit ) {
      bitIs( all[1], bit );
      if ( bit % 2 == 0 ) {
         bitIs( all[2], bit );
      }
      if ( ( bit * bit + bit / 3 ) % 5 < 2 || bit + 1 == width ) {
         bitIs( all[3], bit );
      }
   }
   return all;
}

// Sets and gets the field among zeros and among ones; no other bit changes.
void checkAccess( AsicUtils::AsicBase & accessor, Buffer & buf, FieldShell const & field, Place const & place ) {
   for ( U8 background : { 0x00, 0xff } ) {
      for ( Words const & value : values( place.width ) ) {
         Buffer expected;
         expected.fill( background );
         for ( unsigned bit = 0; bit < place.width; ++bit ) {
            bitOfIs( expected, place.offset + bit, bitOf( value, bit ) );
         }
         if ( field.set ) {
            buf.fill( background );
            field.set( accessor, field.setter, value );
            ASSERT_EQ( buf, expected );
         }
         buf = expected;
         ASSERT_EQ( field.get( accessor, field.getter ), value );
      }
   }
}

struct FieldCheck {
   ClassShell const & table;
   FieldShell const & field;
   Place const * place; // null: the pair lacks the field
   Buffer buf{};
};

void checkOnPair( AsicUtils::AsicBase & accessor, void * context ) {
   auto & check = *static_cast< FieldCheck * >( context );
   FieldShell const & field = check.field;
   bool const exists = check.place != nullptr;
   ASSERT_EQ( check.table.valid( accessor, field.valid ), exists );
   ASSERT_EQ( accessor.isFieldValid( field.id ), exists );
   if ( exists ) {
      ASSERT_EQ( check.table.number( accessor, field.len ), check.place->width );
      ASSERT_EQ( check.table.number( accessor, field.offset ), check.place->offset );
      ASSERT_EQ( accessor.fieldWidth( field.id ), check.place->width );
      ASSERT_EQ( accessor.fieldOffset( field.id ), check.place->offset );
      checkAccess( accessor, check.buf, field, *check.place );
   }
}

// Calls `check` for each pair of chip and variant that the class has.
template< class Check >
void forEachPair( ClassShell const & table, Check const & check ) {
   for ( auto chip : Hardware::allChipTypes ) {
      for ( U8 variant = 0; variant < table.variants; ++variant ) {
         if ( table.exists( chip, variant ) ) {
            SCOPED_TRACE( std::string( table.name ) + " " + Hardware::chipTypeName( chip ) + " variant " +
                          std::to_string( variant ) );
            check( chip, variant );
         }
      }
   }
}

} // namespace

void checkField( ClassShell const & table, FieldShell const & field, Places const & places ) {
   SCOPED_TRACE( field.name );
   std::size_t found = 0;
   forEachPair( table, [&]( Hardware::ChipType chip, U8 variant ) {
      FieldCheck check{ table, field, nullptr };
      for ( Place const & place : places ) {
         if ( place.chip == static_cast< U8 >( chip ) && place.variant == variant ) {
            check.place = &place;
            ++found;
         }
      }
      table.with( chip, variant, check.buf.data(), check.buf.size(), checkOnPair, &check );
   } );
   EXPECT_EQ( found, places.size() ) << "a place on a pair of chip and variant that does not exist";
}

void checkMasks( ClassShell const & table, std::vector< Place > const & places ) {
   forEachPair( table, [&]( Hardware::ChipType chip, U8 variant ) {
      struct MaskCheck {
         ClassShell const & table;
         Words mask;
         Buffer buf;
      } check{ table, {}, {} };
      for ( Place const & place : places ) {
         if ( place.chip == static_cast< U8 >( chip ) && place.variant == variant ) {
            for ( unsigned bit = place.offset; bit < place.offset + place.width; ++bit ) {
               bitIs( check.mask, bit );
            }
         }
      }
      EXPECT_EQ( table.staticMask( chip, variant ), check.mask );
      auto const onPair = []( AsicUtils::AsicBase & accessor, void * context ) {
         auto & c = *static_cast< MaskCheck * >( context );
         EXPECT_EQ( c.table.mask( accessor ), c.mask );
         c.buf.fill( 0xff );
         EXPECT_EQ( c.table.allFields( accessor ), c.mask );
      };
      table.with( chip, variant, check.buf.data(), check.buf.size(), onPair, &check );
   } );
}

} // namespace SelfTest
