#include "simulator/ChipContents.h"

#include "rex/Nearest.h"
#include "rex/Value.h"
#include "simulator/EachEntry.h"

#include <algorithm>

namespace Simulator {

namespace {

using Hardware::ChipType;

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

[[noreturn]] void refuseKey( std::string const & text ) {
   throw Rex::ValueError( { "", text, true } );
}

class Fitter {
 public:
   explicit Fitter( ChipType chipType ) : chip_( static_cast< U8 >( chipType ) ) {}

   // Throws Rex::ValueError once all of them have been looked at.
   std::vector< Fill > const & fills( TablesContents const & tables ) {
      for ( auto const & [name, contents] : tables ) {
         errors_.below( name, [&] { table( name, contents ); } );
      }
      errors_.end();
      return fills_;
   }

 private:
   void table( std::string const & name, TableContents const & contents ) {
      Catalogue::Table const * const found = Catalogue::table( name );
      if ( !found ) {
         refuseKey( "no table has this name" + nearTable( name ) );
      }
      if ( !found->hasMemory ) {
         refuseKey( "this is a format, which has no memory of its own" );
      }
      if ( std::ranges::find( found->chips, chip_ ) == found->chips.end() ) {
         refuseKey( std::string( "the " ) + Catalogue::chipName( chip_ ) + " has no such table" );
      }
      forEach( contents, [&]( U32 number, VariantContents const & arrays ) {
         if ( number >= found->variantCount ) {
            refuseKey( "no such variant; there is " + range( 0, found->variantCount ) );
         }
         variant( *Catalogue::layout( *found, chip_, static_cast< U8 >( number ) ), arrays );
      } );
   }

   void variant( Catalogue::Layout const & layout, VariantContents const & arrays ) {
      forEach( arrays, [&]( U32 array, ArrayContents const & entries ) {
         U32 const first = layout.arrayIndexFirst;
         if ( array < first || array - first >= layout.arrayElements ) {
            refuseKey( "no such array index; there is " + range( first, layout.arrayElements ) );
         }
         forEach( entries, [&]( U32 entry, EntryContents const & contents ) {
            if ( entry >= entryCount( layout ) ) {
               refuseKey( "no such entry; there is " + range( 0, entryCount( layout ) ) );
            }
            copies( layout, array, entry, contents );
         } );
      } );
   }

   void copies( Catalogue::Layout const & layout, U32 array, U32 entry, EntryContents const & contents ) {
      bool const alike = contents.copies.size() == 1;
      if ( !alike && contents.copies.size() != layout.selectors.size() ) {
         throw Rex::ValueError( "/instances",
                                "the table has " + std::to_string( layout.selectors.size() ) + " instances, not " +
                                   std::to_string( contents.copies.size() ) );
      }
      for ( U32 copy = 0; copy < contents.copies.size(); ++copy ) {
         Words const & words = contents.copies[copy];
         if ( words.size() != layout.width ) {
            throw Rex::ValueError( alike ? "/words" : "/instances/" + std::to_string( copy ),
                                   "an entry has " + std::to_string( layout.width ) + " words, not " +
                                      std::to_string( words.size() ) );
         }
         fills_.push_back( Fill{ addressOf( layout, array, entry, copy ), &words, alike } );
      }
   }

   template< class Parts, class Read >
   void forEach( Parts const & parts, Read const & read ) {
      Rex::ValueErrors errors;
      for ( auto const & [number, part] : parts ) {
         errors.below( std::to_string( number ), [&] { read( number, part ); } );
      }
      errors.end();
   }

   static std::string nearTable( std::string const & name ) {
      std::vector< std::string > names;
      for ( auto const & table : Catalogue::tables() ) {
         names.emplace_back( table.name );
      }
      auto const near = Rex::didYouMean( name, names );
      return near.empty() ? "; `l3sm catalogue` lists them" : near;
   }

   U8 chip_;
   std::vector< Fill > fills_;
   Rex::ValueErrors errors_;
};

} // namespace

namespace {

// Puts entries where they belong, which come in their order.
class Filling {
 public:
   explicit Filling( TablesContents & tables ) : tables_( tables ) {}

   void
   put( Catalogue::Table const & table, Catalogue::Layout const & layout, U32 array, U32 entry, EntryContents of ) {
      if ( layout_ != &layout || array_ != array ) {
         layout_ = &layout;
         array_ = array;
         entries_ = &tables_[table.name][layout.variant][array];
      }
      entries_->emplace_hint( entries_->end(), entry, std::move( of ) );
   }

 private:
   TablesContents & tables_;
   Catalogue::Layout const * layout_ = nullptr;
   U32 array_ = 0;
   ArrayContents * entries_ = nullptr;
};

} // namespace

EntryContents contentsOf( Chip::Entry const & entry ) {
   EntryContents contents;
   U32 const copies = entry.copiesDiffer() ? entry.copies() : 1;
   for ( U32 copy = 0; copy < copies; ++copy ) {
      contents.copies.emplace_back( entry.words( copy ).begin(), entry.words( copy ).end() );
   }
   return contents;
}

Contents contentsOf( Chip const & chip, ChipType chipType ) {
   Contents contents{ .controls = chip.controls(), .tables = {} };
   Filling filling( contents.tables );
   eachEntry( chipType, [&]( auto const & table, auto const & layout, U32 array, U32 entry, auto const & at ) {
      if ( auto const found = chip.entry( at ); found.hasValue() ) {
         filling.put( table, layout, array, entry, contentsOf( found ) );
      }
   } );
   return contents;
}

void check( TablesContents const & tables, ChipType chipType ) {
   Fitter( chipType ).fills( tables );
}

void apply( TablesContents const & tables, Chip & chip, ChipType chipType ) {
   Fitter fitter( chipType );
   for ( Fill const & fill : fitter.fills( tables ) ) {
      if ( fill.everyCopy ) {
         chip.fill( fill.at, *fill.words );
      } else {
         chip.write( fill.at, *fill.words );
      }
   }
}

std::string fieldText( std::span< U32 const > words, Catalogue::Field const & field ) {
   constexpr char digits[] = "0123456789abcdef";
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
   return "0x" + std::string( reversed.rbegin(), reversed.rend() );
}

std::vector< DecodedField > decode( Catalogue::Layout const & layout, std::span< U32 const > words ) {
   std::vector< DecodedField > fields;
   fields.reserve( layout.fields.size() );
   for ( Catalogue::Field const & field : layout.fields ) {
      fields.push_back( { field.name, fieldText( words, field ) } );
   }
   return fields;
}

} // namespace Simulator
