// How a state lies in a Redis. Each cell has its keys, which begin with `l3sm:{CELL}`:
//
//    :<path>                     hash     attribute to its value as JSON text; without a hash: all at their defaults
//    #paths                      set      every path that is there
//    #epoch                      string   a UUID of this life of the state: whoever loads one writes a new one
//    #log                        stream   one entry a transaction, of two fields:
//                                         `changes`   [{"set": {"path", "attribute", "value"[, "key"]}},
//                                                      {"delete": {"path"[, "attribute", "key"]}}], as a scenario's
//                                                      events
//                                         `epoch`     the life that it belongs to
//    #agent:<slice>              hash     written by that agent alone: `epoch`, `applied`, what it tells of itself
//    #agents                     set      the slices that have an agent, until it ends by itself
//    #lease:<slice>              string   who serves the slice, for some seconds
//    #published:<slice>          set      the paths of what that agent's plug-in publishes
//    #published:<slice>:<path>   hash     what it publishes
//
// A writer changes hashes, #paths and #log in one MULTI. The first entry of a life has no changes: the log of a state
// is never empty, and its ids grow over all lives of the state.
//
// Threading: plain data.
#pragma once

#include "corvo/Types.h"

#include <compare>
#include <string>
#include <string_view>

namespace Live {

struct RedisLayout {
   std::string cell; // "l3sm:{1}"

   explicit RedisLayout( U32 number ) : cell( "l3sm:{" + std::to_string( number ) + "}" ) {}
   std::string hash( std::string_view path ) const { return ( cell + ":" ).append( path ); }
   std::string paths() const { return cell + "#paths"; }
   std::string epoch() const { return cell + "#epoch"; }
   std::string log() const { return cell + "#log"; }
   std::string agents() const { return cell + "#agents"; }
   std::string agent( std::string_view slice ) const { return ( cell + "#agent:" ).append( slice ); }
   std::string lease( std::string_view slice ) const { return ( cell + "#lease:" ).append( slice ); }
   std::string published( std::string_view slice ) const { return ( cell + "#published:" ).append( slice ); }
};

constexpr char const * changesField = "changes";
constexpr char const * epochField = "epoch";

// The id of an entry of the log: "1718000000000-3". What is none is before all.
struct EntryId {
   U64 milliseconds = 0;
   U64 sequence = 0;

   static EntryId of( std::string_view text );
   auto operator<=>( EntryId const & ) const = default;
};

} // namespace Live
