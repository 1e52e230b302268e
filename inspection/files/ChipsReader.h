// Chip contents from a file (`--chips`), read as a stream: what nobody asks for isn't taken apart.
//
//    eachFap( "chips.json", { .fap = 3, .tables = { "IppdFerTrapCfg" } }, [&]( U16 fap, FapContents contents ) { … } );
//
//    ChipsReader chips( "chips.json" );            // the same, a part at a time
//    while ( chips.nextPart() ) {
//       if ( chips.at().name == "IppdFerTrapCfg" ) { use( tableFromText( chips.text() ) ); }
//    }
//
// InputError where the file can't be read, isn't of this kind, or a chip has no place for what it holds.
#pragma once

#include "inspection/files/ChipsText.h"
#include "inspection/files/JsonStream.h"

#include <functional>
#include <set>

namespace Inspection {

struct ChipsFilter {
   std::optional< U16 > fap = {};
   std::vector< std::string > tables = {}; // none: all

   bool isWanted( std::string_view table ) const;
};

// One FAP at a time, in the file's order.
void eachFap( std::string const & path,
              ChipsFilter const & filter,
              std::function< void( U16 fap, FapContents contents ) > const & each );

// Tells everything that is wrong with a file that can be read as a whole, each with its line, as an InputError; returns
// where nothing is.
void refuseAsAWhole( std::string const & path );

std::map< U16, Hardware::ChipType > chipTypesIn( std::string const & path );

// The parts of a file, one after the other: of each FAP the kind of chip, the controls, each table.
class ChipsReader {
 public:
   enum class Kind : U8 { chipType, controls, table };
   struct Part {
      U16 fap = 0;
      Kind kind = Kind::chipType;
      std::string name = {}; // of a table
      // The order that files have in which `l3sm` has written.
      friend auto operator<=>( Part const &, Part const & ) = default;
   };

   ChipsReader( std::string const & path, ChipsFilter filter );
   std::string const & path() const { return json_.path(); }
   // False at the end; passes over what of the part before hasn't been read.
   bool nextPart();
   Part const & at() const { return at_; }
   // Its text, once; valid until the next call.
   std::string_view text();
   // Passes over the part if it is the same, letter by letter.
   bool passIfSame( std::string_view text );

   // Runs `read`, whose mistakes are then told with their place.
   template< class Read >
   decltype( auto ) reading( Read const & read ) const {
      return inFile( path(), [&]() -> decltype( auto ) {
         return Rex::below( "faps", [&]() -> decltype( auto ) {
            return Rex::below( std::to_string( at_.fap ), [&]() -> decltype( auto ) {
               return Rex::below( keyOf( at_.kind ), [&]() -> decltype( auto ) {
                  return at_.kind == Kind::table ? Rex::below( at_.name, read ) : read();
               } );
            } );
         } );
      } );
   }
   // Whether the FAP has come by.
   bool has( U16 fap ) const { return seen_.contains( fap ); }

 private:
   void finish();
   static std::string keyOf( Kind kind );
   bool nextFap();
   void skipRest();
   void refuse( std::string const & place, std::string const & what ) const;

   enum class Level : U8 { faps, fap, tables, ended };
   JsonStream json_;
   ChipsFilter filter_;
   Part at_;
   Level level_ = Level::faps;
   bool isUnread_ = false;
   bool hasChipType_ = true;
   std::set< U16 > seen_;
   std::set< std::string > seenHere_; // keys of the FAP, and names of its tables
};

} // namespace Inspection
