#include "generator/Check.h"
#include "generator/Read.h"
#include "generator/Yaml.h"

#include <algorithm>

std::vector< Model::Chip > readChips( std::string const & file ) {
   std::vector< Model::Chip > chips;
   Yaml::load( file ).entries( [&]( std::string const & name, Yaml const & chip ) {
      chip.allowKeys( { "number", "instances" } );
      chips.push_back( { name, chip.at( "number" ).number(), chip.at( "instances" ).number() } );
   } );
   return chips;
}

std::map< std::string, unsigned > readFieldIds( std::string const & file ) {
   std::map< std::string, unsigned > ids;
   Yaml::load( file ).entries( [&]( std::string const & name, Yaml const & id ) { ids[name] = id.number(); } );
   return ids;
}

Model::Catalogue readCatalogue( std::filesystem::path const & folder ) {
   if ( !std::filesystem::is_directory( folder ) ) {
      throw Error( folder.string(), 1, "is not a folder" );
   }
   Model::Catalogue catalogue;
   catalogue.chips = readChips( ( folder / "chips.yaml" ).string() );
   std::vector< std::filesystem::path > files;
   for ( auto const & entry : std::filesystem::directory_iterator( folder ) ) {
      auto const & path = entry.path();
      if ( path.extension() == ".yaml" && path.filename() != "chips.yaml" && path.filename() != "field-ids.yaml" ) {
         files.push_back( path );
      }
   }
   std::sort( files.begin(), files.end() );
   for ( auto const & file : files ) {
      catalogue.tables.push_back( readTable( file.string(), catalogue.chips ) );
      checkTable( catalogue.tables.back(), catalogue.chips );
   }
   std::string const idFile = ( folder / "field-ids.yaml" ).string();
   catalogue.fieldIds = readFieldIds( idFile );
   checkFieldIds( catalogue, idFile );
   return catalogue;
}
