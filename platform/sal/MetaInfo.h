// What is known of a chip table at run time, and the operations that are the same for every accessor class, written
// once over these rows. A generated class has one MetaInfo; its own code holds only the constants of its fields.
//
// Where a field lies may depend on the chip and the variant. Pairs of chip and variant whose fields all lie alike share
// a format; a format has one row for each field of the class. Geometry and addresses stand in layouts.
//
// Every operation traces at level 8 of the unit's facility before it does anything else: its signature, the chip type
// and the variant. Failures end the process by assertion; the place they name is the generated unit.
//
// Threading: constant data.
#pragma once

#include "assert/Assert.h"
#include "chip/ChipType.h"
#include "corvo/Types.h"
#include "rex/Trace.h"
#include "sal/BitCopy.h"
#include "sal/Raw.h"

#include <span>
#include <string_view>
#include <type_traits>

namespace AsicUtils {

// A chip and a variant, as people name them: "BCM88690_B0 variant: 0".
struct ChipAndVariant {
   Hardware::ChipType chipType;
   U8 variant;
};
std::ostream & operator<<( std::ostream & out, ChipAndVariant const & pair );

// A run of entries.
struct EntrySpan {
   U32 first;
   U32 count;
};

struct EntrySpans {
   EntrySpan const * spans;
   U32 count;
};

// The declared type of a field or a whole entry.
enum class ValueType : U8 { U8, U16, U32, U64, Raw128, Raw256, Raw512, Raw1024 };

constexpr unsigned typeBits( ValueType type ) {
   return 8u << static_cast< unsigned >( type );
}

struct FieldInfo {
   char const * name;
   U16 id;
   ValueType type;
   bool readOnly; // part of the format's tag
};

// Where a field lies in one format, and what an access of a narrow one needs of that.
struct FieldRow {
   U16 offset = 0;         // bits
   U16 width = 0;          // bits; 0 where the format lacks the field
   U16 wordBytes = absent; // from the start of the buffer to the end of the last word that the field touches
   U8 shift = 0;           // of the field in the first word that it touches
   U8 words = 0;           // how many it touches
   // For a field of at most 32 bits: the bits of its word, or of its two words, that are not its own. Where there is
   // one word, the upper half is all ones, as no bit of a value may come to lie there.
   U64 keep = 0;

   static constexpr U16 absent = 0xffff;

   constexpr FieldRow() = default;
   constexpr FieldRow( U16 offset_, U16 width_ )
      : offset( offset_ ), width( width_ ), wordBytes( static_cast< U16 >( Detail::wordBytes( offset, width ) ) ),
        shift( offset % 32 ), words( static_cast< U8 >( ( shift + width + 31 ) / 32 ) ),
        keep( ~( ( ( U64{ 1 } << ( width <= 32 ? width : 0 ) ) - 1 ) << shift ) ) {}

   // The length of buffer that an access needs.
   constexpr U16 bytes() const { return static_cast< U16 >( ( offset + width + 7 ) / 8 ); }
};

// One table on one chip: geometry, address, and where its fields lie.
struct TableLayout {
   EntrySpan span; // the entries; count 1 for a register
   U16 width;      // words
   U16 bytes;
   U16 arrayElements;
   U16 arrayIndexMin;   // what the chip calls the first element
   U16 arrayIndexFirst; // the first index that an address is given for
   S32 sdkDefinedId;    // -1: none
   U8 instanceCount;
   U8 selectors[2][2]; // by instance
   U32 base;
   U32 arrayStep;         // 0: no array
   FieldRow const * rows; // one for each field of the class
   U32 const * mask;      // the bits of all fields

   bool hasArray() const { return arrayStep != 0; }
};

// Part of a format's tag: bits that have a fixed value.
struct TagRow {
   U8 chips; // bit n: chip type 10 + n
   U8 variant;
   U16 offset;
   U8 width;
   U8 value;
};

// A numbered run of fields, with the fields' places in the class's list.
struct FieldRun {
   char const * name;
   std::span< U16 const > fields;
};

inline constexpr int accessTraceLevel = 8;

struct MetaInfo {
   static constexpr U32 firstChip = 10;
   static constexpr U32 chipCount = 7; // 10 to 16, with the hole at 13

   Rex::TraceFacility const & facility;
   char const * source; // where the class stands
   unsigned line;
   char const * name;
   U16 number; // place in the alphabetical list of classes
   bool isMemory;
   U8 variantCount;
   ValueType entryType; // smallest type that holds an entry of the class's largest width
   std::span< FieldInfo const > fields;
   TableLayout const * const * layouts; // variant * chipCount + chipType - firstChip; null where there is none
   std::span< TagRow const > tags;
   std::span< FieldRun const > runs;

   // The statics of a class.
   bool chipTypeVariantValid( U32 chipType, U8 variant ) const;
   U32 tableVariantCount( U32 chipType ) const;
   U32 entries( U32 chipType, U8 variant ) const;
   U16 width( U32 chipType, U8 variant ) const;
   U16 tableWidth( U32 chipType, U8 variant ) const;
   U16 regWidth( U32 chipType, U8 variant ) const;
   U32 index_min( U32 chipType, U8 variant ) const;
   U32 arrayElements( U32 chipType, U8 variant ) const;
   U32 arrayIndex_min( U32 chipType, U8 variant ) const;
   S32 sdkDefinedId( U32 chipType, U8 variant ) const;
   U16 fieldCount( U32 chipType, U8 variant ) const;
   U32 instanceCount( U32 chipType, U8 variant ) const;
   EntrySpans entrySpans( U32 chipType, U8 variant ) const;
   U32 maxIdentifier( U32 chipType, U8 variant ) const;
   U32 addrStride( U32 chipType, U8 variant ) const;
   bool hasIdentifier( U32 chipType, U8 variant, U32 identifier ) const;
   bool getSchanAddress( U32 chipType,
                         U8 variant,
                         U32 & address,
                         U32 & selectorA,
                         U32 & selectorB,
                         U16 identifier,
                         U32 tableEntry,
                         U16 arrayIndex ) const;
   // Whether a buffer holds an entry of this format: true for every known chip where the format has no tag.
   bool isFormat( Hardware::ChipType chipType, U8 const * buf, U16 len, U8 variant ) const;
   // Checks the tag, or writes it.
   void handleBuf( Hardware::ChipType chipType, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant ) const;
   U32 const * fieldsMask( U32 chipType, U8 variant ) const;
   template< class Entry >
   Entry allFieldsMask( U32 chipType, U8 variant ) const {
      U32 const * mask = fieldsMask( chipType, variant );
      if constexpr ( std::is_integral_v< Entry > ) {
         return static_cast< Entry >( sizeof( Entry ) == 8 ? mask[0] | ( U64{ mask[1] } << 32 ) : mask[0] );
      } else {
         Entry entry;
         for ( unsigned word = 0; word < Entry::words; ++word ) {
            entry.word[word] = mask[word];
         }
         return entry;
      }
   }

   // For those who work on rows. Null, or `fields.size()`, where there is none.
   TableLayout const * layout( U32 chipType, U8 variant ) const {
      return chipType - firstChip >= chipCount || variant >= variantCount
                ? nullptr
                : layouts[variant * chipCount + chipType - firstChip];
   }
   bool chipKnown( U32 chipType ) const;
   U16 fieldById( U32 fieldId ) const;
   U16 fieldByName( std::string_view fieldName ) const;

   bool traced() const { return facility.enabled( accessTraceLevel ); }
   // The full signature of an operation: `%` in `pattern` stands for the class.
   std::string signature( std::string_view pattern ) const;
   void trace( std::string_view pattern, U32 chipType, U8 variant ) const {
      if ( traced() ) [[unlikely]] {
         emitTrace( pattern, chipType, variant );
      }
   }
   // Ends the process with `text`, in the operation of that signature.
   [[noreturn]] void fail( std::string const & text, std::string_view pattern ) const;
   // The same through the helper, with `message` on a line of its own.
   [[noreturn]] void failWith( char const * text, std::string const & message, std::string_view pattern ) const;
   // The text of a wrong variant: the only one that is allowed where there is one (`subject` "variant" or
   // "variant_"), else "0".
   std::string variantText( char const * subject ) const;

 private:
   void emitTrace( std::string_view pattern, U32 chipType, U8 variant ) const;
   TableLayout const & layoutFor( std::string_view pattern, U32 chipType, U8 variant ) const;
   bool acceptsIdentifier( TableLayout const & layout, U32 identifier ) const;
};

} // namespace AsicUtils
