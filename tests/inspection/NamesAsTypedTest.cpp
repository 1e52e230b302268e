// Names of tables, fields and bits, as a person types them.
#include "inspection/NamesAsTyped.h"
#include "inspection/files/InputError.h"
#include "inspection/views/Html.h"

#include <gtest/gtest.h>

namespace {

using namespace Inspection;

std::string tableRefusalOf( std::string const & typed ) {
   try {
      tableNamed( typed );
   } catch ( InputError const & error ) {
      return error.what();
   }
   return "understood";
}

std::string partRefusalOf( std::string const & typed ) {
   try {
      partNamed( typed );
   } catch ( InputError const & error ) {
      return error.what();
   }
   return "understood";
}

TEST( NamesAsTyped, refuseAFieldWhereATableIsWanted ) {
   EXPECT_EQ( tableRefusalOf( "IppdFerTrapCfg" ), "understood" );
   EXPECT_EQ( tableRefusalOf( "IppdFerTrapCfg.cpuStrengthN" ),
              "\"IppdFerTrapCfg.cpuStrengthN\" is no table but a field of one; the table is IppdFerTrapCfg" );
   EXPECT_EQ( tableRefusalOf( "cpuStrengthN" ), "\"cpuStrengthN\" is no table but a field, of IppdFerTrapCfg" );
   EXPECT_EQ( tableRefusalOf( "memData" ),
              "\"memData\" is no table but a field, of IppbFlpLePd0, IppbFlpLePd1, IppbFlpLePd2" );
   EXPECT_EQ( tableRefusalOf( "nothing" ), "no table has the name \"nothing\"; `l3sm catalogue` lists them" );
}

TEST( NamesAsTyped, refuseABitThatIsNoneOfAField ) {
   EXPECT_EQ( partRefusalOf( "IppdFerTrapCfg.cpuStrengthN:3" ), "understood" );
   EXPECT_EQ( partRefusalOf( "IppdFerTrapCfg.cpuStrengthN:4" ), "IppdFerTrapCfg.cpuStrengthN has the bits 0 to 3" );
   EXPECT_EQ( partRefusalOf( "IppdFerTrapCfg.cpuStrengthN:high" ),
              "\"high\" is no bit; say it as in IppdFerTrapCfg.cpuStrengthN:0" );
   EXPECT_EQ( partRefusalOf( "IppdFerTrapCfg:0" ), "a bit is one of a field, as in IppdFerTrapCfg.cpuSnoopCodeN:0" );
}

TEST( NamesAsTyped, ofChipsAreListedWhereNoneIsNear ) {
   try {
      chipNamed( "nothing" );
      FAIL() << "understood";
   } catch ( InputError const & error ) {
      EXPECT_STREQ( error.what(),
                    "no chip has the name \"nothing\"; there is BCM88690_B0, BCM88800_A0, BCM88850_A0, BCM88859_A2, "
                    "BCM88480_A0, BCM88480_B0" );
   }
}

TEST( Readable, groupsTheDigitsOfOneValueAndLeavesTheRest ) {
   EXPECT_EQ( readable( "0x9" ), "0x9" );
   EXPECT_EQ( readable( "0xa" ), "0xa (10)" );
   EXPECT_EQ( readable( "0xffff" ), "0xffff (65535)" );
   EXPECT_EQ( readable( "0x10000" ), "0x10000" );
   EXPECT_EQ( readable( "0x100000000" ), "0x1'00000000" );
   EXPECT_EQ( readable( "0xa 0xb" ), "0xa 0xb" );
   EXPECT_EQ( readable( "17" ), "17" );
   EXPECT_EQ( readable( "" ), "" );
}

TEST( InHtml, endsNeitherAnElementNorAnAttribute ) {
   EXPECT_EQ( inHtml( "a <b> & \"c\"" ), "a &lt;b> &amp; &quot;c&quot;" );
}

} // namespace
