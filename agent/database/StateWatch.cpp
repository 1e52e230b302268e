#include "agent/database/StateWatch.h"

#include "agent/database/AgentsAwaited.h"
#include "inspection/files/InputError.h"

namespace Live {

namespace {

// How often to look whether the state is still there while nothing is written.
constexpr Rex::Seconds pause = 2;

} // namespace

StateWatch::StateWatch( RedisSession & session,
                        RedisLayout const & layout,
                        std::function< void( Transaction const & ) > is,
                        std::function< void( std::string const & ) > begins )
   : session_( session ), layout_( layout ), is_( std::move( is ) ), begins_( std::move( begins ) ) {
   begin();
}

void StateWatch::begin() {
   reader_.emplace( session_.loop(),
                    session_.connection().address(),
                    "l3sm-state",
                    layout_,
                    placeNow( session_, layout_ ),
                    RedisReader::Answers{ .begins = [] {},
                                          .are =
                                             [this]( std::vector< Transaction > const & all ) {
                                                for ( Transaction const & each : all ) {
                                                   is_( each );
                                                }
                                                reader_->more( all.back().position );
                                             },
                                          .gap = [this]( std::string const & reason ) { gap_ = reason; },
                                          .without = [this]( std::string const & reason ) { failed_ = reason; },
                                          .lost = [this]( std::string const & reason ) { failed_ = reason; } } );
}

void StateWatch::turn() {
   if ( !session_.loop().turn( pause ) ) {
      askState( session_.connection(), layout_, reader_->judge() );
      session_.wait();
   }
   if ( failed_ ) {
      throw Inspection::InputError( *failed_ );
   }
   if ( gap_ ) {
      begins_( *std::exchange( gap_, std::nullopt ) );
      begin();
   }
}

} // namespace Live
