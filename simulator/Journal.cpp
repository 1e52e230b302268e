#include "simulator/Journal.h"

#include "generated/Catalogue.h"
#include "rex/Assert.h"
#include "simulator/FunctionName.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <stdexcept>
#include <utility>

namespace Simulator {

namespace {

constexpr std::size_t flushBytes = 1 << 20; // of text, at most, before it goes to the file

// Parts of a line.
void add( std::string & line, std::string_view text ) {
   line += text;
}
void add( std::string & line, bool value ) {
   line += value ? "true" : "false";
}
template< std::integral Number >
void add( std::string & line, Number number ) {
   std::array< char, 24 > digits;
   auto const end = std::to_chars( digits.begin(), digits.end(), number ).ptr;
   line.append( digits.begin(), end );
}

// A string of JSON, with its quotes.
void addQuoted( std::string & line, std::string_view text ) {
   constexpr char digits[] = "0123456789abcdef";
   line += '"';
   for ( char const letter : text ) {
      auto const code = static_cast< unsigned char >( letter );
      if ( letter == '"' || letter == '\\' ) {
         line += '\\';
         line += letter;
      } else if ( code < 0x20 ) {
         line += "\\u00";
         line += digits[code >> 4];
         line += digits[code & 15];
      } else {
         line += letter;
      }
   }
   line += '"';
}

void addWord( std::string & line, U32 word ) {
   constexpr char digits[] = "0123456789abcdef";
   line += "\"0x";
   for ( int shift = 28; shift >= 0; shift -= 4 ) {
      line += digits[word >> shift & 15];
   }
   line += '"';
}

void addGates( std::string & line, std::vector< Journal::Gate > const & gates ) {
   char const * separator = "[{\"function\": ";
   for ( Journal::Gate const & gate : gates ) {
      line += separator;
      separator = ", {\"function\": ";
      addQuoted( line, gate.function );
      line += ", \"source\": ";
      addQuoted( line, gate.source );
      line += ", \"reason\": ";
      addQuoted( line, gate.reason );
      if ( gate.fap ) {
         line += ", \"fap\": ";
         add( line, *gate.fap );
      }
      line += ", \"event\": ";
      add( line, gate.event );
      line += ", \"cause\": ";
      addQuoted( line, gate.cause );
      line += "}";
   }
   line += "]";
}

constexpr std::string_view kindNames[] = { "read", "write", "control" };
constexpr std::string_view scopeNames[] = { "any", "all", "core" };

std::string fileError( std::string const & path ) {
   return path + ": " + std::strerror( errno );
}

} // namespace

std::size_t Journal::OriginHash::operator()( OriginKey const & key ) const {
   std::hash< void const * > const hash;
   return hash( key.function ) ^ hash( key.file ) * 3 ^ key.line * std::size_t{ 0x9e3779b97f4a7c15 };
}

Journal::Journal( std::function< std::string() > cause ) : cause_( std::move( cause ) ) {
   failureHook_ = Rex::atFailure( [this] { flushAtFailure(); } );
}

Journal::~Journal() {
   Rex::failureHookDel( failureHook_ );
   if ( DaceSal::operationListener() == this ) {
      DaceSal::operationListenerIs( nullptr );
   }
   if ( Rex::gateListener() == this ) {
      Rex::gateListenerIs( nullptr );
   }
   flushAtFailure();
   if ( file_ ) {
      std::fclose( file_ );
   }
}

void Journal::fileIs( std::string const & path ) {
   std::FILE * const file = std::fopen( path.c_str(), "w" );
   if ( !file ) {
      throw std::runtime_error( fileError( path ) );
   }
   if ( file_ ) {
      std::fclose( file_ );
   }
   file_ = file;
   path_ = path;
   flushed_ = 0;
   toldAhead_ = 0;
}

void Journal::flush() {
   if ( !file_ ) {
      return;
   }
   std::string text;
   while ( flushed_ < records_.size() ) {
      text.clear();
      for ( ; flushed_ < records_.size() && text.size() < flushBytes; ++flushed_ ) {
         Row next = row( flushed_ );
         next.gates.erase( next.gates.begin(), next.gates.begin() + toldAhead_ );
         toldAhead_ = static_cast< std::ptrdiff_t >( next.gatesAfter.size() );
         text += json( next );
         text += '\n';
      }
      if ( std::fwrite( text.data(), 1, text.size(), file_ ) != text.size() ) {
         giveUpFile();
      }
   }
   if ( std::fflush( file_ ) != 0 ) {
      giveUpFile();
   }
}

// It is told once: what follows goes nowhere.
void Journal::giveUpFile() {
   std::string const error = fileError( path_ );
   std::fclose( std::exchange( file_, nullptr ) );
   throw std::runtime_error( error );
}

// Nobody is left to hear of a file that can't be written but the one who reads standard error.
void Journal::flushAtFailure() {
   try {
      flush();
   } catch ( std::exception const & error ) {
      std::fprintf( stderr, "%s\n", error.what() );
   }
}

void Journal::operation( DaceSal::Operation const & operation ) {
   bool const isControl = operation.kind == Kind::control;
   records_.push_back( Record{ .words = words_.size(),
                               .event = event_,
                               .origin = originNumber( operation.origin ),
                               .cause = causeNumber( cause_() ),
                               .entryOrControl = isControl ? operation.controlNumber : operation.entry,
                               .value = operation.controlValue,
                               .array = operation.arrayIndex,
                               .core = operation.core,
                               .fap = operation.chip.value,
                               .table = operation.table,
                               .width = static_cast< U16 >( operation.words.size() ),
                               .variant = operation.variant,
                               .kind = operation.kind,
                               .scope = operation.scope,
                               .changed = operation.changed,
                               .isRegister = operation.isRegister } );
   words_.insert( words_.end(), operation.words.begin(), operation.words.end() );
}

U32 Journal::originNumber( std::source_location const & at ) {
   OriginKey const key{ at.function_name(), at.file_name(), at.line() };
   auto const [known, isNew] = originNumbers_.try_emplace( key, static_cast< U32 >( origins_.size() ) );
   if ( isNew ) {
      origins_.push_back( Origin{ functionName( key.function ),
                                  std::string( fileName( key.file ) ) + ":" + std::to_string( key.line ) } );
   }
   return known->second;
}

U32 Journal::causeNumber( std::string cause ) {
   if ( latestCause_ < causes_.size() && *causes_[latestCause_] == cause ) {
      return latestCause_;
   }
   auto const [known, isNew] = causeNumbers_.try_emplace( std::move( cause ), static_cast< U32 >( causes_.size() ) );
   if ( isNew ) {
      causes_.push_back( &known->first );
   }
   return latestCause_ = known->second;
}

void Journal::chipIs( U16 fap, Hardware::ChipType chipType ) {
   chips_[fap] = Hardware::chipTypeName( chipType );
}

void Journal::gateClosed( Rex::ClosedGate const & gate ) {
   gates_.push_back( GateRecord{ .before = records_.size(),
                                 .origin = originNumber( gate.origin ),
                                 .cause = causeNumber( cause_() ),
                                 .event = event_,
                                 .reason = std::string( gate.reason ),
                                 .fap = gate.fap } );
}

std::vector< Journal::Gate > Journal::gatesBefore( std::size_t operation ) const {
   std::vector< Gate > gates;
   for ( GateRecord const & record : std::ranges::equal_range( gates_, operation, {}, &GateRecord::before ) ) {
      gates.push_back( Gate{ .function = origins_[record.origin].function,
                             .source = origins_[record.origin].source,
                             .reason = record.reason,
                             .fap = record.fap,
                             .event = record.event,
                             .cause = *causes_[record.cause] } );
   }
   return gates;
}

Journal::Row Journal::row( std::size_t index ) const {
   Record const & record = records_[index];
   bool const isControl = record.kind == Kind::control;
   U32 const * const words = words_.data() + record.words;
   Row row{ .seq = index + 1,
            .event = record.event,
            .kind = record.kind,
            .fap = record.fap,
            .function = origins_[record.origin].function,
            .source = origins_[record.origin].source,
            .cause = *causes_[record.cause],
            .changed = record.changed,
            .table = {},
            .variant = record.variant,
            .array = record.array,
            .entry = std::nullopt,
            .scope = record.scope,
            .core = record.core,
            .words = { words, words + record.width },
            .control = isControl ? record.entryOrControl : 0,
            .value = record.value };
   if ( !isControl ) {
      row.table = Catalogue::tables()[record.table].name;
      if ( !record.isRegister ) {
         row.entry = record.entryOrControl;
      }
   }
   if ( auto const chip = chips_.find( record.fap ); chip != chips_.end() ) {
      row.chip = chip->second;
   }
   row.gates = gatesBefore( index );
   if ( index + 1 == records_.size() ) {
      row.gatesAfter = gatesBefore( index + 1 );
   }
   return row;
}

std::vector< Journal::Row > Journal::rows() const {
   std::vector< Row > all;
   all.reserve( size() );
   for ( std::size_t index = 0; index < size(); ++index ) {
      all.push_back( row( index ) );
   }
   return all;
}

std::string Journal::json( Row const & row ) {
   std::string line;
   line.reserve( 320 );
   auto const key = [&line]( std::string_view name, auto const & value ) {
      line += line.empty() ? "{\"" : ", \"";
      line += name;
      line += "\": ";
      add( line, value );
   };
   auto const text = [&]( std::string_view name, std::string_view value ) {
      key( name, std::string_view{} );
      addQuoted( line, value );
   };

   key( "seq", row.seq );
   key( "event", row.event );
   text( "op", kindNames[static_cast< std::size_t >( row.kind )] );
   key( "fap", row.fap );
   if ( row.kind == Kind::control ) {
      key( "control", row.control );
      key( "value", row.value );
   } else {
      text( "table", row.table );
      key( "variant", row.variant );
      key( "array", row.array );
      if ( row.entry ) {
         key( "entry", *row.entry );
      } else {
         key( "entry", std::string_view( "null" ) );
      }
      text( "scope", scopeNames[static_cast< std::size_t >( row.scope )] );
      if ( row.scope == Scope::core ) {
         key( "core", row.core );
      }
      key( "words", std::string_view( "[" ) );
      for ( std::size_t word = 0; word < row.words.size(); ++word ) {
         line += word == 0 ? "" : ", ";
         addWord( line, row.words[word] );
      }
      line += ']';
   }
   if ( row.kind != Kind::read ) {
      key( "changed", row.changed );
   }
   text( "function", row.function );
   text( "source", row.source );
   text( "cause", row.cause );
   if ( row.chip ) {
      text( "chip", row.chip );
   }
   for ( auto const & [name, gates] :
         { std::pair( "gates", &row.gates ), std::pair( "gatesAfter", &row.gatesAfter ) } ) {
      if ( !gates->empty() ) {
         key( name, std::string_view{} );
         addGates( line, *gates );
      }
   }
   line += '}';
   return line;
}

} // namespace Simulator
