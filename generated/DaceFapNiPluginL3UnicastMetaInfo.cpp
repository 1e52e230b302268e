// The accessor classes: where their fields lie, and where the tables lie on the chips.
// Written by the generator from catalogue/. Do not edit: change the catalogue and run ./dev generate.
// clang-format off
#include "generated/DaceFapNiPluginL3UnicastMetaInfo.h"

#include <functional>
#include <map>

namespace Hardware {

namespace Impl {

Rex::TraceFacility const trace{ "AsicUtilsDaceFapNiPluginL3UnicastMetaInfo" };

namespace {

char const source[] = "generated/DaceFapNiPluginL3UnicastMetaInfo.cpp";

} // namespace

} // namespace Impl

// ---- AdditionalHeadersMapTable0

namespace AdditionalHeadersMapTable0Data {
constexpr AsicUtils::FieldInfo fields[] = {
   { "setStartCurrentNextProtocol", 649, AsicUtils::ValueType::U8, false },
   { "startCurrentNextProtocol", 656, AsicUtils::ValueType::U16, false },
   { "addAditionalHeadersPacketSize", 48, AsicUtils::ValueType::U8, false },
   { "additionalHeadersPacketSizeInBytes", 49, AsicUtils::ValueType::U8, false },
   { "additionalHeadersType", 51, AsicUtils::ValueType::U8, false },
   { "protocolSpecificInformation", 590, AsicUtils::ValueType::U64, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 1 }, { 1, 16 }, { 17, 1 }, { 18, 8 }, { 26, 4 }, { 30, 35 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0x1, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 32u }, 3, 12, 1, 0, 0, 3299, 2, { { 28, 2 }, { 10, 10 } }, 0x150000, 0, &rows[0], &masks[0] },
   { { 0, 32u }, 3, 12, 1, 0, 0, 3299, 1, { { 2, 9 } }, 0x150000, 0, &rows[0], &masks[0] },
   { { 0, 32u }, 3, 12, 1, 0, 0, 3299, 2, { { 28, 13 }, { 28, 25 } }, 0x150000, 0, &rows[0], &masks[0] },
   { { 0, 32u }, 3, 12, 1, 0, 0, 3299, 1, { { 28, 13 } }, 0x150000, 0, &rows[0], &masks[0] },
   { { 0, 32u }, 3, 12, 1, 0, 0, 3299, 1, { { 16, 9 } }, 0x150000, 0, &rows[0], &masks[0] },
   { { 0, 32u }, 3, 12, 1, 0, 0, 3443, 2, { { 30, 2 }, { 12, 10 } }, 0x26d0000, 0, &rows[0], &masks[0] },
   { { 0, 32u }, 3, 12, 1, 0, 0, 3443, 1, { { 8, 4 } }, 0x26d0000, 0, &rows[0], &masks[0] },
   { { 0, 32u }, 3, 12, 1, 0, 0, 3443, 2, { { 30, 13 }, { 30, 25 } }, 0x26d0000, 0, &rows[0], &masks[0] },
   { { 0, 32u }, 3, 12, 1, 0, 0, 3443, 1, { { 30, 13 } }, 0x26d0000, 0, &rows[0], &masks[0] },
   { { 0, 32u }, 3, 12, 1, 0, 0, 3443, 1, { { 24, 9 } }, 0x26d0000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
   &layout[5], &layout[6], &layout[7], nullptr, &layout[8], &layout[9], &layout[9],
};
} // namespace AdditionalHeadersMapTable0Data

constinit AsicUtils::MetaInfo const AdditionalHeadersMapTable0::metaInfo{
   Impl::trace, Impl::source, __LINE__, "AdditionalHeadersMapTable0", 0, true, 2, AsicUtils::ValueType::Raw128,
   AdditionalHeadersMapTable0Data::fields, AdditionalHeadersMapTable0Data::layouts, {}, {}
};

Raw128 AdditionalHeadersMapTable0::allFieldsMask() const {
   metaInfo.trace( "virtual Raw128 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- CgmSnifTmTable

namespace CgmSnifTmTableData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "extStatDataValidOw", 296, AsicUtils::ValueType::U8, false },
   { "extStatDataValid", 295, AsicUtils::ValueType::U8, false },
   { "extStatDataOpcodeOw", 294, AsicUtils::ValueType::U8, false },
   { "extStatDataOpcode", 293, AsicUtils::ValueType::U8, false },
   { "extStatDataDataOw", 292, AsicUtils::ValueType::U8, false },
   { "extStatDataData", 291, AsicUtils::ValueType::Raw128, false },
   { "intStat0ObjValidOw", 351, AsicUtils::ValueType::U8, false },
   { "intStat0ObjValid", 350, AsicUtils::ValueType::U8, false },
   { "intStat1ObjValidOw", 359, AsicUtils::ValueType::U8, false },
   { "intStat1ObjValid", 358, AsicUtils::ValueType::U8, false },
   { "intStat2ObjValidOw", 367, AsicUtils::ValueType::U8, false },
   { "intStat2ObjValid", 366, AsicUtils::ValueType::U8, false },
   { "intStat3ObjValidOw", 374, AsicUtils::ValueType::U8, false },
   { "intStat3ObjValid", 373, AsicUtils::ValueType::U8, false },
   { "intStat4ObjValidOw", 380, AsicUtils::ValueType::U8, false },
   { "intStat4ObjValid", 379, AsicUtils::ValueType::U8, false },
   { "intStat5ObjValidOw", 386, AsicUtils::ValueType::U8, false },
   { "intStat5ObjValid", 385, AsicUtils::ValueType::U8, false },
   { "intStat6ObjValidOw", 392, AsicUtils::ValueType::U8, false },
   { "intStat6ObjValid", 391, AsicUtils::ValueType::U8, false },
   { "intStat7ObjValidOw", 400, AsicUtils::ValueType::U8, false },
   { "intStat7ObjValid", 399, AsicUtils::ValueType::U8, false },
   { "intStat8ObjValidOw", 409, AsicUtils::ValueType::U8, false },
   { "intStat8ObjValid", 408, AsicUtils::ValueType::U8, false },
   { "intStat9ObjValidOw", 417, AsicUtils::ValueType::U8, false },
   { "intStat9ObjValid", 416, AsicUtils::ValueType::U8, false },
   { "intStat0ObjIdOw", 345, AsicUtils::ValueType::U8, false },
   { "intStat0ObjId", 344, AsicUtils::ValueType::U32, false },
   { "intStat1ObjIdOw", 353, AsicUtils::ValueType::U8, false },
   { "intStat1ObjId", 352, AsicUtils::ValueType::U32, false },
   { "intStat2ObjIdOw", 361, AsicUtils::ValueType::U8, false },
   { "intStat2ObjId", 360, AsicUtils::ValueType::U32, false },
   { "intStat3ObjIdOw", 369, AsicUtils::ValueType::U8, false },
   { "intStat3ObjId", 368, AsicUtils::ValueType::U32, false },
   { "intStat4ObjIdOw", 376, AsicUtils::ValueType::U8, false },
   { "intStat4ObjId", 375, AsicUtils::ValueType::U32, false },
   { "intStat5ObjIdOw", 382, AsicUtils::ValueType::U8, false },
   { "intStat5ObjId", 381, AsicUtils::ValueType::U32, false },
   { "intStat6ObjIdOw", 388, AsicUtils::ValueType::U8, false },
   { "intStat6ObjId", 387, AsicUtils::ValueType::U32, false },
   { "intStat7ObjIdOw", 394, AsicUtils::ValueType::U8, false },
   { "intStat7ObjId", 393, AsicUtils::ValueType::U32, false },
   { "intStat8ObjIdOw", 402, AsicUtils::ValueType::U8, false },
   { "intStat8ObjId", 401, AsicUtils::ValueType::U32, false },
   { "intStat9ObjIdOw", 411, AsicUtils::ValueType::U8, false },
   { "intStat9ObjId", 410, AsicUtils::ValueType::U32, false },
   { "intStat0ObjTypeOw", 349, AsicUtils::ValueType::U8, false },
   { "intStat0ObjType", 348, AsicUtils::ValueType::U8, false },
   { "intStat1ObjTypeOw", 357, AsicUtils::ValueType::U8, false },
   { "intStat1ObjType", 356, AsicUtils::ValueType::U8, false },
   { "intStat2ObjTypeOw", 365, AsicUtils::ValueType::U8, false },
   { "intStat2ObjType", 364, AsicUtils::ValueType::U8, false },
   { "intStat3ObjTypeOw", 372, AsicUtils::ValueType::U8, false },
   { "intStat3ObjType", 370, AsicUtils::ValueType::U8, false },
   { "intStat4ObjTypeOw", 378, AsicUtils::ValueType::U8, false },
   { "intStat4ObjType", 377, AsicUtils::ValueType::U8, false },
   { "intStat5ObjTypeOw", 384, AsicUtils::ValueType::U8, false },
   { "intStat5ObjType", 383, AsicUtils::ValueType::U8, false },
   { "intStat6ObjTypeOw", 390, AsicUtils::ValueType::U8, false },
   { "intStat6ObjType", 389, AsicUtils::ValueType::U8, false },
   { "intStat7ObjTypeOw", 398, AsicUtils::ValueType::U8, false },
   { "intStat7ObjType", 397, AsicUtils::ValueType::U8, false },
   { "intStat8ObjTypeOw", 407, AsicUtils::ValueType::U8, false },
   { "intStat8ObjType", 406, AsicUtils::ValueType::U8, false },
   { "intStat9ObjTypeOw", 415, AsicUtils::ValueType::U8, false },
   { "intStat9ObjType", 414, AsicUtils::ValueType::U8, false },
   { "intStat0ObjIsMeterOw", 347, AsicUtils::ValueType::U8, false },
   { "intStat0ObjIsMeter", 346, AsicUtils::ValueType::U8, false },
   { "intStat1ObjIsMeterOw", 355, AsicUtils::ValueType::U8, false },
   { "intStat1ObjIsMeter", 354, AsicUtils::ValueType::U8, false },
   { "intStat2ObjIsMeterOw", 363, AsicUtils::ValueType::U8, false },
   { "intStat2ObjIsMeter", 362, AsicUtils::ValueType::U8, false },
   { "intStat7ObjIsLmOw", 396, AsicUtils::ValueType::U8, false },
   { "intStat7ObjIsLm", 395, AsicUtils::ValueType::U8, false },
   { "intStat8ObjIsLmOw", 405, AsicUtils::ValueType::U8, false },
   { "intStat8ObjIsLm", 404, AsicUtils::ValueType::U8, false },
   { "intStat9ObjIsLmOw", 413, AsicUtils::ValueType::U8, false },
   { "intStat9ObjIsLm", 412, AsicUtils::ValueType::U8, false },
   { "intStatObjMetaDataOw", 419, AsicUtils::ValueType::U8, false },
   { "intStatObjMetaData", 418, AsicUtils::ValueType::U16, false },
   { "inPpPortOw", 341, AsicUtils::ValueType::U8, false },
   { "inPpPort", 340, AsicUtils::ValueType::U16, false },
   { "stVsqPtrOw", 668, AsicUtils::ValueType::U8, false },
   { "stVsqPtr", 666, AsicUtils::ValueType::U8, false },
   { "admtProfileOw", 55, AsicUtils::ValueType::U8, false },
   { "admtProfile", 54, AsicUtils::ValueType::U8, false },
   { "item403403", 489, AsicUtils::ValueType::U8, false },
   { "item404406", 490, AsicUtils::ValueType::U8, false },
   { "inDpOw", 331, AsicUtils::ValueType::U8, false },
   { "inDp", 330, AsicUtils::ValueType::U8, false },
   { "egrDpOw", 242, AsicUtils::ValueType::U8, false },
   { "egrDp", 240, AsicUtils::ValueType::U8, false },
   { "irppDeltaOw", 488, AsicUtils::ValueType::U8, false },
   { "irppDelta", 487, AsicUtils::ValueType::U8, false },
   { "itppDeltaOw", 492, AsicUtils::ValueType::U8, false },
   { "itppDelta", 491, AsicUtils::ValueType::U16, false },
   { "nwkHeaderTruncateSizeOw", 535, AsicUtils::ValueType::U8, false },
   { "nwkHeaderTruncateSize", 534, AsicUtils::ValueType::U16, false },
   { "nwkHeaderAppendSizePtrOw", 532, AsicUtils::ValueType::U8, false },
   { "nwkHeaderAppendSizePtr", 531, AsicUtils::ValueType::U8, false },
   { "inTcOw", 343, AsicUtils::ValueType::U8, false },
   { "inTc", 342, AsicUtils::ValueType::U8, false },
   { "intTmStatFilter", 420, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 1 }, { 1, 1 }, { 2, 1 }, { 3, 8 }, { 11, 1 }, { 12, 80 }, { 92, 1 }, { 93, 1 },
   { 94, 1 }, { 95, 1 }, { 96, 1 }, { 97, 1 }, { 98, 1 }, { 99, 1 }, { 100, 1 }, { 101, 1 },
   { 102, 1 }, { 103, 1 }, { 104, 1 }, { 105, 1 }, { 106, 1 }, { 107, 1 }, { 108, 1 }, { 109, 1 },
   { 110, 1 }, { 111, 1 }, { 112, 1 }, { 113, 20 }, { 133, 1 }, { 134, 20 }, { 154, 1 }, { 155, 20 },
   { 175, 1 }, { 176, 20 }, { 196, 1 }, { 197, 20 }, { 217, 1 }, { 218, 20 }, { 238, 1 }, { 239, 20 },
   { 259, 1 }, { 260, 20 }, { 280, 1 }, { 281, 20 }, { 301, 1 }, { 302, 20 }, { 322, 1 }, { 323, 2 },
   { 325, 1 }, { 326, 2 }, { 328, 1 }, { 329, 2 }, { 331, 1 }, { 332, 2 }, { 334, 1 }, { 335, 2 },
   { 337, 1 }, { 338, 2 }, { 340, 1 }, { 341, 2 }, { 343, 1 }, { 344, 2 }, { 346, 1 }, { 347, 2 },
   { 349, 1 }, { 350, 2 }, { 352, 1 }, { 353, 1 }, { 354, 1 }, { 355, 1 }, { 356, 1 }, { 357, 1 },
   { 358, 1 }, { 359, 1 }, { 360, 1 }, { 361, 1 }, { 362, 1 }, { 363, 1 }, { 364, 1 }, { 365, 16 },
   { 381, 1 }, { 382, 8 }, { 390, 1 }, { 391, 8 }, { 399, 1 }, { 400, 3 }, { 403, 1 }, { 404, 3 },
   { 407, 1 }, { 408, 2 }, { 410, 1 }, { 411, 2 }, { 413, 1 }, { 414, 8 }, { 422, 1 }, { 423, 8 },
   { 431, 1 }, { 432, 8 }, { 440, 1 }, { 441, 8 }, {}, {}, {}, { 0, 1 },
   { 1, 1 }, { 2, 1 }, { 3, 8 }, { 11, 1 }, { 12, 80 }, { 92, 1 }, { 93, 1 }, { 94, 1 },
   { 95, 1 }, { 96, 1 }, { 97, 1 }, { 98, 1 }, { 99, 1 }, { 100, 1 }, { 101, 1 }, { 102, 1 },
   { 103, 1 }, { 104, 1 }, { 105, 1 }, { 106, 1 }, { 107, 1 }, { 108, 1 }, { 109, 1 }, { 110, 1 },
   { 111, 1 }, { 112, 1 }, { 113, 20 }, { 133, 1 }, { 134, 20 }, { 154, 1 }, { 155, 20 }, { 175, 1 },
   { 176, 20 }, { 196, 1 }, { 197, 20 }, { 217, 1 }, { 218, 20 }, { 238, 1 }, { 239, 20 }, { 259, 1 },
   { 260, 20 }, { 280, 1 }, { 281, 20 }, { 301, 1 }, { 302, 20 }, { 322, 1 }, { 323, 2 }, { 325, 1 },
   { 326, 2 }, { 328, 1 }, { 329, 2 }, { 331, 1 }, { 332, 2 }, { 334, 1 }, { 335, 2 }, { 337, 1 },
   { 338, 2 }, { 340, 1 }, { 341, 2 }, { 343, 1 }, { 344, 2 }, { 346, 1 }, { 347, 2 }, { 349, 1 },
   { 350, 2 }, { 352, 1 }, { 353, 1 }, { 354, 1 }, { 355, 1 }, { 356, 1 }, { 357, 1 }, { 358, 1 },
   { 359, 1 }, { 360, 1 }, { 361, 1 }, { 362, 1 }, { 363, 1 }, { 364, 1 }, { 365, 16 }, { 381, 1 },
   { 382, 10 }, { 392, 1 }, { 393, 8 }, { 401, 1 }, { 402, 3 }, {}, {}, { 409, 1 },
   { 410, 2 }, { 412, 1 }, { 413, 2 }, { 415, 1 }, { 416, 8 }, { 424, 1 }, { 425, 8 }, { 433, 1 },
   { 434, 8 }, { 442, 1 }, { 443, 8 }, { 405, 1 }, { 406, 3 }, {}, { 0, 1 }, { 1, 1 },
   { 2, 1 }, { 3, 8 }, { 11, 1 }, { 12, 80 }, { 92, 1 }, { 93, 1 }, { 94, 1 }, { 95, 1 },
   { 96, 1 }, { 97, 1 }, { 98, 1 }, { 99, 1 }, { 100, 1 }, { 101, 1 }, { 102, 1 }, { 103, 1 },
   { 104, 1 }, { 105, 1 }, { 106, 1 }, { 107, 1 }, { 108, 1 }, { 109, 1 }, { 110, 1 }, { 111, 1 },
   { 112, 1 }, { 113, 20 }, { 133, 1 }, { 134, 20 }, { 154, 1 }, { 155, 20 }, { 175, 1 }, { 176, 20 },
   { 196, 1 }, { 197, 20 }, { 217, 1 }, { 218, 20 }, { 238, 1 }, { 239, 20 }, { 259, 1 }, { 260, 20 },
   { 280, 1 }, { 281, 20 }, { 301, 1 }, { 302, 20 }, { 322, 1 }, { 323, 2 }, { 325, 1 }, { 326, 2 },
   { 328, 1 }, { 329, 2 }, { 331, 1 }, { 332, 2 }, { 334, 1 }, { 335, 2 }, { 337, 1 }, { 338, 2 },
   { 340, 1 }, { 341, 2 }, { 343, 1 }, { 344, 2 }, { 346, 1 }, { 347, 2 }, { 349, 1 }, { 350, 2 },
   { 352, 1 }, { 353, 1 }, { 354, 1 }, { 355, 1 }, { 356, 1 }, { 357, 1 }, { 358, 1 }, { 359, 1 },
   { 360, 1 }, { 361, 1 }, { 362, 1 }, { 363, 1 }, { 364, 1 }, { 365, 16 }, { 381, 1 }, { 382, 8 },
   { 390, 1 }, { 391, 8 }, { 399, 1 }, { 400, 3 }, {}, {}, { 407, 1 }, { 408, 2 },
   { 410, 1 }, { 411, 2 }, { 413, 1 }, { 414, 8 }, { 422, 1 }, { 423, 9 }, { 432, 1 }, { 433, 10 },
   { 443, 1 }, { 444, 8 }, { 403, 1 }, { 404, 3 }, { 452, 1 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0x1, 0x0,
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0x7, 0x0,
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0x1f, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 32u }, 15, 60, 3, 0, 0, 770, 2, { { 8, 1 }, { 22, 8 } }, 0xe50000, 32, &rows[0], &masks[0] },
   { { 0, 32u }, 15, 60, 3, 0, 0, 770, 1, { { 22, 1 } }, 0x66b00, 32, &rows[103], &masks[16] },
   { { 0, 32u }, 15, 60, 3, 0, 0, 770, 2, { { 0, 12 }, { 0, 24 } }, 0x1660000, 32, &rows[206], &masks[32] },
   { { 0, 32u }, 15, 60, 3, 0, 0, 770, 1, { { 0, 12 } }, 0x1660000, 32, &rows[206], &masks[32] },
   { { 0, 32u }, 15, 60, 3, 0, 0, 770, 1, { { 24, 13 } }, 0xba0000, 32, &rows[103], &masks[16] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace CgmSnifTmTableData

constinit AsicUtils::MetaInfo const CgmSnifTmTable::metaInfo{
   Impl::trace, Impl::source, __LINE__, "CgmSnifTmTable", 1, true, 1, AsicUtils::ValueType::Raw512,
   CgmSnifTmTableData::fields, CgmSnifTmTableData::layouts, {}, {}
};

Raw512 CgmSnifTmTable::allFieldsMask() const {
   metaInfo.trace( "virtual Raw512 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EgressOutrifMaxValue

namespace EgressOutrifMaxValueData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "cfgOutrifMaxValue", 61, AsicUtils::ValueType::U32, false },
   { "outrifMaxValue", 549, AsicUtils::ValueType::U32, false },
   { "cfgRifMaxValue", 63, AsicUtils::ValueType::U32, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 18 }, {}, {}, {}, { 0, 18 }, {}, {}, {},
   { 0, 22 },
};
constexpr U32 masks[] = {
   0x3ffff, 0x3ffff, 0x3fffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 1, 4, 1, 0, 0, 30562, 2, { { 24, 2 }, { 6, 10 } }, 0x50b, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 30562, 1, { { 0, 9 } }, 0x50b, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 30562, 2, { { 24, 13 }, { 24, 25 } }, 0x50b, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 30562, 1, { { 24, 13 } }, 0x50b, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 30562, 1, { { 24, 17 } }, 0x50b, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31547, 2, { { 26, 2 }, { 8, 10 } }, 0x108, 0, &rows[3], &masks[1] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31547, 1, { { 20, 5 } }, 0x108, 0, &rows[3], &masks[1] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31547, 2, { { 26, 13 }, { 26, 25 } }, 0x108, 0, &rows[3], &masks[1] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31547, 1, { { 26, 13 } }, 0x108, 0, &rows[3], &masks[1] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31547, 1, { { 8, 8 } }, 0x108, 0, &rows[3], &masks[1] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31490, 2, { { 26, 2 }, { 8, 10 } }, 0x904, 0, &rows[6], &masks[2] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31490, 1, { { 20, 5 } }, 0x904, 0, &rows[6], &masks[2] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31490, 2, { { 26, 13 }, { 26, 25 } }, 0x905, 0, &rows[6], &masks[2] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31490, 1, { { 26, 13 } }, 0x905, 0, &rows[6], &masks[2] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31490, 1, { { 8, 8 } }, 0x904, 0, &rows[6], &masks[2] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
   &layout[5], &layout[6], &layout[7], nullptr, &layout[8], &layout[9], &layout[9],
   &layout[10], &layout[11], &layout[12], nullptr, &layout[13], &layout[14], &layout[14],
};
} // namespace EgressOutrifMaxValueData

constinit AsicUtils::MetaInfo const EgressOutrifMaxValue::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EgressOutrifMaxValue", 2, false, 3, AsicUtils::ValueType::U32,
   EgressOutrifMaxValueData::fields, EgressOutrifMaxValueData::layouts, {}, {}
};

U32 EgressOutrifMaxValue::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EnableKapsInterfaceDefault

namespace EnableKapsInterfaceDefaultData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "enableKapsInterfaceDefault", 245, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 4 },
};
constexpr U32 masks[] = {
   0xf,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 1, 4, 1, 0, 0, 54175, 2, { { 10, 2 }, { 24, 9 } }, 0x163, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 54175, 1, { { 10, 10 } }, 0x163, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 54175, 2, { { 6, 14 }, { 6, 26 } }, 0x161, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 54175, 1, { { 6, 14 } }, 0x161, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 54175, 1, { { 0, 17 } }, 0x163, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EnableKapsInterfaceDefaultData

constinit AsicUtils::MetaInfo const EnableKapsInterfaceDefault::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EnableKapsInterfaceDefault", 3, false, 1, AsicUtils::ValueType::U32,
   EnableKapsInterfaceDefaultData::fields, EnableKapsInterfaceDefaultData::layouts, {}, {}
};

U32 EnableKapsInterfaceDefault::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EnablersVectors

namespace EnablersVectorsData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "routingEnableVector", 633, AsicUtils::ValueType::U64, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 64 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 32u }, 2, 8, 3, 0, 0, 8278, 2, { { 18, 2 }, { 0, 10 } }, 0x930000, 32, &rows[0], &masks[0] },
   { { 0, 32u }, 2, 8, 3, 0, 0, 8278, 1, { { 6, 10 } }, 0x930000, 32, &rows[0], &masks[0] },
   { { 0, 32u }, 2, 8, 3, 0, 0, 8278, 2, { { 2, 14 }, { 2, 26 } }, 0x930000, 32, &rows[0], &masks[0] },
   { { 0, 32u }, 2, 8, 3, 0, 0, 8278, 1, { { 2, 14 } }, 0x930000, 32, &rows[0], &masks[0] },
   { { 0, 32u }, 2, 8, 3, 0, 0, 8278, 1, { { 24, 12 } }, 0x930000, 32, &rows[0], &masks[0] },
   { { 0, 32u }, 2, 8, 2, 3, 3, 7780, 2, { { 8, 2 }, { 22, 9 } }, 0x8f0060, 32, &rows[0], &masks[0] },
   { { 0, 32u }, 2, 8, 2, 3, 3, 7780, 1, { { 8, 10 } }, 0x8f0060, 32, &rows[0], &masks[0] },
   { { 0, 32u }, 2, 8, 2, 3, 3, 7780, 2, { { 4, 14 }, { 4, 26 } }, 0x8f0060, 32, &rows[0], &masks[0] },
   { { 0, 32u }, 2, 8, 2, 3, 3, 7780, 1, { { 4, 14 } }, 0x8f0060, 32, &rows[0], &masks[0] },
   { { 0, 32u }, 2, 8, 2, 3, 3, 7780, 1, { { 8, 17 } }, 0x8f0060, 32, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
   &layout[5], &layout[6], &layout[7], nullptr, &layout[8], &layout[9], &layout[9],
};
} // namespace EnablersVectorsData

constinit AsicUtils::MetaInfo const EnablersVectors::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EnablersVectors", 4, true, 2, AsicUtils::ValueType::U64,
   EnablersVectorsData::fields, EnablersVectorsData::layouts, {}, {}
};

U64 EnablersVectors::allFieldsMask() const {
   metaInfo.trace( "virtual U64 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- ErppCfgMappingOutLifProfile

namespace ErppCfgMappingOutLifProfileData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "outlifOrientation", 545, AsicUtils::ValueType::U8, false },
   { "outlifSameIf", 547, AsicUtils::ValueType::U8, false },
   { "outlifMtu", 544, AsicUtils::ValueType::U8, false },
   { "outlifTtlScopeIndex", 548, AsicUtils::ValueType::U8, false },
   { "enableMulticastSameInterfaceFilters", 246, AsicUtils::ValueType::U8, false },
   { "outlifEnableUcSameInterface", 543, AsicUtils::ValueType::U8, false },
   { "reserved", 631, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 3 }, { 3, 2 }, { 5, 3 }, { 8, 3 }, { 11, 1 }, { 12, 1 }, { 13, 3 },
};
constexpr U32 masks[] = {
   0xffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 16u }, 1, 4, 1, 0, 0, 3035, 2, { { 24, 2 }, { 6, 10 } }, 0x2f60000, 0, &rows[0], &masks[0] },
   { { 0, 16u }, 1, 4, 1, 0, 0, 3035, 1, { { 0, 9 } }, 0x2f80000, 0, &rows[0], &masks[0] },
   { { 0, 16u }, 1, 4, 1, 0, 0, 3035, 2, { { 24, 13 }, { 24, 25 } }, 0x2f80000, 0, &rows[0], &masks[0] },
   { { 0, 16u }, 1, 4, 1, 0, 0, 3035, 1, { { 24, 13 } }, 0x2f80000, 0, &rows[0], &masks[0] },
   { { 0, 16u }, 1, 4, 1, 0, 0, 3035, 1, { { 24, 17 } }, 0x2f80000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace ErppCfgMappingOutLifProfileData

constinit AsicUtils::MetaInfo const ErppCfgMappingOutLifProfile::metaInfo{
   Impl::trace, Impl::source, __LINE__, "ErppCfgMappingOutLifProfile", 5, true, 1, AsicUtils::ValueType::U32,
   ErppCfgMappingOutLifProfileData::fields, ErppCfgMappingOutLifProfileData::layouts, {}, {}
};

U32 ErppCfgMappingOutLifProfile::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- ErppCfgSplitHorizonFilter

namespace ErppCfgSplitHorizonFilterData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "cfgSplitHorizonFilter", 65, AsicUtils::ValueType::U64, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 64 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 2, 8, 1, 0, 0, 30566, 2, { { 24, 2 }, { 6, 10 } }, 0x540, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 30566, 1, { { 0, 9 } }, 0x58a, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 30566, 2, { { 24, 13 }, { 24, 25 } }, 0x54a, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 30566, 1, { { 24, 13 } }, 0x54a, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 30566, 1, { { 24, 17 } }, 0x58a, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace ErppCfgSplitHorizonFilterData

constinit AsicUtils::MetaInfo const ErppCfgSplitHorizonFilter::metaInfo{
   Impl::trace, Impl::source, __LINE__, "ErppCfgSplitHorizonFilter", 6, false, 1, AsicUtils::ValueType::U64,
   ErppCfgSplitHorizonFilterData::fields, ErppCfgSplitHorizonFilterData::layouts, {}, {}
};

U64 ErppCfgSplitHorizonFilter::allFieldsMask() const {
   metaInfo.trace( "virtual U64 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- ErppInlifOrientationMap

namespace ErppInlifOrientationMapData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "inlifOrientation", 332, AsicUtils::ValueType::U8, false },
   { "inlifSameIfFilter", 337, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 3 }, { 3, 2 },
};
constexpr U32 masks[] = {
   0x1f,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 256u }, 1, 4, 1, 0, 0, 3034, 2, { { 24, 2 }, { 6, 10 } }, 0x2f40000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3034, 1, { { 0, 9 } }, 0x2f60000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3034, 2, { { 24, 13 }, { 24, 25 } }, 0x2f60000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3034, 1, { { 24, 13 } }, 0x2f60000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3034, 1, { { 24, 17 } }, 0x2f60000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace ErppInlifOrientationMapData

constinit AsicUtils::MetaInfo const ErppInlifOrientationMap::metaInfo{
   Impl::trace, Impl::source, __LINE__, "ErppInlifOrientationMap", 7, true, 1, AsicUtils::ValueType::U32,
   ErppInlifOrientationMapData::fields, ErppInlifOrientationMapData::layouts, {}, {}
};

U32 ErppInlifOrientationMap::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EthernetTrap

namespace EthernetTrapData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "eth0CpuTrapCode", 254, AsicUtils::ValueType::U16, false },
   { "eth0CpuTrapStrength", 255, AsicUtils::ValueType::U8, false },
   { "eth0SnoopStrength", 256, AsicUtils::ValueType::U8, false },
   { "eth1CpuTrapCode", 257, AsicUtils::ValueType::U16, false },
   { "eth1CpuTrapStrength", 258, AsicUtils::ValueType::U8, false },
   { "eth1SnoopStrength", 259, AsicUtils::ValueType::U8, false },
   { "eth2CpuTrapCode", 260, AsicUtils::ValueType::U16, false },
   { "eth2CpuTrapStrength", 261, AsicUtils::ValueType::U8, false },
   { "eth2SnoopStrength", 262, AsicUtils::ValueType::U8, false },
   { "eth3CpuTrapCode", 263, AsicUtils::ValueType::U16, false },
   { "eth3CpuTrapStrength", 264, AsicUtils::ValueType::U8, false },
   { "eth3SnoopStrength", 265, AsicUtils::ValueType::U8, false },
   { "eth4CpuTrapCode", 266, AsicUtils::ValueType::U16, false },
   { "eth4CpuTrapStrength", 267, AsicUtils::ValueType::U8, false },
   { "eth4SnoopStrength", 268, AsicUtils::ValueType::U8, false },
   { "eth5CpuTrapCode", 269, AsicUtils::ValueType::U16, false },
   { "eth5CpuTrapStrength", 270, AsicUtils::ValueType::U8, false },
   { "eth5SnoopStrength", 271, AsicUtils::ValueType::U8, false },
   { "eth6CpuTrapCode", 272, AsicUtils::ValueType::U16, false },
   { "eth6CpuTrapStrength", 274, AsicUtils::ValueType::U8, false },
   { "eth6SnoopStrength", 275, AsicUtils::ValueType::U8, false },
   { "eth7CpuTrapCode", 276, AsicUtils::ValueType::U16, false },
   { "eth7CpuTrapStrength", 277, AsicUtils::ValueType::U8, false },
   { "eth7SnoopStrength", 278, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 9 }, { 9, 4 }, { 13, 3 }, { 16, 9 }, { 25, 4 }, { 29, 3 }, { 32, 9 }, { 41, 4 },
   { 45, 3 }, { 48, 9 }, { 57, 4 }, { 61, 3 }, { 64, 9 }, { 73, 4 }, { 77, 3 }, { 80, 9 },
   { 89, 4 }, { 93, 3 }, { 96, 9 }, { 105, 4 }, { 109, 3 }, { 112, 9 }, { 121, 4 }, { 125, 3 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 4, 16, 1, 0, 0, 54780, 2, { { 18, 2 }, { 0, 10 } }, 0x19d, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 54780, 1, { { 6, 10 } }, 0x1c7, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 54780, 2, { { 2, 14 }, { 2, 26 } }, 0x1c7, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 54780, 1, { { 2, 14 } }, 0x1c7, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 54780, 1, { { 24, 12 } }, 0x1c7, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 54019, 2, { { 8, 2 }, { 22, 9 } }, 0x19d, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 54019, 1, { { 8, 10 } }, 0x19f, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 54019, 2, { { 4, 14 }, { 4, 26 } }, 0x19f, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 54019, 1, { { 4, 14 } }, 0x19f, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 54019, 1, { { 8, 17 } }, 0x19f, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
   &layout[5], &layout[6], &layout[7], nullptr, &layout[8], &layout[9], &layout[9],
};
} // namespace EthernetTrapData

constinit AsicUtils::MetaInfo const EthernetTrap::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EthernetTrap", 8, false, 2, AsicUtils::ValueType::Raw128,
   EthernetTrapData::fields, EthernetTrapData::layouts, {}, {}
};

Raw128 EthernetTrap::allFieldsMask() const {
   metaInfo.trace( "virtual Raw128 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EtppCfgFwdDoNotTtlDecrement

namespace EtppCfgFwdDoNotTtlDecrementData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "cfgFwdEgressDoNotTtlDecrement", 59, AsicUtils::ValueType::Raw512, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 512 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 16, 64, 1, 0, 0, 31814, 2, { { 30, 2 }, { 12, 10 } }, 0x700, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 1, 0, 0, 31814, 1, { { 8, 4 } }, 0x700, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 1, 0, 0, 31814, 2, { { 30, 13 }, { 30, 25 } }, 0x700, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 1, 0, 0, 31814, 1, { { 30, 13 } }, 0x700, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 1, 0, 0, 31814, 1, { { 24, 9 } }, 0x700, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EtppCfgFwdDoNotTtlDecrementData

constinit AsicUtils::MetaInfo const EtppCfgFwdDoNotTtlDecrement::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EtppCfgFwdDoNotTtlDecrement", 9, false, 1, AsicUtils::ValueType::Raw512,
   EtppCfgFwdDoNotTtlDecrementData::fields, EtppCfgFwdDoNotTtlDecrementData::layouts, {}, {}
};

Raw512 EtppCfgFwdDoNotTtlDecrement::allFieldsMask() const {
   metaInfo.trace( "virtual Raw512 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EtppCfgRifInStack

namespace EtppCfgRifInStackData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "cfgRifInStack", 62, AsicUtils::ValueType::U16, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 16 },
};
constexpr U32 masks[] = {
   0xffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 1, 4, 1, 0, 0, 31489, 2, { { 26, 2 }, { 8, 10 } }, 0x903, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31489, 1, { { 20, 5 } }, 0x903, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31489, 2, { { 26, 13 }, { 26, 25 } }, 0x904, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31489, 1, { { 26, 13 } }, 0x904, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31489, 1, { { 8, 8 } }, 0x903, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EtppCfgRifInStackData

constinit AsicUtils::MetaInfo const EtppCfgRifInStack::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EtppCfgRifInStack", 10, false, 1, AsicUtils::ValueType::U32,
   EtppCfgRifInStackData::fields, EtppCfgRifInStackData::layouts, {}, {}
};

U32 EtppCfgRifInStack::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EtppCfgSplitHorizonFilter

namespace EtppCfgSplitHorizonFilterData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "cfgSplitHorizonFilter", 65, AsicUtils::ValueType::U64, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 64 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 2, 8, 1, 0, 0, 31859, 2, { { 30, 2 }, { 12, 10 } }, 0x823, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 31859, 1, { { 8, 4 } }, 0x824, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 31859, 2, { { 30, 13 }, { 30, 25 } }, 0x828, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 31859, 1, { { 30, 13 } }, 0x828, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 31859, 1, { { 24, 9 } }, 0x824, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EtppCfgSplitHorizonFilterData

constinit AsicUtils::MetaInfo const EtppCfgSplitHorizonFilter::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EtppCfgSplitHorizonFilter", 11, false, 1, AsicUtils::ValueType::U64,
   EtppCfgSplitHorizonFilterData::fields, EtppCfgSplitHorizonFilterData::layouts, {}, {}
};

U64 EtppCfgSplitHorizonFilter::allFieldsMask() const {
   metaInfo.trace( "virtual U64 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EtppCfgSplitHorizonTrapParams

namespace EtppCfgSplitHorizonTrapParamsData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "cfgSplitHorizonFwdActionStrength", 67, AsicUtils::ValueType::U8, false },
   { "cfgSplitHorizonSnoopActionStrength", 70, AsicUtils::ValueType::U8, false },
   { "cfgSplitHorizonActionProfile", 64, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 4 }, { 4, 3 }, { 7, 3 },
};
constexpr U32 masks[] = {
   0x3ff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 1, 4, 1, 0, 0, 31863, 2, { { 30, 2 }, { 12, 10 } }, 0x831, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31863, 1, { { 8, 4 } }, 0x84a, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31863, 2, { { 30, 13 }, { 30, 25 } }, 0x836, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31863, 1, { { 30, 13 } }, 0x836, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 31863, 1, { { 24, 9 } }, 0x84a, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EtppCfgSplitHorizonTrapParamsData

constinit AsicUtils::MetaInfo const EtppCfgSplitHorizonTrapParams::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EtppCfgSplitHorizonTrapParams", 12, false, 1, AsicUtils::ValueType::U32,
   EtppCfgSplitHorizonTrapParamsData::fields, EtppCfgSplitHorizonTrapParamsData::layouts, {}, {}
};

U32 EtppCfgSplitHorizonTrapParams::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EtppEnc1ContextSelectionPortProfile

namespace EtppEnc1ContextSelectionPortProfileData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "contextSelectionPerPortProfile", 81, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 2 },
};
constexpr U32 masks[] = {
   0x3,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 256u }, 1, 4, 1, 0, 0, 3464, 2, { { 30, 2 }, { 12, 10 } }, 0x2740000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 1, 4, 1, 0, 0, 3464, 1, { { 8, 4 } }, 0x2740000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3464, 2, { { 30, 13 }, { 30, 25 } }, 0x2740000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3464, 1, { { 30, 13 } }, 0x2740000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 1, 4, 1, 0, 0, 3464, 1, { { 24, 9 } }, 0x2740000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EtppEnc1ContextSelectionPortProfileData

constinit AsicUtils::MetaInfo const EtppEnc1ContextSelectionPortProfile::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EtppEnc1ContextSelectionPortProfile", 13, true, 1, AsicUtils::ValueType::U32,
   EtppEnc1ContextSelectionPortProfileData::fields, EtppEnc1ContextSelectionPortProfileData::layouts, {}, {}
};

U32 EtppEnc1ContextSelectionPortProfile::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EtppEnc2ContextSelectionPortProfile

namespace EtppEnc2ContextSelectionPortProfileData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "contextSelectionPerPortProfile", 81, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 2 },
};
constexpr U32 masks[] = {
   0x3,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 256u }, 1, 4, 1, 0, 0, 3475, 2, { { 30, 2 }, { 12, 10 } }, 0x2750000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 1, 4, 1, 0, 0, 3475, 1, { { 8, 4 } }, 0x2750000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3475, 2, { { 30, 13 }, { 30, 25 } }, 0x2750000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3475, 1, { { 30, 13 } }, 0x2750000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 1, 4, 1, 0, 0, 3475, 1, { { 24, 9 } }, 0x2750000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EtppEnc2ContextSelectionPortProfileData

constinit AsicUtils::MetaInfo const EtppEnc2ContextSelectionPortProfile::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EtppEnc2ContextSelectionPortProfile", 14, true, 1, AsicUtils::ValueType::U32,
   EtppEnc2ContextSelectionPortProfileData::fields, EtppEnc2ContextSelectionPortProfileData::layouts, {}, {}
};

U32 EtppEnc2ContextSelectionPortProfile::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EtppEnc3ContextSelectionPortProfile

namespace EtppEnc3ContextSelectionPortProfileData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "contextSelectionPerPortProfile", 81, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 2 },
};
constexpr U32 masks[] = {
   0x3,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 256u }, 1, 4, 1, 0, 0, 3346, 2, { { 28, 2 }, { 10, 10 } }, 0x1d0000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 1, 4, 1, 0, 0, 3346, 1, { { 2, 9 } }, 0x1d0000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3346, 2, { { 28, 13 }, { 28, 25 } }, 0x1d0000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3346, 1, { { 28, 13 } }, 0x1d0000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 1, 4, 1, 0, 0, 3346, 1, { { 16, 9 } }, 0x1d0000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EtppEnc3ContextSelectionPortProfileData

constinit AsicUtils::MetaInfo const EtppEnc3ContextSelectionPortProfile::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EtppEnc3ContextSelectionPortProfile", 15, true, 1, AsicUtils::ValueType::U32,
   EtppEnc3ContextSelectionPortProfileData::fields, EtppEnc3ContextSelectionPortProfileData::layouts, {}, {}
};

U32 EtppEnc3ContextSelectionPortProfile::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EtppEnc4ContextSelectionPortProfile

namespace EtppEnc4ContextSelectionPortProfileData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "contextSelectionPerPortProfile", 81, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 2 },
};
constexpr U32 masks[] = {
   0x3,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 256u }, 1, 4, 1, 0, 0, 3363, 2, { { 28, 2 }, { 10, 10 } }, 0x1e0000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 1, 4, 1, 0, 0, 3363, 1, { { 2, 9 } }, 0x1e0000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3363, 2, { { 28, 13 }, { 28, 25 } }, 0x1e0000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3363, 1, { { 28, 13 } }, 0x1e0000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 1, 4, 1, 0, 0, 3363, 1, { { 16, 9 } }, 0x1e0000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EtppEnc4ContextSelectionPortProfileData

constinit AsicUtils::MetaInfo const EtppEnc4ContextSelectionPortProfile::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EtppEnc4ContextSelectionPortProfile", 16, true, 1, AsicUtils::ValueType::U32,
   EtppEnc4ContextSelectionPortProfileData::fields, EtppEnc4ContextSelectionPortProfileData::layouts, {}, {}
};

U32 EtppEnc4ContextSelectionPortProfile::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EtppEnc5ContextSelectionPortProfile

namespace EtppEnc5ContextSelectionPortProfileData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "contextSelectionPerPortProfile", 81, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 2 },
};
constexpr U32 masks[] = {
   0x3,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 256u }, 1, 4, 1, 0, 0, 3380, 2, { { 28, 2 }, { 10, 10 } }, 0x1f0000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 1, 4, 1, 0, 0, 3380, 1, { { 2, 9 } }, 0x1f0000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3380, 2, { { 28, 13 }, { 28, 25 } }, 0x1f0000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3380, 1, { { 28, 13 } }, 0x1f0000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 1, 4, 1, 0, 0, 3380, 1, { { 16, 9 } }, 0x1f0000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EtppEnc5ContextSelectionPortProfileData

constinit AsicUtils::MetaInfo const EtppEnc5ContextSelectionPortProfile::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EtppEnc5ContextSelectionPortProfile", 17, true, 1, AsicUtils::ValueType::U32,
   EtppEnc5ContextSelectionPortProfileData::fields, EtppEnc5ContextSelectionPortProfileData::layouts, {}, {}
};

U32 EtppEnc5ContextSelectionPortProfile::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EtppInlifOrientationMap

namespace EtppInlifOrientationMapData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "inlifOrientationMapping", 333, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 3 },
};
constexpr U32 masks[] = {
   0x7,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 256u }, 1, 4, 1, 0, 0, 3504, 2, { { 30, 2 }, { 12, 10 } }, 0x2110000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3504, 1, { { 8, 4 } }, 0x2120000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3504, 2, { { 30, 13 }, { 30, 25 } }, 0x21a0000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3504, 1, { { 30, 13 } }, 0x21a0000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3504, 1, { { 24, 9 } }, 0x2120000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EtppInlifOrientationMapData

constinit AsicUtils::MetaInfo const EtppInlifOrientationMap::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EtppInlifOrientationMap", 18, true, 1, AsicUtils::ValueType::U32,
   EtppInlifOrientationMapData::fields, EtppInlifOrientationMapData::layouts, {}, {}
};

U32 EtppInlifOrientationMap::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EtppOutlifOrientationMap

namespace EtppOutlifOrientationMapData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "outlifOrientationMapping", 546, AsicUtils::ValueType::Raw256, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 192 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 6, 24, 1, 0, 0, 31951, 2, { { 30, 2 }, { 12, 10 } }, 0x81d, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 6, 24, 1, 0, 0, 31951, 1, { { 8, 4 } }, 0x81e, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 6, 24, 1, 0, 0, 31951, 2, { { 30, 13 }, { 30, 25 } }, 0x822, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 6, 24, 1, 0, 0, 31951, 1, { { 30, 13 } }, 0x822, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 6, 24, 1, 0, 0, 31951, 1, { { 24, 9 } }, 0x81e, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EtppOutlifOrientationMapData

constinit AsicUtils::MetaInfo const EtppOutlifOrientationMap::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EtppOutlifOrientationMap", 19, false, 1, AsicUtils::ValueType::Raw256,
   EtppOutlifOrientationMapData::fields, EtppOutlifOrientationMapData::layouts, {}, {}
};

Raw256 EtppOutlifOrientationMap::allFieldsMask() const {
   metaInfo.trace( "virtual Raw256 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EtppTrapBitCruncherProgram

namespace EtppTrapBitCruncherProgramData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "nofInstructionsInPairs", 526, AsicUtils::ValueType::U8, false },
   { "doubleInstruction0", 230, AsicUtils::ValueType::U64, false },
   { "doubleInstruction1", 231, AsicUtils::ValueType::U64, false },
   { "doubleInstruction2", 232, AsicUtils::ValueType::U64, false },
   { "doubleInstruction3", 233, AsicUtils::ValueType::U64, false },
   { "doubleInstruction4", 234, AsicUtils::ValueType::U64, false },
   { "doubleInstruction5", 235, AsicUtils::ValueType::U64, false },
   { "doubleInstruction6", 236, AsicUtils::ValueType::U64, false },
   { "doubleInstruction7", 237, AsicUtils::ValueType::U64, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 4 }, { 4, 50 }, { 54, 50 }, { 104, 50 }, { 154, 50 }, { 204, 50 }, { 254, 50 }, { 304, 50 },
   { 354, 50 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xfffff, 0x0, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 64u }, 13, 52, 1, 0, 0, 3424, 2, { { 28, 2 }, { 10, 10 } }, 0x1270000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 13, 52, 1, 0, 0, 3424, 1, { { 2, 9 } }, 0x1270000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 13, 52, 1, 0, 0, 3424, 2, { { 28, 13 }, { 28, 25 } }, 0x1270000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 13, 52, 1, 0, 0, 3424, 1, { { 28, 13 } }, 0x1270000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 13, 52, 1, 0, 0, 3424, 1, { { 16, 9 } }, 0x1270000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EtppTrapBitCruncherProgramData

constinit AsicUtils::MetaInfo const EtppTrapBitCruncherProgram::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EtppTrapBitCruncherProgram", 20, true, 1, AsicUtils::ValueType::Raw512,
   EtppTrapBitCruncherProgramData::fields, EtppTrapBitCruncherProgramData::layouts, {}, {}
};

Raw512 EtppTrapBitCruncherProgram::allFieldsMask() const {
   metaInfo.trace( "virtual Raw512 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EtppTrapContextSelectionPortProfile

namespace EtppTrapContextSelectionPortProfileData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "contextSelectionPerPortProfile", 81, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 3 }, { 0, 4 },
};
constexpr U32 masks[] = {
   0x7, 0xf,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 256u }, 1, 4, 1, 0, 0, 3431, 2, { { 28, 2 }, { 10, 10 } }, 0x200000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 1, 4, 1, 0, 0, 3431, 1, { { 2, 9 } }, 0x200000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3431, 2, { { 28, 13 }, { 28, 25 } }, 0x200000, 0, &rows[1], &masks[1] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 3431, 1, { { 28, 13 } }, 0x200000, 0, &rows[1], &masks[1] },
   { { 0, 1024u }, 1, 4, 1, 0, 0, 3431, 1, { { 16, 9 } }, 0x200000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EtppTrapContextSelectionPortProfileData

constinit AsicUtils::MetaInfo const EtppTrapContextSelectionPortProfile::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EtppTrapContextSelectionPortProfile", 21, true, 1, AsicUtils::ValueType::U32,
   EtppTrapContextSelectionPortProfileData::fields, EtppTrapContextSelectionPortProfileData::layouts, {}, {}
};

U32 EtppTrapContextSelectionPortProfile::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EtppaPrpFesProgramTable

namespace EtppaPrpFesProgramTableData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "actionType0", 46, AsicUtils::ValueType::U8, false },
   { "actionType1", 47, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 14, 6 }, { 35, 6 },
};
constexpr U32 masks[] = {
   0xfc000, 0x1f8, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 64u }, 6, 24, 1, 0, 0, 3279, 2, { { 26, 2 }, { 8, 10 } }, 0x2300000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 6, 24, 1, 0, 0, 3279, 1, { { 20, 5 } }, 0x2300000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 6, 24, 1, 0, 0, 3279, 2, { { 26, 13 }, { 26, 25 } }, 0x2320000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 6, 24, 1, 0, 0, 3279, 1, { { 26, 13 } }, 0x2320000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 6, 24, 1, 0, 0, 3279, 1, { { 8, 8 } }, 0x2300000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EtppaPrpFesProgramTableData

constinit AsicUtils::MetaInfo const EtppaPrpFesProgramTable::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EtppaPrpFesProgramTable", 22, true, 1, AsicUtils::ValueType::Raw256,
   EtppaPrpFesProgramTableData::fields, EtppaPrpFesProgramTableData::layouts, {}, {}
};

Raw256 EtppaPrpFesProgramTable::allFieldsMask() const {
   metaInfo.trace( "virtual Raw256 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EtppbEnc5Arr0FormatCfg

namespace EtppbEnc5Arr0FormatCfgData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "sourceIdxConfig", 653, AsicUtils::ValueType::U16, false },
   { "ttlIdxConfig", 698, AsicUtils::ValueType::U16, false },
   { "nwkQosIdxConfig", 536, AsicUtils::ValueType::U16, false },
   { "qosModelConfig", 591, AsicUtils::ValueType::U16, false },
   { "ttlModelConfig", 701, AsicUtils::ValueType::U16, false },
   { "forwardDomainNetworkNameConfig", 316, AsicUtils::ValueType::U32, false },
   { "vlanEditProfileConfig", 714, AsicUtils::ValueType::U16, false },
   { "dualHomingConfig", 239, AsicUtils::ValueType::U32, false },
   { "lifAdditionalHeadersProfileConfig", 503, AsicUtils::ValueType::U16, false },
   { "mtuProfileConfig", 518, AsicUtils::ValueType::U16, false },
   { "forwardDomainConfig", 315, AsicUtils::ValueType::U32, false },
   { "remarkProfileConfig", 629, AsicUtils::ValueType::U16, false },
   { "vlanMembershipInterfaceConfig", 715, AsicUtils::ValueType::U16, false },
   { "lifStatisticsObjectIdConfig", 506, AsicUtils::ValueType::U32, false },
   { "lifStatisticsObjectCommandConfig", 505, AsicUtils::ValueType::U16, false },
   { "encapDestinationConfig", 247, AsicUtils::ValueType::U32, false },
   { "egressLastLayerConfig", 243, AsicUtils::ValueType::U16, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 16 }, { 16, 16 }, { 32, 16 }, { 48, 14 }, { 62, 14 }, { 76, 17 }, { 93, 15 }, { 108, 18 },
   { 126, 15 }, { 141, 14 }, { 155, 17 }, { 172, 15 }, { 187, 16 }, { 203, 17 }, { 220, 15 }, { 235, 19 },
   { 254, 13 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
   0x7ff, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 64u }, 9, 36, 1, 0, 0, 3373, 2, { { 28, 2 }, { 10, 10 } }, 0x1120000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 9, 36, 1, 0, 0, 3373, 1, { { 2, 9 } }, 0x1120000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 9, 36, 1, 0, 0, 3373, 2, { { 28, 13 }, { 28, 25 } }, 0x1120000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 9, 36, 1, 0, 0, 3373, 1, { { 28, 13 } }, 0x1120000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 9, 36, 1, 0, 0, 3373, 1, { { 16, 9 } }, 0x1120000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EtppbEnc5Arr0FormatCfgData

constinit AsicUtils::MetaInfo const EtppbEnc5Arr0FormatCfg::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EtppbEnc5Arr0FormatCfg", 23, true, 1, AsicUtils::ValueType::Raw512,
   EtppbEnc5Arr0FormatCfgData::fields, EtppbEnc5Arr0FormatCfgData::layouts, {}, {}
};

Raw512 EtppbEnc5Arr0FormatCfg::allFieldsMask() const {
   metaInfo.trace( "virtual Raw512 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EtppcEnc1Arr0FormatCfg

namespace EtppcEnc1Arr0FormatCfgData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "sourceIdxConfig", 653, AsicUtils::ValueType::U16, false },
   { "ttlIdxConfig", 698, AsicUtils::ValueType::U16, false },
   { "nwkQosIdxConfig", 536, AsicUtils::ValueType::U16, false },
   { "qosModelConfig", 591, AsicUtils::ValueType::U16, false },
   { "ttlModelConfig", 701, AsicUtils::ValueType::U16, false },
   { "forwardDomainNetworkNameConfig", 316, AsicUtils::ValueType::U32, false },
   { "vlanEditProfileConfig", 714, AsicUtils::ValueType::U16, false },
   { "dualHomingConfig", 239, AsicUtils::ValueType::U32, false },
   { "lifAdditionalHeadersProfileConfig", 503, AsicUtils::ValueType::U16, false },
   { "mtuProfileConfig", 518, AsicUtils::ValueType::U16, false },
   { "forwardDomainConfig", 315, AsicUtils::ValueType::U32, false },
   { "remarkProfileConfig", 629, AsicUtils::ValueType::U16, false },
   { "vlanMembershipInterfaceConfig", 715, AsicUtils::ValueType::U16, false },
   { "lifStatisticsObjectIdConfig", 506, AsicUtils::ValueType::U32, false },
   { "lifStatisticsObjectCommandConfig", 505, AsicUtils::ValueType::U16, false },
   { "encapDestinationConfig", 247, AsicUtils::ValueType::U32, false },
   { "egressLastLayerConfig", 243, AsicUtils::ValueType::U16, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 16 }, { 16, 16 }, { 32, 16 }, { 48, 14 }, { 62, 14 }, { 76, 17 }, { 93, 15 }, { 108, 18 },
   { 126, 15 }, { 141, 14 }, { 155, 17 }, { 172, 15 }, { 187, 16 }, { 203, 17 }, { 220, 15 }, { 235, 19 },
   { 254, 13 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
   0x7ff, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 64u }, 9, 36, 1, 0, 0, 3460, 2, { { 30, 2 }, { 12, 10 } }, 0x1720000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 9, 36, 1, 0, 0, 3460, 1, { { 8, 4 } }, 0x1720000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 9, 36, 1, 0, 0, 3460, 2, { { 30, 13 }, { 30, 25 } }, 0x1720000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 9, 36, 1, 0, 0, 3460, 1, { { 30, 13 } }, 0x1720000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 9, 36, 1, 0, 0, 3460, 1, { { 24, 9 } }, 0x1720000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EtppcEnc1Arr0FormatCfgData

constinit AsicUtils::MetaInfo const EtppcEnc1Arr0FormatCfg::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EtppcEnc1Arr0FormatCfg", 24, true, 1, AsicUtils::ValueType::Raw512,
   EtppcEnc1Arr0FormatCfgData::fields, EtppcEnc1Arr0FormatCfgData::layouts, {}, {}
};

Raw512 EtppcEnc1Arr0FormatCfg::allFieldsMask() const {
   metaInfo.trace( "virtual Raw512 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- EtppcEncapsulation2ContextSelectionCam

namespace EtppcEncapsulation2ContextSelectionCamData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "currentContext", 222, AsicUtils::ValueType::U8, false },
   { "etpsTosEntryType", 287, AsicUtils::ValueType::U8, false },
   { "etpsSecondEntryType", 283, AsicUtils::ValueType::U8, false },
   { "aceValue", 1, AsicUtils::ValueType::U8, false },
   { "pemCsVar", 552, AsicUtils::ValueType::U8, false },
   { "encapsulation2ContextPortProfile", 248, AsicUtils::ValueType::U8, false },
   { "currentContextMask", 223, AsicUtils::ValueType::U8, false },
   { "etpsTosEntryTypeMask", 288, AsicUtils::ValueType::U8, false },
   { "etpsSecondEntryTypeMask", 284, AsicUtils::ValueType::U8, false },
   { "aceValueMask", 2, AsicUtils::ValueType::U8, false },
   { "pemCsVarMask", 553, AsicUtils::ValueType::U8, false },
   { "encapsulation2ContextPortProfileMask", 249, AsicUtils::ValueType::U8, false },
   { "program", 563, AsicUtils::ValueType::U8, false },
   { "valid", 710, AsicUtils::ValueType::U8, false },
   { "currentContextProfile", 224, AsicUtils::ValueType::U8, false },
   { "etpsTosEntryTypeProfile", 289, AsicUtils::ValueType::U8, false },
   { "etpsSecondEntryTypeProfile", 285, AsicUtils::ValueType::U8, false },
   { "currentContextProfileMask", 225, AsicUtils::ValueType::U8, false },
   { "etpsTosEntryTypeProfileMask", 290, AsicUtils::ValueType::U8, false },
   { "etpsSecondEntryTypeProfileMask", 286, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 6 }, { 6, 6 }, { 12, 6 }, { 18, 2 }, { 20, 4 }, { 24, 2 }, { 26, 6 }, { 32, 6 },
   { 38, 6 }, { 44, 2 }, { 46, 4 }, { 50, 2 }, { 52, 7 }, { 59, 1 }, {}, {},
   {}, {}, {}, {}, {}, {}, {}, { 18, 2 },
   { 20, 4 }, { 24, 2 }, {}, {}, {}, { 44, 2 }, { 46, 4 }, { 50, 2 },
   { 52, 7 }, { 59, 1 }, { 0, 6 }, { 6, 6 }, { 12, 6 }, { 26, 6 }, { 32, 6 }, { 38, 6 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xfffffff, 0xffffffff, 0xfffffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 68u }, 2, 8, 1, 0, 0, 3459, 2, { { 30, 2 }, { 12, 10 } }, 0x2670000, 0, &rows[0], &masks[0] },
   { { 0, 68u }, 2, 8, 1, 0, 0, 3459, 1, { { 8, 4 } }, 0x2670000, 0, &rows[0], &masks[0] },
   { { 0, 68u }, 2, 8, 1, 0, 0, 3459, 2, { { 30, 13 }, { 30, 25 } }, 0x2670000, 0, &rows[20], &masks[2] },
   { { 0, 68u }, 2, 8, 1, 0, 0, 3459, 1, { { 30, 13 } }, 0x2670000, 0, &rows[20], &masks[2] },
   { { 0, 68u }, 2, 8, 1, 0, 0, 3459, 1, { { 24, 9 } }, 0x2670000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace EtppcEncapsulation2ContextSelectionCamData

constinit AsicUtils::MetaInfo const EtppcEncapsulation2ContextSelectionCam::metaInfo{
   Impl::trace, Impl::source, __LINE__, "EtppcEncapsulation2ContextSelectionCam", 25, true, 1, AsicUtils::ValueType::U64,
   EtppcEncapsulation2ContextSelectionCamData::fields, EtppcEncapsulation2ContextSelectionCamData::layouts, {}, {}
};

U64 EtppcEncapsulation2ContextSelectionCam::allFieldsMask() const {
   metaInfo.trace( "virtual U64 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- FfcInstruction

namespace FfcInstructionData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "ffcKeyOffset", 311, AsicUtils::ValueType::U8, false },
   { "ffcFieldSize", 303, AsicUtils::ValueType::U8, false },
   { "ffcFieldOffset", 302, AsicUtils::ValueType::U16, false },
   { "ffcIndex", 304, AsicUtils::ValueType::U8, false },
   { "resultType", 632, AsicUtils::ValueType::U8, true },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 8 }, { 8, 5 }, { 13, 11 }, { 24, 3 }, { 27, 2 }, { 0, 8 }, { 8, 5 }, { 13, 5 },
   { 24, 3 }, { 27, 2 }, { 0, 8 }, { 8, 5 }, { 13, 12 }, {}, { 25, 4 },
};
constexpr U32 masks[] = {
   0x1fffffff, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x1f03ffff, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x1fffffff, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 10, 1 } }, 0x0, 0, &rows[0], &masks[0] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 4, 5 } }, 0x0, 0, &rows[0], &masks[0] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 28, 12 } }, 0x0, 0, &rows[0], &masks[0] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 16, 15 } }, 0x0, 0, &rows[0], &masks[0] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 10, 1 } }, 0x0, 0, &rows[5], &masks[32] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 4, 5 } }, 0x0, 0, &rows[5], &masks[32] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 28, 12 } }, 0x0, 0, &rows[5], &masks[32] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 16, 15 } }, 0x0, 0, &rows[5], &masks[32] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 10, 1 } }, 0x0, 0, &rows[10], &masks[64] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 4, 5 } }, 0x0, 0, &rows[10], &masks[64] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 28, 12 } }, 0x0, 0, &rows[10], &masks[64] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 16, 15 } }, 0x0, 0, &rows[10], &masks[64] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[2], &layout[3], &layout[3],
   &layout[4], &layout[5], &layout[6], nullptr, &layout[6], &layout[7], &layout[7],
   &layout[8], &layout[9], &layout[10], nullptr, &layout[10], &layout[11], &layout[11],
   &layout[0], &layout[1], &layout[2], nullptr, &layout[2], &layout[3], &layout[3],
};
constexpr AsicUtils::TagRow tags[] = {
   { 1 << 0, 0, 27, 2, 1 },
   { 1 << 0, 1, 27, 2, 3 },
   { 1 << 0, 2, 25, 4, 8 },
   { 1 << 0, 3, 27, 2, 0 },
   { 1 << 1, 0, 27, 2, 1 },
   { 1 << 1, 1, 27, 2, 3 },
   { 1 << 1, 2, 25, 4, 8 },
   { 1 << 1, 3, 27, 2, 0 },
   { 1 << 2, 0, 27, 2, 1 },
   { 1 << 2, 1, 27, 2, 3 },
   { 1 << 2, 2, 25, 4, 8 },
   { 1 << 2, 3, 27, 2, 0 },
   { 1 << 4, 0, 27, 2, 1 },
   { 1 << 4, 1, 27, 2, 3 },
   { 1 << 4, 2, 25, 4, 8 },
   { 1 << 4, 3, 27, 2, 0 },
   { 1 << 5, 0, 27, 2, 1 },
   { 1 << 5, 1, 27, 2, 3 },
   { 1 << 5, 2, 25, 4, 8 },
   { 1 << 5, 3, 27, 2, 0 },
   { 1 << 6, 0, 27, 2, 1 },
   { 1 << 6, 1, 27, 2, 3 },
   { 1 << 6, 2, 25, 4, 8 },
   { 1 << 6, 3, 27, 2, 0 },
};
} // namespace FfcInstructionData

constinit AsicUtils::MetaInfo const FfcInstruction::metaInfo{
   Impl::trace, Impl::source, __LINE__, "FfcInstruction", 26, true, 4, AsicUtils::ValueType::Raw1024,
   FfcInstructionData::fields, FfcInstructionData::layouts, FfcInstructionData::tags, {}
};

Raw1024 FfcInstruction::allFieldsMask() const {
   metaInfo.trace( "virtual Raw1024 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- FlpKapsStrengthMapping

namespace FlpKapsStrengthMappingData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "strengthDefault0", 660, AsicUtils::ValueType::U8, false },
   { "strengthDefault1", 662, AsicUtils::ValueType::U8, false },
   { "reserved", 631, AsicUtils::ValueType::U8, false },
   { "strengthVec", 663, AsicUtils::ValueType::U64, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 3 }, { 3, 3 }, { 6, 2 }, {}, { 0, 3 }, { 3, 3 }, {}, {},
   { 0, 3 }, { 3, 3 }, {}, { 0, 48 },
};
constexpr U32 masks[] = {
   0xff, 0x0, 0x3f, 0x0, 0xffffffff, 0xffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 256u }, 1, 4, 4, 0, 0, 7988, 2, { { 10, 2 }, { 24, 9 } }, 0x16b0000, 256, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 4, 0, 0, 7988, 1, { { 10, 10 } }, 0x16b0000, 256, &rows[4], &masks[2] },
   { { 0, 256u }, 2, 8, 4, 0, 0, 7988, 2, { { 6, 14 }, { 6, 26 } }, 0x16b0000, 256, &rows[8], &masks[4] },
   { { 0, 256u }, 2, 8, 4, 0, 0, 7988, 1, { { 6, 14 } }, 0x16b0000, 256, &rows[8], &masks[4] },
   { { 0, 256u }, 1, 4, 4, 0, 0, 7988, 1, { { 0, 17 } }, 0x16b0000, 256, &rows[4], &masks[2] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace FlpKapsStrengthMappingData

constinit AsicUtils::MetaInfo const FlpKapsStrengthMapping::metaInfo{
   Impl::trace, Impl::source, __LINE__, "FlpKapsStrengthMapping", 27, true, 1, AsicUtils::ValueType::U64,
   FlpKapsStrengthMappingData::fields, FlpKapsStrengthMappingData::layouts, {}, {}
};

U64 FlpKapsStrengthMapping::allFieldsMask() const {
   metaInfo.trace( "virtual U64 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- FlpRpfFormatConfiguration

namespace FlpRpfFormatConfigurationData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "typeConfig", 703, AsicUtils::ValueType::U16, false },
   { "destinationConfig", 228, AsicUtils::ValueType::U16, false },
   { "outlif0Config", 542, AsicUtils::ValueType::U16, false },
   { "statObjIdConfig", 659, AsicUtils::ValueType::U16, false },
   { "statObjCmdConfig", 657, AsicUtils::ValueType::U16, false },
   { "opaqueFieldConfig", 540, AsicUtils::ValueType::U16, false },
   { "saDropConfig", 643, AsicUtils::ValueType::U16, false },
   { "defaultConfig", 226, AsicUtils::ValueType::U16, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 12 }, { 12, 15 }, { 27, 15 }, { 42, 15 }, { 57, 13 }, { 70, 14 }, { 84, 11 }, { 95, 11 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0x3ff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 64u }, 4, 16, 2, 0, 0, 7991, 2, { { 10, 2 }, { 24, 9 } }, 0xf0000, 64, &rows[0], &masks[0] },
   { { 0, 64u }, 4, 16, 2, 0, 0, 7991, 1, { { 10, 10 } }, 0xf0000, 64, &rows[0], &masks[0] },
   { { 0, 64u }, 4, 16, 2, 0, 0, 7991, 2, { { 6, 14 }, { 6, 26 } }, 0xf0000, 64, &rows[0], &masks[0] },
   { { 0, 64u }, 4, 16, 2, 0, 0, 7991, 1, { { 6, 14 } }, 0xf0000, 64, &rows[0], &masks[0] },
   { { 0, 64u }, 4, 16, 2, 0, 0, 7991, 1, { { 0, 17 } }, 0xf0000, 64, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace FlpRpfFormatConfigurationData

constinit AsicUtils::MetaInfo const FlpRpfFormatConfiguration::metaInfo{
   Impl::trace, Impl::source, __LINE__, "FlpRpfFormatConfiguration", 28, true, 1, AsicUtils::ValueType::Raw128,
   FlpRpfFormatConfigurationData::fields, FlpRpfFormatConfigurationData::layouts, {}, {}
};

Raw128 FlpRpfFormatConfiguration::allFieldsMask() const {
   metaInfo.trace( "virtual Raw128 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- FlpaInitContextEnablers

namespace FlpaInitContextEnablersData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "learningKeyConstructionEnable", 500, AsicUtils::ValueType::U8, false },
   { "learningFixedKeyEnable", 499, AsicUtils::ValueType::U8, false },
   { "mplsLayerLoadBalancingKeyCalculationsEnable", 511, AsicUtils::ValueType::U8, false },
   { "loadBalancingKeyConstructionEnable", 507, AsicUtils::ValueType::U8, false },
   { "ethernetSaMcTrapEnable", 282, AsicUtils::ValueType::U8, false },
   { "ethernetSaEqualDaTrapEnable", 280, AsicUtils::ValueType::U8, false },
   { "ipv4VersionErrorTrapEnable", 452, AsicUtils::ValueType::U8, false },
   { "ipv4ChecksumErrorTrapEnable", 424, AsicUtils::ValueType::U8, false },
   { "ipv4HasOptionsTrapEnable", 432, AsicUtils::ValueType::U8, false },
   { "ipv4SipEqualDipTrapEnable", 439, AsicUtils::ValueType::U8, false },
   { "ipv4DipZeroTrapEnable", 427, AsicUtils::ValueType::U8, false },
   { "ipv4HeaderLengthTrapEnable", 435, AsicUtils::ValueType::U8, false },
   { "ipv4SipIsMcTrapEnable", 442, AsicUtils::ValueType::U8, false },
   { "ipv6VersionErrorTrapEnable", 486, AsicUtils::ValueType::U8, false },
   { "ipv6UnspecifiedDestinationTrapEnable", 480, AsicUtils::ValueType::U8, false },
   { "ipv6LoopbackAddressTrapEnable", 467, AsicUtils::ValueType::U8, false },
   { "ipv6MulticastSourceTrapEnable", 472, AsicUtils::ValueType::U8, false },
   { "ipv6NextHeaderNullTrapEnable", 475, AsicUtils::ValueType::U8, false },
   { "ipv6UnspecifiedSourceTrapEnable", 483, AsicUtils::ValueType::U8, false },
   { "ipv6LocalLinkDestinationTrapEnable", 461, AsicUtils::ValueType::U8, false },
   { "ipv6LocalSiteDestinationTrapEnable", 463, AsicUtils::ValueType::U8, false },
   { "ipv6LocalLinkSourceTrapDestinationEnable", 462, AsicUtils::ValueType::U8, false },
   { "ipv6LocalSiteSourceTrapEnable", 464, AsicUtils::ValueType::U8, false },
   { "ipv6Ipv4CompatibleDestinationTrapEnable", 457, AsicUtils::ValueType::U8, false },
   { "ipv6Ipv4MappedDestinationTrapEnable", 458, AsicUtils::ValueType::U8, false },
   { "ipv6MulticastDestinationTrapEnable", 469, AsicUtils::ValueType::U8, false },
   { "tcpSnFlagsZeroTrapEnable", 676, AsicUtils::ValueType::U8, false },
   { "tcpSnZeroFlagsSetTrapEnable", 677, AsicUtils::ValueType::U8, false },
   { "tcpSynFinTrapEnable", 679, AsicUtils::ValueType::U8, false },
   { "tcpEqualPortsTrapEnable", 671, AsicUtils::ValueType::U8, false },
   { "tcpFragmentIncompleteHeaderTrapEnable", 672, AsicUtils::ValueType::U8, false },
   { "tcpFragmentOffsetLt8TrapEnable", 674, AsicUtils::ValueType::U8, false },
   { "udpEqualPortsTrapEnable", 706, AsicUtils::ValueType::U8, false },
   { "phbTcDpMappingEnable", 555, AsicUtils::ValueType::U8, false },
   { "phbEcnMappingEnable", 554, AsicUtils::ValueType::U8, false },
   { "dscpRemarkMappingEnable", 238, AsicUtils::ValueType::U8, false },
   { "esadiEnable", 253, AsicUtils::ValueType::U8, false },
   { "ttlMappingEnable", 699, AsicUtils::ValueType::U8, false },
   { "ipv4TotalLengthTrapEnable", 445, AsicUtils::ValueType::U8, false },
   { "contextLearnAllowedEnable", 80, AsicUtils::ValueType::U8, false },
   { "fcoeFabricProvidedSecurityEnable", 301, AsicUtils::ValueType::U8, false },
   { "savedContextProfileEnable", 646, AsicUtils::ValueType::U8, false },
   { "savedContextProfileVal", 648, AsicUtils::ValueType::U8, false },
   { "identificationKeyEnable", 327, AsicUtils::ValueType::U8, false },
   { "reserved", 631, AsicUtils::ValueType::U16, false },
   { "ethernetSaEqualZeroTrapEnable", 281, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 1 }, { 1, 1 }, { 2, 1 }, { 3, 1 }, { 4, 1 }, { 5, 1 }, { 6, 1 }, { 7, 1 },
   { 8, 1 }, { 9, 1 }, { 10, 1 }, { 11, 1 }, { 12, 1 }, { 13, 1 }, { 14, 1 }, { 15, 1 },
   { 16, 1 }, { 17, 1 }, { 18, 1 }, { 19, 1 }, { 20, 1 }, { 21, 1 }, { 22, 1 }, { 23, 1 },
   { 24, 1 }, { 25, 1 }, { 26, 1 }, { 27, 1 }, { 28, 1 }, { 29, 1 }, { 30, 1 }, { 31, 1 },
   { 32, 1 }, { 33, 1 }, { 34, 1 }, { 35, 1 }, { 36, 1 }, { 37, 1 }, { 38, 1 }, { 39, 1 },
   { 40, 1 }, { 41, 1 }, { 42, 6 }, { 48, 1 }, { 49, 14 }, {}, { 0, 1 }, { 1, 1 },
   { 2, 1 }, { 3, 1 }, { 4, 1 }, { 5, 1 }, { 6, 1 }, { 7, 1 }, { 8, 1 }, { 9, 1 },
   { 10, 1 }, { 11, 1 }, { 12, 1 }, { 13, 1 }, { 14, 1 }, { 15, 1 }, { 16, 1 }, { 17, 1 },
   { 18, 1 }, { 19, 1 }, { 20, 1 }, { 21, 1 }, { 22, 1 }, { 23, 1 }, { 24, 1 }, { 25, 1 },
   { 26, 1 }, { 27, 1 }, { 28, 1 }, { 29, 1 }, { 30, 1 }, { 31, 1 }, { 32, 1 }, { 33, 1 },
   { 34, 1 }, { 35, 1 }, { 36, 1 }, { 37, 1 }, { 38, 1 }, { 39, 1 }, { 40, 1 }, { 41, 1 },
   { 42, 6 }, { 48, 1 }, {}, { 49, 1 },
};
constexpr U32 masks[] = {
   0xffffffff, 0x7fffffff, 0x0, 0x0, 0xffffffff, 0x3ffff, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 64u }, 3, 12, 1, 0, 0, 7906, 2, { { 10, 2 }, { 24, 9 } }, 0x1630000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 2, 8, 1, 0, 0, 7906, 1, { { 10, 10 } }, 0x1630000, 0, &rows[46], &masks[4] },
   { { 0, 64u }, 2, 8, 1, 0, 0, 7906, 2, { { 6, 14 }, { 6, 26 } }, 0x1630000, 0, &rows[46], &masks[4] },
   { { 0, 64u }, 2, 8, 1, 0, 0, 7906, 1, { { 6, 14 } }, 0x1630000, 0, &rows[46], &masks[4] },
   { { 0, 64u }, 2, 8, 1, 0, 0, 7906, 1, { { 0, 17 } }, 0x1630000, 0, &rows[46], &masks[4] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace FlpaInitContextEnablersData

constinit AsicUtils::MetaInfo const FlpaInitContextEnablers::metaInfo{
   Impl::trace, Impl::source, __LINE__, "FlpaInitContextEnablers", 29, true, 1, AsicUtils::ValueType::Raw128,
   FlpaInitContextEnablersData::fields, FlpaInitContextEnablersData::layouts, {}, {}
};

Raw128 FlpaInitContextEnablers::allFieldsMask() const {
   metaInfo.trace( "virtual Raw128 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- FlpaResContextEnablers

namespace FlpaResContextEnablersData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "setUnknownAddressEnable", 650, AsicUtils::ValueType::U8, false },
   { "doDefaultEthernetEnable", 229, AsicUtils::ValueType::U8, false },
   { "compatibleMcBridgeFallbackEnable", 76, AsicUtils::ValueType::U8, false },
   { "oamTcamIdentificationEnable", 538, AsicUtils::ValueType::U8, false },
   { "ieee1588IdentificationEnable", 328, AsicUtils::ValueType::U8, false },
   { "ieee1588TcamIdentificationVal", 329, AsicUtils::ValueType::U8, false },
   { "notFoundSnpStrength", 529, AsicUtils::ValueType::U8, false },
   { "notFoundFwdStrength", 528, AsicUtils::ValueType::U8, false },
   { "fwdAdditionalInfoEnable", 319, AsicUtils::ValueType::U8, false },
   { "fwdAdditionalInfoVal", 320, AsicUtils::ValueType::U8, false },
   { "saProcedureEnable", 645, AsicUtils::ValueType::U8, false },
   { "learnInfoResolutionEnable", 498, AsicUtils::ValueType::U8, false },
   { "vlanEditPcpDeiMapEnable", 712, AsicUtils::ValueType::U8, false },
   { "ethernetOamIdentificationEnable", 279, AsicUtils::ValueType::U8, false },
   { "mplsTpOrBfdIdentificationEnable", 513, AsicUtils::ValueType::U8, false },
   { "multiHopBfdIdentificationEnable", 519, AsicUtils::ValueType::U8, false },
   { "oneHopBfdIdentificationEnable", 539, AsicUtils::ValueType::U8, false },
   { "fwdUpdateEnable", 325, AsicUtils::ValueType::U8, false },
   { "rpfUpdateEnable", 642, AsicUtils::ValueType::U8, false },
   { "forwardingLookupStatisticsEnable", 317, AsicUtils::ValueType::U8, false },
   { "sourceLookupStatisticsEnable", 655, AsicUtils::ValueType::U8, false },
   { "fwdDomainStatisticsEnable", 324, AsicUtils::ValueType::U8, false },
   { "reserved", 631, AsicUtils::ValueType::U16, false },
   { "faiUnknownAddressEnable", 300, AsicUtils::ValueType::U8, false },
   { "faiOffset", 299, AsicUtils::ValueType::U8, false },
   { "faiCompatibleMcEnable", 297, AsicUtils::ValueType::U8, false },
   { "faiCompatibleMcOffset", 298, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 1 }, { 1, 1 }, { 2, 1 }, { 3, 1 }, { 4, 1 }, { 5, 1 }, { 6, 3 }, { 9, 4 },
   { 13, 1 }, { 14, 4 }, { 18, 1 }, { 19, 1 }, { 20, 1 }, { 21, 1 }, { 22, 1 }, { 23, 1 },
   { 24, 1 }, { 25, 1 }, { 26, 1 }, { 27, 1 }, { 28, 1 }, { 29, 1 }, { 30, 9 }, {},
   {}, {}, {}, { 0, 1 }, { 1, 1 }, { 2, 1 }, { 3, 1 }, { 4, 1 },
   { 5, 1 }, { 6, 3 }, { 9, 4 }, { 13, 1 }, { 14, 4 }, { 18, 1 }, { 19, 1 }, { 20, 1 },
   { 21, 1 }, { 22, 1 }, { 23, 1 }, { 24, 1 }, { 25, 1 }, { 26, 1 }, { 27, 1 }, { 28, 1 },
   { 29, 1 }, {}, { 30, 1 }, { 31, 2 }, {}, {}, { 0, 1 }, { 1, 1 },
   { 2, 1 }, { 3, 1 }, { 4, 1 }, { 5, 1 }, { 6, 3 }, { 9, 4 }, { 13, 1 }, { 14, 4 },
   { 18, 1 }, { 19, 1 }, { 20, 1 }, { 21, 1 }, { 22, 1 }, { 23, 1 }, { 24, 1 }, { 25, 1 },
   { 26, 1 }, { 27, 1 }, { 28, 1 }, { 29, 1 }, {}, { 30, 1 }, { 31, 2 }, { 33, 1 },
   { 34, 2 },
};
constexpr U32 masks[] = {
   0xffffffff, 0x7f, 0xffffffff, 0x1, 0xffffffff, 0xf,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 64u }, 2, 8, 1, 0, 0, 7915, 2, { { 10, 2 }, { 24, 9 } }, 0x1690000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 2, 8, 1, 0, 0, 7915, 1, { { 10, 10 } }, 0x1690000, 0, &rows[27], &masks[2] },
   { { 0, 64u }, 2, 8, 1, 0, 0, 7915, 2, { { 6, 14 }, { 6, 26 } }, 0x1690000, 0, &rows[54], &masks[4] },
   { { 0, 64u }, 2, 8, 1, 0, 0, 7915, 1, { { 6, 14 } }, 0x1690000, 0, &rows[54], &masks[4] },
   { { 0, 64u }, 2, 8, 1, 0, 0, 7915, 1, { { 0, 17 } }, 0x1690000, 0, &rows[27], &masks[2] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace FlpaResContextEnablersData

constinit AsicUtils::MetaInfo const FlpaResContextEnablers::metaInfo{
   Impl::trace, Impl::source, __LINE__, "FlpaResContextEnablers", 30, true, 1, AsicUtils::ValueType::U64,
   FlpaResContextEnablersData::fields, FlpaResContextEnablersData::layouts, {}, {}
};

U64 FlpaResContextEnablers::allFieldsMask() const {
   metaInfo.trace( "virtual U64 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- FwdFfcTable

namespace FwdFfcTableData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "ffcInstruction0", 305, AsicUtils::ValueType::U32, false },
   { "ffcInstructionsVec", 310, AsicUtils::ValueType::Raw128, false },
   { "nofFfcInstructionInGroup", 521, AsicUtils::ValueType::U8, false },
   { "ffcInstruction1", 307, AsicUtils::ValueType::U32, false },
   { "nofFfcInstructionInGroup1Quad", 522, AsicUtils::ValueType::U8, false },
   { "ffcInstruction2", 308, AsicUtils::ValueType::U32, false },
   { "ffcInstruction3", 309, AsicUtils::ValueType::U32, false },
   { "nofFfcInstructionInGroup2Quad", 523, AsicUtils::ValueType::U8, false },
   { "nofFfcInstructionInGroup3Quad", 524, AsicUtils::ValueType::U8, false },
   { "nofFfcInstructionInGroup4Quad", 525, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 29 }, { 0, 58 }, { 2, 1 }, { 29, 29 }, {}, {}, {}, {},
   {}, {}, { 0, 29 }, { 0, 116 }, {}, { 29, 29 }, { 4, 1 }, { 58, 29 },
   { 87, 29 }, {}, {}, {}, { 0, 29 }, { 0, 116 }, {}, { 29, 29 },
   {}, { 58, 29 }, { 87, 29 }, { 8, 1 }, {}, {}, { 0, 29 }, { 0, 116 },
   {}, { 29, 29 }, {}, { 58, 29 }, { 87, 29 }, {}, { 16, 1 }, {},
   { 0, 29 }, { 0, 116 }, {}, { 29, 29 }, {}, { 58, 29 }, { 87, 29 }, {},
   {}, { 8, 1 },
};
constexpr U32 masks[] = {
   0xffffffff, 0x3ffffff, 0x0, 0x0, 0xffffffff, 0xffffffff, 0xffffffff, 0xfffff,
   0xffffffff, 0xffffffff, 0xffffffff, 0xfffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xfffff,
   0xffffffff, 0xffffffff, 0xffffffff, 0xfffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 64u }, 3, 12, 1, 0, 0, 7939, 2, { { 10, 2 }, { 24, 9 } }, 0x2510000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 3, 12, 1, 0, 0, 7939, 1, { { 10, 10 } }, 0x2510000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 3, 12, 1, 0, 0, 7939, 2, { { 6, 14 }, { 6, 26 } }, 0x2510000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 3, 12, 1, 0, 0, 7939, 1, { { 6, 14 } }, 0x2510000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 3, 12, 1, 0, 0, 7939, 1, { { 0, 17 } }, 0x2510000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 4, 16, 1, 0, 0, 7941, 2, { { 10, 2 }, { 24, 9 } }, 0x2530000, 0, &rows[10], &masks[4] },
   { { 0, 64u }, 4, 16, 1, 0, 0, 7941, 1, { { 10, 10 } }, 0x2530000, 0, &rows[10], &masks[4] },
   { { 0, 64u }, 4, 16, 1, 0, 0, 7941, 2, { { 6, 14 }, { 6, 26 } }, 0x2530000, 0, &rows[10], &masks[4] },
   { { 0, 64u }, 4, 16, 1, 0, 0, 7941, 1, { { 6, 14 } }, 0x2530000, 0, &rows[10], &masks[4] },
   { { 0, 64u }, 4, 16, 1, 0, 0, 7941, 1, { { 0, 17 } }, 0x2530000, 0, &rows[10], &masks[4] },
   { { 0, 64u }, 4, 16, 2, 0, 0, 7943, 2, { { 10, 2 }, { 24, 9 } }, 0x2550000, 64, &rows[20], &masks[8] },
   { { 0, 64u }, 4, 16, 2, 0, 0, 7943, 1, { { 10, 10 } }, 0x2550000, 64, &rows[20], &masks[8] },
   { { 0, 64u }, 4, 16, 2, 0, 0, 7943, 2, { { 6, 14 }, { 6, 26 } }, 0x2550000, 64, &rows[20], &masks[8] },
   { { 0, 64u }, 4, 16, 2, 0, 0, 7943, 1, { { 6, 14 } }, 0x2550000, 64, &rows[20], &masks[8] },
   { { 0, 64u }, 4, 16, 2, 0, 0, 7943, 1, { { 0, 17 } }, 0x2550000, 64, &rows[20], &masks[8] },
   { { 0, 64u }, 4, 16, 4, 0, 0, 7945, 2, { { 10, 2 }, { 24, 9 } }, 0x2580000, 64, &rows[30], &masks[12] },
   { { 0, 64u }, 4, 16, 4, 0, 0, 7945, 1, { { 10, 10 } }, 0x2580000, 64, &rows[30], &masks[12] },
   { { 0, 64u }, 4, 16, 4, 0, 0, 7945, 2, { { 6, 14 }, { 6, 26 } }, 0x2580000, 64, &rows[30], &masks[12] },
   { { 0, 64u }, 4, 16, 4, 0, 0, 7945, 1, { { 6, 14 } }, 0x2580000, 64, &rows[30], &masks[12] },
   { { 0, 64u }, 4, 16, 4, 0, 0, 7945, 1, { { 0, 17 } }, 0x2580000, 64, &rows[30], &masks[12] },
   { { 0, 64u }, 4, 16, 2, 0, 0, 7947, 2, { { 10, 2 }, { 24, 9 } }, 0x25d0000, 64, &rows[40], &masks[16] },
   { { 0, 64u }, 4, 16, 2, 0, 0, 7947, 1, { { 10, 10 } }, 0x25d0000, 64, &rows[40], &masks[16] },
   { { 0, 64u }, 4, 16, 2, 0, 0, 7947, 2, { { 6, 14 }, { 6, 26 } }, 0x25d0000, 64, &rows[40], &masks[16] },
   { { 0, 64u }, 4, 16, 2, 0, 0, 7947, 1, { { 6, 14 } }, 0x25d0000, 64, &rows[40], &masks[16] },
   { { 0, 64u }, 4, 16, 2, 0, 0, 7947, 1, { { 0, 17 } }, 0x25d0000, 64, &rows[40], &masks[16] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
   &layout[5], &layout[6], &layout[7], nullptr, &layout[8], &layout[9], &layout[9],
   &layout[10], &layout[11], &layout[12], nullptr, &layout[13], &layout[14], &layout[14],
   &layout[15], &layout[16], &layout[17], nullptr, &layout[18], &layout[19], &layout[19],
   &layout[20], &layout[21], &layout[22], nullptr, &layout[23], &layout[24], &layout[24],
};
constexpr U16 ffcInstructionRun[] = {
   0, 3, 5, 6,
};
constexpr AsicUtils::FieldRun runs[] = {
   { "ffcInstruction", ffcInstructionRun },
};
} // namespace FwdFfcTableData

constinit AsicUtils::MetaInfo const FwdFfcTable::metaInfo{
   Impl::trace, Impl::source, __LINE__, "FwdFfcTable", 31, true, 5, AsicUtils::ValueType::Raw128,
   FwdFfcTableData::fields, FwdFfcTableData::layouts, {}, FwdFfcTableData::runs
};

Raw128 FwdFfcTable::allFieldsMask() const {
   metaInfo.trace( "virtual Raw128 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- FwdKbrTable

namespace FwdKbrTableData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "kbr", 496, AsicUtils::ValueType::U64, false },
   { "appDb", 57, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 38 }, { 38, 6 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xfff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 64u }, 2, 8, 18, 0, 0, 7949, 2, { { 10, 2 }, { 24, 9 } }, 0x2600000, 64, &rows[0], &masks[0] },
   { { 0, 64u }, 2, 8, 18, 0, 0, 7949, 1, { { 10, 10 } }, 0x2600000, 64, &rows[0], &masks[0] },
   { { 0, 64u }, 2, 8, 18, 0, 0, 7949, 2, { { 6, 14 }, { 6, 26 } }, 0x2600000, 64, &rows[0], &masks[0] },
   { { 0, 64u }, 2, 8, 18, 0, 0, 7949, 1, { { 6, 14 } }, 0x2600000, 64, &rows[0], &masks[0] },
   { { 0, 64u }, 2, 8, 18, 0, 0, 7949, 1, { { 0, 17 } }, 0x2600000, 64, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace FwdKbrTableData

constinit AsicUtils::MetaInfo const FwdKbrTable::metaInfo{
   Impl::trace, Impl::source, __LINE__, "FwdKbrTable", 32, true, 1, AsicUtils::ValueType::U64,
   FwdKbrTableData::fields, FwdKbrTableData::layouts, {}, {}
};

U64 FwdKbrTable::allFieldsMask() const {
   metaInfo.trace( "virtual U64 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- InLifProfileCsFlagsLsb

namespace InLifProfileCsFlagsLsbData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "csInlifProfile", 86, AsicUtils::ValueType::U8, false },
   { "csProfile0", 90, AsicUtils::ValueType::U8, false },
   { "csInlifProfileMapLsb", 88, AsicUtils::ValueType::Raw512, false },
   { "csProfile1", 91, AsicUtils::ValueType::U8, false },
   { "csProfile2", 131, AsicUtils::ValueType::U8, false },
   { "csProfile3", 142, AsicUtils::ValueType::U8, false },
   { "csProfile4", 154, AsicUtils::ValueType::U8, false },
   { "csProfile5", 165, AsicUtils::ValueType::U8, false },
   { "csProfile6", 177, AsicUtils::ValueType::U8, false },
   { "csProfile7", 188, AsicUtils::ValueType::U8, false },
   { "csProfile8", 199, AsicUtils::ValueType::U8, false },
   { "csProfile9", 211, AsicUtils::ValueType::U8, false },
   { "csProfile10", 92, AsicUtils::ValueType::U8, false },
   { "csProfile11", 103, AsicUtils::ValueType::U8, false },
   { "csProfile12", 115, AsicUtils::ValueType::U8, false },
   { "csProfile13", 124, AsicUtils::ValueType::U8, false },
   { "csProfile14", 125, AsicUtils::ValueType::U8, false },
   { "csProfile15", 126, AsicUtils::ValueType::U8, false },
   { "csProfile16", 127, AsicUtils::ValueType::U8, false },
   { "csProfile17", 128, AsicUtils::ValueType::U8, false },
   { "csProfile18", 129, AsicUtils::ValueType::U8, false },
   { "csProfile19", 130, AsicUtils::ValueType::U8, false },
   { "csProfile20", 132, AsicUtils::ValueType::U8, false },
   { "csProfile21", 133, AsicUtils::ValueType::U8, false },
   { "csProfile22", 134, AsicUtils::ValueType::U8, false },
   { "csProfile23", 135, AsicUtils::ValueType::U8, false },
   { "csProfile24", 136, AsicUtils::ValueType::U8, false },
   { "csProfile25", 137, AsicUtils::ValueType::U8, false },
   { "csProfile26", 138, AsicUtils::ValueType::U8, false },
   { "csProfile27", 139, AsicUtils::ValueType::U8, false },
   { "csProfile28", 140, AsicUtils::ValueType::U8, false },
   { "csProfile29", 141, AsicUtils::ValueType::U8, false },
   { "csProfile30", 144, AsicUtils::ValueType::U8, false },
   { "csProfile31", 145, AsicUtils::ValueType::U8, false },
   { "csProfile32", 146, AsicUtils::ValueType::U8, false },
   { "csProfile33", 147, AsicUtils::ValueType::U8, false },
   { "csProfile34", 148, AsicUtils::ValueType::U8, false },
   { "csProfile35", 149, AsicUtils::ValueType::U8, false },
   { "csProfile36", 150, AsicUtils::ValueType::U8, false },
   { "csProfile37", 151, AsicUtils::ValueType::U8, false },
   { "csProfile38", 152, AsicUtils::ValueType::U8, false },
   { "csProfile39", 153, AsicUtils::ValueType::U8, false },
   { "csProfile40", 155, AsicUtils::ValueType::U8, false },
   { "csProfile41", 156, AsicUtils::ValueType::U8, false },
   { "csProfile42", 157, AsicUtils::ValueType::U8, false },
   { "csProfile43", 158, AsicUtils::ValueType::U8, false },
   { "csProfile44", 159, AsicUtils::ValueType::U8, false },
   { "csProfile45", 160, AsicUtils::ValueType::U8, false },
   { "csProfile46", 161, AsicUtils::ValueType::U8, false },
   { "csProfile47", 162, AsicUtils::ValueType::U8, false },
   { "csProfile48", 163, AsicUtils::ValueType::U8, false },
   { "csProfile49", 164, AsicUtils::ValueType::U8, false },
   { "csProfile50", 166, AsicUtils::ValueType::U8, false },
   { "csProfile51", 167, AsicUtils::ValueType::U8, false },
   { "csProfile52", 168, AsicUtils::ValueType::U8, false },
   { "csProfile53", 169, AsicUtils::ValueType::U8, false },
   { "csProfile54", 170, AsicUtils::ValueType::U8, false },
   { "csProfile55", 171, AsicUtils::ValueType::U8, false },
   { "csProfile56", 172, AsicUtils::ValueType::U8, false },
   { "csProfile57", 173, AsicUtils::ValueType::U8, false },
   { "csProfile58", 174, AsicUtils::ValueType::U8, false },
   { "csProfile59", 175, AsicUtils::ValueType::U8, false },
   { "csProfile60", 178, AsicUtils::ValueType::U8, false },
   { "csProfile61", 179, AsicUtils::ValueType::U8, false },
   { "csProfile62", 180, AsicUtils::ValueType::U8, false },
   { "csProfile63", 181, AsicUtils::ValueType::U8, false },
   { "csProfile64", 182, AsicUtils::ValueType::U8, false },
   { "csProfile65", 183, AsicUtils::ValueType::U8, false },
   { "csProfile66", 184, AsicUtils::ValueType::U8, false },
   { "csProfile67", 185, AsicUtils::ValueType::U8, false },
   { "csProfile68", 186, AsicUtils::ValueType::U8, false },
   { "csProfile69", 187, AsicUtils::ValueType::U8, false },
   { "csProfile70", 189, AsicUtils::ValueType::U8, false },
   { "csProfile71", 190, AsicUtils::ValueType::U8, false },
   { "csProfile72", 191, AsicUtils::ValueType::U8, false },
   { "csProfile73", 192, AsicUtils::ValueType::U8, false },
   { "csProfile74", 193, AsicUtils::ValueType::U8, false },
   { "csProfile75", 194, AsicUtils::ValueType::U8, false },
   { "csProfile76", 195, AsicUtils::ValueType::U8, false },
   { "csProfile77", 196, AsicUtils::ValueType::U8, false },
   { "csProfile78", 197, AsicUtils::ValueType::U8, false },
   { "csProfile79", 198, AsicUtils::ValueType::U8, false },
   { "csProfile80", 200, AsicUtils::ValueType::U8, false },
   { "csProfile81", 201, AsicUtils::ValueType::U8, false },
   { "csProfile82", 202, AsicUtils::ValueType::U8, false },
   { "csProfile83", 203, AsicUtils::ValueType::U8, false },
   { "csProfile84", 204, AsicUtils::ValueType::U8, false },
   { "csProfile85", 205, AsicUtils::ValueType::U8, false },
   { "csProfile86", 206, AsicUtils::ValueType::U8, false },
   { "csProfile87", 207, AsicUtils::ValueType::U8, false },
   { "csProfile88", 209, AsicUtils::ValueType::U8, false },
   { "csProfile89", 210, AsicUtils::ValueType::U8, false },
   { "csProfile90", 212, AsicUtils::ValueType::U8, false },
   { "csProfile91", 213, AsicUtils::ValueType::U8, false },
   { "csProfile92", 214, AsicUtils::ValueType::U8, false },
   { "csProfile93", 215, AsicUtils::ValueType::U8, false },
   { "csProfile94", 216, AsicUtils::ValueType::U8, false },
   { "csProfile95", 217, AsicUtils::ValueType::U8, false },
   { "csProfile96", 218, AsicUtils::ValueType::U8, false },
   { "csProfile97", 219, AsicUtils::ValueType::U8, false },
   { "csProfile98", 220, AsicUtils::ValueType::U8, false },
   { "csProfile99", 221, AsicUtils::ValueType::U8, false },
   { "csProfile100", 93, AsicUtils::ValueType::U8, false },
   { "csProfile101", 94, AsicUtils::ValueType::U8, false },
   { "csProfile102", 95, AsicUtils::ValueType::U8, false },
   { "csProfile103", 96, AsicUtils::ValueType::U8, false },
   { "csProfile104", 97, AsicUtils::ValueType::U8, false },
   { "csProfile105", 98, AsicUtils::ValueType::U8, false },
   { "csProfile106", 99, AsicUtils::ValueType::U8, false },
   { "csProfile107", 100, AsicUtils::ValueType::U8, false },
   { "csProfile108", 101, AsicUtils::ValueType::U8, false },
   { "csProfile109", 102, AsicUtils::ValueType::U8, false },
   { "csProfile110", 104, AsicUtils::ValueType::U8, false },
   { "csProfile111", 105, AsicUtils::ValueType::U8, false },
   { "csProfile112", 106, AsicUtils::ValueType::U8, false },
   { "csProfile113", 107, AsicUtils::ValueType::U8, false },
   { "csProfile114", 108, AsicUtils::ValueType::U8, false },
   { "csProfile115", 109, AsicUtils::ValueType::U8, false },
   { "csProfile116", 110, AsicUtils::ValueType::U8, false },
   { "csProfile117", 112, AsicUtils::ValueType::U8, false },
   { "csProfile118", 113, AsicUtils::ValueType::U8, false },
   { "csProfile119", 114, AsicUtils::ValueType::U8, false },
   { "csProfile120", 116, AsicUtils::ValueType::U8, false },
   { "csProfile121", 117, AsicUtils::ValueType::U8, false },
   { "csProfile122", 118, AsicUtils::ValueType::U8, false },
   { "csProfile123", 119, AsicUtils::ValueType::U8, false },
   { "csProfile124", 120, AsicUtils::ValueType::U8, false },
   { "csProfile125", 121, AsicUtils::ValueType::U8, false },
   { "csProfile126", 122, AsicUtils::ValueType::U8, false },
   { "csProfile127", 123, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 4 }, { 0, 4 }, { 0, 512 }, { 4, 4 }, { 8, 4 }, { 12, 4 }, { 16, 4 }, { 20, 4 },
   { 24, 4 }, { 28, 4 }, { 32, 4 }, { 36, 4 }, { 40, 4 }, { 44, 4 }, { 48, 4 }, { 52, 4 },
   { 56, 4 }, { 60, 4 }, { 64, 4 }, { 68, 4 }, { 72, 4 }, { 76, 4 }, { 80, 4 }, { 84, 4 },
   { 88, 4 }, { 92, 4 }, { 96, 4 }, { 100, 4 }, { 104, 4 }, { 108, 4 }, { 112, 4 }, { 116, 4 },
   { 120, 4 }, { 124, 4 }, { 128, 4 }, { 132, 4 }, { 136, 4 }, { 140, 4 }, { 144, 4 }, { 148, 4 },
   { 152, 4 }, { 156, 4 }, { 160, 4 }, { 164, 4 }, { 168, 4 }, { 172, 4 }, { 176, 4 }, { 180, 4 },
   { 184, 4 }, { 188, 4 }, { 192, 4 }, { 196, 4 }, { 200, 4 }, { 204, 4 }, { 208, 4 }, { 212, 4 },
   { 216, 4 }, { 220, 4 }, { 224, 4 }, { 228, 4 }, { 232, 4 }, { 236, 4 }, { 240, 4 }, { 244, 4 },
   { 248, 4 }, { 252, 4 }, { 256, 4 }, { 260, 4 }, { 264, 4 }, { 268, 4 }, { 272, 4 }, { 276, 4 },
   { 280, 4 }, { 284, 4 }, { 288, 4 }, { 292, 4 }, { 296, 4 }, { 300, 4 }, { 304, 4 }, { 308, 4 },
   { 312, 4 }, { 316, 4 }, { 320, 4 }, { 324, 4 }, { 328, 4 }, { 332, 4 }, { 336, 4 }, { 340, 4 },
   { 344, 4 }, { 348, 4 }, { 352, 4 }, { 356, 4 }, { 360, 4 }, { 364, 4 }, { 368, 4 }, { 372, 4 },
   { 376, 4 }, { 380, 4 }, { 384, 4 }, { 388, 4 }, { 392, 4 }, { 396, 4 }, { 400, 4 }, { 404, 4 },
   { 408, 4 }, { 412, 4 }, { 416, 4 }, { 420, 4 }, { 424, 4 }, { 428, 4 }, { 432, 4 }, { 436, 4 },
   { 440, 4 }, { 444, 4 }, { 448, 4 }, { 452, 4 }, { 456, 4 }, { 460, 4 }, { 464, 4 }, { 468, 4 },
   { 472, 4 }, { 476, 4 }, { 480, 4 }, { 484, 4 }, { 488, 4 }, { 492, 4 }, { 496, 4 }, { 500, 4 },
   { 504, 4 }, { 508, 4 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 16, 64, 3, 0, 0, 54769, 2, { { 18, 2 }, { 0, 10 } }, 0x1d2, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 3, 0, 0, 54769, 1, { { 6, 10 } }, 0x20c, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 3, 0, 0, 54769, 2, { { 2, 14 }, { 2, 26 } }, 0x1f4, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 3, 0, 0, 54769, 1, { { 2, 14 } }, 0x1f4, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 3, 0, 0, 54769, 1, { { 24, 12 } }, 0x20c, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 1, 0, 0, 54008, 2, { { 8, 2 }, { 22, 9 } }, 0x1c8, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 1, 0, 0, 54008, 1, { { 8, 10 } }, 0x1cb, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 2, 0, 3, 54008, 2, { { 4, 14 }, { 4, 26 } }, 0x1ca, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 2, 0, 3, 54008, 1, { { 4, 14 } }, 0x1ca, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 1, 0, 0, 54008, 1, { { 8, 17 } }, 0x1cb, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
   &layout[5], &layout[6], &layout[7], nullptr, &layout[8], &layout[9], &layout[9],
};
constexpr U16 csProfileRun[] = {
   1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17,
   18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31, 32, 33,
   34, 35, 36, 37, 38, 39, 40, 41, 42, 43, 44, 45, 46, 47, 48, 49,
   50, 51, 52, 53, 54, 55, 56, 57, 58, 59, 60, 61, 62, 63, 64, 65,
   66, 67, 68, 69, 70, 71, 72, 73, 74, 75, 76, 77, 78, 79, 80, 81,
   82, 83, 84, 85, 86, 87, 88, 89, 90, 91, 92, 93, 94, 95, 96, 97,
   98, 99, 100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112, 113,
   114, 115, 116, 117, 118, 119, 120, 121, 122, 123, 124, 125, 126, 127, 128, 129,
};
constexpr AsicUtils::FieldRun runs[] = {
   { "csProfile", csProfileRun },
};
} // namespace InLifProfileCsFlagsLsbData

constinit AsicUtils::MetaInfo const InLifProfileCsFlagsLsb::metaInfo{
   Impl::trace, Impl::source, __LINE__, "InLifProfileCsFlagsLsb", 33, false, 2, AsicUtils::ValueType::Raw512,
   InLifProfileCsFlagsLsbData::fields, InLifProfileCsFlagsLsbData::layouts, {}, InLifProfileCsFlagsLsbData::runs
};

Raw512 InLifProfileCsFlagsLsb::allFieldsMask() const {
   metaInfo.trace( "virtual Raw512 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- InLifProfileCsFlagsMsb

namespace InLifProfileCsFlagsMsbData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "csProfile0", 90, AsicUtils::ValueType::U8, false },
   { "csInlifProfileMapMsb", 89, AsicUtils::ValueType::Raw512, false },
   { "csProfile1", 91, AsicUtils::ValueType::U8, false },
   { "csProfile2", 131, AsicUtils::ValueType::U8, false },
   { "csProfile3", 142, AsicUtils::ValueType::U8, false },
   { "csProfile4", 154, AsicUtils::ValueType::U8, false },
   { "csProfile5", 165, AsicUtils::ValueType::U8, false },
   { "csProfile6", 177, AsicUtils::ValueType::U8, false },
   { "csProfile7", 188, AsicUtils::ValueType::U8, false },
   { "csProfile8", 199, AsicUtils::ValueType::U8, false },
   { "csProfile9", 211, AsicUtils::ValueType::U8, false },
   { "csProfile10", 92, AsicUtils::ValueType::U8, false },
   { "csProfile11", 103, AsicUtils::ValueType::U8, false },
   { "csProfile12", 115, AsicUtils::ValueType::U8, false },
   { "csProfile13", 124, AsicUtils::ValueType::U8, false },
   { "csProfile14", 125, AsicUtils::ValueType::U8, false },
   { "csProfile15", 126, AsicUtils::ValueType::U8, false },
   { "csProfile16", 127, AsicUtils::ValueType::U8, false },
   { "csProfile17", 128, AsicUtils::ValueType::U8, false },
   { "csProfile18", 129, AsicUtils::ValueType::U8, false },
   { "csProfile19", 130, AsicUtils::ValueType::U8, false },
   { "csProfile20", 132, AsicUtils::ValueType::U8, false },
   { "csProfile21", 133, AsicUtils::ValueType::U8, false },
   { "csProfile22", 134, AsicUtils::ValueType::U8, false },
   { "csProfile23", 135, AsicUtils::ValueType::U8, false },
   { "csProfile24", 136, AsicUtils::ValueType::U8, false },
   { "csProfile25", 137, AsicUtils::ValueType::U8, false },
   { "csProfile26", 138, AsicUtils::ValueType::U8, false },
   { "csProfile27", 139, AsicUtils::ValueType::U8, false },
   { "csProfile28", 140, AsicUtils::ValueType::U8, false },
   { "csProfile29", 141, AsicUtils::ValueType::U8, false },
   { "csProfile30", 144, AsicUtils::ValueType::U8, false },
   { "csProfile31", 145, AsicUtils::ValueType::U8, false },
   { "csProfile32", 146, AsicUtils::ValueType::U8, false },
   { "csProfile33", 147, AsicUtils::ValueType::U8, false },
   { "csProfile34", 148, AsicUtils::ValueType::U8, false },
   { "csProfile35", 149, AsicUtils::ValueType::U8, false },
   { "csProfile36", 150, AsicUtils::ValueType::U8, false },
   { "csProfile37", 151, AsicUtils::ValueType::U8, false },
   { "csProfile38", 152, AsicUtils::ValueType::U8, false },
   { "csProfile39", 153, AsicUtils::ValueType::U8, false },
   { "csProfile40", 155, AsicUtils::ValueType::U8, false },
   { "csProfile41", 156, AsicUtils::ValueType::U8, false },
   { "csProfile42", 157, AsicUtils::ValueType::U8, false },
   { "csProfile43", 158, AsicUtils::ValueType::U8, false },
   { "csProfile44", 159, AsicUtils::ValueType::U8, false },
   { "csProfile45", 160, AsicUtils::ValueType::U8, false },
   { "csProfile46", 161, AsicUtils::ValueType::U8, false },
   { "csProfile47", 162, AsicUtils::ValueType::U8, false },
   { "csProfile48", 163, AsicUtils::ValueType::U8, false },
   { "csProfile49", 164, AsicUtils::ValueType::U8, false },
   { "csProfile50", 166, AsicUtils::ValueType::U8, false },
   { "csProfile51", 167, AsicUtils::ValueType::U8, false },
   { "csProfile52", 168, AsicUtils::ValueType::U8, false },
   { "csProfile53", 169, AsicUtils::ValueType::U8, false },
   { "csProfile54", 170, AsicUtils::ValueType::U8, false },
   { "csProfile55", 171, AsicUtils::ValueType::U8, false },
   { "csProfile56", 172, AsicUtils::ValueType::U8, false },
   { "csProfile57", 173, AsicUtils::ValueType::U8, false },
   { "csProfile58", 174, AsicUtils::ValueType::U8, false },
   { "csProfile59", 175, AsicUtils::ValueType::U8, false },
   { "csProfile60", 178, AsicUtils::ValueType::U8, false },
   { "csProfile61", 179, AsicUtils::ValueType::U8, false },
   { "csProfile62", 180, AsicUtils::ValueType::U8, false },
   { "csProfile63", 181, AsicUtils::ValueType::U8, false },
   { "csProfile64", 182, AsicUtils::ValueType::U8, false },
   { "csProfile65", 183, AsicUtils::ValueType::U8, false },
   { "csProfile66", 184, AsicUtils::ValueType::U8, false },
   { "csProfile67", 185, AsicUtils::ValueType::U8, false },
   { "csProfile68", 186, AsicUtils::ValueType::U8, false },
   { "csProfile69", 187, AsicUtils::ValueType::U8, false },
   { "csProfile70", 189, AsicUtils::ValueType::U8, false },
   { "csProfile71", 190, AsicUtils::ValueType::U8, false },
   { "csProfile72", 191, AsicUtils::ValueType::U8, false },
   { "csProfile73", 192, AsicUtils::ValueType::U8, false },
   { "csProfile74", 193, AsicUtils::ValueType::U8, false },
   { "csProfile75", 194, AsicUtils::ValueType::U8, false },
   { "csProfile76", 195, AsicUtils::ValueType::U8, false },
   { "csProfile77", 196, AsicUtils::ValueType::U8, false },
   { "csProfile78", 197, AsicUtils::ValueType::U8, false },
   { "csProfile79", 198, AsicUtils::ValueType::U8, false },
   { "csProfile80", 200, AsicUtils::ValueType::U8, false },
   { "csProfile81", 201, AsicUtils::ValueType::U8, false },
   { "csProfile82", 202, AsicUtils::ValueType::U8, false },
   { "csProfile83", 203, AsicUtils::ValueType::U8, false },
   { "csProfile84", 204, AsicUtils::ValueType::U8, false },
   { "csProfile85", 205, AsicUtils::ValueType::U8, false },
   { "csProfile86", 206, AsicUtils::ValueType::U8, false },
   { "csProfile87", 207, AsicUtils::ValueType::U8, false },
   { "csProfile88", 209, AsicUtils::ValueType::U8, false },
   { "csProfile89", 210, AsicUtils::ValueType::U8, false },
   { "csProfile90", 212, AsicUtils::ValueType::U8, false },
   { "csProfile91", 213, AsicUtils::ValueType::U8, false },
   { "csProfile92", 214, AsicUtils::ValueType::U8, false },
   { "csProfile93", 215, AsicUtils::ValueType::U8, false },
   { "csProfile94", 216, AsicUtils::ValueType::U8, false },
   { "csProfile95", 217, AsicUtils::ValueType::U8, false },
   { "csProfile96", 218, AsicUtils::ValueType::U8, false },
   { "csProfile97", 219, AsicUtils::ValueType::U8, false },
   { "csProfile98", 220, AsicUtils::ValueType::U8, false },
   { "csProfile99", 221, AsicUtils::ValueType::U8, false },
   { "csProfile100", 93, AsicUtils::ValueType::U8, false },
   { "csProfile101", 94, AsicUtils::ValueType::U8, false },
   { "csProfile102", 95, AsicUtils::ValueType::U8, false },
   { "csProfile103", 96, AsicUtils::ValueType::U8, false },
   { "csProfile104", 97, AsicUtils::ValueType::U8, false },
   { "csProfile105", 98, AsicUtils::ValueType::U8, false },
   { "csProfile106", 99, AsicUtils::ValueType::U8, false },
   { "csProfile107", 100, AsicUtils::ValueType::U8, false },
   { "csProfile108", 101, AsicUtils::ValueType::U8, false },
   { "csProfile109", 102, AsicUtils::ValueType::U8, false },
   { "csProfile110", 104, AsicUtils::ValueType::U8, false },
   { "csProfile111", 105, AsicUtils::ValueType::U8, false },
   { "csProfile112", 106, AsicUtils::ValueType::U8, false },
   { "csProfile113", 107, AsicUtils::ValueType::U8, false },
   { "csProfile114", 108, AsicUtils::ValueType::U8, false },
   { "csProfile115", 109, AsicUtils::ValueType::U8, false },
   { "csProfile116", 110, AsicUtils::ValueType::U8, false },
   { "csProfile117", 112, AsicUtils::ValueType::U8, false },
   { "csProfile118", 113, AsicUtils::ValueType::U8, false },
   { "csProfile119", 114, AsicUtils::ValueType::U8, false },
   { "csProfile120", 116, AsicUtils::ValueType::U8, false },
   { "csProfile121", 117, AsicUtils::ValueType::U8, false },
   { "csProfile122", 118, AsicUtils::ValueType::U8, false },
   { "csProfile123", 119, AsicUtils::ValueType::U8, false },
   { "csProfile124", 120, AsicUtils::ValueType::U8, false },
   { "csProfile125", 121, AsicUtils::ValueType::U8, false },
   { "csProfile126", 122, AsicUtils::ValueType::U8, false },
   { "csProfile127", 123, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 4 }, { 0, 512 }, { 4, 4 }, { 8, 4 }, { 12, 4 }, { 16, 4 }, { 20, 4 }, { 24, 4 },
   { 28, 4 }, { 32, 4 }, { 36, 4 }, { 40, 4 }, { 44, 4 }, { 48, 4 }, { 52, 4 }, { 56, 4 },
   { 60, 4 }, { 64, 4 }, { 68, 4 }, { 72, 4 }, { 76, 4 }, { 80, 4 }, { 84, 4 }, { 88, 4 },
   { 92, 4 }, { 96, 4 }, { 100, 4 }, { 104, 4 }, { 108, 4 }, { 112, 4 }, { 116, 4 }, { 120, 4 },
   { 124, 4 }, { 128, 4 }, { 132, 4 }, { 136, 4 }, { 140, 4 }, { 144, 4 }, { 148, 4 }, { 152, 4 },
   { 156, 4 }, { 160, 4 }, { 164, 4 }, { 168, 4 }, { 172, 4 }, { 176, 4 }, { 180, 4 }, { 184, 4 },
   { 188, 4 }, { 192, 4 }, { 196, 4 }, { 200, 4 }, { 204, 4 }, { 208, 4 }, { 212, 4 }, { 216, 4 },
   { 220, 4 }, { 224, 4 }, { 228, 4 }, { 232, 4 }, { 236, 4 }, { 240, 4 }, { 244, 4 }, { 248, 4 },
   { 252, 4 }, { 256, 4 }, { 260, 4 }, { 264, 4 }, { 268, 4 }, { 272, 4 }, { 276, 4 }, { 280, 4 },
   { 284, 4 }, { 288, 4 }, { 292, 4 }, { 296, 4 }, { 300, 4 }, { 304, 4 }, { 308, 4 }, { 312, 4 },
   { 316, 4 }, { 320, 4 }, { 324, 4 }, { 328, 4 }, { 332, 4 }, { 336, 4 }, { 340, 4 }, { 344, 4 },
   { 348, 4 }, { 352, 4 }, { 356, 4 }, { 360, 4 }, { 364, 4 }, { 368, 4 }, { 372, 4 }, { 376, 4 },
   { 380, 4 }, { 384, 4 }, { 388, 4 }, { 392, 4 }, { 396, 4 }, { 400, 4 }, { 404, 4 }, { 408, 4 },
   { 412, 4 }, { 416, 4 }, { 420, 4 }, { 424, 4 }, { 428, 4 }, { 432, 4 }, { 436, 4 }, { 440, 4 },
   { 444, 4 }, { 448, 4 }, { 452, 4 }, { 456, 4 }, { 460, 4 }, { 464, 4 }, { 468, 4 }, { 472, 4 },
   { 476, 4 }, { 480, 4 }, { 484, 4 }, { 488, 4 }, { 492, 4 }, { 496, 4 }, { 500, 4 }, { 504, 4 },
   { 508, 4 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 16, 64, 3, 0, 0, 54770, 2, { { 18, 2 }, { 0, 10 } }, 0x1e2, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 3, 0, 0, 54770, 1, { { 6, 10 } }, 0x21c, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 3, 0, 0, 54770, 2, { { 2, 14 }, { 2, 26 } }, 0x204, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 3, 0, 0, 54770, 1, { { 2, 14 } }, 0x204, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 3, 0, 0, 54770, 1, { { 24, 12 } }, 0x21c, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 1, 0, 0, 54009, 2, { { 8, 2 }, { 22, 9 } }, 0x1d8, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 1, 0, 0, 54009, 1, { { 8, 10 } }, 0x1db, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 2, 0, 3, 54009, 2, { { 4, 14 }, { 4, 26 } }, 0x1da, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 2, 0, 3, 54009, 1, { { 4, 14 } }, 0x1da, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 16, 64, 1, 0, 0, 54009, 1, { { 8, 17 } }, 0x1db, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
   &layout[5], &layout[6], &layout[7], nullptr, &layout[8], &layout[9], &layout[9],
};
constexpr U16 csProfileRun[] = {
   0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16,
   17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31, 32,
   33, 34, 35, 36, 37, 38, 39, 40, 41, 42, 43, 44, 45, 46, 47, 48,
   49, 50, 51, 52, 53, 54, 55, 56, 57, 58, 59, 60, 61, 62, 63, 64,
   65, 66, 67, 68, 69, 70, 71, 72, 73, 74, 75, 76, 77, 78, 79, 80,
   81, 82, 83, 84, 85, 86, 87, 88, 89, 90, 91, 92, 93, 94, 95, 96,
   97, 98, 99, 100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112,
   113, 114, 115, 116, 117, 118, 119, 120, 121, 122, 123, 124, 125, 126, 127, 128,
};
constexpr AsicUtils::FieldRun runs[] = {
   { "csProfile", csProfileRun },
};
} // namespace InLifProfileCsFlagsMsbData

constinit AsicUtils::MetaInfo const InLifProfileCsFlagsMsb::metaInfo{
   Impl::trace, Impl::source, __LINE__, "InLifProfileCsFlagsMsb", 34, false, 2, AsicUtils::ValueType::Raw512,
   InLifProfileCsFlagsMsbData::fields, InLifProfileCsFlagsMsbData::layouts, {}, InLifProfileCsFlagsMsbData::runs
};

Raw512 InLifProfileCsFlagsMsb::allFieldsMask() const {
   metaInfo.trace( "virtual Raw512 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppaVtecsAction

namespace IppaVtecsActionData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "vtecsAction", 720, AsicUtils::ValueType::U16, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 13 },
};
constexpr U32 masks[] = {
   0x1fff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 128u }, 1, 4, 1, 0, 0, 7818, 2, { { 8, 2 }, { 22, 9 } }, 0xb830000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 1, 4, 1, 0, 0, 7818, 1, { { 8, 10 } }, 0xb830000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 1, 4, 1, 0, 0, 7818, 2, { { 4, 14 }, { 4, 26 } }, 0xb830000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 1, 4, 1, 0, 0, 7818, 1, { { 4, 14 } }, 0xb830000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 1, 4, 1, 0, 0, 7818, 1, { { 8, 17 } }, 0xb830000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace IppaVtecsActionData

constinit AsicUtils::MetaInfo const IppaVtecsAction::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppaVtecsAction", 35, true, 1, AsicUtils::ValueType::U32,
   IppaVtecsActionData::fields, IppaVtecsActionData::layouts, {}, {}
};

U32 IppaVtecsAction::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppbFlpLePd0

namespace IppbFlpLePd0Data {
constexpr AsicUtils::FieldInfo fields[] = {
   { "strengthWidthVec", 665, AsicUtils::ValueType::U32, false },
   { "memData", 510, AsicUtils::ValueType::Raw256, false },
   { "numberOfInterfaces", 530, AsicUtils::ValueType::U8, false },
   { "constStrengthVec", 79, AsicUtils::ValueType::U64, false },
   { "orderVec", 541, AsicUtils::ValueType::Raw128, false },
   { "reserved", 631, AsicUtils::ValueType::U64, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 32 }, { 0, 176 }, { 16, 1 }, { 32, 64 }, { 96, 80 }, { 176, 40 }, { 0, 32 }, { 0, 176 },
   { 16, 1 }, { 32, 64 }, { 96, 80 }, {},
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffff, 0x0,
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffff, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 64u }, 8, 32, 1, 0, 0, 7972, 2, { { 10, 2 }, { 24, 9 } }, 0x2730000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 6, 24, 1, 0, 0, 7972, 1, { { 10, 10 } }, 0x2730000, 0, &rows[6], &masks[8] },
   { { 0, 64u }, 6, 24, 1, 0, 0, 7972, 2, { { 6, 14 }, { 6, 26 } }, 0x2730000, 0, &rows[6], &masks[8] },
   { { 0, 64u }, 6, 24, 1, 0, 0, 7972, 1, { { 6, 14 } }, 0x2730000, 0, &rows[6], &masks[8] },
   { { 0, 64u }, 6, 24, 1, 0, 0, 7972, 1, { { 0, 17 } }, 0x2730000, 0, &rows[6], &masks[8] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace IppbFlpLePd0Data

constinit AsicUtils::MetaInfo const IppbFlpLePd0::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppbFlpLePd0", 36, true, 1, AsicUtils::ValueType::Raw256,
   IppbFlpLePd0Data::fields, IppbFlpLePd0Data::layouts, {}, {}
};

Raw256 IppbFlpLePd0::allFieldsMask() const {
   metaInfo.trace( "virtual Raw256 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppbFlpLePd1

namespace IppbFlpLePd1Data {
constexpr AsicUtils::FieldInfo fields[] = {
   { "strengthWidthVec", 665, AsicUtils::ValueType::U32, false },
   { "memData", 510, AsicUtils::ValueType::Raw256, false },
   { "numberOfInterfaces", 530, AsicUtils::ValueType::U8, false },
   { "constStrengthVec", 79, AsicUtils::ValueType::U64, false },
   { "orderVec", 541, AsicUtils::ValueType::Raw128, false },
   { "reserved", 631, AsicUtils::ValueType::U64, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 32 }, { 0, 176 }, { 16, 1 }, { 32, 64 }, { 96, 80 }, { 176, 40 }, { 0, 32 }, { 0, 176 },
   { 16, 1 }, { 32, 64 }, { 96, 80 }, {},
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffff, 0x0,
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffff, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 64u }, 8, 32, 1, 0, 0, 7973, 2, { { 10, 2 }, { 24, 9 } }, 0x2740000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 6, 24, 1, 0, 0, 7973, 1, { { 10, 10 } }, 0x2740000, 0, &rows[6], &masks[8] },
   { { 0, 64u }, 6, 24, 1, 0, 0, 7973, 2, { { 6, 14 }, { 6, 26 } }, 0x2740000, 0, &rows[6], &masks[8] },
   { { 0, 64u }, 6, 24, 1, 0, 0, 7973, 1, { { 6, 14 } }, 0x2740000, 0, &rows[6], &masks[8] },
   { { 0, 64u }, 6, 24, 1, 0, 0, 7973, 1, { { 0, 17 } }, 0x2740000, 0, &rows[6], &masks[8] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace IppbFlpLePd1Data

constinit AsicUtils::MetaInfo const IppbFlpLePd1::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppbFlpLePd1", 37, true, 1, AsicUtils::ValueType::Raw256,
   IppbFlpLePd1Data::fields, IppbFlpLePd1Data::layouts, {}, {}
};

Raw256 IppbFlpLePd1::allFieldsMask() const {
   metaInfo.trace( "virtual Raw256 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppbFlpLePd2

namespace IppbFlpLePd2Data {
constexpr AsicUtils::FieldInfo fields[] = {
   { "strengthWidthVec", 665, AsicUtils::ValueType::U32, false },
   { "memData", 510, AsicUtils::ValueType::Raw256, false },
   { "numberOfInterfaces", 530, AsicUtils::ValueType::U8, false },
   { "constStrengthVec", 79, AsicUtils::ValueType::U64, false },
   { "orderVec", 541, AsicUtils::ValueType::Raw128, false },
   { "reserved", 631, AsicUtils::ValueType::U64, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 32 }, { 0, 176 }, { 16, 1 }, { 32, 64 }, { 96, 80 }, { 176, 40 }, { 0, 32 }, { 0, 176 },
   { 16, 1 }, { 32, 64 }, { 96, 80 }, {},
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffff, 0x0,
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffff, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 64u }, 8, 32, 1, 0, 0, 7974, 2, { { 10, 2 }, { 24, 9 } }, 0x2750000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 6, 24, 1, 0, 0, 7974, 1, { { 10, 10 } }, 0x2750000, 0, &rows[6], &masks[8] },
   { { 0, 64u }, 6, 24, 1, 0, 0, 7974, 2, { { 6, 14 }, { 6, 26 } }, 0x2750000, 0, &rows[6], &masks[8] },
   { { 0, 64u }, 6, 24, 1, 0, 0, 7974, 1, { { 6, 14 } }, 0x2750000, 0, &rows[6], &masks[8] },
   { { 0, 64u }, 6, 24, 1, 0, 0, 7974, 1, { { 0, 17 } }, 0x2750000, 0, &rows[6], &masks[8] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace IppbFlpLePd2Data

constinit AsicUtils::MetaInfo const IppbFlpLePd2::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppbFlpLePd2", 38, true, 1, AsicUtils::ValueType::Raw256,
   IppbFlpLePd2Data::fields, IppbFlpLePd2Data::layouts, {}, {}
};

Raw256 IppbFlpLePd2::allFieldsMask() const {
   metaInfo.trace( "virtual Raw256 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppbFlpPortProfileMap

namespace IppbFlpPortProfileMapData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "portProfile", 556, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 5 },
};
constexpr U32 masks[] = {
   0x1f,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 256u }, 1, 4, 1, 0, 0, 7989, 2, { { 10, 2 }, { 24, 9 } }, 0x1710000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 1, 4, 1, 0, 0, 7989, 1, { { 10, 10 } }, 0x1710000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 7989, 2, { { 6, 14 }, { 6, 26 } }, 0x1710000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 7989, 1, { { 6, 14 } }, 0x1710000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 1, 4, 1, 0, 0, 7989, 1, { { 0, 17 } }, 0x1710000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace IppbFlpPortProfileMapData

constinit AsicUtils::MetaInfo const IppbFlpPortProfileMap::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppbFlpPortProfileMap", 39, true, 1, AsicUtils::ValueType::U32,
   IppbFlpPortProfileMapData::fields, IppbFlpPortProfileMapData::layouts, {}, {}
};

U32 IppbFlpPortProfileMap::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppbFlpacsAction

namespace IppbFlpacsActionData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "flpacsAction", 314, AsicUtils::ValueType::U16, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 13 },
};
constexpr U32 masks[] = {
   0x1fff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 128u }, 1, 4, 1, 0, 0, 7898, 2, { { 10, 2 }, { 24, 9 } }, 0x3030000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 1, 4, 1, 0, 0, 7898, 1, { { 10, 10 } }, 0x3030000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 1, 4, 1, 0, 0, 7898, 2, { { 6, 14 }, { 6, 26 } }, 0x3030000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 1, 4, 1, 0, 0, 7898, 1, { { 6, 14 } }, 0x3030000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 1, 4, 1, 0, 0, 7898, 1, { { 0, 17 } }, 0x3030000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace IppbFlpacsActionData

constinit AsicUtils::MetaInfo const IppbFlpacsAction::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppbFlpacsAction", 40, true, 1, AsicUtils::ValueType::U32,
   IppbFlpacsActionData::fields, IppbFlpacsActionData::layouts, {}, {}
};

U32 IppbFlpacsAction::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppbFlpbResContextEnablers

namespace IppbFlpbResContextEnablersData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "setUnknownAddressEnable", 650, AsicUtils::ValueType::U8, false },
   { "actionProfileEnable", 4, AsicUtils::ValueType::U8, false },
   { "doDefaultEthernetEnable", 229, AsicUtils::ValueType::U8, false },
   { "compatibleMcBridgeFallbackEnable", 76, AsicUtils::ValueType::U8, false },
   { "oamClassificationEnable", 537, AsicUtils::ValueType::U8, false },
   { "aclResolutionEnable", 3, AsicUtils::ValueType::U8, false },
   { "kapsResolutionEnable", 495, AsicUtils::ValueType::U8, false },
   { "controlPathTrapsEnable", 82, AsicUtils::ValueType::U8, false },
   { "fwdAdditionalInfoEnable", 319, AsicUtils::ValueType::U8, false },
   { "fwdAdditionalInfoVal", 320, AsicUtils::ValueType::U8, false },
   { "saProcedureEnable", 645, AsicUtils::ValueType::U8, false },
   { "elkErrorTrapEnable", 244, AsicUtils::ValueType::U8, false },
   { "fwdUpdateEnable", 325, AsicUtils::ValueType::U8, false },
   { "rpfUpdateEnable", 642, AsicUtils::ValueType::U8, false },
   { "forwardingLookupStatisticsEnable", 317, AsicUtils::ValueType::U8, false },
   { "sourceLookupStatisticsEnable", 655, AsicUtils::ValueType::U8, false },
   { "fwdDomainStatisticsEnable", 324, AsicUtils::ValueType::U8, false },
   { "ttl0Enable", 688, AsicUtils::ValueType::U8, false },
   { "ttl1Enable", 695, AsicUtils::ValueType::U8, false },
   { "ttlActionProfileValue", 696, AsicUtils::ValueType::U8, false },
   { "progTrap0Enable", 564, AsicUtils::ValueType::U8, false },
   { "progTrap1Enable", 565, AsicUtils::ValueType::U8, false },
   { "progTrap2Enable", 567, AsicUtils::ValueType::U8, false },
   { "progTrap3Enable", 568, AsicUtils::ValueType::U8, false },
   { "progTrap4Enable", 569, AsicUtils::ValueType::U8, false },
   { "progTrap5Enable", 570, AsicUtils::ValueType::U8, false },
   { "progTrap6Enable", 571, AsicUtils::ValueType::U8, false },
   { "progTrap7Enable", 572, AsicUtils::ValueType::U8, false },
   { "fwdCascadedPriorityDecoderEnable", 321, AsicUtils::ValueType::U8, false },
   { "rpfCascadedPriorityDecoderEnable", 640, AsicUtils::ValueType::U8, false },
   { "reserved", 631, AsicUtils::ValueType::U8, false },
   { "faiUnknownAddressEnable", 300, AsicUtils::ValueType::U8, false },
   { "faiOffset", 299, AsicUtils::ValueType::U8, false },
   { "faiCompatibleMcEnable", 297, AsicUtils::ValueType::U8, false },
   { "faiCompatibleMcOffset", 298, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 1 }, { 1, 1 }, { 2, 1 }, { 3, 1 }, { 4, 1 }, { 5, 1 }, { 6, 1 }, { 7, 1 },
   { 8, 1 }, { 9, 4 }, { 13, 1 }, { 14, 1 }, { 15, 1 }, { 16, 1 }, { 17, 1 }, { 18, 1 },
   { 19, 1 }, { 20, 1 }, { 21, 1 }, { 22, 2 }, { 24, 1 }, { 25, 1 }, { 26, 1 }, { 27, 1 },
   { 28, 1 }, { 29, 1 }, { 30, 1 }, { 31, 1 }, { 32, 1 }, { 33, 1 }, { 34, 1 }, {},
   {}, {}, {}, { 0, 1 }, { 1, 1 }, { 2, 1 }, { 3, 1 }, { 4, 1 },
   { 5, 1 }, { 6, 1 }, { 7, 1 }, { 8, 1 }, { 9, 4 }, { 13, 1 }, { 14, 1 }, { 15, 1 },
   { 16, 1 }, { 17, 1 }, { 18, 1 }, { 19, 1 }, { 20, 1 }, { 21, 1 }, { 22, 2 }, { 24, 1 },
   { 25, 1 }, { 26, 1 }, { 27, 1 }, { 28, 1 }, { 29, 1 }, { 30, 1 }, { 31, 1 }, { 32, 1 },
   { 33, 1 }, {}, { 34, 1 }, { 35, 2 }, {}, {}, { 0, 1 }, { 1, 1 },
   { 2, 1 }, { 3, 1 }, { 4, 1 }, { 5, 1 }, { 6, 1 }, { 7, 1 }, { 8, 1 }, { 9, 4 },
   { 13, 1 }, { 14, 1 }, { 15, 1 }, { 16, 1 }, { 17, 1 }, { 18, 1 }, { 19, 1 }, { 20, 1 },
   { 21, 1 }, { 22, 2 }, { 24, 1 }, { 25, 1 }, { 26, 1 }, { 27, 1 }, { 28, 1 }, { 29, 1 },
   { 30, 1 }, { 31, 1 }, { 32, 1 }, { 33, 1 }, {}, { 34, 1 }, { 35, 2 }, { 37, 1 },
   { 38, 2 },
};
constexpr U32 masks[] = {
   0xffffffff, 0x7, 0xffffffff, 0x1f, 0xffffffff, 0xff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 64u }, 2, 8, 1, 0, 0, 7934, 2, { { 10, 2 }, { 24, 9 } }, 0x1680000, 0, &rows[0], &masks[0] },
   { { 0, 64u }, 2, 8, 1, 0, 0, 7934, 1, { { 10, 10 } }, 0x1680000, 0, &rows[35], &masks[2] },
   { { 0, 64u }, 2, 8, 1, 0, 0, 7934, 2, { { 6, 14 }, { 6, 26 } }, 0x1680000, 0, &rows[70], &masks[4] },
   { { 0, 64u }, 2, 8, 1, 0, 0, 7934, 1, { { 6, 14 } }, 0x1680000, 0, &rows[70], &masks[4] },
   { { 0, 64u }, 2, 8, 1, 0, 0, 7934, 1, { { 0, 17 } }, 0x1680000, 0, &rows[35], &masks[2] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace IppbFlpbResContextEnablersData

constinit AsicUtils::MetaInfo const IppbFlpbResContextEnablers::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppbFlpbResContextEnablers", 41, true, 1, AsicUtils::ValueType::U64,
   IppbFlpbResContextEnablersData::fields, IppbFlpbResContextEnablersData::layouts, {}, {}
};

U64 IppbFlpbResContextEnablers::allFieldsMask() const {
   metaInfo.trace( "virtual U64 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppbIpv4ActionProfilesCfg

namespace IppbIpv4ActionProfilesCfgData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "actionProfileIpv4VersionErrorFwd", 22, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv4VersionErrorSnp", 23, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv4ChecksumErrorFwd", 5, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv4ChecksumVersionErrorSnp", 7, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv4HeaderLengthErrorFwd", 13, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv4HeaderLengthErrorSnp", 14, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv4TotalLengthErrorFwd", 19, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv4TotalLengthErrorSnp", 21, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv4HasOptionsFwd", 11, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv4HasOptionsSnp", 12, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv4SipEqualDipFwd", 15, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv4SipEqualDipSnp", 16, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv4DipZeroFwd", 8, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv4DipZeroSnp", 9, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv4SipIsMcFwd", 17, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv4SipIsMcSnp", 18, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv4ChecksumErrorSnp", 6, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 4 }, { 4, 3 }, { 7, 4 }, { 11, 3 }, { 14, 4 }, { 18, 3 }, { 21, 4 }, { 25, 3 },
   { 28, 4 }, { 32, 3 }, { 35, 4 }, { 39, 3 }, { 42, 4 }, { 46, 3 }, { 49, 4 }, { 53, 3 },
   {}, { 0, 4 }, { 4, 3 }, { 7, 4 }, {}, { 14, 4 }, { 18, 3 }, { 21, 4 },
   { 25, 3 }, { 28, 4 }, { 32, 3 }, { 35, 4 }, { 39, 3 }, { 42, 4 }, { 46, 3 }, { 49, 4 },
   { 53, 3 }, { 11, 3 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffff, 0xffffffff, 0xffffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 2, 8, 1, 0, 0, 54225, 2, { { 10, 2 }, { 24, 9 } }, 0x111, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54225, 1, { { 10, 10 } }, 0x111, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54225, 2, { { 6, 14 }, { 6, 26 } }, 0x111, 0, &rows[17], &masks[2] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54225, 1, { { 6, 14 } }, 0x111, 0, &rows[17], &masks[2] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54225, 1, { { 0, 17 } }, 0x111, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54225, 1, { { 0, 17 } }, 0x111, 0, &rows[17], &masks[2] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[5],
};
} // namespace IppbIpv4ActionProfilesCfgData

constinit AsicUtils::MetaInfo const IppbIpv4ActionProfilesCfg::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppbIpv4ActionProfilesCfg", 42, false, 1, AsicUtils::ValueType::U64,
   IppbIpv4ActionProfilesCfgData::fields, IppbIpv4ActionProfilesCfgData::layouts, {}, {}
};

U64 IppbIpv4ActionProfilesCfg::allFieldsMask() const {
   metaInfo.trace( "virtual U64 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppbIpv6ActionProfiles0Cfg

namespace IppbIpv6ActionProfiles0CfgData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "actionProfileIpv6VersionErrorFwd", 44, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6VersionErrorSnp", 45, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6UnspecifiedDestinationFwd", 39, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6UnspecifiedDestinationSnp", 41, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6LoopbackAddressFwd", 28, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6LoopbackAddressSnp", 29, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6MulticastSourceFwd", 31, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6MulticastSourceSnp", 32, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6NextHeaderNullFwd", 33, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6NextHeaderNullSnp", 34, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6UnspecifiedSourceFwd", 42, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6UnspecifiedSourceSnp", 43, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6LinkLocalDestinationFwd", 24, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6LinkLocalDestinationSnp", 25, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6SiteLocalDestinationFwd", 35, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6SiteLocalDestinationSnp", 36, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6LinkLocalSourceFwd", 26, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6LinkLocalSourceSnp", 27, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6SiteLocalSourceFwd", 37, AsicUtils::ValueType::U8, false },
   { "actionProfileIpv6SiteLocalSourceSnp", 38, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 4 }, { 4, 3 }, { 7, 4 }, { 11, 3 }, { 14, 4 }, { 18, 3 }, { 21, 4 }, { 25, 3 },
   { 28, 4 }, { 32, 3 }, { 35, 4 }, { 39, 3 }, { 42, 4 }, { 46, 3 }, { 49, 4 }, { 53, 3 },
   { 56, 4 }, { 60, 3 }, { 63, 4 }, { 67, 3 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0x3f, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 3, 12, 1, 0, 0, 54227, 2, { { 10, 2 }, { 24, 9 } }, 0x113, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 3, 12, 1, 0, 0, 54227, 1, { { 10, 10 } }, 0x113, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 3, 12, 1, 0, 0, 54227, 2, { { 6, 14 }, { 6, 26 } }, 0x113, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 3, 12, 1, 0, 0, 54227, 1, { { 6, 14 } }, 0x113, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 3, 12, 1, 0, 0, 54227, 1, { { 0, 17 } }, 0x113, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace IppbIpv6ActionProfiles0CfgData

constinit AsicUtils::MetaInfo const IppbIpv6ActionProfiles0Cfg::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppbIpv6ActionProfiles0Cfg", 43, false, 1, AsicUtils::ValueType::Raw128,
   IppbIpv6ActionProfiles0CfgData::fields, IppbIpv6ActionProfiles0CfgData::layouts, {}, {}
};

Raw128 IppbIpv6ActionProfiles0Cfg::allFieldsMask() const {
   metaInfo.trace( "virtual Raw128 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppbLifMcBridgeFallbackAllow

namespace IppbLifMcBridgeFallbackAllowData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "lifMcBridgeFallbackAllow", 504, AsicUtils::ValueType::Raw256, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 256 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 8, 32, 1, 0, 0, 54258, 2, { { 6, 14 }, { 6, 26 } }, 0x231, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 8, 32, 1, 0, 0, 54258, 1, { { 6, 14 } }, 0x231, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   nullptr, nullptr, &layout[0], nullptr, &layout[1], nullptr, nullptr,
};
} // namespace IppbLifMcBridgeFallbackAllowData

constinit AsicUtils::MetaInfo const IppbLifMcBridgeFallbackAllow::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppbLifMcBridgeFallbackAllow", 44, false, 1, AsicUtils::ValueType::Raw256,
   IppbLifMcBridgeFallbackAllowData::fields, IppbLifMcBridgeFallbackAllowData::layouts, {}, {}
};

Raw256 IppbLifMcBridgeFallbackAllow::allFieldsMask() const {
   metaInfo.trace( "virtual Raw256 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppbProgTrapCfg

namespace IppbProgTrapCfgData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "progTrapDaN", 574, AsicUtils::ValueType::U64, false },
   { "progTrapDaBitsN", 573, AsicUtils::ValueType::U8, false },
   { "progTrapSaN", 584, AsicUtils::ValueType::U64, false },
   { "progTrapSaBitsN", 583, AsicUtils::ValueType::U8, false },
   { "progTrapEthernetTypeN", 576, AsicUtils::ValueType::U16, false },
   { "progTrapSubTypeMaskN", 586, AsicUtils::ValueType::U8, false },
   { "progTrapSubTypeN", 587, AsicUtils::ValueType::U8, false },
   { "progTrapIpProtocolN", 580, AsicUtils::ValueType::U8, false },
   { "progTrapL4PortsMaskN", 581, AsicUtils::ValueType::U32, false },
   { "progTrapL4PortsN", 582, AsicUtils::ValueType::U32, false },
   { "progTrapTcpFlagsMaskN", 588, AsicUtils::ValueType::U16, false },
   { "progTrapTcpFlagsN", 589, AsicUtils::ValueType::U16, false },
   { "progTrapInverseBmpN", 579, AsicUtils::ValueType::U8, false },
   { "progTrapFwdActionCodeN", 577, AsicUtils::ValueType::U16, false },
   { "progTrapFwdActionStrengthN", 578, AsicUtils::ValueType::U8, false },
   { "progTrapSnoopActionStrengthN", 585, AsicUtils::ValueType::U8, false },
   { "progTrapEnableBmpN", 575, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 48 }, { 48, 6 }, { 54, 48 }, { 102, 6 }, { 108, 16 }, { 124, 8 }, { 132, 8 }, { 140, 8 },
   { 148, 32 }, { 180, 32 }, { 212, 9 }, { 221, 9 }, { 230, 8 }, { 238, 9 }, { 247, 4 }, { 251, 3 },
   { 254, 8 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
   0x3f, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 9, 36, 8, 0, 0, 54316, 2, { { 10, 2 }, { 24, 9 } }, 0x165, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 9, 36, 8, 0, 0, 54316, 1, { { 10, 10 } }, 0x165, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 9, 36, 8, 0, 0, 54316, 2, { { 6, 14 }, { 6, 26 } }, 0x163, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 9, 36, 8, 0, 0, 54316, 1, { { 6, 14 } }, 0x163, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 9, 36, 8, 0, 0, 54316, 1, { { 0, 17 } }, 0x165, 1, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace IppbProgTrapCfgData

constinit AsicUtils::MetaInfo const IppbProgTrapCfg::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppbProgTrapCfg", 45, false, 1, AsicUtils::ValueType::Raw512,
   IppbProgTrapCfgData::fields, IppbProgTrapCfgData::layouts, {}, {}
};

Raw512 IppbProgTrapCfg::allFieldsMask() const {
   metaInfo.trace( "virtual Raw512 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppbTtl0ActionProfile

namespace IppbTtl0ActionProfileData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "ttl0FwdStrength", 690, AsicUtils::ValueType::U8, false },
   { "ttl0ActionProfile0", 682, AsicUtils::ValueType::U16, false },
   { "ttl0SnpStrength", 691, AsicUtils::ValueType::U8, false },
   { "ttl0TrapCode", 693, AsicUtils::ValueType::U16, false },
   { "ttl0ActionProfile1", 684, AsicUtils::ValueType::U16, false },
   { "ttl0ActionProfile2", 685, AsicUtils::ValueType::U16, false },
   { "ttl0ActionProfile3", 687, AsicUtils::ValueType::U16, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 4 }, { 0, 16 }, { 4, 3 }, { 7, 9 }, { 16, 16 }, { 32, 16 }, { 48, 16 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 2, 8, 1, 0, 0, 54353, 2, { { 10, 2 }, { 24, 9 } }, 0x207, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54353, 1, { { 10, 10 } }, 0x207, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54353, 2, { { 6, 14 }, { 6, 26 } }, 0x205, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54353, 1, { { 6, 14 } }, 0x205, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54353, 1, { { 0, 17 } }, 0x207, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace IppbTtl0ActionProfileData

constinit AsicUtils::MetaInfo const IppbTtl0ActionProfile::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppbTtl0ActionProfile", 46, false, 1, AsicUtils::ValueType::U64,
   IppbTtl0ActionProfileData::fields, IppbTtl0ActionProfileData::layouts, {}, {}
};

U64 IppbTtl0ActionProfile::allFieldsMask() const {
   metaInfo.trace( "virtual U64 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppcInLifProfileCsFlags

namespace IppcInLifProfileCsFlagsData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "csInlifProfileMap", 87, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 4 },
};
constexpr U32 masks[] = {
   0xf,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 256u }, 1, 4, 1, 0, 0, 8048, 2, { { 12, 2 }, { 26, 9 } }, 0x9f0000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 8048, 1, { { 6, 9 } }, 0x9f0000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 8048, 2, { { 8, 14 }, { 8, 26 } }, 0x9f0000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 8048, 1, { { 8, 14 } }, 0x9f0000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 8048, 1, { { 16, 16 } }, 0x9f0000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 8049, 2, { { 12, 2 }, { 26, 9 } }, 0xa00000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 8049, 1, { { 6, 9 } }, 0xa00000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 8049, 2, { { 8, 14 }, { 8, 26 } }, 0xa00000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 8049, 1, { { 8, 14 } }, 0xa00000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 8049, 1, { { 16, 16 } }, 0xa00000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
   &layout[5], &layout[6], &layout[7], nullptr, &layout[8], &layout[9], &layout[9],
};
} // namespace IppcInLifProfileCsFlagsData

constinit AsicUtils::MetaInfo const IppcInLifProfileCsFlags::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppcInLifProfileCsFlags", 47, true, 2, AsicUtils::ValueType::U32,
   IppcInLifProfileCsFlagsData::fields, IppcInLifProfileCsFlagsData::layouts, {}, {}
};

U32 IppcInLifProfileCsFlags::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppdFerTrapCfg

namespace IppdFerTrapCfgData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "cpuSnoopCodeN", 83, AsicUtils::ValueType::U16, false },
   { "cpuStrengthN", 84, AsicUtils::ValueType::U8, false },
   { "snoopStrengthN", 652, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 9 }, { 9, 4 }, { 13, 3 },
};
constexpr U32 masks[] = {
   0xffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 1, 4, 8, 0, 0, 54522, 2, { { 14, 2 }, { 28, 9 } }, 0x1f7, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 8, 0, 0, 54522, 1, { { 8, 9 } }, 0x1f3, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 8, 0, 0, 54522, 2, { { 10, 14 }, { 10, 26 } }, 0x1f3, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 8, 0, 0, 54522, 1, { { 10, 14 } }, 0x1f3, 1, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 8, 0, 0, 54522, 1, { { 2, 18 } }, 0x1f3, 1, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace IppdFerTrapCfgData

constinit AsicUtils::MetaInfo const IppdFerTrapCfg::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppdFerTrapCfg", 48, false, 1, AsicUtils::ValueType::U32,
   IppdFerTrapCfgData::fields, IppdFerTrapCfgData::layouts, {}, {}
};

U32 IppdFerTrapCfg::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppdInLifProfileMap

namespace IppdInLifProfileMapData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "mappedInLifProfile", 508, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 8 },
};
constexpr U32 masks[] = {
   0xff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 256u }, 1, 4, 1, 0, 0, 8156, 2, { { 10, 14 }, { 10, 26 } }, 0x20e0000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 8156, 1, { { 10, 14 } }, 0x20e0000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 8156, 1, { { 2, 18 } }, 0x20e0000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   nullptr, nullptr, &layout[0], nullptr, &layout[1], &layout[2], &layout[2],
};
} // namespace IppdInLifProfileMapData

constinit AsicUtils::MetaInfo const IppdInLifProfileMap::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppdInLifProfileMap", 49, true, 1, AsicUtils::ValueType::U32,
   IppdInLifProfileMapData::fields, IppdInLifProfileMapData::layouts, {}, {}
};

U32 IppdInLifProfileMap::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppdInLifProfileTable

namespace IppdInLifProfileTableData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "inLifRpfMode", 334, AsicUtils::ValueType::U8, false },
   { "inLifSameInterfaceProfile", 339, AsicUtils::ValueType::U8, false },
   { "inLifRpfModeIpv4", 335, AsicUtils::ValueType::U8, false },
   { "inLifRpfModeIpv6", 336, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 2 }, { 2, 2 }, {}, {}, {}, { 4, 2 }, { 0, 2 }, { 2, 2 },
};
constexpr U32 masks[] = {
   0xf, 0x3f,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 256u }, 1, 4, 1, 0, 0, 8157, 2, { { 14, 2 }, { 28, 9 } }, 0x1090000, 0, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 8157, 1, { { 8, 9 } }, 0x1090000, 0, &rows[4], &masks[1] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 8157, 2, { { 10, 14 }, { 10, 26 } }, 0x1190000, 0, &rows[4], &masks[1] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 8157, 1, { { 10, 14 } }, 0x1190000, 0, &rows[4], &masks[1] },
   { { 0, 256u }, 1, 4, 1, 0, 0, 8157, 1, { { 2, 18 } }, 0x1090000, 0, &rows[4], &masks[1] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace IppdInLifProfileTableData

constinit AsicUtils::MetaInfo const IppdInLifProfileTable::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppdInLifProfileTable", 50, true, 1, AsicUtils::ValueType::U32,
   IppdInLifProfileTableData::fields, IppdInLifProfileTableData::layouts, {}, {}
};

U32 IppdInLifProfileTable::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppdPphAttributesByEei

namespace IppdPphAttributesByEeiData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "createFheiInsteadOfEei", 85, AsicUtils::ValueType::U8, false },
   { "fheiType", 313, AsicUtils::ValueType::U8, false },
   { "fheiSize", 312, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 1 }, { 1, 4 }, { 5, 2 },
};
constexpr U32 masks[] = {
   0x7f,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 16u }, 1, 4, 1, 0, 0, 8193, 2, { { 14, 2 }, { 28, 9 } }, 0x2020000, 0, &rows[0], &masks[0] },
   { { 0, 16u }, 1, 4, 1, 0, 0, 8193, 1, { { 8, 9 } }, 0x2020000, 0, &rows[0], &masks[0] },
   { { 0, 16u }, 1, 4, 1, 0, 0, 8193, 2, { { 10, 14 }, { 10, 26 } }, 0x2020000, 0, &rows[0], &masks[0] },
   { { 0, 16u }, 1, 4, 1, 0, 0, 8193, 1, { { 10, 14 } }, 0x2020000, 0, &rows[0], &masks[0] },
   { { 0, 16u }, 1, 4, 1, 0, 0, 8193, 1, { { 2, 18 } }, 0x2020000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace IppdPphAttributesByEeiData

constinit AsicUtils::MetaInfo const IppdPphAttributesByEei::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppdPphAttributesByEei", 51, true, 1, AsicUtils::ValueType::U32,
   IppdPphAttributesByEeiData::fields, IppdPphAttributesByEeiData::layouts, {}, {}
};

U32 IppdPphAttributesByEei::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- IppeRecycFwdProfileMapping

namespace IppeRecycFwdProfileMappingData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "recycFwdTrapCode", 612, AsicUtils::ValueType::U16, false },
   { "recycFwdTrapCode0", 613, AsicUtils::ValueType::U16, false },
   { "recycFwdProfileMappingEntry", 592, AsicUtils::ValueType::U16, false },
   { "recycFwdProfileMappingVec", 593, AsicUtils::ValueType::Raw256, false },
   { "recycFwdStrength", 594, AsicUtils::ValueType::U8, false },
   { "recycFwdStrength0", 595, AsicUtils::ValueType::U8, false },
   { "recycFwdTrapCode1", 614, AsicUtils::ValueType::U16, false },
   { "recycFwdStrength1", 596, AsicUtils::ValueType::U8, false },
   { "recycFwdTrapCode2", 621, AsicUtils::ValueType::U16, false },
   { "recycFwdStrength2", 604, AsicUtils::ValueType::U8, false },
   { "recycFwdTrapCode3", 622, AsicUtils::ValueType::U16, false },
   { "recycFwdStrength3", 605, AsicUtils::ValueType::U8, false },
   { "recycFwdTrapCode4", 623, AsicUtils::ValueType::U16, false },
   { "recycFwdStrength4", 606, AsicUtils::ValueType::U8, false },
   { "recycFwdTrapCode5", 624, AsicUtils::ValueType::U16, false },
   { "recycFwdStrength5", 607, AsicUtils::ValueType::U8, false },
   { "recycFwdTrapCode6", 625, AsicUtils::ValueType::U16, false },
   { "recycFwdStrength6", 608, AsicUtils::ValueType::U8, false },
   { "recycFwdTrapCode7", 626, AsicUtils::ValueType::U16, false },
   { "recycFwdStrength7", 609, AsicUtils::ValueType::U8, false },
   { "recycFwdTrapCode8", 627, AsicUtils::ValueType::U16, false },
   { "recycFwdStrength8", 610, AsicUtils::ValueType::U8, false },
   { "recycFwdTrapCode9", 628, AsicUtils::ValueType::U16, false },
   { "recycFwdStrength9", 611, AsicUtils::ValueType::U8, false },
   { "recycFwdTrapCode10", 615, AsicUtils::ValueType::U16, false },
   { "recycFwdStrength10", 597, AsicUtils::ValueType::U8, false },
   { "recycFwdTrapCode11", 616, AsicUtils::ValueType::U16, false },
   { "recycFwdStrength11", 599, AsicUtils::ValueType::U8, false },
   { "recycFwdTrapCode12", 617, AsicUtils::ValueType::U16, false },
   { "recycFwdStrength12", 600, AsicUtils::ValueType::U8, false },
   { "recycFwdTrapCode13", 618, AsicUtils::ValueType::U16, false },
   { "recycFwdStrength13", 601, AsicUtils::ValueType::U8, false },
   { "recycFwdTrapCode14", 619, AsicUtils::ValueType::U16, false },
   { "recycFwdStrength14", 602, AsicUtils::ValueType::U8, false },
   { "recycFwdTrapCode15", 620, AsicUtils::ValueType::U16, false },
   { "recycFwdStrength15", 603, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 9 }, { 0, 9 }, { 0, 13 }, { 0, 208 }, { 9, 4 }, { 9, 4 }, { 13, 9 }, { 22, 4 },
   { 26, 9 }, { 35, 4 }, { 39, 9 }, { 48, 4 }, { 52, 9 }, { 61, 4 }, { 65, 9 }, { 74, 4 },
   { 78, 9 }, { 87, 4 }, { 91, 9 }, { 100, 4 }, { 104, 9 }, { 113, 4 }, { 117, 9 }, { 126, 4 },
   { 130, 9 }, { 139, 4 }, { 143, 9 }, { 152, 4 }, { 156, 9 }, { 165, 4 }, { 169, 9 }, { 178, 4 },
   { 182, 9 }, { 191, 4 }, { 195, 9 }, { 204, 4 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffff, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 7, 28, 1, 0, 0, 54717, 2, { { 16, 2 }, { 30, 9 } }, 0x130, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 7, 28, 1, 0, 0, 54717, 1, { { 4, 10 } }, 0x130, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 7, 28, 1, 0, 0, 54717, 2, { { 0, 14 }, { 0, 26 } }, 0x130, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 7, 28, 1, 0, 0, 54717, 1, { { 0, 14 } }, 0x130, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 7, 28, 1, 0, 0, 54717, 1, { { 16, 17 } }, 0x130, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
constexpr U16 recycFwdTrapCodeRun[] = {
   1, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30, 32, 34,
};
constexpr U16 recycFwdStrengthRun[] = {
   5, 7, 9, 11, 13, 15, 17, 19, 21, 23, 25, 27, 29, 31, 33, 35,
};
constexpr AsicUtils::FieldRun runs[] = {
   { "recycFwdTrapCode", recycFwdTrapCodeRun },
   { "recycFwdStrength", recycFwdStrengthRun },
};
} // namespace IppeRecycFwdProfileMappingData

constinit AsicUtils::MetaInfo const IppeRecycFwdProfileMapping::metaInfo{
   Impl::trace, Impl::source, __LINE__, "IppeRecycFwdProfileMapping", 52, false, 1, AsicUtils::ValueType::Raw256,
   IppeRecycFwdProfileMappingData::fields, IppeRecycFwdProfileMappingData::layouts, {}, IppeRecycFwdProfileMappingData::runs
};

Raw256 IppeRecycFwdProfileMapping::allFieldsMask() const {
   metaInfo.trace( "virtual Raw256 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- Ipv4PcremFwdDestPcrem

namespace Ipv4PcremFwdDestPcremData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "command", 73, AsicUtils::ValueType::U16, false },
   { "ipv4", 421, AsicUtils::ValueType::U32, false },
   { "key", 497, AsicUtils::ValueType::U32, false },
   { "entry", 251, AsicUtils::ValueType::Raw512, false },
   { "vrf", 718, AsicUtils::ValueType::U8, false },
   { "pcremFecIndices", 551, AsicUtils::ValueType::Raw128, false },
   { "payload", 550, AsicUtils::ValueType::Raw128, false },
   { "resultType", 632, AsicUtils::ValueType::U8, true },
   { "vmv", 717, AsicUtils::ValueType::U8, true },
   { "wayIndex", 722, AsicUtils::ValueType::U8, false },
   { "prefixNum", 562, AsicUtils::ValueType::U8, false },
   { "address", 52, AsicUtils::ValueType::U32, false },
   { "entryType", 252, AsicUtils::ValueType::U8, true },
   { "appId", 58, AsicUtils::ValueType::U8, true },
   { "tid", 680, AsicUtils::ValueType::U8, true },
   { "hits", 326, AsicUtils::ValueType::U8, false },
   { "found", 318, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 9 }, { 9, 21 }, { 9, 26 }, { 9, 257 }, { 30, 5 }, { 57, 80 }, { 57, 86 }, { 137, 6 },
   { 143, 3 }, { 266, 4 }, { 270, 3 }, { 273, 17 }, { 290, 3 }, { 293, 6 }, { 293, 6 }, { 299, 8 },
   { 307, 1 }, { 0, 9 }, { 9, 21 }, { 9, 25 }, { 9, 256 }, { 30, 4 }, { 56, 80 }, { 56, 86 },
   { 136, 6 }, { 142, 3 }, { 265, 4 }, { 269, 3 }, { 272, 16 }, { 288, 3 }, { 291, 6 }, { 291, 6 },
   { 297, 8 }, { 305, 1 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
   0xffffffff, 0xfffff, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
   0xffffffff, 0x3ffff, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1024u }, 10, 40, 1, 0, 0, 9599, 1, { { 2, 5 } }, 0x27000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 10, 40, 1, 0, 0, 9599, 1, { { 0, 12 } }, 0x23000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 10, 40, 1, 0, 0, 9599, 1, { { 24, 36 } }, 0x23000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 10, 40, 1, 0, 0, 9599, 1, { { 8, 20 } }, 0x23000, 0, &rows[17], &masks[16] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[2], &layout[3], &layout[3],
};
constexpr AsicUtils::TagRow tags[] = {
   { 1 << 0, 0, 137, 6, 20 },
   { 1 << 0, 0, 143, 3, 3 },
   { 1 << 0, 0, 290, 3, 1 },
   { 1 << 0, 0, 293, 6, 23 },
   { 1 << 1, 0, 137, 6, 20 },
   { 1 << 1, 0, 143, 3, 3 },
   { 1 << 1, 0, 290, 3, 1 },
   { 1 << 1, 0, 293, 6, 23 },
   { 1 << 2, 0, 137, 6, 20 },
   { 1 << 2, 0, 143, 3, 3 },
   { 1 << 2, 0, 290, 3, 1 },
   { 1 << 2, 0, 293, 6, 23 },
   { 1 << 4, 0, 137, 6, 20 },
   { 1 << 4, 0, 143, 3, 3 },
   { 1 << 4, 0, 290, 3, 1 },
   { 1 << 4, 0, 293, 6, 23 },
   { 1 << 5, 0, 136, 6, 20 },
   { 1 << 5, 0, 142, 3, 3 },
   { 1 << 5, 0, 288, 3, 1 },
   { 1 << 5, 0, 291, 6, 23 },
   { 1 << 6, 0, 136, 6, 20 },
   { 1 << 6, 0, 142, 3, 3 },
   { 1 << 6, 0, 288, 3, 1 },
   { 1 << 6, 0, 291, 6, 23 },
};
} // namespace Ipv4PcremFwdDestPcremData

constinit AsicUtils::MetaInfo const Ipv4PcremFwdDestPcrem::metaInfo{
   Impl::trace, Impl::source, __LINE__, "Ipv4PcremFwdDestPcrem", 53, true, 1, AsicUtils::ValueType::Raw512,
   Ipv4PcremFwdDestPcremData::fields, Ipv4PcremFwdDestPcremData::layouts, Ipv4PcremFwdDestPcremData::tags, {}
};

Raw512 Ipv4PcremFwdDestPcrem::allFieldsMask() const {
   metaInfo.trace( "virtual Raw512 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- MappingFwdInfoToEnTerm

namespace MappingFwdInfoToEnTermData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "enTermUpToParsingOffset", 250, AsicUtils::ValueType::Raw128, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 128 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 4, 16, 1, 0, 0, 59140, 2, { { 22, 2 }, { 4, 10 } }, 0x210, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 59140, 1, { { 18, 4 } }, 0x210, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 59140, 2, { { 24, 12 }, { 24, 24 } }, 0x210, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 59140, 1, { { 24, 12 } }, 0x210, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 59140, 1, { { 30, 11 } }, 0x210, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 59086, 2, { { 20, 2 }, { 2, 10 } }, 0x210, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 59086, 1, { { 28, 9 } }, 0x210, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 59086, 2, { { 20, 12 }, { 20, 24 } }, 0x210, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 59086, 1, { { 20, 12 } }, 0x210, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 59086, 1, { { 16, 11 } }, 0x210, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
   &layout[5], &layout[6], &layout[7], nullptr, &layout[8], &layout[9], &layout[9],
};
} // namespace MappingFwdInfoToEnTermData

constinit AsicUtils::MetaInfo const MappingFwdInfoToEnTerm::metaInfo{
   Impl::trace, Impl::source, __LINE__, "MappingFwdInfoToEnTerm", 54, false, 2, AsicUtils::ValueType::Raw128,
   MappingFwdInfoToEnTermData::fields, MappingFwdInfoToEnTermData::layouts, {}, {}
};

Raw128 MappingFwdInfoToEnTerm::allFieldsMask() const {
   metaInfo.trace( "virtual Raw128 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- PpmcDoubleOutLifSwap

namespace PpmcDoubleOutLifSwapData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "resultType", 632, AsicUtils::ValueType::U8, true },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 80, 6 }, { 79, 6 },
};
constexpr U32 masks[] = {
   0x0, 0x0, 0x3f0000, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x1f8000, 0x0, 0x0, 0x0, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1024u }, 6, 24, 1, 0, 0, 9602, 1, { { 2, 5 } }, 0x45000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 6, 24, 1, 0, 0, 9602, 1, { { 0, 12 } }, 0x38000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 6, 24, 1, 0, 0, 9602, 1, { { 24, 36 } }, 0x38000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 6, 24, 1, 0, 0, 9602, 1, { { 8, 20 } }, 0x38000, 0, &rows[1], &masks[8] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[2], &layout[3], &layout[3],
};
constexpr AsicUtils::TagRow tags[] = {
   { 1 << 0, 0, 80, 6, 8 },
   { 1 << 0, 0, 86, 0, 0 },
   { 1 << 0, 0, 169, 3, 1 },
   { 1 << 0, 0, 172, 0, 0 },
   { 1 << 1, 0, 80, 6, 8 },
   { 1 << 1, 0, 86, 0, 0 },
   { 1 << 1, 0, 169, 3, 1 },
   { 1 << 1, 0, 172, 0, 0 },
   { 1 << 2, 0, 80, 6, 8 },
   { 1 << 2, 0, 86, 0, 0 },
   { 1 << 2, 0, 168, 3, 1 },
   { 1 << 2, 0, 171, 0, 0 },
   { 1 << 4, 0, 80, 6, 8 },
   { 1 << 4, 0, 86, 0, 0 },
   { 1 << 4, 0, 168, 3, 1 },
   { 1 << 4, 0, 171, 0, 0 },
   { 1 << 5, 0, 79, 6, 8 },
   { 1 << 5, 0, 85, 0, 0 },
   { 1 << 5, 0, 167, 3, 1 },
   { 1 << 5, 0, 170, 0, 0 },
   { 1 << 6, 0, 79, 6, 8 },
   { 1 << 6, 0, 85, 0, 0 },
   { 1 << 6, 0, 167, 3, 1 },
   { 1 << 6, 0, 170, 0, 0 },
};
} // namespace PpmcDoubleOutLifSwapData

constinit AsicUtils::MetaInfo const PpmcDoubleOutLifSwap::metaInfo{
   Impl::trace, Impl::source, __LINE__, "PpmcDoubleOutLifSwap", 55, true, 1, AsicUtils::ValueType::Raw256,
   PpmcDoubleOutLifSwapData::fields, PpmcDoubleOutLifSwapData::layouts, PpmcDoubleOutLifSwapData::tags, {}
};

Raw256 PpmcDoubleOutLifSwap::allFieldsMask() const {
   metaInfo.trace( "virtual Raw256 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- PrivateHostReducedVrf

namespace PrivateHostReducedVrfData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "command", 73, AsicUtils::ValueType::U16, false },
   { "ipv4", 421, AsicUtils::ValueType::U32, false },
   { "key", 497, AsicUtils::ValueType::U64, false },
   { "entry", 251, AsicUtils::ValueType::Raw512, false },
   { "vrf", 718, AsicUtils::ValueType::U8, false },
   { "destination", 227, AsicUtils::ValueType::U32, false },
   { "payload", 550, AsicUtils::ValueType::U32, false },
   { "resultType", 632, AsicUtils::ValueType::U8, true },
   { "vmv", 717, AsicUtils::ValueType::U8, true },
   { "wayIndex", 722, AsicUtils::ValueType::U8, false },
   { "prefixNum", 562, AsicUtils::ValueType::U8, false },
   { "address", 52, AsicUtils::ValueType::U32, false },
   { "entryType", 252, AsicUtils::ValueType::U8, true },
   { "appId", 58, AsicUtils::ValueType::U8, true },
   { "tid", 680, AsicUtils::ValueType::U8, true },
   { "hits", 326, AsicUtils::ValueType::U8, false },
   { "found", 318, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 9 }, { 9, 32 }, { 9, 37 }, { 9, 257 }, { 41, 5 }, { 56, 21 }, { 56, 27 }, { 77, 6 },
   { 83, 3 }, { 266, 4 }, { 270, 3 }, { 273, 17 }, { 290, 3 }, { 293, 6 }, { 293, 6 }, { 299, 8 },
   { 307, 1 }, { 0, 9 }, { 9, 32 }, { 9, 36 }, { 9, 256 }, { 41, 4 }, { 55, 21 }, { 55, 27 },
   { 76, 6 }, { 82, 3 }, { 265, 4 }, { 269, 3 }, { 272, 16 }, { 288, 3 }, { 291, 6 }, { 291, 6 },
   { 297, 8 }, { 305, 1 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
   0xffffffff, 0xfffff, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
   0xffffffff, 0x3ffff, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1024u }, 10, 40, 1, 0, 0, 9599, 1, { { 2, 5 } }, 0x27000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 10, 40, 1, 0, 0, 9599, 1, { { 0, 12 } }, 0x23000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 10, 40, 1, 0, 0, 9599, 1, { { 24, 36 } }, 0x23000, 0, &rows[0], &masks[0] },
   { { 0, 1024u }, 10, 40, 1, 0, 0, 9599, 1, { { 8, 20 } }, 0x23000, 0, &rows[17], &masks[16] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[2], &layout[3], &layout[3],
};
constexpr AsicUtils::TagRow tags[] = {
   { 1 << 0, 0, 77, 6, 10 },
   { 1 << 0, 0, 83, 3, 2 },
   { 1 << 0, 0, 290, 3, 2 },
   { 1 << 0, 0, 293, 6, 22 },
   { 1 << 1, 0, 77, 6, 10 },
   { 1 << 1, 0, 83, 3, 2 },
   { 1 << 1, 0, 290, 3, 2 },
   { 1 << 1, 0, 293, 6, 22 },
   { 1 << 2, 0, 77, 6, 10 },
   { 1 << 2, 0, 83, 3, 2 },
   { 1 << 2, 0, 290, 3, 2 },
   { 1 << 2, 0, 293, 6, 22 },
   { 1 << 4, 0, 77, 6, 10 },
   { 1 << 4, 0, 83, 3, 2 },
   { 1 << 4, 0, 290, 3, 2 },
   { 1 << 4, 0, 293, 6, 22 },
   { 1 << 5, 0, 76, 6, 10 },
   { 1 << 5, 0, 82, 3, 2 },
   { 1 << 5, 0, 288, 3, 2 },
   { 1 << 5, 0, 291, 6, 22 },
   { 1 << 6, 0, 76, 6, 10 },
   { 1 << 6, 0, 82, 3, 2 },
   { 1 << 6, 0, 288, 3, 2 },
   { 1 << 6, 0, 291, 6, 22 },
};
} // namespace PrivateHostReducedVrfData

constinit AsicUtils::MetaInfo const PrivateHostReducedVrf::metaInfo{
   Impl::trace, Impl::source, __LINE__, "PrivateHostReducedVrf", 56, true, 1, AsicUtils::ValueType::Raw512,
   PrivateHostReducedVrfData::fields, PrivateHostReducedVrfData::layouts, PrivateHostReducedVrfData::tags, {}
};

Raw512 PrivateHostReducedVrf::allFieldsMask() const {
   metaInfo.trace( "virtual Raw512 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- PweInlifCsProfile

namespace PweInlifCsProfileData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "tagNamespace", 669, AsicUtils::ValueType::U8, false },
   { "nofSdTags", 527, AsicUtils::ValueType::U8, false },
   { "learnNativeAcBug", 502, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 1 }, { 1, 2 }, { 3, 1 },
};
constexpr U32 masks[] = {
   0xf, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 10, 1 } }, 0x0, 0, &rows[0], &masks[0] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 4, 5 } }, 0x0, 0, &rows[0], &masks[0] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 28, 12 } }, 0x0, 0, &rows[0], &masks[0] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 16, 15 } }, 0x0, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[2], &layout[3], &layout[3],
};
} // namespace PweInlifCsProfileData

constinit AsicUtils::MetaInfo const PweInlifCsProfile::metaInfo{
   Impl::trace, Impl::source, __LINE__, "PweInlifCsProfile", 57, true, 1, AsicUtils::ValueType::Raw1024,
   PweInlifCsProfileData::fields, PweInlifCsProfileData::layouts, {}, {}
};

Raw1024 PweInlifCsProfile::allFieldsMask() const {
   metaInfo.trace( "virtual Raw1024 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- RoutingInlifCsProfile

namespace RoutingInlifCsProfileData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "natDirectionOrVipMode", 520, AsicUtils::ValueType::U8, false },
   { "mplsNamespaceOrAaclOrEspVxlan", 512, AsicUtils::ValueType::U8, false },
   { "ucDbMode", 704, AsicUtils::ValueType::U8, false },
   { "mcDbMode", 509, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 1 }, { 1, 1 }, { 2, 1 }, { 3, 1 },
};
constexpr U32 masks[] = {
   0xf, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 10, 1 } }, 0x0, 0, &rows[0], &masks[0] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 4, 5 } }, 0x0, 0, &rows[0], &masks[0] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 28, 12 } }, 0x0, 0, &rows[0], &masks[0] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 16, 15 } }, 0x0, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[2], &layout[3], &layout[3],
};
} // namespace RoutingInlifCsProfileData

constinit AsicUtils::MetaInfo const RoutingInlifCsProfile::metaInfo{
   Impl::trace, Impl::source, __LINE__, "RoutingInlifCsProfile", 58, true, 1, AsicUtils::ValueType::Raw1024,
   RoutingInlifCsProfileData::fields, RoutingInlifCsProfileData::layouts, {}, {}
};

Raw1024 RoutingInlifCsProfile::allFieldsMask() const {
   metaInfo.trace( "virtual Raw1024 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- RoutingVeloroInlifCsProfile

namespace RoutingVeloroInlifCsProfileData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "aegisSetSecondaryVrfMode", 56, AsicUtils::ValueType::U8, false },
   { "mplsNamespaceOrAaclOrEspVxlan", 512, AsicUtils::ValueType::U8, false },
   { "ucDbMode", 704, AsicUtils::ValueType::U8, false },
   { "mcDbMode", 509, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 1 }, { 1, 1 }, { 2, 1 }, { 3, 1 },
};
constexpr U32 masks[] = {
   0xf, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 10, 1 } }, 0x0, 0, &rows[0], &masks[0] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 4, 5 } }, 0x0, 0, &rows[0], &masks[0] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 28, 12 } }, 0x0, 0, &rows[0], &masks[0] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 16, 15 } }, 0x0, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[2], &layout[3], &layout[3],
};
} // namespace RoutingVeloroInlifCsProfileData

constinit AsicUtils::MetaInfo const RoutingVeloroInlifCsProfile::metaInfo{
   Impl::trace, Impl::source, __LINE__, "RoutingVeloroInlifCsProfile", 59, true, 1, AsicUtils::ValueType::Raw1024,
   RoutingVeloroInlifCsProfileData::fields, RoutingVeloroInlifCsProfileData::layouts, {}, {}
};

Raw1024 RoutingVeloroInlifCsProfile::allFieldsMask() const {
   metaInfo.trace( "virtual Raw1024 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- SystemHeaderPph

namespace SystemHeaderPphData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "pphFwdLayerAdditionalInfoInnerOffset", 557, AsicUtils::ValueType::U8, false },
   { "pphFwdLayerAdditionalInfoWidth", 558, AsicUtils::ValueType::U8, false },
   { "pphReservedMsbBitSize", 561, AsicUtils::ValueType::U8, false },
   { "pphParsingStartOffsetB8Size", 560, AsicUtils::ValueType::U8, false },
   { "pphParsingStartOffsetB7Size", 559, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 8 }, { 8, 8 }, {}, {}, {}, { 0, 8 }, { 8, 8 }, { 16, 1 },
   { 17, 1 }, { 18, 1 },
};
constexpr U32 masks[] = {
   0xffff, 0x7ffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 1, 4, 1, 0, 0, 59162, 2, { { 22, 2 }, { 4, 10 } }, 0x24a, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 59162, 1, { { 18, 4 } }, 0x24a, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 59162, 2, { { 24, 12 }, { 24, 24 } }, 0x24a, 0, &rows[5], &masks[1] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 59162, 1, { { 24, 12 } }, 0x24a, 0, &rows[5], &masks[1] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 59162, 1, { { 30, 11 } }, 0x24a, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 59108, 2, { { 20, 2 }, { 2, 10 } }, 0x24a, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 59108, 1, { { 28, 9 } }, 0x24a, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 59108, 2, { { 20, 12 }, { 20, 24 } }, 0x24a, 0, &rows[5], &masks[1] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 59108, 1, { { 20, 12 } }, 0x24a, 0, &rows[5], &masks[1] },
   { { 0, 1u }, 1, 4, 1, 0, 0, 59108, 1, { { 16, 11 } }, 0x24a, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
   &layout[5], &layout[6], &layout[7], nullptr, &layout[8], &layout[9], &layout[9],
};
} // namespace SystemHeaderPphData

constinit AsicUtils::MetaInfo const SystemHeaderPph::metaInfo{
   Impl::trace, Impl::source, __LINE__, "SystemHeaderPph", 60, false, 2, AsicUtils::ValueType::U32,
   SystemHeaderPphData::fields, SystemHeaderPphData::layouts, {}, {}
};

U32 SystemHeaderPph::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- TerminateNetworkHeaders

namespace TerminateNetworkHeadersData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "itppTerminateNetworkHeaders", 493, AsicUtils::ValueType::Raw128, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 128 },
};
constexpr U32 masks[] = {
   0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 4, 16, 1, 0, 0, 54546, 2, { { 14, 2 }, { 28, 9 } }, 0x308, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 54546, 1, { { 8, 9 } }, 0x308, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 54546, 2, { { 10, 14 }, { 10, 26 } }, 0x30b, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 54546, 1, { { 10, 14 } }, 0x30b, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 4, 16, 1, 0, 0, 54546, 1, { { 2, 18 } }, 0x308, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace TerminateNetworkHeadersData

constinit AsicUtils::MetaInfo const TerminateNetworkHeaders::metaInfo{
   Impl::trace, Impl::source, __LINE__, "TerminateNetworkHeaders", 61, false, 1, AsicUtils::ValueType::Raw128,
   TerminateNetworkHeadersData::fields, TerminateNetworkHeadersData::layouts, {}, {}
};

Raw128 TerminateNetworkHeaders::allFieldsMask() const {
   metaInfo.trace( "virtual Raw128 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- UnknownDaProfile

namespace UnknownDaProfileData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "destination", 227, AsicUtils::ValueType::U32, false },
   { "addVsiDest", 53, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 21 }, { 21, 1 },
};
constexpr U32 masks[] = {
   0x3fffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 32u }, 1, 4, 1, 0, 0, 8045, 2, { { 10, 2 }, { 24, 9 } }, 0x1420000, 0, &rows[0], &masks[0] },
   { { 0, 32u }, 1, 4, 1, 0, 0, 8045, 1, { { 10, 10 } }, 0x1420000, 0, &rows[0], &masks[0] },
   { { 0, 32u }, 1, 4, 1, 0, 0, 8045, 2, { { 6, 14 }, { 6, 26 } }, 0x1420000, 0, &rows[0], &masks[0] },
   { { 0, 32u }, 1, 4, 1, 0, 0, 8045, 1, { { 6, 14 } }, 0x1420000, 0, &rows[0], &masks[0] },
   { { 0, 32u }, 1, 4, 1, 0, 0, 8045, 1, { { 0, 17 } }, 0x1420000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
};
} // namespace UnknownDaProfileData

constinit AsicUtils::MetaInfo const UnknownDaProfile::metaInfo{
   Impl::trace, Impl::source, __LINE__, "UnknownDaProfile", 62, true, 1, AsicUtils::ValueType::U32,
   UnknownDaProfileData::fields, UnknownDaProfileData::layouts, {}, {}
};

U32 UnknownDaProfile::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- VeloroL2FodoProfile

namespace VeloroL2FodoProfileData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "v4Rpf", 707, AsicUtils::ValueType::U8, false },
   { "v6Rpf", 709, AsicUtils::ValueType::U8, false },
   { "ivlOrSvl", 494, AsicUtils::ValueType::U8, false },
   { "reserved", 631, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 1 }, { 1, 1 }, { 2, 1 }, { 3, 1 },
};
constexpr U32 masks[] = {
   0xf, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
   0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 10, 1 } }, 0x0, 0, &rows[0], &masks[0] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 4, 5 } }, 0x0, 0, &rows[0], &masks[0] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 28, 12 } }, 0x0, 0, &rows[0], &masks[0] },
   { { 0, 4294967295u }, 20, 80, 1, 0, 0, -1, 1, { { 16, 15 } }, 0x0, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[2], &layout[3], &layout[3],
};
} // namespace VeloroL2FodoProfileData

constinit AsicUtils::MetaInfo const VeloroL2FodoProfile::metaInfo{
   Impl::trace, Impl::source, __LINE__, "VeloroL2FodoProfile", 63, true, 1, AsicUtils::ValueType::Raw1024,
   VeloroL2FodoProfileData::fields, VeloroL2FodoProfileData::layouts, {}, {}
};

Raw1024 VeloroL2FodoProfile::allFieldsMask() const {
   metaInfo.trace( "virtual Raw1024 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- VsiProfileEnablers

namespace VsiProfileEnablersData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "routingProfile0", 635, AsicUtils::ValueType::U8, false },
   { "routingProfile1", 636, AsicUtils::ValueType::U8, false },
   { "routingProfile2", 638, AsicUtils::ValueType::U8, false },
   { "routingProfile3", 639, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 5 }, { 5, 5 }, { 10, 5 }, { 15, 5 },
};
constexpr U32 masks[] = {
   0xfffff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 256u }, 1, 4, 3, 0, 0, 8285, 2, { { 18, 2 }, { 0, 10 } }, 0x900000, 256, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 3, 0, 0, 8285, 1, { { 6, 10 } }, 0x900000, 256, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 3, 0, 0, 8285, 2, { { 2, 14 }, { 2, 26 } }, 0x900000, 256, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 3, 0, 0, 8285, 1, { { 2, 14 } }, 0x900000, 256, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 3, 0, 0, 8285, 1, { { 24, 12 } }, 0x900000, 256, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 2, 3, 3, 7785, 2, { { 8, 2 }, { 22, 9 } }, 0x8d0300, 256, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 2, 3, 3, 7785, 1, { { 8, 10 } }, 0x8d0300, 256, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 2, 3, 3, 7785, 2, { { 4, 14 }, { 4, 26 } }, 0x8d0300, 256, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 2, 3, 3, 7785, 1, { { 4, 14 } }, 0x8d0300, 256, &rows[0], &masks[0] },
   { { 0, 256u }, 1, 4, 2, 3, 3, 7785, 1, { { 8, 17 } }, 0x8d0300, 256, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
   &layout[5], &layout[6], &layout[7], nullptr, &layout[8], &layout[9], &layout[9],
};
constexpr U16 routingProfileRun[] = {
   0, 1, 2, 3,
};
constexpr AsicUtils::FieldRun runs[] = {
   { "routingProfile", routingProfileRun },
};
} // namespace VsiProfileEnablersData

constinit AsicUtils::MetaInfo const VsiProfileEnablers::metaInfo{
   Impl::trace, Impl::source, __LINE__, "VsiProfileEnablers", 64, true, 2, AsicUtils::ValueType::U32,
   VsiProfileEnablersData::fields, VsiProfileEnablersData::layouts, {}, VsiProfileEnablersData::runs
};

U32 VsiProfileEnablers::allFieldsMask() const {
   metaInfo.trace( "virtual U32 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- VsiProfileFlags

namespace VsiProfileFlagsData {
constexpr AsicUtils::FieldInfo fields[] = {
   { "fwdDomainCsProfile", 322, AsicUtils::ValueType::U8, false },
   { "fwdDomainCsProfileVec", 323, AsicUtils::ValueType::U32, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 4 }, { 0, 32 },
};
constexpr U32 masks[] = {
   0xffffffff, 0x0,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 128u }, 2, 8, 1, 0, 0, 8268, 2, { { 18, 2 }, { 0, 10 } }, 0xb70000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 2, 8, 1, 0, 0, 8268, 1, { { 6, 10 } }, 0xb70000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 2, 8, 1, 0, 0, 8268, 2, { { 2, 14 }, { 2, 26 } }, 0xb70000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 2, 8, 1, 0, 0, 8268, 1, { { 2, 14 } }, 0xb70000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 2, 8, 1, 0, 0, 8268, 1, { { 24, 12 } }, 0xb70000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 2, 8, 1, 0, 0, 7770, 2, { { 8, 2 }, { 22, 9 } }, 0xb50000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 2, 8, 1, 0, 0, 7770, 1, { { 8, 10 } }, 0xb50000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 2, 8, 1, 0, 0, 7770, 2, { { 4, 14 }, { 4, 26 } }, 0xb50000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 2, 8, 1, 0, 0, 7770, 1, { { 4, 14 } }, 0xb50000, 0, &rows[0], &masks[0] },
   { { 0, 128u }, 2, 8, 1, 0, 0, 7770, 1, { { 8, 17 } }, 0xb50000, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
   &layout[5], &layout[6], &layout[7], nullptr, &layout[8], &layout[9], &layout[9],
};
} // namespace VsiProfileFlagsData

constinit AsicUtils::MetaInfo const VsiProfileFlags::metaInfo{
   Impl::trace, Impl::source, __LINE__, "VsiProfileFlags", 65, true, 2, AsicUtils::ValueType::U64,
   VsiProfileFlagsData::fields, VsiProfileFlagsData::layouts, {}, {}
};

U64 VsiProfileFlags::allFieldsMask() const {
   metaInfo.trace( "virtual U64 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- VttTrapStrengths3

namespace VttTrapStrengths3Data {
constexpr AsicUtils::FieldInfo fields[] = {
   { "mplsUnexpectedBosFwd", 514, AsicUtils::ValueType::U8, false },
   { "mplsUnexpectedBosSnp", 515, AsicUtils::ValueType::U8, false },
   { "mplsUnexpectedNoBosFwd", 516, AsicUtils::ValueType::U8, false },
   { "mplsUnexpectedNoBosSnp", 517, AsicUtils::ValueType::U8, false },
   { "ipv4VersionErrorFwd", 450, AsicUtils::ValueType::U8, false },
   { "ipv4VersionErrorSnp", 451, AsicUtils::ValueType::U8, false },
   { "ipv4ChecksumErrorFwd", 422, AsicUtils::ValueType::U8, false },
   { "ipv4ChecksumErrorSnp", 423, AsicUtils::ValueType::U8, false },
   { "ipv4HeaderLengthErrorFwd", 433, AsicUtils::ValueType::U8, false },
   { "ipv4HeaderLengthErrorSnp", 434, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 4 }, { 4, 3 }, { 7, 4 }, { 11, 3 }, { 14, 4 }, { 18, 3 }, { 21, 4 }, { 25, 3 },
   { 28, 4 }, { 32, 3 },
};
constexpr U32 masks[] = {
   0xffffffff, 0x7,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 2, 8, 1, 0, 0, 54906, 2, { { 18, 2 }, { 0, 10 } }, 0x16d, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54906, 1, { { 6, 10 } }, 0x175, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54906, 2, { { 2, 14 }, { 2, 26 } }, 0x175, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54906, 1, { { 2, 14 } }, 0x175, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54906, 1, { { 24, 12 } }, 0x175, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54135, 2, { { 8, 2 }, { 22, 9 } }, 0x16f, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54135, 1, { { 8, 10 } }, 0x16f, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54135, 2, { { 4, 14 }, { 4, 26 } }, 0x16f, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54135, 1, { { 4, 14 } }, 0x16f, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54135, 1, { { 8, 17 } }, 0x16f, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
   &layout[5], &layout[6], &layout[7], nullptr, &layout[8], &layout[9], &layout[9],
};
} // namespace VttTrapStrengths3Data

constinit AsicUtils::MetaInfo const VttTrapStrengths3::metaInfo{
   Impl::trace, Impl::source, __LINE__, "VttTrapStrengths3", 66, false, 2, AsicUtils::ValueType::U64,
   VttTrapStrengths3Data::fields, VttTrapStrengths3Data::layouts, {}, {}
};

U64 VttTrapStrengths3::allFieldsMask() const {
   metaInfo.trace( "virtual U64 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- VttTrapStrengths4

namespace VttTrapStrengths4Data {
constexpr AsicUtils::FieldInfo fields[] = {
   { "ipv4TotalLengthErrorFwd", 443, AsicUtils::ValueType::U8, false },
   { "ipv4TotalLengthErrorSnp", 444, AsicUtils::ValueType::U8, false },
   { "ipv4Ttl0Fwd", 446, AsicUtils::ValueType::U8, false },
   { "ipv4Ttl0Snp", 447, AsicUtils::ValueType::U8, false },
   { "ipv4HasOptionsFwd", 430, AsicUtils::ValueType::U8, false },
   { "ipv4HasOptionsSnp", 431, AsicUtils::ValueType::U8, false },
   { "ipv4Ttl1Fwd", 448, AsicUtils::ValueType::U8, false },
   { "ipv4Ttl1Snp", 449, AsicUtils::ValueType::U8, false },
   { "ipv4SipEqualDipFwd", 437, AsicUtils::ValueType::U8, false },
   { "ipv4SipEqualDipSnp", 438, AsicUtils::ValueType::U8, false },
   { "ipv4DipZeroFwd", 425, AsicUtils::ValueType::U8, false },
   { "ipv4DipZeroSnp", 426, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 4 }, { 4, 3 }, { 7, 4 }, { 11, 3 }, { 14, 4 }, { 18, 3 }, { 21, 4 }, { 25, 3 },
   { 28, 4 }, { 32, 3 }, { 35, 4 }, { 39, 3 },
};
constexpr U32 masks[] = {
   0xffffffff, 0x3ff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 2, 8, 1, 0, 0, 54907, 2, { { 18, 2 }, { 0, 10 } }, 0x16e, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54907, 1, { { 6, 10 } }, 0x177, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54907, 2, { { 2, 14 }, { 2, 26 } }, 0x177, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54907, 1, { { 2, 14 } }, 0x177, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54907, 1, { { 24, 12 } }, 0x177, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54136, 2, { { 8, 2 }, { 22, 9 } }, 0x170, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54136, 1, { { 8, 10 } }, 0x170, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54136, 2, { { 4, 14 }, { 4, 26 } }, 0x170, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54136, 1, { { 4, 14 } }, 0x170, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54136, 1, { { 8, 17 } }, 0x170, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
   &layout[5], &layout[6], &layout[7], nullptr, &layout[8], &layout[9], &layout[9],
};
} // namespace VttTrapStrengths4Data

constinit AsicUtils::MetaInfo const VttTrapStrengths4::metaInfo{
   Impl::trace, Impl::source, __LINE__, "VttTrapStrengths4", 67, false, 2, AsicUtils::ValueType::U64,
   VttTrapStrengths4Data::fields, VttTrapStrengths4Data::layouts, {}, {}
};

U64 VttTrapStrengths4::allFieldsMask() const {
   metaInfo.trace( "virtual U64 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- VttTrapStrengths5

namespace VttTrapStrengths5Data {
constexpr AsicUtils::FieldInfo fields[] = {
   { "ipv4SipIsMcFwd", 440, AsicUtils::ValueType::U8, false },
   { "ipv4SipIsMcSnp", 441, AsicUtils::ValueType::U8, false },
   { "ipv4FragmentedFwd", 428, AsicUtils::ValueType::U8, false },
   { "ipv4FragmentedSnp", 429, AsicUtils::ValueType::U8, false },
   { "ipv6VersionErrorFwd", 484, AsicUtils::ValueType::U8, false },
   { "ipv6VersionErrorSnp", 485, AsicUtils::ValueType::U8, false },
   { "ipv6HopCount0Fwd", 453, AsicUtils::ValueType::U8, false },
   { "ipv6HopCount0Snp", 454, AsicUtils::ValueType::U8, false },
   { "ipv6HopCount1Fwd", 455, AsicUtils::ValueType::U8, false },
   { "ipv6HopCount1Snp", 456, AsicUtils::ValueType::U8, false },
   { "ipv6UnspecifiedDestinationFwd", 478, AsicUtils::ValueType::U8, false },
   { "ipv6UnspecifiedDestinationSnp", 479, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 4 }, { 4, 3 }, { 7, 4 }, { 11, 3 }, { 14, 4 }, { 18, 3 }, { 21, 4 }, { 25, 3 },
   { 28, 4 }, { 32, 3 }, { 35, 4 }, { 39, 3 },
};
constexpr U32 masks[] = {
   0xffffffff, 0x3ff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 2, 8, 1, 0, 0, 54908, 2, { { 18, 2 }, { 0, 10 } }, 0x16f, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54908, 1, { { 6, 10 } }, 0x179, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54908, 2, { { 2, 14 }, { 2, 26 } }, 0x179, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54908, 1, { { 2, 14 } }, 0x179, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54908, 1, { { 24, 12 } }, 0x179, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54137, 2, { { 8, 2 }, { 22, 9 } }, 0x171, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54137, 1, { { 8, 10 } }, 0x172, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54137, 2, { { 4, 14 }, { 4, 26 } }, 0x172, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54137, 1, { { 4, 14 } }, 0x172, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54137, 1, { { 8, 17 } }, 0x172, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
   &layout[5], &layout[6], &layout[7], nullptr, &layout[8], &layout[9], &layout[9],
};
} // namespace VttTrapStrengths5Data

constinit AsicUtils::MetaInfo const VttTrapStrengths5::metaInfo{
   Impl::trace, Impl::source, __LINE__, "VttTrapStrengths5", 68, false, 2, AsicUtils::ValueType::U64,
   VttTrapStrengths5Data::fields, VttTrapStrengths5Data::layouts, {}, {}
};

U64 VttTrapStrengths5::allFieldsMask() const {
   metaInfo.trace( "virtual U64 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- VttTrapStrengths6

namespace VttTrapStrengths6Data {
constexpr AsicUtils::FieldInfo fields[] = {
   { "ipv6LoopbackAddressFwd", 465, AsicUtils::ValueType::U8, false },
   { "ipv6LoopbackAddressSnp", 466, AsicUtils::ValueType::U8, false },
   { "ipv6MulticastSourceFwd", 470, AsicUtils::ValueType::U8, false },
   { "ipv6MulticastSourceSnp", 471, AsicUtils::ValueType::U8, false },
   { "ipv6NextHeaderNullFwd", 473, AsicUtils::ValueType::U8, false },
   { "ipv6NextHeaderNullSnp", 474, AsicUtils::ValueType::U8, false },
   { "ipv6UnspecifiedSourceFwd", 481, AsicUtils::ValueType::U8, false },
   { "ipv6UnspecifiedSourceSnp", 482, AsicUtils::ValueType::U8, false },
   { "ipv6LinkLocalDestinationFwd", 459, AsicUtils::ValueType::U8, false },
   { "ipv6LinkLocalDestinationSnp", 460, AsicUtils::ValueType::U8, false },
   { "ipv6SiteLocalDestinationFwd", 476, AsicUtils::ValueType::U8, false },
   { "ipv6SiteLocalDestinationSnp", 477, AsicUtils::ValueType::U8, false },
};
constexpr AsicUtils::FieldRow rows[] = {
   { 0, 4 }, { 4, 3 }, { 7, 4 }, { 11, 3 }, { 14, 4 }, { 18, 3 }, { 21, 4 }, { 25, 3 },
   { 28, 4 }, { 32, 3 }, { 35, 4 }, { 39, 3 },
};
constexpr U32 masks[] = {
   0xffffffff, 0x3ff,
};
constexpr AsicUtils::TableLayout layout[] = {
   { { 0, 1u }, 2, 8, 1, 0, 0, 54909, 2, { { 18, 2 }, { 0, 10 } }, 0x170, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54909, 1, { { 6, 10 } }, 0x17b, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54909, 2, { { 2, 14 }, { 2, 26 } }, 0x17b, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54909, 1, { { 2, 14 } }, 0x17b, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54909, 1, { { 24, 12 } }, 0x17b, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54138, 2, { { 8, 2 }, { 22, 9 } }, 0x172, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54138, 1, { { 8, 10 } }, 0x173, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54138, 2, { { 4, 14 }, { 4, 26 } }, 0x173, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54138, 1, { { 4, 14 } }, 0x173, 0, &rows[0], &masks[0] },
   { { 0, 1u }, 2, 8, 1, 0, 0, 54138, 1, { { 8, 17 } }, 0x173, 0, &rows[0], &masks[0] },
};
constexpr AsicUtils::TableLayout const * layouts[] = {
   &layout[0], &layout[1], &layout[2], nullptr, &layout[3], &layout[4], &layout[4],
   &layout[5], &layout[6], &layout[7], nullptr, &layout[8], &layout[9], &layout[9],
};
} // namespace VttTrapStrengths6Data

constinit AsicUtils::MetaInfo const VttTrapStrengths6::metaInfo{
   Impl::trace, Impl::source, __LINE__, "VttTrapStrengths6", 69, false, 2, AsicUtils::ValueType::U64,
   VttTrapStrengths6Data::fields, VttTrapStrengths6Data::layouts, {}, {}
};

U64 VttTrapStrengths6::allFieldsMask() const {
   metaInfo.trace( "virtual U64 %::allFieldsMask() const", chipType, variant_ );
   return allFieldsMask( chipType, variant_ );
}

// ---- classes by name

namespace Impl {

namespace {

template< class Table >
std::shared_ptr< AsicUtils::AsicBase > make( ChipType chipType, U8 variant ) {
   return std::make_shared< typename Table::WithStorage >( chipType, false, variant );
}

} // namespace

} // namespace Impl

std::shared_ptr< AsicUtils::AsicBase > stringObj( Corvo::String name, ChipType chipType, U8 variant ) {
   using Make = std::function< std::shared_ptr< AsicUtils::AsicBase >( ChipType, U8 ) >;
   static std::map< Corvo::String, Make > const objMap{
      { "AdditionalHeadersMapTable0", Impl::make< AdditionalHeadersMapTable0 > },
      { "CgmSnifTmTable", Impl::make< CgmSnifTmTable > },
      { "EgressOutrifMaxValue", Impl::make< EgressOutrifMaxValue > },
      { "EnableKapsInterfaceDefault", Impl::make< EnableKapsInterfaceDefault > },
      { "EnablersVectors", Impl::make< EnablersVectors > },
      { "ErppCfgMappingOutLifProfile", Impl::make< ErppCfgMappingOutLifProfile > },
      { "ErppCfgSplitHorizonFilter", Impl::make< ErppCfgSplitHorizonFilter > },
      { "ErppInlifOrientationMap", Impl::make< ErppInlifOrientationMap > },
      { "EthernetTrap", Impl::make< EthernetTrap > },
      { "EtppCfgFwdDoNotTtlDecrement", Impl::make< EtppCfgFwdDoNotTtlDecrement > },
      { "EtppCfgRifInStack", Impl::make< EtppCfgRifInStack > },
      { "EtppCfgSplitHorizonFilter", Impl::make< EtppCfgSplitHorizonFilter > },
      { "EtppCfgSplitHorizonTrapParams", Impl::make< EtppCfgSplitHorizonTrapParams > },
      { "EtppEnc1ContextSelectionPortProfile", Impl::make< EtppEnc1ContextSelectionPortProfile > },
      { "EtppEnc2ContextSelectionPortProfile", Impl::make< EtppEnc2ContextSelectionPortProfile > },
      { "EtppEnc3ContextSelectionPortProfile", Impl::make< EtppEnc3ContextSelectionPortProfile > },
      { "EtppEnc4ContextSelectionPortProfile", Impl::make< EtppEnc4ContextSelectionPortProfile > },
      { "EtppEnc5ContextSelectionPortProfile", Impl::make< EtppEnc5ContextSelectionPortProfile > },
      { "EtppInlifOrientationMap", Impl::make< EtppInlifOrientationMap > },
      { "EtppOutlifOrientationMap", Impl::make< EtppOutlifOrientationMap > },
      { "EtppTrapBitCruncherProgram", Impl::make< EtppTrapBitCruncherProgram > },
      { "EtppTrapContextSelectionPortProfile", Impl::make< EtppTrapContextSelectionPortProfile > },
      { "EtppaPrpFesProgramTable", Impl::make< EtppaPrpFesProgramTable > },
      { "EtppbEnc5Arr0FormatCfg", Impl::make< EtppbEnc5Arr0FormatCfg > },
      { "EtppcEnc1Arr0FormatCfg", Impl::make< EtppcEnc1Arr0FormatCfg > },
      { "EtppcEncapsulation2ContextSelectionCam", Impl::make< EtppcEncapsulation2ContextSelectionCam > },
      { "FfcInstruction", Impl::make< FfcInstruction > },
      { "FlpKapsStrengthMapping", Impl::make< FlpKapsStrengthMapping > },
      { "FlpRpfFormatConfiguration", Impl::make< FlpRpfFormatConfiguration > },
      { "FlpaInitContextEnablers", Impl::make< FlpaInitContextEnablers > },
      { "FlpaResContextEnablers", Impl::make< FlpaResContextEnablers > },
      { "FwdFfcTable", Impl::make< FwdFfcTable > },
      { "FwdKbrTable", Impl::make< FwdKbrTable > },
      { "InLifProfileCsFlagsLsb", Impl::make< InLifProfileCsFlagsLsb > },
      { "InLifProfileCsFlagsMsb", Impl::make< InLifProfileCsFlagsMsb > },
      { "IppaVtecsAction", Impl::make< IppaVtecsAction > },
      { "IppbFlpLePd0", Impl::make< IppbFlpLePd0 > },
      { "IppbFlpLePd1", Impl::make< IppbFlpLePd1 > },
      { "IppbFlpLePd2", Impl::make< IppbFlpLePd2 > },
      { "IppbFlpPortProfileMap", Impl::make< IppbFlpPortProfileMap > },
      { "IppbFlpacsAction", Impl::make< IppbFlpacsAction > },
      { "IppbFlpbResContextEnablers", Impl::make< IppbFlpbResContextEnablers > },
      { "IppbIpv4ActionProfilesCfg", Impl::make< IppbIpv4ActionProfilesCfg > },
      { "IppbIpv6ActionProfiles0Cfg", Impl::make< IppbIpv6ActionProfiles0Cfg > },
      { "IppbLifMcBridgeFallbackAllow", Impl::make< IppbLifMcBridgeFallbackAllow > },
      { "IppbProgTrapCfg", Impl::make< IppbProgTrapCfg > },
      { "IppbTtl0ActionProfile", Impl::make< IppbTtl0ActionProfile > },
      { "IppcInLifProfileCsFlags", Impl::make< IppcInLifProfileCsFlags > },
      { "IppdFerTrapCfg", Impl::make< IppdFerTrapCfg > },
      { "IppdInLifProfileMap", Impl::make< IppdInLifProfileMap > },
      { "IppdInLifProfileTable", Impl::make< IppdInLifProfileTable > },
      { "IppdPphAttributesByEei", Impl::make< IppdPphAttributesByEei > },
      { "IppeRecycFwdProfileMapping", Impl::make< IppeRecycFwdProfileMapping > },
      { "Ipv4PcremFwdDestPcrem", Impl::make< Ipv4PcremFwdDestPcrem > },
      { "MappingFwdInfoToEnTerm", Impl::make< MappingFwdInfoToEnTerm > },
      { "PpmcDoubleOutLifSwap", Impl::make< PpmcDoubleOutLifSwap > },
      { "PrivateHostReducedVrf", Impl::make< PrivateHostReducedVrf > },
      { "PweInlifCsProfile", Impl::make< PweInlifCsProfile > },
      { "RoutingInlifCsProfile", Impl::make< RoutingInlifCsProfile > },
      { "RoutingVeloroInlifCsProfile", Impl::make< RoutingVeloroInlifCsProfile > },
      { "SystemHeaderPph", Impl::make< SystemHeaderPph > },
      { "TerminateNetworkHeaders", Impl::make< TerminateNetworkHeaders > },
      { "UnknownDaProfile", Impl::make< UnknownDaProfile > },
      { "VeloroL2FodoProfile", Impl::make< VeloroL2FodoProfile > },
      { "VsiProfileEnablers", Impl::make< VsiProfileEnablers > },
      { "VsiProfileFlags", Impl::make< VsiProfileFlags > },
      { "VttTrapStrengths3", Impl::make< VttTrapStrengths3 > },
      { "VttTrapStrengths4", Impl::make< VttTrapStrengths4 > },
      { "VttTrapStrengths5", Impl::make< VttTrapStrengths5 > },
      { "VttTrapStrengths6", Impl::make< VttTrapStrengths6 > },
   };
   auto const objMapIter = objMap.find( name );
   if ( objMapIter == objMap.end() ) {
      Rex::SassertHelper( "objMapIter != objMap.end()",
                          { Impl::source, __LINE__, "std::shared_ptr<AsicUtils::AsicBase> Hardware::stringObj(String, ChipType, U8)" } )
         << "invalid name given: " << name;
   }
   return objMapIter->second( chipType, variant );
}

bool chipTypeVariantValid( Corvo::String name, ChipType chipType, U8 variant ) {
   using Test = std::function< bool( ChipType, U8 ) >;
   static std::map< Corvo::String, Test > const testMap{
      { "AdditionalHeadersMapTable0", AdditionalHeadersMapTable0::chipTypeVariantValid },
      { "CgmSnifTmTable", CgmSnifTmTable::chipTypeVariantValid },
      { "EgressOutrifMaxValue", EgressOutrifMaxValue::chipTypeVariantValid },
      { "EnableKapsInterfaceDefault", EnableKapsInterfaceDefault::chipTypeVariantValid },
      { "EnablersVectors", EnablersVectors::chipTypeVariantValid },
      { "ErppCfgMappingOutLifProfile", ErppCfgMappingOutLifProfile::chipTypeVariantValid },
      { "ErppCfgSplitHorizonFilter", ErppCfgSplitHorizonFilter::chipTypeVariantValid },
      { "ErppInlifOrientationMap", ErppInlifOrientationMap::chipTypeVariantValid },
      { "EthernetTrap", EthernetTrap::chipTypeVariantValid },
      { "EtppCfgFwdDoNotTtlDecrement", EtppCfgFwdDoNotTtlDecrement::chipTypeVariantValid },
      { "EtppCfgRifInStack", EtppCfgRifInStack::chipTypeVariantValid },
      { "EtppCfgSplitHorizonFilter", EtppCfgSplitHorizonFilter::chipTypeVariantValid },
      { "EtppCfgSplitHorizonTrapParams", EtppCfgSplitHorizonTrapParams::chipTypeVariantValid },
      { "EtppEnc1ContextSelectionPortProfile", EtppEnc1ContextSelectionPortProfile::chipTypeVariantValid },
      { "EtppEnc2ContextSelectionPortProfile", EtppEnc2ContextSelectionPortProfile::chipTypeVariantValid },
      { "EtppEnc3ContextSelectionPortProfile", EtppEnc3ContextSelectionPortProfile::chipTypeVariantValid },
      { "EtppEnc4ContextSelectionPortProfile", EtppEnc4ContextSelectionPortProfile::chipTypeVariantValid },
      { "EtppEnc5ContextSelectionPortProfile", EtppEnc5ContextSelectionPortProfile::chipTypeVariantValid },
      { "EtppInlifOrientationMap", EtppInlifOrientationMap::chipTypeVariantValid },
      { "EtppOutlifOrientationMap", EtppOutlifOrientationMap::chipTypeVariantValid },
      { "EtppTrapBitCruncherProgram", EtppTrapBitCruncherProgram::chipTypeVariantValid },
      { "EtppTrapContextSelectionPortProfile", EtppTrapContextSelectionPortProfile::chipTypeVariantValid },
      { "EtppaPrpFesProgramTable", EtppaPrpFesProgramTable::chipTypeVariantValid },
      { "EtppbEnc5Arr0FormatCfg", EtppbEnc5Arr0FormatCfg::chipTypeVariantValid },
      { "EtppcEnc1Arr0FormatCfg", EtppcEnc1Arr0FormatCfg::chipTypeVariantValid },
      { "EtppcEncapsulation2ContextSelectionCam", EtppcEncapsulation2ContextSelectionCam::chipTypeVariantValid },
      { "FfcInstruction", FfcInstruction::chipTypeVariantValid },
      { "FlpKapsStrengthMapping", FlpKapsStrengthMapping::chipTypeVariantValid },
      { "FlpRpfFormatConfiguration", FlpRpfFormatConfiguration::chipTypeVariantValid },
      { "FlpaInitContextEnablers", FlpaInitContextEnablers::chipTypeVariantValid },
      { "FlpaResContextEnablers", FlpaResContextEnablers::chipTypeVariantValid },
      { "FwdFfcTable", FwdFfcTable::chipTypeVariantValid },
      { "FwdKbrTable", FwdKbrTable::chipTypeVariantValid },
      { "InLifProfileCsFlagsLsb", InLifProfileCsFlagsLsb::chipTypeVariantValid },
      { "InLifProfileCsFlagsMsb", InLifProfileCsFlagsMsb::chipTypeVariantValid },
      { "IppaVtecsAction", IppaVtecsAction::chipTypeVariantValid },
      { "IppbFlpLePd0", IppbFlpLePd0::chipTypeVariantValid },
      { "IppbFlpLePd1", IppbFlpLePd1::chipTypeVariantValid },
      { "IppbFlpLePd2", IppbFlpLePd2::chipTypeVariantValid },
      { "IppbFlpPortProfileMap", IppbFlpPortProfileMap::chipTypeVariantValid },
      { "IppbFlpacsAction", IppbFlpacsAction::chipTypeVariantValid },
      { "IppbFlpbResContextEnablers", IppbFlpbResContextEnablers::chipTypeVariantValid },
      { "IppbIpv4ActionProfilesCfg", IppbIpv4ActionProfilesCfg::chipTypeVariantValid },
      { "IppbIpv6ActionProfiles0Cfg", IppbIpv6ActionProfiles0Cfg::chipTypeVariantValid },
      { "IppbLifMcBridgeFallbackAllow", IppbLifMcBridgeFallbackAllow::chipTypeVariantValid },
      { "IppbProgTrapCfg", IppbProgTrapCfg::chipTypeVariantValid },
      { "IppbTtl0ActionProfile", IppbTtl0ActionProfile::chipTypeVariantValid },
      { "IppcInLifProfileCsFlags", IppcInLifProfileCsFlags::chipTypeVariantValid },
      { "IppdFerTrapCfg", IppdFerTrapCfg::chipTypeVariantValid },
      { "IppdInLifProfileMap", IppdInLifProfileMap::chipTypeVariantValid },
      { "IppdInLifProfileTable", IppdInLifProfileTable::chipTypeVariantValid },
      { "IppdPphAttributesByEei", IppdPphAttributesByEei::chipTypeVariantValid },
      { "IppeRecycFwdProfileMapping", IppeRecycFwdProfileMapping::chipTypeVariantValid },
      { "Ipv4PcremFwdDestPcrem", Ipv4PcremFwdDestPcrem::chipTypeVariantValid },
      { "MappingFwdInfoToEnTerm", MappingFwdInfoToEnTerm::chipTypeVariantValid },
      { "PpmcDoubleOutLifSwap", PpmcDoubleOutLifSwap::chipTypeVariantValid },
      { "PrivateHostReducedVrf", PrivateHostReducedVrf::chipTypeVariantValid },
      { "PweInlifCsProfile", PweInlifCsProfile::chipTypeVariantValid },
      { "RoutingInlifCsProfile", RoutingInlifCsProfile::chipTypeVariantValid },
      { "RoutingVeloroInlifCsProfile", RoutingVeloroInlifCsProfile::chipTypeVariantValid },
      { "SystemHeaderPph", SystemHeaderPph::chipTypeVariantValid },
      { "TerminateNetworkHeaders", TerminateNetworkHeaders::chipTypeVariantValid },
      { "UnknownDaProfile", UnknownDaProfile::chipTypeVariantValid },
      { "VeloroL2FodoProfile", VeloroL2FodoProfile::chipTypeVariantValid },
      { "VsiProfileEnablers", VsiProfileEnablers::chipTypeVariantValid },
      { "VsiProfileFlags", VsiProfileFlags::chipTypeVariantValid },
      { "VttTrapStrengths3", VttTrapStrengths3::chipTypeVariantValid },
      { "VttTrapStrengths4", VttTrapStrengths4::chipTypeVariantValid },
      { "VttTrapStrengths5", VttTrapStrengths5::chipTypeVariantValid },
      { "VttTrapStrengths6", VttTrapStrengths6::chipTypeVariantValid },
   };
   auto const testMapIter = testMap.find( name );
   return testMapIter != testMap.end() && testMapIter->second( chipType, variant );
}

} // namespace Hardware
