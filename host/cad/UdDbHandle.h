#pragma once

/// The number by which a document knows an object for good. 0 belongs to no object.
class UdDbHandle {
public:
    UdDbHandle() = default;
    explicit UdDbHandle(long long id) : m_id(id) {}

    long long GetID() const { return m_id; }

private:
    long long m_id = 0;
};
