#include "inspection/files/ByteStreams.h"

#include "inspection/files/InputError.h"
#include "inspection/files/InputFile.h"
#include "inspection/files/StandardInput.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>
#include <utility>
#include <vector>
#include <zstd.h>

namespace Inspection {

namespace {

constexpr std::size_t pendingBytes = 1 << 16; // before they go to the kernel
constexpr int compressionLevel = 1;           // a journal repeats itself: more effort gains little

constexpr std::string_view frameBegin = "\x28\xb5\x2f\xfd"; // of zstd

std::string reason() {
   return std::strerror( errno );
}

} // namespace

bool isCompressedName( std::string_view path ) {
   return path.ends_with( ".zst" );
}

// ---- out

struct ByteSink::Compressor {
   Compressor() : context( ZSTD_createCCtx() ), out( ZSTD_CStreamOutSize() ) {
      ZSTD_CCtx_setParameter( context, ZSTD_c_compressionLevel, compressionLevel );
      ZSTD_CCtx_setParameter( context, ZSTD_c_checksumFlag, 1 );
   }
   ~Compressor() { ZSTD_freeCCtx( context ); }
   Compressor( Compressor const & ) = delete;
   Compressor & operator=( Compressor const & ) = delete;

   ZSTD_CCtx * context;
   std::vector< char > out;
};

ByteSink::ByteSink( std::string path )
   : path_( std::move( path ) ), file_( ::open( path_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666 ) ) {
   if ( file_ < 0 ) {
      throw InputError( path_, "can't be written: " + reason() );
   }
   if ( isCompressedName( path_ ) ) {
      compressor_ = std::make_unique< Compressor >();
   }
}

ByteSink::~ByteSink() {
   try {
      close();
   } catch ( InputError const & error ) {
      std::fprintf( stderr, "%s\n", error.what() );
   }
}

// It is told once: what follows goes nowhere.
void ByteSink::giveUp() {
   std::string const why = reason();
   ::close( std::exchange( file_, -1 ) );
   throw InputError( path_, "can't be written: " + why );
}

void ByteSink::put( std::string_view bytes ) {
   while ( !bytes.empty() && file_ >= 0 ) {
      auto const written = ::write( file_, bytes.data(), bytes.size() );
      if ( written < 0 && errno != EINTR ) {
         giveUp();
      }
      std::size_t const size = written < 0 ? 0 : static_cast< std::size_t >( written );
      bytes.remove_prefix( size );
      written_ += size;
   }
}

void ByteSink::compress( std::string_view bytes, int how ) {
   ZSTD_inBuffer in{ bytes.data(), bytes.size(), 0 };
   std::size_t left = 1;
   while ( left != 0 || in.pos < in.size ) {
      ZSTD_outBuffer out{ compressor_->out.data(), compressor_->out.size(), 0 };
      left = ZSTD_compressStream2( compressor_->context, &out, &in, static_cast< ZSTD_EndDirective >( how ) );
      put( { compressor_->out.data(), out.pos } );
      if ( how == ZSTD_e_continue && in.pos == in.size ) {
         break;
      }
   }
}

void ByteSink::append( std::string_view bytes ) {
   if ( compressor_ ) {
      compress( bytes, ZSTD_e_continue ); // which keeps them until there are enough
      return;
   }
   if ( pending_.size() + bytes.size() < pendingBytes ) {
      pending_ += bytes;
      return;
   }
   bringToDisk();
   put( bytes );
}

void ByteSink::bringToDisk() {
   if ( compressor_ ) {
      compress( {}, ZSTD_e_flush );
   } else {
      put( pending_ );
      pending_.clear();
   }
}

void ByteSink::close() {
   if ( file_ < 0 ) {
      return;
   }
   if ( compressor_ ) {
      compress( {}, ZSTD_e_end );
   } else {
      bringToDisk();
   }
   if ( ::close( std::exchange( file_, -1 ) ) != 0 ) {
      throw InputError( path_, "can't be written: " + reason() );
   }
}

// ---- in

struct ByteSource::Decompressor {
   Decompressor() : context( ZSTD_createDCtx() ), in( ZSTD_DStreamInSize() ) {}
   ~Decompressor() { ZSTD_freeDCtx( context ); }
   Decompressor( Decompressor const & ) = delete;
   Decompressor & operator=( Decompressor const & ) = delete;

   ZSTD_DCtx * context;
   std::vector< char > in;
   ZSTD_inBuffer input{ nullptr, 0, 0 };
   bool isInFrame = false;
};

ByteSource::ByteSource( std::string const & path, Use use )
   : path_( inputName( path ) ), isStandardInput_( path == "-" ), isLook_( use == Use::look ),
     file_( isStandardInput_ ? ::dup( STDIN_FILENO ) : ::open( path.c_str(), O_RDONLY | O_CLOEXEC ) ) {
   if ( file_ < 0 ) {
      throw InputError( path_, "can't be read: " + reason() );
   }
   if ( isStandardInput_ && ::isatty( file_ ) ) {
      ::close( file_ );
      throw InputError( path_, "is a terminal; name a file, or give the text through a pipe" );
   }
   readAhead();
}

// Compressed is what begins so, whatever its name is.
void ByteSource::readAhead() {
   std::array< char, frameBegin.size() > begin;
   std::size_t size = 0;
   while ( size < begin.size() ) {
      auto const more = readRaw( std::span( begin ).subspan( size ) );
      if ( more == 0 ) {
         break;
      }
      size += more;
   }
   ahead_.assign( begin.data(), size );
   if ( ahead_ == frameBegin ) {
      decompressor_ = std::make_unique< Decompressor >();
      std::ranges::copy( ahead_, decompressor_->in.begin() );
      decompressor_->input = { decompressor_->in.data(), size, 0 };
      ahead_.clear();
   } else if ( size > 0 && isCompressedName( path_ ) && frameBegin.starts_with( ahead_ ) ) {
      isCut_ = true;
      ahead_.clear();
   }
}

ByteSource::~ByteSource() {
   ::close( file_ );
   if ( isStandardInput_ && isLook_ ) {
      readAheadOfStandardInput().insert( 0, lookedAt_ );
   }
}

std::size_t ByteSource::readRaw( std::span< char > into ) {
   if ( !isStandardInput_ ) {
      return readFromFile( into );
   }
   std::string & ahead = readAheadOfStandardInput();
   std::size_t size = std::min( ahead.size(), into.size() );
   if ( size > 0 ) {
      std::ranges::copy( std::string_view( ahead ).substr( 0, size ), into.begin() );
      ahead.erase( 0, size );
   } else {
      size = readFromFile( into );
   }
   if ( isLook_ ) {
      lookedAt_.append( into.data(), size );
   }
   return size;
}

std::size_t ByteSource::readFromFile( std::span< char > into ) {
   while ( true ) {
      auto const size = ::read( file_, into.data(), into.size() );
      if ( size >= 0 ) {
         return static_cast< std::size_t >( size );
      }
      if ( errno != EINTR ) {
         throw InputError( path_, "can't be read: " + reason() );
      }
   }
}

std::size_t ByteSource::read( std::span< char > into ) {
   if ( !ahead_.empty() ) {
      auto const size = std::min( ahead_.size(), into.size() );
      std::ranges::copy( std::string_view( ahead_ ).substr( 0, size ), into.begin() );
      ahead_.erase( 0, size );
      return size + ( size < into.size() ? readRaw( into.subspan( size ) ) : 0 );
   }
   if ( !decompressor_ ) {
      return readRaw( into );
   }
   auto & [context, in, input, isInFrame] = *decompressor_;
   ZSTD_outBuffer out{ into.data(), into.size(), 0 };
   while ( out.pos == 0 ) {
      if ( input.pos == input.size ) {
         input = { in.data(), readRaw( in ), 0 };
         if ( input.size == 0 ) {
            isCut_ = isInFrame;
            return 0;
         }
      }
      auto const left = ZSTD_decompressStream( context, &out, &input );
      if ( ZSTD_isError( left ) ) {
         throw InputError( path_, std::string( "can't be decompressed: " ) + ZSTD_getErrorName( left ) );
      }
      isInFrame = left != 0;
   }
   return out.pos;
}

} // namespace Inspection
