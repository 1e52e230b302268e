// Files as streams of bytes. They are written compressed with zstd where their name ends in ".zst", and decompressed
// where they begin as zstd does. "-" is standard input.
//
//    ByteSink sink( "run.jsonl.zst" );          // InputError
//    sink.append( text );
//    sink.bringToDisk();                        // what was appended survives this process from here on
//
//    ByteSource source( "run.jsonl.zst" );      // InputError
//    while ( auto const size = source.read( buffer ) ) { ... }
//
// A file that can't be written any more: InputError, once; what follows goes nowhere.
//
// Threading: one thread for each stream.
#pragma once

#include "corvo/Types.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace Inspection {

// Bytes that whoever reads a file from end to end asks for at a time.
inline constexpr std::size_t readAtOnce = 1 << 18;

bool isCompressedName( std::string_view path );

class ByteSink {
 public:
   // Makes the file, or empties it.
   explicit ByteSink( std::string path );
   ~ByteSink();
   ByteSink( ByteSink const & ) = delete;
   ByteSink & operator=( ByteSink const & ) = delete;

   std::string const & path() const { return path_; }
   void append( std::string_view bytes );
   // Hands everything to the kernel. A compressed file can be read up to here then.
   void bringToDisk();
   // Brings the rest to the file and ends it. Idempotent.
   void close();
   // How many bytes the file has got so far.
   std::size_t written() const { return written_; }

 private:
   struct Compressor;
   void put( std::string_view bytes );
   void compress( std::string_view bytes, int how );
   [[noreturn]] void giveUp();

   std::string path_;
   int file_;
   std::size_t written_ = 0;
   std::string pending_;
   std::unique_ptr< Compressor > compressor_;
};

class ByteSource {
 public:
   // `look`: what is read of standard input is there for the next source, too.
   enum class Use : U8 { read, look };
   explicit ByteSource( std::string const & path, Use use = Use::read );
   ~ByteSource();
   ByteSource( ByteSource const & ) = delete;
   ByteSource & operator=( ByteSource const & ) = delete;

   // What messages call it.
   std::string const & path() const { return path_; }
   // Reads on into `into`, which isn't empty; how many bytes came. 0: the end. A compressed file that breaks off ends
   // there, and isCut() tells.
   std::size_t read( std::span< char > into );
   bool isCut() const { return isCut_; }

 private:
   struct Decompressor;
   void readAhead();
   std::size_t readRaw( std::span< char > into );
   std::size_t readFromFile( std::span< char > into );

   std::string path_;
   bool isStandardInput_;
   bool isLook_;
   int file_;
   std::string lookedAt_;
   bool isCut_ = false;
   std::string ahead_; // read, and not yet handed over
   std::unique_ptr< Decompressor > decompressor_;
};

} // namespace Inspection
