// Where an etcd is, as people write it.
//
//    EtcdAddress const address = EtcdAddress::of( "etcd://db1,db2:2479/lab", {} );
//    address.members;      // { "db1:2379", "db2:2479" }
//    address.prefix;       // "lab/": what all keys begin with
//
//    etcd://host[:port][,host[:port]…][/prefix]        etcds://… over TLS
//
// No password stands in an address, where others could read it: it is the first line of a file.
//
// Threading: plain data.
#pragma once

#include <string>
#include <vector>

namespace Live {

// Files and names that a database wants of who comes to it. Empty: it doesn't.
struct DatabaseCredentials {
   std::string authorities = {}; // files in PEM: whom to trust, who we are, and the key of that
   std::string certificate = {};
   std::string key = {};
   std::string user = {};
   std::string passwordFile = {};

   bool operator==( DatabaseCredentials const & ) const = default;
};

struct EtcdAddress {
   std::vector< std::string > members = {}; // each "host:port"
   bool isSecure = false;
   std::string prefix = {};
   DatabaseCredentials credentials = {};
   std::string password = {};

   // Throws Inspection::InputError; also where a file can't be read.
   static EtcdAddress of( std::string const & url, DatabaseCredentials const & credentials );
   static bool isOne( std::string const & url );
   // For people.
   std::string name() const;
   std::string urlOf( std::size_t member ) const;
};

} // namespace Live
