#include "inspection/views/DifferencesText.h"

#include "inspection/views/ReplayText.h"

namespace Inspection {

namespace {

using Rex::Value;

constexpr std::size_t fewEntries = 30; // that are shown in full
constexpr std::size_t fewLetters = 60; // of a value of the state

std::string sideText( std::optional< std::string > const & value ) {
   return value ? readable( *value ) : "-";
}

// "0, 2-5"
std::string rangesOf( std::set< U16 > const & numbers ) {
   std::string text;
   for ( auto first = numbers.begin(); first != numbers.end(); ) {
      auto last = first;
      while ( std::next( last ) != numbers.end() && *std::next( last ) == *last + 1 ) {
         ++last;
      }
      text += ( text.empty() ? "" : ", " ) + std::to_string( *first );
      text += last == first ? "" : ( *last == *first + 1 ? ", " : "-" ) + std::to_string( *last );
      first = std::next( last );
   }
   return text;
}

void showCounts( std::ostream & out, DifferenceCounts const & counts, Style const & style ) {
   Columns columns;
   columns.row(
      { style.strong( "table" ), style.strong( "entries" ), style.strong( "fields" ), style.strong( "FAP" ) } );
   for ( auto const & [table, count] : counts.byTable() ) {
      columns.row( { table, std::to_string( count.entries ), std::to_string( count.fields ), rangesOf( count.faps ) } );
   }
   columns.rightAlign( 1 );
   columns.rightAlign( 2 );
   out << counted( counts.entries(), "entry differs", "entries differ" ) << " in "
       << counted( counts.byTable().size(), "table", "tables" ) << "\n\n";
   columns.print( out );
}

// Lines of one table on one FAP, or of one path.
class Blocks {
 public:
   Blocks( std::ostream & out, Style const & style ) : out_( out ), style_( style ) {}
   ~Blocks() { flush(); }
   Blocks( Blocks const & ) = delete;
   Blocks & operator=( Blocks const & ) = delete;

   void head( std::string const & head ) {
      if ( head != head_ ) {
         flush();
         head_ = head;
         out_ << '\n' << head << '\n';
      }
   }
   void value( std::string const & place, std::string const & name, std::string const & a, std::string const & b ) {
      columns_.row( { place, name, style_.before( a ), style_.faint( "→" ), style_.after( b ) } );
   }
   void note( std::string const & place, std::string const & text ) { columns_.row( { place, style_.faint( text ) } ); }

 private:
   void flush() {
      columns_.print( out_, 2 );
      columns_ = Columns();
   }
   std::ostream & out_;
   Style const & style_;
   std::string head_;
   Columns columns_;
};

void showEntries( std::ostream & out,
                  std::vector< Difference > const & all,
                  std::size_t most,
                  std::string const & nameA,
                  std::string const & nameB,
                  Style const & style ) {
   Blocks blocks( out, style );
   for ( std::size_t number = 0; number < std::min( most, all.size() ); ++number ) {
      Difference const & it = all[number];
      blocks.head( style.strong( it.table ) + style.faint( "  FAP " + std::to_string( it.fap ) ) );
      std::string place = style.place( it.place );
      if ( !it.inA || !it.inB ) {
         blocks.note( place, "only in " + ( it.inA ? nameA : nameB ) );
         place.clear();
      }
      for ( ValueDifference const & value : it.values ) {
         blocks.value( place, value.name, sideText( value.a ), sideText( value.b ) );
         place.clear();
      }
   }
}

std::string stateText( std::optional< std::string > const & value ) {
   if ( !value ) {
      return "-";
   }
   std::string const text = printable( *value );
   return widthOf( text ) <= fewLetters ? text : text.substr( 0, fewLetters ) + "...";
}

void showPaths( std::ostream & out, std::vector< PathDifference > const & all, std::size_t most, Style const & style ) {
   std::set< std::string > paths;
   for ( auto const & it : all ) {
      paths.insert( it.path );
   }
   out << counted( all.size(), "value differs", "values differ" ) << " at " << counted( paths.size(), "path", "paths" )
       << '\n';
   Blocks blocks( out, style );
   for ( std::size_t number = 0; number < std::min( most, all.size() ); ++number ) {
      auto const & [path, value] = all[number];
      blocks.head( style.strong( printable( path ) ) );
      blocks.value( "", printable( value.name ), stateText( value.a ), stateText( value.b ) );
   }
}

} // namespace

void showDifferences( std::ostream & out,
                      std::vector< Difference > const & all,
                      std::string const & nameA,
                      std::string const & nameB,
                      Style const & style ) {
   FileDifferences it{ .nameA = nameA, .nameB = nameB };
   it.chips = all;
   std::ranges::for_each( all, [&]( Difference const & each ) { it.counts.add( each ); } );
   showDifferences( out, it, DifferencesShown::first, style );
}

void showDifferences( std::ostream & out, FileDifferences const & it, DifferencesShown shown, Style const & style ) {
   showRemarks( out, it.remarks, style );
   if ( it.isAlike() ) {
      out << "no difference\n";
      return;
   }
   std::size_t const most = shown == DifferencesShown::counts  ? 0
                            : shown == DifferencesShown::first ? fewEntries
                                                               : std::numeric_limits< std::size_t >::max();
   if ( it.counts.entries() > 0 ) {
      showCounts( out, it.counts, style );
      showEntries( out, it.chips, most, it.nameA, it.nameB, style );
   }
   if ( !it.values.empty() ) {
      out << ( it.counts.entries() > 0 ? "\n" : "" );
      showPaths( out, it.values, most, style );
   }
   std::size_t const all = std::max( it.chips.size(), it.values.size() );
   if ( shown == DifferencesShown::first && all > most ) {
      out << "\nThe first " << most << " are shown; --all shows the others, too.\n";
   }
}

Value valueOf( FileDifferences const & it, bool countsOnly ) {
   Value::Object value;
   if ( !it.remarks.empty() ) {
      value["remarks"] = Value::List( it.remarks.begin(), it.remarks.end() );
   }
   if ( countsOnly ) {
      value["tables"] = it.counts.value();
      value["values"] = it.values.size();
      return value;
   }
   auto differences = differencesValue( it.chips );
   for ( PathDifference const & of : it.values ) {
      auto one = sidesOf( of.value );
      one["path"] = of.path;
      one["attribute"] = of.value.name;
      differences.list()->push_back( std::move( one ) );
   }
   value["differences"] = std::move( differences );
   return value;
}

} // namespace Inspection
