#include "sal/SwitchControlSal.h"

#include "assert/Assert.h"

namespace DaceSal {

namespace {

class DriverControlSal : public SwitchControlSal {
 public:
   explicit DriverControlSal( SchanDriver & driver ) : driver_( driver ) {}

   int switchControlSet( U16 unit, U32 control, U32 value, U32 flags, std::source_location origin ) override {
      Rex::sassert( flags == 0, "flags == 0" );
      auto * const listener = operationListener();
      Operation operation;
      if ( listener ) {
         operation.controlBefore = driver_.controlValue( ChipId{ unit }, control );
      }
      operation.changed = driver_.control( ChipId{ unit }, control, value );
      if ( listener ) {
         operation.kind = Operation::Kind::control;
         operation.chip = ChipId{ unit };
         operation.controlNumber = control;
         operation.controlValue = value;
         operation.origin = origin;
         listener->operation( operation );
      }
      return 0;
   }

 private:
   SchanDriver & driver_;
};

} // namespace

Corvo::Ptr< SwitchControlSal > switchControlSalFactory( void * sdkHandle, Corvo::Ptr< SalGlobalConfig > const & ) {
   Rex::sassert( sdkHandle != nullptr, "sdkHandle" );
   return Corvo::makePtr< DriverControlSal >( *static_cast< SchanDriver * >( sdkHandle ) );
}

} // namespace DaceSal
