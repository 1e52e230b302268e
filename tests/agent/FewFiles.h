// A process that can open no more files, as long as this stands.
//
//    FewFiles const none;
//    EXPECT_THROW( MemoryFile( "rows" ), Inspection::InputError );
#pragma once

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

class FewFiles {
 public:
   FewFiles() {
      ::getrlimit( RLIMIT_NOFILE, &before_ );
      int const next = ::open( "/dev/null", O_RDONLY | O_CLOEXEC );
      ::close( next );
      rlimit few = before_;
      few.rlim_cur = static_cast< rlim_t >( next );
      ::setrlimit( RLIMIT_NOFILE, &few );
   }
   ~FewFiles() { ::setrlimit( RLIMIT_NOFILE, &before_ ); }
   FewFiles( FewFiles const & ) = delete;
   FewFiles & operator=( FewFiles const & ) = delete;

 private:
   rlimit before_{};
};
