// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <locale>
#include <sstream>
#include <string>

#include "platform/event_log.h"

namespace hessiancln {

/// One block of the trace file: stream strings and numbers into it, then `flush`. The file is
/// opened, appended to and closed for each block, so that threads and processes can share it. An
/// empty file name discards everything.
class TraceEntry {
public:
    /// Takes a source name and a text, like `platform::reportError`.
    using EventLog = std::function<void(const std::string&, const std::string&)>;

    /// Every block has a time so far; no caller passes `timed` yet.
    explicit TraceEntry(std::string file, bool timed = true,
                        EventLog eventLog = platform::reportError);
    TraceEntry(const TraceEntry&) = delete;
    TraceEntry& operator=(const TraceEntry&) = delete;

    /// Writes unflushed text with a warning. Doesn't throw.
    ~TraceEntry();

    template <class Value>
    TraceEntry& operator<<(const Value& value) {
        text_ << value;
        return *this;
    }

    /// Writes the streamed text. If the file can't be written, reports to the event log and throws
    /// `trace_exception`.
    void flush();

private:
    void append(const std::string& text) const;

    std::string file_;
    std::ostringstream text_;
    [[maybe_unused]] bool timed_;
    EventLog eventLog_;
};

} // namespace hessiancln
