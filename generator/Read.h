// The catalogue's files.
//
// chips.yaml names the chips, field-ids.yaml numbers the fields of all tables, and each other file holds the table it
// is named after:
//
//    kind: memory                     # or register
//    chips: [BCM88690_B0, …]          # left out: all
//    variants: 2                      # left out: one
//    geometry:
//      - {entries: 32, width: 2, array: 3, sdkId: 8278}
//      - {variants: [1], entries: 32, width: 2, array: 2, firstIndex: 3, sdkId: 7780}
//    addresses:
//      - {chips: [BCM88690_B0], base: 0x930000, arrayStep: 32, selectors: [[18, 2], [0, 10]]}   # one pair for each
//      copy
//    fields:
//      - bits:
//          routingEnableVector: [0, 64]        # offset and width in bits
//          whole: [0, 64, view]                # another view of bits that other fields hold
//          slot0..3: {at: 64, width: 5, step: 5}
//      - chips: [BCM88480_A0]
//        without: [slot3]
//    indexed: [slot]                  # slotIs( index, value )
//    tag:
//      - {bits: [[27, 2, 1]]}         # offset, width, value that the format fixes
//
// Each block speaks of the chips and variants that it names, of all where it names none. A later block of fields
// changes what earlier ones said. `entries` is left out for a register, `array` where there is no array, `sdkId` where
// there is none; `instances` stands where it departs from chips.yaml. `accepts: [3, 4]` names the indices by which an
// array is addressed where they are not the chip's own.
#pragma once

#include "generator/Model.h"

#include <filesystem>

// Reads and checks the whole folder. Throws Error.
Model::Catalogue readCatalogue( std::filesystem::path const & folder );

std::vector< Model::Chip > readChips( std::string const & file );
std::map< std::string, unsigned > readFieldIds( std::string const & file );
Model::Table readTable( std::string const & file, std::vector< Model::Chip > const & chips );
