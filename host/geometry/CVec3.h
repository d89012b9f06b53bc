#pragma once

#include <cmath>

namespace hrx {

/// A point or vector of space.
template <class T> struct CVec3 {
    T x{};
    T y{};
    T z{};

    constexpr CVec3() = default;
    constexpr CVec3(T xValue, T yValue, T zValue) : x(xValue), y(yValue), z(zValue) {}
};

template <class T> constexpr CVec3<T> operator+(const CVec3<T>& a, const CVec3<T>& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
template <class T> constexpr CVec3<T> operator-(const CVec3<T>& a, const CVec3<T>& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
template <class T> constexpr CVec3<T> operator*(const CVec3<T>& a, T factor) {
    return {a.x * factor, a.y * factor, a.z * factor};
}
template <class T> constexpr bool operator==(const CVec3<T>& a, const CVec3<T>& b) {
    return a.x == b.x && a.y == b.y && a.z == b.z;
}
template <class T> constexpr bool operator!=(const CVec3<T>& a, const CVec3<T>& b) {
    return !(a == b);
}

template <class T> constexpr T dot(const CVec3<T>& a, const CVec3<T>& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
template <class T> constexpr CVec3<T> cross(const CVec3<T>& a, const CVec3<T>& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
template <class T> T length(const CVec3<T>& a) {
    return std::sqrt(dot(a, a));
}

} // namespace hrx
