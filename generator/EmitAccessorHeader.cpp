#include "generator/Emit.h"
#include "generator/Formats.h"
#include "generator/Text.h"

#include <algorithm>
#include <sstream>

namespace {

using namespace Model;

char const * const headerPreamble = R"cpp(// clang-format off
#pragma once

#include "sal/AsicTable.h"

#include <memory>

namespace Hardware {

// A new accessor of the class of that name, with storage of its own, in one allocation. An unknown name ends the
// process: "objMapIter != objMap.end()", "invalid name given: <name>".
std::shared_ptr< AsicUtils::AsicBase > stringObj( Corvo::String name, ChipType chipType, U8 variant );

// The test of the class of that name; false for an unknown name.
bool chipTypeVariantValid( Corvo::String name, ChipType chipType, U8 variant );

namespace Impl {

// The facility of this unit.
extern Rex::TraceFacility const trace;

[[gnu::always_inline]] inline bool traced() {
   return trace.enabled( AsicUtils::accessTraceLevel );
}

} // namespace Impl
)cpp";

class DeclarationWriter {
 public:
   DeclarationWriter( Catalogue const & catalogue, Table const & table )
      : catalogue_( catalogue ), table_( table ), formats_( table ),
        base_( table.isMemory ? "DaceSalAsicTableBase" : "DaceSalAsicRegBase" ) {}

   std::string write() {
      head();
      statics();
      entry();
      for ( unsigned field = 0; field < table_.fieldNames.size(); ++field ) {
         this->field( field );
      }
      for ( unsigned run = 0; run < table_.indexed.size(); ++run ) {
         indexed( run );
      }
      tail();
      storage();
      return out_.str();
   }

 private:
   void head() {
      out_ << "\n// " << ( table_.isMemory ? "Memory" : "Register" );
      if ( table_.chips.size() != catalogue_.chips.size() ) {
         std::vector< std::string > names;
         for ( unsigned const chip : table_.chips ) {
            names.push_back( catalogue_.chip( chip ).name );
         }
         out_ << " of " << list( names );
      }
      if ( table_.variants > 1 ) {
         out_ << ", variants 0 to " << table_.variants - 1;
      }
      out_ << ".\nclass " << table_.name << " : public DaceSal::AsicUtils::" << base_ << " {\n"
           << " public:\n"
           << "   class WithStorage;\n"
           << "   static AsicUtils::MetaInfo const metaInfo;\n\n"
           << "   " << table_.name << "( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant )\n"
           << "      : " << base_
           << "( metaInfo, static_cast< U8 >( chip ), buf, len, bufferHoldsEntry, variant, 0 ) {";
      if ( table_.hasTag() ) {
         out_ << "\n      handleBuf( chip, buf, len, bufferHoldsEntry, variant );\n   }\n"
              << "   void handleBuf( ChipType chip, U8 * buf, U16 len, bool bufferHoldsEntry, U8 variant ) {\n"
              << "      metaInfo.handleBuf( chip, buf, len, bufferHoldsEntry, variant );\n   }\n";
      } else {
         out_ << "}\n   void handleBuf( ChipType, U8 *, U16, bool, U8 ) {}\n";
      }
      out_ << "   static bool is" << table_.name
           << "( ChipType chip, U8 const * buf, U16 len, U8 variant ) { return metaInfo.isFormat( chip, buf, len, "
              "variant ); }\n";
   }

   void pairStatic( char const * type, char const * name ) {
      out_ << "   static " << type << " " << name << "( U32 chip, U8 variant ) { return metaInfo." << name
           << "( chip, variant ); }\n";
   }

   void statics() {
      out_ << "\n   static bool chipTypeVariantValid( ChipType chip, U8 variant ) { return "
              "metaInfo.chipTypeVariantValid( static_cast< U32 >( chip ), variant ); }\n"
           << "   static U32 tableVariantCount( U32 chip ) { return metaInfo.tableVariantCount( chip ); }\n";
      if ( table_.isMemory ) {
         pairStatic( "U32", "entries" );
         pairStatic( "AsicUtils::EntrySpans", "entrySpans" );
         pairStatic( "U16", "tableWidth" );
      } else {
         pairStatic( "U16", "regWidth" );
         pairStatic( "U32", "maxIdentifier" );
         pairStatic( "U32", "addrStride" );
      }
      pairStatic( "U16", "width" );
      pairStatic( "U32", "index_min" );
      pairStatic( "U32", "arrayElements" );
      pairStatic( "U32", "arrayIndex_min" );
      pairStatic( "S32", "sdkDefinedId" );
      pairStatic( "U16", "fieldCount" );
      pairStatic( "U32", "instanceCount" );
      out_ << "   static bool hasIdentifier( U32 chip, U8 variant, U32 identifier ) { return metaInfo.hasIdentifier( "
              "chip, variant, identifier ); }\n"
           << "   static bool getSchanAddress( U32 chip, U8 variant, U32 & address, U32 & selectorA, U32 & selectorB, "
              "U16 identifier, U32 tableEntry, U16 arrayIndex ) {\n"
           << "      return metaInfo.getSchanAddress( chip, variant, address, selectorA, selectorB, identifier, "
              "tableEntry, arrayIndex );\n   }\n";
      std::vector< std::string > names = { "tableVariantCount",
                                           "width",
                                           "index_min",
                                           "arrayElements",
                                           "arrayIndex_min",
                                           "sdkDefinedId",
                                           "fieldCount",
                                           "instanceCount",
                                           "hasIdentifier",
                                           "getSchanAddress" };
      std::vector< std::string > const own =
         table_.isMemory ? std::vector< std::string >{ "entries", "entrySpans", "tableWidth" }
                         : std::vector< std::string >{ "regWidth", "maxIdentifier", "addrStride" };
      names.insert( names.end(), own.begin(), own.end() );
      std::vector< std::string > qualified;
      for ( auto const & name : names ) {
         qualified.push_back( base_ + ( "::" + name ) );
      }
      out_ << "   using " << list( qualified ) << ";\n";
   }

   void entry() {
      std::string const type = entryTypeFor( table_ );
      out_ << "\n   static " << type << " allFieldsMask( U32 chip, U8 variant ) { return metaInfo.allFieldsMask< "
           << type << " >( chip, variant ); }\n"
           << "   virtual " << type << " allFieldsMask() const;\n"
           << "   " << type << " getAllFields() const { return allFields< " << type << " >(); }\n";
   }

   void field( unsigned index ) {
      std::string const & name = table_.fieldNames[index];
      std::string const upper = capitalised( name );
      std::string const type = typeFor( table_.largestFieldWidth( name ) );
      unsigned const bits = typeBits( type );
      std::string const parameter = bits >= 64 ? type + " const & value" : type + " value";
      auto const place = formats_.onePlace( index );

      std::string set;
      std::string get;
      std::string const number = std::to_string( index );
      if ( bits <= 64 && place ) {
         std::string const where = std::to_string( place->offset ) + ", " + std::to_string( place->width );
         set = "fieldAtIs( Impl::traced(), " + number + ", " + where + ", " + std::to_string( bits ) + ", value )";
         get = "fieldAt( Impl::traced(), " + number + ", " + where + " )";
      } else if ( bits <= 32 ) {
         std::string const how = formats_.acrossWords( index ) ? "fieldAcross" : "fieldIn";
         set = how + "Is( Impl::traced(), " + number + ", value )";
         get = how + "( Impl::traced(), " + number + " )";
      } else if ( bits == 64 ) {
         set = "fieldIs( " + number + ", value )";
         get = "fieldValue( " + number + " )";
      } else if ( place && place->width == bits && place->offset % 8 == 0 ) {
         std::string const where = number + ", " + std::to_string( place->offset );
         set = "wideAtIs( Impl::traced(), " + where + ", value )";
         get = "wideAt< " + type + " >( Impl::traced(), " + where + " )";
      } else {
         set = "wideFieldIs( " + number + ", value.word.data() )";
         get = "wideField< " + type + " >( " + number + " )";
      }
      if ( bits < 64 ) {
         get = "static_cast< " + type + " >( " + get + " )";
      }

      out_ << "\n   // " << placesText( index ) << "\n";
      if ( !table_.readOnly( name ) ) {
         out_ << "   void " << name << "Is( " << parameter << " ) { " << set << "; }\n";
      }
      out_ << "   " << type << " " << name << "() const { return " << get << "; }\n"
           << "   bool is" << upper << "Valid() const { return fieldValid( " << number << " ); }\n"
           << "   U16 " << name << "Len() const { return fieldLen( " << number << " ); }\n"
           << "   U16 " << name << "Offset() const { return fieldStart( " << number << " ); }\n";
   }

   // "bits 0 to 17 (18)", and where a field does not lie there everywhere, on which chips and variants it lies where.
   std::string placesText( unsigned index ) const {
      std::vector< std::string > texts;
      for ( std::size_t format = 0; format < formats_.rows.size(); ++format ) {
         auto const & place = formats_.rows[format][index];
         std::string const text =
            place ? "[" + std::to_string( place->offset ) + ", " + std::to_string( place->width ) + "]"
                  : std::string( "absent" );
         if ( std::find( texts.begin(), texts.end(), text ) == texts.end() ) {
            texts.push_back( text );
         }
      }
      std::string text = table_.readOnly( table_.fieldNames[index] ) ? "Fixed by the format: " : "";
      for ( auto const & t : texts ) {
         text += ( &t == &texts.front() ? "" : " or " ) + t;
      }
      return text;
   }

   void indexed( unsigned run ) {
      std::string const & name = table_.indexed[run];
      std::string const type = typeFor( table_.largestFieldWidth( name + "0" ) );
      out_ << "\n   // " << name << "0 to " << name << table_.runFields( name ).size() - 1 << " by number\n"
           << "   void " << name << "Is( U32 index, " << type << " value ) { runFieldIs( " << run
           << ", index, value ); }\n"
           << "   " << type << " " << name << "( U32 index ) const { return static_cast< " << type << " >( runField( "
           << run << ", index ) ); }\n";
   }

   void tail() {
      if ( table_.hasTag() ) {
         out_ << "\n protected:\n"
              << "   // Without the tag: the buffer does not exist yet.\n"
              << "   " << table_.name << "( ChipType chip, U8 * buf, U16 len, U8 variant )\n"
              << "      : " << base_ << "( metaInfo, static_cast< U8 >( chip ), buf, len, false, variant, 0 ) {}\n";
      }
      out_ << "};\n";
   }

   void storage() {
      std::string const & name = table_.name;
      out_ << "\nclass " << name << "::WithStorage : public " << name << " {\n public:\n"
           << "   explicit WithStorage( ChipType chip, bool bufferHoldsEntry = false, U8 variant = 0 )\n";
      if ( table_.hasTag() ) {
         // The storage is zero once the base is there: a tag does not survive in it, and none is found in it.
         out_ << "      : " << name << "( chip, storage_, sizeof storage_, variant ) {\n"
              << "      if ( bufferHoldsEntry ) {\n"
              << "         handleBuf( chip, storage_, sizeof storage_, true, variant );\n      }\n   }\n";
      } else {
         out_ << "      : " << name << "( chip, storage_, sizeof storage_, bufferHoldsEntry, variant ) {}\n";
      }
      out_ << "\n private:\n"
           << "   alignas( 8 ) U8 storage_[" << table_.largestWidth() * 4 << "] = {};\n};\n";
   }

   Catalogue const & catalogue_;
   Table const & table_;
   Formats formats_;
   char const * base_;
   std::ostringstream out_;
};

} // namespace

std::string emitAccessorHeader( Catalogue const & catalogue ) {
   std::string text =
      generatedNote( "The accessor classes of the chip tables that the plug-in programs." ) + headerPreamble;
   for ( Table const & table : catalogue.tables ) {
      text += DeclarationWriter( catalogue, table ).write();
   }
   return text + "\n} // namespace Hardware\n";
}
