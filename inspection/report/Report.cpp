#include "inspection/report/Report.h"

#include "inspection/report/ReportPage.h"
#include "inspection/views/Html.h"

namespace Inspection {

namespace {

void appendData( std::string & page, std::string const & name, std::string_view deflatedBytes ) {
   page += "<script type=\"application/octet-stream\" id=\"" + name + "\">";
   appendBase64( page, deflatedBytes );
   page += "</script>\n";
}

void appendAllData( std::string & page, ReportData const & data ) {
   appendData( page, "index", deflated( data.index() ) );
   appendData( page, "values", deflated( data.values() ) );
   std::size_t number = 0;
   for ( ReportBlock const & block : data.blocks() ) {
      appendData( page, "block" + std::to_string( number++ ), block.bytes );
   }
}

} // namespace

std::string reportOf( ReportData const & data, std::vector< std::string > const & remarks ) {
   std::string page;
   std::string_view rest = reportPage;
   // Up to a mark, which stands in the page's own text alone: what is put in is never searched.
   auto const upTo = [&]( std::string_view mark ) {
      auto const at = rest.find( mark );
      page += rest.substr( 0, at );
      rest.remove_prefix( at + mark.size() );
   };
   upTo( "@TITLE@" );
   page += inHtml( data.title().empty() ? "l3sm run" : data.title() );
   upTo( "@STYLE@" );
   page += reportStyle;
   upTo( "@REMARKS@" );
   for ( std::string const & remark : remarks ) {
      page += "<p>" + inHtml( remark ) + "</p>";
   }
   if ( data.faults() > 0 ) {
      page += "<p>" + std::to_string( data.faults() ) + ( data.faults() == 1 ? " fault" : " faults" ) +
              " fired: the page shows what was written, not what the chips hold since; l3sm show does</p>";
   }
   upTo( "@DATA@" );
   appendAllData( page, data );
   upTo( "@SCRIPT@" );
   page += reportScript;
   page += rest;
   return page;
}

} // namespace Inspection
