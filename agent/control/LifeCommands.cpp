// How an agent is doing, and what it is told to do.
#include "agent/control/AgentCommands.h"

#include "inspection/files/InputError.h"

#include <algorithm>
#include <memory>

namespace Live {

namespace {

using Rex::Value;

constexpr double milliseconds = 1000; // in a second

// How long the last transaction took from its writer to the chips, by the clock that both have.
class Lag final : public AgentOnlooker {
 public:
   void transactionPlayed( Transaction const & transaction, Rex::Seconds ) override {
      if ( auto const lag = transaction.lag() ) {
         last_ = static_cast< std::int64_t >( *lag * milliseconds );
      }
   }
   Value value() const { return last_ ? Value( *last_ ) : Value(); }

 private:
   std::optional< std::int64_t > last_;
};

Value statusOf( AgentSubjects const & subjects, Lag const & lag ) {
   SliceAgent const & agent = subjects.agent;
   auto const seconds = []( Rex::Seconds time ) { return static_cast< std::int64_t >( time ); };
   Value::Object status{
      { "slice", agent.scenario().description.sliceName },
      { "phase", std::string( nameOf( agent.phase() ) ) },
      { "reason", agent.reason() },
      { "since", seconds( Rex::now() - std::max( agent.phaseSince(), subjects.begun ) ) },
      { "database", subjects.agent.database().name() },
      { "position", agent.position().entry },
      { "epoch", agent.position().epoch },
      { "events", agent.sw().event() },
      { "waiting", agent.waiting() },
      { "lag", lag.value() },
      { "rejected", agent.rejected().size() },
      { "drift", agent.drift() },
      { "version", subjects.version },
      { "plugin", subjects.plugin },
      { "uptime", seconds( Rex::now() - subjects.begun ) },
   };
   if ( !agent.rejected().empty() ) {
      status["rejectedPlaces"] = agent.rejectedTold();
   }
   return status;
}

} // namespace

void addLifeCommands( Commands & commands, AgentSubjects const & subjects ) {
   SliceAgent & agent = subjects.agent;
   auto const lag = std::make_shared< Lag >(); // which the commands keep alive
   agent.onlookerAdd( *lag );
   commands.add( { .name = "status",
                   .does = "how the agent is doing: phase, position in the log, what it has rejected",
                   .answer = [subjects, lag]( Arguments const & ) -> Answer { return statusOf( subjects, *lag ); } } );
   commands.add( { .name = "freeze",
                   .does = "act on nothing until it is thawed",
                   .changes = true,
                   .answer = [&agent]( Arguments const & ) -> Answer {
                      agent.freeze();
                      return std::string( nameOf( agent.phase() ) );
                   } } );
   commands.add( { .name = "thaw",
                   .does = "act again, and catch up with what came meanwhile",
                   .changes = true,
                   .answer = [&agent]( Arguments const & ) -> Answer {
                      agent.thaw();
                      return std::string( nameOf( agent.phase() ) );
                   } } );
   if ( subjects.metrics ) {
      commands.add( { .name = "metrics",
                      .does = "what it has counted, in the text format of Prometheus",
                      .answer = [subjects]( Arguments const & ) -> Answer { return subjects.metrics(); } } );
   }
   commands.add( { .name = "exit",
                   .does = "end the agent; the chips stay as they are",
                   .changes = true,
                   .answer = [&agent]( Arguments const & ) -> Answer {
                      agent.loop().end( 0 );
                      return "the agent ends";
                   } } );
}

void addAgentCommands( Commands & commands, AgentSubjects const & subjects ) {
   addLifeCommands( commands, subjects );
   addAnswerCommands( commands, subjects );
   addStateCommands( commands, subjects );
   addTraceCommands( commands );
   if ( subjects.auditor ) {
      addChipCommands( commands, subjects );
   }
}

} // namespace Live
