#include "inspection/PluginComparison.h"

#include "inspection/OnChip.h"
#include "inspection/Play.h"
#include "inspection/files/JournalReader.h"
#include "inspection/files/SavedScenario.h"
#include "inspection/views/Progress.h"

#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

namespace Inspection {

namespace {

namespace fs = std::filesystem;

// A folder for scenarios and journals that is gone at the end.
class Folder {
 public:
   Folder() {
      std::string name = ( fs::temp_directory_path() / "l3sm-compare-" ).string();
      name.append( 6, 'X' ); // which mkdtemp replaces
      if ( !::mkdtemp( name.data() ) ) {
         throw InputError( name, std::string( "can't be made: " ) + std::strerror( errno ) );
      }
      path_ = name;
   }
   Folder( Folder const & ) = delete;
   Folder & operator=( Folder const & ) = delete;
   ~Folder() {
      std::error_code none;
      fs::remove_all( path_, none );
   }
   std::string file( std::string const & name ) const { return ( path_ / name ).string(); }

 private:
   fs::path path_;
};

std::string programFor( std::string const & plugin ) {
   std::error_code none;
   auto const beside = fs::absolute( plugin, none ).parent_path().parent_path() / "bin" / "l3sm";
   return fs::exists( beside, none ) ? beside.string() : fs::read_symlink( "/proc/self/exe", none ).string();
}

// One build of the plug-in, and what plays it.
class Side {
 public:
   Side( std::string const & plugin, Folder const & folder, std::string const & name )
      : plugin_( fs::absolute( plugin ) ), program_( programFor( plugin_ ) ),
        journal_( folder.file( name + ".jsonl" ) ), said_( folder.file( name + ".said" ) ) {
      if ( !fs::exists( plugin_ ) ) {
         throw InputError( plugin, "there is no such library" );
      }
   }

   std::string const & plugin() const { return plugin_; }

   void begins( std::string const & scenario ) {
      std::error_code none;
      fs::remove( journal_, none );
      child_ = ::fork();
      if ( child_ != 0 ) {
         return;
      }
      int const said = ::open( said_.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600 );
      int const nothing = ::open( "/dev/null", O_RDWR );
      ::dup2( nothing, STDIN_FILENO );
      ::dup2( nothing, STDOUT_FILENO );
      ::dup2( said, STDERR_FILENO );
      ::execl( program_.c_str(),
               "l3sm",
               "run",
               scenario.c_str(),
               "--quiet",
               "--plugin",
               plugin_.c_str(),
               "--journal",
               journal_.c_str(),
               nullptr );
      ::_exit( 127 );
   }

   // Waits for its end, and reads what it has left.
   RunEffects ends( std::string & how ) {
      int status = 0;
      while ( ::waitpid( child_, &status, 0 ) < 0 && errno == EINTR ) {
      }
      RunEffects effects;
      std::error_code none;
      if ( !fs::exists( journal_, none ) ) {
         std::string line;
         std::ifstream said( said_ );
         std::getline( said, line );
         throw InputError( plugin_, "can't be played: " + line );
      }
      JournalReader journal( journal_ );
      journal.read( effects );
      using enum Simulator::Ending::Kind;
      auto const & ending = effects.ending();
      how = ending.kind == complete ? "" : ending.kind == assertion ? ending.function + ": " + ending.text : "is cut";
      return effects;
   }

 private:
   std::string plugin_;
   std::string program_;
   std::string journal_;
   std::string said_;
   pid_t child_ = 0;
};

// Copies that change alike, in an event, are one.
void compare( RunDifferences & run, RunEffects const & here, RunEffects const & there ) {
   std::size_t const events = std::max( here.events().size(), there.events().size() );
   static EventEffects const none{};
   for ( std::size_t number = 0; number < events; ++number ) {
      EventEffects const & a = number < here.events().size() ? here.events()[number] : none;
      EventEffects const & b = number < there.events().size() ? there.events()[number] : none;
      run.operationsHere += a.operations;
      run.operationsThere += b.operations;
      run.isOtherRoad = run.isOtherRoad || a.hash != b.hash;
      if ( &a == &none || &b == &none ) {
         continue; // one side ended before
      }
      auto left = a.changes.begin();
      auto right = b.changes.begin();
      while ( left != a.changes.end() || right != b.changes.end() ) {
         bool const hasLeft = left != a.changes.end() && ( right == b.changes.end() || left->first <= right->first );
         bool const hasRight = right != b.changes.end() && ( left == a.changes.end() || right->first <= left->first );
         if ( !( hasLeft && hasRight && left->second.to == right->second.to ) ) {
            run.differences.push_back( { a.event,
                                         a.what,
                                         hasLeft ? left->first : right->first,
                                         hasLeft ? std::optional( left->second ) : std::nullopt,
                                         hasRight ? std::optional( right->second ) : std::nullopt } );
         }
         left = hasLeft ? std::next( left ) : left;
         right = hasRight ? std::next( right ) : right;
      }
   }
}

} // namespace

bool PluginComparison::isEqual() const {
   return std::ranges::all_of( runs, &RunDifferences::isEqual );
}

PluginComparison comparePlugins( std::vector< Scenario > const & scenarios, PluginComparisonOptions const & options ) {
   Folder const folder;
   Side here( options.plugin.empty() ? pluginBeside() : options.plugin, folder, "here" );
   Side there( options.against, folder, "there" );
   PluginComparison it{ .plugin = here.plugin(), .against = there.plugin(), .runs = {} };
   auto const begins = std::chrono::steady_clock::now();
   Progress progress( "comparing" );
   std::size_t const chips = options.everyChip ? Hardware::allChipTypes.size() : 1;
   for ( Scenario const & scenario : scenarios ) {
      for ( std::size_t chip = 0; chip < chips; ++chip ) {
         auto const chipType = Hardware::allChipTypes[chip];
         Scenario const played = options.everyChip ? onChip( scenario, chipType ) : scenario;
         auto & run = it.runs.emplace_back( RunDifferences{
            .scenario = scenario.file, .chip = options.everyChip ? Hardware::chipTypeName( chipType ) : "" } );
         if ( options.everyChip ) { // where it may not fit, of which the sides would tell places of a file that is gone
            scenarioOf( valueOf( played ), run.scenario + " on " + run.chip );
         }
         std::string const file = folder.file( "scenario.json" );
         std::ofstream text( file );
         writeScenario( text, played );
         text.close();
         here.begins( file );
         there.begins( file );
         RunEffects const effectsHere = here.ends( run.endHere );
         RunEffects const effectsThere = there.ends( run.endThere );
         compare( run, effectsHere, effectsThere );
         progress.stands( it.runs.size(), scenarios.size() * chips );
      }
   }
   it.seconds = std::chrono::duration< double >( std::chrono::steady_clock::now() - begins ).count();
   return it;
}

} // namespace Inspection
