#include "simulator/ChipsMapping.h"

#include "simulator/ChipsFiles.h"
#include "simulator/TableMap.h"

#include <algorithm>
#include <fcntl.h>
#include <pthread.h>
#include <sys/mman.h>
#include <unistd.h>

namespace Simulator {

class ChipsMapping::Mapped {
 public:
   Mapped( Descriptor file, Descriptor lock, ChipsHeader header );
   ~Mapped();
   Mapped( Mapped const & ) = delete;
   Mapped & operator=( Mapped const & ) = delete;

   ChipsHeader const & header() const { return header_; }
   int file() const { return file_.number(); }
   std::span< std::byte > bytes() const { return { begin_, header_.fileBytes() }; }
   ChipsHeader::Place const & place( Hardware::Dace::FapId fap ) const;

 private:
   // Around a fork: the copy gets what is there apart.
   static void beforeFork();
   static void inAgent();
   static void inCopy();
   void copyApart();
   void copyIsDropped();
   void copyTakesItsPlace();
   static std::vector< Mapped * > & all();

   ChipsHeader const header_;
   Descriptor file_;
   Descriptor lock_; // where it isn't that of the file
   std::byte * begin_;
   void * apart_ = MAP_FAILED;
};

namespace {

// Runs `what`: where it refuses, it is that of this name which is refused.
template< class What >
auto named( std::string const & name, What const & what ) {
   try {
      return what();
   } catch ( ChipsInUse const & refused ) {
      throw ChipsInUse( name + ": " + refused.what() );
   } catch ( ChipsRefused const & refused ) {
      throw ChipsRefused( name + ": " + refused.what() );
   }
}

constexpr char const * nameInMemory = "the chips in memory";

} // namespace

std::vector< ChipsMapping::Mapped * > & ChipsMapping::Mapped::all() {
   static std::vector< Mapped * > all;
   return all;
}

ChipsMapping::Mapped::Mapped( Descriptor file, Descriptor lock, ChipsHeader header )
   : header_( std::move( header ) ), file_( std::move( file ) ), lock_( std::move( lock ) ) {
   check( file_.number(), header_ );
   void * const begin = ::mmap( nullptr, header_.fileBytes(), PROT_READ | PROT_WRITE, MAP_SHARED, file_.number(), 0 );
   if ( begin == MAP_FAILED ) {
      refuseBySystem( "can't be mapped" );
   }
   begin_ = static_cast< std::byte * >( begin );
   ChipsHeader::generationIs( bytes(), ChipsHeader::generation( bytes() ) + 1 );
   [[maybe_unused]] static int const once = ::pthread_atfork( beforeFork, inAgent, inCopy );
   all().push_back( this );
}

ChipsMapping::Mapped::~Mapped() {
   std::erase( all(), this );
   ::munmap( begin_, header_.fileBytes() );
}

void ChipsMapping::Mapped::beforeFork() {
   std::ranges::for_each( all(), &Mapped::copyApart );
}

void ChipsMapping::Mapped::inAgent() {
   std::ranges::for_each( all(), &Mapped::copyIsDropped );
}

void ChipsMapping::Mapped::inCopy() {
   std::ranges::for_each( all(), &Mapped::copyTakesItsPlace );
   all().clear(); // what is its own is copied by every further fork
}

void ChipsMapping::Mapped::copyApart() {
   auto const size = header_.fileBytes();
   apart_ = ::mmap( nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0 );
   if ( apart_ == MAP_FAILED ) {
      return;
   }
   ::madvise( apart_, size, MADV_HUGEPAGE ); // fewer faults; nothing is lost where it can't be had
   auto const end = static_cast< off_t >( size );
   for ( off_t at = 0; at < end; ) {
      off_t const data = ::lseek( file_.number(), at, SEEK_DATA );
      if ( data < 0 ) {
         break; // holes up to the end
      }
      off_t const hole = ::lseek( file_.number(), data, SEEK_HOLE );
      at = hole < 0 ? end : hole;
      std::memcpy(
         static_cast< std::byte * >( apart_ ) + data, begin_ + data, static_cast< std::size_t >( at - data ) );
   }
}

void ChipsMapping::Mapped::copyIsDropped() {
   if ( apart_ != MAP_FAILED ) {
      ::munmap( apart_, header_.fileBytes() );
      apart_ = MAP_FAILED;
   }
}

void ChipsMapping::Mapped::copyTakesItsPlace() {
   auto const size = header_.fileBytes();
   void * const moved =
      apart_ == MAP_FAILED
         ? MAP_FAILED
         : ::mremap( apart_, size, size, MREMAP_MAYMOVE | MREMAP_FIXED, static_cast< void * >( begin_ ) );
   apart_ = MAP_FAILED;
   if ( moved == MAP_FAILED ) {
      // It can't have the chips of that moment; but those of the agent it mustn't have.
      ::munmap( begin_, size );
   }
   // The lock is the agent's: it goes when the agent does.
   file_ = Descriptor();
   lock_ = Descriptor();
}

ChipsHeader::Place const & ChipsMapping::Mapped::place( Hardware::Dace::FapId fap ) const {
   auto const found = std::ranges::find( header_.places(), U32{ fap.value() }, &ChipsHeader::Place::fap );
   if ( found == header_.places().end() ) {
      throw std::out_of_range( "there are no chips of FAP " + std::to_string( fap.value() ) );
   }
   return *found;
}

std::optional< ChipsMapping > ChipsMapping::open( std::string const & path, SwitchDescription const & of ) {
   return named( path, [&]() -> std::optional< ChipsMapping > {
      auto file = lockedFile( path, 0 );
      if ( !file ) {
         return std::nullopt;
      }
      return ChipsMapping( std::make_shared< Mapped >( std::move( file ), Descriptor(), ChipsHeader( of ) ) );
   } );
}

ChipsMapping ChipsMapping::make( std::string const & path, SwitchDescription const & of, Fill const & fill ) {
   return named( path, [&] {
      auto file = madeFile( path, of, fill );
      return ChipsMapping( std::make_shared< Mapped >( std::move( file ), Descriptor(), ChipsHeader( of ) ) );
   } );
}

ChipsMapping ChipsMapping::makeInMemory( SwitchDescription const & of, Fill const & fill ) {
   return named( nameInMemory, [&] {
      auto file = madeInMemory( of, fill );
      auto lock = lockedAgain( file.number() );
      return ChipsMapping( std::make_shared< Mapped >( std::move( file ), std::move( lock ), ChipsHeader( of ) ) );
   } );
}

ChipsMapping ChipsMapping::of( int file, SwitchDescription const & of ) {
   return named( nameInMemory, [&] {
      Descriptor own( ::fcntl( file, F_DUPFD_CLOEXEC, 0 ) );
      if ( !own ) {
         refuseBySystem( "can't be had" );
      }
      auto lock = lockedAgain( own.number() );
      return ChipsMapping( std::make_shared< Mapped >( std::move( own ), std::move( lock ), ChipsHeader( of ) ) );
   } );
}

int ChipsMapping::file() const {
   return mapped_->file();
}

U32 ChipsMapping::generation() const {
   return ChipsHeader::generation( mapped_->bytes() );
}

ChipMemory ChipsMapping::chip( Hardware::Dace::FapId fap ) const {
   auto const & place = mapped_->place( fap );
   auto const & map = addressMap( static_cast< Hardware::ChipType >( place.chipType ) );
   return ChipMemory::at( mapped_->bytes().data() + place.chipAt, map, mapped_ );
}

ChipMemory ChipsMapping::expected( Hardware::Dace::FapId fap ) const {
   auto const & place = mapped_->place( fap );
   auto const & map = addressMap( static_cast< Hardware::ChipType >( place.chipType ) );
   return ChipMemory::at( mapped_->bytes().data() + place.expectedAt, map, mapped_ );
}

} // namespace Simulator
