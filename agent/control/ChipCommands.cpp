// The chips of an agent: made to fail, looked at, and put right.
#include "agent/audit/Auditor.h"
#include "agent/control/AgentCommands.h"

namespace Live {

namespace {

using Rex::Value;
using Simulator::Fault;
using Simulator::SupervisedChips;

Fault faultIn( Arguments const & given ) {
   Value::Object fault;
   for ( char const * const name : { "kind", "probability" } ) {
      if ( auto const text = given.optional< std::string >( name ) ) {
         fault[name] = *text;
      }
   }
   for ( char const * const name : { "fap", "copy", "count", "for", "seed" } ) {
      if ( auto const number = given.optional< U32 >( name ) ) {
         fault[name] = *number;
      }
   }
   Fault read = Simulator::faultOf( fault );
   if ( auto const place = given.optional< std::string >( "place" ) ) {
      Simulator::placeIs( read, *place );
   }
   return read;
}

Value valueOf( Simulator::FaultyDriver::Armed const & armed ) {
   Value value = Simulator::valueOf( armed.fault );
   ( *value.object() )["number"] = armed.number;
   ( *value.object() )["fired"] = armed.fired;
   ( *value.object() )["over"] = armed.isOver;
   return value;
}

Value valueOf( Auditor::Outcome const & outcome ) {
   return Value::Object{
      { "mismatches", outcome.mismatches }, { "repaired", outcome.repaired }, { "hard", outcome.hard } };
}

void addFaultCommands( Commands & commands, SliceAgent & agent ) {
   using enum Argument::Type;
   commands.add( { .name = "fault add",
                   .does = "make a chip fail",
                   .arguments = { { .name = "place", .isOptional = true, .what = "TABLE[ARRAY][.ENTRY]; any" },
                                  { .name = "kind", .what = "lost, flip:BIT, stuck:BIT=V, error or delay:MS" },
                                  { .name = "fap", .type = number, .isOptional = true, .what = "its number; any" },
                                  { .name = "copy", .type = number, .isOptional = true, .what = "0 or 1; any" },
                                  { .name = "count", .type = number, .isOptional = true, .what = "how often at most" },
                                  { .name = "probability", .isOptional = true, .what = "at each operation" },
                                  { .name = "for", .type = number, .isOptional = true, .what = "seconds" },
                                  { .name = "seed", .type = number, .isOptional = true, .what = "of its chance" } },
                   .changes = true,
                   .answer = [&agent]( Arguments const & given ) -> Answer {
                      agent.sw().fault( faultIn( given ) );
                      return valueOf( agent.sw().supervised()->armed().back() );
                   } } );
   commands.add( { .name = "fault list",
                   .does = "what chips were made to fail with, and how often it fired",
                   .answer = [&agent]( Arguments const & ) -> Answer {
                      Value::List all;
                      for ( auto const & armed : agent.sw().supervised()->armed() ) {
                         all.push_back( valueOf( armed ) );
                      }
                      return Value( std::move( all ) );
                   } } );
   commands.add( { .name = "fault clear",
                   .does = "end a fault, or all of them; what they have done stays",
                   .arguments = { { .name = "number", .type = number, .isOptional = true, .what = "as listed; all" } },
                   .changes = true,
                   .answer = [&agent]( Arguments const & given ) -> Answer {
                      SupervisedChips & chips = *agent.sw().supervised();
                      auto const wanted = given.optional< U32 >( "number" );
                      auto const before = chips.armed().size();
                      if ( !wanted ) {
                         chips.disarmAll();
                      } else if ( !chips.disarm( *wanted ) ) {
                         throw CommandError( CommandError::refused,
                                             "there is no fault " + std::to_string( *wanted ) + "; see fault list" );
                      }
                      return Value::Object{ { "cleared", before - chips.armed().size() } };
                   } } );
}

} // namespace

void addChipCommands( Commands & commands, AgentSubjects const & subjects ) {
   SliceAgent & agent = subjects.agent;
   Auditor & auditor = *subjects.auditor;
   addFaultCommands( commands, agent );
   commands.add( { .name = "audit run",
                   .does = "compare all that the chips hold with what was written, and repair it",
                   .changes = true,
                   .answer = [&auditor]( Arguments const & ) -> Answer { return valueOf( auditor.runs() ); } } );
   commands.add( { .name = "audit status",
                   .does = "what was found wrong on the chips",
                   .answer = [&auditor]( Arguments const & ) -> Answer { return auditor.status(); } } );
   commands.add( { .name = "repair",
                   .does = "try again what was given up: hard places, chips that failed, a drift that is held",
                   .changes = true,
                   .answer = [&agent, &auditor]( Arguments const & ) -> Answer {
                      auto const committed = agent.commits();
                      if ( !agent.mayWrite() ) {
                         throw CommandError( CommandError::refused,
                                             "the chips are to stay as they are while the agent is " +
                                                std::string( nameOf( agent.phase() ) ) );
                      }
                      Value outcome = valueOf( auditor.triesAgain() );
                      agent.chipsAreAnother();
                      ( *outcome.object() )["committed"] = committed;
                      ( *outcome.object() )["phase"] = std::string( nameOf( agent.phase() ) );
                      return outcome;
                   } } );
}

} // namespace Live
