#include "agent/database/EtcdAddress.h"

#include "agent/database/DatabaseAddress.h"
#include "inspection/files/InputError.h"

#include <algorithm>
#include <fstream>
#include <string_view>

namespace Live {

namespace {

using Inspection::InputError;

constexpr std::string_view plain = "etcd://";
constexpr std::string_view secure = "etcds://";
constexpr U16 usualPort = 2379;

std::string memberOf( std::string_view text ) {
   if ( text.empty() || text.starts_with( ':' ) || text.starts_with( "[]" ) ) {
      refuseAddress( "names no host: etcd://host[:port][,host[:port]...][/prefix]" );
   }
   auto const at = HostPort::of( text, usualPort );
   if ( at.port == 0 ) {
      refuseAddress( R"(has "0" where a port is expected)" );
   }
   return at.text();
}

std::string firstLineOf( std::string const & file ) {
   std::ifstream in( file );
   std::string line;
   if ( !std::getline( in, line ) ) {
      throw InputError( file, "the password of the database can't be read from its first line" );
   }
   return line;
}

void checkFile( std::string const & file ) {
   if ( !file.empty() && !std::ifstream( file ) ) {
      throw InputError( file, "can't be read" );
   }
}

void check( DatabaseCredentials const & it, bool isSecure ) {
   if ( it.certificate.empty() != it.key.empty() ) {
      throw InputError( "a certificate and its key go together: --database-cert FILE --database-key FILE" );
   }
   if ( !isSecure && !( it.authorities + it.certificate ).empty() ) {
      throw InputError( "certificates are for etcds://, not for etcd://" );
   }
   if ( it.user.empty() != it.passwordFile.empty() ) {
      throw InputError( "a user and its password go together: --database-user NAME --database-password FILE" );
   }
   for ( auto const & file : { it.authorities, it.certificate, it.key } ) {
      checkFile( file );
   }
}

} // namespace

bool EtcdAddress::isOne( std::string const & url ) {
   return url.starts_with( plain ) || url.starts_with( secure );
}

EtcdAddress EtcdAddress::of( std::string const & url, DatabaseCredentials const & credentials ) {
   EtcdAddress address;
   address.isSecure = url.starts_with( secure );
   if ( !isOne( url ) ) {
      refuseAddress( "begins neither with etcd:// nor with etcds://" );
   }
   auto rest = std::string_view( url ).substr( address.isSecure ? secure.size() : plain.size() );
   auto const slash = rest.find( '/' );
   if ( slash != std::string_view::npos && slash + 1 < rest.size() ) {
      address.prefix = std::string( rest.substr( slash + 1 ) ) + ( rest.ends_with( '/' ) ? "" : "/" );
   }
   rest = rest.substr( 0, slash );
   if ( rest.find( '@' ) != std::string_view::npos ) {
      refuseAddress( "has a user in it: that is --database-user NAME, with --database-password FILE" );
   }
   for ( std::size_t comma = 0; comma != std::string_view::npos;
         rest.remove_prefix( std::min( comma + 1, rest.size() ) ) ) {
      comma = rest.find( ',' );
      address.members.push_back( memberOf( rest.substr( 0, comma ) ) );
      if ( comma == std::string_view::npos ) {
         break;
      }
   }
   check( credentials, address.isSecure );
   address.credentials = credentials;
   if ( !credentials.passwordFile.empty() ) {
      address.password = firstLineOf( credentials.passwordFile );
   }
   return address;
}

std::string EtcdAddress::name() const {
   std::string all( isSecure ? secure : plain );
   for ( auto const & member : members ) {
      all += ( &member == &members.front() ? "" : "," ) + member;
   }
   return prefix.empty() ? all : all + "/" + prefix.substr( 0, prefix.size() - 1 );
}

std::string EtcdAddress::urlOf( std::size_t member ) const {
   return ( isSecure ? "https://" : "http://" ) + members[member % members.size()];
}

} // namespace Live
