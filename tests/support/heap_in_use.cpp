// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/heap_in_use.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include <malloc.h>

namespace support {

namespace {

/// The last attribute "size" of the elements with this start; the totals come last.
[[maybe_unused]] std::size_t lastSize(const std::string& report, const std::string& element) {
    const std::size_t at = report.find("size=\"", report.rfind(element));
    if (at == std::string::npos)
        throw std::runtime_error("no " + element + " in: " + report);
    return std::stoul(report.substr(at + 6));
}

} // namespace

std::size_t heapInUse() {
#ifdef TARN_SANITIZED
    return 0;
#else
    char* text = nullptr;
    std::size_t size = 0;
    std::FILE* const out = ::open_memstream(&text, &size);
    ::malloc_info(0, out);
    std::fclose(out);
    const std::string report(text, size);
    std::free(text);
    return lastSize(report, "<system type=\"current\"") + lastSize(report, "<total type=\"mmap\"") -
           lastSize(report, "<total type=\"fast\"") - lastSize(report, "<total type=\"rest\"");
#endif
}

} // namespace support
