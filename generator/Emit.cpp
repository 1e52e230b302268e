#include "generator/Emit.h"

std::vector< std::pair< std::string, std::string > > emitAll( Model::Catalogue const & catalogue ) {
   return {
      { "generated/DaceFapNiPluginL3UnicastMetaInfo.h", emitAccessorHeader( catalogue ) },
      { "generated/DaceFapNiPluginL3UnicastMetaInfo.cpp", emitAccessorSource( catalogue ) },
      { "generated/Catalogue.h", emitCatalogueHeader() },
      { "generated/Catalogue.cpp", emitCatalogueSource( catalogue ) },
      { "tests/generated/MetaInfoSelfTest.cpp", emitSelfTest( catalogue ) },
   };
}
