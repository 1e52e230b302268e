#include "agent/database/EtcdSnapshot.h"

namespace Live {

namespace {

// As often as the revisions that it is read at may be compacted meanwhile.
constexpr unsigned mostTries = 8;

} // namespace

EtcdSnapshot::EtcdSnapshot( EtcdClient & client, EtcdLayout const & layout, Answers answers, Parts parts )
   : client_( client ), layout_( layout ), answers_( std::move( answers ) ), parts_( std::move( parts ) ),
     isAll_( parts_.empty() ) {
   if ( isAll_ ) {
      parts_ = { { .key = layout_.mark(), .end = endOf( layout_.mark() ) } };
   }
   begin();
}

EtcdSnapshot::Parts EtcdSnapshot::partsAt( EtcdLayout const & layout, std::string const & path ) {
   std::string const below = layout.key( path ) + "/";
   return { { .key = layout.key( path ) }, { .key = below, .end = endOf( below ) } };
}

EtcdSnapshot::Parts EtcdSnapshot::partsAbout( EtcdLayout const & layout, std::string const & path ) {
   Parts parts = partsAt( layout, path );
   for ( auto slash = path.find( '/' ); slash != std::string::npos; slash = path.find( '/', slash + 1 ) ) {
      parts.push_back( { .key = layout.key( path.substr( 0, slash ) ) } );
   }
   return parts;
}

void EtcdSnapshot::begin() {
   snapshot_ = {};
   revision_ = 0;
   part_ = 0;
   from_ = parts_.front().key;
   next();
}

// The epoch comes with the first page, of the same moment.
void EtcdSnapshot::next() {
   EtcdTransaction transaction;
   if ( revision_ == 0 ) {
      transaction.range( { .key = layout_.epoch() } );
   }
   transaction.range( { .key = from_, .end = parts_[part_].end, .limit = snapshotPage, .revision = revision_ } );
   client_.ask( "kv/txn",
                transaction.text(),
                tether_.of( [this]( EtcdReply const & reply ) { take( reply ); } ),
                EtcdClient::Errors::areTold );
}

void EtcdSnapshot::take( EtcdReply const & reply ) {
   bool const isCompacted = reply.error.find( "has been compacted" ) != std::string::npos;
   if ( isCompacted && ++tries_ < mostTries ) {
      begin();
      return;
   }
   if ( !reply.error.empty() || reply.ranges.empty() ) {
      answers_.fails( reply.error.empty() ? "it answers without what was asked for" : reply.error );
      return;
   }
   if ( revision_ == 0 ) {
      auto const * const epoch = reply.only();
      if ( !epoch || epoch->value.empty() ) {
         answers_.without( noStateText );
         return;
      }
      revision_ = reply.revision;
      snapshot_.position = { reply.cluster, epoch->value, std::to_string( reply.revision ) };
   }
   if ( reply.cluster != snapshot_.position.server ) {
      answers_.fails( "another cluster answers" );
      return;
   }
   for ( EtcdKey const & each : reply.ranges.back() ) {
      std::string const path( layout_.pathOf( each.key ) );
      if ( path.empty() ) {
         continue; // the mark
      }
      try {
         snapshot_.paths[path] = attributesOf( each.value );
      } catch ( Rex::ValueError const & error ) {
         snapshot_.unreadable[path] = each.key + ": " + error.what();
      }
   }
   if ( reply.hasMore ) {
      from_ = reply.ranges.back().back().key + std::string( 1, '\0' );
      next();
   } else {
      goOn();
   }
}

void EtcdSnapshot::goOn() {
   if ( ++part_ < parts_.size() ) {
      from_ = parts_[part_].key;
      next();
   } else if ( isAll_ && snapshot_.paths.empty() &&
               snapshot_.unreadable.empty() ) { // which never means: delete everything
      answers_.without( lostStateText );
   } else {
      answers_.is( snapshot_ );
   }
}

} // namespace Live
