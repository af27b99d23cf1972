#pragma once

namespace zem::geom {

/// An angle. The object begins with its size in radians; other libraries rely on nothing else.
///
/// Threads: const operations on one object may run concurrently; every other operation needs
/// exclusive access to it.
class Angle {
public:
    /// Makes an angle of `radians`; any binary64 is accepted and stored unchanged.
    explicit constexpr Angle(double radians) noexcept : radians_(radians) {}

    /// Returns the size in radians.
    constexpr double radians() const noexcept { return radians_; }

private:
    double radians_;
};

} // namespace zem::geom
