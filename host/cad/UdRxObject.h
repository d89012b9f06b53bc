#pragma once

#include <cstdint>

/// Root of every run-time-typed object. A class is one bit, and an object carries the bits of all classes on
/// its inheritance path, so a cast costs a test of one word, hit or miss.
///
/// An object may have a second view: another object that stands for the same drawing entity in a different
/// class family (a site element that is a 3-D model object as well). Casts look at both; the two views know
/// each other, so a cast through either finds the same pair.
class UdRxObject {
public:
    using ClassBits = std::uint32_t;

    virtual ~UdRxObject() = default;
    UdRxObject(const UdRxObject&) = delete;
    UdRxObject& operator=(const UdRxObject&) = delete;

protected:
    explicit UdRxObject(ClassBits classes) : m_classes(classes) {}

    /// Neither view owns the other through this link.
    void linkViews(UdRxObject& other) {
        m_otherView = &other;
        other.m_otherView = this;
    }

private:
    template <class T> friend T* UdRxCast(const UdRxObject* object);

    const ClassBits m_classes;
    UdRxObject* m_otherView = nullptr;
};

/// The object as a T, or null when it is none (also for null). T names its class bit `kClassBit` and derives
/// from UdRxObject without virtual bases. Objects are opened for reading only, yet the platform's casts take
/// a pointer to const and give one that is not.
template <class T> T* UdRxCast(const UdRxObject* object) {
    if (!object)
        return nullptr;
    if (object->m_classes & T::kClassBit)
        return static_cast<T*>(const_cast<UdRxObject*>(object));
    const UdRxObject* other = object->m_otherView;
    if (other && (other->m_classes & T::kClassBit))
        return static_cast<T*>(const_cast<UdRxObject*>(other));
    return nullptr;
}
