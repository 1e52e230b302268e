#include "agent/control/Commands.h"

#include "inspection/files/InputError.h"
#include "rex/Nearest.h"

#include <algorithm>

namespace Live {

namespace {

using Rex::Value;
using Type = Argument::Type;

std::string expected( Argument const & argument ) {
   static constexpr char const * kinds[] = {
      "a string", "a number, 0 or more", "true or false", "a list of strings", "a value" };
   return std::string( "expected " ) + kinds[static_cast< std::size_t >( argument.type )] +
          ( argument.what.empty() ? "" : ": " + argument.what );
}

bool isText( Value const & value ) {
   return value.text() != nullptr;
}

bool is( Type type, Value const & value ) {
   switch ( type ) {
   case Type::text:
      return isText( value );
   case Type::number:
      return value.integer() && *value.integer() >= 0;
   case Type::flag:
      return value.boolean() != nullptr;
   case Type::texts:
      return value.list() && std::ranges::all_of( *value.list(), isText );
   case Type::value:
      break;
   }
   return true;
}

[[noreturn]] void refuse( std::string const & what ) {
   throw CommandError( CommandError::wrongArguments, what );
}

// "; the arguments are facility, level"
std::string argumentsThere( Command const & command ) {
   std::string all;
   for ( Argument const & argument : command.arguments ) {
      all += ( all.empty() ? "; the arguments are " : ", " ) + argument.name;
   }
   return all.empty() ? "; there are none" : all;
}

Value::Object byName( Command const & command, Value const & given ) {
   if ( given.isNull() ) {
      return {};
   }
   if ( auto const * object = given.object() ) {
      return *object;
   }
   auto const * list = given.list();
   if ( !list ) {
      refuse( "params: expected an object or a list, got " + Rex::kindOf( given ) );
   }
   if ( list->size() > command.arguments.size() ) {
      refuse( command.name + " takes " + std::to_string( command.arguments.size() ) + " arguments, got " +
              std::to_string( list->size() ) + argumentsThere( command ) );
   }
   Value::Object named;
   for ( std::size_t at = 0; at < list->size(); ++at ) {
      named[command.arguments[at].name] = ( *list )[at];
   }
   return named;
}

} // namespace

CommandError commandErrorOf( std::exception_ptr const & thrown ) {
   try {
      std::rethrow_exception( thrown );
   } catch ( CommandError const & error ) {
      return error;
   } catch ( Inspection::InputError const & error ) {
      return { CommandError::refused, error.what() };
   } catch ( Rex::ValueError const & error ) {
      return { CommandError::wrongArguments, error.place() + ": " + error.what() };
   } catch ( std::exception const & error ) {
      return { CommandError::broken, error.what() };
   } catch ( ... ) {
      return { CommandError::broken, "the answer failed" };
   }
}

char const * nameOf( Type type ) {
   static constexpr char const * names[] = { "text", "number", "flag", "texts", "value" };
   return names[static_cast< std::size_t >( type )];
}

Arguments::Arguments( Command const & command, Value const & given ) : given_( byName( command, given ) ) {
   for ( auto const & [name, value] : given_ ) {
      if ( std::ranges::find( command.arguments, name, &Argument::name ) == command.arguments.end() ) {
         std::vector< std::string > known;
         std::ranges::transform( command.arguments, std::back_inserter( known ), &Argument::name );
         auto const remedy = Rex::didYouMean( name, known );
         refuse( name + ": " + command.name + " has no such argument" +
                 ( remedy.empty() ? argumentsThere( command ) : remedy ) );
      }
   }
   std::ranges::for_each( command.arguments, [this]( Argument const & argument ) { check( argument ); } );
}

void Arguments::check( Argument const & argument ) const {
   auto const found = given_.find( argument.name );
   if ( found == given_.end() ) {
      if ( !argument.isOptional ) {
         refuse( argument.name + " is missing; " + expected( argument ) );
      }
      return;
   }
   if ( !is( argument.type, found->second ) ) {
      auto const kind = Rex::kindOf( found->second );
      bool const isTooLow = argument.type == Type::number && found->second.integer();
      refuse( argument.name + ": " + expected( argument ) + "; got " +
              ( isTooLow ? std::to_string( *found->second.integer() ) : kind ) );
   }
}

Value const & Arguments::value( std::string const & name ) const {
   static Value const none;
   auto const found = given_.find( name );
   return found == given_.end() ? none : found->second;
}

std::vector< std::string > Arguments::texts( std::string const & name ) const {
   std::vector< std::string > all;
   if ( auto const * list = value( name ).list() ) {
      std::ranges::transform( *list, std::back_inserter( all ), []( Value const & text ) { return *text.text(); } );
   }
   return all;
}

Commands::Commands() {
   add( { .name = "list", .does = "every command with its arguments", .answer = [this]( Arguments const & ) {
            return list();
         } } );
}

void Commands::add( Command command ) {
   all_.push_back( std::move( command ) );
}

Command const & Commands::named( std::string const & name ) const {
   if ( auto const found = std::ranges::find( all_, name, &Command::name ); found != all_.end() ) {
      return *found;
   }
   std::vector< std::string > known;
   std::ranges::transform( all_, std::back_inserter( known ), &Command::name );
   auto const remedy = Rex::didYouMean( name, known );
   throw CommandError( CommandError::noSuchCommand,
                       "there is no command \"" + name + "\"" +
                          ( remedy.empty() ? "; \"list\" tells which there are" : remedy ) );
}

Value Commands::list() const {
   Value::List commands;
   for ( Command const & command : all_ ) {
      Value::List arguments;
      for ( Argument const & argument : command.arguments ) {
         arguments.push_back( Value::Object{ { "name", argument.name },
                                             { "type", nameOf( argument.type ) },
                                             { "optional", argument.isOptional },
                                             { "what", argument.what } } );
      }
      commands.push_back( Value::Object{ { "name", command.name },
                                         { "does", command.does },
                                         { "arguments", std::move( arguments ) },
                                         { "changes", command.changes } } );
   }
   return commands;
}

} // namespace Live
