// HashMap2018: a hash map whose walks survive anything.
//
//    for ( auto [ intfId, filter ] : filters_ ) {   // copies: the element stays alive in the loop's body
//       filter->handleAddr();                       // may add and remove entries, or destroy the map
//    }
//
// A walk goes in the order of insertion. It doesn't meet entries that are removed before it reaches them, nor entries
// that are added after it began. Removing an entry during a walk releases its value at once.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "corvo/Types.h"
#include "rex/Assert.h"

#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>

namespace Rex {

template< class Key, class Value >
class HashMap2018 {
   struct Entry {
      Key key;
      std::optional< Value > value; // empty once removed, until no walk can stand on it
      U64 serial;
      Entry * next = nullptr;
      Entry * previous = nullptr;
   };

   // What the walks share with the map, so that the map itself may go.
   struct State {
      std::unordered_map< Key, Entry * > index;
      Entry * first = nullptr;
      Entry * last = nullptr;
      U64 serial = 0;
      U32 walks = 0;
      bool removed = false; // entries are waiting to be swept

      State() = default;
      State( State const & ) = delete;
      State & operator=( State const & ) = delete;
      ~State() {
         while ( first ) {
            delete std::exchange( first, first->next );
         }
      }
      void unlink( Entry * entry ) {
         ( entry->previous ? entry->previous->next : first ) = entry->next;
         ( entry->next ? entry->next->previous : last ) = entry->previous;
         delete entry;
      }
      void walkEnded() {
         if ( --walks == 0 && removed ) {
            removed = false;
            for ( Entry * entry = first; entry; ) {
               Entry * const next = entry->next;
               if ( !entry->value ) {
                  unlink( entry );
               }
               entry = next;
            }
         }
      }
   };

 public:
   struct Element {
      Key key;
      Value value;
   };

   class Iterator {
    public:
      Iterator() = default;
      explicit Iterator( std::shared_ptr< State > state )
         : state_( std::move( state ) ), iter_( state_->first ), newest_( state_->serial ) {
         ++state_->walks;
         skip();
      }
      Iterator( Iterator const & other ) : state_( other.state_ ), iter_( other.iter_ ), newest_( other.newest_ ) {
         if ( state_ ) {
            ++state_->walks;
         }
      }
      Iterator & operator=( Iterator const & ) = delete;
      ~Iterator() {
         if ( state_ ) {
            state_->walkEnded();
         }
      }

      // Standing on no entry: assertion text "iter_".
      Element operator*() const {
         sassert( iter_ && iter_->value, "iter_" );
         return { iter_->key, *iter_->value };
      }
      Iterator & operator++() {
         sassert( iter_ != nullptr, "iter_" );
         iter_ = iter_->next;
         skip();
         return *this;
      }
      friend bool operator==( Iterator const & left, Iterator const & right ) { return left.iter_ == right.iter_; }

    private:
      void skip() {
         while ( iter_ && !iter_->value ) {
            iter_ = iter_->next;
         }
         if ( iter_ && iter_->serial > newest_ ) {
            iter_ = nullptr;
         }
      }
      std::shared_ptr< State > state_;
      Entry * iter_ = nullptr;
      U64 newest_ = 0;
   };

   HashMap2018() = default;
   HashMap2018( HashMap2018 const & ) = delete;
   HashMap2018 & operator=( HashMap2018 const & ) = delete;
   ~HashMap2018() { clear(); }

   Iterator begin() const { return Iterator( state_ ); }
   Iterator end() const { return Iterator(); }

   std::size_t size() const { return state_->index.size(); }
   bool empty() const { return size() == 0; }
   bool has( Key const & key ) const { return state_->index.contains( key ); }

   // The value under `key`, or a default one.
   Value get( Key const & key ) const {
      auto const found = state_->index.find( key );
      return found == state_->index.end() ? Value{} : *found->second->value;
   }

   // Enters `value` under `key`, or replaces what is there; an entry keeps its place in the order.
   void set( Key const & key, Value value ) {
      auto & state = *state_;
      auto const [found, isNew] = state.index.try_emplace( key, nullptr );
      if ( !isNew ) {
         // The old value is released after the new one stands: its last user may look here.
         std::swap( *found->second->value, value );
         return;
      }
      auto * entry = new Entry{ key, std::move( value ), ++state.serial, nullptr, state.last };
      found->second = entry;
      ( state.last ? state.last->next : state.first ) = entry;
      state.last = entry;
   }

   // Removes and returns the value under `key`; a default value if there is none.
   Value del( Key const & key ) {
      auto const state = state_;
      auto const found = state->index.find( key );
      if ( found == state->index.end() ) {
         return Value{};
      }
      Entry * const entry = found->second;
      state->index.erase( found );
      Value value = std::move( *entry->value );
      entry->value.reset();
      if ( state->walks ) {
         state->removed = true;
      } else {
         state->unlink( entry );
      }
      return value;
   }

   void clear() {
      auto const state = state_;
      while ( !state->index.empty() ) {
         Entry * live = state->first;
         while ( !live->value ) {
            live = live->next;
         }
         Key const key = live->key;
         del( key );
      }
   }

 private:
   std::shared_ptr< State > state_ = std::make_shared< State >();
};

} // namespace Rex
