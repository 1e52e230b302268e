// What is answered from a journal with a row of every kind: why, for programs; how far it is true of a run that ended
// early; what each event left; and the state.
#include "JournalText.h"
#include "inspection/EndOfRun.h"
#include "inspection/RunEffects.h"
#include "inspection/StateOfRun.h"
#include "inspection/Why.h"
#include "inspection/views/WhyText.h"

namespace {

WhyAnswer answerOf( std::string const & path, std::string const & subject, WhyFilter const & filter = {} ) {
   JournalReader journal( path );
   WhyReader reader( whySubjectOf( subject ), filter );
   return whyOf( journal, reader );
}

// A member of the answer for programs, as JSON.
std::string answered( WhyAnswer const & answer, char const * member ) {
   return toJson( whyValue( answer ).object()->at( member ), 0 );
}

std::string const interruptedAfter0 = R"({"op": "end", "ended": "interrupted", "events": 0, "operations": 1})"
                                      "\n";
std::string const interruptedAfter1 = R"({"op": "event", "event": 1, "what": {"start": {}}})"
                                      "\n"
                                      R"({"op": "end", "ended": "interrupted", "events": 1, "operations": 1})"
                                      "\n";

struct JournalAnswers : testing::Test {
   std::string sample() const {
      writeSample( folder / "run.jsonl" );
      return folder / "run.jsonl";
   }
   Folder const folder;
};

TEST_F( JournalAnswers, forProgramsTellWhatSetAControlAndOnWhichFaps ) {
   auto const stepOf = []( char const * seq ) {
      return R"({"cause": "chip-init", "changes": {"value": {"after": "255", "before": "7"}}, "control": 64, )"
             R"("faps": [0], "function": "L3Sm::f", "op": "control", "seq": )" +
             std::string( seq ) + R"(, "source": "L3Sm.cpp:41", "times": 1})";
   };
   std::string const gate = R"({"cause": "chip-init", "faps": [0], "function": "L3Sm::f", "op": "gate", )"
                            R"("reason": "FAP type 3 is \"not\" served", "source": "L3Sm.cpp:41", "times": 2})";
   EXPECT_EQ( answered( answerOf( sample(), "control.64" ), "chain" ),
              R"([{"event": 1, "input": {"start": {}}, "steps": [)" + stepOf( "9" ) + ", " + gate + "]}, " +
                 R"({"event": 0, "input": {"start": {}}, "steps": [)" + stepOf( "4" ) + ", " + gate + "]}]" );
   // Nobody knows what stood there.
   auto const chain = answered( answerOf( sample(), "control.65", { .event = U32{ 0 } } ), "chain" );
   EXPECT_NE( chain.find( R"("changes": {"value": {"after": "1", "before": null}})" ), std::string::npos ) << chain;
}

TEST_F( JournalAnswers, forProgramsTellTheCoreOfAWriteAndTheCopyOfAFault ) {
   std::string row = written( R"("table": "IppdFerTrapCfg", "variant": 0, "array": 3, "entry": null)" );
   row.replace( row.find( R"("scope": "all")" ), 14, R"("scope": "core", "core": 1)" );
   auto const path = folder.file( "core.jsonl", beginRow + event0 + row + endRow );
   auto const steps = answered( answerOf( path, "IppdFerTrapCfg" ), "chain" );
   EXPECT_NE( steps.find( R"("core": 1, )" ), std::string::npos ) << steps;
   auto const faults = answered( answerOf( sample(), "IppdFerTrapCfg" ), "chain" );
   EXPECT_NE( faults.find( R"("cause": "chip-init", "copy": 1, "op": "fault", )" ), std::string::npos ) << faults;
}

TEST_F( JournalAnswers, forProgramsTellTheKeyOfAnInputAndWhatItDeleted ) {
   auto const path =
      folder.file( "run.jsonl",
                   beginRow + event0 +
                      R"({"op": "event", "event": 1, "what": {"set": {"path": "routing/hardware/route/status", )"
                      R"("attribute": "prefixLensInExactMatch", "key": "24", "value": 1}}})"
                      "\n"
                      R"({"op": "event", "event": 2, "what": {"delete": {"path": "routing/hardware/route/status", )"
                      R"("attribute": "prefixLensInExactMatch", "key": "24"}}})"
                      "\n"
                      R"({"op": "end", "ended": "complete", "events": 2, "operations": 0})"
                      "\n" );
   auto const answer = answerOf( path, "routing/hardware/route/status prefixLensInExactMatch[24]" );
   auto const chain = answered( answer, "chain" );
   std::string const change = R"("attribute": "prefixLensInExactMatch", "key": "24", )"
                              R"("path": "routing/hardware/route/status")";
   EXPECT_NE( chain.find( R"("input": {"delete": {)" + change + "}}" ), std::string::npos ) << chain;
   EXPECT_NE( chain.find( R"("input": {"set": {)" + change + R"(, "value": 1}})" ), std::string::npos ) << chain;
}

TEST_F( JournalAnswers, tellWhatAFunctionDidUpToAnEvent ) {
   std::string row = aWrite;
   row.replace( row.find( R"("function": "f")" ), 15, R"("function": "L3Sm::handleUrpfFailFwdConfig")" );
   std::string later = row;
   later.replace( later.find( R"("seq": 1, "event": 0)" ), 20, R"("seq": 2, "event": 1)" );
   auto const path =
      folder.file( "run.jsonl",
                   beginRow + event0 + row + R"({"op": "event", "event": 1, "what": {"start": {}}})" + "\n" + later +
                      R"({"op": "end", "ended": "complete", "events": 1, "operations": 2})" + "\n" );
   auto const eventsOf = [&]( WhyFilter const & filter ) {
      std::vector< U32 > events;
      for ( ChainEvent const & event : answerOf( path, "handleUrpfFailFwdConfig", filter ).chain ) {
         events.push_back( event.event );
      }
      return events;
   };
   EXPECT_EQ( eventsOf( {} ), ( std::vector< U32 >{ 1, 0 } ) );
   EXPECT_EQ( eventsOf( { .at = U32{ 0 } } ), std::vector< U32 >{ 0 } );
}

TEST_F( JournalAnswers, forPeopleTellOfAWriteItsFirstFieldsUnlessItIsAskedForAlone ) {
   std::string const wide = R"("table": "VttTrapStrengths5", "variant": 0, "array": 0, "entry": null)";
   auto const row = written( wide, R"(["0xffffffff", "0x00000fff"])", R"(, "before": ["0x00000000", "0x00000000"])" );
   auto const path = folder.file( "run.jsonl", beginRow + event0 + row + endRow );
   std::ostringstream shown;
   writeWhy( shown, answerOf( path, "VttTrapStrengths5" ), {}, Style() );
   EXPECT_NE( shown.str().find( "        and 8 more fields\n" ), std::string::npos ) << shown.str();
   std::ostringstream inFull;
   writeWhy( inFull, answerOf( path, "VttTrapStrengths5" ), { .everything = true }, Style() );
   EXPECT_EQ( inFull.str().find( "more fields\n" ), std::string::npos ) << inFull.str();
}

TEST_F( JournalAnswers, sayThatTheRunWasInterruptedBeforeItGotThere ) {
   auto const path = folder.file( "run.jsonl", beginRow + event0 + interruptedAfter1 );
   auto const answer = answerOf( path, "IppdFerTrapCfg" );
   EXPECT_EQ( endingText( answer ), "The run did not get there: it was interrupted after event 1" );
   EXPECT_EQ( answered( answer, "ended" ), R"("interrupted")" );
   auto const there = folder.file( "there.jsonl", beginRow + event0 + aWrite + interruptedAfter0 );
   EXPECT_EQ( endingText( answerOf( there, "IppdFerTrapCfg" ) ), "" );
}

TEST_F( JournalAnswers, refuseAnEventThatIsNotThereWithHowTheRunEnded ) {
   auto const refusal = [&]( Simulator::Ending::Kind kind, U32 events ) -> std::string {
      try {
         checkEvent( "run", 9, { .kind = kind, .events = events } );
      } catch ( InputError const & error ) {
         return error.what();
      }
      return "there";
   };
   using enum Simulator::Ending::Kind;
   EXPECT_EQ( refusal( complete, 9 ), "there" );
   EXPECT_EQ( refusal( complete, 3 ), "run: there is no event 9; the last is 3" );
   EXPECT_EQ( refusal( interrupted, 0 ),
              "run: there is no event 9; the last is 0; the run was interrupted after the start" );
   EXPECT_EQ( refusal( interrupted, 3 ),
              "run: there is no event 9; the last is 3; the run was interrupted after event 3" );
   EXPECT_EQ( refusal( assertion, 3 ),
              "run: there is no event 9; the last is 3; the run ended in event 3 by an assertion" );
   EXPECT_EQ( refusal( cut, 3 ), "run: there is no event 9; the last is 3; the journal is cut in or after event 3" );
}

TEST_F( JournalAnswers, tellWhatEachEventLeftOfChipsAndOfWhatIsPublished ) {
   RunEffects effects;
   JournalReader( sample() ).read( effects );
   ASSERT_EQ( effects.events().size(), 2u );
   EventEffects const & event = effects.events().front();
   EXPECT_EQ( event.operations, 5u );
   EXPECT_EQ( event.writes, 4u );
   std::vector< std::string > changes;
   for ( auto const & [place, effect] : event.changes ) {
      changes.push_back( place.table + " " + std::to_string( place.entry ) + " " + place.field + ": " + effect.from +
                         " to " + effect.to );
   }
   EXPECT_EQ( changes,
              ( std::vector< std::string >{ "IppdFerTrapCfg 0 cpuSnoopCodeN: 0x1 to 0x0",
                                            "IppdFerTrapCfg 0 cpuStrengthN: 0x0 to 0x5",
                                            "controls 64 : 7 to 255",
                                            "controls 65 :  to 1",
                                            "published 0 managed/intfStatusDir mtu: 1500 to 2000",
                                            "published 0 managed/intfStatusDir mtu[Ethernet1]: 1500 to 2000" } ) );
}

TEST_F( JournalAnswers, tellTheStateWithEntriesThatWerePublishedAndTakenBack ) {
   auto const publication = []( char const * key, char const * value ) {
      return R"({"op": "publish", "event": 0, "path": "routing/hardware/route/status", )"
             R"("attribute": "prefixLensInExactMatch", "key": ")" +
             std::string( key ) + R"(", "value": )" + value + R"(, "before": null, "cause": "start"})" + "\n";
   };
   auto const lengthsAfter = [&]( std::string const & rows ) {
      auto const path = folder.file( "run.jsonl", beginRow + event0 + rows + endRow );
      auto const told = toldState( path, {} ).paths;
      return toJson( partOf( told, "routing/hardware/route/status/prefixLensInExactMatch" ).front().value, 0 );
   };
   EXPECT_EQ( lengthsAfter( publication( "24", "2" ) + publication( "32", "1" ) ), R"({"24": 2, "32": 1})" );
   EXPECT_EQ( lengthsAfter( publication( "24", "2" ) + publication( "24", "null" ) ), "{}" );
   // Up to an event: what is told of later ones isn't in it.
   auto const later = publication( "24", "2" );
   auto const path =
      folder.file( "later.jsonl",
                   beginRow + event0 + R"({"op": "event", "event": 1, "what": {"start": {}}})" + "\n" +
                      std::string( later ).replace( later.find( R"("event": 0)" ), 10, R"("event": 1)" ) +
                      R"({"op": "end", "ended": "complete", "events": 1, "operations": 0})" + "\n" );
   auto const lengths = [&]( U32 event ) {
      auto const told = toldState( path, event ).paths;
      return toJson( partOf( told, "routing/hardware/route/status/prefixLensInExactMatch" ).front().value, 0 );
   };
   EXPECT_EQ( lengths( 0 ), "{}" );
   EXPECT_EQ( lengths( 1 ), R"({"24": 2})" );
}

TEST_F( JournalAnswers, refuseTheStateOfAJournalThatDoesNotTellIt ) {
   std::string old = aWrite;
   auto const path = folder.file( "old.jsonl", old.insert( old.find( R"("cause")" ), R"("chip": "BCM88690_B0", )" ) );
   try {
      toldState( path, {} );
      FAIL() << "told";
   } catch ( InputError const & error ) {
      EXPECT_EQ( error.what(), path + ": is of format 1, an older one, which doesn't tell the state" );
   }
}

} // namespace
