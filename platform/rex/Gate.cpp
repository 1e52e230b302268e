#include "rex/Gate.h"

namespace Rex {

namespace {
GateListener * theListener = nullptr;
} // namespace

GateListener * gateListener() {
   return theListener;
}

void gateListenerIs( GateListener * listener ) {
   theListener = listener;
}

} // namespace Rex
