#include "inspection/files/FaultSchema.h"

#include "generated/Catalogue.h"
#include "inspection/files/TypeSchema.h"

namespace Inspection {

using Rex::Value;
using Object = Rex::Value::Object;
using List = Rex::Value::List;

Value faultSchema() {
   List tables;
   for ( auto const & table : Catalogue::tables() ) {
      if ( table.hasMemory ) {
         tables.emplace_back( table.name );
      }
   }
   Value const number = schemaOf( Rex::Codec< U32 >::type() );
   Value some = number;
   ( *some.object() )["minimum"] = 1;
   Value const probability = Object{
      { "anyOf",
        List{ Object{ { "type", "number" }, { "exclusiveMinimum", 0 }, { "maximum", 1 } },
              Object{ { "type", "string" }, { "pattern", "^(0?\\.[0-9]+|[01](\\.[0-9]*)?|[0-9.]+e-[0-9]+)$" } } } } };
   return objectSchema(
      Object{
         { "kind",
           Object{ { "type", "string" }, { "pattern", "^(lost|flip:[0-9]+|stuck:[0-9]+=[01]|error|delay:[0-9]+)$" } } },
         { "fap", schemaOf( Rex::Codec< U16 >::type() ) },
         { "table", Object{ { "enum", tables } } },
         { "array", number },
         { "entry", number },
         { "copy", number },
         { "count", some },
         { "probability", probability },
         { "for", number },
         { "seed", Object{ { "type", "integer" }, { "minimum", 0 } } } },
      { "kind" } );
}

} // namespace Inspection
