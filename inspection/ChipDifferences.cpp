#include "inspection/ChipDifferences.h"

#include "inspection/NamesAsTyped.h"

#include <algorithm>

namespace Inspection {

namespace {

using Rex::Value;
using Simulator::EntryContents;

// Walks two maps side by side: `each( key, a or null, b or null )`.
template< class Map, class Each >
void sideBySide( Map const * a, Map const * b, Each const & each ) {
   static Map const none;
   auto left = ( a ? *a : none ).begin();
   auto right = ( b ? *b : none ).begin();
   auto const leftEnd = ( a ? *a : none ).end();
   auto const rightEnd = ( b ? *b : none ).end();
   while ( left != leftEnd || right != rightEnd ) {
      bool const hasLeft = left != leftEnd && ( right == rightEnd || left->first <= right->first );
      bool const hasRight = right != rightEnd && ( left == leftEnd || right->first <= left->first );
      auto const & key = hasLeft ? left->first : right->first;
      each( key, hasLeft ? &left->second : nullptr, hasRight ? &right->second : nullptr );
      if ( hasLeft ) {
         ++left;
      }
      if ( hasRight ) {
         ++right;
      }
   }
}

// The values of an entry by name, those of each copy where the copies differ.
std::vector< std::pair< std::string, std::string > >
valuesOf( Catalogue::Layout const & layout, EntryContents const & contents, bool byCopy ) {
   std::vector< std::pair< std::string, std::string > > values;
   for ( std::size_t copy = 0; copy < ( byCopy ? layout.selectors.size() : 1 ); ++copy ) {
      auto const & words = contents.copies.size() > copy ? contents.copies[copy] : contents.copies[0];
      for ( auto const & field : Simulator::decode( layout, words ) ) {
         std::string const of = byCopy ? " of instance " + std::to_string( copy ) : "";
         values.emplace_back( field.name + of, field.value );
      }
   }
   return values;
}

// All words of an entry as one number, copy by copy.
std::string wordsText( EntryContents const & contents ) {
   std::string text;
   for ( auto const & words : contents.copies ) {
      text += text.empty() ? "0x" : " 0x";
      for ( std::size_t word = words.size(); word-- > 0; ) {
         text += wordText( words[word] ).substr( 2 );
      }
   }
   return text;
}

// Whether a field has a bit that is another one in `b`.
bool differs( Simulator::Words const & a, Simulator::Words const & b, Catalogue::Field const & field ) {
   for ( unsigned bit = field.offset; bit < field.offset + field.width; ) {
      unsigned const word = bit / 32;
      unsigned const until = std::min< unsigned >( ( word + 1 ) * 32, field.offset + field.width );
      U64 const mask = ( U64{ 1 } << ( until - bit ) ) - 1;
      if ( ( ( a[word] ^ b[word] ) & mask << bit % 32 ) != 0 ) {
         return true;
      }
      bit = until;
   }
   return false;
}

class Comparison {
 public:
   explicit Comparison( EachDifference const & each ) : each_( each ) {}

   void fap( U16 number, FapContents const * a, FapContents const * b ) {
      fap_ = number;
      a_ = a;
      b_ = b;
      if ( !a || !b || a->chipType != b->chipType ) {
         Difference it = differenceOf( Difference::chipType, "" );
         auto const name = []( FapContents const * of ) {
            return of ? std::optional< std::string >( Hardware::chipTypeName( of->chipType ) ) : std::nullopt;
         };
         it.inA = a != nullptr;
         it.inB = b != nullptr;
         it.values.push_back( { "chip type", name( a ), name( b ) } );
         each_( std::move( it ) );
      }
      if ( !a || !b ) {
         return; // a FAP that is missing is one difference, not one for each entry
      }
      sideBySide( &a->contents.controls, &b->contents.controls, [&]( U32 control, U32 const * x, U32 const * y ) {
         if ( !x || !y || *x != *y ) {
            Difference it = differenceOf( Difference::controls, std::to_string( control ) );
            it.entry = control;
            it.inA = x != nullptr;
            it.inB = y != nullptr;
            it.values.push_back( { "value",
                                   x ? std::optional( std::to_string( *x ) ) : std::nullopt,
                                   y ? std::optional( std::to_string( *y ) ) : std::nullopt } );
            each_( std::move( it ) );
         }
      } );
      sideBySide( &a->contents.tables, &b->contents.tables, [&]( auto const & table, auto const * x, auto const * y ) {
         sideBySide( x, y, [&]( U32 variant, auto const * x1, auto const * y1 ) {
            sideBySide( x1, y1, [&]( U32 array, auto const * x2, auto const * y2 ) {
               sideBySide( x2, y2, [&]( U32 entry, EntryContents const * x3, EntryContents const * y3 ) {
                  this->entry( table, { variant, array, entry }, x3, y3 );
               } );
            } );
         } );
      } );
   }

 private:
   struct Place {
      U32 variant;
      U32 array;
      U32 entry;
   };

   Difference differenceOf( std::string_view table, std::string const & place ) const {
      return Difference{ .fap = fap_, .table = std::string( table ), .place = place, .values = {} };
   }

   static Catalogue::Layout const * layoutOf( Catalogue::Table const & table, FapContents const & fap, U32 variant ) {
      return Catalogue::layout( table, static_cast< U8 >( fap.chipType ), static_cast< U8 >( variant ) );
   }

   void entry( std::string const & name, Place const & place, EntryContents const * a, EntryContents const * b ) {
      if ( a && b && *a == *b && a_->chipType == b_->chipType ) {
         return;
      }
      auto const & table = *Catalogue::table( name );
      auto const * const layoutA = a ? layoutOf( table, *a_, place.variant ) : nullptr;
      auto const * const layoutB = b ? layoutOf( table, *b_, place.variant ) : nullptr;
      Difference it = differenceOf( name, placeText( table, layoutA ? *layoutA : *layoutB, place.array, place.entry ) );
      it.variant = place.variant;
      it.array = place.array;
      it.entry = place.entry;
      it.inA = a != nullptr;
      it.inB = b != nullptr;
      if ( layoutA && layoutA == layoutB && a->copies.size() == 1 && b->copies.size() == 1 ) {
         for ( Catalogue::Field const & field : layoutA->fields ) {
            if ( differs( a->copies[0], b->copies[0], field ) ) {
               it.values.push_back( { field.name,
                                      Simulator::fieldText( a->copies[0], field ),
                                      Simulator::fieldText( b->copies[0], field ) } );
            }
         }
      } else {
         compareByName( it, layoutA, a, layoutB, b );
      }
      if ( it.values.empty() && a && b && a_->chipType == b_->chipType ) {
         it.values.push_back( { "bits outside of every field", wordsText( *a ), wordsText( *b ) } );
      }
      if ( !it.values.empty() ) {
         each_( std::move( it ) );
      }
   }

   // Where one side lacks the entry, or its copies differ, or the kinds of chip do.
   static void compareByName( Difference & it,
                              Catalogue::Layout const * layoutA,
                              EntryContents const * a,
                              Catalogue::Layout const * layoutB,
                              EntryContents const * b ) {
      bool const byCopy = ( a && a->copies.size() > 1 ) || ( b && b->copies.size() > 1 );
      std::vector< std::pair< std::string, std::string > > const none;
      auto const left = a ? valuesOf( *layoutA, *a, byCopy ) : none;
      auto const right = b ? valuesOf( *layoutB, *b, byCopy ) : none;
      std::map< std::string, std::string > const ofB( right.begin(), right.end() );
      std::set< std::string > seen;
      for ( auto const & [field, value] : left ) {
         seen.insert( field );
         auto const found = ofB.find( field );
         std::optional< std::string > const other = found == ofB.end() ? std::nullopt : std::optional( found->second );
         if ( other != value ) {
            it.values.push_back( { field, value, other } );
         }
      }
      for ( auto const & [field, value] : right ) {
         if ( !seen.contains( field ) ) {
            it.values.push_back( { field, std::nullopt, value } );
         }
      }
   }

   EachDifference const & each_;
   U16 fap_ = 0;
   FapContents const * a_ = nullptr;
   FapContents const * b_ = nullptr;
};

} // namespace

void eachDifference( U16 fap, FapContents const * a, FapContents const * b, EachDifference const & each ) {
   Comparison( each ).fap( fap, a, b );
}

std::vector< Difference > differencesOf( ChipsFile const & a, ChipsFile const & b ) {
   std::vector< Difference > all;
   sideBySide( &a, &b, [&]( U16 fap, FapContents const * x, FapContents const * y ) {
      eachDifference( fap, x, y, [&]( Difference it ) { all.push_back( std::move( it ) ); } );
   } );
   return all;
}

Value::Object sidesOf( ValueDifference const & value ) {
   return { { "a", value.a ? Value( *value.a ) : Value() }, { "b", value.b ? Value( *value.b ) : Value() } };
}

void DifferenceCounts::add( Difference const & it ) {
   Count & count = byTable_[it.table];
   count.faps.insert( it.fap );
   ++count.entries;
   count.fields += it.values.size();
   ++entries_;
}

Value DifferenceCounts::value() const {
   Value::List list;
   for ( auto const & [table, count] : byTable_ ) {
      list.push_back( Value::Object{ { "table", table },
                                     { "faps", Value::List( count.faps.begin(), count.faps.end() ) },
                                     { "entries", count.entries },
                                     { "fields", count.fields } } );
   }
   return list;
}

Value differencesValue( std::vector< Difference > const & all ) {
   Value::List list;
   for ( Difference const & it : all ) {
      Value::Object fields;
      for ( ValueDifference const & value : it.values ) {
         fields[value.name] = sidesOf( value );
      }
      Value::Object one;
      one["fap"] = it.fap;
      one["inA"] = it.inA;
      one["inB"] = it.inB;
      if ( it.table == Difference::controls ) {
         one["control"] = it.entry;
         one["values"] = fields.begin()->second;
      } else if ( it.table == Difference::chipType ) {
         one["chipType"] = fields.begin()->second;
      } else {
         one["table"] = it.table;
         one["variant"] = it.variant;
         one["array"] = it.array;
         one["entry"] = it.entry;
         one["fields"] = fields;
      }
      list.emplace_back( std::move( one ) );
   }
   return list;
}

} // namespace Inspection
