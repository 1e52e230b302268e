#include "inspection/EventRows.h"

#include "inspection/files/Json.h"

namespace Inspection {

namespace {

using Simulator::Row;

constexpr std::size_t blockWords = 4096;

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
   return *this;
}

SharedTexts::Origin const & SharedTexts::origin( Row const & row ) {
   if ( origins_.size() <= row.originNumber ) {
      origins_.resize( row.originNumber + 1 );
   }
   auto & origin = origins_[row.originNumber];
   if ( !origin ) {
      origin = std::make_unique< Origin >( Origin{ std::string( row.function ), std::string( row.source ) } );
   }
   return *origin;
}

std::string const & SharedTexts::cause( Row const & row ) {
   if ( causes_.size() <= row.causeNumber ) {
      causes_.resize( row.causeNumber + 1 );
   }
   auto & cause = causes_[row.causeNumber];
   if ( !cause ) {
      cause = std::make_unique< std::string >( row.cause );
   }
   return *cause;
}

void EventRows::begins( U32 event, Rex::Value const & what, EventReach const & reach ) {
   event_ = event;
   what_ = what;
   reach_ = reach;
   counts_ = {};
   isBroken_ = false;
   rows_.clear();
   block_ = 0;
   used_ = 0;
   own_.clear();
   values_.clear();
}

U32 const * EventRows::kept( Simulator::WordView words ) {
   if ( words.empty() ) {
      return nullptr;
   }
   if ( !blocks_.empty() && used_ + words.size() > blockWords ) {
      ++block_;
      used_ = 0;
   }
   if ( block_ >= blocks_.size() ) {
      blocks_.push_back( std::make_unique< U32[] >( blockWords ) );
   }
   U32 * const place = blocks_[block_].get() + used_;
   std::ranges::copy( words, place );
   used_ += words.size();
   return place;
}

void EventRows::keep( Row const & row ) {
   Row & mine = rows_.emplace_back( row );
   mine.cause = texts_->cause( row );
   if ( row.kind == Row::Kind::publish ) {
      mine.path = kept( row.path );
      mine.key = row.key ? std::optional( kept( *row.key ) ) : std::nullopt;
      mine.attribute = kept( row.attribute );
      mine.published = row.published ? &values_.emplace_back( *row.published ) : nullptr;
      mine.publishedBefore = row.publishedBefore ? &values_.emplace_back( *row.publishedBefore ) : nullptr;
      return;
   }
   auto const & origin = texts_->origin( row );
   mine.function = origin.function;
   mine.source = origin.source;
   if ( row.kind == Row::Kind::gate ) {
      mine.reason = kept( row.reason );
   } else if ( row.kind != Row::Kind::control ) {
      mine.table = Catalogue::tables()[row.tableNumber].name;
      mine.words = { kept( row.words ), row.words.size() };
      mine.before = { kept( row.before ), row.before.size() };
   }
}

std::string eventText( Rex::Value const & what ) {
   auto const * const kinds = what.object();
   if ( !kinds || kinds->empty() || !kinds->begin()->second.object() ) {
      return toJson( what, 0 );
   }
   auto const & [kind, inner] = *kinds->begin();
   auto const & parts = *inner.object();
   std::string text = kind;
   for ( char const * part : { "path", "attribute", "key" } ) {
      auto const value = textAt( parts, part );
      text += value.empty() ? "" : " " + value;
   }
   auto const value = parts.find( "value" );
   return text + ( value == parts.end() ? "" : " = " + toJson( value->second, 0 ) );
}

} // namespace Inspection
