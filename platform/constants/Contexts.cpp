#include "constants/Contexts.h"

#include <algorithm>

namespace DacePPExport {

namespace {

using Hardware::ChipType;

constexpr U8 none = 0; // the chip lacks the context

// Columns: BCM88690_B0, BCM88800_A0, BCM88850_A0, BCM88859_A2, BCM88480_A0, BCM88480_B0.
// clang-format off
constexpr ContextRow fwd1Rows[] = {
   {  1, "ethernet",                { {    4,   36,   57,   24,   25,   58 } } },
   {  2, "ethernetTunnelled",       { {    7,   46,    4,   60,   39,   39 } } },
   {  7, "trill",                   { {   35,    6, none, none,   62,    9 } } },
   { 14, "ipv4Multicast",           { {   37,   58,   27,    3,   26,    6 } } },
   { 15, "ipv6Multicast",           { {   51,   47,   45,   25,   33,   61 } } },
   { 20, "srv6Endpoint",            { { none, none,   56,   55,   42,   13 } } },
   { 36, "ipv4Unicast",             { {   45,   44,   26,   16,    3,   42 } } },
   { 37, "ipv6Unicast",             { {   42,   21,   55,   32, none, none } } },
   { 38, "ipv4UnicastUrpfLoose",    { {   12,   51,   43,   46,    4,    3 } } },
   { 39, "ipv4UnicastUrpfStrict",   { {   16,    8,    1,   41, none,   54 } } },
   { 44, "ipv4Nat",                 { {   31,   56,    2,   58,   43,   14 } } },
   { 50, "ipv4UnicastSvi",          { {    1,   61,   32,   18,   21, none } } },
   { 51, "ipv6UnicastSvi",          { {    9,   43,   36,   33, none, none } } },
   { 52, "ipv4UrpfLooseSvi",        { {   48,   37,   17,   57,   37,   19 } } },
   { 53, "ipv4UrpfStrictSvi",       { {   56, none,   62,   59,   29,   27 } } },
   { 58, "mplsLabel",               { {   47,   60,   33,   61,   19,   26 } } },
   { 59, "mplsLabelOrIp",           { {   44, none,   28,   52,    7,   33 } } },
   { 60, "mplsTerminatedLabelOrIp", { {   23,   45,   40,   38, none,   60 } } },
   { 61, "mplsTerminatedLabel",     { {   14,    5,   59,    8,   32,   53 } } },
};

constexpr ContextRow fwd2Rows[] = {
   {  3, "ethernet",               { {   16,   53,   51,   21,   56,   45 } } },
   {  9, "bridgedTunnel",          { {   51,   37,   57,   30,   41,   34 } } },
   { 12, "ipv4Multicast",          { {   33,   45,   39,    5,    5,   29 } } },
   { 13, "ipv6Multicast",          { {   23,   28,   19,   20,   42,   50 } } },
   { 23, "ipv4Unified",            { {   10,    1,   49,   32,    4,   51 } } },
   { 24, "ipv6Unicast",            { {   43,    5,   44,   63,   11,   63 } } },
   { 31, "srv6Endpoint",           { { none, none,   32,   12,   14,   60 } } },
   { 40, "opaque",                 { {    9,    4,   60,    3,   17,   23 } } },
   { 45, "mplsOneLabel",           { {   63,   51,   17,   56,   36,    5 } } },
   { 46, "mplsTwoLabels",          { {   18,    8,   12,   15, none,   13 } } },
   { 47, "mplsOneLabelTerminated", { {    3,   33,    3,   14,    9,   24 } } },
};

constexpr ContextRow encap1Rows[] = {
   {  3, "ethernet", { {   59,   35,   50,   10,    1,   13 } } },
   {  8, "ipTunnel", { {    5,   49,   62,   51,   36,   27 } } },
   { 12, "nop",      { {   10,    4,   37,    1,    5,   57 } } },
   { 17, "mplsPush", { {   35,   10,   52,   61,   59,   34 } } },
   { 26, "vxlan",    { {   31,   21,   61,   22,   55,   47 } } },
};

constexpr ContextRow encap2Rows[] = {
   {  5, "ethernet",           { {   20,   60,   41,   43,   32,   56 } } },
   { 11, "mplsPush",           { {   21,    9,   26,   63,    3,   44 } } },
   { 16, "greTunnel",          { {   11,   44,   10,   23,   24, none } } },
   { 22, "vxlanBridge",        { {   31,   16,   27,   40,   28,   26 } } },
   { 23, "vxlanBridgeQos",     { {   27,   31,   48,   20,   63,   40 } } },
   { 30, "vxlanRoute",         { {   12,    6,    2,   42,   49,   10 } } },
   { 37, "vxlanIpv6BridgeQos", { {   45,   56,   51,   50,   38,   17 } } },
   { 38, "vxlanIpv6Bridge",    { {   62,   55,   12,   14,   21,   62 } } },
};
// clang-format on

// 0 for what is not in the table: a context that the chip lacks, or a number that is no context or no chip.
U8 value( std::span< ContextRow const > rows, ChipType chipType, U8 enumerator ) {
   auto const row = std::ranges::find( rows, enumerator, &ContextRow::enumerator );
   auto const chip = std::ranges::find( Hardware::allChipTypes, chipType );
   if ( row == rows.end() || chip == Hardware::allChipTypes.end() ) {
      return none;
   }
   return row->value[static_cast< std::size_t >( chip - Hardware::allChipTypes.begin() )];
}

} // namespace

bool ctx_fwd1_exists( ChipType chipType, ctx_fwd1 context ) {
   return ctx_fwd1_value( chipType, context ) != none;
}

U32 ctx_fwd1_value( ChipType chipType, ctx_fwd1 context ) {
   return value( fwd1Rows, chipType, static_cast< U8 >( context ) );
}

std::span< ContextRow const > ctx_fwd1_rows() {
   return fwd1Rows;
}

bool ctx_fwd2_exists( ChipType chipType, ctx_fwd2 context ) {
   return ctx_fwd2_value( chipType, context ) != none;
}

U32 ctx_fwd2_value( ChipType chipType, ctx_fwd2 context ) {
   return value( fwd2Rows, chipType, static_cast< U8 >( context ) );
}

std::span< ContextRow const > ctx_fwd2_rows() {
   return fwd2Rows;
}

bool ctx_encap_1_exists( ChipType chipType, ctx_encap_1 context ) {
   return ctx_encap_1_value( chipType, context ) != none;
}

U32 ctx_encap_1_value( ChipType chipType, ctx_encap_1 context ) {
   return value( encap1Rows, chipType, static_cast< U8 >( context ) );
}

std::span< ContextRow const > ctx_encap_1_rows() {
   return encap1Rows;
}

bool ctx_encap_2_exists( ChipType chipType, ctx_encap_2 context ) {
   return ctx_encap_2_value( chipType, context ) != none;
}

U32 ctx_encap_2_value( ChipType chipType, ctx_encap_2 context ) {
   return value( encap2Rows, chipType, static_cast< U8 >( context ) );
}

std::span< ContextRow const > ctx_encap_2_rows() {
   return encap2Rows;
}

} // namespace DacePPExport
