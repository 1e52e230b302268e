#include "agent/database/RedisLog.h"

#include "agent/database/LogEntry.h"

namespace Live {

namespace {

constexpr std::size_t pageSize = 1000;
std::string const pageSizeText = std::to_string( pageSize );

std::optional< EntryId > idOf( RedisReply entries ) {
   return entries.size() == 0 ? std::nullopt : std::optional( EntryId::of( entries[0][0].text() ) );
}

} // namespace

void askBehind( RedisConnection & connection,
                RedisLayout const & layout,
                Position const & position,
                Waiting waiting,
                std::function< void( LogPage & ) > answer ) {
   auto const page = std::make_shared< LogPage >();
   std::string const log = layout.log();
   std::string const from = position.entry.empty() ? "0-0" : position.entry;
   bool const waits = waiting == Waiting::untilThereAreSome;
   auto const patience = waits ? RedisConnection::Patience::endless : RedisConnection::Patience::usual;
   auto const errors = RedisConnection::Errors::endConnection;
   RedisConnection::Words words{ "XREAD", "COUNT", pageSizeText };
   if ( waits ) {
      words.insert( words.end(), { "BLOCK", "0" } );
   }
   words.insert( words.end(), { "STREAMS", log, from } );
   connection.ask(
      words,
      [page, life = Position{ position.server, position.epoch, {} }]( RedisReply reply ) {
         auto const entries = reply[0][1];
         page->transactions.reserve( entries.size() );
         for ( RedisReply const entry : entries ) {
            page->transactions.push_back( transactionOf( entry, life ) );
         }
         page->isFull = entries.size() >= pageSize;
      },
      errors,
      patience );
   connection.ask(
      { "GET", layout.epoch() }, [page]( RedisReply reply ) { page->state.epoch = reply.text(); }, errors, patience );
   connection.ask(
      { "XRANGE", log, "-", "+", "COUNT", "1" },
      [page, does = std::move( answer )]( RedisReply reply ) {
         page->state.first = idOf( reply );
         does( *page );
      },
      errors,
      patience );
}

void askState( RedisConnection & connection,
               RedisLayout const & layout,
               std::function< void( LogState const & ) > answer ) {
   auto const state = std::make_shared< LogState >();
   std::string const log = layout.log();
   connection.ask( { "GET", layout.epoch() }, [state]( RedisReply reply ) { state->epoch = reply.text(); } );
   connection.ask( { "XRANGE", log, "-", "+", "COUNT", "1" },
                   [state]( RedisReply reply ) { state->first = idOf( reply ); } );
   connection.ask( { "XREVRANGE", log, "+", "-", "COUNT", "1" },
                   [state, does = std::move( answer )]( RedisReply reply ) {
                      state->last = reply[0][0].text();
                      does( *state );
                   } );
}

void askServer( RedisConnection & connection, std::function< void( std::string const & ) > answer ) {
   connection.ask( { "INFO", "server" }, [does = std::move( answer )]( RedisReply reply ) {
      constexpr std::string_view name = "run_id:";
      auto const at = reply.text().find( name );
      auto const rest = at == std::string_view::npos ? std::string_view() : reply.text().substr( at + name.size() );
      does( std::string( rest.substr( 0, rest.find_first_of( "\r\n" ) ) ) );
   } );
}

std::string gapBehind( Position const & position, LogState const & state ) {
   if ( state.epoch != position.epoch ) {
      return anotherStateText;
   }
   auto const place = EntryId::of( position.entry );
   if ( !state.first ) {
      return position.entry.empty() ? "" : "the log of the state is gone";
   }
   if ( *state.first > place ) {
      return "the log was trimmed past the place that was read up to";
   }
   if ( !state.last.empty() && EntryId::of( state.last ) < place ) {
      return "the log ends before the place that was read up to";
   }
   return "";
}

} // namespace Live
