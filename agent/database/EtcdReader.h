// Follows a state from a place on: one stream, on which the server tells each revision, whole.
//
//    EtcdReader reader( loop, client, layout, position, { … } );
//
// While nobody wants more, and much waits, the stream rests: what comes waits with the server. It ends with the client,
// too.
//
// A transaction is what the revision has changed: the events that lead from the values before to those after it.
//
// Threading: the agent's loop.
#pragma once

#include "agent/database/EtcdClient.h"
#include "agent/database/EtcdLayout.h"
#include "agent/database/StateReader.h"

namespace Live {

class EtcdReader final : public StateReader {
 public:
   // `quiet`: up to this revision nothing has come behind the place.
   EtcdReader(
      EventLoop & loop, EtcdClient & client, EtcdLayout const & layout, Position position, U64 quiet, Answers answers );

   // Nothing has come behind what was told up to this revision: who begins again there begins behind it. 0: something
   // has.
   U64 quietUpTo() const { return waiting() == 0 ? read_ : 0; }

 private:
   void readsOn() override;
   void begin();
   void isCurrently( EtcdReply const & reply );
   void comes( EtcdReply const & reply );
   void take( std::vector< EtcdEvent > const & events );
   Transaction transactionOf( std::vector< EtcdEvent const * > const & events );
   void lifeIs( EtcdEvent const & event );

   EtcdClient & client_;
   EtcdLayout layout_;
   U64 read_; // up to this revision
   bool isResting_ = false;
   unsigned created_ = 0; // of what is watched
   std::unique_ptr< EtcdClient::Stream > stream_;
};

// The number of a revision, as a place has it.
U64 revisionOf( std::string_view text );

} // namespace Live
