#include "agent/database/EtcdSession.h"

#include "inspection/files/InputError.h"

#include <algorithm>
#include <array>

namespace Live {

namespace {

constexpr std::chrono::seconds patienceWithCluster{ 10 };
constexpr Rex::Seconds pauseBetweenTries = 0.1;

// What says nothing of what was asked, but of the cluster's state: somebody else, or somebody later, may do it.
bool isPassing( std::string const & error ) {
   constexpr std::array signs{ "no leader",
                               "timed out",
                               "leader changed",
                               "not leader",
                               "server stopped",
                               "too many requests",
                               "unhealthy cluster",
                               "transport is closing",
                               "not capable",
                               "deadline exceeded",
                               "connection error",
                               "Unavailable" };
   return std::ranges::any_of( signs, [&]( char const * sign ) { return error.find( sign ) != std::string::npos; } );
}

} // namespace

void EtcdSession::refuse( std::string const & what ) const {
   throw Inspection::InputError( address_.name(), what );
}

EtcdClient & EtcdSession::client() {
   gone_.reset();
   if ( !client_ ) {
      client_ = std::make_unique< EtcdClient >(
         loop_, address_, member_, [this]( std::string const & reason ) { lost( reason ); } );
   }
   return *client_;
}

void EtcdSession::lost( std::string const & reason ) {
   reason_ = reason;
   gone_ = std::move( client_ );
   ++member_;
   ++failures_;
}

void EtcdSession::next( Clock::time_point since ) {
   gone_.reset(); // nobody is in one of its calls any more
   bool const wereAllAsked = failures_ >= address_.members.size();
   if ( !hasAnswered_ && wereAllAsked ) {
      refuse( reason_ + "; --database URL or L3SM_DATABASE says where the database is" );
   }
   if ( Clock::now() - since > patienceWithCluster ) {
      refuse( reason_ );
   }
   if ( wereAllAsked ) {
      auto const come = Clock::now() + std::chrono::duration< double >( pauseBetweenTries );
      while ( Clock::now() < come ) {
         loop_.turn( pauseBetweenTries );
      }
   }
}

EtcdReply EtcdSession::ask( std::string const & what, std::string const & body ) {
   auto const begun = Clock::now();
   for ( ;; ) {
      auto reply = tell( what, body );
      if ( reply ) {
         return std::move( *reply );
      }
      next( begun );
   }
}

std::optional< EtcdReply > EtcdSession::tell( std::string const & what, std::string const & body ) {
   std::optional< EtcdReply > answer;
   client().ask(
      what, body, [&]( EtcdReply const & reply ) { answer = reply; }, EtcdClient::Errors::areTold );
   if ( !until( [&] { return answer.has_value(); } ) ) {
      gone_.reset(); // which knows of what is here
      return std::nullopt;
   }
   hasAnswered_ = true;
   if ( answer->error.empty() ) {
      failures_ = 0;
      return answer;
   }
   if ( !isPassing( answer->error ) ) {
      refuse( answer->error );
   }
   lost( answer->error );
   return std::nullopt;
}

Snapshot EtcdSession::snapshot( EtcdLayout const & layout, EtcdSnapshot::Parts const & parts ) {
   auto const begun = Clock::now();
   for ( ;; ) {
      std::optional< Snapshot > found;
      std::optional< std::string > without;
      std::optional< std::string > failed;
      EtcdSnapshot const reading( client(),
                                  layout,
                                  { .is = [&]( Snapshot & snapshot ) { found = std::move( snapshot ); },
                                    .without = [&]( std::string const & reason ) { without = reason; },
                                    .fails = [&]( std::string const & reason ) { failed = reason; } },
                                  parts );
      bool const isThere = until( [&] { return found || without || failed; } );
      hasAnswered_ = hasAnswered_ || isThere;
      if ( without ) {
         refuse( *without );
      }
      if ( failed && !isPassing( *failed ) ) {
         refuse( *failed );
      }
      if ( found ) {
         failures_ = 0;
         return std::move( *found );
      }
      if ( failed ) {
         lost( *failed );
      }
      next( begun );
   }
}

} // namespace Live
