#include "inspection/StatePaths.h"

#include "inspection/files/InputError.h"
#include "interface/ManagedIntfStatusDir.h"
#include "rex/Dir.h"
#include "rex/Nearest.h"
#include "simulator/SimulatedSwitch.h"

#include <algorithm>

namespace Inspection {

namespace {

using Rex::Attribute;
using Rex::TypeData;
using Rex::Value;
using Rex::ValueType;
using Simulator::StateRoot;

constexpr char const * dirKey = "NAME";

// The word that stands in a path for a key.
std::string keyWord( ValueType const & type ) {
   std::string word = type.name;
   std::ranges::transform( word, word.begin(), []( unsigned char letter ) { return std::toupper( letter ); } );
   return word == "TEXT" ? dirKey : word;
}

// What stands at the paths of a switch before anybody has set anything.
Value::Object freshState( std::string const & slice, Hardware::Dace::FapRevision const & revision ) {
   Simulator::SimulatedSwitch const sw( {
      .sliceName = slice,
      .faps = { { .fapId = Hardware::Dace::FapId( 0 ), .revision = revision } },
      .journalled = Simulator::SwitchDescription::Journalled::none,
   } );
   Value::Object all;
   for ( StateRoot const & root : Simulator::stateRoots() ) {
      auto const entity = sw.state().entity( root.path() );
      all[root.path()] = entity ? entity->value() : Value();
   }
   return all;
}

Value const * member( Value const * of, std::string const & name ) {
   auto const * object = of ? of->object() : nullptr;
   auto const found = object ? object->find( name ) : Value::Object::const_iterator();
   return object && found != object->end() ? &found->second : nullptr;
}

// The defaults of what stands at a path: in one switch and in another.
struct Defaults {
   Value const * one;
   Value const * other;
   Defaults at( std::string const & name ) const { return { member( one, name ), member( other, name ) }; }
};

class Lister {
 public:
   explicit Lister( std::vector< StatePath > & paths ) : paths_( paths ) {}

   void list( std::string const & path, StatePath::Kind kind, TypeData const & type, Defaults const & defaults ) {
      auto const fresh = type.fresh();
      Value const ofType = fresh ? fresh->value() : Value::Object();
      StatePath listed{ path, kind, &type, nullptr, {} };
      for ( auto const * attribute : type.attributes() ) {
         Defaults const own =
            defaults.one ? defaults.at( attribute->name ) : Defaults{ member( &ofType, attribute->name ), nullptr };
         listed.attributes.push_back( { attribute,
                                        own.one ? *own.one : Value(),
                                        own.one && own.other && !( *own.one == *own.other ),
                                        hearersOf( path, attribute->name ) } );
      }
      paths_.push_back( std::move( listed ) );
      for ( auto const * attribute : type.attributes() ) {
         if ( !attribute->elementType() || !attribute->canBeSet() ) {
            continue;
         }
         bool const isKeyed = attribute->kind == Attribute::Kind::collection;
         std::string const below =
            path + "/" + attribute->name + ( isKeyed ? "/" + keyWord( *attribute->keyType() ) : "" );
         list( below, kind, *attribute->elementType(), isKeyed ? Defaults{} : defaults.at( attribute->name ) );
      }
   }

   void listDir( std::string const & path, StatePath::Kind kind, Rex::Dir const & dir ) {
      paths_.push_back( { path, kind, &dir.typeData(), dir.elementType(), {} } );
      if ( dir.elementType() ) {
         list( path + "/" + dirKey, kind, *dir.elementType(), {} );
      }
   }

 private:
   std::vector< StatePath > & paths_;
};

std::vector< StatePath > allPaths() {
   using Hardware::ChipType;
   auto const one = freshState( "Linecard1", { 5, ChipType::BCM88690_B0, 7 } );
   auto const other = freshState( "Linecard2", { 7, ChipType::BCM88480_A0, 8 } );
   std::vector< StatePath > paths;
   Lister lister( paths );
   for ( StateRoot const & root : Simulator::stateRoots() ) {
      auto const path = root.path();
      auto const kind = root.kind == StateRoot::Kind::given ? StatePath::Kind::given : StatePath::Kind::state;
      auto const entity = root.make();
      if ( root.kind == StateRoot::Kind::machinery ) {
         continue;
      }
      if ( auto const dir = Corvo::ptrCast< Rex::Dir >( entity ) ) {
         lister.listDir( path, kind, *dir );
      } else {
         lister.list( path, kind, entity->typeData(), { &one.at( path ), &other.at( path ) } );
      }
   }
   for ( auto const & [path, type] :
         { std::pair( "managed/intfStatusDir", &Interface::ManagedIntfStatusDir::rexType() ),
           std::pair( "managed/intfStatusLocalDir", &Interface::ManagedIntfStatusLocalDir::rexType() ) } ) {
      lister.list( path, StatePath::Kind::published, *type, {} );
   }
   return paths;
}

std::string_view firstStep( std::string_view path ) {
   return path.substr( 0, path.find( '/' ) );
}

bool matches( std::string_view listed, std::string_view written ) {
   if ( listed.empty() || written.empty() ) {
      return listed.empty() && written.empty();
   }
   auto const step = firstStep( listed );
   auto const rest = listed.substr( std::min( step.size() + 1, listed.size() ) );
   // A key may hold slashes itself.
   for ( auto end = written.find( '/' );; end = written.find( '/', end + 1 ) ) {
      auto const head = written.substr( 0, end );
      bool const isStep = StatePath::isKeyWord( step ) ? !head.empty() : head == step;
      bool const isLast = end == std::string_view::npos;
      if ( isStep && isLast == rest.empty() && ( isLast || matches( rest, written.substr( end + 1 ) ) ) ) {
         return true;
      }
      if ( isLast || !StatePath::isKeyWord( step ) ) {
         return false;
      }
   }
}

} // namespace

bool StatePath::isKeyWord( std::string_view step ) {
   return !step.empty() && std::ranges::all_of( step, []( char letter ) { return letter >= 'A' && letter <= 'Z'; } );
}

bool StatePath::hasKey() const {
   for ( std::string_view rest = path; !rest.empty(); ) {
      auto const step = firstStep( rest );
      if ( isKeyWord( step ) ) {
         return true;
      }
      rest.remove_prefix( std::min( step.size() + 1, rest.size() ) );
   }
   return false;
}

bool StatePath::isOf( std::string_view written ) const {
   return matches( path, written );
}

std::vector< StatePath > const & statePaths() {
   static auto const * const paths = new std::vector< StatePath >( allPaths() );
   return *paths;
}

StatePath const * statePathOf( std::string_view written ) {
   StatePath const * found = nullptr;
   for ( StatePath const & path : statePaths() ) {
      if ( path.isOf( written ) && ( !found || path.path.size() > found->path.size() ) ) {
         found = &path;
      }
   }
   return found;
}

namespace {

std::vector< StatePath const * > allBelow( std::string const & head ) {
   std::vector< StatePath const * > found;
   for ( StatePath const & path : statePaths() ) {
      if ( path.path.starts_with( head + "/" ) ) {
         found.push_back( &path );
      }
   }
   return found;
}

} // namespace

std::vector< StatePath const * > statePathsNamed( std::string const & text ) {
   std::string const name = text.substr( 0, text.find_last_not_of( '/' ) + 1 );
   if ( auto const * path = statePathOf( name ) ) {
      auto found = allBelow( path->path );
      found.insert( found.begin(), path );
      return found;
   }
   auto const slash = std::min( name.rfind( '/' ), name.size() );
   if ( auto const * path = statePathOf( name.substr( 0, slash ) ) ) {
      auto const isNamed = [&]( StateAttribute const & of ) { return name.substr( slash + 1 ) == of.attribute->name; };
      if ( std::ranges::any_of( path->attributes, isNamed ) ) {
         return { path };
      }
   }
   if ( auto const found = allBelow( name ); !found.empty() ) {
      return found;
   }
   std::vector< std::string > names;
   for ( StatePath const & path : statePaths() ) {
      names.push_back( path.path );
   }
   auto const remedy = Rex::didYouMean( name, names );
   throw InputError( "there is no path \"" + text + "\"" + ( remedy.empty() ? "; `l3sm paths` lists them" : remedy ) );
}

} // namespace Inspection
