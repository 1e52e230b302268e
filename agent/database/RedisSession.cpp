#include "agent/database/RedisSession.h"

#include "inspection/files/InputError.h"

#include <chrono>

namespace Live {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds patienceWithAnswers{ 10 };

} // namespace

RedisSession::RedisSession( RedisAddress const & address )
   : connection_( loop_, address, "l3sm-state", [this]( std::string const & reason ) { lost_ = reason; } ) {}

void RedisSession::wait() {
   // A connection that failed at once has nothing left to ask either.
   until( [this] { return connection_.hasAnswered() && connection_.asked() == 0; } );
}

void RedisSession::until( std::function< bool() > const & holds ) {
   auto heard = Clock::now();
   while ( !lost_ && !holds() ) {
      if ( loop_.turn( 1 ) ) {
         heard = Clock::now();
      } else if ( Clock::now() - heard > patienceWithAnswers ) {
         refuse( "no answer for " + std::to_string( patienceWithAnswers.count() ) + " s" );
      }
   }
   if ( lost_ ) {
      bool const wasThere = connection_.hasAnswered();
      throw Inspection::InputError(
         *lost_ + ( wasThere ? "" : "; --database URL or L3SM_DATABASE says where the database is" ) );
   }
}

Snapshot RedisSession::snapshot( RedisLayout const & layout,
                                 std::function< bool( std::string const & path ) > wanted ) {
   std::optional< Snapshot > found;
   std::optional< std::string > failed;
   RedisSnapshot const reading( connection_,
                                layout,
                                { .is = [&]( Snapshot & snapshot ) { found = std::move( snapshot ); },
                                  .without = [&]( std::string const & reason ) { failed = reason; },
                                  .fails = [&]( std::string const & reason ) { failed = reason; } },
                                std::move( wanted ) );
   until( [&] { return found || failed; } );
   if ( failed ) {
      refuse( *failed );
   }
   return std::move( *found );
}

Position RedisSession::place( RedisLayout const & layout ) {
   Position place;
   askServer( connection_, [&]( std::string const & id ) { place.server = id; } );
   askState( connection_, layout, [&]( LogState const & state ) {
      place.epoch = state.epoch;
      place.entry = state.last;
   } );
   wait();
   if ( place.epoch.empty() ) {
      refuse( noStateText );
   }
   return place;
}

void RedisSession::refuse( std::string const & what ) const {
   throw Inspection::InputError( connection_.address().name(), what );
}

} // namespace Live
