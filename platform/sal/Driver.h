// The transport below the accessors: what a chip driver does for the agent.
//
// An accessor turns (array index, entry) into an S-channel address and hands words to the one driver of the process.
// A driver knows blocks and addresses, nothing of tables. Every operation is told to the listener, if there is one,
// with the table and the place in the source that asked for it.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "chip/ChipId.h"

#include <optional>
#include <source_location>
#include <span>
#include <stdexcept>

namespace DaceSal {

using Hardware::Dace::ChipId;

// One place on a chip: the two selectors pick the block (and, with it, the physical copy), the address the entry.
struct SchanAddress {
   U32 address = 0;
   U32 selectorA = 0;
   U32 selectorB = 0;
   friend constexpr bool operator==( SchanAddress const &, SchanAddress const & ) = default;
};

// A chip hasn't carried an operation out: nothing was read, nothing was written. Thrown by drivers whose chips can
// fail; it costs those that always answer nothing.
class SchanError : public std::runtime_error {
 public:
   using std::runtime_error::runtime_error;
};

class SchanDriver {
 public:
   virtual ~SchanDriver() = default;

   // Copies the words at `at` into `words`. The span is as wide as the entry.
   // Unknown chip, block or address, or another width: the process ends by assertion, naming it. SchanError from a chip
   // that fails; likewise for what follows.
   virtual void read( ChipId chip, SchanAddress const & at, std::span< U32 > words ) = 0;

   // Copies `words` to `at`. Returns whether the contents became different by it. Failures as for read.
   virtual bool write( ChipId chip, SchanAddress const & at, std::span< U32 const > words ) = 0;

   // Likewise, and hands over in `before`, as wide as `words`, what stood there: for who listens. A driver that doesn't
   // know it from its write reads it first.
   virtual bool
   exchange( ChipId chip, SchanAddress const & at, std::span< U32 const > words, std::span< U32 > before ) {
      read( chip, at, before );
      return write( chip, at, words );
   }

   // Sets a numbered control of a chip. Returns whether its value became different by it.
   virtual bool control( ChipId chip, U32 control, U32 value ) = 0;

   // The value that a control was set to; none if it never was, or if the driver can't tell.
   virtual std::optional< U32 > controlValue( ChipId, U32 ) const { return std::nullopt; }
};

// What the driver was asked to do.
struct Operation {
   enum class Kind : U8 { read, write, control };
   enum class Scope : U8 { any, all, core }; // read from any copy; written to all copies, or to one core's

   Kind kind = Kind::read;
   Scope scope = Scope::any;
   bool changed = false;    // writes and controls: the contents of some copy became different
   bool isRegister = false; // a register has no entry
   ChipId chip = {};
   U16 table = 0; // number of the accessor class: its place in the alphabetical list of classes
   U8 variant = 0;
   int arrayIndex = 0;
   int core = 0; // with Scope::core
   U32 entry = 0;
   U32 controlNumber = 0; // Kind::control
   U32 controlValue = 0;
   std::optional< U32 > controlBefore = {}; // none: it had no value yet, or nobody knows
   std::span< U32 const > words = {};
   std::span< U32 const > before = {}; // writes: what stood there; empty where the copies that were written differed
   std::source_location origin = {};
};

// Hears of every operation, after it was carried out. The record and its words are valid during the call only.
class OperationListener {
 public:
   virtual ~OperationListener() = default;
   virtual void operation( Operation const & operation ) = 0;
};

namespace Impl {
extern SchanDriver * theDriver;
extern OperationListener * theListener;
extern SchanDriver * unheardDriver; // the driver, as long as there is no listener
} // namespace Impl

// The driver of the process; null until one is installed. Using an accessor without one is a programming error:
// assertion text "schanDriver".
inline SchanDriver * schanDriver() {
   return Impl::theDriver;
}
void schanDriverIs( SchanDriver * driver );

// The listener of the process, or null.
inline OperationListener * operationListener() {
   return Impl::theListener;
}
void operationListenerIs( OperationListener * listener );

// The driver where nobody listens, else null: one look for those who need to know both.
inline SchanDriver * unheardDriver() {
   return Impl::unheardDriver;
}

} // namespace DaceSal
