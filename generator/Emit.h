// The outputs, each from the whole catalogue. Nothing else goes into them: the same catalogue gives the same text.
#pragma once

#include "generator/Model.h"

// generated/DaceFapNiPluginL3UnicastMetaInfo.h and .cpp: the accessor classes.
std::string emitAccessorHeader( Model::Catalogue const & catalogue );
std::string emitAccessorSource( Model::Catalogue const & catalogue );

// generated/Catalogue.h and .cpp: the catalogue as plain data.
std::string emitCatalogueHeader();
std::string emitCatalogueSource( Model::Catalogue const & catalogue );

// tests/generated/MetaInfoSelfTest.cpp: offset, width and mask of every field on every chip and variant.
std::string emitSelfTest( Model::Catalogue const & catalogue );

// Each output with its path below the source tree.
std::vector< std::pair< std::string, std::string > > emitAll( Model::Catalogue const & catalogue );
