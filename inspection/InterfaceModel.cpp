#include "inspection/InterfaceModel.h"

#include "inspection/InterfacePaths.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace Inspection {

using namespace InterfacePaths;

// Each step of a path is a member of what stands above it.
Value * InterfaceModel::makeAt( std::string const & path ) {
   Value * value = &state_;
   std::istringstream steps( path );
   for ( std::string step; std::getline( steps, step, '/' ); ) {
      if ( !value->object() ) {
         *value = Value::Object();
      }
      value = &value->object()->try_emplace( step, Value::Object() ).first->second;
   }
   return value;
}

Value const * InterfaceModel::at( std::string const & path ) const {
   Value const * value = &state_;
   std::istringstream steps( path );
   for ( std::string step; value && std::getline( steps, step, '/' ); ) {
      value = memberOf( value, step );
   }
   return value;
}

std::string InterfaceModel::configPath() const {
   return configs + "/" + name_;
}
std::string InterfaceModel::statusPath() const {
   return statuses + "/" + name_;
}

void InterfaceModel::beginsWith( Value const & scenario ) {
   // Both directories are there unless the state leaves them out.
   makeAt( configs );
   makeAt( statuses );
   auto const * const state = memberOf( &scenario, "state" );
   if ( state && state->object() ) {
      for ( auto const & [path, attributes] : *state->object() ) {
         if ( !attributes.object() ) {
            *makeAt( path ) = attributes;
            continue;
         }
         for ( auto const & [attribute, value] : *attributes.object() ) {
            *makeAt( path + "/" + attribute ) = value;
         }
      }
   }
   if ( auto const * const all = at( ports ); all && all->object() ) {
      for ( auto const & [port, value] : *all->object() ) {
         portTold( port );
      }
   }
}

void InterfaceModel::portTold( std::string const & port ) {
   auto const * const of = at( ports + "/" + port );
   bool const canBe = isThere( at( configs ) ) && isThere( at( statuses ) ) && isThere( at( configPath() ) );
   if ( isServed_ || !canBe || textOf( memberOf( of, "intfId" ) ) != name_ || !isTrue( of, "active", false ) ) {
      return;
   }
   isServed_ = true;
   port_ = port;
   replacedConfig_.reset();
   hadStatus_ = isThere( at( statusPath() ) );
   isStatusReplaced_ = false;
}

void InterfaceModel::set( std::string const & path, std::optional< std::string > const & key, Value const & value ) {
   *makeAt( key ? path + "/" + *key : path ) = value;
}

void InterfaceModel::changed( U32 event, EventInput const & input ) {
   if ( input.kind != EventInput::Kind::set && input.kind != EventInput::Kind::remove ) {
      return;
   }
   std::string const whole = input.path + ( input.attribute.empty() ? "" : "/" + input.attribute );
   std::string const place = input.key ? whole + "/" + *input.key : whole;
   // The machine keeps to an entity that another one replaces.
   if ( isServed_ && isAtOrBelow( configPath(), place ) && !replacedConfig_ ) {
      if ( auto const * const config = at( configPath() ) ) {
         replacedConfig_ = *config;
         lastEvent_["replaced"] = event;
      }
   }
   if ( isServed_ && isAtOrBelow( statusPath(), place ) ) {
      isStatusReplaced_ = true;
      lastEvent_["status"] = event;
   }
   bool const hadDirectories = isThere( at( configs ) ) && isThere( at( statuses ) );
   set( whole, input.key, input.kind == EventInput::Kind::set ? input.value : Value() );
   if ( isAtOrBelow( place, configPath() ) || isAtOrBelow( configPath(), place ) || isAtOrBelow( place, slice ) ||
        isAtOrBelow( place, globalConfig ) ) {
      lastEvent_[input.attribute] = event;
   }
   if ( isAtOrBelow( place, ports ) ) {
      std::string const port = place.size() > ports.size() ? place.substr( ports.size() + 1 ) : "";
      std::string const number = port.substr( 0, port.find( '/' ) );
      bool const isWhole = port == number; // the port itself, not one of its attributes
      if ( input.kind == EventInput::Kind::remove && isWhole && number == port_ ) {
         isServed_ = false;
         lastEvent_["port"] = event;
      } else if ( isWhole || input.attribute == "portGenId" ) {
         portTold( number );
      }
   } else if ( !hadDirectories && isThere( at( configs ) ) && isThere( at( statuses ) ) ) {
      auto const * const all = at( ports );
      for ( auto const & port : all && all->object() ? *all->object() : Value::Object() ) {
         portTold( port.first );
      }
   }
}

void InterfaceModel::published( Simulator::Row const & row ) {
   std::string const place = std::string( row.path ) + "/" + std::string( row.attribute );
   std::string_view const entity = row.path.substr( row.path.rfind( '/' ) + 1 );
   bool const isOwn = entity == name_ || ( row.key && *row.key == name_ );
   if ( isAtOrBelow( place, subInterfaces ) ||
        ( isOwn && ( isAtOrBelow( place, statuses ) || isAtOrBelow( place, locals ) ) ) ) {
      set( place, row.key ? std::optional( std::string( *row.key ) ) : std::nullopt, *row.published );
   }
}

bool InterfaceModel::concerns( EventInput const & input ) const {
   std::string const place = input.path + "/" + input.attribute;
   return place == globalConfig + "/l3Mtu" || place == slice + "/smMode" || isNamedBy( input );
}

bool InterfaceModel::canBeStoppedBy( std::string_view reason ) const {
   auto const * const config = isServed_ && replacedConfig_ ? &*replacedConfig_ : at( configPath() );
   if ( reason.find( "enabled" ) != std::string_view::npos ) {
      return isServed_ && !isTrue( config, "enabled", true );
   }
   if ( reason.find( "active" ) != std::string_view::npos ) {
      return isServed_ && numberAt( at( slice ), "smMode", activeMode ) != activeMode;
   }
   if ( reason.find( "status" ) != std::string_view::npos ) {
      return isServed_ && ( !hadStatus_ || isStatusReplaced_ );
   }
   return false; // one that each passes on its way
}

bool InterfaceModel::isNamedBy( EventInput const & input ) const {
   std::string const place =
      input.path + ( input.attribute.empty() ? "" : "/" + input.attribute ) + ( input.key ? "/" + *input.key : "" );
   for ( std::string const & root : { configs, statuses, locals, subInterfaces } ) {
      std::string const own = root + "/" + name_;
      // Its subinterfaces are named after it.
      if ( isAtOrBelow( place, own ) || isAtOrBelow( own, place ) || place.starts_with( own + "." ) ) {
         return true;
      }
   }
   if ( !isAtOrBelow( place, ports ) || place.size() == ports.size() ) {
      return isAtOrBelow( ports, place );
   }
   std::string const port = place.substr( 0, place.find( '/', ports.size() + 1 ) );
   return textOf( memberOf( at( port ), "intfId" ) ) == name_ || textOf( memberOf( &input.value, "intfId" ) ) == name_;
}

} // namespace Inspection
