// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "memory.h"

#include <fstream>
#include <stdexcept>
#include <string>

#include <malloc.h>

namespace bench {

double heapInUse() {
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

// Searches for a line like "VmRSS:   1234 kB".
double memory(std::string_view field) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with(field))
            return std::stod(line.substr(field.size())) * 1024;
    throw std::runtime_error("This system doesn't report the memory of a process");
}

} // namespace bench
