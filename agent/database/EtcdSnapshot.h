// The whole state at one moment: a range at one revision, in pages.
//
//    EtcdSnapshot snapshot( client, layout, { .is = …, .without = …, .fails = … } );
//    EtcdSnapshot part( client, layout, { … }, partsAt( layout, "evpn/status" ) );
//
// It goes on as long as it lives and ends with one of the three, or with the client.
//
// Threading: the agent's loop.
#pragma once

#include "agent/database/EtcdClient.h"
#include "agent/database/EtcdLayout.h"
#include "agent/database/StateAnswers.h"
#include "agent/database/Tether.h"

namespace Live {

class EtcdSnapshot {
 public:
   using Answers = SnapshotAnswers;
   using Parts = std::vector< EtcdRange >;

   // `parts`: of the state; without them, all.
   EtcdSnapshot( EtcdClient & client, EtcdLayout const & layout, Answers answers, Parts parts = {} );

   // What stands at a path and below it; and what it stands in.
   static Parts partsAt( EtcdLayout const & layout, std::string const & path );
   static Parts partsAbout( EtcdLayout const & layout, std::string const & path );

 private:
   void begin();
   void next();
   void take( EtcdReply const & reply );
   void goOn();

   EtcdClient & client_;
   EtcdLayout layout_;
   Answers answers_;
   Parts parts_;
   bool isAll_;
   unsigned tries_ = 0;
   Snapshot snapshot_;
   U64 revision_ = 0;
   std::size_t part_ = 0;
   std::string from_; // the next key of the part
   Tether tether_;
};

} // namespace Live
