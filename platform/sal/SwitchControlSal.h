// Numbered controls of a chip: settings that the driver keeps, outside the tables.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "corvo/Ptr.h"
#include "sal/Driver.h"

#include <source_location>

namespace DaceSal {

class SalGlobalConfig : public Corvo::Node {};

class SwitchControlSal : public Corvo::Node {
 public:
   // Sets control `control` of the FAP `unit` to `value`; `flags` is always 0 here. Returns 0.
   virtual int switchControlSet(
      U16 unit, U32 control, U32 value, U32 flags, std::source_location origin = std::source_location::current() ) = 0;
};

// `sdkHandle` is a SchanDriver *; it must outlive what is made. Null ends the process: assertion text "sdkHandle".
Corvo::Ptr< SwitchControlSal > switchControlSalFactory( void * sdkHandle,
                                                        Corvo::Ptr< SalGlobalConfig > const & salGlobalConfig );

} // namespace DaceSal
