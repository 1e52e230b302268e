// l3sm-generate: writes generated/ and the self-test from catalogue/.
//
//    l3sm-generate [--check] [SOURCE-TREE]
//
// --check writes nothing and ends with status 1 where a file is not what the catalogue says. A fault of the catalogue
// gives one line with file and line, and status 2.
#include "generator/Emit.h"
#include "generator/Read.h"

#include <cstring>
#include <fstream>
#include <iostream>
#include <sstream>

namespace {

std::string contents( std::filesystem::path const & file ) {
   std::ifstream const in( file, std::ios::binary );
   std::ostringstream text;
   text << in.rdbuf();
   return text.str();
}

int generate( std::filesystem::path const & tree, bool checkOnly ) {
   int status = 0;
   for ( auto const & [name, text] : emitAll( readCatalogue( tree / "catalogue" ) ) ) {
      std::filesystem::path const file = tree / name;
      if ( contents( file ) == text ) {
         continue;
      }
      if ( checkOnly ) {
         std::cout << name << " is not what the catalogue says. Run ./dev generate.\n";
         status = 1;
         continue;
      }
      std::ofstream out( file, std::ios::binary );
      out << text;
      out.close();
      if ( !out ) {
         throw Error( file.string(), 1, "cannot be written" );
      }
      std::cout << name << " written.\n";
   }
   return status;
}

} // namespace

int main( int argc, char ** argv ) {
   bool checkOnly = false;
   std::filesystem::path tree = L3SM_SOURCE_TREE;
   for ( int i = 1; i < argc; ++i ) {
      if ( std::strcmp( argv[i], "--check" ) == 0 ) {
         checkOnly = true;
      } else if ( argv[i][0] == '-' ) {
         std::cerr << "l3sm-generate: unknown option " << argv[i] << "; usage: l3sm-generate [--check] [SOURCE-TREE]\n";
         return 2;
      } else {
         tree = argv[i];
      }
   }
   try {
      return generate( tree, checkOnly );
   } catch ( Error const & e ) {
      std::cerr << "l3sm-generate: " << e.what() << "\n";
      return 2;
   }
}
