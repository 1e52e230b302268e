#include "agent/database/EtcdWatch.h"

#include "inspection/files/InputError.h"

namespace Live {

namespace {

using Clock = std::chrono::steady_clock;

constexpr Rex::Seconds pauseBeforeAnother = 2;
// As often as all members may be lost in a row, half a second apart.
constexpr std::size_t mostRounds = 20;
constexpr Rex::Seconds betweenRounds = 0.5;
// A state that is loaded is written in many transactions: so long behind the one that ends the state before it.
constexpr std::chrono::seconds longestLoad{ 10 };
constexpr Rex::Seconds betweenLooks = 0.1;

} // namespace

EtcdWatch::EtcdWatch( EtcdSession & session, EtcdLayout const & layout, Position from, Answers answers )
   : session_( session ), layout_( layout ), read_( std::move( from ) ), answers_( std::move( answers ) ) {
   begin();
}

void EtcdWatch::begin() {
   reader_.reset();
   client_ = std::make_unique< EtcdClient >(
      session_.loop(), session_.address(), member_, [this]( std::string const & reason ) { lost_ = reason; } );
   reader_ = std::make_unique< EtcdReader >(
      session_.loop(),
      *client_,
      layout_,
      read_,
      0,
      EtcdReader::Answers{ .begins = [this] { failures_ = 0; },
                           .are =
                              [this]( std::vector< Transaction > const & all ) {
                                 for ( Transaction const & each : all ) {
                                    answers_.is( each );
                                 }
                                 read_ = all.back().position;
                                 reader_->more( read_ );
                              },
                           .gap = [this]( std::string const & reason ) { gap_ = reason; },
                           .without = [this]( std::string const & ) { goneSince_ = Clock::now(); } } );
}

void EtcdWatch::lookForNext() {
   if ( session_.ask( "kv/range", EtcdRange{ .key = layout_.epoch() }.text() ).only() ) {
      goneSince_.reset();
      gap_ = anotherStateText;
   } else if ( Clock::now() - *goneSince_ > longestLoad ) {
      session_.refuse( noStateText );
   }
}

void EtcdWatch::turn() {
   session_.loop().turn( goneSince_ ? betweenLooks : pauseBeforeAnother );
   if ( goneSince_ ) {
      lookForNext();
   }
   if ( gap_ ) {
      read_ = session_.snapshot( layout_, {} ).position; // before it is told: whatever is written behind that is heard
      begin();
      answers_.begins( *std::exchange( gap_, std::nullopt ) );
   }
   if ( lost_ ) {
      ++member_;
      if ( ++failures_ % session_.address().members.size() == 0 ) {
         session_.loop().turn( betweenRounds );
      }
      if ( failures_ > mostRounds * session_.address().members.size() ) {
         session_.refuse( *lost_ );
      }
      lost_.reset();
      begin();
   }
}

} // namespace Live
