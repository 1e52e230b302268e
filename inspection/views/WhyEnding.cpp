// How far an answer of `why` is true: of which part of a run, and where the run ended before it got there.
#include "inspection/views/Terminal.h"
#include "inspection/views/WhyText.h"

namespace Inspection {

using Kind = WhySubject::Kind;
using Simulator::Ending;

std::string whereText( WhyFilter const & filter ) {
   std::string text = filter.event ? " in event " + std::to_string( *filter.event ) : " in this run";
   if ( filter.at && !filter.event ) {
      text += " up to event " + std::to_string( *filter.at );
   }
   TypedPlace const & place = filter.place;
   text += place.variant || place.array || place.entry ? " at this place" : "";
   text += filter.fap ? " on FAP " + std::to_string( *filter.fap ) : "";
   text += filter.table.empty() ? "" : " in " + filter.table;
   text += filter.function.empty() ? "" : " by a function with \"" + filter.function + "\" in its name";
   text += filter.cause.empty() ? "" : " on a cause with \"" + filter.cause + "\" in it";
   return printable( text );
}

std::string endingText( WhyAnswer const & answer ) {
   Ending const & ending = answer.ending;
   if ( ending.kind == Ending::Kind::complete || answer.isReached ) {
      return {}; // a remark tells of the journal itself
   }
   std::string const event = "event " + std::to_string( ending.events );
   bool const isFunction = answer.subject.kind == Kind::function && answer.subject.name == ending.function;
   if ( ending.kind == Ending::Kind::assertion && isFunction ) {
      return "The run ended here: in " + event + " by an assertion in it";
   }
   std::string const there = "The run did not get there: ";
   switch ( ending.kind ) {
   case Ending::Kind::interrupted:
      return there + "it was interrupted after " + event;
   case Ending::Kind::assertion:
      return there + "it ended in " + event + " by an assertion in " + ending.function;
   default:
      return there + "the journal is cut in " + event;
   }
}

} // namespace Inspection
