// Memories and registers of a chip, read and written over the S-channel. An accessor is a short-lived view:
//
//    Hardware::IppdFerTrapCfg::WithStorage trapCfg( chipType );    // a register; the buffer is its own, and zero
//    trapCfg.doReadAny( fapId, 3 );                                // array element 3, from any copy
//    trapCfg.cpuSnoopCodeNIs( 0x21 );                              // change a field
//    trapCfg.doWriteAll( fapId, 3 );                               // to all copies of that chip
//
//    U8 buf[8] = {};                                               // or over a buffer of the caller's
//    Hardware::EnablersVectors vectors( chipType, buf, sizeof buf, false, 1 );
//    vectors.routingEnableVectorIs( 4 );
//    vectors.doWriteAll( fapId, 3, 7 );                            // a memory: array index, then entry
//
// Each operation moves width() words between the buffer and the address that getSchanAddress yields, and tells the
// listener of the process, with the place it was called from. It ends the process by assertion where the buffer is
// shorter ("len_ >= <bytes>"), where an address is out of range (the texts of getSchanAddress), and where no driver is
// installed ("schanDriver").
//
// Threading: the agent's scheduler thread.
#pragma once

#include "sal/BcmAsicBase.h"
#include "sal/Driver.h"

namespace DaceSal::AsicUtils {

// What both kinds share: the transfer of an entry.
class DaceSalAsicTransferBase : public ::AsicUtils::BcmAsicBase {
 public:
   using BcmAsicBase::BcmAsicBase;

 protected:
   struct Place {
      ChipId chip;
      int arrayIndex;
      U32 entry;
   };
   void readAny( Place place, std::source_location origin );
   void writeAll( Place place, std::source_location origin ) const;
   void writeCore( Place place, int core, std::source_location origin ) const;

 private:
   // Where the entry lies, after all checks.
   struct Route {
      ::AsicUtils::TableLayout const & layout;
      U32 address;
      SchanAddress copy( U32 instance ) const {
         return { address, layout.selectors[instance][0], layout.selectors[instance][1] };
      }
   };
   // Nothing is wrong with the place, and nothing is traced.
   bool isSound( Place place ) const;
   static Route soundRoute( ::AsicUtils::TableLayout const & at, Place place );
   // The road of everything that is not plain: where a check fails, where somebody listens, or where the buffer is no
   // address for words.
   Route route( Place place, char const * pattern ) const;
   void checkRoute( Place place, char const * pattern ) const;
   void readAndTell( Place place, std::source_location origin );
   void writeAndTell( Place place, std::source_location origin ) const;
   void tell( OperationListener & listener,
              Operation operation,
              Place place,
              std::span< U32 const > words,
              std::source_location origin ) const;
};

// A register: one entry, possibly an array of them.
class DaceSalAsicRegBase : public DaceSalAsicTransferBase {
 public:
   using DaceSalAsicTransferBase::DaceSalAsicTransferBase;

   bool isTable() const override;
   U32 maxIdentifier() const override;
   U16 regWidth() const;
   U32 addrStride() const;

   // Reads the register from one of its copies into the buffer. Returns 0; -1 where the chip has failed, and the buffer
   // is as it was.
   int doReadAny( ChipId chip, int arrayIndex, std::source_location origin = std::source_location::current() );
   // Writes the buffer to all copies.
   void doWriteAll( ChipId chip, int arrayIndex, std::source_location origin = std::source_location::current() ) const;
};

// A memory.
class DaceSalAsicTableBase : public DaceSalAsicTransferBase {
 public:
   using DaceSalAsicTransferBase::DaceSalAsicTransferBase;

   U32 entries() const override;
   bool isTable() const override;
   U32 tableVariantCount() const override;
   ::AsicUtils::EntrySpans entrySpans() const override;
   U16 tableWidth() const;
   bool isPrimary() const;

   // Reads an entry from one of its copies into the buffer. Returns 0, or -1, as for a register.
   int
   doReadAny( ChipId chip, int arrayIndex, int entry, std::source_location origin = std::source_location::current() );
   // Writes the buffer to all copies of the entry.
   void doWriteAll( ChipId chip,
                    int arrayIndex,
                    int entry,
                    std::source_location origin = std::source_location::current() ) const;
   // Writes the buffer to the copy of one core. A core without a copy of its own ends the process.
   void doWriteCore( ChipId chip,
                     int arrayIndex,
                     int core,
                     int entry,
                     std::source_location origin = std::source_location::current() ) const;
};

} // namespace DaceSal::AsicUtils
