#include "agent/audit/Drift.h"

#include "inspection/KnownMemories.h"

namespace Live {

namespace {

// The table of a place; "controls" of one.
std::string_view tableOf( std::string_view place ) {
   return place.starts_with( "control " ) ? "controls" : place.substr( 0, place.find_first_of( "[. " ) );
}

std::string knownReason( Inspection::WrongPlace const & place ) {
   auto const table = tableOf( place.place );
   std::string reasons;
   for ( auto const & field : place.fields ) {
      auto const * const known = Inspection::knownMemory(
         table, table == "controls" ? std::string_view( place.place ).substr( 8 ) : std::string_view( field.name ) );
      if ( !known ) {
         return {};
      }
      if ( reasons.find( known->reason ) == std::string::npos ) {
         reasons += ( reasons.empty() ? "" : "; " ) + std::string( known->reason );
      }
   }
   return reasons;
}

} // namespace

std::string Drift::text() const {
   std::string line = "FAP " + std::to_string( place.fap ) + ' ' + place.place + ": ";
   for ( auto const & field : place.fields ) {
      line += ( &field == &place.fields.front() ? "" : ", " ) + field.name + ' ' + field.found + " → " + field.expected;
   }
   return line + ( known.empty() ? "" : "; known: " + known );
}

std::vector< Drift > driftOf( Simulator::SwitchDescription const & description,
                              Simulator::StagedDriver const & start ) {
   std::vector< Drift > all;
   start.eachChange( [&]( Simulator::StagedDriver::ChangeView const & change ) {
      Simulator::Mismatch const it{ .chip = change.chip,
                                    .at = change.at,
                                    .control = change.isControl ? std::optional( change.control ) : std::nullopt,
                                    .expected = change.after,
                                    .found = change.before };
      auto place = Inspection::wrongPlaceOf( description, it );
      auto known = knownReason( place );
      all.push_back( { .place = std::move( place ), .known = std::move( known ) } );
   } );
   return all;
}

} // namespace Live
