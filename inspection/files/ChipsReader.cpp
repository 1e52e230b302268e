#include "inspection/files/ChipsReader.h"

#include "inspection/files/FileKind.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace Inspection {

using Rex::ValueError;

bool ChipsFilter::isWanted( std::string_view table ) const {
   return tables.empty() || std::ranges::find( tables, table ) != tables.end();
}

ChipsReader::ChipsReader( std::string const & path, ChipsFilter filter )
   : json_( path ), filter_( std::move( filter ) ) {
   if ( kindOf( json_.ahead() ) != FileKind::chips ) {
      throw InputError( this->path(), notA( FileKind::chips, json_.ahead() ) );
   }
   json_.enter();
   std::string key;
   if ( json_.nextKey( key ) && key != "faps" ) {
      refuse( Rex::pointerStep( key ), "is unknown here" );
   }
   json_.enter();
}

std::string ChipsReader::keyOf( Kind kind ) {
   constexpr char const * keys[] = { "chipType", "controls", "tables" };
   return keys[static_cast< std::size_t >( kind )];
}

void ChipsReader::refuse( std::string const & place, std::string const & what ) const {
   inFile( path(), [&] { throw ValueError( place, what ); } );
}

void ChipsReader::skipRest() {
   if ( std::exchange( isUnread_, false ) ) {
      json_.skip();
   }
}

bool ChipsReader::nextFap() {
   for ( std::string number; json_.nextKey( number ); ) {
      auto const fap = inFile( path(), [&] {
         return Rex::below(
            "faps", [&] { return Rex::below( number, [&] { return Rex::Codec< U16 >::fromKey( number ); } ); } );
      } );
      if ( !seen_.insert( fap ).second ) {
         refuse( "/faps/" + number, "stands twice" );
      }
      if ( filter_.fap && *filter_.fap != fap ) {
         json_.skip();
         continue;
      }
      at_ = { .fap = fap };
      seenHere_.clear();
      hasChipType_ = false;
      json_.enter();
      level_ = Level::fap;
      return true;
   }
   finish();
   return false;
}

bool ChipsReader::nextPart() {
   skipRest();
   std::string key;
   while ( level_ != Level::ended ) {
      std::string const place = "/faps/" + std::to_string( at_.fap );
      if ( level_ == Level::faps ) {
         nextFap();
         continue;
      }
      if ( !json_.nextKey( key ) ) {
         if ( level_ == Level::fap && !hasChipType_ ) {
            refuse( place, "\"chipType\" is missing" );
         }
         level_ = level_ == Level::tables ? Level::fap : Level::faps;
         continue;
      }
      if ( !seenHere_.insert( level_ == Level::tables ? "tables " + key : key ).second ) {
         refuse( place + ( level_ == Level::tables ? "/tables" : "" ) + Rex::pointerStep( key ), "stands twice" );
      }
      if ( level_ == Level::tables ) {
         if ( !filter_.isWanted( key ) ) {
            json_.skip();
            continue;
         }
         at_.kind = Kind::table;
         at_.name = key;
      } else if ( key == "tables" ) {
         json_.enter();
         level_ = Level::tables;
         continue;
      } else if ( key == "chipType" || key == "controls" ) {
         hasChipType_ = hasChipType_ || key == "chipType";
         at_.kind = key == "chipType" ? Kind::chipType : Kind::controls;
         at_.name.clear();
      } else {
         refuse( place + Rex::pointerStep( key ), "is unknown here" );
      }
      return isUnread_ = true;
   }
   return false;
}

std::string_view ChipsReader::text() {
   isUnread_ = false;
   return json_.value();
}

bool ChipsReader::passIfSame( std::string_view text ) {
   bool const isSame = json_.passIfSame( text );
   isUnread_ = isUnread_ && !isSame;
   return isSame;
}

void ChipsReader::finish() {
   std::string key;
   if ( json_.nextKey( key ) ) {
      refuse( Rex::pointerStep( key ), "is unknown here" );
   }
   json_.end();
   level_ = Level::ended;
}

namespace {

void streamFaps( std::string const & path,
                 ChipsFilter const & filter,
                 std::function< void( U16 fap, FapContents contents ) > const & each ) {
   ChipsReader chips( path, filter );
   std::optional< U16 > fap;
   FapContents contents;
   auto const flush = [&] {
      if ( fap ) {
         checkFits( chips.path(), "/faps/" + std::to_string( *fap ) + "/tables", contents );
         each( *fap, std::exchange( contents, {} ) );
      }
   };
   while ( chips.nextPart() ) {
      auto const part = chips.at();
      if ( fap != part.fap ) {
         flush();
         fap = part.fap;
      }
      auto const text = chips.text();
      chips.reading( [&] {
         switch ( part.kind ) {
         case ChipsReader::Kind::chipType:
            contents.chipType = chipTypeFromText( text );
            break;
         case ChipsReader::Kind::controls:
            contents.contents.controls = controlsFromText( text );
            break;
         case ChipsReader::Kind::table:
            contents.contents.tables[part.name] = tableFromText( text );
            break;
         }
      } );
   }
   flush();
   if ( filter.fap && !chips.has( *filter.fap ) ) {
      throw InputError( chips.path(), "there is no FAP " + std::to_string( *filter.fap ) );
   }
}

// Whether it can be read once more, and as a whole.
bool isPlainChipsFile( std::string const & path ) {
   std::error_code none;
   return std::filesystem::is_regular_file( path, none ) && std::filesystem::file_size( path, none ) <= largestInput &&
          kindOf( readFile( path ) ) == FileKind::chips;
}

} // namespace

void refuseAsAWhole( std::string const & path ) {
   if ( isPlainChipsFile( path ) ) {
      readChips( path );
   }
}

void eachFap( std::string const & path,
              ChipsFilter const & filter,
              std::function< void( U16 fap, FapContents contents ) > const & each ) {
   try {
      streamFaps( path, filter, each );
   } catch ( InputError const & ) {
      refuseAsAWhole( path );
      throw;
   }
}

std::map< U16, Hardware::ChipType > chipTypesIn( std::string const & path ) {
   std::map< U16, Hardware::ChipType > all;
   eachFap(
      path, { .tables = { "" } }, [&]( U16 fap, FapContents const & contents ) { all[fap] = contents.chipType; } );
   return all;
}

} // namespace Inspection
