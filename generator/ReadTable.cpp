#include "generator/Read.h"
#include "generator/Yaml.h"

#include <algorithm>

namespace {

using namespace Model;

class TableReader {
 public:
   TableReader( std::string const & file, std::vector< Chip > const & chips )
      : root_( Yaml::load( file ) ), chips_( chips ) {
      table_.file = file;
      table_.name = std::filesystem::path( file ).stem().string();
   }

   Table read() {
      root_.allowKeys( { "kind", "chips", "variants", "geometry", "addresses", "fields", "indexed", "tag" } );
      readHead();
      for ( Yaml const & block : root_.at( "geometry" ).items() ) {
         readGeometry( block );
      }
      for ( Yaml const & block : root_.at( "addresses" ).items() ) {
         readAddress( block );
      }
      for ( Yaml const & block : root_.at( "fields" ).items() ) {
         readFields( block );
      }
      if ( root_.has( "indexed" ) ) {
         readIndexed( root_.at( "indexed" ) );
      }
      if ( root_.has( "tag" ) ) {
         for ( Yaml const & block : root_.at( "tag" ).items() ) {
            readTag( block );
         }
      }
      return std::move( table_ );
   }

 private:
   unsigned chipNumber( Yaml const & name ) const {
      auto const found =
         std::find_if( chips_.begin(), chips_.end(), [&]( auto const & c ) { return c.name == name.text(); } );
      if ( found == chips_.end() ) {
         name.fail( "unknown chip '" + name.text() + "'" );
      }
      return found->number;
   }

   void readHead() {
      std::string const kind = root_.at( "kind" ).text();
      if ( kind != "memory" && kind != "register" ) {
         root_.at( "kind" ).fail( "kind '" + kind + "' is neither memory nor register" );
      }
      table_.isMemory = kind == "memory";
      if ( root_.has( "chips" ) ) {
         for ( Yaml const & name : root_.at( "chips" ).items() ) {
            table_.chips.push_back( chipNumber( name ) );
         }
      } else {
         for ( Chip const & chip : chips_ ) {
            table_.chips.push_back( chip.number );
         }
      }
      if ( root_.has( "variants" ) ) {
         table_.variants = root_.at( "variants" ).number();
         if ( table_.variants == 0 || table_.variants > Model::mostVariants ) {
            root_.at( "variants" ).fail( "a table has 1 to " + std::to_string( Model::mostVariants ) + " variants" );
         }
      }
      for ( unsigned variant = 0; variant < table_.variants; ++variant ) {
         for ( unsigned const chip : table_.chips ) {
            table_.layouts[{ chip, variant }];
         }
      }
   }

   // The pairs that a block speaks of.
   std::vector< ChipVariant > pairs( Yaml const & block ) const {
      std::vector< unsigned > chips = table_.chips;
      if ( block.has( "chips" ) ) {
         chips.clear();
         for ( Yaml const & name : block.at( "chips" ).items() ) {
            chips.push_back( chipNumber( name ) );
            if ( std::find( table_.chips.begin(), table_.chips.end(), chips.back() ) == table_.chips.end() ) {
               name.fail( "the table does not exist on " + name.text() );
            }
         }
      }
      std::vector< unsigned > variants;
      if ( block.has( "variants" ) ) {
         for ( Yaml const & variant : block.at( "variants" ).items() ) {
            variants.push_back( variant.number() );
            if ( variants.back() >= table_.variants ) {
               variant.fail( "the table has no variant " + variant.text() );
            }
         }
      } else {
         for ( unsigned variant = 0; variant < table_.variants; ++variant ) {
            variants.push_back( variant );
         }
      }
      std::vector< ChipVariant > all;
      for ( unsigned const variant : variants ) {
         for ( unsigned const chip : chips ) {
            all.emplace_back( chip, variant );
         }
      }
      return all;
   }

   void readGeometry( Yaml const & block ) {
      block.allowKeys(
         { "chips", "variants", "entries", "width", "array", "firstIndex", "accepts", "instances", "sdkId" } );
      if ( block.has( "entries" ) != table_.isMemory ) {
         block.fail( table_.isMemory ? "'entries' is missing" : "a register has no 'entries'" );
      }
      for ( auto const & pair : pairs( block ) ) {
         Layout & layout = table_.layouts[pair];
         if ( layout.geometryLine != 0 ) {
            block.fail( "the geometry of " + named( pair ) + " was told in line " +
                        std::to_string( layout.geometryLine ) );
         }
         layout.geometryLine = block.line();
         if ( table_.isMemory ) {
            layout.entries = block.at( "entries" ).number();
         }
         layout.width = block.at( "width" ).number();
         layout.arrayElements = block.has( "array" ) ? block.at( "array" ).number() : 1;
         layout.arrayIndexMin = block.has( "firstIndex" ) ? block.at( "firstIndex" ).number() : 0;
         layout.arrayIndexFirst = layout.arrayIndexMin;
         if ( block.has( "accepts" ) ) {
            auto const range = block.at( "accepts" ).items( 2 );
            layout.arrayIndexFirst = range[0].number();
            if ( range[1].number() + 1 - range[0].number() != layout.arrayElements ) {
               block.at( "accepts" ).fail( "the indices are not as many as the elements of the array" );
            }
         }
         layout.instances = block.has( "instances" ) ? block.at( "instances" ).number() : chipInstances( pair.first );
         if ( block.has( "sdkId" ) ) {
            layout.sdkDefinedId = static_cast< int >( block.at( "sdkId" ).number() );
         }
      }
   }

   void readAddress( Yaml const & block ) {
      block.allowKeys( { "chips", "variants", "base", "arrayStep", "selectors" } );
      for ( auto const & pair : pairs( block ) ) {
         Layout & layout = table_.layouts[pair];
         if ( layout.addressLine != 0 ) {
            block.fail( "the address of " + named( pair ) + " was told in line " +
                        std::to_string( layout.addressLine ) );
         }
         layout.addressLine = block.line();
         layout.base = block.at( "base" ).number();
         layout.arrayStep = block.has( "arrayStep" ) ? block.at( "arrayStep" ).number() : 0;
         for ( Yaml const & selectors : block.at( "selectors" ).items() ) {
            auto const both = selectors.items( 2 );
            layout.selectors.emplace_back( both[0].number(), both[1].number() );
         }
      }
   }

   void readFields( Yaml const & block ) {
      block.allowKeys( { "chips", "variants", "bits", "without" } );
      auto const where = pairs( block );
      if ( block.has( "bits" ) ) {
         block.at( "bits" ).entries( [&]( std::string const & name, Yaml const & bits ) {
            for ( Field const & field : fieldsOf( name, bits ) ) {
               if ( table_.fieldIndex( field.name ) == table_.fieldNames.size() ) {
                  table_.fieldNames.push_back( field.name );
               }
               for ( auto const & pair : where ) {
                  put( table_.layouts[pair], field );
               }
            }
         } );
      }
      if ( block.has( "without" ) ) {
         for ( Yaml const & name : block.at( "without" ).items() ) {
            for ( auto const & pair : where ) {
               if ( std::erase_if( table_.layouts[pair].fields,
                                   [&]( Field const & field ) { return field.name == name.text(); } ) == 0 ) {
                  name.fail( "there is no field '" + name.text() + "' on " + named( pair ) );
               }
            }
         }
      }
   }

   // The number of a bit, or of bits. What lies behind the largest entry need not be exact to be refused, so sums of
   // positions stay small numbers.
   static unsigned position( Yaml const & number ) { return std::min( number.number(), 2 * Model::mostBits ); }

   // A number of a run of fields, of which an entry has no more than bits.
   static unsigned runNumber( std::string const & digits, Yaml const & at ) {
      if ( digits.size() > 4 || std::stoul( digits ) >= Model::mostBits ) {
         at.fail( "the fields of a run have numbers below " + std::to_string( Model::mostBits ) );
      }
      return static_cast< unsigned >( std::stoul( digits ) );
   }

   // One field, or the fields of a run: "slot0..3".
   static std::vector< Field > fieldsOf( std::string const & name, Yaml const & bits ) {
      auto const dots = name.find( ".." );
      if ( dots == std::string::npos ) {
         auto const parts = bits.items();
         if ( parts.size() < 2 || parts.size() > 3 || ( parts.size() == 3 && parts[2].text() != "view" ) ) {
            bits.fail( "a field is [offset, width] or [offset, width, view]" );
         }
         return { { name, position( parts[0] ), position( parts[1] ), parts.size() == 3, bits.line() } };
      }
      auto const digits = name.find_last_not_of( "0123456789", dots - 1 ) + 1;
      if ( digits >= dots || name.find_first_not_of( "0123456789", dots + 2 ) != std::string::npos ||
           dots + 2 == name.size() ) {
         bits.fail( "a run of fields is written name0..7" );
      }
      bits.allowKeys( { "at", "width", "step" } );
      unsigned const first = runNumber( name.substr( digits, dots - digits ), bits );
      unsigned const last = runNumber( name.substr( dots + 2 ), bits );
      if ( first > last ) {
         bits.fail( "a run of fields counts upwards" );
      }
      std::vector< Field > fields;
      for ( unsigned number = first; number <= last; ++number ) {
         fields.push_back( { name.substr( 0, digits ) + std::to_string( number ),
                             position( bits.at( "at" ) ) + ( number - first ) * position( bits.at( "step" ) ),
                             position( bits.at( "width" ) ),
                             false,
                             bits.line() } );
      }
      return fields;
   }

   static void put( Layout & layout, Field const & field ) {
      auto const found = std::find_if(
         layout.fields.begin(), layout.fields.end(), [&]( Field const & f ) { return f.name == field.name; } );
      if ( found == layout.fields.end() ) {
         layout.fields.push_back( field );
      } else {
         *found = field;
      }
   }

   void readIndexed( Yaml const & indexed ) {
      for ( Yaml const & run : indexed.items() ) {
         if ( table_.runFields( run.text() ).empty() ) {
            run.fail( "there is no field '" + run.text() + "0'" );
         }
         table_.indexed.push_back( run.text() );
      }
   }

   void readTag( Yaml const & block ) {
      block.allowKeys( { "chips", "variants", "bits" } );
      for ( auto const & pair : pairs( block ) ) {
         for ( Yaml const & bits : block.at( "bits" ).items() ) {
            auto const parts = bits.items( 3 );
            Tag const tag{ position( parts[0] ), position( parts[1] ), parts[2].number(), bits.line() };
            if ( tag.width > 8 || tag.value >> tag.width != 0 ) {
               bits.fail( "a tag has at most 8 bits, and a value that fits them" );
            }
            if ( tag.offset + tag.width > 32 * table_.layouts[pair].width ) {
               bits.fail( "the tag goes past the width of " + named( pair ) );
            }
            table_.tags[pair].push_back( tag );
         }
      }
   }

   unsigned chipInstances( unsigned number ) const {
      return std::find_if( chips_.begin(), chips_.end(), [&]( auto const & c ) { return c.number == number; } )
         ->instances;
   }

   std::string named( ChipVariant const & pair ) const {
      auto const chip =
         std::find_if( chips_.begin(), chips_.end(), [&]( auto const & c ) { return c.number == pair.first; } );
      return chip->name + " variant " + std::to_string( pair.second );
   }

   Yaml root_;
   std::vector< Chip > const & chips_;
   Table table_;
};

} // namespace

Model::Table readTable( std::string const & file, std::vector< Model::Chip > const & chips ) {
   return TableReader( file, chips ).read();
}
