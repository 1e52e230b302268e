// Who hears of the values that this agent itself sets in the state, with what stood there before: its statuses, its
// managed directories. What other agents set isn't told: who carries their writes out knows it.
//
//    struct Published : Rex::WriteListener {
//       bool follows( Rex::Entity const & entity ) override { return !tree.pathOf( entity ).empty(); }
//       void written( Rex::Write const & write ) override { ... }
//    };
//    Rex::writeListenerIs( &published );
//
// A write is told after the value has changed and before its announcement, so that what follows from it is told after
// it. Without a listener a write costs one look.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "rex/Value.h"

#include <memory>

namespace Rex {

class Entity;
class Attribute;

// One value that has become another. The references are valid during the call only.
struct Write {
   Entity const & entity;
   Attribute const & attribute;
   std::string const & key; // of an entry; empty for a single attribute
   Value const & before;    // null where there was no such entry
   Value const & after;     // null where there is none any more
};

class WriteListener {
 public:
   virtual ~WriteListener() = default;
   // Whether to hear of a write to an entity; asked before the write, so that what nobody follows costs no value.
   virtual bool follows( Entity const & entity ) = 0;
   virtual void written( Write const & write ) = 0;
};

namespace Impl {

extern WriteListener * theWriteListener;

// A write on its way: made before the value changes, done after it.
class PendingWrite {
 public:
   PendingWrite( Entity const & entity, short attribute, void const * key = nullptr ) {
      if ( theWriteListener ) [[unlikely]] {
         begin( entity, attribute, key );
      }
   }
   PendingWrite( PendingWrite const & ) = delete;
   PendingWrite & operator=( PendingWrite const & ) = delete;
   ~PendingWrite() {
      if ( heard_ ) [[unlikely]] {
         drop();
      }
   }
   void done() {
      if ( heard_ ) [[unlikely]] {
         tell();
      }
   }

 private:
   struct Heard;
   void begin( Entity const & entity, short attribute, void const * key );
   void tell();
   void drop();
   Heard * heard_ = nullptr;
};

} // namespace Impl

// The listener of the process, or null.
inline WriteListener * writeListener() {
   return Impl::theWriteListener;
}
void writeListenerIs( WriteListener * listener );

} // namespace Rex
