#include "l3sm/VerbOptions.h"

#include <CLI/CLI.hpp>

namespace Cli {

namespace {

// What is named has a name.
void check( CLI::Option & option, char const * type ) {
   if ( type ) {
      option.type_name( type );
   }
   option.check( []( std::string const & text ) { return text.empty() ? "an empty name is none" : std::string(); } );
}

} // namespace

void takesWordsAsTyped( CLI::Option & option ) {
   constexpr int many = CLI::detail::expected_max_vector_size;
   option.take_all()->expected( many, many )->allow_extra_args( false );
}

void VerbOptions::text( char const * name, std::string & into, char const * help, char const * type ) {
   check( *app_.add_option( name, into, help ), type );
}

void VerbOptions::required( char const * name, std::string & into, char const * help ) {
   auto * const option = app_.add_option( name, into, help )->required();
   check( *option, nullptr );
}

void VerbOptions::texts( char const * name, std::vector< std::string > & into, char const * help, char const * type ) {
   auto * const option = app_.add_option( name, into, help );
   takesWordsAsTyped( *option );
   check( *option, type );
}

void VerbOptions::repeated( char const * name,
                            std::vector< std::string > & into,
                            char const * help,
                            char const * type ) {
   auto * const option = app_.add_option( name, into, help )->take_all()->expected( 1 )->allow_extra_args( false );
   check( *option, type );
}

void VerbOptions::number( char const * name, std::optional< U8 > & into, char const * help ) {
   app_.add_option( name, into, help );
}
void VerbOptions::number( char const * name, std::optional< U16 > & into, char const * help ) {
   app_.add_option( name, into, help );
}
void VerbOptions::number( char const * name, std::optional< U32 > & into, char const * help ) {
   app_.add_option( name, into, help );
}

void VerbOptions::flag( char const * name, bool & into, char const * help ) {
   app_.add_flag( name, into, help );
}

void VerbOptions::footer( std::string const & text ) {
   app_.footer( text );
}

} // namespace Cli
