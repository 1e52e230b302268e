// The state database, as an agent sees it: entities by path, mounted in groups.
//
//    auto const group = entityManager->getMountGroup( mounter );
//    Stordb::Mount mount( "evpn/status", "Evpn::EvpnStatus" );
//    mount.handleFlags( "r" );
//    group->doMount( mount );
//    group->doClose( false, "", 0 );       // later, on the scheduler: mounter->doMountsComplete( status, entityManager
//    )
//
// Life of a group: open, requests, closed, reported. A request that can't be met (no such path, or another type) is
// told in the status; the report comes once, whatever became of the requests.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "orb/TaskScheduler.h"
#include "rex/Clock.h"
#include "rex/Dir.h"
#include "rex/Entity.h"

#include <map>
#include <vector>

namespace Cell {

// The path of a state in a cell; 0 is the local cell.
Corvo::String path( char const * path, unsigned int cell );

} // namespace Cell

namespace Stordb {

class EntityManager;
class Mounter;

// What a mount allows, told by the letters of its mode:
// r read, w write, f the mounter is the first writer, i immediate entries of a directory, D a directory to any depth.
class AllMountFlags {
 public:
   enum : U32 { read = 1, write = 2, first = 4, immediate = 8, deep = 16 };
   U32 val() const { return val_; }
   void valIs( U32 val ) { val_ = val; }

 private:
   U32 val_ = 0;
};

// A request for one mount.
class Mount {
 public:
   Mount( Corvo::String path, Corvo::String typeName )
      : path_( std::move( path ) ), typeName_( std::move( typeName ) ) {}

   Corvo::String const & path() const { return path_; }
   Corvo::String const & typeName() const { return typeName_; }
   AllMountFlags const & flags() const { return flags_; }
   AllMountFlags & flags() { return flags_; }
   // Sets the flags that the letters of `mode` name. An unknown letter ends the process by assertion ("mode").
   void handleFlags( Corvo::String const & mode );

 private:
   Corvo::String path_;
   Corvo::String typeName_;
   AllMountFlags flags_;
};

// How a group was closed.
struct MountClosing {
   bool blocking = false;
   Corvo::String label;
   Rex::Seconds timeout = 0;
   friend bool operator==( MountClosing const &, MountClosing const & ) = default;
};

// How a group went.
struct MountStatus {
   enum class Code : U8 { success, noSuchPath, wrongType };
   Code code = Code::success;
   friend bool operator==( MountStatus, MountStatus ) = default;
};
constexpr MountStatus mountSuccess() {
   return {};
}

// The requests of one mounter. It doesn't keep the mounter alive: a mounter that is gone hears no report.
class MountGroup : public Corvo::Node {
 public:
   MountGroup( Corvo::Ptr< EntityManager > const & entityManager, Corvo::Ptr< Mounter > const & mounter );
   ~MountGroup() override;

   // Requests one mount. After doClose: assertion text "isOpen".
   void doMount( Mount const & mount );
   // Ends the group: no more requests follow. The three arguments say how the report is to be made; this database
   // knows one way: at once, as the next task of the scheduler.
   void doClose( bool blocking, Corvo::String const & label, Rex::Seconds timeout );

   std::vector< Mount > const & mounts() const { return mounts_; }
   bool isOpen() const { return isOpen_; }

 private:
   Corvo::Ptr< EntityManager > entityManager_;
   std::weak_ptr< Mounter * > mounter_;
   std::vector< Mount > mounts_;
   bool isOpen_ = true;
};

// The entities of the database by path. It stands for all the agents that write to it.
//
// A path is known once a type has been declared for it. A known path may be without an entity: such a mount succeeds
// and gives null.
class Database : public Corvo::Node {
 public:
   // Declares a path and the type of what may stand there.
   void pathIs( Corvo::String const & path, Corvo::String const & typeName );
   // Declares a path by the entity that stands there from now on.
   void entityIs( Corvo::String const & path, Corvo::Ptr< Rex::Entity > const & entity );
   // Takes the entity away; the path stays known.
   void entityDel( Corvo::String const & path );
   // Null where there is none.
   Corvo::Ptr< Rex::Entity > entity( Corvo::String const & path ) const;
   // The type that is declared for a path; null for a path that isn't known.
   Corvo::String const * typeName( Corvo::String const & path ) const;
   std::map< Corvo::String, Corvo::Ptr< Rex::Entity > > const & entities() const { return entities_; }

   // The path of an entity or of one below it; empty if it isn't in the database.
   Corvo::String pathOf( Rex::Entity const & entity ) const;

 private:
   std::map< Corvo::String, Corvo::String > typeNames_;
   std::map< Corvo::String, Corvo::Ptr< Rex::Entity > > entities_;
   std::map< Rex::Entity const *, Corvo::String > paths_;
};

// One agent's view of the database: what it has mounted.
class EntityManager : public Corvo::Node {
 public:
   EntityManager( Corvo::Ptr< Database > const & database, Corvo::Ptr< Orb::TaskScheduler > const & scheduler );
   ~EntityManager() override;

   // A new group of mounts for this mounter.
   Corvo::Ptr< MountGroup > getMountGroup( Corvo::Ptr< Mounter > const & mounter );
   // The mounted entity at a path, or null. One that was mounted without "w" refuses to be written.
   Corvo::Ptr< Rex::Entity > getEntity( Corvo::String const & path ) const;

   // All requests of all groups, in order, and how the groups were closed.
   std::vector< Mount > const & requests() const { return requests_; }
   std::vector< MountClosing > const & closings() const { return closings_; }

   Corvo::Ptr< Database > const & database() const { return database_; }

 private:
   friend class MountGroup;
   MountStatus::Code mount( Mount const & mount );

   Corvo::Ptr< Database > database_;
   Corvo::Ptr< Orb::TaskScheduler > scheduler_;
   std::map< Corvo::String, Corvo::Ptr< Rex::Entity > > mounted_;
   std::vector< Mount > requests_;
   std::vector< MountClosing > closings_;
};

// Who mounts. It hears once of each group.
class Mounter : public Rex::Entity {
 public:
   // The database's report; passes it on to doMountsComplete, and the status to handleMountStatus.
   virtual void doStordbMountsComplete( MountStatus status, Corvo::Ptr< EntityManager > const & entityManager );
   virtual void doMountsComplete( MountStatus status, Corvo::Ptr< EntityManager > const & entityManager ) = 0;
   virtual void handleMountStatus( MountStatus ) {}

 private:
   friend class MountGroup;
   std::shared_ptr< Mounter * > const self_ = std::make_shared< Mounter * >( this ); // gone with the mounter
};

} // namespace Stordb
