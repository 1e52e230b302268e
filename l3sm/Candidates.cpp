#include "l3sm/Candidates.h"

#include "chip/ChipType.h"
#include "generated/Catalogue.h"
#include "inspection/Facilities.h"
#include "inspection/KnownControls.h"
#include "inspection/KnownToggles.h"
#include "inspection/NewScenario.h"
#include "inspection/StatePaths.h"
#include "inspection/WhySubject.h"
#include "l3sm/LiveCandidates.h"

#include <algorithm>
#include <map>
#include <set>

namespace Cli {

using namespace Inspection;

namespace {

using List = std::vector< Candidate >;
using Before = std::vector< std::string >;

Candidates files( std::string const &, Before const & ) {
   return { .files = true };
}

Candidates nothing( std::string const &, Before const & ) {
   return {};
}

List allTables() {
   List all;
   for ( auto const & table : Catalogue::tables() ) {
      all.push_back( { table.name, !table.hasMemory ? "format" : table.isMemory ? "memory" : "register" } );
   }
   return all;
}

Candidates tablesOnly( std::string const &, Before const & ) {
   return { .list = allTables() };
}

Candidates tablesAndControls( std::string const &, Before const & ) {
   List all = allTables();
   all.push_back( { "controls", "the driver's numbered controls" } );
   return { .list = all };
}

Candidates chips( std::string const &, Before const & ) {
   List all;
   for ( auto const chipType : Hardware::allChipTypes ) {
      all.push_back( { chipTypeName( chipType ) } );
   }
   return { .list = all };
}

Candidates facilities( std::string const &, Before const & ) {
   List all;
   for ( auto const & name : knownFacilities() ) {
      all.push_back( { name } );
   }
   return { .list = all };
}

// Several with commas between them: the last is being typed.
Candidates facilitiesWithLevels( std::string const & typed, Before const & ) {
   auto const comma = typed.rfind( ',' );
   std::string const head = comma == std::string::npos ? "" : typed.substr( 0, comma + 1 );
   std::string const last = typed.substr( head.size() );
   List all;
   if ( last.find( '/' ) == std::string::npos ) {
      for ( auto const & name : knownFacilities() ) {
         all.push_back( { head + name + "/" } );
      }
      all.push_back( { head + "*/", "every facility" } );
      return { .list = all };
   }
   std::string const name = last.substr( 0, last.find( '/' ) );
   std::map< int, int > texts;
   for ( KnownTrace const & trace : knownTraces() ) {
      texts[trace.level] += name == "*" || trace.facility == name;
   }
   for ( auto const & [level, count] : texts ) {
      if ( count > 0 ) {
         all.push_back( { head + name + "/" + std::to_string( level ), std::to_string( count ) + " texts" } );
      }
   }
   return { .list = all };
}

Candidates toggles( std::string const &, Before const & ) {
   List all;
   for ( KnownToggle const & toggle : knownToggles() ) {
      for ( bool const state : { true, false } ) {
         all.push_back(
            { toggle.text() + ( state ? "=on" : "=off" ), toggle.defaultState == state ? "the default" : "" } );
      }
   }
   return { .list = all };
}

// The paths as they are listed; behind one of them and `mark`, its attributes.
Candidates pathsAndAttributes( std::string const & typed, char mark ) {
   List all;
   for ( StatePath const & path : statePaths() ) {
      all.push_back( { path.path, path.type->name() } );
   }
   auto const at = typed.rfind( mark );
   std::string const head = at == std::string::npos ? "" : typed.substr( 0, at );
   for ( StatePath const & path : statePaths() ) {
      if ( path.isOf( head ) ) {
         for ( StateAttribute const & attribute : path.attributes ) {
            all.push_back( { head + mark + attribute.attribute->name, "attribute" } );
         }
      }
   }
   return { .list = all };
}

Candidates paths( std::string const & typed, Before const & ) {
   return pathsAndAttributes( typed, '/' );
}

std::set< std::string > fieldsOf( std::string const & table ) {
   std::set< std::string > fields;
   if ( auto const * found = Catalogue::table( table ) ) {
      for ( auto const & layout : found->layouts ) {
         for ( auto const & field : layout.fields ) {
            fields.insert( field.name );
         }
      }
   }
   return fields;
}

Candidates functions( std::string const &, Before const & ) {
   List all;
   for ( auto const & function : knownFunctions() ) {
      all.push_back( { function } );
   }
   return { .list = all };
}

// What `why` is asked of: a table, behind its dot a field, a control, a path of the state or its attribute, a function.
Candidates subjects( std::string const & typed, Before const & before ) {
   auto const dot = typed.find( '.' );
   std::string const head = typed.substr( 0, dot );
   if ( dot != std::string::npos && head == "control" ) {
      List all;
      for ( KnownControl const & control : knownControls() ) {
         all.push_back( { "control." + std::to_string( control.number ), std::string( control.function ) } );
      }
      return { .list = all };
   }
   if ( dot != std::string::npos && Catalogue::table( head ) ) {
      List all;
      for ( auto const & field : fieldsOf( head ) ) {
         all.push_back( { head + "." + field } );
      }
      return { .list = all };
   }
   List all = allTables();
   for ( auto const & more : { pathsAndAttributes( typed, '.' ), functions( typed, before ) } ) {
      all.insert( all.end(), more.list.begin(), more.list.end() );
   }
   all.push_back( { "control.", "a numbered control of the driver" } );
   return { .list = all };
}

Candidates tablesAndFields( std::string const & typed, Before const & before ) {
   return typed.find( '.' ) == std::string::npos ? tablesOnly( typed, before ) : subjects( typed, before );
}

Candidates causes( std::string const &, Before const & ) {
   List all{ { "chip-init" }, { "start" } };
   for ( StatePath const & path : statePaths() ) {
      for ( StateAttribute const & attribute : path.attributes ) {
         if ( !path.hasKey() && path.kind == StatePath::Kind::state ) {
            all.push_back( { path.path + " " + attribute.attribute->name } );
         }
      }
   }
   return { .list = all };
}

// Several with commas between them: the last is being typed.
Candidates scenarioSubjects( std::string const & typed, Before const & ) {
   auto const comma = typed.rfind( ',' );
   std::string const head = comma == std::string::npos ? "" : typed.substr( 0, comma + 1 );
   List all;
   for ( Subject const & subject : Inspection::subjects() ) {
      all.push_back( { head + subject.name, subject.does } );
   }
   return { .list = all };
}

Candidates events( std::string const &, Before const & ) {
   return { .list = { { "all" }, { "last" } } };
}

Candidates drifts( std::string const &, Before const & ) {
   return { .list = { { "commit", "bring what differs to the chips" }, { "hold", "wait for `l3sm ctl repair`" } } };
}

struct Place {
   std::string_view name;
   Candidates ( *candidates )( std::string const &, Before const & );
};

constexpr Place placesOfFiles[] = {
   // options by name
   { "--chip", chips },
   { "--table", tablesAndControls },
   { "--function", functions },
   { "--cause", causes },
   { "--plugin", files },
   { "--against", files },
   { "--with", scenarioSubjects },
   { "--at", nothing },
   { "--socket", files },
   { "--record", files },
   { "--metrics", files },
   { "--chips-file", files },
   // places
   { "TABLE", tablesAndFields },
   { "CONDITION", tablesAndFields },
   { "PATH", paths },
   { "FACILITY", facilities },
   { "SUBJECT", subjects },
   { "ACTION", stateActions },
   { "ARGUMENT", ofStateAction },
   { "COMMAND", ofAgentCommand },
   { "A", files },
   { "B", files },
   { "CHIPS", files },
   { "JOURNAL", files },
   // the types of what is left
   { "UINT", nothing },
   { "INT", nothing },
   { "URL", nothing },
   { "KEY", nothing },
   { "NAME", nothing },
   { "SLICE", slices },
   { "commit|hold", drifts },
   { "N[,...]|all|last", events },
   { "FACILITY/LEVEL[,...]", facilitiesWithLevels },
   { "FILE:NAME=on|off", toggles },
};

// A file is told by its word: "FILE", "SCENARIO.json", "PAGE.html", "PLUGIN.so".
bool isFile( std::string_view name ) {
   auto const dot = std::min( name.find( '.' ), name.size() );
   auto const stem = name.substr( 0, dot );
   bool const isInCapitals =
      !stem.empty() && std::ranges::all_of( stem, []( char letter ) { return letter >= 'A' && letter <= 'Z'; } );
   bool const hasEnd = dot + 1 < name.size() && std::ranges::all_of( name.substr( dot + 1 ), []( char letter ) {
                          return letter >= 'a' && letter <= 'z';
                       } );
   return isInCapitals && ( hasEnd || stem == "FILE" );
}

Place const * placeNamed( std::string_view name ) {
   static constexpr Place file{ "FILE", files };
   auto const found = std::ranges::find( placesOfFiles, name, &Place::name );
   return found != std::end( placesOfFiles ) ? found : isFile( name ) ? &file : nullptr;
}

} // namespace

bool isKnownPlace( std::string_view place ) {
   return placeNamed( place ) != nullptr;
}

Candidates
candidatesFor( std::string_view place, std::string const & typed, std::vector< std::string > const & before ) {
   auto const * const known = placeNamed( place );
   if ( !known ) {
      return {};
   }
   Candidates all = known->candidates( typed, before );
   std::erase_if( all.list, [&]( Candidate const & candidate ) { return !candidate.text.starts_with( typed ); } );
   all.isOpen = !all.list.empty() && std::ranges::all_of( all.list, []( Candidate const & candidate ) {
      return candidate.text.ends_with( '/' ) || candidate.text.ends_with( '.' );
   } );
   return all;
}

} // namespace Cli
