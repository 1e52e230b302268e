// One line of a journal, taken apart.
//
// Threading: one thread for each parser.
#pragma once

#include "chip/ChipType.h"
#include "inspection/files/RowTexts.h"
#include "inspection/files/WrittenRow.h"

#include <array>
#include <map>
#include <optional>
#include <simdjson.h>
#include <variant>

namespace Inspection {

class JournalLineParser {
 public:
   struct EventLine {
      U32 event;
      Rex::Value what;
   };
   struct BeginLine {
      int format;
      Rex::Value scenario;
      std::string plugin;
   };
   using Parsed = std::variant< Simulator::Row, EventLine, BeginLine, Simulator::Ending >;

   // A FAP's kind of chip: its rows have their layout from now on.
   void chipIs( U16 fap, Hardware::ChipType chipType );
   std::map< U16, Hardware::ChipType > const & chipTypes() const { return chipTypes_; }
   // Every FAP is known: rows of another are wrong.
   void chipsAreAll() { areChipsAll_ = true; }

   // `line` has SIMDJSON_PADDING bytes behind it that may be read. What the row refers to is valid until the next call,
   // its texts as long as the parser. Rex::ValueError.
   Parsed parse( std::string_view line );

   // The same of a line whose form is known, which is quicker; none where it is of another form after all, or wrong, as
   // parse() tells then.
   std::optional< Simulator::Row > row( WrittenRow & written );

   // The gates that the row carries, in format 1: those that were found closed before it, and after it.
   std::vector< Simulator::Row > const & gatesBefore() const { return gatesBefore_; }
   std::vector< Simulator::Row > const & gatesAfter() const { return gatesAfter_; }

 private:
   Simulator::Row row( simdjson::dom::object const & object, Simulator::Row::Kind kind );
   void operation( simdjson::dom::object const & object, Simulator::Row & row );
   void access( simdjson::dom::object const & object, Simulator::Row & row );
   void publication( simdjson::dom::object const & object, Simulator::Row & row );
   void gatesInto( std::vector< Simulator::Row > & gates, simdjson::dom::object const & object, char const * key );
   bool hasFap( U16 fap ) const { return fap < chips_.size() && chips_[fap]; }
   void checkFap( U16 fap ) const;
   Catalogue::Table const * tableOf( std::string_view name );
   Catalogue::Layout const * layoutOf( Simulator::Row const & row ) const;

   simdjson::dom::parser parser_;
   std::map< U16, Hardware::ChipType > chipTypes_;
   std::vector< std::optional< Hardware::ChipType > > chips_; // the same by FAP, as every row asks for it
   bool areChipsAll_ = false;
   std::vector< Simulator::Row > gatesBefore_;
   std::vector< Simulator::Row > gatesAfter_;
   RowTexts texts_;
   struct KnownTable {
      std::string_view name{};
      Catalogue::Table const * table = nullptr;
   };
   std::array< KnownTable, 256 > knownTables_{}; // by a few letters of their names
   std::vector< U32 > words_;
   std::vector< U32 > before_;
   Rex::Value published_;
   Rex::Value publishedBefore_;
};

} // namespace Inspection
