// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <locale>
#include <sstream>
#include <string>

#include "platform/event_log.h"

namespace hessiancln {

/// One block of the trace file under construction: stream strings and numbers into it, then
/// `flush`. The file is opened, appended to and closed for each block, so that threads and
/// processes can share it. An empty file name drops everything.
class TraceEntry {
public:
    /// Takes a source name and a text, like `platform::reportError`.
    using EventLog = std::function<void(const std::string&, const std::string&)>;

    /// Every block has its time, so nothing asks for `timed` yet.
    explicit TraceEntry(std::string file, bool timed = true,
                        EventLog eventLog = platform::reportError);
    TraceEntry(const TraceEntry&) = delete;
    TraceEntry& operator=(const TraceEntry&) = delete;

    /// Writes text that nobody flushed, with a warning. Raises nothing.
    ~TraceEntry();

    template <class Value>
    TraceEntry& operator<<(const Value& value) {
        text_ << value;
        return *this;
    }

    /// Writes what was streamed in. Raises `trace_exception`, after a report to the event log,
    /// when the file can't be written.
    void flush();

private:
    void append(const std::string& text) const;

    std::string file_;
    std::ostringstream text_;
    [[maybe_unused]] bool timed_;
    EventLog eventLog_;
};

} // namespace hessiancln
