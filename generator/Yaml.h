// A YAML node that knows its file and line, and refuses what its reader does not expect.
//
//    Yaml root = Yaml::load( "catalogue/FwdKbrTable.yaml" );
//    root.allowKeys( { "kind", "geometry" } );
//    unsigned width = root.at( "geometry" ).item( 0 ).at( "width" ).number();
#pragma once

#include "generator/Model.h"

#include <yaml-cpp/yaml.h>

#include <functional>
#include <initializer_list>
#include <string_view>

class Yaml {
 public:
   static Yaml load( std::string const & file );

   // Error at this node's line.
   [[noreturn]] void fail( std::string const & text ) const;
   int line() const;

   // A map that has no other keys, and none twice.
   void allowKeys( std::initializer_list< std::string_view > keys ) const;
   bool has( std::string const & key ) const;
   Yaml at( std::string const & key ) const; // a missing key is an error

   std::string text() const;
   std::uint32_t number() const;
   // A list; `count` items where it is given.
   std::vector< Yaml > items( std::optional< std::size_t > count = {} ) const;
   // The entries of a map in the order of the file; a key twice is an error.
   void entries( std::function< void( std::string const & key, Yaml const & value ) > const & each ) const;
   bool isList() const { return node_.IsSequence(); }

 private:
   Yaml( YAML::Node const & node, std::string file, int line )
      : node_( node ), file_( std::move( file ) ), line_( line ) {}
   Yaml child( YAML::Node const & node ) const;

   YAML::Node node_;
   std::string file_;
   int line_; // of the parent, for nodes that have no mark of their own
};
