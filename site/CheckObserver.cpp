#include "site/CheckObserver.h"

namespace {

CheckObserver* theObserver = nullptr;

} // namespace

CheckObserver* checkObserver() {
    return theObserver;
}

void setCheckObserver(CheckObserver* observer) {
    theObserver = observer;
}
