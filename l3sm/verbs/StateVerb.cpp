// The verb `state`: the state in a central database, looked at and changed.
#include "agent/database/Databases.h"
#include "agent/database/StateFile.h"
#include "agent/database/StateWriter.h"
#include "inspection/files/InputError.h"
#include "inspection/views/Terminal.h"
#include "l3sm/DatabaseOptions.h"
#include "l3sm/StateFollowing.h"
#include "l3sm/verbs/Verbs.h"

#include <algorithm>
#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;
using namespace Live;

namespace {

constexpr char const * databaseVariable = "L3SM_DATABASE";
constexpr char const * usualDatabase = "redis://127.0.0.1"; // where an installed redis-server listens

struct StateOptions {
   std::string action;
   std::vector< std::string > words;
   std::string database;
   DatabaseCredentials credentials;
   std::optional< U32 > cell;
   std::string key;
   std::vector< std::string > slices;
   std::optional< U32 > timeout;
   bool json = false;

   std::unique_ptr< StateStore > store() const {
      char const * const told = std::getenv( databaseVariable );
      return stateStoreAt( !database.empty() ? database
                           : told && *told   ? told
                                             : usualDatabase,
                           credentials,
                           cell.value_or( 1 ) );
   }
   std::string word( std::size_t at ) const { return at < words.size() ? words[at] : std::string(); }
   std::optional< std::string > keyIfAny() const { return key.empty() ? std::nullopt : std::optional( key ); }
};

// What is no JSON is a text.
Rex::Value valueOfWord( std::string const & text ) {
   try {
      return valueOfText( text );
   } catch ( Rex::ValueError const & ) {
      return text;
   }
}

Rex::Value valueOf( Paths const & paths ) {
   Rex::Value::Object all;
   for ( auto const & [path, attributes] : paths ) {
      Rex::Value::Object object;
      for ( auto const & [name, text] : attributes ) {
         object.emplace( name, valueOfWord( text ) );
      }
      all.emplace( path, std::move( object ) );
   }
   return all;
}

void show( Paths const & paths, Style const & style ) {
   for ( auto const & [path, attributes] : paths ) {
      for ( auto const & [name, text] : attributes ) {
         std::cout << printable( path ) << ' ' << style.strong( printable( name ) ) << " = " << printable( text )
                   << '\n';
      }
      if ( attributes.empty() ) {
         std::cout << printable( path ) << style.faint( " (all at their defaults)" ) << '\n';
      }
   }
}

int get( StateOptions const & options ) {
   std::string const path = options.word( 0 );
   auto const snapshot = options.store()->snapshot( path );
   for ( auto const & [place, text] : snapshot.unreadable ) {
      std::cerr << "l3sm: " << printable( place ) << ": " << printable( text ) << '\n';
   }
   if ( snapshot.paths.empty() ) {
      try {
         placeOf( path );
      } catch ( Rex::ValueError const & error ) {
         throw InputError( "state get", error.what() );
      }
   }
   if ( options.json ) {
      std::cout << toJson( valueOf( snapshot.paths ), 2 ) << '\n';
   } else if ( snapshot.paths.empty() ) {
      std::cout << "nothing stands at " << printable( path ) << '\n';
   } else {
      show( snapshot.paths, Style::of( std::cout ) );
   }
   return snapshot.paths.empty() ? 1 : 0;
}

void showNotes( StateStore & store ) {
   for ( auto const & note : store.takeNotes() ) {
      std::cerr << "l3sm: " << printable( note ) << '\n';
   }
}

int write( StateOptions const & options, Event const & event ) {
   auto const store = options.store();
   auto const entry = StateWriter( *store ).write( event );
   showNotes( *store );
   if ( options.json ) {
      std::cout << toJson( Rex::Value::Object{ { "entry", entry }, { "change", Inspection::valueOf( event ) } }, 1 )
                << '\n';
   } else {
      std::cout << event.text() << '\n';
   }
   return 0;
}

int set( StateOptions const & options ) {
   return write( options,
                 { .path = options.word( 0 ),
                   .attribute = options.word( 1 ),
                   .key = options.keyIfAny(),
                   .value = valueOfWord( options.word( 2 ) ) } );
}

int remove( StateOptions const & options ) {
   bool const hasAttribute = options.words.size() > 1;
   if ( hasAttribute == options.key.empty() ) {
      throw InputError( "state delete", "an entry takes ATTRIBUTE and --key, an entity neither" );
   }
   return write( options,
                 { .kind = Event::Kind::remove,
                   .path = options.word( 0 ),
                   .attribute = hasAttribute ? std::optional( options.word( 1 ) ) : std::nullopt,
                   .key = options.keyIfAny() } );
}

int load( StateOptions const & options ) {
   auto const paths = stateOfFile( options.word( 0 ) );
   auto const epoch = options.store()->load( paths );
   if ( options.json ) {
      std::cout << toJson( Rex::Value::Object{ { "epoch", epoch }, { "paths", paths.size() } }, 1 ) << '\n';
   } else {
      std::cout << "a new life of the state: " << counted( paths.size(), "path", "paths" ) << ", epoch " << epoch
                << '\n';
   }
   return 0;
}

int apply( StateOptions const & options ) {
   auto const events = eventsOfFile( options.word( 0 ) );
   auto const store = options.store();
   StateWriter( *store ).writeEach( events, inputName( options.word( 0 ) ) );
   showNotes( *store );
   if ( options.json ) {
      std::cout << toJson( Rex::Value::Object{ { "events", events.size() } }, 1 ) << '\n';
   } else {
      std::cout << counted( events.size(), "event", "events" ) << " written\n";
   }
   return 0;
}

int watch( StateOptions const & options ) {
   return watchState( *options.store(), options.word( 0 ), options.json );
}

int wait( StateOptions const & options ) {
   constexpr U32 usualTimeout = 10;
   return waitForAgents( *options.store(), options.slices, options.timeout.value_or( usualTimeout ), options.json );
}

struct StateAction {
   char const * name;
   int ( *does )( StateOptions const & );
   char const * takes;
   std::size_t least;
   std::size_t most;
   bool takesKey = false;
   bool waits = false;
};

constexpr StateAction actions[] = {
   { "get", get, "[PATH]", 0, 1 },
   { "set", set, "PATH ATTRIBUTE VALUE [--key KEY]", 3, 3, true },
   { "delete", remove, "PATH [ATTRIBUTE --key KEY]", 1, 2, true },
   { "load", load, "FILE", 1, 1 },
   { "apply", apply, "FILE", 1, 1 },
   { "watch", watch, "[PATH]", 0, 1 },
   { "wait", wait, "[--slice SLICE] [--timeout S]", 0, 0, false, true },
};

int answer( StateOptions const & options ) {
   auto const * const action = std::ranges::find( actions, options.action, &StateAction::name );
   if ( action == std::end( actions ) ) {
      throw InputError( "state " + options.action, "is none of get, set, delete, load, apply, watch, wait" );
   }
   bool const fits = options.words.size() >= action->least && options.words.size() <= action->most &&
                     ( options.key.empty() || action->takesKey ) &&
                     ( ( options.slices.empty() && !options.timeout ) || action->waits );
   if ( !fits ) {
      throw InputError( "state " + options.action, std::string( "takes " ) + action->takes );
   }
   return action->does( options );
}

} // namespace

Action defineState( VerbOptions & verb ) {
   auto const options = std::make_shared< StateOptions >();
   verb.required( "ACTION",
                  options->action,
                  "get [PATH], set PATH ATTRIBUTE VALUE, delete PATH [ATTRIBUTE], load FILE, apply FILE, watch [PATH], "
                  "or wait" );
   verb.texts( "ARGUMENT", options->words, "what the action takes" );
   verb.text( "--database",
              options->database,
              "where it is: redis://[user@]host[:port][/n], redis+unix:///path.sock, or "
              "etcd://host[:port][,host[:port]...][/prefix], etcds:// over TLS; without it, what L3SM_DATABASE says, "
              "else redis://127.0.0.1",
              "URL" );
   defineCredentials( verb, options->credentials );
   verb.number( "--cell", options->cell, "the cell whose state it is; without it, 1" );
   verb.text( "--key", options->key, "set or delete this entry of the attribute", "KEY" );
   verb.repeated( "--slice", options->slices, "wait for this agent; without it, for all", "SLICE" );
   verb.number( "--timeout", options->timeout, "wait so many seconds; without it, 10" );
   verb.flag( "--json", options->json, "for programs" );
   verb.footer(
      "VALUE is JSON; a bare word is a text. `load` begins a new life of the state, with that of a scenario or "
      "of a file of `l3sm run --state`; the others need one. `apply` writes the events of a scenario, one "
      "transaction each. The password of a Redis comes from the environment, L3SM_REDIS_PASSWORD. Exit status: 1 "
      "nothing stands there, or an agent is late." );
   return [options] { return answer( *options ); };
}

} // namespace Cli
