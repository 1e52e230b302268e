// Who holds the right to serve a slice: a process, told so that one that comes after a killed one on the same machine
// needn't wait.
//
//    std::string const token = LeaseHolder::thisProcess().text();
//    LeaseHolder::of( token ).isDead();
//
// Threading: plain data.
#pragma once

#include <string>
#include <string_view>

namespace Live {

// A process, and what in it holds a lease.
struct LeaseHolder {
   std::string host;
   std::string boot;  // of the machine
   std::string space; // of the numbers of processes: containers on one machine have their own
   std::string process;
   std::string started; // when the process was: its number comes again
   std::string instance;

   static LeaseHolder thisProcess();
   static LeaseHolder of( std::string_view text );
   std::string text() const;
   // It was a process of this machine, and is no more.
   bool isDead() const;
   // "process 4711 on gauss"
   std::string forPeople() const;
};

} // namespace Live
