#include "inspection/files/ChipsWriter.h"

#include "inspection/files/ChipsFile.h"
#include "simulator/EachEntry.h"

#include <algorithm>
#include <array>

namespace Inspection {

namespace {

// Opens and closes the objects around the entries: table, variant, array index.
class Levels {
 public:
   explicit Levels( std::string & text ) : text_( text ) {}

   void entry( Catalogue::Table const & table, Catalogue::Layout const & layout, U32 array, U32 entry ) {
      if ( &table != table_ ) {
         close( 0 );
         open( 0, table.name );
         table_ = &table;
         layout_ = nullptr;
      }
      if ( &layout != layout_ ) {
         close( 1 );
         open( 1, std::to_string( layout.variant ) );
         layout_ = &layout;
         array_.reset();
      }
      if ( array != array_ ) {
         close( 2 );
         open( 2, std::to_string( array ) );
         array_ = array;
      }
      member( 3, std::to_string( entry ) );
   }
   void end() {
      close( 0 );
      text_ += isEmpty_[0] ? "{}" : "}";
   }

 private:
   static constexpr std::size_t outermost = 3; // spaces before a table's name

   void member( std::size_t level, std::string const & key ) {
      text_ += std::exchange( isEmpty_[level], false ) ? "{\n" : ",\n";
      text_.append( outermost + level, ' ' );
      text_ += '"' + key + "\": ";
   }
   void open( std::size_t level, std::string const & key ) {
      member( level, key );
      isEmpty_[level + 1] = true;
      depth_ = level + 1;
   }
   // Down to where members of a level stand.
   void close( std::size_t level ) {
      text_.append( depth_ - std::min( depth_, level ), '}' );
      depth_ = std::min( depth_, level );
   }

   std::string & text_;
   std::array< bool, 4 > isEmpty_{ true, true, true, true };
   std::size_t depth_ = 0;
   Catalogue::Table const * table_ = nullptr;
   Catalogue::Layout const * layout_ = nullptr;
   std::optional< U32 > array_;
};

// Whether the words of every copy stand there, one copy behind the other.
bool isThere( U32 const * words, Simulator::Chip::Entry const & entry ) {
   for ( U32 copy = 0; copy < entry.copies(); ++copy ) {
      if ( !std::ranges::equal( entry.words( copy ), std::span( words + copy * entry.width(), entry.width() ) ) ) {
         return false;
      }
   }
   return true;
}

} // namespace

void ChipsWriter::putTables( Known & known, Hardware::ChipType chipType, Simulator::Chip const & chip ) {
   Known now;
   now.text.reserve( known.text.size() + known.text.size() / 8 );
   now.entries.reserve( known.entries.size() );
   now.words.reserve( known.words.size() );
   Levels levels( now.text );
   std::size_t place = 0;
   std::size_t word = 0; // of the latest chip
   Simulator::eachEntry(
      chipType, [&]( auto const & table, auto const & layout, U32 array, U32 number, auto const & at ) {
         auto const entry = chip.entry( at );
         auto const before = place < known.entries.size() ? known.entries[place] : Known::Entry{ 0, 0 };
         ++place;
         std::size_t const words = std::size_t{ entry.copies() } * entry.width();
         bool const isSame = before.size > 0 && entry.hasValue() && isThere( known.words.data() + word, entry );
         word += before.size > 0 ? words : 0;
         if ( !entry.hasValue() ) {
            now.entries.push_back( { 0, 0 } );
            return;
         }
         levels.entry( table, layout, array, number );
         std::size_t const begin = now.text.size();
         if ( isSame ) {
            now.text.append( known.text, before.begin, before.size );
         } else {
            appendEntry( now.text, Simulator::contentsOf( entry ), layout );
         }
         now.entries.push_back( { begin, now.text.size() - begin } );
         for ( U32 copy = 0; copy < entry.copies(); ++copy ) {
            now.words.insert( now.words.end(), entry.words( copy ).begin(), entry.words( copy ).end() );
         }
      } );
   levels.end();
   known = std::move( now );
}

void ChipsWriter::add( U16 fap, Hardware::ChipType chipType, Simulator::Chip const & chip ) {
   out_ << ( std::exchange( isFirst_, false ) ? "{\"faps\": {\n \"" : ",\n \"" ) << fap << "\": {\"chipType\": \""
        << chipType << "\",\n  \"controls\": {";
   char const * before = "\"";
   for ( auto const & [control, value] : chip.controls() ) {
      out_ << before << control << "\": " << value;
      before = ", \"";
   }
   out_ << "},\n  \"tables\": ";
   Known & known = known_[chipType];
   putTables( known, chipType, chip );
   out_.write( known.text.data(), static_cast< std::streamsize >( known.text.size() ) );
   out_ << '}';
}

void ChipsWriter::end() {
   out_ << ( isFirst_ ? "{\"faps\": {}}\n" : "}}\n" );
}

void writeChipsOf( Simulator::SimulatedSwitch const & sw, std::ostream & out ) {
   ChipsWriter writer( out );
   std::map< U16, Hardware::ChipType > chipTypes;
   for ( auto const & fap : sw.description().faps ) {
      chipTypes[fap.fapId.value()] = fap.revision.chipType();
   }
   for ( auto const & [fap, chipType] : chipTypes ) {
      writer.add( fap, chipType, sw.chip( Hardware::Dace::FapId( fap ) ) );
   }
   writer.end();
}

} // namespace Inspection
