// Operations of a type, by name: what a library offers to those who don't include it, such as a command line that loads
// it.
//
//    // in the library: offered from its loading to its unloading
//    Rex::Operations const operations{ "DaceFapNi::L3Sm",
//                                      { { "verifyKapsStrengthMapping", L3Sm::verifyKapsStrengthMapping } } };
//
//    // elsewhere
//    if ( auto const * verify = Rex::Operations::find( "DaceFapNi::L3Sm", "verifyKapsStrengthMapping" ) ) {
//       ( *verify )( fapStatus );
//    }
//
// An operation takes one entity and gives nothing back; one that has a reason to complain ends the process by
// assertion. An entity of another type than the operation takes: assertion text "argument".
//
// Threading: the agent's scheduler thread.
#pragma once

#include "assert/Assert.h"
#include "rex/Entity.h"

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace Rex {

class Operation {
 public:
   template< class Argument >
   Operation( char const * name,
              void ( *run )( Corvo::Ptr< Argument > const & ) ) // NOLINT(google-explicit-constructor)
      : name_( name ), run_( [run]( Corvo::Ptr< Entity const > const & entity ) {
           auto const argument = Corvo::ptrCast< Argument >( entity );
           sassert( argument != nullptr, "argument" );
           run( argument );
        } ) {}

   std::string const & name() const { return name_; }
   void operator()( Corvo::Ptr< Entity const > const & argument ) const { run_( argument ); }

 private:
   std::string name_;
   std::function< void( Corvo::Ptr< Entity const > const & ) > run_;
};

// What one library offers of one type, as long as the object lives.
class Operations {
 public:
   Operations( char const * type, std::initializer_list< Operation > operations );
   ~Operations();
   Operations( Operations const & ) = delete;
   Operations & operator=( Operations const & ) = delete;

   // Null if nobody offers it. What is found is valid as long as its library is loaded.
   static Operation const * find( std::string_view type, std::string_view name );
   // The names of a type's operations, in the order in which they were offered.
   static std::vector< std::string > names( std::string_view type );

 private:
   std::string const type_;
   std::vector< Operation > const operations_;
};

} // namespace Rex
