// The build that a test program belongs to. The code of the tests is compiled once, and linked with the rooms of each
// build: what differs between builds is asked at run time.
#pragma once

#include <filesystem>
#include <string>

// Its bin/ and lib/ are what is tried.
inline std::string const & buildFolder() {
   static std::string const folder = std::filesystem::read_symlink( "/proc/self/exe" ).parent_path().parent_path();
   return folder;
}

extern "C" void __asan_init() __attribute__( ( weak ) );

// Whether the rooms run under the sanitizers. The code of the tests doesn't.
inline bool isSanitized() {
   return __asan_init != nullptr;
}
