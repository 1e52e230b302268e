#include "rex/WriteListener.h"

#include "rex/Entity.h"

namespace Rex {

namespace Impl {

WriteListener * theWriteListener = nullptr;

struct PendingWrite::Heard {
   Entity const & entity;
   Attribute const & attribute;
   std::string key;
   bool isEntry;
   Value before;

   Value value() const { return isEntry ? attribute.entry( entity, key ) : attribute.value( entity ); }
};

void PendingWrite::begin( Entity const & entity, short attribute, void const * key ) {
   Attribute const * const of = entity.typeData().attribute( attribute );
   if ( !of || Corvo::Publisher::foreignWrite() || !theWriteListener->follows( entity ) ) {
      return;
   }
   heard_ = new Heard{ entity, *of, key ? of->keyText( key ) : std::string(), key != nullptr, {} };
   heard_->before = heard_->value();
}

void PendingWrite::tell() {
   if ( theWriteListener ) {
      theWriteListener->written( { heard_->entity, heard_->attribute, heard_->key, heard_->before, heard_->value() } );
   }
}

void PendingWrite::drop() {
   delete heard_;
}

} // namespace Impl

void writeListenerIs( WriteListener * listener ) {
   Impl::theWriteListener = listener;
}

} // namespace Rex
