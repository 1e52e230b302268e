#include "inspection/ChipsSides.h"

#include "inspection/EndOfRun.h"
#include "inspection/files/ChipsReader.h"
#include "simulator/ContentsApart.h"

#include <algorithm>
#include <numeric>

namespace Inspection {

namespace {

using Part = ChipsReader::Part;

// Chips as they stand after several events: what leads up to an earlier one is done once, and the later go on from
// there.
class InTurn final : public Simulator::RowReader {
 public:
   using Events = std::vector< std::optional< U32 > >; // none: the end
   using All = std::vector< std::unique_ptr< ReplayedChips > >;

   // Puts one for each event into `all`, in the order of the events.
   InTurn( std::unique_ptr< ReplayedChips > begin, Events const & events, All & all )
      : events_( events ), all_( all ), chips_( std::move( begin ) ), open_( events.size() ) {
      all_.resize( events.size() );
      std::iota( open_.begin(), open_.end(), std::size_t{ 0 } );
      std::ranges::stable_sort( open_, std::greater<>(), [&]( std::size_t which ) { return endOf( which ); } );
   }
   void eventBegins( U32 event, Rex::Value const & what ) override {
      while ( !open_.empty() && endOf( open_.back() ) < event ) {
         stop();
      }
      if ( !open_.empty() ) {
         chips_->eventBegins( event, what );
      }
   }
   void row( Simulator::Row const & row ) override {
      if ( !open_.empty() ) {
         chips_->row( row );
      }
   }
   void ends( Simulator::Ending const & ) override {
      while ( !open_.empty() ) {
         stop();
      }
   }

 private:
   U64 endOf( std::size_t which ) const { return events_[which] ? U64{ *events_[which] } : ~U64{ 0 }; }
   void stop() {
      bool const isLast = open_.size() == 1;
      all_[open_.back()] = isLast ? std::move( chips_ ) : std::make_unique< ReplayedChips >( *chips_ );
      open_.pop_back();
   }

   Events const & events_;
   All & all_;
   std::unique_ptr< ReplayedChips > chips_; // under way
   std::vector< std::size_t > open_;        // the events that aren't over, the next at the end
};

ChipsFilter partsWanted( ContentsFilter const & filter ) {
   return { .fap = filter.fap(), .tables = filter.tables() };
}

void checkFap( ContentsFilter const & filter, bool isInA, bool isInB ) {
   if ( filter.fap() && !isInA && !isInB ) {
      throw InputError( "neither side has a FAP " + std::to_string( *filter.fap() ) );
   }
}

} // namespace

ChipsOfJournal::ChipsOfJournal( std::string const & path,
                                ContentsFilter const & filter,
                                std::vector< std::optional< U32 > > const & events )
   : journal_( path ) {
   std::optional< U32 > last = 0;
   for ( auto const & event : events ) {
      last = last && event ? std::optional( std::max( *last, *event ) ) : std::nullopt;
   }
   auto begin = std::make_unique< ReplayedChips >( journal_, filter.fap() );
   begin->isTrusted();
   InTurn chips( std::move( begin ), events, chips_ );
   auto const ending = journal_.read( chips,
                                      { .tables = filter.tables(),
                                        .fap = filter.fap(),
                                        .last = last,
                                        .readsToo = false,
                                        .gatesToo = false,
                                        .publicationsToo = false } );
   for ( auto const & event : events ) {
      if ( event ) {
         checkEvent( journal_.path(), *event, ending );
      }
   }
}

void eachDifference( ReplayedChips & a,
                     ReplayedChips & b,
                     ContentsFilter const & filter,
                     EachDifference const & each ) {
   U16 const wanted = filter.fap().value_or( 0 );
   checkFap( filter, a.chipTypes().contains( wanted ), b.chipTypes().contains( wanted ) );
   auto const faps = [&] {
      std::set< U16 > all;
      for ( auto const * side : { &a, &b } ) {
         for ( auto const & [fap, chipType] : side->chipTypes() ) {
            all.insert( fap );
         }
      }
      return all;
   }();
   for ( U16 const fap : faps ) {
      bool const isInA = a.chipTypes().contains( fap );
      bool const isInB = b.chipTypes().contains( fap );
      if ( isInA && isInB && a.chipTypes().at( fap ) == b.chipTypes().at( fap ) ) {
         auto const chipType = a.chipTypes().at( fap );
         auto apart = Simulator::contentsApart( a.chip( fap ), b.chip( fap ), chipType );
         FapContents const left{ chipType, std::move( apart.a ) };
         FapContents const right{ chipType, std::move( apart.b ) };
         eachDifference( fap, &left, &right, each );
      } else {
         auto const contents = [&]( ReplayedChips const & side, bool isThere ) {
            return isThere ? FapContents{ side.chipTypes().at( fap ), side.contents( fap ) } : FapContents();
         };
         FapContents const left = contents( a, isInA );
         FapContents const right = contents( b, isInB );
         eachDifference( fap, isInA ? &left : nullptr, isInB ? &right : nullptr, each );
      }
   }
}

void eachDifference( std::string const & file,
                     ReplayedChips & chips,
                     ContentsFilter const & filter,
                     bool isFileB,
                     EachDifference const & each ) {
   std::set< U16 > seen;
   auto const compare = [&]( U16 fap, FapContents const * ofFile, FapContents const * ofChips ) {
      eachDifference( fap, isFileB ? ofChips : ofFile, isFileB ? ofFile : ofChips, each );
   };
   auto const contentsOf = [&]( U16 fap ) {
      FapContents contents{ chips.chipTypes().at( fap ), chips.contents( fap ) };
      filter.keep( contents.contents );
      return contents;
   };
   eachFap( file, { .tables = filter.tables() }, [&]( U16 fap, FapContents contents ) {
      seen.insert( fap );
      if ( filter.fap() && *filter.fap() != fap ) {
         return;
      }
      filter.keep( contents.contents );
      if ( chips.chipTypes().contains( fap ) ) {
         auto const here = contentsOf( fap );
         compare( fap, &contents, &here );
      } else {
         compare( fap, &contents, nullptr );
      }
   } );
   for ( auto const & [fap, chipType] : chips.chipTypes() ) {
      if ( !seen.contains( fap ) && ( !filter.fap() || *filter.fap() == fap ) ) {
         auto const here = contentsOf( fap );
         compare( fap, nullptr, &here );
      }
   }
   U16 const fap = filter.fap().value_or( 0 );
   checkFap( filter, seen.contains( fap ), chips.chipTypes().contains( fap ) );
}

namespace {

// Two chips files, walked along side by side.
class SideBySide {
 public:
   SideBySide( std::string const & a,
               std::string const & b,
               ContentsFilter const & filter,
               EachDifference const & each )
      : filter_( filter ),
        each_( each ), a_{ ChipsReader( a, partsWanted( filter ) ) }, b_{ ChipsReader( b, partsWanted( filter ) ) } {}

   void compare() {
      a_.next();
      b_.next();
      while ( a_.isThere || b_.isThere ) {
         bool const isA = a_.isThere && ( !b_.isThere || a_.file.at() <= b_.file.at() );
         bool const isB = b_.isThere && ( !a_.isThere || b_.file.at() <= a_.file.at() );
         Part const part = isA ? a_.file.at() : b_.file.at();
         if ( part.kind == ChipsReader::Kind::chipType ) {
            begins( part.fap, isA, isB );
         } else if ( isInBoth_ ) {
            comparePart( part, isA, isB );
         }
         if ( isA ) {
            a_.next();
         }
         if ( isB ) {
            b_.next();
         }
      }
      U16 const fap = filter_.fap().value_or( 0 );
      checkFap( filter_, a_.file.has( fap ), b_.file.has( fap ) );
   }

 private:
   struct Side {
      ChipsReader file;
      bool isThere = false;
      Part latest = {};
      FapContents contents = {}; // of the part under way

      void next() {
         isThere = file.nextPart();
         bool const isFirst = latest == Part();
         if ( isThere && !isFirst && !( latest < file.at() ) ) {
            throw PartsOutOfOrder();
         }
         if ( isThere && file.at().fap != latest.fap && file.at().kind != ChipsReader::Kind::chipType ) {
            throw PartsOutOfOrder(); // the kind of chip says how to read the rest
         }
         latest = isThere ? file.at() : latest;
      }
   };

   void begins( U16 fap, bool isA, bool isB ) {
      isInBoth_ = isA && isB;
      for ( auto * side : { isA ? &a_ : nullptr, isB ? &b_ : nullptr } ) {
         if ( side ) {
            auto const text = side->file.text();
            side->file.reading( [&] { side->contents.chipType = chipTypeFromText( text ); } );
            side->contents.contents = {};
         }
      }
      tell( fap, isA ? &a_.contents : nullptr, isB ? &b_.contents : nullptr );
   }

   void comparePart( Part const & part, bool isA, bool isB ) {
      Side & first = isA ? a_ : b_;
      auto const text = first.file.text();
      bool const isSameChip = a_.contents.chipType == b_.contents.chipType;
      if ( part.kind == ChipsReader::Kind::controls && !filter_.hasControls() ) {
         return;
      }
      if ( isA && isB && isSameChip && b_.file.passIfSame( text ) ) {
         return;
      }
      a_.contents.contents = b_.contents.contents = {};
      read( first, text );
      if ( isA && isB ) {
         read( b_, b_.file.text() );
      }
      eachDifference( part.fap, &a_.contents, &b_.contents, [&]( Difference it ) {
         if ( it.table != Difference::chipType ) { // which has been told
            each_( std::move( it ) );
         }
      } );
   }

   void read( Side & side, std::string_view text ) const {
      auto const & part = side.file.at();
      auto & contents = side.contents.contents;
      side.file.reading( [&] {
         if ( part.kind == ChipsReader::Kind::controls ) {
            contents.controls = controlsFromText( text );
         } else {
            contents.tables[part.name] = tableFromText( text );
         }
      } );
      checkFits( side.file.path(), "/faps/" + std::to_string( part.fap ) + "/tables", side.contents );
   }

   void tell( U16 fap, FapContents const * a, FapContents const * b ) const { eachDifference( fap, a, b, each_ ); }

   ContentsFilter const & filter_;
   EachDifference const & each_;
   Side a_;
   Side b_;
   bool isInBoth_ = false;
};

} // namespace

void eachDifference( std::string const & a,
                     std::string const & b,
                     ContentsFilter const & filter,
                     EachDifference const & each ) {
   try {
      SideBySide( a, b, filter, each ).compare();
   } catch ( InputError const & ) {
      refuseAsAWhole( a );
      refuseAsAWhole( b );
      throw;
   }
}

} // namespace Inspection
