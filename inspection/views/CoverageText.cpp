#include "inspection/views/CoverageText.h"

#include "inspection/views/Html.h"
#include "inspection/views/Lines.h"

#include <array>
#include <cmath>
#include <sstream>

namespace Inspection {

namespace {

using Hardware::allChipTypes;
using Hardware::ChipType;
using Rex::Value;

std::string shortName( ChipType chipType ) {
   return std::string( Hardware::chipTypeName( chipType ) ).substr( 3 );
}

// "12/14": fields that were changed, of those that there are.
std::string cellText( Coverage const & coverage, Catalogue::Table const & table, ChipType chipType ) {
   if ( !Coverage::has( table, chipType ) ) {
      return "";
   }
   auto const * const cell = coverage.cell( table, chipType );
   if ( !cell ) {
      return Coverage::whyUnwritten( table, chipType ) ? "-" : "no";
   }
   return std::to_string( cell->fields.size() ) + "/" + std::to_string( Coverage::fieldsOf( table, chipType ).size() );
}

// Written on every chip that has it.
bool isWhole( Coverage const & coverage, Catalogue::Table const & table ) {
   return std::ranges::all_of( allChipTypes, [&]( ChipType const chipType ) {
      return !Coverage::has( table, chipType ) || coverage.cell( table, chipType ) ||
             Coverage::whyUnwritten( table, chipType );
   } );
}

bool isUnwritable( Catalogue::Table const & table ) {
   return std::ranges::all_of( allChipTypes, [&]( ChipType const chipType ) {
      return !Coverage::has( table, chipType ) || Coverage::whyUnwritten( table, chipType );
   } );
}

std::size_t tablesOf( bool ( *is )( Coverage const &, Catalogue::Table const & ), Coverage const & coverage ) {
   return static_cast< std::size_t >( std::ranges::count_if(
      Catalogue::tables(), [&]( Catalogue::Table const & table ) { return is( coverage, table ); } ) );
}

std::string percentText( double percent ) {
   return std::to_string( static_cast< int >( std::floor( percent ) ) ) + "%";
}

std::string headOf( Coverage const & coverage ) {
   auto const pairs = coverage.pairs();
   std::size_t const unwritable =
      tablesOf( []( Coverage const &, Catalogue::Table const & table ) { return isUnwritable( table ); }, coverage );
   std::size_t const whole =
      tablesOf( []( Coverage const & of,
                    Catalogue::Table const & table ) { return isWhole( of, table ) && !isUnwritable( table ); },
                coverage );
   return percentText( pairs.percent() ) + ": " + std::to_string( pairs.written ) + " of " +
          std::to_string( pairs.writable ) + " pairs of table and chip that the plug-in can write, " +
          std::to_string( pairs.changed ) + " with a change; " + std::to_string( whole ) + " of " +
          std::to_string( Catalogue::tables().size() - unwritable ) + " tables on every chip that has them";
}

} // namespace

void showCoverage( std::ostream & out, Coverage const & coverage, bool all, Style const & style ) {
   out << style.strong( headOf( coverage ) ) << ".\n";
   Columns columns;
   std::vector< std::string > head{ style.strong( "table" ) };
   for ( ChipType const chipType : allChipTypes ) {
      head.push_back( style.strong( shortName( chipType ) ) );
   }
   columns.row( head );
   for ( std::size_t column = 1; column <= allChipTypes.size(); ++column ) {
      columns.rightAlign( column );
   }
   bool isEmpty = true;
   for ( Catalogue::Table const & table : Catalogue::tables() ) {
      if ( !all && ( isWhole( coverage, table ) || isUnwritable( table ) ) ) {
         continue;
      }
      isEmpty = false;
      std::vector< std::string > cells{ table.name };
      for ( ChipType const chipType : allChipTypes ) {
         std::string const text = cellText( coverage, table, chipType );
         cells.push_back( text == "no" ? style.before( text ) : text == "-" ? style.faint( text ) : text );
      }
      columns.row( cells );
   }
   if ( !isEmpty ) {
      out << '\n'
          << ( all ? "Fields that were changed, of those that the table has" : "Not written everywhere" ) << '\n';
      columns.print( out, 2 );
   }
   std::map< std::string_view, std::vector< std::string > > reasons;
   for ( Unwritten const & it : knownUnwritten() ) {
      std::string const chip = it.chip.empty() ? "" : " on " + std::string( it.chip.substr( 3 ) );
      reasons[it.reason].push_back( std::string( it.table ) + chip );
   }
   out << "\nLeft out, as the plug-in never writes them\n";
   for ( auto const & [reason, tables] : reasons ) {
      Lines( out ).list( 2, std::string( reason ) + ": ", tables );
   }
   out << ( all ? "" : "\nMore: --all every table with its fields, --json the values, --page FILE.html\n" );
}

Value coverageValue( Coverage const & coverage ) {
   auto const pairs = coverage.pairs();
   Value::Object tables;
   for ( Catalogue::Table const & table : Catalogue::tables() ) {
      Value::Object chips;
      for ( ChipType const chipType : allChipTypes ) {
         if ( !Coverage::has( table, chipType ) ) {
            continue;
         }
         auto const * const cell = coverage.cell( table, chipType );
         auto const * const why = Coverage::whyUnwritten( table, chipType );
         Value::Object one{ { "written", cell != nullptr },
                            { "writable", !why },
                            { "reason", why ? Value( std::string( why->reason ) ) : Value() } };
         if ( cell ) {
            one["writes"] = cell->writes;
            one["changes"] = cell->changes;
            one["variants"] = Value::List( cell->variants.begin(), cell->variants.end() );
            one["arrays"] = Value::List( cell->arrays.begin(), cell->arrays.end() );
            Value::Object fields;
            for ( std::string const & name : Coverage::fieldsOf( table, chipType ) ) {
               auto const field = cell->fields.find( name );
               bool const isChanged = field != cell->fields.end();
               Value::List values;
               if ( isChanged ) {
                  values.assign( field->second.values.begin(), field->second.values.end() );
               }
               fields[name] =
                  Value::Object{ { "changes", isChanged ? field->second.changes : 0 }, { "values", values } };
            }
            one["fields"] = fields;
         }
         chips[Hardware::chipTypeName( chipType )] = one;
      }
      tables[table.name] = chips;
   }
   return Value::Object{ { "percent", static_cast< std::int64_t >( std::floor( pairs.percent() ) ) },
                         { "pairs",
                           Value::Object{ { "all", pairs.all },
                                          { "writable", pairs.writable },
                                          { "written", pairs.written },
                                          { "changed", pairs.changed } } },
                         { "tables", tables } };
}

std::string coveragePage( Coverage const & coverage ) {
   std::ostringstream out;
   out << "<!doctype html><html lang=\"en\"><meta charset=\"utf-8\"><title>Coverage</title><style>"
          ":root{color-scheme:light dark}body{font:14px system-ui;margin:2em}table{border-collapse:collapse}"
          "th,td{padding:.2em .7em;text-align:right;border-bottom:1px solid #8884}th:first-child,td:first-child"
          "{text-align:left}.no{background:#d334;font-weight:600}.all{background:#3a34}.out{opacity:.5}</style>"
       << "<h1>Coverage</h1><p>" << inHtml( headOf( coverage ) )
       << ".</p><table><caption>Fields that were changed, of those that the table has</caption><thead><tr><th "
          "scope=\"col\">table</th>";
   for ( ChipType const chipType : allChipTypes ) {
      out << "<th scope=\"col\">" << shortName( chipType ) << "</th>";
   }
   out << "</tr></thead><tbody>";
   for ( Catalogue::Table const & table : Catalogue::tables() ) {
      out << "<tr><td>" << inHtml( table.name ) << "</td>";
      for ( ChipType const chipType : allChipTypes ) {
         std::string const text = cellText( coverage, table, chipType );
         auto const * const cell = coverage.cell( table, chipType );
         auto const * const why =
            Coverage::has( table, chipType ) ? Coverage::whyUnwritten( table, chipType ) : nullptr;
         std::string title = why ? std::string( why->reason ) : "";
         if ( cell ) {
            for ( std::string const & field : Coverage::fieldsOf( table, chipType ) ) {
               title += cell->fields.contains( field ) ? "" : ( title.empty() ? "not changed: " : " " ) + field;
            }
         }
         bool const isAll = cell && cell->fields.size() == Coverage::fieldsOf( table, chipType ).size();
         out << "<td class=\""
             << ( text == "no"  ? "no"
                  : text == "-" ? "out"
                  : isAll       ? "all"
                                : "" )
             << "\" title=\"" << inHtml( title ) << "\">" << text << "</td>";
      }
      out << "</tr>";
   }
   out << "</tbody></table></html>\n";
   return out.str();
}

} // namespace Inspection
