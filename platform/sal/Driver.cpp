#include "sal/Driver.h"

namespace DaceSal {

SchanDriver * Impl::theDriver = nullptr;
OperationListener * Impl::theListener = nullptr;
SchanDriver * Impl::unheardDriver = nullptr;

namespace {

void unheardDriverIs() {
   Impl::unheardDriver = Impl::theListener ? nullptr : Impl::theDriver;
}

} // namespace

void schanDriverIs( SchanDriver * driver ) {
   Impl::theDriver = driver;
   unheardDriverIs();
}

void operationListenerIs( OperationListener * listener ) {
   Impl::theListener = listener;
   unheardDriverIs();
}

} // namespace DaceSal
