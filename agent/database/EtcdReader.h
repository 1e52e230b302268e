// Follows a state from a place on: one stream, on which the server tells each revision, whole.
//
//    EtcdReader reader( loop, client, layout, position, { … } );
//    reader.more( position );                        // when what it has told is done: the next ones
//
// While nobody wants more, and much waits, the stream rests: what comes waits with the server. It ends with a gap, with
// a state that is gone, or with the client. From within the answers it may be destroyed.
//
// A transaction is what the revision has changed: the events that lead from the values before to those after it.
//
// Threading: the agent's loop.
#pragma once

#include "agent/database/Database.h"
#include "agent/database/EtcdClient.h"
#include "agent/database/EtcdLayout.h"
#include "agent/database/Tether.h"

namespace Live {

class EtcdReader {
 public:
   struct Answers {
      std::function< void() > begins; // what comes behind the place will come
      std::function< void( std::vector< Transaction > ) > are;
      std::function< void( std::string const & ) > gap;
      std::function< void( std::string const & ) > without;
   };

   // `quiet`: up to this revision nothing has come behind the place.
   EtcdReader(
      EventLoop & loop, EtcdClient & client, EtcdLayout const & layout, Position position, U64 quiet, Answers answers );

   // Goes on behind what was told last; false if that is another place.
   bool more( Position const & position );
   Position const & told() const { return told_; }
   // Nothing has come behind what was told up to this revision: who begins again there begins behind it. 0: something
   // has.
   U64 quietUpTo() const { return page_.empty() ? read_ : 0; }

 private:
   void begin();
   void isCurrently( EtcdReply const & reply );
   void comes( EtcdReply const & reply );
   void take( std::vector< EtcdEvent > const & events );
   Transaction transactionOf( std::vector< EtcdEvent const * > const & events );
   void lifeIs( EtcdEvent const & event );
   void endsWith( std::function< void( std::string const & ) > const & answer, std::string const & reason );
   void tell();

   EventLoop & loop_;
   EtcdClient & client_;
   EtcdLayout layout_;
   Position told_; // up to here
   U64 read_;      // and up to this revision it was read
   Answers answers_;
   bool isWanted_ = true;
   bool isResting_ = false;
   unsigned created_ = 0;              // of what is watched
   std::vector< Transaction > page_{}; // read, not told
   std::function< void() > end_;       // likewise, behind it
   std::unique_ptr< EtcdClient::Stream > stream_;
   Tether tether_;
};

// The number of a revision, as a place has it.
U64 revisionOf( std::string_view text );

} // namespace Live
