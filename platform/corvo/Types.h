// The scalar names used throughout, on both sides of the plug-in's boundary.
#pragma once

#include <cstdint>
#include <string>

using U8 = std::uint8_t;
using U16 = std::uint16_t;
using U32 = std::uint32_t;
using U64 = std::uint64_t;
using S32 = std::int32_t;

namespace Corvo {
using String = std::string;
}
