#pragma once

// Deterministic randomness for the demo: every number is a hash of the seed and of where it is
// used (station, cell, purpose), so the same seed gives the same files whatever the order of work,
// and no library distribution whose output may change between versions is involved.
#include <QtGlobal>

#include <cmath>

namespace TVX::TOOL {

// SplitMix64's finaliser: a good 64-bit mix.
inline quint64 mix64(quint64 x)
{
    x += 0x9E3779B97F4A7C15ull;
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9ull;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBull;
    return x ^ (x >> 31);
}

inline quint64 hashOf(quint64 a, quint64 b = 0, quint64 c = 0, quint64 d = 0)
{
    return mix64(mix64(mix64(mix64(a) ^ b) ^ c) ^ d);
}

// In [0, 1).
inline double unitOf(quint64 hash)
{
    return double(hash >> 11) * (1.0 / 9007199254740992.0);
}

// In [low, high).
inline double uniformOf(quint64 hash, double low, double high)
{
    return low + (high - low) * unitOf(hash);
}

// Smooth value noise in [0, 1] over 3D space, features about one unit apart.
inline double valueNoise(double x, double y, double z, quint64 seed)
{
    const double fx = std::floor(x), fy = std::floor(y), fz = std::floor(z);
    const auto ix = qint64(fx), iy = qint64(fy), iz = qint64(fz);
    const auto smooth = [](double t) { return t * t * (3.0 - 2.0 * t); };
    const double tx = smooth(x - fx), ty = smooth(y - fy), tz = smooth(z - fz);
    const auto at = [seed](qint64 i, qint64 j, qint64 k) { return unitOf(hashOf(seed, quint64(i), quint64(j), quint64(k))); };
    const auto lerp = [](double a, double b, double t) { return a + (b - a) * t; };
    const double x00 = lerp(at(ix, iy, iz), at(ix + 1, iy, iz), tx);
    const double x10 = lerp(at(ix, iy + 1, iz), at(ix + 1, iy + 1, iz), tx);
    const double x01 = lerp(at(ix, iy, iz + 1), at(ix + 1, iy, iz + 1), tx);
    const double x11 = lerp(at(ix, iy + 1, iz + 1), at(ix + 1, iy + 1, iz + 1), tx);
    return lerp(lerp(x00, x10, ty), lerp(x01, x11, ty), tz);
}

// Two octaves of value noise, in [0, 1].
inline double fractalNoise(double x, double y, double z, quint64 seed)
{
    return (2.0 * valueNoise(x, y, z, seed) + valueNoise(2.03 * x, 2.03 * y, 2.03 * z, seed + 1)) / 3.0;
}

} // namespace TVX::TOOL
