// The traces of a run: which facilities, and where to.
#pragma once

#include "inspection/files/OutputFile.h"
#include "rex/Trace.h"

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace Cli {

// What `--trace` asks for: "DaceFapNiL3Sm/8,DaceFapNiMplsParser/5", "*/9".
class Tracing {
 public:
   // `file`: where the records go, "-" for standard output, empty for standard error. InputError.
   Tracing( std::string const & wanted, std::string const & file );
   ~Tracing();
   Tracing( Tracing const & ) = delete;
   Tracing & operator=( Tracing const & ) = delete;

   // Opens the file and switches the facilities on. Call it once the plug-in is loaded: a facility that nobody has
   // registered is an InputError.
   void start();
   // InputError where the file couldn't take all of it.
   void flush();

 private:
   struct Facility {
      std::string name;
      int level;
   };
   struct Closer {
      void operator()( std::FILE * file ) const { file == stdout ? std::fflush( file ) : std::fclose( file ); }
   };

   void checkNames() const;

   std::vector< Facility > facilities_;
   std::string path_;
   std::unique_ptr< std::FILE, Closer > file_;
   int failureHook_ = 0;
};

} // namespace Cli
