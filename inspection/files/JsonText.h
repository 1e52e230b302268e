// A text of JSON that is read, and where in it each part stands, so that whatever is wrong is told with its place.
//
//    JsonText text = readJsonText( "chips.json" );                  // InputError "chips.json:3:14: ..."
//    Rex::Value const value = text.take();
//    return text.reading( [&] { return chipsFromValue( value ); } ); // Rex::ValueError to InputError, a line for each
//                                                                   // thing that is wrong: "chips.json:7:9: /faps/0:
//                                                                   ..."
//
// Stricter than JSON: a key that stands twice in an object is an error, and numbers are whole. Those are told by
// reading() together with what the reader finds.
//
// Places cost nothing until they are asked for: the text is then searched again.
#pragma once

#include "inspection/files/InputError.h"
#include "rex/Value.h"

namespace Inspection {

class JsonText {
 public:
   using Fault = Rex::ValueError::Fault;
   // Something about a part of the text, with "NAME:LINE:COLUMN", or "NAME" where there is no text.
   struct Placed {
      std::string place;
      Fault fault;
   };

   // InputError for what is no JSON at all.
   JsonText( std::string name, std::string text );
   // A value that didn't come from a text of its own: its places are pointers alone.
   JsonText( std::string name, Rex::Value value ) : name_( std::move( name ) ), value_( std::move( value ) ) {}

   std::string const & name() const { return name_; }
   // Once.
   Rex::Value take() { return std::move( value_ ); }

   // What is wrong with the text itself, and what a reader found wrong with its value.
   std::vector< Fault > with( std::vector< Fault > found ) const;
   // In the order of the text.
   std::vector< Placed > placed( std::vector< Fault > faults ) const;

   // Runs `read`, and throws InputError for all that is wrong.
   template< class Read >
   decltype( auto ) reading( Read const & read ) const {
      try {
         if ( faults_.empty() ) {
            return read();
         }
         read();
      } catch ( Rex::ValueError const & error ) {
         refuse( with( error.faults() ) );
      }
      refuse( faults_ );
   }

 private:
   [[noreturn]] void refuse( std::vector< Fault > faults ) const;

   std::string name_;
   std::string text_;
   Rex::Value value_;
   std::vector< Fault > faults_;
};

JsonText readJsonText( std::string const & path );

// One line for each, "PLACE: /pointer: text" or what `said` makes of a fault; of many, the first and how many more.
InputError refusalOf( std::vector< JsonText::Placed > const & all );
InputError refusalOf( std::vector< JsonText::Placed > const & all, std::string ( *said )( JsonText::Fault const & ) );

} // namespace Inspection
