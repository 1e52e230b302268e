#include "agent/database/RedisDatabase.h"

#include <algorithm>

namespace Live {

namespace {

// A server that hasn't answered for so long is taken for dead.
constexpr Rex::Seconds patience = 10;

// The name of a connection, in which the server allows no blanks.
std::string clientNameOf( std::string slice ) {
   std::ranges::replace_if(
      slice, []( unsigned char letter ) { return letter <= ' ' || letter > '~'; }, '_' );
   return "l3sm:" + slice;
}

} // namespace

RedisDatabase::RedisDatabase( EventLoop & loop, RedisAddress const & address, U32 cell, std::string const & slice )
   : loop_( loop ), address_( address ), layout_( cell ), clientName_( clientNameOf( slice ) ),
     lease_( layout_, slice ), publisher_( layout_, slice ) {}

RedisDatabase::~RedisDatabase() {
   ends();
}

void RedisDatabase::snapshot() {
   reader_.reset();
   snapshot_.reset();
   withRight( [this] {
      snapshot_ = std::make_unique< RedisSnapshot >(
         *asking_,
         layout_,
         RedisSnapshot::Answers{ .is =
                                    [this]( Snapshot & snapshot ) {
                                       auto const done = std::move( snapshot_ );
                                       follower()->snapshotIs( std::move( snapshot ) );
                                    },
                                 .without = [this]( std::string const & reason ) { holdsNothing( reason ); },
                                 .fails = [this]( std::string const & reason ) { fails( name() + ": " + reason ); } } );
   } );
}

void RedisDatabase::since( Position const & position ) {
   snapshot_.reset();
   if ( reader_ && reader_->more( position ) ) {
      return;
   }
   reader_.reset();
   withRight( [this, position] {
      reader_ = std::make_unique< RedisReader >(
         loop_,
         address_,
         clientName_,
         layout_,
         position,
         RedisReader::Answers{
            .begins = [this] { follower()->follows(); },
            .are = [this]( std::vector< Transaction > all ) { follower()->transactionsAre( std::move( all ) ); },
            .gap =
               [this]( std::string const & reason ) {
                  auto const done = std::move( reader_ );
                  follower()->gapIs( reason );
               },
            .without = [this]( std::string const & reason ) { holdsNothing( reason ); } },
         [this]( std::string const & reason ) { fails( reason ); } );
   } );
}

void RedisDatabase::publish( Report const & report ) {
   if ( hasRight_ ) {
      publisher_.publish(
         *asking_, report, tether_.of( [this]( std::string const & reason ) { fails( name() + ": " + reason ); } ) );
   }
}

void RedisDatabase::stop() {
   snapshot_.reset();
   reader_.reset();
   hearing_.reset();
   if ( hasRight_ ) {
      lease_.release( *asking_ );
      asking_->flush();
   }
   ends();
}

void RedisDatabase::tick() {
   bool const isSilent = ( asking_ && asking_->silentFor() > patience ) ||
                         ( hearing_ && hearing_->silentFor() > patience ) ||
                         ( reader_ && reader_->silentFor() > patience );
   if ( isSilent ) {
      fails( name() + ": no answer for " + std::to_string( static_cast< int >( patience ) ) + " s" );
   } else if ( hasRight_ ) {
      lease_.take(
         *asking_, [] {}, [this]( std::string const & who ) { refuses( who ); } );
      lookAtLog();
   }
}

// Runs `what` as soon as we have the right to serve our slice.
void RedisDatabase::withRight( std::function< void() > what ) {
   if ( hasRight_ ) {
      what();
      return;
   }
   wanted_ = std::move( what );
   if ( asking_ ) {
      return;
   }
   asking_ = std::make_unique< RedisConnection >(
      loop_, address_, clientName_, [this]( std::string const & reason ) { fails( reason ); } );
   lease_.take(
      *asking_,
      [this] {
         hasRight_ = true;
         publisher_.begin();
         hearOfEpochs();
         std::exchange( wanted_, nullptr )();
      },
      [this]( std::string const & who ) { refuses( who ); } );
}

// The server tells who tracks a key that it was changed, and who tracks any that all was flushed.
void RedisDatabase::hearOfEpochs() {
   hearing_ = std::make_unique< RedisConnection >(
      loop_, address_, clientName_, [this]( std::string const & reason ) { fails( reason ); } );
   hearing_->ask(
      { "CLIENT", "ID" },
      [this]( RedisReply reply ) {
         if ( reply.isError() ) {
            return; // then tick() finds it out
         }
         std::string const id = std::to_string( reply.number() );
         hearing_->subscribe( "__redis__:invalidate", [this]( RedisReply ) { lookAtLog(); } );
         asking_->ask(
            { "CLIENT", "TRACKING", "ON", "REDIRECT", id, "BCAST", "PREFIX", layout_.epoch() },
            [this]( RedisReply ) { lookAtLog(); }, // what changed before
            RedisConnection::Errors::areTold );
      },
      RedisConnection::Errors::areTold );
}

void RedisDatabase::lookAtLog() {
   if ( reader_ ) {
      askState( *asking_, layout_, reader_->judge() );
   }
}

void RedisDatabase::ends() {
   hasRight_ = false;
   tether_.cut();
   wanted_ = nullptr;
   publisher_.begin();
   snapshot_.reset();
   reader_.reset();
   hearing_.reset();
   asking_.reset();
}

void RedisDatabase::fails( std::string const & reason ) {
   ends();
   follower()->unreachable( reason );
}

void RedisDatabase::refuses( std::string const & who ) {
   ends();
   follower()->refused( who );
}

void RedisDatabase::holdsNothing( std::string const & reason ) {
   snapshot_.reset();
   reader_.reset();
   follower()->withoutState( reason );
}

} // namespace Live
