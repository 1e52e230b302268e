// The accessors of this chip family: the operations that are the same for every class, over its rows, and the access to
// fields that generated setters and getters are made of.
//
// A field access is inline as long as nothing is out of the ordinary. Everything else - tracing is on, the buffer ends
// within a word, chip or variant were not checked yet, an argument is wrong - goes to the one road out of line, which
// traces, checks in the order that is promised, and then does the access all the same.
//
// Threading: as AsicBase.
#pragma once

#include "sal/AsicBase.h"
#include "sal/BitCopy.h"

namespace AsicUtils {

class BcmAsicBase : public AsicBase {
 public:
   // Ends the process where the pair of chip and variant does not exist: the helper's text "0" with the pair and
   // " not in metainfo for <Table>!".
   BcmAsicBase( MetaInfo const & meta, U8 chipType_, U8 * buf, U32 len, bool bufferHoldsEntry, U8 variant, U8 last )
      : AsicBase( chipType_, buf, len, bufferHoldsEntry, variant, last ), meta_( &meta ),
        layout_( meta.layout( chipType_, variant ) ) {
      if ( !layout_ || meta.traced() ) [[unlikely]] {
         checkPair();
      }
      usable_ = usableLength();
   }

   void setField64( U32 fieldId, U64 value ) override;
   U64 stringField( Corvo::String const & name, U16 word ) const override;
   void stringFieldIs( Corvo::String const & name, U64 const & value ) override;
   U16 fieldWidth( U32 fieldId ) const override;
   U16 fieldOffset( U32 fieldId ) const override;
   bool isFieldValid( U32 fieldId ) const override;
   U16 width() const override;
   U16 fieldCount() const override;
   U32 const * fieldsMaskWords() const override;
   S32 sdkDefinedId() const override;
   U32 instanceCount() const override;
   bool hasIdentifier( U32 identifier ) const override;
   U32 arrayElements() const override;
   bool getSchanAddress(
      U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) const override;

   virtual bool hasMultipleMem() const { fail( "0" ); }
   virtual U32 groupId( U32 ) const { fail( "0" ); }
   virtual U32 numGroups() const { fail( "0" ); }
   virtual bool groupInfo( U32, U32 &, U32 &, U8 & ) const { fail( "0" ); }
   virtual bool memInfo( U32, U32, U32 &, U32 &, U32 &, U32 &, U32 & ) const { fail( "0" ); }

   U32 index_min() const;
   U32 arrayIndex_min() const;

 protected:
   MetaInfo const & meta() const { return *meta_; }

   // The buffer's length where chip and variant are known to be valid, else 0; and their layout then.
   U16 usable() const { return usable_; }
   TableLayout const & layout() const { return *layout_; }

   // A field of at most 64 bits that lies at one place wherever it exists at all. `field` is its place in the class's
   // list; `traced` whether level 8 is on.
   [[gnu::always_inline]] void
   fieldAtIs( bool traced, U16 field, unsigned offset, unsigned width, unsigned typeWidth, U64 value ) {
      bool const tooLarge = width < typeWidth && ( value >> ( width & 63 ) ) != 0;
      if ( traced || usable_ < Detail::wordBytes( offset, width ) || tooLarge ) [[unlikely]] {
         fieldIs( field, value );
         return;
      }
      Detail::storeBits( buf_, offset, width, value );
   }
   [[gnu::always_inline]] U64 fieldAt( bool traced, U16 field, unsigned offset, unsigned width ) const {
      if ( traced || usable_ < Detail::wordBytes( offset, width ) ) [[unlikely]] {
         return fieldValue( field );
      }
      return Detail::loadBits( buf_, offset, width );
   }

   // A field of at most 32 bits whose place depends on the format, and which lies within a word in each.
   [[gnu::always_inline]] void fieldInIs( bool traced, U16 field, U32 value ) {
      FieldRow const & row = layout_->rows[field];
      U64 const placed = U64{ value } << row.shift;
      if ( traced || usable_ < row.wordBytes || ( placed & row.keep ) != 0 ) [[unlikely]] {
         fieldIs( field, value );
         return;
      }
      U8 * const at = buf_ + row.wordBytes - 4;
      Detail::storeWord( at,
                         ( Detail::loadWord( at ) & static_cast< U32 >( row.keep ) ) | static_cast< U32 >( placed ) );
   }
   [[gnu::always_inline]] U32 fieldIn( bool traced, U16 field ) const {
      FieldRow const & row = layout_->rows[field];
      if ( traced || usable_ < row.wordBytes ) [[unlikely]] {
         return static_cast< U32 >( fieldValue( field ) );
      }
      return ( Detail::loadWord( buf_ + row.wordBytes - 4 ) & ~static_cast< U32 >( row.keep ) ) >> row.shift;
   }

   // The same for a field that lies across two words in some format.
   [[gnu::always_inline]] void fieldAcrossIs( bool traced, U16 field, U32 value ) {
      FieldRow const & row = layout_->rows[field];
      if ( row.words == 1 ) {
         fieldInIs( traced, field, value );
         return;
      }
      U64 const placed = U64{ value } << row.shift;
      if ( traced || usable_ < row.wordBytes || ( placed & row.keep ) != 0 ) [[unlikely]] {
         fieldIs( field, value );
         return;
      }
      U8 * const at = buf_ + row.wordBytes - 8;
      Detail::storeWord( at,
                         ( Detail::loadWord( at ) & static_cast< U32 >( row.keep ) ) | static_cast< U32 >( placed ) );
      Detail::storeWord( at + 4,
                         ( Detail::loadWord( at + 4 ) & static_cast< U32 >( row.keep >> 32 ) ) |
                            static_cast< U32 >( placed >> 32 ) );
   }
   [[gnu::always_inline]] U32 fieldAcross( bool traced, U16 field ) const {
      FieldRow const & row = layout_->rows[field];
      if ( row.words == 1 ) {
         return fieldIn( traced, field );
      }
      if ( traced || usable_ < row.wordBytes ) [[unlikely]] {
         return static_cast< U32 >( fieldValue( field ) );
      }
      U8 const * const at = buf_ + row.wordBytes - 8;
      U64 const words = U64{ Detail::loadWord( at + 4 ) } << 32 | Detail::loadWord( at );
      return static_cast< U32 >( ( words & ~row.keep ) >> row.shift );
   }

   // A wide field that fills its type and begins with a byte, at one place.
   template< class Wide >
   [[gnu::always_inline]] void wideAtIs( bool traced, U16 field, unsigned offset, Wide const & value ) {
      if ( traced || usable_ < offset / 8 + sizeof value ) [[unlikely]] {
         wideFieldIs( field, value.word.data() );
         return;
      }
      std::memcpy( buf_ + offset / 8, value.word.data(), sizeof value );
   }
   template< class Wide >
   [[gnu::always_inline]] Wide wideAt( bool traced, U16 field, unsigned offset ) const {
      if ( traced || usable_ < offset / 8 + sizeof( Wide ) ) [[unlikely]] {
         return wideField< Wide >( field );
      }
      Wide value;
      std::memcpy( value.word.data(), buf_ + offset / 8, sizeof value );
      return value;
   }

   // The road out of line, complete: trace, checks, access. Also that of every other wide field. The calls of what is
   // seldom taken lie apart, too, which [[unlikely]] alone doesn't bring about.
   [[gnu::noinline, gnu::cold]] void fieldIs( U16 field, U64 value );
   [[gnu::noinline, gnu::cold]] U64 fieldValue( U16 field ) const;
   [[gnu::noinline]] void wideFieldIs( U16 field, U32 const * value );
   [[gnu::noinline]] void wideField( U16 field, U32 * value ) const;
   template< class Wide >
   Wide wideField( U16 field ) const {
      Wide value;
      wideField( field, value.word.data() );
      return value;
   }

   bool fieldValid( U16 field ) const;
   U16 fieldLen( U16 field ) const;
   U16 fieldStart( U16 field ) const;

   // Field number `index` of a run. An index past it fails through the helper: "<index> out of range for <run>Is".
   void runFieldIs( U16 run, U32 index, U64 value );
   U64 runField( U16 run, U32 index ) const;

   // The whole entry, masked to the bits of the fields.
   template< class Entry >
   Entry allFields() const {
      Raw< 1024 > words;
      maskedEntry( words.word.data() );
      if constexpr ( std::is_integral_v< Entry > ) {
         return static_cast< Entry >( words.word64( 0 ) );
      } else {
         Entry entry;
         std::copy_n( words.word.begin(), Entry::words, entry.word.begin() );
         return entry;
      }
   }

 private:
   enum class Access { get, set };
   FieldRow const & checkedRow( U16 field, Access access ) const;
   std::string pattern( U16 field, Access access ) const;
   [[noreturn]] void failLacking( U16 field, std::string_view pattern ) const;
   // Traces the call of the signature that `pattern` composes, which it does only where tracing is on.
   template< class Pattern >
   void traceCall( Pattern const & pattern ) const {
      if ( meta_->traced() ) [[unlikely]] {
         meta_->trace( pattern(), chipType, variant_ );
      }
   }
   TableLayout const * currentLayout() const { return meta_->layout( chipType, variant_ ); }
   void maskedEntry( U32 * words ) const;

   // Traces the construction; ends the process where the pair of chip and variant does not exist.
   [[gnu::noinline]] void checkPair() const;

   MetaInfo const * meta_;
   mutable TableLayout const * layout_; // of the chip and variant that `usable_` is about
};

} // namespace AsicUtils
