#include "engine/NUXCheck.h"

#include "engine/NuxFireStandardCheck.h"

NuxFireStandardCheck* NUXCheck::m_instance = nullptr;

NuxFireStandardCheck* NUXCheck::instance() {
    if (!m_instance)
        m_instance = new NuxFireStandardCheck();
    return m_instance;
}

NUXCheck::NUXCheck() = default;
NUXCheck::~NUXCheck() = default;
NUXCheck& NUXCheck::operator=(const NUXCheck&) {
    return *this;
}
