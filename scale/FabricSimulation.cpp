// What a fabric of so many agents does, as JSON: times in microseconds, processors' time over all members. The last one
// once more with reports that are further apart.
//
//    fabric-simulation scale/costs.json 10 100 1000 > scale/simulated.json
#include "scale/Fabric.h"

#include <cmath>
#include <iostream>

namespace {

using namespace Scale;

constexpr std::size_t interfaces = 1000;
constexpr U64 seed = 1;
constexpr std::size_t rates[] = { 1, 5, 20 }; // changes in a second
constexpr std::size_t seconds = 10;
constexpr Rex::Seconds longBreath = 2; // between two reports of an agent

Rex::Value microseconds( Rex::Seconds time ) {
   return std::llround( time * 1e6 );
}

Rex::Value valueOf( Seen const & seen ) {
   return Rex::Value::Object{ { "lasted", microseconds( seen.lasted ) },
                              { "lag of half", microseconds( seen.half ) },
                              { "lag of 99 in 100", microseconds( seen.most ) },
                              { "longest lag", microseconds( seen.last ) },
                              { "processors", microseconds( seen.worked ) },
                              { "share of processors in ten thousand", std::llround( seen.share * 10'000 ) },
                              { "writes", seen.counts.writes },
                              { "deliveries", seen.counts.deliveries },
                              { "reports", seen.counts.reports },
                              { "snapshot keys", seen.counts.snapshotKeys },
                              { "published keys", seen.counts.publishedKeys },
                              { "syncs", seen.counts.syncs } };
}

Rex::Value::Object fabricOf( Costs const & costs, std::size_t agents ) {
   Fabric fabric( costs, { .agents = agents, .interfaces = interfaces }, seed );
   Rex::Value::Object told{ { "start", valueOf( fabric.starts() ) },
                            { "one change", valueOf( fabric.changes( 1, 1 ) ) } };
   for ( std::size_t const rate : rates ) {
      told[std::to_string( rate ) + " a second"] =
         valueOf( fabric.changes( rate * seconds, static_cast< double >( rate ) ) );
   }
   told["a member lost"] = valueOf( fabric.losesMember( 1, false ) );
   told["converged"] = fabric.isConverged();
   told["agents"] = agents;
   return told;
}

} // namespace

int main( int count, char ** arguments ) {
   if ( count < 3 ) {
      std::cerr << "usage: fabric-simulation COSTS.json AGENTS...\n";
      return 2;
   }
   try {
      auto costs = Costs::of( Inspection::readJson( arguments[1] ) );
      Rex::Value::Object fabrics;
      std::size_t agents = 0;
      for ( int at = 2; at < count; ++at ) {
         agents = std::stoul( arguments[at] );
         fabrics[std::to_string( agents )] = fabricOf( costs, agents );
      }
      costs.assumed.breath = longBreath;
      Rex::Value::Object const all{ { "interfaces", interfaces },
                                    { "seconds", seconds },
                                    { "fabrics", std::move( fabrics ) },
                                    { "most agents, with a longer breath", fabricOf( costs, agents ) },
                                    { "longer breath", microseconds( longBreath ) } };
      std::cout << Inspection::toJson( all, 3 ) << "\n";
   } catch ( std::exception const & error ) {
      std::cerr << "fabric-simulation: " << error.what() << "\n";
      return 2;
   }
   return 0;
}
