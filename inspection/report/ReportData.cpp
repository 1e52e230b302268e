#include "inspection/report/ReportData.h"

#include <algorithm>
#include <utility>

namespace Inspection {

using Rex::Value;
using Simulator::Row;

namespace {

constexpr U32 unknown = ~0U;
constexpr U16 noFap = 0xffff;

} // namespace

void ReportData::Tally::add( Row const & row ) {
   ++rows[static_cast< std::size_t >( row.kind )];
   changes += row.kind == Row::Kind::write && row.changed;
   changedControls += row.kind == Row::Kind::control && row.changed;
}

void ReportData::Met::add( U32 number ) {
   if ( number >= isMet_.size() ) {
      isMet_.resize( std::size_t{ number } + 1 );
   }
   if ( !isMet_[number] ) {
      isMet_[number] = true;
      all_.push_back( number );
   }
}

std::vector< U32 > ReportData::Met::taken() {
   for ( U32 const number : all_ ) {
      isMet_[number] = false;
   }
   std::ranges::sort( all_ );
   return std::exchange( all_, {} );
}

ReportData::ReportData( Value const & scenario ) {
   Value::Object kept;
   if ( auto const * const all = scenario.object() ) {
      for ( char const * const name : { "name", "switch", "toggles" } ) {
         if ( auto const found = all->find( name ); found != all->end() ) {
            kept.insert( *found );
         }
      }
      if ( auto const name = kept.find( "name" ); name != kept.end() && name->second.text() ) {
         title_ = *name->second.text();
      }
   }
   scenario_ = Rex::toText( kept );
}

void ReportData::eventBegins( U32 event, Value const & what ) {
   eventIsOver( true );
   events_.push_back( { .number = event, .firstRow = blocks_.rowCount(), .tally = {} } );
   whats_ += ( whats_.empty() ? "" : ",\n" ) + Rex::toText( what );
   isUnderWay_ = true;
}

void ReportData::eventEnds( U32 ) {
   eventIsOver( true );
}

void ReportData::ends( Simulator::Ending const & ending ) {
   eventIsOver( false );
   blocks_.close();
   ending_ = ending;
}

void ReportData::eventIsOver( bool isWhole ) {
   if ( !isUnderWay_ ) {
      return;
   }
   EventOf & event = events_.back();
   event.isWhole = isWhole;
   event.faps = sets_.number( faps_.taken() );
   event.functions = sets_.number( functions_.taken() );
   event.causes = sets_.number( causes_.taken() );
   event.tables = sets_.number( tables_.taken() );
   isUnderWay_ = false;
}

int ReportData::layoutNumber( Row const & row ) {
   if ( !row.layout ) {
      return -1;
   }
   auto const [known, isNew] = layoutNumbers_.try_emplace( row.layout, static_cast< int >( layouts_.size() ) );
   if ( isNew ) {
      layouts_.push_back( { row.layout, texts_.number( row.table ) } );
      for ( auto const & field : row.layout->fields ) {
         fieldNames_.push_back( texts_.number( field.name ) );
      }
   }
   return known->second;
}

U32 ReportData::causeNumber( Row const & row ) {
   if ( row.causeNumber >= causeNumbers_.size() ) {
      causeNumbers_.resize( std::size_t{ row.causeNumber } + 1, unknown );
   }
   U32 & known = causeNumbers_[row.causeNumber];
   if ( known == unknown ) {
      known = texts_.number( row.cause );
   }
   return known;
}

RowKey ReportData::keyOf( Row const & row ) {
   auto const number = [&]( std::string_view text ) { return static_cast< int >( texts_.number( text ) ); };
   RowKey key;
   key.fill( -1 );
   key[0] = static_cast< int >( row.kind );
   if ( row.kind == Row::Kind::publish ) {
      key[2] = static_cast< int >( latestPath_.number( texts_, row.path ) );
      key[4] = number( row.attribute );
      key[5] = row.key ? number( *row.key ) : -1;
      return key;
   }
   if ( row.originNumber >= origins_.size() ) {
      origins_.resize( std::size_t{ row.originNumber } + 1, { unknown, unknown } );
   }
   auto & [function, source] = origins_[row.originNumber];
   if ( function == unknown ) {
      function = texts_.number( row.function );
      source = texts_.number( row.source );
   }
   key[8] = static_cast< int >( function );
   key[9] = static_cast< int >( source );
   if ( row.kind == Row::Kind::gate ) {
      key[2] = static_cast< int >( latestReason_.number( texts_, row.reason ) );
   } else if ( row.kind == Row::Kind::control ) {
      key[4] = static_cast< int >( row.control );
   } else {
      key[1] = layoutNumber( row );
      key[2] =
         row.layout ? static_cast< int >( layouts_[static_cast< std::size_t >( key[1] )].table ) : number( row.table );
      key[3] = row.variant;
      key[4] = row.array;
      key[5] = row.entry ? static_cast< int >( *row.entry ) : -1;
      key[6] = row.scope == Row::Scope::core ? row.core : -1;
      key[7] = static_cast< int >( row.words.size() );
   }
   return key;
}

// Words from before are near those that came: what differs is kept, which is mostly nothing.
void ReportData::wordsOf( Row const & row ) {
   if ( row.kind == Row::Kind::control ) {
      blocks_.wordAdd( row.value );
      if ( row.valueBefore ) {
         blocks_.wordAdd( *row.valueBefore );
      }
   } else if ( row.kind == Row::Kind::write ) {
      blocks_.wordsAdd( row.words );
      if ( row.changed && row.before.size() == row.words.size() ) {
         for ( std::size_t index = 0; index < row.words.size(); ++index ) {
            blocks_.wordAdd( row.words[index] ^ row.before[index] );
         }
      }
   }
}

void ReportData::met( Row const & row, RowKey const & key, U32 cause ) {
   events_.back().tally.add( row );
   causes_.add( cause );
   byCause_[cause].add( row );
   if ( row.kind == Row::Kind::publish ) {
      return;
   }
   auto const function = static_cast< U32 >( key[8] );
   functions_.add( function );
   byFunction_[function].add( row );
   if ( row.isOfFap ) {
      faps_.add( row.fap );
      byFap_[row.fap].add( row );
   }
   if ( row.kind == Row::Kind::read || row.kind == Row::Kind::write ) {
      auto const table = static_cast< U32 >( key[2] );
      byTable_[table].add( row );
      if ( row.kind == Row::Kind::write ) {
         tables_.add( table );
      }
   } else if ( row.kind == Row::Kind::control ) {
      byTable_[controls()].add( row );
      tables_.add( controls() );
   }
}

void ReportData::row( Row const & row ) {
   if ( row.kind == Row::Kind::fault ) {
      ++faults_; // the page tells what was done, not what befell the chips
      return;
   }
   if ( events_.empty() ) {
      eventBegins( row.event, {} );
   }
   if ( row.isOperation() ) {
      nextOperation_ = row.seq + 1;
   }
   ReportBlock & block = blocks_.under( row.isOperation() ? row.seq : nextOperation_ );
   RowKey const key = keyOf( row );
   U32 const what = keys_.number( key );
   U32 const cause = causeNumber( row );
   met( row, key, cause );
   values_.follow( row );
   U8 flags = row.changed ? RowFlags::changed : 0;
   std::string text;
   if ( row.kind == Row::Kind::publish ) {
      ++block.publications;
      text = Rex::toText( *row.published );
      Published & published = published_[what];
      published.value = text;
      published.event = row.event;
      ++published.count;
      text += "," + Rex::toText( *row.publishedBefore );
   } else if ( row.kind == Row::Kind::write ) {
      block.tableAdd( static_cast< U32 >( key[2] ) );
      flags |= row.changed && row.before.size() == row.words.size() ? RowFlags::hasBefore : 0;
   } else if ( row.kind == Row::Kind::control ) {
      block.tableAdd( controls() );
      flags |= row.valueBefore ? RowFlags::hasBefore : 0;
   }
   wordsOf( row );
   blocks_.rowAdd( { what, cause, row.isOfFap && row.kind != Row::Kind::publish ? row.fap : noFap, flags }, text );
}

} // namespace Inspection
