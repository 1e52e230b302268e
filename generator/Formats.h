// Pairs of chip and variant whose fields all lie alike share a format, and a field that lies at one place in every
// format needs no row.
#pragma once

#include "generator/Model.h"

struct Place {
   unsigned offset;
   unsigned width;
   friend bool operator==( Place const &, Place const & ) = default;
};

struct Formats {
   explicit Formats( Model::Table const & table );

   // By format, then by field of the class.
   std::vector< std::vector< std::optional< Place > > > rows;
   std::map< Model::ChipVariant, unsigned > formatOf;

   // The one place of a field; none where it depends on the format, or a format lacks it.
   std::optional< Place > onePlace( unsigned field ) const;
   // Whether a format has the field across the boundary of two words.
   bool acrossWords( unsigned field ) const;
};
