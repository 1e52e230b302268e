#include "generator/Emit.h"
#include "generator/Formats.h"
#include "generator/Text.h"

#include <algorithm>
#include <sstream>

namespace {

using namespace Model;

constexpr unsigned firstChip = 10;
constexpr unsigned chipCount = 7;

// Writes items a few to a line.
class Items {
 public:
   explicit Items( unsigned perLine ) : perLine_( perLine ) {}
   void add( std::string const & item ) {
      text_ += ( count_ % perLine_ == 0 ? "\n   " : " " ) + item + ",";
      ++count_;
   }
   std::string text() const { return "{" + text_ + "\n}"; }

 private:
   unsigned perLine_;
   unsigned count_ = 0;
   std::string text_;
};

class DefinitionWriter {
 public:
   DefinitionWriter( Catalogue const & catalogue, Table const & table, unsigned number )
      : catalogue_( catalogue ), table_( table ), formats_( table ), number_( number ), name_( table.name ),
        data_( table.name + "Data" ), entryType_( entryTypeFor( table ) ) {}

   std::string write() {
      out_ << "\n// ---- " << name_ << "\n\nnamespace " << data_ << " {\n";
      fields();
      rows();
      masks();
      layouts();
      tags();
      runs();
      out_ << "} // namespace " << data_ << "\n\n";
      metaInfo();
      members();
      return out_.str();
   }

 private:
   void fields() {
      Items items( 1 );
      for ( auto const & field : table_.fieldNames ) {
         items.add( "{ \"" + field + "\", " + std::to_string( catalogue_.fieldIds.at( field ) ) +
                    ", AsicUtils::ValueType::" + typeFor( table_.largestFieldWidth( field ) ) + ", " +
                    ( table_.readOnly( field ) ? "true" : "false" ) + " }" );
      }
      out_ << "constexpr AsicUtils::FieldInfo fields[] = " << items.text() << ";\n";
   }

   std::string layoutText( Layout const & layout, std::size_t format ) const {
      std::vector< std::string > selectors;
      for ( auto const & [a, b] : layout.selectors ) {
         selectors.push_back( "{ " + std::to_string( a ) + ", " + std::to_string( b ) + " }" );
      }
      return "{ { 0, " + std::to_string( layout.entries.value_or( 1 ) ) + "u }, " + std::to_string( layout.width ) +
             ", " + std::to_string( layout.width * 4 ) + ", " + std::to_string( layout.arrayElements ) + ", " +
             std::to_string( layout.arrayIndexMin ) + ", " + std::to_string( layout.arrayIndexFirst ) + ", " +
             std::to_string( layout.sdkDefinedId.value_or( -1 ) ) + ", " + std::to_string( layout.instances ) + ", { " +
             list( selectors ) + " }, " + hex( layout.base ) + ", " + std::to_string( layout.arrayStep ) + ", &rows[" +
             std::to_string( format * table_.fieldNames.size() ) + "], &masks[" +
             std::to_string( format * typeBits( entryType_ ) / 32 ) + "] }";
   }

   void layouts() {
      std::vector< std::string > distinct;
      Items byChip( chipCount );
      for ( unsigned variant = 0; variant < table_.variants; ++variant ) {
         for ( unsigned chip = firstChip; chip < firstChip + chipCount; ++chip ) {
            auto const found = table_.layouts.find( { chip, variant } );
            if ( found == table_.layouts.end() ) {
               byChip.add( "nullptr" );
               continue;
            }
            std::string const text = layoutText( found->second, formats_.formatOf.at( found->first ) );
            auto place = std::find( distinct.begin(), distinct.end(), text );
            if ( place == distinct.end() ) {
               place = distinct.insert( distinct.end(), text );
            }
            byChip.add( "&layout[" + std::to_string( place - distinct.begin() ) + "]" );
         }
      }
      Items items( 1 );
      for ( auto const & text : distinct ) {
         items.add( text );
      }
      out_ << "constexpr AsicUtils::TableLayout layout[] = " << items.text() << ";\n"
           << "constexpr AsicUtils::TableLayout const * layouts[] = " << byChip.text() << ";\n";
   }

   void masks() {
      unsigned const words = typeBits( entryType_ ) / 32;
      Items items( 8 );
      for ( auto const & row : formats_.rows ) {
         std::vector< std::uint32_t > mask( words );
         for ( auto const & place : row ) {
            for ( unsigned bit = place ? place->offset : 0; place && bit < place->offset + place->width; ++bit ) {
               mask[bit / 32] |= 1u << bit % 32;
            }
         }
         for ( std::uint32_t const word : mask ) {
            items.add( hex( word ) );
         }
      }
      out_ << "constexpr U32 masks[] = " << items.text() << ";\n";
   }

   void tags() {
      if ( !table_.hasTag() ) {
         return;
      }
      Items items( 1 );
      for ( auto const & [pair, tags] : table_.tags ) {
         for ( Tag const & tag : tags ) {
            items.add( "{ 1 << " + std::to_string( pair.first - firstChip ) + ", " + std::to_string( pair.second ) +
                       ", " + std::to_string( tag.offset ) + ", " + std::to_string( tag.width ) + ", " +
                       std::to_string( tag.value ) + " }" );
         }
      }
      out_ << "constexpr AsicUtils::TagRow tags[] = " << items.text() << ";\n";
   }

   void runs() {
      Items runs( 1 );
      for ( auto const & run : table_.indexed ) {
         Items places( 16 );
         for ( auto const & field : table_.runFields( run ) ) {
            places.add( std::to_string( table_.fieldIndex( field ) ) );
         }
         out_ << "constexpr U16 " << run << "Run[] = " << places.text() << ";\n";
         runs.add( "{ \"" + run + "\", " + run + "Run }" );
      }
      if ( !table_.indexed.empty() ) {
         out_ << "constexpr AsicUtils::FieldRun runs[] = " << runs.text() << ";\n";
      }
   }

   void rows() {
      Items items( 8 );
      for ( auto const & row : formats_.rows ) {
         for ( auto const & place : row ) {
            items.add( place ? "{ " + std::to_string( place->offset ) + ", " + std::to_string( place->width ) + " }"
                             : "{}" );
         }
      }
      out_ << "constexpr AsicUtils::FieldRow rows[] = " << items.text() << ";\n";
   }

   void metaInfo() {
      out_ << "constinit AsicUtils::MetaInfo const " << name_
           << "::metaInfo{\n   Impl::trace, Impl::source, __LINE__, \"" << name_ << "\", " << number_ << ", "
           << ( table_.isMemory ? "true" : "false" ) << ", " << table_.variants
           << ", AsicUtils::ValueType::" << entryType_ << ",\n   " << data_ << "::fields, " << data_ << "::layouts, "
           << ( table_.hasTag() ? data_ + "::tags" : "{}" ) << ", "
           << ( table_.indexed.empty() ? "{}" : data_ + "::runs" ) << "\n};\n\n";
   }

   void members() {
      out_ << entryType_ << " " << name_ << "::allFieldsMask() const {\n"
           << "   metaInfo.trace( \"virtual " << entryType_ << " %::allFieldsMask() const\", chipType, variant_ );\n"
           << "   return allFieldsMask( chipType, variant_ );\n}\n";
   }

   Catalogue const & catalogue_;
   Table const & table_;
   Formats formats_;
   unsigned number_;
   std::string const & name_;
   std::string data_;
   std::string entryType_;
   std::ostringstream out_;
};

char const * const sourcePreamble = R"cpp(// clang-format off
#include "generated/DaceFapNiPluginL3UnicastMetaInfo.h"

#include <functional>
#include <map>

namespace Hardware {

namespace Impl {

Rex::TraceFacility const trace{ "AsicUtilsDaceFapNiPluginL3UnicastMetaInfo" };

namespace {

char const source[] = "generated/DaceFapNiPluginL3UnicastMetaInfo.cpp";

} // namespace

} // namespace Impl
)cpp";

// The two functions that know the classes by name.
std::string byName( Catalogue const & catalogue ) {
   std::string objects;
   std::string tests;
   for ( Table const & table : catalogue.tables ) {
      objects += "      { \"" + table.name + "\", Impl::make< " + table.name + " > },\n";
      tests += "      { \"" + table.name + "\", " + table.name + "::chipTypeVariantValid },\n";
   }
   return R"cpp(
// ---- classes by name

namespace Impl {

namespace {

template< class Table >
std::shared_ptr< AsicUtils::AsicBase > make( ChipType chipType, U8 variant ) {
   return std::make_shared< typename Table::WithStorage >( chipType, false, variant );
}

} // namespace

} // namespace Impl

std::shared_ptr< AsicUtils::AsicBase > stringObj( Corvo::String name, ChipType chipType, U8 variant ) {
   using Make = std::function< std::shared_ptr< AsicUtils::AsicBase >( ChipType, U8 ) >;
   static std::map< Corvo::String, Make > const objMap{
)cpp" + objects +
          R"cpp(   };
   auto const objMapIter = objMap.find( name );
   if ( objMapIter == objMap.end() ) {
      Rex::SassertHelper( "objMapIter != objMap.end()",
                          { Impl::source, __LINE__, "std::shared_ptr<AsicUtils::AsicBase> Hardware::stringObj(String, ChipType, U8)" } )
         << "invalid name given: " << name;
   }
   return objMapIter->second( chipType, variant );
}

bool chipTypeVariantValid( Corvo::String name, ChipType chipType, U8 variant ) {
   using Test = std::function< bool( ChipType, U8 ) >;
   static std::map< Corvo::String, Test > const testMap{
)cpp" + tests +
          R"cpp(   };
   auto const testMapIter = testMap.find( name );
   return testMapIter != testMap.end() && testMapIter->second( chipType, variant );
}

} // namespace Hardware
)cpp";
}

} // namespace

std::string emitAccessorSource( Catalogue const & catalogue ) {
   std::string text =
      generatedNote( "The accessor classes: where their fields lie, and where the tables lie on the chips." ) +
      sourcePreamble;
   unsigned number = 0;
   for ( Table const & table : catalogue.tables ) {
      text += DefinitionWriter( catalogue, table, number++ ).write();
   }
   return text + byName( catalogue );
}
