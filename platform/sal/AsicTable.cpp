#include "sal/AsicTable.h"

namespace DaceSal::AsicUtils {

namespace {

constexpr unsigned maxWords = Raw1024::words;

// The words of an entry on their way between the buffer, which may lie anywhere, and the driver.
class EntryWords {
 public:
   explicit EntryWords( unsigned width ) : width_( width ) {}

   void take( U8 const * buf ) {
      // Word by word: fields were just stored that way, and a wider load would wait for them.
      for ( unsigned word = 0; word < width_; ++word ) {
         words_[word] = Detail::loadWord( buf + 4 * word );
         asm volatile( "" : : : "memory" ); // keeps the loop from becoming a call of memcpy
      }
   }
   void give( U8 * buf ) const { std::memcpy( buf, words_.data(), width_ * sizeof( U32 ) ); }
   std::span< U32 > span() { return { words_.data(), width_ }; }

 private:
   unsigned width_;
   std::array< U32, maxWords > words_; // filled before it is read
};

unsigned checkedWidth( DaceSalAsicTransfer::Place const & place, char const * pattern ) {
   unsigned const width = place.accessor.width();
   if ( place.len < width * sizeof( U32 ) ) {
      place.meta.fail( "len_ >= " + std::to_string( width * sizeof( U32 ) ), pattern );
   }
   return width;
}

SchanAddress schanAddress( DaceSalAsicTransfer::Place const & place, U16 identifier ) {
   SchanAddress at;
   // An index that no array can have stays out of range.
   auto const arrayIndex = static_cast< U16 >( std::clamp( place.arrayIndex, -1, 0xffff ) );
   bool const known =
      place.accessor.getSchanAddress( at.address, at.selectorA, at.selectorB, identifier, place.entry, arrayIndex );
   if ( !known ) {
      place.meta.fail( "getSchanAddress( address, selectorA, selectorB, identifier, tableEntry, arrayIndex )",
                       "bool %::getSchanAddress(U32&, U32&, U32&, U16, U32, U16) const" );
   }
   return at;
}

SchanDriver & driver() {
   SchanDriver * installed = schanDriver();
   Rex::sassert( installed != nullptr, "schanDriver" );
   return *installed;
}

void tell( DaceSalAsicTransfer::Place const & place,
           Operation::Kind kind,
           Operation::Scope scope,
           int core,
           bool changed,
           std::span< U32 const > words ) {
   OperationListener * listener = operationListener();
   if ( !listener ) {
      return;
   }
   Operation operation;
   operation.kind = kind;
   operation.scope = scope;
   operation.changed = changed;
   operation.isRegister = !place.meta.isMemory;
   operation.chip = place.chip;
   operation.table = place.meta.number;
   operation.variant = place.variant;
   operation.arrayIndex = place.arrayIndex;
   operation.core = core;
   operation.entry = place.entry;
   operation.words = words;
   operation.origin = place.origin;
   listener->operation( operation );
}

} // namespace

void DaceSalAsicTransfer::readAny( Place const & place ) {
   EntryWords words( checkedWidth( place, "int %::doReadAny" ) );
   driver().read( place.chip, schanAddress( place, 0 ), words.span() );
   words.give( place.buf );
   tell( place, Operation::Kind::read, Operation::Scope::any, 0, false, words.span() );
}

void DaceSalAsicTransfer::writeAll( Place const & place ) {
   EntryWords words( checkedWidth( place, "void %::doWriteAll" ) );
   words.take( place.buf );
   bool changed = false;
   U32 const instances = place.accessor.instanceCount();
   for ( U32 instance = 0; instance < instances; ++instance ) {
      changed |= driver().write( place.chip, schanAddress( place, static_cast< U16 >( instance ) ), words.span() );
   }
   tell( place, Operation::Kind::write, Operation::Scope::all, 0, changed, words.span() );
}

void DaceSalAsicTransfer::writeCore( Place const & place, int core ) {
   constexpr char const * pattern = "void %::doWriteCore";
   EntryWords words( checkedWidth( place, pattern ) );
   U32 const instances = place.accessor.instanceCount();
   if ( core < 0 || static_cast< U32 >( core ) >= instances ) {
      std::ostringstream message;
      message << place.meta.name << " has no copy for core " << core << " on " << Hardware::ChipType{ place.chipType }
              << ": it has " << instances << ( instances == 1 ? " copy" : " copies" )
              << ". No chip operation was made.";
      place.meta.failWith( "core < instanceCount()", message.str(), pattern );
   }
   words.take( place.buf );
   bool const changed = driver().write( place.chip, schanAddress( place, static_cast< U16 >( core ) ), words.span() );
   tell( place, Operation::Kind::write, Operation::Scope::core, core, changed, words.span() );
}

// ---- registers

DaceSalAsicTransfer::Place
DaceSalAsicRegBase::place( ChipId chip, int arrayIndex, std::source_location const & origin ) const {
   return { meta(), *this, chipType, variant_, buf_, len_, chip, arrayIndex, 0, origin };
}

bool DaceSalAsicRegBase::isTable() const {
   meta().trace( "virtual bool %::isTable() const", chipType, variant_ );
   return false;
}

U32 DaceSalAsicRegBase::maxIdentifier() const {
   meta().trace( "virtual U32 %::maxIdentifier() const", chipType, variant_ );
   return meta().maxIdentifier( chipType, variant_ );
}

U16 DaceSalAsicRegBase::regWidth() const {
   meta().trace( "U16 %::regWidth() const", chipType, variant_ );
   return meta().regWidth( chipType, variant_ );
}

U32 DaceSalAsicRegBase::addrStride() const {
   meta().trace( "U32 %::addrStride() const", chipType, variant_ );
   return meta().addrStride( chipType, variant_ );
}

int DaceSalAsicRegBase::doReadAny( ChipId chip, int arrayIndex, std::source_location origin ) {
   DaceSalAsicTransfer::readAny( place( chip, arrayIndex, origin ) );
   return 0;
}

void DaceSalAsicRegBase::doWriteAll( ChipId chip, int arrayIndex, std::source_location origin ) const {
   DaceSalAsicTransfer::writeAll( place( chip, arrayIndex, origin ) );
}

// ---- memories

DaceSalAsicTransfer::Place
DaceSalAsicTableBase::place( ChipId chip, int arrayIndex, int entry, std::source_location const & origin ) const {
   return { meta(), *this, chipType, variant_, buf_, len_, chip, arrayIndex, static_cast< U32 >( entry ), origin };
}

U32 DaceSalAsicTableBase::entries() const {
   meta().trace( "virtual U32 %::entries() const", chipType, variant_ );
   return meta().entries( chipType, variant_ );
}

bool DaceSalAsicTableBase::isTable() const {
   meta().trace( "virtual bool %::isTable() const", chipType, variant_ );
   return true;
}

U32 DaceSalAsicTableBase::tableVariantCount() const {
   meta().trace( "virtual U32 %::tableVariantCount() const", chipType, variant_ );
   return meta().tableVariantCount( chipType );
}

::AsicUtils::EntrySpans DaceSalAsicTableBase::entrySpans() const {
   meta().trace( "virtual AsicUtils::EntrySpans %::entrySpans() const", chipType, variant_ );
   return meta().entrySpans( chipType, variant_ );
}

U16 DaceSalAsicTableBase::tableWidth() const {
   meta().trace( "U16 %::tableWidth() const", chipType, variant_ );
   return meta().tableWidth( chipType, variant_ );
}

bool DaceSalAsicTableBase::isPrimary() const {
   meta().trace( "bool %::isPrimary() const", chipType, variant_ );
   return true;
}

int DaceSalAsicTableBase::doReadAny( ChipId chip, int arrayIndex, int entry, std::source_location origin ) {
   DaceSalAsicTransfer::readAny( place( chip, arrayIndex, entry, origin ) );
   return 0;
}

void DaceSalAsicTableBase::doWriteAll( ChipId chip, int arrayIndex, int entry, std::source_location origin ) const {
   DaceSalAsicTransfer::writeAll( place( chip, arrayIndex, entry, origin ) );
}

void DaceSalAsicTableBase::doWriteCore(
   ChipId chip, int arrayIndex, int core, int entry, std::source_location origin ) const {
   DaceSalAsicTransfer::writeCore( place( chip, arrayIndex, entry, origin ), core );
}

} // namespace DaceSal::AsicUtils
