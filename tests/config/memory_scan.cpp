// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/config/memory_scan.h"

#include <cstdint>
#include <cstring>
#include <fstream>
#include <random>
#include <sstream>
#include <vector>

namespace memory_scan {

namespace {

constexpr std::uint64_t largestPart = std::uint64_t{1} << 30;

/// The parts that can be written, from where to where.
std::vector<std::pair<std::uint64_t, std::uint64_t>> writableParts() {
    std::vector<std::pair<std::uint64_t, std::uint64_t>> parts;
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        std::istringstream in(line);
        std::uint64_t begin = 0, end = 0;
        char dash = 0;
        std::string rights;
        in >> std::hex >> begin >> dash >> end >> rights;
        if (rights.starts_with("rw") && end - begin <= largestPart &&
            line.find("[v") == std::string::npos)
            parts.emplace_back(begin, end);
    }
    return parts;
}

std::uint16_t at(const std::vector<char>& bytes, std::size_t offset) {
    std::uint16_t value = 0;
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}

template <class Iterator>
bool standsAt(const std::vector<char>& bytes, std::size_t offset, Iterator begin, Iterator end,
              std::size_t distance) {
    for (; begin != end; ++begin, offset += distance)
        if (offset + sizeof(std::uint16_t) > bytes.size() ||
            at(bytes, offset) != static_cast<unsigned char>(*begin))
            return false;
    return true;
}

bool standsIn(const std::vector<char>& bytes, const std::string& secret) {
    for (std::size_t offset = 0; offset + 2 <= bytes.size(); offset += 2) {
        const std::uint16_t value = at(bytes, offset);
        if (value != static_cast<unsigned char>(secret.front()) &&
            value != static_cast<unsigned char>(secret.back()))
            continue;
        for (const std::size_t distance : {2U, 4U, 8U, 12U, 16U, 20U, 24U, 32U})
            if (standsAt(bytes, offset, secret.begin(), secret.end(), distance) ||
                standsAt(bytes, offset, secret.rbegin(), secret.rend(), distance))
                return true;
    }
    return false;
}

} // namespace

bool isPossible() {
#ifdef TARN_SANITIZED
    return false;
#else
    return std::ifstream("/proc/self/mem").good();
#endif
}

std::string randomSecret() {
    std::random_device random;
    std::string secret;
    while (secret.size() < 24) {
        const char next = static_cast<char>('a' + random() % 26);
        if (secret.empty() || secret.back() != next)
            secret += next;
    }
    return secret;
}

bool holds(const std::string& secret) {
    std::ifstream memory("/proc/self/mem", std::ios::binary);
    for (const auto& [begin, end] : writableParts()) {
        std::vector<char> bytes(end - begin);
        memory.clear();
        memory.seekg(static_cast<std::streamoff>(begin));
        memory.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        bytes.resize(static_cast<std::size_t>(memory.gcount()));
        if (standsIn(bytes, secret))
            return true;
    }
    return false;
}

} // namespace memory_scan
