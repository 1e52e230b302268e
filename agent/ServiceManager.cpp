#include "agent/ServiceManager.h"

#include "agent/SystemLog.h"

#include <cstdlib>
#include <cstring>
#include <systemd/sd-daemon.h>

namespace Live {

namespace {

// What it has handed over, by name; of several under one name the first. Children of this process are told of none.
std::map< std::string, Descriptor > handedOver() {
   std::map< std::string, Descriptor > all;
   char ** names = nullptr;
   int const count = sd_listen_fds_with_names( 1, &names );
   for ( int index = 0; index < count; ++index ) {
      all.try_emplace( names[index], Descriptor( SD_LISTEN_FDS_START + index ) );
      std::free( names[index] );
   }
   std::free( static_cast< void * >( names ) );
   return all;
}

} // namespace

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

Descriptor ServiceManager::keptFile( std::string const & name ) {
   static auto all = handedOver();
   auto const found = all.find( name );
   return found == all.end() ? Descriptor() : std::move( found->second );
}

bool ServiceManager::keeps( std::string const & name, int file ) {
   keepsNoMore( name );
   int const told = sd_pid_notify_with_fds( 0, 0, ( "FDSTORE=1\nFDNAME=" + name ).c_str(), &file, 1 );
   if ( told < 0 ) {
      say( Level::warning, "the service manager can't keep " + name + ": " + std::strerror( -told ) );
   }
   return told > 0;
}

void ServiceManager::keepsNoMore( std::string const & name ) {
   sd_notify( 0, ( "FDSTOREREMOVE=1\nFDNAME=" + name ).c_str() );
}

} // namespace Live
