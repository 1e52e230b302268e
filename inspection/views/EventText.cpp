#include "inspection/views/EventText.h"

#include "inspection/EventInput.h"
#include "inspection/FoldedWrites.h"
#include "inspection/files/Json.h"

#include <algorithm>
#include <tuple>

namespace Inspection {

namespace {

using Simulator::Row;

constexpr std::size_t mostPaths = 3;     // of publications that are alike
constexpr std::size_t mostGroups = 6;    // of one table in one function, before the rest is only counted
constexpr std::size_t mostFields = 4;    // of one group in the gist
constexpr std::size_t longestValue = 40; // of a publication in the gist

struct Line {
   std::size_t indent;
   std::string text;
   friend bool operator==( Line const &, Line const & ) = default;
};
using Block = std::vector< Line >;

class EventText {
 public:
   EventText( EventRows const & rows, EventTextOptions const & options )
      : rows_( rows ), options_( options ), cause_( EventInput::of( rows.what() ).cause() ) {}

   Block block() const {
      Block all;
      addFaults( all );
      addChips( all );
      addPublications( all );
      addGates( all );
      return all;
   }

 private:
   // FAPs to which the same was done are told together.
   void addChips( Block & all ) const {
      std::map< U16, std::vector< Row const * > > byFap;
      for ( Row const & row : rows_.rows() ) {
         if ( row.isOperation() ) {
            byFap[row.fap].push_back( &row );
         }
      }
      std::vector< std::pair< Block, std::set< U16 > > > alike;
      for ( auto const & [fap, rows] : byFap ) {
         Block block = blockOf( rows );
         auto const known = std::ranges::find_if( alike, [&]( auto const & one ) { return one.first == block; } );
         if ( known == alike.end() ) {
            alike.emplace_back( std::move( block ), std::set< U16 >{ fap } );
         } else {
            known->second.insert( fap );
         }
      }
      for ( auto const & [block, faps] : alike ) {
         all.push_back( { 2, fapsText( faps ) + ( faps.size() > 1 ? ", each" : "" ) } );
         all.insert( all.end(), block.begin(), block.end() );
      }
   }

   Block blockOf( std::vector< Row const * > const & rows ) const {
      Block block;
      std::vector< Row const * > writes;
      std::map< std::pair< std::string_view, std::string_view >, std::size_t > reads; // by function and table
      for ( Row const * row : rows ) {
         if ( row->kind == Row::Kind::write && row->layout ) {
            writes.push_back( row );
         } else if ( row->kind == Row::Kind::read ) {
            ++reads[{ row->function, row->table }];
         }
      }
      if ( options_.isFull ) {
         for ( auto const & [what, count] : reads ) {
            block.push_back( { 4,
                               std::string( what.first ) + "  reads " + std::string( what.second ) + "  " +
                                  counted( count, "time", "times" ) } );
         }
      }
      addWrites( block, writes );
      for ( Row const * row : rows ) {
         if ( row->kind == Row::Kind::control ) {
            block.push_back( { 4,
                               std::string( row->function ) + "  control " + std::to_string( row->control ) + ": " +
                                  ( row->valueBefore ? std::to_string( *row->valueBefore ) : "unset" ) + " -> " +
                                  std::to_string( row->value ) + becauseOf( *row ) } );
         }
      }
      return block;
   }

   // Where that isn't what the event itself says.
   std::string becauseOf( Row const & row ) const {
      return row.cause == cause_ || rows_.event() == 0 ? "" : "  because of " + std::string( row.cause );
   }

   void addWrites( Block & block, std::vector< Row const * > const & writes ) const {
      std::string_view function;
      std::string_view table;
      std::size_t ofTable = 0;
      std::size_t left = 0;
      std::size_t idle = 0;
      auto const flush = [&] {
         if ( left > 0 ) {
            block.push_back(
               { 6, "… and " + counted( left, "more write", "more writes" ) + ", each with values of its own" } );
         }
         if ( idle > 0 ) {
            block.push_back( { 6, counted( idle, "write", "writes" ) + " that left what was there" } );
         }
         left = idle = 0;
      };
      for ( auto const & group : groupsOf( writes ) ) {
         auto const & row = group.first();
         if ( row.function != function ) {
            flush();
            block.push_back( { 4, std::string( row.function ) + becauseOf( row ) } );
         }
         ofTable = row.function == function && row.table == table ? ofTable + 1 : 1;
         function = row.function;
         table = row.table;
         if ( !options_.isFull && !group.changed() ) {
            idle += group.writes.size();
         } else if ( !options_.isFull && ofTable > mostGroups ) {
            left += group.writes.size();
         } else {
            addGroup( block, group );
         }
      }
      flush();
   }

   void addGroup( Block & block, WriteGroup const & group ) const {
      auto const & row = group.first();
      auto const places = group.places();
      block.push_back( { 6,
                         std::string( row.table ) +
                            ( row.layout->variant ? " variant " + std::to_string( row.variant ) : "" ) +
                            ( places.empty() ? "" : "  " + places ) + "  " + std::string( row.source ) +
                            ( group.changed() ? "" : "  (as it was)" ) } );
      std::size_t changed = 0;
      std::string kept;
      for ( auto const & field : group.fields ) {
         if ( !field.changed ) {
            kept += ( kept.empty() ? "unchanged: " : "  " ) + field.name + " " + field.after;
         } else if ( ++changed <= mostFields || options_.isFull ) {
            auto const bits = options_.isFull ? std::string() : differingBits( field.before, field.after );
            block.push_back( { 8, field.name + "  " + ( bits.empty() ? field.before + " -> " + field.after : bits ) } );
         }
      }
      if ( !options_.isFull && changed > mostFields ) {
         block.push_back( { 8, "… and " + counted( changed - mostFields, "more field", "more fields" ) } );
      }
      if ( options_.unchanged && !kept.empty() ) {
         block.push_back( { 8, kept } );
      }
   }

   std::string valueText( Rex::Value const & value ) const {
      std::string const text = value.text() ? *value.text() : toJson( value, 0 );
      return options_.isFull ? text : shortened( text, longestValue );
   }

   std::string changeText( Row const & row ) const {
      bool const isEntity = row.published->object() || row.publishedBefore->object();
      if ( isEntity && !options_.isFull ) {
         return row.publishedBefore->isNull() ? "entered" : row.published->isNull() ? "removed" : "changed";
      }
      return valueText( *row.publishedBefore ) + " -> " + valueText( *row.published );
   }

   // "published  shared/…/intfStatus/Ethernet1  mtu 1500 -> 2000": the same for many keys in one line.
   void addPublications( Block & all ) const {
      std::vector< std::pair< std::tuple< std::string, std::string, std::string >, std::vector< std::string > > > alike;
      for ( Row const & row : rows_.rows() ) {
         if ( row.kind != Row::Kind::publish ) {
            continue;
         }
         std::string folder( row.path );
         std::string name;
         std::string attribute( row.attribute );
         if ( row.key ) {
            name = *row.key;
         } else if ( auto const slash = folder.rfind( '/' ); slash != std::string::npos ) {
            name = folder.substr( slash + 1 );
            folder.resize( slash );
         }
         if ( row.key ) {
            folder += "/" + attribute;
            attribute.clear();
         }
         std::tuple const what( folder, attribute, changeText( row ) );
         auto const known = std::ranges::find_if( alike, [&]( auto const & one ) { return one.first == what; } );
         auto & names = known == alike.end() ? alike.emplace_back( what, std::vector< std::string >() ) : *known;
         names.second.push_back( name );
      }
      for ( auto const & [what, names] : alike ) {
         auto const & [folder, attribute, change] = what;
         std::string text = "published  " + folder + "/" + names.front();
         std::size_t const told = options_.isFull ? names.size() : std::min( names.size(), mostPaths );
         for ( std::size_t name = 1; name < told; ++name ) {
            text += ", " + names[name];
         }
         text += names.size() > told ? " and " + std::to_string( names.size() - told ) + " more" : "";
         text += ( attribute.empty() ? "" : "  " + attribute ) + "  " + change;
         all.push_back( { 2, text } );
      }
   }

   void addGates( Block & all ) const {
      struct Gates {
         Row const * first;
         std::set< U16 > faps;
         std::size_t count;
      };
      std::vector< Gates > alike;
      for ( Row const & row : rows_.rows() ) {
         if ( row.kind != Row::Kind::gate ) {
            continue;
         }
         auto const known = std::ranges::find_if( alike, [&]( Gates const & one ) {
            return one.first->source == row.source && one.first->reason == row.reason;
         } );
         Gates & gates = known == alike.end() ? alike.emplace_back( Gates{ &row, {}, 0 } ) : *known;
         ++gates.count;
         if ( row.isOfFap ) {
            gates.faps.insert( row.fap );
         }
      }
      for ( Gates const & gates : alike ) {
         all.push_back( { 2,
                          "stopped  " + std::string( gates.first->function ) + ": " +
                             std::string( gates.first->reason ) +
                             ( gates.faps.empty() ? "" : " (" + fapsText( gates.faps ) + ")" ) +
                             ( gates.count > std::max< std::size_t >( gates.faps.size(), 1 )
                                  ? ", " + counted( gates.count, "time", "times" )
                                  : "" ) +
                             ( options_.isFull ? "  " + std::string( gates.first->source ) : "" ) } );
      }
   }

   // What befell the chips, before what was done to them.
   void addFaults( Block & all ) const {
      std::map< std::tuple< std::string_view, U16, std::string_view >, std::vector< Row const * > > alike;
      for ( Row const & row : rows_.rows() ) {
         if ( row.kind == Row::Kind::fault ) {
            alike[{ row.reason, row.fap, row.table }].push_back( &row );
         }
      }
      for ( auto const & [what, rows] : alike ) {
         auto const & [kind, fap, table] = what;
         Row const & first = *rows.front();
         std::string const where = "[" + std::to_string( first.array ) + "]" +
                                   ( first.entry ? "." + std::to_string( *first.entry ) : "" ) + "  copy " +
                                   std::to_string( first.core );
         all.push_back( { 2,
                          "fault  " + std::string( kind ) + "  FAP " + std::to_string( fap ) + "  " +
                             std::string( table ) +
                             ( rows.size() == 1 ? where : "  " + counted( rows.size(), "time", "times" ) ) } );
      }
   }

   EventRows const & rows_;
   EventTextOptions const & options_;
   std::string const cause_;
};

} // namespace

void writeEvent( Lines & lines, EventRows const & rows, EventTextOptions const & options ) {
   lines.title( "Event " + std::to_string( rows.event() ) + ": " + eventText( rows.what() ) );
   if ( rows.counts().isEmpty() ) {
      lines.put( 2,
                 EventInput::of( rows.what() ).kind == EventInput::Kind::fault ? "from now on; it hasn't fired yet"
                 : rows.isBroken() ? "the run broke off in it, before anything was done"
                                   : rows.reach().silence() );
      lines.blank();
      return;
   }
   Block const block = EventText( rows, options ).block();
   std::size_t const most = options.mostLines == 0 ? block.size() : options.mostLines;
   // Nothing is gained by a line that says that one line is left out.
   std::size_t const shown = block.size() <= most + 1 ? block.size() : most;
   lines.put( 2, countsText( rows.counts() ) );
   for ( std::size_t line = 0; line < shown; ++line ) {
      lines.put( block[line].indent, block[line].text );
   }
   if ( shown < block.size() ) {
      lines.put(
         2, "… " + std::to_string( block.size() - shown ) + " more lines: --event " + std::to_string( rows.event() ) );
   }
   lines.blank();
}

} // namespace Inspection
