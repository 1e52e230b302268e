#include "agent/database/EtcdWatch.h"

#include "inspection/files/InputError.h"

namespace Live {

namespace {

constexpr Rex::Seconds pauseBeforeAnother = 2;
// As often as all members may be lost in a row, half a second apart.
constexpr std::size_t mostRounds = 20;
constexpr Rex::Seconds betweenRounds = 0.5;

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
                           .without = [this]( std::string const & reason ) { failed_ = reason; } } );
}

void EtcdWatch::turn() {
   session_.loop().turn( pauseBeforeAnother );
   if ( failed_ ) {
      session_.refuse( *failed_ );
   }
   if ( gap_ ) {
      answers_.begins( *std::exchange( gap_, std::nullopt ) );
      read_ = session_.snapshot( layout_, {} ).position;
      begin();
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
