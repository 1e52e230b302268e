// One entry for libFuzzer: L3SM_FUZZ_ENTRY is which.
#include "fuzz/Entries.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput( std::uint8_t const * bytes, std::size_t size ) {
   Fuzz::L3SM_FUZZ_ENTRY( std::string( reinterpret_cast< char const * >( bytes ), size ) );
   return 0;
}
