// Words of rows, which stay where they are until all are forgotten. The memory of one block is used again.
//
//    U32 const * const kept = store.keep( words, before );     // one behind the other
//    store.forget();
//
// Threading: one thread.
#pragma once

#include "corvo/Types.h"

#include <algorithm>
#include <memory>
#include <span>
#include <vector>

namespace Simulator {

class WordStore {
 public:
   U32 const * keep( std::span< U32 const > words, std::span< U32 const > before = {} ) {
      std::size_t const size = words.size() + before.size();
      if ( left_ < size ) [[unlikely]] {
         grow( size );
      }
      U32 * const kept = next_;
      next_ = std::ranges::copy( before, std::ranges::copy( words, kept ).out ).out;
      left_ -= size;
      return kept;
   }
   void forget() {
      used_ = 0;
      left_ = 0;
   }

 private:
   static constexpr std::size_t wordsEach = 1 << 13;

   void grow( std::size_t least ) {
      while ( used_ < blocks_.size() && blocks_[used_].size < least ) {
         ++used_;
      }
      if ( used_ == blocks_.size() ) {
         std::size_t const size = std::max( wordsEach, least );
         blocks_.push_back( { std::make_unique_for_overwrite< U32[] >( size ), size } );
      }
      next_ = blocks_[used_].words.get();
      left_ = blocks_[used_].size;
      ++used_;
   }

   struct Block {
      std::unique_ptr< U32[] > words;
      std::size_t size;
   };
   std::vector< Block > blocks_;
   std::size_t used_ = 0; // blocks
   U32 * next_ = nullptr; // in the last of them
   std::size_t left_ = 0;
};

} // namespace Simulator
