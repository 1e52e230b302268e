// JSON at the door: values out of it and into it.
//
//    Rex::Value const value = readJson( "journal.jsonl" );     // InputError "journal.jsonl:3:7: ..."
//    inFile( "journal.jsonl:3", [&] {                          // InputError "journal.jsonl:3: /seq: ..."
//       Fields fields( value );
//       std::string const name = fields.optional< std::string >( "name", "" );
//       fields.end();                                          // whatever else stands there is an error
//    } );
//
// Who wants to tell everything that is wrong, each with its line, reads a JsonText.
#pragma once

#include "inspection/files/InputFile.h"
#include "inspection/files/JsonText.h"
#include "rex/Value.h"

#include <set>

namespace Inspection {

Rex::Value readJson( std::string const & path );
// `name` stands for the file in messages.
Rex::Value parseJson( std::string text, std::string const & name );

// A value as JSON: objects and lists that are nested `depth` levels deep or less have each member on a line of its own,
// which is indented by one more than `indent` and one more for each level.
std::string toJson( Rex::Value const & value, int depth, int indent = 0 );
// A string of JSON, with its quotes.
std::string quoted( std::string const & text );

// Runs `read`; a Rex::ValueError becomes an InputError with the file's name and the JSON pointer.
template< class Read >
decltype( auto ) inFile( std::string const & name, Read const & read ) {
   return JsonText( name, Rex::Value() ).reading( read );
}

// The object, or the list, that a value is; throws Rex::ValueError otherwise.
Rex::Value::Object const & objectOf( Rex::Value const & value );
Rex::Value::List const & listOf( Rex::Value const & value );

// Runs `read` on the key and the value of each member of an object; what is wrong with them is told together.
template< class Read >
void forEachMember( Rex::Value const & object, Read const & read ) {
   Rex::ValueErrors errors;
   for ( auto const & member : objectOf( object ) ) {
      errors.below( member.first, [&] { read( member.first, member.second ); } );
   }
   errors.end();
}

// The members of an object. All errors are Rex::ValueErrors.
class Fields {
 public:
   explicit Fields( Rex::Value const & object );

   // Null if it isn't there.
   Rex::Value const * find( std::string const & name );
   // Runs `read` on the member, if it is there.
   template< class Read >
   void with( std::string const & name, Read const & read ) {
      if ( auto const * value = find( name ) ) {
         Rex::below( name, [&] { read( *value ); } );
      }
   }
   template< class T >
   T optional( std::string const & name, T const & otherwise ) {
      T result = otherwise;
      with( name, [&]( Rex::Value const & value ) { result = Rex::Codec< T >::fromValue( value ); } );
      return result;
   }
   Rex::Value const & required( std::string const & name );
   template< class T >
   T required( std::string const & name ) {
      auto const & value = required( name );
      return Rex::below( name, [&] { return Rex::Codec< T >::fromValue( value ); } );
   }
   // Throws if there are members that nobody has asked for.
   void end() const;

 private:
   std::string unknown( std::string const & name ) const;
   Rex::Value::Object const & object_;
   std::set< std::string > known_;
};

} // namespace Inspection
