// What is left of what the plug-in publishes, path by path, for others to read.
#include "agent/PublishedState.h"

#include <gtest/gtest.h>

namespace {

using namespace Live;
using Rex::Value;
using Simulator::Row;

struct PublishedStateTest : testing::Test {
   void publish( char const * path, char const * attribute, Value const & value ) { row( path, attribute, {}, value ); }
   void publishEntry( char const * path, char const * attribute, char const * key, Value const & value ) {
      row( path, attribute, key, value );
   }
   PublishedState published;

 private:
   void row( char const * path, char const * attribute, std::optional< std::string_view > key, Value const & value ) {
      Value const before;
      published.row( { .kind = Row::Kind::publish,
                       .event = 0,
                       .path = path,
                       .attribute = attribute,
                       .key = key,
                       .published = &value,
                       .publishedBefore = &before } );
   }
};

TEST_F( PublishedStateTest, hasEachAttributeAtItsPath ) {
   publish( "intf/Ethernet1", "mtu", 1500 );
   publish( "intf/Ethernet1", "name", "Ethernet1" );
   publish( "intf/Ethernet1", "mtu", 9000 );
   EXPECT_EQ( published.all(), ( Paths{ { "intf/Ethernet1", { { "mtu", "9000" }, { "name", "\"Ethernet1\"" } } } } ) );
}

TEST_F( PublishedStateTest, hasEachMemberOfACollectionAtAPathOfItsOwn ) {
   publishEntry( "intf", "status", "Ethernet1", Value::Object{ { "mtu", 1500 }, { "isUp", true } } );
   publishEntry( "intf", "status", "Ethernet2", Value::Object{ { "mtu", 1500 } } );
   publishEntry( "intf", "status", "Ethernet1", Value::Object{ { "mtu", 9000 } } );
   EXPECT_EQ( published.all(),
              ( Paths{ { "intf/status/Ethernet1", { { "mtu", "9000" } } },
                       { "intf/status/Ethernet2", { { "mtu", "1500" } } } } ) )
      << "a member is replaced whole";
   publishEntry( "intf", "status", "Ethernet2", Value() );
   EXPECT_EQ( published.all(), ( Paths{ { "intf/status/Ethernet1", { { "mtu", "9000" } } } } ) );
}

TEST_F( PublishedStateTest, hasAnEntryOfAMapUnderTheNameOfItsAttribute ) {
   publishEntry( "l3/tunnel", "udpDestPort", "1", 6635 );
   EXPECT_EQ( published.all(), ( Paths{ { "l3/tunnel/udpDestPort/1", { { "udpDestPort", "6635" } } } } ) );
   publishEntry( "l3/tunnel", "udpDestPort", "1", Value() );
   EXPECT_TRUE( published.all().empty() );
}

TEST_F( PublishedStateTest, onlyMarksWhatAManagedDirectoryRefersTo ) {
   publishEntry( "managed/intf", "status", "Ethernet1", Value::Object{ { "mtu", 1500 } } );
   EXPECT_EQ( published.all(), ( Paths{ { "managed/intf/status/Ethernet1", { { "managed", "true" } } } } ) );
   publishEntry( "managed/intf", "status", "Ethernet1", Value() );
   EXPECT_TRUE( published.all().empty() );
}

TEST_F( PublishedStateTest, tellsWhatHasChangedSinceItWasAskedForIt ) {
   EXPECT_FALSE( published.hasChanged() );
   publishEntry( "intf", "status", "Ethernet1", Value::Object{ { "mtu", 1500 } } );
   publish( "intf", "count", 1 );
   EXPECT_TRUE( published.hasChanged() );
   EXPECT_EQ( published.takeChanged(), published.all() );
   EXPECT_FALSE( published.hasChanged() );
   EXPECT_EQ( published.takeChanged(), Paths() );
   publishEntry( "intf", "status", "Ethernet1", Value() );
   EXPECT_EQ( published.takeChanged(), ( Paths{ { "intf/status/Ethernet1", {} } } ) );
   publishEntry( "intf", "status", "Ethernet1", Value() );
   EXPECT_FALSE( published.hasChanged() ) << "it was gone already";
}

TEST_F( PublishedStateTest, hearsOfNothingElseThatARunDoes ) {
   published.row( { .kind = Row::Kind::gate, .event = 1, .path = "intf", .attribute = "count" } );
   EXPECT_FALSE( published.hasChanged() );
}

} // namespace
