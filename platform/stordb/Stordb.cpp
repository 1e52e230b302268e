#include "stordb/Stordb.h"

namespace Cell {

Corvo::String path( char const * path, unsigned int cell ) {
   return "cell/" + std::to_string( cell ) + "/" + path;
}

} // namespace Cell

namespace Stordb {

void Mount::handleFlags( Corvo::String const & mode ) {
   static std::map< char, U32 > const flagOfLetter = {
      { 'r', AllMountFlags::read },
      { 'w', AllMountFlags::write | AllMountFlags::read },
      { 'f', AllMountFlags::first },
      { 'i', AllMountFlags::immediate },
      { 'D', AllMountFlags::deep },
   };
   for ( char const letter : mode ) {
      auto const found = flagOfLetter.find( letter );
      Rex::sassert( found != flagOfLetter.end(), "mode" );
      flags_.valIs( flags_.val() | found->second );
   }
}

MountGroup::MountGroup( Corvo::Ptr< EntityManager > const & entityManager, Corvo::Ptr< Mounter > const & mounter )
   : entityManager_( entityManager ), mounter_( mounter->self_ ) {}

MountGroup::~MountGroup() = default;

void MountGroup::doMount( Mount const & mount ) {
   Rex::sassert( isOpen_, "isOpen" );
   mounts_.push_back( mount );
   entityManager_->requests_.push_back( mount );
}

void MountGroup::doClose( bool blocking, Corvo::String const & label, Rex::Seconds timeout ) {
   Rex::sassert( isOpen_, "isOpen" );
   isOpen_ = false;
   entityManager_->closings_.push_back( { blocking, label, timeout } );
   auto const self = Corvo::Ptr< MountGroup >( this );
   entityManager_->scheduler_->post( [self] {
      MountStatus status;
      for ( auto const & mount : self->mounts_ ) {
         auto const code = self->entityManager_->mount( mount );
         if ( status == mountSuccess() ) {
            status.code = code; // the first that failed tells
         }
      }
      if ( auto const mounter = self->mounter_.lock() ) {
         ( *mounter )->doStordbMountsComplete( status, self->entityManager_ );
      }
   } );
}

void Database::pathIs( Corvo::String const & path, Corvo::String const & typeName ) {
   typeNames_[path] = typeName;
}

void Database::entityIs( Corvo::String const & path, Corvo::Ptr< Rex::Entity > const & entity ) {
   Rex::sassert( entity != nullptr, "entity" );
   entityDel( path );
   pathIs( path, entity->typeData().name() );
   entities_[path] = entity;
   paths_[entity.get()] = path;
}

void Database::entityDel( Corvo::String const & path ) {
   if ( auto const old = entities_.find( path ); old != entities_.end() ) {
      paths_.erase( old->second.get() );
      entities_.erase( old );
   }
}

Corvo::String const * Database::typeName( Corvo::String const & path ) const {
   auto const found = typeNames_.find( path );
   return found == typeNames_.end() ? nullptr : &found->second;
}

Corvo::Ptr< Rex::Entity > Database::entity( Corvo::String const & path ) const {
   auto const found = entities_.find( path );
   return found == entities_.end() ? nullptr : found->second;
}

Corvo::String Database::pathOf( Rex::Entity const & entity ) const {
   if ( auto const found = paths_.find( &entity ); found != paths_.end() ) {
      return found->second;
   }
   if ( auto const * parent = entity.parent() ) {
      auto const above = pathOf( *parent );
      auto const step = parent->stepTo( entity );
      if ( !above.empty() && !step.empty() ) {
         return above + "/" + step;
      }
   }
   return {};
}

EntityManager::EntityManager( Corvo::Ptr< Database > const & database,
                              Corvo::Ptr< Orb::TaskScheduler > const & scheduler )
   : database_( database ), scheduler_( scheduler ) {}

EntityManager::~EntityManager() {
   for ( auto const & [path, entity] : mounted_ ) {
      entity->writeProtectedIs( false );
   }
}

Corvo::Ptr< MountGroup > EntityManager::getMountGroup( Corvo::Ptr< Mounter > const & mounter ) {
   return Corvo::makePtr< MountGroup >( Corvo::Ptr< EntityManager >( this ), mounter );
}

Corvo::Ptr< Rex::Entity > EntityManager::getEntity( Corvo::String const & path ) const {
   auto const found = mounted_.find( path );
   return found == mounted_.end() ? nullptr : found->second;
}

MountStatus::Code EntityManager::mount( Mount const & mount ) {
   auto const * typeName = database_->typeName( mount.path() );
   if ( !typeName ) {
      return MountStatus::Code::noSuchPath;
   }
   if ( *typeName != mount.typeName() ) {
      return MountStatus::Code::wrongType;
   }
   if ( auto const entity = database_->entity( mount.path() ) ) {
      // A second mount of a path takes nothing away from the first.
      bool const wasWritable = getEntity( mount.path() ) == entity && !entity->isWriteProtected();
      mounted_[mount.path()] = entity;
      entity->writeProtectedIs( !wasWritable && ( mount.flags().val() & AllMountFlags::write ) == 0 );
   }
   return MountStatus::Code::success;
}

void Mounter::doStordbMountsComplete( MountStatus status, Corvo::Ptr< EntityManager > const & entityManager ) {
   Corvo::Ptr< Mounter > const self = this;
   handleMountStatus( status );
   doMountsComplete( status, entityManager );
}

} // namespace Stordb
