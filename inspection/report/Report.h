// The report of a run: one page of HTML that holds all it shows, and needs nothing from a network.
//
//    ReportFile report( file, valueOf( scenario, Parts::withoutEvents ) ); // of a run under way: written when it ends,
//    sw.journal().readerAdd( report );                                    // also by an assertion
//
//    ReportData data( journal.scenario() );            // of a journal
//    journal.read( data );
//    file.write( reportOf( data, journal.remarks() ) );
#pragma once

#include "inspection/files/OutputFile.h"
#include "inspection/report/ReportData.h"

namespace Inspection {

// The page, once the run has ended. `remarks`: what the reader is to know of the journal first, a line each.
std::string reportOf( ReportData const & data, std::vector< std::string > const & remarks = {} );

class ReportFile final : public ReportData {
 public:
   // The file outlives this.
   ReportFile( OutputFile const & file, Rex::Value const & scenario ) : ReportData( scenario ), file_( file ) {}
   void ends( Simulator::Ending const & ending ) override {
      ReportData::ends( ending );
      file_.write( reportOf( *this ) );
   }

 private:
   OutputFile const & file_;
};

} // namespace Inspection
