// The state in an etcd, for who waits for its answers. Writers take turns by the revision of one key, which each of
// them writes with its transaction, and a token of its own into it: whether a write was done that got no answer can be
// looked up.
//
// Threading: none.
#pragma once

#include "agent/database/EtcdSession.h"
#include "agent/database/StateStore.h"

namespace Live {

class EtcdStore final : public StateStore {
 public:
   EtcdStore( EtcdAddress const & address, U32 cell ) : layout_( address.prefix, cell ), session_( address ) {}

   std::string name() const override { return session_.address().name(); }
   EventLoop & loop() override { return session_.loop(); }
   Snapshot snapshot( std::string const & path ) override;
   Paths about( std::string const & path ) override;
   Mark mark() override;
   bool isBehind( Position const & position, Mark const & mark ) const override;
   std::optional< std::vector< Transaction > > since( Position const & position, Mark const & mark ) override;
   std::string
   commit( StateChange const & change, Paths const & after, Inspection::Event const & event, Mark & mark ) override;
   std::string load( Paths const & paths ) override;
   Position place() override;
   std::vector< AwaitedAgent > agents( std::vector< std::string > slices, Position const & place ) override;
   std::unique_ptr< StateWatch > watch( StateWatch::Answers answers ) override;

   // The revision that the transaction made, which writes `token` behind `before`; 0: somebody else has written there.
   // Asked again as long as nobody answers, once it has been looked up whether it was done.
   U64 written( EtcdTransaction const & transaction, std::string const & token, U64 before );

 private:
   // What a transaction changes, by key; no value: it goes. And what goes with all below it.
   struct Writes {
      std::map< std::string, std::optional< std::string > > keys = {};
      std::vector< std::string > below = {};
      std::size_t size() const { return keys.size() + below.size(); }
   };

   Writes writesOf( StateChange const & change, Paths const & after ) const;
   std::string newToken();
   // Who wrote first behind a revision of the key of writes, and where; 0: nobody.
   std::pair< U64, std::string > writtenBehind( U64 before );

   EtcdLayout layout_;
   EtcdSession session_;
   std::string writer_ = newEpoch(); // which nobody else is
   U64 count_ = 0;
   U64 seen_ = 0;                      // what was read is of this revision
   std::size_t most_ = mostOperations; // of a transaction
};

} // namespace Live
