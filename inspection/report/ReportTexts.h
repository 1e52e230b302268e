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
   // The same where a text often comes several times, one behind the other: it is compared with the one before.
   class Latest {
    public:
      U32 number( ReportTexts & texts, std::string_view text ) {
         if ( !isKnown_ || texts.all_[number_] != text ) {
            number_ = texts.number( text );
            isKnown_ = true;
         }
         return number_;
      }

    private:
      bool isKnown_ = false;
      U32 number_ = 0;
   };
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

// Rows mostly come in the order in which they came before: what came behind the latest is looked at first.
class ReportRowKeys {
 public:
   U32 number( RowKey const & key ) {
      if ( latest_ < next_.size() && next_[latest_] < all_.size() && all_[next_[latest_]] == key ) {
         return latest_ = next_[latest_];
      }
      U32 const number = find( key );
      if ( latest_ < next_.size() ) {
         next_[latest_] = number;
      }
      return latest_ = number;
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

   U32 find( RowKey const & key ) {
      auto const [known, isNew] = numbers_.try_emplace( key, static_cast< U32 >( all_.size() ) );
      if ( isNew ) {
         all_.push_back( key );
         next_.push_back( known->second + 1 ); // first they come one behind the other
      }
      return known->second;
   }

   std::unordered_map< RowKey, U32, Hash > numbers_;
   std::vector< RowKey > all_;
   std::vector< U32 > next_; // by number: the one that came behind it last
   U32 latest_ = 0;
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
