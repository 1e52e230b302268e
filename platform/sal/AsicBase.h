// The root of the accessor classes: a typed, bit-exact view over a caller's buffer, which holds one entry of one chip
// table. See AsicTable.h for a worked example.
//
// The virtual operations stand in the order of the virtual table. Those that a kind of table does not have fail here,
// by assertion.
//
// Threading: an accessor belongs to its caller for the length of one operation.
#pragma once

#include "assert/Assert.h"
#include "corvo/Types.h"
#include "sal/MetaInfo.h"

#include <algorithm>

namespace AsicUtils {

class AsicBase {
 public:
   // `buf` is not owned and holds `len` bytes. The flag and the last number are the business of derived classes.
   AsicBase( U8 chipType_, U8 * buf, U32 len, bool, U8 variant, U8 )
      : buf_( buf ), chipType( chipType_ ), variant_( variant ), len_( static_cast< U16 >( len ) ) {}
   AsicBase( AsicBase const & ) = delete;
   AsicBase & operator=( AsicBase const & ) = delete;
   virtual ~AsicBase() = default;

   virtual void setField64( U32 fieldId, U64 value ) = 0;
   virtual U64 stringField( Corvo::String const & name, U16 word ) const = 0;
   virtual void stringFieldIs( Corvo::String const & name, U64 const & value ) = 0;
   virtual U16 fieldWidth( U32 fieldId ) const = 0;
   virtual U16 fieldOffset( U32 fieldId ) const = 0;
   virtual bool isFieldValid( U32 fieldId ) const = 0;
   virtual U16 width() const = 0;
   virtual U32 entries() const { fail( "false && \"entries invalid for this class\"" ); }
   virtual U32 maxIdentifier() const { fail( "false && \"maxIdentifier invalid for this class\"" ); }
   virtual U16 fieldCount() const = 0;
   virtual bool isTable() const = 0;
   // The mask of all fields, in words. In each class's own type it is allFieldsMask, which can't stand here for its
   // type; its slot does, so that those behind it have their places.
   virtual U32 const * fieldsMaskWords() const = 0;
   virtual S32 sdkDefinedId() const = 0;
   virtual U32 instanceCount() const = 0;
   virtual bool hasInstance( U32 ) const { fail( "false" ); }
   virtual bool hasIdentifier( U32 identifier ) const = 0;
   virtual U32 arrayElements() const = 0;
   virtual U32 tableVariantCount() const { fail( "false" ); }
   virtual EntrySpans entrySpans() const { fail( "false" ); }
   virtual bool compareTo( void const *, U16 ) const { fail( "0" ); }
   virtual bool getSchanAddress(
      U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) const = 0;

   // Makes a live object a view of another variant. The next access checks it.
   void variantIs( U8 variant ) {
      variant_ = variant;
      usable_ = 0;
   }

 protected:
   [[noreturn]] static void fail( char const * text, std::source_location at = std::source_location::current() ) {
      Rex::assertionFailed( text, at );
   }

   // `len_` as far as it counts for a pair of chip and variant that is known to be valid.
   U16 usableLength() const { return std::min< U16 >( len_, FieldRow::absent - 1 ); }

   U8 * buf_;
   U8 chipType;
   U8 variant_;
   U16 len_;
   // What a check of a field needs, in the padding behind the state: the buffer's length, or 0 where chip and variant
   // are not known to be valid, so that one compare covers all three.
   mutable U16 usable_ = 0;
};

} // namespace AsicUtils
