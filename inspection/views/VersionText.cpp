#include "inspection/views/VersionText.h"

namespace Inspection {

std::string versionText( Version const & version ) {
   return "l3sm " + version.number + "\nbuild    " + version.build.value_or( "of no known revision" ) + "\nplug-in  " +
          version.plugin + "\n         " + version.pluginId.value_or( "can't be read" );
}

Rex::Value versionValue( Version const & version ) {
   auto const orNull = []( std::optional< std::string > const & text ) {
      return text ? Rex::Value( *text ) : Rex::Value();
   };
   return Rex::Value::Object{
      { "version", version.number },
      { "build", orNull( version.build ) },
      { "plugin", Rex::Value::Object{ { "path", version.plugin }, { "id", orNull( version.pluginId ) } } } };
}

} // namespace Inspection
