// The static programming of a chip by name: operations of L3Sm's type, each on the status of one FAP. They run a
// function again, or verify what is on the chip, for those who only load the library.
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
                                     OPERATION( initKapsInterfaceDefault ),
                                     OPERATION( initKapsStrengthMapping ),
                                     OPERATION( verifyKapsStrengthMapping ),
                                     OPERATION( initIppdFerTrapCfgReg ),
                                     OPERATION( initIppcInLifProfileCsMapping ),
                                     OPERATION( initVrfFallbackMapping ),
                                     OPERATION( initEtppCfgFwdDoNotTtlDecrement ),
                                     OPERATION( setupMplsPopFheiFormat ),
                                     OPERATION( setupVplsVlanAwareCsProfile ),
                                     OPERATION( setupAegisSetSecondaryVrfCsProfile ),
                                     OPERATION( setupVxlanUdpEspCsProfile ),
                                     OPERATION( initFlpRpfFormatConfig ),
                                     OPERATION( initLifMcBridgeFallbackAllowReg ),
                                  } };

#undef OPERATION

} // namespace

} // namespace DaceFapNi
