#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

/// Turns a fuzzer's bytes into values; zeros when they run out.
class ByteReader {
public:
    ByteReader(const std::uint8_t* data, std::size_t size) : m_next(data), m_end(data + size) {}

    bool isAtEnd() const { return m_next == m_end; }

    std::uint8_t byte() { return m_next < m_end ? *m_next++ : 0; }

    int below(int count) { return byte() % count; }

    /// Mostly coordinates of a site on a coarse grid, where shapes touch and coincide; now and then any
    /// finite number.
    double coordinate() {
        const int kind = below(16);
        if (kind == 0)
            return anyFinite();
        if (kind == 1)
            return special();
        const double grid = kind < 12 ? 500.0 : 1.0 / 3.0;
        return grid * static_cast<std::int8_t>(byte());
    }

    /// A coordinate no farther than a large site reaches.
    double siteCoordinate() {
        const double value = coordinate();
        return std::abs(value) <= 1e7 ? value : 0.0;
    }

    /// Mostly straight edges.
    double bulge() {
        const int kind = below(8);
        return kind < 4 ? 0.0 : kind == 4 ? 1.0 : static_cast<std::int8_t>(byte()) / 64.0;
    }

private:
    double anyFinite() {
        std::uint8_t bytes[sizeof(double)];
        for (std::uint8_t& each : bytes)
            each = byte();
        double value = 0.0;
        std::memcpy(&value, bytes, sizeof value);
        return std::isfinite(value) ? value : 0.0;
    }

    double special() {
        constexpr double values[] = {-0.0, 5e-324, 2.2e-16, 1e-9, 1e-6, 4e9, 1e12, 1e100, 1e308, -1e308};
        return values[below(10)];
    }

    const std::uint8_t* m_next;
    const std::uint8_t* m_end;
};
