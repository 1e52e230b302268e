// What a node can say of its type without being an entity: a name, and the numbers of its attributes. The full
// description, with what each attribute holds, is that of the entities (rex/Type.h).
//
// Threading: constant once it is built.
#pragma once

#include "corvo/Types.h"

#include <vector>

namespace Corvo {

class NodeType {
 public:
   explicit NodeType( String name ) : name_( std::move( name ) ) {}
   NodeType( NodeType const & ) = delete;
   NodeType & operator=( NodeType const & ) = delete;
   virtual ~NodeType() = default;

   String const & name() const { return name_; }
   // Those of the bases first, each in declaration order.
   virtual std::vector< short > attributeIds() const { return {}; }

 private:
   String name_;
};

} // namespace Corvo
