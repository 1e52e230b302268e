// A stream into the socket of a client that may be slow to read: waits for it, but not for ever.
//
//    SocketBuffer buffer( socket, patience, written );
//    std::ostream out( &buffer );
//    out << answerBegin( id ) << value << answerEnd;
//    buffer.sendAll();                 // SocketBuffer::Stuck, as whatever writes to the stream
//
// A line's end that belongs to a value is white space, and is written as a blank: the line that is sent ends where the
// answer does.
//
// Threading: none.
#pragma once

#include "corvo/Types.h"

#include <atomic>
#include <streambuf>
#include <vector>

namespace Live {

class SocketBuffer final : public std::streambuf {
 public:
   // The client reads nothing, or is gone.
   struct Stuck {};

   // `written` counts what has gone to the socket.
   SocketBuffer( int socket, int patience, std::atomic< U64 > & written );
   void sendAll() { send( ' ' ); }
   // What ends the line.
   void endLine() { send( '\n' ); }
   // Forgets what hasn't been sent yet.
   void drop() { setp( buffer_.data(), buffer_.data() + buffer_.size() ); }

 private:
   int overflow( int letter ) override;
   int sync() override { return 0; } // who flushes is in no hurry
   void send( char lineEnd );

   int socket_;
   int patience_;
   std::atomic< U64 > & written_;
   std::vector< char > buffer_;
};

} // namespace Live
