// The static programming of a chip by name: operations of L3Sm's type, each on the status of one FAP, and some with
// the driver handle as well. They run a function again, or verify what is on the chip, for those who only load the
// library.
#include "L3Sm.h"
#include "rex/Operations.h"

namespace DaceFapNi {

namespace {

#define OPERATION( name )                                                                                              \
   { #name, L3Sm::name }

Rex::Operations const operations{ "DaceFapNi::L3Sm",
                                  {
                                     OPERATION( clearInLifProfileCsMapMsb ),
                                     OPERATION( clearInLifProfileCsMapLsb ),
                                     OPERATION( initEnablersVectors ),
                                     OPERATION( initVsiProfileTable ),
                                     OPERATION( initSviLearning ),
                                     OPERATION( initInLifProfileTable ),
                                     OPERATION( initIpTraps ),
                                     OPERATION( disableIngressTermination ),
                                     OPERATION( initInlifOrientationMapTable ),
                                     OPERATION( initOutlifOrientationMap ),
                                     OPERATION( initSplitHorizonTrapParamCfgReg ),
                                     OPERATION( initIppbProgTrapCfgReg ),
                                     OPERATION( initIppbFlpbResContextEnablersReg ),
                                     OPERATION( initIppeRecycFwdProfileMappingReg ),
                                     OPERATION( initMtuRecycleLog ),
                                     OPERATION( initKapsInterfaceDefault ),
                                     OPERATION( initKapsStrengthMapping ),
                                     OPERATION( verifyKapsStrengthMapping ),
                                     OPERATION( initMplsDefaultFwdResult ),
                                     OPERATION( initIppdFerTrapCfgReg ),
                                     OPERATION( initIppcInLifProfileCsMapping ),
                                     OPERATION( initVrfFallbackMapping ),
                                     OPERATION( initEtppCfgFwdDoNotTtlDecrement ),
                                     OPERATION( initSaProcedureFwd2RoutingCtxs ),
                                     OPERATION( setupMplsPopFheiFormat ),
                                     OPERATION( setupVplsVlanAwareCsProfile ),
                                     OPERATION( setupAegisSetSecondaryVrfCsProfile ),
                                     OPERATION( setupVxlanUdpEspCsProfile ),
                                     OPERATION( doSetupVtt5DefaultLif ),
                                     OPERATION( doSetupVxlanDefaultVsi ),
                                     OPERATION( doSetupVxlanVtt5DefaultLif ),
                                     OPERATION( doSetupVtt5VniToVrfDummyLif ),
                                     OPERATION( doSetupVxlanMcastEtppDoubleOutLifSwap ),
                                     OPERATION( doSetupVxlanMcastSgiProgram ),
                                     OPERATION( doSetupVxlanSipMissLif ),
                                     OPERATION( doCopyFwdDomainConfigToLifStatsForEtpsArpAc ),
                                     OPERATION( initFlpRpfFormatConfig ),
                                     OPERATION( initLifMcBridgeFallbackAllowReg ),
                                  } };

#undef OPERATION

} // namespace

} // namespace DaceFapNi
