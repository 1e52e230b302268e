// The answer of a journal: what it can't know is refused.
#include "inspection/EndOfRun.h"
#include "inspection/FunctionTables.h"
#include "inspection/NamesAsTyped.h"
#include "inspection/StatePaths.h"
#include "inspection/Why.h"
#include "rex/Nearest.h"

#include <algorithm>

namespace Inspection {

namespace {

using Kind = WhySubject::Kind;

constexpr std::size_t mostNames = 12; // of a list in a refusal

std::vector< std::string > knownControls() {
   std::vector< std::string > all;
   for ( Touch const & touch : knownTouches() ) {
      constexpr std::string_view prefix = "control.";
      if ( touch.table.starts_with( prefix ) ) {
         if ( auto const number = touch.table.substr( prefix.size() ); all.empty() || all.back() != number ) {
            all.push_back( number );
         }
      }
   }
   return all;
}

// Who is known to run when an input of the state changes.
std::vector< std::string > hearersOf( EventInput const & input ) {
   std::vector< std::string > names;
   if ( input.kind == EventInput::Kind::set || input.kind == EventInput::Kind::remove ) {
      auto const * const path = statePathOf( input.path );
      for ( StateAttribute const & it : path ? path->attributes : std::vector< StateAttribute >() ) {
         for ( Hearer const & hearer : it.hearers ) {
            if ( hearer.atChange && it.attribute->name == input.attribute ) {
               names.emplace_back( hearer.function );
            }
         }
      }
   }
   return names;
}

void checkFap( JournalReader const & journal, WhyReader const & reader, U16 fap ) {
   auto const & chips = journal.chipTypes();
   if ( chips.empty() ? reader.hasHeardOf( fap ) : chips.contains( fap ) ) {
      return;
   }
   std::vector< std::string > faps;
   for ( auto const & chip : chips ) {
      faps.push_back( std::to_string( chip.first ) );
   }
   throw InputError( journal.path(),
                     "it tells nothing of a FAP " + std::to_string( fap ) +
                        ( faps.empty() ? "" : "; there is " + listed( faps, mostNames ) ) );
}

void checkSubject( JournalReader const & journal,
                   WhyAnswer const & answer,
                   std::vector< std::string > const & interfaces ) {
   WhySubject const & subject = answer.subject;
   if ( subject.kind == Kind::interface && !( answer.interface && answer.interface->isKnown ) ) {
      throw InputError(
         journal.path(),
         "it tells nothing of an interface " + subject.name +
            ( interfaces.empty() ? "; it tells of none" : "; it tells of " + listed( interfaces, mostNames ) ) +
            whereItEnded( answer.ending ) );
   }
   if ( answer.isReached ) {
      return;
   }
   if ( subject.kind == Kind::control ) {
      auto const controls = knownControls();
      if ( std::ranges::find( controls, std::to_string( subject.control ) ) == controls.end() ) {
         throw InputError( "nothing is known to set a control " + std::to_string( subject.control ) + "; there is " +
                           listed( controls, mostNames ) );
      }
   } else if ( subject.kind == Kind::function && answer.ending.function != subject.name ) {
      auto const functions = knownFunctions();
      if ( std::ranges::find( functions, subject.name ) == functions.end() ) {
         throw InputError( "no function " + subject.name + " is known, and " + journal.path() + " tells of none" +
                           Rex::didYouMean( subject.name, functions ) );
      }
   }
}

} // namespace

WhyAnswer WhyReader::take() {
   bool const isFollowed = answer_.subject.kind == Kind::state || answer_.subject.kind == Kind::interface;
   std::set< std::string, std::less<> > kept;
   for ( auto & [place, known] : gates_ ) {
      StoppedStep & gate = known.step;
      gate.kept = keptBy( gate.function );
      kept.insert( gate.kept.begin(), gate.kept.end() );
      if ( gate.kept.empty() ) {
         answer_.others.push_back( gate );
      } else if ( !isFollowed ) {
         answer_.stopped.push_back( gate );
      }
   }
   std::ranges::stable_sort( answer_.stopped, std::greater<>(), &StoppedStep::lastEvent );
   if ( isFollowed ) {
      answer_.others.clear();
      for ( ChainEvent & event : answer_.chain ) {
         event.hearers = hearersOf( event.input );
      }
   } else if ( isOfTable() ) {
      std::ranges::copy_if( known_, std::back_inserter( answer_.idle ), [&]( std::string const & function ) {
         return !ran_.contains( function ) && !kept.contains( function );
      } );
   }
   answer_.isReached = answer_.isReached || !answer_.stopped.empty();
   if ( model_ ) {
      answer_.interface = model_->story();
   }
   return std::move( answer_ );
}

WhyAnswer whyOf( JournalReader & journal, WhyReader & reader ) {
   reader.beginsWith( journal.scenario() );
   Simulator::Ending const ending = journal.read( reader, reader.rows() );
   if ( reader.filter().fap ) {
      checkFap( journal, reader, *reader.filter().fap );
   }
   for ( auto const & event : { reader.filter().event, reader.filter().at } ) {
      if ( event ) {
         checkEvent( journal.path(), *event, ending );
      }
   }
   auto const interfaces = reader.interfaces();
   WhyAnswer answer = reader.take();
   answer.remarks = journal.remarks();
   checkSubject( journal, answer, interfaces );
   return answer;
}

} // namespace Inspection
