#include "inspection/ChipComparison.h"

#include "inspection/OnChip.h"
#include "inspection/views/Progress.h"

namespace Inspection {

namespace {

class Comparer {
 public:
   Comparer( Scenario const & scenario, ComparisonOptions const & options )
      : scenario_( scenario ), options_( options ) {}

   ChipComparison compare() {
      auto const base = play( scenario_.description.toggles );
      ChipComparison it{ .name = scenario_.title(), .failures = failuresOf( base ), .places = {}, .flips = {} };
      for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
         for ( auto const & [place, value] : base[chip].values ) {
            it.places[place][chip] = value;
         }
      }
      if ( options_.toggles ) {
         flipEach( base, it.flips );
      }
      return it;
   }

 private:
   using Runs = ByChip< ProgrammedValues >;

   // How many runs there are isn't known before the first ones have told which toggles they read.
   void flipEach( Runs const & base, std::vector< ChipComparison::Flip > & flips ) {
      std::map< std::pair< std::string, std::string >, bool > known;
      for ( ProgrammedValues const & run : base ) {
         for ( auto const & reading : run.toggles ) {
            known[{ reading.file, reading.name }] = reading.state;
         }
      }
      all_ = chipCount * ( known.size() + 1 );
      for ( auto const & [toggle, state] : known ) {
         Toggle::Settings flipped = scenario_.description.toggles;
         flipped[toggle.first][toggle.second] = !state;
         auto const runs = play( flipped );
         auto & flip =
            flips.emplace_back( ChipComparison::Flip{ toggle.first, toggle.second, state, failuresOf( runs ), {} } );
         for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
            if ( base[chip].failure.empty() && runs[chip].failure.empty() ) {
               flip.changes[chip] = changesOf( base[chip], runs[chip] );
            }
         }
      }
   }

   Runs play( Toggle::Settings const & toggles ) {
      Runs runs;
      for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
         Scenario scenario = onChip( scenario_, Hardware::allChipTypes[chip] );
         scenario.description.toggles = toggles;
         try {
            runs[chip] = programmedValuesOf( scenario, options_.plugin );
         } catch ( InputError const & error ) {
            if ( std::string_view( error.what() ).starts_with( "--plugin" ) ) {
               throw;
            }
            runs[chip].failure = error.what(); // the scenario's own contents may not fit on another chip
         }
         std::erase_if( runs[chip].values, [&]( auto const & it ) { return !isWanted( it.first.table ); } );
         progress_.stands( ++done_, all_ );
      }
      return runs;
   }

   bool isWanted( std::string const & table ) const {
      return options_.tables.empty() || std::ranges::find( options_.tables, table ) != options_.tables.end();
   }

   static ByChip< std::string > failuresOf( Runs const & runs ) {
      ByChip< std::string > failures;
      for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
         failures[chip] = runs[chip].failure;
      }
      return failures;
   }

   static ChipComparison::Changes changesOf( ProgrammedValues const & before, ProgrammedValues const & after ) {
      ChipComparison::Changes changes;
      for ( auto const & [place, value] : before.values ) {
         changes[place].before = value;
      }
      for ( auto const & [place, value] : after.values ) {
         changes[place].after = value;
      }
      std::erase_if( changes, []( auto const & it ) { return it.second.before == it.second.after; } );
      return changes;
   }

   Scenario const & scenario_;
   ComparisonOptions const & options_;
   Progress progress_{ "playing" };
   std::size_t done_ = 0;
   std::size_t all_ = chipCount;
};

} // namespace

std::vector< std::size_t > ChipComparison::played() const {
   std::vector< std::size_t > chips;
   for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
      if ( failures[chip].empty() ) {
         chips.push_back( chip );
      }
   }
   return chips;
}

bool ChipComparison::isAlike( ByChip< MaybeValue > const & values ) const {
   auto const chips = played();
   return std::ranges::all_of( chips, [&]( std::size_t chip ) { return values[chip] == values[chips.front()]; } );
}

ChipComparison compareChips( Scenario const & scenario, ComparisonOptions const & options ) {
   return Comparer( scenario, options ).compare();
}

} // namespace Inspection
