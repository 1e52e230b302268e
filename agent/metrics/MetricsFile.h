// The metrics as a file, for the node exporter's collector of text files.
//
//    MetricsFile file( "/var/lib/prometheus/node-exporter/l3sm-Linecard3.prom", metrics );
//    file.write();                     // with the watchdog; what is wrong, where it isn't what was wrong before
//
// Who reads it sees one state or the next, never a part: it is written beside its place and renamed.
//
// Threading: the agent's loop.
#pragma once

#include "agent/metrics/Metrics.h"

#include <optional>

namespace Live {

class MetricsFile {
 public:
   MetricsFile( std::string path, Metrics const & metrics ) : path_( std::move( path ) ), metrics_( metrics ) {}

   // A line for the log, where there is something new to say.
   std::optional< std::string > write();

 private:
   std::string path_;
   Metrics const & metrics_;
   std::string wrong_; // since the last time
};

} // namespace Live
