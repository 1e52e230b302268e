#include "inspection/files/JournalReader.h"

#include "inspection/files/ChipsFile.h"
#include "inspection/files/FileKind.h"
#include "inspection/files/InputFile.h"
#include "inspection/files/JournalLine.h"
#include "inspection/files/Json.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace Inspection {

namespace {

using Rex::ValueError;
using Simulator::Ending;
using Simulator::Row;

} // namespace

struct JournalReader::Parser : JournalLineParser {};

JournalReader::JournalReader( std::string path )
   : path_( inputName( path ) ), source_( std::move( path ) ), parser_( std::make_unique< Parser >() ) {
   Line line{};
   if ( !nextLine( line ) ) {
      throw InputError( path_,
                        source_.isCut() ? "is cut before its first line: nothing of it can be read"
                                        : "is empty, no journal; `l3sm run --journal FILE` writes one" );
   }
   checkIsJournal( line );
   begin( line );
}

JournalReader::~JournalReader() = default;

std::map< U16, Hardware::ChipType > const & JournalReader::chipTypes() const {
   return parser_->chipTypes();
}

void JournalReader::checkIsJournal( Line const & line ) const {
   if ( kindOf( line.text ) == FileKind::journal ) {
      return;
   }
   // More than the first line is there in most cases, and tells more.
   std::string_view const all( line.text.data(),
                               to_ - static_cast< std::size_t >( line.text.data() - buffer_.data() ) );
   if ( kindOf( all ) == FileKind::journal && line.isWhole ) {
      return; // the first line is wrong, and that is told when it is read
   }
   throw InputError( path_, notA( FileKind::journal, all ) );
}

void JournalReader::begin( Line const & line ) {
   try {
      auto parsed = parser_->parse( line.text );
      if ( auto * begun = std::get_if< JournalLineParser::BeginLine >( &parsed ) ) {
         scenario_ = std::move( begun->scenario );
         plugin_ = std::move( begun->plugin );
         theSwitchIs();
         return;
      }
   } catch ( ValueError const & error ) {
      if ( !line.isWhole ) {
         throw InputError( path_, "is cut in its first line: nothing of it can be read" );
      }
      throw InputError( error.place().empty() ? place() : place() + ": " + error.place(), error.what() );
   }
   format_ = 1;
   pending_ = line;
}

void JournalReader::theSwitchIs() {
   Rex::below( "scenario", [&] {
      Fields fields( scenario_ );
      Fields theSwitch( fields.required( "switch" ) );
      for ( Rex::Value const & fap : listOf( theSwitch.required( "faps" ) ) ) {
         Fields of( fap );
         auto const number = of.required< U16 >( "fapId" );
         auto const chipType = chipTypeFromValue( Fields( of.required( "revision" ) ).required( "chipType" ) );
         parser_->chipIs( number, chipType );
      }
   } );
   parser_->chipsAreAll();
}

// Finds the end of the line in the buffer, and reads on where it isn't there.
bool JournalReader::nextLine( Line & line ) {
   while ( true ) {
      char const * const begin = buffer_.data() + from_;
      auto const * const end = static_cast< char const * >(
         searched_ < to_ ? std::memchr( buffer_.data() + searched_, '\n', to_ - searched_ ) : nullptr );
      if ( end || ( isAtEnd_ && from_ < to_ ) ) {
         auto const size = static_cast< std::size_t >( ( end ? end : buffer_.data() + to_ ) - begin );
         line = { { begin, size }, end != nullptr };
         from_ += size + ( end ? 1 : 0 );
         searched_ = from_;
         ++lineNumber_;
         return true;
      }
      if ( isAtEnd_ ) {
         return false;
      }
      searched_ = to_;
      if ( from_ > 0 ) {
         std::memmove( buffer_.data(), begin, to_ - from_ );
         searched_ -= from_;
         to_ -= from_;
         from_ = 0;
      }
      if ( buffer_.size() < to_ + readAtOnce + simdjson::SIMDJSON_PADDING ) {
         buffer_.resize( 2 * to_ + readAtOnce + simdjson::SIMDJSON_PADDING );
      }
      auto const size = source_.read( { buffer_.data() + to_, readAtOnce } );
      to_ += size;
      isAtEnd_ = size == 0;
   }
}

// What has been handed over so far.
struct JournalReader::Reading {
   void eventBegins( U32 number, Rex::Value const & what ) {
      if ( event && number <= *event ) {
         throw ValueError( "/event",
                           "event " + std::to_string( number ) + " stands behind event " + std::to_string( *event ) );
      }
      endEvent();
      event = number;
      reader.eventBegins( number, what );
   }
   void endEvent() const {
      if ( event ) {
         reader.eventEnds( *event );
      }
   }
   // Format 1 has no lines for events: rows tell of them.
   void rowOfFormat1( Row const & row ) {
      if ( !event || row.event > *event ) {
         eventBegins( row.event, {} );
      }
      if ( wanted.is( row ) ) {
         reader.row( row );
      }
   }
   void row( Row const & row ) {
      if ( event != row.event ) {
         throw ValueError( "/event",
                           event ? "stands in event " + std::to_string( *event ) : "stands before the first event" );
      }
      if ( wanted.is( row ) ) {
         reader.row( row );
      }
   }

   Simulator::RowReader & reader;
   RowsWanted const wanted;
   std::optional< U32 > event = {};
   U64 operations = 0;
};

// A row of the program's own form. False where the line has to be read as JSON.
bool JournalReader::readQuickly( Line const & line, Reading & reading ) {
   WrittenRow written( line.text );
   if ( !line.isWhole || format_ == 1 || !written.isKnown() ) {
      return false;
   }
   if ( reading.wanted.isKind( written ) && !written.readPlace() ) {
      return false;
   }
   if ( !reading.wanted.isKind( written ) || !reading.wanted.mayBe( written ) ) {
      reading.operations = written.isOperation() ? written.seq : reading.operations;
      return true;
   }
   auto const row = parser_->row( written );
   if ( row ) {
      reading.operations = row->isOperation() ? row->seq : reading.operations;
      reading.row( *row );
   }
   return row.has_value();
}

Ending JournalReader::read( Simulator::RowReader & reader, RowFilter const & filter ) {
   Reading reading{ .reader = reader, .wanted = RowsWanted( filter ) };
   std::optional< Ending > ending;
   bool isCutInLine = false;
   Line line = pending_;
   while ( !line.text.empty() || nextLine( line ) ) {
      Line const current = std::exchange( line, {} );
      if ( current.text.empty() ) {
         continue;
      }
      try {
         if ( !ending && readQuickly( current, reading ) ) {
            continue;
         }
         auto parsed = parser_->parse( current.text );
         if ( std::holds_alternative< JournalLineParser::BeginLine >( parsed ) ) {
            remarks_.push_back( place() + ": another journal begins here; only the first is read" );
            break;
         }
         if ( ending ) {
            remarks_.push_back( place() + ": stands behind the journal's end; it isn't read" );
            break;
         }
         if ( auto const * row = std::get_if< Row >( &parsed ) ) {
            reading.operations = row->isOperation() ? row->seq : reading.operations;
            if ( format_ != 1 ) {
               reading.row( *row );
            } else {
               std::ranges::for_each( parser_->gatesBefore(),
                                      [&]( Row const & gate ) { reading.rowOfFormat1( gate ); } );
               reading.rowOfFormat1( *row );
               std::ranges::for_each( parser_->gatesAfter(),
                                      [&]( Row const & gate ) { reading.rowOfFormat1( gate ); } );
            }
         } else if ( auto const * begun = std::get_if< JournalLineParser::EventLine >( &parsed ) ) {
            reading.eventBegins( begun->event, begun->what );
         } else {
            ending = std::get< Ending >( parsed );
            if ( ending->kind != Ending::Kind::assertion ) {
               reading.endEvent();
            }
         }
      } catch ( ValueError const & error ) {
         if ( !current.isWhole ) {
            isCutInLine = true;
            break;
         }
         throw InputError( error.place().empty() ? place() : place() + ": " + error.place(), error.what() );
      }
   }
   if ( format_ == 1 ) {
      remarks_.push_back( path_ + ": is of format 1, an older one, which doesn't tell what the run began with, "
                                  "nor how it ended" );
   }
   bool const isCut = isCutInLine || ( !ending && ( source_.isCut() || format_ != 1 ) );
   if ( !ending ) {
      if ( !isCut ) {
         reading.endEvent();
      }
      ending = Ending{ .kind = isCut ? Ending::Kind::cut : Ending::Kind::complete,
                       .events = reading.event.value_or( 0 ),
                       .operations = reading.operations };
   }
   tell( *ending, isCutInLine );
   reader.ends( *ending );
   return *ending;
}

void JournalReader::tell( Ending const & ending, bool isCutInLine ) {
   std::string const event = ending.events == 0 ? "the start" : "event " + std::to_string( ending.events );
   switch ( ending.kind ) {
   case Ending::Kind::complete:
      break;
   case Ending::Kind::interrupted:
      remarks_.insert( remarks_.begin(), path_ + ": the run was interrupted after " + event );
      break;
   case Ending::Kind::assertion:
      remarks_.insert( remarks_.begin(),
                       path_ + ": the run ended in " + event + " by a failed assertion: " + ending.text +
                          ( ending.function.empty() ? "" : ", in " + ending.function ) +
                          ( ending.source.empty() ? "" : " (" + ending.source + ")" ) );
      break;
   case Ending::Kind::cut:
      remarks_.insert( remarks_.begin(),
                       ( isCutInLine ? place() + ": the journal is cut here, in "
                                     : path_ + ": the journal has no end; it is cut in or after " ) +
                          event + "; what is told ends there" );
      break;
   }
}

} // namespace Inspection
