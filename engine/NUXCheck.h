#pragma once

#include "firestandardcheck_export.h"

class NuxFireStandardCheck;

/// Holds the process's one check engine.
class FIRESTANDARDCHECK_EXPORT NUXCheck {
public:
    /// The engine, made by the first call and never destroyed. Not synchronised: the first call must not race
    /// with another.
    static NuxFireStandardCheck* instance();

    NUXCheck();
    ~NUXCheck();
    NUXCheck& operator=(const NUXCheck& other);

private:
    static NuxFireStandardCheck* m_instance;
};
