// MplsParserCfgSm: hands the four settings of the chip's MPLS parser to every FAP, through numbered controls.
//
// A setting is the configured value or, where none is given (255), the hardware's default. While the configuration says
// that it is not in force, the defaults are.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "corvo/Watched.h"
#include "sal/SwitchControlSal.h"
#include "state/CellStatus.h"
#include "state/Routing.h"

namespace DaceFapNi {

class MplsParserCfgSm : public Corvo::Node {
 public:
   using ConfigPtr = Corvo::Ptr< Mpls::Config const >;
   using CapabilityPtr = Corvo::Ptr< Mpls::Hardware::Capability const >;
   using SalPtr = Corvo::Ptr< DaceSal::SwitchControlSal >;
   using CellStatusPtr = Corvo::Ptr< Hardware::Dace::Cell::CellStatus const >;

   // Subscribes to the configuration, and runs handleParserConfig.
   MplsParserCfgSm( ConfigPtr const & mplsConfig,
                    CapabilityPtr const & mplsHwCapability,
                    SalPtr const & switchControlSal,
                    CellStatusPtr const & cellStatus );
   ~MplsParserCfgSm() override;
   // Makes an MplsParserCfgSm and activates it.
   static Corvo::Ptr< MplsParserCfgSm > MplsParserCfgSmIs( ConfigPtr const & mplsConfig,
                                                           CapabilityPtr const & mplsHwCapability,
                                                           SalPtr const & switchControlSal,
                                                           CellStatusPtr const & cellStatus );

   // Idempotent. Subscribes to or unsubscribes from the configuration.
   void hasNotificationActiveIs( bool active );
   virtual void rexDoZombieReactors( bool zombie );

   // Writes all five controls of every FAP. A setting that has neither a value nor a default throws the
   // bad-optional-access exception: before any write, except that a default that is looked at only when it is written
   // stops the run there.
   void handleParserConfig();

 private:
   static void mplsConfigDispatch( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * );

   Corvo::Watched< Mpls::Config const > mplsConfig_;
   CapabilityPtr const mplsHwCapability_;
   SalPtr const switchControlSal_;
   CellStatusPtr const cellStatus_;
};

// Makes an MplsParserCfgSm and activates it.
Corvo::Ptr< MplsParserCfgSm > mplsParserCfgSmFactory( MplsParserCfgSm::ConfigPtr const & mplsConfig,
                                                      MplsParserCfgSm::CapabilityPtr const & mplsHwCapability,
                                                      MplsParserCfgSm::SalPtr const & switchControlSal,
                                                      MplsParserCfgSm::CellStatusPtr const & cellStatus );

} // namespace DaceFapNi
