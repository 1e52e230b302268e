// Chips that outlive the agent: their memory lies in a file, or in memory that somebody keeps, and an agent that starts
// finds them as the one before it left them, killed or not.
//
//    auto chips = ChipsMapping::open( path, description );         // none: there is no such file
//    if ( !chips ) { chips = ChipsMapping::make( path, description ); }
//    SimulatedSwitch sw( description, &*chips );
//    chips->generation();                                          // 1: nobody was there before
//
//    auto const kept = ChipsMapping::makeInMemory( description );  // or so: somebody keeps kept.file(),
//    auto const again = ChipsMapping::of( file, description );     // and the next agent gets it from him
//
// There are two images for each FAP, laid out alike: what the chip holds, and what it is expected to hold.
//
// A file is whole from the moment in which it is there: it is made under another name (PATH.new), with the boot image
// in both images, and the header, which is checked before anything else is looked at, comes last. Pages that hold
// nothing take no space. What is written to the chips is there for the next agent when the process is killed; the
// machine may lose it, as a chip does.
//
// One agent at a time: the others are refused. A copy of the process (fork) gets chips of its own, as they stand at
// that moment, and nothing that it does reaches these; the agent pays for it with the time to copy what they hold.
//
// Somebody who cuts a file that is in use, or a disk that is full when a page is first written, ends the process by
// SIGBUS.
//
// Threading: the agent's scheduler thread, which is the one that forks.
#pragma once

#include "simulator/ChipDriver.h"
#include "simulator/ChipsHeader.h"

#include <functional>

namespace Simulator {

// Another agent uses the chips.
class ChipsInUse : public ChipsRefused {
 public:
   using ChipsRefused::ChipsRefused;
};

class ChipsMapping {
 public:
   // Puts into chips, which hold their boot image, what else they begin with.
   using Fill = std::function< void( ChipDriver & ) >;

   // What is at the path; none: nothing is. All throw ChipsRefused with the path and the reason.
   static std::optional< ChipsMapping > open( std::string const & path, SwitchDescription const & of );
   // Replaces what is at the path.
   static ChipsMapping make( std::string const & path, SwitchDescription const & of, Fill const & fill = {} );
   static ChipsMapping makeInMemory( SwitchDescription const & of, Fill const & fill = {} );
   // What makeInMemory has made, by its descriptor, which stays the caller's.
   static ChipsMapping of( int file, SwitchDescription const & of );

   // For somebody to keep, where it lies in memory.
   int file() const;
   // How many agents had these chips, this one counted.
   U32 generation() const;
   // Of a FAP of the description whose kind of chip is known; else std::out_of_range. They stay as long as anybody has
   // one of them.
   ChipMemory chip( Hardware::Dace::FapId fap ) const;
   ChipMemory expected( Hardware::Dace::FapId fap ) const;

 private:
   class Mapped;
   explicit ChipsMapping( std::shared_ptr< Mapped > mapped ) : mapped_( std::move( mapped ) ) {}

   std::shared_ptr< Mapped > mapped_;
};

} // namespace Simulator
