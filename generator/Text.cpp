#include "generator/Text.h"

#include <algorithm>
#include <cctype>
#include <sstream>

std::string capitalised( std::string name ) {
   name[0] = static_cast< char >( std::toupper( static_cast< unsigned char >( name[0] ) ) );
   return name;
}

std::string lowerCase( std::string name ) {
   std::transform( name.begin(), name.end(), name.begin(), []( unsigned char c ) {
      return static_cast< char >( std::tolower( c ) );
   } );
   return name;
}

std::string hex( unsigned long long number ) {
   std::ostringstream out;
   out << "0x" << std::hex << number;
   return out.str();
}

std::string typeFor( unsigned bits ) {
   unsigned size = 8;
   while ( size < bits ) {
      size *= 2;
   }
   return ( size <= 64 ? "U" : "Raw" ) + std::to_string( size );
}

std::string entryTypeFor( Model::Table const & table ) {
   return typeFor( table.largestWidth() * 32 );
}

unsigned typeBits( std::string const & type ) {
   return static_cast< unsigned >( std::stoul( type.substr( type.find_first_of( "0123456789" ) ) ) );
}

std::string list( std::vector< std::string > const & parts ) {
   std::string text;
   for ( auto const & part : parts ) {
      text += ( text.empty() ? "" : ", " ) + part;
   }
   return text;
}

std::string generatedNote( std::string const & what ) {
   return "// " + what +
          "\n// Written by the generator from catalogue/. Do not edit: change the catalogue and run ./dev generate.\n";
}
