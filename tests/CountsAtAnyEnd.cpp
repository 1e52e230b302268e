// Linked into what is built for coverage: a process that leaves by _exit, or that an assertion ends, brings what it has
// counted to its files before.
#include <csignal>

extern "C" void __gcov_dump();
extern "C" [[noreturn]] void __real__exit( int status );

extern "C" [[noreturn]] void __wrap__exit( int status ) {
   __gcov_dump();
   __real__exit( status );
}

namespace {

void ends( int signal ) {
   __gcov_dump();
   std::signal( signal, SIG_DFL );
   std::raise( signal );
}

[[maybe_unused]] auto const before = std::signal( SIGABRT, ends );

} // namespace
