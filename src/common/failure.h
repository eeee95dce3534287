#pragma once
// Run-time failures of the program's routines. A routine with a failure
// handler catches these at its boundary and reports its own tag; a routine
// without one lets them reach its caller's handler.
#include <cstdint>
#include <stdexcept>
#include <string>

namespace qs {

class RunTimeFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// A value did not fit the 16-bit integer it was stored in.
class Overflow : public RunTimeFailure {
public:
    Overflow() : RunTimeFailure("overflow") {}
};

// An index outside an array or a list.
class SubscriptOutOfRange : public RunTimeFailure {
public:
    SubscriptOutOfRange() : RunTimeFailure("subscript out of range") {}
};

// A file read went past its end.
class InputPastEnd : public RunTimeFailure {
public:
    InputPastEnd() : RunTimeFailure("input past end of file") {}
};

// A number field held text.
class TypeMismatch : public RunTimeFailure {
public:
    TypeMismatch() : RunTimeFailure("type mismatch") {}
};

// An operating-system service refused or failed.
class SystemCallFailed : public RunTimeFailure {
public:
    explicit SystemCallFailed(const std::string& what) : RunTimeFailure(what) {}
};

// Narrows a count or length to the 16-bit integer the program keeps it in.
inline std::int16_t ToInt16(long long value) {
    if (value < INT16_MIN || value > INT16_MAX) throw Overflow();
    return static_cast<std::int16_t>(value);
}

}  // namespace qs
