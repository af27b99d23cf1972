#pragma once

namespace zem::geom {

/// An angle. The object begins with its size in radians, which is all that other libraries rely on.
///
/// A plain value: copies are independent, and reading one from several threads is safe.
class Angle {
public:
    /// Makes an angle of `radians`; any binary64 is accepted and kept as it is.
    explicit constexpr Angle(double radians) noexcept : radians_(radians) {}

    /// Returns the size in radians.
    constexpr double radians() const noexcept { return radians_; }

private:
    double radians_;
};

} // namespace zem::geom
