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

// Which names the server by itself.
RedisConnection::Lost RedisDatabase::lost() {
   return [this]( std::string const & reason ) { unreachable( reason ); };
}

std::unique_ptr< RedisConnection > RedisDatabase::newConnection() {
   return std::make_unique< RedisConnection >( loop_, address_, clientName_, lost() );
}

void RedisDatabase::takesRight() {
   lease_.take(
      *connection_,
      [this] {
         hearOfEpochs();
         rightIsOurs();
      },
      [this]( std::string const & who ) { refuses( who ); } );
}

void RedisDatabase::givesRightUp() {
   lease_.release( *connection_ );
   connection_->flush();
}

std::unique_ptr< RedisSnapshot > RedisDatabase::newSnapshot( SnapshotAnswers answers ) {
   return std::make_unique< RedisSnapshot >( *connection_, layout_, std::move( answers ) );
}

std::unique_ptr< RedisReader > RedisDatabase::newReader( Position const & position, ReaderAnswers answers ) {
   return std::make_unique< RedisReader >(
      loop_, address_, clientName_, layout_, position, std::move( answers ), lost() );
}

void RedisDatabase::publish( Report const & report ) {
   if ( hasRight() ) {
      publisher_.publish( *connection_, report, [this]( std::string const & reason ) { fails( reason ); } );
   }
}

void RedisDatabase::tick() {
   bool const isSilent = ( connection_ && connection_->silentFor() > patience ) ||
                         ( hearing_ && hearing_->silentFor() > patience ) ||
                         ( reader_ && reader_->silentFor() > patience );
   if ( isSilent ) {
      fails( "no answer for " + std::to_string( static_cast< int >( patience ) ) + " s" );
   } else if ( hasRight() ) {
      lease_.take(
         *connection_, [] {}, [this]( std::string const & who ) { refuses( who ); } );
      lookAtLog();
   }
}

// The server tells who tracks a key that it was changed, and who tracks any that all was flushed.
void RedisDatabase::hearOfEpochs() {
   hearing_ = newConnection();
   hearing_->ask(
      { "CLIENT", "ID" },
      [this]( RedisReply reply ) {
         if ( reply.isError() ) {
            return; // then tick() finds it out
         }
         std::string const id = std::to_string( reply.number() );
         hearing_->subscribe( "__redis__:invalidate", [this]( RedisReply ) { lookAtLog(); } );
         connection_->ask(
            { "CLIENT", "TRACKING", "ON", "REDIRECT", id, "BCAST", "PREFIX", layout_.epoch() },
            [this]( RedisReply ) { lookAtLog(); }, // what changed before
            RedisConnection::Errors::areTold );
      },
      RedisConnection::Errors::areTold );
}

void RedisDatabase::lookAtLog() {
   if ( reader_ ) {
      askState( *connection_, layout_, reader_->judge() );
   }
}

void RedisDatabase::rests() {
   publisher_.begin();
   hearing_.reset();
}

} // namespace Live
