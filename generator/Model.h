// What the catalogue says, resolved: for each table, each chip and each variant one layout with its fields. The readers
// make it, the checks judge it, and each output is written from it.
//
//    Model::Catalogue const catalogue = readCatalogue( "catalogue" );   // throws Error
//    for ( Model::Table const & table : catalogue.tables ) … table.layouts.at( { 10, 0 } ).fields …
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

// Something is wrong in a file of the catalogue: "<file>:<line>: <what, and what to do about it>".
class Error : public std::runtime_error {
 public:
   Error( std::string const & file, int line, std::string const & text )
      : std::runtime_error( file + ":" + std::to_string( line ) + ": " + text ) {}
};

namespace Model {

inline constexpr unsigned mostWords = 32; // of an entry
inline constexpr unsigned mostBits = 32 * mostWords;
inline constexpr unsigned mostVariants = 255; // a byte counts them

struct Chip {
   std::string name;
   unsigned number;
   unsigned instances; // physical copies of a table that does not say otherwise
};

// A run of bits under a name.
struct Field {
   std::string name;
   unsigned offset;
   unsigned width;
   bool view; // another view of bits that other fields hold
   int line;
};

struct Layout {
   std::optional< std::uint32_t > entries; // none: a register
   unsigned width = 0;                     // words
   unsigned arrayElements = 1;
   unsigned arrayIndexMin = 0;
   unsigned arrayIndexFirst = 0; // the first index that an address is given for
   std::optional< int > sdkDefinedId;
   unsigned instances = 0;
   int geometryLine = 0;

   std::uint32_t base = 0;
   unsigned arrayStep = 0; // 0: no array
   std::vector< std::pair< unsigned, unsigned > > selectors;
   int addressLine = 0;

   std::vector< Field > fields; // in the order in which they are declared
   Field const * field( std::string const & name ) const;
};

// Bits that a format fixes.
struct Tag {
   unsigned offset;
   unsigned width;
   unsigned value;
   int line;
};

using ChipVariant = std::pair< unsigned, unsigned >;

struct Table {
   std::string name;
   std::string file;
   bool isMemory = false;
   std::vector< unsigned > chips;
   unsigned variants = 1;
   std::map< ChipVariant, Layout > layouts;
   std::map< ChipVariant, std::vector< Tag > > tags;
   std::vector< std::string > indexed;    // runs of fields with an accessor by number
   std::vector< std::string > fieldNames; // of all layouts, in the order of their first mention

   unsigned fieldIndex( std::string const & field ) const;
   unsigned largestFieldWidth( std::string const & field ) const;
   unsigned largestWidth() const; // words
   bool hasTag() const { return !tags.empty(); }
   // Whether the field lies inside a tag: then it has no setter.
   bool readOnly( std::string const & field ) const;
   // The fields `run`0, `run`1, … in order.
   std::vector< std::string > runFields( std::string const & run ) const;
};

struct Catalogue {
   std::vector< Chip > chips;
   std::vector< Table > tables; // in alphabetical order: a table's place is its number
   std::map< std::string, unsigned > fieldIds;

   Chip const & chip( unsigned number ) const;
};

} // namespace Model
