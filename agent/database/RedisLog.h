// The log of a state, as its readers ask for it: never an answer without what it is judged by.
//
//    askBehind( connection, layout, position, Waiting::untilThereAreSome, [&]( LogPage page ) {
//       if ( auto const gap = gapBehind( position, page.state ); gap.empty() ) { … page.transactions … }
//    } );
//
// The epoch and the first entry are asked for right behind the entries, on the same connection: the server reads them
// when it has read those. Where the first entry is not behind the place that was read on from, nothing was trimmed away
// in between.
//
// Threading: the agent's loop.
#pragma once

#include "agent/database/Database.h"
#include "agent/database/RedisConnection.h"
#include "agent/database/RedisLayout.h"

#include <optional>

namespace Live {

// What a log is like. What it doesn't hold is empty.
struct LogState {
   std::string epoch = {};
   std::optional< EntryId > first = {};
   std::string last = {}; // where it was asked for
};

struct LogPage {
   std::vector< Transaction > transactions;
   LogState state;      // when they had been read, or later
   bool isFull = false; // there may be more
};

enum class Waiting : U8 { not_, untilThereAreSome };

void askBehind( RedisConnection & connection,
                RedisLayout const & layout,
                Position const & position,
                Waiting waiting,
                std::function< void( LogPage & ) > answer );
// With its last entry.
void askState( RedisConnection & connection,
               RedisLayout const & layout,
               std::function< void( LogState const & ) > answer );
// Which life of the server answers.
void askServer( RedisConnection & connection, std::function< void( std::string const & ) > answer );

// Why what came behind a place can't be had any more; empty: it can. A state without an epoch is none: look at that
// first.
std::string gapBehind( Position const & position, LogState const & state );

} // namespace Live
