// The two programming lists: the order in which a chip is programmed, on one screen.
#include "L3Sm.h"

namespace DaceFapNi {

// For each chip, when it comes up. The clears go first, because the functions that follow only OR their bits in.
void L3Sm::initChip( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal ) {
   static_cast< void >( sal );
   initIpTraps( fapStatus );
   initSplitHorizonTrapParamCfgReg( fapStatus );
   initIppbProgTrapCfgReg( fapStatus );
   initIppdFerTrapCfgReg( fapStatus );
}

// For all FAPs, when the machine becomes initialized and its children are built.
void L3Sm::programInitialState() {
   initUnknownDaProfileTable();
   handleLooseUrpfFailFwdConfig();
   handleStrictUrpfFailFwdConfig();
}

} // namespace DaceFapNi
