// Lines for people that fit the terminal: what is wider goes on in the next line, further in.
//
//    Lines lines( std::cout );
//    lines.title( "Event 1: set evpn/status evpnDciEnabled = true" );
//    lines.put( 2, "FAP 0-3: 1 write" );
//
// A word that is wider than a line loses its middle to a "…", or is cut in pieces where everything is to be told.
#pragma once

#include "corvo/Types.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

class Lines {
 public:
   enum class Long : U8 { shortened, whole };

   explicit Lines( std::ostream & out, Long longWords = Long::shortened )
      : out_( out ), style_( Style::of( out ) ), width_( lineWidth() ), long_( longWords ) {}

   void title( std::string const & text ) { putAll( 0, text, true ); }
   void put( std::size_t indent, std::string const & text ) { putAll( indent, text, false ); }
   // "  served: Ethernet1, Ethernet2": the items are kept whole.
   void list( std::size_t indent, std::string const & head, std::vector< std::string > const & items );
   void blank() { out_ << '\n'; }

 private:
   void putAll( std::size_t indent, std::string const & text, bool isTitle );

   std::ostream & out_;
   Style style_;
   std::size_t width_;
   Long long_;
};

// `text` in at most `width` columns: without its middle where it is wider.
std::string shortened( std::string const & text, std::size_t width );

// Two values in hexadecimal, of which at least one is wide: "bits 3, 17-19 of 512"; empty where they aren't both one.
std::string differingBits( std::string const & before, std::string const & after );

} // namespace Inspection
