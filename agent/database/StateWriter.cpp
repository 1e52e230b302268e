#include "agent/database/StateWriter.h"

#include "agent/database/LogEntry.h"
#include "inspection/files/InputError.h"

#include <algorithm>

namespace Live {

namespace {

using Inspection::Event;
using Inspection::InputError;
using Rex::ValueError;

// As often as somebody else may be quicker.
constexpr unsigned mostTries = 1000;
constexpr char const * longestLog = "100000";

std::string saidOf( ValueError const & error ) {
   std::string all;
   for ( auto const & fault : error.faults() ) {
      bool const isPlaced = fault.place.starts_with( "/value/" );
      all += ( all.empty() ? "" : "; " ) + ( isPlaced ? fault.place + ": " : "" ) + fault.text;
   }
   return all;
}

} // namespace

std::string StateWriter::write( Event const & event ) {
   for ( unsigned tries = 0; tries < mostTries; ++tries ) {
      auto const epoch = watched().epoch;
      StateModel model( pathsAbout( event.path ) );
      StateChange const change = [&] {
         try {
            return model.change( event );
         } catch ( ValueError const & error ) {
            throw InputError( event.text(), saidOf( error ) );
         }
      }();
      if ( auto entry = executed( change, event, epoch, nullptr ); !entry.empty() ) {
         return entry;
      }
   }
   session_.refuse( "others write without a pause; try again" );
}

void StateWriter::writeEach( std::vector< Event > const & events, std::string const & file ) {
   auto snapshot = this->snapshot();
   std::vector< std::string > wrong;
   auto const placeIn = [&]( Event const & event, ValueError const & error ) {
      return file + ": event " + std::to_string( event.number ) + ", " + event.text() + ": " + saidOf( error );
   };
   StateModel rehearsal( snapshot.paths );
   for ( Event const & event : events ) {
      try {
         rehearsal.change( event );
      } catch ( ValueError const & error ) {
         wrong.push_back( placeIn( event, error ) );
      }
   }
   if ( !wrong.empty() ) {
      throw InputError( wrong );
   }
   std::optional< StateModel > model( std::in_place, std::move( snapshot.paths ) );
   Position position = snapshot.position;
   auto now = watched();
   for ( std::size_t at = 0; at < events.size(); ++at ) {
      Event const & event = events[at];
      for ( unsigned tries = 0;; ++tries ) {
         if ( !model || now.epoch != position.epoch || now.last != position.entry ) {
            bringUpToDate( model, position );
         }
         StateChange const change = [&] {
            try {
               return model->change( event );
            } catch ( ValueError const & error ) {
               throw InputError( placeIn( event, error ) + "; somebody else has changed the state meanwhile, " +
                                 std::to_string( at ) + " of " + std::to_string( events.size() ) +
                                 " events are written" );
            }
         }();
         auto const entry = executed( change, event, position.epoch, &now );
         if ( !entry.empty() ) {
            position.entry = entry;
            break;
         }
         model.reset(); // what the event would have done isn't so
         if ( tries == mostTries ) {
            session_.refuse( "others write without a pause; " + std::to_string( at ) + " of " +
                             std::to_string( events.size() ) + " events are written" );
         }
      }
   }
}

// Others have written since.
void StateWriter::bringUpToDate( std::optional< StateModel > & model, Position & position ) {
   bool isUpToDate = false;
   while ( model && !isUpToDate ) {
      askBehind( session_.connection(), layout_, position, Waiting::not_, [&]( LogPage & page ) {
         isUpToDate = !page.isFull;
         try {
            if ( !gapBehind( position, page.state ).empty() ) {
               model.reset();
               return;
            }
            for ( Transaction const & transaction : page.transactions ) {
               for ( Event const & event : transaction.changes ) {
                  model->change( event );
               }
               position = transaction.position;
            }
         } catch ( ValueError const & ) { // who wrote it didn't look
            model.reset();
         }
      } );
      session_.wait();
   }
   if ( !model ) {
      auto snapshot = this->snapshot();
      model.emplace( std::move( snapshot.paths ) );
      position = snapshot.position;
   }
}

void StateWriter::watch( Watched & into ) {
   session_.ask( { "WATCH", layout_.epoch(), layout_.paths(), layout_.log() } );
   session_.ask( { "GET", layout_.epoch() }, [&into]( RedisReply reply ) { into.epoch = reply.text(); } );
   session_.ask( { "XREVRANGE", layout_.log(), "+", "-", "COUNT", "1" },
                 [&into]( RedisReply reply ) { into.last = reply[0][0].text(); } );
}

StateWriter::Watched StateWriter::watched() {
   Watched now;
   watch( now );
   session_.wait();
   if ( now.epoch.empty() ) {
      session_.refuse( noStateText );
   }
   return now;
}

// What is there of a path: what holds it, itself, and all below it.
Paths StateWriter::pathsAbout( std::string const & path ) {
   std::vector< std::string > names;
   session_.ask( { "SMEMBERS", layout_.paths() }, [&]( RedisReply reply ) {
      for ( RedisReply const name : reply ) {
         std::string const text( name.text() );
         if ( isAtOrBelow( text, path ) || isAtOrBelow( path, text ) ) {
            names.push_back( text );
         }
      }
   } );
   session_.wait();
   Paths paths;
   for ( auto const & name : names ) {
      session_.ask( { "HGETALL", layout_.hash( name ) },
                    [&attributes = paths[name]]( RedisReply fields ) { attributes = attributesOf( fields ); } );
   }
   session_.wait();
   return paths;
}

void StateWriter::ask( StateChange const & change ) {
   for ( auto const & path : change.fresh ) {
      session_.ask( { "DEL", layout_.hash( path ) } ); // what isn't among the paths isn't there, whatever lies there
   }
   for ( PathChange const & each : change.changes ) {
      std::string const key = layout_.hash( each.path );
      switch ( each.kind ) {
      case PathChange::Kind::stands:
         session_.ask( { "SADD", layout_.paths(), each.path } );
         break;
      case PathChange::Kind::set:
         session_.ask( { "SADD", layout_.paths(), each.path } );
         session_.ask( { "HSET", key, each.attribute, each.text } );
         break;
      case PathChange::Kind::clear:
         session_.ask( { "HDEL", key, each.attribute } );
         break;
      case PathChange::Kind::remove:
         session_.ask( { "DEL", key } );
         session_.ask( { "SREM", layout_.paths(), each.path } );
         break;
      }
   }
}

void StateWriter::askLog( std::string const & changes,
                          std::string const & epoch,
                          char const * approximately,
                          char const * most ) {
   session_.ask(
      { "XADD", layout_.log(), "MAXLEN", approximately, most, "*", changesField, changes, epochField, epoch } );
}

std::string
StateWriter::executed( StateChange const & change, Event const & event, std::string const & epoch, Watched * behind ) {
   session_.ask( { "MULTI" } );
   ask( change );
   askLog( changesText( std::span( &event, 1 ) ), epoch, "~", longestLog );
   std::string entry;
   std::string failed;
   session_.ask( { "EXEC" }, [&]( RedisReply reply ) {
      for ( RedisReply const each : reply ) {
         failed = each.isError() ? std::string( each.text() ) : failed;
         entry = each.text();
      }
   } );
   if ( behind ) {
      watch( *behind );
   }
   session_.wait();
   if ( !failed.empty() ) {
      session_.refuse( failed );
   }
   return entry;
}

} // namespace Live
