#include "inspection/ContentsFilter.h"

#include "inspection/KnownControls.h"

#include <algorithm>

namespace Inspection {

namespace {

constexpr std::string_view controlsWord = "controls";
constexpr std::string_view controlPrefix = "control.";

U32 controlNamed( std::string const & number ) {
   std::set< U32 > known;
   for ( auto const & control : knownControls() ) {
      known.insert( control.number );
   }
   try {
      auto const control = Rex::Codec< U32 >::fromKey( number );
      if ( known.contains( control ) ) {
         return control;
      }
   } catch ( Rex::ValueError const & ) {
   }
   std::string there;
   for ( U32 const control : known ) {
      there += ( there.empty() ? "" : ", " ) + std::to_string( control );
   }
   throw InputError( "nothing is known to set a control " + number + "; there is " + there );
}

TablePart partAsTyped( std::string const & typed ) {
   TablePart part = partNamed( typed );
   if ( part.bit ) {
      throw InputError( "\"" + typed + "\" is a bit; name its field, " + part.table->name + "." + part.field +
                        ": `l3sm why` follows single bits" );
   }
   return part;
}

// Takes out what is not wanted, and what is empty then.
template< class Parts, class Keep >
void keepParts( Parts & parts, Keep const & keep ) {
   for ( auto part = parts.begin(); part != parts.end(); ) {
      part = keep( part->first, part->second ) ? std::next( part ) : parts.erase( part );
   }
}

} // namespace

ContentsFilter::ContentsFilter( std::vector< std::string > const & typed, TypedPlace place, std::optional< U16 > fap )
   : place_( place ), fap_( fap ) {
   for ( auto const & name : typed ) {
      if ( name == controlsWord ) {
         areAllControls_ = true;
      } else if ( name.starts_with( controlPrefix ) ) {
         controls_.insert( controlNamed( name.substr( controlPrefix.size() ) ) );
      } else {
         parts_.push_back( partAsTyped( name ) );
         checkPlace( *parts_.back().table, place );
      }
   }
   bool const hasPlace = place.variant || place.array || place.entry;
   if ( hasPlace && parts_.empty() ) {
      throw InputError( "--variant, --array and --entry are places of a table; name the table" );
   }
   isUnnamed_ = typed.empty();
}

bool ContentsFilter::isEverything() const {
   return isUnnamed_;
}

std::vector< std::string > ContentsFilter::tables() const {
   std::vector< std::string > names;
   for ( auto const & part : parts_ ) {
      names.emplace_back( part.table->name );
   }
   if ( names.empty() && !hasTables() ) {
      names.emplace_back(); // which no table is called
   }
   return names;
}

bool ContentsFilter::isTable( std::string_view table ) const {
   return isUnnamed_ ||
          std::ranges::any_of( parts_, [&]( TablePart const & part ) { return part.table->name == table; } );
}

bool ContentsFilter::isField( std::string_view table, std::string_view field ) const {
   return isUnnamed_ || std::ranges::any_of( parts_, [&]( TablePart const & part ) {
             return part.table->name == table && ( part.field.empty() || part.field == field );
          } );
}

bool ContentsFilter::isPlace( U32 variant, U32 array, U32 entry ) const {
   return ( !place_.variant || *place_.variant == variant ) && ( !place_.array || *place_.array == array ) &&
          ( !place_.entry || *place_.entry == entry );
}

bool ContentsFilter::isControl( U32 control ) const {
   return isUnnamed_ || areAllControls_ || controls_.contains( control );
}

void ContentsFilter::keep( Simulator::TableContents & contents ) const {
   if ( !place_.variant && !place_.array && !place_.entry ) {
      return;
   }
   keepParts( contents, [&]( U32 variant, auto & arrays ) {
      keepParts( arrays, [&]( U32 array, auto & entries ) {
         keepParts( entries, [&]( U32 entry, auto const & ) { return isPlace( variant, array, entry ); } );
         return !entries.empty();
      } );
      return !arrays.empty();
   } );
}

void ContentsFilter::keep( Simulator::Contents & contents ) const {
   keepParts( contents.controls, [&]( U32 control, U32 ) { return isControl( control ); } );
   keepParts( contents.tables, [&]( std::string const & name, auto & table ) {
      if ( isTable( name ) ) {
         keep( table );
      }
      return isTable( name ) && !table.empty();
   } );
}

} // namespace Inspection
