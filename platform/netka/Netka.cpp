#include "netka/EthAddr.h"
#include "netka/IntfId.h"

#include <cstdio>
#include <deque>
#include <unordered_map>

namespace Netka {

namespace {

struct IntfNames {
   std::unordered_map< std::string, U64 > ids{ { "", 0 } };
   std::deque< std::string > names{ "" };
};

IntfNames & intfNames() {
   static IntfNames names;
   return names;
}

} // namespace

IntfId::IntfId( std::string const & name ) {
   auto & table = intfNames();
   auto const [at, isNew] = table.ids.try_emplace( name, table.names.size() );
   if ( isNew ) {
      table.names.push_back( name );
   }
   id_ = at->second;
}

std::string const & IntfId::stringValue() const {
   return intfNames().names[id_];
}

EthAddr::EthAddr( std::string const & text ) {
   std::array< unsigned, 6 > part{};
   int used = 0;
   int const parts = std::sscanf(
      text.c_str(), "%2x:%2x:%2x:%2x:%2x:%2x%n", &part[0], &part[1], &part[2], &part[3], &part[4], &part[5], &used );
   if ( parts != 6 || static_cast< std::size_t >( used ) != text.size() || text.size() != 17 ) {
      throw Rex::ValueError( "", "expected an address such as \"02:00:00:00:00:01\", got \"" + text + "\"" );
   }
   for ( std::size_t i = 0; i < part.size(); ++i ) {
      bytes_[i] = static_cast< U8 >( part[i] );
   }
}

std::string EthAddr::stringValue() const {
   char text[18];
   std::snprintf( text,
                  sizeof text,
                  "%02x:%02x:%02x:%02x:%02x:%02x",
                  bytes_[0],
                  bytes_[1],
                  bytes_[2],
                  bytes_[3],
                  bytes_[4],
                  bytes_[5] );
   return text;
}

} // namespace Netka

Netka::EthAddr Rex::Codec< Netka::EthAddr >::fromValue( Value const & value ) {
   if ( auto const * text = value.text() ) {
      return Netka::EthAddr( *text );
   }
   throwWrongKind( "an address such as \"02:00:00:00:00:01\"", value );
}
