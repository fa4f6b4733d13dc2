// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/memory_scan.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <sstream>
#include <string_view>

#include <fcntl.h>
#include <unistd.h>

namespace memory_scan {

namespace {

constexpr std::uint64_t largestPart = std::uint64_t{1} << 30;

struct Part {
    std::uint64_t begin = 0;
    std::uint64_t end = 0;
    std::string name;
};

/// The writable memory; the process's code and mapped files hold no secret.
std::vector<Part> writableParts(const std::string& folder) {
    std::vector<Part> parts;
    std::ifstream map(folder + "/maps");
    for (std::string line; std::getline(map, line);) {
        std::istringstream fields(line);
        Part part;
        char dash = 0;
        std::string rights;
        std::string offset;
        std::string device;
        std::string inode;
        fields >> std::hex >> part.begin >> dash >> part.end >> rights >> offset >> device >>
            inode >> part.name;
        const bool ofKernel = part.name.starts_with("[v");
        if (rights.starts_with("rw") && !ofKernel && part.end - part.begin <= largestPart)
            parts.push_back(part);
    }
    return parts;
}

std::string bytesOf(int memory, const Part& part) {
    std::string bytes(part.end - part.begin, '\0');
    std::size_t filled = 0;
    for (ssize_t got = 1; got > 0 && filled < bytes.size();
         filled += std::size_t(got > 0 ? got : 0))
        got = ::pread(memory, bytes.data() + filled, bytes.size() - filled,
                      static_cast<off_t>(part.begin + filled));
    bytes.resize(filled);
    return bytes;
}

/// Whether the first bytes of `text` are at `offset`, `distance` bytes apart, with zeros in the
/// gaps of UTF-16.
bool standsAt(std::string_view bytes, std::size_t offset, std::string_view text,
              std::size_t distance) {
    const bool wide = distance > 1;
    for (const char c : text) {
        if (offset + (wide ? 2 : 1) > bytes.size() || bytes[offset] != c ||
            (wide && bytes[offset + 1] != '\0'))
            return false;
        offset += distance;
    }
    return true;
}

void look(std::string_view bytes, std::string_view text, const std::string& where,
          std::vector<std::string>& found) {
    for (std::size_t offset = bytes.find(text[0]); offset != std::string_view::npos;
         offset = bytes.find(text[0], offset + 1))
        for (const std::size_t distance : {1U, 2U, 4U, 8U, 12U, 16U, 20U, 24U, 32U})
            if (standsAt(bytes, offset, text, distance))
                found.push_back(
                    (distance == 1 ? "bytes" : "UTF-16 at distance " + std::to_string(distance)) +
                    (" in " + where));
}

} // namespace

bool isPossible() {
#ifdef TARN_SANITIZED
    return false;
#else
    return std::ifstream("/proc/self/mem").good();
#endif
}

std::vector<std::string> findings(pid_t process, const std::string& secret) {
    const std::string folder = "/proc/" + std::to_string(process);
    const int memory = ::open((folder + "/mem").c_str(), O_RDONLY | O_CLOEXEC);
    if (memory < 0)
        return {"memory that can't be read"};
    const std::string backwards(secret.rbegin(), secret.rend());
    std::vector<std::string> found;
    for (const Part& part : writableParts(folder)) {
        const std::string bytes = bytesOf(memory, part);
        const std::string where = part.name.empty() ? "anonymous memory" : part.name;
        look(bytes, secret, where, found);
        look(bytes, backwards, where + ", backwards", found);
    }
    ::close(memory);
    return found;
}

} // namespace memory_scan
