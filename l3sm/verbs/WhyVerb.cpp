// The verb `why`: which operation wrote it, where in the source, on which cause; and who left it alone.
#include "inspection/FieldChanges.h"
#include "inspection/KeptRows.h"
#include "inspection/NamesAsTyped.h"
#include "inspection/files/Json.h"
#include "inspection/views/Terminal.h"
#include "l3sm/verbs/Verbs.h"

#include <algorithm>
#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

using Rex::Value;
using Simulator::Row;

struct Options {
   std::string journal;
   std::string what;
   std::optional< U16 > fap;
   std::optional< U8 > variant;
   std::optional< int > array;
   std::optional< U32 > entry;
   bool allGates = false;
   bool json = false;
};

// What is asked about: a table, one field of it, or a control.
struct Subject {
   Catalogue::Table const * table = nullptr;
   std::string field; // empty: every field
   U32 control = 0;   // without a table

   std::string text() const {
      if ( !table ) {
         return "control " + std::to_string( control );
      }
      return table->name + ( field.empty() ? "" : "." + field );
   }
};

Subject subjectOf( std::string const & what ) {
   auto const dot = what.find( '.' );
   std::string const head = what.substr( 0, dot );
   std::string const tail = dot == std::string::npos ? "" : what.substr( dot + 1 );
   Subject subject;
   if ( head == "control" ) {
      try {
         subject.control = Rex::Codec< U32 >::fromKey( tail );
      } catch ( Rex::ValueError const & ) {
         throw InputError( "\"" + what + "\" is no control; say it as in control.64" );
      }
      return subject;
   }
   subject.table = &tableNamed( head );
   if ( dot != std::string::npos ) {
      subject.field = fieldNamed( *subject.table, tail );
   }
   return subject;
}

struct NamedChange {
   std::string name;
   std::optional< std::string > before;
   std::string after;
};

// A write, with what it did to what is asked about.
struct Write {
   Simulator::Row const * row;
   std::string place;
   std::vector< NamedChange > changes; // empty: it wrote what was there
};

// Functions that do the same again and again are told once.
struct Look {
   std::string function;
   std::string source;
   std::size_t times = 0;
   U32 lastEvent = 0;
};
struct ClosedGate {
   Simulator::Row gate; // the latest
   std::size_t times = 0;
};

struct Story {
   std::vector< Write > changed; // newest first
   std::vector< Write > same;    // newest first
   std::vector< Look > looks;
   std::vector< ClosedGate > gates; // of the functions that have to do with the subject
   std::vector< ClosedGate > otherGates;
};

class Teller {
 public:
   Teller( Subject const & subject, Options const & options ) : subject_( subject ), options_( options ) {}

   Story tell( KeptRows const & journal ) {
      for ( Simulator::Row const & row : journal.all() ) {
         if ( row.kind == Row::Kind::gate ) {
            closed( row );
            continue;
         }
         if ( !row.isOperation() ) {
            continue;
         }
         if ( isAbout( row ) ) {
            follow( row );
         }
      }
      std::ranges::reverse( story_.changed );
      std::ranges::reverse( story_.same );
      for ( ClosedGate const & gate : gates_ ) {
         auto const function = std::string( gate.gate.function );
         bool const isNear = functions_.contains( function ) || options_.allGates;
         ( isNear ? story_.gates : story_.otherGates ).push_back( gate );
      }
      return std::move( story_ );
   }

 private:
   bool isAbout( Simulator::Row const & row ) const {
      if ( options_.fap && *options_.fap != row.fap ) {
         return false;
      }
      if ( row.kind == Simulator::Row::Kind::control ) {
         return !subject_.table && row.control == subject_.control;
      }
      return subject_.table && row.table == subject_.table->name &&
             ( !options_.variant || *options_.variant == row.variant ) &&
             ( !options_.array || *options_.array == row.array ) &&
             ( !options_.entry || *options_.entry == row.entry.value_or( 0 ) );
   }

   void follow( Simulator::Row const & row ) {
      functions_.insert( std::string( row.function ) );
      if ( row.kind == Simulator::Row::Kind::read ) {
         auto found = std::ranges::find_if( story_.looks, [&]( Look const & look ) {
            return look.function == row.function && look.source == row.source;
         } );
         if ( found == story_.looks.end() ) {
            found = story_.looks.insert( found, { std::string( row.function ), std::string( row.source ) } );
         }
         ++found->times;
         found->lastEvent = row.event;
         return;
      }
      Write write{ &row, placeOf( row ), changesOf( row ) };
      ( write.changes.empty() ? story_.same : story_.changed ).push_back( std::move( write ) );
   }

   static std::string placeOf( Simulator::Row const & row ) {
      if ( row.kind == Simulator::Row::Kind::control ) {
         return "";
      }
      std::string const place = placeText(
         *Catalogue::table( row.table ), *row.layout, static_cast< U32 >( row.array ), row.entry.value_or( 0 ) );
      std::string const core = row.scope == Simulator::Row::Scope::core ? "core " + std::to_string( row.core ) : "";
      return place + ( place.empty() || core.empty() ? "" : " " ) + core;
   }

   std::vector< NamedChange > changesOf( Simulator::Row const & row ) const {
      std::vector< NamedChange > changes;
      if ( row.kind == Simulator::Row::Kind::control ) {
         auto const before = row.valueBefore;
         if ( row.changed ) {
            changes.push_back( { "",
                                 before ? std::optional( std::to_string( *before ) ) : std::nullopt,
                                 std::to_string( row.value ) } );
         }
         return changes;
      }
      for ( auto const & change : fieldChanges( row ) ) {
         bool const isAsked = subject_.field.empty() || subject_.field == change.field->name;
         // Where nobody knows what stood there before, the journal still knows whether anything became different.
         if ( isAsked && row.changed && change.isChange() ) {
            changes.push_back( { change.field->name, change.before, change.after } );
         }
      }
      return changes;
   }

   void closed( Simulator::Row const & gate ) {
      if ( options_.fap && gate.isOfFap && gate.fap != *options_.fap ) {
         return;
      }
      auto found = std::ranges::find_if( gates_, [&]( ClosedGate const & known ) {
         return known.gate.source == gate.source && known.gate.reason == gate.reason && known.gate.fap == gate.fap;
      } );
      if ( found == gates_.end() ) {
         found = gates_.insert( found, { gate } );
      }
      found->gate = gate;
      ++found->times;
   }

   Subject const & subject_;
   Options const & options_;
   Story story_;
   std::vector< ClosedGate > gates_;
   std::set< std::string > functions_;
};

std::string eventText( U32 event, std::string_view cause ) {
   return "event " + std::to_string( event ) + ", " + std::string( cause );
}

std::string valueText( std::string const & value ) {
   return value.starts_with( "0x" ) ? readable( value ) : value;
}

// Writes of one event and cause stand together.
void showWrites( std::ostream & out, std::vector< Write > const & writes, Style const & style ) {
   std::string event;
   Columns columns;
   auto const flush = [&] {
      columns.print( out, 4 );
      columns = Columns();
   };
   for ( Write const & write : writes ) {
      Simulator::Row const & row = *write.row;
      if ( std::string const now = eventText( row.event, row.cause ); now != event ) {
         flush();
         out << "  " << style.strong( now ) << '\n';
         event = now;
      }
      std::vector< std::string > const head{ style.faint( "#" + std::to_string( row.seq ) ),
                                             "FAP " + std::to_string( row.fap ),
                                             style.place( write.place ) };
      std::vector< std::string > const origin{ std::string( row.function ), style.faint( row.source ) };
      bool isFirst = true;
      for ( NamedChange const & change : write.changes ) {
         std::vector< std::string > cells = isFirst ? head : std::vector< std::string >( head.size() );
         cells.push_back( change.name );
         cells.push_back( style.before( change.before ? valueText( *change.before ) : "?" ) + style.faint( " → " ) +
                          style.after( valueText( change.after ) ) );
         if ( isFirst ) {
            cells.insert( cells.end(), origin.begin(), origin.end() );
         }
         columns.row( cells );
         isFirst = false;
      }
      if ( write.changes.empty() ) {
         std::vector< std::string > cells = head;
         cells.insert( cells.end(), origin.begin(), origin.end() );
         columns.row( cells );
      }
   }
   flush();
}

void showGates( std::ostream & out, std::vector< ClosedGate > const & gates, Style const & style ) {
   Columns columns;
   for ( auto const & [gate, times] : gates ) {
      columns.row( { std::string( gate.function ),
                     style.differs( gate.reason ),
                     gate.isOfFap ? "FAP " + std::to_string( gate.fap ) : "",
                     style.faint( eventText( gate.event, gate.cause ) ),
                     style.faint( gate.source ),
                     times == 1 ? "" : style.faint( counted( times, "time", "times" ) ) } );
   }
   columns.print( out, 2 );
}

void showStory( std::ostream & out, Subject const & subject, Story const & story, Style const & style ) {
   out << style.title( subject.text() ) << '\n';
   out << '\n' << style.strong( "Changed by" ) << ( story.changed.empty() ? "  nothing" : ", newest first" ) << '\n';
   showWrites( out, story.changed, style );
   if ( !story.same.empty() ) {
      out << '\n' << style.strong( "Written without a change" ) << ", newest first\n";
      showWrites( out, story.same, style );
   }
   if ( !story.looks.empty() ) {
      out << '\n' << style.strong( "Looked at by" ) << '\n';
      Columns columns;
      for ( Look const & look : story.looks ) {
         columns.row( { look.function,
                        style.faint( look.source ),
                        counted( look.times, "time", "times" ),
                        "last in event " + std::to_string( look.lastEvent ) } );
      }
      columns.print( out, 2 );
   }
   bool const isUntouched = story.changed.empty() && story.same.empty() && story.looks.empty();
   auto const & gates = story.gates.empty() && isUntouched ? story.otherGates : story.gates;
   if ( !gates.empty() ) {
      out << '\n'
          << style.strong( "Kept from running" )
          << ( isUntouched ? "  (nothing touched it: every function that a gate has stopped)" : "" ) << '\n';
      showGates( out, gates, style );
   }
   if ( !isUntouched && !story.otherGates.empty() ) {
      out << '\n'
          << counted( story.otherGates.size(), "gate", "gates" )
          << " of functions that have nothing to do with it; --gates shows them\n";
   }
}

Value writesValue( std::vector< Write > const & writes ) {
   Value::List list;
   for ( Write const & write : writes ) {
      Simulator::Row const & row = *write.row;
      Value::Object one{ { "seq", row.seq },
                         { "event", row.event },
                         { "cause", std::string( row.cause ) },
                         { "fap", row.fap },
                         { "function", std::string( row.function ) },
                         { "source", std::string( row.source ) } };
      if ( row.kind == Simulator::Row::Kind::write ) {
         one["variant"] = row.variant;
         one["array"] = row.array;
         one["entry"] = row.entry ? Value( *row.entry ) : Value();
      }
      Value::Object changes;
      for ( NamedChange const & change : write.changes ) {
         changes[change.name.empty() ? "value" : change.name] =
            Value::Object{ { "before", change.before ? Value( *change.before ) : Value() }, { "after", change.after } };
      }
      one["changes"] = changes;
      list.push_back( one );
   }
   return list;
}

Value gatesValue( std::vector< ClosedGate > const & gates ) {
   Value::List list;
   for ( auto const & [gate, times] : gates ) {
      list.push_back( Value::Object{ { "function", std::string( gate.function ) },
                                     { "source", std::string( gate.source ) },
                                     { "reason", std::string( gate.reason ) },
                                     { "fap", gate.isOfFap ? Value( gate.fap ) : Value() },
                                     { "event", gate.event },
                                     { "cause", std::string( gate.cause ) },
                                     { "times", times } } );
   }
   return list;
}

Value storyValue( Subject const & subject, Story const & story ) {
   Value::List looks;
   for ( Look const & look : story.looks ) {
      looks.push_back( Value::Object{ { "function", look.function },
                                      { "source", look.source },
                                      { "times", look.times },
                                      { "lastEvent", look.lastEvent } } );
   }
   return Value::Object{ { "subject", subject.text() },
                         { "changedBy", writesValue( story.changed ) },
                         { "writtenWithoutChange", writesValue( story.same ) },
                         { "lookedAtBy", looks },
                         { "gates", gatesValue( story.gates ) },
                         { "otherGates", gatesValue( story.otherGates ) } };
}

// A place that the table has on no chip.
void checkPlace( Subject const & subject, Options const & options ) {
   if ( !subject.table ) {
      return;
   }
   auto const & layouts = subject.table->layouts;
   bool const isThere = std::ranges::any_of( layouts, [&]( Catalogue::Layout const & layout ) {
      int const first = layout.arrayIndexFirst;
      return ( !options.variant || *options.variant == layout.variant ) &&
             ( !options.array || ( *options.array >= first && *options.array < first + layout.arrayElements ) ) &&
             ( !options.entry || *options.entry < std::max< U32 >( layout.entries, 1 ) );
   } );
   if ( !isThere ) {
      throw InputError( std::string( subject.table->name ) +
                        " has no such variant, array index and entry; `l3sm catalogue " + subject.table->name +
                        "` tells what it has" );
   }
}

void checkFap( KeptRows const & journal, U16 fap ) {
   if ( std::ranges::none_of( journal.all(), [&]( Row const & row ) { return row.isOfFap && row.fap == fap; } ) ) {
      throw InputError( "the journal tells nothing of a FAP " + std::to_string( fap ) );
   }
}

int answer( Options const & options ) {
   Subject const subject = subjectOf( options.what );
   checkPlace( subject, options );
   KeptRows const journal = rowsOf( options.journal );
   if ( options.fap ) {
      checkFap( journal, *options.fap );
   }
   Story const story = Teller( subject, options ).tell( journal );
   if ( options.json ) {
      std::cout << toJson( storyValue( subject, story ), 2 ) << '\n';
   } else {
      showStory( std::cout, subject, story, Style::of( std::cout ) );
   }
   return 0;
}

} // namespace

Action defineWhy( VerbOptions & verb ) {
   auto const options = std::make_shared< Options >();
   verb.required( "JOURNAL", options->journal, "a file that `l3sm run --journal` wrote" );
   verb.required( "WHAT", options->what, "TABLE, TABLE.FIELD, or control.NUMBER" );
   verb.number( "--fap", options->fap, "only this FAP" );
   verb.number( "--variant", options->variant, "only this variant" );
   verb.number( "--array", options->array, "only this array index" );
   verb.number( "--entry", options->entry, "only this entry" );
   verb.flag( "--gates", options->allGates, "every gate that was found closed" );
   verb.flag( "--json", options->json, "for programs" );
   return [options] { return answer( *options ); };
}

} // namespace Cli
