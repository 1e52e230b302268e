// The accessor classes of the chip tables that the plug-in programs.
// Written by the generator from catalogue/. Do not edit: change the catalogue and run ./dev generate.
// clang-format off
#pragma once

#include "sal/AsicTable.h"

#include <memory>

namespace Hardware {

// A new accessor of the class of that name, with storage of its own, in one allocation. An unknown name ends the
// process: "objMapIter != objMap.end()", "invalid name given: <name>".
std::shared_ptr< AsicUtils::AsicBase > stringObj( Corvo::String name, ChipType chipType, U8 variant );

// The test of the class of that name; false for an unknown name.
bool chipTypeVariantValid( Corvo::String name, ChipType chipType, U8 variant );

namespace Impl {

// The facility of this unit.
extern Rex::TraceFacility const trace;

[[gnu::always_inline]] inline bool traced() {
   return trace.enabled( AsicUtils::accessTraceLevel );
}

} // namespace Impl

// Memory, variants 0 to 1.
class AdditionalHeadersMapTable0 : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   AdditionalHeadersMapTable0( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isAdditionalHeadersMapTable0( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw128 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw128 >( chip, variant ); }
   virtual Raw128 allFieldsMask() const;
   Raw128 getAllFields() const { return allFields< Raw128 >(); }

   // [0, 1]
   void setStartCurrentNextProtocolIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 1, 8, value ); }
   U8 setStartCurrentNextProtocol() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 1 ) ); }
   bool isSetStartCurrentNextProtocolValid() const { return fieldValid( 0 ); }
   U16 setStartCurrentNextProtocolLen() const { return fieldLen( 0 ); }
   U16 setStartCurrentNextProtocolOffset() const { return fieldStart( 0 ); }

   // [1, 16]
   void startCurrentNextProtocolIs( U16 value ) { fieldAtIs( Impl::traced(), 1, 1, 16, 16, value ); }
   U16 startCurrentNextProtocol() const { return static_cast< U16 >( fieldAt( Impl::traced(), 1, 1, 16 ) ); }
   bool isStartCurrentNextProtocolValid() const { return fieldValid( 1 ); }
   U16 startCurrentNextProtocolLen() const { return fieldLen( 1 ); }
   U16 startCurrentNextProtocolOffset() const { return fieldStart( 1 ); }

   // [17, 1]
   void addAditionalHeadersPacketSizeIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 17, 1, 8, value ); }
   U8 addAditionalHeadersPacketSize() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 17, 1 ) ); }
   bool isAddAditionalHeadersPacketSizeValid() const { return fieldValid( 2 ); }
   U16 addAditionalHeadersPacketSizeLen() const { return fieldLen( 2 ); }
   U16 addAditionalHeadersPacketSizeOffset() const { return fieldStart( 2 ); }

   // [18, 8]
   void additionalHeadersPacketSizeInBytesIs( U8 value ) { fieldAtIs( Impl::traced(), 3, 18, 8, 8, value ); }
   U8 additionalHeadersPacketSizeInBytes() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 18, 8 ) ); }
   bool isAdditionalHeadersPacketSizeInBytesValid() const { return fieldValid( 3 ); }
   U16 additionalHeadersPacketSizeInBytesLen() const { return fieldLen( 3 ); }
   U16 additionalHeadersPacketSizeInBytesOffset() const { return fieldStart( 3 ); }

   // [26, 4]
   void additionalHeadersTypeIs( U8 value ) { fieldAtIs( Impl::traced(), 4, 26, 4, 8, value ); }
   U8 additionalHeadersType() const { return static_cast< U8 >( fieldAt( Impl::traced(), 4, 26, 4 ) ); }
   bool isAdditionalHeadersTypeValid() const { return fieldValid( 4 ); }
   U16 additionalHeadersTypeLen() const { return fieldLen( 4 ); }
   U16 additionalHeadersTypeOffset() const { return fieldStart( 4 ); }

   // [30, 35]
   void protocolSpecificInformationIs( U64 const & value ) { fieldAtIs( Impl::traced(), 5, 30, 35, 64, value ); }
   U64 protocolSpecificInformation() const { return fieldAt( Impl::traced(), 5, 30, 35 ); }
   bool isProtocolSpecificInformationValid() const { return fieldValid( 5 ); }
   U16 protocolSpecificInformationLen() const { return fieldLen( 5 ); }
   U16 protocolSpecificInformationOffset() const { return fieldStart( 5 ); }
};

class AdditionalHeadersMapTable0::WithStorage : public AdditionalHeadersMapTable0 {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : AdditionalHeadersMapTable0( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[12] = {};
};

// Memory.
class CgmSnifTmTable : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   CgmSnifTmTable( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isCgmSnifTmTable( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw512 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw512 >( chip, variant ); }
   virtual Raw512 allFieldsMask() const;
   Raw512 getAllFields() const { return allFields< Raw512 >(); }

   // [0, 1]
   void extStatDataValidOwIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 1, 8, value ); }
   U8 extStatDataValidOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 1 ) ); }
   bool isExtStatDataValidOwValid() const { return fieldValid( 0 ); }
   U16 extStatDataValidOwLen() const { return fieldLen( 0 ); }
   U16 extStatDataValidOwOffset() const { return fieldStart( 0 ); }

   // [1, 1]
   void extStatDataValidIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 1, 1, 8, value ); }
   U8 extStatDataValid() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 1, 1 ) ); }
   bool isExtStatDataValidValid() const { return fieldValid( 1 ); }
   U16 extStatDataValidLen() const { return fieldLen( 1 ); }
   U16 extStatDataValidOffset() const { return fieldStart( 1 ); }

   // [2, 1]
   void extStatDataOpcodeOwIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 2, 1, 8, value ); }
   U8 extStatDataOpcodeOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 2, 1 ) ); }
   bool isExtStatDataOpcodeOwValid() const { return fieldValid( 2 ); }
   U16 extStatDataOpcodeOwLen() const { return fieldLen( 2 ); }
   U16 extStatDataOpcodeOwOffset() const { return fieldStart( 2 ); }

   // [3, 8]
   void extStatDataOpcodeIs( U8 value ) { fieldAtIs( Impl::traced(), 3, 3, 8, 8, value ); }
   U8 extStatDataOpcode() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 3, 8 ) ); }
   bool isExtStatDataOpcodeValid() const { return fieldValid( 3 ); }
   U16 extStatDataOpcodeLen() const { return fieldLen( 3 ); }
   U16 extStatDataOpcodeOffset() const { return fieldStart( 3 ); }

   // [11, 1]
   void extStatDataDataOwIs( U8 value ) { fieldAtIs( Impl::traced(), 4, 11, 1, 8, value ); }
   U8 extStatDataDataOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 4, 11, 1 ) ); }
   bool isExtStatDataDataOwValid() const { return fieldValid( 4 ); }
   U16 extStatDataDataOwLen() const { return fieldLen( 4 ); }
   U16 extStatDataDataOwOffset() const { return fieldStart( 4 ); }

   // [12, 80]
   void extStatDataDataIs( Raw128 const & value ) { wideFieldIs( 5, value.word.data() ); }
   Raw128 extStatDataData() const { return wideField< Raw128 >( 5 ); }
   bool isExtStatDataDataValid() const { return fieldValid( 5 ); }
   U16 extStatDataDataLen() const { return fieldLen( 5 ); }
   U16 extStatDataDataOffset() const { return fieldStart( 5 ); }

   // [92, 1]
   void intStat0ObjValidOwIs( U8 value ) { fieldAtIs( Impl::traced(), 6, 92, 1, 8, value ); }
   U8 intStat0ObjValidOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 6, 92, 1 ) ); }
   bool isIntStat0ObjValidOwValid() const { return fieldValid( 6 ); }
   U16 intStat0ObjValidOwLen() const { return fieldLen( 6 ); }
   U16 intStat0ObjValidOwOffset() const { return fieldStart( 6 ); }

   // [93, 1]
   void intStat0ObjValidIs( U8 value ) { fieldAtIs( Impl::traced(), 7, 93, 1, 8, value ); }
   U8 intStat0ObjValid() const { return static_cast< U8 >( fieldAt( Impl::traced(), 7, 93, 1 ) ); }
   bool isIntStat0ObjValidValid() const { return fieldValid( 7 ); }
   U16 intStat0ObjValidLen() const { return fieldLen( 7 ); }
   U16 intStat0ObjValidOffset() const { return fieldStart( 7 ); }

   // [94, 1]
   void intStat1ObjValidOwIs( U8 value ) { fieldAtIs( Impl::traced(), 8, 94, 1, 8, value ); }
   U8 intStat1ObjValidOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 8, 94, 1 ) ); }
   bool isIntStat1ObjValidOwValid() const { return fieldValid( 8 ); }
   U16 intStat1ObjValidOwLen() const { return fieldLen( 8 ); }
   U16 intStat1ObjValidOwOffset() const { return fieldStart( 8 ); }

   // [95, 1]
   void intStat1ObjValidIs( U8 value ) { fieldAtIs( Impl::traced(), 9, 95, 1, 8, value ); }
   U8 intStat1ObjValid() const { return static_cast< U8 >( fieldAt( Impl::traced(), 9, 95, 1 ) ); }
   bool isIntStat1ObjValidValid() const { return fieldValid( 9 ); }
   U16 intStat1ObjValidLen() const { return fieldLen( 9 ); }
   U16 intStat1ObjValidOffset() const { return fieldStart( 9 ); }

   // [96, 1]
   void intStat2ObjValidOwIs( U8 value ) { fieldAtIs( Impl::traced(), 10, 96, 1, 8, value ); }
   U8 intStat2ObjValidOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 10, 96, 1 ) ); }
   bool isIntStat2ObjValidOwValid() const { return fieldValid( 10 ); }
   U16 intStat2ObjValidOwLen() const { return fieldLen( 10 ); }
   U16 intStat2ObjValidOwOffset() const { return fieldStart( 10 ); }

   // [97, 1]
   void intStat2ObjValidIs( U8 value ) { fieldAtIs( Impl::traced(), 11, 97, 1, 8, value ); }
   U8 intStat2ObjValid() const { return static_cast< U8 >( fieldAt( Impl::traced(), 11, 97, 1 ) ); }
   bool isIntStat2ObjValidValid() const { return fieldValid( 11 ); }
   U16 intStat2ObjValidLen() const { return fieldLen( 11 ); }
   U16 intStat2ObjValidOffset() const { return fieldStart( 11 ); }

   // [98, 1]
   void intStat3ObjValidOwIs( U8 value ) { fieldAtIs( Impl::traced(), 12, 98, 1, 8, value ); }
   U8 intStat3ObjValidOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 12, 98, 1 ) ); }
   bool isIntStat3ObjValidOwValid() const { return fieldValid( 12 ); }
   U16 intStat3ObjValidOwLen() const { return fieldLen( 12 ); }
   U16 intStat3ObjValidOwOffset() const { return fieldStart( 12 ); }

   // [99, 1]
   void intStat3ObjValidIs( U8 value ) { fieldAtIs( Impl::traced(), 13, 99, 1, 8, value ); }
   U8 intStat3ObjValid() const { return static_cast< U8 >( fieldAt( Impl::traced(), 13, 99, 1 ) ); }
   bool isIntStat3ObjValidValid() const { return fieldValid( 13 ); }
   U16 intStat3ObjValidLen() const { return fieldLen( 13 ); }
   U16 intStat3ObjValidOffset() const { return fieldStart( 13 ); }

   // [100, 1]
   void intStat4ObjValidOwIs( U8 value ) { fieldAtIs( Impl::traced(), 14, 100, 1, 8, value ); }
   U8 intStat4ObjValidOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 14, 100, 1 ) ); }
   bool isIntStat4ObjValidOwValid() const { return fieldValid( 14 ); }
   U16 intStat4ObjValidOwLen() const { return fieldLen( 14 ); }
   U16 intStat4ObjValidOwOffset() const { return fieldStart( 14 ); }

   // [101, 1]
   void intStat4ObjValidIs( U8 value ) { fieldAtIs( Impl::traced(), 15, 101, 1, 8, value ); }
   U8 intStat4ObjValid() const { return static_cast< U8 >( fieldAt( Impl::traced(), 15, 101, 1 ) ); }
   bool isIntStat4ObjValidValid() const { return fieldValid( 15 ); }
   U16 intStat4ObjValidLen() const { return fieldLen( 15 ); }
   U16 intStat4ObjValidOffset() const { return fieldStart( 15 ); }

   // [102, 1]
   void intStat5ObjValidOwIs( U8 value ) { fieldAtIs( Impl::traced(), 16, 102, 1, 8, value ); }
   U8 intStat5ObjValidOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 16, 102, 1 ) ); }
   bool isIntStat5ObjValidOwValid() const { return fieldValid( 16 ); }
   U16 intStat5ObjValidOwLen() const { return fieldLen( 16 ); }
   U16 intStat5ObjValidOwOffset() const { return fieldStart( 16 ); }

   // [103, 1]
   void intStat5ObjValidIs( U8 value ) { fieldAtIs( Impl::traced(), 17, 103, 1, 8, value ); }
   U8 intStat5ObjValid() const { return static_cast< U8 >( fieldAt( Impl::traced(), 17, 103, 1 ) ); }
   bool isIntStat5ObjValidValid() const { return fieldValid( 17 ); }
   U16 intStat5ObjValidLen() const { return fieldLen( 17 ); }
   U16 intStat5ObjValidOffset() const { return fieldStart( 17 ); }

   // [104, 1]
   void intStat6ObjValidOwIs( U8 value ) { fieldAtIs( Impl::traced(), 18, 104, 1, 8, value ); }
   U8 intStat6ObjValidOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 18, 104, 1 ) ); }
   bool isIntStat6ObjValidOwValid() const { return fieldValid( 18 ); }
   U16 intStat6ObjValidOwLen() const { return fieldLen( 18 ); }
   U16 intStat6ObjValidOwOffset() const { return fieldStart( 18 ); }

   // [105, 1]
   void intStat6ObjValidIs( U8 value ) { fieldAtIs( Impl::traced(), 19, 105, 1, 8, value ); }
   U8 intStat6ObjValid() const { return static_cast< U8 >( fieldAt( Impl::traced(), 19, 105, 1 ) ); }
   bool isIntStat6ObjValidValid() const { return fieldValid( 19 ); }
   U16 intStat6ObjValidLen() const { return fieldLen( 19 ); }
   U16 intStat6ObjValidOffset() const { return fieldStart( 19 ); }

   // [106, 1]
   void intStat7ObjValidOwIs( U8 value ) { fieldAtIs( Impl::traced(), 20, 106, 1, 8, value ); }
   U8 intStat7ObjValidOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 20, 106, 1 ) ); }
   bool isIntStat7ObjValidOwValid() const { return fieldValid( 20 ); }
   U16 intStat7ObjValidOwLen() const { return fieldLen( 20 ); }
   U16 intStat7ObjValidOwOffset() const { return fieldStart( 20 ); }

   // [107, 1]
   void intStat7ObjValidIs( U8 value ) { fieldAtIs( Impl::traced(), 21, 107, 1, 8, value ); }
   U8 intStat7ObjValid() const { return static_cast< U8 >( fieldAt( Impl::traced(), 21, 107, 1 ) ); }
   bool isIntStat7ObjValidValid() const { return fieldValid( 21 ); }
   U16 intStat7ObjValidLen() const { return fieldLen( 21 ); }
   U16 intStat7ObjValidOffset() const { return fieldStart( 21 ); }

   // [108, 1]
   void intStat8ObjValidOwIs( U8 value ) { fieldAtIs( Impl::traced(), 22, 108, 1, 8, value ); }
   U8 intStat8ObjValidOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 22, 108, 1 ) ); }
   bool isIntStat8ObjValidOwValid() const { return fieldValid( 22 ); }
   U16 intStat8ObjValidOwLen() const { return fieldLen( 22 ); }
   U16 intStat8ObjValidOwOffset() const { return fieldStart( 22 ); }

   // [109, 1]
   void intStat8ObjValidIs( U8 value ) { fieldAtIs( Impl::traced(), 23, 109, 1, 8, value ); }
   U8 intStat8ObjValid() const { return static_cast< U8 >( fieldAt( Impl::traced(), 23, 109, 1 ) ); }
   bool isIntStat8ObjValidValid() const { return fieldValid( 23 ); }
   U16 intStat8ObjValidLen() const { return fieldLen( 23 ); }
   U16 intStat8ObjValidOffset() const { return fieldStart( 23 ); }

   // [110, 1]
   void intStat9ObjValidOwIs( U8 value ) { fieldAtIs( Impl::traced(), 24, 110, 1, 8, value ); }
   U8 intStat9ObjValidOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 24, 110, 1 ) ); }
   bool isIntStat9ObjValidOwValid() const { return fieldValid( 24 ); }
   U16 intStat9ObjValidOwLen() const { return fieldLen( 24 ); }
   U16 intStat9ObjValidOwOffset() const { return fieldStart( 24 ); }

   // [111, 1]
   void intStat9ObjValidIs( U8 value ) { fieldAtIs( Impl::traced(), 25, 111, 1, 8, value ); }
   U8 intStat9ObjValid() const { return static_cast< U8 >( fieldAt( Impl::traced(), 25, 111, 1 ) ); }
   bool isIntStat9ObjValidValid() const { return fieldValid( 25 ); }
   U16 intStat9ObjValidLen() const { return fieldLen( 25 ); }
   U16 intStat9ObjValidOffset() const { return fieldStart( 25 ); }

   // [112, 1]
   void intStat0ObjIdOwIs( U8 value ) { fieldAtIs( Impl::traced(), 26, 112, 1, 8, value ); }
   U8 intStat0ObjIdOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 26, 112, 1 ) ); }
   bool isIntStat0ObjIdOwValid() const { return fieldValid( 26 ); }
   U16 intStat0ObjIdOwLen() const { return fieldLen( 26 ); }
   U16 intStat0ObjIdOwOffset() const { return fieldStart( 26 ); }

   // [113, 20]
   void intStat0ObjIdIs( U32 value ) { fieldAtIs( Impl::traced(), 27, 113, 20, 32, value ); }
   U32 intStat0ObjId() const { return static_cast< U32 >( fieldAt( Impl::traced(), 27, 113, 20 ) ); }
   bool isIntStat0ObjIdValid() const { return fieldValid( 27 ); }
   U16 intStat0ObjIdLen() const { return fieldLen( 27 ); }
   U16 intStat0ObjIdOffset() const { return fieldStart( 27 ); }

   // [133, 1]
   void intStat1ObjIdOwIs( U8 value ) { fieldAtIs( Impl::traced(), 28, 133, 1, 8, value ); }
   U8 intStat1ObjIdOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 28, 133, 1 ) ); }
   bool isIntStat1ObjIdOwValid() const { return fieldValid( 28 ); }
   U16 intStat1ObjIdOwLen() const { return fieldLen( 28 ); }
   U16 intStat1ObjIdOwOffset() const { return fieldStart( 28 ); }

   // [134, 20]
   void intStat1ObjIdIs( U32 value ) { fieldAtIs( Impl::traced(), 29, 134, 20, 32, value ); }
   U32 intStat1ObjId() const { return static_cast< U32 >( fieldAt( Impl::traced(), 29, 134, 20 ) ); }
   bool isIntStat1ObjIdValid() const { return fieldValid( 29 ); }
   U16 intStat1ObjIdLen() const { return fieldLen( 29 ); }
   U16 intStat1ObjIdOffset() const { return fieldStart( 29 ); }

   // [154, 1]
   void intStat2ObjIdOwIs( U8 value ) { fieldAtIs( Impl::traced(), 30, 154, 1, 8, value ); }
   U8 intStat2ObjIdOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 30, 154, 1 ) ); }
   bool isIntStat2ObjIdOwValid() const { return fieldValid( 30 ); }
   U16 intStat2ObjIdOwLen() const { return fieldLen( 30 ); }
   U16 intStat2ObjIdOwOffset() const { return fieldStart( 30 ); }

   // [155, 20]
   void intStat2ObjIdIs( U32 value ) { fieldAtIs( Impl::traced(), 31, 155, 20, 32, value ); }
   U32 intStat2ObjId() const { return static_cast< U32 >( fieldAt( Impl::traced(), 31, 155, 20 ) ); }
   bool isIntStat2ObjIdValid() const { return fieldValid( 31 ); }
   U16 intStat2ObjIdLen() const { return fieldLen( 31 ); }
   U16 intStat2ObjIdOffset() const { return fieldStart( 31 ); }

   // [175, 1]
   void intStat3ObjIdOwIs( U8 value ) { fieldAtIs( Impl::traced(), 32, 175, 1, 8, value ); }
   U8 intStat3ObjIdOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 32, 175, 1 ) ); }
   bool isIntStat3ObjIdOwValid() const { return fieldValid( 32 ); }
   U16 intStat3ObjIdOwLen() const { return fieldLen( 32 ); }
   U16 intStat3ObjIdOwOffset() const { return fieldStart( 32 ); }

   // [176, 20]
   void intStat3ObjIdIs( U32 value ) { fieldAtIs( Impl::traced(), 33, 176, 20, 32, value ); }
   U32 intStat3ObjId() const { return static_cast< U32 >( fieldAt( Impl::traced(), 33, 176, 20 ) ); }
   bool isIntStat3ObjIdValid() const { return fieldValid( 33 ); }
   U16 intStat3ObjIdLen() const { return fieldLen( 33 ); }
   U16 intStat3ObjIdOffset() const { return fieldStart( 33 ); }

   // [196, 1]
   void intStat4ObjIdOwIs( U8 value ) { fieldAtIs( Impl::traced(), 34, 196, 1, 8, value ); }
   U8 intStat4ObjIdOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 34, 196, 1 ) ); }
   bool isIntStat4ObjIdOwValid() const { return fieldValid( 34 ); }
   U16 intStat4ObjIdOwLen() const { return fieldLen( 34 ); }
   U16 intStat4ObjIdOwOffset() const { return fieldStart( 34 ); }

   // [197, 20]
   void intStat4ObjIdIs( U32 value ) { fieldAtIs( Impl::traced(), 35, 197, 20, 32, value ); }
   U32 intStat4ObjId() const { return static_cast< U32 >( fieldAt( Impl::traced(), 35, 197, 20 ) ); }
   bool isIntStat4ObjIdValid() const { return fieldValid( 35 ); }
   U16 intStat4ObjIdLen() const { return fieldLen( 35 ); }
   U16 intStat4ObjIdOffset() const { return fieldStart( 35 ); }

   // [217, 1]
   void intStat5ObjIdOwIs( U8 value ) { fieldAtIs( Impl::traced(), 36, 217, 1, 8, value ); }
   U8 intStat5ObjIdOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 36, 217, 1 ) ); }
   bool isIntStat5ObjIdOwValid() const { return fieldValid( 36 ); }
   U16 intStat5ObjIdOwLen() const { return fieldLen( 36 ); }
   U16 intStat5ObjIdOwOffset() const { return fieldStart( 36 ); }

   // [218, 20]
   void intStat5ObjIdIs( U32 value ) { fieldAtIs( Impl::traced(), 37, 218, 20, 32, value ); }
   U32 intStat5ObjId() const { return static_cast< U32 >( fieldAt( Impl::traced(), 37, 218, 20 ) ); }
   bool isIntStat5ObjIdValid() const { return fieldValid( 37 ); }
   U16 intStat5ObjIdLen() const { return fieldLen( 37 ); }
   U16 intStat5ObjIdOffset() const { return fieldStart( 37 ); }

   // [238, 1]
   void intStat6ObjIdOwIs( U8 value ) { fieldAtIs( Impl::traced(), 38, 238, 1, 8, value ); }
   U8 intStat6ObjIdOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 38, 238, 1 ) ); }
   bool isIntStat6ObjIdOwValid() const { return fieldValid( 38 ); }
   U16 intStat6ObjIdOwLen() const { return fieldLen( 38 ); }
   U16 intStat6ObjIdOwOffset() const { return fieldStart( 38 ); }

   // [239, 20]
   void intStat6ObjIdIs( U32 value ) { fieldAtIs( Impl::traced(), 39, 239, 20, 32, value ); }
   U32 intStat6ObjId() const { return static_cast< U32 >( fieldAt( Impl::traced(), 39, 239, 20 ) ); }
   bool isIntStat6ObjIdValid() const { return fieldValid( 39 ); }
   U16 intStat6ObjIdLen() const { return fieldLen( 39 ); }
   U16 intStat6ObjIdOffset() const { return fieldStart( 39 ); }

   // [259, 1]
   void intStat7ObjIdOwIs( U8 value ) { fieldAtIs( Impl::traced(), 40, 259, 1, 8, value ); }
   U8 intStat7ObjIdOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 40, 259, 1 ) ); }
   bool isIntStat7ObjIdOwValid() const { return fieldValid( 40 ); }
   U16 intStat7ObjIdOwLen() const { return fieldLen( 40 ); }
   U16 intStat7ObjIdOwOffset() const { return fieldStart( 40 ); }

   // [260, 20]
   void intStat7ObjIdIs( U32 value ) { fieldAtIs( Impl::traced(), 41, 260, 20, 32, value ); }
   U32 intStat7ObjId() const { return static_cast< U32 >( fieldAt( Impl::traced(), 41, 260, 20 ) ); }
   bool isIntStat7ObjIdValid() const { return fieldValid( 41 ); }
   U16 intStat7ObjIdLen() const { return fieldLen( 41 ); }
   U16 intStat7ObjIdOffset() const { return fieldStart( 41 ); }

   // [280, 1]
   void intStat8ObjIdOwIs( U8 value ) { fieldAtIs( Impl::traced(), 42, 280, 1, 8, value ); }
   U8 intStat8ObjIdOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 42, 280, 1 ) ); }
   bool isIntStat8ObjIdOwValid() const { return fieldValid( 42 ); }
   U16 intStat8ObjIdOwLen() const { return fieldLen( 42 ); }
   U16 intStat8ObjIdOwOffset() const { return fieldStart( 42 ); }

   // [281, 20]
   void intStat8ObjIdIs( U32 value ) { fieldAtIs( Impl::traced(), 43, 281, 20, 32, value ); }
   U32 intStat8ObjId() const { return static_cast< U32 >( fieldAt( Impl::traced(), 43, 281, 20 ) ); }
   bool isIntStat8ObjIdValid() const { return fieldValid( 43 ); }
   U16 intStat8ObjIdLen() const { return fieldLen( 43 ); }
   U16 intStat8ObjIdOffset() const { return fieldStart( 43 ); }

   // [301, 1]
   void intStat9ObjIdOwIs( U8 value ) { fieldAtIs( Impl::traced(), 44, 301, 1, 8, value ); }
   U8 intStat9ObjIdOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 44, 301, 1 ) ); }
   bool isIntStat9ObjIdOwValid() const { return fieldValid( 44 ); }
   U16 intStat9ObjIdOwLen() const { return fieldLen( 44 ); }
   U16 intStat9ObjIdOwOffset() const { return fieldStart( 44 ); }

   // [302, 20]
   void intStat9ObjIdIs( U32 value ) { fieldAtIs( Impl::traced(), 45, 302, 20, 32, value ); }
   U32 intStat9ObjId() const { return static_cast< U32 >( fieldAt( Impl::traced(), 45, 302, 20 ) ); }
   bool isIntStat9ObjIdValid() const { return fieldValid( 45 ); }
   U16 intStat9ObjIdLen() const { return fieldLen( 45 ); }
   U16 intStat9ObjIdOffset() const { return fieldStart( 45 ); }

   // [322, 1]
   void intStat0ObjTypeOwIs( U8 value ) { fieldAtIs( Impl::traced(), 46, 322, 1, 8, value ); }
   U8 intStat0ObjTypeOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 46, 322, 1 ) ); }
   bool isIntStat0ObjTypeOwValid() const { return fieldValid( 46 ); }
   U16 intStat0ObjTypeOwLen() const { return fieldLen( 46 ); }
   U16 intStat0ObjTypeOwOffset() const { return fieldStart( 46 ); }

   // [323, 2]
   void intStat0ObjTypeIs( U8 value ) { fieldAtIs( Impl::traced(), 47, 323, 2, 8, value ); }
   U8 intStat0ObjType() const { return static_cast< U8 >( fieldAt( Impl::traced(), 47, 323, 2 ) ); }
   bool isIntStat0ObjTypeValid() const { return fieldValid( 47 ); }
   U16 intStat0ObjTypeLen() const { return fieldLen( 47 ); }
   U16 intStat0ObjTypeOffset() const { return fieldStart( 47 ); }

   // [325, 1]
   void intStat1ObjTypeOwIs( U8 value ) { fieldAtIs( Impl::traced(), 48, 325, 1, 8, value ); }
   U8 intStat1ObjTypeOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 48, 325, 1 ) ); }
   bool isIntStat1ObjTypeOwValid() const { return fieldValid( 48 ); }
   U16 intStat1ObjTypeOwLen() const { return fieldLen( 48 ); }
   U16 intStat1ObjTypeOwOffset() const { return fieldStart( 48 ); }

   // [326, 2]
   void intStat1ObjTypeIs( U8 value ) { fieldAtIs( Impl::traced(), 49, 326, 2, 8, value ); }
   U8 intStat1ObjType() const { return static_cast< U8 >( fieldAt( Impl::traced(), 49, 326, 2 ) ); }
   bool isIntStat1ObjTypeValid() const { return fieldValid( 49 ); }
   U16 intStat1ObjTypeLen() const { return fieldLen( 49 ); }
   U16 intStat1ObjTypeOffset() const { return fieldStart( 49 ); }

   // [328, 1]
   void intStat2ObjTypeOwIs( U8 value ) { fieldAtIs( Impl::traced(), 50, 328, 1, 8, value ); }
   U8 intStat2ObjTypeOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 50, 328, 1 ) ); }
   bool isIntStat2ObjTypeOwValid() const { return fieldValid( 50 ); }
   U16 intStat2ObjTypeOwLen() const { return fieldLen( 50 ); }
   U16 intStat2ObjTypeOwOffset() const { return fieldStart( 50 ); }

   // [329, 2]
   void intStat2ObjTypeIs( U8 value ) { fieldAtIs( Impl::traced(), 51, 329, 2, 8, value ); }
   U8 intStat2ObjType() const { return static_cast< U8 >( fieldAt( Impl::traced(), 51, 329, 2 ) ); }
   bool isIntStat2ObjTypeValid() const { return fieldValid( 51 ); }
   U16 intStat2ObjTypeLen() const { return fieldLen( 51 ); }
   U16 intStat2ObjTypeOffset() const { return fieldStart( 51 ); }

   // [331, 1]
   void intStat3ObjTypeOwIs( U8 value ) { fieldAtIs( Impl::traced(), 52, 331, 1, 8, value ); }
   U8 intStat3ObjTypeOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 52, 331, 1 ) ); }
   bool isIntStat3ObjTypeOwValid() const { return fieldValid( 52 ); }
   U16 intStat3ObjTypeOwLen() const { return fieldLen( 52 ); }
   U16 intStat3ObjTypeOwOffset() const { return fieldStart( 52 ); }

   // [332, 2]
   void intStat3ObjTypeIs( U8 value ) { fieldAtIs( Impl::traced(), 53, 332, 2, 8, value ); }
   U8 intStat3ObjType() const { return static_cast< U8 >( fieldAt( Impl::traced(), 53, 332, 2 ) ); }
   bool isIntStat3ObjTypeValid() const { return fieldValid( 53 ); }
   U16 intStat3ObjTypeLen() const { return fieldLen( 53 ); }
   U16 intStat3ObjTypeOffset() const { return fieldStart( 53 ); }

   // [334, 1]
   void intStat4ObjTypeOwIs( U8 value ) { fieldAtIs( Impl::traced(), 54, 334, 1, 8, value ); }
   U8 intStat4ObjTypeOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 54, 334, 1 ) ); }
   bool isIntStat4ObjTypeOwValid() const { return fieldValid( 54 ); }
   U16 intStat4ObjTypeOwLen() const { return fieldLen( 54 ); }
   U16 intStat4ObjTypeOwOffset() const { return fieldStart( 54 ); }

   // [335, 2]
   void intStat4ObjTypeIs( U8 value ) { fieldAtIs( Impl::traced(), 55, 335, 2, 8, value ); }
   U8 intStat4ObjType() const { return static_cast< U8 >( fieldAt( Impl::traced(), 55, 335, 2 ) ); }
   bool isIntStat4ObjTypeValid() const { return fieldValid( 55 ); }
   U16 intStat4ObjTypeLen() const { return fieldLen( 55 ); }
   U16 intStat4ObjTypeOffset() const { return fieldStart( 55 ); }

   // [337, 1]
   void intStat5ObjTypeOwIs( U8 value ) { fieldAtIs( Impl::traced(), 56, 337, 1, 8, value ); }
   U8 intStat5ObjTypeOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 56, 337, 1 ) ); }
   bool isIntStat5ObjTypeOwValid() const { return fieldValid( 56 ); }
   U16 intStat5ObjTypeOwLen() const { return fieldLen( 56 ); }
   U16 intStat5ObjTypeOwOffset() const { return fieldStart( 56 ); }

   // [338, 2]
   void intStat5ObjTypeIs( U8 value ) { fieldAtIs( Impl::traced(), 57, 338, 2, 8, value ); }
   U8 intStat5ObjType() const { return static_cast< U8 >( fieldAt( Impl::traced(), 57, 338, 2 ) ); }
   bool isIntStat5ObjTypeValid() const { return fieldValid( 57 ); }
   U16 intStat5ObjTypeLen() const { return fieldLen( 57 ); }
   U16 intStat5ObjTypeOffset() const { return fieldStart( 57 ); }

   // [340, 1]
   void intStat6ObjTypeOwIs( U8 value ) { fieldAtIs( Impl::traced(), 58, 340, 1, 8, value ); }
   U8 intStat6ObjTypeOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 58, 340, 1 ) ); }
   bool isIntStat6ObjTypeOwValid() const { return fieldValid( 58 ); }
   U16 intStat6ObjTypeOwLen() const { return fieldLen( 58 ); }
   U16 intStat6ObjTypeOwOffset() const { return fieldStart( 58 ); }

   // [341, 2]
   void intStat6ObjTypeIs( U8 value ) { fieldAtIs( Impl::traced(), 59, 341, 2, 8, value ); }
   U8 intStat6ObjType() const { return static_cast< U8 >( fieldAt( Impl::traced(), 59, 341, 2 ) ); }
   bool isIntStat6ObjTypeValid() const { return fieldValid( 59 ); }
   U16 intStat6ObjTypeLen() const { return fieldLen( 59 ); }
   U16 intStat6ObjTypeOffset() const { return fieldStart( 59 ); }

   // [343, 1]
   void intStat7ObjTypeOwIs( U8 value ) { fieldAtIs( Impl::traced(), 60, 343, 1, 8, value ); }
   U8 intStat7ObjTypeOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 60, 343, 1 ) ); }
   bool isIntStat7ObjTypeOwValid() const { return fieldValid( 60 ); }
   U16 intStat7ObjTypeOwLen() const { return fieldLen( 60 ); }
   U16 intStat7ObjTypeOwOffset() const { return fieldStart( 60 ); }

   // [344, 2]
   void intStat7ObjTypeIs( U8 value ) { fieldAtIs( Impl::traced(), 61, 344, 2, 8, value ); }
   U8 intStat7ObjType() const { return static_cast< U8 >( fieldAt( Impl::traced(), 61, 344, 2 ) ); }
   bool isIntStat7ObjTypeValid() const { return fieldValid( 61 ); }
   U16 intStat7ObjTypeLen() const { return fieldLen( 61 ); }
   U16 intStat7ObjTypeOffset() const { return fieldStart( 61 ); }

   // [346, 1]
   void intStat8ObjTypeOwIs( U8 value ) { fieldAtIs( Impl::traced(), 62, 346, 1, 8, value ); }
   U8 intStat8ObjTypeOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 62, 346, 1 ) ); }
   bool isIntStat8ObjTypeOwValid() const { return fieldValid( 62 ); }
   U16 intStat8ObjTypeOwLen() const { return fieldLen( 62 ); }
   U16 intStat8ObjTypeOwOffset() const { return fieldStart( 62 ); }

   // [347, 2]
   void intStat8ObjTypeIs( U8 value ) { fieldAtIs( Impl::traced(), 63, 347, 2, 8, value ); }
   U8 intStat8ObjType() const { return static_cast< U8 >( fieldAt( Impl::traced(), 63, 347, 2 ) ); }
   bool isIntStat8ObjTypeValid() const { return fieldValid( 63 ); }
   U16 intStat8ObjTypeLen() const { return fieldLen( 63 ); }
   U16 intStat8ObjTypeOffset() const { return fieldStart( 63 ); }

   // [349, 1]
   void intStat9ObjTypeOwIs( U8 value ) { fieldAtIs( Impl::traced(), 64, 349, 1, 8, value ); }
   U8 intStat9ObjTypeOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 64, 349, 1 ) ); }
   bool isIntStat9ObjTypeOwValid() const { return fieldValid( 64 ); }
   U16 intStat9ObjTypeOwLen() const { return fieldLen( 64 ); }
   U16 intStat9ObjTypeOwOffset() const { return fieldStart( 64 ); }

   // [350, 2]
   void intStat9ObjTypeIs( U8 value ) { fieldAtIs( Impl::traced(), 65, 350, 2, 8, value ); }
   U8 intStat9ObjType() const { return static_cast< U8 >( fieldAt( Impl::traced(), 65, 350, 2 ) ); }
   bool isIntStat9ObjTypeValid() const { return fieldValid( 65 ); }
   U16 intStat9ObjTypeLen() const { return fieldLen( 65 ); }
   U16 intStat9ObjTypeOffset() const { return fieldStart( 65 ); }

   // [352, 1]
   void intStat0ObjIsMeterOwIs( U8 value ) { fieldAtIs( Impl::traced(), 66, 352, 1, 8, value ); }
   U8 intStat0ObjIsMeterOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 66, 352, 1 ) ); }
   bool isIntStat0ObjIsMeterOwValid() const { return fieldValid( 66 ); }
   U16 intStat0ObjIsMeterOwLen() const { return fieldLen( 66 ); }
   U16 intStat0ObjIsMeterOwOffset() const { return fieldStart( 66 ); }

   // [353, 1]
   void intStat0ObjIsMeterIs( U8 value ) { fieldAtIs( Impl::traced(), 67, 353, 1, 8, value ); }
   U8 intStat0ObjIsMeter() const { return static_cast< U8 >( fieldAt( Impl::traced(), 67, 353, 1 ) ); }
   bool isIntStat0ObjIsMeterValid() const { return fieldValid( 67 ); }
   U16 intStat0ObjIsMeterLen() const { return fieldLen( 67 ); }
   U16 intStat0ObjIsMeterOffset() const { return fieldStart( 67 ); }

   // [354, 1]
   void intStat1ObjIsMeterOwIs( U8 value ) { fieldAtIs( Impl::traced(), 68, 354, 1, 8, value ); }
   U8 intStat1ObjIsMeterOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 68, 354, 1 ) ); }
   bool isIntStat1ObjIsMeterOwValid() const { return fieldValid( 68 ); }
   U16 intStat1ObjIsMeterOwLen() const { return fieldLen( 68 ); }
   U16 intStat1ObjIsMeterOwOffset() const { return fieldStart( 68 ); }

   // [355, 1]
   void intStat1ObjIsMeterIs( U8 value ) { fieldAtIs( Impl::traced(), 69, 355, 1, 8, value ); }
   U8 intStat1ObjIsMeter() const { return static_cast< U8 >( fieldAt( Impl::traced(), 69, 355, 1 ) ); }
   bool isIntStat1ObjIsMeterValid() const { return fieldValid( 69 ); }
   U16 intStat1ObjIsMeterLen() const { return fieldLen( 69 ); }
   U16 intStat1ObjIsMeterOffset() const { return fieldStart( 69 ); }

   // [356, 1]
   void intStat2ObjIsMeterOwIs( U8 value ) { fieldAtIs( Impl::traced(), 70, 356, 1, 8, value ); }
   U8 intStat2ObjIsMeterOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 70, 356, 1 ) ); }
   bool isIntStat2ObjIsMeterOwValid() const { return fieldValid( 70 ); }
   U16 intStat2ObjIsMeterOwLen() const { return fieldLen( 70 ); }
   U16 intStat2ObjIsMeterOwOffset() const { return fieldStart( 70 ); }

   // [357, 1]
   void intStat2ObjIsMeterIs( U8 value ) { fieldAtIs( Impl::traced(), 71, 357, 1, 8, value ); }
   U8 intStat2ObjIsMeter() const { return static_cast< U8 >( fieldAt( Impl::traced(), 71, 357, 1 ) ); }
   bool isIntStat2ObjIsMeterValid() const { return fieldValid( 71 ); }
   U16 intStat2ObjIsMeterLen() const { return fieldLen( 71 ); }
   U16 intStat2ObjIsMeterOffset() const { return fieldStart( 71 ); }

   // [358, 1]
   void intStat7ObjIsLmOwIs( U8 value ) { fieldAtIs( Impl::traced(), 72, 358, 1, 8, value ); }
   U8 intStat7ObjIsLmOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 72, 358, 1 ) ); }
   bool isIntStat7ObjIsLmOwValid() const { return fieldValid( 72 ); }
   U16 intStat7ObjIsLmOwLen() const { return fieldLen( 72 ); }
   U16 intStat7ObjIsLmOwOffset() const { return fieldStart( 72 ); }

   // [359, 1]
   void intStat7ObjIsLmIs( U8 value ) { fieldAtIs( Impl::traced(), 73, 359, 1, 8, value ); }
   U8 intStat7ObjIsLm() const { return static_cast< U8 >( fieldAt( Impl::traced(), 73, 359, 1 ) ); }
   bool isIntStat7ObjIsLmValid() const { return fieldValid( 73 ); }
   U16 intStat7ObjIsLmLen() const { return fieldLen( 73 ); }
   U16 intStat7ObjIsLmOffset() const { return fieldStart( 73 ); }

   // [360, 1]
   void intStat8ObjIsLmOwIs( U8 value ) { fieldAtIs( Impl::traced(), 74, 360, 1, 8, value ); }
   U8 intStat8ObjIsLmOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 74, 360, 1 ) ); }
   bool isIntStat8ObjIsLmOwValid() const { return fieldValid( 74 ); }
   U16 intStat8ObjIsLmOwLen() const { return fieldLen( 74 ); }
   U16 intStat8ObjIsLmOwOffset() const { return fieldStart( 74 ); }

   // [361, 1]
   void intStat8ObjIsLmIs( U8 value ) { fieldAtIs( Impl::traced(), 75, 361, 1, 8, value ); }
   U8 intStat8ObjIsLm() const { return static_cast< U8 >( fieldAt( Impl::traced(), 75, 361, 1 ) ); }
   bool isIntStat8ObjIsLmValid() const { return fieldValid( 75 ); }
   U16 intStat8ObjIsLmLen() const { return fieldLen( 75 ); }
   U16 intStat8ObjIsLmOffset() const { return fieldStart( 75 ); }

   // [362, 1]
   void intStat9ObjIsLmOwIs( U8 value ) { fieldAtIs( Impl::traced(), 76, 362, 1, 8, value ); }
   U8 intStat9ObjIsLmOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 76, 362, 1 ) ); }
   bool isIntStat9ObjIsLmOwValid() const { return fieldValid( 76 ); }
   U16 intStat9ObjIsLmOwLen() const { return fieldLen( 76 ); }
   U16 intStat9ObjIsLmOwOffset() const { return fieldStart( 76 ); }

   // [363, 1]
   void intStat9ObjIsLmIs( U8 value ) { fieldAtIs( Impl::traced(), 77, 363, 1, 8, value ); }
   U8 intStat9ObjIsLm() const { return static_cast< U8 >( fieldAt( Impl::traced(), 77, 363, 1 ) ); }
   bool isIntStat9ObjIsLmValid() const { return fieldValid( 77 ); }
   U16 intStat9ObjIsLmLen() const { return fieldLen( 77 ); }
   U16 intStat9ObjIsLmOffset() const { return fieldStart( 77 ); }

   // [364, 1]
   void intStatObjMetaDataOwIs( U8 value ) { fieldAtIs( Impl::traced(), 78, 364, 1, 8, value ); }
   U8 intStatObjMetaDataOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 78, 364, 1 ) ); }
   bool isIntStatObjMetaDataOwValid() const { return fieldValid( 78 ); }
   U16 intStatObjMetaDataOwLen() const { return fieldLen( 78 ); }
   U16 intStatObjMetaDataOwOffset() const { return fieldStart( 78 ); }

   // [365, 16]
   void intStatObjMetaDataIs( U16 value ) { fieldAtIs( Impl::traced(), 79, 365, 16, 16, value ); }
   U16 intStatObjMetaData() const { return static_cast< U16 >( fieldAt( Impl::traced(), 79, 365, 16 ) ); }
   bool isIntStatObjMetaDataValid() const { return fieldValid( 79 ); }
   U16 intStatObjMetaDataLen() const { return fieldLen( 79 ); }
   U16 intStatObjMetaDataOffset() const { return fieldStart( 79 ); }

   // [381, 1]
   void inPpPortOwIs( U8 value ) { fieldAtIs( Impl::traced(), 80, 381, 1, 8, value ); }
   U8 inPpPortOw() const { return static_cast< U8 >( fieldAt( Impl::traced(), 80, 381, 1 ) ); }
   bool isInPpPortOwValid() const { return fieldValid( 80 ); }
   U16 inPpPortOwLen() const { return fieldLen( 80 ); }
   U16 inPpPortOwOffset() const { return fieldStart( 80 ); }

   // [382, 8] or [382, 10]
   void inPpPortIs( U16 value ) { fieldAcrossIs( Impl::traced(), 81, value ); }
   U16 inPpPort() const { return static_cast< U16 >( fieldAcross( Impl::traced(), 81 ) ); }
   bool isInPpPortValid() const { return fieldValid( 81 ); }
   U16 inPpPortLen() const { return fieldLen( 81 ); }
   U16 inPpPortOffset() const { return fieldStart( 81 ); }

   // [390, 1] or [392, 1]
   void stVsqPtrOwIs( U8 value ) { fieldInIs( Impl::traced(), 82, value ); }
   U8 stVsqPtrOw() const { return static_cast< U8 >( fieldIn( Impl::traced(), 82 ) ); }
   bool isStVsqPtrOwValid() const { return fieldValid( 82 ); }
   U16 stVsqPtrOwLen() const { return fieldLen( 82 ); }
   U16 stVsqPtrOwOffset() const { return fieldStart( 82 ); }

   // [391, 8] or [393, 8]
   void stVsqPtrIs( U8 value ) { fieldInIs( Impl::traced(), 83, value ); }
   U8 stVsqPtr() const { return static_cast< U8 >( fieldIn( Impl::traced(), 83 ) ); }
   bool isStVsqPtrValid() const { return fieldValid( 83 ); }
   U16 stVsqPtrLen() const { return fieldLen( 83 ); }
   U16 stVsqPtrOffset() const { return fieldStart( 83 ); }

   // [399, 1] or [401, 1]
   void admtProfileOwIs( U8 value ) { fieldInIs( Impl::traced(), 84, value ); }
   U8 admtProfileOw() const { return static_cast< U8 >( fieldIn( Impl::traced(), 84 ) ); }
   bool isAdmtProfileOwValid() const { return fieldValid( 84 ); }
   U16 admtProfileOwLen() const { return fieldLen( 84 ); }
   U16 admtProfileOwOffset() const { return fieldStart( 84 ); }

   // [400, 3] or [402, 3]
   void admtProfileIs( U8 value ) { fieldInIs( Impl::traced(), 85, value ); }
   U8 admtProfile() const { return static_cast< U8 >( fieldIn( Impl::traced(), 85 ) ); }
   bool isAdmtProfileValid() const { return fieldValid( 85 ); }
   U16 admtProfileLen() const { return fieldLen( 85 ); }
   U16 admtProfileOffset() const { return fieldStart( 85 ); }

   // [403, 1] or absent
   void item403403Is( U8 value ) { fieldInIs( Impl::traced(), 86, value ); }
   U8 item403403() const { return static_cast< U8 >( fieldIn( Impl::traced(), 86 ) ); }
   bool isItem403403Valid() const { return fieldValid( 86 ); }
   U16 item403403Len() const { return fieldLen( 86 ); }
   U16 item403403Offset() const { return fieldStart( 86 ); }

   // [404, 3] or absent
   void item404406Is( U8 value ) { fieldInIs( Impl::traced(), 87, value ); }
   U8 item404406() const { return static_cast< U8 >( fieldIn( Impl::traced(), 87 ) ); }
   bool isItem404406Valid() const { return fieldValid( 87 ); }
   U16 item404406Len() const { return fieldLen( 87 ); }
   U16 item404406Offset() const { return fieldStart( 87 ); }

   // [407, 1] or [409, 1]
   void inDpOwIs( U8 value ) { fieldInIs( Impl::traced(), 88, value ); }
   U8 inDpOw() const { return static_cast< U8 >( fieldIn( Impl::traced(), 88 ) ); }
   bool isInDpOwValid() const { return fieldValid( 88 ); }
   U16 inDpOwLen() const { return fieldLen( 88 ); }
   U16 inDpOwOffset() const { return fieldStart( 88 ); }

   // [408, 2] or [410, 2]
   void inDpIs( U8 value ) { fieldInIs( Impl::traced(), 89, value ); }
   U8 inDp() const { return static_cast< U8 >( fieldIn( Impl::traced(), 89 ) ); }
   bool isInDpValid() const { return fieldValid( 89 ); }
   U16 inDpLen() const { return fieldLen( 89 ); }
   U16 inDpOffset() const { return fieldStart( 89 ); }

   // [410, 1] or [412, 1]
   void egrDpOwIs( U8 value ) { fieldInIs( Impl::traced(), 90, value ); }
   U8 egrDpOw() const { return static_cast< U8 >( fieldIn( Impl::traced(), 90 ) ); }
   bool isEgrDpOwValid() const { return fieldValid( 90 ); }
   U16 egrDpOwLen() const { return fieldLen( 90 ); }
   U16 egrDpOwOffset() const { return fieldStart( 90 ); }

   // [411, 2] or [413, 2]
   void egrDpIs( U8 value ) { fieldInIs( Impl::traced(), 91, value ); }
   U8 egrDp() const { return static_cast< U8 >( fieldIn( Impl::traced(), 91 ) ); }
   bool isEgrDpValid() const { return fieldValid( 91 ); }
   U16 egrDpLen() const { return fieldLen( 91 ); }
   U16 egrDpOffset() const { return fieldStart( 91 ); }

   // [413, 1] or [415, 1]
   void irppDeltaOwIs( U8 value ) { fieldInIs( Impl::traced(), 92, value ); }
   U8 irppDeltaOw() const { return static_cast< U8 >( fieldIn( Impl::traced(), 92 ) ); }
   bool isIrppDeltaOwValid() const { return fieldValid( 92 ); }
   U16 irppDeltaOwLen() const { return fieldLen( 92 ); }
   U16 irppDeltaOwOffset() const { return fieldStart( 92 ); }

   // [414, 8] or [416, 8]
   void irppDeltaIs( U8 value ) { fieldAcrossIs( Impl::traced(), 93, value ); }
   U8 irppDelta() const { return static_cast< U8 >( fieldAcross( Impl::traced(), 93 ) ); }
   bool isIrppDeltaValid() const { return fieldValid( 93 ); }
   U16 irppDeltaLen() const { return fieldLen( 93 ); }
   U16 irppDeltaOffset() const { return fieldStart( 93 ); }

   // [422, 1] or [424, 1]
   void itppDeltaOwIs( U8 value ) { fieldInIs( Impl::traced(), 94, value ); }
   U8 itppDeltaOw() const { return static_cast< U8 >( fieldIn( Impl::traced(), 94 ) ); }
   bool isItppDeltaOwValid() const { return fieldValid( 94 ); }
   U16 itppDeltaOwLen() const { return fieldLen( 94 ); }
   U16 itppDeltaOwOffset() const { return fieldStart( 94 ); }

   // [423, 8] or [425, 8] or [423, 9]
   void itppDeltaIs( U16 value ) { fieldInIs( Impl::traced(), 95, value ); }
   U16 itppDelta() const { return static_cast< U16 >( fieldIn( Impl::traced(), 95 ) ); }
   bool isItppDeltaValid() const { return fieldValid( 95 ); }
   U16 itppDeltaLen() const { return fieldLen( 95 ); }
   U16 itppDeltaOffset() const { return fieldStart( 95 ); }

   // [431, 1] or [433, 1] or [432, 1]
   void nwkHeaderTruncateSizeOwIs( U8 value ) { fieldInIs( Impl::traced(), 96, value ); }
   U8 nwkHeaderTruncateSizeOw() const { return static_cast< U8 >( fieldIn( Impl::traced(), 96 ) ); }
   bool isNwkHeaderTruncateSizeOwValid() const { return fieldValid( 96 ); }
   U16 nwkHeaderTruncateSizeOwLen() const { return fieldLen( 96 ); }
   U16 nwkHeaderTruncateSizeOwOffset() const { return fieldStart( 96 ); }

   // [432, 8] or [434, 8] or [433, 10]
   void nwkHeaderTruncateSizeIs( U16 value ) { fieldInIs( Impl::traced(), 97, value ); }
   U16 nwkHeaderTruncateSize() const { return static_cast< U16 >( fieldIn( Impl::traced(), 97 ) ); }
   bool isNwkHeaderTruncateSizeValid() const { return fieldValid( 97 ); }
   U16 nwkHeaderTruncateSizeLen() const { return fieldLen( 97 ); }
   U16 nwkHeaderTruncateSizeOffset() const { return fieldStart( 97 ); }

   // [440, 1] or [442, 1] or [443, 1]
   void nwkHeaderAppendSizePtrOwIs( U8 value ) { fieldInIs( Impl::traced(), 98, value ); }
   U8 nwkHeaderAppendSizePtrOw() const { return static_cast< U8 >( fieldIn( Impl::traced(), 98 ) ); }
   bool isNwkHeaderAppendSizePtrOwValid() const { return fieldValid( 98 ); }
   U16 nwkHeaderAppendSizePtrOwLen() const { return fieldLen( 98 ); }
   U16 nwkHeaderAppendSizePtrOwOffset() const { return fieldStart( 98 ); }

   // [441, 8] or [443, 8] or [444, 8]
   void nwkHeaderAppendSizePtrIs( U8 value ) { fieldAcrossIs( Impl::traced(), 99, value ); }
   U8 nwkHeaderAppendSizePtr() const { return static_cast< U8 >( fieldAcross( Impl::traced(), 99 ) ); }
   bool isNwkHeaderAppendSizePtrValid() const { return fieldValid( 99 ); }
   U16 nwkHeaderAppendSizePtrLen() const { return fieldLen( 99 ); }
   U16 nwkHeaderAppendSizePtrOffset() const { return fieldStart( 99 ); }

   // absent or [405, 1] or [403, 1]
   void inTcOwIs( U8 value ) { fieldInIs( Impl::traced(), 100, value ); }
   U8 inTcOw() const { return static_cast< U8 >( fieldIn( Impl::traced(), 100 ) ); }
   bool isInTcOwValid() const { return fieldValid( 100 ); }
   U16 inTcOwLen() const { return fieldLen( 100 ); }
   U16 inTcOwOffset() const { return fieldStart( 100 ); }

   // absent or [406, 3] or [404, 3]
   void inTcIs( U8 value ) { fieldInIs( Impl::traced(), 101, value ); }
   U8 inTc() const { return static_cast< U8 >( fieldIn( Impl::traced(), 101 ) ); }
   bool isInTcValid() const { return fieldValid( 101 ); }
   U16 inTcLen() const { return fieldLen( 101 ); }
   U16 inTcOffset() const { return fieldStart( 101 ); }

   // absent or [452, 1]
   void intTmStatFilterIs( U8 value ) { fieldInIs( Impl::traced(), 102, value ); }
   U8 intTmStatFilter() const { return static_cast< U8 >( fieldIn( Impl::traced(), 102 ) ); }
   bool isIntTmStatFilterValid() const { return fieldValid( 102 ); }
   U16 intTmStatFilterLen() const { return fieldLen( 102 ); }
   U16 intTmStatFilterOffset() const { return fieldStart( 102 ); }
};

class CgmSnifTmTable::WithStorage : public CgmSnifTmTable {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : CgmSnifTmTable( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[60] = {};
};

// Register, variants 0 to 2.
class EgressOutrifMaxValue : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EgressOutrifMaxValue( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEgressOutrifMaxValue( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 18] or absent
   void cfgOutrifMaxValueIs( U32 value ) { fieldInIs( Impl::traced(), 0, value ); }
   U32 cfgOutrifMaxValue() const { return static_cast< U32 >( fieldIn( Impl::traced(), 0 ) ); }
   bool isCfgOutrifMaxValueValid() const { return fieldValid( 0 ); }
   U16 cfgOutrifMaxValueLen() const { return fieldLen( 0 ); }
   U16 cfgOutrifMaxValueOffset() const { return fieldStart( 0 ); }

   // absent or [0, 18]
   void outrifMaxValueIs( U32 value ) { fieldInIs( Impl::traced(), 1, value ); }
   U32 outrifMaxValue() const { return static_cast< U32 >( fieldIn( Impl::traced(), 1 ) ); }
   bool isOutrifMaxValueValid() const { return fieldValid( 1 ); }
   U16 outrifMaxValueLen() const { return fieldLen( 1 ); }
   U16 outrifMaxValueOffset() const { return fieldStart( 1 ); }

   // absent or [0, 22]
   void cfgRifMaxValueIs( U32 value ) { fieldInIs( Impl::traced(), 2, value ); }
   U32 cfgRifMaxValue() const { return static_cast< U32 >( fieldIn( Impl::traced(), 2 ) ); }
   bool isCfgRifMaxValueValid() const { return fieldValid( 2 ); }
   U16 cfgRifMaxValueLen() const { return fieldLen( 2 ); }
   U16 cfgRifMaxValueOffset() const { return fieldStart( 2 ); }
};

class EgressOutrifMaxValue::WithStorage : public EgressOutrifMaxValue {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EgressOutrifMaxValue( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Register.
class EnableKapsInterfaceDefault : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EnableKapsInterfaceDefault( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEnableKapsInterfaceDefault( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 4]
   void enableKapsInterfaceDefaultIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 4, 8, value ); }
   U8 enableKapsInterfaceDefault() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 4 ) ); }
   bool isEnableKapsInterfaceDefaultValid() const { return fieldValid( 0 ); }
   U16 enableKapsInterfaceDefaultLen() const { return fieldLen( 0 ); }
   U16 enableKapsInterfaceDefaultOffset() const { return fieldStart( 0 ); }
};

class EnableKapsInterfaceDefault::WithStorage : public EnableKapsInterfaceDefault {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EnableKapsInterfaceDefault( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Memory, variants 0 to 1.
class EnablersVectors : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EnablersVectors( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEnablersVectors( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U64 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U64 >( chip, variant ); }
   virtual U64 allFieldsMask() const;
   U64 getAllFields() const { return allFields< U64 >(); }

   // [0, 64]
   void routingEnableVectorIs( U64 const & value ) { fieldAtIs( Impl::traced(), 0, 0, 64, 64, value ); }
   U64 routingEnableVector() const { return fieldAt( Impl::traced(), 0, 0, 64 ); }
   bool isRoutingEnableVectorValid() const { return fieldValid( 0 ); }
   U16 routingEnableVectorLen() const { return fieldLen( 0 ); }
   U16 routingEnableVectorOffset() const { return fieldStart( 0 ); }
};

class EnablersVectors::WithStorage : public EnablersVectors {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EnablersVectors( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[8] = {};
};

// Memory.
class ErppCfgMappingOutLifProfile : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   ErppCfgMappingOutLifProfile( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isErppCfgMappingOutLifProfile( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 3]
   void outlifOrientationIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 3, 8, value ); }
   U8 outlifOrientation() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 3 ) ); }
   bool isOutlifOrientationValid() const { return fieldValid( 0 ); }
   U16 outlifOrientationLen() const { return fieldLen( 0 ); }
   U16 outlifOrientationOffset() const { return fieldStart( 0 ); }

   // [3, 2]
   void outlifSameIfIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 3, 2, 8, value ); }
   U8 outlifSameIf() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 3, 2 ) ); }
   bool isOutlifSameIfValid() const { return fieldValid( 1 ); }
   U16 outlifSameIfLen() const { return fieldLen( 1 ); }
   U16 outlifSameIfOffset() const { return fieldStart( 1 ); }

   // [5, 3]
   void outlifMtuIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 5, 3, 8, value ); }
   U8 outlifMtu() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 5, 3 ) ); }
   bool isOutlifMtuValid() const { return fieldValid( 2 ); }
   U16 outlifMtuLen() const { return fieldLen( 2 ); }
   U16 outlifMtuOffset() const { return fieldStart( 2 ); }

   // [8, 3]
   void outlifTtlScopeIndexIs( U8 value ) { fieldAtIs( Impl::traced(), 3, 8, 3, 8, value ); }
   U8 outlifTtlScopeIndex() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 8, 3 ) ); }
   bool isOutlifTtlScopeIndexValid() const { return fieldValid( 3 ); }
   U16 outlifTtlScopeIndexLen() const { return fieldLen( 3 ); }
   U16 outlifTtlScopeIndexOffset() const { return fieldStart( 3 ); }

   // [11, 1]
   void enableMulticastSameInterfaceFiltersIs( U8 value ) { fieldAtIs( Impl::traced(), 4, 11, 1, 8, value ); }
   U8 enableMulticastSameInterfaceFilters() const { return static_cast< U8 >( fieldAt( Impl::traced(), 4, 11, 1 ) ); }
   bool isEnableMulticastSameInterfaceFiltersValid() const { return fieldValid( 4 ); }
   U16 enableMulticastSameInterfaceFiltersLen() const { return fieldLen( 4 ); }
   U16 enableMulticastSameInterfaceFiltersOffset() const { return fieldStart( 4 ); }

   // [12, 1]
   void outlifEnableUcSameInterfaceIs( U8 value ) { fieldAtIs( Impl::traced(), 5, 12, 1, 8, value ); }
   U8 outlifEnableUcSameInterface() const { return static_cast< U8 >( fieldAt( Impl::traced(), 5, 12, 1 ) ); }
   bool isOutlifEnableUcSameInterfaceValid() const { return fieldValid( 5 ); }
   U16 outlifEnableUcSameInterfaceLen() const { return fieldLen( 5 ); }
   U16 outlifEnableUcSameInterfaceOffset() const { return fieldStart( 5 ); }

   // [13, 3]
   void reservedIs( U8 value ) { fieldAtIs( Impl::traced(), 6, 13, 3, 8, value ); }
   U8 reserved() const { return static_cast< U8 >( fieldAt( Impl::traced(), 6, 13, 3 ) ); }
   bool isReservedValid() const { return fieldValid( 6 ); }
   U16 reservedLen() const { return fieldLen( 6 ); }
   U16 reservedOffset() const { return fieldStart( 6 ); }
};

class ErppCfgMappingOutLifProfile::WithStorage : public ErppCfgMappingOutLifProfile {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : ErppCfgMappingOutLifProfile( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Register.
class ErppCfgSplitHorizonFilter : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   ErppCfgSplitHorizonFilter( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isErppCfgSplitHorizonFilter( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static U64 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U64 >( chip, variant ); }
   virtual U64 allFieldsMask() const;
   U64 getAllFields() const { return allFields< U64 >(); }

   // [0, 64]
   void cfgSplitHorizonFilterIs( U64 const & value ) { fieldAtIs( Impl::traced(), 0, 0, 64, 64, value ); }
   U64 cfgSplitHorizonFilter() const { return fieldAt( Impl::traced(), 0, 0, 64 ); }
   bool isCfgSplitHorizonFilterValid() const { return fieldValid( 0 ); }
   U16 cfgSplitHorizonFilterLen() const { return fieldLen( 0 ); }
   U16 cfgSplitHorizonFilterOffset() const { return fieldStart( 0 ); }
};

class ErppCfgSplitHorizonFilter::WithStorage : public ErppCfgSplitHorizonFilter {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : ErppCfgSplitHorizonFilter( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[8] = {};
};

// Memory.
class ErppInlifOrientationMap : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   ErppInlifOrientationMap( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isErppInlifOrientationMap( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 3]
   void inlifOrientationIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 3, 8, value ); }
   U8 inlifOrientation() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 3 ) ); }
   bool isInlifOrientationValid() const { return fieldValid( 0 ); }
   U16 inlifOrientationLen() const { return fieldLen( 0 ); }
   U16 inlifOrientationOffset() const { return fieldStart( 0 ); }

   // [3, 2]
   void inlifSameIfFilterIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 3, 2, 8, value ); }
   U8 inlifSameIfFilter() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 3, 2 ) ); }
   bool isInlifSameIfFilterValid() const { return fieldValid( 1 ); }
   U16 inlifSameIfFilterLen() const { return fieldLen( 1 ); }
   U16 inlifSameIfFilterOffset() const { return fieldStart( 1 ); }
};

class ErppInlifOrientationMap::WithStorage : public ErppInlifOrientationMap {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : ErppInlifOrientationMap( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Register, variants 0 to 1.
class EthernetTrap : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EthernetTrap( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEthernetTrap( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static Raw128 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw128 >( chip, variant ); }
   virtual Raw128 allFieldsMask() const;
   Raw128 getAllFields() const { return allFields< Raw128 >(); }

   // [0, 9]
   void eth0CpuTrapCodeIs( U16 value ) { fieldAtIs( Impl::traced(), 0, 0, 9, 16, value ); }
   U16 eth0CpuTrapCode() const { return static_cast< U16 >( fieldAt( Impl::traced(), 0, 0, 9 ) ); }
   bool isEth0CpuTrapCodeValid() const { return fieldValid( 0 ); }
   U16 eth0CpuTrapCodeLen() const { return fieldLen( 0 ); }
   U16 eth0CpuTrapCodeOffset() const { return fieldStart( 0 ); }

   // [9, 4]
   void eth0CpuTrapStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 9, 4, 8, value ); }
   U8 eth0CpuTrapStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 9, 4 ) ); }
   bool isEth0CpuTrapStrengthValid() const { return fieldValid( 1 ); }
   U16 eth0CpuTrapStrengthLen() const { return fieldLen( 1 ); }
   U16 eth0CpuTrapStrengthOffset() const { return fieldStart( 1 ); }

   // [13, 3]
   void eth0SnoopStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 13, 3, 8, value ); }
   U8 eth0SnoopStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 13, 3 ) ); }
   bool isEth0SnoopStrengthValid() const { return fieldValid( 2 ); }
   U16 eth0SnoopStrengthLen() const { return fieldLen( 2 ); }
   U16 eth0SnoopStrengthOffset() const { return fieldStart( 2 ); }

   // [16, 9]
   void eth1CpuTrapCodeIs( U16 value ) { fieldAtIs( Impl::traced(), 3, 16, 9, 16, value ); }
   U16 eth1CpuTrapCode() const { return static_cast< U16 >( fieldAt( Impl::traced(), 3, 16, 9 ) ); }
   bool isEth1CpuTrapCodeValid() const { return fieldValid( 3 ); }
   U16 eth1CpuTrapCodeLen() const { return fieldLen( 3 ); }
   U16 eth1CpuTrapCodeOffset() const { return fieldStart( 3 ); }

   // [25, 4]
   void eth1CpuTrapStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 4, 25, 4, 8, value ); }
   U8 eth1CpuTrapStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 4, 25, 4 ) ); }
   bool isEth1CpuTrapStrengthValid() const { return fieldValid( 4 ); }
   U16 eth1CpuTrapStrengthLen() const { return fieldLen( 4 ); }
   U16 eth1CpuTrapStrengthOffset() const { return fieldStart( 4 ); }

   // [29, 3]
   void eth1SnoopStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 5, 29, 3, 8, value ); }
   U8 eth1SnoopStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 5, 29, 3 ) ); }
   bool isEth1SnoopStrengthValid() const { return fieldValid( 5 ); }
   U16 eth1SnoopStrengthLen() const { return fieldLen( 5 ); }
   U16 eth1SnoopStrengthOffset() const { return fieldStart( 5 ); }

   // [32, 9]
   void eth2CpuTrapCodeIs( U16 value ) { fieldAtIs( Impl::traced(), 6, 32, 9, 16, value ); }
   U16 eth2CpuTrapCode() const { return static_cast< U16 >( fieldAt( Impl::traced(), 6, 32, 9 ) ); }
   bool isEth2CpuTrapCodeValid() const { return fieldValid( 6 ); }
   U16 eth2CpuTrapCodeLen() const { return fieldLen( 6 ); }
   U16 eth2CpuTrapCodeOffset() const { return fieldStart( 6 ); }

   // [41, 4]
   void eth2CpuTrapStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 7, 41, 4, 8, value ); }
   U8 eth2CpuTrapStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 7, 41, 4 ) ); }
   bool isEth2CpuTrapStrengthValid() const { return fieldValid( 7 ); }
   U16 eth2CpuTrapStrengthLen() const { return fieldLen( 7 ); }
   U16 eth2CpuTrapStrengthOffset() const { return fieldStart( 7 ); }

   // [45, 3]
   void eth2SnoopStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 8, 45, 3, 8, value ); }
   U8 eth2SnoopStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 8, 45, 3 ) ); }
   bool isEth2SnoopStrengthValid() const { return fieldValid( 8 ); }
   U16 eth2SnoopStrengthLen() const { return fieldLen( 8 ); }
   U16 eth2SnoopStrengthOffset() const { return fieldStart( 8 ); }

   // [48, 9]
   void eth3CpuTrapCodeIs( U16 value ) { fieldAtIs( Impl::traced(), 9, 48, 9, 16, value ); }
   U16 eth3CpuTrapCode() const { return static_cast< U16 >( fieldAt( Impl::traced(), 9, 48, 9 ) ); }
   bool isEth3CpuTrapCodeValid() const { return fieldValid( 9 ); }
   U16 eth3CpuTrapCodeLen() const { return fieldLen( 9 ); }
   U16 eth3CpuTrapCodeOffset() const { return fieldStart( 9 ); }

   // [57, 4]
   void eth3CpuTrapStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 10, 57, 4, 8, value ); }
   U8 eth3CpuTrapStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 10, 57, 4 ) ); }
   bool isEth3CpuTrapStrengthValid() const { return fieldValid( 10 ); }
   U16 eth3CpuTrapStrengthLen() const { return fieldLen( 10 ); }
   U16 eth3CpuTrapStrengthOffset() const { return fieldStart( 10 ); }

   // [61, 3]
   void eth3SnoopStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 11, 61, 3, 8, value ); }
   U8 eth3SnoopStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 11, 61, 3 ) ); }
   bool isEth3SnoopStrengthValid() const { return fieldValid( 11 ); }
   U16 eth3SnoopStrengthLen() const { return fieldLen( 11 ); }
   U16 eth3SnoopStrengthOffset() const { return fieldStart( 11 ); }

   // [64, 9]
   void eth4CpuTrapCodeIs( U16 value ) { fieldAtIs( Impl::traced(), 12, 64, 9, 16, value ); }
   U16 eth4CpuTrapCode() const { return static_cast< U16 >( fieldAt( Impl::traced(), 12, 64, 9 ) ); }
   bool isEth4CpuTrapCodeValid() const { return fieldValid( 12 ); }
   U16 eth4CpuTrapCodeLen() const { return fieldLen( 12 ); }
   U16 eth4CpuTrapCodeOffset() const { return fieldStart( 12 ); }

   // [73, 4]
   void eth4CpuTrapStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 13, 73, 4, 8, value ); }
   U8 eth4CpuTrapStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 13, 73, 4 ) ); }
   bool isEth4CpuTrapStrengthValid() const { return fieldValid( 13 ); }
   U16 eth4CpuTrapStrengthLen() const { return fieldLen( 13 ); }
   U16 eth4CpuTrapStrengthOffset() const { return fieldStart( 13 ); }

   // [77, 3]
   void eth4SnoopStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 14, 77, 3, 8, value ); }
   U8 eth4SnoopStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 14, 77, 3 ) ); }
   bool isEth4SnoopStrengthValid() const { return fieldValid( 14 ); }
   U16 eth4SnoopStrengthLen() const { return fieldLen( 14 ); }
   U16 eth4SnoopStrengthOffset() const { return fieldStart( 14 ); }

   // [80, 9]
   void eth5CpuTrapCodeIs( U16 value ) { fieldAtIs( Impl::traced(), 15, 80, 9, 16, value ); }
   U16 eth5CpuTrapCode() const { return static_cast< U16 >( fieldAt( Impl::traced(), 15, 80, 9 ) ); }
   bool isEth5CpuTrapCodeValid() const { return fieldValid( 15 ); }
   U16 eth5CpuTrapCodeLen() const { return fieldLen( 15 ); }
   U16 eth5CpuTrapCodeOffset() const { return fieldStart( 15 ); }

   // [89, 4]
   void eth5CpuTrapStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 16, 89, 4, 8, value ); }
   U8 eth5CpuTrapStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 16, 89, 4 ) ); }
   bool isEth5CpuTrapStrengthValid() const { return fieldValid( 16 ); }
   U16 eth5CpuTrapStrengthLen() const { return fieldLen( 16 ); }
   U16 eth5CpuTrapStrengthOffset() const { return fieldStart( 16 ); }

   // [93, 3]
   void eth5SnoopStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 17, 93, 3, 8, value ); }
   U8 eth5SnoopStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 17, 93, 3 ) ); }
   bool isEth5SnoopStrengthValid() const { return fieldValid( 17 ); }
   U16 eth5SnoopStrengthLen() const { return fieldLen( 17 ); }
   U16 eth5SnoopStrengthOffset() const { return fieldStart( 17 ); }

   // [96, 9]
   void eth6CpuTrapCodeIs( U16 value ) { fieldAtIs( Impl::traced(), 18, 96, 9, 16, value ); }
   U16 eth6CpuTrapCode() const { return static_cast< U16 >( fieldAt( Impl::traced(), 18, 96, 9 ) ); }
   bool isEth6CpuTrapCodeValid() const { return fieldValid( 18 ); }
   U16 eth6CpuTrapCodeLen() const { return fieldLen( 18 ); }
   U16 eth6CpuTrapCodeOffset() const { return fieldStart( 18 ); }

   // [105, 4]
   void eth6CpuTrapStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 19, 105, 4, 8, value ); }
   U8 eth6CpuTrapStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 19, 105, 4 ) ); }
   bool isEth6CpuTrapStrengthValid() const { return fieldValid( 19 ); }
   U16 eth6CpuTrapStrengthLen() const { return fieldLen( 19 ); }
   U16 eth6CpuTrapStrengthOffset() const { return fieldStart( 19 ); }

   // [109, 3]
   void eth6SnoopStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 20, 109, 3, 8, value ); }
   U8 eth6SnoopStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 20, 109, 3 ) ); }
   bool isEth6SnoopStrengthValid() const { return fieldValid( 20 ); }
   U16 eth6SnoopStrengthLen() const { return fieldLen( 20 ); }
   U16 eth6SnoopStrengthOffset() const { return fieldStart( 20 ); }

   // [112, 9]
   void eth7CpuTrapCodeIs( U16 value ) { fieldAtIs( Impl::traced(), 21, 112, 9, 16, value ); }
   U16 eth7CpuTrapCode() const { return static_cast< U16 >( fieldAt( Impl::traced(), 21, 112, 9 ) ); }
   bool isEth7CpuTrapCodeValid() const { return fieldValid( 21 ); }
   U16 eth7CpuTrapCodeLen() const { return fieldLen( 21 ); }
   U16 eth7CpuTrapCodeOffset() const { return fieldStart( 21 ); }

   // [121, 4]
   void eth7CpuTrapStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 22, 121, 4, 8, value ); }
   U8 eth7CpuTrapStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 22, 121, 4 ) ); }
   bool isEth7CpuTrapStrengthValid() const { return fieldValid( 22 ); }
   U16 eth7CpuTrapStrengthLen() const { return fieldLen( 22 ); }
   U16 eth7CpuTrapStrengthOffset() const { return fieldStart( 22 ); }

   // [125, 3]
   void eth7SnoopStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 23, 125, 3, 8, value ); }
   U8 eth7SnoopStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 23, 125, 3 ) ); }
   bool isEth7SnoopStrengthValid() const { return fieldValid( 23 ); }
   U16 eth7SnoopStrengthLen() const { return fieldLen( 23 ); }
   U16 eth7SnoopStrengthOffset() const { return fieldStart( 23 ); }
};

class EthernetTrap::WithStorage : public EthernetTrap {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EthernetTrap( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[16] = {};
};

// Register.
class EtppCfgFwdDoNotTtlDecrement : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EtppCfgFwdDoNotTtlDecrement( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEtppCfgFwdDoNotTtlDecrement( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static Raw512 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw512 >( chip, variant ); }
   virtual Raw512 allFieldsMask() const;
   Raw512 getAllFields() const { return allFields< Raw512 >(); }

   // [0, 512]
   void cfgFwdEgressDoNotTtlDecrementIs( Raw512 const & value ) { wideAtIs( Impl::traced(), 0, 0, value ); }
   Raw512 cfgFwdEgressDoNotTtlDecrement() const { return wideAt< Raw512 >( Impl::traced(), 0, 0 ); }
   bool isCfgFwdEgressDoNotTtlDecrementValid() const { return fieldValid( 0 ); }
   U16 cfgFwdEgressDoNotTtlDecrementLen() const { return fieldLen( 0 ); }
   U16 cfgFwdEgressDoNotTtlDecrementOffset() const { return fieldStart( 0 ); }
};

class EtppCfgFwdDoNotTtlDecrement::WithStorage : public EtppCfgFwdDoNotTtlDecrement {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EtppCfgFwdDoNotTtlDecrement( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[64] = {};
};

// Register.
class EtppCfgRifInStack : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EtppCfgRifInStack( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEtppCfgRifInStack( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 16]
   void cfgRifInStackIs( U16 value ) { fieldAtIs( Impl::traced(), 0, 0, 16, 16, value ); }
   U16 cfgRifInStack() const { return static_cast< U16 >( fieldAt( Impl::traced(), 0, 0, 16 ) ); }
   bool isCfgRifInStackValid() const { return fieldValid( 0 ); }
   U16 cfgRifInStackLen() const { return fieldLen( 0 ); }
   U16 cfgRifInStackOffset() const { return fieldStart( 0 ); }
};

class EtppCfgRifInStack::WithStorage : public EtppCfgRifInStack {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EtppCfgRifInStack( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Register.
class EtppCfgSplitHorizonFilter : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EtppCfgSplitHorizonFilter( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEtppCfgSplitHorizonFilter( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static U64 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U64 >( chip, variant ); }
   virtual U64 allFieldsMask() const;
   U64 getAllFields() const { return allFields< U64 >(); }

   // [0, 64]
   void cfgSplitHorizonFilterIs( U64 const & value ) { fieldAtIs( Impl::traced(), 0, 0, 64, 64, value ); }
   U64 cfgSplitHorizonFilter() const { return fieldAt( Impl::traced(), 0, 0, 64 ); }
   bool isCfgSplitHorizonFilterValid() const { return fieldValid( 0 ); }
   U16 cfgSplitHorizonFilterLen() const { return fieldLen( 0 ); }
   U16 cfgSplitHorizonFilterOffset() const { return fieldStart( 0 ); }
};

class EtppCfgSplitHorizonFilter::WithStorage : public EtppCfgSplitHorizonFilter {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EtppCfgSplitHorizonFilter( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[8] = {};
};

// Register.
class EtppCfgSplitHorizonTrapParams : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EtppCfgSplitHorizonTrapParams( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEtppCfgSplitHorizonTrapParams( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 4]
   void cfgSplitHorizonFwdActionStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 4, 8, value ); }
   U8 cfgSplitHorizonFwdActionStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 4 ) ); }
   bool isCfgSplitHorizonFwdActionStrengthValid() const { return fieldValid( 0 ); }
   U16 cfgSplitHorizonFwdActionStrengthLen() const { return fieldLen( 0 ); }
   U16 cfgSplitHorizonFwdActionStrengthOffset() const { return fieldStart( 0 ); }

   // [4, 3]
   void cfgSplitHorizonSnoopActionStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 4, 3, 8, value ); }
   U8 cfgSplitHorizonSnoopActionStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 4, 3 ) ); }
   bool isCfgSplitHorizonSnoopActionStrengthValid() const { return fieldValid( 1 ); }
   U16 cfgSplitHorizonSnoopActionStrengthLen() const { return fieldLen( 1 ); }
   U16 cfgSplitHorizonSnoopActionStrengthOffset() const { return fieldStart( 1 ); }

   // [7, 3]
   void cfgSplitHorizonActionProfileIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 7, 3, 8, value ); }
   U8 cfgSplitHorizonActionProfile() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 7, 3 ) ); }
   bool isCfgSplitHorizonActionProfileValid() const { return fieldValid( 2 ); }
   U16 cfgSplitHorizonActionProfileLen() const { return fieldLen( 2 ); }
   U16 cfgSplitHorizonActionProfileOffset() const { return fieldStart( 2 ); }
};

class EtppCfgSplitHorizonTrapParams::WithStorage : public EtppCfgSplitHorizonTrapParams {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EtppCfgSplitHorizonTrapParams( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Memory.
class EtppEnc1ContextSelectionPortProfile : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EtppEnc1ContextSelectionPortProfile( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEtppEnc1ContextSelectionPortProfile( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 2]
   void contextSelectionPerPortProfileIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 2, 8, value ); }
   U8 contextSelectionPerPortProfile() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 2 ) ); }
   bool isContextSelectionPerPortProfileValid() const { return fieldValid( 0 ); }
   U16 contextSelectionPerPortProfileLen() const { return fieldLen( 0 ); }
   U16 contextSelectionPerPortProfileOffset() const { return fieldStart( 0 ); }
};

class EtppEnc1ContextSelectionPortProfile::WithStorage : public EtppEnc1ContextSelectionPortProfile {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EtppEnc1ContextSelectionPortProfile( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Memory.
class EtppEnc2ContextSelectionPortProfile : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EtppEnc2ContextSelectionPortProfile( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEtppEnc2ContextSelectionPortProfile( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 2]
   void contextSelectionPerPortProfileIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 2, 8, value ); }
   U8 contextSelectionPerPortProfile() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 2 ) ); }
   bool isContextSelectionPerPortProfileValid() const { return fieldValid( 0 ); }
   U16 contextSelectionPerPortProfileLen() const { return fieldLen( 0 ); }
   U16 contextSelectionPerPortProfileOffset() const { return fieldStart( 0 ); }
};

class EtppEnc2ContextSelectionPortProfile::WithStorage : public EtppEnc2ContextSelectionPortProfile {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EtppEnc2ContextSelectionPortProfile( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Memory.
class EtppEnc3ContextSelectionPortProfile : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EtppEnc3ContextSelectionPortProfile( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEtppEnc3ContextSelectionPortProfile( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 2]
   void contextSelectionPerPortProfileIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 2, 8, value ); }
   U8 contextSelectionPerPortProfile() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 2 ) ); }
   bool isContextSelectionPerPortProfileValid() const { return fieldValid( 0 ); }
   U16 contextSelectionPerPortProfileLen() const { return fieldLen( 0 ); }
   U16 contextSelectionPerPortProfileOffset() const { return fieldStart( 0 ); }
};

class EtppEnc3ContextSelectionPortProfile::WithStorage : public EtppEnc3ContextSelectionPortProfile {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EtppEnc3ContextSelectionPortProfile( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Memory.
class EtppEnc4ContextSelectionPortProfile : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EtppEnc4ContextSelectionPortProfile( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEtppEnc4ContextSelectionPortProfile( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 2]
   void contextSelectionPerPortProfileIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 2, 8, value ); }
   U8 contextSelectionPerPortProfile() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 2 ) ); }
   bool isContextSelectionPerPortProfileValid() const { return fieldValid( 0 ); }
   U16 contextSelectionPerPortProfileLen() const { return fieldLen( 0 ); }
   U16 contextSelectionPerPortProfileOffset() const { return fieldStart( 0 ); }
};

class EtppEnc4ContextSelectionPortProfile::WithStorage : public EtppEnc4ContextSelectionPortProfile {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EtppEnc4ContextSelectionPortProfile( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Memory.
class EtppEnc5ContextSelectionPortProfile : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EtppEnc5ContextSelectionPortProfile( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEtppEnc5ContextSelectionPortProfile( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 2]
   void contextSelectionPerPortProfileIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 2, 8, value ); }
   U8 contextSelectionPerPortProfile() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 2 ) ); }
   bool isContextSelectionPerPortProfileValid() const { return fieldValid( 0 ); }
   U16 contextSelectionPerPortProfileLen() const { return fieldLen( 0 ); }
   U16 contextSelectionPerPortProfileOffset() const { return fieldStart( 0 ); }
};

class EtppEnc5ContextSelectionPortProfile::WithStorage : public EtppEnc5ContextSelectionPortProfile {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EtppEnc5ContextSelectionPortProfile( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Memory.
class EtppInlifOrientationMap : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EtppInlifOrientationMap( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEtppInlifOrientationMap( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 3]
   void inlifOrientationMappingIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 3, 8, value ); }
   U8 inlifOrientationMapping() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 3 ) ); }
   bool isInlifOrientationMappingValid() const { return fieldValid( 0 ); }
   U16 inlifOrientationMappingLen() const { return fieldLen( 0 ); }
   U16 inlifOrientationMappingOffset() const { return fieldStart( 0 ); }
};

class EtppInlifOrientationMap::WithStorage : public EtppInlifOrientationMap {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EtppInlifOrientationMap( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Register.
class EtppOutlifOrientationMap : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EtppOutlifOrientationMap( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEtppOutlifOrientationMap( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static Raw256 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw256 >( chip, variant ); }
   virtual Raw256 allFieldsMask() const;
   Raw256 getAllFields() const { return allFields< Raw256 >(); }

   // [0, 192]
   void outlifOrientationMappingIs( Raw256 const & value ) { wideFieldIs( 0, value.word.data() ); }
   Raw256 outlifOrientationMapping() const { return wideField< Raw256 >( 0 ); }
   bool isOutlifOrientationMappingValid() const { return fieldValid( 0 ); }
   U16 outlifOrientationMappingLen() const { return fieldLen( 0 ); }
   U16 outlifOrientationMappingOffset() const { return fieldStart( 0 ); }
};

class EtppOutlifOrientationMap::WithStorage : public EtppOutlifOrientationMap {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EtppOutlifOrientationMap( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[24] = {};
};

// Memory.
class EtppTrapBitCruncherProgram : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EtppTrapBitCruncherProgram( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEtppTrapBitCruncherProgram( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw512 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw512 >( chip, variant ); }
   virtual Raw512 allFieldsMask() const;
   Raw512 getAllFields() const { return allFields< Raw512 >(); }

   // [0, 4]
   void nofInstructionsInPairsIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 4, 8, value ); }
   U8 nofInstructionsInPairs() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 4 ) ); }
   bool isNofInstructionsInPairsValid() const { return fieldValid( 0 ); }
   U16 nofInstructionsInPairsLen() const { return fieldLen( 0 ); }
   U16 nofInstructionsInPairsOffset() const { return fieldStart( 0 ); }

   // [4, 50]
   void doubleInstruction0Is( U64 const & value ) { fieldAtIs( Impl::traced(), 1, 4, 50, 64, value ); }
   U64 doubleInstruction0() const { return fieldAt( Impl::traced(), 1, 4, 50 ); }
   bool isDoubleInstruction0Valid() const { return fieldValid( 1 ); }
   U16 doubleInstruction0Len() const { return fieldLen( 1 ); }
   U16 doubleInstruction0Offset() const { return fieldStart( 1 ); }

   // [54, 50]
   void doubleInstruction1Is( U64 const & value ) { fieldAtIs( Impl::traced(), 2, 54, 50, 64, value ); }
   U64 doubleInstruction1() const { return fieldAt( Impl::traced(), 2, 54, 50 ); }
   bool isDoubleInstruction1Valid() const { return fieldValid( 2 ); }
   U16 doubleInstruction1Len() const { return fieldLen( 2 ); }
   U16 doubleInstruction1Offset() const { return fieldStart( 2 ); }

   // [104, 50]
   void doubleInstruction2Is( U64 const & value ) { fieldAtIs( Impl::traced(), 3, 104, 50, 64, value ); }
   U64 doubleInstruction2() const { return fieldAt( Impl::traced(), 3, 104, 50 ); }
   bool isDoubleInstruction2Valid() const { return fieldValid( 3 ); }
   U16 doubleInstruction2Len() const { return fieldLen( 3 ); }
   U16 doubleInstruction2Offset() const { return fieldStart( 3 ); }

   // [154, 50]
   void doubleInstruction3Is( U64 const & value ) { fieldAtIs( Impl::traced(), 4, 154, 50, 64, value ); }
   U64 doubleInstruction3() const { return fieldAt( Impl::traced(), 4, 154, 50 ); }
   bool isDoubleInstruction3Valid() const { return fieldValid( 4 ); }
   U16 doubleInstruction3Len() const { return fieldLen( 4 ); }
   U16 doubleInstruction3Offset() const { return fieldStart( 4 ); }

   // [204, 50]
   void doubleInstruction4Is( U64 const & value ) { fieldAtIs( Impl::traced(), 5, 204, 50, 64, value ); }
   U64 doubleInstruction4() const { return fieldAt( Impl::traced(), 5, 204, 50 ); }
   bool isDoubleInstruction4Valid() const { return fieldValid( 5 ); }
   U16 doubleInstruction4Len() const { return fieldLen( 5 ); }
   U16 doubleInstruction4Offset() const { return fieldStart( 5 ); }

   // [254, 50]
   void doubleInstruction5Is( U64 const & value ) { fieldAtIs( Impl::traced(), 6, 254, 50, 64, value ); }
   U64 doubleInstruction5() const { return fieldAt( Impl::traced(), 6, 254, 50 ); }
   bool isDoubleInstruction5Valid() const { return fieldValid( 6 ); }
   U16 doubleInstruction5Len() const { return fieldLen( 6 ); }
   U16 doubleInstruction5Offset() const { return fieldStart( 6 ); }

   // [304, 50]
   void doubleInstruction6Is( U64 const & value ) { fieldAtIs( Impl::traced(), 7, 304, 50, 64, value ); }
   U64 doubleInstruction6() const { return fieldAt( Impl::traced(), 7, 304, 50 ); }
   bool isDoubleInstruction6Valid() const { return fieldValid( 7 ); }
   U16 doubleInstruction6Len() const { return fieldLen( 7 ); }
   U16 doubleInstruction6Offset() const { return fieldStart( 7 ); }

   // [354, 50]
   void doubleInstruction7Is( U64 const & value ) { fieldAtIs( Impl::traced(), 8, 354, 50, 64, value ); }
   U64 doubleInstruction7() const { return fieldAt( Impl::traced(), 8, 354, 50 ); }
   bool isDoubleInstruction7Valid() const { return fieldValid( 8 ); }
   U16 doubleInstruction7Len() const { return fieldLen( 8 ); }
   U16 doubleInstruction7Offset() const { return fieldStart( 8 ); }
};

class EtppTrapBitCruncherProgram::WithStorage : public EtppTrapBitCruncherProgram {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EtppTrapBitCruncherProgram( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[52] = {};
};

// Memory.
class EtppTrapContextSelectionPortProfile : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EtppTrapContextSelectionPortProfile( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEtppTrapContextSelectionPortProfile( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 3] or [0, 4]
   void contextSelectionPerPortProfileIs( U8 value ) { fieldInIs( Impl::traced(), 0, value ); }
   U8 contextSelectionPerPortProfile() const { return static_cast< U8 >( fieldIn( Impl::traced(), 0 ) ); }
   bool isContextSelectionPerPortProfileValid() const { return fieldValid( 0 ); }
   U16 contextSelectionPerPortProfileLen() const { return fieldLen( 0 ); }
   U16 contextSelectionPerPortProfileOffset() const { return fieldStart( 0 ); }
};

class EtppTrapContextSelectionPortProfile::WithStorage : public EtppTrapContextSelectionPortProfile {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EtppTrapContextSelectionPortProfile( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Memory.
class EtppaPrpFesProgramTable : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EtppaPrpFesProgramTable( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEtppaPrpFesProgramTable( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw256 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw256 >( chip, variant ); }
   virtual Raw256 allFieldsMask() const;
   Raw256 getAllFields() const { return allFields< Raw256 >(); }

   // [14, 6]
   void actionType0Is( U8 value ) { fieldAtIs( Impl::traced(), 0, 14, 6, 8, value ); }
   U8 actionType0() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 14, 6 ) ); }
   bool isActionType0Valid() const { return fieldValid( 0 ); }
   U16 actionType0Len() const { return fieldLen( 0 ); }
   U16 actionType0Offset() const { return fieldStart( 0 ); }

   // [35, 6]
   void actionType1Is( U8 value ) { fieldAtIs( Impl::traced(), 1, 35, 6, 8, value ); }
   U8 actionType1() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 35, 6 ) ); }
   bool isActionType1Valid() const { return fieldValid( 1 ); }
   U16 actionType1Len() const { return fieldLen( 1 ); }
   U16 actionType1Offset() const { return fieldStart( 1 ); }
};

class EtppaPrpFesProgramTable::WithStorage : public EtppaPrpFesProgramTable {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EtppaPrpFesProgramTable( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[24] = {};
};

// Memory.
class EtppbEnc5Arr0FormatCfg : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EtppbEnc5Arr0FormatCfg( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEtppbEnc5Arr0FormatCfg( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw512 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw512 >( chip, variant ); }
   virtual Raw512 allFieldsMask() const;
   Raw512 getAllFields() const { return allFields< Raw512 >(); }

   // [0, 16]
   void sourceIdxConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 0, 0, 16, 16, value ); }
   U16 sourceIdxConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 0, 0, 16 ) ); }
   bool isSourceIdxConfigValid() const { return fieldValid( 0 ); }
   U16 sourceIdxConfigLen() const { return fieldLen( 0 ); }
   U16 sourceIdxConfigOffset() const { return fieldStart( 0 ); }

   // [16, 16]
   void ttlIdxConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 1, 16, 16, 16, value ); }
   U16 ttlIdxConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 1, 16, 16 ) ); }
   bool isTtlIdxConfigValid() const { return fieldValid( 1 ); }
   U16 ttlIdxConfigLen() const { return fieldLen( 1 ); }
   U16 ttlIdxConfigOffset() const { return fieldStart( 1 ); }

   // [32, 16]
   void nwkQosIdxConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 2, 32, 16, 16, value ); }
   U16 nwkQosIdxConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 2, 32, 16 ) ); }
   bool isNwkQosIdxConfigValid() const { return fieldValid( 2 ); }
   U16 nwkQosIdxConfigLen() const { return fieldLen( 2 ); }
   U16 nwkQosIdxConfigOffset() const { return fieldStart( 2 ); }

   // [48, 14]
   void qosModelConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 3, 48, 14, 16, value ); }
   U16 qosModelConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 3, 48, 14 ) ); }
   bool isQosModelConfigValid() const { return fieldValid( 3 ); }
   U16 qosModelConfigLen() const { return fieldLen( 3 ); }
   U16 qosModelConfigOffset() const { return fieldStart( 3 ); }

   // [62, 14]
   void ttlModelConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 4, 62, 14, 16, value ); }
   U16 ttlModelConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 4, 62, 14 ) ); }
   bool isTtlModelConfigValid() const { return fieldValid( 4 ); }
   U16 ttlModelConfigLen() const { return fieldLen( 4 ); }
   U16 ttlModelConfigOffset() const { return fieldStart( 4 ); }

   // [76, 17]
   void forwardDomainNetworkNameConfigIs( U32 value ) { fieldAtIs( Impl::traced(), 5, 76, 17, 32, value ); }
   U32 forwardDomainNetworkNameConfig() const { return static_cast< U32 >( fieldAt( Impl::traced(), 5, 76, 17 ) ); }
   bool isForwardDomainNetworkNameConfigValid() const { return fieldValid( 5 ); }
   U16 forwardDomainNetworkNameConfigLen() const { return fieldLen( 5 ); }
   U16 forwardDomainNetworkNameConfigOffset() const { return fieldStart( 5 ); }

   // [93, 15]
   void vlanEditProfileConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 6, 93, 15, 16, value ); }
   U16 vlanEditProfileConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 6, 93, 15 ) ); }
   bool isVlanEditProfileConfigValid() const { return fieldValid( 6 ); }
   U16 vlanEditProfileConfigLen() const { return fieldLen( 6 ); }
   U16 vlanEditProfileConfigOffset() const { return fieldStart( 6 ); }

   // [108, 18]
   void dualHomingConfigIs( U32 value ) { fieldAtIs( Impl::traced(), 7, 108, 18, 32, value ); }
   U32 dualHomingConfig() const { return static_cast< U32 >( fieldAt( Impl::traced(), 7, 108, 18 ) ); }
   bool isDualHomingConfigValid() const { return fieldValid( 7 ); }
   U16 dualHomingConfigLen() const { return fieldLen( 7 ); }
   U16 dualHomingConfigOffset() const { return fieldStart( 7 ); }

   // [126, 15]
   void lifAdditionalHeadersProfileConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 8, 126, 15, 16, value ); }
   U16 lifAdditionalHeadersProfileConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 8, 126, 15 ) ); }
   bool isLifAdditionalHeadersProfileConfigValid() const { return fieldValid( 8 ); }
   U16 lifAdditionalHeadersProfileConfigLen() const { return fieldLen( 8 ); }
   U16 lifAdditionalHeadersProfileConfigOffset() const { return fieldStart( 8 ); }

   // [141, 14]
   void mtuProfileConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 9, 141, 14, 16, value ); }
   U16 mtuProfileConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 9, 141, 14 ) ); }
   bool isMtuProfileConfigValid() const { return fieldValid( 9 ); }
   U16 mtuProfileConfigLen() const { return fieldLen( 9 ); }
   U16 mtuProfileConfigOffset() const { return fieldStart( 9 ); }

   // [155, 17]
   void forwardDomainConfigIs( U32 value ) { fieldAtIs( Impl::traced(), 10, 155, 17, 32, value ); }
   U32 forwardDomainConfig() const { return static_cast< U32 >( fieldAt( Impl::traced(), 10, 155, 17 ) ); }
   bool isForwardDomainConfigValid() const { return fieldValid( 10 ); }
   U16 forwardDomainConfigLen() const { return fieldLen( 10 ); }
   U16 forwardDomainConfigOffset() const { return fieldStart( 10 ); }

   // [172, 15]
   void remarkProfileConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 11, 172, 15, 16, value ); }
   U16 remarkProfileConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 11, 172, 15 ) ); }
   bool isRemarkProfileConfigValid() const { return fieldValid( 11 ); }
   U16 remarkProfileConfigLen() const { return fieldLen( 11 ); }
   U16 remarkProfileConfigOffset() const { return fieldStart( 11 ); }

   // [187, 16]
   void vlanMembershipInterfaceConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 12, 187, 16, 16, value ); }
   U16 vlanMembershipInterfaceConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 12, 187, 16 ) ); }
   bool isVlanMembershipInterfaceConfigValid() const { return fieldValid( 12 ); }
   U16 vlanMembershipInterfaceConfigLen() const { return fieldLen( 12 ); }
   U16 vlanMembershipInterfaceConfigOffset() const { return fieldStart( 12 ); }

   // [203, 17]
   void lifStatisticsObjectIdConfigIs( U32 value ) { fieldAtIs( Impl::traced(), 13, 203, 17, 32, value ); }
   U32 lifStatisticsObjectIdConfig() const { return static_cast< U32 >( fieldAt( Impl::traced(), 13, 203, 17 ) ); }
   bool isLifStatisticsObjectIdConfigValid() const { return fieldValid( 13 ); }
   U16 lifStatisticsObjectIdConfigLen() const { return fieldLen( 13 ); }
   U16 lifStatisticsObjectIdConfigOffset() const { return fieldStart( 13 ); }

   // [220, 15]
   void lifStatisticsObjectCommandConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 14, 220, 15, 16, value ); }
   U16 lifStatisticsObjectCommandConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 14, 220, 15 ) ); }
   bool isLifStatisticsObjectCommandConfigValid() const { return fieldValid( 14 ); }
   U16 lifStatisticsObjectCommandConfigLen() const { return fieldLen( 14 ); }
   U16 lifStatisticsObjectCommandConfigOffset() const { return fieldStart( 14 ); }

   // [235, 19]
   void encapDestinationConfigIs( U32 value ) { fieldAtIs( Impl::traced(), 15, 235, 19, 32, value ); }
   U32 encapDestinationConfig() const { return static_cast< U32 >( fieldAt( Impl::traced(), 15, 235, 19 ) ); }
   bool isEncapDestinationConfigValid() const { return fieldValid( 15 ); }
   U16 encapDestinationConfigLen() const { return fieldLen( 15 ); }
   U16 encapDestinationConfigOffset() const { return fieldStart( 15 ); }

   // [254, 13]
   void egressLastLayerConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 16, 254, 13, 16, value ); }
   U16 egressLastLayerConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 16, 254, 13 ) ); }
   bool isEgressLastLayerConfigValid() const { return fieldValid( 16 ); }
   U16 egressLastLayerConfigLen() const { return fieldLen( 16 ); }
   U16 egressLastLayerConfigOffset() const { return fieldStart( 16 ); }
};

class EtppbEnc5Arr0FormatCfg::WithStorage : public EtppbEnc5Arr0FormatCfg {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EtppbEnc5Arr0FormatCfg( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[36] = {};
};

// Memory.
class EtppcEnc1Arr0FormatCfg : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EtppcEnc1Arr0FormatCfg( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEtppcEnc1Arr0FormatCfg( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw512 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw512 >( chip, variant ); }
   virtual Raw512 allFieldsMask() const;
   Raw512 getAllFields() const { return allFields< Raw512 >(); }

   // [0, 16]
   void sourceIdxConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 0, 0, 16, 16, value ); }
   U16 sourceIdxConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 0, 0, 16 ) ); }
   bool isSourceIdxConfigValid() const { return fieldValid( 0 ); }
   U16 sourceIdxConfigLen() const { return fieldLen( 0 ); }
   U16 sourceIdxConfigOffset() const { return fieldStart( 0 ); }

   // [16, 16]
   void ttlIdxConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 1, 16, 16, 16, value ); }
   U16 ttlIdxConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 1, 16, 16 ) ); }
   bool isTtlIdxConfigValid() const { return fieldValid( 1 ); }
   U16 ttlIdxConfigLen() const { return fieldLen( 1 ); }
   U16 ttlIdxConfigOffset() const { return fieldStart( 1 ); }

   // [32, 16]
   void nwkQosIdxConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 2, 32, 16, 16, value ); }
   U16 nwkQosIdxConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 2, 32, 16 ) ); }
   bool isNwkQosIdxConfigValid() const { return fieldValid( 2 ); }
   U16 nwkQosIdxConfigLen() const { return fieldLen( 2 ); }
   U16 nwkQosIdxConfigOffset() const { return fieldStart( 2 ); }

   // [48, 14]
   void qosModelConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 3, 48, 14, 16, value ); }
   U16 qosModelConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 3, 48, 14 ) ); }
   bool isQosModelConfigValid() const { return fieldValid( 3 ); }
   U16 qosModelConfigLen() const { return fieldLen( 3 ); }
   U16 qosModelConfigOffset() const { return fieldStart( 3 ); }

   // [62, 14]
   void ttlModelConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 4, 62, 14, 16, value ); }
   U16 ttlModelConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 4, 62, 14 ) ); }
   bool isTtlModelConfigValid() const { return fieldValid( 4 ); }
   U16 ttlModelConfigLen() const { return fieldLen( 4 ); }
   U16 ttlModelConfigOffset() const { return fieldStart( 4 ); }

   // [76, 17]
   void forwardDomainNetworkNameConfigIs( U32 value ) { fieldAtIs( Impl::traced(), 5, 76, 17, 32, value ); }
   U32 forwardDomainNetworkNameConfig() const { return static_cast< U32 >( fieldAt( Impl::traced(), 5, 76, 17 ) ); }
   bool isForwardDomainNetworkNameConfigValid() const { return fieldValid( 5 ); }
   U16 forwardDomainNetworkNameConfigLen() const { return fieldLen( 5 ); }
   U16 forwardDomainNetworkNameConfigOffset() const { return fieldStart( 5 ); }

   // [93, 15]
   void vlanEditProfileConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 6, 93, 15, 16, value ); }
   U16 vlanEditProfileConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 6, 93, 15 ) ); }
   bool isVlanEditProfileConfigValid() const { return fieldValid( 6 ); }
   U16 vlanEditProfileConfigLen() const { return fieldLen( 6 ); }
   U16 vlanEditProfileConfigOffset() const { return fieldStart( 6 ); }

   // [108, 18]
   void dualHomingConfigIs( U32 value ) { fieldAtIs( Impl::traced(), 7, 108, 18, 32, value ); }
   U32 dualHomingConfig() const { return static_cast< U32 >( fieldAt( Impl::traced(), 7, 108, 18 ) ); }
   bool isDualHomingConfigValid() const { return fieldValid( 7 ); }
   U16 dualHomingConfigLen() const { return fieldLen( 7 ); }
   U16 dualHomingConfigOffset() const { return fieldStart( 7 ); }

   // [126, 15]
   void lifAdditionalHeadersProfileConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 8, 126, 15, 16, value ); }
   U16 lifAdditionalHeadersProfileConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 8, 126, 15 ) ); }
   bool isLifAdditionalHeadersProfileConfigValid() const { return fieldValid( 8 ); }
   U16 lifAdditionalHeadersProfileConfigLen() const { return fieldLen( 8 ); }
   U16 lifAdditionalHeadersProfileConfigOffset() const { return fieldStart( 8 ); }

   // [141, 14]
   void mtuProfileConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 9, 141, 14, 16, value ); }
   U16 mtuProfileConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 9, 141, 14 ) ); }
   bool isMtuProfileConfigValid() const { return fieldValid( 9 ); }
   U16 mtuProfileConfigLen() const { return fieldLen( 9 ); }
   U16 mtuProfileConfigOffset() const { return fieldStart( 9 ); }

   // [155, 17]
   void forwardDomainConfigIs( U32 value ) { fieldAtIs( Impl::traced(), 10, 155, 17, 32, value ); }
   U32 forwardDomainConfig() const { return static_cast< U32 >( fieldAt( Impl::traced(), 10, 155, 17 ) ); }
   bool isForwardDomainConfigValid() const { return fieldValid( 10 ); }
   U16 forwardDomainConfigLen() const { return fieldLen( 10 ); }
   U16 forwardDomainConfigOffset() const { return fieldStart( 10 ); }

   // [172, 15]
   void remarkProfileConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 11, 172, 15, 16, value ); }
   U16 remarkProfileConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 11, 172, 15 ) ); }
   bool isRemarkProfileConfigValid() const { return fieldValid( 11 ); }
   U16 remarkProfileConfigLen() const { return fieldLen( 11 ); }
   U16 remarkProfileConfigOffset() const { return fieldStart( 11 ); }

   // [187, 16]
   void vlanMembershipInterfaceConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 12, 187, 16, 16, value ); }
   U16 vlanMembershipInterfaceConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 12, 187, 16 ) ); }
   bool isVlanMembershipInterfaceConfigValid() const { return fieldValid( 12 ); }
   U16 vlanMembershipInterfaceConfigLen() const { return fieldLen( 12 ); }
   U16 vlanMembershipInterfaceConfigOffset() const { return fieldStart( 12 ); }

   // [203, 17]
   void lifStatisticsObjectIdConfigIs( U32 value ) { fieldAtIs( Impl::traced(), 13, 203, 17, 32, value ); }
   U32 lifStatisticsObjectIdConfig() const { return static_cast< U32 >( fieldAt( Impl::traced(), 13, 203, 17 ) ); }
   bool isLifStatisticsObjectIdConfigValid() const { return fieldValid( 13 ); }
   U16 lifStatisticsObjectIdConfigLen() const { return fieldLen( 13 ); }
   U16 lifStatisticsObjectIdConfigOffset() const { return fieldStart( 13 ); }

   // [220, 15]
   void lifStatisticsObjectCommandConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 14, 220, 15, 16, value ); }
   U16 lifStatisticsObjectCommandConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 14, 220, 15 ) ); }
   bool isLifStatisticsObjectCommandConfigValid() const { return fieldValid( 14 ); }
   U16 lifStatisticsObjectCommandConfigLen() const { return fieldLen( 14 ); }
   U16 lifStatisticsObjectCommandConfigOffset() const { return fieldStart( 14 ); }

   // [235, 19]
   void encapDestinationConfigIs( U32 value ) { fieldAtIs( Impl::traced(), 15, 235, 19, 32, value ); }
   U32 encapDestinationConfig() const { return static_cast< U32 >( fieldAt( Impl::traced(), 15, 235, 19 ) ); }
   bool isEncapDestinationConfigValid() const { return fieldValid( 15 ); }
   U16 encapDestinationConfigLen() const { return fieldLen( 15 ); }
   U16 encapDestinationConfigOffset() const { return fieldStart( 15 ); }

   // [254, 13]
   void egressLastLayerConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 16, 254, 13, 16, value ); }
   U16 egressLastLayerConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 16, 254, 13 ) ); }
   bool isEgressLastLayerConfigValid() const { return fieldValid( 16 ); }
   U16 egressLastLayerConfigLen() const { return fieldLen( 16 ); }
   U16 egressLastLayerConfigOffset() const { return fieldStart( 16 ); }
};

class EtppcEnc1Arr0FormatCfg::WithStorage : public EtppcEnc1Arr0FormatCfg {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EtppcEnc1Arr0FormatCfg( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[36] = {};
};

// Memory.
class EtppcEncapsulation2ContextSelectionCam : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   EtppcEncapsulation2ContextSelectionCam( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isEtppcEncapsulation2ContextSelectionCam( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U64 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U64 >( chip, variant ); }
   virtual U64 allFieldsMask() const;
   U64 getAllFields() const { return allFields< U64 >(); }

   // [0, 6] or absent
   void currentContextIs( U8 value ) { fieldInIs( Impl::traced(), 0, value ); }
   U8 currentContext() const { return static_cast< U8 >( fieldIn( Impl::traced(), 0 ) ); }
   bool isCurrentContextValid() const { return fieldValid( 0 ); }
   U16 currentContextLen() const { return fieldLen( 0 ); }
   U16 currentContextOffset() const { return fieldStart( 0 ); }

   // [6, 6] or absent
   void etpsTosEntryTypeIs( U8 value ) { fieldInIs( Impl::traced(), 1, value ); }
   U8 etpsTosEntryType() const { return static_cast< U8 >( fieldIn( Impl::traced(), 1 ) ); }
   bool isEtpsTosEntryTypeValid() const { return fieldValid( 1 ); }
   U16 etpsTosEntryTypeLen() const { return fieldLen( 1 ); }
   U16 etpsTosEntryTypeOffset() const { return fieldStart( 1 ); }

   // [12, 6] or absent
   void etpsSecondEntryTypeIs( U8 value ) { fieldInIs( Impl::traced(), 2, value ); }
   U8 etpsSecondEntryType() const { return static_cast< U8 >( fieldIn( Impl::traced(), 2 ) ); }
   bool isEtpsSecondEntryTypeValid() const { return fieldValid( 2 ); }
   U16 etpsSecondEntryTypeLen() const { return fieldLen( 2 ); }
   U16 etpsSecondEntryTypeOffset() const { return fieldStart( 2 ); }

   // [18, 2]
   void aceValueIs( U8 value ) { fieldAtIs( Impl::traced(), 3, 18, 2, 8, value ); }
   U8 aceValue() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 18, 2 ) ); }
   bool isAceValueValid() const { return fieldValid( 3 ); }
   U16 aceValueLen() const { return fieldLen( 3 ); }
   U16 aceValueOffset() const { return fieldStart( 3 ); }

   // [20, 4]
   void pemCsVarIs( U8 value ) { fieldAtIs( Impl::traced(), 4, 20, 4, 8, value ); }
   U8 pemCsVar() const { return static_cast< U8 >( fieldAt( Impl::traced(), 4, 20, 4 ) ); }
   bool isPemCsVarValid() const { return fieldValid( 4 ); }
   U16 pemCsVarLen() const { return fieldLen( 4 ); }
   U16 pemCsVarOffset() const { return fieldStart( 4 ); }

   // [24, 2]
   void encapsulation2ContextPortProfileIs( U8 value ) { fieldAtIs( Impl::traced(), 5, 24, 2, 8, value ); }
   U8 encapsulation2ContextPortProfile() const { return static_cast< U8 >( fieldAt( Impl::traced(), 5, 24, 2 ) ); }
   bool isEncapsulation2ContextPortProfileValid() const { return fieldValid( 5 ); }
   U16 encapsulation2ContextPortProfileLen() const { return fieldLen( 5 ); }
   U16 encapsulation2ContextPortProfileOffset() const { return fieldStart( 5 ); }

   // [26, 6] or absent
   void currentContextMaskIs( U8 value ) { fieldInIs( Impl::traced(), 6, value ); }
   U8 currentContextMask() const { return static_cast< U8 >( fieldIn( Impl::traced(), 6 ) ); }
   bool isCurrentContextMaskValid() const { return fieldValid( 6 ); }
   U16 currentContextMaskLen() const { return fieldLen( 6 ); }
   U16 currentContextMaskOffset() const { return fieldStart( 6 ); }

   // [32, 6] or absent
   void etpsTosEntryTypeMaskIs( U8 value ) { fieldInIs( Impl::traced(), 7, value ); }
   U8 etpsTosEntryTypeMask() const { return static_cast< U8 >( fieldIn( Impl::traced(), 7 ) ); }
   bool isEtpsTosEntryTypeMaskValid() const { return fieldValid( 7 ); }
   U16 etpsTosEntryTypeMaskLen() const { return fieldLen( 7 ); }
   U16 etpsTosEntryTypeMaskOffset() const { return fieldStart( 7 ); }

   // [38, 6] or absent
   void etpsSecondEntryTypeMaskIs( U8 value ) { fieldInIs( Impl::traced(), 8, value ); }
   U8 etpsSecondEntryTypeMask() const { return static_cast< U8 >( fieldIn( Impl::traced(), 8 ) ); }
   bool isEtpsSecondEntryTypeMaskValid() const { return fieldValid( 8 ); }
   U16 etpsSecondEntryTypeMaskLen() const { return fieldLen( 8 ); }
   U16 etpsSecondEntryTypeMaskOffset() const { return fieldStart( 8 ); }

   // [44, 2]
   void aceValueMaskIs( U8 value ) { fieldAtIs( Impl::traced(), 9, 44, 2, 8, value ); }
   U8 aceValueMask() const { return static_cast< U8 >( fieldAt( Impl::traced(), 9, 44, 2 ) ); }
   bool isAceValueMaskValid() const { return fieldValid( 9 ); }
   U16 aceValueMaskLen() const { return fieldLen( 9 ); }
   U16 aceValueMaskOffset() const { return fieldStart( 9 ); }

   // [46, 4]
   void pemCsVarMaskIs( U8 value ) { fieldAtIs( Impl::traced(), 10, 46, 4, 8, value ); }
   U8 pemCsVarMask() const { return static_cast< U8 >( fieldAt( Impl::traced(), 10, 46, 4 ) ); }
   bool isPemCsVarMaskValid() const { return fieldValid( 10 ); }
   U16 pemCsVarMaskLen() const { return fieldLen( 10 ); }
   U16 pemCsVarMaskOffset() const { return fieldStart( 10 ); }

   // [50, 2]
   void encapsulation2ContextPortProfileMaskIs( U8 value ) { fieldAtIs( Impl::traced(), 11, 50, 2, 8, value ); }
   U8 encapsulation2ContextPortProfileMask() const { return static_cast< U8 >( fieldAt( Impl::traced(), 11, 50, 2 ) ); }
   bool isEncapsulation2ContextPortProfileMaskValid() const { return fieldValid( 11 ); }
   U16 encapsulation2ContextPortProfileMaskLen() const { return fieldLen( 11 ); }
   U16 encapsulation2ContextPortProfileMaskOffset() const { return fieldStart( 11 ); }

   // [52, 7]
   void programIs( U8 value ) { fieldAtIs( Impl::traced(), 12, 52, 7, 8, value ); }
   U8 program() const { return static_cast< U8 >( fieldAt( Impl::traced(), 12, 52, 7 ) ); }
   bool isProgramValid() const { return fieldValid( 12 ); }
   U16 programLen() const { return fieldLen( 12 ); }
   U16 programOffset() const { return fieldStart( 12 ); }

   // [59, 1]
   void validIs( U8 value ) { fieldAtIs( Impl::traced(), 13, 59, 1, 8, value ); }
   U8 valid() const { return static_cast< U8 >( fieldAt( Impl::traced(), 13, 59, 1 ) ); }
   bool isValidValid() const { return fieldValid( 13 ); }
   U16 validLen() const { return fieldLen( 13 ); }
   U16 validOffset() const { return fieldStart( 13 ); }

   // absent or [0, 6]
   void currentContextProfileIs( U8 value ) { fieldInIs( Impl::traced(), 14, value ); }
   U8 currentContextProfile() const { return static_cast< U8 >( fieldIn( Impl::traced(), 14 ) ); }
   bool isCurrentContextProfileValid() const { return fieldValid( 14 ); }
   U16 currentContextProfileLen() const { return fieldLen( 14 ); }
   U16 currentContextProfileOffset() const { return fieldStart( 14 ); }

   // absent or [6, 6]
   void etpsTosEntryTypeProfileIs( U8 value ) { fieldInIs( Impl::traced(), 15, value ); }
   U8 etpsTosEntryTypeProfile() const { return static_cast< U8 >( fieldIn( Impl::traced(), 15 ) ); }
   bool isEtpsTosEntryTypeProfileValid() const { return fieldValid( 15 ); }
   U16 etpsTosEntryTypeProfileLen() const { return fieldLen( 15 ); }
   U16 etpsTosEntryTypeProfileOffset() const { return fieldStart( 15 ); }

   // absent or [12, 6]
   void etpsSecondEntryTypeProfileIs( U8 value ) { fieldInIs( Impl::traced(), 16, value ); }
   U8 etpsSecondEntryTypeProfile() const { return static_cast< U8 >( fieldIn( Impl::traced(), 16 ) ); }
   bool isEtpsSecondEntryTypeProfileValid() const { return fieldValid( 16 ); }
   U16 etpsSecondEntryTypeProfileLen() const { return fieldLen( 16 ); }
   U16 etpsSecondEntryTypeProfileOffset() const { return fieldStart( 16 ); }

   // absent or [26, 6]
   void currentContextProfileMaskIs( U8 value ) { fieldInIs( Impl::traced(), 17, value ); }
   U8 currentContextProfileMask() const { return static_cast< U8 >( fieldIn( Impl::traced(), 17 ) ); }
   bool isCurrentContextProfileMaskValid() const { return fieldValid( 17 ); }
   U16 currentContextProfileMaskLen() const { return fieldLen( 17 ); }
   U16 currentContextProfileMaskOffset() const { return fieldStart( 17 ); }

   // absent or [32, 6]
   void etpsTosEntryTypeProfileMaskIs( U8 value ) { fieldInIs( Impl::traced(), 18, value ); }
   U8 etpsTosEntryTypeProfileMask() const { return static_cast< U8 >( fieldIn( Impl::traced(), 18 ) ); }
   bool isEtpsTosEntryTypeProfileMaskValid() const { return fieldValid( 18 ); }
   U16 etpsTosEntryTypeProfileMaskLen() const { return fieldLen( 18 ); }
   U16 etpsTosEntryTypeProfileMaskOffset() const { return fieldStart( 18 ); }

   // absent or [38, 6]
   void etpsSecondEntryTypeProfileMaskIs( U8 value ) { fieldInIs( Impl::traced(), 19, value ); }
   U8 etpsSecondEntryTypeProfileMask() const { return static_cast< U8 >( fieldIn( Impl::traced(), 19 ) ); }
   bool isEtpsSecondEntryTypeProfileMaskValid() const { return fieldValid( 19 ); }
   U16 etpsSecondEntryTypeProfileMaskLen() const { return fieldLen( 19 ); }
   U16 etpsSecondEntryTypeProfileMaskOffset() const { return fieldStart( 19 ); }
};

class EtppcEncapsulation2ContextSelectionCam::WithStorage : public EtppcEncapsulation2ContextSelectionCam {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : EtppcEncapsulation2ContextSelectionCam( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[8] = {};
};

// Memory, variants 0 to 3.
class FfcInstruction : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   FfcInstruction( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {
      handleBuf( chip, buf, len, bufferHoldsEntry, variant );
   }
   void handleBuf( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant ) {
      metaInfo.handleBuf( chip, buf, len, bufferHoldsEntry, variant );
   }
   static bool isFfcInstruction( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw1024 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw1024 >( chip, variant ); }
   virtual Raw1024 allFieldsMask() const;
   Raw1024 getAllFields() const { return allFields< Raw1024 >(); }

   // [0, 8]
   void ffcKeyOffsetIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 8, 8, value ); }
   U8 ffcKeyOffset() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 8 ) ); }
   bool isFfcKeyOffsetValid() const { return fieldValid( 0 ); }
   U16 ffcKeyOffsetLen() const { return fieldLen( 0 ); }
   U16 ffcKeyOffsetOffset() const { return fieldStart( 0 ); }

   // [8, 5]
   void ffcFieldSizeIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 8, 5, 8, value ); }
   U8 ffcFieldSize() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 8, 5 ) ); }
   bool isFfcFieldSizeValid() const { return fieldValid( 1 ); }
   U16 ffcFieldSizeLen() const { return fieldLen( 1 ); }
   U16 ffcFieldSizeOffset() const { return fieldStart( 1 ); }

   // [13, 11] or [13, 5] or [13, 12]
   void ffcFieldOffsetIs( U16 value ) { fieldInIs( Impl::traced(), 2, value ); }
   U16 ffcFieldOffset() const { return static_cast< U16 >( fieldIn( Impl::traced(), 2 ) ); }
   bool isFfcFieldOffsetValid() const { return fieldValid( 2 ); }
   U16 ffcFieldOffsetLen() const { return fieldLen( 2 ); }
   U16 ffcFieldOffsetOffset() const { return fieldStart( 2 ); }

   // [24, 3] or absent
   void ffcIndexIs( U8 value ) { fieldInIs( Impl::traced(), 3, value ); }
   U8 ffcIndex() const { return static_cast< U8 >( fieldIn( Impl::traced(), 3 ) ); }
   bool isFfcIndexValid() const { return fieldValid( 3 ); }
   U16 ffcIndexLen() const { return fieldLen( 3 ); }
   U16 ffcIndexOffset() const { return fieldStart( 3 ); }

   // Fixed by the format: [27, 2] or [25, 4]
   U8 resultType() const { return static_cast< U8 >( fieldIn( Impl::traced(), 4 ) ); }
   bool isResultTypeValid() const { return fieldValid( 4 ); }
   U16 resultTypeLen() const { return fieldLen( 4 ); }
   U16 resultTypeOffset() const { return fieldStart( 4 ); }

 protected:
   // Without the tag: the buffer does not exist yet.
   FfcInstruction( ChipType chip, U8 * buf, U16 len, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, false, variant, 0 ) {}
};

class FfcInstruction::WithStorage : public FfcInstruction {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : FfcInstruction( chip, storage_, sizeof storage_, variant ) {
      if ( bufferHoldsEntry ) {
         handleBuf( chip, storage_, sizeof storage_, true, variant );
      }
   }

 private:
   alignas( 8 ) U8 storage_[80] = {};
};

// Memory.
class FlpKapsStrengthMapping : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   FlpKapsStrengthMapping( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isFlpKapsStrengthMapping( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U64 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U64 >( chip, variant ); }
   virtual U64 allFieldsMask() const;
   U64 getAllFields() const { return allFields< U64 >(); }

   // [0, 3]
   void strengthDefault0Is( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 3, 8, value ); }
   U8 strengthDefault0() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 3 ) ); }
   bool isStrengthDefault0Valid() const { return fieldValid( 0 ); }
   U16 strengthDefault0Len() const { return fieldLen( 0 ); }
   U16 strengthDefault0Offset() const { return fieldStart( 0 ); }

   // [3, 3]
   void strengthDefault1Is( U8 value ) { fieldAtIs( Impl::traced(), 1, 3, 3, 8, value ); }
   U8 strengthDefault1() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 3, 3 ) ); }
   bool isStrengthDefault1Valid() const { return fieldValid( 1 ); }
   U16 strengthDefault1Len() const { return fieldLen( 1 ); }
   U16 strengthDefault1Offset() const { return fieldStart( 1 ); }

   // [6, 2] or absent
   void reservedIs( U8 value ) { fieldInIs( Impl::traced(), 2, value ); }
   U8 reserved() const { return static_cast< U8 >( fieldIn( Impl::traced(), 2 ) ); }
   bool isReservedValid() const { return fieldValid( 2 ); }
   U16 reservedLen() const { return fieldLen( 2 ); }
   U16 reservedOffset() const { return fieldStart( 2 ); }

   // absent or [0, 48]
   void strengthVecIs( U64 const & value ) { fieldIs( 3, value ); }
   U64 strengthVec() const { return fieldValue( 3 ); }
   bool isStrengthVecValid() const { return fieldValid( 3 ); }
   U16 strengthVecLen() const { return fieldLen( 3 ); }
   U16 strengthVecOffset() const { return fieldStart( 3 ); }
};

class FlpKapsStrengthMapping::WithStorage : public FlpKapsStrengthMapping {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : FlpKapsStrengthMapping( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[8] = {};
};

// Memory.
class FlpRpfFormatConfiguration : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   FlpRpfFormatConfiguration( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isFlpRpfFormatConfiguration( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw128 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw128 >( chip, variant ); }
   virtual Raw128 allFieldsMask() const;
   Raw128 getAllFields() const { return allFields< Raw128 >(); }

   // [0, 12]
   void typeConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 0, 0, 12, 16, value ); }
   U16 typeConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 0, 0, 12 ) ); }
   bool isTypeConfigValid() const { return fieldValid( 0 ); }
   U16 typeConfigLen() const { return fieldLen( 0 ); }
   U16 typeConfigOffset() const { return fieldStart( 0 ); }

   // [12, 15]
   void destinationConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 1, 12, 15, 16, value ); }
   U16 destinationConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 1, 12, 15 ) ); }
   bool isDestinationConfigValid() const { return fieldValid( 1 ); }
   U16 destinationConfigLen() const { return fieldLen( 1 ); }
   U16 destinationConfigOffset() const { return fieldStart( 1 ); }

   // [27, 15]
   void outlif0ConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 2, 27, 15, 16, value ); }
   U16 outlif0Config() const { return static_cast< U16 >( fieldAt( Impl::traced(), 2, 27, 15 ) ); }
   bool isOutlif0ConfigValid() const { return fieldValid( 2 ); }
   U16 outlif0ConfigLen() const { return fieldLen( 2 ); }
   U16 outlif0ConfigOffset() const { return fieldStart( 2 ); }

   // [42, 15]
   void statObjIdConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 3, 42, 15, 16, value ); }
   U16 statObjIdConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 3, 42, 15 ) ); }
   bool isStatObjIdConfigValid() const { return fieldValid( 3 ); }
   U16 statObjIdConfigLen() const { return fieldLen( 3 ); }
   U16 statObjIdConfigOffset() const { return fieldStart( 3 ); }

   // [57, 13]
   void statObjCmdConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 4, 57, 13, 16, value ); }
   U16 statObjCmdConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 4, 57, 13 ) ); }
   bool isStatObjCmdConfigValid() const { return fieldValid( 4 ); }
   U16 statObjCmdConfigLen() const { return fieldLen( 4 ); }
   U16 statObjCmdConfigOffset() const { return fieldStart( 4 ); }

   // [70, 14]
   void opaqueFieldConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 5, 70, 14, 16, value ); }
   U16 opaqueFieldConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 5, 70, 14 ) ); }
   bool isOpaqueFieldConfigValid() const { return fieldValid( 5 ); }
   U16 opaqueFieldConfigLen() const { return fieldLen( 5 ); }
   U16 opaqueFieldConfigOffset() const { return fieldStart( 5 ); }

   // [84, 11]
   void saDropConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 6, 84, 11, 16, value ); }
   U16 saDropConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 6, 84, 11 ) ); }
   bool isSaDropConfigValid() const { return fieldValid( 6 ); }
   U16 saDropConfigLen() const { return fieldLen( 6 ); }
   U16 saDropConfigOffset() const { return fieldStart( 6 ); }

   // [95, 11]
   void defaultConfigIs( U16 value ) { fieldAtIs( Impl::traced(), 7, 95, 11, 16, value ); }
   U16 defaultConfig() const { return static_cast< U16 >( fieldAt( Impl::traced(), 7, 95, 11 ) ); }
   bool isDefaultConfigValid() const { return fieldValid( 7 ); }
   U16 defaultConfigLen() const { return fieldLen( 7 ); }
   U16 defaultConfigOffset() const { return fieldStart( 7 ); }
};

class FlpRpfFormatConfiguration::WithStorage : public FlpRpfFormatConfiguration {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : FlpRpfFormatConfiguration( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[16] = {};
};

// Memory.
class FlpaInitContextEnablers : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   FlpaInitContextEnablers( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isFlpaInitContextEnablers( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw128 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw128 >( chip, variant ); }
   virtual Raw128 allFieldsMask() const;
   Raw128 getAllFields() const { return allFields< Raw128 >(); }

   // [0, 1]
   void learningKeyConstructionEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 1, 8, value ); }
   U8 learningKeyConstructionEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 1 ) ); }
   bool isLearningKeyConstructionEnableValid() const { return fieldValid( 0 ); }
   U16 learningKeyConstructionEnableLen() const { return fieldLen( 0 ); }
   U16 learningKeyConstructionEnableOffset() const { return fieldStart( 0 ); }

   // [1, 1]
   void learningFixedKeyEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 1, 1, 8, value ); }
   U8 learningFixedKeyEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 1, 1 ) ); }
   bool isLearningFixedKeyEnableValid() const { return fieldValid( 1 ); }
   U16 learningFixedKeyEnableLen() const { return fieldLen( 1 ); }
   U16 learningFixedKeyEnableOffset() const { return fieldStart( 1 ); }

   // [2, 1]
   void mplsLayerLoadBalancingKeyCalculationsEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 2, 1, 8, value ); }
   U8 mplsLayerLoadBalancingKeyCalculationsEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 2, 1 ) ); }
   bool isMplsLayerLoadBalancingKeyCalculationsEnableValid() const { return fieldValid( 2 ); }
   U16 mplsLayerLoadBalancingKeyCalculationsEnableLen() const { return fieldLen( 2 ); }
   U16 mplsLayerLoadBalancingKeyCalculationsEnableOffset() const { return fieldStart( 2 ); }

   // [3, 1]
   void loadBalancingKeyConstructionEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 3, 3, 1, 8, value ); }
   U8 loadBalancingKeyConstructionEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 3, 1 ) ); }
   bool isLoadBalancingKeyConstructionEnableValid() const { return fieldValid( 3 ); }
   U16 loadBalancingKeyConstructionEnableLen() const { return fieldLen( 3 ); }
   U16 loadBalancingKeyConstructionEnableOffset() const { return fieldStart( 3 ); }

   // [4, 1]
   void ethernetSaMcTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 4, 4, 1, 8, value ); }
   U8 ethernetSaMcTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 4, 4, 1 ) ); }
   bool isEthernetSaMcTrapEnableValid() const { return fieldValid( 4 ); }
   U16 ethernetSaMcTrapEnableLen() const { return fieldLen( 4 ); }
   U16 ethernetSaMcTrapEnableOffset() const { return fieldStart( 4 ); }

   // [5, 1]
   void ethernetSaEqualDaTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 5, 5, 1, 8, value ); }
   U8 ethernetSaEqualDaTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 5, 5, 1 ) ); }
   bool isEthernetSaEqualDaTrapEnableValid() const { return fieldValid( 5 ); }
   U16 ethernetSaEqualDaTrapEnableLen() const { return fieldLen( 5 ); }
   U16 ethernetSaEqualDaTrapEnableOffset() const { return fieldStart( 5 ); }

   // [6, 1]
   void ipv4VersionErrorTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 6, 6, 1, 8, value ); }
   U8 ipv4VersionErrorTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 6, 6, 1 ) ); }
   bool isIpv4VersionErrorTrapEnableValid() const { return fieldValid( 6 ); }
   U16 ipv4VersionErrorTrapEnableLen() const { return fieldLen( 6 ); }
   U16 ipv4VersionErrorTrapEnableOffset() const { return fieldStart( 6 ); }

   // [7, 1]
   void ipv4ChecksumErrorTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 7, 7, 1, 8, value ); }
   U8 ipv4ChecksumErrorTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 7, 7, 1 ) ); }
   bool isIpv4ChecksumErrorTrapEnableValid() const { return fieldValid( 7 ); }
   U16 ipv4ChecksumErrorTrapEnableLen() const { return fieldLen( 7 ); }
   U16 ipv4ChecksumErrorTrapEnableOffset() const { return fieldStart( 7 ); }

   // [8, 1]
   void ipv4HasOptionsTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 8, 8, 1, 8, value ); }
   U8 ipv4HasOptionsTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 8, 8, 1 ) ); }
   bool isIpv4HasOptionsTrapEnableValid() const { return fieldValid( 8 ); }
   U16 ipv4HasOptionsTrapEnableLen() const { return fieldLen( 8 ); }
   U16 ipv4HasOptionsTrapEnableOffset() const { return fieldStart( 8 ); }

   // [9, 1]
   void ipv4SipEqualDipTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 9, 9, 1, 8, value ); }
   U8 ipv4SipEqualDipTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 9, 9, 1 ) ); }
   bool isIpv4SipEqualDipTrapEnableValid() const { return fieldValid( 9 ); }
   U16 ipv4SipEqualDipTrapEnableLen() const { return fieldLen( 9 ); }
   U16 ipv4SipEqualDipTrapEnableOffset() const { return fieldStart( 9 ); }

   // [10, 1]
   void ipv4DipZeroTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 10, 10, 1, 8, value ); }
   U8 ipv4DipZeroTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 10, 10, 1 ) ); }
   bool isIpv4DipZeroTrapEnableValid() const { return fieldValid( 10 ); }
   U16 ipv4DipZeroTrapEnableLen() const { return fieldLen( 10 ); }
   U16 ipv4DipZeroTrapEnableOffset() const { return fieldStart( 10 ); }

   // [11, 1]
   void ipv4HeaderLengthTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 11, 11, 1, 8, value ); }
   U8 ipv4HeaderLengthTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 11, 11, 1 ) ); }
   bool isIpv4HeaderLengthTrapEnableValid() const { return fieldValid( 11 ); }
   U16 ipv4HeaderLengthTrapEnableLen() const { return fieldLen( 11 ); }
   U16 ipv4HeaderLengthTrapEnableOffset() const { return fieldStart( 11 ); }

   // [12, 1]
   void ipv4SipIsMcTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 12, 12, 1, 8, value ); }
   U8 ipv4SipIsMcTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 12, 12, 1 ) ); }
   bool isIpv4SipIsMcTrapEnableValid() const { return fieldValid( 12 ); }
   U16 ipv4SipIsMcTrapEnableLen() const { return fieldLen( 12 ); }
   U16 ipv4SipIsMcTrapEnableOffset() const { return fieldStart( 12 ); }

   // [13, 1]
   void ipv6VersionErrorTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 13, 13, 1, 8, value ); }
   U8 ipv6VersionErrorTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 13, 13, 1 ) ); }
   bool isIpv6VersionErrorTrapEnableValid() const { return fieldValid( 13 ); }
   U16 ipv6VersionErrorTrapEnableLen() const { return fieldLen( 13 ); }
   U16 ipv6VersionErrorTrapEnableOffset() const { return fieldStart( 13 ); }

   // [14, 1]
   void ipv6UnspecifiedDestinationTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 14, 14, 1, 8, value ); }
   U8 ipv6UnspecifiedDestinationTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 14, 14, 1 ) ); }
   bool isIpv6UnspecifiedDestinationTrapEnableValid() const { return fieldValid( 14 ); }
   U16 ipv6UnspecifiedDestinationTrapEnableLen() const { return fieldLen( 14 ); }
   U16 ipv6UnspecifiedDestinationTrapEnableOffset() const { return fieldStart( 14 ); }

   // [15, 1]
   void ipv6LoopbackAddressTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 15, 15, 1, 8, value ); }
   U8 ipv6LoopbackAddressTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 15, 15, 1 ) ); }
   bool isIpv6LoopbackAddressTrapEnableValid() const { return fieldValid( 15 ); }
   U16 ipv6LoopbackAddressTrapEnableLen() const { return fieldLen( 15 ); }
   U16 ipv6LoopbackAddressTrapEnableOffset() const { return fieldStart( 15 ); }

   // [16, 1]
   void ipv6MulticastSourceTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 16, 16, 1, 8, value ); }
   U8 ipv6MulticastSourceTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 16, 16, 1 ) ); }
   bool isIpv6MulticastSourceTrapEnableValid() const { return fieldValid( 16 ); }
   U16 ipv6MulticastSourceTrapEnableLen() const { return fieldLen( 16 ); }
   U16 ipv6MulticastSourceTrapEnableOffset() const { return fieldStart( 16 ); }

   // [17, 1]
   void ipv6NextHeaderNullTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 17, 17, 1, 8, value ); }
   U8 ipv6NextHeaderNullTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 17, 17, 1 ) ); }
   bool isIpv6NextHeaderNullTrapEnableValid() const { return fieldValid( 17 ); }
   U16 ipv6NextHeaderNullTrapEnableLen() const { return fieldLen( 17 ); }
   U16 ipv6NextHeaderNullTrapEnableOffset() const { return fieldStart( 17 ); }

   // [18, 1]
   void ipv6UnspecifiedSourceTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 18, 18, 1, 8, value ); }
   U8 ipv6UnspecifiedSourceTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 18, 18, 1 ) ); }
   bool isIpv6UnspecifiedSourceTrapEnableValid() const { return fieldValid( 18 ); }
   U16 ipv6UnspecifiedSourceTrapEnableLen() const { return fieldLen( 18 ); }
   U16 ipv6UnspecifiedSourceTrapEnableOffset() const { return fieldStart( 18 ); }

   // [19, 1]
   void ipv6LocalLinkDestinationTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 19, 19, 1, 8, value ); }
   U8 ipv6LocalLinkDestinationTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 19, 19, 1 ) ); }
   bool isIpv6LocalLinkDestinationTrapEnableValid() const { return fieldValid( 19 ); }
   U16 ipv6LocalLinkDestinationTrapEnableLen() const { return fieldLen( 19 ); }
   U16 ipv6LocalLinkDestinationTrapEnableOffset() const { return fieldStart( 19 ); }

   // [20, 1]
   void ipv6LocalSiteDestinationTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 20, 20, 1, 8, value ); }
   U8 ipv6LocalSiteDestinationTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 20, 20, 1 ) ); }
   bool isIpv6LocalSiteDestinationTrapEnableValid() const { return fieldValid( 20 ); }
   U16 ipv6LocalSiteDestinationTrapEnableLen() const { return fieldLen( 20 ); }
   U16 ipv6LocalSiteDestinationTrapEnableOffset() const { return fieldStart( 20 ); }

   // [21, 1]
   void ipv6LocalLinkSourceTrapDestinationEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 21, 21, 1, 8, value ); }
   U8 ipv6LocalLinkSourceTrapDestinationEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 21, 21, 1 ) ); }
   bool isIpv6LocalLinkSourceTrapDestinationEnableValid() const { return fieldValid( 21 ); }
   U16 ipv6LocalLinkSourceTrapDestinationEnableLen() const { return fieldLen( 21 ); }
   U16 ipv6LocalLinkSourceTrapDestinationEnableOffset() const { return fieldStart( 21 ); }

   // [22, 1]
   void ipv6LocalSiteSourceTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 22, 22, 1, 8, value ); }
   U8 ipv6LocalSiteSourceTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 22, 22, 1 ) ); }
   bool isIpv6LocalSiteSourceTrapEnableValid() const { return fieldValid( 22 ); }
   U16 ipv6LocalSiteSourceTrapEnableLen() const { return fieldLen( 22 ); }
   U16 ipv6LocalSiteSourceTrapEnableOffset() const { return fieldStart( 22 ); }

   // [23, 1]
   void ipv6Ipv4CompatibleDestinationTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 23, 23, 1, 8, value ); }
   U8 ipv6Ipv4CompatibleDestinationTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 23, 23, 1 ) ); }
   bool isIpv6Ipv4CompatibleDestinationTrapEnableValid() const { return fieldValid( 23 ); }
   U16 ipv6Ipv4CompatibleDestinationTrapEnableLen() const { return fieldLen( 23 ); }
   U16 ipv6Ipv4CompatibleDestinationTrapEnableOffset() const { return fieldStart( 23 ); }

   // [24, 1]
   void ipv6Ipv4MappedDestinationTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 24, 24, 1, 8, value ); }
   U8 ipv6Ipv4MappedDestinationTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 24, 24, 1 ) ); }
   bool isIpv6Ipv4MappedDestinationTrapEnableValid() const { return fieldValid( 24 ); }
   U16 ipv6Ipv4MappedDestinationTrapEnableLen() const { return fieldLen( 24 ); }
   U16 ipv6Ipv4MappedDestinationTrapEnableOffset() const { return fieldStart( 24 ); }

   // [25, 1]
   void ipv6MulticastDestinationTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 25, 25, 1, 8, value ); }
   U8 ipv6MulticastDestinationTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 25, 25, 1 ) ); }
   bool isIpv6MulticastDestinationTrapEnableValid() const { return fieldValid( 25 ); }
   U16 ipv6MulticastDestinationTrapEnableLen() const { return fieldLen( 25 ); }
   U16 ipv6MulticastDestinationTrapEnableOffset() const { return fieldStart( 25 ); }

   // [26, 1]
   void tcpSnFlagsZeroTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 26, 26, 1, 8, value ); }
   U8 tcpSnFlagsZeroTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 26, 26, 1 ) ); }
   bool isTcpSnFlagsZeroTrapEnableValid() const { return fieldValid( 26 ); }
   U16 tcpSnFlagsZeroTrapEnableLen() const { return fieldLen( 26 ); }
   U16 tcpSnFlagsZeroTrapEnableOffset() const { return fieldStart( 26 ); }

   // [27, 1]
   void tcpSnZeroFlagsSetTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 27, 27, 1, 8, value ); }
   U8 tcpSnZeroFlagsSetTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 27, 27, 1 ) ); }
   bool isTcpSnZeroFlagsSetTrapEnableValid() const { return fieldValid( 27 ); }
   U16 tcpSnZeroFlagsSetTrapEnableLen() const { return fieldLen( 27 ); }
   U16 tcpSnZeroFlagsSetTrapEnableOffset() const { return fieldStart( 27 ); }

   // [28, 1]
   void tcpSynFinTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 28, 28, 1, 8, value ); }
   U8 tcpSynFinTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 28, 28, 1 ) ); }
   bool isTcpSynFinTrapEnableValid() const { return fieldValid( 28 ); }
   U16 tcpSynFinTrapEnableLen() const { return fieldLen( 28 ); }
   U16 tcpSynFinTrapEnableOffset() const { return fieldStart( 28 ); }

   // [29, 1]
   void tcpEqualPortsTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 29, 29, 1, 8, value ); }
   U8 tcpEqualPortsTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 29, 29, 1 ) ); }
   bool isTcpEqualPortsTrapEnableValid() const { return fieldValid( 29 ); }
   U16 tcpEqualPortsTrapEnableLen() const { return fieldLen( 29 ); }
   U16 tcpEqualPortsTrapEnableOffset() const { return fieldStart( 29 ); }

   // [30, 1]
   void tcpFragmentIncompleteHeaderTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 30, 30, 1, 8, value ); }
   U8 tcpFragmentIncompleteHeaderTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 30, 30, 1 ) ); }
   bool isTcpFragmentIncompleteHeaderTrapEnableValid() const { return fieldValid( 30 ); }
   U16 tcpFragmentIncompleteHeaderTrapEnableLen() const { return fieldLen( 30 ); }
   U16 tcpFragmentIncompleteHeaderTrapEnableOffset() const { return fieldStart( 30 ); }

   // [31, 1]
   void tcpFragmentOffsetLt8TrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 31, 31, 1, 8, value ); }
   U8 tcpFragmentOffsetLt8TrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 31, 31, 1 ) ); }
   bool isTcpFragmentOffsetLt8TrapEnableValid() const { return fieldValid( 31 ); }
   U16 tcpFragmentOffsetLt8TrapEnableLen() const { return fieldLen( 31 ); }
   U16 tcpFragmentOffsetLt8TrapEnableOffset() const { return fieldStart( 31 ); }

   // [32, 1]
   void udpEqualPortsTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 32, 32, 1, 8, value ); }
   U8 udpEqualPortsTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 32, 32, 1 ) ); }
   bool isUdpEqualPortsTrapEnableValid() const { return fieldValid( 32 ); }
   U16 udpEqualPortsTrapEnableLen() const { return fieldLen( 32 ); }
   U16 udpEqualPortsTrapEnableOffset() const { return fieldStart( 32 ); }

   // [33, 1]
   void phbTcDpMappingEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 33, 33, 1, 8, value ); }
   U8 phbTcDpMappingEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 33, 33, 1 ) ); }
   bool isPhbTcDpMappingEnableValid() const { return fieldValid( 33 ); }
   U16 phbTcDpMappingEnableLen() const { return fieldLen( 33 ); }
   U16 phbTcDpMappingEnableOffset() const { return fieldStart( 33 ); }

   // [34, 1]
   void phbEcnMappingEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 34, 34, 1, 8, value ); }
   U8 phbEcnMappingEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 34, 34, 1 ) ); }
   bool isPhbEcnMappingEnableValid() const { return fieldValid( 34 ); }
   U16 phbEcnMappingEnableLen() const { return fieldLen( 34 ); }
   U16 phbEcnMappingEnableOffset() const { return fieldStart( 34 ); }

   // [35, 1]
   void dscpRemarkMappingEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 35, 35, 1, 8, value ); }
   U8 dscpRemarkMappingEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 35, 35, 1 ) ); }
   bool isDscpRemarkMappingEnableValid() const { return fieldValid( 35 ); }
   U16 dscpRemarkMappingEnableLen() const { return fieldLen( 35 ); }
   U16 dscpRemarkMappingEnableOffset() const { return fieldStart( 35 ); }

   // [36, 1]
   void esadiEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 36, 36, 1, 8, value ); }
   U8 esadiEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 36, 36, 1 ) ); }
   bool isEsadiEnableValid() const { return fieldValid( 36 ); }
   U16 esadiEnableLen() const { return fieldLen( 36 ); }
   U16 esadiEnableOffset() const { return fieldStart( 36 ); }

   // [37, 1]
   void ttlMappingEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 37, 37, 1, 8, value ); }
   U8 ttlMappingEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 37, 37, 1 ) ); }
   bool isTtlMappingEnableValid() const { return fieldValid( 37 ); }
   U16 ttlMappingEnableLen() const { return fieldLen( 37 ); }
   U16 ttlMappingEnableOffset() const { return fieldStart( 37 ); }

   // [38, 1]
   void ipv4TotalLengthTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 38, 38, 1, 8, value ); }
   U8 ipv4TotalLengthTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 38, 38, 1 ) ); }
   bool isIpv4TotalLengthTrapEnableValid() const { return fieldValid( 38 ); }
   U16 ipv4TotalLengthTrapEnableLen() const { return fieldLen( 38 ); }
   U16 ipv4TotalLengthTrapEnableOffset() const { return fieldStart( 38 ); }

   // [39, 1]
   void contextLearnAllowedEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 39, 39, 1, 8, value ); }
   U8 contextLearnAllowedEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 39, 39, 1 ) ); }
   bool isContextLearnAllowedEnableValid() const { return fieldValid( 39 ); }
   U16 contextLearnAllowedEnableLen() const { return fieldLen( 39 ); }
   U16 contextLearnAllowedEnableOffset() const { return fieldStart( 39 ); }

   // [40, 1]
   void fcoeFabricProvidedSecurityEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 40, 40, 1, 8, value ); }
   U8 fcoeFabricProvidedSecurityEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 40, 40, 1 ) ); }
   bool isFcoeFabricProvidedSecurityEnableValid() const { return fieldValid( 40 ); }
   U16 fcoeFabricProvidedSecurityEnableLen() const { return fieldLen( 40 ); }
   U16 fcoeFabricProvidedSecurityEnableOffset() const { return fieldStart( 40 ); }

   // [41, 1]
   void savedContextProfileEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 41, 41, 1, 8, value ); }
   U8 savedContextProfileEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 41, 41, 1 ) ); }
   bool isSavedContextProfileEnableValid() const { return fieldValid( 41 ); }
   U16 savedContextProfileEnableLen() const { return fieldLen( 41 ); }
   U16 savedContextProfileEnableOffset() const { return fieldStart( 41 ); }

   // [42, 6]
   void savedContextProfileValIs( U8 value ) { fieldAtIs( Impl::traced(), 42, 42, 6, 8, value ); }
   U8 savedContextProfileVal() const { return static_cast< U8 >( fieldAt( Impl::traced(), 42, 42, 6 ) ); }
   bool isSavedContextProfileValValid() const { return fieldValid( 42 ); }
   U16 savedContextProfileValLen() const { return fieldLen( 42 ); }
   U16 savedContextProfileValOffset() const { return fieldStart( 42 ); }

   // [48, 1]
   void identificationKeyEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 43, 48, 1, 8, value ); }
   U8 identificationKeyEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 43, 48, 1 ) ); }
   bool isIdentificationKeyEnableValid() const { return fieldValid( 43 ); }
   U16 identificationKeyEnableLen() const { return fieldLen( 43 ); }
   U16 identificationKeyEnableOffset() const { return fieldStart( 43 ); }

   // [49, 14] or absent
   void reservedIs( U16 value ) { fieldInIs( Impl::traced(), 44, value ); }
   U16 reserved() const { return static_cast< U16 >( fieldIn( Impl::traced(), 44 ) ); }
   bool isReservedValid() const { return fieldValid( 44 ); }
   U16 reservedLen() const { return fieldLen( 44 ); }
   U16 reservedOffset() const { return fieldStart( 44 ); }

   // absent or [49, 1]
   void ethernetSaEqualZeroTrapEnableIs( U8 value ) { fieldInIs( Impl::traced(), 45, value ); }
   U8 ethernetSaEqualZeroTrapEnable() const { return static_cast< U8 >( fieldIn( Impl::traced(), 45 ) ); }
   bool isEthernetSaEqualZeroTrapEnableValid() const { return fieldValid( 45 ); }
   U16 ethernetSaEqualZeroTrapEnableLen() const { return fieldLen( 45 ); }
   U16 ethernetSaEqualZeroTrapEnableOffset() const { return fieldStart( 45 ); }
};

class FlpaInitContextEnablers::WithStorage : public FlpaInitContextEnablers {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : FlpaInitContextEnablers( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[12] = {};
};

// Memory.
class FlpaResContextEnablers : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   FlpaResContextEnablers( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isFlpaResContextEnablers( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U64 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U64 >( chip, variant ); }
   virtual U64 allFieldsMask() const;
   U64 getAllFields() const { return allFields< U64 >(); }

   // [0, 1]
   void setUnknownAddressEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 1, 8, value ); }
   U8 setUnknownAddressEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 1 ) ); }
   bool isSetUnknownAddressEnableValid() const { return fieldValid( 0 ); }
   U16 setUnknownAddressEnableLen() const { return fieldLen( 0 ); }
   U16 setUnknownAddressEnableOffset() const { return fieldStart( 0 ); }

   // [1, 1]
   void doDefaultEthernetEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 1, 1, 8, value ); }
   U8 doDefaultEthernetEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 1, 1 ) ); }
   bool isDoDefaultEthernetEnableValid() const { return fieldValid( 1 ); }
   U16 doDefaultEthernetEnableLen() const { return fieldLen( 1 ); }
   U16 doDefaultEthernetEnableOffset() const { return fieldStart( 1 ); }

   // [2, 1]
   void compatibleMcBridgeFallbackEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 2, 1, 8, value ); }
   U8 compatibleMcBridgeFallbackEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 2, 1 ) ); }
   bool isCompatibleMcBridgeFallbackEnableValid() const { return fieldValid( 2 ); }
   U16 compatibleMcBridgeFallbackEnableLen() const { return fieldLen( 2 ); }
   U16 compatibleMcBridgeFallbackEnableOffset() const { return fieldStart( 2 ); }

   // [3, 1]
   void oamTcamIdentificationEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 3, 3, 1, 8, value ); }
   U8 oamTcamIdentificationEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 3, 1 ) ); }
   bool isOamTcamIdentificationEnableValid() const { return fieldValid( 3 ); }
   U16 oamTcamIdentificationEnableLen() const { return fieldLen( 3 ); }
   U16 oamTcamIdentificationEnableOffset() const { return fieldStart( 3 ); }

   // [4, 1]
   void ieee1588IdentificationEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 4, 4, 1, 8, value ); }
   U8 ieee1588IdentificationEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 4, 4, 1 ) ); }
   bool isIeee1588IdentificationEnableValid() const { return fieldValid( 4 ); }
   U16 ieee1588IdentificationEnableLen() const { return fieldLen( 4 ); }
   U16 ieee1588IdentificationEnableOffset() const { return fieldStart( 4 ); }

   // [5, 1]
   void ieee1588TcamIdentificationValIs( U8 value ) { fieldAtIs( Impl::traced(), 5, 5, 1, 8, value ); }
   U8 ieee1588TcamIdentificationVal() const { return static_cast< U8 >( fieldAt( Impl::traced(), 5, 5, 1 ) ); }
   bool isIeee1588TcamIdentificationValValid() const { return fieldValid( 5 ); }
   U16 ieee1588TcamIdentificationValLen() const { return fieldLen( 5 ); }
   U16 ieee1588TcamIdentificationValOffset() const { return fieldStart( 5 ); }

   // [6, 3]
   void notFoundSnpStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 6, 6, 3, 8, value ); }
   U8 notFoundSnpStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 6, 6, 3 ) ); }
   bool isNotFoundSnpStrengthValid() const { return fieldValid( 6 ); }
   U16 notFoundSnpStrengthLen() const { return fieldLen( 6 ); }
   U16 notFoundSnpStrengthOffset() const { return fieldStart( 6 ); }

   // [9, 4]
   void notFoundFwdStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 7, 9, 4, 8, value ); }
   U8 notFoundFwdStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 7, 9, 4 ) ); }
   bool isNotFoundFwdStrengthValid() const { return fieldValid( 7 ); }
   U16 notFoundFwdStrengthLen() const { return fieldLen( 7 ); }
   U16 notFoundFwdStrengthOffset() const { return fieldStart( 7 ); }

   // [13, 1]
   void fwdAdditionalInfoEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 8, 13, 1, 8, value ); }
   U8 fwdAdditionalInfoEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 8, 13, 1 ) ); }
   bool isFwdAdditionalInfoEnableValid() const { return fieldValid( 8 ); }
   U16 fwdAdditionalInfoEnableLen() const { return fieldLen( 8 ); }
   U16 fwdAdditionalInfoEnableOffset() const { return fieldStart( 8 ); }

   // [14, 4]
   void fwdAdditionalInfoValIs( U8 value ) { fieldAtIs( Impl::traced(), 9, 14, 4, 8, value ); }
   U8 fwdAdditionalInfoVal() const { return static_cast< U8 >( fieldAt( Impl::traced(), 9, 14, 4 ) ); }
   bool isFwdAdditionalInfoValValid() const { return fieldValid( 9 ); }
   U16 fwdAdditionalInfoValLen() const { return fieldLen( 9 ); }
   U16 fwdAdditionalInfoValOffset() const { return fieldStart( 9 ); }

   // [18, 1]
   void saProcedureEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 10, 18, 1, 8, value ); }
   U8 saProcedureEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 10, 18, 1 ) ); }
   bool isSaProcedureEnableValid() const { return fieldValid( 10 ); }
   U16 saProcedureEnableLen() const { return fieldLen( 10 ); }
   U16 saProcedureEnableOffset() const { return fieldStart( 10 ); }

   // [19, 1]
   void learnInfoResolutionEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 11, 19, 1, 8, value ); }
   U8 learnInfoResolutionEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 11, 19, 1 ) ); }
   bool isLearnInfoResolutionEnableValid() const { return fieldValid( 11 ); }
   U16 learnInfoResolutionEnableLen() const { return fieldLen( 11 ); }
   U16 learnInfoResolutionEnableOffset() const { return fieldStart( 11 ); }

   // [20, 1]
   void vlanEditPcpDeiMapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 12, 20, 1, 8, value ); }
   U8 vlanEditPcpDeiMapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 12, 20, 1 ) ); }
   bool isVlanEditPcpDeiMapEnableValid() const { return fieldValid( 12 ); }
   U16 vlanEditPcpDeiMapEnableLen() const { return fieldLen( 12 ); }
   U16 vlanEditPcpDeiMapEnableOffset() const { return fieldStart( 12 ); }

   // [21, 1]
   void ethernetOamIdentificationEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 13, 21, 1, 8, value ); }
   U8 ethernetOamIdentificationEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 13, 21, 1 ) ); }
   bool isEthernetOamIdentificationEnableValid() const { return fieldValid( 13 ); }
   U16 ethernetOamIdentificationEnableLen() const { return fieldLen( 13 ); }
   U16 ethernetOamIdentificationEnableOffset() const { return fieldStart( 13 ); }

   // [22, 1]
   void mplsTpOrBfdIdentificationEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 14, 22, 1, 8, value ); }
   U8 mplsTpOrBfdIdentificationEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 14, 22, 1 ) ); }
   bool isMplsTpOrBfdIdentificationEnableValid() const { return fieldValid( 14 ); }
   U16 mplsTpOrBfdIdentificationEnableLen() const { return fieldLen( 14 ); }
   U16 mplsTpOrBfdIdentificationEnableOffset() const { return fieldStart( 14 ); }

   // [23, 1]
   void multiHopBfdIdentificationEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 15, 23, 1, 8, value ); }
   U8 multiHopBfdIdentificationEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 15, 23, 1 ) ); }
   bool isMultiHopBfdIdentificationEnableValid() const { return fieldValid( 15 ); }
   U16 multiHopBfdIdentificationEnableLen() const { return fieldLen( 15 ); }
   U16 multiHopBfdIdentificationEnableOffset() const { return fieldStart( 15 ); }

   // [24, 1]
   void oneHopBfdIdentificationEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 16, 24, 1, 8, value ); }
   U8 oneHopBfdIdentificationEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 16, 24, 1 ) ); }
   bool isOneHopBfdIdentificationEnableValid() const { return fieldValid( 16 ); }
   U16 oneHopBfdIdentificationEnableLen() const { return fieldLen( 16 ); }
   U16 oneHopBfdIdentificationEnableOffset() const { return fieldStart( 16 ); }

   // [25, 1]
   void fwdUpdateEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 17, 25, 1, 8, value ); }
   U8 fwdUpdateEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 17, 25, 1 ) ); }
   bool isFwdUpdateEnableValid() const { return fieldValid( 17 ); }
   U16 fwdUpdateEnableLen() const { return fieldLen( 17 ); }
   U16 fwdUpdateEnableOffset() const { return fieldStart( 17 ); }

   // [26, 1]
   void rpfUpdateEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 18, 26, 1, 8, value ); }
   U8 rpfUpdateEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 18, 26, 1 ) ); }
   bool isRpfUpdateEnableValid() const { return fieldValid( 18 ); }
   U16 rpfUpdateEnableLen() const { return fieldLen( 18 ); }
   U16 rpfUpdateEnableOffset() const { return fieldStart( 18 ); }

   // [27, 1]
   void forwardingLookupStatisticsEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 19, 27, 1, 8, value ); }
   U8 forwardingLookupStatisticsEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 19, 27, 1 ) ); }
   bool isForwardingLookupStatisticsEnableValid() const { return fieldValid( 19 ); }
   U16 forwardingLookupStatisticsEnableLen() const { return fieldLen( 19 ); }
   U16 forwardingLookupStatisticsEnableOffset() const { return fieldStart( 19 ); }

   // [28, 1]
   void sourceLookupStatisticsEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 20, 28, 1, 8, value ); }
   U8 sourceLookupStatisticsEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 20, 28, 1 ) ); }
   bool isSourceLookupStatisticsEnableValid() const { return fieldValid( 20 ); }
   U16 sourceLookupStatisticsEnableLen() const { return fieldLen( 20 ); }
   U16 sourceLookupStatisticsEnableOffset() const { return fieldStart( 20 ); }

   // [29, 1]
   void fwdDomainStatisticsEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 21, 29, 1, 8, value ); }
   U8 fwdDomainStatisticsEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 21, 29, 1 ) ); }
   bool isFwdDomainStatisticsEnableValid() const { return fieldValid( 21 ); }
   U16 fwdDomainStatisticsEnableLen() const { return fieldLen( 21 ); }
   U16 fwdDomainStatisticsEnableOffset() const { return fieldStart( 21 ); }

   // [30, 9] or absent
   void reservedIs( U16 value ) { fieldAcrossIs( Impl::traced(), 22, value ); }
   U16 reserved() const { return static_cast< U16 >( fieldAcross( Impl::traced(), 22 ) ); }
   bool isReservedValid() const { return fieldValid( 22 ); }
   U16 reservedLen() const { return fieldLen( 22 ); }
   U16 reservedOffset() const { return fieldStart( 22 ); }

   // absent or [30, 1]
   void faiUnknownAddressEnableIs( U8 value ) { fieldInIs( Impl::traced(), 23, value ); }
   U8 faiUnknownAddressEnable() const { return static_cast< U8 >( fieldIn( Impl::traced(), 23 ) ); }
   bool isFaiUnknownAddressEnableValid() const { return fieldValid( 23 ); }
   U16 faiUnknownAddressEnableLen() const { return fieldLen( 23 ); }
   U16 faiUnknownAddressEnableOffset() const { return fieldStart( 23 ); }

   // absent or [31, 2]
   void faiOffsetIs( U8 value ) { fieldAcrossIs( Impl::traced(), 24, value ); }
   U8 faiOffset() const { return static_cast< U8 >( fieldAcross( Impl::traced(), 24 ) ); }
   bool isFaiOffsetValid() const { return fieldValid( 24 ); }
   U16 faiOffsetLen() const { return fieldLen( 24 ); }
   U16 faiOffsetOffset() const { return fieldStart( 24 ); }

   // absent or [33, 1]
   void faiCompatibleMcEnableIs( U8 value ) { fieldInIs( Impl::traced(), 25, value ); }
   U8 faiCompatibleMcEnable() const { return static_cast< U8 >( fieldIn( Impl::traced(), 25 ) ); }
   bool isFaiCompatibleMcEnableValid() const { return fieldValid( 25 ); }
   U16 faiCompatibleMcEnableLen() const { return fieldLen( 25 ); }
   U16 faiCompatibleMcEnableOffset() const { return fieldStart( 25 ); }

   // absent or [34, 2]
   void faiCompatibleMcOffsetIs( U8 value ) { fieldInIs( Impl::traced(), 26, value ); }
   U8 faiCompatibleMcOffset() const { return static_cast< U8 >( fieldIn( Impl::traced(), 26 ) ); }
   bool isFaiCompatibleMcOffsetValid() const { return fieldValid( 26 ); }
   U16 faiCompatibleMcOffsetLen() const { return fieldLen( 26 ); }
   U16 faiCompatibleMcOffsetOffset() const { return fieldStart( 26 ); }
};

class FlpaResContextEnablers::WithStorage : public FlpaResContextEnablers {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : FlpaResContextEnablers( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[8] = {};
};

// Memory, variants 0 to 4.
class FwdFfcTable : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   FwdFfcTable( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isFwdFfcTable( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw128 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw128 >( chip, variant ); }
   virtual Raw128 allFieldsMask() const;
   Raw128 getAllFields() const { return allFields< Raw128 >(); }

   // [0, 29]
   void ffcInstruction0Is( U32 value ) { fieldAtIs( Impl::traced(), 0, 0, 29, 32, value ); }
   U32 ffcInstruction0() const { return static_cast< U32 >( fieldAt( Impl::traced(), 0, 0, 29 ) ); }
   bool isFfcInstruction0Valid() const { return fieldValid( 0 ); }
   U16 ffcInstruction0Len() const { return fieldLen( 0 ); }
   U16 ffcInstruction0Offset() const { return fieldStart( 0 ); }

   // [0, 58] or [0, 116]
   void ffcInstructionsVecIs( Raw128 const & value ) { wideFieldIs( 1, value.word.data() ); }
   Raw128 ffcInstructionsVec() const { return wideField< Raw128 >( 1 ); }
   bool isFfcInstructionsVecValid() const { return fieldValid( 1 ); }
   U16 ffcInstructionsVecLen() const { return fieldLen( 1 ); }
   U16 ffcInstructionsVecOffset() const { return fieldStart( 1 ); }

   // [2, 1] or absent
   void nofFfcInstructionInGroupIs( U8 value ) { fieldInIs( Impl::traced(), 2, value ); }
   U8 nofFfcInstructionInGroup() const { return static_cast< U8 >( fieldIn( Impl::traced(), 2 ) ); }
   bool isNofFfcInstructionInGroupValid() const { return fieldValid( 2 ); }
   U16 nofFfcInstructionInGroupLen() const { return fieldLen( 2 ); }
   U16 nofFfcInstructionInGroupOffset() const { return fieldStart( 2 ); }

   // [29, 29]
   void ffcInstruction1Is( U32 value ) { fieldAtIs( Impl::traced(), 3, 29, 29, 32, value ); }
   U32 ffcInstruction1() const { return static_cast< U32 >( fieldAt( Impl::traced(), 3, 29, 29 ) ); }
   bool isFfcInstruction1Valid() const { return fieldValid( 3 ); }
   U16 ffcInstruction1Len() const { return fieldLen( 3 ); }
   U16 ffcInstruction1Offset() const { return fieldStart( 3 ); }

   // absent or [4, 1]
   void nofFfcInstructionInGroup1QuadIs( U8 value ) { fieldInIs( Impl::traced(), 4, value ); }
   U8 nofFfcInstructionInGroup1Quad() const { return static_cast< U8 >( fieldIn( Impl::traced(), 4 ) ); }
   bool isNofFfcInstructionInGroup1QuadValid() const { return fieldValid( 4 ); }
   U16 nofFfcInstructionInGroup1QuadLen() const { return fieldLen( 4 ); }
   U16 nofFfcInstructionInGroup1QuadOffset() const { return fieldStart( 4 ); }

   // absent or [58, 29]
   void ffcInstruction2Is( U32 value ) { fieldAcrossIs( Impl::traced(), 5, value ); }
   U32 ffcInstruction2() const { return static_cast< U32 >( fieldAcross( Impl::traced(), 5 ) ); }
   bool isFfcInstruction2Valid() const { return fieldValid( 5 ); }
   U16 ffcInstruction2Len() const { return fieldLen( 5 ); }
   U16 ffcInstruction2Offset() const { return fieldStart( 5 ); }

   // absent or [87, 29]
   void ffcInstruction3Is( U32 value ) { fieldAcrossIs( Impl::traced(), 6, value ); }
   U32 ffcInstruction3() const { return static_cast< U32 >( fieldAcross( Impl::traced(), 6 ) ); }
   bool isFfcInstruction3Valid() const { return fieldValid( 6 ); }
   U16 ffcInstruction3Len() const { return fieldLen( 6 ); }
   U16 ffcInstruction3Offset() const { return fieldStart( 6 ); }

   // absent or [8, 1]
   void nofFfcInstructionInGroup2QuadIs( U8 value ) { fieldInIs( Impl::traced(), 7, value ); }
   U8 nofFfcInstructionInGroup2Quad() const { return static_cast< U8 >( fieldIn( Impl::traced(), 7 ) ); }
   bool isNofFfcInstructionInGroup2QuadValid() const { return fieldValid( 7 ); }
   U16 nofFfcInstructionInGroup2QuadLen() const { return fieldLen( 7 ); }
   U16 nofFfcInstructionInGroup2QuadOffset() const { return fieldStart( 7 ); }

   // absent or [16, 1]
   void nofFfcInstructionInGroup3QuadIs( U8 value ) { fieldInIs( Impl::traced(), 8, value ); }
   U8 nofFfcInstructionInGroup3Quad() const { return static_cast< U8 >( fieldIn( Impl::traced(), 8 ) ); }
   bool isNofFfcInstructionInGroup3QuadValid() const { return fieldValid( 8 ); }
   U16 nofFfcInstructionInGroup3QuadLen() const { return fieldLen( 8 ); }
   U16 nofFfcInstructionInGroup3QuadOffset() const { return fieldStart( 8 ); }

   // absent or [8, 1]
   void nofFfcInstructionInGroup4QuadIs( U8 value ) { fieldInIs( Impl::traced(), 9, value ); }
   U8 nofFfcInstructionInGroup4Quad() const { return static_cast< U8 >( fieldIn( Impl::traced(), 9 ) ); }
   bool isNofFfcInstructionInGroup4QuadValid() const { return fieldValid( 9 ); }
   U16 nofFfcInstructionInGroup4QuadLen() const { return fieldLen( 9 ); }
   U16 nofFfcInstructionInGroup4QuadOffset() const { return fieldStart( 9 ); }

   // ffcInstruction0 to ffcInstruction3 by number
   void ffcInstructionIs( U32 index, U32 value ) { runFieldIs( 0, index, value ); }
   U32 ffcInstruction( U32 index ) const { return static_cast< U32 >( runField( 0, index ) ); }
};

class FwdFfcTable::WithStorage : public FwdFfcTable {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : FwdFfcTable( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[16] = {};
};

// Memory.
class FwdKbrTable : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   FwdKbrTable( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isFwdKbrTable( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U64 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U64 >( chip, variant ); }
   virtual U64 allFieldsMask() const;
   U64 getAllFields() const { return allFields< U64 >(); }

   // [0, 38]
   void kbrIs( U64 const & value ) { fieldAtIs( Impl::traced(), 0, 0, 38, 64, value ); }
   U64 kbr() const { return fieldAt( Impl::traced(), 0, 0, 38 ); }
   bool isKbrValid() const { return fieldValid( 0 ); }
   U16 kbrLen() const { return fieldLen( 0 ); }
   U16 kbrOffset() const { return fieldStart( 0 ); }

   // [38, 6]
   void appDbIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 38, 6, 8, value ); }
   U8 appDb() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 38, 6 ) ); }
   bool isAppDbValid() const { return fieldValid( 1 ); }
   U16 appDbLen() const { return fieldLen( 1 ); }
   U16 appDbOffset() const { return fieldStart( 1 ); }
};

class FwdKbrTable::WithStorage : public FwdKbrTable {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : FwdKbrTable( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[8] = {};
};

// Register, variants 0 to 1.
class InLifProfileCsFlagsLsb : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   InLifProfileCsFlagsLsb( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isInLifProfileCsFlagsLsb( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static Raw512 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw512 >( chip, variant ); }
   virtual Raw512 allFieldsMask() const;
   Raw512 getAllFields() const { return allFields< Raw512 >(); }

   // [0, 4]
   void csInlifProfileIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 4, 8, value ); }
   U8 csInlifProfile() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 4 ) ); }
   bool isCsInlifProfileValid() const { return fieldValid( 0 ); }
   U16 csInlifProfileLen() const { return fieldLen( 0 ); }
   U16 csInlifProfileOffset() const { return fieldStart( 0 ); }

   // [0, 4]
   void csProfile0Is( U8 value ) { fieldAtIs( Impl::traced(), 1, 0, 4, 8, value ); }
   U8 csProfile0() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 0, 4 ) ); }
   bool isCsProfile0Valid() const { return fieldValid( 1 ); }
   U16 csProfile0Len() const { return fieldLen( 1 ); }
   U16 csProfile0Offset() const { return fieldStart( 1 ); }

   // [0, 512]
   void csInlifProfileMapLsbIs( Raw512 const & value ) { wideAtIs( Impl::traced(), 2, 0, value ); }
   Raw512 csInlifProfileMapLsb() const { return wideAt< Raw512 >( Impl::traced(), 2, 0 ); }
   bool isCsInlifProfileMapLsbValid() const { return fieldValid( 2 ); }
   U16 csInlifProfileMapLsbLen() const { return fieldLen( 2 ); }
   U16 csInlifProfileMapLsbOffset() const { return fieldStart( 2 ); }

   // [4, 4]
   void csProfile1Is( U8 value ) { fieldAtIs( Impl::traced(), 3, 4, 4, 8, value ); }
   U8 csProfile1() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 4, 4 ) ); }
   bool isCsProfile1Valid() const { return fieldValid( 3 ); }
   U16 csProfile1Len() const { return fieldLen( 3 ); }
   U16 csProfile1Offset() const { return fieldStart( 3 ); }

   // [8, 4]
   void csProfile2Is( U8 value ) { fieldAtIs( Impl::traced(), 4, 8, 4, 8, value ); }
   U8 csProfile2() const { return static_cast< U8 >( fieldAt( Impl::traced(), 4, 8, 4 ) ); }
   bool isCsProfile2Valid() const { return fieldValid( 4 ); }
   U16 csProfile2Len() const { return fieldLen( 4 ); }
   U16 csProfile2Offset() const { return fieldStart( 4 ); }

   // [12, 4]
   void csProfile3Is( U8 value ) { fieldAtIs( Impl::traced(), 5, 12, 4, 8, value ); }
   U8 csProfile3() const { return static_cast< U8 >( fieldAt( Impl::traced(), 5, 12, 4 ) ); }
   bool isCsProfile3Valid() const { return fieldValid( 5 ); }
   U16 csProfile3Len() const { return fieldLen( 5 ); }
   U16 csProfile3Offset() const { return fieldStart( 5 ); }

   // [16, 4]
   void csProfile4Is( U8 value ) { fieldAtIs( Impl::traced(), 6, 16, 4, 8, value ); }
   U8 csProfile4() const { return static_cast< U8 >( fieldAt( Impl::traced(), 6, 16, 4 ) ); }
   bool isCsProfile4Valid() const { return fieldValid( 6 ); }
   U16 csProfile4Len() const { return fieldLen( 6 ); }
   U16 csProfile4Offset() const { return fieldStart( 6 ); }

   // [20, 4]
   void csProfile5Is( U8 value ) { fieldAtIs( Impl::traced(), 7, 20, 4, 8, value ); }
   U8 csProfile5() const { return static_cast< U8 >( fieldAt( Impl::traced(), 7, 20, 4 ) ); }
   bool isCsProfile5Valid() const { return fieldValid( 7 ); }
   U16 csProfile5Len() const { return fieldLen( 7 ); }
   U16 csProfile5Offset() const { return fieldStart( 7 ); }

   // [24, 4]
   void csProfile6Is( U8 value ) { fieldAtIs( Impl::traced(), 8, 24, 4, 8, value ); }
   U8 csProfile6() const { return static_cast< U8 >( fieldAt( Impl::traced(), 8, 24, 4 ) ); }
   bool isCsProfile6Valid() const { return fieldValid( 8 ); }
   U16 csProfile6Len() const { return fieldLen( 8 ); }
   U16 csProfile6Offset() const { return fieldStart( 8 ); }

   // [28, 4]
   void csProfile7Is( U8 value ) { fieldAtIs( Impl::traced(), 9, 28, 4, 8, value ); }
   U8 csProfile7() const { return static_cast< U8 >( fieldAt( Impl::traced(), 9, 28, 4 ) ); }
   bool isCsProfile7Valid() const { return fieldValid( 9 ); }
   U16 csProfile7Len() const { return fieldLen( 9 ); }
   U16 csProfile7Offset() const { return fieldStart( 9 ); }

   // [32, 4]
   void csProfile8Is( U8 value ) { fieldAtIs( Impl::traced(), 10, 32, 4, 8, value ); }
   U8 csProfile8() const { return static_cast< U8 >( fieldAt( Impl::traced(), 10, 32, 4 ) ); }
   bool isCsProfile8Valid() const { return fieldValid( 10 ); }
   U16 csProfile8Len() const { return fieldLen( 10 ); }
   U16 csProfile8Offset() const { return fieldStart( 10 ); }

   // [36, 4]
   void csProfile9Is( U8 value ) { fieldAtIs( Impl::traced(), 11, 36, 4, 8, value ); }
   U8 csProfile9() const { return static_cast< U8 >( fieldAt( Impl::traced(), 11, 36, 4 ) ); }
   bool isCsProfile9Valid() const { return fieldValid( 11 ); }
   U16 csProfile9Len() const { return fieldLen( 11 ); }
   U16 csProfile9Offset() const { return fieldStart( 11 ); }

   // [40, 4]
   void csProfile10Is( U8 value ) { fieldAtIs( Impl::traced(), 12, 40, 4, 8, value ); }
   U8 csProfile10() const { return static_cast< U8 >( fieldAt( Impl::traced(), 12, 40, 4 ) ); }
   bool isCsProfile10Valid() const { return fieldValid( 12 ); }
   U16 csProfile10Len() const { return fieldLen( 12 ); }
   U16 csProfile10Offset() const { return fieldStart( 12 ); }

   // [44, 4]
   void csProfile11Is( U8 value ) { fieldAtIs( Impl::traced(), 13, 44, 4, 8, value ); }
   U8 csProfile11() const { return static_cast< U8 >( fieldAt( Impl::traced(), 13, 44, 4 ) ); }
   bool isCsProfile11Valid() const { return fieldValid( 13 ); }
   U16 csProfile11Len() const { return fieldLen( 13 ); }
   U16 csProfile11Offset() const { return fieldStart( 13 ); }

   // [48, 4]
   void csProfile12Is( U8 value ) { fieldAtIs( Impl::traced(), 14, 48, 4, 8, value ); }
   U8 csProfile12() const { return static_cast< U8 >( fieldAt( Impl::traced(), 14, 48, 4 ) ); }
   bool isCsProfile12Valid() const { return fieldValid( 14 ); }
   U16 csProfile12Len() const { return fieldLen( 14 ); }
   U16 csProfile12Offset() const { return fieldStart( 14 ); }

   // [52, 4]
   void csProfile13Is( U8 value ) { fieldAtIs( Impl::traced(), 15, 52, 4, 8, value ); }
   U8 csProfile13() const { return static_cast< U8 >( fieldAt( Impl::traced(), 15, 52, 4 ) ); }
   bool isCsProfile13Valid() const { return fieldValid( 15 ); }
   U16 csProfile13Len() const { return fieldLen( 15 ); }
   U16 csProfile13Offset() const { return fieldStart( 15 ); }

   // [56, 4]
   void csProfile14Is( U8 value ) { fieldAtIs( Impl::traced(), 16, 56, 4, 8, value ); }
   U8 csProfile14() const { return static_cast< U8 >( fieldAt( Impl::traced(), 16, 56, 4 ) ); }
   bool isCsProfile14Valid() const { return fieldValid( 16 ); }
   U16 csProfile14Len() const { return fieldLen( 16 ); }
   U16 csProfile14Offset() const { return fieldStart( 16 ); }

   // [60, 4]
   void csProfile15Is( U8 value ) { fieldAtIs( Impl::traced(), 17, 60, 4, 8, value ); }
   U8 csProfile15() const { return static_cast< U8 >( fieldAt( Impl::traced(), 17, 60, 4 ) ); }
   bool isCsProfile15Valid() const { return fieldValid( 17 ); }
   U16 csProfile15Len() const { return fieldLen( 17 ); }
   U16 csProfile15Offset() const { return fieldStart( 17 ); }

   // [64, 4]
   void csProfile16Is( U8 value ) { fieldAtIs( Impl::traced(), 18, 64, 4, 8, value ); }
   U8 csProfile16() const { return static_cast< U8 >( fieldAt( Impl::traced(), 18, 64, 4 ) ); }
   bool isCsProfile16Valid() const { return fieldValid( 18 ); }
   U16 csProfile16Len() const { return fieldLen( 18 ); }
   U16 csProfile16Offset() const { return fieldStart( 18 ); }

   // [68, 4]
   void csProfile17Is( U8 value ) { fieldAtIs( Impl::traced(), 19, 68, 4, 8, value ); }
   U8 csProfile17() const { return static_cast< U8 >( fieldAt( Impl::traced(), 19, 68, 4 ) ); }
   bool isCsProfile17Valid() const { return fieldValid( 19 ); }
   U16 csProfile17Len() const { return fieldLen( 19 ); }
   U16 csProfile17Offset() const { return fieldStart( 19 ); }

   // [72, 4]
   void csProfile18Is( U8 value ) { fieldAtIs( Impl::traced(), 20, 72, 4, 8, value ); }
   U8 csProfile18() const { return static_cast< U8 >( fieldAt( Impl::traced(), 20, 72, 4 ) ); }
   bool isCsProfile18Valid() const { return fieldValid( 20 ); }
   U16 csProfile18Len() const { return fieldLen( 20 ); }
   U16 csProfile18Offset() const { return fieldStart( 20 ); }

   // [76, 4]
   void csProfile19Is( U8 value ) { fieldAtIs( Impl::traced(), 21, 76, 4, 8, value ); }
   U8 csProfile19() const { return static_cast< U8 >( fieldAt( Impl::traced(), 21, 76, 4 ) ); }
   bool isCsProfile19Valid() const { return fieldValid( 21 ); }
   U16 csProfile19Len() const { return fieldLen( 21 ); }
   U16 csProfile19Offset() const { return fieldStart( 21 ); }

   // [80, 4]
   void csProfile20Is( U8 value ) { fieldAtIs( Impl::traced(), 22, 80, 4, 8, value ); }
   U8 csProfile20() const { return static_cast< U8 >( fieldAt( Impl::traced(), 22, 80, 4 ) ); }
   bool isCsProfile20Valid() const { return fieldValid( 22 ); }
   U16 csProfile20Len() const { return fieldLen( 22 ); }
   U16 csProfile20Offset() const { return fieldStart( 22 ); }

   // [84, 4]
   void csProfile21Is( U8 value ) { fieldAtIs( Impl::traced(), 23, 84, 4, 8, value ); }
   U8 csProfile21() const { return static_cast< U8 >( fieldAt( Impl::traced(), 23, 84, 4 ) ); }
   bool isCsProfile21Valid() const { return fieldValid( 23 ); }
   U16 csProfile21Len() const { return fieldLen( 23 ); }
   U16 csProfile21Offset() const { return fieldStart( 23 ); }

   // [88, 4]
   void csProfile22Is( U8 value ) { fieldAtIs( Impl::traced(), 24, 88, 4, 8, value ); }
   U8 csProfile22() const { return static_cast< U8 >( fieldAt( Impl::traced(), 24, 88, 4 ) ); }
   bool isCsProfile22Valid() const { return fieldValid( 24 ); }
   U16 csProfile22Len() const { return fieldLen( 24 ); }
   U16 csProfile22Offset() const { return fieldStart( 24 ); }

   // [92, 4]
   void csProfile23Is( U8 value ) { fieldAtIs( Impl::traced(), 25, 92, 4, 8, value ); }
   U8 csProfile23() const { return static_cast< U8 >( fieldAt( Impl::traced(), 25, 92, 4 ) ); }
   bool isCsProfile23Valid() const { return fieldValid( 25 ); }
   U16 csProfile23Len() const { return fieldLen( 25 ); }
   U16 csProfile23Offset() const { return fieldStart( 25 ); }

   // [96, 4]
   void csProfile24Is( U8 value ) { fieldAtIs( Impl::traced(), 26, 96, 4, 8, value ); }
   U8 csProfile24() const { return static_cast< U8 >( fieldAt( Impl::traced(), 26, 96, 4 ) ); }
   bool isCsProfile24Valid() const { return fieldValid( 26 ); }
   U16 csProfile24Len() const { return fieldLen( 26 ); }
   U16 csProfile24Offset() const { return fieldStart( 26 ); }

   // [100, 4]
   void csProfile25Is( U8 value ) { fieldAtIs( Impl::traced(), 27, 100, 4, 8, value ); }
   U8 csProfile25() const { return static_cast< U8 >( fieldAt( Impl::traced(), 27, 100, 4 ) ); }
   bool isCsProfile25Valid() const { return fieldValid( 27 ); }
   U16 csProfile25Len() const { return fieldLen( 27 ); }
   U16 csProfile25Offset() const { return fieldStart( 27 ); }

   // [104, 4]
   void csProfile26Is( U8 value ) { fieldAtIs( Impl::traced(), 28, 104, 4, 8, value ); }
   U8 csProfile26() const { return static_cast< U8 >( fieldAt( Impl::traced(), 28, 104, 4 ) ); }
   bool isCsProfile26Valid() const { return fieldValid( 28 ); }
   U16 csProfile26Len() const { return fieldLen( 28 ); }
   U16 csProfile26Offset() const { return fieldStart( 28 ); }

   // [108, 4]
   void csProfile27Is( U8 value ) { fieldAtIs( Impl::traced(), 29, 108, 4, 8, value ); }
   U8 csProfile27() const { return static_cast< U8 >( fieldAt( Impl::traced(), 29, 108, 4 ) ); }
   bool isCsProfile27Valid() const { return fieldValid( 29 ); }
   U16 csProfile27Len() const { return fieldLen( 29 ); }
   U16 csProfile27Offset() const { return fieldStart( 29 ); }

   // [112, 4]
   void csProfile28Is( U8 value ) { fieldAtIs( Impl::traced(), 30, 112, 4, 8, value ); }
   U8 csProfile28() const { return static_cast< U8 >( fieldAt( Impl::traced(), 30, 112, 4 ) ); }
   bool isCsProfile28Valid() const { return fieldValid( 30 ); }
   U16 csProfile28Len() const { return fieldLen( 30 ); }
   U16 csProfile28Offset() const { return fieldStart( 30 ); }

   // [116, 4]
   void csProfile29Is( U8 value ) { fieldAtIs( Impl::traced(), 31, 116, 4, 8, value ); }
   U8 csProfile29() const { return static_cast< U8 >( fieldAt( Impl::traced(), 31, 116, 4 ) ); }
   bool isCsProfile29Valid() const { return fieldValid( 31 ); }
   U16 csProfile29Len() const { return fieldLen( 31 ); }
   U16 csProfile29Offset() const { return fieldStart( 31 ); }

   // [120, 4]
   void csProfile30Is( U8 value ) { fieldAtIs( Impl::traced(), 32, 120, 4, 8, value ); }
   U8 csProfile30() const { return static_cast< U8 >( fieldAt( Impl::traced(), 32, 120, 4 ) ); }
   bool isCsProfile30Valid() const { return fieldValid( 32 ); }
   U16 csProfile30Len() const { return fieldLen( 32 ); }
   U16 csProfile30Offset() const { return fieldStart( 32 ); }

   // [124, 4]
   void csProfile31Is( U8 value ) { fieldAtIs( Impl::traced(), 33, 124, 4, 8, value ); }
   U8 csProfile31() const { return static_cast< U8 >( fieldAt( Impl::traced(), 33, 124, 4 ) ); }
   bool isCsProfile31Valid() const { return fieldValid( 33 ); }
   U16 csProfile31Len() const { return fieldLen( 33 ); }
   U16 csProfile31Offset() const { return fieldStart( 33 ); }

   // [128, 4]
   void csProfile32Is( U8 value ) { fieldAtIs( Impl::traced(), 34, 128, 4, 8, value ); }
   U8 csProfile32() const { return static_cast< U8 >( fieldAt( Impl::traced(), 34, 128, 4 ) ); }
   bool isCsProfile32Valid() const { return fieldValid( 34 ); }
   U16 csProfile32Len() const { return fieldLen( 34 ); }
   U16 csProfile32Offset() const { return fieldStart( 34 ); }

   // [132, 4]
   void csProfile33Is( U8 value ) { fieldAtIs( Impl::traced(), 35, 132, 4, 8, value ); }
   U8 csProfile33() const { return static_cast< U8 >( fieldAt( Impl::traced(), 35, 132, 4 ) ); }
   bool isCsProfile33Valid() const { return fieldValid( 35 ); }
   U16 csProfile33Len() const { return fieldLen( 35 ); }
   U16 csProfile33Offset() const { return fieldStart( 35 ); }

   // [136, 4]
   void csProfile34Is( U8 value ) { fieldAtIs( Impl::traced(), 36, 136, 4, 8, value ); }
   U8 csProfile34() const { return static_cast< U8 >( fieldAt( Impl::traced(), 36, 136, 4 ) ); }
   bool isCsProfile34Valid() const { return fieldValid( 36 ); }
   U16 csProfile34Len() const { return fieldLen( 36 ); }
   U16 csProfile34Offset() const { return fieldStart( 36 ); }

   // [140, 4]
   void csProfile35Is( U8 value ) { fieldAtIs( Impl::traced(), 37, 140, 4, 8, value ); }
   U8 csProfile35() const { return static_cast< U8 >( fieldAt( Impl::traced(), 37, 140, 4 ) ); }
   bool isCsProfile35Valid() const { return fieldValid( 37 ); }
   U16 csProfile35Len() const { return fieldLen( 37 ); }
   U16 csProfile35Offset() const { return fieldStart( 37 ); }

   // [144, 4]
   void csProfile36Is( U8 value ) { fieldAtIs( Impl::traced(), 38, 144, 4, 8, value ); }
   U8 csProfile36() const { return static_cast< U8 >( fieldAt( Impl::traced(), 38, 144, 4 ) ); }
   bool isCsProfile36Valid() const { return fieldValid( 38 ); }
   U16 csProfile36Len() const { return fieldLen( 38 ); }
   U16 csProfile36Offset() const { return fieldStart( 38 ); }

   // [148, 4]
   void csProfile37Is( U8 value ) { fieldAtIs( Impl::traced(), 39, 148, 4, 8, value ); }
   U8 csProfile37() const { return static_cast< U8 >( fieldAt( Impl::traced(), 39, 148, 4 ) ); }
   bool isCsProfile37Valid() const { return fieldValid( 39 ); }
   U16 csProfile37Len() const { return fieldLen( 39 ); }
   U16 csProfile37Offset() const { return fieldStart( 39 ); }

   // [152, 4]
   void csProfile38Is( U8 value ) { fieldAtIs( Impl::traced(), 40, 152, 4, 8, value ); }
   U8 csProfile38() const { return static_cast< U8 >( fieldAt( Impl::traced(), 40, 152, 4 ) ); }
   bool isCsProfile38Valid() const { return fieldValid( 40 ); }
   U16 csProfile38Len() const { return fieldLen( 40 ); }
   U16 csProfile38Offset() const { return fieldStart( 40 ); }

   // [156, 4]
   void csProfile39Is( U8 value ) { fieldAtIs( Impl::traced(), 41, 156, 4, 8, value ); }
   U8 csProfile39() const { return static_cast< U8 >( fieldAt( Impl::traced(), 41, 156, 4 ) ); }
   bool isCsProfile39Valid() const { return fieldValid( 41 ); }
   U16 csProfile39Len() const { return fieldLen( 41 ); }
   U16 csProfile39Offset() const { return fieldStart( 41 ); }

   // [160, 4]
   void csProfile40Is( U8 value ) { fieldAtIs( Impl::traced(), 42, 160, 4, 8, value ); }
   U8 csProfile40() const { return static_cast< U8 >( fieldAt( Impl::traced(), 42, 160, 4 ) ); }
   bool isCsProfile40Valid() const { return fieldValid( 42 ); }
   U16 csProfile40Len() const { return fieldLen( 42 ); }
   U16 csProfile40Offset() const { return fieldStart( 42 ); }

   // [164, 4]
   void csProfile41Is( U8 value ) { fieldAtIs( Impl::traced(), 43, 164, 4, 8, value ); }
   U8 csProfile41() const { return static_cast< U8 >( fieldAt( Impl::traced(), 43, 164, 4 ) ); }
   bool isCsProfile41Valid() const { return fieldValid( 43 ); }
   U16 csProfile41Len() const { return fieldLen( 43 ); }
   U16 csProfile41Offset() const { return fieldStart( 43 ); }

   // [168, 4]
   void csProfile42Is( U8 value ) { fieldAtIs( Impl::traced(), 44, 168, 4, 8, value ); }
   U8 csProfile42() const { return static_cast< U8 >( fieldAt( Impl::traced(), 44, 168, 4 ) ); }
   bool isCsProfile42Valid() const { return fieldValid( 44 ); }
   U16 csProfile42Len() const { return fieldLen( 44 ); }
   U16 csProfile42Offset() const { return fieldStart( 44 ); }

   // [172, 4]
   void csProfile43Is( U8 value ) { fieldAtIs( Impl::traced(), 45, 172, 4, 8, value ); }
   U8 csProfile43() const { return static_cast< U8 >( fieldAt( Impl::traced(), 45, 172, 4 ) ); }
   bool isCsProfile43Valid() const { return fieldValid( 45 ); }
   U16 csProfile43Len() const { return fieldLen( 45 ); }
   U16 csProfile43Offset() const { return fieldStart( 45 ); }

   // [176, 4]
   void csProfile44Is( U8 value ) { fieldAtIs( Impl::traced(), 46, 176, 4, 8, value ); }
   U8 csProfile44() const { return static_cast< U8 >( fieldAt( Impl::traced(), 46, 176, 4 ) ); }
   bool isCsProfile44Valid() const { return fieldValid( 46 ); }
   U16 csProfile44Len() const { return fieldLen( 46 ); }
   U16 csProfile44Offset() const { return fieldStart( 46 ); }

   // [180, 4]
   void csProfile45Is( U8 value ) { fieldAtIs( Impl::traced(), 47, 180, 4, 8, value ); }
   U8 csProfile45() const { return static_cast< U8 >( fieldAt( Impl::traced(), 47, 180, 4 ) ); }
   bool isCsProfile45Valid() const { return fieldValid( 47 ); }
   U16 csProfile45Len() const { return fieldLen( 47 ); }
   U16 csProfile45Offset() const { return fieldStart( 47 ); }

   // [184, 4]
   void csProfile46Is( U8 value ) { fieldAtIs( Impl::traced(), 48, 184, 4, 8, value ); }
   U8 csProfile46() const { return static_cast< U8 >( fieldAt( Impl::traced(), 48, 184, 4 ) ); }
   bool isCsProfile46Valid() const { return fieldValid( 48 ); }
   U16 csProfile46Len() const { return fieldLen( 48 ); }
   U16 csProfile46Offset() const { return fieldStart( 48 ); }

   // [188, 4]
   void csProfile47Is( U8 value ) { fieldAtIs( Impl::traced(), 49, 188, 4, 8, value ); }
   U8 csProfile47() const { return static_cast< U8 >( fieldAt( Impl::traced(), 49, 188, 4 ) ); }
   bool isCsProfile47Valid() const { return fieldValid( 49 ); }
   U16 csProfile47Len() const { return fieldLen( 49 ); }
   U16 csProfile47Offset() const { return fieldStart( 49 ); }

   // [192, 4]
   void csProfile48Is( U8 value ) { fieldAtIs( Impl::traced(), 50, 192, 4, 8, value ); }
   U8 csProfile48() const { return static_cast< U8 >( fieldAt( Impl::traced(), 50, 192, 4 ) ); }
   bool isCsProfile48Valid() const { return fieldValid( 50 ); }
   U16 csProfile48Len() const { return fieldLen( 50 ); }
   U16 csProfile48Offset() const { return fieldStart( 50 ); }

   // [196, 4]
   void csProfile49Is( U8 value ) { fieldAtIs( Impl::traced(), 51, 196, 4, 8, value ); }
   U8 csProfile49() const { return static_cast< U8 >( fieldAt( Impl::traced(), 51, 196, 4 ) ); }
   bool isCsProfile49Valid() const { return fieldValid( 51 ); }
   U16 csProfile49Len() const { return fieldLen( 51 ); }
   U16 csProfile49Offset() const { return fieldStart( 51 ); }

   // [200, 4]
   void csProfile50Is( U8 value ) { fieldAtIs( Impl::traced(), 52, 200, 4, 8, value ); }
   U8 csProfile50() const { return static_cast< U8 >( fieldAt( Impl::traced(), 52, 200, 4 ) ); }
   bool isCsProfile50Valid() const { return fieldValid( 52 ); }
   U16 csProfile50Len() const { return fieldLen( 52 ); }
   U16 csProfile50Offset() const { return fieldStart( 52 ); }

   // [204, 4]
   void csProfile51Is( U8 value ) { fieldAtIs( Impl::traced(), 53, 204, 4, 8, value ); }
   U8 csProfile51() const { return static_cast< U8 >( fieldAt( Impl::traced(), 53, 204, 4 ) ); }
   bool isCsProfile51Valid() const { return fieldValid( 53 ); }
   U16 csProfile51Len() const { return fieldLen( 53 ); }
   U16 csProfile51Offset() const { return fieldStart( 53 ); }

   // [208, 4]
   void csProfile52Is( U8 value ) { fieldAtIs( Impl::traced(), 54, 208, 4, 8, value ); }
   U8 csProfile52() const { return static_cast< U8 >( fieldAt( Impl::traced(), 54, 208, 4 ) ); }
   bool isCsProfile52Valid() const { return fieldValid( 54 ); }
   U16 csProfile52Len() const { return fieldLen( 54 ); }
   U16 csProfile52Offset() const { return fieldStart( 54 ); }

   // [212, 4]
   void csProfile53Is( U8 value ) { fieldAtIs( Impl::traced(), 55, 212, 4, 8, value ); }
   U8 csProfile53() const { return static_cast< U8 >( fieldAt( Impl::traced(), 55, 212, 4 ) ); }
   bool isCsProfile53Valid() const { return fieldValid( 55 ); }
   U16 csProfile53Len() const { return fieldLen( 55 ); }
   U16 csProfile53Offset() const { return fieldStart( 55 ); }

   // [216, 4]
   void csProfile54Is( U8 value ) { fieldAtIs( Impl::traced(), 56, 216, 4, 8, value ); }
   U8 csProfile54() const { return static_cast< U8 >( fieldAt( Impl::traced(), 56, 216, 4 ) ); }
   bool isCsProfile54Valid() const { return fieldValid( 56 ); }
   U16 csProfile54Len() const { return fieldLen( 56 ); }
   U16 csProfile54Offset() const { return fieldStart( 56 ); }

   // [220, 4]
   void csProfile55Is( U8 value ) { fieldAtIs( Impl::traced(), 57, 220, 4, 8, value ); }
   U8 csProfile55() const { return static_cast< U8 >( fieldAt( Impl::traced(), 57, 220, 4 ) ); }
   bool isCsProfile55Valid() const { return fieldValid( 57 ); }
   U16 csProfile55Len() const { return fieldLen( 57 ); }
   U16 csProfile55Offset() const { return fieldStart( 57 ); }

   // [224, 4]
   void csProfile56Is( U8 value ) { fieldAtIs( Impl::traced(), 58, 224, 4, 8, value ); }
   U8 csProfile56() const { return static_cast< U8 >( fieldAt( Impl::traced(), 58, 224, 4 ) ); }
   bool isCsProfile56Valid() const { return fieldValid( 58 ); }
   U16 csProfile56Len() const { return fieldLen( 58 ); }
   U16 csProfile56Offset() const { return fieldStart( 58 ); }

   // [228, 4]
   void csProfile57Is( U8 value ) { fieldAtIs( Impl::traced(), 59, 228, 4, 8, value ); }
   U8 csProfile57() const { return static_cast< U8 >( fieldAt( Impl::traced(), 59, 228, 4 ) ); }
   bool isCsProfile57Valid() const { return fieldValid( 59 ); }
   U16 csProfile57Len() const { return fieldLen( 59 ); }
   U16 csProfile57Offset() const { return fieldStart( 59 ); }

   // [232, 4]
   void csProfile58Is( U8 value ) { fieldAtIs( Impl::traced(), 60, 232, 4, 8, value ); }
   U8 csProfile58() const { return static_cast< U8 >( fieldAt( Impl::traced(), 60, 232, 4 ) ); }
   bool isCsProfile58Valid() const { return fieldValid( 60 ); }
   U16 csProfile58Len() const { return fieldLen( 60 ); }
   U16 csProfile58Offset() const { return fieldStart( 60 ); }

   // [236, 4]
   void csProfile59Is( U8 value ) { fieldAtIs( Impl::traced(), 61, 236, 4, 8, value ); }
   U8 csProfile59() const { return static_cast< U8 >( fieldAt( Impl::traced(), 61, 236, 4 ) ); }
   bool isCsProfile59Valid() const { return fieldValid( 61 ); }
   U16 csProfile59Len() const { return fieldLen( 61 ); }
   U16 csProfile59Offset() const { return fieldStart( 61 ); }

   // [240, 4]
   void csProfile60Is( U8 value ) { fieldAtIs( Impl::traced(), 62, 240, 4, 8, value ); }
   U8 csProfile60() const { return static_cast< U8 >( fieldAt( Impl::traced(), 62, 240, 4 ) ); }
   bool isCsProfile60Valid() const { return fieldValid( 62 ); }
   U16 csProfile60Len() const { return fieldLen( 62 ); }
   U16 csProfile60Offset() const { return fieldStart( 62 ); }

   // [244, 4]
   void csProfile61Is( U8 value ) { fieldAtIs( Impl::traced(), 63, 244, 4, 8, value ); }
   U8 csProfile61() const { return static_cast< U8 >( fieldAt( Impl::traced(), 63, 244, 4 ) ); }
   bool isCsProfile61Valid() const { return fieldValid( 63 ); }
   U16 csProfile61Len() const { return fieldLen( 63 ); }
   U16 csProfile61Offset() const { return fieldStart( 63 ); }

   // [248, 4]
   void csProfile62Is( U8 value ) { fieldAtIs( Impl::traced(), 64, 248, 4, 8, value ); }
   U8 csProfile62() const { return static_cast< U8 >( fieldAt( Impl::traced(), 64, 248, 4 ) ); }
   bool isCsProfile62Valid() const { return fieldValid( 64 ); }
   U16 csProfile62Len() const { return fieldLen( 64 ); }
   U16 csProfile62Offset() const { return fieldStart( 64 ); }

   // [252, 4]
   void csProfile63Is( U8 value ) { fieldAtIs( Impl::traced(), 65, 252, 4, 8, value ); }
   U8 csProfile63() const { return static_cast< U8 >( fieldAt( Impl::traced(), 65, 252, 4 ) ); }
   bool isCsProfile63Valid() const { return fieldValid( 65 ); }
   U16 csProfile63Len() const { return fieldLen( 65 ); }
   U16 csProfile63Offset() const { return fieldStart( 65 ); }

   // [256, 4]
   void csProfile64Is( U8 value ) { fieldAtIs( Impl::traced(), 66, 256, 4, 8, value ); }
   U8 csProfile64() const { return static_cast< U8 >( fieldAt( Impl::traced(), 66, 256, 4 ) ); }
   bool isCsProfile64Valid() const { return fieldValid( 66 ); }
   U16 csProfile64Len() const { return fieldLen( 66 ); }
   U16 csProfile64Offset() const { return fieldStart( 66 ); }

   // [260, 4]
   void csProfile65Is( U8 value ) { fieldAtIs( Impl::traced(), 67, 260, 4, 8, value ); }
   U8 csProfile65() const { return static_cast< U8 >( fieldAt( Impl::traced(), 67, 260, 4 ) ); }
   bool isCsProfile65Valid() const { return fieldValid( 67 ); }
   U16 csProfile65Len() const { return fieldLen( 67 ); }
   U16 csProfile65Offset() const { return fieldStart( 67 ); }

   // [264, 4]
   void csProfile66Is( U8 value ) { fieldAtIs( Impl::traced(), 68, 264, 4, 8, value ); }
   U8 csProfile66() const { return static_cast< U8 >( fieldAt( Impl::traced(), 68, 264, 4 ) ); }
   bool isCsProfile66Valid() const { return fieldValid( 68 ); }
   U16 csProfile66Len() const { return fieldLen( 68 ); }
   U16 csProfile66Offset() const { return fieldStart( 68 ); }

   // [268, 4]
   void csProfile67Is( U8 value ) { fieldAtIs( Impl::traced(), 69, 268, 4, 8, value ); }
   U8 csProfile67() const { return static_cast< U8 >( fieldAt( Impl::traced(), 69, 268, 4 ) ); }
   bool isCsProfile67Valid() const { return fieldValid( 69 ); }
   U16 csProfile67Len() const { return fieldLen( 69 ); }
   U16 csProfile67Offset() const { return fieldStart( 69 ); }

   // [272, 4]
   void csProfile68Is( U8 value ) { fieldAtIs( Impl::traced(), 70, 272, 4, 8, value ); }
   U8 csProfile68() const { return static_cast< U8 >( fieldAt( Impl::traced(), 70, 272, 4 ) ); }
   bool isCsProfile68Valid() const { return fieldValid( 70 ); }
   U16 csProfile68Len() const { return fieldLen( 70 ); }
   U16 csProfile68Offset() const { return fieldStart( 70 ); }

   // [276, 4]
   void csProfile69Is( U8 value ) { fieldAtIs( Impl::traced(), 71, 276, 4, 8, value ); }
   U8 csProfile69() const { return static_cast< U8 >( fieldAt( Impl::traced(), 71, 276, 4 ) ); }
   bool isCsProfile69Valid() const { return fieldValid( 71 ); }
   U16 csProfile69Len() const { return fieldLen( 71 ); }
   U16 csProfile69Offset() const { return fieldStart( 71 ); }

   // [280, 4]
   void csProfile70Is( U8 value ) { fieldAtIs( Impl::traced(), 72, 280, 4, 8, value ); }
   U8 csProfile70() const { return static_cast< U8 >( fieldAt( Impl::traced(), 72, 280, 4 ) ); }
   bool isCsProfile70Valid() const { return fieldValid( 72 ); }
   U16 csProfile70Len() const { return fieldLen( 72 ); }
   U16 csProfile70Offset() const { return fieldStart( 72 ); }

   // [284, 4]
   void csProfile71Is( U8 value ) { fieldAtIs( Impl::traced(), 73, 284, 4, 8, value ); }
   U8 csProfile71() const { return static_cast< U8 >( fieldAt( Impl::traced(), 73, 284, 4 ) ); }
   bool isCsProfile71Valid() const { return fieldValid( 73 ); }
   U16 csProfile71Len() const { return fieldLen( 73 ); }
   U16 csProfile71Offset() const { return fieldStart( 73 ); }

   // [288, 4]
   void csProfile72Is( U8 value ) { fieldAtIs( Impl::traced(), 74, 288, 4, 8, value ); }
   U8 csProfile72() const { return static_cast< U8 >( fieldAt( Impl::traced(), 74, 288, 4 ) ); }
   bool isCsProfile72Valid() const { return fieldValid( 74 ); }
   U16 csProfile72Len() const { return fieldLen( 74 ); }
   U16 csProfile72Offset() const { return fieldStart( 74 ); }

   // [292, 4]
   void csProfile73Is( U8 value ) { fieldAtIs( Impl::traced(), 75, 292, 4, 8, value ); }
   U8 csProfile73() const { return static_cast< U8 >( fieldAt( Impl::traced(), 75, 292, 4 ) ); }
   bool isCsProfile73Valid() const { return fieldValid( 75 ); }
   U16 csProfile73Len() const { return fieldLen( 75 ); }
   U16 csProfile73Offset() const { return fieldStart( 75 ); }

   // [296, 4]
   void csProfile74Is( U8 value ) { fieldAtIs( Impl::traced(), 76, 296, 4, 8, value ); }
   U8 csProfile74() const { return static_cast< U8 >( fieldAt( Impl::traced(), 76, 296, 4 ) ); }
   bool isCsProfile74Valid() const { return fieldValid( 76 ); }
   U16 csProfile74Len() const { return fieldLen( 76 ); }
   U16 csProfile74Offset() const { return fieldStart( 76 ); }

   // [300, 4]
   void csProfile75Is( U8 value ) { fieldAtIs( Impl::traced(), 77, 300, 4, 8, value ); }
   U8 csProfile75() const { return static_cast< U8 >( fieldAt( Impl::traced(), 77, 300, 4 ) ); }
   bool isCsProfile75Valid() const { return fieldValid( 77 ); }
   U16 csProfile75Len() const { return fieldLen( 77 ); }
   U16 csProfile75Offset() const { return fieldStart( 77 ); }

   // [304, 4]
   void csProfile76Is( U8 value ) { fieldAtIs( Impl::traced(), 78, 304, 4, 8, value ); }
   U8 csProfile76() const { return static_cast< U8 >( fieldAt( Impl::traced(), 78, 304, 4 ) ); }
   bool isCsProfile76Valid() const { return fieldValid( 78 ); }
   U16 csProfile76Len() const { return fieldLen( 78 ); }
   U16 csProfile76Offset() const { return fieldStart( 78 ); }

   // [308, 4]
   void csProfile77Is( U8 value ) { fieldAtIs( Impl::traced(), 79, 308, 4, 8, value ); }
   U8 csProfile77() const { return static_cast< U8 >( fieldAt( Impl::traced(), 79, 308, 4 ) ); }
   bool isCsProfile77Valid() const { return fieldValid( 79 ); }
   U16 csProfile77Len() const { return fieldLen( 79 ); }
   U16 csProfile77Offset() const { return fieldStart( 79 ); }

   // [312, 4]
   void csProfile78Is( U8 value ) { fieldAtIs( Impl::traced(), 80, 312, 4, 8, value ); }
   U8 csProfile78() const { return static_cast< U8 >( fieldAt( Impl::traced(), 80, 312, 4 ) ); }
   bool isCsProfile78Valid() const { return fieldValid( 80 ); }
   U16 csProfile78Len() const { return fieldLen( 80 ); }
   U16 csProfile78Offset() const { return fieldStart( 80 ); }

   // [316, 4]
   void csProfile79Is( U8 value ) { fieldAtIs( Impl::traced(), 81, 316, 4, 8, value ); }
   U8 csProfile79() const { return static_cast< U8 >( fieldAt( Impl::traced(), 81, 316, 4 ) ); }
   bool isCsProfile79Valid() const { return fieldValid( 81 ); }
   U16 csProfile79Len() const { return fieldLen( 81 ); }
   U16 csProfile79Offset() const { return fieldStart( 81 ); }

   // [320, 4]
   void csProfile80Is( U8 value ) { fieldAtIs( Impl::traced(), 82, 320, 4, 8, value ); }
   U8 csProfile80() const { return static_cast< U8 >( fieldAt( Impl::traced(), 82, 320, 4 ) ); }
   bool isCsProfile80Valid() const { return fieldValid( 82 ); }
   U16 csProfile80Len() const { return fieldLen( 82 ); }
   U16 csProfile80Offset() const { return fieldStart( 82 ); }

   // [324, 4]
   void csProfile81Is( U8 value ) { fieldAtIs( Impl::traced(), 83, 324, 4, 8, value ); }
   U8 csProfile81() const { return static_cast< U8 >( fieldAt( Impl::traced(), 83, 324, 4 ) ); }
   bool isCsProfile81Valid() const { return fieldValid( 83 ); }
   U16 csProfile81Len() const { return fieldLen( 83 ); }
   U16 csProfile81Offset() const { return fieldStart( 83 ); }

   // [328, 4]
   void csProfile82Is( U8 value ) { fieldAtIs( Impl::traced(), 84, 328, 4, 8, value ); }
   U8 csProfile82() const { return static_cast< U8 >( fieldAt( Impl::traced(), 84, 328, 4 ) ); }
   bool isCsProfile82Valid() const { return fieldValid( 84 ); }
   U16 csProfile82Len() const { return fieldLen( 84 ); }
   U16 csProfile82Offset() const { return fieldStart( 84 ); }

   // [332, 4]
   void csProfile83Is( U8 value ) { fieldAtIs( Impl::traced(), 85, 332, 4, 8, value ); }
   U8 csProfile83() const { return static_cast< U8 >( fieldAt( Impl::traced(), 85, 332, 4 ) ); }
   bool isCsProfile83Valid() const { return fieldValid( 85 ); }
   U16 csProfile83Len() const { return fieldLen( 85 ); }
   U16 csProfile83Offset() const { return fieldStart( 85 ); }

   // [336, 4]
   void csProfile84Is( U8 value ) { fieldAtIs( Impl::traced(), 86, 336, 4, 8, value ); }
   U8 csProfile84() const { return static_cast< U8 >( fieldAt( Impl::traced(), 86, 336, 4 ) ); }
   bool isCsProfile84Valid() const { return fieldValid( 86 ); }
   U16 csProfile84Len() const { return fieldLen( 86 ); }
   U16 csProfile84Offset() const { return fieldStart( 86 ); }

   // [340, 4]
   void csProfile85Is( U8 value ) { fieldAtIs( Impl::traced(), 87, 340, 4, 8, value ); }
   U8 csProfile85() const { return static_cast< U8 >( fieldAt( Impl::traced(), 87, 340, 4 ) ); }
   bool isCsProfile85Valid() const { return fieldValid( 87 ); }
   U16 csProfile85Len() const { return fieldLen( 87 ); }
   U16 csProfile85Offset() const { return fieldStart( 87 ); }

   // [344, 4]
   void csProfile86Is( U8 value ) { fieldAtIs( Impl::traced(), 88, 344, 4, 8, value ); }
   U8 csProfile86() const { return static_cast< U8 >( fieldAt( Impl::traced(), 88, 344, 4 ) ); }
   bool isCsProfile86Valid() const { return fieldValid( 88 ); }
   U16 csProfile86Len() const { return fieldLen( 88 ); }
   U16 csProfile86Offset() const { return fieldStart( 88 ); }

   // [348, 4]
   void csProfile87Is( U8 value ) { fieldAtIs( Impl::traced(), 89, 348, 4, 8, value ); }
   U8 csProfile87() const { return static_cast< U8 >( fieldAt( Impl::traced(), 89, 348, 4 ) ); }
   bool isCsProfile87Valid() const { return fieldValid( 89 ); }
   U16 csProfile87Len() const { return fieldLen( 89 ); }
   U16 csProfile87Offset() const { return fieldStart( 89 ); }

   // [352, 4]
   void csProfile88Is( U8 value ) { fieldAtIs( Impl::traced(), 90, 352, 4, 8, value ); }
   U8 csProfile88() const { return static_cast< U8 >( fieldAt( Impl::traced(), 90, 352, 4 ) ); }
   bool isCsProfile88Valid() const { return fieldValid( 90 ); }
   U16 csProfile88Len() const { return fieldLen( 90 ); }
   U16 csProfile88Offset() const { return fieldStart( 90 ); }

   // [356, 4]
   void csProfile89Is( U8 value ) { fieldAtIs( Impl::traced(), 91, 356, 4, 8, value ); }
   U8 csProfile89() const { return static_cast< U8 >( fieldAt( Impl::traced(), 91, 356, 4 ) ); }
   bool isCsProfile89Valid() const { return fieldValid( 91 ); }
   U16 csProfile89Len() const { return fieldLen( 91 ); }
   U16 csProfile89Offset() const { return fieldStart( 91 ); }

   // [360, 4]
   void csProfile90Is( U8 value ) { fieldAtIs( Impl::traced(), 92, 360, 4, 8, value ); }
   U8 csProfile90() const { return static_cast< U8 >( fieldAt( Impl::traced(), 92, 360, 4 ) ); }
   bool isCsProfile90Valid() const { return fieldValid( 92 ); }
   U16 csProfile90Len() const { return fieldLen( 92 ); }
   U16 csProfile90Offset() const { return fieldStart( 92 ); }

   // [364, 4]
   void csProfile91Is( U8 value ) { fieldAtIs( Impl::traced(), 93, 364, 4, 8, value ); }
   U8 csProfile91() const { return static_cast< U8 >( fieldAt( Impl::traced(), 93, 364, 4 ) ); }
   bool isCsProfile91Valid() const { return fieldValid( 93 ); }
   U16 csProfile91Len() const { return fieldLen( 93 ); }
   U16 csProfile91Offset() const { return fieldStart( 93 ); }

   // [368, 4]
   void csProfile92Is( U8 value ) { fieldAtIs( Impl::traced(), 94, 368, 4, 8, value ); }
   U8 csProfile92() const { return static_cast< U8 >( fieldAt( Impl::traced(), 94, 368, 4 ) ); }
   bool isCsProfile92Valid() const { return fieldValid( 94 ); }
   U16 csProfile92Len() const { return fieldLen( 94 ); }
   U16 csProfile92Offset() const { return fieldStart( 94 ); }

   // [372, 4]
   void csProfile93Is( U8 value ) { fieldAtIs( Impl::traced(), 95, 372, 4, 8, value ); }
   U8 csProfile93() const { return static_cast< U8 >( fieldAt( Impl::traced(), 95, 372, 4 ) ); }
   bool isCsProfile93Valid() const { return fieldValid( 95 ); }
   U16 csProfile93Len() const { return fieldLen( 95 ); }
   U16 csProfile93Offset() const { return fieldStart( 95 ); }

   // [376, 4]
   void csProfile94Is( U8 value ) { fieldAtIs( Impl::traced(), 96, 376, 4, 8, value ); }
   U8 csProfile94() const { return static_cast< U8 >( fieldAt( Impl::traced(), 96, 376, 4 ) ); }
   bool isCsProfile94Valid() const { return fieldValid( 96 ); }
   U16 csProfile94Len() const { return fieldLen( 96 ); }
   U16 csProfile94Offset() const { return fieldStart( 96 ); }

   // [380, 4]
   void csProfile95Is( U8 value ) { fieldAtIs( Impl::traced(), 97, 380, 4, 8, value ); }
   U8 csProfile95() const { return static_cast< U8 >( fieldAt( Impl::traced(), 97, 380, 4 ) ); }
   bool isCsProfile95Valid() const { return fieldValid( 97 ); }
   U16 csProfile95Len() const { return fieldLen( 97 ); }
   U16 csProfile95Offset() const { return fieldStart( 97 ); }

   // [384, 4]
   void csProfile96Is( U8 value ) { fieldAtIs( Impl::traced(), 98, 384, 4, 8, value ); }
   U8 csProfile96() const { return static_cast< U8 >( fieldAt( Impl::traced(), 98, 384, 4 ) ); }
   bool isCsProfile96Valid() const { return fieldValid( 98 ); }
   U16 csProfile96Len() const { return fieldLen( 98 ); }
   U16 csProfile96Offset() const { return fieldStart( 98 ); }

   // [388, 4]
   void csProfile97Is( U8 value ) { fieldAtIs( Impl::traced(), 99, 388, 4, 8, value ); }
   U8 csProfile97() const { return static_cast< U8 >( fieldAt( Impl::traced(), 99, 388, 4 ) ); }
   bool isCsProfile97Valid() const { return fieldValid( 99 ); }
   U16 csProfile97Len() const { return fieldLen( 99 ); }
   U16 csProfile97Offset() const { return fieldStart( 99 ); }

   // [392, 4]
   void csProfile98Is( U8 value ) { fieldAtIs( Impl::traced(), 100, 392, 4, 8, value ); }
   U8 csProfile98() const { return static_cast< U8 >( fieldAt( Impl::traced(), 100, 392, 4 ) ); }
   bool isCsProfile98Valid() const { return fieldValid( 100 ); }
   U16 csProfile98Len() const { return fieldLen( 100 ); }
   U16 csProfile98Offset() const { return fieldStart( 100 ); }

   // [396, 4]
   void csProfile99Is( U8 value ) { fieldAtIs( Impl::traced(), 101, 396, 4, 8, value ); }
   U8 csProfile99() const { return static_cast< U8 >( fieldAt( Impl::traced(), 101, 396, 4 ) ); }
   bool isCsProfile99Valid() const { return fieldValid( 101 ); }
   U16 csProfile99Len() const { return fieldLen( 101 ); }
   U16 csProfile99Offset() const { return fieldStart( 101 ); }

   // [400, 4]
   void csProfile100Is( U8 value ) { fieldAtIs( Impl::traced(), 102, 400, 4, 8, value ); }
   U8 csProfile100() const { return static_cast< U8 >( fieldAt( Impl::traced(), 102, 400, 4 ) ); }
   bool isCsProfile100Valid() const { return fieldValid( 102 ); }
   U16 csProfile100Len() const { return fieldLen( 102 ); }
   U16 csProfile100Offset() const { return fieldStart( 102 ); }

   // [404, 4]
   void csProfile101Is( U8 value ) { fieldAtIs( Impl::traced(), 103, 404, 4, 8, value ); }
   U8 csProfile101() const { return static_cast< U8 >( fieldAt( Impl::traced(), 103, 404, 4 ) ); }
   bool isCsProfile101Valid() const { return fieldValid( 103 ); }
   U16 csProfile101Len() const { return fieldLen( 103 ); }
   U16 csProfile101Offset() const { return fieldStart( 103 ); }

   // [408, 4]
   void csProfile102Is( U8 value ) { fieldAtIs( Impl::traced(), 104, 408, 4, 8, value ); }
   U8 csProfile102() const { return static_cast< U8 >( fieldAt( Impl::traced(), 104, 408, 4 ) ); }
   bool isCsProfile102Valid() const { return fieldValid( 104 ); }
   U16 csProfile102Len() const { return fieldLen( 104 ); }
   U16 csProfile102Offset() const { return fieldStart( 104 ); }

   // [412, 4]
   void csProfile103Is( U8 value ) { fieldAtIs( Impl::traced(), 105, 412, 4, 8, value ); }
   U8 csProfile103() const { return static_cast< U8 >( fieldAt( Impl::traced(), 105, 412, 4 ) ); }
   bool isCsProfile103Valid() const { return fieldValid( 105 ); }
   U16 csProfile103Len() const { return fieldLen( 105 ); }
   U16 csProfile103Offset() const { return fieldStart( 105 ); }

   // [416, 4]
   void csProfile104Is( U8 value ) { fieldAtIs( Impl::traced(), 106, 416, 4, 8, value ); }
   U8 csProfile104() const { return static_cast< U8 >( fieldAt( Impl::traced(), 106, 416, 4 ) ); }
   bool isCsProfile104Valid() const { return fieldValid( 106 ); }
   U16 csProfile104Len() const { return fieldLen( 106 ); }
   U16 csProfile104Offset() const { return fieldStart( 106 ); }

   // [420, 4]
   void csProfile105Is( U8 value ) { fieldAtIs( Impl::traced(), 107, 420, 4, 8, value ); }
   U8 csProfile105() const { return static_cast< U8 >( fieldAt( Impl::traced(), 107, 420, 4 ) ); }
   bool isCsProfile105Valid() const { return fieldValid( 107 ); }
   U16 csProfile105Len() const { return fieldLen( 107 ); }
   U16 csProfile105Offset() const { return fieldStart( 107 ); }

   // [424, 4]
   void csProfile106Is( U8 value ) { fieldAtIs( Impl::traced(), 108, 424, 4, 8, value ); }
   U8 csProfile106() const { return static_cast< U8 >( fieldAt( Impl::traced(), 108, 424, 4 ) ); }
   bool isCsProfile106Valid() const { return fieldValid( 108 ); }
   U16 csProfile106Len() const { return fieldLen( 108 ); }
   U16 csProfile106Offset() const { return fieldStart( 108 ); }

   // [428, 4]
   void csProfile107Is( U8 value ) { fieldAtIs( Impl::traced(), 109, 428, 4, 8, value ); }
   U8 csProfile107() const { return static_cast< U8 >( fieldAt( Impl::traced(), 109, 428, 4 ) ); }
   bool isCsProfile107Valid() const { return fieldValid( 109 ); }
   U16 csProfile107Len() const { return fieldLen( 109 ); }
   U16 csProfile107Offset() const { return fieldStart( 109 ); }

   // [432, 4]
   void csProfile108Is( U8 value ) { fieldAtIs( Impl::traced(), 110, 432, 4, 8, value ); }
   U8 csProfile108() const { return static_cast< U8 >( fieldAt( Impl::traced(), 110, 432, 4 ) ); }
   bool isCsProfile108Valid() const { return fieldValid( 110 ); }
   U16 csProfile108Len() const { return fieldLen( 110 ); }
   U16 csProfile108Offset() const { return fieldStart( 110 ); }

   // [436, 4]
   void csProfile109Is( U8 value ) { fieldAtIs( Impl::traced(), 111, 436, 4, 8, value ); }
   U8 csProfile109() const { return static_cast< U8 >( fieldAt( Impl::traced(), 111, 436, 4 ) ); }
   bool isCsProfile109Valid() const { return fieldValid( 111 ); }
   U16 csProfile109Len() const { return fieldLen( 111 ); }
   U16 csProfile109Offset() const { return fieldStart( 111 ); }

   // [440, 4]
   void csProfile110Is( U8 value ) { fieldAtIs( Impl::traced(), 112, 440, 4, 8, value ); }
   U8 csProfile110() const { return static_cast< U8 >( fieldAt( Impl::traced(), 112, 440, 4 ) ); }
   bool isCsProfile110Valid() const { return fieldValid( 112 ); }
   U16 csProfile110Len() const { return fieldLen( 112 ); }
   U16 csProfile110Offset() const { return fieldStart( 112 ); }

   // [444, 4]
   void csProfile111Is( U8 value ) { fieldAtIs( Impl::traced(), 113, 444, 4, 8, value ); }
   U8 csProfile111() const { return static_cast< U8 >( fieldAt( Impl::traced(), 113, 444, 4 ) ); }
   bool isCsProfile111Valid() const { return fieldValid( 113 ); }
   U16 csProfile111Len() const { return fieldLen( 113 ); }
   U16 csProfile111Offset() const { return fieldStart( 113 ); }

   // [448, 4]
   void csProfile112Is( U8 value ) { fieldAtIs( Impl::traced(), 114, 448, 4, 8, value ); }
   U8 csProfile112() const { return static_cast< U8 >( fieldAt( Impl::traced(), 114, 448, 4 ) ); }
   bool isCsProfile112Valid() const { return fieldValid( 114 ); }
   U16 csProfile112Len() const { return fieldLen( 114 ); }
   U16 csProfile112Offset() const { return fieldStart( 114 ); }

   // [452, 4]
   void csProfile113Is( U8 value ) { fieldAtIs( Impl::traced(), 115, 452, 4, 8, value ); }
   U8 csProfile113() const { return static_cast< U8 >( fieldAt( Impl::traced(), 115, 452, 4 ) ); }
   bool isCsProfile113Valid() const { return fieldValid( 115 ); }
   U16 csProfile113Len() const { return fieldLen( 115 ); }
   U16 csProfile113Offset() const { return fieldStart( 115 ); }

   // [456, 4]
   void csProfile114Is( U8 value ) { fieldAtIs( Impl::traced(), 116, 456, 4, 8, value ); }
   U8 csProfile114() const { return static_cast< U8 >( fieldAt( Impl::traced(), 116, 456, 4 ) ); }
   bool isCsProfile114Valid() const { return fieldValid( 116 ); }
   U16 csProfile114Len() const { return fieldLen( 116 ); }
   U16 csProfile114Offset() const { return fieldStart( 116 ); }

   // [460, 4]
   void csProfile115Is( U8 value ) { fieldAtIs( Impl::traced(), 117, 460, 4, 8, value ); }
   U8 csProfile115() const { return static_cast< U8 >( fieldAt( Impl::traced(), 117, 460, 4 ) ); }
   bool isCsProfile115Valid() const { return fieldValid( 117 ); }
   U16 csProfile115Len() const { return fieldLen( 117 ); }
   U16 csProfile115Offset() const { return fieldStart( 117 ); }

   // [464, 4]
   void csProfile116Is( U8 value ) { fieldAtIs( Impl::traced(), 118, 464, 4, 8, value ); }
   U8 csProfile116() const { return static_cast< U8 >( fieldAt( Impl::traced(), 118, 464, 4 ) ); }
   bool isCsProfile116Valid() const { return fieldValid( 118 ); }
   U16 csProfile116Len() const { return fieldLen( 118 ); }
   U16 csProfile116Offset() const { return fieldStart( 118 ); }

   // [468, 4]
   void csProfile117Is( U8 value ) { fieldAtIs( Impl::traced(), 119, 468, 4, 8, value ); }
   U8 csProfile117() const { return static_cast< U8 >( fieldAt( Impl::traced(), 119, 468, 4 ) ); }
   bool isCsProfile117Valid() const { return fieldValid( 119 ); }
   U16 csProfile117Len() const { return fieldLen( 119 ); }
   U16 csProfile117Offset() const { return fieldStart( 119 ); }

   // [472, 4]
   void csProfile118Is( U8 value ) { fieldAtIs( Impl::traced(), 120, 472, 4, 8, value ); }
   U8 csProfile118() const { return static_cast< U8 >( fieldAt( Impl::traced(), 120, 472, 4 ) ); }
   bool isCsProfile118Valid() const { return fieldValid( 120 ); }
   U16 csProfile118Len() const { return fieldLen( 120 ); }
   U16 csProfile118Offset() const { return fieldStart( 120 ); }

   // [476, 4]
   void csProfile119Is( U8 value ) { fieldAtIs( Impl::traced(), 121, 476, 4, 8, value ); }
   U8 csProfile119() const { return static_cast< U8 >( fieldAt( Impl::traced(), 121, 476, 4 ) ); }
   bool isCsProfile119Valid() const { return fieldValid( 121 ); }
   U16 csProfile119Len() const { return fieldLen( 121 ); }
   U16 csProfile119Offset() const { return fieldStart( 121 ); }

   // [480, 4]
   void csProfile120Is( U8 value ) { fieldAtIs( Impl::traced(), 122, 480, 4, 8, value ); }
   U8 csProfile120() const { return static_cast< U8 >( fieldAt( Impl::traced(), 122, 480, 4 ) ); }
   bool isCsProfile120Valid() const { return fieldValid( 122 ); }
   U16 csProfile120Len() const { return fieldLen( 122 ); }
   U16 csProfile120Offset() const { return fieldStart( 122 ); }

   // [484, 4]
   void csProfile121Is( U8 value ) { fieldAtIs( Impl::traced(), 123, 484, 4, 8, value ); }
   U8 csProfile121() const { return static_cast< U8 >( fieldAt( Impl::traced(), 123, 484, 4 ) ); }
   bool isCsProfile121Valid() const { return fieldValid( 123 ); }
   U16 csProfile121Len() const { return fieldLen( 123 ); }
   U16 csProfile121Offset() const { return fieldStart( 123 ); }

   // [488, 4]
   void csProfile122Is( U8 value ) { fieldAtIs( Impl::traced(), 124, 488, 4, 8, value ); }
   U8 csProfile122() const { return static_cast< U8 >( fieldAt( Impl::traced(), 124, 488, 4 ) ); }
   bool isCsProfile122Valid() const { return fieldValid( 124 ); }
   U16 csProfile122Len() const { return fieldLen( 124 ); }
   U16 csProfile122Offset() const { return fieldStart( 124 ); }

   // [492, 4]
   void csProfile123Is( U8 value ) { fieldAtIs( Impl::traced(), 125, 492, 4, 8, value ); }
   U8 csProfile123() const { return static_cast< U8 >( fieldAt( Impl::traced(), 125, 492, 4 ) ); }
   bool isCsProfile123Valid() const { return fieldValid( 125 ); }
   U16 csProfile123Len() const { return fieldLen( 125 ); }
   U16 csProfile123Offset() const { return fieldStart( 125 ); }

   // [496, 4]
   void csProfile124Is( U8 value ) { fieldAtIs( Impl::traced(), 126, 496, 4, 8, value ); }
   U8 csProfile124() const { return static_cast< U8 >( fieldAt( Impl::traced(), 126, 496, 4 ) ); }
   bool isCsProfile124Valid() const { return fieldValid( 126 ); }
   U16 csProfile124Len() const { return fieldLen( 126 ); }
   U16 csProfile124Offset() const { return fieldStart( 126 ); }

   // [500, 4]
   void csProfile125Is( U8 value ) { fieldAtIs( Impl::traced(), 127, 500, 4, 8, value ); }
   U8 csProfile125() const { return static_cast< U8 >( fieldAt( Impl::traced(), 127, 500, 4 ) ); }
   bool isCsProfile125Valid() const { return fieldValid( 127 ); }
   U16 csProfile125Len() const { return fieldLen( 127 ); }
   U16 csProfile125Offset() const { return fieldStart( 127 ); }

   // [504, 4]
   void csProfile126Is( U8 value ) { fieldAtIs( Impl::traced(), 128, 504, 4, 8, value ); }
   U8 csProfile126() const { return static_cast< U8 >( fieldAt( Impl::traced(), 128, 504, 4 ) ); }
   bool isCsProfile126Valid() const { return fieldValid( 128 ); }
   U16 csProfile126Len() const { return fieldLen( 128 ); }
   U16 csProfile126Offset() const { return fieldStart( 128 ); }

   // [508, 4]
   void csProfile127Is( U8 value ) { fieldAtIs( Impl::traced(), 129, 508, 4, 8, value ); }
   U8 csProfile127() const { return static_cast< U8 >( fieldAt( Impl::traced(), 129, 508, 4 ) ); }
   bool isCsProfile127Valid() const { return fieldValid( 129 ); }
   U16 csProfile127Len() const { return fieldLen( 129 ); }
   U16 csProfile127Offset() const { return fieldStart( 129 ); }

   // csProfile0 to csProfile127 by number
   void csProfileIs( U32 index, U8 value ) { runFieldIs( 0, index, value ); }
   U8 csProfile( U32 index ) const { return static_cast< U8 >( runField( 0, index ) ); }
};

class InLifProfileCsFlagsLsb::WithStorage : public InLifProfileCsFlagsLsb {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : InLifProfileCsFlagsLsb( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[64] = {};
};

// Register, variants 0 to 1.
class InLifProfileCsFlagsMsb : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   InLifProfileCsFlagsMsb( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isInLifProfileCsFlagsMsb( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static Raw512 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw512 >( chip, variant ); }
   virtual Raw512 allFieldsMask() const;
   Raw512 getAllFields() const { return allFields< Raw512 >(); }

   // [0, 4]
   void csProfile0Is( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 4, 8, value ); }
   U8 csProfile0() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 4 ) ); }
   bool isCsProfile0Valid() const { return fieldValid( 0 ); }
   U16 csProfile0Len() const { return fieldLen( 0 ); }
   U16 csProfile0Offset() const { return fieldStart( 0 ); }

   // [0, 512]
   void csInlifProfileMapMsbIs( Raw512 const & value ) { wideAtIs( Impl::traced(), 1, 0, value ); }
   Raw512 csInlifProfileMapMsb() const { return wideAt< Raw512 >( Impl::traced(), 1, 0 ); }
   bool isCsInlifProfileMapMsbValid() const { return fieldValid( 1 ); }
   U16 csInlifProfileMapMsbLen() const { return fieldLen( 1 ); }
   U16 csInlifProfileMapMsbOffset() const { return fieldStart( 1 ); }

   // [4, 4]
   void csProfile1Is( U8 value ) { fieldAtIs( Impl::traced(), 2, 4, 4, 8, value ); }
   U8 csProfile1() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 4, 4 ) ); }
   bool isCsProfile1Valid() const { return fieldValid( 2 ); }
   U16 csProfile1Len() const { return fieldLen( 2 ); }
   U16 csProfile1Offset() const { return fieldStart( 2 ); }

   // [8, 4]
   void csProfile2Is( U8 value ) { fieldAtIs( Impl::traced(), 3, 8, 4, 8, value ); }
   U8 csProfile2() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 8, 4 ) ); }
   bool isCsProfile2Valid() const { return fieldValid( 3 ); }
   U16 csProfile2Len() const { return fieldLen( 3 ); }
   U16 csProfile2Offset() const { return fieldStart( 3 ); }

   // [12, 4]
   void csProfile3Is( U8 value ) { fieldAtIs( Impl::traced(), 4, 12, 4, 8, value ); }
   U8 csProfile3() const { return static_cast< U8 >( fieldAt( Impl::traced(), 4, 12, 4 ) ); }
   bool isCsProfile3Valid() const { return fieldValid( 4 ); }
   U16 csProfile3Len() const { return fieldLen( 4 ); }
   U16 csProfile3Offset() const { return fieldStart( 4 ); }

   // [16, 4]
   void csProfile4Is( U8 value ) { fieldAtIs( Impl::traced(), 5, 16, 4, 8, value ); }
   U8 csProfile4() const { return static_cast< U8 >( fieldAt( Impl::traced(), 5, 16, 4 ) ); }
   bool isCsProfile4Valid() const { return fieldValid( 5 ); }
   U16 csProfile4Len() const { return fieldLen( 5 ); }
   U16 csProfile4Offset() const { return fieldStart( 5 ); }

   // [20, 4]
   void csProfile5Is( U8 value ) { fieldAtIs( Impl::traced(), 6, 20, 4, 8, value ); }
   U8 csProfile5() const { return static_cast< U8 >( fieldAt( Impl::traced(), 6, 20, 4 ) ); }
   bool isCsProfile5Valid() const { return fieldValid( 6 ); }
   U16 csProfile5Len() const { return fieldLen( 6 ); }
   U16 csProfile5Offset() const { return fieldStart( 6 ); }

   // [24, 4]
   void csProfile6Is( U8 value ) { fieldAtIs( Impl::traced(), 7, 24, 4, 8, value ); }
   U8 csProfile6() const { return static_cast< U8 >( fieldAt( Impl::traced(), 7, 24, 4 ) ); }
   bool isCsProfile6Valid() const { return fieldValid( 7 ); }
   U16 csProfile6Len() const { return fieldLen( 7 ); }
   U16 csProfile6Offset() const { return fieldStart( 7 ); }

   // [28, 4]
   void csProfile7Is( U8 value ) { fieldAtIs( Impl::traced(), 8, 28, 4, 8, value ); }
   U8 csProfile7() const { return static_cast< U8 >( fieldAt( Impl::traced(), 8, 28, 4 ) ); }
   bool isCsProfile7Valid() const { return fieldValid( 8 ); }
   U16 csProfile7Len() const { return fieldLen( 8 ); }
   U16 csProfile7Offset() const { return fieldStart( 8 ); }

   // [32, 4]
   void csProfile8Is( U8 value ) { fieldAtIs( Impl::traced(), 9, 32, 4, 8, value ); }
   U8 csProfile8() const { return static_cast< U8 >( fieldAt( Impl::traced(), 9, 32, 4 ) ); }
   bool isCsProfile8Valid() const { return fieldValid( 9 ); }
   U16 csProfile8Len() const { return fieldLen( 9 ); }
   U16 csProfile8Offset() const { return fieldStart( 9 ); }

   // [36, 4]
   void csProfile9Is( U8 value ) { fieldAtIs( Impl::traced(), 10, 36, 4, 8, value ); }
   U8 csProfile9() const { return static_cast< U8 >( fieldAt( Impl::traced(), 10, 36, 4 ) ); }
   bool isCsProfile9Valid() const { return fieldValid( 10 ); }
   U16 csProfile9Len() const { return fieldLen( 10 ); }
   U16 csProfile9Offset() const { return fieldStart( 10 ); }

   // [40, 4]
   void csProfile10Is( U8 value ) { fieldAtIs( Impl::traced(), 11, 40, 4, 8, value ); }
   U8 csProfile10() const { return static_cast< U8 >( fieldAt( Impl::traced(), 11, 40, 4 ) ); }
   bool isCsProfile10Valid() const { return fieldValid( 11 ); }
   U16 csProfile10Len() const { return fieldLen( 11 ); }
   U16 csProfile10Offset() const { return fieldStart( 11 ); }

   // [44, 4]
   void csProfile11Is( U8 value ) { fieldAtIs( Impl::traced(), 12, 44, 4, 8, value ); }
   U8 csProfile11() const { return static_cast< U8 >( fieldAt( Impl::traced(), 12, 44, 4 ) ); }
   bool isCsProfile11Valid() const { return fieldValid( 12 ); }
   U16 csProfile11Len() const { return fieldLen( 12 ); }
   U16 csProfile11Offset() const { return fieldStart( 12 ); }

   // [48, 4]
   void csProfile12Is( U8 value ) { fieldAtIs( Impl::traced(), 13, 48, 4, 8, value ); }
   U8 csProfile12() const { return static_cast< U8 >( fieldAt( Impl::traced(), 13, 48, 4 ) ); }
   bool isCsProfile12Valid() const { return fieldValid( 13 ); }
   U16 csProfile12Len() const { return fieldLen( 13 ); }
   U16 csProfile12Offset() const { return fieldStart( 13 ); }

   // [52, 4]
   void csProfile13Is( U8 value ) { fieldAtIs( Impl::traced(), 14, 52, 4, 8, value ); }
   U8 csProfile13() const { return static_cast< U8 >( fieldAt( Impl::traced(), 14, 52, 4 ) ); }
   bool isCsProfile13Valid() const { return fieldValid( 14 ); }
   U16 csProfile13Len() const { return fieldLen( 14 ); }
   U16 csProfile13Offset() const { return fieldStart( 14 ); }

   // [56, 4]
   void csProfile14Is( U8 value ) { fieldAtIs( Impl::traced(), 15, 56, 4, 8, value ); }
   U8 csProfile14() const { return static_cast< U8 >( fieldAt( Impl::traced(), 15, 56, 4 ) ); }
   bool isCsProfile14Valid() const { return fieldValid( 15 ); }
   U16 csProfile14Len() const { return fieldLen( 15 ); }
   U16 csProfile14Offset() const { return fieldStart( 15 ); }

   // [60, 4]
   void csProfile15Is( U8 value ) { fieldAtIs( Impl::traced(), 16, 60, 4, 8, value ); }
   U8 csProfile15() const { return static_cast< U8 >( fieldAt( Impl::traced(), 16, 60, 4 ) ); }
   bool isCsProfile15Valid() const { return fieldValid( 16 ); }
   U16 csProfile15Len() const { return fieldLen( 16 ); }
   U16 csProfile15Offset() const { return fieldStart( 16 ); }

   // [64, 4]
   void csProfile16Is( U8 value ) { fieldAtIs( Impl::traced(), 17, 64, 4, 8, value ); }
   U8 csProfile16() const { return static_cast< U8 >( fieldAt( Impl::traced(), 17, 64, 4 ) ); }
   bool isCsProfile16Valid() const { return fieldValid( 17 ); }
   U16 csProfile16Len() const { return fieldLen( 17 ); }
   U16 csProfile16Offset() const { return fieldStart( 17 ); }

   // [68, 4]
   void csProfile17Is( U8 value ) { fieldAtIs( Impl::traced(), 18, 68, 4, 8, value ); }
   U8 csProfile17() const { return static_cast< U8 >( fieldAt( Impl::traced(), 18, 68, 4 ) ); }
   bool isCsProfile17Valid() const { return fieldValid( 18 ); }
   U16 csProfile17Len() const { return fieldLen( 18 ); }
   U16 csProfile17Offset() const { return fieldStart( 18 ); }

   // [72, 4]
   void csProfile18Is( U8 value ) { fieldAtIs( Impl::traced(), 19, 72, 4, 8, value ); }
   U8 csProfile18() const { return static_cast< U8 >( fieldAt( Impl::traced(), 19, 72, 4 ) ); }
   bool isCsProfile18Valid() const { return fieldValid( 19 ); }
   U16 csProfile18Len() const { return fieldLen( 19 ); }
   U16 csProfile18Offset() const { return fieldStart( 19 ); }

   // [76, 4]
   void csProfile19Is( U8 value ) { fieldAtIs( Impl::traced(), 20, 76, 4, 8, value ); }
   U8 csProfile19() const { return static_cast< U8 >( fieldAt( Impl::traced(), 20, 76, 4 ) ); }
   bool isCsProfile19Valid() const { return fieldValid( 20 ); }
   U16 csProfile19Len() const { return fieldLen( 20 ); }
   U16 csProfile19Offset() const { return fieldStart( 20 ); }

   // [80, 4]
   void csProfile20Is( U8 value ) { fieldAtIs( Impl::traced(), 21, 80, 4, 8, value ); }
   U8 csProfile20() const { return static_cast< U8 >( fieldAt( Impl::traced(), 21, 80, 4 ) ); }
   bool isCsProfile20Valid() const { return fieldValid( 21 ); }
   U16 csProfile20Len() const { return fieldLen( 21 ); }
   U16 csProfile20Offset() const { return fieldStart( 21 ); }

   // [84, 4]
   void csProfile21Is( U8 value ) { fieldAtIs( Impl::traced(), 22, 84, 4, 8, value ); }
   U8 csProfile21() const { return static_cast< U8 >( fieldAt( Impl::traced(), 22, 84, 4 ) ); }
   bool isCsProfile21Valid() const { return fieldValid( 22 ); }
   U16 csProfile21Len() const { return fieldLen( 22 ); }
   U16 csProfile21Offset() const { return fieldStart( 22 ); }

   // [88, 4]
   void csProfile22Is( U8 value ) { fieldAtIs( Impl::traced(), 23, 88, 4, 8, value ); }
   U8 csProfile22() const { return static_cast< U8 >( fieldAt( Impl::traced(), 23, 88, 4 ) ); }
   bool isCsProfile22Valid() const { return fieldValid( 23 ); }
   U16 csProfile22Len() const { return fieldLen( 23 ); }
   U16 csProfile22Offset() const { return fieldStart( 23 ); }

   // [92, 4]
   void csProfile23Is( U8 value ) { fieldAtIs( Impl::traced(), 24, 92, 4, 8, value ); }
   U8 csProfile23() const { return static_cast< U8 >( fieldAt( Impl::traced(), 24, 92, 4 ) ); }
   bool isCsProfile23Valid() const { return fieldValid( 24 ); }
   U16 csProfile23Len() const { return fieldLen( 24 ); }
   U16 csProfile23Offset() const { return fieldStart( 24 ); }

   // [96, 4]
   void csProfile24Is( U8 value ) { fieldAtIs( Impl::traced(), 25, 96, 4, 8, value ); }
   U8 csProfile24() const { return static_cast< U8 >( fieldAt( Impl::traced(), 25, 96, 4 ) ); }
   bool isCsProfile24Valid() const { return fieldValid( 25 ); }
   U16 csProfile24Len() const { return fieldLen( 25 ); }
   U16 csProfile24Offset() const { return fieldStart( 25 ); }

   // [100, 4]
   void csProfile25Is( U8 value ) { fieldAtIs( Impl::traced(), 26, 100, 4, 8, value ); }
   U8 csProfile25() const { return static_cast< U8 >( fieldAt( Impl::traced(), 26, 100, 4 ) ); }
   bool isCsProfile25Valid() const { return fieldValid( 26 ); }
   U16 csProfile25Len() const { return fieldLen( 26 ); }
   U16 csProfile25Offset() const { return fieldStart( 26 ); }

   // [104, 4]
   void csProfile26Is( U8 value ) { fieldAtIs( Impl::traced(), 27, 104, 4, 8, value ); }
   U8 csProfile26() const { return static_cast< U8 >( fieldAt( Impl::traced(), 27, 104, 4 ) ); }
   bool isCsProfile26Valid() const { return fieldValid( 27 ); }
   U16 csProfile26Len() const { return fieldLen( 27 ); }
   U16 csProfile26Offset() const { return fieldStart( 27 ); }

   // [108, 4]
   void csProfile27Is( U8 value ) { fieldAtIs( Impl::traced(), 28, 108, 4, 8, value ); }
   U8 csProfile27() const { return static_cast< U8 >( fieldAt( Impl::traced(), 28, 108, 4 ) ); }
   bool isCsProfile27Valid() const { return fieldValid( 28 ); }
   U16 csProfile27Len() const { return fieldLen( 28 ); }
   U16 csProfile27Offset() const { return fieldStart( 28 ); }

   // [112, 4]
   void csProfile28Is( U8 value ) { fieldAtIs( Impl::traced(), 29, 112, 4, 8, value ); }
   U8 csProfile28() const { return static_cast< U8 >( fieldAt( Impl::traced(), 29, 112, 4 ) ); }
   bool isCsProfile28Valid() const { return fieldValid( 29 ); }
   U16 csProfile28Len() const { return fieldLen( 29 ); }
   U16 csProfile28Offset() const { return fieldStart( 29 ); }

   // [116, 4]
   void csProfile29Is( U8 value ) { fieldAtIs( Impl::traced(), 30, 116, 4, 8, value ); }
   U8 csProfile29() const { return static_cast< U8 >( fieldAt( Impl::traced(), 30, 116, 4 ) ); }
   bool isCsProfile29Valid() const { return fieldValid( 30 ); }
   U16 csProfile29Len() const { return fieldLen( 30 ); }
   U16 csProfile29Offset() const { return fieldStart( 30 ); }

   // [120, 4]
   void csProfile30Is( U8 value ) { fieldAtIs( Impl::traced(), 31, 120, 4, 8, value ); }
   U8 csProfile30() const { return static_cast< U8 >( fieldAt( Impl::traced(), 31, 120, 4 ) ); }
   bool isCsProfile30Valid() const { return fieldValid( 31 ); }
   U16 csProfile30Len() const { return fieldLen( 31 ); }
   U16 csProfile30Offset() const { return fieldStart( 31 ); }

   // [124, 4]
   void csProfile31Is( U8 value ) { fieldAtIs( Impl::traced(), 32, 124, 4, 8, value ); }
   U8 csProfile31() const { return static_cast< U8 >( fieldAt( Impl::traced(), 32, 124, 4 ) ); }
   bool isCsProfile31Valid() const { return fieldValid( 32 ); }
   U16 csProfile31Len() const { return fieldLen( 32 ); }
   U16 csProfile31Offset() const { return fieldStart( 32 ); }

   // [128, 4]
   void csProfile32Is( U8 value ) { fieldAtIs( Impl::traced(), 33, 128, 4, 8, value ); }
   U8 csProfile32() const { return static_cast< U8 >( fieldAt( Impl::traced(), 33, 128, 4 ) ); }
   bool isCsProfile32Valid() const { return fieldValid( 33 ); }
   U16 csProfile32Len() const { return fieldLen( 33 ); }
   U16 csProfile32Offset() const { return fieldStart( 33 ); }

   // [132, 4]
   void csProfile33Is( U8 value ) { fieldAtIs( Impl::traced(), 34, 132, 4, 8, value ); }
   U8 csProfile33() const { return static_cast< U8 >( fieldAt( Impl::traced(), 34, 132, 4 ) ); }
   bool isCsProfile33Valid() const { return fieldValid( 34 ); }
   U16 csProfile33Len() const { return fieldLen( 34 ); }
   U16 csProfile33Offset() const { return fieldStart( 34 ); }

   // [136, 4]
   void csProfile34Is( U8 value ) { fieldAtIs( Impl::traced(), 35, 136, 4, 8, value ); }
   U8 csProfile34() const { return static_cast< U8 >( fieldAt( Impl::traced(), 35, 136, 4 ) ); }
   bool isCsProfile34Valid() const { return fieldValid( 35 ); }
   U16 csProfile34Len() const { return fieldLen( 35 ); }
   U16 csProfile34Offset() const { return fieldStart( 35 ); }

   // [140, 4]
   void csProfile35Is( U8 value ) { fieldAtIs( Impl::traced(), 36, 140, 4, 8, value ); }
   U8 csProfile35() const { return static_cast< U8 >( fieldAt( Impl::traced(), 36, 140, 4 ) ); }
   bool isCsProfile35Valid() const { return fieldValid( 36 ); }
   U16 csProfile35Len() const { return fieldLen( 36 ); }
   U16 csProfile35Offset() const { return fieldStart( 36 ); }

   // [144, 4]
   void csProfile36Is( U8 value ) { fieldAtIs( Impl::traced(), 37, 144, 4, 8, value ); }
   U8 csProfile36() const { return static_cast< U8 >( fieldAt( Impl::traced(), 37, 144, 4 ) ); }
   bool isCsProfile36Valid() const { return fieldValid( 37 ); }
   U16 csProfile36Len() const { return fieldLen( 37 ); }
   U16 csProfile36Offset() const { return fieldStart( 37 ); }

   // [148, 4]
   void csProfile37Is( U8 value ) { fieldAtIs( Impl::traced(), 38, 148, 4, 8, value ); }
   U8 csProfile37() const { return static_cast< U8 >( fieldAt( Impl::traced(), 38, 148, 4 ) ); }
   bool isCsProfile37Valid() const { return fieldValid( 38 ); }
   U16 csProfile37Len() const { return fieldLen( 38 ); }
   U16 csProfile37Offset() const { return fieldStart( 38 ); }

   // [152, 4]
   void csProfile38Is( U8 value ) { fieldAtIs( Impl::traced(), 39, 152, 4, 8, value ); }
   U8 csProfile38() const { return static_cast< U8 >( fieldAt( Impl::traced(), 39, 152, 4 ) ); }
   bool isCsProfile38Valid() const { return fieldValid( 39 ); }
   U16 csProfile38Len() const { return fieldLen( 39 ); }
   U16 csProfile38Offset() const { return fieldStart( 39 ); }

   // [156, 4]
   void csProfile39Is( U8 value ) { fieldAtIs( Impl::traced(), 40, 156, 4, 8, value ); }
   U8 csProfile39() const { return static_cast< U8 >( fieldAt( Impl::traced(), 40, 156, 4 ) ); }
   bool isCsProfile39Valid() const { return fieldValid( 40 ); }
   U16 csProfile39Len() const { return fieldLen( 40 ); }
   U16 csProfile39Offset() const { return fieldStart( 40 ); }

   // [160, 4]
   void csProfile40Is( U8 value ) { fieldAtIs( Impl::traced(), 41, 160, 4, 8, value ); }
   U8 csProfile40() const { return static_cast< U8 >( fieldAt( Impl::traced(), 41, 160, 4 ) ); }
   bool isCsProfile40Valid() const { return fieldValid( 41 ); }
   U16 csProfile40Len() const { return fieldLen( 41 ); }
   U16 csProfile40Offset() const { return fieldStart( 41 ); }

   // [164, 4]
   void csProfile41Is( U8 value ) { fieldAtIs( Impl::traced(), 42, 164, 4, 8, value ); }
   U8 csProfile41() const { return static_cast< U8 >( fieldAt( Impl::traced(), 42, 164, 4 ) ); }
   bool isCsProfile41Valid() const { return fieldValid( 42 ); }
   U16 csProfile41Len() const { return fieldLen( 42 ); }
   U16 csProfile41Offset() const { return fieldStart( 42 ); }

   // [168, 4]
   void csProfile42Is( U8 value ) { fieldAtIs( Impl::traced(), 43, 168, 4, 8, value ); }
   U8 csProfile42() const { return static_cast< U8 >( fieldAt( Impl::traced(), 43, 168, 4 ) ); }
   bool isCsProfile42Valid() const { return fieldValid( 43 ); }
   U16 csProfile42Len() const { return fieldLen( 43 ); }
   U16 csProfile42Offset() const { return fieldStart( 43 ); }

   // [172, 4]
   void csProfile43Is( U8 value ) { fieldAtIs( Impl::traced(), 44, 172, 4, 8, value ); }
   U8 csProfile43() const { return static_cast< U8 >( fieldAt( Impl::traced(), 44, 172, 4 ) ); }
   bool isCsProfile43Valid() const { return fieldValid( 44 ); }
   U16 csProfile43Len() const { return fieldLen( 44 ); }
   U16 csProfile43Offset() const { return fieldStart( 44 ); }

   // [176, 4]
   void csProfile44Is( U8 value ) { fieldAtIs( Impl::traced(), 45, 176, 4, 8, value ); }
   U8 csProfile44() const { return static_cast< U8 >( fieldAt( Impl::traced(), 45, 176, 4 ) ); }
   bool isCsProfile44Valid() const { return fieldValid( 45 ); }
   U16 csProfile44Len() const { return fieldLen( 45 ); }
   U16 csProfile44Offset() const { return fieldStart( 45 ); }

   // [180, 4]
   void csProfile45Is( U8 value ) { fieldAtIs( Impl::traced(), 46, 180, 4, 8, value ); }
   U8 csProfile45() const { return static_cast< U8 >( fieldAt( Impl::traced(), 46, 180, 4 ) ); }
   bool isCsProfile45Valid() const { return fieldValid( 46 ); }
   U16 csProfile45Len() const { return fieldLen( 46 ); }
   U16 csProfile45Offset() const { return fieldStart( 46 ); }

   // [184, 4]
   void csProfile46Is( U8 value ) { fieldAtIs( Impl::traced(), 47, 184, 4, 8, value ); }
   U8 csProfile46() const { return static_cast< U8 >( fieldAt( Impl::traced(), 47, 184, 4 ) ); }
   bool isCsProfile46Valid() const { return fieldValid( 47 ); }
   U16 csProfile46Len() const { return fieldLen( 47 ); }
   U16 csProfile46Offset() const { return fieldStart( 47 ); }

   // [188, 4]
   void csProfile47Is( U8 value ) { fieldAtIs( Impl::traced(), 48, 188, 4, 8, value ); }
   U8 csProfile47() const { return static_cast< U8 >( fieldAt( Impl::traced(), 48, 188, 4 ) ); }
   bool isCsProfile47Valid() const { return fieldValid( 48 ); }
   U16 csProfile47Len() const { return fieldLen( 48 ); }
   U16 csProfile47Offset() const { return fieldStart( 48 ); }

   // [192, 4]
   void csProfile48Is( U8 value ) { fieldAtIs( Impl::traced(), 49, 192, 4, 8, value ); }
   U8 csProfile48() const { return static_cast< U8 >( fieldAt( Impl::traced(), 49, 192, 4 ) ); }
   bool isCsProfile48Valid() const { return fieldValid( 49 ); }
   U16 csProfile48Len() const { return fieldLen( 49 ); }
   U16 csProfile48Offset() const { return fieldStart( 49 ); }

   // [196, 4]
   void csProfile49Is( U8 value ) { fieldAtIs( Impl::traced(), 50, 196, 4, 8, value ); }
   U8 csProfile49() const { return static_cast< U8 >( fieldAt( Impl::traced(), 50, 196, 4 ) ); }
   bool isCsProfile49Valid() const { return fieldValid( 50 ); }
   U16 csProfile49Len() const { return fieldLen( 50 ); }
   U16 csProfile49Offset() const { return fieldStart( 50 ); }

   // [200, 4]
   void csProfile50Is( U8 value ) { fieldAtIs( Impl::traced(), 51, 200, 4, 8, value ); }
   U8 csProfile50() const { return static_cast< U8 >( fieldAt( Impl::traced(), 51, 200, 4 ) ); }
   bool isCsProfile50Valid() const { return fieldValid( 51 ); }
   U16 csProfile50Len() const { return fieldLen( 51 ); }
   U16 csProfile50Offset() const { return fieldStart( 51 ); }

   // [204, 4]
   void csProfile51Is( U8 value ) { fieldAtIs( Impl::traced(), 52, 204, 4, 8, value ); }
   U8 csProfile51() const { return static_cast< U8 >( fieldAt( Impl::traced(), 52, 204, 4 ) ); }
   bool isCsProfile51Valid() const { return fieldValid( 52 ); }
   U16 csProfile51Len() const { return fieldLen( 52 ); }
   U16 csProfile51Offset() const { return fieldStart( 52 ); }

   // [208, 4]
   void csProfile52Is( U8 value ) { fieldAtIs( Impl::traced(), 53, 208, 4, 8, value ); }
   U8 csProfile52() const { return static_cast< U8 >( fieldAt( Impl::traced(), 53, 208, 4 ) ); }
   bool isCsProfile52Valid() const { return fieldValid( 53 ); }
   U16 csProfile52Len() const { return fieldLen( 53 ); }
   U16 csProfile52Offset() const { return fieldStart( 53 ); }

   // [212, 4]
   void csProfile53Is( U8 value ) { fieldAtIs( Impl::traced(), 54, 212, 4, 8, value ); }
   U8 csProfile53() const { return static_cast< U8 >( fieldAt( Impl::traced(), 54, 212, 4 ) ); }
   bool isCsProfile53Valid() const { return fieldValid( 54 ); }
   U16 csProfile53Len() const { return fieldLen( 54 ); }
   U16 csProfile53Offset() const { return fieldStart( 54 ); }

   // [216, 4]
   void csProfile54Is( U8 value ) { fieldAtIs( Impl::traced(), 55, 216, 4, 8, value ); }
   U8 csProfile54() const { return static_cast< U8 >( fieldAt( Impl::traced(), 55, 216, 4 ) ); }
   bool isCsProfile54Valid() const { return fieldValid( 55 ); }
   U16 csProfile54Len() const { return fieldLen( 55 ); }
   U16 csProfile54Offset() const { return fieldStart( 55 ); }

   // [220, 4]
   void csProfile55Is( U8 value ) { fieldAtIs( Impl::traced(), 56, 220, 4, 8, value ); }
   U8 csProfile55() const { return static_cast< U8 >( fieldAt( Impl::traced(), 56, 220, 4 ) ); }
   bool isCsProfile55Valid() const { return fieldValid( 56 ); }
   U16 csProfile55Len() const { return fieldLen( 56 ); }
   U16 csProfile55Offset() const { return fieldStart( 56 ); }

   // [224, 4]
   void csProfile56Is( U8 value ) { fieldAtIs( Impl::traced(), 57, 224, 4, 8, value ); }
   U8 csProfile56() const { return static_cast< U8 >( fieldAt( Impl::traced(), 57, 224, 4 ) ); }
   bool isCsProfile56Valid() const { return fieldValid( 57 ); }
   U16 csProfile56Len() const { return fieldLen( 57 ); }
   U16 csProfile56Offset() const { return fieldStart( 57 ); }

   // [228, 4]
   void csProfile57Is( U8 value ) { fieldAtIs( Impl::traced(), 58, 228, 4, 8, value ); }
   U8 csProfile57() const { return static_cast< U8 >( fieldAt( Impl::traced(), 58, 228, 4 ) ); }
   bool isCsProfile57Valid() const { return fieldValid( 58 ); }
   U16 csProfile57Len() const { return fieldLen( 58 ); }
   U16 csProfile57Offset() const { return fieldStart( 58 ); }

   // [232, 4]
   void csProfile58Is( U8 value ) { fieldAtIs( Impl::traced(), 59, 232, 4, 8, value ); }
   U8 csProfile58() const { return static_cast< U8 >( fieldAt( Impl::traced(), 59, 232, 4 ) ); }
   bool isCsProfile58Valid() const { return fieldValid( 59 ); }
   U16 csProfile58Len() const { return fieldLen( 59 ); }
   U16 csProfile58Offset() const { return fieldStart( 59 ); }

   // [236, 4]
   void csProfile59Is( U8 value ) { fieldAtIs( Impl::traced(), 60, 236, 4, 8, value ); }
   U8 csProfile59() const { return static_cast< U8 >( fieldAt( Impl::traced(), 60, 236, 4 ) ); }
   bool isCsProfile59Valid() const { return fieldValid( 60 ); }
   U16 csProfile59Len() const { return fieldLen( 60 ); }
   U16 csProfile59Offset() const { return fieldStart( 60 ); }

   // [240, 4]
   void csProfile60Is( U8 value ) { fieldAtIs( Impl::traced(), 61, 240, 4, 8, value ); }
   U8 csProfile60() const { return static_cast< U8 >( fieldAt( Impl::traced(), 61, 240, 4 ) ); }
   bool isCsProfile60Valid() const { return fieldValid( 61 ); }
   U16 csProfile60Len() const { return fieldLen( 61 ); }
   U16 csProfile60Offset() const { return fieldStart( 61 ); }

   // [244, 4]
   void csProfile61Is( U8 value ) { fieldAtIs( Impl::traced(), 62, 244, 4, 8, value ); }
   U8 csProfile61() const { return static_cast< U8 >( fieldAt( Impl::traced(), 62, 244, 4 ) ); }
   bool isCsProfile61Valid() const { return fieldValid( 62 ); }
   U16 csProfile61Len() const { return fieldLen( 62 ); }
   U16 csProfile61Offset() const { return fieldStart( 62 ); }

   // [248, 4]
   void csProfile62Is( U8 value ) { fieldAtIs( Impl::traced(), 63, 248, 4, 8, value ); }
   U8 csProfile62() const { return static_cast< U8 >( fieldAt( Impl::traced(), 63, 248, 4 ) ); }
   bool isCsProfile62Valid() const { return fieldValid( 63 ); }
   U16 csProfile62Len() const { return fieldLen( 63 ); }
   U16 csProfile62Offset() const { return fieldStart( 63 ); }

   // [252, 4]
   void csProfile63Is( U8 value ) { fieldAtIs( Impl::traced(), 64, 252, 4, 8, value ); }
   U8 csProfile63() const { return static_cast< U8 >( fieldAt( Impl::traced(), 64, 252, 4 ) ); }
   bool isCsProfile63Valid() const { return fieldValid( 64 ); }
   U16 csProfile63Len() const { return fieldLen( 64 ); }
   U16 csProfile63Offset() const { return fieldStart( 64 ); }

   // [256, 4]
   void csProfile64Is( U8 value ) { fieldAtIs( Impl::traced(), 65, 256, 4, 8, value ); }
   U8 csProfile64() const { return static_cast< U8 >( fieldAt( Impl::traced(), 65, 256, 4 ) ); }
   bool isCsProfile64Valid() const { return fieldValid( 65 ); }
   U16 csProfile64Len() const { return fieldLen( 65 ); }
   U16 csProfile64Offset() const { return fieldStart( 65 ); }

   // [260, 4]
   void csProfile65Is( U8 value ) { fieldAtIs( Impl::traced(), 66, 260, 4, 8, value ); }
   U8 csProfile65() const { return static_cast< U8 >( fieldAt( Impl::traced(), 66, 260, 4 ) ); }
   bool isCsProfile65Valid() const { return fieldValid( 66 ); }
   U16 csProfile65Len() const { return fieldLen( 66 ); }
   U16 csProfile65Offset() const { return fieldStart( 66 ); }

   // [264, 4]
   void csProfile66Is( U8 value ) { fieldAtIs( Impl::traced(), 67, 264, 4, 8, value ); }
   U8 csProfile66() const { return static_cast< U8 >( fieldAt( Impl::traced(), 67, 264, 4 ) ); }
   bool isCsProfile66Valid() const { return fieldValid( 67 ); }
   U16 csProfile66Len() const { return fieldLen( 67 ); }
   U16 csProfile66Offset() const { return fieldStart( 67 ); }

   // [268, 4]
   void csProfile67Is( U8 value ) { fieldAtIs( Impl::traced(), 68, 268, 4, 8, value ); }
   U8 csProfile67() const { return static_cast< U8 >( fieldAt( Impl::traced(), 68, 268, 4 ) ); }
   bool isCsProfile67Valid() const { return fieldValid( 68 ); }
   U16 csProfile67Len() const { return fieldLen( 68 ); }
   U16 csProfile67Offset() const { return fieldStart( 68 ); }

   // [272, 4]
   void csProfile68Is( U8 value ) { fieldAtIs( Impl::traced(), 69, 272, 4, 8, value ); }
   U8 csProfile68() const { return static_cast< U8 >( fieldAt( Impl::traced(), 69, 272, 4 ) ); }
   bool isCsProfile68Valid() const { return fieldValid( 69 ); }
   U16 csProfile68Len() const { return fieldLen( 69 ); }
   U16 csProfile68Offset() const { return fieldStart( 69 ); }

   // [276, 4]
   void csProfile69Is( U8 value ) { fieldAtIs( Impl::traced(), 70, 276, 4, 8, value ); }
   U8 csProfile69() const { return static_cast< U8 >( fieldAt( Impl::traced(), 70, 276, 4 ) ); }
   bool isCsProfile69Valid() const { return fieldValid( 70 ); }
   U16 csProfile69Len() const { return fieldLen( 70 ); }
   U16 csProfile69Offset() const { return fieldStart( 70 ); }

   // [280, 4]
   void csProfile70Is( U8 value ) { fieldAtIs( Impl::traced(), 71, 280, 4, 8, value ); }
   U8 csProfile70() const { return static_cast< U8 >( fieldAt( Impl::traced(), 71, 280, 4 ) ); }
   bool isCsProfile70Valid() const { return fieldValid( 71 ); }
   U16 csProfile70Len() const { return fieldLen( 71 ); }
   U16 csProfile70Offset() const { return fieldStart( 71 ); }

   // [284, 4]
   void csProfile71Is( U8 value ) { fieldAtIs( Impl::traced(), 72, 284, 4, 8, value ); }
   U8 csProfile71() const { return static_cast< U8 >( fieldAt( Impl::traced(), 72, 284, 4 ) ); }
   bool isCsProfile71Valid() const { return fieldValid( 72 ); }
   U16 csProfile71Len() const { return fieldLen( 72 ); }
   U16 csProfile71Offset() const { return fieldStart( 72 ); }

   // [288, 4]
   void csProfile72Is( U8 value ) { fieldAtIs( Impl::traced(), 73, 288, 4, 8, value ); }
   U8 csProfile72() const { return static_cast< U8 >( fieldAt( Impl::traced(), 73, 288, 4 ) ); }
   bool isCsProfile72Valid() const { return fieldValid( 73 ); }
   U16 csProfile72Len() const { return fieldLen( 73 ); }
   U16 csProfile72Offset() const { return fieldStart( 73 ); }

   // [292, 4]
   void csProfile73Is( U8 value ) { fieldAtIs( Impl::traced(), 74, 292, 4, 8, value ); }
   U8 csProfile73() const { return static_cast< U8 >( fieldAt( Impl::traced(), 74, 292, 4 ) ); }
   bool isCsProfile73Valid() const { return fieldValid( 74 ); }
   U16 csProfile73Len() const { return fieldLen( 74 ); }
   U16 csProfile73Offset() const { return fieldStart( 74 ); }

   // [296, 4]
   void csProfile74Is( U8 value ) { fieldAtIs( Impl::traced(), 75, 296, 4, 8, value ); }
   U8 csProfile74() const { return static_cast< U8 >( fieldAt( Impl::traced(), 75, 296, 4 ) ); }
   bool isCsProfile74Valid() const { return fieldValid( 75 ); }
   U16 csProfile74Len() const { return fieldLen( 75 ); }
   U16 csProfile74Offset() const { return fieldStart( 75 ); }

   // [300, 4]
   void csProfile75Is( U8 value ) { fieldAtIs( Impl::traced(), 76, 300, 4, 8, value ); }
   U8 csProfile75() const { return static_cast< U8 >( fieldAt( Impl::traced(), 76, 300, 4 ) ); }
   bool isCsProfile75Valid() const { return fieldValid( 76 ); }
   U16 csProfile75Len() const { return fieldLen( 76 ); }
   U16 csProfile75Offset() const { return fieldStart( 76 ); }

   // [304, 4]
   void csProfile76Is( U8 value ) { fieldAtIs( Impl::traced(), 77, 304, 4, 8, value ); }
   U8 csProfile76() const { return static_cast< U8 >( fieldAt( Impl::traced(), 77, 304, 4 ) ); }
   bool isCsProfile76Valid() const { return fieldValid( 77 ); }
   U16 csProfile76Len() const { return fieldLen( 77 ); }
   U16 csProfile76Offset() const { return fieldStart( 77 ); }

   // [308, 4]
   void csProfile77Is( U8 value ) { fieldAtIs( Impl::traced(), 78, 308, 4, 8, value ); }
   U8 csProfile77() const { return static_cast< U8 >( fieldAt( Impl::traced(), 78, 308, 4 ) ); }
   bool isCsProfile77Valid() const { return fieldValid( 78 ); }
   U16 csProfile77Len() const { return fieldLen( 78 ); }
   U16 csProfile77Offset() const { return fieldStart( 78 ); }

   // [312, 4]
   void csProfile78Is( U8 value ) { fieldAtIs( Impl::traced(), 79, 312, 4, 8, value ); }
   U8 csProfile78() const { return static_cast< U8 >( fieldAt( Impl::traced(), 79, 312, 4 ) ); }
   bool isCsProfile78Valid() const { return fieldValid( 79 ); }
   U16 csProfile78Len() const { return fieldLen( 79 ); }
   U16 csProfile78Offset() const { return fieldStart( 79 ); }

   // [316, 4]
   void csProfile79Is( U8 value ) { fieldAtIs( Impl::traced(), 80, 316, 4, 8, value ); }
   U8 csProfile79() const { return static_cast< U8 >( fieldAt( Impl::traced(), 80, 316, 4 ) ); }
   bool isCsProfile79Valid() const { return fieldValid( 80 ); }
   U16 csProfile79Len() const { return fieldLen( 80 ); }
   U16 csProfile79Offset() const { return fieldStart( 80 ); }

   // [320, 4]
   void csProfile80Is( U8 value ) { fieldAtIs( Impl::traced(), 81, 320, 4, 8, value ); }
   U8 csProfile80() const { return static_cast< U8 >( fieldAt( Impl::traced(), 81, 320, 4 ) ); }
   bool isCsProfile80Valid() const { return fieldValid( 81 ); }
   U16 csProfile80Len() const { return fieldLen( 81 ); }
   U16 csProfile80Offset() const { return fieldStart( 81 ); }

   // [324, 4]
   void csProfile81Is( U8 value ) { fieldAtIs( Impl::traced(), 82, 324, 4, 8, value ); }
   U8 csProfile81() const { return static_cast< U8 >( fieldAt( Impl::traced(), 82, 324, 4 ) ); }
   bool isCsProfile81Valid() const { return fieldValid( 82 ); }
   U16 csProfile81Len() const { return fieldLen( 82 ); }
   U16 csProfile81Offset() const { return fieldStart( 82 ); }

   // [328, 4]
   void csProfile82Is( U8 value ) { fieldAtIs( Impl::traced(), 83, 328, 4, 8, value ); }
   U8 csProfile82() const { return static_cast< U8 >( fieldAt( Impl::traced(), 83, 328, 4 ) ); }
   bool isCsProfile82Valid() const { return fieldValid( 83 ); }
   U16 csProfile82Len() const { return fieldLen( 83 ); }
   U16 csProfile82Offset() const { return fieldStart( 83 ); }

   // [332, 4]
   void csProfile83Is( U8 value ) { fieldAtIs( Impl::traced(), 84, 332, 4, 8, value ); }
   U8 csProfile83() const { return static_cast< U8 >( fieldAt( Impl::traced(), 84, 332, 4 ) ); }
   bool isCsProfile83Valid() const { return fieldValid( 84 ); }
   U16 csProfile83Len() const { return fieldLen( 84 ); }
   U16 csProfile83Offset() const { return fieldStart( 84 ); }

   // [336, 4]
   void csProfile84Is( U8 value ) { fieldAtIs( Impl::traced(), 85, 336, 4, 8, value ); }
   U8 csProfile84() const { return static_cast< U8 >( fieldAt( Impl::traced(), 85, 336, 4 ) ); }
   bool isCsProfile84Valid() const { return fieldValid( 85 ); }
   U16 csProfile84Len() const { return fieldLen( 85 ); }
   U16 csProfile84Offset() const { return fieldStart( 85 ); }

   // [340, 4]
   void csProfile85Is( U8 value ) { fieldAtIs( Impl::traced(), 86, 340, 4, 8, value ); }
   U8 csProfile85() const { return static_cast< U8 >( fieldAt( Impl::traced(), 86, 340, 4 ) ); }
   bool isCsProfile85Valid() const { return fieldValid( 86 ); }
   U16 csProfile85Len() const { return fieldLen( 86 ); }
   U16 csProfile85Offset() const { return fieldStart( 86 ); }

   // [344, 4]
   void csProfile86Is( U8 value ) { fieldAtIs( Impl::traced(), 87, 344, 4, 8, value ); }
   U8 csProfile86() const { return static_cast< U8 >( fieldAt( Impl::traced(), 87, 344, 4 ) ); }
   bool isCsProfile86Valid() const { return fieldValid( 87 ); }
   U16 csProfile86Len() const { return fieldLen( 87 ); }
   U16 csProfile86Offset() const { return fieldStart( 87 ); }

   // [348, 4]
   void csProfile87Is( U8 value ) { fieldAtIs( Impl::traced(), 88, 348, 4, 8, value ); }
   U8 csProfile87() const { return static_cast< U8 >( fieldAt( Impl::traced(), 88, 348, 4 ) ); }
   bool isCsProfile87Valid() const { return fieldValid( 88 ); }
   U16 csProfile87Len() const { return fieldLen( 88 ); }
   U16 csProfile87Offset() const { return fieldStart( 88 ); }

   // [352, 4]
   void csProfile88Is( U8 value ) { fieldAtIs( Impl::traced(), 89, 352, 4, 8, value ); }
   U8 csProfile88() const { return static_cast< U8 >( fieldAt( Impl::traced(), 89, 352, 4 ) ); }
   bool isCsProfile88Valid() const { return fieldValid( 89 ); }
   U16 csProfile88Len() const { return fieldLen( 89 ); }
   U16 csProfile88Offset() const { return fieldStart( 89 ); }

   // [356, 4]
   void csProfile89Is( U8 value ) { fieldAtIs( Impl::traced(), 90, 356, 4, 8, value ); }
   U8 csProfile89() const { return static_cast< U8 >( fieldAt( Impl::traced(), 90, 356, 4 ) ); }
   bool isCsProfile89Valid() const { return fieldValid( 90 ); }
   U16 csProfile89Len() const { return fieldLen( 90 ); }
   U16 csProfile89Offset() const { return fieldStart( 90 ); }

   // [360, 4]
   void csProfile90Is( U8 value ) { fieldAtIs( Impl::traced(), 91, 360, 4, 8, value ); }
   U8 csProfile90() const { return static_cast< U8 >( fieldAt( Impl::traced(), 91, 360, 4 ) ); }
   bool isCsProfile90Valid() const { return fieldValid( 91 ); }
   U16 csProfile90Len() const { return fieldLen( 91 ); }
   U16 csProfile90Offset() const { return fieldStart( 91 ); }

   // [364, 4]
   void csProfile91Is( U8 value ) { fieldAtIs( Impl::traced(), 92, 364, 4, 8, value ); }
   U8 csProfile91() const { return static_cast< U8 >( fieldAt( Impl::traced(), 92, 364, 4 ) ); }
   bool isCsProfile91Valid() const { return fieldValid( 92 ); }
   U16 csProfile91Len() const { return fieldLen( 92 ); }
   U16 csProfile91Offset() const { return fieldStart( 92 ); }

   // [368, 4]
   void csProfile92Is( U8 value ) { fieldAtIs( Impl::traced(), 93, 368, 4, 8, value ); }
   U8 csProfile92() const { return static_cast< U8 >( fieldAt( Impl::traced(), 93, 368, 4 ) ); }
   bool isCsProfile92Valid() const { return fieldValid( 93 ); }
   U16 csProfile92Len() const { return fieldLen( 93 ); }
   U16 csProfile92Offset() const { return fieldStart( 93 ); }

   // [372, 4]
   void csProfile93Is( U8 value ) { fieldAtIs( Impl::traced(), 94, 372, 4, 8, value ); }
   U8 csProfile93() const { return static_cast< U8 >( fieldAt( Impl::traced(), 94, 372, 4 ) ); }
   bool isCsProfile93Valid() const { return fieldValid( 94 ); }
   U16 csProfile93Len() const { return fieldLen( 94 ); }
   U16 csProfile93Offset() const { return fieldStart( 94 ); }

   // [376, 4]
   void csProfile94Is( U8 value ) { fieldAtIs( Impl::traced(), 95, 376, 4, 8, value ); }
   U8 csProfile94() const { return static_cast< U8 >( fieldAt( Impl::traced(), 95, 376, 4 ) ); }
   bool isCsProfile94Valid() const { return fieldValid( 95 ); }
   U16 csProfile94Len() const { return fieldLen( 95 ); }
   U16 csProfile94Offset() const { return fieldStart( 95 ); }

   // [380, 4]
   void csProfile95Is( U8 value ) { fieldAtIs( Impl::traced(), 96, 380, 4, 8, value ); }
   U8 csProfile95() const { return static_cast< U8 >( fieldAt( Impl::traced(), 96, 380, 4 ) ); }
   bool isCsProfile95Valid() const { return fieldValid( 96 ); }
   U16 csProfile95Len() const { return fieldLen( 96 ); }
   U16 csProfile95Offset() const { return fieldStart( 96 ); }

   // [384, 4]
   void csProfile96Is( U8 value ) { fieldAtIs( Impl::traced(), 97, 384, 4, 8, value ); }
   U8 csProfile96() const { return static_cast< U8 >( fieldAt( Impl::traced(), 97, 384, 4 ) ); }
   bool isCsProfile96Valid() const { return fieldValid( 97 ); }
   U16 csProfile96Len() const { return fieldLen( 97 ); }
   U16 csProfile96Offset() const { return fieldStart( 97 ); }

   // [388, 4]
   void csProfile97Is( U8 value ) { fieldAtIs( Impl::traced(), 98, 388, 4, 8, value ); }
   U8 csProfile97() const { return static_cast< U8 >( fieldAt( Impl::traced(), 98, 388, 4 ) ); }
   bool isCsProfile97Valid() const { return fieldValid( 98 ); }
   U16 csProfile97Len() const { return fieldLen( 98 ); }
   U16 csProfile97Offset() const { return fieldStart( 98 ); }

   // [392, 4]
   void csProfile98Is( U8 value ) { fieldAtIs( Impl::traced(), 99, 392, 4, 8, value ); }
   U8 csProfile98() const { return static_cast< U8 >( fieldAt( Impl::traced(), 99, 392, 4 ) ); }
   bool isCsProfile98Valid() const { return fieldValid( 99 ); }
   U16 csProfile98Len() const { return fieldLen( 99 ); }
   U16 csProfile98Offset() const { return fieldStart( 99 ); }

   // [396, 4]
   void csProfile99Is( U8 value ) { fieldAtIs( Impl::traced(), 100, 396, 4, 8, value ); }
   U8 csProfile99() const { return static_cast< U8 >( fieldAt( Impl::traced(), 100, 396, 4 ) ); }
   bool isCsProfile99Valid() const { return fieldValid( 100 ); }
   U16 csProfile99Len() const { return fieldLen( 100 ); }
   U16 csProfile99Offset() const { return fieldStart( 100 ); }

   // [400, 4]
   void csProfile100Is( U8 value ) { fieldAtIs( Impl::traced(), 101, 400, 4, 8, value ); }
   U8 csProfile100() const { return static_cast< U8 >( fieldAt( Impl::traced(), 101, 400, 4 ) ); }
   bool isCsProfile100Valid() const { return fieldValid( 101 ); }
   U16 csProfile100Len() const { return fieldLen( 101 ); }
   U16 csProfile100Offset() const { return fieldStart( 101 ); }

   // [404, 4]
   void csProfile101Is( U8 value ) { fieldAtIs( Impl::traced(), 102, 404, 4, 8, value ); }
   U8 csProfile101() const { return static_cast< U8 >( fieldAt( Impl::traced(), 102, 404, 4 ) ); }
   bool isCsProfile101Valid() const { return fieldValid( 102 ); }
   U16 csProfile101Len() const { return fieldLen( 102 ); }
   U16 csProfile101Offset() const { return fieldStart( 102 ); }

   // [408, 4]
   void csProfile102Is( U8 value ) { fieldAtIs( Impl::traced(), 103, 408, 4, 8, value ); }
   U8 csProfile102() const { return static_cast< U8 >( fieldAt( Impl::traced(), 103, 408, 4 ) ); }
   bool isCsProfile102Valid() const { return fieldValid( 103 ); }
   U16 csProfile102Len() const { return fieldLen( 103 ); }
   U16 csProfile102Offset() const { return fieldStart( 103 ); }

   // [412, 4]
   void csProfile103Is( U8 value ) { fieldAtIs( Impl::traced(), 104, 412, 4, 8, value ); }
   U8 csProfile103() const { return static_cast< U8 >( fieldAt( Impl::traced(), 104, 412, 4 ) ); }
   bool isCsProfile103Valid() const { return fieldValid( 104 ); }
   U16 csProfile103Len() const { return fieldLen( 104 ); }
   U16 csProfile103Offset() const { return fieldStart( 104 ); }

   // [416, 4]
   void csProfile104Is( U8 value ) { fieldAtIs( Impl::traced(), 105, 416, 4, 8, value ); }
   U8 csProfile104() const { return static_cast< U8 >( fieldAt( Impl::traced(), 105, 416, 4 ) ); }
   bool isCsProfile104Valid() const { return fieldValid( 105 ); }
   U16 csProfile104Len() const { return fieldLen( 105 ); }
   U16 csProfile104Offset() const { return fieldStart( 105 ); }

   // [420, 4]
   void csProfile105Is( U8 value ) { fieldAtIs( Impl::traced(), 106, 420, 4, 8, value ); }
   U8 csProfile105() const { return static_cast< U8 >( fieldAt( Impl::traced(), 106, 420, 4 ) ); }
   bool isCsProfile105Valid() const { return fieldValid( 106 ); }
   U16 csProfile105Len() const { return fieldLen( 106 ); }
   U16 csProfile105Offset() const { return fieldStart( 106 ); }

   // [424, 4]
   void csProfile106Is( U8 value ) { fieldAtIs( Impl::traced(), 107, 424, 4, 8, value ); }
   U8 csProfile106() const { return static_cast< U8 >( fieldAt( Impl::traced(), 107, 424, 4 ) ); }
   bool isCsProfile106Valid() const { return fieldValid( 107 ); }
   U16 csProfile106Len() const { return fieldLen( 107 ); }
   U16 csProfile106Offset() const { return fieldStart( 107 ); }

   // [428, 4]
   void csProfile107Is( U8 value ) { fieldAtIs( Impl::traced(), 108, 428, 4, 8, value ); }
   U8 csProfile107() const { return static_cast< U8 >( fieldAt( Impl::traced(), 108, 428, 4 ) ); }
   bool isCsProfile107Valid() const { return fieldValid( 108 ); }
   U16 csProfile107Len() const { return fieldLen( 108 ); }
   U16 csProfile107Offset() const { return fieldStart( 108 ); }

   // [432, 4]
   void csProfile108Is( U8 value ) { fieldAtIs( Impl::traced(), 109, 432, 4, 8, value ); }
   U8 csProfile108() const { return static_cast< U8 >( fieldAt( Impl::traced(), 109, 432, 4 ) ); }
   bool isCsProfile108Valid() const { return fieldValid( 109 ); }
   U16 csProfile108Len() const { return fieldLen( 109 ); }
   U16 csProfile108Offset() const { return fieldStart( 109 ); }

   // [436, 4]
   void csProfile109Is( U8 value ) { fieldAtIs( Impl::traced(), 110, 436, 4, 8, value ); }
   U8 csProfile109() const { return static_cast< U8 >( fieldAt( Impl::traced(), 110, 436, 4 ) ); }
   bool isCsProfile109Valid() const { return fieldValid( 110 ); }
   U16 csProfile109Len() const { return fieldLen( 110 ); }
   U16 csProfile109Offset() const { return fieldStart( 110 ); }

   // [440, 4]
   void csProfile110Is( U8 value ) { fieldAtIs( Impl::traced(), 111, 440, 4, 8, value ); }
   U8 csProfile110() const { return static_cast< U8 >( fieldAt( Impl::traced(), 111, 440, 4 ) ); }
   bool isCsProfile110Valid() const { return fieldValid( 111 ); }
   U16 csProfile110Len() const { return fieldLen( 111 ); }
   U16 csProfile110Offset() const { return fieldStart( 111 ); }

   // [444, 4]
   void csProfile111Is( U8 value ) { fieldAtIs( Impl::traced(), 112, 444, 4, 8, value ); }
   U8 csProfile111() const { return static_cast< U8 >( fieldAt( Impl::traced(), 112, 444, 4 ) ); }
   bool isCsProfile111Valid() const { return fieldValid( 112 ); }
   U16 csProfile111Len() const { return fieldLen( 112 ); }
   U16 csProfile111Offset() const { return fieldStart( 112 ); }

   // [448, 4]
   void csProfile112Is( U8 value ) { fieldAtIs( Impl::traced(), 113, 448, 4, 8, value ); }
   U8 csProfile112() const { return static_cast< U8 >( fieldAt( Impl::traced(), 113, 448, 4 ) ); }
   bool isCsProfile112Valid() const { return fieldValid( 113 ); }
   U16 csProfile112Len() const { return fieldLen( 113 ); }
   U16 csProfile112Offset() const { return fieldStart( 113 ); }

   // [452, 4]
   void csProfile113Is( U8 value ) { fieldAtIs( Impl::traced(), 114, 452, 4, 8, value ); }
   U8 csProfile113() const { return static_cast< U8 >( fieldAt( Impl::traced(), 114, 452, 4 ) ); }
   bool isCsProfile113Valid() const { return fieldValid( 114 ); }
   U16 csProfile113Len() const { return fieldLen( 114 ); }
   U16 csProfile113Offset() const { return fieldStart( 114 ); }

   // [456, 4]
   void csProfile114Is( U8 value ) { fieldAtIs( Impl::traced(), 115, 456, 4, 8, value ); }
   U8 csProfile114() const { return static_cast< U8 >( fieldAt( Impl::traced(), 115, 456, 4 ) ); }
   bool isCsProfile114Valid() const { return fieldValid( 115 ); }
   U16 csProfile114Len() const { return fieldLen( 115 ); }
   U16 csProfile114Offset() const { return fieldStart( 115 ); }

   // [460, 4]
   void csProfile115Is( U8 value ) { fieldAtIs( Impl::traced(), 116, 460, 4, 8, value ); }
   U8 csProfile115() const { return static_cast< U8 >( fieldAt( Impl::traced(), 116, 460, 4 ) ); }
   bool isCsProfile115Valid() const { return fieldValid( 116 ); }
   U16 csProfile115Len() const { return fieldLen( 116 ); }
   U16 csProfile115Offset() const { return fieldStart( 116 ); }

   // [464, 4]
   void csProfile116Is( U8 value ) { fieldAtIs( Impl::traced(), 117, 464, 4, 8, value ); }
   U8 csProfile116() const { return static_cast< U8 >( fieldAt( Impl::traced(), 117, 464, 4 ) ); }
   bool isCsProfile116Valid() const { return fieldValid( 117 ); }
   U16 csProfile116Len() const { return fieldLen( 117 ); }
   U16 csProfile116Offset() const { return fieldStart( 117 ); }

   // [468, 4]
   void csProfile117Is( U8 value ) { fieldAtIs( Impl::traced(), 118, 468, 4, 8, value ); }
   U8 csProfile117() const { return static_cast< U8 >( fieldAt( Impl::traced(), 118, 468, 4 ) ); }
   bool isCsProfile117Valid() const { return fieldValid( 118 ); }
   U16 csProfile117Len() const { return fieldLen( 118 ); }
   U16 csProfile117Offset() const { return fieldStart( 118 ); }

   // [472, 4]
   void csProfile118Is( U8 value ) { fieldAtIs( Impl::traced(), 119, 472, 4, 8, value ); }
   U8 csProfile118() const { return static_cast< U8 >( fieldAt( Impl::traced(), 119, 472, 4 ) ); }
   bool isCsProfile118Valid() const { return fieldValid( 119 ); }
   U16 csProfile118Len() const { return fieldLen( 119 ); }
   U16 csProfile118Offset() const { return fieldStart( 119 ); }

   // [476, 4]
   void csProfile119Is( U8 value ) { fieldAtIs( Impl::traced(), 120, 476, 4, 8, value ); }
   U8 csProfile119() const { return static_cast< U8 >( fieldAt( Impl::traced(), 120, 476, 4 ) ); }
   bool isCsProfile119Valid() const { return fieldValid( 120 ); }
   U16 csProfile119Len() const { return fieldLen( 120 ); }
   U16 csProfile119Offset() const { return fieldStart( 120 ); }

   // [480, 4]
   void csProfile120Is( U8 value ) { fieldAtIs( Impl::traced(), 121, 480, 4, 8, value ); }
   U8 csProfile120() const { return static_cast< U8 >( fieldAt( Impl::traced(), 121, 480, 4 ) ); }
   bool isCsProfile120Valid() const { return fieldValid( 121 ); }
   U16 csProfile120Len() const { return fieldLen( 121 ); }
   U16 csProfile120Offset() const { return fieldStart( 121 ); }

   // [484, 4]
   void csProfile121Is( U8 value ) { fieldAtIs( Impl::traced(), 122, 484, 4, 8, value ); }
   U8 csProfile121() const { return static_cast< U8 >( fieldAt( Impl::traced(), 122, 484, 4 ) ); }
   bool isCsProfile121Valid() const { return fieldValid( 122 ); }
   U16 csProfile121Len() const { return fieldLen( 122 ); }
   U16 csProfile121Offset() const { return fieldStart( 122 ); }

   // [488, 4]
   void csProfile122Is( U8 value ) { fieldAtIs( Impl::traced(), 123, 488, 4, 8, value ); }
   U8 csProfile122() const { return static_cast< U8 >( fieldAt( Impl::traced(), 123, 488, 4 ) ); }
   bool isCsProfile122Valid() const { return fieldValid( 123 ); }
   U16 csProfile122Len() const { return fieldLen( 123 ); }
   U16 csProfile122Offset() const { return fieldStart( 123 ); }

   // [492, 4]
   void csProfile123Is( U8 value ) { fieldAtIs( Impl::traced(), 124, 492, 4, 8, value ); }
   U8 csProfile123() const { return static_cast< U8 >( fieldAt( Impl::traced(), 124, 492, 4 ) ); }
   bool isCsProfile123Valid() const { return fieldValid( 124 ); }
   U16 csProfile123Len() const { return fieldLen( 124 ); }
   U16 csProfile123Offset() const { return fieldStart( 124 ); }

   // [496, 4]
   void csProfile124Is( U8 value ) { fieldAtIs( Impl::traced(), 125, 496, 4, 8, value ); }
   U8 csProfile124() const { return static_cast< U8 >( fieldAt( Impl::traced(), 125, 496, 4 ) ); }
   bool isCsProfile124Valid() const { return fieldValid( 125 ); }
   U16 csProfile124Len() const { return fieldLen( 125 ); }
   U16 csProfile124Offset() const { return fieldStart( 125 ); }

   // [500, 4]
   void csProfile125Is( U8 value ) { fieldAtIs( Impl::traced(), 126, 500, 4, 8, value ); }
   U8 csProfile125() const { return static_cast< U8 >( fieldAt( Impl::traced(), 126, 500, 4 ) ); }
   bool isCsProfile125Valid() const { return fieldValid( 126 ); }
   U16 csProfile125Len() const { return fieldLen( 126 ); }
   U16 csProfile125Offset() const { return fieldStart( 126 ); }

   // [504, 4]
   void csProfile126Is( U8 value ) { fieldAtIs( Impl::traced(), 127, 504, 4, 8, value ); }
   U8 csProfile126() const { return static_cast< U8 >( fieldAt( Impl::traced(), 127, 504, 4 ) ); }
   bool isCsProfile126Valid() const { return fieldValid( 127 ); }
   U16 csProfile126Len() const { return fieldLen( 127 ); }
   U16 csProfile126Offset() const { return fieldStart( 127 ); }

   // [508, 4]
   void csProfile127Is( U8 value ) { fieldAtIs( Impl::traced(), 128, 508, 4, 8, value ); }
   U8 csProfile127() const { return static_cast< U8 >( fieldAt( Impl::traced(), 128, 508, 4 ) ); }
   bool isCsProfile127Valid() const { return fieldValid( 128 ); }
   U16 csProfile127Len() const { return fieldLen( 128 ); }
   U16 csProfile127Offset() const { return fieldStart( 128 ); }

   // csProfile0 to csProfile127 by number
   void csProfileIs( U32 index, U8 value ) { runFieldIs( 0, index, value ); }
   U8 csProfile( U32 index ) const { return static_cast< U8 >( runField( 0, index ) ); }
};

class InLifProfileCsFlagsMsb::WithStorage : public InLifProfileCsFlagsMsb {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : InLifProfileCsFlagsMsb( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[64] = {};
};

// Memory.
class IppaVtecsAction : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppaVtecsAction( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppaVtecsAction( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 13]
   void vtecsActionIs( U16 value ) { fieldAtIs( Impl::traced(), 0, 0, 13, 16, value ); }
   U16 vtecsAction() const { return static_cast< U16 >( fieldAt( Impl::traced(), 0, 0, 13 ) ); }
   bool isVtecsActionValid() const { return fieldValid( 0 ); }
   U16 vtecsActionLen() const { return fieldLen( 0 ); }
   U16 vtecsActionOffset() const { return fieldStart( 0 ); }
};

class IppaVtecsAction::WithStorage : public IppaVtecsAction {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppaVtecsAction( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Memory.
class IppbFlpLePd0 : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppbFlpLePd0( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppbFlpLePd0( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw256 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw256 >( chip, variant ); }
   virtual Raw256 allFieldsMask() const;
   Raw256 getAllFields() const { return allFields< Raw256 >(); }

   // [0, 32]
   void strengthWidthVecIs( U32 value ) { fieldAtIs( Impl::traced(), 0, 0, 32, 32, value ); }
   U32 strengthWidthVec() const { return static_cast< U32 >( fieldAt( Impl::traced(), 0, 0, 32 ) ); }
   bool isStrengthWidthVecValid() const { return fieldValid( 0 ); }
   U16 strengthWidthVecLen() const { return fieldLen( 0 ); }
   U16 strengthWidthVecOffset() const { return fieldStart( 0 ); }

   // [0, 176]
   void memDataIs( Raw256 const & value ) { wideFieldIs( 1, value.word.data() ); }
   Raw256 memData() const { return wideField< Raw256 >( 1 ); }
   bool isMemDataValid() const { return fieldValid( 1 ); }
   U16 memDataLen() const { return fieldLen( 1 ); }
   U16 memDataOffset() const { return fieldStart( 1 ); }

   // [16, 1]
   void numberOfInterfacesIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 16, 1, 8, value ); }
   U8 numberOfInterfaces() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 16, 1 ) ); }
   bool isNumberOfInterfacesValid() const { return fieldValid( 2 ); }
   U16 numberOfInterfacesLen() const { return fieldLen( 2 ); }
   U16 numberOfInterfacesOffset() const { return fieldStart( 2 ); }

   // [32, 64]
   void constStrengthVecIs( U64 const & value ) { fieldAtIs( Impl::traced(), 3, 32, 64, 64, value ); }
   U64 constStrengthVec() const { return fieldAt( Impl::traced(), 3, 32, 64 ); }
   bool isConstStrengthVecValid() const { return fieldValid( 3 ); }
   U16 constStrengthVecLen() const { return fieldLen( 3 ); }
   U16 constStrengthVecOffset() const { return fieldStart( 3 ); }

   // [96, 80]
   void orderVecIs( Raw128 const & value ) { wideFieldIs( 4, value.word.data() ); }
   Raw128 orderVec() const { return wideField< Raw128 >( 4 ); }
   bool isOrderVecValid() const { return fieldValid( 4 ); }
   U16 orderVecLen() const { return fieldLen( 4 ); }
   U16 orderVecOffset() const { return fieldStart( 4 ); }

   // [176, 40] or absent
   void reservedIs( U64 const & value ) { fieldIs( 5, value ); }
   U64 reserved() const { return fieldValue( 5 ); }
   bool isReservedValid() const { return fieldValid( 5 ); }
   U16 reservedLen() const { return fieldLen( 5 ); }
   U16 reservedOffset() const { return fieldStart( 5 ); }
};

class IppbFlpLePd0::WithStorage : public IppbFlpLePd0 {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppbFlpLePd0( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[32] = {};
};

// Memory.
class IppbFlpLePd1 : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppbFlpLePd1( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppbFlpLePd1( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw256 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw256 >( chip, variant ); }
   virtual Raw256 allFieldsMask() const;
   Raw256 getAllFields() const { return allFields< Raw256 >(); }

   // [0, 32]
   void strengthWidthVecIs( U32 value ) { fieldAtIs( Impl::traced(), 0, 0, 32, 32, value ); }
   U32 strengthWidthVec() const { return static_cast< U32 >( fieldAt( Impl::traced(), 0, 0, 32 ) ); }
   bool isStrengthWidthVecValid() const { return fieldValid( 0 ); }
   U16 strengthWidthVecLen() const { return fieldLen( 0 ); }
   U16 strengthWidthVecOffset() const { return fieldStart( 0 ); }

   // [0, 176]
   void memDataIs( Raw256 const & value ) { wideFieldIs( 1, value.word.data() ); }
   Raw256 memData() const { return wideField< Raw256 >( 1 ); }
   bool isMemDataValid() const { return fieldValid( 1 ); }
   U16 memDataLen() const { return fieldLen( 1 ); }
   U16 memDataOffset() const { return fieldStart( 1 ); }

   // [16, 1]
   void numberOfInterfacesIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 16, 1, 8, value ); }
   U8 numberOfInterfaces() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 16, 1 ) ); }
   bool isNumberOfInterfacesValid() const { return fieldValid( 2 ); }
   U16 numberOfInterfacesLen() const { return fieldLen( 2 ); }
   U16 numberOfInterfacesOffset() const { return fieldStart( 2 ); }

   // [32, 64]
   void constStrengthVecIs( U64 const & value ) { fieldAtIs( Impl::traced(), 3, 32, 64, 64, value ); }
   U64 constStrengthVec() const { return fieldAt( Impl::traced(), 3, 32, 64 ); }
   bool isConstStrengthVecValid() const { return fieldValid( 3 ); }
   U16 constStrengthVecLen() const { return fieldLen( 3 ); }
   U16 constStrengthVecOffset() const { return fieldStart( 3 ); }

   // [96, 80]
   void orderVecIs( Raw128 const & value ) { wideFieldIs( 4, value.word.data() ); }
   Raw128 orderVec() const { return wideField< Raw128 >( 4 ); }
   bool isOrderVecValid() const { return fieldValid( 4 ); }
   U16 orderVecLen() const { return fieldLen( 4 ); }
   U16 orderVecOffset() const { return fieldStart( 4 ); }

   // [176, 40] or absent
   void reservedIs( U64 const & value ) { fieldIs( 5, value ); }
   U64 reserved() const { return fieldValue( 5 ); }
   bool isReservedValid() const { return fieldValid( 5 ); }
   U16 reservedLen() const { return fieldLen( 5 ); }
   U16 reservedOffset() const { return fieldStart( 5 ); }
};

class IppbFlpLePd1::WithStorage : public IppbFlpLePd1 {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppbFlpLePd1( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[32] = {};
};

// Memory.
class IppbFlpLePd2 : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppbFlpLePd2( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppbFlpLePd2( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw256 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw256 >( chip, variant ); }
   virtual Raw256 allFieldsMask() const;
   Raw256 getAllFields() const { return allFields< Raw256 >(); }

   // [0, 32]
   void strengthWidthVecIs( U32 value ) { fieldAtIs( Impl::traced(), 0, 0, 32, 32, value ); }
   U32 strengthWidthVec() const { return static_cast< U32 >( fieldAt( Impl::traced(), 0, 0, 32 ) ); }
   bool isStrengthWidthVecValid() const { return fieldValid( 0 ); }
   U16 strengthWidthVecLen() const { return fieldLen( 0 ); }
   U16 strengthWidthVecOffset() const { return fieldStart( 0 ); }

   // [0, 176]
   void memDataIs( Raw256 const & value ) { wideFieldIs( 1, value.word.data() ); }
   Raw256 memData() const { return wideField< Raw256 >( 1 ); }
   bool isMemDataValid() const { return fieldValid( 1 ); }
   U16 memDataLen() const { return fieldLen( 1 ); }
   U16 memDataOffset() const { return fieldStart( 1 ); }

   // [16, 1]
   void numberOfInterfacesIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 16, 1, 8, value ); }
   U8 numberOfInterfaces() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 16, 1 ) ); }
   bool isNumberOfInterfacesValid() const { return fieldValid( 2 ); }
   U16 numberOfInterfacesLen() const { return fieldLen( 2 ); }
   U16 numberOfInterfacesOffset() const { return fieldStart( 2 ); }

   // [32, 64]
   void constStrengthVecIs( U64 const & value ) { fieldAtIs( Impl::traced(), 3, 32, 64, 64, value ); }
   U64 constStrengthVec() const { return fieldAt( Impl::traced(), 3, 32, 64 ); }
   bool isConstStrengthVecValid() const { return fieldValid( 3 ); }
   U16 constStrengthVecLen() const { return fieldLen( 3 ); }
   U16 constStrengthVecOffset() const { return fieldStart( 3 ); }

   // [96, 80]
   void orderVecIs( Raw128 const & value ) { wideFieldIs( 4, value.word.data() ); }
   Raw128 orderVec() const { return wideField< Raw128 >( 4 ); }
   bool isOrderVecValid() const { return fieldValid( 4 ); }
   U16 orderVecLen() const { return fieldLen( 4 ); }
   U16 orderVecOffset() const { return fieldStart( 4 ); }

   // [176, 40] or absent
   void reservedIs( U64 const & value ) { fieldIs( 5, value ); }
   U64 reserved() const { return fieldValue( 5 ); }
   bool isReservedValid() const { return fieldValid( 5 ); }
   U16 reservedLen() const { return fieldLen( 5 ); }
   U16 reservedOffset() const { return fieldStart( 5 ); }
};

class IppbFlpLePd2::WithStorage : public IppbFlpLePd2 {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppbFlpLePd2( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[32] = {};
};

// Memory.
class IppbFlpPortProfileMap : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppbFlpPortProfileMap( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppbFlpPortProfileMap( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 5]
   void portProfileIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 5, 8, value ); }
   U8 portProfile() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 5 ) ); }
   bool isPortProfileValid() const { return fieldValid( 0 ); }
   U16 portProfileLen() const { return fieldLen( 0 ); }
   U16 portProfileOffset() const { return fieldStart( 0 ); }
};

class IppbFlpPortProfileMap::WithStorage : public IppbFlpPortProfileMap {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppbFlpPortProfileMap( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Memory.
class IppbFlpacsAction : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppbFlpacsAction( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppbFlpacsAction( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 13]
   void flpacsActionIs( U16 value ) { fieldAtIs( Impl::traced(), 0, 0, 13, 16, value ); }
   U16 flpacsAction() const { return static_cast< U16 >( fieldAt( Impl::traced(), 0, 0, 13 ) ); }
   bool isFlpacsActionValid() const { return fieldValid( 0 ); }
   U16 flpacsActionLen() const { return fieldLen( 0 ); }
   U16 flpacsActionOffset() const { return fieldStart( 0 ); }
};

class IppbFlpacsAction::WithStorage : public IppbFlpacsAction {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppbFlpacsAction( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Memory.
class IppbFlpbResContextEnablers : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppbFlpbResContextEnablers( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppbFlpbResContextEnablers( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U64 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U64 >( chip, variant ); }
   virtual U64 allFieldsMask() const;
   U64 getAllFields() const { return allFields< U64 >(); }

   // [0, 1]
   void setUnknownAddressEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 1, 8, value ); }
   U8 setUnknownAddressEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 1 ) ); }
   bool isSetUnknownAddressEnableValid() const { return fieldValid( 0 ); }
   U16 setUnknownAddressEnableLen() const { return fieldLen( 0 ); }
   U16 setUnknownAddressEnableOffset() const { return fieldStart( 0 ); }

   // [1, 1]
   void actionProfileEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 1, 1, 8, value ); }
   U8 actionProfileEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 1, 1 ) ); }
   bool isActionProfileEnableValid() const { return fieldValid( 1 ); }
   U16 actionProfileEnableLen() const { return fieldLen( 1 ); }
   U16 actionProfileEnableOffset() const { return fieldStart( 1 ); }

   // [2, 1]
   void doDefaultEthernetEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 2, 1, 8, value ); }
   U8 doDefaultEthernetEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 2, 1 ) ); }
   bool isDoDefaultEthernetEnableValid() const { return fieldValid( 2 ); }
   U16 doDefaultEthernetEnableLen() const { return fieldLen( 2 ); }
   U16 doDefaultEthernetEnableOffset() const { return fieldStart( 2 ); }

   // [3, 1]
   void compatibleMcBridgeFallbackEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 3, 3, 1, 8, value ); }
   U8 compatibleMcBridgeFallbackEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 3, 1 ) ); }
   bool isCompatibleMcBridgeFallbackEnableValid() const { return fieldValid( 3 ); }
   U16 compatibleMcBridgeFallbackEnableLen() const { return fieldLen( 3 ); }
   U16 compatibleMcBridgeFallbackEnableOffset() const { return fieldStart( 3 ); }

   // [4, 1]
   void oamClassificationEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 4, 4, 1, 8, value ); }
   U8 oamClassificationEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 4, 4, 1 ) ); }
   bool isOamClassificationEnableValid() const { return fieldValid( 4 ); }
   U16 oamClassificationEnableLen() const { return fieldLen( 4 ); }
   U16 oamClassificationEnableOffset() const { return fieldStart( 4 ); }

   // [5, 1]
   void aclResolutionEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 5, 5, 1, 8, value ); }
   U8 aclResolutionEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 5, 5, 1 ) ); }
   bool isAclResolutionEnableValid() const { return fieldValid( 5 ); }
   U16 aclResolutionEnableLen() const { return fieldLen( 5 ); }
   U16 aclResolutionEnableOffset() const { return fieldStart( 5 ); }

   // [6, 1]
   void kapsResolutionEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 6, 6, 1, 8, value ); }
   U8 kapsResolutionEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 6, 6, 1 ) ); }
   bool isKapsResolutionEnableValid() const { return fieldValid( 6 ); }
   U16 kapsResolutionEnableLen() const { return fieldLen( 6 ); }
   U16 kapsResolutionEnableOffset() const { return fieldStart( 6 ); }

   // [7, 1]
   void controlPathTrapsEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 7, 7, 1, 8, value ); }
   U8 controlPathTrapsEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 7, 7, 1 ) ); }
   bool isControlPathTrapsEnableValid() const { return fieldValid( 7 ); }
   U16 controlPathTrapsEnableLen() const { return fieldLen( 7 ); }
   U16 controlPathTrapsEnableOffset() const { return fieldStart( 7 ); }

   // [8, 1]
   void fwdAdditionalInfoEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 8, 8, 1, 8, value ); }
   U8 fwdAdditionalInfoEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 8, 8, 1 ) ); }
   bool isFwdAdditionalInfoEnableValid() const { return fieldValid( 8 ); }
   U16 fwdAdditionalInfoEnableLen() const { return fieldLen( 8 ); }
   U16 fwdAdditionalInfoEnableOffset() const { return fieldStart( 8 ); }

   // [9, 4]
   void fwdAdditionalInfoValIs( U8 value ) { fieldAtIs( Impl::traced(), 9, 9, 4, 8, value ); }
   U8 fwdAdditionalInfoVal() const { return static_cast< U8 >( fieldAt( Impl::traced(), 9, 9, 4 ) ); }
   bool isFwdAdditionalInfoValValid() const { return fieldValid( 9 ); }
   U16 fwdAdditionalInfoValLen() const { return fieldLen( 9 ); }
   U16 fwdAdditionalInfoValOffset() const { return fieldStart( 9 ); }

   // [13, 1]
   void saProcedureEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 10, 13, 1, 8, value ); }
   U8 saProcedureEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 10, 13, 1 ) ); }
   bool isSaProcedureEnableValid() const { return fieldValid( 10 ); }
   U16 saProcedureEnableLen() const { return fieldLen( 10 ); }
   U16 saProcedureEnableOffset() const { return fieldStart( 10 ); }

   // [14, 1]
   void elkErrorTrapEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 11, 14, 1, 8, value ); }
   U8 elkErrorTrapEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 11, 14, 1 ) ); }
   bool isElkErrorTrapEnableValid() const { return fieldValid( 11 ); }
   U16 elkErrorTrapEnableLen() const { return fieldLen( 11 ); }
   U16 elkErrorTrapEnableOffset() const { return fieldStart( 11 ); }

   // [15, 1]
   void fwdUpdateEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 12, 15, 1, 8, value ); }
   U8 fwdUpdateEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 12, 15, 1 ) ); }
   bool isFwdUpdateEnableValid() const { return fieldValid( 12 ); }
   U16 fwdUpdateEnableLen() const { return fieldLen( 12 ); }
   U16 fwdUpdateEnableOffset() const { return fieldStart( 12 ); }

   // [16, 1]
   void rpfUpdateEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 13, 16, 1, 8, value ); }
   U8 rpfUpdateEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 13, 16, 1 ) ); }
   bool isRpfUpdateEnableValid() const { return fieldValid( 13 ); }
   U16 rpfUpdateEnableLen() const { return fieldLen( 13 ); }
   U16 rpfUpdateEnableOffset() const { return fieldStart( 13 ); }

   // [17, 1]
   void forwardingLookupStatisticsEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 14, 17, 1, 8, value ); }
   U8 forwardingLookupStatisticsEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 14, 17, 1 ) ); }
   bool isForwardingLookupStatisticsEnableValid() const { return fieldValid( 14 ); }
   U16 forwardingLookupStatisticsEnableLen() const { return fieldLen( 14 ); }
   U16 forwardingLookupStatisticsEnableOffset() const { return fieldStart( 14 ); }

   // [18, 1]
   void sourceLookupStatisticsEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 15, 18, 1, 8, value ); }
   U8 sourceLookupStatisticsEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 15, 18, 1 ) ); }
   bool isSourceLookupStatisticsEnableValid() const { return fieldValid( 15 ); }
   U16 sourceLookupStatisticsEnableLen() const { return fieldLen( 15 ); }
   U16 sourceLookupStatisticsEnableOffset() const { return fieldStart( 15 ); }

   // [19, 1]
   void fwdDomainStatisticsEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 16, 19, 1, 8, value ); }
   U8 fwdDomainStatisticsEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 16, 19, 1 ) ); }
   bool isFwdDomainStatisticsEnableValid() const { return fieldValid( 16 ); }
   U16 fwdDomainStatisticsEnableLen() const { return fieldLen( 16 ); }
   U16 fwdDomainStatisticsEnableOffset() const { return fieldStart( 16 ); }

   // [20, 1]
   void ttl0EnableIs( U8 value ) { fieldAtIs( Impl::traced(), 17, 20, 1, 8, value ); }
   U8 ttl0Enable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 17, 20, 1 ) ); }
   bool isTtl0EnableValid() const { return fieldValid( 17 ); }
   U16 ttl0EnableLen() const { return fieldLen( 17 ); }
   U16 ttl0EnableOffset() const { return fieldStart( 17 ); }

   // [21, 1]
   void ttl1EnableIs( U8 value ) { fieldAtIs( Impl::traced(), 18, 21, 1, 8, value ); }
   U8 ttl1Enable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 18, 21, 1 ) ); }
   bool isTtl1EnableValid() const { return fieldValid( 18 ); }
   U16 ttl1EnableLen() const { return fieldLen( 18 ); }
   U16 ttl1EnableOffset() const { return fieldStart( 18 ); }

   // [22, 2]
   void ttlActionProfileValueIs( U8 value ) { fieldAtIs( Impl::traced(), 19, 22, 2, 8, value ); }
   U8 ttlActionProfileValue() const { return static_cast< U8 >( fieldAt( Impl::traced(), 19, 22, 2 ) ); }
   bool isTtlActionProfileValueValid() const { return fieldValid( 19 ); }
   U16 ttlActionProfileValueLen() const { return fieldLen( 19 ); }
   U16 ttlActionProfileValueOffset() const { return fieldStart( 19 ); }

   // [24, 1]
   void progTrap0EnableIs( U8 value ) { fieldAtIs( Impl::traced(), 20, 24, 1, 8, value ); }
   U8 progTrap0Enable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 20, 24, 1 ) ); }
   bool isProgTrap0EnableValid() const { return fieldValid( 20 ); }
   U16 progTrap0EnableLen() const { return fieldLen( 20 ); }
   U16 progTrap0EnableOffset() const { return fieldStart( 20 ); }

   // [25, 1]
   void progTrap1EnableIs( U8 value ) { fieldAtIs( Impl::traced(), 21, 25, 1, 8, value ); }
   U8 progTrap1Enable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 21, 25, 1 ) ); }
   bool isProgTrap1EnableValid() const { return fieldValid( 21 ); }
   U16 progTrap1EnableLen() const { return fieldLen( 21 ); }
   U16 progTrap1EnableOffset() const { return fieldStart( 21 ); }

   // [26, 1]
   void progTrap2EnableIs( U8 value ) { fieldAtIs( Impl::traced(), 22, 26, 1, 8, value ); }
   U8 progTrap2Enable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 22, 26, 1 ) ); }
   bool isProgTrap2EnableValid() const { return fieldValid( 22 ); }
   U16 progTrap2EnableLen() const { return fieldLen( 22 ); }
   U16 progTrap2EnableOffset() const { return fieldStart( 22 ); }

   // [27, 1]
   void progTrap3EnableIs( U8 value ) { fieldAtIs( Impl::traced(), 23, 27, 1, 8, value ); }
   U8 progTrap3Enable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 23, 27, 1 ) ); }
   bool isProgTrap3EnableValid() const { return fieldValid( 23 ); }
   U16 progTrap3EnableLen() const { return fieldLen( 23 ); }
   U16 progTrap3EnableOffset() const { return fieldStart( 23 ); }

   // [28, 1]
   void progTrap4EnableIs( U8 value ) { fieldAtIs( Impl::traced(), 24, 28, 1, 8, value ); }
   U8 progTrap4Enable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 24, 28, 1 ) ); }
   bool isProgTrap4EnableValid() const { return fieldValid( 24 ); }
   U16 progTrap4EnableLen() const { return fieldLen( 24 ); }
   U16 progTrap4EnableOffset() const { return fieldStart( 24 ); }

   // [29, 1]
   void progTrap5EnableIs( U8 value ) { fieldAtIs( Impl::traced(), 25, 29, 1, 8, value ); }
   U8 progTrap5Enable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 25, 29, 1 ) ); }
   bool isProgTrap5EnableValid() const { return fieldValid( 25 ); }
   U16 progTrap5EnableLen() const { return fieldLen( 25 ); }
   U16 progTrap5EnableOffset() const { return fieldStart( 25 ); }

   // [30, 1]
   void progTrap6EnableIs( U8 value ) { fieldAtIs( Impl::traced(), 26, 30, 1, 8, value ); }
   U8 progTrap6Enable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 26, 30, 1 ) ); }
   bool isProgTrap6EnableValid() const { return fieldValid( 26 ); }
   U16 progTrap6EnableLen() const { return fieldLen( 26 ); }
   U16 progTrap6EnableOffset() const { return fieldStart( 26 ); }

   // [31, 1]
   void progTrap7EnableIs( U8 value ) { fieldAtIs( Impl::traced(), 27, 31, 1, 8, value ); }
   U8 progTrap7Enable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 27, 31, 1 ) ); }
   bool isProgTrap7EnableValid() const { return fieldValid( 27 ); }
   U16 progTrap7EnableLen() const { return fieldLen( 27 ); }
   U16 progTrap7EnableOffset() const { return fieldStart( 27 ); }

   // [32, 1]
   void fwdCascadedPriorityDecoderEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 28, 32, 1, 8, value ); }
   U8 fwdCascadedPriorityDecoderEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 28, 32, 1 ) ); }
   bool isFwdCascadedPriorityDecoderEnableValid() const { return fieldValid( 28 ); }
   U16 fwdCascadedPriorityDecoderEnableLen() const { return fieldLen( 28 ); }
   U16 fwdCascadedPriorityDecoderEnableOffset() const { return fieldStart( 28 ); }

   // [33, 1]
   void rpfCascadedPriorityDecoderEnableIs( U8 value ) { fieldAtIs( Impl::traced(), 29, 33, 1, 8, value ); }
   U8 rpfCascadedPriorityDecoderEnable() const { return static_cast< U8 >( fieldAt( Impl::traced(), 29, 33, 1 ) ); }
   bool isRpfCascadedPriorityDecoderEnableValid() const { return fieldValid( 29 ); }
   U16 rpfCascadedPriorityDecoderEnableLen() const { return fieldLen( 29 ); }
   U16 rpfCascadedPriorityDecoderEnableOffset() const { return fieldStart( 29 ); }

   // [34, 1] or absent
   void reservedIs( U8 value ) { fieldInIs( Impl::traced(), 30, value ); }
   U8 reserved() const { return static_cast< U8 >( fieldIn( Impl::traced(), 30 ) ); }
   bool isReservedValid() const { return fieldValid( 30 ); }
   U16 reservedLen() const { return fieldLen( 30 ); }
   U16 reservedOffset() const { return fieldStart( 30 ); }

   // absent or [34, 1]
   void faiUnknownAddressEnableIs( U8 value ) { fieldInIs( Impl::traced(), 31, value ); }
   U8 faiUnknownAddressEnable() const { return static_cast< U8 >( fieldIn( Impl::traced(), 31 ) ); }
   bool isFaiUnknownAddressEnableValid() const { return fieldValid( 31 ); }
   U16 faiUnknownAddressEnableLen() const { return fieldLen( 31 ); }
   U16 faiUnknownAddressEnableOffset() const { return fieldStart( 31 ); }

   // absent or [35, 2]
   void faiOffsetIs( U8 value ) { fieldInIs( Impl::traced(), 32, value ); }
   U8 faiOffset() const { return static_cast< U8 >( fieldIn( Impl::traced(), 32 ) ); }
   bool isFaiOffsetValid() const { return fieldValid( 32 ); }
   U16 faiOffsetLen() const { return fieldLen( 32 ); }
   U16 faiOffsetOffset() const { return fieldStart( 32 ); }

   // absent or [37, 1]
   void faiCompatibleMcEnableIs( U8 value ) { fieldInIs( Impl::traced(), 33, value ); }
   U8 faiCompatibleMcEnable() const { return static_cast< U8 >( fieldIn( Impl::traced(), 33 ) ); }
   bool isFaiCompatibleMcEnableValid() const { return fieldValid( 33 ); }
   U16 faiCompatibleMcEnableLen() const { return fieldLen( 33 ); }
   U16 faiCompatibleMcEnableOffset() const { return fieldStart( 33 ); }

   // absent or [38, 2]
   void faiCompatibleMcOffsetIs( U8 value ) { fieldInIs( Impl::traced(), 34, value ); }
   U8 faiCompatibleMcOffset() const { return static_cast< U8 >( fieldIn( Impl::traced(), 34 ) ); }
   bool isFaiCompatibleMcOffsetValid() const { return fieldValid( 34 ); }
   U16 faiCompatibleMcOffsetLen() const { return fieldLen( 34 ); }
   U16 faiCompatibleMcOffsetOffset() const { return fieldStart( 34 ); }
};

class IppbFlpbResContextEnablers::WithStorage : public IppbFlpbResContextEnablers {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppbFlpbResContextEnablers( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[8] = {};
};

// Register.
class IppbIpv4ActionProfilesCfg : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppbIpv4ActionProfilesCfg( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppbIpv4ActionProfilesCfg( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static U64 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U64 >( chip, variant ); }
   virtual U64 allFieldsMask() const;
   U64 getAllFields() const { return allFields< U64 >(); }

   // [0, 4]
   void actionProfileIpv4VersionErrorFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 4, 8, value ); }
   U8 actionProfileIpv4VersionErrorFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 4 ) ); }
   bool isActionProfileIpv4VersionErrorFwdValid() const { return fieldValid( 0 ); }
   U16 actionProfileIpv4VersionErrorFwdLen() const { return fieldLen( 0 ); }
   U16 actionProfileIpv4VersionErrorFwdOffset() const { return fieldStart( 0 ); }

   // [4, 3]
   void actionProfileIpv4VersionErrorSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 4, 3, 8, value ); }
   U8 actionProfileIpv4VersionErrorSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 4, 3 ) ); }
   bool isActionProfileIpv4VersionErrorSnpValid() const { return fieldValid( 1 ); }
   U16 actionProfileIpv4VersionErrorSnpLen() const { return fieldLen( 1 ); }
   U16 actionProfileIpv4VersionErrorSnpOffset() const { return fieldStart( 1 ); }

   // [7, 4]
   void actionProfileIpv4ChecksumErrorFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 7, 4, 8, value ); }
   U8 actionProfileIpv4ChecksumErrorFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 7, 4 ) ); }
   bool isActionProfileIpv4ChecksumErrorFwdValid() const { return fieldValid( 2 ); }
   U16 actionProfileIpv4ChecksumErrorFwdLen() const { return fieldLen( 2 ); }
   U16 actionProfileIpv4ChecksumErrorFwdOffset() const { return fieldStart( 2 ); }

   // [11, 3] or absent
   void actionProfileIpv4ChecksumVersionErrorSnpIs( U8 value ) { fieldInIs( Impl::traced(), 3, value ); }
   U8 actionProfileIpv4ChecksumVersionErrorSnp() const { return static_cast< U8 >( fieldIn( Impl::traced(), 3 ) ); }
   bool isActionProfileIpv4ChecksumVersionErrorSnpValid() const { return fieldValid( 3 ); }
   U16 actionProfileIpv4ChecksumVersionErrorSnpLen() const { return fieldLen( 3 ); }
   U16 actionProfileIpv4ChecksumVersionErrorSnpOffset() const { return fieldStart( 3 ); }

   // [14, 4]
   void actionProfileIpv4HeaderLengthErrorFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 4, 14, 4, 8, value ); }
   U8 actionProfileIpv4HeaderLengthErrorFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 4, 14, 4 ) ); }
   bool isActionProfileIpv4HeaderLengthErrorFwdValid() const { return fieldValid( 4 ); }
   U16 actionProfileIpv4HeaderLengthErrorFwdLen() const { return fieldLen( 4 ); }
   U16 actionProfileIpv4HeaderLengthErrorFwdOffset() const { return fieldStart( 4 ); }

   // [18, 3]
   void actionProfileIpv4HeaderLengthErrorSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 5, 18, 3, 8, value ); }
   U8 actionProfileIpv4HeaderLengthErrorSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 5, 18, 3 ) ); }
   bool isActionProfileIpv4HeaderLengthErrorSnpValid() const { return fieldValid( 5 ); }
   U16 actionProfileIpv4HeaderLengthErrorSnpLen() const { return fieldLen( 5 ); }
   U16 actionProfileIpv4HeaderLengthErrorSnpOffset() const { return fieldStart( 5 ); }

   // [21, 4]
   void actionProfileIpv4TotalLengthErrorFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 6, 21, 4, 8, value ); }
   U8 actionProfileIpv4TotalLengthErrorFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 6, 21, 4 ) ); }
   bool isActionProfileIpv4TotalLengthErrorFwdValid() const { return fieldValid( 6 ); }
   U16 actionProfileIpv4TotalLengthErrorFwdLen() const { return fieldLen( 6 ); }
   U16 actionProfileIpv4TotalLengthErrorFwdOffset() const { return fieldStart( 6 ); }

   // [25, 3]
   void actionProfileIpv4TotalLengthErrorSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 7, 25, 3, 8, value ); }
   U8 actionProfileIpv4TotalLengthErrorSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 7, 25, 3 ) ); }
   bool isActionProfileIpv4TotalLengthErrorSnpValid() const { return fieldValid( 7 ); }
   U16 actionProfileIpv4TotalLengthErrorSnpLen() const { return fieldLen( 7 ); }
   U16 actionProfileIpv4TotalLengthErrorSnpOffset() const { return fieldStart( 7 ); }

   // [28, 4]
   void actionProfileIpv4HasOptionsFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 8, 28, 4, 8, value ); }
   U8 actionProfileIpv4HasOptionsFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 8, 28, 4 ) ); }
   bool isActionProfileIpv4HasOptionsFwdValid() const { return fieldValid( 8 ); }
   U16 actionProfileIpv4HasOptionsFwdLen() const { return fieldLen( 8 ); }
   U16 actionProfileIpv4HasOptionsFwdOffset() const { return fieldStart( 8 ); }

   // [32, 3]
   void actionProfileIpv4HasOptionsSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 9, 32, 3, 8, value ); }
   U8 actionProfileIpv4HasOptionsSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 9, 32, 3 ) ); }
   bool isActionProfileIpv4HasOptionsSnpValid() const { return fieldValid( 9 ); }
   U16 actionProfileIpv4HasOptionsSnpLen() const { return fieldLen( 9 ); }
   U16 actionProfileIpv4HasOptionsSnpOffset() const { return fieldStart( 9 ); }

   // [35, 4]
   void actionProfileIpv4SipEqualDipFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 10, 35, 4, 8, value ); }
   U8 actionProfileIpv4SipEqualDipFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 10, 35, 4 ) ); }
   bool isActionProfileIpv4SipEqualDipFwdValid() const { return fieldValid( 10 ); }
   U16 actionProfileIpv4SipEqualDipFwdLen() const { return fieldLen( 10 ); }
   U16 actionProfileIpv4SipEqualDipFwdOffset() const { return fieldStart( 10 ); }

   // [39, 3]
   void actionProfileIpv4SipEqualDipSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 11, 39, 3, 8, value ); }
   U8 actionProfileIpv4SipEqualDipSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 11, 39, 3 ) ); }
   bool isActionProfileIpv4SipEqualDipSnpValid() const { return fieldValid( 11 ); }
   U16 actionProfileIpv4SipEqualDipSnpLen() const { return fieldLen( 11 ); }
   U16 actionProfileIpv4SipEqualDipSnpOffset() const { return fieldStart( 11 ); }

   // [42, 4]
   void actionProfileIpv4DipZeroFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 12, 42, 4, 8, value ); }
   U8 actionProfileIpv4DipZeroFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 12, 42, 4 ) ); }
   bool isActionProfileIpv4DipZeroFwdValid() const { return fieldValid( 12 ); }
   U16 actionProfileIpv4DipZeroFwdLen() const { return fieldLen( 12 ); }
   U16 actionProfileIpv4DipZeroFwdOffset() const { return fieldStart( 12 ); }

   // [46, 3]
   void actionProfileIpv4DipZeroSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 13, 46, 3, 8, value ); }
   U8 actionProfileIpv4DipZeroSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 13, 46, 3 ) ); }
   bool isActionProfileIpv4DipZeroSnpValid() const { return fieldValid( 13 ); }
   U16 actionProfileIpv4DipZeroSnpLen() const { return fieldLen( 13 ); }
   U16 actionProfileIpv4DipZeroSnpOffset() const { return fieldStart( 13 ); }

   // [49, 4]
   void actionProfileIpv4SipIsMcFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 14, 49, 4, 8, value ); }
   U8 actionProfileIpv4SipIsMcFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 14, 49, 4 ) ); }
   bool isActionProfileIpv4SipIsMcFwdValid() const { return fieldValid( 14 ); }
   U16 actionProfileIpv4SipIsMcFwdLen() const { return fieldLen( 14 ); }
   U16 actionProfileIpv4SipIsMcFwdOffset() const { return fieldStart( 14 ); }

   // [53, 3]
   void actionProfileIpv4SipIsMcSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 15, 53, 3, 8, value ); }
   U8 actionProfileIpv4SipIsMcSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 15, 53, 3 ) ); }
   bool isActionProfileIpv4SipIsMcSnpValid() const { return fieldValid( 15 ); }
   U16 actionProfileIpv4SipIsMcSnpLen() const { return fieldLen( 15 ); }
   U16 actionProfileIpv4SipIsMcSnpOffset() const { return fieldStart( 15 ); }

   // absent or [11, 3]
   void actionProfileIpv4ChecksumErrorSnpIs( U8 value ) { fieldInIs( Impl::traced(), 16, value ); }
   U8 actionProfileIpv4ChecksumErrorSnp() const { return static_cast< U8 >( fieldIn( Impl::traced(), 16 ) ); }
   bool isActionProfileIpv4ChecksumErrorSnpValid() const { return fieldValid( 16 ); }
   U16 actionProfileIpv4ChecksumErrorSnpLen() const { return fieldLen( 16 ); }
   U16 actionProfileIpv4ChecksumErrorSnpOffset() const { return fieldStart( 16 ); }
};

class IppbIpv4ActionProfilesCfg::WithStorage : public IppbIpv4ActionProfilesCfg {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppbIpv4ActionProfilesCfg( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[8] = {};
};

// Register.
class IppbIpv6ActionProfiles0Cfg : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppbIpv6ActionProfiles0Cfg( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppbIpv6ActionProfiles0Cfg( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static Raw128 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw128 >( chip, variant ); }
   virtual Raw128 allFieldsMask() const;
   Raw128 getAllFields() const { return allFields< Raw128 >(); }

   // [0, 4]
   void actionProfileIpv6VersionErrorFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 4, 8, value ); }
   U8 actionProfileIpv6VersionErrorFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 4 ) ); }
   bool isActionProfileIpv6VersionErrorFwdValid() const { return fieldValid( 0 ); }
   U16 actionProfileIpv6VersionErrorFwdLen() const { return fieldLen( 0 ); }
   U16 actionProfileIpv6VersionErrorFwdOffset() const { return fieldStart( 0 ); }

   // [4, 3]
   void actionProfileIpv6VersionErrorSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 4, 3, 8, value ); }
   U8 actionProfileIpv6VersionErrorSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 4, 3 ) ); }
   bool isActionProfileIpv6VersionErrorSnpValid() const { return fieldValid( 1 ); }
   U16 actionProfileIpv6VersionErrorSnpLen() const { return fieldLen( 1 ); }
   U16 actionProfileIpv6VersionErrorSnpOffset() const { return fieldStart( 1 ); }

   // [7, 4]
   void actionProfileIpv6UnspecifiedDestinationFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 7, 4, 8, value ); }
   U8 actionProfileIpv6UnspecifiedDestinationFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 7, 4 ) ); }
   bool isActionProfileIpv6UnspecifiedDestinationFwdValid() const { return fieldValid( 2 ); }
   U16 actionProfileIpv6UnspecifiedDestinationFwdLen() const { return fieldLen( 2 ); }
   U16 actionProfileIpv6UnspecifiedDestinationFwdOffset() const { return fieldStart( 2 ); }

   // [11, 3]
   void actionProfileIpv6UnspecifiedDestinationSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 3, 11, 3, 8, value ); }
   U8 actionProfileIpv6UnspecifiedDestinationSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 11, 3 ) ); }
   bool isActionProfileIpv6UnspecifiedDestinationSnpValid() const { return fieldValid( 3 ); }
   U16 actionProfileIpv6UnspecifiedDestinationSnpLen() const { return fieldLen( 3 ); }
   U16 actionProfileIpv6UnspecifiedDestinationSnpOffset() const { return fieldStart( 3 ); }

   // [14, 4]
   void actionProfileIpv6LoopbackAddressFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 4, 14, 4, 8, value ); }
   U8 actionProfileIpv6LoopbackAddressFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 4, 14, 4 ) ); }
   bool isActionProfileIpv6LoopbackAddressFwdValid() const { return fieldValid( 4 ); }
   U16 actionProfileIpv6LoopbackAddressFwdLen() const { return fieldLen( 4 ); }
   U16 actionProfileIpv6LoopbackAddressFwdOffset() const { return fieldStart( 4 ); }

   // [18, 3]
   void actionProfileIpv6LoopbackAddressSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 5, 18, 3, 8, value ); }
   U8 actionProfileIpv6LoopbackAddressSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 5, 18, 3 ) ); }
   bool isActionProfileIpv6LoopbackAddressSnpValid() const { return fieldValid( 5 ); }
   U16 actionProfileIpv6LoopbackAddressSnpLen() const { return fieldLen( 5 ); }
   U16 actionProfileIpv6LoopbackAddressSnpOffset() const { return fieldStart( 5 ); }

   // [21, 4]
   void actionProfileIpv6MulticastSourceFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 6, 21, 4, 8, value ); }
   U8 actionProfileIpv6MulticastSourceFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 6, 21, 4 ) ); }
   bool isActionProfileIpv6MulticastSourceFwdValid() const { return fieldValid( 6 ); }
   U16 actionProfileIpv6MulticastSourceFwdLen() const { return fieldLen( 6 ); }
   U16 actionProfileIpv6MulticastSourceFwdOffset() const { return fieldStart( 6 ); }

   // [25, 3]
   void actionProfileIpv6MulticastSourceSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 7, 25, 3, 8, value ); }
   U8 actionProfileIpv6MulticastSourceSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 7, 25, 3 ) ); }
   bool isActionProfileIpv6MulticastSourceSnpValid() const { return fieldValid( 7 ); }
   U16 actionProfileIpv6MulticastSourceSnpLen() const { return fieldLen( 7 ); }
   U16 actionProfileIpv6MulticastSourceSnpOffset() const { return fieldStart( 7 ); }

   // [28, 4]
   void actionProfileIpv6NextHeaderNullFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 8, 28, 4, 8, value ); }
   U8 actionProfileIpv6NextHeaderNullFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 8, 28, 4 ) ); }
   bool isActionProfileIpv6NextHeaderNullFwdValid() const { return fieldValid( 8 ); }
   U16 actionProfileIpv6NextHeaderNullFwdLen() const { return fieldLen( 8 ); }
   U16 actionProfileIpv6NextHeaderNullFwdOffset() const { return fieldStart( 8 ); }

   // [32, 3]
   void actionProfileIpv6NextHeaderNullSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 9, 32, 3, 8, value ); }
   U8 actionProfileIpv6NextHeaderNullSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 9, 32, 3 ) ); }
   bool isActionProfileIpv6NextHeaderNullSnpValid() const { return fieldValid( 9 ); }
   U16 actionProfileIpv6NextHeaderNullSnpLen() const { return fieldLen( 9 ); }
   U16 actionProfileIpv6NextHeaderNullSnpOffset() const { return fieldStart( 9 ); }

   // [35, 4]
   void actionProfileIpv6UnspecifiedSourceFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 10, 35, 4, 8, value ); }
   U8 actionProfileIpv6UnspecifiedSourceFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 10, 35, 4 ) ); }
   bool isActionProfileIpv6UnspecifiedSourceFwdValid() const { return fieldValid( 10 ); }
   U16 actionProfileIpv6UnspecifiedSourceFwdLen() const { return fieldLen( 10 ); }
   U16 actionProfileIpv6UnspecifiedSourceFwdOffset() const { return fieldStart( 10 ); }

   // [39, 3]
   void actionProfileIpv6UnspecifiedSourceSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 11, 39, 3, 8, value ); }
   U8 actionProfileIpv6UnspecifiedSourceSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 11, 39, 3 ) ); }
   bool isActionProfileIpv6UnspecifiedSourceSnpValid() const { return fieldValid( 11 ); }
   U16 actionProfileIpv6UnspecifiedSourceSnpLen() const { return fieldLen( 11 ); }
   U16 actionProfileIpv6UnspecifiedSourceSnpOffset() const { return fieldStart( 11 ); }

   // [42, 4]
   void actionProfileIpv6LinkLocalDestinationFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 12, 42, 4, 8, value ); }
   U8 actionProfileIpv6LinkLocalDestinationFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 12, 42, 4 ) ); }
   bool isActionProfileIpv6LinkLocalDestinationFwdValid() const { return fieldValid( 12 ); }
   U16 actionProfileIpv6LinkLocalDestinationFwdLen() const { return fieldLen( 12 ); }
   U16 actionProfileIpv6LinkLocalDestinationFwdOffset() const { return fieldStart( 12 ); }

   // [46, 3]
   void actionProfileIpv6LinkLocalDestinationSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 13, 46, 3, 8, value ); }
   U8 actionProfileIpv6LinkLocalDestinationSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 13, 46, 3 ) ); }
   bool isActionProfileIpv6LinkLocalDestinationSnpValid() const { return fieldValid( 13 ); }
   U16 actionProfileIpv6LinkLocalDestinationSnpLen() const { return fieldLen( 13 ); }
   U16 actionProfileIpv6LinkLocalDestinationSnpOffset() const { return fieldStart( 13 ); }

   // [49, 4]
   void actionProfileIpv6SiteLocalDestinationFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 14, 49, 4, 8, value ); }
   U8 actionProfileIpv6SiteLocalDestinationFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 14, 49, 4 ) ); }
   bool isActionProfileIpv6SiteLocalDestinationFwdValid() const { return fieldValid( 14 ); }
   U16 actionProfileIpv6SiteLocalDestinationFwdLen() const { return fieldLen( 14 ); }
   U16 actionProfileIpv6SiteLocalDestinationFwdOffset() const { return fieldStart( 14 ); }

   // [53, 3]
   void actionProfileIpv6SiteLocalDestinationSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 15, 53, 3, 8, value ); }
   U8 actionProfileIpv6SiteLocalDestinationSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 15, 53, 3 ) ); }
   bool isActionProfileIpv6SiteLocalDestinationSnpValid() const { return fieldValid( 15 ); }
   U16 actionProfileIpv6SiteLocalDestinationSnpLen() const { return fieldLen( 15 ); }
   U16 actionProfileIpv6SiteLocalDestinationSnpOffset() const { return fieldStart( 15 ); }

   // [56, 4]
   void actionProfileIpv6LinkLocalSourceFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 16, 56, 4, 8, value ); }
   U8 actionProfileIpv6LinkLocalSourceFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 16, 56, 4 ) ); }
   bool isActionProfileIpv6LinkLocalSourceFwdValid() const { return fieldValid( 16 ); }
   U16 actionProfileIpv6LinkLocalSourceFwdLen() const { return fieldLen( 16 ); }
   U16 actionProfileIpv6LinkLocalSourceFwdOffset() const { return fieldStart( 16 ); }

   // [60, 3]
   void actionProfileIpv6LinkLocalSourceSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 17, 60, 3, 8, value ); }
   U8 actionProfileIpv6LinkLocalSourceSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 17, 60, 3 ) ); }
   bool isActionProfileIpv6LinkLocalSourceSnpValid() const { return fieldValid( 17 ); }
   U16 actionProfileIpv6LinkLocalSourceSnpLen() const { return fieldLen( 17 ); }
   U16 actionProfileIpv6LinkLocalSourceSnpOffset() const { return fieldStart( 17 ); }

   // [63, 4]
   void actionProfileIpv6SiteLocalSourceFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 18, 63, 4, 8, value ); }
   U8 actionProfileIpv6SiteLocalSourceFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 18, 63, 4 ) ); }
   bool isActionProfileIpv6SiteLocalSourceFwdValid() const { return fieldValid( 18 ); }
   U16 actionProfileIpv6SiteLocalSourceFwdLen() const { return fieldLen( 18 ); }
   U16 actionProfileIpv6SiteLocalSourceFwdOffset() const { return fieldStart( 18 ); }

   // [67, 3]
   void actionProfileIpv6SiteLocalSourceSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 19, 67, 3, 8, value ); }
   U8 actionProfileIpv6SiteLocalSourceSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 19, 67, 3 ) ); }
   bool isActionProfileIpv6SiteLocalSourceSnpValid() const { return fieldValid( 19 ); }
   U16 actionProfileIpv6SiteLocalSourceSnpLen() const { return fieldLen( 19 ); }
   U16 actionProfileIpv6SiteLocalSourceSnpOffset() const { return fieldStart( 19 ); }
};

class IppbIpv6ActionProfiles0Cfg::WithStorage : public IppbIpv6ActionProfiles0Cfg {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppbIpv6ActionProfiles0Cfg( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[12] = {};
};

// Register of BCM88850_A0, BCM88859_A2.
class IppbLifMcBridgeFallbackAllow : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppbLifMcBridgeFallbackAllow( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppbLifMcBridgeFallbackAllow( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static Raw256 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw256 >( chip, variant ); }
   virtual Raw256 allFieldsMask() const;
   Raw256 getAllFields() const { return allFields< Raw256 >(); }

   // [0, 256]
   void lifMcBridgeFallbackAllowIs( Raw256 const & value ) { wideAtIs( Impl::traced(), 0, 0, value ); }
   Raw256 lifMcBridgeFallbackAllow() const { return wideAt< Raw256 >( Impl::traced(), 0, 0 ); }
   bool isLifMcBridgeFallbackAllowValid() const { return fieldValid( 0 ); }
   U16 lifMcBridgeFallbackAllowLen() const { return fieldLen( 0 ); }
   U16 lifMcBridgeFallbackAllowOffset() const { return fieldStart( 0 ); }
};

class IppbLifMcBridgeFallbackAllow::WithStorage : public IppbLifMcBridgeFallbackAllow {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppbLifMcBridgeFallbackAllow( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[32] = {};
};

// Register.
class IppbProgTrapCfg : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppbProgTrapCfg( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppbProgTrapCfg( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static Raw512 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw512 >( chip, variant ); }
   virtual Raw512 allFieldsMask() const;
   Raw512 getAllFields() const { return allFields< Raw512 >(); }

   // [0, 48]
   void progTrapDaNIs( U64 const & value ) { fieldAtIs( Impl::traced(), 0, 0, 48, 64, value ); }
   U64 progTrapDaN() const { return fieldAt( Impl::traced(), 0, 0, 48 ); }
   bool isProgTrapDaNValid() const { return fieldValid( 0 ); }
   U16 progTrapDaNLen() const { return fieldLen( 0 ); }
   U16 progTrapDaNOffset() const { return fieldStart( 0 ); }

   // [48, 6]
   void progTrapDaBitsNIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 48, 6, 8, value ); }
   U8 progTrapDaBitsN() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 48, 6 ) ); }
   bool isProgTrapDaBitsNValid() const { return fieldValid( 1 ); }
   U16 progTrapDaBitsNLen() const { return fieldLen( 1 ); }
   U16 progTrapDaBitsNOffset() const { return fieldStart( 1 ); }

   // [54, 48]
   void progTrapSaNIs( U64 const & value ) { fieldAtIs( Impl::traced(), 2, 54, 48, 64, value ); }
   U64 progTrapSaN() const { return fieldAt( Impl::traced(), 2, 54, 48 ); }
   bool isProgTrapSaNValid() const { return fieldValid( 2 ); }
   U16 progTrapSaNLen() const { return fieldLen( 2 ); }
   U16 progTrapSaNOffset() const { return fieldStart( 2 ); }

   // [102, 6]
   void progTrapSaBitsNIs( U8 value ) { fieldAtIs( Impl::traced(), 3, 102, 6, 8, value ); }
   U8 progTrapSaBitsN() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 102, 6 ) ); }
   bool isProgTrapSaBitsNValid() const { return fieldValid( 3 ); }
   U16 progTrapSaBitsNLen() const { return fieldLen( 3 ); }
   U16 progTrapSaBitsNOffset() const { return fieldStart( 3 ); }

   // [108, 16]
   void progTrapEthernetTypeNIs( U16 value ) { fieldAtIs( Impl::traced(), 4, 108, 16, 16, value ); }
   U16 progTrapEthernetTypeN() const { return static_cast< U16 >( fieldAt( Impl::traced(), 4, 108, 16 ) ); }
   bool isProgTrapEthernetTypeNValid() const { return fieldValid( 4 ); }
   U16 progTrapEthernetTypeNLen() const { return fieldLen( 4 ); }
   U16 progTrapEthernetTypeNOffset() const { return fieldStart( 4 ); }

   // [124, 8]
   void progTrapSubTypeMaskNIs( U8 value ) { fieldAtIs( Impl::traced(), 5, 124, 8, 8, value ); }
   U8 progTrapSubTypeMaskN() const { return static_cast< U8 >( fieldAt( Impl::traced(), 5, 124, 8 ) ); }
   bool isProgTrapSubTypeMaskNValid() const { return fieldValid( 5 ); }
   U16 progTrapSubTypeMaskNLen() const { return fieldLen( 5 ); }
   U16 progTrapSubTypeMaskNOffset() const { return fieldStart( 5 ); }

   // [132, 8]
   void progTrapSubTypeNIs( U8 value ) { fieldAtIs( Impl::traced(), 6, 132, 8, 8, value ); }
   U8 progTrapSubTypeN() const { return static_cast< U8 >( fieldAt( Impl::traced(), 6, 132, 8 ) ); }
   bool isProgTrapSubTypeNValid() const { return fieldValid( 6 ); }
   U16 progTrapSubTypeNLen() const { return fieldLen( 6 ); }
   U16 progTrapSubTypeNOffset() const { return fieldStart( 6 ); }

   // [140, 8]
   void progTrapIpProtocolNIs( U8 value ) { fieldAtIs( Impl::traced(), 7, 140, 8, 8, value ); }
   U8 progTrapIpProtocolN() const { return static_cast< U8 >( fieldAt( Impl::traced(), 7, 140, 8 ) ); }
   bool isProgTrapIpProtocolNValid() const { return fieldValid( 7 ); }
   U16 progTrapIpProtocolNLen() const { return fieldLen( 7 ); }
   U16 progTrapIpProtocolNOffset() const { return fieldStart( 7 ); }

   // [148, 32]
   void progTrapL4PortsMaskNIs( U32 value ) { fieldAtIs( Impl::traced(), 8, 148, 32, 32, value ); }
   U32 progTrapL4PortsMaskN() const { return static_cast< U32 >( fieldAt( Impl::traced(), 8, 148, 32 ) ); }
   bool isProgTrapL4PortsMaskNValid() const { return fieldValid( 8 ); }
   U16 progTrapL4PortsMaskNLen() const { return fieldLen( 8 ); }
   U16 progTrapL4PortsMaskNOffset() const { return fieldStart( 8 ); }

   // [180, 32]
   void progTrapL4PortsNIs( U32 value ) { fieldAtIs( Impl::traced(), 9, 180, 32, 32, value ); }
   U32 progTrapL4PortsN() const { return static_cast< U32 >( fieldAt( Impl::traced(), 9, 180, 32 ) ); }
   bool isProgTrapL4PortsNValid() const { return fieldValid( 9 ); }
   U16 progTrapL4PortsNLen() const { return fieldLen( 9 ); }
   U16 progTrapL4PortsNOffset() const { return fieldStart( 9 ); }

   // [212, 9]
   void progTrapTcpFlagsMaskNIs( U16 value ) { fieldAtIs( Impl::traced(), 10, 212, 9, 16, value ); }
   U16 progTrapTcpFlagsMaskN() const { return static_cast< U16 >( fieldAt( Impl::traced(), 10, 212, 9 ) ); }
   bool isProgTrapTcpFlagsMaskNValid() const { return fieldValid( 10 ); }
   U16 progTrapTcpFlagsMaskNLen() const { return fieldLen( 10 ); }
   U16 progTrapTcpFlagsMaskNOffset() const { return fieldStart( 10 ); }

   // [221, 9]
   void progTrapTcpFlagsNIs( U16 value ) { fieldAtIs( Impl::traced(), 11, 221, 9, 16, value ); }
   U16 progTrapTcpFlagsN() const { return static_cast< U16 >( fieldAt( Impl::traced(), 11, 221, 9 ) ); }
   bool isProgTrapTcpFlagsNValid() const { return fieldValid( 11 ); }
   U16 progTrapTcpFlagsNLen() const { return fieldLen( 11 ); }
   U16 progTrapTcpFlagsNOffset() const { return fieldStart( 11 ); }

   // [230, 8]
   void progTrapInverseBmpNIs( U8 value ) { fieldAtIs( Impl::traced(), 12, 230, 8, 8, value ); }
   U8 progTrapInverseBmpN() const { return static_cast< U8 >( fieldAt( Impl::traced(), 12, 230, 8 ) ); }
   bool isProgTrapInverseBmpNValid() const { return fieldValid( 12 ); }
   U16 progTrapInverseBmpNLen() const { return fieldLen( 12 ); }
   U16 progTrapInverseBmpNOffset() const { return fieldStart( 12 ); }

   // [238, 9]
   void progTrapFwdActionCodeNIs( U16 value ) { fieldAtIs( Impl::traced(), 13, 238, 9, 16, value ); }
   U16 progTrapFwdActionCodeN() const { return static_cast< U16 >( fieldAt( Impl::traced(), 13, 238, 9 ) ); }
   bool isProgTrapFwdActionCodeNValid() const { return fieldValid( 13 ); }
   U16 progTrapFwdActionCodeNLen() const { return fieldLen( 13 ); }
   U16 progTrapFwdActionCodeNOffset() const { return fieldStart( 13 ); }

   // [247, 4]
   void progTrapFwdActionStrengthNIs( U8 value ) { fieldAtIs( Impl::traced(), 14, 247, 4, 8, value ); }
   U8 progTrapFwdActionStrengthN() const { return static_cast< U8 >( fieldAt( Impl::traced(), 14, 247, 4 ) ); }
   bool isProgTrapFwdActionStrengthNValid() const { return fieldValid( 14 ); }
   U16 progTrapFwdActionStrengthNLen() const { return fieldLen( 14 ); }
   U16 progTrapFwdActionStrengthNOffset() const { return fieldStart( 14 ); }

   // [251, 3]
   void progTrapSnoopActionStrengthNIs( U8 value ) { fieldAtIs( Impl::traced(), 15, 251, 3, 8, value ); }
   U8 progTrapSnoopActionStrengthN() const { return static_cast< U8 >( fieldAt( Impl::traced(), 15, 251, 3 ) ); }
   bool isProgTrapSnoopActionStrengthNValid() const { return fieldValid( 15 ); }
   U16 progTrapSnoopActionStrengthNLen() const { return fieldLen( 15 ); }
   U16 progTrapSnoopActionStrengthNOffset() const { return fieldStart( 15 ); }

   // [254, 8]
   void progTrapEnableBmpNIs( U8 value ) { fieldAtIs( Impl::traced(), 16, 254, 8, 8, value ); }
   U8 progTrapEnableBmpN() const { return static_cast< U8 >( fieldAt( Impl::traced(), 16, 254, 8 ) ); }
   bool isProgTrapEnableBmpNValid() const { return fieldValid( 16 ); }
   U16 progTrapEnableBmpNLen() const { return fieldLen( 16 ); }
   U16 progTrapEnableBmpNOffset() const { return fieldStart( 16 ); }
};

class IppbProgTrapCfg::WithStorage : public IppbProgTrapCfg {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppbProgTrapCfg( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[36] = {};
};

// Register.
class IppbTtl0ActionProfile : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppbTtl0ActionProfile( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppbTtl0ActionProfile( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static U64 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U64 >( chip, variant ); }
   virtual U64 allFieldsMask() const;
   U64 getAllFields() const { return allFields< U64 >(); }

   // [0, 4]
   void ttl0FwdStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 4, 8, value ); }
   U8 ttl0FwdStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 4 ) ); }
   bool isTtl0FwdStrengthValid() const { return fieldValid( 0 ); }
   U16 ttl0FwdStrengthLen() const { return fieldLen( 0 ); }
   U16 ttl0FwdStrengthOffset() const { return fieldStart( 0 ); }

   // [0, 16]
   void ttl0ActionProfile0Is( U16 value ) { fieldAtIs( Impl::traced(), 1, 0, 16, 16, value ); }
   U16 ttl0ActionProfile0() const { return static_cast< U16 >( fieldAt( Impl::traced(), 1, 0, 16 ) ); }
   bool isTtl0ActionProfile0Valid() const { return fieldValid( 1 ); }
   U16 ttl0ActionProfile0Len() const { return fieldLen( 1 ); }
   U16 ttl0ActionProfile0Offset() const { return fieldStart( 1 ); }

   // [4, 3]
   void ttl0SnpStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 4, 3, 8, value ); }
   U8 ttl0SnpStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 4, 3 ) ); }
   bool isTtl0SnpStrengthValid() const { return fieldValid( 2 ); }
   U16 ttl0SnpStrengthLen() const { return fieldLen( 2 ); }
   U16 ttl0SnpStrengthOffset() const { return fieldStart( 2 ); }

   // [7, 9]
   void ttl0TrapCodeIs( U16 value ) { fieldAtIs( Impl::traced(), 3, 7, 9, 16, value ); }
   U16 ttl0TrapCode() const { return static_cast< U16 >( fieldAt( Impl::traced(), 3, 7, 9 ) ); }
   bool isTtl0TrapCodeValid() const { return fieldValid( 3 ); }
   U16 ttl0TrapCodeLen() const { return fieldLen( 3 ); }
   U16 ttl0TrapCodeOffset() const { return fieldStart( 3 ); }

   // [16, 16]
   void ttl0ActionProfile1Is( U16 value ) { fieldAtIs( Impl::traced(), 4, 16, 16, 16, value ); }
   U16 ttl0ActionProfile1() const { return static_cast< U16 >( fieldAt( Impl::traced(), 4, 16, 16 ) ); }
   bool isTtl0ActionProfile1Valid() const { return fieldValid( 4 ); }
   U16 ttl0ActionProfile1Len() const { return fieldLen( 4 ); }
   U16 ttl0ActionProfile1Offset() const { return fieldStart( 4 ); }

   // [32, 16]
   void ttl0ActionProfile2Is( U16 value ) { fieldAtIs( Impl::traced(), 5, 32, 16, 16, value ); }
   U16 ttl0ActionProfile2() const { return static_cast< U16 >( fieldAt( Impl::traced(), 5, 32, 16 ) ); }
   bool isTtl0ActionProfile2Valid() const { return fieldValid( 5 ); }
   U16 ttl0ActionProfile2Len() const { return fieldLen( 5 ); }
   U16 ttl0ActionProfile2Offset() const { return fieldStart( 5 ); }

   // [48, 16]
   void ttl0ActionProfile3Is( U16 value ) { fieldAtIs( Impl::traced(), 6, 48, 16, 16, value ); }
   U16 ttl0ActionProfile3() const { return static_cast< U16 >( fieldAt( Impl::traced(), 6, 48, 16 ) ); }
   bool isTtl0ActionProfile3Valid() const { return fieldValid( 6 ); }
   U16 ttl0ActionProfile3Len() const { return fieldLen( 6 ); }
   U16 ttl0ActionProfile3Offset() const { return fieldStart( 6 ); }
};

class IppbTtl0ActionProfile::WithStorage : public IppbTtl0ActionProfile {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppbTtl0ActionProfile( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[8] = {};
};

// Memory, variants 0 to 1.
class IppcInLifProfileCsFlags : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppcInLifProfileCsFlags( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppcInLifProfileCsFlags( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 4]
   void csInlifProfileMapIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 4, 8, value ); }
   U8 csInlifProfileMap() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 4 ) ); }
   bool isCsInlifProfileMapValid() const { return fieldValid( 0 ); }
   U16 csInlifProfileMapLen() const { return fieldLen( 0 ); }
   U16 csInlifProfileMapOffset() const { return fieldStart( 0 ); }
};

class IppcInLifProfileCsFlags::WithStorage : public IppcInLifProfileCsFlags {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppcInLifProfileCsFlags( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Register.
class IppdFerTrapCfg : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppdFerTrapCfg( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppdFerTrapCfg( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 9]
   void cpuSnoopCodeNIs( U16 value ) { fieldAtIs( Impl::traced(), 0, 0, 9, 16, value ); }
   U16 cpuSnoopCodeN() const { return static_cast< U16 >( fieldAt( Impl::traced(), 0, 0, 9 ) ); }
   bool isCpuSnoopCodeNValid() const { return fieldValid( 0 ); }
   U16 cpuSnoopCodeNLen() const { return fieldLen( 0 ); }
   U16 cpuSnoopCodeNOffset() const { return fieldStart( 0 ); }

   // [9, 4]
   void cpuStrengthNIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 9, 4, 8, value ); }
   U8 cpuStrengthN() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 9, 4 ) ); }
   bool isCpuStrengthNValid() const { return fieldValid( 1 ); }
   U16 cpuStrengthNLen() const { return fieldLen( 1 ); }
   U16 cpuStrengthNOffset() const { return fieldStart( 1 ); }

   // [13, 3]
   void snoopStrengthNIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 13, 3, 8, value ); }
   U8 snoopStrengthN() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 13, 3 ) ); }
   bool isSnoopStrengthNValid() const { return fieldValid( 2 ); }
   U16 snoopStrengthNLen() const { return fieldLen( 2 ); }
   U16 snoopStrengthNOffset() const { return fieldStart( 2 ); }
};

class IppdFerTrapCfg::WithStorage : public IppdFerTrapCfg {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppdFerTrapCfg( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Memory of BCM88850_A0, BCM88859_A2, BCM88480_A0, BCM88480_B0.
class IppdInLifProfileMap : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppdInLifProfileMap( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppdInLifProfileMap( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 8]
   void mappedInLifProfileIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 8, 8, value ); }
   U8 mappedInLifProfile() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 8 ) ); }
   bool isMappedInLifProfileValid() const { return fieldValid( 0 ); }
   U16 mappedInLifProfileLen() const { return fieldLen( 0 ); }
   U16 mappedInLifProfileOffset() const { return fieldStart( 0 ); }
};

class IppdInLifProfileMap::WithStorage : public IppdInLifProfileMap {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppdInLifProfileMap( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Memory.
class IppdInLifProfileTable : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppdInLifProfileTable( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppdInLifProfileTable( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 2] or absent
   void inLifRpfModeIs( U8 value ) { fieldInIs( Impl::traced(), 0, value ); }
   U8 inLifRpfMode() const { return static_cast< U8 >( fieldIn( Impl::traced(), 0 ) ); }
   bool isInLifRpfModeValid() const { return fieldValid( 0 ); }
   U16 inLifRpfModeLen() const { return fieldLen( 0 ); }
   U16 inLifRpfModeOffset() const { return fieldStart( 0 ); }

   // [2, 2] or [4, 2]
   void inLifSameInterfaceProfileIs( U8 value ) { fieldInIs( Impl::traced(), 1, value ); }
   U8 inLifSameInterfaceProfile() const { return static_cast< U8 >( fieldIn( Impl::traced(), 1 ) ); }
   bool isInLifSameInterfaceProfileValid() const { return fieldValid( 1 ); }
   U16 inLifSameInterfaceProfileLen() const { return fieldLen( 1 ); }
   U16 inLifSameInterfaceProfileOffset() const { return fieldStart( 1 ); }

   // absent or [0, 2]
   void inLifRpfModeIpv4Is( U8 value ) { fieldInIs( Impl::traced(), 2, value ); }
   U8 inLifRpfModeIpv4() const { return static_cast< U8 >( fieldIn( Impl::traced(), 2 ) ); }
   bool isInLifRpfModeIpv4Valid() const { return fieldValid( 2 ); }
   U16 inLifRpfModeIpv4Len() const { return fieldLen( 2 ); }
   U16 inLifRpfModeIpv4Offset() const { return fieldStart( 2 ); }

   // absent or [2, 2]
   void inLifRpfModeIpv6Is( U8 value ) { fieldInIs( Impl::traced(), 3, value ); }
   U8 inLifRpfModeIpv6() const { return static_cast< U8 >( fieldIn( Impl::traced(), 3 ) ); }
   bool isInLifRpfModeIpv6Valid() const { return fieldValid( 3 ); }
   U16 inLifRpfModeIpv6Len() const { return fieldLen( 3 ); }
   U16 inLifRpfModeIpv6Offset() const { return fieldStart( 3 ); }
};

class IppdInLifProfileTable::WithStorage : public IppdInLifProfileTable {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppdInLifProfileTable( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Memory.
class IppdPphAttributesByEei : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppdPphAttributesByEei( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppdPphAttributesByEei( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 1]
   void createFheiInsteadOfEeiIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 1, 8, value ); }
   U8 createFheiInsteadOfEei() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 1 ) ); }
   bool isCreateFheiInsteadOfEeiValid() const { return fieldValid( 0 ); }
   U16 createFheiInsteadOfEeiLen() const { return fieldLen( 0 ); }
   U16 createFheiInsteadOfEeiOffset() const { return fieldStart( 0 ); }

   // [1, 4]
   void fheiTypeIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 1, 4, 8, value ); }
   U8 fheiType() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 1, 4 ) ); }
   bool isFheiTypeValid() const { return fieldValid( 1 ); }
   U16 fheiTypeLen() const { return fieldLen( 1 ); }
   U16 fheiTypeOffset() const { return fieldStart( 1 ); }

   // [5, 2]
   void fheiSizeIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 5, 2, 8, value ); }
   U8 fheiSize() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 5, 2 ) ); }
   bool isFheiSizeValid() const { return fieldValid( 2 ); }
   U16 fheiSizeLen() const { return fieldLen( 2 ); }
   U16 fheiSizeOffset() const { return fieldStart( 2 ); }
};

class IppdPphAttributesByEei::WithStorage : public IppdPphAttributesByEei {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppdPphAttributesByEei( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Register.
class IppeRecycFwdProfileMapping : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   IppeRecycFwdProfileMapping( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isIppeRecycFwdProfileMapping( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static Raw256 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw256 >( chip, variant ); }
   virtual Raw256 allFieldsMask() const;
   Raw256 getAllFields() const { return allFields< Raw256 >(); }

   // [0, 9]
   void recycFwdTrapCodeIs( U16 value ) { fieldAtIs( Impl::traced(), 0, 0, 9, 16, value ); }
   U16 recycFwdTrapCode() const { return static_cast< U16 >( fieldAt( Impl::traced(), 0, 0, 9 ) ); }
   bool isRecycFwdTrapCodeValid() const { return fieldValid( 0 ); }
   U16 recycFwdTrapCodeLen() const { return fieldLen( 0 ); }
   U16 recycFwdTrapCodeOffset() const { return fieldStart( 0 ); }

   // [0, 9]
   void recycFwdTrapCode0Is( U16 value ) { fieldAtIs( Impl::traced(), 1, 0, 9, 16, value ); }
   U16 recycFwdTrapCode0() const { return static_cast< U16 >( fieldAt( Impl::traced(), 1, 0, 9 ) ); }
   bool isRecycFwdTrapCode0Valid() const { return fieldValid( 1 ); }
   U16 recycFwdTrapCode0Len() const { return fieldLen( 1 ); }
   U16 recycFwdTrapCode0Offset() const { return fieldStart( 1 ); }

   // [0, 13]
   void recycFwdProfileMappingEntryIs( U16 value ) { fieldAtIs( Impl::traced(), 2, 0, 13, 16, value ); }
   U16 recycFwdProfileMappingEntry() const { return static_cast< U16 >( fieldAt( Impl::traced(), 2, 0, 13 ) ); }
   bool isRecycFwdProfileMappingEntryValid() const { return fieldValid( 2 ); }
   U16 recycFwdProfileMappingEntryLen() const { return fieldLen( 2 ); }
   U16 recycFwdProfileMappingEntryOffset() const { return fieldStart( 2 ); }

   // [0, 208]
   void recycFwdProfileMappingVecIs( Raw256 const & value ) { wideFieldIs( 3, value.word.data() ); }
   Raw256 recycFwdProfileMappingVec() const { return wideField< Raw256 >( 3 ); }
   bool isRecycFwdProfileMappingVecValid() const { return fieldValid( 3 ); }
   U16 recycFwdProfileMappingVecLen() const { return fieldLen( 3 ); }
   U16 recycFwdProfileMappingVecOffset() const { return fieldStart( 3 ); }

   // [9, 4]
   void recycFwdStrengthIs( U8 value ) { fieldAtIs( Impl::traced(), 4, 9, 4, 8, value ); }
   U8 recycFwdStrength() const { return static_cast< U8 >( fieldAt( Impl::traced(), 4, 9, 4 ) ); }
   bool isRecycFwdStrengthValid() const { return fieldValid( 4 ); }
   U16 recycFwdStrengthLen() const { return fieldLen( 4 ); }
   U16 recycFwdStrengthOffset() const { return fieldStart( 4 ); }

   // [9, 4]
   void recycFwdStrength0Is( U8 value ) { fieldAtIs( Impl::traced(), 5, 9, 4, 8, value ); }
   U8 recycFwdStrength0() const { return static_cast< U8 >( fieldAt( Impl::traced(), 5, 9, 4 ) ); }
   bool isRecycFwdStrength0Valid() const { return fieldValid( 5 ); }
   U16 recycFwdStrength0Len() const { return fieldLen( 5 ); }
   U16 recycFwdStrength0Offset() const { return fieldStart( 5 ); }

   // [13, 9]
   void recycFwdTrapCode1Is( U16 value ) { fieldAtIs( Impl::traced(), 6, 13, 9, 16, value ); }
   U16 recycFwdTrapCode1() const { return static_cast< U16 >( fieldAt( Impl::traced(), 6, 13, 9 ) ); }
   bool isRecycFwdTrapCode1Valid() const { return fieldValid( 6 ); }
   U16 recycFwdTrapCode1Len() const { return fieldLen( 6 ); }
   U16 recycFwdTrapCode1Offset() const { return fieldStart( 6 ); }

   // [22, 4]
   void recycFwdStrength1Is( U8 value ) { fieldAtIs( Impl::traced(), 7, 22, 4, 8, value ); }
   U8 recycFwdStrength1() const { return static_cast< U8 >( fieldAt( Impl::traced(), 7, 22, 4 ) ); }
   bool isRecycFwdStrength1Valid() const { return fieldValid( 7 ); }
   U16 recycFwdStrength1Len() const { return fieldLen( 7 ); }
   U16 recycFwdStrength1Offset() const { return fieldStart( 7 ); }

   // [26, 9]
   void recycFwdTrapCode2Is( U16 value ) { fieldAtIs( Impl::traced(), 8, 26, 9, 16, value ); }
   U16 recycFwdTrapCode2() const { return static_cast< U16 >( fieldAt( Impl::traced(), 8, 26, 9 ) ); }
   bool isRecycFwdTrapCode2Valid() const { return fieldValid( 8 ); }
   U16 recycFwdTrapCode2Len() const { return fieldLen( 8 ); }
   U16 recycFwdTrapCode2Offset() const { return fieldStart( 8 ); }

   // [35, 4]
   void recycFwdStrength2Is( U8 value ) { fieldAtIs( Impl::traced(), 9, 35, 4, 8, value ); }
   U8 recycFwdStrength2() const { return static_cast< U8 >( fieldAt( Impl::traced(), 9, 35, 4 ) ); }
   bool isRecycFwdStrength2Valid() const { return fieldValid( 9 ); }
   U16 recycFwdStrength2Len() const { return fieldLen( 9 ); }
   U16 recycFwdStrength2Offset() const { return fieldStart( 9 ); }

   // [39, 9]
   void recycFwdTrapCode3Is( U16 value ) { fieldAtIs( Impl::traced(), 10, 39, 9, 16, value ); }
   U16 recycFwdTrapCode3() const { return static_cast< U16 >( fieldAt( Impl::traced(), 10, 39, 9 ) ); }
   bool isRecycFwdTrapCode3Valid() const { return fieldValid( 10 ); }
   U16 recycFwdTrapCode3Len() const { return fieldLen( 10 ); }
   U16 recycFwdTrapCode3Offset() const { return fieldStart( 10 ); }

   // [48, 4]
   void recycFwdStrength3Is( U8 value ) { fieldAtIs( Impl::traced(), 11, 48, 4, 8, value ); }
   U8 recycFwdStrength3() const { return static_cast< U8 >( fieldAt( Impl::traced(), 11, 48, 4 ) ); }
   bool isRecycFwdStrength3Valid() const { return fieldValid( 11 ); }
   U16 recycFwdStrength3Len() const { return fieldLen( 11 ); }
   U16 recycFwdStrength3Offset() const { return fieldStart( 11 ); }

   // [52, 9]
   void recycFwdTrapCode4Is( U16 value ) { fieldAtIs( Impl::traced(), 12, 52, 9, 16, value ); }
   U16 recycFwdTrapCode4() const { return static_cast< U16 >( fieldAt( Impl::traced(), 12, 52, 9 ) ); }
   bool isRecycFwdTrapCode4Valid() const { return fieldValid( 12 ); }
   U16 recycFwdTrapCode4Len() const { return fieldLen( 12 ); }
   U16 recycFwdTrapCode4Offset() const { return fieldStart( 12 ); }

   // [61, 4]
   void recycFwdStrength4Is( U8 value ) { fieldAtIs( Impl::traced(), 13, 61, 4, 8, value ); }
   U8 recycFwdStrength4() const { return static_cast< U8 >( fieldAt( Impl::traced(), 13, 61, 4 ) ); }
   bool isRecycFwdStrength4Valid() const { return fieldValid( 13 ); }
   U16 recycFwdStrength4Len() const { return fieldLen( 13 ); }
   U16 recycFwdStrength4Offset() const { return fieldStart( 13 ); }

   // [65, 9]
   void recycFwdTrapCode5Is( U16 value ) { fieldAtIs( Impl::traced(), 14, 65, 9, 16, value ); }
   U16 recycFwdTrapCode5() const { return static_cast< U16 >( fieldAt( Impl::traced(), 14, 65, 9 ) ); }
   bool isRecycFwdTrapCode5Valid() const { return fieldValid( 14 ); }
   U16 recycFwdTrapCode5Len() const { return fieldLen( 14 ); }
   U16 recycFwdTrapCode5Offset() const { return fieldStart( 14 ); }

   // [74, 4]
   void recycFwdStrength5Is( U8 value ) { fieldAtIs( Impl::traced(), 15, 74, 4, 8, value ); }
   U8 recycFwdStrength5() const { return static_cast< U8 >( fieldAt( Impl::traced(), 15, 74, 4 ) ); }
   bool isRecycFwdStrength5Valid() const { return fieldValid( 15 ); }
   U16 recycFwdStrength5Len() const { return fieldLen( 15 ); }
   U16 recycFwdStrength5Offset() const { return fieldStart( 15 ); }

   // [78, 9]
   void recycFwdTrapCode6Is( U16 value ) { fieldAtIs( Impl::traced(), 16, 78, 9, 16, value ); }
   U16 recycFwdTrapCode6() const { return static_cast< U16 >( fieldAt( Impl::traced(), 16, 78, 9 ) ); }
   bool isRecycFwdTrapCode6Valid() const { return fieldValid( 16 ); }
   U16 recycFwdTrapCode6Len() const { return fieldLen( 16 ); }
   U16 recycFwdTrapCode6Offset() const { return fieldStart( 16 ); }

   // [87, 4]
   void recycFwdStrength6Is( U8 value ) { fieldAtIs( Impl::traced(), 17, 87, 4, 8, value ); }
   U8 recycFwdStrength6() const { return static_cast< U8 >( fieldAt( Impl::traced(), 17, 87, 4 ) ); }
   bool isRecycFwdStrength6Valid() const { return fieldValid( 17 ); }
   U16 recycFwdStrength6Len() const { return fieldLen( 17 ); }
   U16 recycFwdStrength6Offset() const { return fieldStart( 17 ); }

   // [91, 9]
   void recycFwdTrapCode7Is( U16 value ) { fieldAtIs( Impl::traced(), 18, 91, 9, 16, value ); }
   U16 recycFwdTrapCode7() const { return static_cast< U16 >( fieldAt( Impl::traced(), 18, 91, 9 ) ); }
   bool isRecycFwdTrapCode7Valid() const { return fieldValid( 18 ); }
   U16 recycFwdTrapCode7Len() const { return fieldLen( 18 ); }
   U16 recycFwdTrapCode7Offset() const { return fieldStart( 18 ); }

   // [100, 4]
   void recycFwdStrength7Is( U8 value ) { fieldAtIs( Impl::traced(), 19, 100, 4, 8, value ); }
   U8 recycFwdStrength7() const { return static_cast< U8 >( fieldAt( Impl::traced(), 19, 100, 4 ) ); }
   bool isRecycFwdStrength7Valid() const { return fieldValid( 19 ); }
   U16 recycFwdStrength7Len() const { return fieldLen( 19 ); }
   U16 recycFwdStrength7Offset() const { return fieldStart( 19 ); }

   // [104, 9]
   void recycFwdTrapCode8Is( U16 value ) { fieldAtIs( Impl::traced(), 20, 104, 9, 16, value ); }
   U16 recycFwdTrapCode8() const { return static_cast< U16 >( fieldAt( Impl::traced(), 20, 104, 9 ) ); }
   bool isRecycFwdTrapCode8Valid() const { return fieldValid( 20 ); }
   U16 recycFwdTrapCode8Len() const { return fieldLen( 20 ); }
   U16 recycFwdTrapCode8Offset() const { return fieldStart( 20 ); }

   // [113, 4]
   void recycFwdStrength8Is( U8 value ) { fieldAtIs( Impl::traced(), 21, 113, 4, 8, value ); }
   U8 recycFwdStrength8() const { return static_cast< U8 >( fieldAt( Impl::traced(), 21, 113, 4 ) ); }
   bool isRecycFwdStrength8Valid() const { return fieldValid( 21 ); }
   U16 recycFwdStrength8Len() const { return fieldLen( 21 ); }
   U16 recycFwdStrength8Offset() const { return fieldStart( 21 ); }

   // [117, 9]
   void recycFwdTrapCode9Is( U16 value ) { fieldAtIs( Impl::traced(), 22, 117, 9, 16, value ); }
   U16 recycFwdTrapCode9() const { return static_cast< U16 >( fieldAt( Impl::traced(), 22, 117, 9 ) ); }
   bool isRecycFwdTrapCode9Valid() const { return fieldValid( 22 ); }
   U16 recycFwdTrapCode9Len() const { return fieldLen( 22 ); }
   U16 recycFwdTrapCode9Offset() const { return fieldStart( 22 ); }

   // [126, 4]
   void recycFwdStrength9Is( U8 value ) { fieldAtIs( Impl::traced(), 23, 126, 4, 8, value ); }
   U8 recycFwdStrength9() const { return static_cast< U8 >( fieldAt( Impl::traced(), 23, 126, 4 ) ); }
   bool isRecycFwdStrength9Valid() const { return fieldValid( 23 ); }
   U16 recycFwdStrength9Len() const { return fieldLen( 23 ); }
   U16 recycFwdStrength9Offset() const { return fieldStart( 23 ); }

   // [130, 9]
   void recycFwdTrapCode10Is( U16 value ) { fieldAtIs( Impl::traced(), 24, 130, 9, 16, value ); }
   U16 recycFwdTrapCode10() const { return static_cast< U16 >( fieldAt( Impl::traced(), 24, 130, 9 ) ); }
   bool isRecycFwdTrapCode10Valid() const { return fieldValid( 24 ); }
   U16 recycFwdTrapCode10Len() const { return fieldLen( 24 ); }
   U16 recycFwdTrapCode10Offset() const { return fieldStart( 24 ); }

   // [139, 4]
   void recycFwdStrength10Is( U8 value ) { fieldAtIs( Impl::traced(), 25, 139, 4, 8, value ); }
   U8 recycFwdStrength10() const { return static_cast< U8 >( fieldAt( Impl::traced(), 25, 139, 4 ) ); }
   bool isRecycFwdStrength10Valid() const { return fieldValid( 25 ); }
   U16 recycFwdStrength10Len() const { return fieldLen( 25 ); }
   U16 recycFwdStrength10Offset() const { return fieldStart( 25 ); }

   // [143, 9]
   void recycFwdTrapCode11Is( U16 value ) { fieldAtIs( Impl::traced(), 26, 143, 9, 16, value ); }
   U16 recycFwdTrapCode11() const { return static_cast< U16 >( fieldAt( Impl::traced(), 26, 143, 9 ) ); }
   bool isRecycFwdTrapCode11Valid() const { return fieldValid( 26 ); }
   U16 recycFwdTrapCode11Len() const { return fieldLen( 26 ); }
   U16 recycFwdTrapCode11Offset() const { return fieldStart( 26 ); }

   // [152, 4]
   void recycFwdStrength11Is( U8 value ) { fieldAtIs( Impl::traced(), 27, 152, 4, 8, value ); }
   U8 recycFwdStrength11() const { return static_cast< U8 >( fieldAt( Impl::traced(), 27, 152, 4 ) ); }
   bool isRecycFwdStrength11Valid() const { return fieldValid( 27 ); }
   U16 recycFwdStrength11Len() const { return fieldLen( 27 ); }
   U16 recycFwdStrength11Offset() const { return fieldStart( 27 ); }

   // [156, 9]
   void recycFwdTrapCode12Is( U16 value ) { fieldAtIs( Impl::traced(), 28, 156, 9, 16, value ); }
   U16 recycFwdTrapCode12() const { return static_cast< U16 >( fieldAt( Impl::traced(), 28, 156, 9 ) ); }
   bool isRecycFwdTrapCode12Valid() const { return fieldValid( 28 ); }
   U16 recycFwdTrapCode12Len() const { return fieldLen( 28 ); }
   U16 recycFwdTrapCode12Offset() const { return fieldStart( 28 ); }

   // [165, 4]
   void recycFwdStrength12Is( U8 value ) { fieldAtIs( Impl::traced(), 29, 165, 4, 8, value ); }
   U8 recycFwdStrength12() const { return static_cast< U8 >( fieldAt( Impl::traced(), 29, 165, 4 ) ); }
   bool isRecycFwdStrength12Valid() const { return fieldValid( 29 ); }
   U16 recycFwdStrength12Len() const { return fieldLen( 29 ); }
   U16 recycFwdStrength12Offset() const { return fieldStart( 29 ); }

   // [169, 9]
   void recycFwdTrapCode13Is( U16 value ) { fieldAtIs( Impl::traced(), 30, 169, 9, 16, value ); }
   U16 recycFwdTrapCode13() const { return static_cast< U16 >( fieldAt( Impl::traced(), 30, 169, 9 ) ); }
   bool isRecycFwdTrapCode13Valid() const { return fieldValid( 30 ); }
   U16 recycFwdTrapCode13Len() const { return fieldLen( 30 ); }
   U16 recycFwdTrapCode13Offset() const { return fieldStart( 30 ); }

   // [178, 4]
   void recycFwdStrength13Is( U8 value ) { fieldAtIs( Impl::traced(), 31, 178, 4, 8, value ); }
   U8 recycFwdStrength13() const { return static_cast< U8 >( fieldAt( Impl::traced(), 31, 178, 4 ) ); }
   bool isRecycFwdStrength13Valid() const { return fieldValid( 31 ); }
   U16 recycFwdStrength13Len() const { return fieldLen( 31 ); }
   U16 recycFwdStrength13Offset() const { return fieldStart( 31 ); }

   // [182, 9]
   void recycFwdTrapCode14Is( U16 value ) { fieldAtIs( Impl::traced(), 32, 182, 9, 16, value ); }
   U16 recycFwdTrapCode14() const { return static_cast< U16 >( fieldAt( Impl::traced(), 32, 182, 9 ) ); }
   bool isRecycFwdTrapCode14Valid() const { return fieldValid( 32 ); }
   U16 recycFwdTrapCode14Len() const { return fieldLen( 32 ); }
   U16 recycFwdTrapCode14Offset() const { return fieldStart( 32 ); }

   // [191, 4]
   void recycFwdStrength14Is( U8 value ) { fieldAtIs( Impl::traced(), 33, 191, 4, 8, value ); }
   U8 recycFwdStrength14() const { return static_cast< U8 >( fieldAt( Impl::traced(), 33, 191, 4 ) ); }
   bool isRecycFwdStrength14Valid() const { return fieldValid( 33 ); }
   U16 recycFwdStrength14Len() const { return fieldLen( 33 ); }
   U16 recycFwdStrength14Offset() const { return fieldStart( 33 ); }

   // [195, 9]
   void recycFwdTrapCode15Is( U16 value ) { fieldAtIs( Impl::traced(), 34, 195, 9, 16, value ); }
   U16 recycFwdTrapCode15() const { return static_cast< U16 >( fieldAt( Impl::traced(), 34, 195, 9 ) ); }
   bool isRecycFwdTrapCode15Valid() const { return fieldValid( 34 ); }
   U16 recycFwdTrapCode15Len() const { return fieldLen( 34 ); }
   U16 recycFwdTrapCode15Offset() const { return fieldStart( 34 ); }

   // [204, 4]
   void recycFwdStrength15Is( U8 value ) { fieldAtIs( Impl::traced(), 35, 204, 4, 8, value ); }
   U8 recycFwdStrength15() const { return static_cast< U8 >( fieldAt( Impl::traced(), 35, 204, 4 ) ); }
   bool isRecycFwdStrength15Valid() const { return fieldValid( 35 ); }
   U16 recycFwdStrength15Len() const { return fieldLen( 35 ); }
   U16 recycFwdStrength15Offset() const { return fieldStart( 35 ); }

   // recycFwdTrapCode0 to recycFwdTrapCode15 by number
   void recycFwdTrapCodeIs( U32 index, U16 value ) { runFieldIs( 0, index, value ); }
   U16 recycFwdTrapCode( U32 index ) const { return static_cast< U16 >( runField( 0, index ) ); }

   // recycFwdStrength0 to recycFwdStrength15 by number
   void recycFwdStrengthIs( U32 index, U8 value ) { runFieldIs( 1, index, value ); }
   U8 recycFwdStrength( U32 index ) const { return static_cast< U8 >( runField( 1, index ) ); }
};

class IppeRecycFwdProfileMapping::WithStorage : public IppeRecycFwdProfileMapping {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : IppeRecycFwdProfileMapping( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[28] = {};
};

// Memory.
class Ipv4PcremFwdDestPcrem : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   Ipv4PcremFwdDestPcrem( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {
      handleBuf( chip, buf, len, bufferHoldsEntry, variant );
   }
   void handleBuf( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant ) {
      metaInfo.handleBuf( chip, buf, len, bufferHoldsEntry, variant );
   }
   static bool isIpv4PcremFwdDestPcrem( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw512 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw512 >( chip, variant ); }
   virtual Raw512 allFieldsMask() const;
   Raw512 getAllFields() const { return allFields< Raw512 >(); }

   // [0, 9]
   void commandIs( U16 value ) { fieldAtIs( Impl::traced(), 0, 0, 9, 16, value ); }
   U16 command() const { return static_cast< U16 >( fieldAt( Impl::traced(), 0, 0, 9 ) ); }
   bool isCommandValid() const { return fieldValid( 0 ); }
   U16 commandLen() const { return fieldLen( 0 ); }
   U16 commandOffset() const { return fieldStart( 0 ); }

   // [9, 21]
   void ipv4Is( U32 value ) { fieldAtIs( Impl::traced(), 1, 9, 21, 32, value ); }
   U32 ipv4() const { return static_cast< U32 >( fieldAt( Impl::traced(), 1, 9, 21 ) ); }
   bool isIpv4Valid() const { return fieldValid( 1 ); }
   U16 ipv4Len() const { return fieldLen( 1 ); }
   U16 ipv4Offset() const { return fieldStart( 1 ); }

   // [9, 26] or [9, 25]
   void keyIs( U32 value ) { fieldAcrossIs( Impl::traced(), 2, value ); }
   U32 key() const { return static_cast< U32 >( fieldAcross( Impl::traced(), 2 ) ); }
   bool isKeyValid() const { return fieldValid( 2 ); }
   U16 keyLen() const { return fieldLen( 2 ); }
   U16 keyOffset() const { return fieldStart( 2 ); }

   // [9, 257] or [9, 256]
   void entryIs( Raw512 const & value ) { wideFieldIs( 3, value.word.data() ); }
   Raw512 entry() const { return wideField< Raw512 >( 3 ); }
   bool isEntryValid() const { return fieldValid( 3 ); }
   U16 entryLen() const { return fieldLen( 3 ); }
   U16 entryOffset() const { return fieldStart( 3 ); }

   // [30, 5] or [30, 4]
   void vrfIs( U8 value ) { fieldAcrossIs( Impl::traced(), 4, value ); }
   U8 vrf() const { return static_cast< U8 >( fieldAcross( Impl::traced(), 4 ) ); }
   bool isVrfValid() const { return fieldValid( 4 ); }
   U16 vrfLen() const { return fieldLen( 4 ); }
   U16 vrfOffset() const { return fieldStart( 4 ); }

   // [57, 80] or [56, 80]
   void pcremFecIndicesIs( Raw128 const & value ) { wideFieldIs( 5, value.word.data() ); }
   Raw128 pcremFecIndices() const { return wideField< Raw128 >( 5 ); }
   bool isPcremFecIndicesValid() const { return fieldValid( 5 ); }
   U16 pcremFecIndicesLen() const { return fieldLen( 5 ); }
   U16 pcremFecIndicesOffset() const { return fieldStart( 5 ); }

   // [57, 86] or [56, 86]
   void payloadIs( Raw128 const & value ) { wideFieldIs( 6, value.word.data() ); }
   Raw128 payload() const { return wideField< Raw128 >( 6 ); }
   bool isPayloadValid() const { return fieldValid( 6 ); }
   U16 payloadLen() const { return fieldLen( 6 ); }
   U16 payloadOffset() const { return fieldStart( 6 ); }

   // Fixed by the format: [137, 6] or [136, 6]
   U8 resultType() const { return static_cast< U8 >( fieldIn( Impl::traced(), 7 ) ); }
   bool isResultTypeValid() const { return fieldValid( 7 ); }
   U16 resultTypeLen() const { return fieldLen( 7 ); }
   U16 resultTypeOffset() const { return fieldStart( 7 ); }

   // Fixed by the format: [143, 3] or [142, 3]
   U8 vmv() const { return static_cast< U8 >( fieldIn( Impl::traced(), 8 ) ); }
   bool isVmvValid() const { return fieldValid( 8 ); }
   U16 vmvLen() const { return fieldLen( 8 ); }
   U16 vmvOffset() const { return fieldStart( 8 ); }

   // [266, 4] or [265, 4]
   void wayIndexIs( U8 value ) { fieldInIs( Impl::traced(), 9, value ); }
   U8 wayIndex() const { return static_cast< U8 >( fieldIn( Impl::traced(), 9 ) ); }
   bool isWayIndexValid() const { return fieldValid( 9 ); }
   U16 wayIndexLen() const { return fieldLen( 9 ); }
   U16 wayIndexOffset() const { return fieldStart( 9 ); }

   // [270, 3] or [269, 3]
   void prefixNumIs( U8 value ) { fieldInIs( Impl::traced(), 10, value ); }
   U8 prefixNum() const { return static_cast< U8 >( fieldIn( Impl::traced(), 10 ) ); }
   bool isPrefixNumValid() const { return fieldValid( 10 ); }
   U16 prefixNumLen() const { return fieldLen( 10 ); }
   U16 prefixNumOffset() const { return fieldStart( 10 ); }

   // [273, 17] or [272, 16]
   void addressIs( U32 value ) { fieldAcrossIs( Impl::traced(), 11, value ); }
   U32 address() const { return static_cast< U32 >( fieldAcross( Impl::traced(), 11 ) ); }
   bool isAddressValid() const { return fieldValid( 11 ); }
   U16 addressLen() const { return fieldLen( 11 ); }
   U16 addressOffset() const { return fieldStart( 11 ); }

   // Fixed by the format: [290, 3] or [288, 3]
   U8 entryType() const { return static_cast< U8 >( fieldIn( Impl::traced(), 12 ) ); }
   bool isEntryTypeValid() const { return fieldValid( 12 ); }
   U16 entryTypeLen() const { return fieldLen( 12 ); }
   U16 entryTypeOffset() const { return fieldStart( 12 ); }

   // Fixed by the format: [293, 6] or [291, 6]
   U8 appId() const { return static_cast< U8 >( fieldIn( Impl::traced(), 13 ) ); }
   bool isAppIdValid() const { return fieldValid( 13 ); }
   U16 appIdLen() const { return fieldLen( 13 ); }
   U16 appIdOffset() const { return fieldStart( 13 ); }

   // Fixed by the format: [293, 6] or [291, 6]
   U8 tid() const { return static_cast< U8 >( fieldIn( Impl::traced(), 14 ) ); }
   bool isTidValid() const { return fieldValid( 14 ); }
   U16 tidLen() const { return fieldLen( 14 ); }
   U16 tidOffset() const { return fieldStart( 14 ); }

   // [299, 8] or [297, 8]
   void hitsIs( U8 value ) { fieldInIs( Impl::traced(), 15, value ); }
   U8 hits() const { return static_cast< U8 >( fieldIn( Impl::traced(), 15 ) ); }
   bool isHitsValid() const { return fieldValid( 15 ); }
   U16 hitsLen() const { return fieldLen( 15 ); }
   U16 hitsOffset() const { return fieldStart( 15 ); }

   // [307, 1] or [305, 1]
   void foundIs( U8 value ) { fieldInIs( Impl::traced(), 16, value ); }
   U8 found() const { return static_cast< U8 >( fieldIn( Impl::traced(), 16 ) ); }
   bool isFoundValid() const { return fieldValid( 16 ); }
   U16 foundLen() const { return fieldLen( 16 ); }
   U16 foundOffset() const { return fieldStart( 16 ); }

 protected:
   // Without the tag: the buffer does not exist yet.
   Ipv4PcremFwdDestPcrem( ChipType chip, U8 * buf, U16 len, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, false, variant, 0 ) {}
};

class Ipv4PcremFwdDestPcrem::WithStorage : public Ipv4PcremFwdDestPcrem {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : Ipv4PcremFwdDestPcrem( chip, storage_, sizeof storage_, variant ) {
      if ( bufferHoldsEntry ) {
         handleBuf( chip, storage_, sizeof storage_, true, variant );
      }
   }

 private:
   alignas( 8 ) U8 storage_[40] = {};
};

// Register, variants 0 to 1.
class MappingFwdInfoToEnTerm : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   MappingFwdInfoToEnTerm( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isMappingFwdInfoToEnTerm( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static Raw128 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw128 >( chip, variant ); }
   virtual Raw128 allFieldsMask() const;
   Raw128 getAllFields() const { return allFields< Raw128 >(); }

   // [0, 128]
   void enTermUpToParsingOffsetIs( Raw128 const & value ) { wideAtIs( Impl::traced(), 0, 0, value ); }
   Raw128 enTermUpToParsingOffset() const { return wideAt< Raw128 >( Impl::traced(), 0, 0 ); }
   bool isEnTermUpToParsingOffsetValid() const { return fieldValid( 0 ); }
   U16 enTermUpToParsingOffsetLen() const { return fieldLen( 0 ); }
   U16 enTermUpToParsingOffsetOffset() const { return fieldStart( 0 ); }
};

class MappingFwdInfoToEnTerm::WithStorage : public MappingFwdInfoToEnTerm {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : MappingFwdInfoToEnTerm( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[16] = {};
};

// Memory.
class PpmcDoubleOutLifSwap : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   PpmcDoubleOutLifSwap( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {
      handleBuf( chip, buf, len, bufferHoldsEntry, variant );
   }
   void handleBuf( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant ) {
      metaInfo.handleBuf( chip, buf, len, bufferHoldsEntry, variant );
   }
   static bool isPpmcDoubleOutLifSwap( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw256 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw256 >( chip, variant ); }
   virtual Raw256 allFieldsMask() const;
   Raw256 getAllFields() const { return allFields< Raw256 >(); }

   // Fixed by the format: [80, 6] or [79, 6]
   U8 resultType() const { return static_cast< U8 >( fieldIn( Impl::traced(), 0 ) ); }
   bool isResultTypeValid() const { return fieldValid( 0 ); }
   U16 resultTypeLen() const { return fieldLen( 0 ); }
   U16 resultTypeOffset() const { return fieldStart( 0 ); }

 protected:
   // Without the tag: the buffer does not exist yet.
   PpmcDoubleOutLifSwap( ChipType chip, U8 * buf, U16 len, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, false, variant, 0 ) {}
};

class PpmcDoubleOutLifSwap::WithStorage : public PpmcDoubleOutLifSwap {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : PpmcDoubleOutLifSwap( chip, storage_, sizeof storage_, variant ) {
      if ( bufferHoldsEntry ) {
         handleBuf( chip, storage_, sizeof storage_, true, variant );
      }
   }

 private:
   alignas( 8 ) U8 storage_[24] = {};
};

// Memory.
class PrivateHostReducedVrf : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   PrivateHostReducedVrf( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {
      handleBuf( chip, buf, len, bufferHoldsEntry, variant );
   }
   void handleBuf( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant ) {
      metaInfo.handleBuf( chip, buf, len, bufferHoldsEntry, variant );
   }
   static bool isPrivateHostReducedVrf( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw512 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw512 >( chip, variant ); }
   virtual Raw512 allFieldsMask() const;
   Raw512 getAllFields() const { return allFields< Raw512 >(); }

   // [0, 9]
   void commandIs( U16 value ) { fieldAtIs( Impl::traced(), 0, 0, 9, 16, value ); }
   U16 command() const { return static_cast< U16 >( fieldAt( Impl::traced(), 0, 0, 9 ) ); }
   bool isCommandValid() const { return fieldValid( 0 ); }
   U16 commandLen() const { return fieldLen( 0 ); }
   U16 commandOffset() const { return fieldStart( 0 ); }

   // [9, 32]
   void ipv4Is( U32 value ) { fieldAtIs( Impl::traced(), 1, 9, 32, 32, value ); }
   U32 ipv4() const { return static_cast< U32 >( fieldAt( Impl::traced(), 1, 9, 32 ) ); }
   bool isIpv4Valid() const { return fieldValid( 1 ); }
   U16 ipv4Len() const { return fieldLen( 1 ); }
   U16 ipv4Offset() const { return fieldStart( 1 ); }

   // [9, 37] or [9, 36]
   void keyIs( U64 const & value ) { fieldIs( 2, value ); }
   U64 key() const { return fieldValue( 2 ); }
   bool isKeyValid() const { return fieldValid( 2 ); }
   U16 keyLen() const { return fieldLen( 2 ); }
   U16 keyOffset() const { return fieldStart( 2 ); }

   // [9, 257] or [9, 256]
   void entryIs( Raw512 const & value ) { wideFieldIs( 3, value.word.data() ); }
   Raw512 entry() const { return wideField< Raw512 >( 3 ); }
   bool isEntryValid() const { return fieldValid( 3 ); }
   U16 entryLen() const { return fieldLen( 3 ); }
   U16 entryOffset() const { return fieldStart( 3 ); }

   // [41, 5] or [41, 4]
   void vrfIs( U8 value ) { fieldInIs( Impl::traced(), 4, value ); }
   U8 vrf() const { return static_cast< U8 >( fieldIn( Impl::traced(), 4 ) ); }
   bool isVrfValid() const { return fieldValid( 4 ); }
   U16 vrfLen() const { return fieldLen( 4 ); }
   U16 vrfOffset() const { return fieldStart( 4 ); }

   // [56, 21] or [55, 21]
   void destinationIs( U32 value ) { fieldAcrossIs( Impl::traced(), 5, value ); }
   U32 destination() const { return static_cast< U32 >( fieldAcross( Impl::traced(), 5 ) ); }
   bool isDestinationValid() const { return fieldValid( 5 ); }
   U16 destinationLen() const { return fieldLen( 5 ); }
   U16 destinationOffset() const { return fieldStart( 5 ); }

   // [56, 27] or [55, 27]
   void payloadIs( U32 value ) { fieldAcrossIs( Impl::traced(), 6, value ); }
   U32 payload() const { return static_cast< U32 >( fieldAcross( Impl::traced(), 6 ) ); }
   bool isPayloadValid() const { return fieldValid( 6 ); }
   U16 payloadLen() const { return fieldLen( 6 ); }
   U16 payloadOffset() const { return fieldStart( 6 ); }

   // Fixed by the format: [77, 6] or [76, 6]
   U8 resultType() const { return static_cast< U8 >( fieldIn( Impl::traced(), 7 ) ); }
   bool isResultTypeValid() const { return fieldValid( 7 ); }
   U16 resultTypeLen() const { return fieldLen( 7 ); }
   U16 resultTypeOffset() const { return fieldStart( 7 ); }

   // Fixed by the format: [83, 3] or [82, 3]
   U8 vmv() const { return static_cast< U8 >( fieldIn( Impl::traced(), 8 ) ); }
   bool isVmvValid() const { return fieldValid( 8 ); }
   U16 vmvLen() const { return fieldLen( 8 ); }
   U16 vmvOffset() const { return fieldStart( 8 ); }

   // [266, 4] or [265, 4]
   void wayIndexIs( U8 value ) { fieldInIs( Impl::traced(), 9, value ); }
   U8 wayIndex() const { return static_cast< U8 >( fieldIn( Impl::traced(), 9 ) ); }
   bool isWayIndexValid() const { return fieldValid( 9 ); }
   U16 wayIndexLen() const { return fieldLen( 9 ); }
   U16 wayIndexOffset() const { return fieldStart( 9 ); }

   // [270, 3] or [269, 3]
   void prefixNumIs( U8 value ) { fieldInIs( Impl::traced(), 10, value ); }
   U8 prefixNum() const { return static_cast< U8 >( fieldIn( Impl::traced(), 10 ) ); }
   bool isPrefixNumValid() const { return fieldValid( 10 ); }
   U16 prefixNumLen() const { return fieldLen( 10 ); }
   U16 prefixNumOffset() const { return fieldStart( 10 ); }

   // [273, 17] or [272, 16]
   void addressIs( U32 value ) { fieldAcrossIs( Impl::traced(), 11, value ); }
   U32 address() const { return static_cast< U32 >( fieldAcross( Impl::traced(), 11 ) ); }
   bool isAddressValid() const { return fieldValid( 11 ); }
   U16 addressLen() const { return fieldLen( 11 ); }
   U16 addressOffset() const { return fieldStart( 11 ); }

   // Fixed by the format: [290, 3] or [288, 3]
   U8 entryType() const { return static_cast< U8 >( fieldIn( Impl::traced(), 12 ) ); }
   bool isEntryTypeValid() const { return fieldValid( 12 ); }
   U16 entryTypeLen() const { return fieldLen( 12 ); }
   U16 entryTypeOffset() const { return fieldStart( 12 ); }

   // Fixed by the format: [293, 6] or [291, 6]
   U8 appId() const { return static_cast< U8 >( fieldIn( Impl::traced(), 13 ) ); }
   bool isAppIdValid() const { return fieldValid( 13 ); }
   U16 appIdLen() const { return fieldLen( 13 ); }
   U16 appIdOffset() const { return fieldStart( 13 ); }

   // Fixed by the format: [293, 6] or [291, 6]
   U8 tid() const { return static_cast< U8 >( fieldIn( Impl::traced(), 14 ) ); }
   bool isTidValid() const { return fieldValid( 14 ); }
   U16 tidLen() const { return fieldLen( 14 ); }
   U16 tidOffset() const { return fieldStart( 14 ); }

   // [299, 8] or [297, 8]
   void hitsIs( U8 value ) { fieldInIs( Impl::traced(), 15, value ); }
   U8 hits() const { return static_cast< U8 >( fieldIn( Impl::traced(), 15 ) ); }
   bool isHitsValid() const { return fieldValid( 15 ); }
   U16 hitsLen() const { return fieldLen( 15 ); }
   U16 hitsOffset() const { return fieldStart( 15 ); }

   // [307, 1] or [305, 1]
   void foundIs( U8 value ) { fieldInIs( Impl::traced(), 16, value ); }
   U8 found() const { return static_cast< U8 >( fieldIn( Impl::traced(), 16 ) ); }
   bool isFoundValid() const { return fieldValid( 16 ); }
   U16 foundLen() const { return fieldLen( 16 ); }
   U16 foundOffset() const { return fieldStart( 16 ); }

 protected:
   // Without the tag: the buffer does not exist yet.
   PrivateHostReducedVrf( ChipType chip, U8 * buf, U16 len, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, false, variant, 0 ) {}
};

class PrivateHostReducedVrf::WithStorage : public PrivateHostReducedVrf {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : PrivateHostReducedVrf( chip, storage_, sizeof storage_, variant ) {
      if ( bufferHoldsEntry ) {
         handleBuf( chip, storage_, sizeof storage_, true, variant );
      }
   }

 private:
   alignas( 8 ) U8 storage_[40] = {};
};

// Memory.
class PweInlifCsProfile : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   PweInlifCsProfile( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isPweInlifCsProfile( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw1024 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw1024 >( chip, variant ); }
   virtual Raw1024 allFieldsMask() const;
   Raw1024 getAllFields() const { return allFields< Raw1024 >(); }

   // [0, 1]
   void tagNamespaceIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 1, 8, value ); }
   U8 tagNamespace() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 1 ) ); }
   bool isTagNamespaceValid() const { return fieldValid( 0 ); }
   U16 tagNamespaceLen() const { return fieldLen( 0 ); }
   U16 tagNamespaceOffset() const { return fieldStart( 0 ); }

   // [1, 2]
   void nofSdTagsIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 1, 2, 8, value ); }
   U8 nofSdTags() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 1, 2 ) ); }
   bool isNofSdTagsValid() const { return fieldValid( 1 ); }
   U16 nofSdTagsLen() const { return fieldLen( 1 ); }
   U16 nofSdTagsOffset() const { return fieldStart( 1 ); }

   // [3, 1]
   void learnNativeAcBugIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 3, 1, 8, value ); }
   U8 learnNativeAcBug() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 3, 1 ) ); }
   bool isLearnNativeAcBugValid() const { return fieldValid( 2 ); }
   U16 learnNativeAcBugLen() const { return fieldLen( 2 ); }
   U16 learnNativeAcBugOffset() const { return fieldStart( 2 ); }
};

class PweInlifCsProfile::WithStorage : public PweInlifCsProfile {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : PweInlifCsProfile( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[80] = {};
};

// Memory.
class RoutingInlifCsProfile : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   RoutingInlifCsProfile( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isRoutingInlifCsProfile( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw1024 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw1024 >( chip, variant ); }
   virtual Raw1024 allFieldsMask() const;
   Raw1024 getAllFields() const { return allFields< Raw1024 >(); }

   // [0, 1]
   void natDirectionOrVipModeIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 1, 8, value ); }
   U8 natDirectionOrVipMode() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 1 ) ); }
   bool isNatDirectionOrVipModeValid() const { return fieldValid( 0 ); }
   U16 natDirectionOrVipModeLen() const { return fieldLen( 0 ); }
   U16 natDirectionOrVipModeOffset() const { return fieldStart( 0 ); }

   // [1, 1]
   void mplsNamespaceOrAaclOrEspVxlanIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 1, 1, 8, value ); }
   U8 mplsNamespaceOrAaclOrEspVxlan() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 1, 1 ) ); }
   bool isMplsNamespaceOrAaclOrEspVxlanValid() const { return fieldValid( 1 ); }
   U16 mplsNamespaceOrAaclOrEspVxlanLen() const { return fieldLen( 1 ); }
   U16 mplsNamespaceOrAaclOrEspVxlanOffset() const { return fieldStart( 1 ); }

   // [2, 1]
   void ucDbModeIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 2, 1, 8, value ); }
   U8 ucDbMode() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 2, 1 ) ); }
   bool isUcDbModeValid() const { return fieldValid( 2 ); }
   U16 ucDbModeLen() const { return fieldLen( 2 ); }
   U16 ucDbModeOffset() const { return fieldStart( 2 ); }

   // [3, 1]
   void mcDbModeIs( U8 value ) { fieldAtIs( Impl::traced(), 3, 3, 1, 8, value ); }
   U8 mcDbMode() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 3, 1 ) ); }
   bool isMcDbModeValid() const { return fieldValid( 3 ); }
   U16 mcDbModeLen() const { return fieldLen( 3 ); }
   U16 mcDbModeOffset() const { return fieldStart( 3 ); }
};

class RoutingInlifCsProfile::WithStorage : public RoutingInlifCsProfile {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : RoutingInlifCsProfile( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[80] = {};
};

// Memory.
class RoutingVeloroInlifCsProfile : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   RoutingVeloroInlifCsProfile( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isRoutingVeloroInlifCsProfile( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw1024 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw1024 >( chip, variant ); }
   virtual Raw1024 allFieldsMask() const;
   Raw1024 getAllFields() const { return allFields< Raw1024 >(); }

   // [0, 1]
   void aegisSetSecondaryVrfModeIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 1, 8, value ); }
   U8 aegisSetSecondaryVrfMode() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 1 ) ); }
   bool isAegisSetSecondaryVrfModeValid() const { return fieldValid( 0 ); }
   U16 aegisSetSecondaryVrfModeLen() const { return fieldLen( 0 ); }
   U16 aegisSetSecondaryVrfModeOffset() const { return fieldStart( 0 ); }

   // [1, 1]
   void mplsNamespaceOrAaclOrEspVxlanIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 1, 1, 8, value ); }
   U8 mplsNamespaceOrAaclOrEspVxlan() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 1, 1 ) ); }
   bool isMplsNamespaceOrAaclOrEspVxlanValid() const { return fieldValid( 1 ); }
   U16 mplsNamespaceOrAaclOrEspVxlanLen() const { return fieldLen( 1 ); }
   U16 mplsNamespaceOrAaclOrEspVxlanOffset() const { return fieldStart( 1 ); }

   // [2, 1]
   void ucDbModeIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 2, 1, 8, value ); }
   U8 ucDbMode() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 2, 1 ) ); }
   bool isUcDbModeValid() const { return fieldValid( 2 ); }
   U16 ucDbModeLen() const { return fieldLen( 2 ); }
   U16 ucDbModeOffset() const { return fieldStart( 2 ); }

   // [3, 1]
   void mcDbModeIs( U8 value ) { fieldAtIs( Impl::traced(), 3, 3, 1, 8, value ); }
   U8 mcDbMode() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 3, 1 ) ); }
   bool isMcDbModeValid() const { return fieldValid( 3 ); }
   U16 mcDbModeLen() const { return fieldLen( 3 ); }
   U16 mcDbModeOffset() const { return fieldStart( 3 ); }
};

class RoutingVeloroInlifCsProfile::WithStorage : public RoutingVeloroInlifCsProfile {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : RoutingVeloroInlifCsProfile( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[80] = {};
};

// Register, variants 0 to 1.
class SystemHeaderPph : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   SystemHeaderPph( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isSystemHeaderPph( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 8]
   void pphFwdLayerAdditionalInfoInnerOffsetIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 8, 8, value ); }
   U8 pphFwdLayerAdditionalInfoInnerOffset() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 8 ) ); }
   bool isPphFwdLayerAdditionalInfoInnerOffsetValid() const { return fieldValid( 0 ); }
   U16 pphFwdLayerAdditionalInfoInnerOffsetLen() const { return fieldLen( 0 ); }
   U16 pphFwdLayerAdditionalInfoInnerOffsetOffset() const { return fieldStart( 0 ); }

   // [8, 8]
   void pphFwdLayerAdditionalInfoWidthIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 8, 8, 8, value ); }
   U8 pphFwdLayerAdditionalInfoWidth() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 8, 8 ) ); }
   bool isPphFwdLayerAdditionalInfoWidthValid() const { return fieldValid( 1 ); }
   U16 pphFwdLayerAdditionalInfoWidthLen() const { return fieldLen( 1 ); }
   U16 pphFwdLayerAdditionalInfoWidthOffset() const { return fieldStart( 1 ); }

   // absent or [16, 1]
   void pphReservedMsbBitSizeIs( U8 value ) { fieldInIs( Impl::traced(), 2, value ); }
   U8 pphReservedMsbBitSize() const { return static_cast< U8 >( fieldIn( Impl::traced(), 2 ) ); }
   bool isPphReservedMsbBitSizeValid() const { return fieldValid( 2 ); }
   U16 pphReservedMsbBitSizeLen() const { return fieldLen( 2 ); }
   U16 pphReservedMsbBitSizeOffset() const { return fieldStart( 2 ); }

   // absent or [17, 1]
   void pphParsingStartOffsetB8SizeIs( U8 value ) { fieldInIs( Impl::traced(), 3, value ); }
   U8 pphParsingStartOffsetB8Size() const { return static_cast< U8 >( fieldIn( Impl::traced(), 3 ) ); }
   bool isPphParsingStartOffsetB8SizeValid() const { return fieldValid( 3 ); }
   U16 pphParsingStartOffsetB8SizeLen() const { return fieldLen( 3 ); }
   U16 pphParsingStartOffsetB8SizeOffset() const { return fieldStart( 3 ); }

   // absent or [18, 1]
   void pphParsingStartOffsetB7SizeIs( U8 value ) { fieldInIs( Impl::traced(), 4, value ); }
   U8 pphParsingStartOffsetB7Size() const { return static_cast< U8 >( fieldIn( Impl::traced(), 4 ) ); }
   bool isPphParsingStartOffsetB7SizeValid() const { return fieldValid( 4 ); }
   U16 pphParsingStartOffsetB7SizeLen() const { return fieldLen( 4 ); }
   U16 pphParsingStartOffsetB7SizeOffset() const { return fieldStart( 4 ); }
};

class SystemHeaderPph::WithStorage : public SystemHeaderPph {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : SystemHeaderPph( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Register.
class TerminateNetworkHeaders : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   TerminateNetworkHeaders( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isTerminateNetworkHeaders( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static Raw128 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw128 >( chip, variant ); }
   virtual Raw128 allFieldsMask() const;
   Raw128 getAllFields() const { return allFields< Raw128 >(); }

   // [0, 128]
   void itppTerminateNetworkHeadersIs( Raw128 const & value ) { wideAtIs( Impl::traced(), 0, 0, value ); }
   Raw128 itppTerminateNetworkHeaders() const { return wideAt< Raw128 >( Impl::traced(), 0, 0 ); }
   bool isItppTerminateNetworkHeadersValid() const { return fieldValid( 0 ); }
   U16 itppTerminateNetworkHeadersLen() const { return fieldLen( 0 ); }
   U16 itppTerminateNetworkHeadersOffset() const { return fieldStart( 0 ); }
};

class TerminateNetworkHeaders::WithStorage : public TerminateNetworkHeaders {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : TerminateNetworkHeaders( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[16] = {};
};

// Memory.
class UnknownDaProfile : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   UnknownDaProfile( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isUnknownDaProfile( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 21]
   void destinationIs( U32 value ) { fieldAtIs( Impl::traced(), 0, 0, 21, 32, value ); }
   U32 destination() const { return static_cast< U32 >( fieldAt( Impl::traced(), 0, 0, 21 ) ); }
   bool isDestinationValid() const { return fieldValid( 0 ); }
   U16 destinationLen() const { return fieldLen( 0 ); }
   U16 destinationOffset() const { return fieldStart( 0 ); }

   // [21, 1]
   void addVsiDestIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 21, 1, 8, value ); }
   U8 addVsiDest() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 21, 1 ) ); }
   bool isAddVsiDestValid() const { return fieldValid( 1 ); }
   U16 addVsiDestLen() const { return fieldLen( 1 ); }
   U16 addVsiDestOffset() const { return fieldStart( 1 ); }
};

class UnknownDaProfile::WithStorage : public UnknownDaProfile {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : UnknownDaProfile( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Memory.
class VeloroL2FodoProfile : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   VeloroL2FodoProfile( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isVeloroL2FodoProfile( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static Raw1024 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< Raw1024 >( chip, variant ); }
   virtual Raw1024 allFieldsMask() const;
   Raw1024 getAllFields() const { return allFields< Raw1024 >(); }

   // [0, 1]
   void v4RpfIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 1, 8, value ); }
   U8 v4Rpf() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 1 ) ); }
   bool isV4RpfValid() const { return fieldValid( 0 ); }
   U16 v4RpfLen() const { return fieldLen( 0 ); }
   U16 v4RpfOffset() const { return fieldStart( 0 ); }

   // [1, 1]
   void v6RpfIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 1, 1, 8, value ); }
   U8 v6Rpf() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 1, 1 ) ); }
   bool isV6RpfValid() const { return fieldValid( 1 ); }
   U16 v6RpfLen() const { return fieldLen( 1 ); }
   U16 v6RpfOffset() const { return fieldStart( 1 ); }

   // [2, 1]
   void ivlOrSvlIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 2, 1, 8, value ); }
   U8 ivlOrSvl() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 2, 1 ) ); }
   bool isIvlOrSvlValid() const { return fieldValid( 2 ); }
   U16 ivlOrSvlLen() const { return fieldLen( 2 ); }
   U16 ivlOrSvlOffset() const { return fieldStart( 2 ); }

   // [3, 1]
   void reservedIs( U8 value ) { fieldAtIs( Impl::traced(), 3, 3, 1, 8, value ); }
   U8 reserved() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 3, 1 ) ); }
   bool isReservedValid() const { return fieldValid( 3 ); }
   U16 reservedLen() const { return fieldLen( 3 ); }
   U16 reservedOffset() const { return fieldStart( 3 ); }
};

class VeloroL2FodoProfile::WithStorage : public VeloroL2FodoProfile {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : VeloroL2FodoProfile( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[80] = {};
};

// Memory, variants 0 to 1.
class VsiProfileEnablers : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   VsiProfileEnablers( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isVsiProfileEnablers( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U32 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U32 >( chip, variant ); }
   virtual U32 allFieldsMask() const;
   U32 getAllFields() const { return allFields< U32 >(); }

   // [0, 5]
   void routingProfile0Is( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 5, 8, value ); }
   U8 routingProfile0() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 5 ) ); }
   bool isRoutingProfile0Valid() const { return fieldValid( 0 ); }
   U16 routingProfile0Len() const { return fieldLen( 0 ); }
   U16 routingProfile0Offset() const { return fieldStart( 0 ); }

   // [5, 5]
   void routingProfile1Is( U8 value ) { fieldAtIs( Impl::traced(), 1, 5, 5, 8, value ); }
   U8 routingProfile1() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 5, 5 ) ); }
   bool isRoutingProfile1Valid() const { return fieldValid( 1 ); }
   U16 routingProfile1Len() const { return fieldLen( 1 ); }
   U16 routingProfile1Offset() const { return fieldStart( 1 ); }

   // [10, 5]
   void routingProfile2Is( U8 value ) { fieldAtIs( Impl::traced(), 2, 10, 5, 8, value ); }
   U8 routingProfile2() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 10, 5 ) ); }
   bool isRoutingProfile2Valid() const { return fieldValid( 2 ); }
   U16 routingProfile2Len() const { return fieldLen( 2 ); }
   U16 routingProfile2Offset() const { return fieldStart( 2 ); }

   // [15, 5]
   void routingProfile3Is( U8 value ) { fieldAtIs( Impl::traced(), 3, 15, 5, 8, value ); }
   U8 routingProfile3() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 15, 5 ) ); }
   bool isRoutingProfile3Valid() const { return fieldValid( 3 ); }
   U16 routingProfile3Len() const { return fieldLen( 3 ); }
   U16 routingProfile3Offset() const { return fieldStart( 3 ); }

   // routingProfile0 to routingProfile3 by number
   void routingProfileIs( U32 index, U8 value ) { runFieldIs( 0, index, value ); }
   U8 routingProfile( U32 index ) const { return static_cast< U8 >( runField( 0, index ) ); }
};

class VsiProfileEnablers::WithStorage : public VsiProfileEnablers {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : VsiProfileEnablers( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[4] = {};
};

// Memory, variants 0 to 1.
class VsiProfileFlags : public DaceSal::AsicUtils::DaceSalAsicTableBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   VsiProfileFlags( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicTableBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isVsiProfileFlags( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U32 entries( U32 chip, U8 variant ) { return metaInfo.entries( chip, variant ); }
   static AsicUtils::EntrySpans entrySpans( U32 chip, U8 variant ) { return metaInfo.entrySpans( chip, variant ); }
   static U16 tableWidth( U32 chip, U8 variant ) { return metaInfo.tableWidth( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicTableBase::tableVariantCount, DaceSalAsicTableBase::width, DaceSalAsicTableBase::index_min, DaceSalAsicTableBase::arrayElements, DaceSalAsicTableBase::arrayIndex_min, DaceSalAsicTableBase::sdkDefinedId, DaceSalAsicTableBase::fieldCount, DaceSalAsicTableBase::instanceCount, DaceSalAsicTableBase::hasIdentifier, DaceSalAsicTableBase::getSchanAddress, DaceSalAsicTableBase::entries, DaceSalAsicTableBase::entrySpans, DaceSalAsicTableBase::tableWidth;

   static U64 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U64 >( chip, variant ); }
   virtual U64 allFieldsMask() const;
   U64 getAllFields() const { return allFields< U64 >(); }

   // [0, 4]
   void fwdDomainCsProfileIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 4, 8, value ); }
   U8 fwdDomainCsProfile() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 4 ) ); }
   bool isFwdDomainCsProfileValid() const { return fieldValid( 0 ); }
   U16 fwdDomainCsProfileLen() const { return fieldLen( 0 ); }
   U16 fwdDomainCsProfileOffset() const { return fieldStart( 0 ); }

   // [0, 32]
   void fwdDomainCsProfileVecIs( U32 value ) { fieldAtIs( Impl::traced(), 1, 0, 32, 32, value ); }
   U32 fwdDomainCsProfileVec() const { return static_cast< U32 >( fieldAt( Impl::traced(), 1, 0, 32 ) ); }
   bool isFwdDomainCsProfileVecValid() const { return fieldValid( 1 ); }
   U16 fwdDomainCsProfileVecLen() const { return fieldLen( 1 ); }
   U16 fwdDomainCsProfileVecOffset() const { return fieldStart( 1 ); }
};

class VsiProfileFlags::WithStorage : public VsiProfileFlags {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : VsiProfileFlags( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[8] = {};
};

// Register, variants 0 to 1.
class VttTrapStrengths3 : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   VttTrapStrengths3( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isVttTrapStrengths3( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static U64 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U64 >( chip, variant ); }
   virtual U64 allFieldsMask() const;
   U64 getAllFields() const { return allFields< U64 >(); }

   // [0, 4]
   void mplsUnexpectedBosFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 4, 8, value ); }
   U8 mplsUnexpectedBosFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 4 ) ); }
   bool isMplsUnexpectedBosFwdValid() const { return fieldValid( 0 ); }
   U16 mplsUnexpectedBosFwdLen() const { return fieldLen( 0 ); }
   U16 mplsUnexpectedBosFwdOffset() const { return fieldStart( 0 ); }

   // [4, 3]
   void mplsUnexpectedBosSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 4, 3, 8, value ); }
   U8 mplsUnexpectedBosSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 4, 3 ) ); }
   bool isMplsUnexpectedBosSnpValid() const { return fieldValid( 1 ); }
   U16 mplsUnexpectedBosSnpLen() const { return fieldLen( 1 ); }
   U16 mplsUnexpectedBosSnpOffset() const { return fieldStart( 1 ); }

   // [7, 4]
   void mplsUnexpectedNoBosFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 7, 4, 8, value ); }
   U8 mplsUnexpectedNoBosFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 7, 4 ) ); }
   bool isMplsUnexpectedNoBosFwdValid() const { return fieldValid( 2 ); }
   U16 mplsUnexpectedNoBosFwdLen() const { return fieldLen( 2 ); }
   U16 mplsUnexpectedNoBosFwdOffset() const { return fieldStart( 2 ); }

   // [11, 3]
   void mplsUnexpectedNoBosSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 3, 11, 3, 8, value ); }
   U8 mplsUnexpectedNoBosSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 11, 3 ) ); }
   bool isMplsUnexpectedNoBosSnpValid() const { return fieldValid( 3 ); }
   U16 mplsUnexpectedNoBosSnpLen() const { return fieldLen( 3 ); }
   U16 mplsUnexpectedNoBosSnpOffset() const { return fieldStart( 3 ); }

   // [14, 4]
   void ipv4VersionErrorFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 4, 14, 4, 8, value ); }
   U8 ipv4VersionErrorFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 4, 14, 4 ) ); }
   bool isIpv4VersionErrorFwdValid() const { return fieldValid( 4 ); }
   U16 ipv4VersionErrorFwdLen() const { return fieldLen( 4 ); }
   U16 ipv4VersionErrorFwdOffset() const { return fieldStart( 4 ); }

   // [18, 3]
   void ipv4VersionErrorSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 5, 18, 3, 8, value ); }
   U8 ipv4VersionErrorSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 5, 18, 3 ) ); }
   bool isIpv4VersionErrorSnpValid() const { return fieldValid( 5 ); }
   U16 ipv4VersionErrorSnpLen() const { return fieldLen( 5 ); }
   U16 ipv4VersionErrorSnpOffset() const { return fieldStart( 5 ); }

   // [21, 4]
   void ipv4ChecksumErrorFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 6, 21, 4, 8, value ); }
   U8 ipv4ChecksumErrorFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 6, 21, 4 ) ); }
   bool isIpv4ChecksumErrorFwdValid() const { return fieldValid( 6 ); }
   U16 ipv4ChecksumErrorFwdLen() const { return fieldLen( 6 ); }
   U16 ipv4ChecksumErrorFwdOffset() const { return fieldStart( 6 ); }

   // [25, 3]
   void ipv4ChecksumErrorSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 7, 25, 3, 8, value ); }
   U8 ipv4ChecksumErrorSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 7, 25, 3 ) ); }
   bool isIpv4ChecksumErrorSnpValid() const { return fieldValid( 7 ); }
   U16 ipv4ChecksumErrorSnpLen() const { return fieldLen( 7 ); }
   U16 ipv4ChecksumErrorSnpOffset() const { return fieldStart( 7 ); }

   // [28, 4]
   void ipv4HeaderLengthErrorFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 8, 28, 4, 8, value ); }
   U8 ipv4HeaderLengthErrorFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 8, 28, 4 ) ); }
   bool isIpv4HeaderLengthErrorFwdValid() const { return fieldValid( 8 ); }
   U16 ipv4HeaderLengthErrorFwdLen() const { return fieldLen( 8 ); }
   U16 ipv4HeaderLengthErrorFwdOffset() const { return fieldStart( 8 ); }

   // [32, 3]
   void ipv4HeaderLengthErrorSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 9, 32, 3, 8, value ); }
   U8 ipv4HeaderLengthErrorSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 9, 32, 3 ) ); }
   bool isIpv4HeaderLengthErrorSnpValid() const { return fieldValid( 9 ); }
   U16 ipv4HeaderLengthErrorSnpLen() const { return fieldLen( 9 ); }
   U16 ipv4HeaderLengthErrorSnpOffset() const { return fieldStart( 9 ); }
};

class VttTrapStrengths3::WithStorage : public VttTrapStrengths3 {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : VttTrapStrengths3( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[8] = {};
};

// Register, variants 0 to 1.
class VttTrapStrengths4 : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   VttTrapStrengths4( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isVttTrapStrengths4( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static U64 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U64 >( chip, variant ); }
   virtual U64 allFieldsMask() const;
   U64 getAllFields() const { return allFields< U64 >(); }

   // [0, 4]
   void ipv4TotalLengthErrorFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 4, 8, value ); }
   U8 ipv4TotalLengthErrorFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 4 ) ); }
   bool isIpv4TotalLengthErrorFwdValid() const { return fieldValid( 0 ); }
   U16 ipv4TotalLengthErrorFwdLen() const { return fieldLen( 0 ); }
   U16 ipv4TotalLengthErrorFwdOffset() const { return fieldStart( 0 ); }

   // [4, 3]
   void ipv4TotalLengthErrorSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 4, 3, 8, value ); }
   U8 ipv4TotalLengthErrorSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 4, 3 ) ); }
   bool isIpv4TotalLengthErrorSnpValid() const { return fieldValid( 1 ); }
   U16 ipv4TotalLengthErrorSnpLen() const { return fieldLen( 1 ); }
   U16 ipv4TotalLengthErrorSnpOffset() const { return fieldStart( 1 ); }

   // [7, 4]
   void ipv4Ttl0FwdIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 7, 4, 8, value ); }
   U8 ipv4Ttl0Fwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 7, 4 ) ); }
   bool isIpv4Ttl0FwdValid() const { return fieldValid( 2 ); }
   U16 ipv4Ttl0FwdLen() const { return fieldLen( 2 ); }
   U16 ipv4Ttl0FwdOffset() const { return fieldStart( 2 ); }

   // [11, 3]
   void ipv4Ttl0SnpIs( U8 value ) { fieldAtIs( Impl::traced(), 3, 11, 3, 8, value ); }
   U8 ipv4Ttl0Snp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 11, 3 ) ); }
   bool isIpv4Ttl0SnpValid() const { return fieldValid( 3 ); }
   U16 ipv4Ttl0SnpLen() const { return fieldLen( 3 ); }
   U16 ipv4Ttl0SnpOffset() const { return fieldStart( 3 ); }

   // [14, 4]
   void ipv4HasOptionsFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 4, 14, 4, 8, value ); }
   U8 ipv4HasOptionsFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 4, 14, 4 ) ); }
   bool isIpv4HasOptionsFwdValid() const { return fieldValid( 4 ); }
   U16 ipv4HasOptionsFwdLen() const { return fieldLen( 4 ); }
   U16 ipv4HasOptionsFwdOffset() const { return fieldStart( 4 ); }

   // [18, 3]
   void ipv4HasOptionsSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 5, 18, 3, 8, value ); }
   U8 ipv4HasOptionsSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 5, 18, 3 ) ); }
   bool isIpv4HasOptionsSnpValid() const { return fieldValid( 5 ); }
   U16 ipv4HasOptionsSnpLen() const { return fieldLen( 5 ); }
   U16 ipv4HasOptionsSnpOffset() const { return fieldStart( 5 ); }

   // [21, 4]
   void ipv4Ttl1FwdIs( U8 value ) { fieldAtIs( Impl::traced(), 6, 21, 4, 8, value ); }
   U8 ipv4Ttl1Fwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 6, 21, 4 ) ); }
   bool isIpv4Ttl1FwdValid() const { return fieldValid( 6 ); }
   U16 ipv4Ttl1FwdLen() const { return fieldLen( 6 ); }
   U16 ipv4Ttl1FwdOffset() const { return fieldStart( 6 ); }

   // [25, 3]
   void ipv4Ttl1SnpIs( U8 value ) { fieldAtIs( Impl::traced(), 7, 25, 3, 8, value ); }
   U8 ipv4Ttl1Snp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 7, 25, 3 ) ); }
   bool isIpv4Ttl1SnpValid() const { return fieldValid( 7 ); }
   U16 ipv4Ttl1SnpLen() const { return fieldLen( 7 ); }
   U16 ipv4Ttl1SnpOffset() const { return fieldStart( 7 ); }

   // [28, 4]
   void ipv4SipEqualDipFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 8, 28, 4, 8, value ); }
   U8 ipv4SipEqualDipFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 8, 28, 4 ) ); }
   bool isIpv4SipEqualDipFwdValid() const { return fieldValid( 8 ); }
   U16 ipv4SipEqualDipFwdLen() const { return fieldLen( 8 ); }
   U16 ipv4SipEqualDipFwdOffset() const { return fieldStart( 8 ); }

   // [32, 3]
   void ipv4SipEqualDipSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 9, 32, 3, 8, value ); }
   U8 ipv4SipEqualDipSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 9, 32, 3 ) ); }
   bool isIpv4SipEqualDipSnpValid() const { return fieldValid( 9 ); }
   U16 ipv4SipEqualDipSnpLen() const { return fieldLen( 9 ); }
   U16 ipv4SipEqualDipSnpOffset() const { return fieldStart( 9 ); }

   // [35, 4]
   void ipv4DipZeroFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 10, 35, 4, 8, value ); }
   U8 ipv4DipZeroFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 10, 35, 4 ) ); }
   bool isIpv4DipZeroFwdValid() const { return fieldValid( 10 ); }
   U16 ipv4DipZeroFwdLen() const { return fieldLen( 10 ); }
   U16 ipv4DipZeroFwdOffset() const { return fieldStart( 10 ); }

   // [39, 3]
   void ipv4DipZeroSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 11, 39, 3, 8, value ); }
   U8 ipv4DipZeroSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 11, 39, 3 ) ); }
   bool isIpv4DipZeroSnpValid() const { return fieldValid( 11 ); }
   U16 ipv4DipZeroSnpLen() const { return fieldLen( 11 ); }
   U16 ipv4DipZeroSnpOffset() const { return fieldStart( 11 ); }
};

class VttTrapStrengths4::WithStorage : public VttTrapStrengths4 {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : VttTrapStrengths4( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[8] = {};
};

// Register, variants 0 to 1.
class VttTrapStrengths5 : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   VttTrapStrengths5( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isVttTrapStrengths5( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static U64 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U64 >( chip, variant ); }
   virtual U64 allFieldsMask() const;
   U64 getAllFields() const { return allFields< U64 >(); }

   // [0, 4]
   void ipv4SipIsMcFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 4, 8, value ); }
   U8 ipv4SipIsMcFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 4 ) ); }
   bool isIpv4SipIsMcFwdValid() const { return fieldValid( 0 ); }
   U16 ipv4SipIsMcFwdLen() const { return fieldLen( 0 ); }
   U16 ipv4SipIsMcFwdOffset() const { return fieldStart( 0 ); }

   // [4, 3]
   void ipv4SipIsMcSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 4, 3, 8, value ); }
   U8 ipv4SipIsMcSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 4, 3 ) ); }
   bool isIpv4SipIsMcSnpValid() const { return fieldValid( 1 ); }
   U16 ipv4SipIsMcSnpLen() const { return fieldLen( 1 ); }
   U16 ipv4SipIsMcSnpOffset() const { return fieldStart( 1 ); }

   // [7, 4]
   void ipv4FragmentedFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 7, 4, 8, value ); }
   U8 ipv4FragmentedFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 7, 4 ) ); }
   bool isIpv4FragmentedFwdValid() const { return fieldValid( 2 ); }
   U16 ipv4FragmentedFwdLen() const { return fieldLen( 2 ); }
   U16 ipv4FragmentedFwdOffset() const { return fieldStart( 2 ); }

   // [11, 3]
   void ipv4FragmentedSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 3, 11, 3, 8, value ); }
   U8 ipv4FragmentedSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 11, 3 ) ); }
   bool isIpv4FragmentedSnpValid() const { return fieldValid( 3 ); }
   U16 ipv4FragmentedSnpLen() const { return fieldLen( 3 ); }
   U16 ipv4FragmentedSnpOffset() const { return fieldStart( 3 ); }

   // [14, 4]
   void ipv6VersionErrorFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 4, 14, 4, 8, value ); }
   U8 ipv6VersionErrorFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 4, 14, 4 ) ); }
   bool isIpv6VersionErrorFwdValid() const { return fieldValid( 4 ); }
   U16 ipv6VersionErrorFwdLen() const { return fieldLen( 4 ); }
   U16 ipv6VersionErrorFwdOffset() const { return fieldStart( 4 ); }

   // [18, 3]
   void ipv6VersionErrorSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 5, 18, 3, 8, value ); }
   U8 ipv6VersionErrorSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 5, 18, 3 ) ); }
   bool isIpv6VersionErrorSnpValid() const { return fieldValid( 5 ); }
   U16 ipv6VersionErrorSnpLen() const { return fieldLen( 5 ); }
   U16 ipv6VersionErrorSnpOffset() const { return fieldStart( 5 ); }

   // [21, 4]
   void ipv6HopCount0FwdIs( U8 value ) { fieldAtIs( Impl::traced(), 6, 21, 4, 8, value ); }
   U8 ipv6HopCount0Fwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 6, 21, 4 ) ); }
   bool isIpv6HopCount0FwdValid() const { return fieldValid( 6 ); }
   U16 ipv6HopCount0FwdLen() const { return fieldLen( 6 ); }
   U16 ipv6HopCount0FwdOffset() const { return fieldStart( 6 ); }

   // [25, 3]
   void ipv6HopCount0SnpIs( U8 value ) { fieldAtIs( Impl::traced(), 7, 25, 3, 8, value ); }
   U8 ipv6HopCount0Snp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 7, 25, 3 ) ); }
   bool isIpv6HopCount0SnpValid() const { return fieldValid( 7 ); }
   U16 ipv6HopCount0SnpLen() const { return fieldLen( 7 ); }
   U16 ipv6HopCount0SnpOffset() const { return fieldStart( 7 ); }

   // [28, 4]
   void ipv6HopCount1FwdIs( U8 value ) { fieldAtIs( Impl::traced(), 8, 28, 4, 8, value ); }
   U8 ipv6HopCount1Fwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 8, 28, 4 ) ); }
   bool isIpv6HopCount1FwdValid() const { return fieldValid( 8 ); }
   U16 ipv6HopCount1FwdLen() const { return fieldLen( 8 ); }
   U16 ipv6HopCount1FwdOffset() const { return fieldStart( 8 ); }

   // [32, 3]
   void ipv6HopCount1SnpIs( U8 value ) { fieldAtIs( Impl::traced(), 9, 32, 3, 8, value ); }
   U8 ipv6HopCount1Snp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 9, 32, 3 ) ); }
   bool isIpv6HopCount1SnpValid() const { return fieldValid( 9 ); }
   U16 ipv6HopCount1SnpLen() const { return fieldLen( 9 ); }
   U16 ipv6HopCount1SnpOffset() const { return fieldStart( 9 ); }

   // [35, 4]
   void ipv6UnspecifiedDestinationFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 10, 35, 4, 8, value ); }
   U8 ipv6UnspecifiedDestinationFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 10, 35, 4 ) ); }
   bool isIpv6UnspecifiedDestinationFwdValid() const { return fieldValid( 10 ); }
   U16 ipv6UnspecifiedDestinationFwdLen() const { return fieldLen( 10 ); }
   U16 ipv6UnspecifiedDestinationFwdOffset() const { return fieldStart( 10 ); }

   // [39, 3]
   void ipv6UnspecifiedDestinationSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 11, 39, 3, 8, value ); }
   U8 ipv6UnspecifiedDestinationSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 11, 39, 3 ) ); }
   bool isIpv6UnspecifiedDestinationSnpValid() const { return fieldValid( 11 ); }
   U16 ipv6UnspecifiedDestinationSnpLen() const { return fieldLen( 11 ); }
   U16 ipv6UnspecifiedDestinationSnpOffset() const { return fieldStart( 11 ); }
};

class VttTrapStrengths5::WithStorage : public VttTrapStrengths5 {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : VttTrapStrengths5( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[8] = {};
};

// Register, variants 0 to 1.
class VttTrapStrengths6 : public DaceSal::AsicUtils::DaceSalAsicRegBase {
 public:
   class WithStorage;
   static AsicUtils::MetaInfo const metaInfo;

   VttTrapStrengths6( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )
      : DaceSalAsicRegBase( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {}
   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}
   static bool isVttTrapStrengths6( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, variant ); }

   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }
   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }
   static U16 regWidth( U32 chip, U8 variant ) { return metaInfo.regWidth( chip, variant ); }
   static U32 maxIdentifier( U32 chip, U8 variant ) { return metaInfo.maxIdentifier( chip, variant ); }
   static U32 addrStride( U32 chip, U8 variant ) { return metaInfo.addrStride( chip, variant ); }
   static U16 width( U32 chip, U8 variant ) { return metaInfo.width( chip, variant ); }
   static U32 index_min( U32 chip, U8 variant ) { return metaInfo.index_min( chip, variant ); }
   static U32 arrayElements( U32 chip, U8 variant ) { return metaInfo.arrayElements( chip, variant ); }
   static U32 arrayIndex_min( U32 chip, U8 variant ) { return metaInfo.arrayIndex_min( chip, variant ); }
   static S32 sdkDefinedId( U32 chip, U8 variant ) { return metaInfo.sdkDefinedId( chip, variant ); }
   static U16 fieldCount( U32 chip, U8 variant ) { return metaInfo.fieldCount( chip, variant ); }
   static U32 instanceCount( U32 chip, U8 variant ) { return metaInfo.instanceCount( chip, variant ); }
   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( chip, variant, identifier ); }
   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, U16 identifier, U32 tableEntry, U16 arrayIndex ) {
      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, tableEntry, arrayIndex );
   }
   using DaceSalAsicRegBase::tableVariantCount, DaceSalAsicRegBase::width, DaceSalAsicRegBase::index_min, DaceSalAsicRegBase::arrayElements, DaceSalAsicRegBase::arrayIndex_min, DaceSalAsicRegBase::sdkDefinedId, DaceSalAsicRegBase::fieldCount, DaceSalAsicRegBase::instanceCount, DaceSalAsicRegBase::hasIdentifier, DaceSalAsicRegBase::getSchanAddress, DaceSalAsicRegBase::regWidth, DaceSalAsicRegBase::maxIdentifier, DaceSalAsicRegBase::addrStride;

   static U64 allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< U64 >( chip, variant ); }
   virtual U64 allFieldsMask() const;
   U64 getAllFields() const { return allFields< U64 >(); }

   // [0, 4]
   void ipv6LoopbackAddressFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 0, 0, 4, 8, value ); }
   U8 ipv6LoopbackAddressFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 0, 0, 4 ) ); }
   bool isIpv6LoopbackAddressFwdValid() const { return fieldValid( 0 ); }
   U16 ipv6LoopbackAddressFwdLen() const { return fieldLen( 0 ); }
   U16 ipv6LoopbackAddressFwdOffset() const { return fieldStart( 0 ); }

   // [4, 3]
   void ipv6LoopbackAddressSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 1, 4, 3, 8, value ); }
   U8 ipv6LoopbackAddressSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 1, 4, 3 ) ); }
   bool isIpv6LoopbackAddressSnpValid() const { return fieldValid( 1 ); }
   U16 ipv6LoopbackAddressSnpLen() const { return fieldLen( 1 ); }
   U16 ipv6LoopbackAddressSnpOffset() const { return fieldStart( 1 ); }

   // [7, 4]
   void ipv6MulticastSourceFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 2, 7, 4, 8, value ); }
   U8 ipv6MulticastSourceFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 2, 7, 4 ) ); }
   bool isIpv6MulticastSourceFwdValid() const { return fieldValid( 2 ); }
   U16 ipv6MulticastSourceFwdLen() const { return fieldLen( 2 ); }
   U16 ipv6MulticastSourceFwdOffset() const { return fieldStart( 2 ); }

   // [11, 3]
   void ipv6MulticastSourceSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 3, 11, 3, 8, value ); }
   U8 ipv6MulticastSourceSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 3, 11, 3 ) ); }
   bool isIpv6MulticastSourceSnpValid() const { return fieldValid( 3 ); }
   U16 ipv6MulticastSourceSnpLen() const { return fieldLen( 3 ); }
   U16 ipv6MulticastSourceSnpOffset() const { return fieldStart( 3 ); }

   // [14, 4]
   void ipv6NextHeaderNullFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 4, 14, 4, 8, value ); }
   U8 ipv6NextHeaderNullFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 4, 14, 4 ) ); }
   bool isIpv6NextHeaderNullFwdValid() const { return fieldValid( 4 ); }
   U16 ipv6NextHeaderNullFwdLen() const { return fieldLen( 4 ); }
   U16 ipv6NextHeaderNullFwdOffset() const { return fieldStart( 4 ); }

   // [18, 3]
   void ipv6NextHeaderNullSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 5, 18, 3, 8, value ); }
   U8 ipv6NextHeaderNullSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 5, 18, 3 ) ); }
   bool isIpv6NextHeaderNullSnpValid() const { return fieldValid( 5 ); }
   U16 ipv6NextHeaderNullSnpLen() const { return fieldLen( 5 ); }
   U16 ipv6NextHeaderNullSnpOffset() const { return fieldStart( 5 ); }

   // [21, 4]
   void ipv6UnspecifiedSourceFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 6, 21, 4, 8, value ); }
   U8 ipv6UnspecifiedSourceFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 6, 21, 4 ) ); }
   bool isIpv6UnspecifiedSourceFwdValid() const { return fieldValid( 6 ); }
   U16 ipv6UnspecifiedSourceFwdLen() const { return fieldLen( 6 ); }
   U16 ipv6UnspecifiedSourceFwdOffset() const { return fieldStart( 6 ); }

   // [25, 3]
   void ipv6UnspecifiedSourceSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 7, 25, 3, 8, value ); }
   U8 ipv6UnspecifiedSourceSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 7, 25, 3 ) ); }
   bool isIpv6UnspecifiedSourceSnpValid() const { return fieldValid( 7 ); }
   U16 ipv6UnspecifiedSourceSnpLen() const { return fieldLen( 7 ); }
   U16 ipv6UnspecifiedSourceSnpOffset() const { return fieldStart( 7 ); }

   // [28, 4]
   void ipv6LinkLocalDestinationFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 8, 28, 4, 8, value ); }
   U8 ipv6LinkLocalDestinationFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 8, 28, 4 ) ); }
   bool isIpv6LinkLocalDestinationFwdValid() const { return fieldValid( 8 ); }
   U16 ipv6LinkLocalDestinationFwdLen() const { return fieldLen( 8 ); }
   U16 ipv6LinkLocalDestinationFwdOffset() const { return fieldStart( 8 ); }

   // [32, 3]
   void ipv6LinkLocalDestinationSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 9, 32, 3, 8, value ); }
   U8 ipv6LinkLocalDestinationSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 9, 32, 3 ) ); }
   bool isIpv6LinkLocalDestinationSnpValid() const { return fieldValid( 9 ); }
   U16 ipv6LinkLocalDestinationSnpLen() const { return fieldLen( 9 ); }
   U16 ipv6LinkLocalDestinationSnpOffset() const { return fieldStart( 9 ); }

   // [35, 4]
   void ipv6SiteLocalDestinationFwdIs( U8 value ) { fieldAtIs( Impl::traced(), 10, 35, 4, 8, value ); }
   U8 ipv6SiteLocalDestinationFwd() const { return static_cast< U8 >( fieldAt( Impl::traced(), 10, 35, 4 ) ); }
   bool isIpv6SiteLocalDestinationFwdValid() const { return fieldValid( 10 ); }
   U16 ipv6SiteLocalDestinationFwdLen() const { return fieldLen( 10 ); }
   U16 ipv6SiteLocalDestinationFwdOffset() const { return fieldStart( 10 ); }

   // [39, 3]
   void ipv6SiteLocalDestinationSnpIs( U8 value ) { fieldAtIs( Impl::traced(), 11, 39, 3, 8, value ); }
   U8 ipv6SiteLocalDestinationSnp() const { return static_cast< U8 >( fieldAt( Impl::traced(), 11, 39, 3 ) ); }
   bool isIpv6SiteLocalDestinationSnpValid() const { return fieldValid( 11 ); }
   U16 ipv6SiteLocalDestinationSnpLen() const { return fieldLen( 11 ); }
   U16 ipv6SiteLocalDestinationSnpOffset() const { return fieldStart( 11 ); }
};

class VttTrapStrengths6::WithStorage : public VttTrapStrengths6 {
 public:
   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )
      : VttTrapStrengths6( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}

 private:
   alignas( 8 ) U8 storage_[8] = {};
};

} // namespace Hardware
