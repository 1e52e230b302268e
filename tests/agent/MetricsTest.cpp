// What an agent counts, and how it tells it: as text, as a file, over HTTP.
#include "PrometheusText.h"
#include "agent/metrics/MetricsFile.h"
#include "agent/metrics/MetricsServer.h"
#include "inspection/JournalSample.h"

#include <arpa/inet.h>
#include <csignal>
#include <netinet/in.h>
#include <sys/epoll.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace Live;
using Inspection::InputError;
using Rex::Value;

using Samples = std::map< std::string, double >;

Samples samples( Metrics const & metrics, std::string const & family ) {
   return prometheusText( metrics.text() ).at( family ).samples;
}

Value set( std::string const & path ) {
   return Value::Object{
      { "set", Value::Object{ { "path", path }, { "attribute", "a" }, { "key", "Ethernet1" }, { "value", 1 } } } };
}

TEST( Metrics, HaveTheNamesTypesAndLabelsThatOthersRelyOn ) {
   Metrics metrics;
   metrics.add( Metric::resyncs, { "gap" } );
   metrics.add( Metric::auditMismatches, { "0", "lost" } );
   metrics.add( Metric::repairs, { "0", "done" } );
   metrics.add( Metric::faultsInjected, { "flip" } );
   metrics.is( Metric::buildInfo, 1, { "1.0.0", "sha256:1" } );
   Inspection::playSampleEvent( metrics );
   std::map< std::string, std::string > shapes;
   for ( auto const & [name, family] : prometheusText( metrics.text() ) ) {
      std::set< std::string > labels;
      for ( auto const & sample : family.samples ) {
         for ( auto at = sample.first.find( "=\"" ); at != std::string::npos;
               at = sample.first.find( "=\"", at + 1 ) ) {
            auto const from = sample.first.find_last_of( "{,", at ) + 1;
            labels.insert( sample.first.substr( from, at - from ) );
         }
      }
      shapes[name] = family.type;
      for ( auto const & label : labels ) {
         shapes[name] += " " + label;
      }
   }
   EXPECT_EQ( shapes,
              ( std::map< std::string, std::string >{
                 { "l3sm_events_total", "counter cause" },
                 { "l3sm_chip_operations_total", "counter changed fap op" },
                 { "l3sm_event_duration_seconds", "histogram le" },
                 { "l3sm_database_lag_seconds", "gauge" },
                 { "l3sm_resyncs_total", "counter reason" },
                 { "l3sm_rejected_entries", "gauge" },
                 { "l3sm_start_changing_writes", "gauge" },
                 { "l3sm_audit_mismatches_total", "counter fap kind" },
                 { "l3sm_repairs_total", "counter fap result" },
                 { "l3sm_faults_injected_total", "counter kind" },
                 { "l3sm_gates_closed_total", "counter function" },
                 { "l3sm_phase", "gauge phase" },
                 { "l3sm_recording", "gauge" },
                 { "l3sm_recording_failures_total", "counter" },
                 { "l3sm_build_info", "gauge plugin version" },
              } ) );
}

TEST( Metrics, CountWhatHappensToTheChips ) {
   Metrics metrics;
   Inspection::playSampleEvent( metrics );
   Inspection::playSampleEvent( metrics );
   EXPECT_EQ( samples( metrics, "l3sm_chip_operations_total" ),
              ( Samples{
                 { R"(l3sm_chip_operations_total{fap="0",op="read",changed="false"})", 2 },
                 { R"(l3sm_chip_operations_total{fap="0",op="write",changed="false"})", 2 },
                 { R"(l3sm_chip_operations_total{fap="0",op="write",changed="true"})", 2 },
                 { R"(l3sm_chip_operations_total{fap="0",op="control",changed="true"})", 4 },
              } ) );
   EXPECT_EQ( samples( metrics, "l3sm_gates_closed_total" ),
              ( Samples{ { R"(l3sm_gates_closed_total{function="L3Sm::f"})", 4 } } ) );
   EXPECT_EQ( samples( metrics, "l3sm_events_total" ), ( Samples{ { R"(l3sm_events_total{cause="start"})", 2 } } ) );
}

TEST( Metrics, TellCausesWithoutKeys ) {
   EXPECT_EQ( causeWithoutKeys( set( "evpn/status" ) ), "evpn/status" );
   EXPECT_EQ( causeWithoutKeys( set( "interface/status/eth/vxlan/vtiStatus/Vxlan1/2" ) ),
              "interface/status/eth/vxlan/vtiStatus" );
   EXPECT_EQ( causeWithoutKeys( set( "routing/tunneldecap/input/dynamic/bgp/decapGroup/6635" ) ),
              "routing/tunneldecap/input/dynamic/decapGroup" );
   EXPECT_EQ( causeWithoutKeys( set( "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig/Ethernet3/1" ) ),
              "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig" );
   EXPECT_EQ( causeWithoutKeys( set( "nowhere/Ethernet1" ) ), "other" );
   EXPECT_EQ( causeWithoutKeys( Value::Object{ { "start", Value::Object{} } } ), "start" );
   EXPECT_EQ( causeWithoutKeys( {} ), "other" );
   auto const transaction = []( Value::List changes ) {
      return Value::Object{ { "transaction", std::move( changes ) } };
   };
   EXPECT_EQ( causeWithoutKeys( transaction( { set( "evpn/status" ), set( "evpn/status" ) } ) ), "evpn/status" );
   EXPECT_EQ( causeWithoutKeys( transaction( { set( "evpn/status" ), set( "bridging/config" ) } ) ), "several" );
   EXPECT_EQ( causeWithoutKeys( transaction( {} ) ), "other" );
}

TEST( Metrics, PutEachDurationIntoItsBuckets ) {
   Metrics metrics;
   for ( double const time : { 0.000005, 0.00002, 0.003, 99.0 } ) {
      metrics.eventTook( time );
   }
   auto const all = samples( metrics, "l3sm_event_duration_seconds" );
   auto const upTo = [&]( std::string const & bound ) {
      return all.at( "l3sm_event_duration_seconds_bucket{le=\"" + bound + "\"}" );
   };
   EXPECT_EQ( upTo( "1e-05" ), 1 );
   EXPECT_EQ( upTo( "2e-05" ), 2 ) << "a bound belongs to its bucket";
   EXPECT_EQ( upTo( "0.002" ), 2 );
   EXPECT_EQ( upTo( "0.005" ), 3 );
   EXPECT_EQ( upTo( "10" ), 3 );
   EXPECT_EQ( upTo( "+Inf" ), 4 );
   EXPECT_EQ( all.at( "l3sm_event_duration_seconds_count" ), 4 );
   EXPECT_NEAR( all.at( "l3sm_event_duration_seconds_sum" ), 99.003025, 1e-9 );
}

TEST( Metrics, AreInOnePhase ) {
   Metrics metrics;
   metrics.phaseIs( Phase::running );
   metrics.phaseIs( Phase::held );
   std::set< std::string > in;
   for ( auto const & [sample, value] : samples( metrics, "l3sm_phase" ) ) {
      if ( value != 0 ) {
         in.insert( sample );
      }
   }
   EXPECT_EQ( in, std::set< std::string >{ "l3sm_phase{phase=\"held\"}" } );
   EXPECT_EQ( samples( metrics, "l3sm_phase" ).size(), 7u );
}

TEST( Metrics, EscapeWhatTheFormatHasAMeaningFor ) {
   Metrics metrics;
   metrics.add( Metric::resyncs, { "a \"b\" \\ c\nd" }, 3 );
   EXPECT_EQ( samples( metrics, "l3sm_resyncs_total" ),
              ( Samples{ { R"(l3sm_resyncs_total{reason="a \"b\" \\ c\nd"})", 3 } } ) );
}

TEST( Metrics, TellNumbersWithoutLosingAny ) {
   Metrics metrics;
   metrics.is( Metric::databaseLag, 0.1234567890123 );
   EXPECT_EQ( samples( metrics, "l3sm_database_lag_seconds" ).begin()->second, 0.1234567890123 );
   metrics.add( Metric::recordingFailures, {}, U64{ 1 } << 52 );
   EXPECT_NE( metrics.text().find( "l3sm_recording_failures_total 4503599627370496\n" ), std::string::npos );
}

TEST( Metrics, ReadByASimpleMindAreRefusedWhereTheyAreWrong ) {
   std::string const family = "# HELP a_total x\n# TYPE a_total counter\n";
   EXPECT_NO_THROW( prometheusText( family + "a_total{b=\"c\",d=\"\\\"}\"} 1\n" ) );
   for ( std::string const text : { "a_total 1",
                                    "a_total 1 \n",
                                    "a_total{} 1\n",
                                    "a_total{b=\"c} 1\n",
                                    "a_total{b=\"\\x\"} 1\n",
                                    "a_total{b=\"c\" d=\"e\"} 1\n",
                                    "a_total 1\na_total 1\n",
                                    "a_total{b=\"c\"} 1\na_total{d=\"c\"} 1\n",
                                    "a_total -1\n",
                                    "a_total one\n",
                                    "b_total 1\n",
                                    "# TYPE a_total counter\n" } ) {
      EXPECT_THROW( prometheusText( family + text ), std::runtime_error ) << text;
   }
   std::string const histogram = "# HELP h x\n# TYPE h histogram\n";
   EXPECT_NO_THROW( prometheusText( histogram + "h_bucket{le=\"+Inf\"} 1\nh_sum 1\nh_count 1\n" ) );
   EXPECT_THROW( prometheusText( histogram + "h_bucket{le=\"1\"} 1\nh_sum 1\nh_count 1\n" ), std::runtime_error );
   EXPECT_THROW( prometheusText( histogram + "h_bucket{le=\"+Inf\"} 2\nh_sum 1\nh_count 1\n" ), std::runtime_error );
}

// ---- as a file

TEST( MetricsFile, IsReplacedWhole ) {
   Folder const folder;
   Metrics metrics;
   MetricsFile file( folder / "l3sm.prom", metrics );
   EXPECT_EQ( file.write(), std::nullopt );
   EXPECT_EQ( folder.text( "l3sm.prom" ), metrics.text() );
   std::ifstream before( folder / "l3sm.prom" ); // somebody reads it
   metrics.is( Metric::rejectedEntries, 7 );
   EXPECT_EQ( file.write(), std::nullopt );
   EXPECT_EQ( folder.text( "l3sm.prom" ), metrics.text() );
   std::ostringstream old;
   old << before.rdbuf();
   EXPECT_NE( old.str().find( "l3sm_rejected_entries 0\n" ), std::string::npos ) << "and reads it to its end";
   EXPECT_EQ( std::distance( std::filesystem::directory_iterator( folder / "" ), {} ), 1 ) << "nothing lies beside it";
}

TEST( MetricsFile, TellsOnceThatItCantBeWrittenAndThatItCanAgain ) {
   Folder const folder;
   Metrics metrics;
   MetricsFile file( folder / "below/l3sm.prom", metrics );
   auto const said = file.write();
   ASSERT_TRUE( said );
   EXPECT_EQ( *said, folder / "below/l3sm.prom: metrics can't be written: No such file or directory" );
   EXPECT_EQ( file.write(), std::nullopt );
   std::filesystem::create_directory( folder / "below" );
   EXPECT_EQ( file.write(), folder / "below/l3sm.prom: metrics are written again" );
   EXPECT_EQ( file.write(), std::nullopt );

   MetricsFile full( "/dev/full/l3sm.prom", metrics );
   EXPECT_TRUE( full.write() );
}

TEST( MetricsFile, IsLeftAsItWasWhereThereIsNoRoomForAnother ) {
   Folder const folder;
   Metrics metrics;
   MetricsFile file( folder / "l3sm.prom", metrics );
   EXPECT_EQ( file.write(), std::nullopt );
   auto const before = folder.text( "l3sm.prom" );
   metrics.is( Metric::rejectedEntries, 7 );
   rlimit limit{};
   ::getrlimit( RLIMIT_FSIZE, &limit );
   rlimit const small{ 10, limit.rlim_max };
   auto const handler = std::signal( SIGXFSZ, SIG_IGN );
   ::setrlimit( RLIMIT_FSIZE, &small );
   auto const said = file.write();
   ::setrlimit( RLIMIT_FSIZE, &limit );
   std::signal( SIGXFSZ, handler );
   EXPECT_EQ( said, folder / "l3sm.prom" + ": metrics can't be written: File too large" );
   EXPECT_EQ( folder.text( "l3sm.prom" ), before );

   std::filesystem::create_directory( folder / "folder" );
   MetricsFile none( folder / "folder", metrics );
   EXPECT_EQ( none.write(), folder / "folder" + ": metrics can't be written: Is a directory" );
   EXPECT_EQ( std::distance( std::filesystem::directory_iterator( folder / "" ), {} ), 2 ) << "nothing lies beside it";
}

// ---- over HTTP

class MetricsServed : public testing::Test {
 protected:
   MetricsServed() : server_( loop_, "127.0.0.1:0", metrics_, 1 ) {}

   int connected() {
      int const client = ::socket( AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0 );
      sockaddr_in to{};
      to.sin_family = AF_INET;
      to.sin_port = htons( server_.port() );
      to.sin_addr.s_addr = htonl( INADDR_LOOPBACK );
      ::connect( client, reinterpret_cast< sockaddr * >( &to ), sizeof to );
      loop_.turn( 0.02 );
      return client;
   }
   // Turns the loop until the server has ended the connection.
   std::string answerTo( std::string const & request ) {
      int const client = connected();
      EXPECT_EQ( ::write( client, request.data(), request.size() ), static_cast< ssize_t >( request.size() ) );
      std::string answer;
      for ( int turn = 0; turn < 200; ++turn ) {
         loop_.turn( 0.01 );
         char part[4096];
         auto const size = ::read( client, part, sizeof part );
         if ( size == 0 ) {
            break;
         }
         answer.append( part, size > 0 ? static_cast< std::size_t >( size ) : 0 );
      }
      ::close( client );
      return answer;
   }
   std::string asked( std::string const & line ) {
      return answerTo( line + " HTTP/1.1\r\nHost: localhost\r\nConnection: close\r\n\r\n" );
   }

   EventLoop loop_;
   Metrics metrics_;
   MetricsServer server_;
};

TEST_F( MetricsServed, AreTheTextWithItsType ) {
   metrics_.is( Metric::rejectedEntries, 7 );
   auto const answer = asked( "GET /metrics" );
   EXPECT_TRUE( answer.starts_with( "HTTP/1.1 200 OK\r\n" ) ) << answer;
   EXPECT_NE( answer.find( "Content-Type: text/plain; version=0.0.4; charset=utf-8\r\n" ), std::string::npos );
   EXPECT_EQ( answer.substr( answer.find( "\r\n\r\n" ) + 4 ), metrics_.text() );
}

TEST_F( MetricsServed, AreNothingElse ) {
   EXPECT_TRUE( asked( "GET /" ).starts_with( "HTTP/1.1 404 " ) );
   EXPECT_TRUE( asked( "DELETE /metrics" ).starts_with( "HTTP/1.1 405 " ) );
   auto const head = asked( "HEAD /metrics" );
   EXPECT_TRUE( head.starts_with( "HTTP/1.1 200 OK\r\n" ) ) << head;
   EXPECT_TRUE( head.ends_with( "\r\n\r\n" ) ) << head;
   EXPECT_TRUE( answerTo( "nonsense\r\n\r\n" ).find( "200" ) == std::string::npos );
}

TEST_F( MetricsServed, GoOnWithClientsThatSayNothingOrLeave ) {
   std::vector< int > silent; // more than there is room for
   for ( int client = 0; client < 40; ++client ) {
      silent.push_back( connected() );
   }
   std::string const half = "GET /metr";
   EXPECT_EQ( ::write( silent[1], half.data(), half.size() ), 9 );
   for ( std::size_t client = 0; client < 30; client += 2 ) {
      ::close( silent[client] );
   }
   for ( std::size_t client = 30; client < 40; ++client ) {
      ::close( silent[client] );
   }
   EXPECT_TRUE( asked( "GET /metrics" ).starts_with( "HTTP/1.1 200 OK\r\n" ) );
}

TEST_F( MetricsServed, LetWaitingClientsInWhenTheTimeOfSilentOnesIsOver ) {
   for ( int client = 0; client < 16; ++client ) {
      connected();
   }
   EXPECT_TRUE( asked( "GET /metrics" ).starts_with( "HTTP/1.1 200 OK\r\n" ) ) << "within two seconds";
}

TEST_F( MetricsServed, WakeNobodyWhereNobodyAsks ) {
   asked( "GET /metrics" );
   while ( loop_.turn( 0 ) ) {
   }
   EXPECT_FALSE( loop_.turn( 0.3 ) );
}

TEST_F( MetricsServed, AreRefusedAtAnAddressThatIsTaken ) {
   Metrics metrics;
   EXPECT_THROW( MetricsServer( loop_, "127.0.0.1:" + std::to_string( server_.port() ), metrics ), InputError );
}

TEST( MetricsServer, ListensAtLoopbackAddressesAlone ) {
   EventLoop loop;
   Metrics metrics;
   for ( std::string const address : { "0.0.0.0:0",
                                       "10.0.0.1:0",
                                       "[::]:0",
                                       "[fe80::1]:0",
                                       "example.com:0",
                                       "127.0.0.1",
                                       "127.0.0.1:",
                                       "127.0.0.1:99999",
                                       "127.0.0.1:8x",
                                       ":9109" } ) {
      EXPECT_THROW( MetricsServer( loop, address, metrics ), InputError ) << address;
   }
   EXPECT_NO_THROW( MetricsServer( loop, "127.0.0.2:0", metrics ) );
   EXPECT_NO_THROW( MetricsServer( loop, "localhost:0", metrics ) );
   EXPECT_TRUE( MetricsServer::isAddress( "127.0.0.1:9109" ) );
   EXPECT_TRUE( MetricsServer::isAddress( "[::1]:9109" ) );
   EXPECT_FALSE( MetricsServer::isAddress( "/var/lib/l3sm:1" ) );
   EXPECT_FALSE( MetricsServer::isAddress( "l3sm.prom" ) );
}

} // namespace
