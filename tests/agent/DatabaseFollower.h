// Follows a database as an agent does, and does nothing else: what it holds is what it has been told.
//
//    DatabaseFollower follower( server.url() );
//    ASSERT_TRUE( follower.until( [&] { return follower.isFollowing; } ) );
//    follower.paths;
//    follower.told;             // "snapshot", "gap: another state was loaded", …
#pragma once

#include "Soon.h"
#include "agent/database/Databases.h"

#include <algorithm>
#include <chrono>

// What stands there with the value that it has anyhow is left out: a database that tells what became of the paths, not
// what was done to them, tells of such a value as of another.
inline Live::Paths withoutDefaults( Live::Paths paths ) {
   for ( auto & [path, attributes] : paths ) {
      auto const place = Live::placeOf( path );
      auto const fresh = place.type->fresh();
      std::erase_if( attributes, [&]( auto const & each ) {
         auto const * const attribute = place.type->attribute( each.first );
         return attribute && fresh && Rex::toText( attribute->value( *fresh ) ) == each.second;
      } );
   }
   return paths;
}

class DatabaseFollower : public Live::Database::Follower {
 public:
   using Make = std::function< std::unique_ptr< Live::Database >( Live::EventLoop & ) >;

   explicit DatabaseFollower( std::string const & url,
                              std::string const & slice = "Linecard3",
                              Live::DatabaseCredentials const & credentials = {} )
      : DatabaseFollower( [&]( Live::EventLoop & on ) { return Live::databaseAt( on, url, credentials, 1, slice ); } ) {
   }
   explicit DatabaseFollower( Make const & make ) : owned_( make( loop ) ), database( *owned_ ) {
      database.followerIs( this );
      database.snapshot();
   }
   DatabaseFollower( DatabaseFollower const & ) = delete;
   DatabaseFollower & operator=( DatabaseFollower const & ) = delete;
   ~DatabaseFollower() override { database.stop(); }

   // Turns the loop until it is so.
   template< class Condition >
   bool until( Condition const & holds ) {
      return soon( holds, [this] { loop.turn( 0.01 ); } );
   }
   bool untilFollowing() {
      return until( [this] { return isFollowing; } );
   }
   bool untilAt( std::string const & entry ) {
      return until( [&] { return isFollowing && position.entry == entry; } );
   }
   bool untilTold( std::string const & what ) {
      return until( [&] { return hasBeenTold( what ); } );
   }
   bool hasBeenTold( std::string const & what ) const {
      return std::ranges::any_of( told, [&]( auto const & each ) { return each.find( what ) != std::string::npos; } );
   }
   std::size_t timesTold( std::string const & what ) const {
      return static_cast< std::size_t >(
         std::ranges::count_if( told, [&]( auto const & each ) { return each.starts_with( what ); } ) );
   }

   void snapshotIs( Live::Snapshot snapshot ) override {
      told.push_back( "snapshot" );
      paths = std::move( snapshot.paths );
      unreadable = std::move( snapshot.unreadable );
      position = snapshot.position;
      isFollowing = true;
      database.since( position );
   }
   void transactionsAre( std::vector< Live::Transaction > transactions ) override {
      for ( auto const & transaction : transactions ) {
         for ( auto const & event : transaction.changes ) {
            for ( auto const & change : pathChangesOf( event, Live::PathLookup( paths ) ) ) {
               apply( change, paths );
            }
         }
         for ( auto const & text : transaction.unreadable ) {
            unreadable[text] = text;
         }
         position = transaction.position;
      }
      count += transactions.size();
      if ( !rests ) {
         database.since( position );
      }
   }
   void gapIs( std::string reason ) override {
      ends( "gap: " + reason );
      database.snapshot();
   }
   void unreachable( std::string reason ) override {
      ends( "unreachable: " + reason );
      later();
   }
   void withoutState( std::string reason ) override {
      ends( "without: " + reason );
      later();
   }
   void follows() override { hasBegun = true; }
   void refused( std::string reason ) override { ends( "refused: " + reason ); }

   Live::EventLoop loop;

 private:
   std::unique_ptr< Live::Database > owned_;

 public:
   Live::Database & database;
   Live::Paths paths;
   Live::Position position;
   std::map< std::string, std::string > unreadable;
   std::size_t count = 0; // of the transactions
   std::vector< std::string > told;
   bool isFollowing = false;
   bool waitsToTryAgain = false;   // after a broken connection, or without a state
   bool hasBegun = false;          // what is written is heard of
   bool rests = false;             // it asks for no more
   bool takesUpWhereItWas = false; // after a broken connection: from its position on, not with a snapshot

 private:
   void ends( std::string const & text ) {
      told.push_back( text );
      isFollowing = false;
   }
   void later() {
      waitsToTryAgain = true;
      again_ = loop.timer( 0.002, [this] {
         waitsToTryAgain = false;
         if ( takesUpWhereItWas && !position.server.empty() ) {
            isFollowing = true;
            database.since( position );
         } else {
            database.snapshot();
         }
      } );
   }

   Live::EventLoop::Source again_;
};
