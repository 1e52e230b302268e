#include "inspection/EventRows.h"

#include "inspection/files/Json.h"
#include "inspection/files/ScenarioReading.h"

namespace Inspection {

namespace {

using Simulator::Row;

std::string textAt( Rex::Value::Object const & what, char const * key ) {
   auto const found = what.find( key );
   return found == what.end() || !found->second.text() ? std::string() : *found->second.text();
}

} // namespace

RowCounts & RowCounts::operator+=( RowCounts const & more ) {
   reads += more.reads;
   writes += more.writes;
   changes += more.changes;
   controls += more.controls;
   gates += more.gates;
   publications += more.publications;
   faults += more.faults;
   return *this;
}

RowCounts & RowCounts::operator-=( RowCounts const & part ) {
   reads -= part.reads;
   writes -= part.writes;
   changes -= part.changes;
   controls -= part.controls;
   gates -= part.gates;
   publications -= part.publications;
   faults -= part.faults;
   return *this;
}

SharedTexts::Origin const & SharedTexts::newOrigin( Row const & row ) {
   origins_.resize( std::max< std::size_t >( origins_.size(), row.originNumber + 1 ) );
   origins_[row.originNumber] =
      std::make_unique< Origin >( Origin{ std::string( row.function ), std::string( row.source ) } );
   return *origins_[row.originNumber];
}

std::string const & SharedTexts::newCause( Row const & row ) {
   causes_.resize( std::max< std::size_t >( causes_.size(), row.causeNumber + 1 ) );
   causes_[row.causeNumber] = std::make_unique< std::string >( row.cause );
   return *causes_[row.causeNumber];
}

void EventRows::begins( U32 event, Rex::Value const & what, EventReach const & reach ) {
   event_ = event;
   what_ = what;
   reach_ = reach;
   counts_ = {};
   isBroken_ = false;
   rows_.clear();
   words_.forget();
   own_.forget();
   latestPath_ = {};
   latestReason_ = {};
   valueCount_ = 0;
}

Rex::Value const * EventRows::kept( Rex::Value const * value ) {
   if ( !value ) {
      return nullptr;
   }
   if ( valueCount_ == values_.size() ) {
      values_.emplace_back();
   }
   return &( values_[valueCount_++] = *value );
}

void EventRows::keep( Row const & row ) {
   Row & mine = rows_.emplace_back( row );
   mine.cause = texts_->cause( row );
   if ( row.kind == Row::Kind::publish ) {
      mine.path = kept( row.path, latestPath_ );
      mine.key = row.key ? std::optional( own_.keep( *row.key ) ) : std::nullopt;
      mine.attribute = own_.keep( row.attribute );
      mine.published = kept( row.published );
      mine.publishedBefore = kept( row.publishedBefore );
      return;
   }
   if ( row.kind == Row::Kind::fault ) {
      mine.reason = own_.keep( row.reason );
      mine.table = Catalogue::tables()[row.tableNumber].name;
      mine.words = { words_.keep( row.words ), row.words.size() };
      return;
   }
   auto const & origin = texts_->origin( row );
   mine.function = origin.function;
   mine.source = origin.source;
   if ( row.kind == Row::Kind::gate ) {
      mine.reason = kept( row.reason, latestReason_ );
   } else if ( row.kind != Row::Kind::control ) {
      mine.table = Catalogue::tables()[row.tableNumber].name;
      U32 const * const words = words_.keep( row.words, row.before );
      mine.words = { words, row.words.size() };
      mine.before = { words + row.words.size(), row.before.size() };
   }
}

std::string eventText( Rex::Value const & what ) {
   auto const * const kinds = what.object();
   if ( !kinds || kinds->empty() || !kinds->begin()->second.object() ) {
      return toJson( what, 0 );
   }
   auto const & [kind, inner] = *kinds->begin();
   auto const & parts = *inner.object();
   if ( kind == "fault" ) {
      Event event;
      return Rex::ValueErrors().of( [&] { readEvent( what, event ); } ) ? event.text() : toJson( what, 0 );
   }
   std::string text = kind;
   for ( char const * part : { "path", "attribute", "key" } ) {
      auto const value = textAt( parts, part );
      text += value.empty() ? "" : " " + value;
   }
   auto const value = parts.find( "value" );
   return text + ( value == parts.end() ? "" : " = " + toJson( value->second, 0 ) );
}

} // namespace Inspection
