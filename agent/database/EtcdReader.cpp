#include "agent/database/EtcdReader.h"

#include "agent/database/Base64.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace Live {

namespace {

// So many transactions wait here at most, or twice what comes at a time.
constexpr std::size_t mostWaiting = 1000;

constexpr char const * compactedText = "the revisions behind the place that was read up to are compacted";

enum Watched : U64 { statesPaths = 1, itsEpoch = 2 };
constexpr unsigned watchedCount = 2;

std::string watchOf( EtcdRange const & range, U64 from, Watched number ) {
   std::string text = R"({"create_request":{"key":")" + toBase64( range.key ) + "\"";
   text += range.end.empty() ? "" : ",\"range_end\":\"" + toBase64( range.end ) + "\"";
   return text + ",\"start_revision\":" + std::to_string( from ) +
          R"(,"prev_kv":true,"progress_notify":true,"watch_id":)" + std::to_string( number ) + "}}";
}

} // namespace

U64 revisionOf( std::string_view text ) {
   U64 number = 0;
   std::from_chars( text.data(), text.data() + text.size(), number );
   return number;
}

EtcdReader::EtcdReader(
   EventLoop & loop, EtcdClient & client, EtcdLayout const & layout, Position position, U64 quiet, Answers answers )
   : StateReader( loop, std::move( position ), std::move( answers ) ), client_( client ), layout_( layout ),
     read_( std::max( revisionOf( told().entry ), quiet ) ) {
   begin();
}

// What the whole cluster holds now, before one member tells what is new.
void EtcdReader::begin() {
   client_.ask( "kv/range", EtcdRange{ .key = layout_.epoch() }.text(), tether_.of( [this]( EtcdReply const & reply ) {
      isCurrently( reply );
   } ) );
}

void EtcdReader::isCurrently( EtcdReply const & reply ) {
   auto const * const epoch = reply.only();
   if ( !epoch || epoch->value.empty() ) {
      endsWith( answers_.without, noStateText );
   } else if ( reply.cluster != told().server ) {
      endsWith( answers_.gap, "another cluster answers" );
   } else if ( reply.revision < read_ ) {
      endsWith( answers_.gap, "the database is behind what it has told: an older one was restored" );
   } else if ( epoch->value != told().epoch ) {
      endsWith( answers_.gap, anotherStateText );
   } else {
      std::string const body =
         watchOf( { .key = layout_.mark(), .end = endOf( layout_.mark() ) }, read_ + 1, statesPaths ) +
         watchOf( { .key = layout_.epoch() }, read_ + 1, itsEpoch );
      stream_ = client_.stream( "watch", body, [this]( EtcdReply const & answer ) { comes( answer ); } );
   }
}

void EtcdReader::comes( EtcdReply const & reply ) {
   if ( hasEnded() ) {
      return;
   }
   if ( reply.isCancelled ) {
      endsWith( answers_.gap,
                reply.compacted != 0
                   ? compactedText
                   : "the server has cancelled the watch" + ( reply.reason.empty() ? "" : ": " + reply.reason ) );
   } else if ( reply.isCreated ) {
      if ( ++created_ == watchedCount ) {
         answers_.begins();
      }
   } else if ( reply.watch == itsEpoch ) {
      for ( EtcdEvent const & event : reply.events ) {
         lifeIs( event );
      }
   } else if ( reply.events.empty() ) { // nothing has come up to there
      read_ = std::max( read_, reply.revision );
   } else {
      take( reply.events );
   }
}

void EtcdReader::take( std::vector< EtcdEvent > const & events ) {
   std::vector< Transaction > come;
   for ( auto at = events.begin(); at != events.end() && !hasEnded(); ) {
      std::vector< EtcdEvent const * > together;
      U64 const revision = at->now.modified;
      for ( ; at != events.end() && at->now.modified == revision; ++at ) {
         together.push_back( &*at );
      }
      // Another life comes before what it brings.
      if ( auto const mark =
              std::ranges::find( together, layout_.mark(), []( auto const * each ) { return each->now.key; } );
           mark != together.end() ) {
         lifeIs( **mark );
      }
      if ( !hasEnded() ) {
         auto transaction = transactionOf( together );
         if ( !hasEnded() ) {
            come.push_back( std::move( transaction ) );
            read_ = revision;
         }
      }
   }
   if ( !isWanted() && waiting() + come.size() > mostWaiting && !isResting_ ) {
      isResting_ = true;
      stream_->rests( true );
   }
   waits( std::move( come ) );
}

Transaction EtcdReader::transactionOf( std::vector< EtcdEvent const * > const & events ) {
   std::string const entry = std::to_string( events.front()->now.modified );
   Transaction transaction{ .position = { told().server, told().epoch, entry }, .changes = {} };
   Paths before;
   Paths after;
   for ( auto const * const event : events ) {
      std::string const path( layout_.pathOf( event->now.key ) );
      if ( path.empty() ) {
         continue;
      }
      bool const hadNone = event->isDelete ? false : event->now.version == 1;
      if ( !event->before && !hadNone ) {
         endsWith( answers_.gap, compactedText ); // what it was before is
         return transaction;
      }
      try {
         if ( !event->isDelete ) {
            after[path] = attributesOf( event->now.value );
         }
      } catch ( Rex::ValueError const & error ) {
         transaction.unreadable.push_back( path + ": " + entry + ": " + error.what() );
         continue; // and what he had stays with who follows
      }
      try {
         if ( event->before ) {
            before[path] = attributesOf( event->before->value );
         }
      } catch ( Rex::ValueError const & ) { // told when it was written; what he has now is older
         endsWith( answers_.gap, "a value that could not be read was mended" );
         return transaction;
      }
   }
   std::map< std::string, std::string > wrong;
   transaction.changes = eventsBetween( before, after, wrong );
   for ( auto const & [place, text] : wrong ) {
      transaction.unreadable.push_back( place + ": " + text );
   }
   return transaction;
}

void EtcdReader::lifeIs( EtcdEvent const & event ) {
   if ( event.isDelete || event.now.value.empty() ) {
      endsWith( answers_.without, noStateText );
   } else if ( event.now.value != told().epoch ) {
      endsWith( answers_.gap, anotherStateText );
   }
}

void EtcdReader::readsOn() {
   if ( std::exchange( isResting_, false ) ) {
      stream_->rests( false );
   }
}

} // namespace Live
