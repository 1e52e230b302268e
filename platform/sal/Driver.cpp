#include "sal/Driver.h"

namespace DaceSal {

SchanDriver * Impl::theDriver = nullptr;
OperationListener * Impl::theListener = nullptr;

void schanDriverIs( SchanDriver * driver ) {
   Impl::theDriver = driver;
}

void operationListenerIs( OperationListener * listener ) {
   Impl::theListener = listener;
}

} // namespace DaceSal
