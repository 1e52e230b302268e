#include "inspection/views/ReplayText.h"

#include "inspection/NamesAsTyped.h"
#include "inspection/views/DifferencesText.h"

namespace Inspection {

namespace {

void showOthers( std::ostream & out, OtherContentsList const & list, char const * said, Style const & style ) {
   if ( list.seqs.empty() ) {
      return;
   }
   constexpr std::size_t shown = 5;
   out << '\n' << counted( list.seqs.size(), "row", "rows" ) << ' ' << said << '\n';
   Columns columns;
   for ( std::size_t index = 0; index < std::min( shown, list.first.size() ); ++index ) {
      auto const & other = list.first[index];
      auto const place = placeText( *other.table, *other.layout, other.array, other.entry );
      auto const journalled = Simulator::decode( *other.layout, other.journalled );
      auto const here = Simulator::decode( *other.layout, other.here );
      for ( std::size_t field = 0; field < journalled.size(); ++field ) {
         if ( !( journalled[field] == here[field] ) ) {
            columns.row( { style.faint( "#" + std::to_string( other.seq ) ),
                           "FAP " + std::to_string( other.fap ),
                           other.table->name,
                           style.place( place ),
                           journalled[field].name,
                           style.after( readable( journalled[field].value ) ) + style.faint( ", not " ) +
                              style.before( readable( here[field].value ) ) } );
         }
      }
   }
   columns.print( out, 2 );
   if ( list.seqs.size() > shown ) {
      out << "  and " << list.seqs.size() - shown << " more; --json has their numbers\n";
   }
}

} // namespace

void showRemarks( std::ostream & out, std::vector< std::string > const & remarks, Style const & style ) {
   for ( auto const & remark : remarks ) {
      out << style.differs( printable( remark ) ) << '\n';
   }
   out << ( remarks.empty() ? "" : "\n" );
}

void showReplay( std::ostream & out, Replay const & replay, std::string const & chips, Style const & style ) {
   showRemarks( out, replay.remarks, style );
   out << counted( replay.writes, "write", "writes" ) << " and " << counted( replay.controls, "control", "controls" )
       << " applied, " << counted( replay.reads, "read", "reads" ) << " compared, on "
       << counted( replay.chips, "fresh chip", "fresh chips" ) << '\n';
   showOthers( out, replay.begunWith, "told that the run began with other contents", style );
   showOthers( out, replay.others, "told of something that nothing in the journal explains", style );
   if ( replay.differences ) {
      out << '\n';
      showDifferences( out, *replay.differences, chips, "the replay", style );
   }
}

} // namespace Inspection
