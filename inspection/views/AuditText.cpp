#include "inspection/views/AuditText.h"

#include "inspection/views/Terminal.h"

namespace Inspection {

void showAudit( std::ostream & out, ChipsAudit const & audit, std::size_t most ) {
   std::size_t const shown = most == 0 ? audit.wrong.size() : std::min( most, audit.wrong.size() );
   for ( std::size_t at = 0; at < shown; ++at ) {
      out << audit.wrong[at].text() << '\n';
   }
   if ( shown < audit.wrong.size() ) {
      out << "… " << audit.wrong.size() - shown << " more: --all\n";
   }
   for ( U16 const fap : audit.degraded ) {
      out << "FAP " << fap << " is degraded: an operation failed " << Simulator::ShadowDriver::mostTries
          << " times, and none reached it since\n";
   }
   out << ( audit.isFine() ? "Every chip holds what was written to it: "
                           : counted( audit.wrong.size(), "place is", "places are" ) + " wrong: " )
       << counted( audit.faults, "fault", "faults" ) << " fired.\n";
}

Rex::Value auditValue( ChipsAudit const & audit ) {
   Rex::Value::List wrong;
   for ( WrongPlace const & it : audit.wrong ) {
      wrong.emplace_back( it.value() );
   }
   return Rex::Value::Object{ { "audit", std::move( wrong ) },
                              { "degraded", Rex::Value::List( audit.degraded.begin(), audit.degraded.end() ) },
                              { "faults", audit.faults } };
}

} // namespace Inspection
