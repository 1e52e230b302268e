#include "interface/ManagedIntfStatusDir.h"
#include "rex/EntityAttributes.h"

#include <vector>

REX_DEFINE( Interface::ManagedIntfStatusDir, "Interface::ManagedIntfStatusDir" );
REX_DEFINE( Interface::ManagedIntfStatusLocalDir, "Interface::ManagedIntfStatusLocalDir" );
// No scenario sets a reference: the plug-in alone needs what changes them.
template class Rex::ReferencesAttribute< Interface::EthIntfStatus const >;
template class Rex::ReferencesAttribute< Interface::EthIntfStatusLocal >;

namespace Interface {

namespace {

// The directories of one type that are alive, newest last.
template< class Dir >
std::vector< Dir const * > & alive() {
   static auto * dirs = new std::vector< Dir const * >; // outlives directories that static objects hold
   return *dirs;
}

template< class Dir >
Dir const * newestOf() {
   return alive< Dir >().empty() ? nullptr : alive< Dir >().back();
}

} // namespace

ManagedIntfStatusDir::ManagedIntfStatusDir( Corvo::String dirName ) : name_( std::move( dirName ) ) {
   alive< ManagedIntfStatusDir >().push_back( this );
}

ManagedIntfStatusDir::~ManagedIntfStatusDir() {
   std::erase( alive< ManagedIntfStatusDir >(), this );
}

ManagedIntfStatusDir const * ManagedIntfStatusDir::newest() {
   return newestOf< ManagedIntfStatusDir >();
}

ManagedIntfStatusLocalDir::ManagedIntfStatusLocalDir( Corvo::String dirName ) : name_( std::move( dirName ) ) {
   alive< ManagedIntfStatusLocalDir >().push_back( this );
}

ManagedIntfStatusLocalDir::~ManagedIntfStatusLocalDir() {
   std::erase( alive< ManagedIntfStatusLocalDir >(), this );
}

ManagedIntfStatusLocalDir const * ManagedIntfStatusLocalDir::newest() {
   return newestOf< ManagedIntfStatusLocalDir >();
}

} // namespace Interface
