// The steps of a chain, for people: a function, and below it what it wrote, where, and which gate stopped it.
#pragma once

#include "inspection/ChainSteps.h"
#include "inspection/views/CountsText.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

// Cuts a text that doesn't fit, and says so with three dots.
std::string fitting( std::string const & text, std::size_t width );

// A function and its place in the source, below one another where they don't fit side by side.
void writeOrigin( std::ostream & out,
                  std::size_t indent,
                  std::string const & function,
                  std::string const & source,
                  Style const & style );

// What is odd, on as many lines as it takes.
void writeWrapped( std::ostream & out, std::size_t indent, std::string const & text, Style const & style );

class ChainStepText {
 public:
   // `bounded`: the places and fields beyond the first few are counted. `isOfTable`: the table goes without saying.
   ChainStepText( std::ostream & out, bool bounded, bool isOfTable, Style const & style )
      : out_( out ), bounded_( bounded ), isOfTable_( isOfTable ), style_( style ) {}

   // `function`: under whose name the last step stands; it becomes this one's.
   void write( ChainStep const & step, std::string & function );

 private:
   void
   writeChanges( ChainStep const & step, std::string const & place, std::vector< ChainStep::Change > const & changes );
   void writePublication( ChainStep const & step );

   std::ostream & out_;
   bool bounded_;
   bool isOfTable_;
   Style const & style_;
};

} // namespace Inspection
