#include "agent/database/LeaseHolder.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace Live {

namespace {

std::string firstLine( std::string const & file ) {
   std::string line;
   std::getline( std::ifstream( file ), line );
   return line;
}

// When a process was started, in the kernel's own ticks; empty where there is no such process.
std::string startOf( std::string const & process ) {
   constexpr int fieldsBefore = 19; // between the name, which ends in the last bracket, and the time
   std::string const status = firstLine( "/proc/" + process + "/stat" );
   auto const name = status.rfind( ')' );
   if ( name == std::string::npos ) {
      return {};
   }
   std::istringstream fields( status.substr( name + 1 ) );
   std::string field;
   fields >> field;
   if ( field == "Z" || field == "X" ) { // it has ended, and nobody has noticed yet
      return {};
   }
   for ( int at = 0; at < fieldsBefore; ++at ) {
      fields >> field;
   }
   return field;
}

std::string processSpace() {
   std::error_code none;
   return std::filesystem::read_symlink( "/proc/self/ns/pid", none ).string();
}

} // namespace

LeaseHolder LeaseHolder::thisProcess() {
   static unsigned instances = 0;
   std::array< char, 256 > host{};
   ::gethostname( host.data(), host.size() - 1 );
   std::string const process = std::to_string( ::getpid() );
   return { host.data(),
            firstLine( "/proc/sys/kernel/random/boot_id" ),
            processSpace(),
            process,
            startOf( process ),
            std::to_string( ++instances ) };
}

LeaseHolder LeaseHolder::of( std::string_view text ) {
   LeaseHolder holder;
   std::istringstream parts{ std::string( text ) };
   parts >> holder.host >> holder.boot >> holder.space >> holder.process >> holder.started >> holder.instance;
   return holder;
}

std::string LeaseHolder::text() const {
   return host + " " + boot + " " + space + " " + process + " " + started + " " + instance;
}

bool LeaseHolder::isDead() const {
   bool const isHere =
      !boot.empty() && boot == firstLine( "/proc/sys/kernel/random/boot_id" ) && space == processSpace();
   return isHere && !process.empty() && startOf( process ) != started;
}

std::string LeaseHolder::forPeople() const {
   return process.empty() ? "somebody who doesn't tell his name" : "process " + process + " on " + host;
}

} // namespace Live
