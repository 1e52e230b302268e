// JSON at the door: reading it strictly, telling what is wrong where.
//
//    Rex::Value const value = readJson( "scenario.json" );     // InputError "scenario.json:3: ..."
//    inFile( "scenario.json", [&] {                            // InputError "scenario.json: /switch/faps/0/cores: ..."
//       Fields fields( value );
//       std::string const name = fields.optional< std::string >( "name", "" );
//       fields.end();                                          // whatever else stands there is an error
//    } );
//
// Stricter than JSON: a key that stands twice in an object is an error, and numbers are whole.
#pragma once

#include "inspection/files/InputError.h"
#include "rex/Value.h"

#include <set>

namespace Inspection {

std::string readFile( std::string const & path );
Rex::Value readJson( std::string const & path );
// `name` stands for the file in messages.
Rex::Value parseJson( std::string const & text, std::string const & name );

// A value as JSON: objects and lists that are nested `depth` levels deep or less have each member on a line of its own.
std::string toJson( Rex::Value const & value, int depth );
// A string of JSON, with its quotes.
std::string quoted( std::string const & text );

// Runs `read`; a Rex::ValueError becomes an InputError with the file's name and the JSON pointer.
template< class Read >
decltype( auto ) inFile( std::string const & name, Read const & read ) {
   try {
      return read();
   } catch ( Rex::ValueError const & error ) {
      throw InputError( error.place().empty() ? name : name + ": " + error.place(), error.what() );
   }
}

// The object, or the list, that a value is; throws Rex::ValueError otherwise.
Rex::Value::Object const & objectOf( Rex::Value const & value );
Rex::Value::List const & listOf( Rex::Value const & value );

// Runs `read` on the key and the value of each member of an object.
template< class Read >
void forEachMember( Rex::Value const & object, Read const & read ) {
   for ( auto const & member : objectOf( object ) ) {
      Rex::below( member.first, [&] { read( member.first, member.second ); } );
   }
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
   // Throws if there is a member that nobody has asked for.
   void end() const;

 private:
   Rex::Value::Object const & object_;
   std::set< std::string > known_;
};

} // namespace Inspection
