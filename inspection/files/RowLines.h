// Rows as lines of a journal, one behind the other.
//
//    RowLines lines;
//    lines.add( row );
//    sink.append( lines.text() );
//    lines.clear();
//
// A long run has millions of them: what many lines share is put together once, and room is made once for each.
//
// Threading: one thread.
#pragma once

#include "simulator/Row.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Inspection {

class RowLines {
 public:
   void add( Simulator::Row const & row );
   std::string_view text() const { return { buffer_.get(), size_ }; }
   void clear() { size_ = 0; }

 private:
   // The lines' end, with room for as many bytes.
   char * room( std::size_t bytes );
   std::string_view tail( Simulator::Row const & row );
   std::string_view table( Simulator::Row const & row );
   std::string_view event( Simulator::Row const & row );
   std::string_view reason( Simulator::Row const & row );

   // How the lines of one origin end, as long as their cause is the same.
   struct Tail {
      U32 cause = 0;
      std::string text{};
   };
   struct Event {
      U32 number = 0;
      std::string text{};
   };
   struct Reason {
      std::string of{};
      std::string text{};
   };

   std::unique_ptr< char[] > buffer_;
   std::size_t size_ = 0;
   std::size_t capacity_ = 0;
   std::vector< Tail > tails_;         // by the origin's number and 1; 0: of publications
   std::vector< std::string > tables_; // by number
   Event event_;                       // of the latest row
   Reason reason_;                     // likewise
};

} // namespace Inspection
