#include "sal/Driver.h"

namespace DaceSal {

namespace {
SchanDriver * theDriver = nullptr;
OperationListener * theListener = nullptr;
} // namespace

SchanDriver * schanDriver() {
   return theDriver;
}

void schanDriverIs( SchanDriver * driver ) {
   theDriver = driver;
}

OperationListener * operationListener() {
   return theListener;
}

void operationListenerIs( OperationListener * listener ) {
   theListener = listener;
}

} // namespace DaceSal
