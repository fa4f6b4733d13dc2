// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// The frame checksum compared with two other implementations that compute the same value.

#include <array>
#include <cstdint>
#include <random>
#include <stdexcept>
#include <string>

#include <benchmark/benchmark.h>
#include <zlib.h>

#include "transport/checksum.h"

namespace {

const std::string& sample() {
    static const std::string bytes = [] {
        std::string made(16 << 20, '\0');
        std::mt19937 random(1);
        for (char& byte : made)
            byte = static_cast<char>(random());
        return made;
    }();
    return bytes;
}

std::uint32_t byFrames(const std::string& bytes) {
    return hessiancln::continueChecksum(0, bytes.data(), bytes.size());
}

std::uint32_t byZlib(const std::string& bytes) {
    const auto* const begin = reinterpret_cast<const Bytef*>(bytes.data());
    return static_cast<std::uint32_t>(crc32_z(0, begin, bytes.size()));
}

constexpr std::array<std::uint32_t, 256> table = [] {
    std::array<std::uint32_t, 256> made{};
    for (std::uint32_t byte = 0; byte < 256; ++byte) {
        std::uint32_t crc = byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320 : 0);
        made[byte] = crc;
    }
    return made;
}();

std::uint32_t byTable(const std::string& bytes) {
    std::uint32_t crc = 0xFFFFFFFF;
    for (const char byte : bytes)
        crc = (crc >> 8) ^ table[(crc ^ static_cast<unsigned char>(byte)) & 0xFF];
    return ~crc;
}

template <class Checksum>
void measure(benchmark::State& state, Checksum checksum) {
    if (const auto sum = byFrames(sample()); sum != byZlib(sample()) || sum != byTable(sample()))
        throw std::runtime_error("The checksums differ");
    for (auto round : state)
        benchmark::DoNotOptimize(checksum(sample()));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(sample().size()));
}

void checksumOfFrames(benchmark::State& state) {
    measure(state, byFrames);
}
void checksumZlib(benchmark::State& state) {
    measure(state, byZlib);
}
void checksumTable(benchmark::State& state) {
    measure(state, byTable);
}

BENCHMARK(checksumOfFrames)->Unit(benchmark::kMillisecond);
BENCHMARK(checksumZlib)->Unit(benchmark::kMillisecond);
BENCHMARK(checksumTable)->Unit(benchmark::kMillisecond);

} // namespace
