// A file that a verb is to write at its end.
//
//    OutputFile const chips( path );      // at the door: InputError if it can't be written
//    ...
//    chips.write( text );                 // once everything went well
#pragma once

#include <functional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace Inspection {

class OutputFile {
 public:
   // "-": standard output. An empty path: no file is wanted, and write() does nothing. Nothing is created yet.
   explicit OutputFile( std::string path );
   bool isWanted() const { return !path_.empty(); }
   bool isStandard() const { return path_ == "-"; }
   // What to open.
   std::string path() const { return isStandard() ? "/dev/stdout" : path_; }
   // Throws InputError.
   void write( std::string const & text ) const;
   // Runs `write` on the file's stream, where a file is wanted: for what is large. InputError.
   void stream( std::function< void( std::ostream & out ) > const & write ) const;
   // Runs `write`, which writes the file itself and throws "<path>: <reason>" as a std::runtime_error where it can't.
   template< class Write >
   void writing( Write const & write ) const {
      try {
         write();
      } catch ( std::runtime_error const & error ) {
         refuse( error.what() );
      }
   }

 private:
   [[noreturn]] void refuse( std::string const & why ) const;
   std::string path_;
};

// No two of the files may be one: what is read would be gone, or what is written be lost. Empty paths don't count; "-"
// is standard input where it is read, standard output where it is written. InputError.
void eachAlone( std::vector< std::string > const & written, std::vector< std::string > const & read = {} );

} // namespace Inspection
