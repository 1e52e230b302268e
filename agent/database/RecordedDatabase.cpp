#include "agent/database/RecordedDatabase.h"

#include "inspection/files/ScenarioReading.h"

namespace Live {

namespace {

using namespace Inspection;

constexpr std::size_t atOnce = 64; // transactions

} // namespace

RecordedDatabase::RecordedDatabase( EventLoop & loop, std::string path ) : loop_( loop ), path_( std::move( path ) ) {
   rewind();
}

// To the beginning. Of a folder with several runs the first one is told.
void RecordedDatabase::rewind() {
   segments_.emplace( path_ );
   ahead_ = segments_->next();
   auto const & begun = segments_->begun();
   Scenario scenario;
   Rex::Value value = begun.scenario;
   inFile( path_, [&] {
      readParts( value, scenario );
      Rex::below( "state", [&] { begun_.paths = flattened( scenario.state ); } );
   } );
   begun_.position = { begun.position.server, begun.position.epoch, begun.position.entry };
   told_ = begun_.position;
   isAtEnd_ = false;
   if ( ahead_ && ahead_->event == 0 ) {
      ahead_ = segments_->next();
   }
}

// Events that no transaction of the database made have no entry of it, and are told by their number.
Position RecordedDatabase::positionOf( RecordedEvent const & event ) const {
   auto const & at = event.position;
   bool const isNew = at.entry != told_.entry || at.epoch != told_.epoch || at.server != told_.server;
   return { at.server, at.epoch, isNew ? at.entry : at.entry + "+" + std::to_string( event.event ) };
}

void RecordedDatabase::snapshot() {
   stop();
   loop_.soon( tether_.of( [this] {
      rewind();
      follower()->snapshotIs( begun_ );
   } ) );
}

void RecordedDatabase::since( Position const & position ) {
   stop();
   loop_.soon( tether_.of( [this, position] { hand( position ); } ) );
}

void RecordedDatabase::hand( Position const & position ) {
   if ( position != told_ ) {
      follower()->gapIs( "the recording stands elsewhere" );
      return;
   }
   std::vector< Transaction > next;
   while ( ahead_ && !ahead_->isBegin && next.size() < atOnce ) {
      Event event;
      inFile( path_, [&] { readEvent( ahead_->what, event ); } );
      if ( event.fault ) { // which no database has told of
         ahead_ = segments_->next();
         continue;
      }
      Transaction transaction{ .position = positionOf( *ahead_ ), .changes = changesOf( std::move( event ) ) };
      told_ = transaction.position;
      next.push_back( std::move( transaction ) );
      ahead_ = segments_->next();
   }
   isAtEnd_ = next.empty();
   if ( !next.empty() ) {
      follower()->transactionsAre( std::move( next ) );
   }
}

} // namespace Live
