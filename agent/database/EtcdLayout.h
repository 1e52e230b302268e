// How a state lies in an etcd: the keys of RedisLayout.h without braces, each value one object of JSON. Each cell has
// its keys, which begin with `l3sm:CELL`:
//
//    :<path>                     attribute to its value; {}: all at their defaults
//    :                           (of no path) the epoch once more: whoever follows the paths hears of another life in
//                                its order
//    #epoch                      a UUID of this life of the state: whoever loads one writes a new one
//    #writes                     who wrote last: writers take turns by its revision
//    #agent:<slice>              written by that agent alone: `epoch`, `applied`, what it tells of itself. Its lease is
//                                the right to serve the slice; it is gone some seconds after the agent
//    #agents:<slice>             that the slice has an agent, until it ends by itself
//    #published:<slice>:<path>   what that agent's plug-in publishes
//
// There is no log: the cluster keeps the revisions, and a transaction is one of them. `applied` and the place of a
// transaction are numbers of revisions.
//
// Threading: plain data.
#pragma once

#include "rex/Clock.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace Live {

struct EtcdLayout {
   std::string cell; // "l3sm:1"

   EtcdLayout( std::string const & prefix, U32 number ) : cell( prefix + "l3sm:" + std::to_string( number ) ) {}
   std::string key( std::string_view path ) const { return ( cell + ":" ).append( path ); }
   std::string mark() const { return key( "" ); }
   std::string epoch() const { return cell + "#epoch"; }
   std::string writes() const { return cell + "#writes"; }
   std::string agent( std::string_view slice ) const { return ( cell + "#agent:" ).append( slice ); }
   std::string agents( std::string_view slice = {} ) const { return ( cell + "#agents:" ).append( slice ); }
   std::string published( std::string_view slice, std::string_view path = {} ) const {
      return ( cell + "#published:" ).append( slice ).append( ":" ).append( path );
   }
   // Empty: it is no key of a path, or the mark.
   std::string_view pathOf( std::string_view key ) const {
      return key.substr( std::min( cell.size() + 1, key.size() ) );
   }
};

// A server refuses transactions of more, unless told otherwise.
constexpr std::size_t mostOperations = 128;
constexpr std::size_t snapshotPage = 1000;    // keys of a snapshot that are read at once
constexpr double leaseRenewals = 3;           // while a lease lasts
constexpr Rex::Seconds breathOfReports = 0.1; // between two: each is a write that a majority's disks wait for

// The end of all keys that begin so.
inline std::string endOf( std::string prefix ) {
   ++prefix.back();
   return prefix;
}

} // namespace Live
