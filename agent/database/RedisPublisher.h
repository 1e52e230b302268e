// What an agent tells of itself, written into the database: one MULTI a report. While one is under way the next ones
// become one, so a slow server costs no memory.
//
// The first on a connection is to be whole (Report::isWhole): what another process has left there goes.
//
// Threading: the agent's loop.
#pragma once

#include "agent/database/Database.h"
#include "agent/database/RedisConnection.h"
#include "agent/database/RedisLayout.h"
#include "agent/database/Tether.h"

#include <optional>

namespace Live {

class RedisPublisher {
 public:
   RedisPublisher( RedisLayout const & layout, std::string slice ) : layout_( layout ), slice_( std::move( slice ) ) {}

   // `fails`: the connection is of no use any more.
   void
   publish( RedisConnection & connection, Report const & report, std::function< void( std::string ) > const & fails );
   // The connection is another one.
   void begin();

 private:
   // Of a path that is published.
   struct Change {
      bool isFresh = false; // nothing of what was there before stays
      Attributes attributes = {};
   };

   void merge( Report const & report );
   void write( RedisConnection & connection, std::function< void( std::string ) > const & fails );
   void writeAgent( RedisConnection & connection );
   void writePublished( RedisConnection & connection );

   RedisLayout layout_;
   std::string slice_;
   bool isUnderWay_ = false;
   bool isFirst_ = true;
   std::optional< Report > waiting_; // all but what is published
   std::map< std::string, Change > published_;
   bool isWhole_ = false;
   Attributes written_; // the fields as they are there
   Tether tether_;
};

} // namespace Live
