#include "inspection/PluginSource.h"

#include "l3sm/Command.h"

#include <algorithm>
#include <regex>

namespace {

namespace fs = std::filesystem;

std::string withoutComments( std::string const & text ) {
   return std::regex_replace( text, std::regex( R"([ \t]*//[^\n]*)" ), "" );
}

bool isWordLetter( char letter ) {
   return std::isalnum( static_cast< unsigned char >( letter ) ) || letter == '_';
}

bool usesName( std::string const & text, std::string const & name ) {
   for ( auto at = text.find( name ); at != std::string::npos; at = text.find( name, at + 1 ) ) {
      auto const end = at + name.size();
      if ( ( at == 0 || !isWordLetter( text[at - 1] ) ) && ( end == text.size() || !isWordLetter( text[end] ) ) ) {
         return true;
      }
   }
   return false;
}

// What a definition is called: a function by what stands before its arguments, a table by what stands before "=".
std::string nameOf( std::string const & text ) {
   std::smatch found;
   static std::regex const table( R"(([\w:]+)(\[\])?\s*(= |=\n\s*)?\{[^;]*\};?\s*$)" );
   static std::regex const function( R"(([\w:~]+)\()" );
   std::string const head = text.substr( 0, text.find( '\n' ) );
   bool const isTable = text.ends_with( "};\n" );
   if ( isTable ) {
      // "constexpr struct {...} name[] = {" has its name behind the first brace.
      static std::regex const ofStruct( R"(\n\} (\w+)(\[\])? = \{)" );
      static std::regex const plain( R"((\w+)(\[\])?\s*(= )?\{)" );
      if ( std::regex_search( text, found, ofStruct ) || std::regex_search( head, found, plain ) ) {
         return found[1];
      }
      return {};
   }
   return std::regex_search( text, found, function ) ? found[1].str() : std::string();
}

} // namespace

PluginSource::PluginSource( fs::path const & folder ) {
   std::set< fs::path > paths;
   for ( auto const & entry : fs::directory_iterator( folder ) ) {
      if ( entry.path().extension() == ".cpp" || entry.path().extension() == ".h" ) {
         paths.insert( entry.path() );
      }
   }
   for ( fs::path const & path : paths ) {
      files_.push_back( { path.filename(), withoutComments( contentsOf( path ) ) } );
      std::istringstream lines( files_.back().text );
      std::string text;
      std::string alias; // "using Filter = L3IntfSm::RexIpIntfConfigFilter;"
      std::string aliased;
      for ( std::string line; std::getline( lines, line ); ) {
         bool const isOutside = line.empty() || line.starts_with( "#" ) || line.starts_with( "namespace" ) ||
                                line.starts_with( "} // namespace" );
         static std::regex const usingAlias( R"(using (\w+) = ([\w:]+);)" );
         std::smatch found;
         if ( std::regex_match( line, found, usingAlias ) ) {
            alias = found[1].str() + "::";
            aliased = found[2].str() + "::";
         }
         if ( text.empty() && isOutside ) {
            continue;
         }
         text += line + "\n";
         bool const endsHere = line == "}" || line == "};" || ( line.ends_with( ";" ) && !line.starts_with( " " ) );
         if ( endsHere ) {
            std::string name = nameOf( text );
            if ( !alias.empty() && name.starts_with( alias ) ) {
               name = aliased + name.substr( alias.size() );
            }
            definitions_.push_back( { files_.back().name, name, std::exchange( text, {} ) } );
         }
      }
   }
}

std::set< std::string > PluginSource::readersOf( std::string const & name ) const {
   std::set< std::string > readers;
   std::set< std::string > known{ name };
   std::vector< std::string > toFollow{ name };
   while ( !toFollow.empty() ) {
      std::string const next = toFollow.back();
      toFollow.pop_back();
      for ( Definition const & definition : definitions_ ) {
         if ( definition.name == next || definition.name.empty() || !usesName( definition.text, next ) ) {
            continue;
         }
         if ( definition.name.find( "::" ) != std::string::npos ) {
            readers.insert( definition.name );
         } else if ( known.insert( definition.name ).second ) {
            toFollow.push_back( definition.name );
         }
      }
   }
   return readers;
}
