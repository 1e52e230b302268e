#include "inspection/Verifications.h"

#include "assert/Assert.h"
#include "inspection/Play.h"
#include "inspection/views/Progress.h"
#include "rex/Operations.h"

#include <algorithm>
#include <sstream>

namespace Inspection {

namespace {

using Simulator::Row;
using Simulator::SimulatedSwitch;

// The operations of this type whose names begin so look at a chip and complain by assertion.
constexpr char const * type = "DaceFapNi::L3Sm";
constexpr std::string_view verifying = "verify";

std::vector< std::string > verifications() {
   std::vector< std::string > names;
   for ( std::string const & name : Rex::Operations::names( type ) ) {
      if ( name.starts_with( verifying ) ) {
         names.push_back( name );
      }
   }
   return names;
}

bool wasInitialised( SimulatedSwitch const & sw, U16 fap ) {
   return std::ranges::any_of( sw.journal().operations(),
                               [&]( Row const & row ) { return row.fap == fap && row.cause == "chip-init"; } );
}

// Where the last operation was made, a part of the text on each line.
void tellPlace( std::ostream & out, Simulator::Journal const & journal, std::size_t before ) {
   out << journal.operationCount() - before << '\n';
   if ( journal.operationCount() > before ) {
      auto const row = journal.operations().back();
      if ( row.kind != Row::Kind::control ) {
         std::string place = "array " + std::to_string( row.array );
         place += row.entry ? " entry " + std::to_string( *row.entry ) : "";
         out << row.table << '\n' << place << '\n';
      }
   }
   out.flush();
}

Verdict verify( SimulatedSwitch & sw, Hardware::Dace::Cell::FapStatus const & status, std::string const & name ) {
   Verdict verdict{ .fap = status.fapId().value(), .operation = name };
   if ( !wasInitialised( sw, verdict.fap ) ) {
      verdict.kind = Verdict::Kind::notServed;
      return verdict;
   }
   Child const child = inChild( [&]( std::ostream & out ) {
      std::size_t const before = sw.journal().operationCount();
      Rex::atFailure( [&] { tellPlace( out, sw.journal(), before ); } );
      ( *Rex::Operations::find( type, name ) )( &status );
      tellPlace( out, sw.journal(), before );
   } );
   std::istringstream told( child.output );
   told >> verdict.reads >> std::ws;
   std::getline( told, verdict.table );
   std::getline( told, verdict.place );
   if ( !child.isFine ) {
      verdict.kind = Verdict::Kind::fault;
      verdict.what = child.errors.substr( 0, child.errors.find_last_not_of( '\n' ) + 1 );
      std::ranges::replace( verdict.what, '\n', ' ' );
   }
   return verdict;
}

} // namespace

std::vector< Verdict > verdictsOf( SimulatedSwitch & sw ) {
   std::vector< Verdict > verdicts;
   auto const names = verifications();
   auto const & faps = sw.cellStatus()->fapStatus();
   Progress progress( "verifying" );
   for ( std::string const & name : names ) {
      for ( auto const & [fapId, status] : faps ) {
         progress.stands( verdicts.size(), names.size() * sw.description().faps.size() );
         verdicts.push_back( verify( sw, *status, name ) );
      }
   }
   return verdicts;
}

void fillWith( SimulatedSwitch & sw, Scenario const & scenario, std::string const & path, ChipsFile const & chips ) {
   for ( auto const & [fap, contents] : chips ) {
      auto * const chip = sw.driver().chip( DaceSal::ChipId{ fap } );
      auto const place = "/faps/" + std::to_string( fap );
      if ( !chip ) {
         throw InputError( path + ": " + place, "the scenario's switch has no such FAP" );
      }
      if ( auto const chipType = scenario.fap( fap ).revision.chipType(); chipType != contents.chipType ) {
         throw InputError( path + ": " + place + "/chipType",
                           std::string( "in the scenario the FAP is a " ) + Hardware::chipTypeName( chipType ) );
      }
      inFile( path + ": " + place + "/tables", [&] { apply( contents.contents.tables, *chip, contents.chipType ); } );
   }
}

} // namespace Inspection
