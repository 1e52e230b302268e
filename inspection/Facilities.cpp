#include "inspection/Facilities.h"

#include "inspection/files/InputError.h"
#include "rex/Nearest.h"

namespace Inspection {

std::vector< std::string > knownFacilities() {
   std::vector< std::string > names;
   for ( KnownTrace const & trace : knownTraces() ) {
      if ( names.empty() || names.back() != trace.facility ) {
         names.emplace_back( trace.facility );
      }
   }
   return names;
}

std::vector< KnownTrace > tracesOf( std::string const & facility ) {
   std::vector< KnownTrace > traces;
   for ( KnownTrace const & trace : knownTraces() ) {
      if ( trace.facility == facility ) {
         traces.push_back( trace );
      }
   }
   if ( traces.empty() ) {
      auto const remedy = Rex::didYouMean( facility, knownFacilities() );
      throw InputError( "there is no facility \"" + facility + "\"" +
                        ( remedy.empty() ? "; `l3sm facilities` lists them" : remedy ) );
   }
   return traces;
}

Rex::Value tracesValue( std::vector< std::string > const & facilities ) {
   Rex::Value::Object all;
   for ( std::string const & facility : facilities ) {
      Rex::Value::Object levels;
      for ( KnownTrace const & trace : tracesOf( facility ) ) {
         auto & texts = levels.try_emplace( std::to_string( trace.level ), Rex::Value::List() ).first->second;
         texts.list()->emplace_back(
            Rex::Value::Object{ { "text", std::string( trace.text ) }, { "source", std::string( trace.source ) } } );
      }
      all[facility] = std::move( levels );
   }
   return Rex::Value::Object{ { "facilities", std::move( all ) } };
}

} // namespace Inspection
