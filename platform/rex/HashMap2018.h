// HashMap2018: a hash map whose walks survive anything.
//
//    for ( auto [ intfId, filter ] : filters_ ) {   // copies: the element stays alive in the loop's body
//       filter->handleAddr();                       // may add and remove entries, or destroy the map
//    }
//
// A walk goes in the order of insertion. It doesn't meet entries that are removed before it reaches them, nor entries
// that are added after it began. Removing an entry releases its value at once, during a walk too.
//
// Entries stand side by side, in the order of insertion; a table of their positions finds them by key. What is removed
// leaves a gap, closed when no walk is under way. An entry of an id and a pointer: 30 to 40 bytes; no entry: 16.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "assert/Assert.h"
#include "corvo/Types.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace Rex {

template< class Key, class Value >
class HashMap2018 {
   struct Entry {
      Value value;
      U32 hash;
      bool present; // or a gap
      Key key;
   };

   // What the walks share with the map, so that the map itself may go.
   struct State {
      std::vector< Entry > entries;
      std::vector< U32 > table; // by hash, the next place in turn on collision: position of an entry plus 1, or 0
      U32 present = 0;
      U32 walks = 0;

      // The table consists of lines of 16 places. Sixteen keys that follow one another share a line, and the lines of
      // successive sixteens lie far apart: whoever goes through many keys in their order meets each line once, however
      // large the table is, and keys of any other pattern spread as random ones do. The low four bits of a hash tell
      // the place in the line, the others the line.
      static U32 hashOf( Key const & key ) {
         U64 const id = std::hash< Key >{}( key );
         U64 const sixteen = ( id >> 4 ) ^ ( id >> 36 );
         U64 const line = ( sixteen * 0x9e3779b97f4a7c15ULL ) >> 36;
         U64 const turned = ( sixteen * 0xd6e8feb86659fd93ULL ) >> 60;
         return static_cast< U32 >( line << 4 | ( ( id ^ turned ) & 15 ) );
      }
      std::size_t lines() const { return table.size() / 16; }
      std::size_t homeOf( U32 hash ) const { return ( ( U64{ hash } * lines() ) >> 32 ) * 16 + hash % 16; }
      // All places in turn: one place of all the lines, then the next.
      std::size_t after( std::size_t place ) const {
         return place + 16 < table.size() ? place + 16 : ( place + 1 ) % 16;
      }
      std::size_t steps( std::size_t from, std::size_t to ) const {
         auto const turn = [this]( std::size_t place ) { return place % 16 * lines() + place / 16; };
         return ( turn( to ) - turn( from ) ) & ( table.size() - 1 );
      }

      // The place in the table of an entry with this key, or of where it would go.
      std::size_t placeOf( Key const & key, U32 hash ) const {
         std::size_t place = homeOf( hash );
         for ( ; table[place]; place = after( place ) ) {
            Entry const & entry = entries[table[place] - 1];
            if ( entry.hash == hash && entry.key == key ) {
               break;
            }
         }
         return place;
      }
      // Where an entry with this hash goes.
      std::size_t emptyPlace( U32 hash ) const {
         std::size_t place = homeOf( hash );
         while ( table[place] ) {
            place = after( place );
         }
         return place;
      }
      Entry * find( Key const & key ) {
         if ( table.empty() ) {
            return nullptr;
         }
         U32 const position = table[placeOf( key, hashOf( key ) )];
         return position ? &entries[position - 1] : nullptr;
      }

      void add( Key const & key, Value value ) {
         if ( entries.size() == entries.capacity() && std::size_t{ present } * 4 < entries.size() * 3 ) {
            closeGaps();
         }
         if ( ( std::size_t{ present } + 1 ) * 4 > table.size() * 3 ) {
            tableIs( table.empty() ? 16 : table.size() * 2 );
         }
         U32 const hash = hashOf( key );
         entries.push_back( { std::move( value ), hash, true, key } );
         table[emptyPlace( hash )] = static_cast< U32 >( entries.size() );
         ++present;
      }

      Value remove( Entry & entry ) {
         freePlace( placeOf( entry.key, entry.hash ) );
         entry.present = false;
         --present;
         return std::exchange( entry.value, Value{} );
      }

      // Frees a place of the table, and moves up those behind it that collided on their way here.
      void freePlace( std::size_t place ) {
         for ( std::size_t other = after( place ); table[other]; other = after( other ) ) {
            std::size_t const home = homeOf( entries[table[other] - 1].hash );
            if ( steps( home, other ) >= steps( place, other ) ) { // it has passed here
               table[place] = table[other];
               place = other;
            }
         }
         table[place] = 0;
      }

      void tableIs( std::size_t size ) {
         table.assign( size, 0 );
         for ( std::size_t position = 0; position < entries.size(); ++position ) {
            if ( entries[position].present ) {
               table[emptyPlace( entries[position].hash )] = static_cast< U32 >( position + 1 );
            }
         }
      }

      void reserve( std::size_t count ) {
         entries.reserve( count );
         std::size_t size = std::max( table.size(), std::size_t{ 16 } );
         while ( count * 4 > size * 3 ) {
            size *= 2;
         }
         if ( size > table.size() ) {
            tableIs( size );
         }
      }

      void closeGaps() {
         if ( walks == 0 && present < entries.size() ) {
            std::erase_if( entries, []( Entry const & entry ) { return !entry.present; } );
            tableIs( table.size() );
         }
      }
      // Called where gaps may have come up: closing them costs what leaving them has saved.
      void closeGapsIfMany() {
         if ( walks == 0 && present == 0 ) {
            entries = {};
            table = {};
         } else if ( entries.size() > 2 * std::size_t{ present } ) {
            closeGaps();
         }
      }
   };

   // Holds the state, and its entries in place.
   class Walk {
    public:
      Walk() = default;
      explicit Walk( std::shared_ptr< State > state ) : state_( std::move( state ) ) { begin(); }
      Walk( Walk const & other ) : state_( other.state_ ) { begin(); }
      Walk & operator=( Walk const & ) = delete;
      ~Walk() {
         if ( state_ && --state_->walks == 0 ) {
            state_->closeGapsIfMany();
         }
      }
      State * operator->() const { return state_.get(); }
      State * get() const { return state_.get(); }

    private:
      void begin() {
         if ( state_ ) {
            ++state_->walks;
         }
      }
      std::shared_ptr< State > state_;
   };

 public:
   struct Element {
      Key key;
      Value value;
   };

   class Iterator {
    public:
      Iterator() = default;
      explicit Iterator( std::shared_ptr< State > state ) : state_( std::move( state ) ) {
         if ( state_.get() ) {
            end_ = static_cast< U32 >( state_->entries.size() );
            skipGaps();
         }
      }

      // Standing on no entry: assertion text "iter_".
      Element operator*() const {
         sassert( iter_ < end_ && state_->entries[iter_].present, "iter_" );
         Entry const & entry = state_->entries[iter_];
         return { entry.key, entry.value };
      }
      Iterator & operator++() {
         sassert( iter_ < end_, "iter_" );
         ++iter_;
         skipGaps();
         return *this;
      }
      friend bool operator==( Iterator const & left, Iterator const & right ) {
         bool const leftEnds = left.iter_ >= left.end_;
         bool const rightEnds = right.iter_ >= right.end_;
         return leftEnds || rightEnds ? leftEnds == rightEnds : left.iter_ == right.iter_;
      }

    private:
      void skipGaps() {
         while ( iter_ < end_ && !state_->entries[iter_].present ) {
            ++iter_;
         }
      }
      Walk state_;
      U32 iter_ = 0;
      U32 end_ = 0; // what is added from here on is not met
   };

   HashMap2018() = default;
   HashMap2018( HashMap2018 const & ) = delete;
   HashMap2018 & operator=( HashMap2018 const & ) = delete;
   ~HashMap2018() { clear(); }

   Iterator begin() const { return Iterator( state_ ); }
   Iterator end() const { return Iterator(); }

   std::size_t size() const { return state_ ? state_->present : 0; }
   bool empty() const { return size() == 0; }
   bool has( Key const & key ) const { return state_ && state_->find( key ); }

   // The value under `key`, or a default one.
   Value get( Key const & key ) const {
      Value const * const value = find( key );
      return value ? *value : Value{};
   }

   // The value under `key` where it stands, or null; good until the map changes. Asking so leaves what it holds alone:
   // even a pointer's copy writes to what it points to.
   Value const * find( Key const & key ) const {
      Entry const * const entry = state_ ? state_->find( key ) : nullptr;
      return entry ? &entry->value : nullptr;
   }

   // Enters `value` under `key`, or replaces what is there; an entry keeps its place in the order.
   void set( Key const & key, Value value ) {
      if ( !state_ ) {
         state_ = std::make_shared< State >();
      }
      if ( Entry * const entry = state_->find( key ) ) {
         std::swap( entry->value, value ); // the old value goes last: its destructor may look here, or destroy the map
      } else {
         state_->add( key, std::move( value ) );
      }
   }

   // Makes room for `count` entries at once, where so many are about to come.
   void reserve( std::size_t count ) {
      if ( !state_ ) {
         state_ = std::make_shared< State >();
      }
      state_->reserve( count );
   }

   // Removes and returns the value under `key`; a default value if there is none.
   Value del( Key const & key ) {
      Entry * const entry = state_ ? state_->find( key ) : nullptr;
      if ( !entry ) {
         return Value{};
      }
      Value value = state_->remove( *entry );
      state_->closeGapsIfMany();
      return value;
   }

   // Removes everything, what comes in meanwhile as well. Values are released one by one, in the order of insertion.
   void clear() {
      Walk const walk( state_ );
      for ( std::size_t position = 0; walk.get() && position < walk->entries.size(); ++position ) {
         if ( walk->entries[position].present ) {
            walk->remove( walk->entries[position] );
         }
      }
   }

 private:
   std::shared_ptr< State > state_; // null until the first entry
};

} // namespace Rex
