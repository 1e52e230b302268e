#include "simulator/ChipsFiles.h"

#include "simulator/TableMap.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace Simulator {

namespace {

void writeAt( int file, U64 at, std::span< std::byte const > bytes ) {
   while ( !bytes.empty() ) {
      auto const written = ::pwrite( file, bytes.data(), bytes.size(), static_cast< off_t >( at ) );
      if ( written < 0 && errno != EINTR ) {
         refuseBySystem( "can't be written" );
      }
      auto const count = static_cast< std::size_t >( std::max< ssize_t >( written, 0 ) );
      at += count;
      bytes = bytes.subspan( count );
   }
}

// What was never touched is nothing already.
void writeImage( int file, U64 at, std::span< std::byte const > image ) {
   static constexpr std::array< std::byte, ChipMemory::page > nothing{};
   for ( std::size_t begin = 0; begin < image.size(); begin += nothing.size() ) {
      auto const page = image.subspan( begin, nothing.size() );
      if ( std::memcmp( page.data(), nothing.data(), nothing.size() ) != 0 ) {
         writeAt( file, at + begin, page );
      }
   }
}

// The header comes last: without it there is nothing.
void writeAll( int file, SwitchDescription const & of, ChipsMapping::Fill const & fill ) {
   ChipsHeader const header( of );
   // All of its room at once: a disk that is full later must not end the process at some write to the mapping.
   errno = ::posix_fallocate( file, 0, static_cast< off_t >( header.fileBytes() ) );
   if ( errno != 0 ) {
      refuseBySystem( "can't be written" );
   }
   ChipDriver chips;
   std::map< U32, ChipMemory > memories;
   for ( auto const & place : header.places() ) {
      auto const chipType = static_cast< Hardware::ChipType >( place.chipType );
      auto const & memory = memories.emplace( place.fap, ChipMemory::own( addressMap( chipType ) ) ).first->second;
      boot( chips.chipIs( DaceSal::ChipId{ static_cast< U16 >( place.fap ) },
                          Hardware::chipTypeName( chipType ),
                          addressMap( chipType ),
                          memory ),
            chipType,
            of.bootNoise );
   }
   if ( fill ) {
      fill( chips );
   }
   for ( auto const & place : header.places() ) {
      std::span const image( static_cast< std::byte const * >( memories.at( place.fap ).owner.get() ),
                             place.expectedAt - place.chipAt );
      writeImage( file, place.chipAt, image );
      writeImage( file, place.expectedAt, image );
   }
   writeAt( file, 0, header.bytes() );
}

void isOnDisk( int file ) {
   if ( ::fsync( file ) != 0 ) {
      refuseBySystem( "can't be written" );
   }
}

bool isTheOneAt( std::string const & path, int file ) {
   struct stat there;
   struct stat opened;
   return ::stat( path.c_str(), &there ) == 0 && ::fstat( file, &opened ) == 0 && there.st_dev == opened.st_dev &&
          there.st_ino == opened.st_ino;
}

// A copy that an agent had just begun to make of itself when it was killed still has its files until it is scheduled.
void lock( int file ) {
   constexpr auto patience = std::chrono::milliseconds( 500 );
   auto const begun = std::chrono::steady_clock::now();
   while ( ::flock( file, LOCK_EX | LOCK_NB ) != 0 ) {
      if ( errno != EWOULDBLOCK ) {
         refuseBySystem( "can't be locked" );
      }
      if ( std::chrono::steady_clock::now() - begun > patience ) {
         throw ChipsInUse( "is in use: another agent has these chips" );
      }
      std::this_thread::sleep_for( std::chrono::milliseconds( 5 ) );
   }
}

} // namespace

void refuseBySystem( std::string const & what ) {
   throw ChipsRefused( what + ": " + std::strerror( errno ) );
}

Descriptor lockedFile( std::string const & path, int flags ) {
   for ( ;; ) {
      // Should it be something that waits for the other end, it doesn't.
      Descriptor file( ::open( path.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK | flags, 0640 ) );
      if ( !file && errno == ENOENT && !( flags & O_CREAT ) ) {
         return file;
      }
      if ( !file ) {
         refuseBySystem( "can't be opened" );
      }
      lock( file.number() );
      // Who held the lock may have put another file there meanwhile.
      if ( isTheOneAt( path, file.number() ) ) {
         return file;
      }
   }
}

Descriptor lockedAgain( int file ) {
   Descriptor again( ::open( ( "/proc/self/fd/" + std::to_string( file ) ).c_str(), O_RDWR | O_CLOEXEC ) );
   if ( !again ) {
      refuseBySystem( "can't be opened" );
   }
   lock( again.number() );
   return again;
}

Descriptor madeFile( std::string const & path, SwitchDescription const & of, ChipsMapping::Fill const & fill ) {
   Descriptor const former = lockedFile( path, 0 ); // until the other one is there
   std::string const unfinished = path + ".new";
   Descriptor made = lockedFile( unfinished, O_CREAT );
   if ( ::ftruncate( made.number(), 0 ) != 0 ) {
      refuseBySystem( "can't be written" );
   }
   writeAll( made.number(), of, fill );
   isOnDisk( made.number() );
   if ( ::rename( unfinished.c_str(), path.c_str() ) != 0 ) {
      refuseBySystem( "can't be written" );
   }
   auto const folder = std::filesystem::absolute( path ).parent_path();
   Descriptor const directory( ::open( folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC ) );
   isOnDisk( directory.number() );
   return made;
}

Descriptor madeInMemory( SwitchDescription const & of, ChipsMapping::Fill const & fill ) {
   Descriptor made( ::memfd_create( "chips", MFD_CLOEXEC | MFD_ALLOW_SEALING ) );
   if ( !made ) {
      refuseBySystem( "can't be made" );
   }
   writeAll( made.number(), of, fill );
   // Nobody who has it can take a page away from under an agent.
   if ( ::fcntl( made.number(), F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL ) != 0 ) {
      refuseBySystem( "can't be made" );
   }
   return made;
}

void check( int file, ChipsHeader const & header ) {
   struct stat found;
   if ( ::fstat( file, &found ) != 0 || !S_ISREG( found.st_mode ) ) {
      throw ChipsRefused( "is no file of chips" );
   }
   auto const fileBytes = static_cast< U64 >( found.st_size );
   std::vector< std::byte > bytes( std::min< U64 >( fileBytes, ChipsHeader::most ) );
   std::size_t count = 0;
   while ( count < bytes.size() ) {
      auto const more = ::pread( file, bytes.data() + count, bytes.size() - count, static_cast< off_t >( count ) );
      if ( more == 0 || ( more < 0 && errno != EINTR ) ) {
         refuseBySystem( "can't be read" );
      }
      count += static_cast< std::size_t >( std::max< ssize_t >( more, 0 ) );
   }
   header.check( bytes, fileBytes );
}

} // namespace Simulator
