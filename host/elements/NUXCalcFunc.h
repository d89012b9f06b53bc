#pragma once

namespace hrx {
class CBody;
class CPolygon;
} // namespace hrx

/// Whether geometry is fit for measuring.
class NUXCalcFunc {
public:
    /// All five validity checks and a positive area (holes taken off). False for null. The flag is part of
    /// the platform's signature and changes nothing.
    static bool IsNuxStrictlyValid(const hrx::CPolygon* polygon, bool flag);
    /// The checks of the solid's kind and a positive volume. False for null.
    static bool IsNuxStrictlyBodyValid(const hrx::CBody* body);
};
