#include "generator/Check.h"

#include "generator/Text.h"
#include "generator/Yaml.h"

#include <algorithm>
#include <set>

namespace {

using namespace Model;

std::string named( ChipVariant const & pair, std::vector< Chip > const & chips ) {
   auto const chip =
      std::find_if( chips.begin(), chips.end(), [&]( auto const & c ) { return c.number == pair.first; } );
   return chip->name + " variant " + std::to_string( pair.second );
}

void checkFields( Table const & table, Layout const & layout, std::string const & where ) {
   for ( Field const & field : layout.fields ) {
      if ( field.width == 0 || field.width > 512 ) {
         throw Error( table.file, field.line, "field '" + field.name + "' must have 1 to 512 bits" );
      }
      if ( field.offset + field.width > 32 * layout.width ) {
         throw Error( table.file,
                      field.line,
                      "field '" + field.name + "' ends at bit " + std::to_string( field.offset + field.width - 1 ) +
                         ", past the " + std::to_string( layout.width ) + " words of " + where );
      }
   }
   std::vector< Field > plain;
   std::copy_if( layout.fields.begin(), layout.fields.end(), std::back_inserter( plain ), []( Field const & field ) {
      return !field.view;
   } );
   std::stable_sort(
      plain.begin(), plain.end(), []( Field const & a, Field const & b ) { return a.offset < b.offset; } );
   for ( std::size_t i = 1; i < plain.size(); ++i ) {
      if ( plain[i].offset < plain[i - 1].offset + plain[i - 1].width ) {
         throw Error( table.file,
                      plain[i].line,
                      "field '" + plain[i].name + "' overlaps '" + plain[i - 1].name + "' on " + where +
                         "; declare one of them a view" );
      }
   }
}

// The members that every class has, and those that each of its fields gives it.
void checkNames( Table const & table ) {
   std::set< std::string > members{ "setField64",     "stringField",    "stringFieldIs",
                                    "fieldWidth",     "fieldOffset",    "isFieldValid",
                                    "width",          "entries",        "maxIdentifier",
                                    "fieldCount",     "isTable",        "allFieldsMask",
                                    "sdkDefinedId",   "instanceCount",  "hasInstance",
                                    "hasIdentifier",  "arrayElements",  "tableVariantCount",
                                    "entrySpans",     "compareTo",      "getSchanAddress",
                                    "hasMultipleMem", "groupId",        "numGroups",
                                    "groupInfo",      "memInfo",        "handleBuf",
                                    "getAllFields",   "index_min",      "arrayIndex_min",
                                    "tableWidth",     "isPrimary",      "regWidth",
                                    "addrStride",     "doReadAny",      "doWriteAll",
                                    "doWriteCore",    "variantIs",      "chipTypeVariantValid",
                                    "chipType",       "metaInfo",       "WithStorage",
                                    table.name,       "is" + table.name };
   for ( std::string const & field : table.fieldNames ) {
      std::string const upper = capitalised( field );
      for ( std::string const & member :
            { field, field + "Is", "is" + upper + "Valid", field + "Len", field + "Offset" } ) {
         if ( !members.insert( member ).second ) {
            int line = 1;
            for ( auto const & [pair, layout] : table.layouts ) {
               if ( Field const * found = layout.field( field ) ) {
                  line = found->line;
               }
            }
            throw Error(
               table.file, line, "field '" + field + "' would give the class a second member '" + member + "'" );
         }
      }
   }
}

} // namespace

void checkTable( Table const & table, std::vector< Chip > const & chips ) {
   for ( auto const & [pair, layout] : table.layouts ) {
      std::string const where = named( pair, chips );
      if ( layout.geometryLine == 0 ) {
         throw Error( table.file, 1, "no geometry for " + where );
      }
      if ( layout.addressLine == 0 ) {
         throw Error( table.file, 1, "no address for " + where );
      }
      if ( layout.selectors.size() != layout.instances ) {
         throw Error( table.file,
                      layout.addressLine,
                      where + " has " + std::to_string( layout.instances ) + " copies, but " +
                         std::to_string( layout.selectors.size() ) + " pairs of selectors are given" );
      }
      if ( layout.width == 0 || layout.width > mostWords ) {
         throw Error( table.file, layout.geometryLine, "the width must be 1 to 32 words" );
      }
      if ( ( layout.arrayElements > 1 ) != ( layout.arrayStep != 0 ) ) {
         throw Error( table.file,
                      layout.addressLine,
                      "'arrayStep' must be given on " + where + " exactly where 'array' is more than 1" );
      }
      if ( layout.fields.empty() ) {
         throw Error( table.file, 1, "no fields for " + where );
      }
      checkFields( table, layout, where );
   }
   checkNames( table );
}

void checkFieldIds( Catalogue const & catalogue, std::string const & file ) {
   std::set< std::string > used;
   for ( Table const & table : catalogue.tables ) {
      for ( std::string const & field : table.fieldNames ) {
         used.insert( field );
         if ( !catalogue.fieldIds.contains( field ) ) {
            throw Error( file, 1, "field '" + field + "' of " + table.name + " has no id" );
         }
      }
   }
   unsigned last = 0;
   std::string lastName;
   Yaml::load( file ).entries( [&]( std::string const & name, Yaml const & id ) {
      if ( !used.contains( name ) ) {
         id.fail( "no table has a field '" + name + "'" );
      }
      if ( id.number() <= last || lowerCase( name ) <= lowerCase( lastName ) ) {
         id.fail( "'" + name + "' must follow '" + lastName + "' in the alphabet and have a higher id" );
      }
      last = id.number();
      lastName = name;
   } );
}
