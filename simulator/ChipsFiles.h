// The files that chips stay in (ChipsMapping.h): opened, locked, made.
//
// A lock is that of one opening of a file, not of the file: it goes when the process does, however it ends, and a copy
// that somebody keeps doesn't hold it.
//
// Threading: none.
#pragma once

#include "simulator/ChipsHeader.h"
#include "simulator/ChipsMapping.h"
#include "simulator/Descriptor.h"

namespace Simulator {

// The file at the path, locked; none: there is none. ChipsInUse: somebody else has locked it. `flags`: O_CREAT, or 0.
Descriptor lockedFile( std::string const & path, int flags );
// Another opening of a file that is open, locked.
Descriptor lockedAgain( int file );

// A file at the path in place of the one that is there, and one in memory: with the boot image and what `fill` adds to
// it in both images of each FAP.
Descriptor madeFile( std::string const & path, SwitchDescription const & of, ChipsMapping::Fill const & fill );
Descriptor madeInMemory( SwitchDescription const & of, ChipsMapping::Fill const & fill );

// Throws ChipsRefused unless it holds the chips.
void check( int file, ChipsHeader const & header );

// ChipsRefused for what the system said last.
[[noreturn]] void refuseBySystem( std::string const & what );

} // namespace Simulator
