#include "l3sm/Tracing.h"

#include "assert/Assert.h"
#include "inspection/files/InputError.h"
#include "inspection/views/Terminal.h"
#include "rex/Nearest.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <sstream>

namespace Cli {

using namespace Inspection;

Tracing::Tracing( std::string const & wanted, std::string const & file ) : path_( file ) {
   OutputFile const writable( file );
   std::istringstream parts( wanted );
   for ( std::string part; std::getline( parts, part, ',' ); ) {
      auto const slash = part.rfind( '/' );
      bool const hasForm = slash != std::string::npos && slash > 0 && slash + 2 == part.size() &&
                           part[slash + 1] >= '0' && part[slash + 1] <= '9';
      if ( !hasForm ) {
         throw InputError( "--trace " + part,
                           "expected FACILITY/LEVEL with a level from 0 to 9, as in DaceFapNiL3Sm/8" );
      }
      facilities_.push_back( { part.substr( 0, slash ), part[slash + 1] - '0' } );
   }
}

Tracing::~Tracing() {
   Rex::traceSinkIs( {} );
   if ( failureHook_ ) {
      Rex::failureHookDel( failureHook_ );
   }
}

void Tracing::start() {
   checkNames();
   if ( !path_.empty() ) {
      file_.reset( path_ == "-" ? stdout : std::fopen( path_.c_str(), "w" ) );
      if ( !file_ ) {
         throw InputError( path_, std::string( "can't be written: " ) + std::strerror( errno ) );
      }
      failureHook_ = Rex::atFailure( [this] { std::fflush( file_.get() ); } );
   }
   Rex::traceSinkIs( [this]( Rex::TraceRecord const & record ) {
      std::fprintf( file_ ? file_.get() : stderr,
                    "%s/%d %s\n",
                    record.facility,
                    record.level,
                    Inspection::printable( record.text ).c_str() );
   } );
   for ( auto const & facility : facilities_ ) {
      Rex::traceLevelIs( facility.name, facility.level );
   }
}

void Tracing::checkNames() const {
   auto known = Rex::traceFacilityNames();
   known.erase( std::unique( known.begin(), known.end() ), known.end() ); // a facility has a part in each file
   std::string all;
   for ( auto const & name : known ) {
      all += ( all.empty() ? "; there are " : ", " ) + name;
   }
   std::vector< std::string > wrong;
   for ( auto const & facility : facilities_ ) {
      if ( facility.name != "*" && std::find( known.begin(), known.end(), facility.name ) == known.end() ) {
         auto const near = Rex::didYouMean( facility.name, known );
         wrong.push_back( "--trace " + facility.name + ": no such facility" + ( near.empty() ? all : near ) );
      }
   }
   if ( !wrong.empty() ) {
      throw InputError( wrong );
   }
}

void Tracing::flush() {
   if ( file_ && ( std::fflush( file_.get() ) != 0 || std::ferror( file_.get() ) ) ) {
      throw InputError( path_, std::string( "can't be written: " ) + std::strerror( errno ) );
   }
}

} // namespace Cli
