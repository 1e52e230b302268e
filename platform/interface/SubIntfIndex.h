// SubIntfIndex: the subinterfaces of a directory by the interface that they belong to, so that what is to be done for
// the subinterfaces of one interface doesn't depend on how many others there are.
//
//    auto const index = Interface::SubIntfIndex::of( subIntfStatusDir );
//    for ( auto const & subIntf : index->subIntfs( intfId ) ) { ... }
//
// There is one index for each directory, shared by all who ask for it. It follows the directory, and each subinterface
// where it moves to another interface.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "corvo/Watched.h"
#include "state/Interfaces.h"

#include <map>
#include <unordered_map>
#include <vector>

namespace Interface {

class SubIntfIndex : public Corvo::Node {
 public:
   explicit SubIntfIndex( Corvo::Ptr< SubIntfStatusDir const > const & dir );
   ~SubIntfIndex() override;
   // The index of this directory; null for none.
   static Corvo::Ptr< SubIntfIndex > of( Corvo::Ptr< SubIntfStatusDir const > const & dir );

   // The subinterfaces of an interface, in the order of their ids.
   std::vector< Corvo::Ptr< SubIntfStatus > > subIntfs( Netka::IntfId parentIntfId ) const;
   // Differs from an earlier answer if subinterfaces of this interface came or went in between; 0 while it has none.
   U64 generation( Netka::IntfId parentIntfId ) const;

 private:
   class SubIntfNotifiee;
   struct Group {
      U64 generation = 0;
      std::map< Netka::IntfId, Corvo::Ptr< SubIntfStatus > > subIntfs;
   };

   void handleSubIntf( Netka::IntfId subIntfId );
   void file( Netka::IntfId parentIntfId, Corvo::Ptr< SubIntfStatus > const & subIntf );
   void unfile( Netka::IntfId parentIntfId, Netka::IntfId subIntfId );
   static void dirDispatch( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * );

   Corvo::Watched< SubIntfStatusDir const > dir_;
   U64 generation_ = 0;
   std::unordered_map< Netka::IntfId, Group > groups_;
   std::unordered_map< Netka::IntfId, Corvo::Ptr< SubIntfNotifiee > > notifiees_;
};

} // namespace Interface
