// What stands about metrics outside of the program: the dashboard and the document know those that there are.
#include "Folder.h"
#include "agent/metrics/Metrics.h"
#include "inspection/files/Json.h"

#include <gtest/gtest.h>
#include <regex>

namespace {

using namespace Live;
using Rex::Value;

// Every query of a dashboard, wherever it stands.
void queriesOf( Value const & value, std::vector< std::string > & into ) {
   if ( auto const * object = value.object() ) {
      for ( auto const & [key, part] : *object ) {
         if ( ( key == "expr" || key == "query" ) && part.text() ) {
            into.push_back( *part.text() );
         }
         queriesOf( part, into );
      }
   } else if ( auto const * list = value.list() ) {
      for ( auto const & part : *list ) {
         queriesOf( part, into );
      }
   }
}

std::set< std::string > metricsIn( std::string const & text ) {
   static std::regex const name( "l3sm_[a-z_]+" );
   std::set< std::string > names;
   for ( std::sregex_iterator it( text.begin(), text.end(), name ), end; it != end; ++it ) {
      names.insert( std::regex_replace( it->str(), std::regex( "_seconds_(bucket|sum|count)$" ), "_seconds" ) );
   }
   return names;
}

MetricFamily const * familyOf( std::string const & name ) {
   for ( MetricFamily const & family : metricFamilies() ) {
      if ( name == family.name ) {
         return &family;
      }
   }
   return nullptr;
}

std::set< std::string > allNames() {
   std::set< std::string > names;
   for ( MetricFamily const & family : metricFamilies() ) {
      names.insert( family.name );
   }
   return names;
}

TEST( MetricsDashboard, ShowsEveryMetricAndNoneThatThereIsnt ) {
   std::string const path = L3SM_SOURCE_DIR "/examples/grafana/l3sm-agents.json";
   std::vector< std::string > queries;
   queriesOf( Inspection::readJson( path ), queries );
   std::set< std::string > shown;
   for ( std::string const & query : queries ) {
      shown.merge( metricsIn( query ) );
   }
   EXPECT_EQ( shown, allNames() );
}

TEST( MetricsDashboard, GroupsByLabelsThatThereAre ) {
   std::vector< std::string > queries;
   queriesOf( Inspection::readJson( L3SM_SOURCE_DIR "/examples/grafana/l3sm-agents.json" ), queries );
   std::size_t grouped = 0;
   for ( std::string const & query : queries ) {
      std::smatch by;
      if ( !std::regex_search( query, by, std::regex( R"(by \(([a-z, ]+)\))" ) ) ) {
         continue;
      }
      auto const names = metricsIn( query );
      ASSERT_EQ( names.size(), 1u ) << query;
      auto const * family = familyOf( *names.begin() );
      ASSERT_TRUE( family ) << query;
      std::set< std::string > known{ "instance" };
      if ( family->type == MetricFamily::Type::histogram ) {
         known.insert( "le" );
      }
      for ( char const * label : family->labels ) {
         known.insert( label ? label : "instance" );
      }
      std::istringstream labels( std::regex_replace( by[1].str(), std::regex( "," ), " " ) );
      for ( std::string label; labels >> label; ++grouped ) {
         EXPECT_TRUE( known.contains( label ) ) << label << " in " << query;
      }
   }
   EXPECT_GT( grouped, 5u );
}

TEST( MetricsDocument, TellsOfEveryMetric ) {
   EXPECT_EQ( metricsIn( contentsOf( L3SM_SOURCE_DIR "/docs/operation.md" ) ), allNames() );
}

} // namespace
