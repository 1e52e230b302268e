// Child: a state machine's child, and the contract of all child setters: a child that was built from exactly these
// arguments is kept; otherwise it is dropped and a new one is built, stored and activated.
//
//    Child< MplsParserCfgSm, Corvo::Ptr< Mpls::Config const >, ... > mplsParserCfgSm_;
//    mplsParserCfgSm_.is( MplsParserCfgSm::MplsParserCfgSmIs, mplsConfig, ... );
//
// What it was built from is kept here, beside the child, so that a comparison sees every argument; a child that holds
// all of them itself, and shows them as arguments(), is asked instead.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "corvo/Ptr.h"

#include <optional>
#include <tuple>
#include <utility>

namespace DaceFapNi {

template< class T, class... Args >
class Child {
 public:
   Corvo::Ptr< T > const & get() const { return child_; }

   // `build` makes a child from the arguments; `stored` runs when a new one has been stored, before it is activated.
   template< class Build, class Stored >
   Corvo::Ptr< T > is( Build build, Stored stored, Args const &... args ) {
      if ( child_ && isBuiltFrom( args... ) ) {
         return child_;
      }
      child_ = nullptr;
      builtFrom_.reset();
      child_ = build( args... );
      if constexpr ( !tells ) {
         builtFrom_.emplace( args... );
      }
      stored();
      child_->hasNotificationActiveIs( true );
      return child_;
   }
   template< class Build >
   Corvo::Ptr< T > is( Build build, Args const &... args ) {
      return is(
         build, [] {}, args... );
   }

   // Switches the child's notifications, if there is a child.
   void activeIs( bool active ) const {
      if ( child_ ) {
         child_->hasNotificationActiveIs( active );
      }
   }

   // Clears the attribute and returns what it held.
   Corvo::Ptr< T > take() {
      builtFrom_.reset();
      return std::exchange( child_, nullptr );
   }
   // The same, after which the child's notifications are off.
   Corvo::Ptr< T > del() {
      auto const child = take();
      if ( child ) {
         child->hasNotificationActiveIs( false );
      }
      return child;
   }

 private:
   static constexpr bool tells = requires( T const & child ) { child.arguments(); };

   bool isBuiltFrom( Args const &... args ) const {
      if constexpr ( tells ) {
         return child_->arguments() == std::get< 0 >( std::tie( args... ) );
      } else {
         return builtFrom_ == std::tuple< Args... >{ args... };
      }
   }

   Corvo::Ptr< T > child_;
   std::optional< std::tuple< Args... > > builtFrom_;
};

} // namespace DaceFapNi
