#include "simulator/Journal.h"

#include "assert/Assert.h"
#include "rex/Entity.h"
#include "simulator/FaultyDriver.h"
#include "simulator/FunctionName.h"

#include <utility>

namespace Simulator {

namespace {

constexpr std::size_t mostCauses = 1 << 12; // that a run without an end remembers

} // namespace

std::size_t Journal::OriginHash::operator()( OriginKey const & key ) const {
   std::hash< void const * > const hash;
   return hash( key.function ) ^ hash( key.file ) * 3 ^ key.line * std::size_t{ 0x9e3779b97f4a7c15 };
}

Journal::Journal( Knowledge knowledge )
   : knowledge_( std::move( knowledge ) ), what_( Rex::Value::Object{ { "start", Rex::Value::Object{} } } ) {
   failureHook_ = Rex::atFailure( [this] { failed(); } );
}

Journal::~Journal() {
   Rex::failureHookDel( failureHook_ );
   hearsNoMore();
}

void Journal::listens() {
   DaceSal::operationListenerIs( this );
   Rex::gateListenerIs( this );
   Rex::writeListenerIs( knowledge_.pathOf ? this : nullptr );
}

void Journal::hearsNoMore() {
   if ( DaceSal::operationListener() == this ) {
      DaceSal::operationListenerIs( nullptr );
   }
   if ( Rex::gateListener() == this ) {
      Rex::gateListenerIs( nullptr );
   }
   if ( Rex::writeListener() == this ) {
      Rex::writeListenerIs( nullptr );
   }
}

// ---- events

void Journal::eventBegins( U32 event, Rex::Value what ) {
   event_ = event;
   what_ = std::move( what );
   takeFaults(); // of whoever looked at the chips between two events
   causeIsAnother();
}

void Journal::eventIsDropped() {
   --event_;
}

void Journal::eventEnds() {
   handOver();
   for ( RowReader * const reader : readers_ ) {
      reader->eventEnds( event_ );
   }
   forget();
}

void Journal::handOver() {
   takeFaults();
   for ( RowReader * const reader : readers_ ) {
      reader->eventBegins( event_, what_ );
   }
   if ( readers_.empty() ) {
      handedOver_ = records_.size();
   }
   Row next{ .kind = Kind::read, .event = event_ };
   while ( handedOver_ < records_.size() ) {
      tell( records_[handedOver_++], next );
      for ( RowReader * const reader : readers_ ) {
         reader->row( next );
      }
   }
}

void Journal::forget() {
   if ( isKept_ ) {
      return;
   }
   records_.clear();
   words_.forget();
   reasons_.clear();
   publications_.clear();
   handedOver_ = 0;
   if ( forgetsCauses_ && causes_.size() > mostCauses ) {
      causes_.clear();
      causeNumbers_.clear();
      latestCause_ = 0;
      latestAnnouncements_.forget();
   }
}

void Journal::ends( Ending::Kind kind ) {
   if ( std::exchange( hasEnded_, true ) ) {
      return;
   }
   Ending ending{ .kind = kind, .events = event_, .operations = operations_ };
   if ( auto const * failure = Rex::failure(); failure && kind == Ending::Kind::assertion ) {
      ending.text = failure->text;
      ending.function = functionName( failure->function );
      if ( !failure->file.empty() ) {
         ending.source = std::string( fileName( failure->file ) ) + ":" + std::to_string( failure->line );
      }
   }
   for ( RowReader * const reader : readers_ ) {
      reader->ends( ending );
   }
}

// Nobody is left to hear of a reader's trouble but the one who reads standard error.
void Journal::failed() {
   if ( hasEnded_ ) {
      return;
   }
   try {
      handOver();
      ends( Ending::Kind::assertion );
   } catch ( std::exception const & error ) {
      std::fprintf( stderr, "%s\n", error.what() );
   }
}

// ---- what is heard

Journal::Record & Journal::add( Kind kind, U32 origin ) {
   U32 const cause = causeNumber();
   Record & record = records_.emplace_back();
   record.kind = kind;
   record.event = event_;
   record.origin = origin;
   record.cause = cause;
   return record;
}

void Journal::operation( DaceSal::Operation const & operation ) {
   using enum DaceSal::Operation::Kind;
   Kind const kind = operation.kind == read ? Kind::read : operation.kind == write ? Kind::write : Kind::control;
   Record & record = add( kind, originNumber( operation.origin ) );
   record.seq = ++operations_;
   record.isOfFap = true;
   record.fap = operation.chip.value;
   record.changed = operation.changed;
   if ( kind == Kind::control ) {
      record.entryOrControl = operation.controlNumber;
      record.value = operation.controlValue;
      record.hasBefore = operation.controlBefore.has_value();
      record.valueBefore = operation.controlBefore.value_or( 0 );
   } else {
      record.words = words_.keep( operation.words, operation.before );
      record.width = static_cast< U16 >( operation.words.size() );
      record.hasBefore = !operation.before.empty();
      record.entryOrControl = operation.entry;
      record.isRegister = operation.isRegister;
      record.table = operation.table;
      record.variant = operation.variant;
      record.array = operation.arrayIndex;
      record.scope = operation.scope;
      record.core = operation.core;
   }
   if ( !faults_.empty() ) [[unlikely]] {
      takeFaults();
   }
}

void Journal::faultFired( FiredFault const & fired ) {
   Record record{};
   record.kind = Kind::fault;
   record.event = event_;
   record.cause = causeNumber();
   record.isOfFap = true;
   record.fap = fired.chip.value;
   record.origin = static_cast< U32 >( reasons_.size() );
   reasons_.push_back( fired.what );
   record.words = words_.keep( fired.words );
   record.width = static_cast< U16 >( fired.words.size() );
   record.table = fired.place.table->number;
   record.variant = fired.place.layout->variant;
   record.array = static_cast< int >( fired.place.array );
   record.entryOrControl = fired.place.entry;
   record.isRegister = fired.place.layout->entries == 0;
   record.scope = Scope::core;
   record.core = static_cast< int >( fired.place.copy );
   record.changed = true;
   ( fired.isByOperation ? faults_ : records_ ).push_back( record );
}

// Those that fired at an operation stand behind it.
void Journal::takeFaults() {
   for ( Record & fault : faults_ ) {
      fault.event = event_;
   }
   records_.insert( records_.end(), faults_.begin(), faults_.end() );
   faults_.clear();
}

void Journal::gateClosed( Rex::ClosedGate const & gate ) {
   Record & record = add( Kind::gate, originNumber( gate.origin ) );
   if ( reasons_.empty() || reasons_.back() != gate.reason ) {
      reasons_.emplace_back( gate.reason );
   }
   record.reason = &reasons_.back();
   record.isOfFap = gate.fap.has_value();
   record.fap = gate.fap.value_or( 0 );
}

bool Journal::follows( Rex::Entity const & entity ) {
   followed_ = knowledge_.pathOf( entity );
   return !followed_.empty();
}

void Journal::written( Rex::Write const & write ) {
   Record & record = add( Kind::publish, 0 );
   record.publication =
      &publications_.emplace_back( Publication{ .path = followed_,
                                                .attribute = write.attribute.name,
                                                .key = write.key.empty() ? std::nullopt : std::optional( write.key ),
                                                .before = write.before,
                                                .after = write.after } );
}

U32 Journal::originNumber( std::source_location const & at ) {
   OriginKey const key{ at.function_name(), at.file_name(), at.line() };
   auto const place = reinterpret_cast< std::uintptr_t >( key.function ) / 16 + key.line;
   LatestOrigin & latest = latestOrigins_[place % latestOrigins_.size()];
   if ( latest.function != key.function || latest.line != key.line ) [[unlikely]] {
      latest = { key.function, key.line, numberOf( key ) };
   }
   return latest.number;
}

U32 Journal::numberOf( OriginKey const & key ) {
   auto const [known, isNew] = originNumbers_.try_emplace( key, static_cast< U32 >( origins_.size() ) );
   if ( isNew ) {
      origins_.push_back( Origin{ functionName( key.function ),
                                  std::string( fileName( key.file ) ) + ":" + std::to_string( key.line ) } );
   }
   return known->second;
}

U32 Journal::causeNumber() {
   if ( latestAnnouncements_.areStill() ) {
      return latestCause_;
   }
   latestAnnouncements_.remember();
   std::string cause = knowledge_.cause();
   if ( latestCause_ < causes_.size() && *causes_[latestCause_] == cause ) {
      return latestCause_;
   }
   auto const [known, isNew] = causeNumbers_.try_emplace( std::move( cause ), static_cast< U32 >( causes_.size() ) );
   if ( isNew ) {
      causes_.push_back( &known->first );
   }
   return latestCause_ = known->second;
}

} // namespace Simulator
