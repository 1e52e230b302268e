// VerbOptions: what a verb takes on the command line. Each call says where a value goes, which outlives the parsing.
//
//    verb.required( "CHIPS", options->file, "a file that `l3sm run --chips` wrote" );
//    verb.text( "--out", options->out, "write the contents of the chips", "FILE" );
//    verb.number( "--fap", options->fap, "only this FAP" );
//    verb.flag( "--json", options->json, "for programs" );
//
// A name without dashes is that of a place: the arguments without a name go there, in the order of the calls.
//
// Threading: none.
#pragma once

#include "corvo/Types.h"

#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace Cli {

// Has an option of many values take as many words as there are. By its own rules it would take those in brackets apart,
// wherever it may take more of them than it expects: so it expects as many as there can be.
void takesWordsAsTyped( CLI::Option & option );

class VerbOptions {
 public:
   explicit VerbOptions( CLI::App & app ) : app_( app ) {}

   void text( char const * name, std::string & into, char const * help, char const * type = nullptr );
   void required( char const * name, std::string & into, char const * help );
   // As many values as follow.
   void texts( char const * name, std::vector< std::string > & into, char const * help, char const * type = nullptr );
   // One value each time that it is given.
   void repeated( char const * name, std::vector< std::string > & into, char const * help, char const * type );
   void number( char const * name, std::optional< U8 > & into, char const * help );
   void number( char const * name, std::optional< U16 > & into, char const * help );
   void number( char const * name, std::optional< U32 > & into, char const * help );
   void flag( char const * name, bool & into, char const * help );
   // The last lines of its help.
   void footer( std::string const & text );

 private:
   CLI::App & app_;
};

} // namespace Cli
