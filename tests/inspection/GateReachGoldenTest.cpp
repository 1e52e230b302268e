// What a gate keeps from running stands in a list in the source. It holds what the sources of the plug-in show: which
// functions are called behind a gate. ./dev golden writes the list anew.
#include "inspection/FunctionTables.h"
#include "inspection/GateReach.h"
#include "inspection/GoldenList.h"
#include "inspection/PluginSource.h"

#include <algorithm>

namespace {

using Definition = PluginSource::Definition;
using Names = std::set< std::string >;

std::string const gateCalls[] = { "Rex::gate(", "isServed(" };

std::string lastPart( std::string const & name ) {
   auto const at = name.rfind( "::" );
   return at == std::string::npos ? name : name.substr( at + 2 );
}

std::string classOf( std::string const & name ) {
   auto const at = name.rfind( "::" );
   return at == std::string::npos ? std::string() : name.substr( 0, at );
}

// The block that the first brace from `at` on opens.
std::string blockAfter( std::string const & text, std::size_t at ) {
   auto const begin = text.find( '{', at );
   int depth = 0;
   for ( auto end = begin; end < text.size(); ++end ) {
      depth += text[end] == '{' ? 1 : text[end] == '}' ? -1 : 0;
      if ( depth == 0 ) {
         return text.substr( begin, end - begin );
      }
   }
   return {};
}

// What a function does behind its gates: the block that an open gate leads into, else all that follows.
std::string behindGates( std::string const & text ) {
   std::string behind;
   for ( std::string const & call : gateCalls ) {
      for ( auto at = text.find( call ); at != std::string::npos; at = text.find( call, at + 1 ) ) {
         bool const leadsIn = text.substr( 0, at ).ends_with( "if ( " );
         behind += ( leadsIn ? blockAfter( text, at ) : text.substr( at + call.size() ) ) + "\n";
      }
   }
   return behind;
}

std::vector< std::string > wordsOf( std::string const & text ) {
   std::vector< std::string > words;
   std::string word;
   for ( char const letter : text + " " ) {
      if ( std::isalnum( static_cast< unsigned char >( letter ) ) || letter == '_' || letter == ':' ) {
         word += letter;
      } else if ( !word.empty() ) {
         words.push_back( std::exchange( word, {} ) );
      }
   }
   return words;
}

class Calls {
 public:
   explicit Calls( PluginSource const & source ) : definitions_( source.definitions() ) {
      for ( Definition const & definition : definitions_ ) {
         byLastPart_[lastPart( definition.name )].insert( definition.name );
         texts_[definition.name] += definition.text;
         if ( std::string const type = classOf( definition.name ); !type.empty() && type.find( ':' ) == type.npos ) {
            classes_.insert( type );
         }
      }
   }

   // All that runs where `text`, of a function of `type`, does.
   Names reachedFrom( std::string const & type, std::string const & text ) const {
      Names reached;
      follow( type, text, reached );
      return reached;
   }

 private:
   void follow( std::string const & type, std::string const & text, Names & reached ) const {
      for ( std::string const & word : wordsOf( text ) ) {
         for ( std::string const & name : named( type, word ) ) {
            if ( reached.insert( name ).second ) {
               follow( classOf( name ), texts_.at( name ), reached );
            }
         }
      }
   }

   Names named( std::string const & type, std::string const & word ) const {
      if ( std::string const machine = builtBy( word ); !machine.empty() ) {
         Names all;
         for ( Definition const & definition : definitions_ ) {
            if ( definition.name.starts_with( machine + "::" ) ) {
               all.insert( definition.name );
            }
         }
         return all;
      }
      if ( texts_.contains( word ) ) {
         return { word };
      }
      for ( std::string around = type; !around.empty(); around = classOf( around ) ) {
         if ( texts_.contains( around + "::" + word ) ) {
            return { around + "::" + word };
         }
      }
      return {};
   }

   // The machine that a setter builds: "vxlanQosSmIs", "RemFfcModifierSm::RemFfcModifierSmIs".
   std::string builtBy( std::string const & word ) const {
      std::string name = lastPart( word );
      if ( !name.ends_with( "SmIs" ) ) {
         return {};
      }
      name.resize( name.size() - 2 );
      name[0] = static_cast< char >( std::toupper( static_cast< unsigned char >( name[0] ) ) );
      auto const found =
         std::ranges::find_if( classes_, [&]( std::string const & it ) { return it.ends_with( name ); } );
      return found == classes_.end() ? std::string() : *found;
   }

   std::vector< Definition > const & definitions_;
   std::map< std::string, Names > byLastPart_;
   std::map< std::string, std::string > texts_;
   Names classes_;
};

TEST( GateReachGoldenTest, tellsWhatTheSourcesCallBehindAGate ) {
   PluginSource const source( std::filesystem::path( L3SM_SOURCE_DIR ) / "DaceL3Unicast/DaceFapNiPlugin" );
   Calls const calls( source );
   // What a journal can tell of: who touches a chip, and who has a gate.
   Names told;
   for ( auto const & touch : Inspection::knownTouches() ) {
      told.insert( touch.function );
   }
   std::map< std::string, std::string > behind;
   for ( Definition const & definition : source.definitions() ) {
      if ( std::string const text = behindGates( definition.text ); !text.empty() ) {
         behind[definition.name] += text;
         told.insert( definition.name );
      }
   }
   std::string rows;
   for ( auto const & [function, text] : behind ) {
      std::string names;
      for ( std::string const & name : calls.reachedFrom( classOf( function ), text ) ) {
         if ( told.contains( name ) && name != function ) {
            names += ( names.empty() ? "" : " " ) + name;
         }
      }
      rows += names.empty() ? "" : "      { \"" + function + "\", \"" + names + "\" },\n";
   }
   expectList( "inspection/KnownGateReach.cpp", "gates[] = {\n", rows );
}

TEST( GateReach, ofTheListAtChipInitialisationIsTheWholeList ) {
   auto const behind = Inspection::behindGatesOf( "L3SmMounter::createPluginStatePhase2" );
   // Whoever has ever written at chip initialisation is on the list.
   Command const l3sm( "run --quiet --journal j" );
   std::string const journal = l3sm.file( "j" );
   std::istringstream lines( journal );
   std::size_t operations = 0;
   for ( std::string line; std::getline( lines, line ); ) {
      std::string const key = "\"function\": \"";
      auto const at = line.find( key );
      if ( at == std::string::npos || line.find( "\"cause\": \"chip-init\"" ) == std::string::npos ) {
         continue;
      }
      std::string const function = line.substr( at + key.size(), line.find( '"', at + key.size() ) - at - key.size() );
      EXPECT_TRUE( behind.contains( function ) ) << function;
      ++operations;
   }
   EXPECT_GT( operations, 1000u );
}

TEST( GateReach, ofAGateThatLeadsIntoABlockIsThatBlock ) {
   auto const behind = Inspection::behindGatesOf( "L3SmMounter::doMountsComplete" );
   EXPECT_TRUE( behind.contains( "RemFfcModifierSm::writeFfcInstruction" ) );
   EXPECT_FALSE( behind.contains( "L3Sm::handleUrpfFailFwdConfig" ) ) << "which runs all the same";
}

TEST( GateReach, ofAFunctionWithoutACallIsTheFunction ) {
   EXPECT_EQ( Inspection::behindGatesOf( "L3Sm::initFlpRpfFormatConfig" ).size(), 1u );
}

} // namespace
