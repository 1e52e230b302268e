// The texts that the rows of a journal refer to, each kept once.
//
//    Text const cause = texts.kept( "evpn/status vxlanEnabled" );     // valid as long as `texts`
//    Tail const * tail = texts.tailOf( R"(, "function": "f", "source": "a.cpp:1", "cause": "start"})" );
//
// Threading: one thread.
#pragma once

#include "corvo/Types.h"

#include <array>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace Inspection {

class RowTexts {
 public:
   struct Text {
      std::string_view text;
      U32 number; // that stands for it
   };
   // How a line of a row ends: what it shares with many others.
   struct Tail {
      std::string_view reason; // of a gate
      std::string_view function;
      Text source;
      Text cause;
   };

   Text kept( std::string_view text );
   // Null where it is of another form than JournalWriter's.
   Tail const * tailOf( std::string_view text );

 private:
   struct TailHash {
      using is_transparent = void;
      std::size_t operator()( std::string_view text ) const;
   };

   std::deque< std::string > texts_;
   std::unordered_map< std::string_view, U32 > numbers_;
   using Tails = std::unordered_map< std::string, Tail, TailHash, std::equal_to<> >;
   Tails tails_;
   std::array< Tails::value_type const *, 32 > latest_{}; // by a text's length: most lines end as one before did
};

} // namespace Inspection
