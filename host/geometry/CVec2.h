#pragma once

#include <cmath>

namespace hrx {

/// A point or vector of the plane.
template <class T> struct CVec2 {
    T x{};
    T y{};

    constexpr CVec2() = default;
    constexpr CVec2(T xValue, T yValue) : x(xValue), y(yValue) {}
};

template <class T> constexpr CVec2<T> operator+(const CVec2<T>& a, const CVec2<T>& b) {
    return {a.x + b.x, a.y + b.y};
}
template <class T> constexpr CVec2<T> operator-(const CVec2<T>& a, const CVec2<T>& b) {
    return {a.x - b.x, a.y - b.y};
}
template <class T> constexpr CVec2<T> operator*(const CVec2<T>& a, T factor) {
    return {a.x * factor, a.y * factor};
}
template <class T> constexpr bool operator==(const CVec2<T>& a, const CVec2<T>& b) {
    return a.x == b.x && a.y == b.y;
}
template <class T> constexpr bool operator!=(const CVec2<T>& a, const CVec2<T>& b) {
    return !(a == b);
}

template <class T> constexpr T dot(const CVec2<T>& a, const CVec2<T>& b) {
    return a.x * b.x + a.y * b.y;
}
/// Positive when b is to the left of a.
template <class T> constexpr T cross(const CVec2<T>& a, const CVec2<T>& b) {
    return a.x * b.y - a.y * b.x;
}
/// a turned by 90 degrees counter-clockwise.
template <class T> constexpr CVec2<T> leftNormal(const CVec2<T>& a) {
    return {-a.y, a.x};
}
template <class T> T length(const CVec2<T>& a) {
    return std::sqrt(dot(a, a));
}

} // namespace hrx
