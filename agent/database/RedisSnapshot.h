// The whole state at one moment, read while others write: between two places in the log, what lies between them applied
// to what was read.
//
//    RedisSnapshot snapshot( connection, layout, { .is = …, .without = …, .fails = … } );
//
// It goes on as long as it lives and ends with one of the three, or with the connection.
//
// Threading: the agent's loop.
#pragma once

#include "agent/database/RedisLog.h"
#include "agent/database/StateAnswers.h"
#include "agent/database/Tether.h"

namespace Live {

class RedisSnapshot {
 public:
   using Answers = SnapshotAnswers;

   // Only the wanted paths are read, where somebody wants some; what lies between may tell of others.
   RedisSnapshot( RedisConnection & connection,
                  RedisLayout const & layout,
                  Answers answers,
                  std::function< bool( std::string const & path ) > wanted = {} );

 private:
   void begin();
   void pathsAre( RedisReply names );
   void readMore();
   void pathIs( std::string const & path, RedisReply fields );
   void applyRest();
   void apply( Transaction const & transaction );
   void again();

   RedisConnection & connection_;
   RedisLayout layout_;
   Answers answers_;
   std::function< bool( std::string const & path ) > wanted_;
   unsigned tries_ = 0;
   Snapshot snapshot_;
   std::vector< std::string > names_;
   std::size_t asked_ = 0; // of the names
   std::size_t open_ = 0;  // asked, not answered
   Tether tether_;
};

} // namespace Live
