// The answer to why as a value.
#include "inspection/files/RowNames.h"
#include "inspection/views/WhyText.h"

namespace Inspection {

namespace {

using Rex::Value;
using Simulator::Row;

constexpr char const * subjectNames[] = { "table", "control", "state", "function", "interface" };

template< class Numbers >
Value::List listOf( Numbers const & numbers ) {
   return { numbers.begin(), numbers.end() };
}

Value placesValue( ChainStep const & step ) {
   Value::List list;
   for ( auto const & [fap, arrays] : step.places ) {
      for ( auto const & [array, entries] : arrays ) {
         list.emplace_back( Value::Object{
            { "fap", fap }, { "array", array }, { "entries", step.isMemory ? Value( listOf( entries ) ) : Value() } } );
      }
   }
   return list;
}

Value changesValue( ChainStep const & step ) {
   Value::Object changes;
   for ( ChainStep::Change const & change : step.changes ) {
      Value before;
      if ( change.hasMoreBefores ) {
         before = "various";
      } else if ( change.befores.size() == 1 ) {
         before = change.befores.front();
      } else if ( !change.befores.empty() ) {
         before = listOf( change.befores );
      }
      changes[change.name.empty() ? "value" : change.name] =
         Value::Object{ { "before", before }, { "after", change.after } };
   }
   return changes;
}

Value stepValue( ChainStep const & step ) {
   Value::Object one{ { "op", std::string( rowKindNames[static_cast< std::size_t >( step.kind )] ) },
                      { "cause", step.cause },
                      { "times", step.times } };
   if ( !step.function.empty() ) {
      one["function"] = step.function;
      one["source"] = step.source;
   }
   switch ( step.kind ) {
   case Row::Kind::write:
      one["changes"] = changesValue( step );
      [[fallthrough]];
   case Row::Kind::read:
      one["seq"] = step.seq;
      [[fallthrough]];
   case Row::Kind::fault:
      one["table"] = step.table->name;
      one["variant"] = step.variant;
      one["places"] = placesValue( step );
      if ( step.kind == Row::Kind::fault ) {
         one["reason"] = step.reason;
         one["copy"] = *step.core;
      } else if ( step.core ) {
         one["core"] = *step.core;
      }
      break;
   case Row::Kind::control: {
      one["seq"] = step.seq;
      one["control"] = step.control;
      one["changes"] = changesValue( step );
      Value::List faps;
      for ( auto const & place : step.places ) {
         faps.emplace_back( place.first );
      }
      one["faps"] = faps;
      break;
   }
   case Row::Kind::gate:
      one["reason"] = step.reason;
      one["faps"] = listOf( step.faps );
      break;
   case Row::Kind::publish:
      one["path"] = step.path;
      one["attribute"] = step.attribute;
      one["names"] = listOf( step.names );
      one["before"] = step.before;
      one["after"] = step.after;
      break;
   }
   return one;
}

Value inputValue( EventInput const & input ) {
   switch ( input.kind ) {
   case EventInput::Kind::start:
      return Value::Object{ { "start", Value::Object() } };
   case EventInput::Kind::fault:
   case EventInput::Kind::other:
      return input.value;
   case EventInput::Kind::set:
   case EventInput::Kind::remove:
      break;
   }
   Value::Object change{ { "path", input.path } };
   if ( !input.attribute.empty() ) {
      change["attribute"] = input.attribute;
   }
   if ( input.key ) {
      change["key"] = *input.key;
   }
   if ( input.kind == EventInput::Kind::remove ) {
      return Value::Object{ { "delete", change } };
   }
   change["value"] = input.value;
   return Value::Object{ { "set", change } };
}

Value chainValue( WhyAnswer const & answer ) {
   Value::List chain;
   for ( ChainEvent const & event : answer.chain ) {
      Value::List steps;
      for ( ChainStep const & step : event.steps ) {
         steps.push_back( stepValue( step ) );
      }
      Value::Object told{ { "event", event.event }, { "input", inputValue( event.input ) }, { "steps", steps } };
      if ( !event.hearers.empty() ) {
         told["heardBy"] = listOf( event.hearers );
      }
      chain.emplace_back( told );
   }
   return chain;
}

Value habitsValue( std::vector< Habit > const & habits ) {
   Value::List list;
   for ( Habit const & habit : habits ) {
      list.emplace_back( Value::Object{ { "function", habit.function },
                                        { "source", habit.source },
                                        { "times", habit.times },
                                        { "lastEvent", habit.lastEvent } } );
   }
   return list;
}

Value stoppedValue( std::vector< StoppedStep > const & all ) {
   Value::List list;
   for ( StoppedStep const & gate : all ) {
      list.emplace_back( Value::Object{ { "function", gate.function },
                                        { "source", gate.source },
                                        { "reason", gate.reason },
                                        { "faps", listOf( gate.faps ) },
                                        { "times", gate.times },
                                        { "lastEvent", gate.lastEvent },
                                        { "lastCause", gate.lastCause },
                                        { "keptFromRunning", listOf( gate.kept ) } } );
   }
   return list;
}

Value interfaceValue( InterfaceStory const & story ) {
   return Value::Object{ { "parent", story.parent.empty() ? Value() : Value( story.parent ) },
                         { "served", story.isServed },
                         { "active", story.isActive },
                         { "configured", story.isConfigured },
                         { "configuredMtu", story.configuredMtu },
                         { "globalMtu", story.globalMtu },
                         { "l3Mtu", story.l3Mtu },
                         { "statusMtu", story.statusMtu ? Value( *story.statusMtu ) : Value() },
                         { "hasItsMtu", story.hasItsMtu },
                         { "reasons", listOf( story.reasons ) } };
}

} // namespace

Value whyValue( WhyAnswer const & answer ) {
   Value::Object value{
      { "subject", answer.subject.text() },
      { "kind", subjectNames[static_cast< std::size_t >( answer.subject.kind )] },
      { "ended", std::string( endingNames[static_cast< std::size_t >( answer.ending.kind )] ) },
      { "ending", endingText( answer ) },
      { "remarks", listOf( answer.remarks ) },
      { "chain", chainValue( answer ) },
      { "earlierEvents", answer.earlier },
      { "writtenWithoutChange", habitsValue( answer.unchanged ) },
      { "lookedAtBy", habitsValue( answer.looks ) },
      { "keptFromRunning", stoppedValue( answer.stopped ) },
      { "otherGates", stoppedValue( answer.others ) },
      { "didNotRun", listOf( answer.idle ) },
   };
   if ( answer.atStart ) {
      value["atStart"] = *answer.atStart;
   }
   if ( answer.interface ) {
      value["interface"] = interfaceValue( *answer.interface );
   }
   return value;
}

} // namespace Inspection
