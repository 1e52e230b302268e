#include "inspection/files/JournalReader.h"

#include "inspection/files/ChipsFile.h"
#include "inspection/files/JournalLine.h"
#include "inspection/files/Json.h"

#include <cstring>

namespace Inspection {

namespace {

using Rex::ValueError;
using Simulator::Ending;
using Simulator::Row;

constexpr std::size_t chunk = 1 << 20;

} // namespace

struct JournalReader::Parser : JournalLineParser {};

JournalReader::JournalReader( std::string path )
   : path_( std::move( path ) ), source_( path_ ), parser_( std::make_unique< Parser >() ) {
   Line line{};
   if ( !nextLine( line ) ) {
      throw InputError( path_, "is empty: no journal; `l3sm run --journal FILE` writes one" );
   }
   if ( line.text.starts_with( "{\"op\": \"begin\"" ) ) {
      begin( line );
   } else {
      format_ = 1;
      pending_ = line;
   }
}

JournalReader::~JournalReader() = default;

void JournalReader::begin( Line const & line ) {
   inFile( place(), [&] {
      auto parsed = std::get< JournalLineParser::BeginLine >( parser_->parse( line.text ) );
      scenario_ = std::move( parsed.scenario );
      plugin_ = std::move( parsed.plugin );
      Rex::below( "scenario", [&] {
         Fields fields( scenario_ );
         Fields theSwitch( fields.required( "switch" ) );
         for ( Rex::Value const & fap : listOf( theSwitch.required( "faps" ) ) ) {
            Fields of( fap );
            auto const number = of.required< U16 >( "fapId" );
            auto const chipType = chipTypeFromValue( Fields( of.required( "revision" ) ).required( "chipType" ) );
            chipTypes_[number] = chipType;
            parser_->chipIs( number, chipType );
         }
      } );
   } );
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
      buffer_.resize( std::max( buffer_.size(), to_ + chunk + simdjson::SIMDJSON_PADDING ) );
      auto const size = source_.read( { buffer_.data() + to_, chunk } );
      to_ += size;
      isAtEnd_ = size == 0;
   }
}

// By what the program's own lines begin with; whatever looks otherwise is read.
bool JournalReader::isWanted( std::string_view line, RowFilter const & filter ) const {
   bool const isRead = line.starts_with( "{\"op\": \"read\"" );
   bool const isWrite = line.starts_with( "{\"op\": \"write\"" );
   if ( !isRead && !isWrite ) {
      return filter.operationsToo || !line.starts_with( "{\"op\": \"control\"" );
   }
   if ( !filter.operationsToo || ( isRead && !filter.readsToo ) ) {
      return false;
   }
   return filter.table.empty() || line.find( "\"table\": \"" + filter.table + "\"" ) != std::string_view::npos;
}

Ending JournalReader::read( Simulator::RowReader & reader, RowFilter const & filter ) {
   std::optional< Ending > ending;
   std::optional< U32 > event;
   U64 operations = 0;
   Line line = pending_;
   while ( !line.text.empty() || nextLine( line ) ) {
      Line const current = std::exchange( line, {} );
      if ( current.text.empty() || !isWanted( current.text, filter ) ) {
         continue;
      }
      if ( ending ) {
         remarks_.push_back( place() + ": stands behind the journal's end; it isn't read" );
         break;
      }
      JournalLineParser::Parsed parsed;
      try {
         parsed = parser_->parse( current.text );
      } catch ( ValueError const & error ) {
         if ( !current.isWhole ) {
            break;
         }
         throw InputError( error.place().empty() ? place() : place() + ": " + error.place(), error.what() );
      }
      if ( auto const * row = std::get_if< Row >( &parsed ) ) {
         if ( format_ == 1 && event != row->event ) {
            if ( event ) {
               reader.eventEnds( *event );
            }
            event = row->event;
            reader.eventBegins( *event, {} );
         }
         operations += row->isOperation();
         reader.row( *row );
      } else if ( auto const * begun = std::get_if< JournalLineParser::EventLine >( &parsed ) ) {
         if ( event ) {
            reader.eventEnds( *event );
         }
         event = begun->event;
         reader.eventBegins( *event, begun->what );
      } else if ( auto * end = std::get_if< Ending >( &parsed ) ) {
         if ( event && end->kind != Ending::Kind::assertion ) {
            reader.eventEnds( *event );
         }
         ending = *end;
      } else {
         remarks_.push_back( place() + ": a second journal begins here; only the first is read" );
         break;
      }
   }
   if ( !ending ) {
      ending = Ending{ .kind = format_ == 1 ? Ending::Kind::complete : Ending::Kind::cut,
                       .events = event.value_or( 0 ),
                       .operations = operations };
      if ( format_ == 1 && event ) {
         reader.eventEnds( *event );
      }
   }
   reader.ends( *ending );
   return *ending;
}

} // namespace Inspection
