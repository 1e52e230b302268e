// What may happen to a Redis, and to what it holds: who follows ends with what it holds, or is told why not.
//
// It is a Redis's alone: a log beside the state (an etcd's revisions can't be trimmed apart from it), keys of several
// kinds, a limit of output, the time in which it loads, its memory, one server whose standing still is the end. What
// befalls any database is in CentralDatabaseTest.cpp; a cluster, its space and its users, in EtcdFaultsTest.cpp and
// EtcdTest.cpp.
#include "agent/RedisFollower.h"
#include "agent/RedisState.h"

namespace {

TEST( RedisFaults, serverKilledInTheMiddleOfTransactions ) {
   RedisServer server( { "--appendonly", "yes" } );
   loadByHand( server );
   RedisFollower follower( server );
   follower.takesUpWhereItWas = true;
   ASSERT_TRUE( follower.untilFollowing() );
   for ( std::size_t at = 0; at < 5000; ++at ) { // nobody waits for an answer
      std::string const value = std::to_string( at );
      server.tell( { "MULTI" } );
      server.tell( { "HSET", "l3sm:{1}:interface/config/global", "l3Mtu", value } );
      server.tell(
         { "XADD",
           logKey,
           "*",
           "changes",
           R"([{"set": {"path": "interface/config/global", "attribute": "l3Mtu", "value": )" + value + "}}]" } );
      server.tell( { "EXEC" } );
   }
   server.answer(); // which sends them all
   ASSERT_TRUE( follower.until( [&] { return follower.count > 0; } ) );
   server.dies();
   ASSERT_TRUE( follower.untilTold( "unreachable" ) );
   server.starts();
   ASSERT_TRUE( follower.untilTold( "gap: another server answers, or it was started again" ) );
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_EQ( follower.paths, stateIn( server ) );
}

TEST( RedisFaults, logTrimmedPastWhoReadsIt ) {
   RedisServer server;
   loadByHand( server );
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilFollowing() );
   writeManyByHand( server, 3000 ); // while it doesn't look
   server.ask( { "XTRIM", logKey, "MAXLEN", "1" } );
   ASSERT_TRUE( follower.untilTold( "gap: the log was trimmed past the place that was read up to" ) );
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_EQ( follower.paths, stateIn( server ) );
   EXPECT_EQ( follower.position.entry, lastEntry( server ) );
}

TEST( RedisFaults, logGoneWhileNothingIsWritten ) {
   RedisServer server;
   loadByHand( server );
   RedisFollower follower( server );
   ASSERT_TRUE( follower.until( [&] { return server.served( "xread" ) == 2; } ) ); // it waits
   server.ask( { "DEL", logKey } );
   follower.database.tick();
   ASSERT_TRUE( follower.untilTold( "gap: the log of the state is gone" ) );
   ASSERT_TRUE( follower.untilFollowing() );
   writeByHand( server, "vxlanEnabled", "true" );
   ASSERT_TRUE( follower.until( [&] { return follower.paths == stateIn( server ); } ) );
}

TEST( RedisFaults, logBegunAgainWithTheClockSetBack ) {
   RedisServer server;
   loadByHand( server );
   RedisFollower follower( server );
   ASSERT_TRUE( follower.until( [&] { return server.served( "xread" ) == 2; } ) );
   server.atOnce( { { "DEL", logKey },
                    { "HSET", evpnKey, "vxlanEnabled", "true" },
                    { "XADD", logKey, "5-1", "changes", changesByHand( "vxlanEnabled", "true" ) } } );
   follower.database.tick();
   ASSERT_TRUE( follower.untilTold( "gap: the log ends before the place that was read up to" ) );
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_EQ( follower.paths, stateIn( server ) );
   EXPECT_EQ( follower.position.entry, "5-1" );
}

TEST( RedisFaults, hashesHalfWrittenByHand ) {
   RedisServer server;
   loadByHand( server );
   server.ask( { "HSET", "l3sm:{1}:routing/hardware/config", "urpfLooseFailForward", "true" } ); // but no path
   server.ask( { "SADD", pathsKey, "interface/status/eth/vxlan/vtiStatus/Vxlan1" } );            // but no hash
   server.ask( { "SET", "l3sm:{1}:vxlan/ecnConfig", "text" } );
   server.ask( { "SADD", pathsKey, "vxlan/ecnConfig" } );
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_FALSE( follower.paths.contains( "routing/hardware/config" ) );
   EXPECT_TRUE( follower.paths.at( "interface/status/eth/vxlan/vtiStatus/Vxlan1" ).empty() );
   EXPECT_FALSE( follower.paths.contains( "vxlan/ecnConfig" ) );
   ASSERT_EQ( follower.unreadable.size(), 1 );
   EXPECT_EQ( follower.unreadable.at( "vxlan/ecnConfig" ).find( "l3sm:{1}:vxlan/ecnConfig is no hash: WRONGTYPE" ), 0 );
   EXPECT_EQ( follower.paths.size(), 3 );
}

TEST( RedisFaults, keysOfAWrongKind ) {
   for ( auto const & key : { epochKey, logKey, pathsKey } ) {
      RedisServer server;
      loadByHand( server );
      server.ask( { "DEL", key } );
      server.ask( { "HSET", key, "a", "b" } );
      RedisFollower follower( server );
      ASSERT_TRUE( follower.untilTold( key + ": WRONGTYPE" ) ) << key;
      EXPECT_TRUE( follower.told.front().starts_with( "unreachable: " ) );
   }
}

TEST( RedisFaults, writerThatDiesBetweenItsCommands ) {
   RedisServer server;
   loadByHand( server );
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilFollowing() );
   {
      std::unique_ptr< redisContext, decltype( &redisFree ) > writer( redisConnectUnix( server.socket().c_str() ),
                                                                      redisFree );
      for ( auto const * command :
            { "MULTI", "HSET l3sm:{1}:evpn/status vxlanEnabled true", "XADD l3sm:{1}#log * changes [{" } ) {
         freeReplyObject( redisCommand( writer.get(), command ) );
      }
   }
   writeByHand( server, "mplsEnabled", "true" );
   ASSERT_TRUE( follower.until( [&] { return follower.count > 0; } ) );
   EXPECT_EQ( follower.count, 1 );
   EXPECT_EQ( follower.paths.at( "evpn/status" ),
              ( Live::Attributes{ { "mplsEnabled", "true" }, { "vxlanEnabled", "false" } } ) );
   EXPECT_TRUE( follower.unreadable.empty() );
}

TEST( RedisFaults, killedForItsOutput ) {
   RedisServer server;
   loadByHand( server );
   RedisFollower follower( server );
   follower.takesUpWhereItWas = true;
   ASSERT_TRUE( follower.untilFollowing() );
   server.ask( { "CONFIG", "SET", "client-output-buffer-limit", "normal 100kb 0 0" } );
   std::string const much( 100'000, ' ' );
   for ( int at = 0; at < 20; ++at ) {
      server.ask( { "XADD", logKey, "*", "changes", "[" + much + "]" } );
   }
   ASSERT_TRUE( follower.untilTold( "unreachable: " ) );
   server.ask( { "CONFIG", "SET", "client-output-buffer-limit", "normal 0 0 0" } );
   writeByHand( server, "mplsEnabled", "true" );
   ASSERT_TRUE( follower.until( [&] { return follower.position.entry == lastEntry( server ); } ) );
   EXPECT_EQ( follower.paths, stateIn( server ) );
   EXPECT_EQ( follower.timesTold( "snapshot" ), 1 );
}

TEST( RedisFaults, serverThatIsLoading ) {
   RedisServer server;
   loadManyByHand( server, 1000 );
   server.keepsDump();
   server.dies();
   server.optionsAre( { "--key-load-delay", "200", "--loading-process-events-interval-bytes", "1024" } );
   server.starts();
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilTold( "LOADING Redis is loading the dataset in memory" ) );
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_EQ( follower.paths, stateIn( server ) );
}

TEST( RedisFaults, serverThatIsOutOfMemory ) {
   RedisServer server;
   loadByHand( server );
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilFollowing() );
   server.ask( { "CONFIG", "SET", "maxmemory", "1" } );
   follower.database.publish( { .applied = follower.position, .fields = { { "phase", "running" } } } );
   ASSERT_TRUE( follower.untilTold( ": OOM command not allowed" ) );
   EXPECT_TRUE( follower.hasBeenTold( "the server's maxmemory is used up" ) );
}

TEST( RedisFaults, passwordThatIsMissingOrWrong ) {
   RedisServer server( { "--requirepass", "open-sesame" } );
   server.ask( { "AUTH", "open-sesame" } );
   loadByHand( server );
   RedisFollower without( server );
   ASSERT_TRUE( without.untilTold( "NOAUTH Authentication required.; the password comes from the environment, "
                                   "L3SM_REDIS_PASSWORD" ) );
   ::setenv( "L3SM_REDIS_PASSWORD", "close-sesame", 1 );
   RedisFollower wrong( server );
   ASSERT_TRUE( wrong.untilTold( "AUTH: WRONGPASS" ) );
   EXPECT_FALSE( wrong.hasBeenTold( "close-sesame" ) );
   ::setenv( "L3SM_REDIS_PASSWORD", "open-sesame", 1 );
   RedisFollower right( server );
   ASSERT_TRUE( right.untilFollowing() );
   ::unsetenv( "L3SM_REDIS_PASSWORD" );
}

TEST( RedisFaults, serverThatStandsStill ) {
   RedisServer server;
   loadByHand( server );
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilFollowing() );
   server.standsStill();
   follower.database.tick();
   EXPECT_TRUE( follower.told.size() == 1 );
   Rex::nowIs( Rex::now() + 11 );
   follower.database.tick();
   EXPECT_TRUE( follower.hasBeenTold( "unreachable: " + server.url() + ": no answer for 10 s" ) );
   server.goesOn();
   ASSERT_TRUE( follower.untilFollowing() );
}

// Without tracking a changed epoch is found out by looking.
TEST( RedisFaults, serverThatDoesNotTellOfChanges ) {
   RedisServer server( { "--rename-command", "CLIENT", "" } );
   loadByHand( server );
   RedisFollower follower( server );
   ASSERT_TRUE( follower.until( [&] { return server.served( "xread" ) == 2; } ) );
   server.ask( { "FLUSHALL" } );
   follower.database.tick();
   ASSERT_TRUE( follower.untilTold( "without: " ) );
}

} // namespace
