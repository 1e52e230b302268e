// Pages what is written to standard output, where that is a terminal and the text is longer than its screen: through
// $PAGER, or less. Elsewhere it does nothing.
//
//    Pager::off();                  // --no-pager
//    Pager const pager;             // until its end, what goes to std::cout is held back, and shown then
//    std::cout << text;
//
// Threading: one at a time in a process.
#pragma once

#include <sstream>
#include <streambuf>

namespace Inspection {

class Pager {
 public:
   Pager();
   ~Pager();
   Pager( Pager const & ) = delete;
   Pager & operator=( Pager const & ) = delete;

   static void off();
   // Where the process fails: lets through what is held back, and what follows.
   static void letThrough();
   // What shows so many lines on a screen of so many rows; empty: the screen does.
   static std::string commandFor( std::size_t lines, std::size_t rows );

 private:
   void release( bool mayPage );
   std::stringbuf held_;
   std::streambuf * before_ = nullptr; // of std::cout; null where nothing is held back
};

} // namespace Inspection
