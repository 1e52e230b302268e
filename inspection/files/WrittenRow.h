// A journal's row in the very form that JournalWriter gives it, as most lines of most journals are: what the line
// begins with tells whether anybody wants the row, and its parts are taken from where they stand, in a tenth of the
// time that reading it as JSON takes.
//
//    WrittenRow row( line );
//    if ( row.isKnown() && row.kind == Simulator::Row::Kind::write && row.readPlace() && row.table == "IppdFerTrapCfg"
//    )
//
// A line of any other form isn't known here, and is no mistake: it is read as JSON.
//
// Threading: none.
#pragma once

#include "simulator/Row.h"

#include <bit>
#include <cstring>
#include <optional>
#include <string_view>
#include <vector>

namespace Inspection {

// Walks along a text that has a form.
class FormCursor {
 public:
   explicit FormCursor( std::string_view text ) : at_( text.data() ), end_( text.data() + text.size() ) {}

   // With a text whose length the compiler knows: most of the time that a line takes goes into comparisons.
   template< std::size_t size >
   bool goesOn( char const ( &with )[size] ) {
      if ( left() < size - 1 || std::memcmp( at_, with, size - 1 ) != 0 ) {
         return false;
      }
      at_ += size - 1;
      return true;
   }
   template< class Number >
   bool number( Number & into ) {
      U64 value = 0;
      char const * const begin = at_;
      for ( ; at_ < end_ && static_cast< unsigned char >( *at_ - '0' ) < 10; ++at_ ) {
         value = 10 * value + static_cast< U64 >( *at_ - '0' );
      }
      into = static_cast< Number >( value );
      return at_ > begin && at_ - begin < 19 && into == value;
   }
   // Up to the quotation mark, which is passed over; nothing is escaped.
   bool text( std::string_view & into ) { return name( into ) && into.find( '\\' ) == std::string_view::npos; }
   // The same of a short one, whatever stands in it: eight letters at a time.
   bool name( std::string_view & into ) {
      constexpr U64 each = 0x0101010101010101;
      char const * const begin = at_;
      while ( left() >= sizeof( U64 ) ) {
         U64 letters = 0;
         std::memcpy( &letters, at_, sizeof letters );
         letters ^= '"' * each;
         if ( U64 const mark = ( letters - each ) & ~letters & 0x80 * each ) {
            at_ += std::countr_zero( mark ) / 8; // the first mark is one; those behind it may be none
            break;
         }
         at_ += sizeof letters;
      }
      while ( at_ < end_ && *at_ != '"' ) {
         ++at_;
      }
      into = { begin, static_cast< std::size_t >( at_ - begin ) };
      return at_++ < end_;
   }
   // `["0x00000a00", "0x00000001"]`
   bool words( std::vector< U32 > & into );
   std::string_view rest() const { return { at_, left() }; }

 private:
   std::size_t left() const { return static_cast< std::size_t >( end_ - at_ ); }
   char const * at_;
   char const * end_;
};

struct WrittenRow {
   using Kind = Simulator::Row::Kind;

   // Reads how the line begins: its kind, and an operation's number.
   explicit WrittenRow( std::string_view line ) : isKnown_( begin( line ) ) {}
   bool isKnown() const { return isKnown_; }
   bool isOperation() const { return kind <= Kind::control; }

   Kind kind = Kind::read;
   U64 seq = 0;

   // Reads on: event, FAP, table. False: of another form after all.
   bool readPlace();
   U32 event = 0;
   bool isOfFap = false;
   U16 fap = 0;
   std::string_view table = {}; // of reads and writes
   std::string_view rest = {};  // what has not been taken apart

   // The rest of a read or write, of a control. False: of another form after all.
   bool access( Simulator::Row & row, std::vector< U32 > & words, std::vector< U32 > & before );
   bool control( Simulator::Row & row );

 private:
   bool begin( std::string_view line );
   bool isKnown_;
};

} // namespace Inspection
