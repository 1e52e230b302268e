#include "inspection/files/RecordingReader.h"

#include "inspection/files/FileKind.h"
#include "inspection/files/InputFile.h"
#include "inspection/files/Json.h"

#include <charconv>
#include <utility>

namespace Inspection {

namespace {

using Rex::Value;
using Rex::ValueError;

U64 hashOf( std::string const & text ) {
   U64 hash = 0;
   auto const * const end = text.data() + text.size();
   auto const read = text.starts_with( "0x" ) ? std::from_chars( text.data() + 2, end, hash, 16 )
                                              : std::from_chars_result{ end, std::errc::invalid_argument };
   if ( read.ec != std::errc() || read.ptr != end ) {
      throw ValueError( "", "expected a hash, got \"" + text + "\"" );
   }
   return hash;
}

RecordedPosition positionOf( Value const & value ) {
   Fields fields( value );
   return { fields.required< std::string >( "server" ),
            fields.required< std::string >( "epoch" ),
            fields.required< std::string >( "entry" ) };
}

} // namespace

RecordingReader::RecordingReader( std::string const & path ) : path_( inputName( path ) ), source_( path ) {
   std::string line;
   bool isWhole = false;
   if ( !nextLine( line, isWhole ) ) {
      throw InputError( path_,
                        source_.isCut() ? "is cut before its first line: nothing of it can be read"
                                        : "is empty, no recording" );
   }
   if ( kindOf( line ) != FileKind::recording ) {
      throw InputError( path_, notA( FileKind::recording, line ) + "; `l3sm serve --record DIR` writes one" );
   }
   if ( !isWhole ) {
      throw InputError( path_, "is cut in its first line: nothing of it can be read" );
   }
   inFile( place(), [&] { begin( parseJson( line, place() ) ); } );
}

void RecordingReader::begin( Value const & value ) {
   Fields fields( value );
   auto const format = fields.required< U32 >( "format" );
   if ( format != 2 ) {
      throw ValueError( "/format", "this program reads format 2, not " + std::to_string( format ) );
   }
   begun_.version = fields.required< std::string >( "l3sm" );
   begun_.plugin = fields.required< std::string >( "plugin" );
   begun_.scenario = fields.required( "scenario" );
   Rex::below( "recording", [&] {
      Fields recording( fields.required( "recording" ) );
      begun_.slice = recording.required< std::string >( "slice" );
      begun_.segment = recording.required< U32 >( "segment" );
      recording.with( "event", [&]( Value const & event ) { begun_.event = Rex::Codec< U32 >::fromValue( event ); } );
   } );
   begun_.position = Rex::below( "database", [&] { return positionOf( fields.required( "database" ) ); } );
   position_ = begun_.position;
   lastEvent_ = begun_.event.value_or( 0 );
   hasEvent_ = begun_.event.has_value();
}

bool RecordingReader::nextLine( std::string & line, bool & isWhole ) {
   std::size_t searched = from_;
   while ( true ) {
      auto const end = buffer_.find( '\n', searched );
      if ( end != std::string::npos ) {
         line.assign( buffer_, from_, end - from_ );
         isWhole = true;
         from_ = end + 1;
         ++lineNumber_;
         return true;
      }
      buffer_.erase( 0, from_ );
      from_ = 0;
      searched = buffer_.size();
      buffer_.resize( searched + readAtOnce );
      auto const size = source_.read( { buffer_.data() + searched, readAtOnce } );
      buffer_.resize( searched + size );
      if ( size == 0 ) {
         line = std::exchange( buffer_, {} );
         isWhole = false;
         ++lineNumber_;
         return !line.empty();
      }
   }
}

std::optional< RecordedEvent > RecordingReader::next() {
   std::string line;
   bool isWhole = false;
   while ( !isOver_ && nextLine( line, isWhole ) ) {
      if ( !isWhole ) {
         break; // whatever it was to become
      }
      auto event = inFile( place(), [&] { return read( parseJson( line, place() ) ); } );
      if ( event ) {
         return event;
      }
   }
   isOver_ = true;
   return std::nullopt;
}

std::optional< RecordedEvent > RecordingReader::read( Value const & value ) {
   Fields fields( value );
   auto const op = fields.required< std::string >( "op" );
   if ( op == "mark" || op == "command" || op == "fault" ) {
      return std::nullopt;
   }
   if ( op == "end" ) {
      ended_ = fields.required< std::string >( "ended" );
      failure_ = fields.optional< std::string >( "text", "" );
      isOver_ = true;
      return std::nullopt;
   }
   if ( op != "event" ) {
      throw ValueError( "/op", "\"" + op + "\" is none of event, command, mark, fault, end" );
   }
   RecordedEvent event;
   event.event = fields.required< U32 >( "event" );
   if ( event.event != ( hasEvent_ ? U64{ lastEvent_ } + 1 : 0 ) ) {
      throw ValueError( "/event",
                        "event " + std::to_string( event.event ) + " stands " +
                           ( hasEvent_ ? "behind event " + std::to_string( lastEvent_ ) : "at the beginning" ) );
   }
   hasEvent_ = true;
   lastEvent_ = event.event;
   event.what = fields.required( "what" );
   if ( bool const isStart = event.what.object() && event.what.object()->contains( "start" );
        isStart != ( event.event == 0 ) ) {
      throw ValueError( "/what", isStart ? "the start is event 0, and no other one" : "event 0 is the start" );
   }
   event.operations = fields.required< U64 >( "operations" );
   event.hash = Rex::below( "hash", [&] { return hashOf( fields.required< std::string >( "hash" ) ); } );
   event.isWhole = fields.optional( "isWhole", true );
   fields.with( "database", [&]( Value const & database ) { position_ = positionOf( database ); } );
   position_.entry = fields.optional( "entry", position_.entry );
   event.position = position_;
   return event;
}

} // namespace Inspection
