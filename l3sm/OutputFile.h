// A file that a verb is to write at its end.
//
//    OutputFile const chips( path );      // at the door: InputError if it can't be written
//    ...
//    chips.write( text );                 // once everything went well
#pragma once

#include <string>

namespace Cli {

class OutputFile {
 public:
   // An empty path: no file is wanted, and write() does nothing. Nothing is created yet.
   explicit OutputFile( std::string path );
   bool isWanted() const { return !path_.empty(); }
   // Throws InputError.
   void write( std::string const & text ) const;

 private:
   std::string path_;
};

} // namespace Cli
