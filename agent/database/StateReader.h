// Follows a state from a place on, in whatever database it lies: what is read ahead waits here until it is wanted, and
// behind it the end.
//
//    EtcdReader reader( loop, client, layout, position, { … } );
//    reader.more( position );                        // when what it has told is done: the next ones
//
// It ends with a gap, or with a state that is gone. From within the answers it may be destroyed.
//
// Threading: the agent's loop.
#pragma once

#include "agent/EventLoop.h"
#include "agent/database/StateAnswers.h"
#include "agent/database/Tether.h"

namespace Live {

class StateReader {
 public:
   using Answers = ReaderAnswers;

   virtual ~StateReader() = default;

   // Goes on behind what was told last; false if that is another place.
   bool more( Position const & position );
   Position const & told() const { return told_; }

 protected:
   StateReader( EventLoop & loop, Position position, Answers answers )
      : answers_( std::move( answers ) ), loop_( loop ), told_( std::move( position ) ) {}

   // What waits is on its way to who wanted it: there is room for the next ones.
   virtual void readsOn() = 0;
   // They wait; told as soon as they are wanted.
   void waits( std::vector< Transaction > transactions );
   // Told when what was read before is done.
   void endsWith( std::function< void( std::string const & ) > const & answer, std::string const & reason );

   std::size_t waiting() const { return page_.size(); }
   bool isWanted() const { return isWanted_; }
   bool hasEnded() const { return end_ != nullptr; }

   Answers answers_;
   Tether tether_;

 private:
   void tell();

   EventLoop & loop_;
   Position told_; // up to here
   bool isWanted_ = true;
   std::vector< Transaction > page_{}; // read, not told
   std::function< void() > end_;       // likewise, behind it
};

} // namespace Live
