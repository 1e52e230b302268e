// The log of a Redis, watched. Threading: the session's.
#pragma once

#include "agent/database/RedisReader.h"
#include "agent/database/RedisSession.h"
#include "agent/database/StateStore.h"

namespace Live {

class RedisWatch final : public StateWatch {
 public:
   RedisWatch( RedisSession & session, RedisLayout const & layout, Position const & from, Answers answers );
   void turn() override;

 private:
   void begin( Position const & from );

   RedisSession & session_;
   RedisLayout layout_;
   Answers answers_;
   std::optional< RedisReader > reader_;
   std::optional< std::string > lost_;
   std::optional< std::string > without_;
   std::optional< std::string > gap_;
};

} // namespace Live
