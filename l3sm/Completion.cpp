#include "l3sm/Completion.h"

#include "l3sm/Candidates.h"
#include "l3sm/verbs/Verbs.h"

#include <CLI/CLI.hpp>
#include <algorithm>

namespace Cli {

namespace {

// One value that is a word, or as many as follow.
bool takesMany( CLI::Option const & option ) {
   return option.get_items_expected_max() > 1;
}

std::string longName( CLI::Option const & option ) {
   return option.get_lnames().empty() ? std::string() : "--" + option.get_lnames().front();
}

CLI::Option const * optionNamed( CLI::App const & verb, std::string const & name ) {
   for ( auto const * option : optionsOf( verb ) ) {
      if ( option->check_name( name ) ) {
         return option;
      }
   }
   return nullptr;
}

// A line under way: what has been read of it before the word that is being typed.
struct Line {
   CLI::Option const * waiting = nullptr; // an option whose value comes next
   std::vector< std::string > values;     // in the places
   std::size_t firstAt = 0;               // the word that is the first of them
   std::vector< std::string > given;      // options

   bool has( std::string const & option ) const { return std::ranges::find( given, option ) != given.end(); }
};

Line lineOf( CLI::App const & verb, std::vector< std::string > const & words ) {
   Line line;
   for ( std::size_t at = 2; at + 1 < words.size(); ++at ) {
      std::string const & word = words[at];
      if ( !word.starts_with( "-" ) || word == "-" ) {
         if ( !line.waiting ) {
            line.firstAt = line.values.empty() ? at : line.firstAt;
            line.values.push_back( word );
         } else if ( !takesMany( *line.waiting ) ) {
            line.waiting = nullptr;
         }
         continue;
      }
      std::string const name = word.substr( 0, word.find( '=' ) );
      auto const * const option = optionNamed( verb, name );
      line.given.push_back( option ? longName( *option ) : name );
      line.waiting = option && takesValue( *option ) && name == word ? option : nullptr;
   }
   return line;
}

Candidates valuesOf( CLI::Option const & option, std::string const & typed, Line const & line ) {
   return candidatesFor( placeOf( option ), typed, line.values );
}

Candidates optionNames( CLI::App const & verb, std::string const & typed, Line const & line ) {
   Candidates all;
   for ( auto const * option : optionsOf( verb ) ) {
      std::string const name = longName( *option );
      bool const isRepeated = option->get_multi_option_policy() == CLI::MultiOptionPolicy::TakeAll;
      if ( name.starts_with( typed ) && ( isRepeated || !line.has( name ) ) ) {
         all.list.push_back( { name, option->get_description() } );
      }
   }
   return all;
}

Candidates verbNames( CLI::App const & app, std::string const & typed ) {
   Candidates all;
   for ( auto const * verb : verbsOf( app ) ) {
      all.list.push_back( { verb->get_name(), verb->get_description() } );
   }
   for ( auto const * option : optionsOf( app ) ) {
      all.list.push_back( { longName( *option ), option->get_description() } );
   }
   std::erase_if( all.list, [&]( Candidate const & candidate ) { return !candidate.text.starts_with( typed ); } );
   return all;
}

Candidates ofVerb( CLI::App const & verb, std::vector< std::string > const & words ) {
   Line const line = lineOf( verb, words );
   std::string const & typed = words.back();
   if ( typed.starts_with( "-" ) ) {
      auto const equals = typed.find( '=' );
      auto const * const option =
         equals == std::string::npos ? nullptr : optionNamed( verb, typed.substr( 0, equals ) );
      if ( !option ) {
         return optionNames( verb, typed, line );
      }
      Candidates all = valuesOf( *option, typed.substr( equals + 1 ), line );
      for ( Candidate & candidate : all.list ) {
         candidate.text.insert( 0, typed.substr( 0, equals + 1 ) );
      }
      return all;
   }
   if ( line.waiting ) {
      return valuesOf( *line.waiting, typed, line );
   }
   auto places = placesOf( verb );
   if ( places.size() > 1 && line.has( "--agent" ) ) { // which stands for the file that comes first
      places.erase( places.begin() );
   }
   std::size_t const at = line.values.size();
   if ( at < places.size() ) {
      return valuesOf( *places[at], typed, line );
   }
   bool const goesOn = !places.empty() && places.back()->get_items_expected_max() > 1;
   return goesOn ? valuesOf( *places.back(), typed, line ) : Candidates{};
}

// As the verb that `ctl` asks an agent by, where it is one.
std::vector< std::string > withoutCtlIn( CLI::App const & app, std::vector< std::string > words ) {
   auto const * const ctl = app.get_subcommand( words[1] );
   Line const line = lineOf( *ctl, words );
   if ( line.values.empty() || !isOfAgentsToo( line.values[0] ) ) {
      return words;
   }
   std::vector< std::string > verb{ words[0], line.values[0], "--agent", "" };
   verb.insert( verb.end(), words.begin() + static_cast< std::ptrdiff_t >( line.firstAt ) + 1, words.end() );
   return verb;
}

} // namespace

std::vector< CLI::App const * > verbsOf( CLI::App const & app ) {
   return app.get_subcommands( []( CLI::App const * verb ) { return !verb->get_group().empty(); } );
}

std::vector< CLI::Option const * > optionsOf( CLI::App const & verb ) {
   return verb.get_options(
      []( CLI::Option const * option ) { return option->nonpositional() && !option->get_group().empty(); } );
}

std::vector< CLI::Option const * > placesOf( CLI::App const & verb ) {
   return verb.get_options(
      []( CLI::Option const * option ) { return option->get_positional() && !option->get_group().empty(); } );
}

bool takesValue( CLI::Option const & option ) {
   return option.get_items_expected_max() > 0;
}

std::string placeOf( CLI::Option const & option ) {
   if ( takesValue( option ) ) {
      for ( auto const & name :
            { option.nonpositional() ? longName( option ) : option.get_name( true ), option.get_type_name() } ) {
         if ( isKnownPlace( name ) ) {
            return name;
         }
      }
   }
   return {};
}

void writeCompletion( std::ostream & out, CLI::App const & app, std::vector< std::string > const & typed ) {
   if ( typed.size() < 2 ) {
      return;
   }
   auto const words = typed.size() > 2 && typed[1] == "ctl" ? withoutCtlIn( app, typed ) : typed;
   Candidates all;
   if ( words.size() == 2 ) {
      all = verbNames( app, words[1] );
   } else if ( words[1] == "help" ) {
      all = words.size() == 3 ? verbNames( app, words[2] ) : Candidates{};
   } else {
      for ( auto const * verb : verbsOf( app ) ) {
         all = verb->get_name() == words[1] ? ofVerb( *verb, words ) : all;
      }
   }
   for ( Candidate const & candidate : all.list ) {
      out << candidate.text << ( candidate.about.empty() ? "" : "\t" ) << candidate.about << '\n';
   }
   out << ( all.files ? ":files\n" : "" ) << ( all.isOpen ? ":open\n" : "" );
}

} // namespace Cli
