#include "simulator/ChipContents.h"

#include "simulator/TableMap.h"

#include <algorithm>

namespace Simulator {

namespace {

using Hardware::ChipType;

EntryContents contentsOf( Chip::Entry const & entry ) {
   EntryContents contents;
   U32 const copies = entry.copiesDiffer() ? entry.copies() : 1;
   for ( U32 copy = 0; copy < copies; ++copy ) {
      contents.copies.emplace_back( entry.words( copy ).begin(), entry.words( copy ).end() );
   }
   return contents;
}

// A key of a JSON pointer.
std::string operator/( std::string const & place, std::string const & key ) {
   std::string text = place + "/";
   for ( char const letter : key ) {
      text += letter == '~' ? "~0" : letter == '/' ? "~1" : std::string( 1, letter );
   }
   return text;
}
std::string operator/( std::string const & place, U32 key ) {
   return place / std::to_string( key );
}

std::string range( U32 first, U32 count ) {
   return count == 1 ? "only " + std::to_string( first )
                     : std::to_string( first ) + " to " + std::to_string( first + count - 1 );
}

// Contents that fit, on their way into a chip.
struct Fill {
   SchanAddress at;
   Words const * words;
   bool everyCopy;
};

class Fitter {
 public:
   explicit Fitter( ChipType chipType ) : chip_( static_cast< U8 >( chipType ) ) {}

   void table( std::string const & name, TableContents const & contents, std::string const & place ) {
      Catalogue::Table const * const found = Catalogue::table( name );
      if ( !found ) {
         throw ContentsError( place, "no table has this name; `l3sm catalogue` lists them" );
      }
      if ( !found->hasMemory ) {
         throw ContentsError( place, "this is a format, which has no memory of its own" );
      }
      if ( std::ranges::find( found->chips, chip_ ) == found->chips.end() ) {
         throw ContentsError( place, std::string( "the " ) + Catalogue::chipName( chip_ ) + " has no such table" );
      }
      for ( auto const & [variantNumber, arrays] : contents ) {
         if ( variantNumber >= found->variantCount ) {
            throw ContentsError( place / variantNumber,
                                 "no such variant; there is " + range( 0, found->variantCount ) );
         }
         variant( *found, static_cast< U8 >( variantNumber ), arrays, place / variantNumber );
      }
   }

   std::vector< Fill > const & fills() const { return fills_; }

 private:
   void
   variant( Catalogue::Table const & table, U8 variant, VariantContents const & arrays, std::string const & place ) {
      Catalogue::Layout const & layout = *Catalogue::layout( table, chip_, variant );
      U32 const first = layout.arrayIndexFirst;
      for ( auto const & [array, entries] : arrays ) {
         if ( array < first || array - first >= layout.arrayElements ) {
            throw ContentsError( place / array,
                                 "no such array index; there is " + range( first, layout.arrayElements ) );
         }
         for ( auto const & [entry, contents] : entries ) {
            if ( entry >= entryCount( layout ) ) {
               throw ContentsError( place / array / entry,
                                    "no such entry; there is " + range( 0, entryCount( layout ) ) );
            }
            copies( layout, array, entry, contents, place / array / entry );
         }
      }
   }

   void copies( Catalogue::Layout const & layout,
                U32 array,
                U32 entry,
                EntryContents const & contents,
                std::string const & place ) {
      bool const alike = contents.copies.size() == 1;
      if ( !alike && contents.copies.size() != layout.selectors.size() ) {
         throw ContentsError( place / "instances",
                              "the table has " + std::to_string( layout.selectors.size() ) + " instances, not " +
                                 std::to_string( contents.copies.size() ) );
      }
      for ( U32 copy = 0; copy < contents.copies.size(); ++copy ) {
         Words const & words = contents.copies[copy];
         if ( words.size() != layout.width ) {
            throw ContentsError( alike ? place / "words" : place / "instances" / copy,
                                 "an entry has " + std::to_string( layout.width ) + " words, not " +
                                    std::to_string( words.size() ) );
         }
         fills_.push_back( Fill{ addressOf( layout, array, entry, copy ), &words, alike } );
      }
   }

   U8 chip_;
   std::vector< Fill > fills_;
};

} // namespace

Contents contentsOf( Chip const & chip, ChipType chipType ) {
   Contents contents{ .controls = chip.controls(), .tables = {} };
   for ( Catalogue::Table const & table : Catalogue::tables() ) {
      for ( Catalogue::Layout const & layout : table.layouts ) {
         if ( !table.hasMemory || layout.chipType != static_cast< U8 >( chipType ) ) {
            continue;
         }
         for ( U32 const array : arrayIndices( layout ) ) {
            ArrayContents entries;
            for ( U32 entry = 0; entry < entryCount( layout ); ++entry ) {
               Chip::Entry const found = chip.entry( addressOf( layout, array, entry ) );
               if ( found.hasValue() ) {
                  entries.emplace_hint( entries.end(), entry, contentsOf( found ) );
               }
            }
            if ( !entries.empty() ) {
               contents.tables[table.name][layout.variant][array] = std::move( entries );
            }
         }
      }
   }
   return contents;
}

void apply( TablesContents const & tables, Chip & chip, ChipType chipType, std::string const & place ) {
   Fitter fitter( chipType );
   for ( auto const & [name, contents] : tables ) {
      fitter.table( name, contents, place / name );
   }
   for ( Fill const & fill : fitter.fills() ) {
      if ( fill.everyCopy ) {
         chip.fill( fill.at, *fill.words );
      } else {
         chip.write( fill.at, *fill.words );
      }
   }
}

std::vector< DecodedField > decode( Catalogue::Layout const & layout, std::span< U32 const > words ) {
   constexpr char digits[] = "0123456789abcdef";
   std::vector< DecodedField > fields;
   fields.reserve( layout.fields.size() );
   for ( Catalogue::Field const & field : layout.fields ) {
      std::string reversed;
      for ( unsigned from = 0; from < field.width; from += 4 ) {
         unsigned digit = 0;
         for ( unsigned bit = from; bit < from + 4 && bit < field.width; ++bit ) {
            unsigned const at = field.offset + bit;
            digit |= ( words[at / 32] >> at % 32 & 1 ) << ( bit - from );
         }
         reversed += digits[digit];
      }
      while ( reversed.size() > 1 && reversed.back() == '0' ) {
         reversed.pop_back();
      }
      fields.push_back( { field.name, "0x" + std::string( reversed.rbegin(), reversed.rend() ) } );
   }
   return fields;
}

} // namespace Simulator
