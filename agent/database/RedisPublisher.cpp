#include "agent/database/RedisPublisher.h"

namespace Live {

namespace {

// KEYS: the set of what is published. What isn't what it should be goes, too.
constexpr char const * wipePublished = "local paths = redis.pcall( 'SMEMBERS', KEYS[1] ) "
                                       "if not paths.err then for _, path in ipairs( paths ) do "
                                       "redis.call( 'DEL', KEYS[1] .. ':' .. path ) end end "
                                       "redis.call( 'DEL', KEYS[1] )";

void nothing( RedisReply ) {}

} // namespace

void RedisPublisher::begin() {
   tether_.cut();
   isUnderWay_ = isWhole_ = false;
   isFirst_ = true;
   waiting_.reset();
   published_.clear();
   written_.clear();
}

void RedisPublisher::publish( RedisConnection & connection,
                              Report const & report,
                              std::function< void( std::string ) > const & fails ) {
   merge( report );
   if ( !isUnderWay_ ) {
      write( connection, fails );
   }
}

void RedisPublisher::merge( Report const & report ) {
   waiting_ = Report{ .applied = report.applied, .fields = report.fields };
   if ( report.isWhole ) {
      published_.clear();
      isWhole_ = true;
   }
   for ( auto const & [path, attributes] : report.published ) {
      auto & change = published_[path];
      if ( attributes.empty() ) {
         change = { true, {} };
      }
      for ( auto const & [name, text] : attributes ) {
         change.attributes[name] = text;
      }
   }
}

void RedisPublisher::write( RedisConnection & connection, std::function< void( std::string ) > const & fails ) {
   isUnderWay_ = true;
   connection.ask( { "MULTI" }, nothing );
   writeAgent( connection );
   writePublished( connection );
   isFirst_ = isWhole_ = false;
   waiting_.reset();
   published_.clear();
   connection.ask( { "EXEC" }, tether_.of( [this, &connection, fails]( RedisReply reply ) {
      isUnderWay_ = false;
      for ( RedisReply const each : reply ) {
         if ( each.isError() ) {
            fails( "what the agent tells can't be written: " + std::string( each.text() ) );
            return;
         }
      }
      if ( waiting_ ) {
         write( connection, fails );
      }
   } ) );
}

void RedisPublisher::writeAgent( RedisConnection & connection ) {
   std::string const key = layout_.agent( slice_ );
   Attributes fields = waiting_->fields;
   fields["epoch"] = waiting_->applied.epoch;
   fields["applied"] = waiting_->applied.entry;
   RedisConnection::Words set{ "HSET", key };
   for ( auto const & [name, text] : fields ) {
      auto const before = written_.find( name );
      if ( before == written_.end() || before->second != text ) {
         set.insert( set.end(), { name, text } );
      }
   }
   RedisConnection::Words gone{ "HDEL", key };
   for ( auto const & [name, text] : written_ ) {
      if ( !fields.contains( name ) ) {
         gone.push_back( name );
      }
   }
   if ( isFirst_ ) {
      connection.ask( { "DEL", key }, nothing );
      connection.ask( { "SADD", layout_.agents(), slice_ }, nothing );
   }
   if ( set.size() > 2 ) {
      connection.ask( set, nothing );
   }
   if ( gone.size() > 2 ) {
      connection.ask( gone, nothing );
   }
   written_ = std::move( fields );
}

void RedisPublisher::writePublished( RedisConnection & connection ) {
   std::string const paths = layout_.published( slice_ );
   if ( isWhole_ ) {
      connection.ask( { "EVAL", wipePublished, "1", paths }, nothing );
   }
   for ( auto const & [path, change] : published_ ) {
      std::string const key = paths + ":" + path;
      if ( change.isFresh ) {
         connection.ask( { "DEL", key }, nothing );
      }
      if ( change.attributes.empty() ) {
         connection.ask( { "SREM", paths, path }, nothing );
         continue;
      }
      RedisConnection::Words set{ "HSET", key };
      for ( auto const & [name, text] : change.attributes ) {
         set.insert( set.end(), { name, text } );
      }
      connection.ask( set, nothing );
      connection.ask( { "SADD", paths, path }, nothing );
   }
}

} // namespace Live
