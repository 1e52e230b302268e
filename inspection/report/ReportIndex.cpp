// The part of the page's data that is opened first. page/model.js reads it; numbers that belong together stand one
// behind the other in one list, as a page of objects would take long to make.
#include "inspection/NamesAsTyped.h"
#include "inspection/files/Json.h"
#include "inspection/report/ReportData.h"

namespace Inspection {

namespace {

class JsonList {
 public:
   void add( std::int64_t number ) { text( std::to_string( number ) ); }
   void text( std::string_view json ) {
      out_ += out_.empty() ? "[" : ",";
      out_ += json;
   }
   std::string done() const { return out_.empty() ? "[]" : out_ + "]"; }

 private:
   std::string out_;
};

char const * endingName( Simulator::Ending::Kind kind ) {
   constexpr char const * names[] = { "complete", "interrupted", "assertion", "cut" };
   return names[static_cast< std::size_t >( kind )];
}

} // namespace

// By layout: chip, table, variant, width, whether it has an array, the table's variants, whether it is a memory, and
// how many fields; behind all of them name, offset and width of each field.
std::string ReportData::layoutsJson() const {
   JsonList list;
   JsonList fields;
   std::size_t name = 0;
   for ( auto const & [layout, table] : layouts_ ) {
      auto const & of = *Catalogue::table( texts_.all()[table] );
      list.text( quoted( Catalogue::chipName( layout->chipType ) ) );
      list.add( table );
      list.add( layout->variant );
      list.add( layout->width );
      list.add( isArrayed( *layout ) );
      list.add( of.variantCount );
      list.add( of.isMemory );
      list.add( static_cast< int >( layout->fields.size() ) );
      for ( auto const & field : layout->fields ) {
         fields.add( fieldNames_[name++] );
         fields.add( field.offset );
         fields.add( field.width );
      }
   }
   return "{\"layouts\":" + list.done() + ",\n\"fields\":" + fields.done() + "}";
}

std::string ReportData::eventsJson() const {
   JsonList list;
   for ( EventOf const & event : events_ ) {
      list.add( event.number );
      list.add( event.firstRow );
      for ( U32 const rows : event.tally.rows ) {
         list.add( rows );
      }
      list.add( event.tally.changes );
      list.add( event.tally.changedControls );
      list.add( event.faps );
      list.add( event.functions );
      list.add( event.causes );
      list.add( event.tables );
      list.add( event.isWhole );
   }
   return list.done();
}

std::string ReportData::blocksJson() const {
   JsonList list;
   for ( ReportBlock const & block : blocks_.all() ) {
      JsonList tables;
      for ( U32 const table : block.tables ) {
         tables.add( table );
      }
      list.add( block.firstRow );
      list.add( static_cast< std::int64_t >( block.firstOperation ) );
      list.add( block.publications );
      list.text( tables.done() );
   }
   return list.done();
}

std::string ReportData::publishedJson() const {
   std::map< U32, Published const * > ordered;
   for ( auto const & [what, published] : published_ ) {
      ordered.emplace( what, &published );
   }
   JsonList list;
   for ( auto const & [what, published] : ordered ) {
      list.add( what );
      list.text( published->value );
      list.add( published->event );
      list.add( published->count );
   }
   return list.done();
}

std::string ReportData::index() const {
   JsonList texts;
   for ( std::string const & text : texts_.all() ) {
      texts.text( quoted( text ) );
   }
   JsonList keys;
   for ( RowKey const & key : keys_.all() ) {
      for ( int const part : key ) {
         keys.add( part );
      }
   }
   JsonList sets;
   for ( auto const * const set : sets_.all() ) {
      JsonList one;
      for ( U32 const number : *set ) {
         one.add( number );
      }
      sets.text( one.done() );
   }
   std::string tallies;
   for ( auto const & [name, all] : { std::pair( "functions", &byFunction_ ),
                                      std::pair( "causes", &byCause_ ),
                                      std::pair( "tables", &byTable_ ),
                                      std::pair( "faps", &byFap_ ) } ) {
      JsonList list;
      all->each( [&]( U32 number, Tally const & tally ) {
         list.add( number );
         for ( U32 const rows : tally.rows ) {
            list.add( rows );
         }
         list.add( tally.changes );
         list.add( tally.changedControls );
      } );
      tallies += std::string( tallies.empty() ? "" : "," ) + "\"" + name + "\":" + list.done();
   }
   Simulator::Ending const ending = ending_.value_or( Simulator::Ending{} );
   return "{\"run\":" + scenario_ + ",\n\"ending\":{\"ended\":\"" + endingName( ending.kind ) +
          "\",\"events\":" + std::to_string( ending.events ) +
          ",\"operations\":" + std::to_string( ending.operations ) + ",\"text\":" + quoted( ending.text ) +
          ",\"function\":" + quoted( ending.function ) + ",\"source\":" + quoted( ending.source ) +
          "},\n\"rows\":" + std::to_string( blocks_.rowCount() ) +
          ",\"valuesAreWhole\":" + ( values_.isWhole() ? "true" : "false" ) + ",\n\"texts\":" + texts.done() +
          ",\n\"layouts\":" + layoutsJson() + ",\n\"keys\":" + keys.done() + ",\n\"sets\":" + sets.done() +
          ",\n\"events\":" + eventsJson() + ",\n\"whats\":[" + whats_ + "],\n\"blocks\":" + blocksJson() +
          ",\n\"tallies\":{" + tallies + "},\n\"published\":" + publishedJson() + "}";
}

} // namespace Inspection
