// The list of traces is what the sources say; ./dev golden writes it anew.
#include "inspection/Facilities.h"

#include "inspection/GoldenList.h"
#include "inspection/PluginSource.h"

#include <algorithm>
#include <regex>
#include <tuple>

namespace {

namespace fs = std::filesystem;

struct Found {
   std::string facility;
   int level;
   std::string text;
   std::string source;
   auto operator<=>( Found const & ) const = default;
};

std::string firstMatch( std::string const & text, char const * pattern ) {
   std::smatch found;
   return std::regex_search( text, found, std::regex( pattern ) ) ? found[1].str() : std::string();
}

// The arguments of a call whose first stands at `at`, without the blanks around them.
std::vector< std::string > argumentsAt( std::string const & text, std::size_t at ) {
   std::vector< std::string > arguments( 1 );
   int depth = 0;
   for ( bool isQuoted = false; depth >= 0 && at < text.size(); ++at ) {
      char const letter = text[at];
      isQuoted = isQuoted != ( letter == '"' && text[at - 1] != '\\' );
      depth += isQuoted ? 0 : letter == '(' || letter == '{' ? 1 : letter == ')' || letter == '}' ? -1 : 0;
      if ( depth == 0 && !isQuoted && letter == ',' ) {
         arguments.emplace_back();
      } else if ( depth >= 0 &&
                  ( isQuoted || letter == '"' || !std::isspace( static_cast< unsigned char >( letter ) ) ) ) {
         arguments.back() += letter;
      }
   }
   return arguments;
}

// What a trace says: its literals, and the constants of its function, with "…" for every other part.
std::string textOf( std::vector< std::string > const & arguments, std::string const & function ) {
   std::string text;
   for ( std::size_t part = 1; part < arguments.size(); ++part ) {
      std::string const & argument = arguments[part];
      if ( argument.starts_with( '"' ) ) {
         text += argument.substr( 1, argument.size() - 2 );
         continue;
      }
      bool const isName = std::regex_match( argument, std::regex( R"(\w+)" ) );
      std::string const constant =
         isName ? firstMatch( function, ( "constexpr auto " + argument + " = \"([^\"]*)\";" ).c_str() ) : "";
      text += constant.empty() ? "…" : constant;
   }
   return text;
}

std::set< Found > tracesOfFolder( fs::path const & folder ) {
   std::set< Found > traces;
   PluginSource const source( folder );
   for ( PluginSource::File const & file : source.files() ) {
      std::string const facility = firstMatch( file.text, R"re(TraceFacility const trace\{ "(\w+)" \};)re" );
      for ( auto const & definition : source.definitions() ) {
         if ( facility.empty() || definition.file != file.name ) {
            continue;
         }
         std::regex const call( R"(\b(trace|dualTrace)\(\s*(\d),)" );
         std::string const & text = definition.text;
         for ( std::sregex_iterator it( text.begin(), text.end(), call ), end; it != end; ++it ) {
            auto const arguments = argumentsAt( text, static_cast< std::size_t >( it->position( 2 ) ) );
            traces.insert( { facility, std::stoi( ( *it )[2] ), textOf( arguments, text ), file.name } );
         }
      }
   }
   return traces;
}

std::set< Found > tracesOfTheSources() {
   fs::path const root = L3SM_SOURCE_DIR;
   std::set< Found > traces = tracesOfFolder( root / "DaceL3Unicast/DaceFapNiPlugin" );
   traces.merge( tracesOfFolder( root / "platform/agent" ) );
   // The accessors' operations trace through one function.
   std::string const facility = firstMatch( contentsOf( root / "generated/DaceFapNiPluginL3UnicastMetaInfo.cpp" ),
                                            R"re(TraceFacility const trace\{ "(\w+)" \};)re" );
   std::string const level =
      firstMatch( contentsOf( root / "platform/sal/MetaInfo.h" ), R"(accessTraceLevel = (\d);)" );
   std::string const tell = contentsOf( root / "platform/sal/MetaInfo.cpp" );
   auto const at = tell.find( "facility( accessTraceLevel" );
   EXPECT_NE( at, std::string::npos );
   traces.insert( { facility,
                    std::stoi( level ),
                    textOf( argumentsAt( tell, at + std::string( "facility( " ).size() ), "" ),
                    "DaceFapNiPluginL3UnicastMetaInfo.cpp" } );
   return traces;
}

TEST( TracesGolden, areThoseOfTheSources ) {
   std::string rows;
   for ( Found const & trace : tracesOfTheSources() ) {
      rows += "      { \"" + trace.facility + "\", " + std::to_string( trace.level ) + ", \"" + trace.text + "\", \"" +
              trace.source + "\" },\n";
   }
   expectList( "inspection/KnownTraces.cpp", "traces[] = {\n", rows );
}

// What a run of every facility on every level says, is in the list.
TEST( Traces, areThoseThatRunsTell ) {
   std::vector< std::pair< std::string, std::regex > > known;
   for ( auto const & trace : Inspection::knownTraces() ) {
      std::string pattern =
         std::regex_replace( std::string( trace.text ), std::regex( R"([.[\]{}()*+?^$|\\])" ), R"(\$&)" );
      pattern = std::regex_replace( pattern, std::regex( "…" ), ".*" );
      known.emplace_back( std::string( trace.facility ) + "/" + std::to_string( trace.level ), pattern );
   }
   std::set< std::string > facilities;
   for ( auto const & example : fs::directory_iterator( L3SM_SOURCE_DIR "/examples" ) ) {
      Command const l3sm( "run --quiet --trace '*/9' --trace-out t '" + example.path().string() + "'" );
      std::istringstream lines( l3sm.file( "t" ) );
      std::set< std::string > unknown;
      for ( std::string line; std::getline( lines, line ); ) {
         if ( line.starts_with( "AsicUtils" ) ) {
            continue; // one text, ten thousands of times
         }
         auto const blank = line.find( ' ' );
         facilities.insert( line.substr( 0, line.find( '/' ) ) );
         std::string const text = line.substr( blank + 1 );
         if ( std::ranges::none_of( known, [&]( auto const & trace ) {
                 return line.starts_with( trace.first + " " ) && std::regex_match( text, trace.second );
              } ) ) {
            unknown.insert( line );
         }
      }
      EXPECT_EQ( unknown, std::set< std::string >{} );
   }
   EXPECT_GE( facilities.size(), 6u );
}

TEST( Traces, haveEveryFacilityThatRegisters ) {
   // Who asks for one that nobody has registered is told all that there are.
   std::string const told = Command( "run --quiet --trace Qwertyuiop/0 --trace-out t" ).errors;
   std::set< std::string > registered;
   std::istringstream names( told.substr( std::min( told.find( "there are " ) + 10, told.size() ) ) );
   for ( std::string name; names >> name; ) {
      registered.insert( name.substr( 0, name.find( ',' ) ) );
   }
   auto const known = Inspection::knownFacilities();
   EXPECT_EQ( registered, std::set< std::string >( known.begin(), known.end() ) );
}

} // namespace
