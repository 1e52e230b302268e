// Words of rows, or letters of their texts, which stay where they are until all are forgotten. Their memory is used
// again.
//
//    UnitStore< U32 > store;
//    U32 const * const kept = store.keep( words, before );     // one behind the other
//    store.forget();
//
// Threading: one thread.
#pragma once

#include "corvo/Types.h"

#include <algorithm>
#include <memory>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace Simulator {

template< class Unit >
class UnitStore {
 public:
   Unit const * keep( std::span< Unit const > units, std::span< Unit const > more = {} ) {
      Unit * const kept = room( units.size() + more.size() );
      std::ranges::copy( more, std::ranges::copy( units, kept ).out );
      return kept;
   }
   // For so many, which nobody has written to yet.
   Unit * room( std::size_t size ) {
      if ( left_ < size ) [[unlikely]] {
         grow( size );
      }
      left_ -= size;
      return std::exchange( next_, next_ + size );
   }
   void forget() {
      used_ = 0;
      left_ = 0;
   }

 private:
   static constexpr std::size_t unitsEach = 1 << 13;

   void grow( std::size_t least ) {
      while ( used_ < blocks_.size() && blocks_[used_].size < least ) {
         ++used_;
      }
      if ( used_ == blocks_.size() ) {
         std::size_t const size = std::max( unitsEach, least );
         blocks_.push_back( { std::make_unique_for_overwrite< Unit[] >( size ), size } );
      }
      next_ = blocks_[used_].units.get();
      left_ = blocks_[used_].size;
      ++used_;
   }

   struct Block {
      std::unique_ptr< Unit[] > units;
      std::size_t size;
   };
   std::vector< Block > blocks_;
   std::size_t used_ = 0;  // blocks
   Unit * next_ = nullptr; // in the last of them
   std::size_t left_ = 0;
};

class TextStore : public UnitStore< char > {
 public:
   std::string_view keep( std::string_view text ) { return { UnitStore::keep( text ), text.size() }; }
};

} // namespace Simulator
