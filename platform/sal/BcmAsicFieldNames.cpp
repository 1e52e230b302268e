// Fields by id and by name, for callers that learn at run time which one they want.
#include "sal/BcmAsicBase.h"

namespace AsicUtils {

namespace {

bool isSettable64( FieldInfo const & info ) {
   return !info.readOnly && info.type <= ValueType::U64;
}

U64 narrowed( ValueType type, U64 value ) {
   return value & Detail::lowBits( typeBits( type ) );
}

} // namespace

void BcmAsicBase::setField64( U32 fieldId, U64 value ) {
   constexpr char const * pattern = "virtual void %::setField64(U32, U64)";
   meta_->trace( pattern, chipType, variant_ );
   U16 const field = meta_->fieldById( fieldId );
   if ( field == meta_->fields.size() || !isSettable64( meta_->fields[field] ) ) {
      meta_->fail( "false", pattern );
   }
   fieldIs( field, narrowed( meta_->fields[field].type, value ) );
}

void BcmAsicBase::stringFieldIs( Corvo::String const & name, U64 const & value ) {
   constexpr char const * pattern = "virtual void %::stringFieldIs(const String&, const U64&)";
   meta_->trace( pattern, chipType, variant_ );
   U16 const field = meta_->fieldByName( name );
   if ( field == meta_->fields.size() || !isSettable64( meta_->fields[field] ) ) {
      meta_->failWith( "0", "fieldName not found or is const.", pattern );
   }
   fieldIs( field, narrowed( meta_->fields[field].type, value ) );
}

U64 BcmAsicBase::stringField( Corvo::String const & name, U16 word ) const {
   constexpr char const * pattern = "virtual U64 %::stringField(const String&, U16) const";
   meta_->trace( pattern, chipType, variant_ );
   U16 const field = meta_->fieldByName( name );
   if ( field == meta_->fields.size() ) {
      meta_->failWith( "0", "fieldName not found.", pattern );
   }
   if ( meta_->fields[field].type <= ValueType::U64 ) {
      return fieldValue( field );
   }
   unsigned const words = typeBits( meta_->fields[field].type ) / 64;
   if ( word >= words ) {
      meta_->fail( "word < " + std::to_string( words ), pattern );
   }
   return wideField< Raw1024 >( field ).word64( word );
}

bool BcmAsicBase::isFieldValid( U32 fieldId ) const {
   meta_->trace( "virtual bool %::isFieldValid(U32) const", chipType, variant_ );
   U16 const field = meta_->fieldById( fieldId );
   return field != meta_->fields.size() && fieldValid( field );
}

U16 BcmAsicBase::fieldWidth( U32 fieldId ) const {
   constexpr char const * pattern = "virtual U16 %::fieldWidth(U32) const";
   meta_->trace( pattern, chipType, variant_ );
   if ( !isFieldValid( fieldId ) ) {
      meta_->fail( "false", pattern );
   }
   return fieldLen( meta_->fieldById( fieldId ) );
}

U16 BcmAsicBase::fieldOffset( U32 fieldId ) const {
   constexpr char const * pattern = "virtual U16 %::fieldOffset(U32) const";
   meta_->trace( pattern, chipType, variant_ );
   if ( !isFieldValid( fieldId ) ) {
      meta_->fail( "false", pattern );
   }
   return fieldStart( meta_->fieldById( fieldId ) );
}

} // namespace AsicUtils
