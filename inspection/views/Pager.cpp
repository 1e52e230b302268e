#include "inspection/views/Pager.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace Inspection {

namespace {

bool isOff = false;
Pager * theOne = nullptr;

std::size_t screenRows() {
   winsize size{};
   return ::ioctl( STDOUT_FILENO, TIOCGWINSZ, &size ) == 0 ? size.ws_row : 0;
}

// False where there is no such pager.
bool pagedThrough( std::string const & command, std::string const & text ) {
   constexpr int noSuchCommand = 127;                      // as shells tell it
   auto * const handler = std::signal( SIGPIPE, SIG_IGN ); // who has seen enough leaves early
   std::FILE * const pager = ::popen( command.c_str(), "w" );
   if ( !pager ) {
      return false;
   }
   std::fwrite( text.data(), 1, text.size(), pager );
   int const status = ::pclose( pager );
   std::signal( SIGPIPE, handler );
   return !( WIFEXITED( status ) && WEXITSTATUS( status ) == noSuchCommand );
}

} // namespace

void Pager::off() {
   isOff = true;
}

std::string Pager::commandFor( std::size_t lines, std::size_t rows ) {
   char const * const told = std::getenv( "PAGER" );
   if ( isOff || rows == 0 || lines < rows ) {
      return {};
   }
   return told ? told : "less -FRX";
}

Pager::Pager() {
   if ( !isOff && ::isatty( STDOUT_FILENO ) ) {
      std::cout.flush();
      before_ = std::cout.rdbuf( &held_ );
      theOne = this;
   }
}

Pager::~Pager() {
   release( true );
   theOne = nullptr;
}

void Pager::letThrough() {
   if ( theOne ) {
      theOne->release( false );
   }
}

void Pager::release( bool mayPage ) {
   std::streambuf * const before = std::exchange( before_, nullptr );
   if ( !before ) {
      return;
   }
   std::cout.rdbuf( before );
   std::string const text = held_.str();
   auto const lines = static_cast< std::size_t >( std::ranges::count( text, '\n' ) );
   std::string const command = mayPage ? commandFor( lines, screenRows() ) : std::string();
   if ( command.empty() || !pagedThrough( command, text ) ) {
      std::cout << text << std::flush;
   }
}

} // namespace Inspection
