// What a check has found, as it is told: what the plug-in verified, and what the chips hold that wasn't written to
// them.
#include "inspection/views/VerdictsText.h"
#include "inspection/files/Json.h"
#include "inspection/views/AuditText.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

using namespace Inspection;

Verdict const faultyVerdict{ .fap = 1,
                             .operation = "verifyTraps",
                             .kind = Verdict::Kind::fault,
                             .reads = 3,
                             .table = "IppdFerTrapCfg",
                             .place = "array 3",
                             .what = "it isn't so" };

std::string verdictsTextOf( std::vector< Verdict > const & verdicts ) {
   std::ostringstream text;
   showVerdicts( text, verdicts, Style() );
   return text.str();
}

WrongPlace wrongTrap( U16 fap ) {
   return { .fap = fap,
            .place = "IppdFerTrapCfg[3]",
            .fields = { { "cpuStrengthN", "0x5", "0x1" }, { "snoopStrengthN", "0x0", "0x2" } },
            .bits = { 2, 9 } };
}

std::string auditTextOf( ChipsAudit const & audit, std::size_t most ) {
   std::ostringstream text;
   showAudit( text, audit, most );
   return text.str();
}

TEST( VerdictsText, saysThatNothingCanBeVerified ) {
   EXPECT_EQ( verdictsTextOf( {} ), "the plug-in offers no verification\n" );
}

TEST( VerdictsText, tellsAFaultWithItsPlaceAndThenInItsOwnWords ) {
   EXPECT_EQ( verdictsTextOf( { { .fap = 0, .operation = "verifyTraps", .reads = 1 },
                                faultyVerdict,
                                { .fap = 2, .operation = "verifyTraps", .kind = Verdict::Kind::notServed } } ),
              "FAP 0  verifyTraps  fine        1 entry read\n"
              "FAP 1  verifyTraps  fault       IppdFerTrapCfg array 3\n"
              "FAP 2  verifyTraps  not served  chip initialisation has done nothing here\n"
              "\n"
              "FAP 1: it isn't so\n" );
}

TEST( VerdictsText, ofProgramsHasThePlaceOfAFaultOnly ) {
   EXPECT_EQ( toJson( verdictsValue( { faultyVerdict, { .fap = 0, .operation = "verifyTraps", .reads = 1 } } ), 0 ),
              R"([{"fap": 1, "operation": "verifyTraps", "place": "array 3", "reads": 3, "table": "IppdFerTrapCfg", )"
              R"("verdict": "fault", "what": "it isn't so"}, )"
              R"({"fap": 0, "operation": "verifyTraps", "reads": 1, "verdict": "fine"}])" );
}

TEST( AuditText, showsSoManyWrongPlacesAndCountsTheOthers ) {
   ChipsAudit const audit{ .wrong = { wrongTrap( 0 ), wrongTrap( 1 ), wrongTrap( 2 ) }, .degraded = {}, .faults = 4 };
   std::string const each = " IppdFerTrapCfg[3]: cpuStrengthN is 0x1, not 0x5, snoopStrengthN is 0x2, not 0x0\n";
   EXPECT_EQ( auditTextOf( audit, 1 ), "FAP 0" + each + "… 2 more: --all\n" + "3 places are wrong: 4 faults fired.\n" );
   EXPECT_EQ( auditTextOf( audit, 0 ),
              "FAP 0" + each + "FAP 1" + each + "FAP 2" + each + "3 places are wrong: 4 faults fired.\n" );
}

TEST( AuditText, ofProgramsHasPlacesAndFapsThatAreDegraded ) {
   EXPECT_EQ( toJson( auditValue( { .wrong = { wrongTrap( 0 ) }, .degraded = { 1, 3 }, .faults = 4 } ), 0 ),
              R"({"audit": [{"bits": [2, 9], "fap": 0, "fields": {)"
              R"("cpuStrengthN": {"expected": "0x5", "found": "0x1"}, )"
              R"("snoopStrengthN": {"expected": "0x0", "found": "0x2"}}, "place": "IppdFerTrapCfg[3]"}], )"
              R"("degraded": [1, 3], "faults": 4})" );
}

} // namespace
