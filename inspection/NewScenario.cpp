#include "inspection/NewScenario.h"

#include "inspection/Play.h"
#include "inspection/ServedFaps.h"
#include "inspection/SubjectTexts.h"
#include "inspection/files/Json.h"
#include "rex/Nearest.h"

namespace Inspection {

namespace {

using Rex::Value;

constexpr U32 currentSdkVersion = 7;
constexpr int mostAttempts = 3; // each opens a gate that the one before has found closed

// Puts what `more` says into an object, into what stands there already where it is an object itself.
void merge( Value & into, Value const & more ) {
   for ( auto const & [key, value] : objectOf( more ) ) {
      auto const [there, isNew] = into.object()->try_emplace( key, value );
      if ( !isNew && there->second.object() && value.object() ) {
         merge( there->second, value );
      } else if ( !isNew ) {
         there->second = value;
      }
   }
}

Value part( Value const & of, char const * name, Value const & otherwise ) {
   auto const found = of.object()->find( name );
   return found == of.object()->end() ? otherwise : found->second;
}

Subject const & subjectNamed( std::string const & name ) {
   std::vector< std::string > names;
   std::string all;
   for ( Subject const & subject : subjects() ) {
      if ( subject.name == name ) {
         return subject;
      }
      names.push_back( subject.name );
      all += ( all.empty() ? "" : ", " ) + subject.name;
   }
   auto const remedy = Rex::didYouMean( name, names );
   throw InputError( "--with " + name, "no such subject" + ( remedy.empty() ? "; there are " + all : remedy ) );
}

Value fapValue( Hardware::ChipType chipType, U16 number, std::optional< U16 > cores ) {
   Value::Object fap;
   fap["fapId"] = number;
   if ( cores ) {
      fap["cores"] = *cores;
   }
   fap["ports"] = Value::Object{ { std::to_string( number * 10 + 10 ), 1 }, { std::to_string( number * 10 + 11 ), 2 } };
   fap["revision"] = Value::Object{ { "chipType", chipTypeName( chipType ) }, { "sdkVersion", currentSdkVersion } };
   return fap;
}

Value scenarioFor( WantedScenario const & wanted ) {
   auto const chips = wanted.chips.empty() ? std::vector{ Hardware::allChipTypes.front() } : wanted.chips;
   Value::List faps;
   for ( auto const chipType : chips ) {
      faps.push_back( fapValue( chipType, static_cast< U16 >( faps.size() ), wanted.cores ) );
   }
   std::string name;
   Value toggles = Value::Object();
   Value state = Value::Object();
   Value::List events;
   for ( std::string const & of : wanted.subjects ) {
      Subject const & subject = subjectNamed( of );
      name += ( name.empty() ? "" : ", " ) + subject.name;
      merge( toggles, part( subject.scenario, "toggles", Value::Object() ) );
      merge( state, part( subject.scenario, "state", Value::Object() ) );
      auto const more = part( subject.scenario, "events", Value::List() );
      events.insert( events.end(), more.list()->begin(), more.list()->end() );
   }
   Value::Object scenario{
      { "name", name.empty() ? "A switch of my own" : name },
      { "switch",
        Value::Object{ { "slice", Value::Object{ { "name", Simulator::SwitchDescription().sliceName } } },
                       { "faps", std::move( faps ) } } },
      { "toggles", toggles },
      { "state", state },
      { "events", std::move( events ) } };
   if ( !wanted.schema.empty() ) {
      scenario["$schema"] = wanted.schema;
   }
   return scenario;
}

class ServedReader : public Simulator::RowReader {
 public:
   void row( Simulator::Row const & row ) override { faps.follow( row ); }
   ServedFaps faps;
};

// Plays it, and tells which settings would open the gates that keep a FAP from being served.
std::vector< ServedFap::Opener > closedGates( Value const & value, std::string const & plugin ) {
   Child const child = inChild( [&]( std::ostream & out ) {
      Scenario const scenario = scenarioOf( value, "the new scenario" );
      loadPlugin( plugin );
      ServedReader reader;
      auto description = scenario.description;
      description.journalled = Simulator::SwitchDescription::Journalled::streamed;
      Simulator::SimulatedSwitch sw( description );
      sw.journal().readerAdd( reader );
      play( scenario, sw );
      for ( auto const & fap : scenario.description.faps ) {
         out << reader.faps.of( fap.fapId.value() ).reason << '\n';
      }
   } );
   if ( !child.isFine ) {
      throw InputError( "these subjects don't go together: " + child.errors );
   }
   std::istringstream reasons( child.output );
   for ( std::string reason; std::getline( reasons, reason ); ) {
      if ( !reason.empty() ) {
         return openersOf( reason );
      }
   }
   return {};
}

} // namespace

std::vector< Subject > const & subjects() {
   static std::vector< Subject > const all = [] {
      std::vector< Subject > read;
      for ( SubjectText const & text : subjectTexts() ) {
         Value value = parseJson( text.text, text.name );
         std::string const does = *value.object()->at( "does" ).text();
         value.object()->erase( "does" );
         read.push_back( { text.name, does, value } );
      }
      return read;
   }();
   return all;
}

Value newScenario( WantedScenario const & wanted, std::string const & plugin ) {
   Value scenario = scenarioFor( wanted );
   if ( auto const warnings = scenarioOf( scenario, "the new scenario" ).warnings; wanted.cores && !warnings.empty() ) {
      throw InputError( "--cores " + std::to_string( *wanted.cores ), warnings.front().text );
   }
   for ( int attempt = 0; attempt < mostAttempts; ++attempt ) {
      auto const openers = closedGates( scenario, plugin );
      if ( openers.empty() ) {
         break;
      }
      auto const & opener = openers.front();
      merge( scenario.object()->at( "toggles" ),
             Value::Object{ { std::string( opener.toggle->file ),
                              Value::Object{ { std::string( opener.toggle->name ), opener.state } } } } );
   }
   return scenario;
}

} // namespace Inspection
