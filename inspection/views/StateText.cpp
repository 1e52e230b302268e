#include "inspection/views/StateText.h"

#include "inspection/files/Json.h"
#include "inspection/views/Lines.h"

#include <algorithm>

namespace Inspection {

namespace {

using Rex::Value;

// Whether it holds entities by name, each an object.
bool isCollection( Value const & value ) {
   auto const * const object = value.object();
   return object && !object->empty() &&
          std::ranges::all_of( *object, []( auto const & member ) { return member.second.object() != nullptr; } );
}

class Writer {
 public:
   explicit Writer( std::ostream & out ) : lines_( out, Lines::Long::whole ) {}

   void write( std::string const & path, Value const & value ) {
      auto const * const attributes = value.object();
      if ( value.isNull() ) {
         lines_.put( 0, printable( path ) + " (nothing stands there)" );
      } else if ( !attributes ) {
         auto const slash = path.rfind( '/' );
         line( path.substr( 0, slash ), path.substr( slash + 1 ), value );
      } else if ( attributes->empty() ) {
         lines_.put( 0, printable( path ) + " (empty)" );
      } else {
         for ( auto const & [name, member] : *attributes ) {
            if ( isCollection( member ) || isCollection( value ) ) {
               write( path + "/" + name, member );
            } else {
               line( path, name, member );
            }
         }
      }
   }

 private:
   void line( std::string const & path, std::string const & name, Value const & value ) {
      lines_.put( 0, printable( path + " " + name + " = " + toJson( value, 0 ) ) );
   }

   Lines lines_;
};

} // namespace

void showState( std::ostream & out, std::vector< PathValue > const & parts ) {
   for ( PathValue const & part : parts ) {
      Writer( out ).write( part.path, part.value );
   }
}

} // namespace Inspection
