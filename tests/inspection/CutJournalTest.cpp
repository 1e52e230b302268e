// Journals that break off, in a line or between two, compressed or not, and how those end that tell of it.
#include "JournalText.h"

namespace {

TEST( CutJournal, ReadsUpToWhereTheLastLineIsCut ) {
   auto const reading = readingOf( beginRow + event0 + aWrite + aWrite.substr( 0, 40 ) );
   EXPECT_EQ( reading.heard.size(), 3u );
   EXPECT_EQ( reading.heard.back(), "cut 0 1" );
   EXPECT_EQ( reading.remarks,
              Remarks{ "run.jsonl:4: the journal is cut here, in the start; what is told ends there" } );
}

TEST( CutJournal, TellsThatTheEndIsMissing ) {
   auto const reading = readingOf( beginRow + event0 + aWrite );
   EXPECT_EQ( reading.heard.back(), "cut 0 1" );
   EXPECT_EQ(
      reading.remarks,
      Remarks{ "run.jsonl: the journal has no end; it is cut in or after the start; what is told ends there" } );
}

TEST( CutJournal, DoesNotNeedTheEndOfTheLastLine ) {
   auto const reading = readingOf( beginRow + event0 + aWrite + endRow.substr( 0, endRow.size() - 1 ) );
   EXPECT_EQ( reading.heard.back(), "complete 0 1" );
   EXPECT_EQ( reading.remarks, Remarks{} );
}

TEST( CutJournal, ReadsACompressedJournalUpToWhereItIsCut ) {
   Folder const folder;
   std::string whole;
   {
      JournalWriter writer( folder / "run.jsonl.zst", { .scenario = sampleScenario() } );
      for ( U32 event = 0; event < 100; ++event ) {
         playSampleEvent( writer, event );
      }
      writer.ends( complete( 99 ) );
   }
   whole = folder.text( "run.jsonl.zst" );
   for ( std::size_t const size : { whole.size() / 2, whole.size() - 1 } ) {
      auto const reading = readingOf( whole.substr( 0, size ), {}, "run.jsonl.zst" );
      EXPECT_EQ( reading.error, "" );
      EXPECT_GT( reading.heard.size(), 100u );
      EXPECT_EQ( reading.heard[0], R"(event 0 {"start": {}})" );
   }
   auto const half = readingOf( whole.substr( 0, whole.size() / 2 ), {}, "run.jsonl.zst" );
   EXPECT_TRUE( half.heard.back().starts_with( "cut " ) ) << half.heard.back();
   ASSERT_EQ( half.remarks.size(), 1u );
   EXPECT_NE( half.remarks[0].find( "cut" ), std::string::npos );
   EXPECT_EQ( readingOf( whole.substr( 0, 2 ), {}, "run.jsonl.zst" ).error,
              "run.jsonl.zst: is cut before its first line: nothing of it can be read" );
}

TEST( CutJournal, ReadsACompressedJournalOfAnyName ) {
   Folder const folder;
   writeSample( folder / "run.jsonl.zst" );
   auto const reading = readingOf( folder.text( "run.jsonl.zst" ), {}, "renamed" );
   EXPECT_EQ( reading.error, "" );
   EXPECT_EQ( reading.heard.back(), "complete 1 10" );
}

TEST( CutJournal, TellsHowTheRunEnded ) {
   EXPECT_EQ( readingOf( beginRow + event0 +
                         R"({"op": "end", "ended": "assertion", "events": 4, "operations": 0, "text": "a < b", )"
                         R"("function": "f", "source": "a.cpp:1"})" )
                 .remarks,
              Remarks{ "run.jsonl: the run ended in event 4 by a failed assertion: a < b, in f (a.cpp:1)" } );
   EXPECT_EQ(
      readingOf( beginRow + event0 + R"({"op": "end", "ended": "interrupted", "events": 4, "operations": 0})" ).remarks,
      Remarks{ "run.jsonl: the run was interrupted after event 4" } );
}

} // namespace
