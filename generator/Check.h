// What a catalogue must not say. Each finding is an Error at the line that has to change.
#pragma once

#include "generator/Model.h"

// Pairs of chip and variant without geometry, address or fields; selectors that are not as many as the copies; fields
// without bits or past the width; fields that overlap and are not declared views; names that would collide in the
// class.
void checkTable( Model::Table const & table, std::vector< Model::Chip > const & chips );

// Fields without an id, ids of no field, and ids that do not rise in alphabetical order without case.
void checkFieldIds( Model::Catalogue const & catalogue, std::string const & file );
