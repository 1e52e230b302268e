// A large JSON file, walked over as it is read: what nobody wants is passed over without being taken apart, and only
// the value that is asked for is held.
//
//    JsonStream json( "chips.json" );            // InputError
//    json.enter();                               // its outermost object
//    for ( std::string key; json.nextKey( key ); ) {
//       key == "faps" ? use( json.value() ) : json.skip();
//    }
//
// Values that are passed over are looked at only as far as finding their end takes.
//
// Threading: one thread.
#pragma once

#include "inspection/files/ByteStreams.h"

#include <vector>

namespace Inspection {

class JsonStream {
 public:
   explicit JsonStream( std::string path );

   std::string const & path() const { return source_.path(); }
   // What has been read ahead, for telling what the file is.
   std::string_view ahead();
   // Goes into the object that comes next. InputError if none does.
   void enter();
   // The next key of the object that was entered last, with its escapes; false where that object ends.
   bool nextKey( std::string & key );
   // Passes over the value that comes next.
   void skip();
   // Its text, valid until the next call; bytes behind it may be read as simdjson does.
   std::string_view value();
   // Passes over the value if it begins with these letters, which are a whole value.
   bool passIfSame( std::string_view value );
   // Only white space may follow.
   void end();

 private:
   struct Scan {
      std::size_t depth = 0;
      bool isInString = false;
      bool isEscaped = false;
   };

   bool refill();              // more bytes behind what is there; false at the end
   bool peek( char & letter ); // the next that is no white space
   void pass( bool isKept );
   // Compiled for newer processors, too: most of the time that a large file takes goes here.
#ifndef __clang__
   [[gnu::target_clones( "avx2", "default" )]]
#endif
   static char const *
   endOf( char const * from, char const * to, Scan & scan );
   static char const * endOfBytes( char const * from, char const * to, Scan & scan );
   [[noreturn]] void refuse( std::string const & what ) const;

   ByteSource source_;
   std::vector< char > buffer_;
   std::size_t from_ = 0; // the next byte
   std::size_t to_ = 0;
   std::size_t kept_ = 0; // from here on the bytes stay
   bool isKeeping_ = false;
   std::size_t dropped_ = 0; // bytes that were before the buffer's
   bool isFirst_ = true;     // no member of the object has been seen
};

} // namespace Inspection
