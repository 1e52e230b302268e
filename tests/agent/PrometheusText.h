// Reads the text format of Prometheus, version 0.0.4, and refuses what isn't quite it: what its own checker would.
//
//    auto const families = prometheusText( text );              // throws std::runtime_error, with the line
//    families.at( "l3sm_events_total" ).samples.at( "l3sm_events_total{cause=\"start\"}" )
#pragma once

#include <map>
#include <string>

struct PrometheusFamily {
   std::string type;
   std::string help;
   std::map< std::string, double > samples; // by name and labels, as they are written
};

std::map< std::string, PrometheusFamily > prometheusText( std::string const & text );
