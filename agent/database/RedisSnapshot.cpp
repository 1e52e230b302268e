#include "agent/database/RedisSnapshot.h"

#include <algorithm>

namespace Live {

namespace {

// What is under way at a time: enough that nobody waits, little enough that nobody's memory fills.
constexpr std::size_t mostOpen = 1024;
// A state that is loaded anew, or a log that is trimmed, as often as that while it is read.
constexpr unsigned mostTries = 8;

} // namespace

RedisSnapshot::RedisSnapshot( RedisConnection & connection,
                              RedisLayout const & layout,
                              Answers answers,
                              std::function< bool( std::string const & path ) > wanted )
   : connection_( connection ), layout_( layout ), answers_( std::move( answers ) ), wanted_( std::move( wanted ) ) {
   begin();
}

void RedisSnapshot::begin() {
   snapshot_ = {};
   askServer( connection_, tether_.of( [this]( std::string const & id ) { snapshot_.position.server = id; } ) );
   askState( connection_, layout_, tether_.of( [this]( LogState const & state ) {
      snapshot_.position.epoch = state.epoch;
      snapshot_.position.entry = state.last;
   } ) );
   connection_.ask( { "SMEMBERS", layout_.paths() }, tether_.of( [this]( RedisReply reply ) { pathsAre( reply ); } ) );
}

void RedisSnapshot::pathsAre( RedisReply names ) {
   if ( snapshot_.position.epoch.empty() ) {
      answers_.without( noStateText );
      return;
   }
   names_.clear();
   for ( RedisReply const name : names ) {
      names_.emplace_back( name.text() );
   }
   if ( names_.empty() ) { // which never means: delete everything
      answers_.without( lostStateText );
      return;
   }
   if ( wanted_ ) {
      std::erase_if( names_, [this]( std::string const & path ) { return !wanted_( path ); } );
   }
   std::ranges::sort( names_ );
   asked_ = open_ = 0;
   names_.empty() ? applyRest() : readMore();
}

void RedisSnapshot::readMore() {
   for ( ; asked_ < names_.size() && open_ < mostOpen; ++asked_, ++open_ ) {
      connection_.ask( { "HGETALL", layout_.hash( names_[asked_] ) },
                       tether_.of( [this, at = asked_]( RedisReply fields ) { pathIs( names_[at], fields ); } ),
                       RedisConnection::Errors::areTold );
   }
}

void RedisSnapshot::pathIs( std::string const & path, RedisReply fields ) {
   if ( fields.isError() && !fields.text().starts_with( "WRONGTYPE" ) ) {
      answers_.fails( std::string( fields.text() ) );
      return;
   }
   if ( fields.isError() ) {
      snapshot_.unreadable[path] = layout_.hash( path ) + " is no hash: " + std::string( fields.text() );
   } else {
      snapshot_.paths.emplace_hint( snapshot_.paths.end(), path, attributesOf( fields ) );
   }
   --open_;
   if ( asked_ == names_.size() && open_ == 0 ) {
      applyRest();
   } else if ( open_ <= mostOpen / 2 ) {
      readMore();
   }
}

void RedisSnapshot::applyRest() {
   askBehind( connection_, layout_, snapshot_.position, Waiting::not_, tether_.of( [this]( LogPage const & page ) {
      if ( page.state.epoch.empty() ) {
         answers_.without( noStateText );
      } else if ( !gapBehind( snapshot_.position, page.state ).empty() ) {
         again();
      } else {
         std::ranges::for_each( page.transactions, [this]( Transaction const & each ) { apply( each ); } );
         page.isFull ? applyRest() : answers_.is( snapshot_ );
      }
   } ) );
}

// What can't be applied can't have been written by who checks before: it is told, and changes nothing.
void RedisSnapshot::apply( Transaction const & transaction ) {
   for ( auto const & event : transaction.changes ) {
      try {
         for ( PathChange const & change : pathChangesOf( event, PathLookup( snapshot_.paths ) ) ) {
            Live::apply( change, snapshot_.paths );
         }
      } catch ( Rex::ValueError const & error ) {
         snapshot_.unreadable[transaction.position.entry + " " + event.text()] = error.what();
      }
   }
   for ( auto const & text : transaction.unreadable ) {
      snapshot_.unreadable[transaction.position.entry] = text;
   }
   snapshot_.position = transaction.position;
}

void RedisSnapshot::again() {
   if ( ++tries_ == mostTries ) {
      answers_.fails( "the state changes faster than it can be read: its log was trimmed, or it was loaded anew, " +
                      std::to_string( mostTries ) + " times meanwhile" );
      return;
   }
   begin();
}

} // namespace Live
