#include "agent/database/StateWriter.h"

#include "inspection/files/InputError.h"

namespace Live {

namespace {

using Inspection::Event;
using Inspection::InputError;
using Rex::ValueError;

// As often as somebody else may be quicker.
constexpr unsigned mostTries = 1000;

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
      auto mark = store_.mark();
      StateModel model( store_.about( event.path ) );
      StateChange const change = [&] {
         try {
            return model.change( event );
         } catch ( ValueError const & error ) {
            throw InputError( event.text(), saidOf( error ) );
         }
      }();
      if ( auto entry = store_.commit( change, model.paths(), event, mark ); !entry.empty() ) {
         return entry;
      }
   }
   store_.refuse( "others write without a pause; try again" );
}

void StateWriter::writeEach( std::vector< Event > const & events, std::string const & file ) {
   auto snapshot = store_.snapshot();
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
   auto mark = store_.mark();
   for ( std::size_t at = 0; at < events.size(); ++at ) {
      Event const & event = events[at];
      for ( unsigned tries = 0;; ++tries ) {
         if ( !model || store_.isBehind( position, mark ) ) {
            bringUpToDate( model, position, mark );
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
         auto const entry = store_.commit( change, model->paths(), event, mark );
         if ( !entry.empty() ) {
            position.entry = entry;
            break;
         }
         model.reset(); // what the event would have done isn't so
         if ( tries == mostTries ) {
            store_.refuse( "others write without a pause; " + std::to_string( at ) + " of " +
                           std::to_string( events.size() ) + " events are written" );
         }
      }
   }
}

// Others have written since.
void StateWriter::bringUpToDate( std::optional< StateModel > & model,
                                 Position & position,
                                 StateStore::Mark const & mark ) {
   auto const missed = model ? store_.since( position, mark ) : std::nullopt;
   try {
      for ( Transaction const & transaction : missed.value_or( std::vector< Transaction >() ) ) {
         for ( Event const & event : transaction.changes ) {
            model->change( event );
         }
         position = transaction.position;
      }
   } catch ( ValueError const & ) { // who wrote it didn't look
      model.reset();
   }
   if ( !model || !missed ) {
      auto snapshot = store_.snapshot();
      model.emplace( std::move( snapshot.paths ) );
      position = snapshot.position;
   }
}

} // namespace Live
