#include "sal/MetaInfo.h"

#include "sal/BitCopy.h"

#include <algorithm>

namespace AsicUtils {

std::ostream & operator<<( std::ostream & out, ChipAndVariant const & pair ) {
   return out << pair.chipType << " variant: " << unsigned{ pair.variant };
}

std::string MetaInfo::signature( std::string_view pattern ) const {
   std::string text;
   for ( char const c : pattern ) {
      if ( c == '%' ) {
         text += "Hardware::";
         text += name;
      } else {
         text += c;
      }
   }
   return text;
}

void MetaInfo::emitTrace( std::string_view pattern, U32 chipType, U8 variant ) const {
   facility( accessTraceLevel, signature( pattern ), " chipType: ", chipType, " variant: ", variant );
}

void MetaInfo::fail( std::string const & text, std::string_view pattern ) const {
   std::string const function = signature( pattern );
   Rex::assertionFailed( text.c_str(), { source, line, function.c_str() } );
}

void MetaInfo::failWith( char const * text, std::string const & message, std::string_view pattern ) const {
   std::string const function = signature( pattern );
   Rex::SassertHelper( text, { source, line, function.c_str() } ) << message;
   __builtin_unreachable();
}

std::string MetaInfo::variantText( char const * subject ) const {
   return variantCount == 1 ? std::string( subject ) + " == 0" : "0";
}

bool MetaInfo::chipKnown( U32 chipType ) const {
   return layout( chipType, 0 ) != nullptr;
}

U16 MetaInfo::fieldById( U32 fieldId ) const {
   auto const found =
      std::find_if( fields.begin(), fields.end(), [&]( auto const & field ) { return field.id == fieldId; } );
   return static_cast< U16 >( found - fields.begin() );
}

U16 MetaInfo::fieldByName( std::string_view fieldName ) const {
   auto const found =
      std::find_if( fields.begin(), fields.end(), [&]( auto const & field ) { return field.name == fieldName; } );
   return static_cast< U16 >( found - fields.begin() );
}

TableLayout const & MetaInfo::layoutFor( std::string_view pattern, U32 chipType, U8 variant ) const {
   trace( pattern, chipType, variant );
   TableLayout const * found = layout( chipType, variant );
   if ( !found ) [[unlikely]] {
      fail( chipKnown( chipType ) ? variantText( "variant" ) : "0", pattern );
   }
   return *found;
}

bool MetaInfo::chipTypeVariantValid( U32 chipType, U8 variant ) const {
   trace( "static bool %::chipTypeVariantValid(ChipType, U8)", chipType, variant );
   return layout( chipType, variant ) != nullptr;
}

U32 MetaInfo::tableVariantCount( U32 chipType ) const {
   trace( "static U32 %::tableVariantCount(U32)", chipType, 0 );
   return chipKnown( chipType ) ? variantCount : 0;
}

U32 MetaInfo::entries( U32 chipType, U8 variant ) const {
   return layoutFor( "static U32 %::entries(U32, U8)", chipType, variant ).span.count;
}

U16 MetaInfo::width( U32 chipType, U8 variant ) const {
   return layoutFor( "static U16 %::width(U32, U8)", chipType, variant ).width;
}

U16 MetaInfo::tableWidth( U32 chipType, U8 variant ) const {
   return layoutFor( "static U16 %::tableWidth(U32, U8)", chipType, variant ).width;
}

U16 MetaInfo::regWidth( U32 chipType, U8 variant ) const {
   return layoutFor( "static U16 %::regWidth(U32, U8)", chipType, variant ).width;
}

U32 MetaInfo::index_min( U32 chipType, U8 variant ) const {
   return layoutFor( "static U32 %::index_min(U32, U8)", chipType, variant ).span.first;
}

U32 MetaInfo::arrayElements( U32 chipType, U8 variant ) const {
   return layoutFor( "static U32 %::arrayElements(U32, U8)", chipType, variant ).arrayElements;
}

U32 MetaInfo::arrayIndex_min( U32 chipType, U8 variant ) const {
   return layoutFor( "static U32 %::arrayIndex_min(U32, U8)", chipType, variant ).arrayIndexMin;
}

S32 MetaInfo::sdkDefinedId( U32 chipType, U8 variant ) const {
   return layoutFor( "static S32 %::sdkDefinedId(U32, U8)", chipType, variant ).sdkDefinedId;
}

U16 MetaInfo::fieldCount( U32 chipType, U8 variant ) const {
   layoutFor( "static U16 %::fieldCount(U32, U8)", chipType, variant );
   FieldRow const * first = layout( chipType, variant )->rows;
   return static_cast< U16 >(
      std::count_if( first, first + fields.size(), []( FieldRow const & field ) { return field.width != 0; } ) );
}

U32 MetaInfo::instanceCount( U32 chipType, U8 variant ) const {
   return layoutFor( "static U32 %::instanceCount(U32, U8)", chipType, variant ).instanceCount;
}

EntrySpans MetaInfo::entrySpans( U32 chipType, U8 variant ) const {
   return { &layoutFor( "static AsicUtils::EntrySpans %::entrySpans(U32, U8)", chipType, variant ).span, 1 };
}

U32 MetaInfo::maxIdentifier( U32 chipType, U8 variant ) const {
   layoutFor( "static U32 %::maxIdentifier(U32, U8)", chipType, variant );
   return 0;
}

U32 MetaInfo::addrStride( U32 chipType, U8 variant ) const {
   layoutFor( "static U32 %::addrStride(U32, U8)", chipType, variant );
   return 1;
}

// The test of a register is one wider than its copies.
bool MetaInfo::acceptsIdentifier( TableLayout const & layout, U32 identifier ) const {
   return isMemory ? identifier < layout.instanceCount : identifier <= layout.instanceCount;
}

bool MetaInfo::hasIdentifier( U32 chipType, U8 variant, U32 identifier ) const {
   return acceptsIdentifier( layoutFor( "static bool %::hasIdentifier(U32, U8, U32)", chipType, variant ), identifier );
}

bool MetaInfo::getSchanAddress( U32 chipType,
                                U8 variant,
                                U32 & address,
                                U32 & selectorA,
                                U32 & selectorB,
                                U16 identifier,
                                U32 tableEntry,
                                U16 arrayIndex ) const {
   constexpr char const * pattern = "static bool %::getSchanAddress(U32, U8, U32&, U32&, U32&, U16, U32, U16)";
   trace( pattern, chipType, variant );
   TableLayout const * found = layout( chipType, variant );
   if ( !found ) [[unlikely]] {
      if ( chipKnown( chipType ) ) {
         facility( 0, signature( pattern ), " chipType: ", chipType, " variant: ", variant, " failed." );
      }
      return false;
   }
   TableLayout const & at = *found;
   if ( isMemory ? tableEntry >= at.span.count : tableEntry != 0 ) [[unlikely]] {
      fail( isMemory ? "tableEntry < " + std::to_string( at.span.count ) : "tableEntry == 0", pattern );
   }
   U32 const arrayIndexEnd = at.arrayIndexFirst + at.arrayElements;
   if ( arrayIndex >= arrayIndexEnd ) [[unlikely]] {
      fail( isMemory && !at.hasArray() ? "arrayIndex == 0" : "arrayIndex < " + std::to_string( arrayIndexEnd ),
            pattern );
   }
   if ( arrayIndex < at.arrayIndexFirst ) [[unlikely]] {
      fail( "arrayIndex >= " + std::to_string( at.arrayIndexFirst ), pattern );
   }
   address = at.base + tableEntry + arrayIndex * at.arrayStep;
   if ( !acceptsIdentifier( at, identifier ) ) [[unlikely]] {
      fail( "hasIdentifier( chipType, variant, identifier )", pattern );
   }
   if ( identifier < at.instanceCount || at.instanceCount == 1 ) {
      auto const & selectors = at.selectors[std::min< U32 >( identifier, at.instanceCount - 1u )];
      selectorA = selectors[0];
      selectorB = selectors[1];
   }
   return true;
}

namespace {

// Whether a tag row speaks of the pair.
bool appliesTo( TagRow const & tag, U32 chipType, U8 variant ) {
   return tag.variant == variant && ( tag.chips >> ( chipType - MetaInfo::firstChip ) & 1 ) != 0;
}

unsigned bytesFor( TagRow const & tag ) {
   return ( tag.offset + tag.width + 7u ) / 8;
}

U8 tagBits( TagRow const & tag, U8 const * buf, U16 len ) {
   U8 bits = 0;
   Detail::copyBits( &bits, 1, buf, len, tag.width, 0, tag.offset );
   return bits;
}

} // namespace

bool MetaInfo::isFormat( Hardware::ChipType chipType, U8 const * buf, U16 len, U8 variant ) const {
   U32 const chip = static_cast< U32 >( chipType );
   if ( traced() ) [[unlikely]] {
      trace( "static bool %::is" + std::string( name ) + "(ChipType, const U8*, U16, U8)", chip, variant );
   }
   if ( tags.empty() ) {
      return chipKnown( chip );
   }
   return layout( chip, variant ) && std::all_of( tags.begin(), tags.end(), [&]( TagRow const & tag ) {
             return !appliesTo( tag, chip, variant ) ||
                    ( bytesFor( tag ) <= len && tagBits( tag, buf, len ) == tag.value );
          } );
}

void MetaInfo::handleBuf( Hardware::ChipType chipType, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant ) const {
   constexpr char const * pattern = "void %::handleBuf(ChipType, U8*, U16, bool, U8)";
   U32 const chip = static_cast< U32 >( chipType );
   trace( pattern, chip, variant );
   if ( !layout( chip, variant ) ) {
      fail( chipKnown( chip ) ? variantText( "variant" ) : "0", pattern );
   }
   for ( TagRow const & tag : tags ) {
      if ( !appliesTo( tag, chip, variant ) ) {
         continue;
      }
      if ( bytesFor( tag ) > len ) {
         fail( "len_ >= " + std::to_string( bytesFor( tag ) ), pattern );
      }
      if ( !bufferHoldsEntry ) {
         Detail::copyBits( buf, len, &tag.value, 1, tag.width, tag.offset, 0 );
      } else if ( tagBits( tag, buf, len ) != tag.value ) {
         fail( "({ U8 n = 0; getBuf( buf_, len_, (U8 *)&n, sizeof( U8 ), " + std::to_string( tag.width ) + ", " +
                  std::to_string( tag.offset ) + " ); ( n == " + std::to_string( tag.value ) + " ); })",
               pattern );
      }
   }
}

U32 const * MetaInfo::fieldsMask( U32 chipType, U8 variant ) const {
   static constexpr char const * patterns[] = {
      "static U32 %::allFieldsMask(U32, U8)",
      "static U64 %::allFieldsMask(U32, U8)",
      "static Raw128 %::allFieldsMask(U32, U8)",
      "static Raw256 %::allFieldsMask(U32, U8)",
      "static Raw512 %::allFieldsMask(U32, U8)",
      "static Raw1024 %::allFieldsMask(U32, U8)",
   };
   layoutFor(
      patterns[static_cast< unsigned >( entryType ) - static_cast< unsigned >( ValueType::U32 )], chipType, variant );
   return layout( chipType, variant )->mask;
}

} // namespace AsicUtils
