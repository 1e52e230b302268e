// What the rows of a run share, each once and with a number: texts, sets of numbers, and what a row is but for its
// values.
#pragma once

#include "corvo/Types.h"

#include <array>
#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Inspection {

class ReportTexts {
 public:
   U32 number( std::string_view text ) {
      auto const known = numbers_.find( text );
      if ( known != numbers_.end() ) {
         return known->second;
      }
      auto const number = static_cast< U32 >( all_.size() );
      numbers_.emplace( all_.emplace_back( text ), number );
      return number;
   }
   std::deque< std::string > const & all() const { return all_; }

 private:
   std::deque< std::string > all_;
   std::unordered_map< std::string_view, U32 > numbers_;
};

// What a row is, as page/model.js reads it: kind; layout; text: table, reason or path; variant; array index, control
// or attribute; entry or key; core; words; function; source. -1: none.
using RowKey = std::array< int, 10 >;

class ReportRowKeys {
 public:
   U32 number( RowKey const & key ) {
      auto const [known, isNew] = numbers_.try_emplace( key, static_cast< U32 >( all_.size() ) );
      if ( isNew ) {
         all_.push_back( key );
      }
      return known->second;
   }
   std::vector< RowKey > const & all() const { return all_; }

 private:
   struct Hash {
      std::size_t operator()( RowKey const & key ) const {
         U64 hash = 0;
         for ( int const part : key ) {
            hash = ( hash ^ static_cast< U32 >( part ) ) * 0x9e3779b97f4a7c15;
            hash ^= hash >> 31;
         }
         return hash;
      }
   };
   std::unordered_map< RowKey, U32, Hash > numbers_;
   std::vector< RowKey > all_;
};

// Sets of numbers, ascending. Most events touch the same FAPs and tables as others.
class ReportSets {
 public:
   U32 number( std::vector< U32 > set ) {
      auto const [known, isNew] = numbers_.try_emplace( std::move( set ), static_cast< U32 >( all_.size() ) );
      if ( isNew ) {
         all_.push_back( &known->first );
      }
      return known->second;
   }
   std::vector< std::vector< U32 > const * > const & all() const { return all_; }

 private:
   std::map< std::vector< U32 >, U32 > numbers_;
   std::vector< std::vector< U32 > const * > all_;
};

} // namespace Inspection
