#pragma once

#include <QCoreApplication>

namespace firestandard {

/// What people read goes through `Words::tr`, whole sentences with placeholders, so that it can be
/// translated. Without a translation it stays the English of the source. Fill several placeholders with one
/// call of `arg(a, b)`: a name may hold a "%1" of its own.
struct Words {
    Q_DECLARE_TR_FUNCTIONS(Words)
};

} // namespace firestandard
