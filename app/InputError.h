#pragma once

#include <stdexcept>

namespace firecheck {

/// A file or an argument that cannot be used; the text says where and what was expected there.
class InputError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace firecheck
