#include "inspection/views/ChainStepText.h"

#include "inspection/FoldedWrites.h"
#include "inspection/NamesAsTyped.h"
#include "inspection/files/Json.h"
#include "inspection/views/Lines.h"

#include <algorithm>
#include <utility>

namespace Inspection {

namespace {

using Simulator::Row;

constexpr std::size_t mostFieldsOfAWrite = 4; // of one write
constexpr std::size_t mostPlaces = 2;         // likewise
constexpr U32 mostBitsInWhole = 32;           // a field of more bits tells which of them differ

// The places of one FAP: "[3] 0-31, [4] 7"; arrays with the same entries stand together.
std::string arraysText( ChainStep const & step, ChainStep::Arrays const & arrays ) {
   std::vector< std::pair< ChainStep::Entries, std::vector< U32 > > > byEntries;
   for ( auto const & [array, entries] : arrays ) {
      auto found = std::ranges::find( byEntries, entries, []( auto const & it ) { return it.first; } );
      if ( found == byEntries.end() ) {
         found = byEntries.insert( found, { entries, {} } );
      }
      found->second.push_back( array );
   }
   std::string text;
   for ( auto const & [entries, numbers] : byEntries ) {
      std::string one = step.isArrayed ? "[" + ranges( numbers ) + "]" : "";
      if ( step.isMemory ) {
         one += ( one.empty() ? "" : " " ) + ranges( { entries.begin(), entries.end() } );
      }
      text += ( text.empty() || one.empty() ? "" : ", " ) + one;
   }
   return text;
}

struct PlaceLine {
   std::string text;
   std::set< U16 > faps;
};

// FAPs with the same places stand together.
std::vector< PlaceLine > placeLines( ChainStep const & step, Style const & style ) {
   std::vector< std::pair< std::string, std::set< U16 > > > byPlaces;
   for ( auto const & [fap, arrays] : step.places ) {
      std::string const text = arraysText( step, arrays );
      auto found = std::ranges::find( byPlaces, text, []( auto const & it ) { return it.first; } );
      if ( found == byPlaces.end() ) {
         found = byPlaces.insert( found, { text, {} } );
      }
      found->second.insert( fap );
   }
   std::string const variant =
      step.table && hasVariants( *step.table ) ? "  variant " + std::to_string( step.variant ) : "";
   std::vector< PlaceLine > lines;
   for ( auto const & [places, faps] : byPlaces ) {
      std::string const where = fitting( places, lineWidth() / 3 );
      lines.push_back(
         { fapsText( faps ) + variant + ( where.empty() ? "" : "  " + style.place( where ) ) +
              ( step.core ? ( step.kind == Row::Kind::fault ? "  copy " : "  core " ) + std::to_string( *step.core )
                          : "" ),
           faps } );
   }
   return lines;
}

// "bits 3 17-20 set, 5 cleared"
std::string bitsThatDiffer( std::string const & before, std::string const & after, U32 width ) {
   std::vector< U32 > set;
   std::vector< U32 > cleared;
   for ( U32 bit = 0; bit < width; ++bit ) {
      if ( isBitSet( before, bit ) != isBitSet( after, bit ) ) {
         ( isBitSet( after, bit ) ? set : cleared ).push_back( bit );
      }
   }
   std::string const first = set.empty() ? "" : ranges( set ) + " set";
   std::string const second = cleared.empty() ? "" : ranges( cleared ) + " cleared";
   return ( set.size() + cleared.size() == 1 ? "bit " : "bits " ) + first +
          ( set.empty() || cleared.empty() ? "" : ", " ) + second;
}

std::string changeText( ChainStep::Change const & change, Style const & style ) {
   std::string before;
   for ( std::string const & one : change.befores ) {
      before += ( before.empty() ? "" : " or " ) + readable( one );
   }
   before = change.hasMoreBefores ? "various" : before.empty() ? "?" : before;
   std::string const after = readable( change.after );
   std::string const bits = change.width > mostBitsInWhole && change.befores.size() == 1 && !change.hasMoreBefores
                               ? bitsThatDiffer( change.befores.front(), change.after, change.width )
                               : "";
   std::string const name = change.name.empty() ? "" : change.name + "  ";
   if ( bits.empty() || name.size() + before.size() + after.size() + bits.size() < lineWidth() / 2 ) {
      return name + style.before( fitting( before, lineWidth() / 4 ) ) + style.faint( " → " ) +
             style.after( fitting( after, lineWidth() / 3 ) ) + ( bits.empty() ? "" : style.faint( "  " + bits ) );
   }
   return name + style.differs( fitting( bits, lineWidth() / 2 ) );
}

// A path without its first steps where it doesn't fit: its end tells more.
std::string endOf( std::string const & path, std::size_t width ) {
   if ( widthOf( path ) <= width ) {
      return path;
   }
   for ( auto slash = path.find( '/' ); slash != std::string::npos; slash = path.find( '/', slash + 1 ) ) {
      if ( std::string const rest = path.substr( slash ); widthOf( rest ) < width ) {
         return "…" + rest;
      }
   }
   return shortened( path, width );
}

std::string publishedText( Rex::Value const & value ) {
   return value.isNull() ? "nothing" : toJson( value, 0 );
}

} // namespace

// Cuts a text that doesn't fit.
std::string fitting( std::string const & text, std::size_t width ) {
   if ( text.size() <= width ) {
      return text;
   }
   std::size_t end = width > 3 ? width - 3 : 0;
   while ( end > 0 && ( static_cast< unsigned char >( text[end] ) & 0xc0 ) == 0x80 ) {
      --end; // not within a character
   }
   return text.substr( 0, end ) + "...";
}

void writeOrigin( std::ostream & out,
                  std::size_t indent,
                  std::string const & function,
                  std::string const & source,
                  Style const & style ) {
   std::size_t const width = lineWidth();
   bool const fits = indent + widthOf( function ) + 2 + widthOf( source ) <= width;
   out << std::string( indent, ' ' ) << shortened( function, width - indent )
       << ( fits ? "  " : "\n" + std::string( indent + 4, ' ' ) ) << style.faint( source ) << '\n';
}

void writeWrapped( std::ostream & out, std::size_t indent, std::string const & text, Style const & style ) {
   if ( indent + widthOf( text ) <= lineWidth() ) {
      out << std::string( indent, ' ' ) << style.differs( text ) << '\n';
   } else {
      Lines( out ).put( indent, text );
   }
}

void ChainStepText::write( ChainStep const & step, std::string & function ) {
   if ( step.kind == Row::Kind::publish ) {
      writePublication( step );
      function.clear();
      return;
   }
   if ( step.kind == Row::Kind::fault ) { // which nobody has called
      for ( auto const & place : placeLines( step, style_ ) ) {
         out_ << "  " << style_.differs( "fault: " + step.reason ) << "  "
              << ( isOfTable_ ? "" : std::string( step.table->name ) + "  " ) << place.text << '\n';
      }
      function.clear();
      return;
   }
   if ( std::string const now = step.function + step.source; now != function ) {
      writeOrigin( out_, 2, step.function, step.source, style_ );
      function = now;
   }
   if ( step.kind == Row::Kind::gate ) {
      std::string const faps = fapsText( step.faps );
      std::string const text = "stopped: " + step.reason + ( faps.empty() ? "" : "  " + faps );
      writeWrapped( out_, 4, text, style_ );
      return;
   }
   auto const places = placeLines( step, style_ );
   if ( bounded_ && places.size() > mostPlaces ) {
      writeChanges( step,
                    places.front().text + "  and on " +
                       counted( step.places.size() - places.front().faps.size(), "other FAP", "other FAPs" ),
                    step.changes );
      return;
   }
   for ( PlaceLine const & place : places ) {
      std::vector< ChainStep::Change > there;
      for ( ChainStep::Change const & change : step.changes ) {
         if ( auto it = change.onFaps( place.faps ) ) {
            there.push_back( std::move( *it ) );
         }
      }
      writeChanges( step, place.text, there );
   }
}

void ChainStepText::writeChanges( ChainStep const & step,
                                  std::string const & place,
                                  std::vector< ChainStep::Change > const & changes ) {
   std::string head = step.kind == Row::Kind::read ? "reads " : "";
   if ( step.kind == Row::Kind::control ) {
      head += "control " + std::to_string( step.control ) + "  ";
   } else if ( !isOfTable_ ) {
      head += std::string( step.table->name ) + "  ";
   }
   head += place;
   std::vector< std::string > told;
   if ( changes.empty() && step.kind == Row::Kind::write ) {
      told.emplace_back( "no change" );
   }
   for ( ChainStep::Change const & change : changes ) {
      if ( bounded_ && told.size() == mostFieldsOfAWrite && changes.size() > mostFieldsOfAWrite + 1 ) {
         told.push_back( style_.faint( "and " + std::to_string( changes.size() - told.size() ) + " more fields" ) );
         break;
      }
      told.push_back( changeText( change, style_ ) );
   }
   constexpr std::size_t indent = 4;
   auto const fits = [&]( std::string const & it ) {
      return indent + widthOf( head ) + 2 + widthOf( it ) <= lineWidth();
   };
   if ( !std::ranges::all_of( told, fits ) ) {
      out_ << std::string( indent, ' ' ) << head << '\n';
      for ( std::string const & it : told ) {
         out_ << std::string( 2 * indent, ' ' ) << it << '\n';
      }
      return;
   }
   Columns columns;
   if ( told.empty() ) {
      columns.row( { head, "" } );
   }
   for ( std::string const & it : told ) {
      columns.row( { std::exchange( head, {} ), it } );
   }
   columns.print( out_, indent );
}

void ChainStepText::writePublication( ChainStep const & step ) {
   std::string names;
   for ( std::string const & name : step.names ) {
      names += ( names.empty() ? "" : " " ) + name;
   }
   if ( step.times > step.names.size() ) {
      names += " and " + std::to_string( step.times - step.names.size() ) + " more";
   }
   bool const isWhole = step.before.object() || step.after.object();
   std::string const change = isWhole ? ( step.after.isNull()    ? "removed"
                                          : step.before.isNull() ? "added"
                                                                 : "replaced" )
                                      : publishedText( step.before ) + " → " + publishedText( step.after );
   std::string const text = "publishes " + step.attribute + "  " + fitting( change, lineWidth() / 2 ) + "  ";
   std::size_t const rest = lineWidth() - std::min( lineWidth() - 3, widthOf( text ) + 2 );
   constexpr std::size_t leastForPlace = 24;
   if ( rest < leastForPlace ) {
      Lines lines( out_, Lines::Long::whole );
      lines.put( 2, "publishes " + step.attribute + "  " + change );
      lines.put( 6, names + "  in " + step.path );
      return;
   }
   names = fitting( names, rest );
   out_ << "  publishes " << step.attribute << "  " << style_.after( fitting( change, lineWidth() / 2 ) ) << "  "
        << names
        << style_.faint( rest > names.size() + 12 ? "  in " + endOf( step.path, rest - names.size() - 5 ) : "" )
        << '\n';
}

} // namespace Inspection
