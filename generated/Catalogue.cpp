// The catalogue of chip tables as plain data.
// Written by the generator from catalogue/. Do not edit: change the catalogue and run ./dev generate.
// clang-format off
#include "generated/Catalogue.h"

#include <algorithm>
#include <iterator>

namespace Catalogue {

namespace {

constexpr Selector selectors0[] = { { 28, 2 }, { 10, 10 } };
constexpr Selector selectors1[] = { { 2, 9 } };
constexpr Selector selectors2[] = { { 28, 13 }, { 28, 25 } };
constexpr Selector selectors3[] = { { 28, 13 } };
constexpr Selector selectors4[] = { { 16, 9 } };
constexpr Selector selectors5[] = { { 30, 2 }, { 12, 10 } };
constexpr Selector selectors6[] = { { 8, 4 } };
constexpr Selector selectors7[] = { { 30, 13 }, { 30, 25 } };
constexpr Selector selectors8[] = { { 30, 13 } };
constexpr Selector selectors9[] = { { 24, 9 } };
constexpr Selector selectors10[] = { { 8, 1 }, { 22, 8 } };
constexpr Selector selectors11[] = { { 22, 1 } };
constexpr Selector selectors12[] = { { 0, 12 }, { 0, 24 } };
constexpr Selector selectors13[] = { { 0, 12 } };
constexpr Selector selectors14[] = { { 24, 13 } };
constexpr Selector selectors15[] = { { 24, 2 }, { 6, 10 } };
constexpr Selector selectors16[] = { { 0, 9 } };
constexpr Selector selectors17[] = { { 24, 13 }, { 24, 25 } };
constexpr Selector selectors18[] = { { 24, 17 } };
constexpr Selector selectors19[] = { { 26, 2 }, { 8, 10 } };
constexpr Selector selectors20[] = { { 20, 5 } };
constexpr Selector selectors21[] = { { 26, 13 }, { 26, 25 } };
constexpr Selector selectors22[] = { { 26, 13 } };
constexpr Selector selectors23[] = { { 8, 8 } };
constexpr Selector selectors24[] = { { 10, 2 }, { 24, 9 } };
constexpr Selector selectors25[] = { { 10, 10 } };
constexpr Selector selectors26[] = { { 6, 14 }, { 6, 26 } };
constexpr Selector selectors27[] = { { 6, 14 } };
constexpr Selector selectors28[] = { { 0, 17 } };
constexpr Selector selectors29[] = { { 18, 2 }, { 0, 10 } };
constexpr Selector selectors30[] = { { 6, 10 } };
constexpr Selector selectors31[] = { { 2, 14 }, { 2, 26 } };
constexpr Selector selectors32[] = { { 2, 14 } };
constexpr Selector selectors33[] = { { 24, 12 } };
constexpr Selector selectors34[] = { { 8, 2 }, { 22, 9 } };
constexpr Selector selectors35[] = { { 8, 10 } };
constexpr Selector selectors36[] = { { 4, 14 }, { 4, 26 } };
constexpr Selector selectors37[] = { { 4, 14 } };
constexpr Selector selectors38[] = { { 8, 17 } };
constexpr Selector selectors39[] = { { 10, 1 } };
constexpr Selector selectors40[] = { { 4, 5 } };
constexpr Selector selectors41[] = { { 28, 12 } };
constexpr Selector selectors42[] = { { 16, 15 } };
constexpr Selector selectors43[] = { { 12, 2 }, { 26, 9 } };
constexpr Selector selectors44[] = { { 6, 9 } };
constexpr Selector selectors45[] = { { 8, 14 }, { 8, 26 } };
constexpr Selector selectors46[] = { { 8, 14 } };
constexpr Selector selectors47[] = { { 16, 16 } };
constexpr Selector selectors48[] = { { 14, 2 }, { 28, 9 } };
constexpr Selector selectors49[] = { { 8, 9 } };
constexpr Selector selectors50[] = { { 10, 14 }, { 10, 26 } };
constexpr Selector selectors51[] = { { 10, 14 } };
constexpr Selector selectors52[] = { { 2, 18 } };
constexpr Selector selectors53[] = { { 16, 2 }, { 30, 9 } };
constexpr Selector selectors54[] = { { 4, 10 } };
constexpr Selector selectors55[] = { { 0, 14 }, { 0, 26 } };
constexpr Selector selectors56[] = { { 0, 14 } };
constexpr Selector selectors57[] = { { 16, 17 } };
constexpr Selector selectors58[] = { { 2, 5 } };
constexpr Selector selectors59[] = { { 24, 36 } };
constexpr Selector selectors60[] = { { 8, 20 } };
constexpr Selector selectors61[] = { { 22, 2 }, { 4, 10 } };
constexpr Selector selectors62[] = { { 18, 4 } };
constexpr Selector selectors63[] = { { 24, 12 }, { 24, 24 } };
constexpr Selector selectors64[] = { { 30, 11 } };
constexpr Selector selectors65[] = { { 20, 2 }, { 2, 10 } };
constexpr Selector selectors66[] = { { 28, 9 } };
constexpr Selector selectors67[] = { { 20, 12 }, { 20, 24 } };
constexpr Selector selectors68[] = { { 20, 12 } };
constexpr Selector selectors69[] = { { 16, 11 } };

constexpr Field fields0[] = {
   { "setStartCurrentNextProtocol", 0, 1, false },
   { "startCurrentNextProtocol", 1, 16, false },
   { "addAditionalHeadersPacketSize", 17, 1, false },
   { "additionalHeadersPacketSizeInBytes", 18, 8, false },
   { "additionalHeadersType", 26, 4, false },
   { "protocolSpecificInformation", 30, 35, false },
};
constexpr Field fields1[] = {
   { "extStatDataValidOw", 0, 1, false },
   { "extStatDataValid", 1, 1, false },
   { "extStatDataOpcodeOw", 2, 1, false },
   { "extStatDataOpcode", 3, 8, false },
   { "extStatDataDataOw", 11, 1, false },
   { "extStatDataData", 12, 80, false },
   { "intStat0ObjValidOw", 92, 1, false },
   { "intStat0ObjValid", 93, 1, false },
   { "intStat1ObjValidOw", 94, 1, false },
   { "intStat1ObjValid", 95, 1, false },
   { "intStat2ObjValidOw", 96, 1, false },
   { "intStat2ObjValid", 97, 1, false },
   { "intStat3ObjValidOw", 98, 1, false },
   { "intStat3ObjValid", 99, 1, false },
   { "intStat4ObjValidOw", 100, 1, false },
   { "intStat4ObjValid", 101, 1, false },
   { "intStat5ObjValidOw", 102, 1, false },
   { "intStat5ObjValid", 103, 1, false },
   { "intStat6ObjValidOw", 104, 1, false },
   { "intStat6ObjValid", 105, 1, false },
   { "intStat7ObjValidOw", 106, 1, false },
   { "intStat7ObjValid", 107, 1, false },
   { "intStat8ObjValidOw", 108, 1, false },
   { "intStat8ObjValid", 109, 1, false },
   { "intStat9ObjValidOw", 110, 1, false },
   { "intStat9ObjValid", 111, 1, false },
   { "intStat0ObjIdOw", 112, 1, false },
   { "intStat0ObjId", 113, 20, false },
   { "intStat1ObjIdOw", 133, 1, false },
   { "intStat1ObjId", 134, 20, false },
   { "intStat2ObjIdOw", 154, 1, false },
   { "intStat2ObjId", 155, 20, false },
   { "intStat3ObjIdOw", 175, 1, false },
   { "intStat3ObjId", 176, 20, false },
   { "intStat4ObjIdOw", 196, 1, false },
   { "intStat4ObjId", 197, 20, false },
   { "intStat5ObjIdOw", 217, 1, false },
   { "intStat5ObjId", 218, 20, false },
   { "intStat6ObjIdOw", 238, 1, false },
   { "intStat6ObjId", 239, 20, false },
   { "intStat7ObjIdOw", 259, 1, false },
   { "intStat7ObjId", 260, 20, false },
   { "intStat8ObjIdOw", 280, 1, false },
   { "intStat8ObjId", 281, 20, false },
   { "intStat9ObjIdOw", 301, 1, false },
   { "intStat9ObjId", 302, 20, false },
   { "intStat0ObjTypeOw", 322, 1, false },
   { "intStat0ObjType", 323, 2, false },
   { "intStat1ObjTypeOw", 325, 1, false },
   { "intStat1ObjType", 326, 2, false },
   { "intStat2ObjTypeOw", 328, 1, false },
   { "intStat2ObjType", 329, 2, false },
   { "intStat3ObjTypeOw", 331, 1, false },
   { "intStat3ObjType", 332, 2, false },
   { "intStat4ObjTypeOw", 334, 1, false },
   { "intStat4ObjType", 335, 2, false },
   { "intStat5ObjTypeOw", 337, 1, false },
   { "intStat5ObjType", 338, 2, false },
   { "intStat6ObjTypeOw", 340, 1, false },
   { "intStat6ObjType", 341, 2, false },
   { "intStat7ObjTypeOw", 343, 1, false },
   { "intStat7ObjType", 344, 2, false },
   { "intStat8ObjTypeOw", 346, 1, false },
   { "intStat8ObjType", 347, 2, false },
   { "intStat9ObjTypeOw", 349, 1, false },
   { "intStat9ObjType", 350, 2, false },
   { "intStat0ObjIsMeterOw", 352, 1, false },
   { "intStat0ObjIsMeter", 353, 1, false },
   { "intStat1ObjIsMeterOw", 354, 1, false },
   { "intStat1ObjIsMeter", 355, 1, false },
   { "intStat2ObjIsMeterOw", 356, 1, false },
   { "intStat2ObjIsMeter", 357, 1, false },
   { "intStat7ObjIsLmOw", 358, 1, false },
   { "intStat7ObjIsLm", 359, 1, false },
   { "intStat8ObjIsLmOw", 360, 1, false },
   { "intStat8ObjIsLm", 361, 1, false },
   { "intStat9ObjIsLmOw", 362, 1, false },
   { "intStat9ObjIsLm", 363, 1, false },
   { "intStatObjMetaDataOw", 364, 1, false },
   { "intStatObjMetaData", 365, 16, false },
   { "inPpPortOw", 381, 1, false },
   { "inPpPort", 382, 8, false },
   { "stVsqPtrOw", 390, 1, false },
   { "stVsqPtr", 391, 8, false },
   { "admtProfileOw", 399, 1, false },
   { "admtProfile", 400, 3, false },
   { "item403403", 403, 1, false },
   { "item404406", 404, 3, false },
   { "inDpOw", 407, 1, false },
   { "inDp", 408, 2, false },
   { "egrDpOw", 410, 1, false },
   { "egrDp", 411, 2, false },
   { "irppDeltaOw", 413, 1, false },
   { "irppDelta", 414, 8, false },
   { "itppDeltaOw", 422, 1, false },
   { "itppDelta", 423, 8, false },
   { "nwkHeaderTruncateSizeOw", 431, 1, false },
   { "nwkHeaderTruncateSize", 432, 8, false },
   { "nwkHeaderAppendSizePtrOw", 440, 1, false },
   { "nwkHeaderAppendSizePtr", 441, 8, false },
};
constexpr Field fields2[] = {
   { "extStatDataValidOw", 0, 1, false },
   { "extStatDataValid", 1, 1, false },
   { "extStatDataOpcodeOw", 2, 1, false },
   { "extStatDataOpcode", 3, 8, false },
   { "extStatDataDataOw", 11, 1, false },
   { "extStatDataData", 12, 80, false },
   { "intStat0ObjValidOw", 92, 1, false },
   { "intStat0ObjValid", 93, 1, false },
   { "intStat1ObjValidOw", 94, 1, false },
   { "intStat1ObjValid", 95, 1, false },
   { "intStat2ObjValidOw", 96, 1, false },
   { "intStat2ObjValid", 97, 1, false },
   { "intStat3ObjValidOw", 98, 1, false },
   { "intStat3ObjValid", 99, 1, false },
   { "intStat4ObjValidOw", 100, 1, false },
   { "intStat4ObjValid", 101, 1, false },
   { "intStat5ObjValidOw", 102, 1, false },
   { "intStat5ObjValid", 103, 1, false },
   { "intStat6ObjValidOw", 104, 1, false },
   { "intStat6ObjValid", 105, 1, false },
   { "intStat7ObjValidOw", 106, 1, false },
   { "intStat7ObjValid", 107, 1, false },
   { "intStat8ObjValidOw", 108, 1, false },
   { "intStat8ObjValid", 109, 1, false },
   { "intStat9ObjValidOw", 110, 1, false },
   { "intStat9ObjValid", 111, 1, false },
   { "intStat0ObjIdOw", 112, 1, false },
   { "intStat0ObjId", 113, 20, false },
   { "intStat1ObjIdOw", 133, 1, false },
   { "intStat1ObjId", 134, 20, false },
   { "intStat2ObjIdOw", 154, 1, false },
   { "intStat2ObjId", 155, 20, false },
   { "intStat3ObjIdOw", 175, 1, false },
   { "intStat3ObjId", 176, 20, false },
   { "intStat4ObjIdOw", 196, 1, false },
   { "intStat4ObjId", 197, 20, false },
   { "intStat5ObjIdOw", 217, 1, false },
   { "intStat5ObjId", 218, 20, false },
   { "intStat6ObjIdOw", 238, 1, false },
   { "intStat6ObjId", 239, 20, false },
   { "intStat7ObjIdOw", 259, 1, false },
   { "intStat7ObjId", 260, 20, false },
   { "intStat8ObjIdOw", 280, 1, false },
   { "intStat8ObjId", 281, 20, false },
   { "intStat9ObjIdOw", 301, 1, false },
   { "intStat9ObjId", 302, 20, false },
   { "intStat0ObjTypeOw", 322, 1, false },
   { "intStat0ObjType", 323, 2, false },
   { "intStat1ObjTypeOw", 325, 1, false },
   { "intStat1ObjType", 326, 2, false },
   { "intStat2ObjTypeOw", 328, 1, false },
   { "intStat2ObjType", 329, 2, false },
   { "intStat3ObjTypeOw", 331, 1, false },
   { "intStat3ObjType", 332, 2, false },
   { "intStat4ObjTypeOw", 334, 1, false },
   { "intStat4ObjType", 335, 2, false },
   { "intStat5ObjTypeOw", 337, 1, false },
   { "intStat5ObjType", 338, 2, false },
   { "intStat6ObjTypeOw", 340, 1, false },
   { "intStat6ObjType", 341, 2, false },
   { "intStat7ObjTypeOw", 343, 1, false },
   { "intStat7ObjType", 344, 2, false },
   { "intStat8ObjTypeOw", 346, 1, false },
   { "intStat8ObjType", 347, 2, false },
   { "intStat9ObjTypeOw", 349, 1, false },
   { "intStat9ObjType", 350, 2, false },
   { "intStat0ObjIsMeterOw", 352, 1, false },
   { "intStat0ObjIsMeter", 353, 1, false },
   { "intStat1ObjIsMeterOw", 354, 1, false },
   { "intStat1ObjIsMeter", 355, 1, false },
   { "intStat2ObjIsMeterOw", 356, 1, false },
   { "intStat2ObjIsMeter", 357, 1, false },
   { "intStat7ObjIsLmOw", 358, 1, false },
   { "intStat7ObjIsLm", 359, 1, false },
   { "intStat8ObjIsLmOw", 360, 1, false },
   { "intStat8ObjIsLm", 361, 1, false },
   { "intStat9ObjIsLmOw", 362, 1, false },
   { "intStat9ObjIsLm", 363, 1, false },
   { "intStatObjMetaDataOw", 364, 1, false },
   { "intStatObjMetaData", 365, 16, false },
   { "inPpPortOw", 381, 1, false },
   { "inPpPort", 382, 10, false },
   { "stVsqPtrOw", 392, 1, false },
   { "stVsqPtr", 393, 8, false },
   { "admtProfileOw", 401, 1, false },
   { "admtProfile", 402, 3, false },
   { "inDpOw", 409, 1, false },
   { "inDp", 410, 2, false },
   { "egrDpOw", 412, 1, false },
   { "egrDp", 413, 2, false },
   { "irppDeltaOw", 415, 1, false },
   { "irppDelta", 416, 8, false },
   { "itppDeltaOw", 424, 1, false },
   { "itppDelta", 425, 8, false },
   { "nwkHeaderTruncateSizeOw", 433, 1, false },
   { "nwkHeaderTruncateSize", 434, 8, false },
   { "nwkHeaderAppendSizePtrOw", 442, 1, false },
   { "nwkHeaderAppendSizePtr", 443, 8, false },
   { "inTcOw", 405, 1, false },
   { "inTc", 406, 3, false },
};
constexpr Field fields3[] = {
   { "extStatDataValidOw", 0, 1, false },
   { "extStatDataValid", 1, 1, false },
   { "extStatDataOpcodeOw", 2, 1, false },
   { "extStatDataOpcode", 3, 8, false },
   { "extStatDataDataOw", 11, 1, false },
   { "extStatDataData", 12, 80, false },
   { "intStat0ObjValidOw", 92, 1, false },
   { "intStat0ObjValid", 93, 1, false },
   { "intStat1ObjValidOw", 94, 1, false },
   { "intStat1ObjValid", 95, 1, false },
   { "intStat2ObjValidOw", 96, 1, false },
   { "intStat2ObjValid", 97, 1, false },
   { "intStat3ObjValidOw", 98, 1, false },
   { "intStat3ObjValid", 99, 1, false },
   { "intStat4ObjValidOw", 100, 1, false },
   { "intStat4ObjValid", 101, 1, false },
   { "intStat5ObjValidOw", 102, 1, false },
   { "intStat5ObjValid", 103, 1, false },
   { "intStat6ObjValidOw", 104, 1, false },
   { "intStat6ObjValid", 105, 1, false },
   { "intStat7ObjValidOw", 106, 1, false },
   { "intStat7ObjValid", 107, 1, false },
   { "intStat8ObjValidOw", 108, 1, false },
   { "intStat8ObjValid", 109, 1, false },
   { "intStat9ObjValidOw", 110, 1, false },
   { "intStat9ObjValid", 111, 1, false },
   { "intStat0ObjIdOw", 112, 1, false },
   { "intStat0ObjId", 113, 20, false },
   { "intStat1ObjIdOw", 133, 1, false },
   { "intStat1ObjId", 134, 20, false },
   { "intStat2ObjIdOw", 154, 1, false },
   { "intStat2ObjId", 155, 20, false },
   { "intStat3ObjIdOw", 175, 1, false },
   { "intStat3ObjId", 176, 20, false },
   { "intStat4ObjIdOw", 196, 1, false },
   { "intStat4ObjId", 197, 20, false },
   { "intStat5ObjIdOw", 217, 1, false },
   { "intStat5ObjId", 218, 20, false },
   { "intStat6ObjIdOw", 238, 1, false },
   { "intStat6ObjId", 239, 20, false },
   { "intStat7ObjIdOw", 259, 1, false },
   { "intStat7ObjId", 260, 20, false },
   { "intStat8ObjIdOw", 280, 1, false },
   { "intStat8ObjId", 281, 20, false },
   { "intStat9ObjIdOw", 301, 1, false },
   { "intStat9ObjId", 302, 20, false },
   { "intStat0ObjTypeOw", 322, 1, false },
   { "intStat0ObjType", 323, 2, false },
   { "intStat1ObjTypeOw", 325, 1, false },
   { "intStat1ObjType", 326, 2, false },
   { "intStat2ObjTypeOw", 328, 1, false },
   { "intStat2ObjType", 329, 2, false },
   { "intStat3ObjTypeOw", 331, 1, false },
   { "intStat3ObjType", 332, 2, false },
   { "intStat4ObjTypeOw", 334, 1, false },
   { "intStat4ObjType", 335, 2, false },
   { "intStat5ObjTypeOw", 337, 1, false },
   { "intStat5ObjType", 338, 2, false },
   { "intStat6ObjTypeOw", 340, 1, false },
   { "intStat6ObjType", 341, 2, false },
   { "intStat7ObjTypeOw", 343, 1, false },
   { "intStat7ObjType", 344, 2, false },
   { "intStat8ObjTypeOw", 346, 1, false },
   { "intStat8ObjType", 347, 2, false },
   { "intStat9ObjTypeOw", 349, 1, false },
   { "intStat9ObjType", 350, 2, false },
   { "intStat0ObjIsMeterOw", 352, 1, false },
   { "intStat0ObjIsMeter", 353, 1, false },
   { "intStat1ObjIsMeterOw", 354, 1, false },
   { "intStat1ObjIsMeter", 355, 1, false },
   { "intStat2ObjIsMeterOw", 356, 1, false },
   { "intStat2ObjIsMeter", 357, 1, false },
   { "intStat7ObjIsLmOw", 358, 1, false },
   { "intStat7ObjIsLm", 359, 1, false },
   { "intStat8ObjIsLmOw", 360, 1, false },
   { "intStat8ObjIsLm", 361, 1, false },
   { "intStat9ObjIsLmOw", 362, 1, false },
   { "intStat9ObjIsLm", 363, 1, false },
   { "intStatObjMetaDataOw", 364, 1, false },
   { "intStatObjMetaData", 365, 16, false },
   { "inPpPortOw", 381, 1, false },
   { "inPpPort", 382, 8, false },
   { "stVsqPtrOw", 390, 1, false },
   { "stVsqPtr", 391, 8, false },
   { "admtProfileOw", 399, 1, false },
   { "admtProfile", 400, 3, false },
   { "inDpOw", 407, 1, false },
   { "inDp", 408, 2, false },
   { "egrDpOw", 410, 1, false },
   { "egrDp", 411, 2, false },
   { "irppDeltaOw", 413, 1, false },
   { "irppDelta", 414, 8, false },
   { "itppDeltaOw", 422, 1, false },
   { "itppDelta", 423, 9, false },
   { "nwkHeaderTruncateSizeOw", 432, 1, false },
   { "nwkHeaderTruncateSize", 433, 10, false },
   { "nwkHeaderAppendSizePtrOw", 443, 1, false },
   { "nwkHeaderAppendSizePtr", 444, 8, false },
   { "inTcOw", 403, 1, false },
   { "inTc", 404, 3, false },
   { "intTmStatFilter", 452, 1, false },
};
constexpr Field fields4[] = {
   { "cfgOutrifMaxValue", 0, 18, false },
};
constexpr Field fields5[] = {
   { "outrifMaxValue", 0, 18, false },
};
constexpr Field fields6[] = {
   { "cfgRifMaxValue", 0, 22, false },
};
constexpr Field fields7[] = {
   { "enableKapsInterfaceDefault", 0, 4, false },
};
constexpr Field fields8[] = {
   { "routingEnableVector", 0, 64, false },
};
constexpr Field fields9[] = {
   { "outlifOrientation", 0, 3, false },
   { "outlifSameIf", 3, 2, false },
   { "outlifMtu", 5, 3, false },
   { "outlifTtlScopeIndex", 8, 3, false },
   { "enableMulticastSameInterfaceFilters", 11, 1, false },
   { "outlifEnableUcSameInterface", 12, 1, false },
   { "reserved", 13, 3, false },
};
constexpr Field fields10[] = {
   { "cfgSplitHorizonFilter", 0, 64, false },
};
constexpr Field fields11[] = {
   { "inlifOrientation", 0, 3, false },
   { "inlifSameIfFilter", 3, 2, false },
};
constexpr Field fields12[] = {
   { "eth0CpuTrapCode", 0, 9, false },
   { "eth0CpuTrapStrength", 9, 4, false },
   { "eth0SnoopStrength", 13, 3, false },
   { "eth1CpuTrapCode", 16, 9, false },
   { "eth1CpuTrapStrength", 25, 4, false },
   { "eth1SnoopStrength", 29, 3, false },
   { "eth2CpuTrapCode", 32, 9, false },
   { "eth2CpuTrapStrength", 41, 4, false },
   { "eth2SnoopStrength", 45, 3, false },
   { "eth3CpuTrapCode", 48, 9, false },
   { "eth3CpuTrapStrength", 57, 4, false },
   { "eth3SnoopStrength", 61, 3, false },
   { "eth4CpuTrapCode", 64, 9, false },
   { "eth4CpuTrapStrength", 73, 4, false },
   { "eth4SnoopStrength", 77, 3, false },
   { "eth5CpuTrapCode", 80, 9, false },
   { "eth5CpuTrapStrength", 89, 4, false },
   { "eth5SnoopStrength", 93, 3, false },
   { "eth6CpuTrapCode", 96, 9, false },
   { "eth6CpuTrapStrength", 105, 4, false },
   { "eth6SnoopStrength", 109, 3, false },
   { "eth7CpuTrapCode", 112, 9, false },
   { "eth7CpuTrapStrength", 121, 4, false },
   { "eth7SnoopStrength", 125, 3, false },
};
constexpr Field fields13[] = {
   { "cfgFwdEgressDoNotTtlDecrement", 0, 512, false },
};
constexpr Field fields14[] = {
   { "cfgRifInStack", 0, 16, false },
};
constexpr Field fields15[] = {
   { "cfgSplitHorizonFwdActionStrength", 0, 4, false },
   { "cfgSplitHorizonSnoopActionStrength", 4, 3, false },
   { "cfgSplitHorizonActionProfile", 7, 3, false },
};
constexpr Field fields16[] = {
   { "contextSelectionPerPortProfile", 0, 2, false },
};
constexpr Field fields17[] = {
   { "inlifOrientationMapping", 0, 3, false },
};
constexpr Field fields18[] = {
   { "outlifOrientationMapping", 0, 192, false },
};
constexpr Field fields19[] = {
   { "nofInstructionsInPairs", 0, 4, false },
   { "doubleInstruction0", 4, 50, false },
   { "doubleInstruction1", 54, 50, false },
   { "doubleInstruction2", 104, 50, false },
   { "doubleInstruction3", 154, 50, false },
   { "doubleInstruction4", 204, 50, false },
   { "doubleInstruction5", 254, 50, false },
   { "doubleInstruction6", 304, 50, false },
   { "doubleInstruction7", 354, 50, false },
};
constexpr Field fields20[] = {
   { "contextSelectionPerPortProfile", 0, 3, false },
};
constexpr Field fields21[] = {
   { "contextSelectionPerPortProfile", 0, 4, false },
};
constexpr Field fields22[] = {
   { "actionType0", 14, 6, false },
   { "actionType1", 35, 6, false },
};
constexpr Field fields23[] = {
   { "sourceIdxConfig", 0, 16, false },
   { "ttlIdxConfig", 16, 16, false },
   { "nwkQosIdxConfig", 32, 16, false },
   { "qosModelConfig", 48, 14, false },
   { "ttlModelConfig", 62, 14, false },
   { "forwardDomainNetworkNameConfig", 76, 17, false },
   { "vlanEditProfileConfig", 93, 15, false },
   { "dualHomingConfig", 108, 18, false },
   { "lifAdditionalHeadersProfileConfig", 126, 15, false },
   { "mtuProfileConfig", 141, 14, false },
   { "forwardDomainConfig", 155, 17, false },
   { "remarkProfileConfig", 172, 15, false },
   { "vlanMembershipInterfaceConfig", 187, 16, false },
   { "lifStatisticsObjectIdConfig", 203, 17, false },
   { "lifStatisticsObjectCommandConfig", 220, 15, false },
   { "encapDestinationConfig", 235, 19, false },
   { "egressLastLayerConfig", 254, 13, false },
};
constexpr Field fields24[] = {
   { "currentContext", 0, 6, false },
   { "etpsTosEntryType", 6, 6, false },
   { "etpsSecondEntryType", 12, 6, false },
   { "aceValue", 18, 2, false },
   { "pemCsVar", 20, 4, false },
   { "encapsulation2ContextPortProfile", 24, 2, false },
   { "currentContextMask", 26, 6, false },
   { "etpsTosEntryTypeMask", 32, 6, false },
   { "etpsSecondEntryTypeMask", 38, 6, false },
   { "aceValueMask", 44, 2, false },
   { "pemCsVarMask", 46, 4, false },
   { "encapsulation2ContextPortProfileMask", 50, 2, false },
   { "program", 52, 7, false },
   { "valid", 59, 1, false },
};
constexpr Field fields25[] = {
   { "aceValue", 18, 2, false },
   { "pemCsVar", 20, 4, false },
   { "encapsulation2ContextPortProfile", 24, 2, false },
   { "aceValueMask", 44, 2, false },
   { "pemCsVarMask", 46, 4, false },
   { "encapsulation2ContextPortProfileMask", 50, 2, false },
   { "program", 52, 7, false },
   { "valid", 59, 1, false },
   { "currentContextProfile", 0, 6, false },
   { "etpsTosEntryTypeProfile", 6, 6, false },
   { "etpsSecondEntryTypeProfile", 12, 6, false },
   { "currentContextProfileMask", 26, 6, false },
   { "etpsTosEntryTypeProfileMask", 32, 6, false },
   { "etpsSecondEntryTypeProfileMask", 38, 6, false },
};
constexpr Field fields26[] = {
   { "ffcKeyOffset", 0, 8, false },
   { "ffcFieldSize", 8, 5, false },
   { "ffcFieldOffset", 13, 11, false },
   { "ffcIndex", 24, 3, false },
   { "resultType", 27, 2, true },
};
constexpr Field fields27[] = {
   { "ffcKeyOffset", 0, 8, false },
   { "ffcFieldSize", 8, 5, false },
   { "ffcFieldOffset", 13, 5, false },
   { "ffcIndex", 24, 3, false },
   { "resultType", 27, 2, true },
};
constexpr Field fields28[] = {
   { "ffcKeyOffset", 0, 8, false },
   { "ffcFieldSize", 8, 5, false },
   { "ffcFieldOffset", 13, 12, false },
   { "resultType", 25, 4, true },
};
constexpr Field fields29[] = {
   { "strengthDefault0", 0, 3, false },
   { "strengthDefault1", 3, 3, false },
   { "reserved", 6, 2, false },
};
constexpr Field fields30[] = {
   { "strengthDefault0", 0, 3, false },
   { "strengthDefault1", 3, 3, false },
};
constexpr Field fields31[] = {
   { "strengthDefault0", 0, 3, false },
   { "strengthDefault1", 3, 3, false },
   { "strengthVec", 0, 48, false },
};
constexpr Field fields32[] = {
   { "typeConfig", 0, 12, false },
   { "destinationConfig", 12, 15, false },
   { "outlif0Config", 27, 15, false },
   { "statObjIdConfig", 42, 15, false },
   { "statObjCmdConfig", 57, 13, false },
   { "opaqueFieldConfig", 70, 14, false },
   { "saDropConfig", 84, 11, false },
   { "defaultConfig", 95, 11, false },
};
constexpr Field fields33[] = {
   { "learningKeyConstructionEnable", 0, 1, false },
   { "learningFixedKeyEnable", 1, 1, false },
   { "mplsLayerLoadBalancingKeyCalculationsEnable", 2, 1, false },
   { "loadBalancingKeyConstructionEnable", 3, 1, false },
   { "ethernetSaMcTrapEnable", 4, 1, false },
   { "ethernetSaEqualDaTrapEnable", 5, 1, false },
   { "ipv4VersionErrorTrapEnable", 6, 1, false },
   { "ipv4ChecksumErrorTrapEnable", 7, 1, false },
   { "ipv4HasOptionsTrapEnable", 8, 1, false },
   { "ipv4SipEqualDipTrapEnable", 9, 1, false },
   { "ipv4DipZeroTrapEnable", 10, 1, false },
   { "ipv4HeaderLengthTrapEnable", 11, 1, false },
   { "ipv4SipIsMcTrapEnable", 12, 1, false },
   { "ipv6VersionErrorTrapEnable", 13, 1, false },
   { "ipv6UnspecifiedDestinationTrapEnable", 14, 1, false },
   { "ipv6LoopbackAddressTrapEnable", 15, 1, false },
   { "ipv6MulticastSourceTrapEnable", 16, 1, false },
   { "ipv6NextHeaderNullTrapEnable", 17, 1, false },
   { "ipv6UnspecifiedSourceTrapEnable", 18, 1, false },
   { "ipv6LocalLinkDestinationTrapEnable", 19, 1, false },
   { "ipv6LocalSiteDestinationTrapEnable", 20, 1, false },
   { "ipv6LocalLinkSourceTrapDestinationEnable", 21, 1, false },
   { "ipv6LocalSiteSourceTrapEnable", 22, 1, false },
   { "ipv6Ipv4CompatibleDestinationTrapEnable", 23, 1, false },
   { "ipv6Ipv4MappedDestinationTrapEnable", 24, 1, false },
   { "ipv6MulticastDestinationTrapEnable", 25, 1, false },
   { "tcpSnFlagsZeroTrapEnable", 26, 1, false },
   { "tcpSnZeroFlagsSetTrapEnable", 27, 1, false },
   { "tcpSynFinTrapEnable", 28, 1, false },
   { "tcpEqualPortsTrapEnable", 29, 1, false },
   { "tcpFragmentIncompleteHeaderTrapEnable", 30, 1, false },
   { "tcpFragmentOffsetLt8TrapEnable", 31, 1, false },
   { "udpEqualPortsTrapEnable", 32, 1, false },
   { "phbTcDpMappingEnable", 33, 1, false },
   { "phbEcnMappingEnable", 34, 1, false },
   { "dscpRemarkMappingEnable", 35, 1, false },
   { "esadiEnable", 36, 1, false },
   { "ttlMappingEnable", 37, 1, false },
   { "ipv4TotalLengthTrapEnable", 38, 1, false },
   { "contextLearnAllowedEnable", 39, 1, false },
   { "fcoeFabricProvidedSecurityEnable", 40, 1, false },
   { "savedContextProfileEnable", 41, 1, false },
   { "savedContextProfileVal", 42, 6, false },
   { "identificationKeyEnable", 48, 1, false },
   { "reserved", 49, 14, false },
};
constexpr Field fields34[] = {
   { "learningKeyConstructionEnable", 0, 1, false },
   { "learningFixedKeyEnable", 1, 1, false },
   { "mplsLayerLoadBalancingKeyCalculationsEnable", 2, 1, false },
   { "loadBalancingKeyConstructionEnable", 3, 1, false },
   { "ethernetSaMcTrapEnable", 4, 1, false },
   { "ethernetSaEqualDaTrapEnable", 5, 1, false },
   { "ipv4VersionErrorTrapEnable", 6, 1, false },
   { "ipv4ChecksumErrorTrapEnable", 7, 1, false },
   { "ipv4HasOptionsTrapEnable", 8, 1, false },
   { "ipv4SipEqualDipTrapEnable", 9, 1, false },
   { "ipv4DipZeroTrapEnable", 10, 1, false },
   { "ipv4HeaderLengthTrapEnable", 11, 1, false },
   { "ipv4SipIsMcTrapEnable", 12, 1, false },
   { "ipv6VersionErrorTrapEnable", 13, 1, false },
   { "ipv6UnspecifiedDestinationTrapEnable", 14, 1, false },
   { "ipv6LoopbackAddressTrapEnable", 15, 1, false },
   { "ipv6MulticastSourceTrapEnable", 16, 1, false },
   { "ipv6NextHeaderNullTrapEnable", 17, 1, false },
   { "ipv6UnspecifiedSourceTrapEnable", 18, 1, false },
   { "ipv6LocalLinkDestinationTrapEnable", 19, 1, false },
   { "ipv6LocalSiteDestinationTrapEnable", 20, 1, false },
   { "ipv6LocalLinkSourceTrapDestinationEnable", 21, 1, false },
   { "ipv6LocalSiteSourceTrapEnable", 22, 1, false },
   { "ipv6Ipv4CompatibleDestinationTrapEnable", 23, 1, false },
   { "ipv6Ipv4MappedDestinationTrapEnable", 24, 1, false },
   { "ipv6MulticastDestinationTrapEnable", 25, 1, false },
   { "tcpSnFlagsZeroTrapEnable", 26, 1, false },
   { "tcpSnZeroFlagsSetTrapEnable", 27, 1, false },
   { "tcpSynFinTrapEnable", 28, 1, false },
   { "tcpEqualPortsTrapEnable", 29, 1, false },
   { "tcpFragmentIncompleteHeaderTrapEnable", 30, 1, false },
   { "tcpFragmentOffsetLt8TrapEnable", 31, 1, false },
   { "udpEqualPortsTrapEnable", 32, 1, false },
   { "phbTcDpMappingEnable", 33, 1, false },
   { "phbEcnMappingEnable", 34, 1, false },
   { "dscpRemarkMappingEnable", 35, 1, false },
   { "esadiEnable", 36, 1, false },
   { "ttlMappingEnable", 37, 1, false },
   { "ipv4TotalLengthTrapEnable", 38, 1, false },
   { "contextLearnAllowedEnable", 39, 1, false },
   { "fcoeFabricProvidedSecurityEnable", 40, 1, false },
   { "savedContextProfileEnable", 41, 1, false },
   { "savedContextProfileVal", 42, 6, false },
   { "identificationKeyEnable", 48, 1, false },
   { "ethernetSaEqualZeroTrapEnable", 49, 1, false },
};
constexpr Field fields35[] = {
   { "setUnknownAddressEnable", 0, 1, false },
   { "doDefaultEthernetEnable", 1, 1, false },
   { "compatibleMcBridgeFallbackEnable", 2, 1, false },
   { "oamTcamIdentificationEnable", 3, 1, false },
   { "ieee1588IdentificationEnable", 4, 1, false },
   { "ieee1588TcamIdentificationVal", 5, 1, false },
   { "notFoundSnpStrength", 6, 3, false },
   { "notFoundFwdStrength", 9, 4, false },
   { "fwdAdditionalInfoEnable", 13, 1, false },
   { "fwdAdditionalInfoVal", 14, 4, false },
   { "saProcedureEnable", 18, 1, false },
   { "learnInfoResolutionEnable", 19, 1, false },
   { "vlanEditPcpDeiMapEnable", 20, 1, false },
   { "ethernetOamIdentificationEnable", 21, 1, false },
   { "mplsTpOrBfdIdentificationEnable", 22, 1, false },
   { "multiHopBfdIdentificationEnable", 23, 1, false },
   { "oneHopBfdIdentificationEnable", 24, 1, false },
   { "fwdUpdateEnable", 25, 1, false },
   { "rpfUpdateEnable", 26, 1, false },
   { "forwardingLookupStatisticsEnable", 27, 1, false },
   { "sourceLookupStatisticsEnable", 28, 1, false },
   { "fwdDomainStatisticsEnable", 29, 1, false },
   { "reserved", 30, 9, false },
};
constexpr Field fields36[] = {
   { "setUnknownAddressEnable", 0, 1, false },
   { "doDefaultEthernetEnable", 1, 1, false },
   { "compatibleMcBridgeFallbackEnable", 2, 1, false },
   { "oamTcamIdentificationEnable", 3, 1, false },
   { "ieee1588IdentificationEnable", 4, 1, false },
   { "ieee1588TcamIdentificationVal", 5, 1, false },
   { "notFoundSnpStrength", 6, 3, false },
   { "notFoundFwdStrength", 9, 4, false },
   { "fwdAdditionalInfoEnable", 13, 1, false },
   { "fwdAdditionalInfoVal", 14, 4, false },
   { "saProcedureEnable", 18, 1, false },
   { "learnInfoResolutionEnable", 19, 1, false },
   { "vlanEditPcpDeiMapEnable", 20, 1, false },
   { "ethernetOamIdentificationEnable", 21, 1, false },
   { "mplsTpOrBfdIdentificationEnable", 22, 1, false },
   { "multiHopBfdIdentificationEnable", 23, 1, false },
   { "oneHopBfdIdentificationEnable", 24, 1, false },
   { "fwdUpdateEnable", 25, 1, false },
   { "rpfUpdateEnable", 26, 1, false },
   { "forwardingLookupStatisticsEnable", 27, 1, false },
   { "sourceLookupStatisticsEnable", 28, 1, false },
   { "fwdDomainStatisticsEnable", 29, 1, false },
   { "faiUnknownAddressEnable", 30, 1, false },
   { "faiOffset", 31, 2, false },
};
constexpr Field fields37[] = {
   { "setUnknownAddressEnable", 0, 1, false },
   { "doDefaultEthernetEnable", 1, 1, false },
   { "compatibleMcBridgeFallbackEnable", 2, 1, false },
   { "oamTcamIdentificationEnable", 3, 1, false },
   { "ieee1588IdentificationEnable", 4, 1, false },
   { "ieee1588TcamIdentificationVal", 5, 1, false },
   { "notFoundSnpStrength", 6, 3, false },
   { "notFoundFwdStrength", 9, 4, false },
   { "fwdAdditionalInfoEnable", 13, 1, false },
   { "fwdAdditionalInfoVal", 14, 4, false },
   { "saProcedureEnable", 18, 1, false },
   { "learnInfoResolutionEnable", 19, 1, false },
   { "vlanEditPcpDeiMapEnable", 20, 1, false },
   { "ethernetOamIdentificationEnable", 21, 1, false },
   { "mplsTpOrBfdIdentificationEnable", 22, 1, false },
   { "multiHopBfdIdentificationEnable", 23, 1, false },
   { "oneHopBfdIdentificationEnable", 24, 1, false },
   { "fwdUpdateEnable", 25, 1, false },
   { "rpfUpdateEnable", 26, 1, false },
   { "forwardingLookupStatisticsEnable", 27, 1, false },
   { "sourceLookupStatisticsEnable", 28, 1, false },
   { "fwdDomainStatisticsEnable", 29, 1, false },
   { "faiUnknownAddressEnable", 30, 1, false },
   { "faiOffset", 31, 2, false },
   { "faiCompatibleMcEnable", 33, 1, false },
   { "faiCompatibleMcOffset", 34, 2, false },
};
constexpr Field fields38[] = {
   { "ffcInstruction0", 0, 29, false },
   { "ffcInstructionsVec", 0, 58, false },
   { "nofFfcInstructionInGroup", 2, 1, false },
   { "ffcInstruction1", 29, 29, false },
};
constexpr Field fields39[] = {
   { "ffcInstruction0", 0, 29, false },
   { "ffcInstructionsVec", 0, 116, false },
   { "nofFfcInstructionInGroup1Quad", 4, 1, false },
   { "ffcInstruction1", 29, 29, false },
   { "ffcInstruction2", 58, 29, false },
   { "ffcInstruction3", 87, 29, false },
};
constexpr Field fields40[] = {
   { "ffcInstruction0", 0, 29, false },
   { "ffcInstructionsVec", 0, 116, false },
   { "nofFfcInstructionInGroup2Quad", 8, 1, false },
   { "ffcInstruction1", 29, 29, false },
   { "ffcInstruction2", 58, 29, false },
   { "ffcInstruction3", 87, 29, false },
};
constexpr Field fields41[] = {
   { "ffcInstruction0", 0, 29, false },
   { "ffcInstructionsVec", 0, 116, false },
   { "nofFfcInstructionInGroup3Quad", 16, 1, false },
   { "ffcInstruction1", 29, 29, false },
   { "ffcInstruction2", 58, 29, false },
   { "ffcInstruction3", 87, 29, false },
};
constexpr Field fields42[] = {
   { "ffcInstruction0", 0, 29, false },
   { "ffcInstructionsVec", 0, 116, false },
   { "nofFfcInstructionInGroup4Quad", 8, 1, false },
   { "ffcInstruction1", 29, 29, false },
   { "ffcInstruction2", 58, 29, false },
   { "ffcInstruction3", 87, 29, false },
};
constexpr Field fields43[] = {
   { "kbr", 0, 38, false },
   { "appDb", 38, 6, false },
};
constexpr Field fields44[] = {
   { "csInlifProfile", 0, 4, false },
   { "csProfile0", 0, 4, false },
   { "csInlifProfileMapLsb", 0, 512, false },
   { "csProfile1", 4, 4, false },
   { "csProfile2", 8, 4, false },
   { "csProfile3", 12, 4, false },
   { "csProfile4", 16, 4, false },
   { "csProfile5", 20, 4, false },
   { "csProfile6", 24, 4, false },
   { "csProfile7", 28, 4, false },
   { "csProfile8", 32, 4, false },
   { "csProfile9", 36, 4, false },
   { "csProfile10", 40, 4, false },
   { "csProfile11", 44, 4, false },
   { "csProfile12", 48, 4, false },
   { "csProfile13", 52, 4, false },
   { "csProfile14", 56, 4, false },
   { "csProfile15", 60, 4, false },
   { "csProfile16", 64, 4, false },
   { "csProfile17", 68, 4, false },
   { "csProfile18", 72, 4, false },
   { "csProfile19", 76, 4, false },
   { "csProfile20", 80, 4, false },
   { "csProfile21", 84, 4, false },
   { "csProfile22", 88, 4, false },
   { "csProfile23", 92, 4, false },
   { "csProfile24", 96, 4, false },
   { "csProfile25", 100, 4, false },
   { "csProfile26", 104, 4, false },
   { "csProfile27", 108, 4, false },
   { "csProfile28", 112, 4, false },
   { "csProfile29", 116, 4, false },
   { "csProfile30", 120, 4, false },
   { "csProfile31", 124, 4, false },
   { "csProfile32", 128, 4, false },
   { "csProfile33", 132, 4, false },
   { "csProfile34", 136, 4, false },
   { "csProfile35", 140, 4, false },
   { "csProfile36", 144, 4, false },
   { "csProfile37", 148, 4, false },
   { "csProfile38", 152, 4, false },
   { "csProfile39", 156, 4, false },
   { "csProfile40", 160, 4, false },
   { "csProfile41", 164, 4, false },
   { "csProfile42", 168, 4, false },
   { "csProfile43", 172, 4, false },
   { "csProfile44", 176, 4, false },
   { "csProfile45", 180, 4, false },
   { "csProfile46", 184, 4, false },
   { "csProfile47", 188, 4, false },
   { "csProfile48", 192, 4, false },
   { "csProfile49", 196, 4, false },
   { "csProfile50", 200, 4, false },
   { "csProfile51", 204, 4, false },
   { "csProfile52", 208, 4, false },
   { "csProfile53", 212, 4, false },
   { "csProfile54", 216, 4, false },
   { "csProfile55", 220, 4, false },
   { "csProfile56", 224, 4, false },
   { "csProfile57", 228, 4, false },
   { "csProfile58", 232, 4, false },
   { "csProfile59", 236, 4, false },
   { "csProfile60", 240, 4, false },
   { "csProfile61", 244, 4, false },
   { "csProfile62", 248, 4, false },
   { "csProfile63", 252, 4, false },
   { "csProfile64", 256, 4, false },
   { "csProfile65", 260, 4, false },
   { "csProfile66", 264, 4, false },
   { "csProfile67", 268, 4, false },
   { "csProfile68", 272, 4, false },
   { "csProfile69", 276, 4, false },
   { "csProfile70", 280, 4, false },
   { "csProfile71", 284, 4, false },
   { "csProfile72", 288, 4, false },
   { "csProfile73", 292, 4, false },
   { "csProfile74", 296, 4, false },
   { "csProfile75", 300, 4, false },
   { "csProfile76", 304, 4, false },
   { "csProfile77", 308, 4, false },
   { "csProfile78", 312, 4, false },
   { "csProfile79", 316, 4, false },
   { "csProfile80", 320, 4, false },
   { "csProfile81", 324, 4, false },
   { "csProfile82", 328, 4, false },
   { "csProfile83", 332, 4, false },
   { "csProfile84", 336, 4, false },
   { "csProfile85", 340, 4, false },
   { "csProfile86", 344, 4, false },
   { "csProfile87", 348, 4, false },
   { "csProfile88", 352, 4, false },
   { "csProfile89", 356, 4, false },
   { "csProfile90", 360, 4, false },
   { "csProfile91", 364, 4, false },
   { "csProfile92", 368, 4, false },
   { "csProfile93", 372, 4, false },
   { "csProfile94", 376, 4, false },
   { "csProfile95", 380, 4, false },
   { "csProfile96", 384, 4, false },
   { "csProfile97", 388, 4, false },
   { "csProfile98", 392, 4, false },
   { "csProfile99", 396, 4, false },
   { "csProfile100", 400, 4, false },
   { "csProfile101", 404, 4, false },
   { "csProfile102", 408, 4, false },
   { "csProfile103", 412, 4, false },
   { "csProfile104", 416, 4, false },
   { "csProfile105", 420, 4, false },
   { "csProfile106", 424, 4, false },
   { "csProfile107", 428, 4, false },
   { "csProfile108", 432, 4, false },
   { "csProfile109", 436, 4, false },
   { "csProfile110", 440, 4, false },
   { "csProfile111", 444, 4, false },
   { "csProfile112", 448, 4, false },
   { "csProfile113", 452, 4, false },
   { "csProfile114", 456, 4, false },
   { "csProfile115", 460, 4, false },
   { "csProfile116", 464, 4, false },
   { "csProfile117", 468, 4, false },
   { "csProfile118", 472, 4, false },
   { "csProfile119", 476, 4, false },
   { "csProfile120", 480, 4, false },
   { "csProfile121", 484, 4, false },
   { "csProfile122", 488, 4, false },
   { "csProfile123", 492, 4, false },
   { "csProfile124", 496, 4, false },
   { "csProfile125", 500, 4, false },
   { "csProfile126", 504, 4, false },
   { "csProfile127", 508, 4, false },
};
constexpr Field fields45[] = {
   { "csProfile0", 0, 4, false },
   { "csInlifProfileMapMsb", 0, 512, false },
   { "csProfile1", 4, 4, false },
   { "csProfile2", 8, 4, false },
   { "csProfile3", 12, 4, false },
   { "csProfile4", 16, 4, false },
   { "csProfile5", 20, 4, false },
   { "csProfile6", 24, 4, false },
   { "csProfile7", 28, 4, false },
   { "csProfile8", 32, 4, false },
   { "csProfile9", 36, 4, false },
   { "csProfile10", 40, 4, false },
   { "csProfile11", 44, 4, false },
   { "csProfile12", 48, 4, false },
   { "csProfile13", 52, 4, false },
   { "csProfile14", 56, 4, false },
   { "csProfile15", 60, 4, false },
   { "csProfile16", 64, 4, false },
   { "csProfile17", 68, 4, false },
   { "csProfile18", 72, 4, false },
   { "csProfile19", 76, 4, false },
   { "csProfile20", 80, 4, false },
   { "csProfile21", 84, 4, false },
   { "csProfile22", 88, 4, false },
   { "csProfile23", 92, 4, false },
   { "csProfile24", 96, 4, false },
   { "csProfile25", 100, 4, false },
   { "csProfile26", 104, 4, false },
   { "csProfile27", 108, 4, false },
   { "csProfile28", 112, 4, false },
   { "csProfile29", 116, 4, false },
   { "csProfile30", 120, 4, false },
   { "csProfile31", 124, 4, false },
   { "csProfile32", 128, 4, false },
   { "csProfile33", 132, 4, false },
   { "csProfile34", 136, 4, false },
   { "csProfile35", 140, 4, false },
   { "csProfile36", 144, 4, false },
   { "csProfile37", 148, 4, false },
   { "csProfile38", 152, 4, false },
   { "csProfile39", 156, 4, false },
   { "csProfile40", 160, 4, false },
   { "csProfile41", 164, 4, false },
   { "csProfile42", 168, 4, false },
   { "csProfile43", 172, 4, false },
   { "csProfile44", 176, 4, false },
   { "csProfile45", 180, 4, false },
   { "csProfile46", 184, 4, false },
   { "csProfile47", 188, 4, false },
   { "csProfile48", 192, 4, false },
   { "csProfile49", 196, 4, false },
   { "csProfile50", 200, 4, false },
   { "csProfile51", 204, 4, false },
   { "csProfile52", 208, 4, false },
   { "csProfile53", 212, 4, false },
   { "csProfile54", 216, 4, false },
   { "csProfile55", 220, 4, false },
   { "csProfile56", 224, 4, false },
   { "csProfile57", 228, 4, false },
   { "csProfile58", 232, 4, false },
   { "csProfile59", 236, 4, false },
   { "csProfile60", 240, 4, false },
   { "csProfile61", 244, 4, false },
   { "csProfile62", 248, 4, false },
   { "csProfile63", 252, 4, false },
   { "csProfile64", 256, 4, false },
   { "csProfile65", 260, 4, false },
   { "csProfile66", 264, 4, false },
   { "csProfile67", 268, 4, false },
   { "csProfile68", 272, 4, false },
   { "csProfile69", 276, 4, false },
   { "csProfile70", 280, 4, false },
   { "csProfile71", 284, 4, false },
   { "csProfile72", 288, 4, false },
   { "csProfile73", 292, 4, false },
   { "csProfile74", 296, 4, false },
   { "csProfile75", 300, 4, false },
   { "csProfile76", 304, 4, false },
   { "csProfile77", 308, 4, false },
   { "csProfile78", 312, 4, false },
   { "csProfile79", 316, 4, false },
   { "csProfile80", 320, 4, false },
   { "csProfile81", 324, 4, false },
   { "csProfile82", 328, 4, false },
   { "csProfile83", 332, 4, false },
   { "csProfile84", 336, 4, false },
   { "csProfile85", 340, 4, false },
   { "csProfile86", 344, 4, false },
   { "csProfile87", 348, 4, false },
   { "csProfile88", 352, 4, false },
   { "csProfile89", 356, 4, false },
   { "csProfile90", 360, 4, false },
   { "csProfile91", 364, 4, false },
   { "csProfile92", 368, 4, false },
   { "csProfile93", 372, 4, false },
   { "csProfile94", 376, 4, false },
   { "csProfile95", 380, 4, false },
   { "csProfile96", 384, 4, false },
   { "csProfile97", 388, 4, false },
   { "csProfile98", 392, 4, false },
   { "csProfile99", 396, 4, false },
   { "csProfile100", 400, 4, false },
   { "csProfile101", 404, 4, false },
   { "csProfile102", 408, 4, false },
   { "csProfile103", 412, 4, false },
   { "csProfile104", 416, 4, false },
   { "csProfile105", 420, 4, false },
   { "csProfile106", 424, 4, false },
   { "csProfile107", 428, 4, false },
   { "csProfile108", 432, 4, false },
   { "csProfile109", 436, 4, false },
   { "csProfile110", 440, 4, false },
   { "csProfile111", 444, 4, false },
   { "csProfile112", 448, 4, false },
   { "csProfile113", 452, 4, false },
   { "csProfile114", 456, 4, false },
   { "csProfile115", 460, 4, false },
   { "csProfile116", 464, 4, false },
   { "csProfile117", 468, 4, false },
   { "csProfile118", 472, 4, false },
   { "csProfile119", 476, 4, false },
   { "csProfile120", 480, 4, false },
   { "csProfile121", 484, 4, false },
   { "csProfile122", 488, 4, false },
   { "csProfile123", 492, 4, false },
   { "csProfile124", 496, 4, false },
   { "csProfile125", 500, 4, false },
   { "csProfile126", 504, 4, false },
   { "csProfile127", 508, 4, false },
};
constexpr Field fields46[] = {
   { "vtecsAction", 0, 13, false },
};
constexpr Field fields47[] = {
   { "strengthWidthVec", 0, 32, false },
   { "memData", 0, 176, false },
   { "numberOfInterfaces", 16, 1, false },
   { "constStrengthVec", 32, 64, false },
   { "orderVec", 96, 80, false },
   { "reserved", 176, 40, false },
};
constexpr Field fields48[] = {
   { "strengthWidthVec", 0, 32, false },
   { "memData", 0, 176, false },
   { "numberOfInterfaces", 16, 1, false },
   { "constStrengthVec", 32, 64, false },
   { "orderVec", 96, 80, false },
};
constexpr Field fields49[] = {
   { "portProfile", 0, 5, false },
};
constexpr Field fields50[] = {
   { "flpacsAction", 0, 13, false },
};
constexpr Field fields51[] = {
   { "setUnknownAddressEnable", 0, 1, false },
   { "actionProfileEnable", 1, 1, false },
   { "doDefaultEthernetEnable", 2, 1, false },
   { "compatibleMcBridgeFallbackEnable", 3, 1, false },
   { "oamClassificationEnable", 4, 1, false },
   { "aclResolutionEnable", 5, 1, false },
   { "kapsResolutionEnable", 6, 1, false },
   { "controlPathTrapsEnable", 7, 1, false },
   { "fwdAdditionalInfoEnable", 8, 1, false },
   { "fwdAdditionalInfoVal", 9, 4, false },
   { "saProcedureEnable", 13, 1, false },
   { "elkErrorTrapEnable", 14, 1, false },
   { "fwdUpdateEnable", 15, 1, false },
   { "rpfUpdateEnable", 16, 1, false },
   { "forwardingLookupStatisticsEnable", 17, 1, false },
   { "sourceLookupStatisticsEnable", 18, 1, false },
   { "fwdDomainStatisticsEnable", 19, 1, false },
   { "ttl0Enable", 20, 1, false },
   { "ttl1Enable", 21, 1, false },
   { "ttlActionProfileValue", 22, 2, false },
   { "progTrap0Enable", 24, 1, false },
   { "progTrap1Enable", 25, 1, false },
   { "progTrap2Enable", 26, 1, false },
   { "progTrap3Enable", 27, 1, false },
   { "progTrap4Enable", 28, 1, false },
   { "progTrap5Enable", 29, 1, false },
   { "progTrap6Enable", 30, 1, false },
   { "progTrap7Enable", 31, 1, false },
   { "fwdCascadedPriorityDecoderEnable", 32, 1, false },
   { "rpfCascadedPriorityDecoderEnable", 33, 1, false },
   { "reserved", 34, 1, false },
};
constexpr Field fields52[] = {
   { "setUnknownAddressEnable", 0, 1, false },
   { "actionProfileEnable", 1, 1, false },
   { "doDefaultEthernetEnable", 2, 1, false },
   { "compatibleMcBridgeFallbackEnable", 3, 1, false },
   { "oamClassificationEnable", 4, 1, false },
   { "aclResolutionEnable", 5, 1, false },
   { "kapsResolutionEnable", 6, 1, false },
   { "controlPathTrapsEnable", 7, 1, false },
   { "fwdAdditionalInfoEnable", 8, 1, false },
   { "fwdAdditionalInfoVal", 9, 4, false },
   { "saProcedureEnable", 13, 1, false },
   { "elkErrorTrapEnable", 14, 1, false },
   { "fwdUpdateEnable", 15, 1, false },
   { "rpfUpdateEnable", 16, 1, false },
   { "forwardingLookupStatisticsEnable", 17, 1, false },
   { "sourceLookupStatisticsEnable", 18, 1, false },
   { "fwdDomainStatisticsEnable", 19, 1, false },
   { "ttl0Enable", 20, 1, false },
   { "ttl1Enable", 21, 1, false },
   { "ttlActionProfileValue", 22, 2, false },
   { "progTrap0Enable", 24, 1, false },
   { "progTrap1Enable", 25, 1, false },
   { "progTrap2Enable", 26, 1, false },
   { "progTrap3Enable", 27, 1, false },
   { "progTrap4Enable", 28, 1, false },
   { "progTrap5Enable", 29, 1, false },
   { "progTrap6Enable", 30, 1, false },
   { "progTrap7Enable", 31, 1, false },
   { "fwdCascadedPriorityDecoderEnable", 32, 1, false },
   { "rpfCascadedPriorityDecoderEnable", 33, 1, false },
   { "faiUnknownAddressEnable", 34, 1, false },
   { "faiOffset", 35, 2, false },
};
constexpr Field fields53[] = {
   { "setUnknownAddressEnable", 0, 1, false },
   { "actionProfileEnable", 1, 1, false },
   { "doDefaultEthernetEnable", 2, 1, false },
   { "compatibleMcBridgeFallbackEnable", 3, 1, false },
   { "oamClassificationEnable", 4, 1, false },
   { "aclResolutionEnable", 5, 1, false },
   { "kapsResolutionEnable", 6, 1, false },
   { "controlPathTrapsEnable", 7, 1, false },
   { "fwdAdditionalInfoEnable", 8, 1, false },
   { "fwdAdditionalInfoVal", 9, 4, false },
   { "saProcedureEnable", 13, 1, false },
   { "elkErrorTrapEnable", 14, 1, false },
   { "fwdUpdateEnable", 15, 1, false },
   { "rpfUpdateEnable", 16, 1, false },
   { "forwardingLookupStatisticsEnable", 17, 1, false },
   { "sourceLookupStatisticsEnable", 18, 1, false },
   { "fwdDomainStatisticsEnable", 19, 1, false },
   { "ttl0Enable", 20, 1, false },
   { "ttl1Enable", 21, 1, false },
   { "ttlActionProfileValue", 22, 2, false },
   { "progTrap0Enable", 24, 1, false },
   { "progTrap1Enable", 25, 1, false },
   { "progTrap2Enable", 26, 1, false },
   { "progTrap3Enable", 27, 1, false },
   { "progTrap4Enable", 28, 1, false },
   { "progTrap5Enable", 29, 1, false },
   { "progTrap6Enable", 30, 1, false },
   { "progTrap7Enable", 31, 1, false },
   { "fwdCascadedPriorityDecoderEnable", 32, 1, false },
   { "rpfCascadedPriorityDecoderEnable", 33, 1, false },
   { "faiUnknownAddressEnable", 34, 1, false },
   { "faiOffset", 35, 2, false },
   { "faiCompatibleMcEnable", 37, 1, false },
   { "faiCompatibleMcOffset", 38, 2, false },
};
constexpr Field fields54[] = {
   { "actionProfileIpv4VersionErrorFwd", 0, 4, false },
   { "actionProfileIpv4VersionErrorSnp", 4, 3, false },
   { "actionProfileIpv4ChecksumErrorFwd", 7, 4, false },
   { "actionProfileIpv4ChecksumVersionErrorSnp", 11, 3, false },
   { "actionProfileIpv4HeaderLengthErrorFwd", 14, 4, false },
   { "actionProfileIpv4HeaderLengthErrorSnp", 18, 3, false },
   { "actionProfileIpv4TotalLengthErrorFwd", 21, 4, false },
   { "actionProfileIpv4TotalLengthErrorSnp", 25, 3, false },
   { "actionProfileIpv4HasOptionsFwd", 28, 4, false },
   { "actionProfileIpv4HasOptionsSnp", 32, 3, false },
   { "actionProfileIpv4SipEqualDipFwd", 35, 4, false },
   { "actionProfileIpv4SipEqualDipSnp", 39, 3, false },
   { "actionProfileIpv4DipZeroFwd", 42, 4, false },
   { "actionProfileIpv4DipZeroSnp", 46, 3, false },
   { "actionProfileIpv4SipIsMcFwd", 49, 4, false },
   { "actionProfileIpv4SipIsMcSnp", 53, 3, false },
};
constexpr Field fields55[] = {
   { "actionProfileIpv4VersionErrorFwd", 0, 4, false },
   { "actionProfileIpv4VersionErrorSnp", 4, 3, false },
   { "actionProfileIpv4ChecksumErrorFwd", 7, 4, false },
   { "actionProfileIpv4HeaderLengthErrorFwd", 14, 4, false },
   { "actionProfileIpv4HeaderLengthErrorSnp", 18, 3, false },
   { "actionProfileIpv4TotalLengthErrorFwd", 21, 4, false },
   { "actionProfileIpv4TotalLengthErrorSnp", 25, 3, false },
   { "actionProfileIpv4HasOptionsFwd", 28, 4, false },
   { "actionProfileIpv4HasOptionsSnp", 32, 3, false },
   { "actionProfileIpv4SipEqualDipFwd", 35, 4, false },
   { "actionProfileIpv4SipEqualDipSnp", 39, 3, false },
   { "actionProfileIpv4DipZeroFwd", 42, 4, false },
   { "actionProfileIpv4DipZeroSnp", 46, 3, false },
   { "actionProfileIpv4SipIsMcFwd", 49, 4, false },
   { "actionProfileIpv4SipIsMcSnp", 53, 3, false },
   { "actionProfileIpv4ChecksumErrorSnp", 11, 3, false },
};
constexpr Field fields56[] = {
   { "actionProfileIpv6VersionErrorFwd", 0, 4, false },
   { "actionProfileIpv6VersionErrorSnp", 4, 3, false },
   { "actionProfileIpv6UnspecifiedDestinationFwd", 7, 4, false },
   { "actionProfileIpv6UnspecifiedDestinationSnp", 11, 3, false },
   { "actionProfileIpv6LoopbackAddressFwd", 14, 4, false },
   { "actionProfileIpv6LoopbackAddressSnp", 18, 3, false },
   { "actionProfileIpv6MulticastSourceFwd", 21, 4, false },
   { "actionProfileIpv6MulticastSourceSnp", 25, 3, false },
   { "actionProfileIpv6NextHeaderNullFwd", 28, 4, false },
   { "actionProfileIpv6NextHeaderNullSnp", 32, 3, false },
   { "actionProfileIpv6UnspecifiedSourceFwd", 35, 4, false },
   { "actionProfileIpv6UnspecifiedSourceSnp", 39, 3, false },
   { "actionProfileIpv6LinkLocalDestinationFwd", 42, 4, false },
   { "actionProfileIpv6LinkLocalDestinationSnp", 46, 3, false },
   { "actionProfileIpv6SiteLocalDestinationFwd", 49, 4, false },
   { "actionProfileIpv6SiteLocalDestinationSnp", 53, 3, false },
   { "actionProfileIpv6LinkLocalSourceFwd", 56, 4, false },
   { "actionProfileIpv6LinkLocalSourceSnp", 60, 3, false },
   { "actionProfileIpv6SiteLocalSourceFwd", 63, 4, false },
   { "actionProfileIpv6SiteLocalSourceSnp", 67, 3, false },
};
constexpr Field fields57[] = {
   { "lifMcBridgeFallbackAllow", 0, 256, false },
};
constexpr Field fields58[] = {
   { "progTrapDaN", 0, 48, false },
   { "progTrapDaBitsN", 48, 6, false },
   { "progTrapSaN", 54, 48, false },
   { "progTrapSaBitsN", 102, 6, false },
   { "progTrapEthernetTypeN", 108, 16, false },
   { "progTrapSubTypeMaskN", 124, 8, false },
   { "progTrapSubTypeN", 132, 8, false },
   { "progTrapIpProtocolN", 140, 8, false },
   { "progTrapL4PortsMaskN", 148, 32, false },
   { "progTrapL4PortsN", 180, 32, false },
   { "progTrapTcpFlagsMaskN", 212, 9, false },
   { "progTrapTcpFlagsN", 221, 9, false },
   { "progTrapInverseBmpN", 230, 8, false },
   { "progTrapFwdActionCodeN", 238, 9, false },
   { "progTrapFwdActionStrengthN", 247, 4, false },
   { "progTrapSnoopActionStrengthN", 251, 3, false },
   { "progTrapEnableBmpN", 254, 8, false },
};
constexpr Field fields59[] = {
   { "ttl0FwdStrength", 0, 4, false },
   { "ttl0ActionProfile0", 0, 16, false },
   { "ttl0SnpStrength", 4, 3, false },
   { "ttl0TrapCode", 7, 9, false },
   { "ttl0ActionProfile1", 16, 16, false },
   { "ttl0ActionProfile2", 32, 16, false },
   { "ttl0ActionProfile3", 48, 16, false },
};
constexpr Field fields60[] = {
   { "csInlifProfileMap", 0, 4, false },
};
constexpr Field fields61[] = {
   { "cpuSnoopCodeN", 0, 9, false },
   { "cpuStrengthN", 9, 4, false },
   { "snoopStrengthN", 13, 3, false },
};
constexpr Field fields62[] = {
   { "mappedInLifProfile", 0, 8, false },
};
constexpr Field fields63[] = {
   { "inLifRpfMode", 0, 2, false },
   { "inLifSameInterfaceProfile", 2, 2, false },
};
constexpr Field fields64[] = {
   { "inLifSameInterfaceProfile", 4, 2, false },
   { "inLifRpfModeIpv4", 0, 2, false },
   { "inLifRpfModeIpv6", 2, 2, false },
};
constexpr Field fields65[] = {
   { "createFheiInsteadOfEei", 0, 1, false },
   { "fheiType", 1, 4, false },
   { "fheiSize", 5, 2, false },
};
constexpr Field fields66[] = {
   { "recycFwdTrapCode", 0, 9, false },
   { "recycFwdTrapCode0", 0, 9, false },
   { "recycFwdProfileMappingEntry", 0, 13, false },
   { "recycFwdProfileMappingVec", 0, 208, false },
   { "recycFwdStrength", 9, 4, false },
   { "recycFwdStrength0", 9, 4, false },
   { "recycFwdTrapCode1", 13, 9, false },
   { "recycFwdStrength1", 22, 4, false },
   { "recycFwdTrapCode2", 26, 9, false },
   { "recycFwdStrength2", 35, 4, false },
   { "recycFwdTrapCode3", 39, 9, false },
   { "recycFwdStrength3", 48, 4, false },
   { "recycFwdTrapCode4", 52, 9, false },
   { "recycFwdStrength4", 61, 4, false },
   { "recycFwdTrapCode5", 65, 9, false },
   { "recycFwdStrength5", 74, 4, false },
   { "recycFwdTrapCode6", 78, 9, false },
   { "recycFwdStrength6", 87, 4, false },
   { "recycFwdTrapCode7", 91, 9, false },
   { "recycFwdStrength7", 100, 4, false },
   { "recycFwdTrapCode8", 104, 9, false },
   { "recycFwdStrength8", 113, 4, false },
   { "recycFwdTrapCode9", 117, 9, false },
   { "recycFwdStrength9", 126, 4, false },
   { "recycFwdTrapCode10", 130, 9, false },
   { "recycFwdStrength10", 139, 4, false },
   { "recycFwdTrapCode11", 143, 9, false },
   { "recycFwdStrength11", 152, 4, false },
   { "recycFwdTrapCode12", 156, 9, false },
   { "recycFwdStrength12", 165, 4, false },
   { "recycFwdTrapCode13", 169, 9, false },
   { "recycFwdStrength13", 178, 4, false },
   { "recycFwdTrapCode14", 182, 9, false },
   { "recycFwdStrength14", 191, 4, false },
   { "recycFwdTrapCode15", 195, 9, false },
   { "recycFwdStrength15", 204, 4, false },
};
constexpr Field fields67[] = {
   { "command", 0, 9, false },
   { "ipv4", 9, 21, false },
   { "key", 9, 26, false },
   { "entry", 9, 257, false },
   { "vrf", 30, 5, false },
   { "pcremFecIndices", 57, 80, false },
   { "payload", 57, 86, false },
   { "resultType", 137, 6, true },
   { "vmv", 143, 3, true },
   { "wayIndex", 266, 4, false },
   { "prefixNum", 270, 3, false },
   { "address", 273, 17, false },
   { "entryType", 290, 3, true },
   { "appId", 293, 6, true },
   { "tid", 293, 6, true },
   { "hits", 299, 8, false },
   { "found", 307, 1, false },
};
constexpr Field fields68[] = {
   { "command", 0, 9, false },
   { "ipv4", 9, 21, false },
   { "key", 9, 25, false },
   { "entry", 9, 256, false },
   { "vrf", 30, 4, false },
   { "pcremFecIndices", 56, 80, false },
   { "payload", 56, 86, false },
   { "resultType", 136, 6, true },
   { "vmv", 142, 3, true },
   { "wayIndex", 265, 4, false },
   { "prefixNum", 269, 3, false },
   { "address", 272, 16, false },
   { "entryType", 288, 3, true },
   { "appId", 291, 6, true },
   { "tid", 291, 6, true },
   { "hits", 297, 8, false },
   { "found", 305, 1, false },
};
constexpr Field fields69[] = {
   { "enTermUpToParsingOffset", 0, 128, false },
};
constexpr Field fields70[] = {
   { "resultType", 80, 6, true },
};
constexpr Field fields71[] = {
   { "resultType", 79, 6, true },
};
constexpr Field fields72[] = {
   { "command", 0, 9, false },
   { "ipv4", 9, 32, false },
   { "key", 9, 37, false },
   { "entry", 9, 257, false },
   { "vrf", 41, 5, false },
   { "destination", 56, 21, false },
   { "payload", 56, 27, false },
   { "resultType", 77, 6, true },
   { "vmv", 83, 3, true },
   { "wayIndex", 266, 4, false },
   { "prefixNum", 270, 3, false },
   { "address", 273, 17, false },
   { "entryType", 290, 3, true },
   { "appId", 293, 6, true },
   { "tid", 293, 6, true },
   { "hits", 299, 8, false },
   { "found", 307, 1, false },
};
constexpr Field fields73[] = {
   { "command", 0, 9, false },
   { "ipv4", 9, 32, false },
   { "key", 9, 36, false },
   { "entry", 9, 256, false },
   { "vrf", 41, 4, false },
   { "destination", 55, 21, false },
   { "payload", 55, 27, false },
   { "resultType", 76, 6, true },
   { "vmv", 82, 3, true },
   { "wayIndex", 265, 4, false },
   { "prefixNum", 269, 3, false },
   { "address", 272, 16, false },
   { "entryType", 288, 3, true },
   { "appId", 291, 6, true },
   { "tid", 291, 6, true },
   { "hits", 297, 8, false },
   { "found", 305, 1, false },
};
constexpr Field fields74[] = {
   { "tagNamespace", 0, 1, false },
   { "nofSdTags", 1, 2, false },
   { "learnNativeAcBug", 3, 1, false },
};
constexpr Field fields75[] = {
   { "natDirectionOrVipMode", 0, 1, false },
   { "mplsNamespaceOrAaclOrEspVxlan", 1, 1, false },
   { "ucDbMode", 2, 1, false },
   { "mcDbMode", 3, 1, false },
};
constexpr Field fields76[] = {
   { "aegisSetSecondaryVrfMode", 0, 1, false },
   { "mplsNamespaceOrAaclOrEspVxlan", 1, 1, false },
   { "ucDbMode", 2, 1, false },
   { "mcDbMode", 3, 1, false },
};
constexpr Field fields77[] = {
   { "pphFwdLayerAdditionalInfoInnerOffset", 0, 8, false },
   { "pphFwdLayerAdditionalInfoWidth", 8, 8, false },
};
constexpr Field fields78[] = {
   { "pphFwdLayerAdditionalInfoInnerOffset", 0, 8, false },
   { "pphFwdLayerAdditionalInfoWidth", 8, 8, false },
   { "pphReservedMsbBitSize", 16, 1, false },
   { "pphParsingStartOffsetB8Size", 17, 1, false },
   { "pphParsingStartOffsetB7Size", 18, 1, false },
};
constexpr Field fields79[] = {
   { "itppTerminateNetworkHeaders", 0, 128, false },
};
constexpr Field fields80[] = {
   { "destination", 0, 21, false },
   { "addVsiDest", 21, 1, false },
};
constexpr Field fields81[] = {
   { "v4Rpf", 0, 1, false },
   { "v6Rpf", 1, 1, false },
   { "ivlOrSvl", 2, 1, false },
   { "reserved", 3, 1, false },
};
constexpr Field fields82[] = {
   { "routingProfile0", 0, 5, false },
   { "routingProfile1", 5, 5, false },
   { "routingProfile2", 10, 5, false },
   { "routingProfile3", 15, 5, false },
};
constexpr Field fields83[] = {
   { "fwdDomainCsProfile", 0, 4, false },
   { "fwdDomainCsProfileVec", 0, 32, false },
};
constexpr Field fields84[] = {
   { "mplsUnexpectedBosFwd", 0, 4, false },
   { "mplsUnexpectedBosSnp", 4, 3, false },
   { "mplsUnexpectedNoBosFwd", 7, 4, false },
   { "mplsUnexpectedNoBosSnp", 11, 3, false },
   { "ipv4VersionErrorFwd", 14, 4, false },
   { "ipv4VersionErrorSnp", 18, 3, false },
   { "ipv4ChecksumErrorFwd", 21, 4, false },
   { "ipv4ChecksumErrorSnp", 25, 3, false },
   { "ipv4HeaderLengthErrorFwd", 28, 4, false },
   { "ipv4HeaderLengthErrorSnp", 32, 3, false },
};
constexpr Field fields85[] = {
   { "ipv4TotalLengthErrorFwd", 0, 4, false },
   { "ipv4TotalLengthErrorSnp", 4, 3, false },
   { "ipv4Ttl0Fwd", 7, 4, false },
   { "ipv4Ttl0Snp", 11, 3, false },
   { "ipv4HasOptionsFwd", 14, 4, false },
   { "ipv4HasOptionsSnp", 18, 3, false },
   { "ipv4Ttl1Fwd", 21, 4, false },
   { "ipv4Ttl1Snp", 25, 3, false },
   { "ipv4SipEqualDipFwd", 28, 4, false },
   { "ipv4SipEqualDipSnp", 32, 3, false },
   { "ipv4DipZeroFwd", 35, 4, false },
   { "ipv4DipZeroSnp", 39, 3, false },
};
constexpr Field fields86[] = {
   { "ipv4SipIsMcFwd", 0, 4, false },
   { "ipv4SipIsMcSnp", 4, 3, false },
   { "ipv4FragmentedFwd", 7, 4, false },
   { "ipv4FragmentedSnp", 11, 3, false },
   { "ipv6VersionErrorFwd", 14, 4, false },
   { "ipv6VersionErrorSnp", 18, 3, false },
   { "ipv6HopCount0Fwd", 21, 4, false },
   { "ipv6HopCount0Snp", 25, 3, false },
   { "ipv6HopCount1Fwd", 28, 4, false },
   { "ipv6HopCount1Snp", 32, 3, false },
   { "ipv6UnspecifiedDestinationFwd", 35, 4, false },
   { "ipv6UnspecifiedDestinationSnp", 39, 3, false },
};
constexpr Field fields87[] = {
   { "ipv6LoopbackAddressFwd", 0, 4, false },
   { "ipv6LoopbackAddressSnp", 4, 3, false },
   { "ipv6MulticastSourceFwd", 7, 4, false },
   { "ipv6MulticastSourceSnp", 11, 3, false },
   { "ipv6NextHeaderNullFwd", 14, 4, false },
   { "ipv6NextHeaderNullSnp", 18, 3, false },
   { "ipv6UnspecifiedSourceFwd", 21, 4, false },
   { "ipv6UnspecifiedSourceSnp", 25, 3, false },
   { "ipv6LinkLocalDestinationFwd", 28, 4, false },
   { "ipv6LinkLocalDestinationSnp", 32, 3, false },
   { "ipv6SiteLocalDestinationFwd", 35, 4, false },
   { "ipv6SiteLocalDestinationSnp", 39, 3, false },
};

constexpr U8 chipsOfAdditionalHeadersMapTable0[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfAdditionalHeadersMapTable0[] = {
   { 10, 0, 32u, 3, 1, 0, 3299, 2, 0x150000, 0, selectors0, fields0, 0 },
   { 11, 0, 32u, 3, 1, 0, 3299, 1, 0x150000, 0, selectors1, fields0, 0 },
   { 12, 0, 32u, 3, 1, 0, 3299, 2, 0x150000, 0, selectors2, fields0, 0 },
   { 14, 0, 32u, 3, 1, 0, 3299, 1, 0x150000, 0, selectors3, fields0, 0 },
   { 15, 0, 32u, 3, 1, 0, 3299, 1, 0x150000, 0, selectors4, fields0, 0 },
   { 16, 0, 32u, 3, 1, 0, 3299, 1, 0x150000, 0, selectors4, fields0, 0 },
   { 10, 1, 32u, 3, 1, 0, 3443, 2, 0x26d0000, 0, selectors5, fields0, 0 },
   { 11, 1, 32u, 3, 1, 0, 3443, 1, 0x26d0000, 0, selectors6, fields0, 0 },
   { 12, 1, 32u, 3, 1, 0, 3443, 2, 0x26d0000, 0, selectors7, fields0, 0 },
   { 14, 1, 32u, 3, 1, 0, 3443, 1, 0x26d0000, 0, selectors8, fields0, 0 },
   { 15, 1, 32u, 3, 1, 0, 3443, 1, 0x26d0000, 0, selectors9, fields0, 0 },
   { 16, 1, 32u, 3, 1, 0, 3443, 1, 0x26d0000, 0, selectors9, fields0, 0 },
};

constexpr U8 chipsOfCgmSnifTmTable[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfCgmSnifTmTable[] = {
   { 10, 0, 32u, 15, 3, 0, 770, 2, 0xe50000, 32, selectors10, fields1, 0 },
   { 11, 0, 32u, 15, 3, 0, 770, 1, 0x66b00, 32, selectors11, fields2, 0 },
   { 12, 0, 32u, 15, 3, 0, 770, 2, 0x1660000, 32, selectors12, fields3, 0 },
   { 14, 0, 32u, 15, 3, 0, 770, 1, 0x1660000, 32, selectors13, fields3, 0 },
   { 15, 0, 32u, 15, 3, 0, 770, 1, 0xba0000, 32, selectors14, fields2, 0 },
   { 16, 0, 32u, 15, 3, 0, 770, 1, 0xba0000, 32, selectors14, fields2, 0 },
};

constexpr U8 chipsOfEgressOutrifMaxValue[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEgressOutrifMaxValue[] = {
   { 10, 0, 0u, 1, 1, 0, 30562, 2, 0x50b, 0, selectors15, fields4, 0 },
   { 11, 0, 0u, 1, 1, 0, 30562, 1, 0x50b, 0, selectors16, fields4, 0 },
   { 12, 0, 0u, 1, 1, 0, 30562, 2, 0x50b, 0, selectors17, fields4, 0 },
   { 14, 0, 0u, 1, 1, 0, 30562, 1, 0x50b, 0, selectors14, fields4, 0 },
   { 15, 0, 0u, 1, 1, 0, 30562, 1, 0x50b, 0, selectors18, fields4, 0 },
   { 16, 0, 0u, 1, 1, 0, 30562, 1, 0x50b, 0, selectors18, fields4, 0 },
   { 10, 1, 0u, 1, 1, 0, 31547, 2, 0x108, 0, selectors19, fields5, 0 },
   { 11, 1, 0u, 1, 1, 0, 31547, 1, 0x108, 0, selectors20, fields5, 0 },
   { 12, 1, 0u, 1, 1, 0, 31547, 2, 0x108, 0, selectors21, fields5, 0 },
   { 14, 1, 0u, 1, 1, 0, 31547, 1, 0x108, 0, selectors22, fields5, 0 },
   { 15, 1, 0u, 1, 1, 0, 31547, 1, 0x108, 0, selectors23, fields5, 0 },
   { 16, 1, 0u, 1, 1, 0, 31547, 1, 0x108, 0, selectors23, fields5, 0 },
   { 10, 2, 0u, 1, 1, 0, 31490, 2, 0x904, 0, selectors19, fields6, 0 },
   { 11, 2, 0u, 1, 1, 0, 31490, 1, 0x904, 0, selectors20, fields6, 0 },
   { 12, 2, 0u, 1, 1, 0, 31490, 2, 0x905, 0, selectors21, fields6, 0 },
   { 14, 2, 0u, 1, 1, 0, 31490, 1, 0x905, 0, selectors22, fields6, 0 },
   { 15, 2, 0u, 1, 1, 0, 31490, 1, 0x904, 0, selectors23, fields6, 0 },
   { 16, 2, 0u, 1, 1, 0, 31490, 1, 0x904, 0, selectors23, fields6, 0 },
};

constexpr U8 chipsOfEnableKapsInterfaceDefault[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEnableKapsInterfaceDefault[] = {
   { 10, 0, 0u, 1, 1, 0, 54175, 2, 0x163, 0, selectors24, fields7, 0 },
   { 11, 0, 0u, 1, 1, 0, 54175, 1, 0x163, 0, selectors25, fields7, 0 },
   { 12, 0, 0u, 1, 1, 0, 54175, 2, 0x161, 0, selectors26, fields7, 0 },
   { 14, 0, 0u, 1, 1, 0, 54175, 1, 0x161, 0, selectors27, fields7, 0 },
   { 15, 0, 0u, 1, 1, 0, 54175, 1, 0x163, 0, selectors28, fields7, 0 },
   { 16, 0, 0u, 1, 1, 0, 54175, 1, 0x163, 0, selectors28, fields7, 0 },
};

constexpr U8 chipsOfEnablersVectors[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEnablersVectors[] = {
   { 10, 0, 32u, 2, 3, 0, 8278, 2, 0x930000, 32, selectors29, fields8, 0 },
   { 11, 0, 32u, 2, 3, 0, 8278, 1, 0x930000, 32, selectors30, fields8, 0 },
   { 12, 0, 32u, 2, 3, 0, 8278, 2, 0x930000, 32, selectors31, fields8, 0 },
   { 14, 0, 32u, 2, 3, 0, 8278, 1, 0x930000, 32, selectors32, fields8, 0 },
   { 15, 0, 32u, 2, 3, 0, 8278, 1, 0x930000, 32, selectors33, fields8, 0 },
   { 16, 0, 32u, 2, 3, 0, 8278, 1, 0x930000, 32, selectors33, fields8, 0 },
   { 10, 1, 32u, 2, 2, 3, 7780, 2, 0x8f0060, 32, selectors34, fields8, 3 },
   { 11, 1, 32u, 2, 2, 3, 7780, 1, 0x8f0060, 32, selectors35, fields8, 3 },
   { 12, 1, 32u, 2, 2, 3, 7780, 2, 0x8f0060, 32, selectors36, fields8, 3 },
   { 14, 1, 32u, 2, 2, 3, 7780, 1, 0x8f0060, 32, selectors37, fields8, 3 },
   { 15, 1, 32u, 2, 2, 3, 7780, 1, 0x8f0060, 32, selectors38, fields8, 3 },
   { 16, 1, 32u, 2, 2, 3, 7780, 1, 0x8f0060, 32, selectors38, fields8, 3 },
};

constexpr U8 chipsOfErppCfgMappingOutLifProfile[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfErppCfgMappingOutLifProfile[] = {
   { 10, 0, 16u, 1, 1, 0, 3035, 2, 0x2f60000, 0, selectors15, fields9, 0 },
   { 11, 0, 16u, 1, 1, 0, 3035, 1, 0x2f80000, 0, selectors16, fields9, 0 },
   { 12, 0, 16u, 1, 1, 0, 3035, 2, 0x2f80000, 0, selectors17, fields9, 0 },
   { 14, 0, 16u, 1, 1, 0, 3035, 1, 0x2f80000, 0, selectors14, fields9, 0 },
   { 15, 0, 16u, 1, 1, 0, 3035, 1, 0x2f80000, 0, selectors18, fields9, 0 },
   { 16, 0, 16u, 1, 1, 0, 3035, 1, 0x2f80000, 0, selectors18, fields9, 0 },
};

constexpr U8 chipsOfErppCfgSplitHorizonFilter[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfErppCfgSplitHorizonFilter[] = {
   { 10, 0, 0u, 2, 1, 0, 30566, 2, 0x540, 0, selectors15, fields10, 0 },
   { 11, 0, 0u, 2, 1, 0, 30566, 1, 0x58a, 0, selectors16, fields10, 0 },
   { 12, 0, 0u, 2, 1, 0, 30566, 2, 0x54a, 0, selectors17, fields10, 0 },
   { 14, 0, 0u, 2, 1, 0, 30566, 1, 0x54a, 0, selectors14, fields10, 0 },
   { 15, 0, 0u, 2, 1, 0, 30566, 1, 0x58a, 0, selectors18, fields10, 0 },
   { 16, 0, 0u, 2, 1, 0, 30566, 1, 0x58a, 0, selectors18, fields10, 0 },
};

constexpr U8 chipsOfErppInlifOrientationMap[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfErppInlifOrientationMap[] = {
   { 10, 0, 256u, 1, 1, 0, 3034, 2, 0x2f40000, 0, selectors15, fields11, 0 },
   { 11, 0, 256u, 1, 1, 0, 3034, 1, 0x2f60000, 0, selectors16, fields11, 0 },
   { 12, 0, 256u, 1, 1, 0, 3034, 2, 0x2f60000, 0, selectors17, fields11, 0 },
   { 14, 0, 256u, 1, 1, 0, 3034, 1, 0x2f60000, 0, selectors14, fields11, 0 },
   { 15, 0, 256u, 1, 1, 0, 3034, 1, 0x2f60000, 0, selectors18, fields11, 0 },
   { 16, 0, 256u, 1, 1, 0, 3034, 1, 0x2f60000, 0, selectors18, fields11, 0 },
};

constexpr U8 chipsOfEthernetTrap[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEthernetTrap[] = {
   { 10, 0, 0u, 4, 1, 0, 54780, 2, 0x19d, 0, selectors29, fields12, 0 },
   { 11, 0, 0u, 4, 1, 0, 54780, 1, 0x1c7, 0, selectors30, fields12, 0 },
   { 12, 0, 0u, 4, 1, 0, 54780, 2, 0x1c7, 0, selectors31, fields12, 0 },
   { 14, 0, 0u, 4, 1, 0, 54780, 1, 0x1c7, 0, selectors32, fields12, 0 },
   { 15, 0, 0u, 4, 1, 0, 54780, 1, 0x1c7, 0, selectors33, fields12, 0 },
   { 16, 0, 0u, 4, 1, 0, 54780, 1, 0x1c7, 0, selectors33, fields12, 0 },
   { 10, 1, 0u, 4, 1, 0, 54019, 2, 0x19d, 0, selectors34, fields12, 0 },
   { 11, 1, 0u, 4, 1, 0, 54019, 1, 0x19f, 0, selectors35, fields12, 0 },
   { 12, 1, 0u, 4, 1, 0, 54019, 2, 0x19f, 0, selectors36, fields12, 0 },
   { 14, 1, 0u, 4, 1, 0, 54019, 1, 0x19f, 0, selectors37, fields12, 0 },
   { 15, 1, 0u, 4, 1, 0, 54019, 1, 0x19f, 0, selectors38, fields12, 0 },
   { 16, 1, 0u, 4, 1, 0, 54019, 1, 0x19f, 0, selectors38, fields12, 0 },
};

constexpr U8 chipsOfEtppCfgFwdDoNotTtlDecrement[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEtppCfgFwdDoNotTtlDecrement[] = {
   { 10, 0, 0u, 16, 1, 0, 31814, 2, 0x700, 0, selectors5, fields13, 0 },
   { 11, 0, 0u, 16, 1, 0, 31814, 1, 0x700, 0, selectors6, fields13, 0 },
   { 12, 0, 0u, 16, 1, 0, 31814, 2, 0x700, 0, selectors7, fields13, 0 },
   { 14, 0, 0u, 16, 1, 0, 31814, 1, 0x700, 0, selectors8, fields13, 0 },
   { 15, 0, 0u, 16, 1, 0, 31814, 1, 0x700, 0, selectors9, fields13, 0 },
   { 16, 0, 0u, 16, 1, 0, 31814, 1, 0x700, 0, selectors9, fields13, 0 },
};

constexpr U8 chipsOfEtppCfgRifInStack[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEtppCfgRifInStack[] = {
   { 10, 0, 0u, 1, 1, 0, 31489, 2, 0x903, 0, selectors19, fields14, 0 },
   { 11, 0, 0u, 1, 1, 0, 31489, 1, 0x903, 0, selectors20, fields14, 0 },
   { 12, 0, 0u, 1, 1, 0, 31489, 2, 0x904, 0, selectors21, fields14, 0 },
   { 14, 0, 0u, 1, 1, 0, 31489, 1, 0x904, 0, selectors22, fields14, 0 },
   { 15, 0, 0u, 1, 1, 0, 31489, 1, 0x903, 0, selectors23, fields14, 0 },
   { 16, 0, 0u, 1, 1, 0, 31489, 1, 0x903, 0, selectors23, fields14, 0 },
};

constexpr U8 chipsOfEtppCfgSplitHorizonFilter[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEtppCfgSplitHorizonFilter[] = {
   { 10, 0, 0u, 2, 1, 0, 31859, 2, 0x823, 0, selectors5, fields10, 0 },
   { 11, 0, 0u, 2, 1, 0, 31859, 1, 0x824, 0, selectors6, fields10, 0 },
   { 12, 0, 0u, 2, 1, 0, 31859, 2, 0x828, 0, selectors7, fields10, 0 },
   { 14, 0, 0u, 2, 1, 0, 31859, 1, 0x828, 0, selectors8, fields10, 0 },
   { 15, 0, 0u, 2, 1, 0, 31859, 1, 0x824, 0, selectors9, fields10, 0 },
   { 16, 0, 0u, 2, 1, 0, 31859, 1, 0x824, 0, selectors9, fields10, 0 },
};

constexpr U8 chipsOfEtppCfgSplitHorizonTrapParams[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEtppCfgSplitHorizonTrapParams[] = {
   { 10, 0, 0u, 1, 1, 0, 31863, 2, 0x831, 0, selectors5, fields15, 0 },
   { 11, 0, 0u, 1, 1, 0, 31863, 1, 0x84a, 0, selectors6, fields15, 0 },
   { 12, 0, 0u, 1, 1, 0, 31863, 2, 0x836, 0, selectors7, fields15, 0 },
   { 14, 0, 0u, 1, 1, 0, 31863, 1, 0x836, 0, selectors8, fields15, 0 },
   { 15, 0, 0u, 1, 1, 0, 31863, 1, 0x84a, 0, selectors9, fields15, 0 },
   { 16, 0, 0u, 1, 1, 0, 31863, 1, 0x84a, 0, selectors9, fields15, 0 },
};

constexpr U8 chipsOfEtppEnc1ContextSelectionPortProfile[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEtppEnc1ContextSelectionPortProfile[] = {
   { 10, 0, 256u, 1, 1, 0, 3464, 2, 0x2740000, 0, selectors5, fields16, 0 },
   { 11, 0, 1024u, 1, 1, 0, 3464, 1, 0x2740000, 0, selectors6, fields16, 0 },
   { 12, 0, 256u, 1, 1, 0, 3464, 2, 0x2740000, 0, selectors7, fields16, 0 },
   { 14, 0, 256u, 1, 1, 0, 3464, 1, 0x2740000, 0, selectors8, fields16, 0 },
   { 15, 0, 1024u, 1, 1, 0, 3464, 1, 0x2740000, 0, selectors9, fields16, 0 },
   { 16, 0, 1024u, 1, 1, 0, 3464, 1, 0x2740000, 0, selectors9, fields16, 0 },
};

constexpr U8 chipsOfEtppEnc2ContextSelectionPortProfile[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEtppEnc2ContextSelectionPortProfile[] = {
   { 10, 0, 256u, 1, 1, 0, 3475, 2, 0x2750000, 0, selectors5, fields16, 0 },
   { 11, 0, 1024u, 1, 1, 0, 3475, 1, 0x2750000, 0, selectors6, fields16, 0 },
   { 12, 0, 256u, 1, 1, 0, 3475, 2, 0x2750000, 0, selectors7, fields16, 0 },
   { 14, 0, 256u, 1, 1, 0, 3475, 1, 0x2750000, 0, selectors8, fields16, 0 },
   { 15, 0, 1024u, 1, 1, 0, 3475, 1, 0x2750000, 0, selectors9, fields16, 0 },
   { 16, 0, 1024u, 1, 1, 0, 3475, 1, 0x2750000, 0, selectors9, fields16, 0 },
};

constexpr U8 chipsOfEtppEnc3ContextSelectionPortProfile[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEtppEnc3ContextSelectionPortProfile[] = {
   { 10, 0, 256u, 1, 1, 0, 3346, 2, 0x1d0000, 0, selectors0, fields16, 0 },
   { 11, 0, 1024u, 1, 1, 0, 3346, 1, 0x1d0000, 0, selectors1, fields16, 0 },
   { 12, 0, 256u, 1, 1, 0, 3346, 2, 0x1d0000, 0, selectors2, fields16, 0 },
   { 14, 0, 256u, 1, 1, 0, 3346, 1, 0x1d0000, 0, selectors3, fields16, 0 },
   { 15, 0, 1024u, 1, 1, 0, 3346, 1, 0x1d0000, 0, selectors4, fields16, 0 },
   { 16, 0, 1024u, 1, 1, 0, 3346, 1, 0x1d0000, 0, selectors4, fields16, 0 },
};

constexpr U8 chipsOfEtppEnc4ContextSelectionPortProfile[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEtppEnc4ContextSelectionPortProfile[] = {
   { 10, 0, 256u, 1, 1, 0, 3363, 2, 0x1e0000, 0, selectors0, fields16, 0 },
   { 11, 0, 1024u, 1, 1, 0, 3363, 1, 0x1e0000, 0, selectors1, fields16, 0 },
   { 12, 0, 256u, 1, 1, 0, 3363, 2, 0x1e0000, 0, selectors2, fields16, 0 },
   { 14, 0, 256u, 1, 1, 0, 3363, 1, 0x1e0000, 0, selectors3, fields16, 0 },
   { 15, 0, 1024u, 1, 1, 0, 3363, 1, 0x1e0000, 0, selectors4, fields16, 0 },
   { 16, 0, 1024u, 1, 1, 0, 3363, 1, 0x1e0000, 0, selectors4, fields16, 0 },
};

constexpr U8 chipsOfEtppEnc5ContextSelectionPortProfile[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEtppEnc5ContextSelectionPortProfile[] = {
   { 10, 0, 256u, 1, 1, 0, 3380, 2, 0x1f0000, 0, selectors0, fields16, 0 },
   { 11, 0, 1024u, 1, 1, 0, 3380, 1, 0x1f0000, 0, selectors1, fields16, 0 },
   { 12, 0, 256u, 1, 1, 0, 3380, 2, 0x1f0000, 0, selectors2, fields16, 0 },
   { 14, 0, 256u, 1, 1, 0, 3380, 1, 0x1f0000, 0, selectors3, fields16, 0 },
   { 15, 0, 1024u, 1, 1, 0, 3380, 1, 0x1f0000, 0, selectors4, fields16, 0 },
   { 16, 0, 1024u, 1, 1, 0, 3380, 1, 0x1f0000, 0, selectors4, fields16, 0 },
};

constexpr U8 chipsOfEtppInlifOrientationMap[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEtppInlifOrientationMap[] = {
   { 10, 0, 256u, 1, 1, 0, 3504, 2, 0x2110000, 0, selectors5, fields17, 0 },
   { 11, 0, 256u, 1, 1, 0, 3504, 1, 0x2120000, 0, selectors6, fields17, 0 },
   { 12, 0, 256u, 1, 1, 0, 3504, 2, 0x21a0000, 0, selectors7, fields17, 0 },
   { 14, 0, 256u, 1, 1, 0, 3504, 1, 0x21a0000, 0, selectors8, fields17, 0 },
   { 15, 0, 256u, 1, 1, 0, 3504, 1, 0x2120000, 0, selectors9, fields17, 0 },
   { 16, 0, 256u, 1, 1, 0, 3504, 1, 0x2120000, 0, selectors9, fields17, 0 },
};

constexpr U8 chipsOfEtppOutlifOrientationMap[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEtppOutlifOrientationMap[] = {
   { 10, 0, 0u, 6, 1, 0, 31951, 2, 0x81d, 0, selectors5, fields18, 0 },
   { 11, 0, 0u, 6, 1, 0, 31951, 1, 0x81e, 0, selectors6, fields18, 0 },
   { 12, 0, 0u, 6, 1, 0, 31951, 2, 0x822, 0, selectors7, fields18, 0 },
   { 14, 0, 0u, 6, 1, 0, 31951, 1, 0x822, 0, selectors8, fields18, 0 },
   { 15, 0, 0u, 6, 1, 0, 31951, 1, 0x81e, 0, selectors9, fields18, 0 },
   { 16, 0, 0u, 6, 1, 0, 31951, 1, 0x81e, 0, selectors9, fields18, 0 },
};

constexpr U8 chipsOfEtppTrapBitCruncherProgram[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEtppTrapBitCruncherProgram[] = {
   { 10, 0, 64u, 13, 1, 0, 3424, 2, 0x1270000, 0, selectors0, fields19, 0 },
   { 11, 0, 64u, 13, 1, 0, 3424, 1, 0x1270000, 0, selectors1, fields19, 0 },
   { 12, 0, 64u, 13, 1, 0, 3424, 2, 0x1270000, 0, selectors2, fields19, 0 },
   { 14, 0, 64u, 13, 1, 0, 3424, 1, 0x1270000, 0, selectors3, fields19, 0 },
   { 15, 0, 64u, 13, 1, 0, 3424, 1, 0x1270000, 0, selectors4, fields19, 0 },
   { 16, 0, 64u, 13, 1, 0, 3424, 1, 0x1270000, 0, selectors4, fields19, 0 },
};

constexpr U8 chipsOfEtppTrapContextSelectionPortProfile[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEtppTrapContextSelectionPortProfile[] = {
   { 10, 0, 256u, 1, 1, 0, 3431, 2, 0x200000, 0, selectors0, fields20, 0 },
   { 11, 0, 1024u, 1, 1, 0, 3431, 1, 0x200000, 0, selectors1, fields20, 0 },
   { 12, 0, 256u, 1, 1, 0, 3431, 2, 0x200000, 0, selectors2, fields21, 0 },
   { 14, 0, 256u, 1, 1, 0, 3431, 1, 0x200000, 0, selectors3, fields21, 0 },
   { 15, 0, 1024u, 1, 1, 0, 3431, 1, 0x200000, 0, selectors4, fields20, 0 },
   { 16, 0, 1024u, 1, 1, 0, 3431, 1, 0x200000, 0, selectors4, fields20, 0 },
};

constexpr U8 chipsOfEtppaPrpFesProgramTable[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEtppaPrpFesProgramTable[] = {
   { 10, 0, 64u, 6, 1, 0, 3279, 2, 0x2300000, 0, selectors19, fields22, 0 },
   { 11, 0, 64u, 6, 1, 0, 3279, 1, 0x2300000, 0, selectors20, fields22, 0 },
   { 12, 0, 64u, 6, 1, 0, 3279, 2, 0x2320000, 0, selectors21, fields22, 0 },
   { 14, 0, 64u, 6, 1, 0, 3279, 1, 0x2320000, 0, selectors22, fields22, 0 },
   { 15, 0, 64u, 6, 1, 0, 3279, 1, 0x2300000, 0, selectors23, fields22, 0 },
   { 16, 0, 64u, 6, 1, 0, 3279, 1, 0x2300000, 0, selectors23, fields22, 0 },
};

constexpr U8 chipsOfEtppbEnc5Arr0FormatCfg[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEtppbEnc5Arr0FormatCfg[] = {
   { 10, 0, 64u, 9, 1, 0, 3373, 2, 0x1120000, 0, selectors0, fields23, 0 },
   { 11, 0, 64u, 9, 1, 0, 3373, 1, 0x1120000, 0, selectors1, fields23, 0 },
   { 12, 0, 128u, 9, 1, 0, 3373, 2, 0x1120000, 0, selectors2, fields23, 0 },
   { 14, 0, 128u, 9, 1, 0, 3373, 1, 0x1120000, 0, selectors3, fields23, 0 },
   { 15, 0, 64u, 9, 1, 0, 3373, 1, 0x1120000, 0, selectors4, fields23, 0 },
   { 16, 0, 64u, 9, 1, 0, 3373, 1, 0x1120000, 0, selectors4, fields23, 0 },
};

constexpr U8 chipsOfEtppcEnc1Arr0FormatCfg[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEtppcEnc1Arr0FormatCfg[] = {
   { 10, 0, 64u, 9, 1, 0, 3460, 2, 0x1720000, 0, selectors5, fields23, 0 },
   { 11, 0, 64u, 9, 1, 0, 3460, 1, 0x1720000, 0, selectors6, fields23, 0 },
   { 12, 0, 128u, 9, 1, 0, 3460, 2, 0x1720000, 0, selectors7, fields23, 0 },
   { 14, 0, 128u, 9, 1, 0, 3460, 1, 0x1720000, 0, selectors8, fields23, 0 },
   { 15, 0, 64u, 9, 1, 0, 3460, 1, 0x1720000, 0, selectors9, fields23, 0 },
   { 16, 0, 64u, 9, 1, 0, 3460, 1, 0x1720000, 0, selectors9, fields23, 0 },
};

constexpr U8 chipsOfEtppcEncapsulation2ContextSelectionCam[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfEtppcEncapsulation2ContextSelectionCam[] = {
   { 10, 0, 68u, 2, 1, 0, 3459, 2, 0x2670000, 0, selectors5, fields24, 0 },
   { 11, 0, 68u, 2, 1, 0, 3459, 1, 0x2670000, 0, selectors6, fields24, 0 },
   { 12, 0, 68u, 2, 1, 0, 3459, 2, 0x2670000, 0, selectors7, fields25, 0 },
   { 14, 0, 68u, 2, 1, 0, 3459, 1, 0x2670000, 0, selectors8, fields25, 0 },
   { 15, 0, 68u, 2, 1, 0, 3459, 1, 0x2670000, 0, selectors9, fields24, 0 },
   { 16, 0, 68u, 2, 1, 0, 3459, 1, 0x2670000, 0, selectors9, fields24, 0 },
};

constexpr U8 chipsOfFfcInstruction[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfFfcInstruction[] = {
   { 10, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors39, fields26, 0 },
   { 11, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors40, fields26, 0 },
   { 12, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors41, fields26, 0 },
   { 14, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors41, fields26, 0 },
   { 15, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors42, fields26, 0 },
   { 16, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors42, fields26, 0 },
   { 10, 1, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors39, fields27, 0 },
   { 11, 1, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors40, fields27, 0 },
   { 12, 1, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors41, fields27, 0 },
   { 14, 1, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors41, fields27, 0 },
   { 15, 1, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors42, fields27, 0 },
   { 16, 1, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors42, fields27, 0 },
   { 10, 2, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors39, fields28, 0 },
   { 11, 2, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors40, fields28, 0 },
   { 12, 2, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors41, fields28, 0 },
   { 14, 2, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors41, fields28, 0 },
   { 15, 2, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors42, fields28, 0 },
   { 16, 2, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors42, fields28, 0 },
   { 10, 3, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors39, fields26, 0 },
   { 11, 3, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors40, fields26, 0 },
   { 12, 3, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors41, fields26, 0 },
   { 14, 3, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors41, fields26, 0 },
   { 15, 3, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors42, fields26, 0 },
   { 16, 3, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors42, fields26, 0 },
};

constexpr U8 chipsOfFlpKapsStrengthMapping[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfFlpKapsStrengthMapping[] = {
   { 10, 0, 256u, 1, 4, 0, 7988, 2, 0x16b0000, 256, selectors24, fields29, 0 },
   { 11, 0, 256u, 1, 4, 0, 7988, 1, 0x16b0000, 256, selectors25, fields30, 0 },
   { 12, 0, 256u, 2, 4, 0, 7988, 2, 0x16b0000, 256, selectors26, fields31, 0 },
   { 14, 0, 256u, 2, 4, 0, 7988, 1, 0x16b0000, 256, selectors27, fields31, 0 },
   { 15, 0, 256u, 1, 4, 0, 7988, 1, 0x16b0000, 256, selectors28, fields30, 0 },
   { 16, 0, 256u, 1, 4, 0, 7988, 1, 0x16b0000, 256, selectors28, fields30, 0 },
};

constexpr U8 chipsOfFlpRpfFormatConfiguration[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfFlpRpfFormatConfiguration[] = {
   { 10, 0, 64u, 4, 2, 0, 7991, 2, 0xf0000, 64, selectors24, fields32, 0 },
   { 11, 0, 64u, 4, 2, 0, 7991, 1, 0xf0000, 64, selectors25, fields32, 0 },
   { 12, 0, 64u, 4, 2, 0, 7991, 2, 0xf0000, 64, selectors26, fields32, 0 },
   { 14, 0, 64u, 4, 2, 0, 7991, 1, 0xf0000, 64, selectors27, fields32, 0 },
   { 15, 0, 64u, 4, 2, 0, 7991, 1, 0xf0000, 64, selectors28, fields32, 0 },
   { 16, 0, 64u, 4, 2, 0, 7991, 1, 0xf0000, 64, selectors28, fields32, 0 },
};

constexpr U8 chipsOfFlpaInitContextEnablers[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfFlpaInitContextEnablers[] = {
   { 10, 0, 64u, 3, 1, 0, 7906, 2, 0x1630000, 0, selectors24, fields33, 0 },
   { 11, 0, 64u, 2, 1, 0, 7906, 1, 0x1630000, 0, selectors25, fields34, 0 },
   { 12, 0, 64u, 2, 1, 0, 7906, 2, 0x1630000, 0, selectors26, fields34, 0 },
   { 14, 0, 64u, 2, 1, 0, 7906, 1, 0x1630000, 0, selectors27, fields34, 0 },
   { 15, 0, 64u, 2, 1, 0, 7906, 1, 0x1630000, 0, selectors28, fields34, 0 },
   { 16, 0, 64u, 2, 1, 0, 7906, 1, 0x1630000, 0, selectors28, fields34, 0 },
};

constexpr U8 chipsOfFlpaResContextEnablers[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfFlpaResContextEnablers[] = {
   { 10, 0, 64u, 2, 1, 0, 7915, 2, 0x1690000, 0, selectors24, fields35, 0 },
   { 11, 0, 64u, 2, 1, 0, 7915, 1, 0x1690000, 0, selectors25, fields36, 0 },
   { 12, 0, 64u, 2, 1, 0, 7915, 2, 0x1690000, 0, selectors26, fields37, 0 },
   { 14, 0, 64u, 2, 1, 0, 7915, 1, 0x1690000, 0, selectors27, fields37, 0 },
   { 15, 0, 64u, 2, 1, 0, 7915, 1, 0x1690000, 0, selectors28, fields36, 0 },
   { 16, 0, 64u, 2, 1, 0, 7915, 1, 0x1690000, 0, selectors28, fields36, 0 },
};

constexpr U8 chipsOfFwdFfcTable[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfFwdFfcTable[] = {
   { 10, 0, 64u, 3, 1, 0, 7939, 2, 0x2510000, 0, selectors24, fields38, 0 },
   { 11, 0, 64u, 3, 1, 0, 7939, 1, 0x2510000, 0, selectors25, fields38, 0 },
   { 12, 0, 64u, 3, 1, 0, 7939, 2, 0x2510000, 0, selectors26, fields38, 0 },
   { 14, 0, 64u, 3, 1, 0, 7939, 1, 0x2510000, 0, selectors27, fields38, 0 },
   { 15, 0, 64u, 3, 1, 0, 7939, 1, 0x2510000, 0, selectors28, fields38, 0 },
   { 16, 0, 64u, 3, 1, 0, 7939, 1, 0x2510000, 0, selectors28, fields38, 0 },
   { 10, 1, 64u, 4, 1, 0, 7941, 2, 0x2530000, 0, selectors24, fields39, 0 },
   { 11, 1, 64u, 4, 1, 0, 7941, 1, 0x2530000, 0, selectors25, fields39, 0 },
   { 12, 1, 64u, 4, 1, 0, 7941, 2, 0x2530000, 0, selectors26, fields39, 0 },
   { 14, 1, 64u, 4, 1, 0, 7941, 1, 0x2530000, 0, selectors27, fields39, 0 },
   { 15, 1, 64u, 4, 1, 0, 7941, 1, 0x2530000, 0, selectors28, fields39, 0 },
   { 16, 1, 64u, 4, 1, 0, 7941, 1, 0x2530000, 0, selectors28, fields39, 0 },
   { 10, 2, 64u, 4, 2, 0, 7943, 2, 0x2550000, 64, selectors24, fields40, 0 },
   { 11, 2, 64u, 4, 2, 0, 7943, 1, 0x2550000, 64, selectors25, fields40, 0 },
   { 12, 2, 64u, 4, 2, 0, 7943, 2, 0x2550000, 64, selectors26, fields40, 0 },
   { 14, 2, 64u, 4, 2, 0, 7943, 1, 0x2550000, 64, selectors27, fields40, 0 },
   { 15, 2, 64u, 4, 2, 0, 7943, 1, 0x2550000, 64, selectors28, fields40, 0 },
   { 16, 2, 64u, 4, 2, 0, 7943, 1, 0x2550000, 64, selectors28, fields40, 0 },
   { 10, 3, 64u, 4, 4, 0, 7945, 2, 0x2580000, 64, selectors24, fields41, 0 },
   { 11, 3, 64u, 4, 4, 0, 7945, 1, 0x2580000, 64, selectors25, fields41, 0 },
   { 12, 3, 64u, 4, 4, 0, 7945, 2, 0x2580000, 64, selectors26, fields41, 0 },
   { 14, 3, 64u, 4, 4, 0, 7945, 1, 0x2580000, 64, selectors27, fields41, 0 },
   { 15, 3, 64u, 4, 4, 0, 7945, 1, 0x2580000, 64, selectors28, fields41, 0 },
   { 16, 3, 64u, 4, 4, 0, 7945, 1, 0x2580000, 64, selectors28, fields41, 0 },
   { 10, 4, 64u, 4, 2, 0, 7947, 2, 0x25d0000, 64, selectors24, fields42, 0 },
   { 11, 4, 64u, 4, 2, 0, 7947, 1, 0x25d0000, 64, selectors25, fields42, 0 },
   { 12, 4, 64u, 4, 2, 0, 7947, 2, 0x25d0000, 64, selectors26, fields42, 0 },
   { 14, 4, 64u, 4, 2, 0, 7947, 1, 0x25d0000, 64, selectors27, fields42, 0 },
   { 15, 4, 64u, 4, 2, 0, 7947, 1, 0x25d0000, 64, selectors28, fields42, 0 },
   { 16, 4, 64u, 4, 2, 0, 7947, 1, 0x25d0000, 64, selectors28, fields42, 0 },
};

constexpr U8 chipsOfFwdKbrTable[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfFwdKbrTable[] = {
   { 10, 0, 64u, 2, 18, 0, 7949, 2, 0x2600000, 64, selectors24, fields43, 0 },
   { 11, 0, 64u, 2, 18, 0, 7949, 1, 0x2600000, 64, selectors25, fields43, 0 },
   { 12, 0, 64u, 2, 18, 0, 7949, 2, 0x2600000, 64, selectors26, fields43, 0 },
   { 14, 0, 64u, 2, 18, 0, 7949, 1, 0x2600000, 64, selectors27, fields43, 0 },
   { 15, 0, 64u, 2, 18, 0, 7949, 1, 0x2600000, 64, selectors28, fields43, 0 },
   { 16, 0, 64u, 2, 18, 0, 7949, 1, 0x2600000, 64, selectors28, fields43, 0 },
};

constexpr U8 chipsOfInLifProfileCsFlagsLsb[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfInLifProfileCsFlagsLsb[] = {
   { 10, 0, 0u, 16, 3, 0, 54769, 2, 0x1d2, 1, selectors29, fields44, 0 },
   { 11, 0, 0u, 16, 3, 0, 54769, 1, 0x20c, 1, selectors30, fields44, 0 },
   { 12, 0, 0u, 16, 3, 0, 54769, 2, 0x1f4, 1, selectors31, fields44, 0 },
   { 14, 0, 0u, 16, 3, 0, 54769, 1, 0x1f4, 1, selectors32, fields44, 0 },
   { 15, 0, 0u, 16, 3, 0, 54769, 1, 0x20c, 1, selectors33, fields44, 0 },
   { 16, 0, 0u, 16, 3, 0, 54769, 1, 0x20c, 1, selectors33, fields44, 0 },
   { 10, 1, 0u, 16, 1, 0, 54008, 2, 0x1c8, 0, selectors34, fields44, 0 },
   { 11, 1, 0u, 16, 1, 0, 54008, 1, 0x1cb, 0, selectors35, fields44, 0 },
   { 12, 1, 0u, 16, 2, 0, 54008, 2, 0x1ca, 1, selectors36, fields44, 3 },
   { 14, 1, 0u, 16, 2, 0, 54008, 1, 0x1ca, 1, selectors37, fields44, 3 },
   { 15, 1, 0u, 16, 1, 0, 54008, 1, 0x1cb, 0, selectors38, fields44, 0 },
   { 16, 1, 0u, 16, 1, 0, 54008, 1, 0x1cb, 0, selectors38, fields44, 0 },
};

constexpr U8 chipsOfInLifProfileCsFlagsMsb[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfInLifProfileCsFlagsMsb[] = {
   { 10, 0, 0u, 16, 3, 0, 54770, 2, 0x1e2, 1, selectors29, fields45, 0 },
   { 11, 0, 0u, 16, 3, 0, 54770, 1, 0x21c, 1, selectors30, fields45, 0 },
   { 12, 0, 0u, 16, 3, 0, 54770, 2, 0x204, 1, selectors31, fields45, 0 },
   { 14, 0, 0u, 16, 3, 0, 54770, 1, 0x204, 1, selectors32, fields45, 0 },
   { 15, 0, 0u, 16, 3, 0, 54770, 1, 0x21c, 1, selectors33, fields45, 0 },
   { 16, 0, 0u, 16, 3, 0, 54770, 1, 0x21c, 1, selectors33, fields45, 0 },
   { 10, 1, 0u, 16, 1, 0, 54009, 2, 0x1d8, 0, selectors34, fields45, 0 },
   { 11, 1, 0u, 16, 1, 0, 54009, 1, 0x1db, 0, selectors35, fields45, 0 },
   { 12, 1, 0u, 16, 2, 0, 54009, 2, 0x1da, 1, selectors36, fields45, 3 },
   { 14, 1, 0u, 16, 2, 0, 54009, 1, 0x1da, 1, selectors37, fields45, 3 },
   { 15, 1, 0u, 16, 1, 0, 54009, 1, 0x1db, 0, selectors38, fields45, 0 },
   { 16, 1, 0u, 16, 1, 0, 54009, 1, 0x1db, 0, selectors38, fields45, 0 },
};

constexpr U8 chipsOfIppaVtecsAction[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfIppaVtecsAction[] = {
   { 10, 0, 128u, 1, 1, 0, 7818, 2, 0xb830000, 0, selectors34, fields46, 0 },
   { 11, 0, 128u, 1, 1, 0, 7818, 1, 0xb830000, 0, selectors35, fields46, 0 },
   { 12, 0, 128u, 1, 1, 0, 7818, 2, 0xb830000, 0, selectors36, fields46, 0 },
   { 14, 0, 128u, 1, 1, 0, 7818, 1, 0xb830000, 0, selectors37, fields46, 0 },
   { 15, 0, 128u, 1, 1, 0, 7818, 1, 0xb830000, 0, selectors38, fields46, 0 },
   { 16, 0, 128u, 1, 1, 0, 7818, 1, 0xb830000, 0, selectors38, fields46, 0 },
};

constexpr U8 chipsOfIppbFlpLePd0[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfIppbFlpLePd0[] = {
   { 10, 0, 64u, 8, 1, 0, 7972, 2, 0x2730000, 0, selectors24, fields47, 0 },
   { 11, 0, 64u, 6, 1, 0, 7972, 1, 0x2730000, 0, selectors25, fields48, 0 },
   { 12, 0, 64u, 6, 1, 0, 7972, 2, 0x2730000, 0, selectors26, fields48, 0 },
   { 14, 0, 64u, 6, 1, 0, 7972, 1, 0x2730000, 0, selectors27, fields48, 0 },
   { 15, 0, 64u, 6, 1, 0, 7972, 1, 0x2730000, 0, selectors28, fields48, 0 },
   { 16, 0, 64u, 6, 1, 0, 7972, 1, 0x2730000, 0, selectors28, fields48, 0 },
};

constexpr U8 chipsOfIppbFlpLePd1[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfIppbFlpLePd1[] = {
   { 10, 0, 64u, 8, 1, 0, 7973, 2, 0x2740000, 0, selectors24, fields47, 0 },
   { 11, 0, 64u, 6, 1, 0, 7973, 1, 0x2740000, 0, selectors25, fields48, 0 },
   { 12, 0, 64u, 6, 1, 0, 7973, 2, 0x2740000, 0, selectors26, fields48, 0 },
   { 14, 0, 64u, 6, 1, 0, 7973, 1, 0x2740000, 0, selectors27, fields48, 0 },
   { 15, 0, 64u, 6, 1, 0, 7973, 1, 0x2740000, 0, selectors28, fields48, 0 },
   { 16, 0, 64u, 6, 1, 0, 7973, 1, 0x2740000, 0, selectors28, fields48, 0 },
};

constexpr U8 chipsOfIppbFlpLePd2[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfIppbFlpLePd2[] = {
   { 10, 0, 64u, 8, 1, 0, 7974, 2, 0x2750000, 0, selectors24, fields47, 0 },
   { 11, 0, 64u, 6, 1, 0, 7974, 1, 0x2750000, 0, selectors25, fields48, 0 },
   { 12, 0, 64u, 6, 1, 0, 7974, 2, 0x2750000, 0, selectors26, fields48, 0 },
   { 14, 0, 64u, 6, 1, 0, 7974, 1, 0x2750000, 0, selectors27, fields48, 0 },
   { 15, 0, 64u, 6, 1, 0, 7974, 1, 0x2750000, 0, selectors28, fields48, 0 },
   { 16, 0, 64u, 6, 1, 0, 7974, 1, 0x2750000, 0, selectors28, fields48, 0 },
};

constexpr U8 chipsOfIppbFlpPortProfileMap[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfIppbFlpPortProfileMap[] = {
   { 10, 0, 256u, 1, 1, 0, 7989, 2, 0x1710000, 0, selectors24, fields49, 0 },
   { 11, 0, 1024u, 1, 1, 0, 7989, 1, 0x1710000, 0, selectors25, fields49, 0 },
   { 12, 0, 256u, 1, 1, 0, 7989, 2, 0x1710000, 0, selectors26, fields49, 0 },
   { 14, 0, 256u, 1, 1, 0, 7989, 1, 0x1710000, 0, selectors27, fields49, 0 },
   { 15, 0, 1024u, 1, 1, 0, 7989, 1, 0x1710000, 0, selectors28, fields49, 0 },
   { 16, 0, 1024u, 1, 1, 0, 7989, 1, 0x1710000, 0, selectors28, fields49, 0 },
};

constexpr U8 chipsOfIppbFlpacsAction[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfIppbFlpacsAction[] = {
   { 10, 0, 128u, 1, 1, 0, 7898, 2, 0x3030000, 0, selectors24, fields50, 0 },
   { 11, 0, 128u, 1, 1, 0, 7898, 1, 0x3030000, 0, selectors25, fields50, 0 },
   { 12, 0, 128u, 1, 1, 0, 7898, 2, 0x3030000, 0, selectors26, fields50, 0 },
   { 14, 0, 128u, 1, 1, 0, 7898, 1, 0x3030000, 0, selectors27, fields50, 0 },
   { 15, 0, 128u, 1, 1, 0, 7898, 1, 0x3030000, 0, selectors28, fields50, 0 },
   { 16, 0, 128u, 1, 1, 0, 7898, 1, 0x3030000, 0, selectors28, fields50, 0 },
};

constexpr U8 chipsOfIppbFlpbResContextEnablers[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfIppbFlpbResContextEnablers[] = {
   { 10, 0, 64u, 2, 1, 0, 7934, 2, 0x1680000, 0, selectors24, fields51, 0 },
   { 11, 0, 64u, 2, 1, 0, 7934, 1, 0x1680000, 0, selectors25, fields52, 0 },
   { 12, 0, 64u, 2, 1, 0, 7934, 2, 0x1680000, 0, selectors26, fields53, 0 },
   { 14, 0, 64u, 2, 1, 0, 7934, 1, 0x1680000, 0, selectors27, fields53, 0 },
   { 15, 0, 64u, 2, 1, 0, 7934, 1, 0x1680000, 0, selectors28, fields52, 0 },
   { 16, 0, 64u, 2, 1, 0, 7934, 1, 0x1680000, 0, selectors28, fields52, 0 },
};

constexpr U8 chipsOfIppbIpv4ActionProfilesCfg[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfIppbIpv4ActionProfilesCfg[] = {
   { 10, 0, 0u, 2, 1, 0, 54225, 2, 0x111, 0, selectors24, fields54, 0 },
   { 11, 0, 0u, 2, 1, 0, 54225, 1, 0x111, 0, selectors25, fields54, 0 },
   { 12, 0, 0u, 2, 1, 0, 54225, 2, 0x111, 0, selectors26, fields55, 0 },
   { 14, 0, 0u, 2, 1, 0, 54225, 1, 0x111, 0, selectors27, fields55, 0 },
   { 15, 0, 0u, 2, 1, 0, 54225, 1, 0x111, 0, selectors28, fields54, 0 },
   { 16, 0, 0u, 2, 1, 0, 54225, 1, 0x111, 0, selectors28, fields55, 0 },
};

constexpr U8 chipsOfIppbIpv6ActionProfiles0Cfg[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfIppbIpv6ActionProfiles0Cfg[] = {
   { 10, 0, 0u, 3, 1, 0, 54227, 2, 0x113, 0, selectors24, fields56, 0 },
   { 11, 0, 0u, 3, 1, 0, 54227, 1, 0x113, 0, selectors25, fields56, 0 },
   { 12, 0, 0u, 3, 1, 0, 54227, 2, 0x113, 0, selectors26, fields56, 0 },
   { 14, 0, 0u, 3, 1, 0, 54227, 1, 0x113, 0, selectors27, fields56, 0 },
   { 15, 0, 0u, 3, 1, 0, 54227, 1, 0x113, 0, selectors28, fields56, 0 },
   { 16, 0, 0u, 3, 1, 0, 54227, 1, 0x113, 0, selectors28, fields56, 0 },
};

constexpr U8 chipsOfIppbLifMcBridgeFallbackAllow[] = { 12, 14 };
constexpr Layout layoutsOfIppbLifMcBridgeFallbackAllow[] = {
   { 12, 0, 0u, 8, 1, 0, 54258, 2, 0x231, 0, selectors26, fields57, 0 },
   { 14, 0, 0u, 8, 1, 0, 54258, 1, 0x231, 0, selectors27, fields57, 0 },
};

constexpr U8 chipsOfIppbProgTrapCfg[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfIppbProgTrapCfg[] = {
   { 10, 0, 0u, 9, 8, 0, 54316, 2, 0x165, 1, selectors24, fields58, 0 },
   { 11, 0, 0u, 9, 8, 0, 54316, 1, 0x165, 1, selectors25, fields58, 0 },
   { 12, 0, 0u, 9, 8, 0, 54316, 2, 0x163, 1, selectors26, fields58, 0 },
   { 14, 0, 0u, 9, 8, 0, 54316, 1, 0x163, 1, selectors27, fields58, 0 },
   { 15, 0, 0u, 9, 8, 0, 54316, 1, 0x165, 1, selectors28, fields58, 0 },
   { 16, 0, 0u, 9, 8, 0, 54316, 1, 0x165, 1, selectors28, fields58, 0 },
};

constexpr U8 chipsOfIppbTtl0ActionProfile[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfIppbTtl0ActionProfile[] = {
   { 10, 0, 0u, 2, 1, 0, 54353, 2, 0x207, 0, selectors24, fields59, 0 },
   { 11, 0, 0u, 2, 1, 0, 54353, 1, 0x207, 0, selectors25, fields59, 0 },
   { 12, 0, 0u, 2, 1, 0, 54353, 2, 0x205, 0, selectors26, fields59, 0 },
   { 14, 0, 0u, 2, 1, 0, 54353, 1, 0x205, 0, selectors27, fields59, 0 },
   { 15, 0, 0u, 2, 1, 0, 54353, 1, 0x207, 0, selectors28, fields59, 0 },
   { 16, 0, 0u, 2, 1, 0, 54353, 1, 0x207, 0, selectors28, fields59, 0 },
};

constexpr U8 chipsOfIppcInLifProfileCsFlags[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfIppcInLifProfileCsFlags[] = {
   { 10, 0, 256u, 1, 1, 0, 8048, 2, 0x9f0000, 0, selectors43, fields60, 0 },
   { 11, 0, 256u, 1, 1, 0, 8048, 1, 0x9f0000, 0, selectors44, fields60, 0 },
   { 12, 0, 256u, 1, 1, 0, 8048, 2, 0x9f0000, 0, selectors45, fields60, 0 },
   { 14, 0, 256u, 1, 1, 0, 8048, 1, 0x9f0000, 0, selectors46, fields60, 0 },
   { 15, 0, 256u, 1, 1, 0, 8048, 1, 0x9f0000, 0, selectors47, fields60, 0 },
   { 16, 0, 256u, 1, 1, 0, 8048, 1, 0x9f0000, 0, selectors47, fields60, 0 },
   { 10, 1, 256u, 1, 1, 0, 8049, 2, 0xa00000, 0, selectors43, fields60, 0 },
   { 11, 1, 256u, 1, 1, 0, 8049, 1, 0xa00000, 0, selectors44, fields60, 0 },
   { 12, 1, 256u, 1, 1, 0, 8049, 2, 0xa00000, 0, selectors45, fields60, 0 },
   { 14, 1, 256u, 1, 1, 0, 8049, 1, 0xa00000, 0, selectors46, fields60, 0 },
   { 15, 1, 256u, 1, 1, 0, 8049, 1, 0xa00000, 0, selectors47, fields60, 0 },
   { 16, 1, 256u, 1, 1, 0, 8049, 1, 0xa00000, 0, selectors47, fields60, 0 },
};

constexpr U8 chipsOfIppdFerTrapCfg[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfIppdFerTrapCfg[] = {
   { 10, 0, 0u, 1, 8, 0, 54522, 2, 0x1f7, 1, selectors48, fields61, 0 },
   { 11, 0, 0u, 1, 8, 0, 54522, 1, 0x1f3, 1, selectors49, fields61, 0 },
   { 12, 0, 0u, 1, 8, 0, 54522, 2, 0x1f3, 1, selectors50, fields61, 0 },
   { 14, 0, 0u, 1, 8, 0, 54522, 1, 0x1f3, 1, selectors51, fields61, 0 },
   { 15, 0, 0u, 1, 8, 0, 54522, 1, 0x1f3, 1, selectors52, fields61, 0 },
   { 16, 0, 0u, 1, 8, 0, 54522, 1, 0x1f3, 1, selectors52, fields61, 0 },
};

constexpr U8 chipsOfIppdInLifProfileMap[] = { 12, 14, 15, 16 };
constexpr Layout layoutsOfIppdInLifProfileMap[] = {
   { 12, 0, 256u, 1, 1, 0, 8156, 2, 0x20e0000, 0, selectors50, fields62, 0 },
   { 14, 0, 256u, 1, 1, 0, 8156, 1, 0x20e0000, 0, selectors51, fields62, 0 },
   { 15, 0, 256u, 1, 1, 0, 8156, 1, 0x20e0000, 0, selectors52, fields62, 0 },
   { 16, 0, 256u, 1, 1, 0, 8156, 1, 0x20e0000, 0, selectors52, fields62, 0 },
};

constexpr U8 chipsOfIppdInLifProfileTable[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfIppdInLifProfileTable[] = {
   { 10, 0, 256u, 1, 1, 0, 8157, 2, 0x1090000, 0, selectors48, fields63, 0 },
   { 11, 0, 256u, 1, 1, 0, 8157, 1, 0x1090000, 0, selectors49, fields64, 0 },
   { 12, 0, 256u, 1, 1, 0, 8157, 2, 0x1190000, 0, selectors50, fields64, 0 },
   { 14, 0, 256u, 1, 1, 0, 8157, 1, 0x1190000, 0, selectors51, fields64, 0 },
   { 15, 0, 256u, 1, 1, 0, 8157, 1, 0x1090000, 0, selectors52, fields64, 0 },
   { 16, 0, 256u, 1, 1, 0, 8157, 1, 0x1090000, 0, selectors52, fields64, 0 },
};

constexpr U8 chipsOfIppdPphAttributesByEei[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfIppdPphAttributesByEei[] = {
   { 10, 0, 16u, 1, 1, 0, 8193, 2, 0x2020000, 0, selectors48, fields65, 0 },
   { 11, 0, 16u, 1, 1, 0, 8193, 1, 0x2020000, 0, selectors49, fields65, 0 },
   { 12, 0, 16u, 1, 1, 0, 8193, 2, 0x2020000, 0, selectors50, fields65, 0 },
   { 14, 0, 16u, 1, 1, 0, 8193, 1, 0x2020000, 0, selectors51, fields65, 0 },
   { 15, 0, 16u, 1, 1, 0, 8193, 1, 0x2020000, 0, selectors52, fields65, 0 },
   { 16, 0, 16u, 1, 1, 0, 8193, 1, 0x2020000, 0, selectors52, fields65, 0 },
};

constexpr U8 chipsOfIppeRecycFwdProfileMapping[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfIppeRecycFwdProfileMapping[] = {
   { 10, 0, 0u, 7, 1, 0, 54717, 2, 0x130, 0, selectors53, fields66, 0 },
   { 11, 0, 0u, 7, 1, 0, 54717, 1, 0x130, 0, selectors54, fields66, 0 },
   { 12, 0, 0u, 7, 1, 0, 54717, 2, 0x130, 0, selectors55, fields66, 0 },
   { 14, 0, 0u, 7, 1, 0, 54717, 1, 0x130, 0, selectors56, fields66, 0 },
   { 15, 0, 0u, 7, 1, 0, 54717, 1, 0x130, 0, selectors57, fields66, 0 },
   { 16, 0, 0u, 7, 1, 0, 54717, 1, 0x130, 0, selectors57, fields66, 0 },
};

constexpr U8 chipsOfIpv4PcremFwdDestPcrem[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfIpv4PcremFwdDestPcrem[] = {
   { 10, 0, 1024u, 10, 1, 0, 9599, 1, 0x27000, 0, selectors58, fields67, 0 },
   { 11, 0, 1024u, 10, 1, 0, 9599, 1, 0x23000, 0, selectors13, fields67, 0 },
   { 12, 0, 1024u, 10, 1, 0, 9599, 1, 0x23000, 0, selectors59, fields67, 0 },
   { 14, 0, 1024u, 10, 1, 0, 9599, 1, 0x23000, 0, selectors59, fields67, 0 },
   { 15, 0, 1024u, 10, 1, 0, 9599, 1, 0x23000, 0, selectors60, fields68, 0 },
   { 16, 0, 1024u, 10, 1, 0, 9599, 1, 0x23000, 0, selectors60, fields68, 0 },
};

constexpr U8 chipsOfMappingFwdInfoToEnTerm[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfMappingFwdInfoToEnTerm[] = {
   { 10, 0, 0u, 4, 1, 0, 59140, 2, 0x210, 0, selectors61, fields69, 0 },
   { 11, 0, 0u, 4, 1, 0, 59140, 1, 0x210, 0, selectors62, fields69, 0 },
   { 12, 0, 0u, 4, 1, 0, 59140, 2, 0x210, 0, selectors63, fields69, 0 },
   { 14, 0, 0u, 4, 1, 0, 59140, 1, 0x210, 0, selectors33, fields69, 0 },
   { 15, 0, 0u, 4, 1, 0, 59140, 1, 0x210, 0, selectors64, fields69, 0 },
   { 16, 0, 0u, 4, 1, 0, 59140, 1, 0x210, 0, selectors64, fields69, 0 },
   { 10, 1, 0u, 4, 1, 0, 59086, 2, 0x210, 0, selectors65, fields69, 0 },
   { 11, 1, 0u, 4, 1, 0, 59086, 1, 0x210, 0, selectors66, fields69, 0 },
   { 12, 1, 0u, 4, 1, 0, 59086, 2, 0x210, 0, selectors67, fields69, 0 },
   { 14, 1, 0u, 4, 1, 0, 59086, 1, 0x210, 0, selectors68, fields69, 0 },
   { 15, 1, 0u, 4, 1, 0, 59086, 1, 0x210, 0, selectors69, fields69, 0 },
   { 16, 1, 0u, 4, 1, 0, 59086, 1, 0x210, 0, selectors69, fields69, 0 },
};

constexpr U8 chipsOfPpmcDoubleOutLifSwap[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfPpmcDoubleOutLifSwap[] = {
   { 10, 0, 1024u, 6, 1, 0, 9602, 1, 0x45000, 0, selectors58, fields70, 0 },
   { 11, 0, 1024u, 6, 1, 0, 9602, 1, 0x38000, 0, selectors13, fields70, 0 },
   { 12, 0, 1024u, 6, 1, 0, 9602, 1, 0x38000, 0, selectors59, fields70, 0 },
   { 14, 0, 1024u, 6, 1, 0, 9602, 1, 0x38000, 0, selectors59, fields70, 0 },
   { 15, 0, 1024u, 6, 1, 0, 9602, 1, 0x38000, 0, selectors60, fields71, 0 },
   { 16, 0, 1024u, 6, 1, 0, 9602, 1, 0x38000, 0, selectors60, fields71, 0 },
};

constexpr U8 chipsOfPrivateHostReducedVrf[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfPrivateHostReducedVrf[] = {
   { 10, 0, 1024u, 10, 1, 0, 9599, 1, 0x27000, 0, selectors58, fields72, 0 },
   { 11, 0, 1024u, 10, 1, 0, 9599, 1, 0x23000, 0, selectors13, fields72, 0 },
   { 12, 0, 1024u, 10, 1, 0, 9599, 1, 0x23000, 0, selectors59, fields72, 0 },
   { 14, 0, 1024u, 10, 1, 0, 9599, 1, 0x23000, 0, selectors59, fields72, 0 },
   { 15, 0, 1024u, 10, 1, 0, 9599, 1, 0x23000, 0, selectors60, fields73, 0 },
   { 16, 0, 1024u, 10, 1, 0, 9599, 1, 0x23000, 0, selectors60, fields73, 0 },
};

constexpr U8 chipsOfPweInlifCsProfile[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfPweInlifCsProfile[] = {
   { 10, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors39, fields74, 0 },
   { 11, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors40, fields74, 0 },
   { 12, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors41, fields74, 0 },
   { 14, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors41, fields74, 0 },
   { 15, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors42, fields74, 0 },
   { 16, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors42, fields74, 0 },
};

constexpr U8 chipsOfRoutingInlifCsProfile[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfRoutingInlifCsProfile[] = {
   { 10, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors39, fields75, 0 },
   { 11, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors40, fields75, 0 },
   { 12, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors41, fields75, 0 },
   { 14, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors41, fields75, 0 },
   { 15, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors42, fields75, 0 },
   { 16, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors42, fields75, 0 },
};

constexpr U8 chipsOfRoutingVeloroInlifCsProfile[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfRoutingVeloroInlifCsProfile[] = {
   { 10, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors39, fields76, 0 },
   { 11, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors40, fields76, 0 },
   { 12, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors41, fields76, 0 },
   { 14, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors41, fields76, 0 },
   { 15, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors42, fields76, 0 },
   { 16, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors42, fields76, 0 },
};

constexpr U8 chipsOfSystemHeaderPph[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfSystemHeaderPph[] = {
   { 10, 0, 0u, 1, 1, 0, 59162, 2, 0x24a, 0, selectors61, fields77, 0 },
   { 11, 0, 0u, 1, 1, 0, 59162, 1, 0x24a, 0, selectors62, fields77, 0 },
   { 12, 0, 0u, 1, 1, 0, 59162, 2, 0x24a, 0, selectors63, fields78, 0 },
   { 14, 0, 0u, 1, 1, 0, 59162, 1, 0x24a, 0, selectors33, fields78, 0 },
   { 15, 0, 0u, 1, 1, 0, 59162, 1, 0x24a, 0, selectors64, fields77, 0 },
   { 16, 0, 0u, 1, 1, 0, 59162, 1, 0x24a, 0, selectors64, fields77, 0 },
   { 10, 1, 0u, 1, 1, 0, 59108, 2, 0x24a, 0, selectors65, fields77, 0 },
   { 11, 1, 0u, 1, 1, 0, 59108, 1, 0x24a, 0, selectors66, fields77, 0 },
   { 12, 1, 0u, 1, 1, 0, 59108, 2, 0x24a, 0, selectors67, fields78, 0 },
   { 14, 1, 0u, 1, 1, 0, 59108, 1, 0x24a, 0, selectors68, fields78, 0 },
   { 15, 1, 0u, 1, 1, 0, 59108, 1, 0x24a, 0, selectors69, fields77, 0 },
   { 16, 1, 0u, 1, 1, 0, 59108, 1, 0x24a, 0, selectors69, fields77, 0 },
};

constexpr U8 chipsOfTerminateNetworkHeaders[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfTerminateNetworkHeaders[] = {
   { 10, 0, 0u, 4, 1, 0, 54546, 2, 0x308, 0, selectors48, fields79, 0 },
   { 11, 0, 0u, 4, 1, 0, 54546, 1, 0x308, 0, selectors49, fields79, 0 },
   { 12, 0, 0u, 4, 1, 0, 54546, 2, 0x30b, 0, selectors50, fields79, 0 },
   { 14, 0, 0u, 4, 1, 0, 54546, 1, 0x30b, 0, selectors51, fields79, 0 },
   { 15, 0, 0u, 4, 1, 0, 54546, 1, 0x308, 0, selectors52, fields79, 0 },
   { 16, 0, 0u, 4, 1, 0, 54546, 1, 0x308, 0, selectors52, fields79, 0 },
};

constexpr U8 chipsOfUnknownDaProfile[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfUnknownDaProfile[] = {
   { 10, 0, 32u, 1, 1, 0, 8045, 2, 0x1420000, 0, selectors24, fields80, 0 },
   { 11, 0, 32u, 1, 1, 0, 8045, 1, 0x1420000, 0, selectors25, fields80, 0 },
   { 12, 0, 32u, 1, 1, 0, 8045, 2, 0x1420000, 0, selectors26, fields80, 0 },
   { 14, 0, 32u, 1, 1, 0, 8045, 1, 0x1420000, 0, selectors27, fields80, 0 },
   { 15, 0, 32u, 1, 1, 0, 8045, 1, 0x1420000, 0, selectors28, fields80, 0 },
   { 16, 0, 32u, 1, 1, 0, 8045, 1, 0x1420000, 0, selectors28, fields80, 0 },
};

constexpr U8 chipsOfVeloroL2FodoProfile[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfVeloroL2FodoProfile[] = {
   { 10, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors39, fields81, 0 },
   { 11, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors40, fields81, 0 },
   { 12, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors41, fields81, 0 },
   { 14, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors41, fields81, 0 },
   { 15, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors42, fields81, 0 },
   { 16, 0, 4294967295u, 20, 1, 0, -1, 1, 0x0, 0, selectors42, fields81, 0 },
};

constexpr U8 chipsOfVsiProfileEnablers[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfVsiProfileEnablers[] = {
   { 10, 0, 256u, 1, 3, 0, 8285, 2, 0x900000, 256, selectors29, fields82, 0 },
   { 11, 0, 256u, 1, 3, 0, 8285, 1, 0x900000, 256, selectors30, fields82, 0 },
   { 12, 0, 256u, 1, 3, 0, 8285, 2, 0x900000, 256, selectors31, fields82, 0 },
   { 14, 0, 256u, 1, 3, 0, 8285, 1, 0x900000, 256, selectors32, fields82, 0 },
   { 15, 0, 256u, 1, 3, 0, 8285, 1, 0x900000, 256, selectors33, fields82, 0 },
   { 16, 0, 256u, 1, 3, 0, 8285, 1, 0x900000, 256, selectors33, fields82, 0 },
   { 10, 1, 256u, 1, 2, 3, 7785, 2, 0x8d0300, 256, selectors34, fields82, 3 },
   { 11, 1, 256u, 1, 2, 3, 7785, 1, 0x8d0300, 256, selectors35, fields82, 3 },
   { 12, 1, 256u, 1, 2, 3, 7785, 2, 0x8d0300, 256, selectors36, fields82, 3 },
   { 14, 1, 256u, 1, 2, 3, 7785, 1, 0x8d0300, 256, selectors37, fields82, 3 },
   { 15, 1, 256u, 1, 2, 3, 7785, 1, 0x8d0300, 256, selectors38, fields82, 3 },
   { 16, 1, 256u, 1, 2, 3, 7785, 1, 0x8d0300, 256, selectors38, fields82, 3 },
};

constexpr U8 chipsOfVsiProfileFlags[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfVsiProfileFlags[] = {
   { 10, 0, 128u, 2, 1, 0, 8268, 2, 0xb70000, 0, selectors29, fields83, 0 },
   { 11, 0, 128u, 2, 1, 0, 8268, 1, 0xb70000, 0, selectors30, fields83, 0 },
   { 12, 0, 128u, 2, 1, 0, 8268, 2, 0xb70000, 0, selectors31, fields83, 0 },
   { 14, 0, 128u, 2, 1, 0, 8268, 1, 0xb70000, 0, selectors32, fields83, 0 },
   { 15, 0, 128u, 2, 1, 0, 8268, 1, 0xb70000, 0, selectors33, fields83, 0 },
   { 16, 0, 128u, 2, 1, 0, 8268, 1, 0xb70000, 0, selectors33, fields83, 0 },
   { 10, 1, 128u, 2, 1, 0, 7770, 2, 0xb50000, 0, selectors34, fields83, 0 },
   { 11, 1, 128u, 2, 1, 0, 7770, 1, 0xb50000, 0, selectors35, fields83, 0 },
   { 12, 1, 128u, 2, 1, 0, 7770, 2, 0xb50000, 0, selectors36, fields83, 0 },
   { 14, 1, 128u, 2, 1, 0, 7770, 1, 0xb50000, 0, selectors37, fields83, 0 },
   { 15, 1, 128u, 2, 1, 0, 7770, 1, 0xb50000, 0, selectors38, fields83, 0 },
   { 16, 1, 128u, 2, 1, 0, 7770, 1, 0xb50000, 0, selectors38, fields83, 0 },
};

constexpr U8 chipsOfVttTrapStrengths3[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfVttTrapStrengths3[] = {
   { 10, 0, 0u, 2, 1, 0, 54906, 2, 0x16d, 0, selectors29, fields84, 0 },
   { 11, 0, 0u, 2, 1, 0, 54906, 1, 0x175, 0, selectors30, fields84, 0 },
   { 12, 0, 0u, 2, 1, 0, 54906, 2, 0x175, 0, selectors31, fields84, 0 },
   { 14, 0, 0u, 2, 1, 0, 54906, 1, 0x175, 0, selectors32, fields84, 0 },
   { 15, 0, 0u, 2, 1, 0, 54906, 1, 0x175, 0, selectors33, fields84, 0 },
   { 16, 0, 0u, 2, 1, 0, 54906, 1, 0x175, 0, selectors33, fields84, 0 },
   { 10, 1, 0u, 2, 1, 0, 54135, 2, 0x16f, 0, selectors34, fields84, 0 },
   { 11, 1, 0u, 2, 1, 0, 54135, 1, 0x16f, 0, selectors35, fields84, 0 },
   { 12, 1, 0u, 2, 1, 0, 54135, 2, 0x16f, 0, selectors36, fields84, 0 },
   { 14, 1, 0u, 2, 1, 0, 54135, 1, 0x16f, 0, selectors37, fields84, 0 },
   { 15, 1, 0u, 2, 1, 0, 54135, 1, 0x16f, 0, selectors38, fields84, 0 },
   { 16, 1, 0u, 2, 1, 0, 54135, 1, 0x16f, 0, selectors38, fields84, 0 },
};

constexpr U8 chipsOfVttTrapStrengths4[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfVttTrapStrengths4[] = {
   { 10, 0, 0u, 2, 1, 0, 54907, 2, 0x16e, 0, selectors29, fields85, 0 },
   { 11, 0, 0u, 2, 1, 0, 54907, 1, 0x177, 0, selectors30, fields85, 0 },
   { 12, 0, 0u, 2, 1, 0, 54907, 2, 0x177, 0, selectors31, fields85, 0 },
   { 14, 0, 0u, 2, 1, 0, 54907, 1, 0x177, 0, selectors32, fields85, 0 },
   { 15, 0, 0u, 2, 1, 0, 54907, 1, 0x177, 0, selectors33, fields85, 0 },
   { 16, 0, 0u, 2, 1, 0, 54907, 1, 0x177, 0, selectors33, fields85, 0 },
   { 10, 1, 0u, 2, 1, 0, 54136, 2, 0x170, 0, selectors34, fields85, 0 },
   { 11, 1, 0u, 2, 1, 0, 54136, 1, 0x170, 0, selectors35, fields85, 0 },
   { 12, 1, 0u, 2, 1, 0, 54136, 2, 0x170, 0, selectors36, fields85, 0 },
   { 14, 1, 0u, 2, 1, 0, 54136, 1, 0x170, 0, selectors37, fields85, 0 },
   { 15, 1, 0u, 2, 1, 0, 54136, 1, 0x170, 0, selectors38, fields85, 0 },
   { 16, 1, 0u, 2, 1, 0, 54136, 1, 0x170, 0, selectors38, fields85, 0 },
};

constexpr U8 chipsOfVttTrapStrengths5[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfVttTrapStrengths5[] = {
   { 10, 0, 0u, 2, 1, 0, 54908, 2, 0x16f, 0, selectors29, fields86, 0 },
   { 11, 0, 0u, 2, 1, 0, 54908, 1, 0x179, 0, selectors30, fields86, 0 },
   { 12, 0, 0u, 2, 1, 0, 54908, 2, 0x179, 0, selectors31, fields86, 0 },
   { 14, 0, 0u, 2, 1, 0, 54908, 1, 0x179, 0, selectors32, fields86, 0 },
   { 15, 0, 0u, 2, 1, 0, 54908, 1, 0x179, 0, selectors33, fields86, 0 },
   { 16, 0, 0u, 2, 1, 0, 54908, 1, 0x179, 0, selectors33, fields86, 0 },
   { 10, 1, 0u, 2, 1, 0, 54137, 2, 0x171, 0, selectors34, fields86, 0 },
   { 11, 1, 0u, 2, 1, 0, 54137, 1, 0x172, 0, selectors35, fields86, 0 },
   { 12, 1, 0u, 2, 1, 0, 54137, 2, 0x172, 0, selectors36, fields86, 0 },
   { 14, 1, 0u, 2, 1, 0, 54137, 1, 0x172, 0, selectors37, fields86, 0 },
   { 15, 1, 0u, 2, 1, 0, 54137, 1, 0x172, 0, selectors38, fields86, 0 },
   { 16, 1, 0u, 2, 1, 0, 54137, 1, 0x172, 0, selectors38, fields86, 0 },
};

constexpr U8 chipsOfVttTrapStrengths6[] = { 10, 11, 12, 14, 15, 16 };
constexpr Layout layoutsOfVttTrapStrengths6[] = {
   { 10, 0, 0u, 2, 1, 0, 54909, 2, 0x170, 0, selectors29, fields87, 0 },
   { 11, 0, 0u, 2, 1, 0, 54909, 1, 0x17b, 0, selectors30, fields87, 0 },
   { 12, 0, 0u, 2, 1, 0, 54909, 2, 0x17b, 0, selectors31, fields87, 0 },
   { 14, 0, 0u, 2, 1, 0, 54909, 1, 0x17b, 0, selectors32, fields87, 0 },
   { 15, 0, 0u, 2, 1, 0, 54909, 1, 0x17b, 0, selectors33, fields87, 0 },
   { 16, 0, 0u, 2, 1, 0, 54909, 1, 0x17b, 0, selectors33, fields87, 0 },
   { 10, 1, 0u, 2, 1, 0, 54138, 2, 0x172, 0, selectors34, fields87, 0 },
   { 11, 1, 0u, 2, 1, 0, 54138, 1, 0x173, 0, selectors35, fields87, 0 },
   { 12, 1, 0u, 2, 1, 0, 54138, 2, 0x173, 0, selectors36, fields87, 0 },
   { 14, 1, 0u, 2, 1, 0, 54138, 1, 0x173, 0, selectors37, fields87, 0 },
   { 15, 1, 0u, 2, 1, 0, 54138, 1, 0x173, 0, selectors38, fields87, 0 },
   { 16, 1, 0u, 2, 1, 0, 54138, 1, 0x173, 0, selectors38, fields87, 0 },
};

constexpr Table allTables[] = {
   { "AdditionalHeadersMapTable0", 0, true, true, chipsOfAdditionalHeadersMapTable0, 2, layoutsOfAdditionalHeadersMapTable0 },
   { "CgmSnifTmTable", 1, true, true, chipsOfCgmSnifTmTable, 1, layoutsOfCgmSnifTmTable },
   { "EgressOutrifMaxValue", 2, false, true, chipsOfEgressOutrifMaxValue, 3, layoutsOfEgressOutrifMaxValue },
   { "EnableKapsInterfaceDefault", 3, false, true, chipsOfEnableKapsInterfaceDefault, 1, layoutsOfEnableKapsInterfaceDefault },
   { "EnablersVectors", 4, true, true, chipsOfEnablersVectors, 2, layoutsOfEnablersVectors },
   { "ErppCfgMappingOutLifProfile", 5, true, true, chipsOfErppCfgMappingOutLifProfile, 1, layoutsOfErppCfgMappingOutLifProfile },
   { "ErppCfgSplitHorizonFilter", 6, false, true, chipsOfErppCfgSplitHorizonFilter, 1, layoutsOfErppCfgSplitHorizonFilter },
   { "ErppInlifOrientationMap", 7, true, true, chipsOfErppInlifOrientationMap, 1, layoutsOfErppInlifOrientationMap },
   { "EthernetTrap", 8, false, true, chipsOfEthernetTrap, 2, layoutsOfEthernetTrap },
   { "EtppCfgFwdDoNotTtlDecrement", 9, false, true, chipsOfEtppCfgFwdDoNotTtlDecrement, 1, layoutsOfEtppCfgFwdDoNotTtlDecrement },
   { "EtppCfgRifInStack", 10, false, true, chipsOfEtppCfgRifInStack, 1, layoutsOfEtppCfgRifInStack },
   { "EtppCfgSplitHorizonFilter", 11, false, true, chipsOfEtppCfgSplitHorizonFilter, 1, layoutsOfEtppCfgSplitHorizonFilter },
   { "EtppCfgSplitHorizonTrapParams", 12, false, true, chipsOfEtppCfgSplitHorizonTrapParams, 1, layoutsOfEtppCfgSplitHorizonTrapParams },
   { "EtppEnc1ContextSelectionPortProfile", 13, true, true, chipsOfEtppEnc1ContextSelectionPortProfile, 1, layoutsOfEtppEnc1ContextSelectionPortProfile },
   { "EtppEnc2ContextSelectionPortProfile", 14, true, true, chipsOfEtppEnc2ContextSelectionPortProfile, 1, layoutsOfEtppEnc2ContextSelectionPortProfile },
   { "EtppEnc3ContextSelectionPortProfile", 15, true, true, chipsOfEtppEnc3ContextSelectionPortProfile, 1, layoutsOfEtppEnc3ContextSelectionPortProfile },
   { "EtppEnc4ContextSelectionPortProfile", 16, true, true, chipsOfEtppEnc4ContextSelectionPortProfile, 1, layoutsOfEtppEnc4ContextSelectionPortProfile },
   { "EtppEnc5ContextSelectionPortProfile", 17, true, true, chipsOfEtppEnc5ContextSelectionPortProfile, 1, layoutsOfEtppEnc5ContextSelectionPortProfile },
   { "EtppInlifOrientationMap", 18, true, true, chipsOfEtppInlifOrientationMap, 1, layoutsOfEtppInlifOrientationMap },
   { "EtppOutlifOrientationMap", 19, false, true, chipsOfEtppOutlifOrientationMap, 1, layoutsOfEtppOutlifOrientationMap },
   { "EtppTrapBitCruncherProgram", 20, true, true, chipsOfEtppTrapBitCruncherProgram, 1, layoutsOfEtppTrapBitCruncherProgram },
   { "EtppTrapContextSelectionPortProfile", 21, true, true, chipsOfEtppTrapContextSelectionPortProfile, 1, layoutsOfEtppTrapContextSelectionPortProfile },
   { "EtppaPrpFesProgramTable", 22, true, true, chipsOfEtppaPrpFesProgramTable, 1, layoutsOfEtppaPrpFesProgramTable },
   { "EtppbEnc5Arr0FormatCfg", 23, true, true, chipsOfEtppbEnc5Arr0FormatCfg, 1, layoutsOfEtppbEnc5Arr0FormatCfg },
   { "EtppcEnc1Arr0FormatCfg", 24, true, true, chipsOfEtppcEnc1Arr0FormatCfg, 1, layoutsOfEtppcEnc1Arr0FormatCfg },
   { "EtppcEncapsulation2ContextSelectionCam", 25, true, true, chipsOfEtppcEncapsulation2ContextSelectionCam, 1, layoutsOfEtppcEncapsulation2ContextSelectionCam },
   { "FfcInstruction", 26, true, false, chipsOfFfcInstruction, 4, layoutsOfFfcInstruction },
   { "FlpKapsStrengthMapping", 27, true, true, chipsOfFlpKapsStrengthMapping, 1, layoutsOfFlpKapsStrengthMapping },
   { "FlpRpfFormatConfiguration", 28, true, true, chipsOfFlpRpfFormatConfiguration, 1, layoutsOfFlpRpfFormatConfiguration },
   { "FlpaInitContextEnablers", 29, true, true, chipsOfFlpaInitContextEnablers, 1, layoutsOfFlpaInitContextEnablers },
   { "FlpaResContextEnablers", 30, true, true, chipsOfFlpaResContextEnablers, 1, layoutsOfFlpaResContextEnablers },
   { "FwdFfcTable", 31, true, true, chipsOfFwdFfcTable, 5, layoutsOfFwdFfcTable },
   { "FwdKbrTable", 32, true, true, chipsOfFwdKbrTable, 1, layoutsOfFwdKbrTable },
   { "InLifProfileCsFlagsLsb", 33, false, true, chipsOfInLifProfileCsFlagsLsb, 2, layoutsOfInLifProfileCsFlagsLsb },
   { "InLifProfileCsFlagsMsb", 34, false, true, chipsOfInLifProfileCsFlagsMsb, 2, layoutsOfInLifProfileCsFlagsMsb },
   { "IppaVtecsAction", 35, true, true, chipsOfIppaVtecsAction, 1, layoutsOfIppaVtecsAction },
   { "IppbFlpLePd0", 36, true, true, chipsOfIppbFlpLePd0, 1, layoutsOfIppbFlpLePd0 },
   { "IppbFlpLePd1", 37, true, true, chipsOfIppbFlpLePd1, 1, layoutsOfIppbFlpLePd1 },
   { "IppbFlpLePd2", 38, true, true, chipsOfIppbFlpLePd2, 1, layoutsOfIppbFlpLePd2 },
   { "IppbFlpPortProfileMap", 39, true, true, chipsOfIppbFlpPortProfileMap, 1, layoutsOfIppbFlpPortProfileMap },
   { "IppbFlpacsAction", 40, true, true, chipsOfIppbFlpacsAction, 1, layoutsOfIppbFlpacsAction },
   { "IppbFlpbResContextEnablers", 41, true, true, chipsOfIppbFlpbResContextEnablers, 1, layoutsOfIppbFlpbResContextEnablers },
   { "IppbIpv4ActionProfilesCfg", 42, false, true, chipsOfIppbIpv4ActionProfilesCfg, 1, layoutsOfIppbIpv4ActionProfilesCfg },
   { "IppbIpv6ActionProfiles0Cfg", 43, false, true, chipsOfIppbIpv6ActionProfiles0Cfg, 1, layoutsOfIppbIpv6ActionProfiles0Cfg },
   { "IppbLifMcBridgeFallbackAllow", 44, false, true, chipsOfIppbLifMcBridgeFallbackAllow, 1, layoutsOfIppbLifMcBridgeFallbackAllow },
   { "IppbProgTrapCfg", 45, false, true, chipsOfIppbProgTrapCfg, 1, layoutsOfIppbProgTrapCfg },
   { "IppbTtl0ActionProfile", 46, false, true, chipsOfIppbTtl0ActionProfile, 1, layoutsOfIppbTtl0ActionProfile },
   { "IppcInLifProfileCsFlags", 47, true, true, chipsOfIppcInLifProfileCsFlags, 2, layoutsOfIppcInLifProfileCsFlags },
   { "IppdFerTrapCfg", 48, false, true, chipsOfIppdFerTrapCfg, 1, layoutsOfIppdFerTrapCfg },
   { "IppdInLifProfileMap", 49, true, true, chipsOfIppdInLifProfileMap, 1, layoutsOfIppdInLifProfileMap },
   { "IppdInLifProfileTable", 50, true, true, chipsOfIppdInLifProfileTable, 1, layoutsOfIppdInLifProfileTable },
   { "IppdPphAttributesByEei", 51, true, true, chipsOfIppdPphAttributesByEei, 1, layoutsOfIppdPphAttributesByEei },
   { "IppeRecycFwdProfileMapping", 52, false, true, chipsOfIppeRecycFwdProfileMapping, 1, layoutsOfIppeRecycFwdProfileMapping },
   { "Ipv4PcremFwdDestPcrem", 53, true, true, chipsOfIpv4PcremFwdDestPcrem, 1, layoutsOfIpv4PcremFwdDestPcrem },
   { "MappingFwdInfoToEnTerm", 54, false, true, chipsOfMappingFwdInfoToEnTerm, 2, layoutsOfMappingFwdInfoToEnTerm },
   { "PpmcDoubleOutLifSwap", 55, true, true, chipsOfPpmcDoubleOutLifSwap, 1, layoutsOfPpmcDoubleOutLifSwap },
   { "PrivateHostReducedVrf", 56, true, true, chipsOfPrivateHostReducedVrf, 1, layoutsOfPrivateHostReducedVrf },
   { "PweInlifCsProfile", 57, true, false, chipsOfPweInlifCsProfile, 1, layoutsOfPweInlifCsProfile },
   { "RoutingInlifCsProfile", 58, true, false, chipsOfRoutingInlifCsProfile, 1, layoutsOfRoutingInlifCsProfile },
   { "RoutingVeloroInlifCsProfile", 59, true, false, chipsOfRoutingVeloroInlifCsProfile, 1, layoutsOfRoutingVeloroInlifCsProfile },
   { "SystemHeaderPph", 60, false, true, chipsOfSystemHeaderPph, 2, layoutsOfSystemHeaderPph },
   { "TerminateNetworkHeaders", 61, false, true, chipsOfTerminateNetworkHeaders, 1, layoutsOfTerminateNetworkHeaders },
   { "UnknownDaProfile", 62, true, true, chipsOfUnknownDaProfile, 1, layoutsOfUnknownDaProfile },
   { "VeloroL2FodoProfile", 63, true, false, chipsOfVeloroL2FodoProfile, 1, layoutsOfVeloroL2FodoProfile },
   { "VsiProfileEnablers", 64, true, true, chipsOfVsiProfileEnablers, 2, layoutsOfVsiProfileEnablers },
   { "VsiProfileFlags", 65, true, true, chipsOfVsiProfileFlags, 2, layoutsOfVsiProfileFlags },
   { "VttTrapStrengths3", 66, false, true, chipsOfVttTrapStrengths3, 2, layoutsOfVttTrapStrengths3 },
   { "VttTrapStrengths4", 67, false, true, chipsOfVttTrapStrengths4, 2, layoutsOfVttTrapStrengths4 },
   { "VttTrapStrengths5", 68, false, true, chipsOfVttTrapStrengths5, 2, layoutsOfVttTrapStrengths5 },
   { "VttTrapStrengths6", 69, false, true, chipsOfVttTrapStrengths6, 2, layoutsOfVttTrapStrengths6 },
};

} // namespace

std::span< Table const > tables() {
   return allTables;
}

Table const * table( std::string_view name ) {
   auto const found = std::lower_bound( std::begin( allTables ), std::end( allTables ), name, []( Table const & t, std::string_view n ) {
      return t.name < n;
   } );
   return found != std::end( allTables ) && found->name == name ? found : nullptr;
}

Layout const * layout( Table const & table, U8 chipType, U8 variant ) {
   auto const found = std::find_if( table.layouts.begin(), table.layouts.end(), [&]( Layout const & l ) {
      return l.chipType == chipType && l.variant == variant;
   } );
   return found == table.layouts.end() ? nullptr : &*found;
}

Field const * Layout::field( std::string_view name ) const {
   auto const found = std::find_if( fields.begin(), fields.end(), [&]( Field const & f ) { return f.name == name; } );
   return found == fields.end() ? nullptr : &*found;
}

char const * chipName( U8 chipType ) {
   switch ( chipType ) {
   case 10:
      return "BCM88690_B0";
   case 11:
      return "BCM88800_A0";
   case 12:
      return "BCM88850_A0";
   case 14:
      return "BCM88859_A2";
   case 15:
      return "BCM88480_A0";
   case 16:
      return "BCM88480_B0";
   default:
      return nullptr;
   }
}

} // namespace Catalogue
