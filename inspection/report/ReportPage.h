// The parts of the report's page that are the same for every run: the files in report/, put in at build time.
#pragma once

namespace Inspection {

extern char const * const reportPage; // with @TITLE@, @STYLE@, @DATA@ and @SCRIPT@ where these belong
extern char const * const reportStyle;
extern char const * const reportScript;

} // namespace Inspection
