#include "sal/AsicTable.h"

#include <cstdint>
#include <cstring>

namespace DaceSal::AsicUtils {

namespace {

[[gnu::always_inline]] inline SchanDriver & driver() {
   SchanDriver * installed = schanDriver();
   Rex::sassert( installed != nullptr, "schanDriver" );
   return *installed;
}

// The words of an entry on their way between the buffer and the driver: where they lie, if that is an address for
// words, or else a copy.
class Words {
 public:
   static bool lieIn( U8 const * buf ) { return reinterpret_cast< std::uintptr_t >( buf ) % alignof( U32 ) == 0; }

   Words( U8 const * buf, unsigned width ) : inPlace_( lieIn( buf ) ), width_( width ) {
      if ( !inPlace_ ) [[unlikely]] {
         std::memcpy( copy_.data(), buf, bytes() );
      }
   }
   std::span< U32 const > of( U8 const * buf ) const {
      return { inPlace_ ? reinterpret_cast< U32 const * >( buf ) : copy_.data(), width_ };
   }
   std::span< U32 > of( U8 * buf ) { return { inPlace_ ? reinterpret_cast< U32 * >( buf ) : copy_.data(), width_ }; }
   void give( U8 * buf ) const {
      if ( !inPlace_ ) [[unlikely]] {
         std::memcpy( buf, copy_.data(), bytes() );
      }
   }

 private:
   std::size_t bytes() const { return width_ * sizeof( U32 ); }

   std::array< U32, Raw1024::words > copy_; // filled before it is read
   bool inPlace_;
   unsigned width_;
};

Operation writing( Operation::Scope scope ) {
   Operation operation;
   operation.kind = Operation::Kind::write;
   operation.scope = scope;
   return operation;
}

template< class Read >
[[gnu::always_inline]] inline int resultOf( Read const & read ) {
   try {
      read();
      return 0;
   } catch ( SchanError const & ) {
      return -1;
   }
}

} // namespace

// Traces, and ends the process with the text of what is wrong.
[[gnu::cold]] void DaceSalAsicTransferBase::checkRoute( Place place, char const * pattern ) const {
   unsigned const bytes = width() * sizeof( U32 );
   if ( len_ < bytes ) {
      meta().fail( "len_ >= " + std::to_string( bytes ), pattern );
   }
   // An index that no array can have stays out of range.
   auto const arrayIndex = static_cast< U16 >( std::clamp( place.arrayIndex, -1, 0xffff ) );
   U32 const instances = instanceCount();
   for ( U32 instance = 0; instance < instances; ++instance ) {
      SchanAddress at;
      getSchanAddress(
         at.address, at.selectorA, at.selectorB, static_cast< U16 >( instance ), place.entry, arrayIndex );
   }
}

[[gnu::always_inline]] inline bool DaceSalAsicTransferBase::isSound( Place place ) const {
   ::AsicUtils::TableLayout const & at = layout();
   return !meta().traced() && usable() >= at.bytes && ( place.entry == 0 || place.entry < at.span.count ) &&
          static_cast< U32 >( place.arrayIndex ) - at.arrayIndexFirst < at.arrayElements;
}

[[gnu::always_inline]] inline DaceSalAsicTransferBase::Route
DaceSalAsicTransferBase::soundRoute( ::AsicUtils::TableLayout const & at, Place place ) {
   return { at, at.base + place.entry + static_cast< U32 >( place.arrayIndex ) * at.arrayStep };
}

DaceSalAsicTransferBase::Route DaceSalAsicTransferBase::route( Place place, char const * pattern ) const {
   if ( !isSound( place ) ) {
      checkRoute( place, pattern );
   }
   return soundRoute( *meta().layout( chipType, variant_ ), place );
}

[[gnu::noinline]] void DaceSalAsicTransferBase::tell( OperationListener & listener,
                                                      Operation operation,
                                                      Place place,
                                                      std::span< U32 const > words,
                                                      std::source_location origin ) const {
   operation.isRegister = !meta().isMemory;
   operation.chip = place.chip;
   operation.table = meta().number;
   operation.variant = variant_;
   operation.arrayIndex = place.arrayIndex;
   operation.entry = place.entry;
   operation.words = words;
   operation.origin = origin;
   listener.operation( operation );
}

[[gnu::always_inline]] inline void DaceSalAsicTransferBase::readAny( Place place, std::source_location origin ) {
   SchanDriver * const to = unheardDriver();
   if ( !to || !isSound( place ) || !Words::lieIn( buf_ ) ) [[unlikely]] {
      readAndTell( place, origin );
      return;
   }
   Route const way = soundRoute( layout(), place );
   to->read( place.chip, way.copy( 0 ), { reinterpret_cast< U32 * >( buf_ ), way.layout.width } );
}

[[gnu::noinline]] void DaceSalAsicTransferBase::readAndTell( Place place, std::source_location origin ) {
   Route const way = route( place, "int %::doReadAny" );
   Words words( buf_, way.layout.width );
   driver().read( place.chip, way.copy( 0 ), words.of( buf_ ) );
   words.give( buf_ );
   if ( OperationListener * listener = operationListener() ) {
      tell( *listener, Operation{}, place, words.of( buf_ ), origin );
   }
}

[[gnu::always_inline]] inline void DaceSalAsicTransferBase::writeAll( Place place, std::source_location origin ) const {
   SchanDriver * const to = unheardDriver();
   if ( !to || !isSound( place ) || !Words::lieIn( buf_ ) ) [[unlikely]] {
      writeAndTell( place, origin );
      return;
   }
   Route const way = soundRoute( layout(), place );
   std::span< U32 const > const words{ reinterpret_cast< U32 const * >( buf_ ), way.layout.width };
   to->write( place.chip, way.copy( 0 ), words );
   if ( way.layout.instanceCount > 1 ) {
      to->write( place.chip, way.copy( 1 ), words );
   }
}

[[gnu::noinline]] void DaceSalAsicTransferBase::writeAndTell( Place place, std::source_location origin ) const {
   Route const way = route( place, "void %::doWriteAll" );
   Words const words( buf_, way.layout.width );
   SchanDriver & to = driver();
   OperationListener * const listener = operationListener();
   Operation operation = writing( Operation::Scope::all );
   std::array< std::array< U32, Raw1024::words >, 2 > before;
   bool alike = true;
   for ( U32 instance = 0; instance < way.layout.instanceCount; ++instance ) {
      std::span< U32 > const stood{ before[instance].data(), way.layout.width };
      operation.changed |= listener ? to.exchange( place.chip, way.copy( instance ), words.of( buf_ ), stood )
                                    : to.write( place.chip, way.copy( instance ), words.of( buf_ ) );
      alike = alike && ( !listener || std::equal( stood.begin(), stood.end(), before[0].begin() ) );
   }
   if ( listener ) {
      operation.before = { before[0].data(), alike ? way.layout.width : 0u };
      tell( *listener, operation, place, words.of( buf_ ), origin );
   }
}

void DaceSalAsicTransferBase::writeCore( Place place, int core, std::source_location origin ) const {
   constexpr char const * pattern = "void %::doWriteCore";
   Route const way = route( place, pattern );
   if ( core < 0 || core >= way.layout.instanceCount ) [[unlikely]] {
      std::ostringstream message;
      message << meta().name << " has no copy for core " << core << " on " << Hardware::ChipType{ chipType }
              << ": it has " << unsigned{ way.layout.instanceCount }
              << ( way.layout.instanceCount == 1 ? " copy" : " copies" ) << ". No chip operation was made.";
      meta().failWith( "core < instanceCount()", message.str(), pattern );
   }
   Words const words( buf_, way.layout.width );
   std::span< U32 const > const taken = words.of( buf_ );
   SchanAddress const at = way.copy( static_cast< U32 >( core ) );
   OperationListener * const listener = operationListener();
   if ( !listener ) {
      driver().write( place.chip, at, taken );
      return;
   }
   std::array< U32, Raw1024::words > before;
   Operation operation = writing( Operation::Scope::core );
   operation.core = core;
   operation.before = { before.data(), way.layout.width };
   operation.changed = driver().exchange( place.chip, at, taken, { before.data(), way.layout.width } );
   tell( *listener, operation, place, taken, origin );
}

// ---- registers

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
   return resultOf( [&] { readAny( { chip, arrayIndex, 0 }, origin ); } );
}

void DaceSalAsicRegBase::doWriteAll( ChipId chip, int arrayIndex, std::source_location origin ) const {
   writeAll( { chip, arrayIndex, 0 }, origin );
}

// ---- memories

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
   return resultOf( [&] { readAny( { chip, arrayIndex, static_cast< U32 >( entry ) }, origin ); } );
}

void DaceSalAsicTableBase::doWriteAll( ChipId chip, int arrayIndex, int entry, std::source_location origin ) const {
   writeAll( { chip, arrayIndex, static_cast< U32 >( entry ) }, origin );
}

void DaceSalAsicTableBase::doWriteCore(
   ChipId chip, int arrayIndex, int core, int entry, std::source_location origin ) const {
   writeCore( { chip, arrayIndex, static_cast< U32 >( entry ) }, core, origin );
}

} // namespace DaceSal::AsicUtils
