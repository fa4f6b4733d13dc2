// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "transport/trace_entry.h"

namespace hessiancln {

/// The trace points of one dispatcher or connection. Level 1 writes steps, level 2 steps and
/// details, any other level nothing. Throws `trace_exception`.
class Tracer {
public:
    Tracer(std::uint32_t level, std::string file)
        : level_(level)
        , file_(std::move(file)) {}

    void step(const char* text) const {
        if (level_ == 1 || level_ == 2)
            write(text);
    }

    template <class... Parts>
    void detail(const Parts&... parts) const {
        if (level_ == 2)
            write(parts...);
    }

private:
    template <class... Parts>
    void write(const Parts&... parts) const {
        TraceEntry entry(file_);
        (entry << ... << parts);
        entry.flush();
    }

    std::uint32_t level_;
    std::string file_;
};

} // namespace hessiancln
