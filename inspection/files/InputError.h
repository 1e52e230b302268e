// What a person has got wrong: an option, or an input file. It ends the program with status 2 and one line for each
// thing that is wrong.
//
//    throw InputError( "--fap 7", "the switch has no such FAP" );
//    throw InputError( { "s.json:3:9: expected true or false, got 1", "s.json:7:5: ..." } );
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace Inspection {

class InputError : public std::runtime_error {
 public:
   explicit InputError( std::string const & text ) : InputError( std::vector{ text } ) {}
   // `place`: "FILE", "FILE:LINE:COLUMN", or "FILE: POINTER".
   InputError( std::string const & place, std::string const & text ) : InputError( place + ": " + text ) {}
   explicit InputError( std::vector< std::string > lines )
      : std::runtime_error( joined( lines ) ), lines_( std::move( lines ) ) {}

   // what() has them one below the other.
   std::vector< std::string > const & lines() const { return lines_; }

 private:
   static std::string joined( std::vector< std::string > const & lines ) {
      std::string all;
      for ( auto const & line : lines ) {
         all += ( all.empty() ? "" : "\n" ) + line;
      }
      return all;
   }
   std::vector< std::string > lines_;
};

} // namespace Inspection
