#include "sal/BcmAsicBase.h"

#include <cctype>

namespace AsicUtils {

namespace {

constexpr char const * typeNames[] = { "U8", "U16", "U32", "U64", "Raw128", "Raw256", "Raw512", "Raw1024" };

std::string typeName( ValueType type ) {
   return typeNames[static_cast< unsigned >( type )];
}

// As a parameter: the wide types by reference.
std::string parameter( ValueType type ) {
   return type < ValueType::U64 ? typeName( type ) : "const " + typeName( type ) + "&";
}

std::string capitalised( std::string name ) {
   name[0] = static_cast< char >( std::toupper( static_cast< unsigned char >( name[0] ) ) );
   return name;
}

// The name in the chip's register file: capitals with underscores.
std::string sdkName( char const * name ) {
   std::string text;
   for ( char const * c = name; *c; ++c ) {
      if ( std::isupper( static_cast< unsigned char >( *c ) ) ) {
         text += '_';
      }
      text += static_cast< char >( std::toupper( static_cast< unsigned char >( *c ) ) );
   }
   return text;
}

// The largest value of `width` bits, in hexadecimal.
std::string largestValue( unsigned width ) {
   std::string digits( ( width + 3 ) / 4, 'f' );
   if ( width % 4 != 0 ) {
      digits[0] = "0137"[width % 4];
   }
   return "0x" + digits;
}

unsigned bytesOf( ValueType type ) {
   return typeBits( type ) / 8;
}

bool fits( U32 const * value, ValueType type, unsigned width ) {
   for ( unsigned word = 0; word < typeBits( type ) / 32; ++word ) {
      U32 const beyond = width >= 32 * ( word + 1 ) ? 0 : width <= 32 * word ? ~U32{ 0 } : ~U32{ 0 } << ( width % 32 );
      if ( ( value[word] & beyond ) != 0 ) {
         return false;
      }
   }
   return true;
}

} // namespace

void BcmAsicBase::checkPair() const {
   ChipAndVariant const named{ Hardware::ChipType{ chipType }, variant_ };
   if ( !layout_ ) {
      std::ostringstream message;
      message << named << " not in metainfo for " << meta_->name << "!";
      meta_->failWith( "0", message.str(), "%::" + std::string( meta_->name ) + "(ChipType, U8*, U16, bool, U8)" );
   }
   meta_->facility( accessTraceLevel, meta_->name, " chipType: ", named );
}

// ---- fields

std::string BcmAsicBase::pattern( U16 field, Access access ) const {
   FieldInfo const & info = meta_->fields[field];
   if ( access == Access::set ) {
      return "void %::" + std::string( info.name ) + "Is(" + parameter( info.type ) + ")";
   }
   return typeName( info.type ) + " %::" + info.name + "() const";
}

void BcmAsicBase::failLacking( U16 field, std::string_view pattern ) const {
   if ( !meta_->chipKnown( chipType ) || meta_->variantCount == 1 ) {
      meta_->fail( currentLayout() || !meta_->chipKnown( chipType ) ? "0" : meta_->variantText( "variant_" ), pattern );
   }
   // The variant that owns the field, where there is one.
   int owner = -1;
   int owners = 0;
   for ( U8 variant = 0; variant < meta_->variantCount; ++variant ) {
      TableLayout const * found = meta_->layout( chipType, variant );
      if ( found && found->rows[field].width != 0 ) {
         owner = variant;
         ++owners;
      }
   }
   meta_->fail( owners == 1 && owner != variant_ ? "variant_ == " + std::to_string( owner ) : "0", pattern );
}

FieldRow const & BcmAsicBase::checkedRow( U16 field, Access access ) const {
   traceCall( [&] { return pattern( field, access ); } );
   TableLayout const * found = currentLayout();
   if ( !found || found->rows[field].width == 0 ) {
      failLacking( field, pattern( field, access ) );
   }
   FieldRow const & row = found->rows[field];
   if ( len_ < row.bytes() ) {
      meta_->fail( "len_ >= " + std::to_string( row.bytes() ), pattern( field, access ) );
   }
   // The pair is known to be valid now, also where the variant was changed.
   layout_ = found;
   usable_ = usableLength();
   return row;
}

void BcmAsicBase::wideFieldIs( U16 field, U32 const * value ) {
   FieldRow const & row = checkedRow( field, Access::set );
   ValueType const type = meta_->fields[field].type;
   if ( !fits( value, type, row.width ) ) {
      meta_->fail( "value <= " + largestValue( row.width ), pattern( field, Access::set ) );
   }
   Detail::copyBits( buf_,
                     len_,
                     reinterpret_cast< U8 const * >( value ),
                     static_cast< int >( bytesOf( type ) ),
                     row.width,
                     row.offset,
                     0 );
}

void BcmAsicBase::wideField( U16 field, U32 * value ) const {
   FieldRow const & row = checkedRow( field, Access::get );
   Detail::copyBits( reinterpret_cast< U8 * >( value ),
                     static_cast< int >( bytesOf( meta_->fields[field].type ) ),
                     buf_,
                     len_,
                     row.width,
                     0,
                     row.offset );
}

void BcmAsicBase::fieldIs( U16 field, U64 value ) {
   FieldRow const & row = checkedRow( field, Access::set );
   if ( ( value & ~Detail::lowBits( row.width ) ) != 0 ) {
      meta_->fail( "value <= " + largestValue( row.width ), pattern( field, Access::set ) );
   }
   Detail::copyBits( buf_, len_, reinterpret_cast< U8 const * >( &value ), sizeof value, row.width, row.offset, 0 );
}

U64 BcmAsicBase::fieldValue( U16 field ) const {
   FieldRow const & row = checkedRow( field, Access::get );
   U64 value = 0;
   Detail::copyBits( reinterpret_cast< U8 * >( &value ), sizeof value, buf_, len_, row.width, 0, row.offset );
   return value;
}

bool BcmAsicBase::fieldValid( U16 field ) const {
   traceCall( [&] { return "bool %::is" + capitalised( meta_->fields[field].name ) + "Valid() const"; } );
   TableLayout const * found = currentLayout();
   return found && found->rows[field].width != 0;
}

U16 BcmAsicBase::fieldLen( U16 field ) const {
   auto const pattern = [&] { return "U16 %::" + std::string( meta_->fields[field].name ) + "Len() const"; };
   traceCall( pattern );
   if ( !meta_->chipKnown( chipType ) ) {
      meta_->fail( "0", pattern() );
   }
   TableLayout const * found = currentLayout();
   if ( !found || found->rows[field].width == 0 ) {
      std::ostringstream message;
      message << ChipAndVariant{ Hardware::ChipType{ chipType }, variant_ } << " does not have field "
              << sdkName( meta_->fields[field].name );
      meta_->failWith( "0", message.str(), pattern() );
   }
   return found->rows[field].width;
}

U16 BcmAsicBase::fieldStart( U16 field ) const {
   auto const pattern = [&] { return "U16 %::" + std::string( meta_->fields[field].name ) + "Offset() const"; };
   traceCall( pattern );
   TableLayout const * found = currentLayout();
   if ( !found || found->rows[field].width == 0 ) {
      failLacking( field, pattern() );
   }
   return found->rows[field].offset;
}

void BcmAsicBase::runFieldIs( U16 run, U32 index, U64 value ) {
   FieldRun const & fields = meta_->runs[run];
   ValueType const type = meta_->fields[fields.fields[0]].type;
   auto const pattern = [&] { return "void %::" + std::string( fields.name ) + "Is(U32, " + parameter( type ) + ")"; };
   traceCall( pattern );
   if ( index >= fields.fields.size() ) [[unlikely]] {
      meta_->failWith( "0", std::to_string( index ) + " out of range for " + fields.name + "Is", pattern() );
   }
   fieldIs( fields.fields[index], value );
}

U64 BcmAsicBase::runField( U16 run, U32 index ) const {
   FieldRun const & fields = meta_->runs[run];
   auto const pattern = [&] {
      return typeName( meta_->fields[fields.fields[0]].type ) + " %::" + fields.name + "(U32) const";
   };
   traceCall( pattern );
   if ( index >= fields.fields.size() ) [[unlikely]] {
      meta_->failWith( "0", std::to_string( index ) + " out of range for " + fields.name, pattern() );
   }
   return fieldValue( fields.fields[index] );
}

// ---- the entry and its table

void BcmAsicBase::maskedEntry( U32 * words ) const {
   auto const pattern = [&] { return typeName( meta_->entryType ) + " %::getAllFields() const"; };
   traceCall( pattern );
   TableLayout const * found = currentLayout();
   if ( !found ) {
      meta_->fail( meta_->chipKnown( chipType ) ? meta_->variantText( "variant_" ) : "0", pattern() );
   }
   U16 bytes = 0;
   for ( std::size_t field = 0; field < meta_->fields.size(); ++field ) {
      FieldRow const & row = found->rows[field];
      if ( row.width != 0 ) {
         bytes = std::max( bytes, row.bytes() );
      }
   }
   if ( len_ < bytes ) {
      meta_->fail( "len_ >= " + std::to_string( bytes ), pattern() );
   }
   Raw1024 entry;
   std::memcpy( entry.word.data(), buf_, bytes );
   int const typeWords = static_cast< int >( std::max( 1u, typeBits( meta_->entryType ) / 32 ) );
   maskBuf( entry.word.data(), Raw1024::words, words, Raw1024::words, found->mask, typeWords );
}

U16 BcmAsicBase::width() const {
   meta_->trace( "virtual U16 %::width() const", chipType, variant_ );
   return meta_->width( chipType, variant_ );
}

U16 BcmAsicBase::fieldCount() const {
   meta_->trace( "virtual U16 %::fieldCount() const", chipType, variant_ );
   return meta_->fieldCount( chipType, variant_ );
}

U32 const * BcmAsicBase::fieldsMaskWords() const {
   return meta_->fieldsMask( chipType, variant_ );
}

S32 BcmAsicBase::sdkDefinedId() const {
   meta_->trace( "virtual S32 %::sdkDefinedId() const", chipType, variant_ );
   return meta_->sdkDefinedId( chipType, variant_ );
}

U32 BcmAsicBase::instanceCount() const {
   meta_->trace( "virtual U32 %::instanceCount() const", chipType, variant_ );
   return meta_->instanceCount( chipType, variant_ );
}

bool BcmAsicBase::hasIdentifier( U32 identifier ) const {
   meta_->trace( "virtual bool %::hasIdentifier(U32) const", chipType, variant_ );
   return meta_->hasIdentifier( chipType, variant_, identifier );
}

U32 BcmAsicBase::arrayElements() const {
   meta_->trace( "virtual U32 %::arrayElements() const", chipType, variant_ );
   return meta_->arrayElements( chipType, variant_ );
}

U32 BcmAsicBase::index_min() const {
   meta_->trace( "U32 %::index_min() const", chipType, variant_ );
   return meta_->index_min( chipType, variant_ );
}

U32 BcmAsicBase::arrayIndex_min() const {
   meta_->trace( "U32 %::arrayIndex_min() const", chipType, variant_ );
   return meta_->arrayIndex_min( chipType, variant_ );
}

bool BcmAsicBase::getSchanAddress(
   U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) const {
   meta_->trace( "virtual bool %::getSchanAddress(U32&, U32&, U32&, U16, U32, U16) const", chipType, variant_ );
   return meta_->getSchanAddress(
      chipType, variant_, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
}

} // namespace AsicUtils
