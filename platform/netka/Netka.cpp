#include "netka/EthAddr.h"
#include "netka/IntfId.h"

#include <charconv>
#include <deque>
#include <unordered_map>

namespace Netka {

namespace {

struct IntfNames {
   std::unordered_map< std::string, U64 > ids{ { "", 0 } };
   std::deque< std::string > names{ "" };
};

IntfNames & intfNames() {
   static auto * names = new IntfNames; // ids are still told by name while static objects go
   return *names;
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
   bool isAddress = text.size() == 3 * bytes_.size() - 1;
   for ( std::size_t i = 0; i < bytes_.size() && isAddress; ++i ) {
      char const * const digits = text.data() + 3 * i;
      auto const [end, error] = std::from_chars( digits, digits + 2, bytes_[i], 16 );
      isAddress = error == std::errc{} && end == digits + 2 && ( i + 1 == bytes_.size() || *end == ':' );
   }
   if ( !isAddress ) {
      throw Rex::ValueError( "", "expected an address such as \"02:00:00:00:00:01\", got \"" + text + "\"" );
   }
}

std::string EthAddr::stringValue() const {
   constexpr char digits[] = "0123456789abcdef";
   std::string text( 3 * bytes_.size() - 1, ':' );
   for ( std::size_t i = 0; i < bytes_.size(); ++i ) {
      text[3 * i] = digits[bytes_[i] >> 4];
      text[3 * i + 1] = digits[bytes_[i] & 15];
   }
   return text;
}

} // namespace Netka

Netka::EthAddr Rex::Codec< Netka::EthAddr >::fromValue( Value const & value ) {
   if ( auto const * text = value.text() ) {
      return Netka::EthAddr( *text );
   }
   throwWrongKind( "an address such as \"02:00:00:00:00:01\"", value );
}
