// A new life of a state: all of the old one goes, in one MULTI.
#include "agent/database/RedisStore.h"

namespace Live {

namespace {

// Of keys that one command names; and of commands that wait to be sent.
constexpr std::size_t mostAtOnce = 512;

// KEYS: the set of paths, the log. ARGV: what the keys of hashes begin with. What isn't what it should be goes, too;
// the ids of a log go on where they were.
constexpr char const * wipeScript =
   "local paths = redis.pcall( 'SMEMBERS', KEYS[1] ) "
   "if not paths.err then for _, path in ipairs( paths ) do redis.call( 'DEL', ARGV[1] .. path ) end end "
   "redis.call( 'DEL', KEYS[1] ) "
   "local kind = redis.call( 'TYPE', KEYS[2] ).ok "
   "if kind ~= 'stream' and kind ~= 'none' then redis.call( 'DEL', KEYS[2] ) end";

// Gathers words into commands of a bearable length.
class Gathering {
 public:
   Gathering( RedisSession & session, RedisConnection::Words begin )
      : session_( session ), begin_( std::move( begin ) ) {}
   Gathering( Gathering const & ) = delete;
   Gathering & operator=( Gathering const & ) = delete;

   void add( std::string word ) {
      words_.push_back( std::move( word ) );
      if ( words_.size() == mostAtOnce ) {
         send();
      }
   }
   void send() {
      auto all = begin_;
      all.insert( all.end(), words_.begin(), words_.end() );
      if ( !words_.empty() ) {
         session_.ask( all );
      }
      words_.clear();
   }

 private:
   RedisSession & session_;
   RedisConnection::Words begin_;
   std::vector< std::string > words_;
};

} // namespace

std::string RedisStore::load( Paths const & paths ) {
   std::string const names = layout_.paths();
   std::string const epoch = newEpoch();
   std::string const prefix = layout_.hash( "" );
   bool isDone = false;
   std::string failed;
   session_.ask( { "MULTI" } );
   session_.ask( { "EVAL", wipeScript, "2", names, layout_.log(), prefix } );
   Gathering gone( session_, { "DEL" } ); // what isn't among the paths isn't there, whatever lies there
   Gathering there( session_, { "SADD", names } );
   for ( auto const & [path, attributes] : paths ) {
      gone.add( layout_.hash( path ) );
      there.add( path );
   }
   gone.send();
   there.send();
   std::size_t asked = 0;
   for ( auto const & [path, attributes] : paths ) {
      std::string const key = layout_.hash( path );
      RedisConnection::Words words{ "HSET", key };
      for ( auto const & [name, text] : attributes ) {
         words.insert( words.end(), { name, text } );
      }
      if ( !attributes.empty() ) {
         session_.ask( words );
      }
      if ( ++asked % mostAtOnce == 0 ) {
         session_.loop().turn(); // what the server takes needn't lie here
      }
   }
   session_.ask( { "SET", layout_.epoch(), epoch } );
   askLog( "[]", epoch, "=", "1" );
   session_.ask( { "EXEC" }, [&]( RedisReply reply ) {
      isDone = reply.isList();
      for ( RedisReply const each : reply ) {
         failed = each.isError() ? std::string( each.text() ) : failed;
      }
   } );
   session_.wait();
   if ( !isDone || !failed.empty() ) {
      refuse( "the state can't be loaded: " + failed );
   }
   return epoch;
}

} // namespace Live
