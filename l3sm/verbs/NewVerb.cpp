#include "inspection/NamesAsTyped.h"
#include "inspection/NewScenario.h"
#include "inspection/files/InputError.h"
#include "inspection/files/OutputFile.h"
#include "inspection/files/ScenarioText.h"
#include "inspection/views/Terminal.h"
#include "l3sm/verbs/Verbs.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>
#include <sstream>

namespace Cli {

using namespace Inspection;

namespace {

struct NewOptions {
   std::vector< std::string > chips;
   std::optional< U16 > cores;
   std::vector< std::string > subjects; // each may hold several, with commas between them
   std::string out;
   std::string plugin;
};

// The schema lies beside the program: bin/l3sm, share/l3sm/scenario.schema.json. Empty where it does not.
std::string schemaBeside() {
   std::error_code none;
   auto const self = std::filesystem::read_symlink( "/proc/self/exe", none );
   auto const schema = self.parent_path().parent_path() / "share/l3sm/scenario.schema.json";
   return std::filesystem::exists( schema, none ) ? "file://" + schema.string() : std::string();
}

WantedScenario wanted( NewOptions const & options ) {
   WantedScenario scenario;
   for ( std::string const & chip : options.chips ) {
      scenario.chips.push_back( chipNamed( chip ) );
   }
   scenario.cores = options.cores;
   for ( std::string const & several : options.subjects ) {
      std::istringstream names( several );
      for ( std::string name; std::getline( names, name, ',' ); ) {
         if ( std::ranges::find( scenario.subjects, name ) == scenario.subjects.end() ) {
            scenario.subjects.push_back( name );
         }
      }
   }
   scenario.schema = schemaBeside();
   return scenario;
}

int answer( NewOptions const & options ) {
   bool const isFile = !options.out.empty() && options.out != "-";
   if ( isFile && std::filesystem::exists( options.out ) ) {
      throw InputError( options.out, "is there already; give the scenario another name" );
   }
   OutputFile const file( isFile ? options.out : std::string() );
   auto const text = scenarioText( newScenario( wanted( options ), options.plugin ) );
   if ( isFile ) {
      file.write( text );
      std::cout << "wrote " << options.out << "; l3sm run " << options.out << " plays it\n";
   } else {
      std::cout << text;
   }
   return 0;
}

std::string subjectLines() {
   Columns columns;
   for ( Subject const & subject : subjects() ) {
      columns.row( { subject.name, subject.does } );
   }
   std::ostringstream text;
   text << "Subjects:\n";
   columns.print( text, 2 );
   return text.str();
}

} // namespace

Action defineNew( VerbOptions & verb ) {
   auto const options = std::make_shared< NewOptions >();
   verb.texts( "--chip", options->chips, "the kind of each chip; without it, one BCM88690_B0", "CHIP" );
   verb.number( "--cores", options->cores, "the number of cores of each chip; without it, as many as it has" );
   verb.texts( "--with",
               options->subjects,
               "state and events of these subjects, with commas between them; --help lists them",
               "SUBJECT,..." );
   verb.text(
      "-o,--out", options->out, "write the scenario there, where no file is yet, not to standard output", "FILE" );
   verb.text(
      "--plugin", options->plugin, "the plug-in that it is played with; the default lies beside this program", "PATH" );
   verb.footer( subjectLines() );
   return [options] { return answer( *options ); };
}

} // namespace Cli
