# Writes OUTPUT, where it would become different. REVISION, if it is given, is what the packager says; a tree that is
# no checkout has none.
if(NOT REVISION AND EXISTS ${SOURCES}/.git)
  execute_process(COMMAND git --no-optional-locks describe --always --dirty --abbrev=12 --exclude=*
    WORKING_DIRECTORY ${SOURCES} OUTPUT_VARIABLE REVISION OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
endif()
file(CONFIGURE OUTPUT ${OUTPUT} @ONLY CONTENT [[
#include "inspection/Revision.h"

char const * const Inspection::revision = "@REVISION@";
]])
