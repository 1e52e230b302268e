// The revisions of a state in an etcd, watched; from one member of the cluster to the next, where one is lost.
//
// Threading: the session's.
#pragma once

#include "agent/database/EtcdReader.h"
#include "agent/database/EtcdSession.h"
#include "agent/database/StateStore.h"

#include <chrono>

namespace Live {

class EtcdWatch final : public StateWatch {
 public:
   EtcdWatch( EtcdSession & session, EtcdLayout const & layout, Position from, Answers answers );
   void turn() override;

 private:
   void begin();
   void lookForNext();

   EtcdSession & session_;
   EtcdLayout layout_;
   Position read_;
   Answers answers_;
   std::size_t member_ = 0;
   std::size_t failures_ = 0; // since somebody told something
   std::unique_ptr< EtcdClient > client_;
   std::unique_ptr< EtcdReader > reader_;
   std::optional< std::chrono::steady_clock::time_point > goneSince_; // the state
   std::optional< std::string > lost_;
   std::optional< std::string > gap_;
};

} // namespace Live
