// How the contents of attributes change (rex/AttributeContents.h): checked, told to who listens to writes, and
// announced. For the source files that define types.
#pragma once

#include "rex/Entity.h"

// One copy for all who include a type: it is emitted here, however much of it could be inlined.
#ifdef __clang__
#define REX_SHARED [[gnu::noinline]]
#else
#define REX_SHARED [[gnu::noipa]]
#endif

namespace Rex {

template< class Key, class Type >
REX_SHARED void MapAttribute< Key, Type >::set( Entity & owner, short id, Key key, Type value ) {
   if ( auto const found = map_.find( key ); found == map_.end() || !( found->second == value ) ) {
      owner.writeCheck();
      Impl::PendingWrite write( owner, id, &key );
      map_[key] = value;
      write.done();
      owner.publisher_.publish( id, &key, &value ); // copies: a callback may take the entry away
   }
}

template< class Key, class Type >
REX_SHARED bool MapAttribute< Key, Type >::del( Entity & owner, short id, Key key ) {
   if ( !has( key ) ) {
      return false;
   }
   owner.writeCheck();
   Impl::PendingWrite write( owner, id, &key );
   map_.erase( key );
   write.done();
   owner.publisher_.publish( id, &key, nullptr );
   return true;
}

template< class Type >
REX_SHARED HeldEntity< Type >::~HeldEntity() {
   if ( entity_ ) {
      owner_.childDel( *entity_ );
   }
}

template< class Type >
REX_SHARED void HeldEntity< Type >::set( short id,
                                         Corvo::Ptr< Type > entity ) { // a copy: it stays while it is announced
   if ( entity_ == entity ) {
      return;
   }
   owner_.writeCheck();
   Impl::PendingWrite write( owner_, id );
   auto const old = std::exchange( entity_, entity );
   if ( old ) {
      owner_.childDel( *old );
   }
   if ( entity ) {
      owner_.childAdd( *entity );
   }
   write.done();
   owner_.publisher_.publish( id, nullptr, entity.get() );
}

template< class Type, template< class, class > class Container >
REX_SHARED CollectionAttribute< Type, Container >::~CollectionAttribute() {
   for ( auto const & [key, entity] : entities_ ) {
      owner_.childDel( *entity );
   }
}

template< class Type, template< class, class > class Container >
REX_SHARED void CollectionAttribute< Type, Container >::set( short id, Corvo::Ptr< Type > entity, char const * name ) {
   if ( !entity ) {
      throwMutatorArgNullPointerException( owner_.typeData().name().c_str(), name );
   }
   Key const key = entity->rexKey();
   auto const old = entities_.get( key );
   if ( old == entity ) {
      return;
   }
   owner_.writeCheck();
   Impl::PendingWrite write( owner_, id, &key );
   entities_.set( key, entity );
   if ( old ) {
      owner_.childDel( *old );
   }
   owner_.childAdd( *entity );
   write.done();
   owner_.publisher_.publish( id, &key, entity.get() );
}

template< class Type, template< class, class > class Container >
REX_SHARED Corvo::Ptr< Type > CollectionAttribute< Type, Container >::del( short id, Key key ) {
   if ( !entities_.has( key ) ) {
      return nullptr;
   }
   owner_.writeCheck();
   Impl::PendingWrite write( owner_, id, &key );
   auto const old = entities_.del( key );
   owner_.childDel( *old );
   write.done();
   owner_.publisher_.publish( id, &key, nullptr );
   return old;
}

template< class Type >
REX_SHARED void ReferencesAttribute< Type >::set( Entity & owner, short id, Corvo::Ptr< Type > entity ) {
   owner.writeCheck();
   if ( entity && entities_.get( entity->rexKey() ) != entity ) {
      Key const key = entity->rexKey();
      Impl::PendingWrite write( owner, id, &key );
      entities_.set( key, entity );
      write.done();
      owner.publisher_.publish( id, &key, entity.get() );
   }
}

template< class Type >
REX_SHARED Corvo::Ptr< Type > ReferencesAttribute< Type >::del( Entity & owner, short id, Key key ) {
   owner.writeCheck();
   Impl::PendingWrite write( owner, id, &key );
   Corvo::Ptr< Type > const old = entities_.del( key );
   if ( old ) {
      write.done();
      owner.publisher_.publish( id, &key, nullptr );
   }
   return old;
}

} // namespace Rex

#undef REX_SHARED
