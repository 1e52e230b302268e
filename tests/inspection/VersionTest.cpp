#include "inspection/views/VersionText.h"
#include "l3sm/Command.h"

#include <gtest/gtest.h>

namespace {

using namespace Inspection;

TEST( LibraryId, isTheHashOfTheFile ) {
   Command const l3sm( "--version", { { "library", "abc" } } );
   EXPECT_EQ( libraryId( ( l3sm.folder / "library" ).string() ),
              "sha256:ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad" );
}

TEST( LibraryId, isNoneWhereTheFileCantBeRead ) {
   EXPECT_EQ( libraryId( "/nowhere/libL3SmPlugin.so" ), std::nullopt );
   EXPECT_EQ( libraryId( "/" ), std::nullopt );
}

TEST( Version, tellsNumberBuildAndPlugin ) {
   EXPECT_EQ( versionText( { "1.2.3", "0123456789ab", "/lib/plugin.so", "sha256:00" } ),
              "l3sm 1.2.3\n"
              "build    0123456789ab\n"
              "plug-in  /lib/plugin.so\n"
              "         sha256:00" );
}

TEST( Version, tellsWhatIsUnknown ) {
   Version const version{ "1.2.3", std::nullopt, "/lib/plugin.so", std::nullopt };
   EXPECT_EQ( versionText( version ),
              "l3sm 1.2.3\n"
              "build    of no known revision\n"
              "plug-in  /lib/plugin.so\n"
              "         can't be read" );
   auto const value = versionValue( version );
   EXPECT_TRUE( value.object()->at( "build" ).isNull() );
   EXPECT_TRUE( value.object()->at( "plugin" ).object()->at( "id" ).isNull() );
}

} // namespace
