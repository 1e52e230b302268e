#include "agent/ServiceManager.h"

#include "agent/Log.h"

#include <systemd/sd-daemon.h>

namespace Live {

void ServiceManager::phaseIs( Phase phase, std::string const & reason ) {
   std::string const status = std::string( nameOf( phase ) ) + ( reason.empty() ? "" : ": " + reason );
   say( phase == Phase::running || phase == Phase::reconciling ? Level::notice : Level::warning, status );
   bool const isReady = phase == Phase::running || phase == Phase::degraded;
   bool const isFirst = isReady && !isReady_;
   isReady_ = isReady_ || isReady;
   sd_notify( 0, ( std::string( isFirst ? "READY=1\n" : "" ) + "STATUS=" + status ).c_str() );
}

void ServiceManager::stops() {
   sd_notify( 0, "STOPPING=1" );
}

} // namespace Live
