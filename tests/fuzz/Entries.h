// What is fed with anything at all: one entry point for each kind of input that comes from outside. An entry reads the
// bytes as the program would. A refusal (InputError, the generator's Error, an answer that tells of an error) is a fine
// answer; anything else that isn't one is a finding: an assertion, another exception, a report of the sanitizers, a
// text for people that would move their cursor.
//
//    for ( Fuzz::Entry const & entry : Fuzz::entries() ) { entry.feed( bytes ); }
//
// An entry leaves nothing behind that the next input would meet: it can be fed as often as anybody likes.
#pragma once

#include <string>
#include <vector>

namespace Fuzz {

struct Entry {
   char const * name; // also of its folder in corpus/
   void ( *feed )( std::string const & bytes );
};

std::vector< Entry > const & entries();

// Files that verbs read.
void scenario( std::string const & bytes );
void journal( std::string const & bytes );
void chips( std::string const & bytes );
void recording( std::string const & bytes );

// What an agent is told. Lines each:
void control( std::string const & bytes ); // requests, as they come to the control socket
// PATH, PATH<tab>OBJECT or PATH<tab>ATTRIBUTE<tab>TEXT: what stands in a database; an empty line, and it is another
// state.
void state( std::string const & bytes );
void log( std::string const & bytes );  // ID<tab>FIELD<tab>TEXT…: the entries of a Redis' log
void etcd( std::string const & bytes ); // answers of an etcd

// What the generator reads, and what a person types, an argument a line.
void catalogue( std::string const & bytes );
void commandLine( std::string const & bytes );

} // namespace Fuzz
