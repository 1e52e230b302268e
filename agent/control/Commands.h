// What an agent can be asked and told at its control socket: each command is told of where its subject lives, and the
// list of all of them is a command too.
//
//    Commands commands;
//    commands.add( { .name = "trace set",
//                    .does = "trace a facility up to a level",
//                    .arguments = { { .name = "facility", .what = "its name; * for every facility" },
//                                   { .name = "level", .type = Argument::Type::number, .what = "0 to 9" } },
//                    .changes = true,
//                    .answer = []( Arguments const & given ) -> Answer {
//                       Rex::traceLevelIs( given.required< std::string >( "facility" ), … );
//                       return Rex::Value();
//                    } } );
//    Command const & command = commands.named( "trace set" );                     // CommandError
//    command.answer( Arguments( command, Rex::Value::List{ "DaceFapNiL3Sm", 8 } ) );
//
// A command answers at once, with a value, or hands back what answers at length: that runs in a copy of the process
// (AnsweringCopies.h), so that the agent goes on meanwhile.
//
// Threading: the agent's loop.
#pragma once

#include "rex/Value.h"

#include <exception>
#include <functional>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

namespace Live {

// Why a command has no result, as the client is told.
class CommandError : public std::runtime_error {
 public:
   // Those below -32599 mean the same to every JSON-RPC client.
   enum Code : int {
      noJson = -32700,
      noRequest = -32600,
      noSuchCommand = -32601,
      wrongArguments = -32602,
      broken = -32603, // a mistake of the agent's
      refused = -32000,
      noRight = -32001,
      tooMuch = -32002, // over a limit; the connection ends
   };
   CommandError( Code code, std::string const & what ) : std::runtime_error( what ), code_( code ) {}
   Code code() const { return code_; }

 private:
   Code code_;
};
// What anything that an answer has thrown is for the client: an Inspection::InputError can't be done, a Rex::ValueError
// is about an argument.
CommandError commandErrorOf( std::exception_ptr const & thrown );

struct Argument {
   enum class Type : U8 { text, number, flag, texts, value };

   std::string name;
   Type type = Type::text;
   bool isOptional = false;
   std::string what; // for people
};

// "text", "number", …
char const * nameOf( Argument::Type type );

struct Command;

// What a command is called with, checked: each argument is one that the command has, of its type, and none is missing.
class Arguments {
 public:
   // `given`: an object, by name; a list, in the command's order; null, none. CommandError names the argument and what
   // was expected.
   Arguments( Command const & command, Rex::Value const & given );

   bool has( std::string const & name ) const { return given_.contains( name ); }
   // Null where it isn't given.
   Rex::Value const & value( std::string const & name ) const;
   template< class T >
   std::optional< T > optional( std::string const & name ) const {
      if ( !has( name ) ) {
         return std::nullopt;
      }
      return reading( name, [&] { return Rex::Codec< T >::fromValue( value( name ) ); } );
   }
   template< class T >
   T required( std::string const & name ) const {
      return optional< T >( name ).value();
   }
   bool flag( std::string const & name ) const { return optional< bool >( name ).value_or( false ); }
   std::vector< std::string > texts( std::string const & name ) const;
   // Runs `read`; a Rex::ValueError of it becomes a CommandError that names the argument.
   template< class Read >
   static decltype( auto ) reading( std::string const & name, Read const & read ) {
      try {
         return read();
      } catch ( Rex::ValueError const & error ) {
         throw CommandError( CommandError::wrongArguments, name + error.place() + ": " + error.what() );
      }
   }

 private:
   void check( Argument const & argument ) const;
   Rex::Value::Object given_;
};

// Writes a value as JSON. It runs in a copy of the process that has the state of the moment of the call, and no file of
// the agent's. Whatever it throws before it has written much becomes an error of the call.
struct LongAnswer {
   std::function< void( std::ostream & ) > write;
};
using Answer = std::variant< Rex::Value, LongAnswer >;

struct Command {
   std::string name; // one word, or two: subject and verb
   std::string does; // one line
   std::vector< Argument > arguments = {};
   bool changes = false; // only the agent's owner and root may
   // Throws CommandError, Inspection::InputError where it can't be done, Rex::ValueError where an argument is wrong.
   std::function< Answer( Arguments const & ) > answer;
};

class Commands {
 public:
   Commands(); // with "list"
   Commands( Commands const & ) = delete;
   Commands & operator=( Commands const & ) = delete;

   void add( Command command );
   Command const & named( std::string const & name ) const; // CommandError
   // Of each command its name, what it does, its arguments, and whether it changes something.
   Rex::Value list() const;

 private:
   std::vector< Command > all_;
};

} // namespace Live
