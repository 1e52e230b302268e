#include "inspection/FoldedWrites.h"

#include "simulator/ChipContents.h"

#include <algorithm>
#include <set>
#include <tuple>

namespace Inspection {

namespace {

using Simulator::DecodedField;
using Simulator::Row;

constexpr char const * various = "various";
constexpr std::size_t mostValues = 3;   // of one field, before they are only called various
constexpr std::size_t longestText = 40; // text of several values

// One call of one place in the source on one table.
using Source = std::tuple< std::string_view, std::string_view, std::string_view, U8 >;

Source sourceOf( Row const & row ) {
   return { row.function, row.source, row.table, row.variant };
}

struct Decoded {
   Row const * row;
   std::vector< DecodedField > before;
   std::vector< DecodedField > after;
};

// The fields that at least one of the writes has changed, by index.
std::set< std::size_t > touched( std::vector< Decoded > const & writes ) {
   std::set< std::size_t > fields;
   for ( auto const & write : writes ) {
      for ( std::size_t field = 0; field < write.after.size(); ++field ) {
         if ( !( write.before[field] == write.after[field] ) ) {
            fields.insert( field );
         }
      }
   }
   return fields;
}

// The different values of a field, in the order in which they come up.
std::vector< std::string > valuesOf( std::vector< Decoded const * > const & writes,
                                     std::vector< DecodedField > Decoded::*side,
                                     std::size_t field ) {
   std::vector< std::string > values;
   for ( auto const * write : writes ) {
      auto const & value = ( write->*side )[field].value;
      if ( std::find( values.begin(), values.end(), value ) == values.end() ) {
         values.push_back( value );
      }
   }
   return values;
}

std::string joined( std::vector< std::string > const & values ) {
   std::string out;
   for ( auto const & value : values ) {
      out += ( out.empty() ? "" : " " ) + value;
   }
   return values.size() == 1 || ( values.size() <= mostValues && out.size() <= longestText ) ? out : various;
}

// Fields that are named alike but for a number that counts up, as in csProfile0, csProfile1, ...
class NumberedRun {
 public:
   explicit NumberedRun( std::string const & name )
      : stem_( name.substr( 0, name.find_last_not_of( "0123456789" ) + 1 ) ), first_( name.substr( stem_.size() ) ),
        last_( first_.empty() ? 0 : std::stoul( first_ ) ) {}

   // Whether `next` is told by `told`, the field of the run so far, from now on.
   bool takes( GroupField const & next, GroupField & told ) {
      bool const follows = !first_.empty() && next.name == stem_ + std::to_string( last_ + 1 );
      if ( !follows || next.after != told.after ) {
         return false;
      }
      ++last_;
      told.name = stem_ + first_ + "-" + std::to_string( last_ );
      if ( told.before != next.before ) {
         told.before = various;
      }
      return true;
   }

 private:
   std::string stem_;
   std::string first_;
   unsigned long last_;
};

WriteGroup groupOf( std::vector< Decoded const * > const & writes ) {
   WriteGroup group;
   for ( auto const * write : writes ) {
      group.writes.push_back( write->row );
   }
   auto const & first = *writes.front();
   for ( bool const wanted : { true, false } ) {
      std::optional< NumberedRun > run;
      for ( std::size_t field = 0; field < first.after.size(); ++field ) {
         auto const after = valuesOf( writes, &Decoded::after, field );
         auto const before = valuesOf( writes, &Decoded::before, field );
         if ( after.size() == 1 && ( before != after ) == wanted ) {
            GroupField const shown{ first.after[field].name, wanted, joined( before ), after.front() };
            if ( !run || !run->takes( shown, group.fields.back() ) ) {
               group.fields.push_back( shown );
               run = NumberedRun( shown.name );
            }
         }
      }
   }
   return group;
}

// The writes of one source, in groups that leave the same values in the fields that the source changes.
void addGroups( std::vector< WriteGroup > & groups, std::vector< Decoded > const & writes ) {
   auto const changed = touched( writes );
   std::vector< std::pair< std::vector< std::string >, std::vector< Decoded const * > > > byValues;
   for ( auto const & write : writes ) {
      std::vector< std::string > values;
      for ( auto const field : changed ) {
         values.push_back( write.after[field].value );
      }
      auto const known =
         std::find_if( byValues.begin(), byValues.end(), [&]( auto const & group ) { return group.first == values; } );
      auto & group =
         known == byValues.end() ? byValues.emplace_back( values, std::vector< Decoded const * >{} ) : *known;
      group.second.push_back( &write );
   }
   for ( auto const & [values, members] : byValues ) {
      groups.push_back( groupOf( members ) );
   }
}

} // namespace

bool WriteGroup::changed() const {
   return std::any_of( writes.begin(), writes.end(), []( Row const * write ) { return write->changed; } );
}

std::string ranges( std::vector< U32 > numbers ) {
   std::sort( numbers.begin(), numbers.end() );
   numbers.erase( std::unique( numbers.begin(), numbers.end() ), numbers.end() );
   std::string out;
   for ( std::size_t from = 0; from < numbers.size(); ) {
      std::size_t to = from;
      while ( to + 1 < numbers.size() && numbers[to + 1] == numbers[to] + 1 ) {
         ++to;
      }
      out += ( out.empty() ? "" : " " ) + std::to_string( numbers[from] );
      out += to > from ? "-" + std::to_string( numbers[to] ) : "";
      from = to + 1;
   }
   return out;
}

std::string WriteGroup::places() const {
   std::vector< U32 > arrays;
   std::vector< U32 > entries;
   std::vector< U32 > cores;
   for ( auto const * write : writes ) {
      arrays.push_back( static_cast< U32 >( write->array ) );
      if ( write->entry ) {
         entries.push_back( *write->entry );
      }
      if ( write->scope == Simulator::Row::Scope::core ) {
         cores.push_back( static_cast< U32 >( write->core ) );
      }
   }
   std::string out;
   auto const add = [&]( char const * what, std::vector< U32 > const & numbers ) {
      if ( !numbers.empty() ) {
         out += ( out.empty() ? "" : ", " ) + std::string( what ) + " " + ranges( numbers );
      }
   };
   if ( first().layout->arrayElements > 1 || first().layout->arrayIndexFirst != 0 ) {
      add( "array", arrays );
   }
   add( "entry", entries );
   add( "core", cores );
   return out;
}

std::vector< WriteGroup > groupsOf( std::vector< Row const * > const & rows ) {
   std::vector< Source > order;
   std::map< Source, std::vector< Decoded > > bySource;
   for ( auto const * row : rows ) {
      if ( !row->layout ) {
         continue;
      }
      auto & writes = bySource[sourceOf( *row )];
      if ( writes.empty() ) {
         order.push_back( sourceOf( *row ) );
      }
      auto const after = Simulator::decode( *row->layout, row->words );
      auto before = after;
      for ( DecodedField & field : before ) {
         field.value = "?";
      }
      writes.push_back( { row, row->before.empty() ? before : Simulator::decode( *row->layout, row->before ), after } );
   }
   std::vector< WriteGroup > groups;
   for ( auto const & source : order ) {
      addGroups( groups, bySource[source] );
   }
   return groups;
}

} // namespace Inspection
