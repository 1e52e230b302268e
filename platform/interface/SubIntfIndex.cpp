#include "interface/SubIntfIndex.h"

#include "rex/Notifiee.h"

namespace Interface {

namespace {

std::unordered_map< SubIntfStatusDir const *, SubIntfIndex * > & indexes() {
   static auto * all = new std::unordered_map< SubIntfStatusDir const *, SubIntfIndex * >;
   return *all;
}

} // namespace

// Follows one subinterface, and knows under which interface it is filed.
class SubIntfIndex::SubIntfNotifiee : public Rex::NotifieeConst {
 public:
   SubIntfNotifiee( SubIntfIndex & index, Corvo::Ptr< SubIntfStatus > const & subIntf )
      : index_( index ), subIntf_( subIntf ), filedUnder_( subIntf->parentIntfId() ) {
      index_.file( filedUnder_, subIntf_ );
      notifierEntityIs( subIntf );
      isRegisteredNotifieeIs( true );
      hasNotificationActiveIs( true );
   }
   ~SubIntfNotifiee() override { index_.unfile( filedUnder_, subIntf_->intfId() ); }
   void onAttribute( Rex::AttributeId attribute, void const * ) override {
      if ( attribute == 0x105 /* parentIntfId */ ) {
         index_.unfile( filedUnder_, subIntf_->intfId() );
         filedUnder_ = subIntf_->parentIntfId();
         index_.file( filedUnder_, subIntf_ );
      }
   }

 private:
   SubIntfIndex & index_;
   Corvo::Ptr< SubIntfStatus > subIntf_;
   Netka::IntfId filedUnder_;
};

SubIntfIndex::SubIntfIndex( Corvo::Ptr< SubIntfStatusDir const > const & dir ) : dir_( dir ) {
   indexes()[dir.get()] = this;
   dir_.subscribe( dirDispatch, this );
   groups_.reserve( dir->intfStatus().size() );
   notifiees_.reserve( dir->intfStatus().size() );
   for ( auto const & [subIntfId, subIntf] : dir->intfStatus() ) {
      handleSubIntf( subIntfId );
   }
}

SubIntfIndex::~SubIntfIndex() {
   indexes().erase( dir_.ptr().get() );
   notifiees_.clear(); // while the groups still stand
}

Corvo::Ptr< SubIntfIndex > SubIntfIndex::of( Corvo::Ptr< SubIntfStatusDir const > const & dir ) {
   if ( !dir ) {
      return nullptr;
   }
   auto const found = indexes().find( dir.get() );
   return found == indexes().end() ? Corvo::makePtr< SubIntfIndex >( dir )
                                   : Corvo::Ptr< SubIntfIndex >( found->second );
}

std::vector< Corvo::Ptr< SubIntfStatus > > SubIntfIndex::subIntfs( Netka::IntfId parentIntfId ) const {
   std::vector< Corvo::Ptr< SubIntfStatus > > all;
   if ( auto const group = groups_.find( parentIntfId ); group != groups_.end() ) {
      for ( auto const & [subIntfId, subIntf] : group->second.subIntfs ) {
         all.push_back( subIntf );
      }
   }
   return all;
}

U64 SubIntfIndex::generation( Netka::IntfId parentIntfId ) const {
   auto const group = groups_.find( parentIntfId );
   return group == groups_.end() ? 0 : group->second.generation;
}

void SubIntfIndex::handleSubIntf( Netka::IntfId subIntfId ) {
   notifiees_.erase( subIntfId );
   if ( auto const subIntf = dir_->intfStatus( subIntfId ) ) {
      notifiees_.emplace( subIntfId, Corvo::makePtr< SubIntfNotifiee >( *this, subIntf ) );
   }
}

void SubIntfIndex::file( Netka::IntfId parentIntfId, Corvo::Ptr< SubIntfStatus > const & subIntf ) {
   auto & group = groups_[parentIntfId];
   group.generation = ++generation_;
   group.subIntfs[subIntf->intfId()] = subIntf;
}

void SubIntfIndex::unfile( Netka::IntfId parentIntfId, Netka::IntfId subIntfId ) {
   auto const group = groups_.find( parentIntfId );
   group->second.generation = ++generation_;
   group->second.subIntfs.erase( subIntfId );
   if ( group->second.subIntfs.empty() ) {
      groups_.erase( group );
   }
}

void SubIntfIndex::dirDispatch(
   Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const * key, void const * ) {
   if ( attribute == 0x102 /* intfStatus */ ) {
      slot->owner< SubIntfIndex >()->handleSubIntf( *static_cast< Netka::IntfId const * >( key ) );
   }
}

} // namespace Interface
