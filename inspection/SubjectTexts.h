// The files of inspection/subjects/, put in at build time.
#pragma once

#include <span>

namespace Inspection {

struct SubjectText {
   char const * name;
   char const * text;
};

std::span< SubjectText const > subjectTexts();

} // namespace Inspection
