// The service manager is played by the test: it has the socket that an agent notifies, and hands files over as the
// manager does.
#include "agent/ServiceManager.h"
#include "BuildFolder.h"

#include "Folder.h"
#include "simulator/ChipsMapping.h"

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace Live;
using Hardware::Dace::FapId;

class Manager {
 public:
   Manager() : socket_( ::socket( AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0 ) ) {
      sockaddr_un address{ .sun_family = AF_UNIX, .sun_path = {} };
      path().copy( address.sun_path, sizeof address.sun_path - 1 );
      EXPECT_EQ( ::bind( socket_, reinterpret_cast< sockaddr * >( &address ), sizeof address ), 0 );
   }
   ~Manager() { ::close( socket_ ); }
   Manager( Manager const & ) = delete;
   Manager & operator=( Manager const & ) = delete;

   struct Told {
      std::string text;
      int file = -1;
   };
   // What it is told next with such a beginning; empty: nothing within 10 s.
   Told hears( std::string const & beginning ) const {
      pollfd it{ .fd = socket_, .events = POLLIN, .revents = 0 };
      while ( ::poll( &it, 1, 10'000 ) == 1 ) {
         if ( Told told = this->told(); told.text.starts_with( beginning ) ) {
            return told;
         }
      }
      return {};
   }
   // What it was told next; empty: nothing more.
   Told told() const {
      std::array< char, 4096 > text;
      alignas( cmsghdr ) std::array< char, CMSG_SPACE( sizeof( int ) ) > beside{};
      iovec part{ text.data(), text.size() };
      msghdr message{};
      message.msg_iov = &part;
      message.msg_iovlen = 1;
      message.msg_control = beside.data();
      message.msg_controllen = beside.size();
      auto const size = ::recvmsg( socket_, &message, MSG_DONTWAIT );
      Told told{ .text = { text.data(), static_cast< std::size_t >( std::max< ssize_t >( size, 0 ) ) } };
      if ( auto const * of = CMSG_FIRSTHDR( &message ); size > 0 && of && of->cmsg_type == SCM_RIGHTS ) {
         std::memcpy( &told.file, CMSG_DATA( of ), sizeof told.file );
      }
      return told;
   }

   // How an agent ends that is started with these files.
   using Files = std::vector< std::pair< std::string, int > >;
   template< class What >
   int agent( Files const & files, What const & what ) const {
      return ended( starts( files, what ) );
   }
   template< class What >
   pid_t starts( Files const & files, What const & what ) const {
      pid_t const process = ::fork();
      if ( process == 0 ) {
         ::prctl( PR_SET_PDEATHSIG, SIGKILL );
         ::setenv( "NOTIFY_SOCKET", path().c_str(), 1 );
         std::string names;
         std::vector< int > apart;
         for ( auto const & [name, file] : files ) {
            names += ( names.empty() ? "" : ":" ) + name;
            apart.push_back( ::fcntl( file, F_DUPFD, 100 ) );
         }
         for ( std::size_t index = 0; index < apart.size(); ++index ) {
            ::dup2( apart[index], 3 + static_cast< int >( index ) );
         }
         ::setenv( "LISTEN_FDS", std::to_string( files.size() ).c_str(), 1 );
         ::setenv( "LISTEN_PID", std::to_string( ::getpid() ).c_str(), 1 );
         ::setenv( "LISTEN_FDNAMES", names.c_str(), 1 );
         what();
         ::_exit( testing::Test::HasFailure() ? 1 : 0 );
      }
      return process;
   }
   static int ended( pid_t process ) {
      int status = 0;
      ::waitpid( process, &status, 0 );
      return WIFSIGNALED( status ) ? 128 + WTERMSIG( status ) : WEXITSTATUS( status );
   }

 private:
   std::string path() const { return folder_ / "notify"; }

   Folder folder_;
   int socket_;
};

Simulator::SwitchDescription const switchOfOneFap{
   .faps = { { .fapId = FapId( 0 ), .revision = { 5, Hardware::ChipType::BCM88690_B0, 7 } } } };

TEST( ServiceManager, keepsTheChipsOfAnAgentThatIsKilledForTheNext ) {
   Manager const manager;
   EXPECT_EQ( manager.agent( {},
                             [] {
                                EXPECT_FALSE( ServiceManager::keptFile( "chips" ) );
                                auto const chips = Simulator::ChipsMapping::makeInMemory( switchOfOneFap );
                                EXPECT_TRUE( ServiceManager::keeps( "chips", chips.file() ) );
                                chips.chip( FapId( 0 ) ).controls.valueIs( 64, 7 );
                                ::raise( SIGKILL );
                             } ),
              128 + SIGKILL );
   EXPECT_EQ( manager.told().text, "FDSTOREREMOVE=1\nFDNAME=chips" );
   auto const kept = manager.told();
   EXPECT_EQ( kept.text, "FDSTORE=1\nFDNAME=chips" );
   ASSERT_GE( kept.file, 0 );
   EXPECT_EQ( manager.told().text, "" );

   auto const next = [] {
      auto const file = ServiceManager::keptFile( "chips" );
      ASSERT_TRUE( file );
      EXPECT_EQ( ::fcntl( file.number(), F_GETFD ) & FD_CLOEXEC, FD_CLOEXEC );
      auto const chips = Simulator::ChipsMapping::of( file.number(), switchOfOneFap );
      EXPECT_EQ( chips.generation(), 2u );
      EXPECT_EQ( chips.chip( FapId( 0 ) ).controls.value( 64 ), 7u );
      EXPECT_FALSE( ServiceManager::keptFile( "chips" ) ) << "it is handed over once";
      EXPECT_EQ( ::getenv( "LISTEN_FDS" ), nullptr );
   };
   int const nothing = ::open( "/dev/null", O_RDONLY );
   EXPECT_EQ( manager.agent( { { "other", nothing }, { "chips", kept.file }, { "more", nothing } }, next ), 0 );
   EXPECT_EQ( manager.told().text, "" );
   ::close( nothing );
   ::close( kept.file );
}

// A whole agent, as the manager starts it: the chips of the one before it, and ready once they are as they should be.
TEST( ServiceManager, hasTheChipsOfAnAgentForTheNextWhichIsReadyOnceTheyAreRight ) {
   Manager const manager;
   Folder const folder;
   std::string const socket = folder / "ctl";
   auto const serve = [&]( char const * isDci ) {
      std::string const it = folder.file(
         std::string( "switch" ) + isDci + ".json",
         R"({"switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7}}]}, "toggles": )"
         R"({"Dace.json": {"ArmOrderedSwTable": false}}, "state": {"evpn/status": {"evpnDciEnabled": )" +
            std::string( isDci ) + "}}}" );
      return [&folder, &socket, it] {
         int const log = ::open( ( folder / "log" ).c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600 );
         ::dup2( log, STDERR_FILENO );
         ::execl( ( buildFolder() + "/bin/l3sm" ).c_str(),
                  "l3sm",
                  "serve",
                  it.c_str(),
                  "--slice",
                  "a",
                  "--socket",
                  socket.c_str(),
                  "--on-drift",
                  "hold",
                  nullptr );
         ::_exit( 127 );
      };
   };
   pid_t const first = manager.starts( {}, serve( "false" ) );
   int const chips = manager.hears( "FDSTORE=1" ).file;
   EXPECT_GE( chips, 0 );
   EXPECT_EQ( manager.hears( "READY=1" ).text, "READY=1\nSTATUS=running" ) << folder.text( "log" );
   ::kill( first, SIGKILL );
   EXPECT_EQ( Manager::ended( first ), 128 + SIGKILL );

   pid_t const second = manager.starts( { { "chips", chips } }, serve( "true" ) );
   auto const held = manager.hears( "STATUS=held" ).text;
   EXPECT_NE( held, "" ) << folder.text( "log" );
   EXPECT_NE( folder.text( "log" ).find( "the chips are those that 1 agent had before; 0 places were wrong" ),
              std::string::npos )
      << folder.text( "log" );
   EXPECT_EQ( manager.told().text, "" ) << "it is not ready";
   std::string const repair = buildFolder() + "/bin/l3sm ctl --socket '" + socket + "' repair >/dev/null";
   EXPECT_EQ( std::system( repair.c_str() ), 0 );
   EXPECT_EQ( manager.hears( "READY=1" ).text, "READY=1\nSTATUS=running" ) << folder.text( "log" );
   ::kill( second, SIGTERM );
   EXPECT_EQ( Manager::ended( second ), 0 );
   EXPECT_EQ( manager.hears( "STOPPING=1" ).text, "STOPPING=1" );
   ::close( chips );
}

TEST( ServiceManager, keepsAFileNoMore ) {
   Manager const manager;
   EXPECT_EQ( manager.agent( {}, [] { ServiceManager::keepsNoMore( "chips" ); } ), 0 );
   EXPECT_EQ( manager.told().text, "FDSTOREREMOVE=1\nFDNAME=chips" );
   EXPECT_EQ( manager.told().text, "" );
}

TEST( ServiceManager, keepsNothingWhereThereIsNone ) {
   ::unsetenv( "NOTIFY_SOCKET" );
   EXPECT_FALSE( ServiceManager::keeps( "chips", 0 ) );
   EXPECT_FALSE( ServiceManager::keptFile( "chips" ) );
}

} // namespace
