#include "agent/database/RedisWatch.h"

#include "inspection/files/InputError.h"

namespace Live {

namespace {

// How often to look whether the state is still there while nothing is written.
constexpr Rex::Seconds pause = 2;

} // namespace

RedisWatch::RedisWatch( RedisSession & session, RedisLayout const & layout, Position const & from, Answers answers )
   : session_( session ), layout_( layout ), answers_( std::move( answers ) ) {
   begin( from );
}

void RedisWatch::begin( Position const & from ) {
   reader_.emplace( session_.loop(),
                    session_.connection().address(),
                    "l3sm-state",
                    layout_,
                    from,
                    RedisReader::Answers{ .begins = [] {},
                                          .are =
                                             [this]( std::vector< Transaction > const & all ) {
                                                for ( Transaction const & each : all ) {
                                                   answers_.is( each );
                                                }
                                                reader_->more( all.back().position );
                                             },
                                          .gap = [this]( std::string const & reason ) { gap_ = reason; },
                                          .without = [this]( std::string const & reason ) { without_ = reason; } },
                    [this]( std::string const & reason ) { lost_ = reason; } );
}

void RedisWatch::turn() {
   if ( !session_.loop().turn( pause ) ) {
      askState( session_.connection(), layout_, reader_->judge() );
      session_.wait();
   }
   if ( lost_ ) {
      throw Inspection::InputError( *lost_ );
   }
   if ( without_ ) {
      session_.refuse( *without_ );
   }
   if ( gap_ ) {
      begin( session_.place( layout_ ) ); // before it is told: whatever is written behind that is heard
      answers_.begins( *std::exchange( gap_, std::nullopt ) );
   }
}

} // namespace Live
