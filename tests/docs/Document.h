// A document of the tree and what can be run of it: the blocks between fences.
//
//    ```console                    commands, each behind "$ ", with what they print below them; "..." stands for any
//    $ l3sm run my.json            lines
//    ```
//    ```json my.json               a file, which stands in the folder from here on
//    ```json scenario              a scenario, which the program takes and plays
//    ```json part                  members of a scenario: with a switch, it is one
//
// Blocks of another kind are pictures.
#pragma once

#include "Folder.h"

struct Block {
   std::string info; // what stands behind the first fence
   std::string text; // its lines
   std::size_t line; // of the document, of the first of them
   std::size_t from; // place of the text in the document
   bool isConsole() const { return text.starts_with( "$ " ); }
};

std::vector< Block > blocksOf( std::string const & document );

// A command of a console block, and the lines below it.
struct Exchange {
   std::string command; // may go on behind a backslash at a line's end
   std::vector< std::string > expected;
};
std::vector< Exchange > exchangesOf( Block const & block );

// Whether lines are as expected, where an expected "..." stands for any number of them.
bool areAsExpected( std::vector< std::string > const & expected, std::vector< std::string > const & lines );
// What to write in place of `expected`: these lines, as much of them at the beginning and at the end as was there.
std::vector< std::string > shortened( std::vector< std::string > const & expected,
                                      std::vector< std::string > const & lines );
