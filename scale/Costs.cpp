#include "scale/Costs.h"

namespace Scale {

namespace {

Rex::Seconds seconds( Inspection::Fields & fields, std::string const & name ) {
   constexpr double nanoseconds = 1e9;
   return static_cast< double >( fields.required< U32 >( name ) ) / nanoseconds;
}

} // namespace

Costs Costs::of( Rex::Value const & value ) {
   return Inspection::inFile( "costs", [&] {
      Inspection::Fields all( value );
      Costs costs{};
      Rex::below( "server", [&] {
         Inspection::Fields fields( all.required( "server" ) );
         costs.server = { .write = seconds( fields, "write" ),
                          .delivery = seconds( fields, "delivery" ),
                          .report = seconds( fields, "report" ),
                          .snapshotKey = seconds( fields, "snapshot key" ),
                          .publishedKey = seconds( fields, "published key" ),
                          .start = seconds( fields, "start" ),
                          .idleSecond = seconds( fields, "idle second" ),
                          .sync = seconds( fields, "sync" ) };
         fields.end();
      } );
      Rex::below( "agent", [&] {
         Inspection::Fields fields( all.required( "agent" ) );
         costs.agent = { .delivery = seconds( fields, "delivery" ),
                         .report = seconds( fields, "report" ),
                         .start = seconds( fields, "start" ),
                         .snapshotKey = seconds( fields, "snapshot key" ) };
         fields.end();
      } );
      Rex::below( "assumed", [&] {
         Inspection::Fields fields( all.required( "assumed" ) );
         costs.assumed = { .members = fields.required< U32 >( "members" ),
                           .cores = fields.required< U32 >( "cores of a member" ),
                           .latency = seconds( fields, "latency" ),
                           .breath = seconds( fields, "between two reports" ) };
         fields.end();
      } );
      return costs;
   } );
}

} // namespace Scale
