#include "inspection/views/WindowsText.h"

#include "inspection/FoldedWrites.h"
#include "inspection/NamesAsTyped.h"
#include "inspection/views/Lines.h"

#include <algorithm>
#include <tuple>

namespace Inspection {

namespace {

using Rex::Value;

// What goes from one value to another, by which functions, whatever lies in between.
using Way = std::tuple< U32, std::string, U8, std::string, std::string, std::string, std::string, std::string >;

Way wayOf( PassingValue const & it ) {
   return { it.event, it.table, it.variant, it.field, it.from, it.to, it.setBy, it.leftBy };
}

struct Ways {
   explicit Ways( std::vector< PassingValue > const & windows ) {
      for ( PassingValue const & window : windows ) {
         auto const [known, isNew] = numbers.try_emplace( wayOf( window ), all.size() );
         if ( isNew ) {
            all.emplace_back();
         }
         all[known->second].push_back( &window );
      }
   }
   std::map< Way, std::size_t > numbers;
   std::vector< std::vector< PassingValue const * > > all;
};

std::string passingText( std::string const & value ) {
   constexpr std::size_t most = 30;
   return shortened( readable( value ), most );
}

// The values in between, one that many places pass through told once: "0x40", "9 values, 0x40 first".
std::string throughOf( std::vector< PassingValue const * > const & windows ) {
   std::set< std::string > values;
   for ( PassingValue const * const window : windows ) {
      values.insert( window->through );
   }
   std::string const first = passingText( windows.front()->through );
   return values.size() == 1 ? first : std::to_string( values.size() ) + " values, first " + first;
}

std::string functionsOf( PassingValue const & it, Style const & style ) {
   std::string const text = it.setBy + " " + style.faint( it.setAt );
   return it.setBy == it.leftBy ? "by " + text + " itself"
                                : "set by " + text + ", ended by " + it.leftBy + " " + style.faint( it.leftAt );
}

std::string placesOf( std::vector< PassingValue const * > const & windows ) {
   std::vector< U32 > faps;
   std::vector< U32 > arrays;
   std::vector< U32 > entries;
   for ( PassingValue const * const window : windows ) {
      faps.push_back( window->fap );
      arrays.push_back( static_cast< U32 >( window->array ) );
      entries.push_back( window->entry );
   }
   auto const * layout = windows.front()->layout;
   std::string text = "FAP " + ranges( faps );
   text += layout && isArrayed( *layout ) ? " [" + ranges( arrays ) + "]" : "";
   text += !layout || layout->entries != 0 ? " " + ranges( entries ) : "";
   return text;
}

} // namespace

void showWindows( std::ostream & out,
                  std::vector< PassingValue > const & windows,
                  std::size_t most,
                  Style const & style ) {
   Ways const ways( windows );
   std::size_t const shown = most == 0 ? ways.all.size() : std::min( most, ways.all.size() );
   U32 event = ~U32{ 0 };
   for ( std::size_t number = 0; number < shown; ++number ) {
      auto const & alike = ways.all[number];
      PassingValue const & it = *alike.front();
      if ( it.event != event ) {
         event = it.event;
         out << "  " << style.strong( event == 0 ? "start" : "event " + std::to_string( event ) ) << '\n';
      }
      auto const [least, longest] = std::ranges::minmax( alike, {}, &PassingValue::operations );
      std::string const operations =
         least->operations == longest->operations
            ? counted( least->operations, "operation", "operations" )
            : std::to_string( least->operations ) + " to " + counted( longest->operations, "operation", "operations" );
      out << "    " << it.table << ( it.field.empty() ? "" : "." + it.field )
          << ( it.variant ? " variant " + std::to_string( it.variant ) : "" ) << "  "
          << style.place( placesOf( alike ) ) << '\n'
          << "      " << passingText( it.from ) << style.faint( " → " ) << style.differs( throughOf( alike ) )
          << style.faint( " → " ) << passingText( it.to ) << style.faint( "  for " + operations ) << '\n'
          << "      " << functionsOf( it, style ) << '\n';
   }
   if ( shown < ways.all.size() ) {
      out << "    ... and " << counted( ways.all.size() - shown, "more", "more" ) << "; --all shows them\n";
   }
}

Value windowsValue( std::vector< PassingValue > const & windows ) {
   Value::List list;
   for ( PassingValue const & it : windows ) {
      list.push_back( Value::Object{
         { "event", it.event },
         { "fap", it.fap },
         { "table", it.table },
         { "variant", it.variant },
         { "array", it.array },
         { "entry", it.layout && it.layout->entries == 0 ? Value() : Value( it.entry ) },
         { "field", it.field },
         { "from", it.from },
         { "through", it.through },
         { "to", it.to },
         { "setBy", Value::Object{ { "function", it.setBy }, { "source", it.setAt } } },
         { "endedBy", Value::Object{ { "function", it.leftBy }, { "source", it.leftAt } } },
         { "operations", it.operations },
      } );
   }
   return list;
}

} // namespace Inspection
