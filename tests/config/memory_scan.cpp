// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/config/memory_scan.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <random>
#include <string_view>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace memory_scan {

namespace {

constexpr std::uint64_t largestPart = std::uint64_t{1} << 30;
constexpr std::size_t roomForMap = std::size_t{1} << 20;

/// Memory beside the heap, where what was given back has to stay as it is while we look.
class Pages {
public:
    explicit Pages(std::size_t size)
        : size_(size)
        , data_(::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)) {
    }
    ~Pages() {
        if (data_ != MAP_FAILED)
            ::munmap(data_, size_);
    }
    Pages(const Pages&) = delete;
    Pages& operator=(const Pages&) = delete;

    /// What stands in the file from there on, up to its end or that of the pages.
    std::string_view read(const char* path, std::uint64_t from) {
        const int file = data_ == MAP_FAILED ? -1 : ::open(path, O_RDONLY | O_CLOEXEC);
        std::size_t filled = 0;
        for (ssize_t got = 1; file >= 0 && got > 0; filled += got > 0 ? std::size_t(got) : 0)
            got = ::pread(file, static_cast<char*>(data_) + filled, size_ - filled,
                          static_cast<off_t>(from + filled));
        if (file >= 0)
            ::close(file);
        return {static_cast<const char*>(data_), filled};
    }

private:
    std::size_t size_;
    void* data_;
};

struct Part {
    std::uint64_t begin = 0;
    std::uint64_t end = 0;
};

/// The part of a line of the map; an empty one unless it can be written.
Part writablePart(std::string_view line) {
    Part part;
    const char* const last = line.data() + line.size();
    const auto begin = std::from_chars(line.data(), last, part.begin, 16);
    const auto end = std::from_chars(std::min(begin.ptr + 1, last), last, part.end, 16);
    const std::string_view rest(end.ptr, static_cast<std::size_t>(last - end.ptr));
    if (!rest.starts_with(" rw") || rest.find("[v") != std::string_view::npos ||
        part.end - part.begin > largestPart)
        return {};
    return part;
}

std::uint16_t at(std::string_view bytes, std::size_t offset) {
    std::uint16_t value = 0;
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}

template <class Iterator>
bool standsAt(std::string_view bytes, std::size_t offset, Iterator begin, Iterator end,
              std::size_t distance) {
    for (; begin != end; ++begin, offset += distance)
        if (offset + sizeof(std::uint16_t) > bytes.size() ||
            at(bytes, offset) != static_cast<unsigned char>(*begin))
            return false;
    return true;
}

bool standsIn(std::string_view bytes, const std::string& secret) {
    // Nothing is called in the loop: tests aren't optimised, and this is much memory.
    const char* const data = bytes.data();
    const std::size_t size = bytes.size();
    const std::uint16_t front = static_cast<unsigned char>(secret.front());
    const std::uint16_t back = static_cast<unsigned char>(secret.back());
    for (std::size_t offset = 0; offset + 2 <= size; offset += 2) {
        std::uint16_t value = 0;
        std::memcpy(&value, data + offset, sizeof value);
        if (value != front && value != back)
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
    Pages pages(roomForMap);
    std::string_view map = pages.read("/proc/self/maps", 0);
    while (!map.empty()) {
        const std::size_t size = std::min(map.find('\n'), map.size() - 1) + 1;
        const Part part = writablePart(map.substr(0, size));
        map.remove_prefix(size);
        if (part.begin == part.end)
            continue;
        Pages copy(part.end - part.begin);
        if (standsIn(copy.read("/proc/self/mem", part.begin), secret))
            return true;
    }
    return false;
}

} // namespace memory_scan
