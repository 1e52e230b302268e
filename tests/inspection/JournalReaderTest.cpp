// Journals as they come: of this program, of an older format, of other programs, and files that are none.
#include "JournalText.h"

namespace {

TEST( JournalReader, ReadsTheFirstOfTwoJournals ) {
   for ( bool const isFirstWhole : { true, false } ) {
      auto const first = beginRow + event0 + aWrite + ( isFirstWhole ? endRow : "" );
      auto const reading = readingOf( first + beginRow + event0 + aWrite + aWrite + endRow );
      EXPECT_EQ( std::ranges::count( reading.heard, "event 0 {\"start\": {}}" ), 1 );
      EXPECT_EQ( reading.remarks.back(),
                 std::string( "run.jsonl:" ) + ( isFirstWhole ? "5" : "4" ) +
                    ": another journal begins here; only the first is read" );
   }
   EXPECT_EQ( readingOf( beginRow + event0 + aWrite + endRow + aWrite ).remarks,
              Remarks{ "run.jsonl:5: stands behind the journal's end; it isn't read" } );
}

TEST( JournalReader, TellsWhatAFileIsInstead ) {
   auto const remedy = "; `l3sm run --journal FILE` writes one";
   auto const errorOf = []( std::string const & text ) { return readingOf( text ).error; };
   EXPECT_EQ( errorOf( "" ), std::string( "run.jsonl: is empty, no journal" ) + remedy );
   EXPECT_EQ( errorOf( "\n\n" ), std::string( "run.jsonl: is empty, no journal" ) + remedy );
   EXPECT_EQ( errorOf( "{\"faps\": {\n \"0\": {}}}\n" ),
              std::string( "run.jsonl: is a chips file, no journal" ) + remedy );
   EXPECT_EQ( errorOf( "{\n \"name\": \"a: {b\",\n \"switch\": {}}\n" ),
              std::string( "run.jsonl: is a scenario, no journal" ) + remedy );
   EXPECT_EQ( errorOf( "{\n \"bridging/config\": {}}\n" ),
              std::string( "run.jsonl: is a state file, no journal" ) + remedy );
   EXPECT_EQ( errorOf( "<!DOCTYPE html>\n" ),
              std::string( "run.jsonl: is a page for a browser, no journal" ) + remedy );
   EXPECT_EQ( errorOf( "{\"a\": 1}\n" ),
              std::string( "run.jsonl: is a JSON file of another kind, no journal" ) + remedy );
   EXPECT_EQ( errorOf( std::string( "\x7f"
                                    "ELF\x02\x01\x00",
                                    7 ) ),
              std::string( "run.jsonl: is a binary file of another kind, no journal" ) + remedy );
   EXPECT_EQ( errorOf( "hello\n" ), std::string( "run.jsonl: is a text of another kind, no journal" ) + remedy );
   EXPECT_EQ( errorOf( beginRow.substr( 0, 60 ) ), "run.jsonl: is cut in its first line: nothing of it can be read" );
   EXPECT_EQ( errorOf( R"({"op": "begin", "format": 3, "plugin": "", "scenario": {}})"
                       "\n" ),
              "run.jsonl:1: /format: this program reads formats 1 and 2, not 3" );
}

TEST( JournalReader, ReadsLinesOfOtherPrograms ) {
   auto const reading =
      readingOf( R"( { "scenario":{"switch":{"faps":[{"fapId":0,"revision":{"chipType":"BCM88690_B0"}}]}},)"
                 R"("plugin":"","format":2,"op":"begin" })"
                 "\n\n"
                 R"({"what":{"start":{}},"event":0,"op":"event"})"
                 "\r\n"
                 R"({"words":["0xA00"],"op":"write","table":"IppdFerTrapCfg","entry":null,"cause":"start","seq":1,)"
                 R"("event":0,"fap":0,"variant":0,"array":3,"scope":"all","changed":false,"function":"f","source":"s"})"
                 "\n"
                 R"({"ended":"complete","op":"end","events":0,"operations":1})" );
   EXPECT_EQ( reading.error, "" );
   ASSERT_EQ( reading.heard.size(), 4u );
   EXPECT_NE( reading.heard[1].find( R"("words": ["0x00000a00"])" ), std::string::npos );
}

TEST( JournalReader, PassesOverRowsThatNobodyWantsWhateverTheyLookLike ) {
   std::string const other =
      R"({"table":"IppdFerTrapCfg","op":"read","entry":null,"cause":"start","seq":1,"words":["0x1"],)"
      R"("event":0,"fap":0,"variant":0,"array":3,"scope":"any","function":"f","source":"s"})"
      "\n";
   auto const text = beginRow + event0 + aWrite + other + endRow;
   EXPECT_EQ( readingOf( text ).heard.size(), 5u );
   EXPECT_EQ( readingOf( text, { .readsToo = false } ).heard.size(), 4u );
   EXPECT_EQ( readingOf( text, { .tables = { "EnablersVectors" } } ).heard.size(), 3u );
   EXPECT_EQ( readingOf( text, { .tables = { "IppdFerTrapCfg" } } ).heard.size(), 5u );
   EXPECT_EQ( readingOf( text, { .operationsToo = false } ).heard.size(), 3u );
}

TEST( JournalReader, PassesOverGatesPublicationsFapsAndLaterEvents ) {
   Folder const folder;
   writeSample( folder / "run.jsonl" );
   auto const text = folder.text( "run.jsonl" );
   auto const kinds = [&]( RowFilter const & filter ) {
      std::string all;
      for ( auto const & line : readingOf( text, filter ).heard ) {
         all += line.starts_with( "{" ) ? line[8] : ' ';
      }
      return all;
   };
   EXPECT_EQ( kinds( {} ), " rwwccfggpp  rwwccfggpp  " ); // by the letter that a kind begins with
   EXPECT_EQ( kinds( { .gatesToo = false } ), " rwwccfpp  rwwccfpp  " );
   EXPECT_EQ( kinds( { .publicationsToo = false } ), " rwwccfgg  rwwccfgg  " );
   EXPECT_EQ( kinds( { .fap = 7 } ), " ggpp  ggpp  " );
   EXPECT_EQ( kinds( { .tables = { "EnablersVectors" } } ), " wccggpp  wccggpp  " );
   EXPECT_EQ( kinds( { .function = "L3Sm::f" } ), " rwwccggpp  rwwccggpp  " );
   EXPECT_EQ( kinds( { .last = 0 } ), " rwwccfggpp    " );
}

// A line of the program's own form is taken apart by where its parts stand; with one more space it is read as JSON.
TEST( JournalReader, HearsTheSameOfALineInAnotherForm ) {
   Folder const folder;
   writeSample( folder / "run.jsonl" );
   auto const text = folder.text( "run.jsonl" );
   std::string spaced = text;
   for ( auto at = spaced.find( "{\"op\":" ); at != std::string::npos; at = spaced.find( "{\"op\":", at + 2 ) ) {
      spaced.insert( at + 1, " " );
   }
   ASSERT_NE( spaced, text );
   EXPECT_EQ( readingOf( text ).heard, readingOf( spaced ).heard );
}

TEST( WrittenRow, KnowsNoLineWhoseWordsAreNoneOfItsForm ) {
   std::string const line =
      R"({"op": "read", "seq": 1, "event": 0, "fap": 0, "table": "IppdFerTrapCfg", "variant": 0, "array": 3, )"
      R"("entry": null, "scope": "any", "words": ["0x09afAF00"], "function": "f", "source": "s", "cause": "c"})";
   auto const wordsOf = [&]( std::string const & digits ) {
      std::string with = line;
      with.replace( with.find( "09afAF00" ), 8, digits );
      WrittenRow written( with );
      EXPECT_TRUE( written.isKnown() && written.readPlace() );
      Simulator::Row row{ .kind = Simulator::Row::Kind::read, .event = 0 };
      std::vector< U32 > words;
      std::vector< U32 > before;
      bool const isKnown = written.access( row, words, before );
      return isKnown ? std::optional( words ) : std::nullopt;
   };
   EXPECT_EQ( wordsOf( "09afaf00" ), std::vector< U32 >{ 0x09afaf00 } );
   EXPECT_EQ( wordsOf( "fedcba98" ), std::vector< U32 >{ 0xfedcba98 } );
   for ( char const letter : std::string( "AFGg/:`@ \"x" ) ) { // those beside the digits, and others
      for ( std::size_t place = 0; place < 8; ++place ) {
         std::string digits = "00000000";
         digits[place] = letter;
         EXPECT_EQ( wordsOf( digits ), std::nullopt ) << digits;
      }
   }
}

TEST( JournalReader, TellsWhichLineIsWrong ) {
   auto const errorOf = []( std::string const & line ) { return readingOf( beginRow + event0 + line + endRow ).error; };
   auto const noPlace = []( std::string const & table, std::string const & words ) {
      return "run.jsonl:3: " + table + " has no such variant, array index and entry of " + words +
             " on the chip of FAP 0";
   };
   std::string const trap = R"("table": "IppdFerTrapCfg", )";
   EXPECT_TRUE( errorOf( "{\"op\": \"write\"\n" ).starts_with( "run.jsonl:3: no JSON: " ) );
   EXPECT_EQ( errorOf( "[1]\n" ), "run.jsonl:3: expected an object" );
   EXPECT_EQ( errorOf( "{\"op\": \"jump\", \"event\": 0}\n" ),
              "run.jsonl:3: /op: \"jump\" is none of read, write, control, gate, publish, fault" );
   EXPECT_EQ( errorOf( written( R"("table": "NoSuchTable", "variant": 0, "array": 3, "entry": null)" ) ),
              "run.jsonl:3: /table: no table has this name; `l3sm catalogue` lists them" );
   EXPECT_EQ( errorOf( written( trap + R"("variant": 0, "array": 99, "entry": null)" ) ),
              noPlace( "IppdFerTrapCfg", "1 word" ) );
   EXPECT_EQ( errorOf( written( trap + R"("variant": 5, "array": 3, "entry": null)" ) ),
              noPlace( "IppdFerTrapCfg", "1 word" ) );
   EXPECT_EQ( errorOf( written( trap + R"("variant": 0, "array": 3, "entry": 1)" ) ),
              noPlace( "IppdFerTrapCfg", "1 word" ) );
   EXPECT_EQ( errorOf( written( trap + R"("variant": 0, "array": 3, "entry": null)", R"(["0x1", "0x2"])" ) ),
              noPlace( "IppdFerTrapCfg", "2 words" ) );
   EXPECT_EQ( errorOf( written( trap + R"("variant": 0, "array": 3, "entry": null)", R"(["0x100000000"])" ) ),
              "run.jsonl:3: /words: expected words such as \"0x00000a00\"" );
   EXPECT_EQ( errorOf( written(
                 trap + R"("variant": 0, "array": 3, "entry": null)", R"(["0x1"])", R"(, "before": ["0x1", "0x2"])" ) ),
              "run.jsonl:3: /before: expected as many words as were written, 1" );
   std::string otherFap = aWrite;
   otherFap.replace( otherFap.find( "\"fap\": 0" ), 8, "\"fap\": 7" );
   EXPECT_EQ( errorOf( otherFap ), "run.jsonl:3: /fap: the switch that the journal begins with has no FAP 7" );
   std::string otherEvent = aWrite;
   otherEvent.replace( otherEvent.find( "\"event\": 0" ), 10, "\"event\": 3" );
   EXPECT_EQ( errorOf( otherEvent ), "run.jsonl:3: /event: stands in event 0" );
   EXPECT_EQ( errorOf( event0 ), "run.jsonl:3: /event: event 0 stands behind event 0" );
   EXPECT_EQ( readingOf( beginRow + aWrite ).error, "run.jsonl:2: /event: stands before the first event" );
}

TEST( JournalReader, TellsOfACoreThatTheChipLacks ) {
   std::string line = aWrite;
   line.replace( line.find( R"("scope": "all")" ), 14, R"("scope": "core", "core": 2)" );
   EXPECT_EQ( readingOf( beginRow + event0 + line + endRow ).error,
              "run.jsonl:3: /core: IppdFerTrapCfg has no such instance" );
}

TEST( JournalReader, TellsOfAPartThatIsOfAnotherKind ) {
   auto const errorOf = []( std::string line, std::string const & part, std::string const & other ) {
      line.replace( line.find( part ), part.size(), other );
      return readingOf( beginRow + event0 + line + endRow ).error;
   };
   EXPECT_EQ( errorOf( aWrite, R"("changed": true)", R"("changed": 1)" ),
              "run.jsonl:3: /changed: expected true or false" );
   EXPECT_EQ( errorOf( aWrite, R"(["0x00000a00"])", "5" ), "run.jsonl:3: /words: expected a list of words" );
   EXPECT_EQ( errorOf( aWrite, R"("cause": "start")", R"("cause": "start", "gates": [5])" ),
              "run.jsonl:3: /gates: expected objects" );
}

// The format before there were lines for events and gates.
TEST( JournalReader, ReadsFormat1 ) {
   std::string const place = R"("fap": 0, "table": "IppdFerTrapCfg", "variant": 0, "array": 3, "entry": null, )";
   std::string const from = R"("function": "f", "source": "a.cpp:1", "cause": "start", "chip": "BCM88690_B0")";
   std::string const gate = R"({"function": "g", "source": "a.cpp:2", "reason": "off", "fap": 0, "event": )";
   auto const reading =
      readingOf( R"({"seq": 1, "event": 0, "op": "read", )" + place + R"("scope": "any", "words": ["0x00000001"], )" +
                 from + "}\n" + R"({"seq": 2, "event": 2, "op": "write", )" + place +
                 R"("scope": "all", "words": ["0x00000002"], "changed": true, )" + from + R"(, "gates": [)" + gate +
                 R"(1, "cause": "x y"}], "gatesAfter": [)" + gate + R"(3, "cause": "z"}]})" + "\n" );
   EXPECT_EQ( reading.error, "" );
   EXPECT_EQ(
      reading.remarks,
      Remarks{ "run.jsonl: is of format 1, an older one, which doesn't tell what the run began with, nor how it "
               "ended" } );
   ASSERT_EQ( reading.heard.size(), 13u );
   EXPECT_EQ( reading.heard[0], "event 0 null" );
   EXPECT_EQ( reading.heard[3], "event 1 null" );
   EXPECT_EQ( reading.heard[4],
              R"({"op": "gate", "event": 1, "fap": 0, "reason": "off", "function": "g", "source": "a.cpp:2", )"
              R"("cause": "x y"})" );
   EXPECT_EQ( reading.heard[6], "event 2 null" );
   EXPECT_TRUE( reading.heard[7].starts_with( R"({"op": "write", "seq": 2, "event": 2)" ) );
   EXPECT_EQ( reading.heard[9], "event 3 null" );
   EXPECT_TRUE( reading.heard[10].starts_with( R"({"op": "gate", "event": 3)" ) );
   EXPECT_EQ( reading.heard[12], "complete 3 2" );
}

} // namespace
