#include "l3sm/CommandLine.h"

int main( int argc, char ** argv ) {
   return Cli::commandLine( argc, argv );
}
