// Values that an attribute takes, made from its declaration: for an event to copy, and for runs that change each
// attribute by itself.
//
//    sampleValue( *type.attribute( "udpPort" ), 0 );            // 1: not what is there
//    sampleKey( *type.attribute( "vtiStatus" )->keyType() );    // "Ethernet1"
//    withSampleKeys( "interface/status/eth/vxlan/vtiStatus/INTERFACE" );
#pragma once

#include "rex/Entity.h"

namespace Inspection {

// A value that differs from `from`. Of a map or collection, one entry's.
Rex::Value sampleValue( Rex::Attribute const & attribute, Rex::Value const & from );
Rex::Value sampleValue( Rex::ValueType const & type, Rex::Value const & from );
std::string sampleKey( Rex::ValueType const & type );
// A path as it is listed, with a key in place of each word in capitals.
std::string withSampleKeys( std::string const & path );

} // namespace Inspection
