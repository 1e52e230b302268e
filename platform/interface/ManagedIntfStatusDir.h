// The managed interface directories: which interfaces this agent serves, by reference to their status.
//
//    auto const dir = Corvo::makePtr< Interface::ManagedIntfStatusDir >( "Managed Intfs" );
//    dir->intfStatusIs( allEthPhyIntfStatusDir->intfStatus( intfId ) );
//    dir->intfStatusDel( intfId );                   // null if it wasn't there
//
// A status that is entered stays where it hangs, under the directory of all interfaces. A null status has no interface
// to stand for: it is not entered, and the directory stays as it is. Entering what is there already, or removing what
// isn't, announces nothing.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "state/Interfaces.h"

namespace Interface {

class ManagedIntfStatusDir : public Rex::Entity {
   REX_ENTITY( ManagedIntfStatusDir, Rex::Entity );
   REX_REFERENCES( EthIntfStatus const, intfStatus, 0x102 );

 public:
   explicit ManagedIntfStatusDir( Corvo::String dirName );
   ~ManagedIntfStatusDir() override;
   Corvo::String name() const override { return name_; }
   // The one that was made last among those that are alive, or null: what this agent publishes.
   static ManagedIntfStatusDir const * newest();

 private:
   Corvo::String const name_;
};

class ManagedIntfStatusLocalDir : public Rex::Entity {
   REX_ENTITY( ManagedIntfStatusLocalDir, Rex::Entity );
   REX_REFERENCES( EthIntfStatusLocal, intfStatusLocal, 0x102 );

 public:
   explicit ManagedIntfStatusLocalDir( Corvo::String dirName );
   ~ManagedIntfStatusLocalDir() override;
   Corvo::String name() const override { return name_; }
   // The one that was made last among those that are alive, or null: what this agent publishes.
   static ManagedIntfStatusLocalDir const * newest();

 private:
   Corvo::String const name_;
};

} // namespace Interface
