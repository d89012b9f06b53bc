#pragma once

#include "cad/UdDbObject.h"
#include "elements/class_bits.h"

#include <string>
#include <utility>

/// A site element. Every class has its own type identifier, which an element may be given in place of.
class NUXElementObject : public UdDbObject {
public:
    static constexpr ClassBits kClassBit = referencehost::kElementObjectBit;
    static NUXElementObject* Cast(const UdRxObject* object) { return UdRxCast<NUXElementObject>(object); }

    explicit NUXElementObject(std::wstring typeIdentifier) : NUXElementObject(0, std::move(typeIdentifier)) {}

    virtual std::wstring getElementType() const { return m_typeIdentifier; }

protected:
    NUXElementObject(ClassBits classes, std::wstring typeIdentifier)
        : UdDbObject(classes | kClassBit), m_typeIdentifier(std::move(typeIdentifier)) {}

private:
    std::wstring m_typeIdentifier;
};
