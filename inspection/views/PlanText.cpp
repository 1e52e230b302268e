#include "inspection/views/PlanText.h"

#include "inspection/FieldChanges.h"
#include "inspection/FoldedWrites.h"
#include "inspection/NamesAsTyped.h"

#include <algorithm>

namespace Inspection {

namespace {

using Rex::Value;
using Simulator::Row;
using Rows = std::vector< Row const * >;

constexpr std::size_t fewGroups = 12;    // of one FAP in one event
constexpr std::size_t manyChanges = 200; // of one event: its tables are told, not its fields

Rows rowsOf( PlannedEvent const & event, U16 fap, Row::Kind kind ) {
   Rows rows;
   for ( Row const & row : event.changes ) {
      if ( row.fap == fap && row.kind == kind ) {
         rows.push_back( &row );
      }
   }
   return rows;
}

std::set< U16 > fapsOf( PlannedEvent const & event ) {
   std::set< U16 > faps;
   std::optional< U16 > latest; // changes of one FAP mostly stand together
   for ( Row const & row : event.changes ) {
      if ( row.fap != latest ) {
         faps.insert( row.fap );
         latest = row.fap;
      }
   }
   return faps;
}

std::string counts( std::size_t entries, std::size_t controls ) {
   std::string const text = counted( entries, "entry", "entries" );
   return controls == 0 ? text : text + " and " + counted( controls, "control", "controls" );
}

// What would change of one entry: "cpuStrengthN 0x5 → 0x0".
std::string fieldText( GroupField const & field, Style const & style ) {
   return field.name + " " + style.before( readable( field.before ) ) + style.faint( " → " ) +
          style.after( readable( field.after ) );
}

void showGroups( std::ostream & out, std::vector< WriteGroup > const & groups, bool all, Style const & style ) {
   std::string_view function;
   std::size_t shown = 0;
   std::size_t left = 0;
   for ( WriteGroup const & group : groups ) {
      Row const & row = group.first();
      if ( ++shown > fewGroups && !all ) {
         left += group.writes.size();
         continue;
      }
      if ( row.function != function ) {
         function = row.function;
         out << "    " << style.strong( row.function ) << "  " << style.faint( row.source ) << style.faint( "  on " )
             << style.faint( row.cause ) << '\n';
      }
      auto const places = group.places();
      out << "      " << row.table << ( row.variant ? " variant " + std::to_string( row.variant ) : "" )
          << ( places.empty() ? "" : "  " + style.place( places ) ) << '\n';
      for ( GroupField const & field : group.fields ) {
         if ( field.changed ) {
            out << "        " << fieldText( field, style ) << '\n';
         }
      }
   }
   if ( left > 0 ) {
      out << "      ... and " << counted( left, "more entry", "more entries" )
          << "; --all shows them, --stat counts by table\n";
   }
}

void showEvent( std::ostream & out, PlannedEvent const & event, PlanTextOptions const & options, Style const & style ) {
   for ( U16 const fap : fapsOf( event ) ) {
      out << "  FAP " << fap << '\n';
      showGroups( out, groupsOf( rowsOf( event, fap, Row::Kind::write ) ), options.all, style );
      for ( Row const * row : rowsOf( event, fap, Row::Kind::control ) ) {
         out << "    " << style.strong( row->function ) << "  " << style.faint( row->source ) << '\n';
         out << "      control " << row->control << "  "
             << style.before( row->valueBefore ? std::to_string( *row->valueBefore ) : "unset" ) << style.faint( " → " )
             << style.after( std::to_string( row->value ) ) << '\n';
      }
   }
}

void showTables( std::ostream & out, PlannedEvent const & event, Style const & style ) {
   std::map< std::string, std::map< U16, std::size_t > > tables;
   for ( Row const & row : event.changes ) {
      ++tables[row.kind == Row::Kind::control ? "controls" : std::string( row.table )][row.fap];
   }
   auto const faps = fapsOf( event );
   Columns columns;
   for ( auto const & [table, counts] : tables ) {
      std::vector< std::string > cells{ table };
      for ( U16 const fap : faps ) {
         auto const found = counts.find( fap );
         cells.push_back( found == counts.end()
                             ? ""
                             : style.faint( "FAP " + std::to_string( fap ) + " " ) + std::to_string( found->second ) );
      }
      columns.row( cells );
   }
   columns.print( out, 2 );
}

// Of all events.
struct Totals {
   explicit Totals( Plan const & plan ) {
      for ( PlannedEvent const & event : plan.events ) {
         bool const changes = !event.changes.empty();
         entries += event.entries();
         controls += event.controls();
         changing += changes;
         ofStart = ofStart || ( changes && event.event == 0 );
      }
      hasStart = !plan.events.empty() && plan.events.front().event == 0;
      all = plan.events.size() - hasStart;
   }
   // "by the start and 3 of 6 events"
   std::string text() const {
      std::size_t const events = changing - ofStart;
      std::string const ofEvents = std::to_string( events ) + " of " + counted( all, "event", "events" );
      return "by " + std::string( ofStart ? "the start" : "" ) + ( ofStart && all > 0 ? " and " : "" ) +
             ( all > 0 ? ofEvents : "" );
   }
   std::size_t entries = 0;
   std::size_t controls = 0;
   std::size_t changing = 0;
   std::size_t all = 0; // events, without the start
   bool hasStart = false;
   bool ofStart = false;
};

Value changeValue( Row const & row ) {
   Value::Object one{ { "fap", row.fap },
                      { "function", std::string( row.function ) },
                      { "source", std::string( row.source ) },
                      { "cause", std::string( row.cause ) } };
   if ( row.kind == Row::Kind::control ) {
      one["control"] = row.control;
      one["before"] = row.valueBefore ? Value( *row.valueBefore ) : Value();
      one["after"] = row.value;
      return one;
   }
   one["table"] = std::string( row.table );
   one["variant"] = row.variant;
   one["array"] = row.array;
   one["entry"] = row.entry ? Value( *row.entry ) : Value();
   one["copy"] = row.scope == Row::Scope::core ? Value( row.core ) : Value();
   Value::Object fields;
   for ( FieldChange const & change : fieldChanges( row ) ) {
      if ( change.isChange() ) {
         fields[change.field->name] = Value::Object{ { "before", *change.before }, { "after", change.after } };
      }
   }
   one["fields"] = fields;
   return one;
}

} // namespace

void showPlan( std::ostream & out, Plan const & plan, PlanTextOptions const & options, Style const & style ) {
   Totals const totals( plan );
   out << style.title( printable( plan.name ) ) << "\n\n";
   if ( totals.changing == 0 ) {
      out << "Nothing would change: the chips hold what " << ( totals.hasStart ? "the start and " : "" )
          << counted( totals.all, "event", "events" ) << " would write.\n";
      return;
   }
   out << style.strong( counts( totals.entries, totals.controls ) + " would change" ) << ": " << totals.text()
       << ". No chip was touched.\n";
   bool isShort = false;
   for ( PlannedEvent const & event : plan.events ) {
      if ( event.changes.empty() ) {
         continue;
      }
      out << '\n'
          << style.strong( event.event == 0 ? "Start" : "Event " + std::to_string( event.event ) + ": " + event.what )
          << "  would change " << counts( event.entries(), event.controls() ) << style.faint( "  (" )
          << style.faint( counted( event.operations, "operation", "operations" ) ) << style.faint( ")" ) << '\n';
      bool const isLarge = event.changes.size() > manyChanges && !options.all;
      isShort = isShort || isLarge;
      if ( options.stat || isLarge ) {
         showTables( out, event, style );
      } else {
         showEvent( out, event, options, style );
      }
   }
   if ( isShort && !options.stat ) {
      out << "\nOf large events the tables are told; --all tells every entry.\n";
   }
}

Value planValue( Plan const & plan ) {
   Value::List events;
   for ( PlannedEvent const & event : plan.events ) {
      Value::List changes;
      for ( Row const & row : event.changes ) {
         changes.push_back( changeValue( row ) );
      }
      events.push_back( Value::Object{ { "event", event.event },
                                       { "what", event.what },
                                       { "operations", event.operations },
                                       { "changingWrites", event.changingWrites },
                                       { "entries", event.entries() },
                                       { "controls", event.controls() },
                                       { "changes", changes } } );
   }
   return Value::Object{ { "name", plan.name }, { "changes", !plan.isEmpty() }, { "events", events } };
}

} // namespace Inspection
