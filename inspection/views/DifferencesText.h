// Differences between chips, and between files, for people and for programs.
#pragma once

#include "inspection/FileDifferences.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

// A count by table, then each place. `nameA`, `nameB`: what the sides are, for entries that one side lacks.
void showDifferences( std::ostream & out,
                      std::vector< Difference > const & all,
                      std::string const & nameA,
                      std::string const & nameB,
                      Style const & style );

enum class DifferencesShown : U8 { counts, first, all };
void showDifferences( std::ostream & out, FileDifferences const & it, DifferencesShown shown, Style const & style );
Rex::Value valueOf( FileDifferences const & it, bool countsOnly );

} // namespace Inspection
