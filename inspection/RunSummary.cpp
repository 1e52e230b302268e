#include "inspection/RunSummary.h"

#include <algorithm>
#include <utility>

namespace Inspection {

namespace {

using Simulator::Row;

constexpr std::size_t mostGates = 4096; // a reason that names something else each time must not fill the memory

U64 costOf( EventRows const & rows ) {
   return rows.counts().operations() + rows.counts().publications;
}

template< class List >
auto & at( List & list, std::size_t number ) {
   if ( list.size() <= number ) [[unlikely]] {
      list.resize( number + 1 );
   }
   return list[number];
}

} // namespace

bool RunSummary::isWanted( U32 event ) const {
   if ( wanted_.everyEvent || wanted_.onlyTheLast || !wanted_.events.empty() ) {
      return wanted_.everyEvent || wanted_.onlyTheLast || wanted_.events.contains( event );
   }
   return event > 0 || wanted_.startToo;
}

void RunSummary::eventBegins( U32 event, Rex::Value const & what ) {
   events_ = std::max( events_, event );
   current_->begins( event, what, nextReach_ );
   nextReach_ = {};
   keepsRows_ = isWanted( event );
   isOpen_ = true;
   lastFap_.reset();
   lastCause_.clear();
}

void RunSummary::row( Row const & row ) {
   bool const isPublication = row.kind == Row::Kind::publish;
   bool const hasFap = row.isOfFap && !isPublication;
   if ( row.event == 0 ) {
      served_.follow( row );
   }
   if ( wanted_.fap && hasFap && row.fap != *wanted_.fap ) {
      return;
   }
   current_->count( row );
   if ( hasFap ) {
      at( byFap_, row.fap ).count( row );
      lastFap_ = row.fap;
   }
   if ( !isPublication && row.kind != Row::Kind::fault ) {
      texts_.origin( row );
      at( byOrigin_, row.originNumber ).count( row );
   }
   if ( row.kind == Row::Kind::gate ) {
      countGate( row );
   }
   if ( keepsRows_ && ( row.kind != Row::Kind::read || wanted_.readsToo ) ) {
      current_->keep( row );
   }
   if ( lastCause_.empty() || lastCauseNumber_ != row.causeNumber ) {
      lastCause_ = row.cause;
      lastCauseNumber_ = row.causeNumber;
   }
}

void RunSummary::countGate( Row const & row ) {
   auto & known = at( gatesByOrigin_, row.originNumber );
   auto const fap = row.isOfFap ? std::optional( row.fap ) : std::nullopt;
   for ( U32 const index : known ) {
      Gate & gate = gates_[index];
      if ( gate.fap == fap && gate.reason == row.reason ) {
         ++gate.count;
         gate.lastEvent = row.event;
         return;
      }
   }
   if ( gates_.size() < mostGates ) {
      known.push_back( static_cast< U32 >( gates_.size() ) );
      gates_.push_back(
         { row.originNumber, std::string( row.reason ), fap, row.event, row.event, std::string( row.cause ), 1 } );
   }
}

RunSummary::Kept RunSummary::fresh() {
   if ( spare_.empty() ) {
      return std::make_unique< EventRows >( texts_ );
   }
   Kept rows = std::move( spare_.back() );
   spare_.pop_back();
   return rows;
}

void RunSummary::toCostliest( Kept rows ) {
   auto const isCheaper = []( Kept const & a, Kept const & b ) { return costOf( *a ) < costOf( *b ); };
   if ( costliest_.size() < mostCostly ) {
      costliest_.push_back( std::move( rows ) );
      return;
   }
   auto const least = std::ranges::min_element( costliest_, isCheaper );
   if ( costOf( **least ) < costOf( *rows ) ) {
      std::swap( *least, rows );
   }
   spare_.push_back( std::move( rows ) );
}

void RunSummary::over( bool isWhole ) {
   isOpen_ = false;
   if ( !isWhole ) {
      current_->breaksOff();
   }
   total_ += current_->counts();
   if ( current_->event() == 0 ) {
      start_ = current_->counts();
      startByFap_ = byFap();
      startByOrigin_ = byOrigin_;
   } else if ( isWhole && current_->counts().isEmpty() ) {
      ++silent_;
   }
   if ( !keepsRows_ ) {
      return;
   }
   if ( whenOver_ ) {
      whenOver_( *current_ );
   }
   if ( wanted_.everyEvent ) {
      return;
   }
   if ( !wanted_.events.empty() ) {
      asked_.push_back( std::exchange( current_, fresh() ) );
      return;
   }
   if ( current_->event() == 0 && !wanted_.onlyTheLast ) {
      startRows_ = std::exchange( current_, fresh() );
      return;
   }
   recent_.push_back( std::exchange( current_, fresh() ) );
   std::size_t const most = wanted_.onlyTheLast ? 1 : mostShown;
   if ( recent_.size() > most ) {
      Kept eldest = std::move( recent_.front() );
      recent_.pop_front();
      if ( wanted_.onlyTheLast ) {
         spare_.push_back( std::move( eldest ) );
      } else {
         toCostliest( std::move( eldest ) );
      }
   }
}

void RunSummary::eventEnds( U32 ) {
   over( true );
}

void RunSummary::ends( Simulator::Ending const & ending ) {
   if ( isOpen_ ) {
      over( false );
   }
   ending_ = ending;
}

std::map< U16, RowCounts > RunSummary::byFap() const {
   std::map< U16, RowCounts > all;
   for ( std::size_t fap = 0; fap < byFap_.size(); ++fap ) {
      if ( !byFap_[fap].isEmpty() ) {
         all[static_cast< U16 >( fap )] = byFap_[fap];
      }
   }
   return all;
}

std::vector< RunSummary::Function > RunSummary::eventFunctions() const {
   auto byOrigin = byOrigin_;
   for ( std::size_t number = 0; number < startByOrigin_.size(); ++number ) {
      byOrigin[number] -= startByOrigin_[number];
   }
   return functionsOf( byOrigin );
}

std::vector< RunSummary::Function > RunSummary::functionsOf( std::vector< RowCounts > const & byOrigin ) const {
   std::map< std::string, RowCounts > byName;
   for ( std::size_t number = 0; number < byOrigin.size(); ++number ) {
      if ( byOrigin[number].operations() > 0 ) {
         byName[texts_.origin( static_cast< U32 >( number ) ).function] += byOrigin[number];
      }
   }
   std::vector< Function > all;
   for ( auto const & [name, counts] : byName ) {
      all.push_back( { name, counts } );
   }
   std::ranges::stable_sort(
      all, []( Function const & a, Function const & b ) { return a.counts.operations() > b.counts.operations(); } );
   return all;
}

std::vector< EventRows const * > RunSummary::shown() const {
   std::vector< EventRows const * > all;
   for ( auto const & rows : asked_ ) {
      all.push_back( rows.get() );
   }
   // Where not all are shown, the last of them make room for those that did most.
   std::size_t const left = costliest_.empty() ? 0 : costliest_.size();
   for ( std::size_t index = left; index < recent_.size(); ++index ) {
      all.push_back( recent_[index].get() );
   }
   std::vector< EventRows const * > elder;
   for ( auto const & rows : costliest_ ) {
      elder.push_back( rows.get() );
   }
   for ( std::size_t index = 0; index < std::min( left, recent_.size() ); ++index ) {
      elder.push_back( recent_[index].get() );
   }
   std::ranges::stable_sort( elder, []( auto const * a, auto const * b ) { return costOf( *a ) > costOf( *b ); } );
   elder.resize( std::min( elder.size(), mostCostly ) );
   all.insert( all.end(), elder.begin(), elder.end() );
   std::ranges::sort( all, []( auto const * a, auto const * b ) { return a->event() < b->event(); } );
   return all;
}

} // namespace Inspection
