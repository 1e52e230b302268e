// A state that lies in a server, as an agent follows it, whichever server that is.
//
//    class EtcdDatabase final : public CentralDatabase< EtcdClient, EtcdSnapshot, EtcdReader > { … };
//
// Nothing is asked before the agent has the right to serve its slice. At most one snapshot is taken at a time, or one
// reader follows; a reader that is asked for more where it stands goes on.
//
// Threading: the agent's loop. Answers come from the loop, never from within a call.
#pragma once

#include "agent/database/StateReader.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Live {

// `TheReader` is a StateReader. Who derives calls ends() when he is destroyed: connection and readers use what he has.
template< class Connection, class TheSnapshot, class TheReader >
class CentralDatabase : public Database {
 public:
   void snapshot() final {
      forget();
      withRight( [this] {
         snapshot_ = newSnapshot( { .is =
                                       [this]( Snapshot & snapshot ) {
                                          auto const done = std::move( snapshot_ );
                                          follower()->snapshotIs( std::move( snapshot ) );
                                       },
                                    .without = [this]( std::string const & reason ) { holdsNothing( reason ); },
                                    .fails = [this]( std::string const & reason ) { fails( reason ); } } );
      } );
   }
   void since( Position const & position ) final {
      snapshot_.reset();
      if ( reader_ && reader_->more( position ) ) {
         return;
      }
      reader_.reset();
      withRight( [this, position] {
         reader_ = newReader(
            position,
            { .begins = [this] { follower()->follows(); },
              .are = [this]( std::vector< Transaction > all ) { follower()->transactionsAre( std::move( all ) ); },
              .gap =
                 [this]( std::string const & reason ) {
                    auto const done = std::move( reader_ );
                    follower()->gapIs( reason );
                 },
              .without = [this]( std::string const & reason ) { holdsNothing( reason ); } } );
      } );
   }

   void stop() final {
      if ( hasRight_ ) {
         givesRightUp();
      }
      ends();
   }

 protected:
   virtual std::unique_ptr< Connection > newConnection() = 0;
   // To serve the slice: rightIsOurs(), refuses(), or fails().
   virtual void takesRight() = 0;
   virtual void givesRightUp() = 0;
   virtual std::unique_ptr< TheSnapshot > newSnapshot( SnapshotAnswers answers ) = 0;
   virtual std::unique_ptr< TheReader > newReader( Position const & position, ReaderAnswers answers ) = 0;
   // The connection is about to go: nothing that hangs on it comes any more.
   virtual void rests() = 0;

   void rightIsOurs() {
      hasRight_ = true;
      std::exchange( wanted_, nullptr )();
   }
   void ends() {
      hasRight_ = false;
      wanted_ = nullptr;
      rests();
      forget();
      connection_.reset();
   }
   void unreachable( std::string const & reason ) {
      std::string const text = reason; // which may go with the connection
      ends();
      follower()->unreachable( text );
   }
   virtual void fails( std::string const & reason ) { unreachable( name() + ": " + reason ); }
   void refuses( std::string const & who ) {
      ends();
      follower()->refused( who );
   }

   bool hasRight() const { return hasRight_; }

   std::unique_ptr< Connection > connection_;
   std::unique_ptr< TheReader > reader_;

 private:
   // Runs `what` as soon as we have the right to serve our slice.
   void withRight( std::function< void() > what ) {
      if ( hasRight_ ) {
         what();
         return;
      }
      wanted_ = std::move( what );
      if ( !connection_ ) {
         connection_ = newConnection();
         takesRight();
      }
   }
   void forget() {
      snapshot_.reset();
      reader_.reset();
   }
   void holdsNothing( std::string const & reason ) {
      forget();
      follower()->withoutState( reason );
   }

   bool hasRight_ = false;
   std::function< void() > wanted_; // once we have the right
   std::unique_ptr< TheSnapshot > snapshot_;
};

} // namespace Live
