// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <vector>

namespace simulator {

/// Random numbers that are the same on every machine for the same seed (splitmix64).
class Random {
public:
    explicit Random(std::uint64_t seed)
        : state_(seed) {}

    /// From `least` to `most`, inclusive.
    std::int64_t between(std::int64_t least, std::int64_t most) {
        return least +
               static_cast<std::int64_t>(next() % static_cast<std::uint64_t>(most - least + 1));
    }

    /// True with probability 1 / `count`.
    bool onceIn(std::int64_t count) { return between(1, count) == 1; }

    template <class T>
    const T& of(const std::vector<T>& choices) {
        return choices[static_cast<std::size_t>(next() % choices.size())];
    }

private:
    std::uint64_t next() {
        std::uint64_t z = state_ += 0x9E3779B97F4A7C15u;
        z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9u;
        z = (z ^ z >> 27) * 0x94D049BB133111EBu;
        return z ^ z >> 31;
    }

    std::uint64_t state_;
};

} // namespace simulator
