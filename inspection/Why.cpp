#include "inspection/Why.h"

#include "inspection/GateReach.h"

#include <algorithm>

namespace Inspection {

namespace {

using Kind = WhySubject::Kind;
using Simulator::Row;

// The path and the attribute that a cause names.
std::pair< std::string_view, std::string_view > stateOf( std::string_view cause ) {
   auto const space = cause.rfind( ' ' );
   return space == std::string_view::npos ? std::pair( cause, std::string_view() )
                                          : std::pair( cause.substr( 0, space ), cause.substr( space + 1 ) );
}

} // namespace

WhyReader::WhyReader( WhySubject subject, WhyFilter filter ) : filter_( std::move( filter ) ) {
   answer_.subject = std::move( subject );
   answer_.filter = filter_;
   known_ = functionsThatTouch( answer_.subject );
   if ( answer_.subject.kind == Kind::interface ) {
      model_.emplace( answer_.subject.name );
   }
}

RowFilter WhyReader::rows() const {
   RowFilter filter = rowsOfSubject();
   filter.last = filter_.at;
   return filter;
}

RowFilter WhyReader::rowsOfSubject() const {
   WhySubject const & subject = answer_.subject;
   std::vector< std::string > const tables( filter_.table.empty() ? 0 : 1, filter_.table );
   switch ( subject.kind ) {
   case Kind::part:
      return { .tables = { subject.part.table->name }, .controlsToo = false, .publicationsToo = false };
   case Kind::control:
      return { .tables = { subject.text() }, .publicationsToo = false }; // no table is called so: no reads and writes
   case Kind::interface:
      return { .operationsToo = false };
   case Kind::state:
      return { .tables = tables, .readsToo = false };
   case Kind::function:
      break;
   }
   return { .tables = tables, .function = subject.name, .publicationsToo = false };
}

void WhyReader::beginsWith( Rex::Value const & scenario ) {
   WhySubject const & subject = answer_.subject;
   if ( model_ ) {
      model_->beginsWith( scenario );
   }
   if ( subject.kind == Kind::state && !subject.attribute.empty() && !subject.key && !scenario.isNull() ) {
      answer_.atStart = subject.valueAtStart( scenario );
   }
}

void WhyReader::eventBegins( U32 event, Rex::Value const & what ) {
   if ( isTooLate( event ) ) {
      return;
   }
   event_ = event;
   input_ = EventInput::of( what );
   WhySubject const & subject = answer_.subject;
   isInput_ = false;
   for ( EventInput const & change : EventInput::allOf( what ) ) {
      bool const isChange = change.kind == EventInput::Kind::set || change.kind == EventInput::Kind::remove;
      if ( model_ ) {
         isInput_ = isInput_ || ( isChange && model_->concerns( change ) );
         model_->changed( event, change );
         isInput_ = isInput_ || ( isChange && model_->concerns( change ) );
      } else {
         isInput_ = isInput_ ||
                    ( subject.kind == Kind::state && isChange &&
                      subject.isState( change.path,
                                       change.attribute,
                                       change.key ? std::optional< std::string_view >( *change.key ) : std::nullopt ) );
      }
   }
   steps_ = {};
}

bool WhyReader::isWanted( Row const & row ) const {
   bool const isElsewhere = filter_.fap && row.kind != Row::Kind::publish && row.isOfFap && row.fap != *filter_.fap;
   bool const isTable = filter_.table.empty() || row.kind == Row::Kind::gate || row.table == filter_.table;
   return !isElsewhere && isTable && ( !filter_.event || *filter_.event == row.event ) &&
          ( filter_.function.empty() || row.function.find( filter_.function ) != std::string_view::npos ) &&
          ( filter_.cause.empty() || row.cause.find( filter_.cause ) != std::string_view::npos );
}

bool WhyReader::isAboutInterface( Row const & row ) const {
   std::string const & name = answer_.subject.name;
   if ( row.kind == Row::Kind::gate ) {
      // A gate of the machine doesn't say which interface it is about; its cause may.
      EventInput cause{ .kind = EventInput::Kind::set };
      std::tie( cause.path, cause.attribute ) = stateOf( row.cause );
      return row.function.starts_with( interfaceMachine ) &&
             ( model_->isNamedBy( cause ) || model_->canBeStoppedBy( row.reason ) );
   }
   if ( row.kind != Row::Kind::publish ) {
      return false;
   }
   std::string_view const last = row.key ? *row.key : row.path.substr( row.path.rfind( '/' ) + 1 );
   return last == name || ( last.starts_with( name ) && last[name.size()] == '.' );
}

bool WhyReader::isAbout( Row const & row ) const {
   WhySubject const & subject = answer_.subject;
   TypedPlace const & place = filter_.place;
   switch ( subject.kind ) {
   case Kind::part:
      return row.table == subject.part.table->name && ( !place.variant || *place.variant == row.variant ) &&
             ( !place.array || *place.array == static_cast< U32 >( row.array ) ) &&
             ( !place.entry || *place.entry == row.entry.value_or( 0 ) );
   case Kind::control:
      return row.kind == Row::Kind::control && row.control == subject.control;
   case Kind::function:
      return row.isOperation() && row.function == subject.name;
   case Kind::interface:
      return isAboutInterface( row );
   case Kind::state:
      break;
   }
   if ( isInput_ && row.kind != Row::Kind::read ) {
      return true;
   }
   auto const [path, attribute] = stateOf( row.cause );
   return ( row.kind != Row::Kind::read && subject.isState( path, attribute, std::nullopt ) ) ||
          ( row.kind == Row::Kind::publish && subject.isState( row.path, row.attribute, row.key ) );
}

void WhyReader::row( Row const & row ) {
   if ( isTooLate( row.event ) ) {
      return;
   }
   if ( model_ && row.kind == Row::Kind::publish ) {
      model_->published( row );
   }
   if ( row.isOperation() ) {
      faps_.insert( row.fap );
      if ( isOfTable() ) {
         ran( row );
      }
   }
   if ( !isWanted( row ) ) {
      return;
   }
   if ( row.kind == Row::Kind::gate ) {
      stopped( row );
   } else if ( isAbout( row ) ) {
      touched( row );
   }
}

void WhyReader::habit( std::vector< Habit > & habits, Row const & row ) const {
   auto found = std::ranges::find_if(
      habits, [&]( Habit const & it ) { return it.source == row.source && it.function == row.function; } );
   if ( found == habits.end() ) {
      found = habits.insert( found, { std::string( row.function ), std::string( row.source ) } );
   }
   ++found->times;
   found->lastEvent = row.event;
}

// Whichever event, place or function was asked for: what ran, ran.
void WhyReader::ran( Row const & row ) {
   WhySubject const & subject = answer_.subject;
   bool const isOfSubject = subject.kind == Kind::part
                               ? row.table == subject.part.table->name
                               : row.kind == Row::Kind::control && row.control == subject.control;
   if ( isOfSubject && ( !filter_.fap || row.fap == *filter_.fap ) && !ran_.contains( row.function ) ) {
      ran_.emplace( row.function );
   }
}

void WhyReader::touched( Row const & row ) {
   WhySubject const & subject = answer_.subject;
   answer_.isReached = true;
   if ( row.isOperation() && !isOfTable() && !ran_.contains( row.function ) ) {
      ran_.emplace( row.function );
   }
   if ( row.kind == Row::Kind::read && isOfTable() ) {
      habit( answer_.looks, row );
      return;
   }
   auto const changes = row.kind == Row::Kind::write ? changesOf( row, subject.part.field, subject.part.bit )
                                                     : std::vector< FieldChange >();
   bool const isSame = row.kind == Row::Kind::write ? changes.empty() : row.kind == Row::Kind::control && !row.changed;
   if ( isSame && isOfTable() ) {
      habit( answer_.unchanged, row );
      return;
   }
   steps_.add( row, changes );
}

std::vector< std::string > WhyReader::keptBy( std::string_view function ) const {
   std::vector< std::string > kept;
   for ( std::string_view const behind : behindGatesOf( function ) ) {
      if ( known_.contains( behind ) || ran_.contains( behind ) ) {
         kept.emplace_back( behind );
      }
   }
   return kept;
}

WhyReader::Gate & WhyReader::gateOf( Row const & row ) {
   latestGates_.resize( std::max< std::size_t >( latestGates_.size(), row.originNumber + 1 ) );
   Gate *& latest = latestGates_[row.originNumber];
   if ( !latest || latest->step.reason != row.reason || latest->step.source != row.source ) {
      latest = &gates_[{ std::string( row.source ), std::string( row.reason ) }];
   }
   return *latest;
}

void WhyReader::stopped( Row const & row ) {
   Gate & known = gateOf( row );
   StoppedStep & gate = known.step;
   if ( gate.times == 0 ) {
      gate.function = row.function;
      gate.source = row.source;
      gate.reason = row.reason;
   }
   bool const isNew = gate.times == 0 || gate.lastEvent != row.event;
   if ( isNew && ( gate.times == 0 || input_.kind != EventInput::Kind::start ) ) {
      gate.lastInput = input_.text();
   }
   ++gate.times;
   gate.lastEvent = row.event;
   gate.lastCause = row.cause;
   if ( row.isOfFap ) {
      gate.faps.insert( row.fap );
   }
   if ( known.ofRan != ran_.size() ) {
      known.keeps = !keptBy( row.function ).empty();
      known.ofRan = ran_.size();
   }
   bool const isFollowed = answer_.subject.kind == Kind::state || answer_.subject.kind == Kind::interface;
   if ( isFollowed ? isAbout( row ) : known.keeps ) {
      steps_.add( row );
   }
}

void WhyReader::eventEnds( U32 event ) {
   if ( !isTooLate( event ) ) {
      eventIsOver();
   }
}

void WhyReader::eventIsOver() {
   auto const & steps = steps_.all();
   WhySubject const & subject = answer_.subject;
   bool const isFollowed = subject.kind == Kind::state || subject.kind == Kind::interface;
   bool const hasMoreThanGates =
      std::ranges::any_of( steps, []( ChainStep const & step ) { return step.kind != Row::Kind::gate; } );
   bool const isEvent = !filter_.event || *filter_.event == event_;
   // An event in which a gate alone was closed is told with the gate, unless it is what was asked about.
   if ( isEvent && ( hasMoreThanGates || ( isInput_ && filter_.cause.empty() ) || ( isFollowed && !steps.empty() ) ) ) {
      answer_.isReached = true;
      answer_.chain.push_front( { event_, input_, steps } );
      if ( answer_.chain.size() > filter_.events ) {
         answer_.chain.pop_back();
         ++answer_.earlier;
      }
   }
   steps_ = {};
   isInput_ = false;
}

void WhyReader::ends( Simulator::Ending const & ending ) {
   eventIsOver(); // where the run broke off in it
   answer_.ending = ending;
}

} // namespace Inspection
