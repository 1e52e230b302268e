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
   std::string_view origin( Simulator::Row const & row );
   std::string_view cause( Simulator::Row const & row );
   std::string_view table( Simulator::Row const & row );

   std::unique_ptr< char[] > buffer_;
   std::size_t size_ = 0;
   std::size_t capacity_ = 0;
   // By the number that the row has for it.
   std::vector< std::string > origins_;
   std::vector< std::string > causes_;
   std::vector< std::string > tables_;
};

} // namespace Inspection
