#include "agent/RowRingBlock.h"

#include "inspection/files/Json.h"

namespace Live {

namespace {

using Simulator::Row;

// How an item of the bytes begins: its kind in three bits, and what else is there.
constexpr U8 kindBits = 7;
constexpr U8 eventKind = 7;
constexpr U8 isChanged = 1 << 3;
constexpr U8 isOfFap = 1 << 4;
constexpr U8 hasEntry = 1 << 5; // of a publication: a key
constexpr U8 hasBefore = 1 << 6;
constexpr U8 hasLayout = 1 << 7;

constexpr std::size_t numberBytes = 10; // at most
constexpr std::size_t fewNumbers = 16;  // of a row beside its words

constexpr unsigned coreShift = 2; // the scope's bits

// Small numbers of either sign as small numbers.
U32 folded( int number ) {
   return static_cast< U32 >( number ) << 1 ^ static_cast< U32 >( number >> 31 );
}
int unfolded( U32 number ) {
   return static_cast< int >( number >> 1 ^ ( 0 - ( number & 1 ) ) );
}

// Numbers one behind the other, at the end of bytes.
class Put {
 public:
   Put( std::vector< U8 > & bytes, std::size_t numbers ) : bytes_( bytes ) {
      std::size_t const size = bytes.size();
      bytes.resize( size + numbers * numberBytes );
      at_ = bytes.data() + size;
   }
   ~Put() { bytes_.resize( static_cast< std::size_t >( at_ - bytes_.data() ) ); }
   Put( Put const & ) = delete;
   Put & operator=( Put const & ) = delete;

   void byte( U8 value ) { *at_++ = value; }
   void number( U64 value ) {
      while ( value >= 0x80 ) {
         *at_++ = static_cast< U8 >( value | 0x80 );
         value >>= 7;
      }
      *at_++ = static_cast< U8 >( value );
   }

 private:
   std::vector< U8 > & bytes_;
   U8 * at_;
};

} // namespace

// ---- into bytes

U32 RowRingBlock::textNumber( std::string_view text ) {
   auto const known = textNumbers_.find( text );
   if ( known != textNumbers_.end() ) {
      return known->second;
   }
   auto const number = static_cast< U32 >( texts.size() );
   std::string_view const keep = texts.emplace_back( text );
   textNumbers_.emplace( keep, number );
   textBytes_ += sizeof( std::string ) + keep.size() + sizeof( std::pair< std::string_view, U32 > );
   return number;
}

U32 RowRingBlock::textNumber( std::string_view text, Latest & known, U32 number ) {
   U32 & there = known[number % known.size()];
   if ( there >= texts.size() || texts[there] != text ) {
      there = textNumber( text );
   }
   return there;
}

void RowRingBlock::event( U32 number, Rex::Value const & what ) {
   if ( rows == 0 ) {
      firstEvent = number;
   }
   latest = bytes.size();
   latestRows = rows;
   latestEvent = number;
   std::string const text = Rex::toText( what );
   {
      Put put( bytes, 3 );
      put.byte( eventKind );
      put.number( number );
      put.number( text.size() );
   }
   bytes.insert( bytes.end(), text.begin(), text.end() );
   ++rows;
}

void RowRingBlock::add( Row const & row ) {
   U32 const cause = textNumber( row.cause, causes_, row.causeNumber );
   U8 head = static_cast< U8 >( row.kind );
   head |= row.changed ? isChanged : 0;
   head |= row.isOfFap ? isOfFap : 0;
   head |= row.layout ? hasLayout : 0;
   ++rows;
   if ( row.kind == Row::Kind::publish ) {
      U32 const path = textNumber( row.path );
      U32 const attribute = textNumber( row.attribute );
      U32 const key = row.key ? textNumber( *row.key ) : 0;
      U32 const before = textNumber( Rex::toText( *row.publishedBefore ) );
      U32 const after = textNumber( Rex::toText( *row.published ) );
      Put put( bytes, fewNumbers );
      put.byte( head | ( row.key ? hasEntry : 0 ) );
      put.number( cause );
      put.number( path );
      put.number( attribute );
      if ( row.key ) {
         put.number( key );
      }
      put.number( before );
      put.number( after );
      return;
   }
   U32 const function = textNumber( row.function, functions_, row.originNumber );
   U32 const source = textNumber( row.source, sources_, row.originNumber );
   bool const isFault = row.kind == Row::Kind::fault;
   U32 const reason = row.kind == Row::Kind::gate || isFault ? textNumber( row.reason ) : 0;
   Put put( bytes, fewNumbers + row.words.size() + row.before.size() );
   bool const isAccess = row.kind == Row::Kind::read || row.kind == Row::Kind::write || isFault;
   head |= row.entry ? hasEntry : 0;
   head |= ( isAccess ? !row.before.empty() : row.valueBefore.has_value() ) ? hasBefore : 0;
   put.byte( head );
   put.number( cause );
   put.number( function );
   put.number( source );
   put.number( row.fap );
   if ( row.kind == Row::Kind::gate ) {
      put.number( reason );
      return;
   }
   if ( isFault ) {
      put.number( reason );
   } else {
      put.number( row.seq - seq_ );
      seq_ = row.seq;
   }
   if ( row.kind == Row::Kind::control ) {
      put.number( row.control );
      put.number( row.value );
      put.number( row.valueBefore.value_or( 0 ) );
      return;
   }
   put.number( row.tableNumber );
   if ( row.layout ) {
      put.number( static_cast< U64 >( row.layout - Catalogue::tables()[row.tableNumber].layouts.data() ) );
   }
   put.number( row.variant );
   put.number( folded( row.array ) );
   if ( row.entry ) {
      put.number( *row.entry );
   }
   put.number( folded( row.core ) << coreShift | static_cast< U32 >( row.scope ) );
   put.number( row.words.size() );
   for ( U32 const word : row.words ) {
      put.number( word );
   }
   for ( std::size_t word = 0; word < row.before.size(); ++word ) {
      put.number( row.before[word] ^ row.words[word] );
   }
}

void RowRingBlock::isFull() {
   bytes.shrink_to_fit();
   textNumbers_ = {};
}

// ---- out of bytes

U64 RowRingBytes::number() {
   U64 value = 0;
   for ( unsigned shift = 0;; shift += 7 ) {
      U8 const next = *at++;
      value |= U64{ next & 0x7fu } << shift;
      if ( next < 0x80 ) {
         return value;
      }
   }
}

std::string_view RowRingBytes::text( std::size_t size ) {
   auto const * const begin = reinterpret_cast< char const * >( at );
   at += size;
   return { begin, size };
}

void RowRingDecoder::blockIs( RowRingBlock const & block ) {
   numbered_.clear();
   for ( std::string const & text : block.texts ) {
      numbered_.push_back( texts_.kept( text ) );
   }
   seq_ = 0;
}

void RowRingDecoder::event( RowRingBytes & from, Simulator::RowReader & reader ) {
   ++from.at; // that an event begins
   event_ = static_cast< U32 >( from.number() );
   auto const size = from.number();
   reader.eventBegins( event_, Inspection::parseJson( std::string( from.text( size ) ), "event" ) );
   while ( from.at != from.end && ( *from.at & kindBits ) != eventKind ) {
      U8 const head = *from.at++;
      reader.row( row( from, head ) );
   }
   reader.eventEnds( event_ );
}

Row RowRingDecoder::row( RowRingBytes & from, U8 head ) {
   Row row{ .kind = static_cast< Row::Kind >( head & kindBits ), .event = event_ };
   auto const & cause = text( from );
   row.cause = cause.text;
   row.causeNumber = cause.number;
   row.isOfFap = head & isOfFap;
   if ( row.kind == Row::Kind::publish ) {
      row.path = text( from ).text;
      row.attribute = text( from ).text;
      if ( head & hasEntry ) {
         row.key = text( from ).text;
      }
      publishedBefore_ = Inspection::parseJson( std::string( text( from ).text ), "published" );
      published_ = Inspection::parseJson( std::string( text( from ).text ), "published" );
      row.publishedBefore = &publishedBefore_;
      row.published = &published_;
      return row;
   }
   row.function = text( from ).text;
   auto const & source = text( from );
   row.source = source.text;
   row.originNumber = source.number;
   row.fap = static_cast< U16 >( from.number() );
   if ( row.kind == Row::Kind::gate ) {
      row.reason = text( from ).text;
      return row;
   }
   row.changed = head & isChanged;
   if ( row.kind == Row::Kind::fault ) {
      row.reason = text( from ).text;
   } else {
      seq_ += from.number();
      row.seq = seq_;
   }
   if ( row.kind == Row::Kind::control ) {
      row.control = static_cast< U32 >( from.number() );
      row.value = static_cast< U32 >( from.number() );
      auto const before = static_cast< U32 >( from.number() );
      row.valueBefore = head & hasBefore ? std::optional( before ) : std::nullopt;
      return row;
   }
   access( from, row, head );
   return row;
}

void RowRingDecoder::access( RowRingBytes & from, Row & row, U8 head ) {
   row.tableNumber = static_cast< U16 >( from.number() );
   auto const & table = Catalogue::tables()[row.tableNumber];
   row.table = table.name;
   row.layout = head & hasLayout ? &table.layouts[from.number()] : nullptr;
   row.variant = static_cast< U8 >( from.number() );
   row.array = unfolded( static_cast< U32 >( from.number() ) );
   if ( head & hasEntry ) {
      row.entry = static_cast< U32 >( from.number() );
   }
   auto const where = static_cast< U32 >( from.number() );
   row.scope = static_cast< Row::Scope >( where & ( ( 1u << coreShift ) - 1 ) );
   row.core = unfolded( where >> coreShift );
   words_.resize( from.number() );
   for ( U32 & word : words_ ) {
      word = static_cast< U32 >( from.number() );
   }
   row.words = words_;
   if ( head & hasBefore ) {
      before_ = words_;
      for ( U32 & word : before_ ) {
         word ^= static_cast< U32 >( from.number() );
      }
      row.before = before_;
   }
}

} // namespace Live
