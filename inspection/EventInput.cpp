#include "inspection/EventInput.h"

#include "inspection/EventRows.h"
#include "inspection/files/Json.h"

namespace Inspection {

EventInput EventInput::of( Rex::Value const & what ) {
   EventInput input;
   auto const * const object = what.object();
   if ( !object || object->size() != 1 ) {
      input.value = what;
      return input;
   }
   auto const & [word, change] = *object->begin();
   if ( word == "start" ) {
      input.kind = Kind::start;
      return input;
   }
   if ( word == "fault" ) {
      input.kind = Kind::fault;
      input.value = what;
      return input;
   }
   auto const * const of = change.object();
   if ( !of || ( word != "set" && word != "delete" ) ) {
      input.value = what;
      return input;
   }
   input.kind = word == "set" ? Kind::set : Kind::remove;
   auto const text = [&]( char const * name ) {
      auto const found = of->find( name );
      auto const * const it = found == of->end() ? nullptr : found->second.text();
      return it ? std::optional( *it ) : std::nullopt;
   };
   input.path = text( "path" ).value_or( "" );
   input.attribute = text( "attribute" ).value_or( "" );
   input.key = text( "key" );
   if ( auto const value = of->find( "value" ); value != of->end() ) {
      input.value = value->second;
   }
   return input;
}

std::vector< EventInput > EventInput::allOf( Rex::Value const & what ) {
   auto const * const object = what.object();
   auto const found = object ? object->find( "transaction" ) : Rex::Value::Object::const_iterator();
   auto const * const changes = object && found != object->end() ? found->second.list() : nullptr;
   std::vector< EventInput > inputs;
   for ( Rex::Value const & change : changes ? *changes : Rex::Value::List{ what } ) {
      inputs.push_back( of( change ) );
   }
   return inputs;
}

std::string EventInput::cause() const {
   return kind == Kind::start   ? "start"
          : kind == Kind::fault ? "fault"
                                : path + ( attribute.empty() ? "" : " " + attribute );
}

std::string EventInput::text() const {
   switch ( kind ) {
   case Kind::start:
      return "start";
   case Kind::set:
      return cause() + ( key ? "[" + *key + "]" : "" ) + " = " + toJson( value, 0 );
   case Kind::remove:
      return "delete " + cause() + ( key ? "[" + *key + "]" : "" );
   case Kind::fault:
      return eventText( value );
   case Kind::other:
      break;
   }
   if ( auto const changes = allOf( value ); changes.size() > 1 ) {
      std::string all = "at once:";
      for ( EventInput const & change : changes ) {
         all += ( &change == &changes.front() ? " " : ", " ) + change.text();
      }
      return all;
   }
   return value.isNull() ? std::string() : toJson( value, 0 );
}

} // namespace Inspection
