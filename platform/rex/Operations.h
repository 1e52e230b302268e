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
// An operation takes one entity, and some of them a handle beside it, such as that of a driver:
//
//    if ( auto const * init = Rex::Operations::find( "DaceFapNi::L3Sm", "initMtuRecycleLog" ) ) {
//       ( *init )( fapStatus, switchControlSal );
//    }
//
// It gives nothing back; one that has a reason to complain ends the process by assertion. An entity of another type
// than the operation takes: assertion text "argument". A handle that is missing or of another type: "handle". One that
// takes none leaves it alone.
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
      : name_( name ), run_( [run]( auto const & entity, auto const & ) { run( given< Argument >( entity ) ); } ) {}
   template< class Argument, class Handle >
   Operation( char const * name,
              void ( *run )( Corvo::Ptr< Argument > const &, // NOLINT(google-explicit-constructor)
                             Corvo::Ptr< Handle > const & ) )
      : name_( name ), takesHandle_( true ), run_( [run]( auto const & entity, auto const & node ) {
           auto const handle = Corvo::ptrCast< Handle >( node );
           sassert( handle != nullptr, "handle" );
           run( given< Argument >( entity ), handle );
        } ) {}

   std::string const & name() const { return name_; }
   bool takesHandle() const { return takesHandle_; }
   void operator()( Corvo::Ptr< Entity const > const & argument,
                    Corvo::Ptr< Corvo::Node > const & handle = nullptr ) const {
      run_( argument, handle );
   }

 private:
   template< class Argument >
   static Corvo::Ptr< Argument > given( Corvo::Ptr< Entity const > const & entity ) {
      auto argument = Corvo::ptrCast< Argument >( entity );
      sassert( argument != nullptr, "argument" );
      return argument;
   }

   std::string name_;
   bool takesHandle_ = false;
   std::function< void( Corvo::Ptr< Entity const > const &, Corvo::Ptr< Corvo::Node > const & ) > run_;
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
