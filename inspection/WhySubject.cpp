#include "inspection/WhySubject.h"

#include "inspection/FunctionTables.h"
#include "inspection/GateReach.h"
#include "inspection/KnownToggles.h"
#include "inspection/NearSubjects.h"
#include "inspection/files/InputError.h"
#include "rex/Entity.h"
#include "rex/Nearest.h"
#include "simulator/StateTree.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <sstream>

namespace Inspection {

namespace {

constexpr std::string_view managedPaths[] = { "managed/intfStatusDir", "managed/intfStatusLocalDir" };

bool isLetter( char letter ) {
   return std::isalpha( static_cast< unsigned char >( letter ) );
}
bool isDigit( char letter ) {
   return std::isdigit( static_cast< unsigned char >( letter ) );
}

// "Ethernet1", "Ethernet3/1/2", "Ethernet1.1", "Port-Channel7"
bool isInterfaceName( std::string_view name ) {
   auto const digit = std::ranges::find_if( name, isDigit );
   bool const hasWord = !name.empty() && std::isupper( static_cast< unsigned char >( name.front() ) ) &&
                        std::all_of( name.begin(), digit, []( char it ) { return isLetter( it ) || it == '-'; } );
   return hasWord && digit != name.end() && isDigit( name.back() ) &&
          std::all_of( digit, name.end(), []( char it ) { return isDigit( it ) || it == '/' || it == '.'; } );
}

std::string lastPart( std::string const & name ) {
   auto const at = name.rfind( "::" );
   return at == std::string::npos ? name : name.substr( at + 2 );
}

// Splits "PATH.ATTRIBUTE[KEY]" or "PATH ATTRIBUTE[KEY]"; an attribute begins with a small letter, so that the dot of
// "…/Ethernet1.1" is one of the path.
WhySubject stateAsTyped( std::string typed ) {
   WhySubject subject{ .kind = WhySubject::Kind::state };
   if ( auto const bracket = typed.rfind( '[' ); bracket != std::string::npos && typed.back() == ']' ) {
      subject.key = typed.substr( bracket + 1, typed.size() - bracket - 2 );
      typed.resize( bracket );
   }
   auto const at = typed.find_last_of( ". " );
   bool const isAttribute = at != std::string::npos && at + 1 < typed.size() && at > typed.rfind( '/' ) &&
                            std::islower( static_cast< unsigned char >( typed[at + 1] ) );
   subject.path = typed.substr( 0, isAttribute ? at : std::string::npos );
   subject.attribute = isAttribute ? typed.substr( at + 1 ) : "";
   while ( subject.path.ends_with( '/' ) ) {
      subject.path.pop_back();
   }
   return subject;
}

// Throws unless the path can be, and its type has the attribute, which may stand behind a slash as well.
WhySubject checked( WhySubject subject ) {
   if ( std::ranges::any_of( managedPaths, [&]( auto root ) { return Rex::isAtOrBelow( subject.path, root ); } ) ) {
      return subject;
   }
   std::string root;
   std::vector< std::string > roots{ std::begin( managedPaths ), std::end( managedPaths ) };
   for ( auto const & it : Simulator::stateRoots() ) {
      roots.push_back( it.path() );
      if ( Rex::isAtOrBelow( subject.path, it.path() ) && it.path().size() > root.size() ) {
         root = it.path();
      }
   }
   bool const isAbove =
      std::ranges::any_of( roots, [&]( auto const & it ) { return Rex::isAtOrBelow( it, subject.path ); } );
   if ( root.empty() && isAbove && subject.attribute.empty() ) {
      return subject;
   }
   if ( root.empty() ) {
      throw InputError( "the state has no path \"" + subject.path + "\"" + Rex::didYouMean( subject.path, roots ) );
   }
   try {
      // The entities on the way are made: the path needs only be one that can be.
      Simulator::StateTree tree;
      auto const there = [&]( std::string const & path ) -> Corvo::Ptr< Rex::Entity > {
         try {
            return tree.entity( path );
         } catch ( Rex::ValueError const & ) {
            return {};
         }
      };
      std::string path = root;
      std::istringstream steps( subject.path.size() > root.size() ? subject.path.substr( root.size() + 1 ) : "" );
      for ( std::string step, key; std::getline( steps, step, '/' ); ) {
         auto const entity = there( path );
         auto const * const named = entity ? entity->typeData().attribute( step ) : nullptr;
         if ( named && !named->elementType() && steps.eof() && subject.attribute.empty() ) {
            subject.path = path;
            subject.attribute = step;
            return subject;
         }
         if ( !there( path + "/" + step ) && named ) {
            tree.attributeIs( path, step, Rex::Value::Object() );
         }
         if ( there( path + "/" + step ) ) {
            path += "/" + step;
         } else if ( std::getline( steps, key, '/' ) ) {
            tree.entryIs( path, step, key, Rex::Value::Object() );
            path += "/" + step + "/" + key;
         } else if ( entity ) {
            Rex::attributeOf( entity->typeData(), step ); // a collection, named without an entry
            return subject;
         }
      }
      auto const entity = there( path );
      if ( entity && !subject.attribute.empty() ) {
         Rex::attributeOf( entity->typeData(), subject.attribute );
      }
   } catch ( Rex::ValueError const & error ) {
      throw InputError( "\"" + subject.text() + "\": " + error.what() );
   }
   return subject;
}

// Nearer than a function.
bool isNearATable( std::string const & typed, std::vector< std::string > const & functions ) {
   auto names = tableNames();
   std::ranges::transform( functions, std::back_inserter( names ), lastPart );
   return Catalogue::table( Rex::nearest( typed, names ) ) != nullptr;
}

WhySubject functionAsTyped( std::string const & typed ) {
   return { .kind = WhySubject::Kind::function, .name = typed };
}

} // namespace

std::vector< std::string > knownFunctions() {
   std::set< std::string > all;
   for ( Touch const & touch : knownTouches() ) {
      all.insert( touch.function );
   }
   for ( GateReach const & gate : knownGateReach() ) {
      for ( std::string_view const function : behindGatesOf( gate.function ) ) {
         all.emplace( function );
      }
   }
   for ( Hearer const & hearer : knownHearers() ) {
      all.emplace( hearer.function );
   }
   for ( KnownToggle const & toggle : knownToggles() ) {
      std::istringstream readers{ std::string( toggle.readers ) };
      for ( std::string name; readers >> name; ) {
         all.insert( name );
      }
   }
   return { all.begin(), all.end() };
}

std::set< std::string, std::less<> > functionsThatTouch( WhySubject const & subject ) {
   std::set< std::string, std::less<> > all;
   std::string const table = subject.kind == WhySubject::Kind::part      ? subject.part.table->name
                             : subject.kind == WhySubject::Kind::control ? subject.text()
                                                                         : "";
   for ( Touch const & touch : knownTouches() ) {
      if ( touch.table == table ) {
         all.insert( touch.function );
      }
   }
   if ( subject.kind == WhySubject::Kind::function ) {
      all.insert( subject.name );
   }
   bool const isStatus = subject.path.find( "intfStatus" ) != std::string::npos;
   if ( subject.kind == WhySubject::Kind::interface || ( subject.kind == WhySubject::Kind::state && isStatus ) ) {
      for ( std::string const & function : knownFunctions() ) {
         if ( function.starts_with( interfaceMachine ) ) {
            all.insert( function );
         }
      }
   }
   return all;
}

std::string WhySubject::text() const {
   switch ( kind ) {
   case Kind::part:
      return part.text();
   case Kind::control:
      return "control." + std::to_string( control );
   case Kind::state:
      return path + ( attribute.empty() ? "" : "." + attribute ) + ( key ? "[" + *key + "]" : "" );
   case Kind::function:
   case Kind::interface:
      break;
   }
   return name;
}

bool WhySubject::isState( std::string_view ofPath,
                          std::string_view ofAttribute,
                          std::optional< std::string_view > ofKey ) const {
   // A change of a collection tells of its entries, which have paths of their own.
   std::string whole( ofPath );
   whole += ofAttribute.empty() ? "" : "/" + std::string( ofAttribute );
   whole += ofKey ? "/" + std::string( *ofKey ) : "";
   if ( attribute.empty() ) {
      return Rex::isAtOrBelow( ofPath, path ) || Rex::isAtOrBelow( whole, path );
   }
   // Itself; or the entity that has it is made anew, or goes.
   bool const isEntity = ( ofKey || ofAttribute.empty() ) && Rex::isAtOrBelow( path, whole );
   return isEntity || ( ofPath == path && ofAttribute == attribute && ( !key || !ofKey || *key == *ofKey ) );
}

std::optional< Rex::Value > WhySubject::valueAtStart( Rex::Value const & scenario ) const {
   auto const member = []( Rex::Value const * of, std::string const & step ) -> Rex::Value const * {
      auto const * const object = of ? of->object() : nullptr;
      auto const found = object ? object->find( step ) : Rex::Value::Object::const_iterator();
      return object && found != object->end() ? &found->second : nullptr;
   };
   if ( auto const * const told = member( member( member( &scenario, "state" ), path ), attribute ) ) {
      return *told;
   }
   try {
      auto const entity = Simulator::StateTree().entity( path );
      Rex::Value const all = entity ? entity->value() : Rex::Value();
      auto const * const value = member( &all, attribute );
      return value ? std::optional( *value ) : std::nullopt;
   } catch ( Rex::ValueError const & ) {
      return std::nullopt; // what stands there is made by the run
   }
}

WhySubject whySubjectOf( std::string const & typed ) {
   constexpr std::string_view controlPrefix = "control.";
   if ( typed.starts_with( controlPrefix ) ) {
      try {
         return { .kind = WhySubject::Kind::control,
                  .control = Rex::Codec< U32 >::fromKey( typed.substr( controlPrefix.size() ) ) };
      } catch ( Rex::ValueError const & ) {
         throw InputError( "\"" + typed + "\" is no control; say it as in control.64" );
      }
   }
   std::string const head = typed.substr( 0, typed.find_first_of( ".:" ) );
   bool const isPart = Catalogue::table( head ) || !tablesWithField( head ).empty();
   if ( !isPart && isInterfaceName( typed ) ) {
      return { .kind = WhySubject::Kind::interface, .name = typed };
   }
   if ( typed.find_first_of( "/ " ) != std::string::npos ) {
      return checked( stateAsTyped( typed ) );
   }
   auto const functions = knownFunctions();
   if ( typed.find( "::" ) != std::string::npos ) {
      return functionAsTyped( typed );
   }
   std::vector< std::string > alike;
   std::ranges::copy_if(
      functions, std::back_inserter( alike ), [&]( auto const & it ) { return lastPart( it ) == typed; } );
   if ( !isPart && alike.size() == 1 ) {
      return functionAsTyped( alike.front() );
   }
   if ( !isPart && alike.size() > 1 ) {
      throw InputError( "\"" + typed + "\" is a function of several classes; say which, as in " + alike.front() );
   }
   if ( !isPart && typed.find( '.' ) == std::string::npos ) {
      auto const paths = pathsWith( typed );
      if ( paths.size() == 1 && !paths.front()->hasKey() ) {
         return checked( stateAsTyped( paths.front()->path + "." + typed ) );
      }
      std::string const refusal =
         "\"" + typed + "\" is no table, field, control.N, path of the state, function or interface";
      if ( !paths.empty() ) {
         throw InputError( refusal + "; an attribute is said with its path, as in " + paths.front()->path + "." +
                           typed );
      }
      if ( !isNearATable( head, functions ) ) {
         throw InputError( refusal + remedyOf( head, functions ) );
      }
   }
   return { .part = partNamed( typed ) };
}

} // namespace Inspection
