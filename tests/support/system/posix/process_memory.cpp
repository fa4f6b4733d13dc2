// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/system/process_memory.h"

#include <cstdint>
#include <fstream>
#include <sstream>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace support::process_memory {

namespace {

constexpr std::uint64_t largestPart = std::uint64_t{1} << 30;

struct Part {
    std::uint64_t begin = 0;
    std::uint64_t end = 0;
    std::string name;
};

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

} // namespace

bool isReadable() {
    return std::ifstream("/proc/self/mem").good();
}

bool visitWritable(long process,
                   const std::function<void(const std::string&, const std::string&)>& visit) {
    const std::string folder = "/proc/" + std::to_string(process);
    const int memory = ::open((folder + "/mem").c_str(), O_RDONLY | O_CLOEXEC);
    if (memory < 0)
        return false;
    for (const Part& part : writableParts(folder))
        visit(part.name.empty() ? "anonymous memory" : part.name, bytesOf(memory, part));
    ::close(memory);
    return true;
}

} // namespace support::process_memory
