#include "inspection/views/ChipComparisonText.h"

#include "inspection/NamesAsTyped.h"

#include <algorithm>
#include <set>

namespace Inspection {

namespace {

using Values = ByChip< MaybeValue >;
using Flip = ChipComparison::Flip;

constexpr std::size_t fewRows = 12;

std::string chipShort( std::size_t chip ) {
   return std::string( Hardware::chipTypeName( Hardware::allChipTypes[chip] ) ).substr( 3 ); // without "BCM"
}

// "0x5", or "0x4 of 0xf4".
std::string valueText( std::optional< std::string > const & value ) {
   if ( !value ) {
      return "·";
   }
   auto const slash = value->find( '/' );
   if ( slash != std::string::npos ) {
      return readable( value->substr( 0, slash ) ) + " of " + readable( value->substr( slash + 1 ) );
   }
   return readable( *value );
}

std::vector< std::string > heading( Style const & style, std::vector< std::string > cells ) {
   for ( auto & cell : cells ) {
      cell = style.strong( cell );
   }
   for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
      cells.push_back( style.strong( chipShort( chip ) ) );
   }
   return cells;
}

// Chips that are programmed alike get the same letter.
std::array< char, chipCount > letters( std::vector< Values const * > const & rows,
                                       std::vector< std::size_t > const & chips ) {
   std::array< char, chipCount > all{};
   char next = 'a';
   for ( std::size_t const chip : chips ) {
      for ( std::size_t const other : chips ) {
         if ( !all[other] || all[chip] ) {
            continue;
         }
         if ( std::ranges::all_of( rows, [&]( Values const * row ) { return ( *row )[chip] == ( *row )[other]; } ) ) {
            all[chip] = all[other];
         }
      }
      if ( !all[chip] ) {
         all[chip] = next++;
      }
   }
   return all;
}

// How often each chip sets a value of each table. Returns the tables that differ.
std::set< std::string > showTables( std::ostream & out, ChipComparison const & comparison, Style const & style ) {
   std::map< std::string, std::vector< Values const * > > byTable;
   for ( auto const & [place, values] : comparison.places ) {
      byTable[place.table].push_back( &values );
   }
   Columns summary;
   summary.row( heading( style, { "table" } ) );
   std::set< std::string > differing;
   for ( auto const & [table, rows] : byTable ) {
      bool const alike = std::ranges::all_of( rows, [&]( Values const * row ) { return comparison.isAlike( *row ); } );
      auto const of = letters( rows, comparison.played() );
      std::vector< std::string > cells{ alike ? table : style.differs( table ) };
      for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
         auto const count =
            std::ranges::count_if( rows, [&]( Values const * row ) { return ( *row )[chip].has_value(); } );
         cells.push_back( std::to_string( count ) +
                          ( alike ? "  " : " " + style.differs( std::string( 1, of[chip] ) ) ) );
      }
      summary.row( cells );
      if ( !alike ) {
         differing.insert( table );
      }
   }
   for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
      summary.rightAlign( chip + 1 );
   }
   out << "Values set, by table; chips with the same letter are programmed alike\n\n";
   summary.print( out );
   out << '\n'
       << counted( differing.size(), "table differs", "tables differ" ) << " between chips, "
       << byTable.size() - differing.size() << " alike on all\n";
   return differing;
}

// Where the chips differ in a table.
void showTable(
   std::ostream & out, ChipComparison const & comparison, std::string const & table, bool all, Style const & style ) {
   out << '\n' << style.strong( table ) << '\n';
   Columns columns;
   columns.row( heading( style, { "FAP", "", "" } ) );
   std::size_t rows = 0;
   for ( auto const & [place, values] : comparison.places ) {
      if ( place.table != table || comparison.isAlike( values ) || ( ++rows > fewRows && !all ) ) {
         continue;
      }
      std::vector< std::string > cells{ std::to_string( place.fap ), style.place( place.place ), place.field };
      for ( auto const & value : values ) {
         cells.push_back( value ? valueText( value ) : style.faint( "·" ) );
      }
      columns.row( cells );
   }
   columns.print( out, 2 );
   if ( rows > fewRows && !all ) {
      out << "  and " << rows - fewRows << " more rows; --all shows them\n";
   }
}

void showFailures( std::ostream & out, ByChip< std::string > const & failures, Style const & style ) {
   for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
      if ( !failures[chip].empty() ) {
         out << style.before( Hardware::chipTypeName( Hardware::allChipTypes[chip] ) )
             << " didn't come to its end: " << failures[chip].substr( 0, failures[chip].find( '\n' ) ) << '\n';
      }
   }
}

// "Dace.json:ArmOrderedSwTable off → on"
std::string flipText( Flip const & flip, Style const & style ) {
   auto const state = []( bool on ) { return on ? "on" : "off"; };
   return style.strong( flip.file + ":" + flip.name ) + " " + state( flip.was ) + " → " + state( !flip.was );
}

void showFlipCounts( std::ostream & out, ChipComparison const & comparison, Style const & style ) {
   out << "\nValues that each toggle changes when it is flipped alone\n\n";
   Columns summary;
   summary.row( heading( style, { "toggle", "" } ) );
   for ( Flip const & flip : comparison.flips ) {
      std::vector< std::string > cells{ flip.file + ":" + flip.name, flip.was ? "on → off" : "off → on" };
      for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
         bool const failed = !flip.failures[chip].empty() || !comparison.failures[chip].empty();
         auto const count = flip.changes[chip].size();
         cells.push_back( failed       ? style.before( "failed" )
                          : count == 0 ? style.faint( "·" )
                                       : std::to_string( count ) );
      }
      summary.row( cells );
   }
   for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
      summary.rightAlign( chip + 2 );
   }
   summary.print( out );
}

void showChanges( std::ostream & out, ChipComparison::Changes const & changes, bool all, Style const & style ) {
   Columns columns;
   std::size_t rows = 0;
   for ( auto const & [place, change] : changes ) {
      if ( ++rows > fewRows && !all ) {
         continue;
      }
      columns.row( { "FAP " + std::to_string( place.fap ),
                     place.table,
                     style.place( place.place ),
                     place.field,
                     style.before( valueText( change.before ) ) + style.faint( " → " ) +
                        style.after( valueText( change.after ) ) } );
   }
   columns.print( out, 2 );
   if ( rows > fewRows && !all ) {
      out << "  and " << rows - fewRows << " more; --all shows them\n";
   }
}

void showFlip(
   std::ostream & out, ChipComparison const & comparison, Flip const & flip, bool all, Style const & style ) {
   std::map< std::string, std::string > failures; // last words, and the chips that said them
   for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
      std::string const & failure = flip.failures[chip];
      if ( !failure.empty() ) {
         failures[failure.substr( 0, failure.find( '\n' ) )] += " " + chipShort( chip );
      }
   }
   for ( auto const & [failure, chips] : failures ) {
      out << '\n' << flipText( flip, style ) << style.faint( "  on" + chips ) << '\n';
      out << "  " << style.before( "didn't come to its end" ) << ": " << failure << '\n';
   }
   // Chips on which the toggle changes the same are told together.
   std::vector< std::pair< ChipComparison::Changes const *, std::string > > groups;
   for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
      auto const & changes = flip.changes[chip];
      if ( changes.empty() || !comparison.failures[chip].empty() ) {
         continue;
      }
      auto found = std::ranges::find_if( groups, [&]( auto const & group ) { return *group.first == changes; } );
      if ( found == groups.end() ) {
         groups.emplace_back( &changes, chipShort( chip ) );
      } else {
         found->second += " " + chipShort( chip );
      }
   }
   for ( auto const & [changes, chips] : groups ) {
      out << '\n' << flipText( flip, style ) << style.faint( "  on " + chips ) << '\n';
      showChanges( out, *changes, all, style );
   }
}

using Rex::Value;

Value placeValue( ProgrammedPlace const & place ) {
   Value::Object value;
   value["fap"] = place.fap;
   value["table"] = place.table;
   value["place"] = place.place;
   value["field"] = place.field;
   return value;
}

Value orNull( std::optional< std::string > const & value ) {
   return value ? Value( *value ) : Value();
}

Value placesValue( ChipComparison const & comparison ) {
   Value::List list;
   for ( auto const & [place, row] : comparison.places ) {
      Value one = placeValue( place );
      Value::Object values;
      for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
         values[Hardware::chipTypeName( Hardware::allChipTypes[chip] )] = orNull( row[chip] );
      }
      one.object()->emplace( "values", values );
      one.object()->emplace( "alike", comparison.isAlike( row ) );
      list.push_back( std::move( one ) );
   }
   return list;
}

Value flipsValue( std::vector< Flip > const & flips ) {
   Value::List list;
   for ( Flip const & flip : flips ) {
      Value::Object chips;
      for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
         Value::List changes;
         for ( auto const & [place, change] : flip.changes[chip] ) {
            Value one = placeValue( place );
            one.object()->emplace( "before", orNull( change.before ) );
            one.object()->emplace( "after", orNull( change.after ) );
            changes.push_back( std::move( one ) );
         }
         Value::Object of;
         of["failure"] = flip.failures[chip].empty() ? Value() : Value( flip.failures[chip] );
         of["changes"] = changes;
         chips[Hardware::chipTypeName( Hardware::allChipTypes[chip] )] = of;
      }
      Value::Object one;
      one["file"] = flip.file;
      one["name"] = flip.name;
      one["from"] = flip.was;
      one["chips"] = chips;
      list.emplace_back( std::move( one ) );
   }
   return list;
}

} // namespace

void showComparison( std::ostream & out, ChipComparison const & comparison, bool all, Style const & style ) {
   out << style.title( printable( comparison.name ) ) << "\n\n";
   showFailures( out, comparison.failures, style );
   for ( std::string const & table : showTables( out, comparison, style ) ) {
      showTable( out, comparison, table, all, style );
   }
   if ( !comparison.flips.empty() ) {
      showFlipCounts( out, comparison, style );
      for ( Flip const & flip : comparison.flips ) {
         showFlip( out, comparison, flip, all, style );
      }
   }
}

Value comparisonValue( ChipComparison const & comparison, bool withToggles ) {
   Value::Object failures;
   for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
      if ( !comparison.failures[chip].empty() ) {
         failures[Hardware::chipTypeName( Hardware::allChipTypes[chip] )] = comparison.failures[chip];
      }
   }
   Value::Object value{ { "places", placesValue( comparison ) }, { "failures", failures } };
   if ( withToggles ) {
      value["toggles"] = flipsValue( comparison.flips );
   }
   return value;
}

} // namespace Inspection
