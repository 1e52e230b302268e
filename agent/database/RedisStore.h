// The state in a Redis, for who waits for its answers: hashes, set of paths and log are written in one MULTI, and only
// where nobody else has written since they were looked at.
//
// Threading: none.
#pragma once

#include "agent/database/RedisSession.h"
#include "agent/database/StateStore.h"

namespace Live {

class RedisStore final : public StateStore {
 public:
   RedisStore( RedisAddress const & address, U32 cell ) : layout_( cell ), session_( address ) {}

   std::string name() const override { return session_.name(); }
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

 private:
   // Asks; `into` is filled when it is answered.
   void watchKeys( Mark & into );
   void ask( StateChange const & change );
   void askLog( std::string const & changes, std::string const & epoch, char const * approximately, char const * most );

   RedisLayout layout_;
   RedisSession session_;
};

} // namespace Live
