// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/trace_entry.h"

#include <cerrno>
#include <fstream>
#include <string_view>
#include <system_error>
#include <utility>

#include <boost/date_time/posix_time/posix_time_types.hpp>
#include <boost/format.hpp>

#include "platform/process_id.h"
#include "transport/trace_exception.h"

namespace hessiancln {

namespace {

std::string prefix() {
    const auto now = boost::posix_time::second_clock::local_time();
    const auto date = now.date();
    const auto time = now.time_of_day();
    boost::format format("%ld (%ld) %d/%d/%d %02d:%02d:%02d ", std::locale::classic());
    format % platform::processId() % platform::threadId();
    format % date.month().as_number() % date.day().as_number() % date.year();
    format % time.hours() % time.minutes() % time.seconds();
    return format.str();
}

} // namespace

TraceEntry::TraceEntry(std::string file, bool timed, EventLog eventLog)
    : file_(std::move(file))
    , timed_(timed)
    , eventLog_(std::move(eventLog)) {
    text_.imbue(std::locale::classic());
}

TraceEntry::~TraceEntry() {
    try {
        if (!text_.view().empty()) {
            text_ << "\n !!!WARNING!!! trace data not flushed correctly ";
            flush();
        }
    } catch (...) {
        // The failure is in the event log, and there is no caller left to report it to.
    }
}

void TraceEntry::flush() {
    const std::string text = std::exchange(text_, {}).str();
    text_.imbue(std::locale::classic());
    if (text.empty() || file_.empty())
        return;
    std::string failure = "Failed to trace to '" + file_ + "'. ";
    try {
        errno = 0;
        return append(text);
    } catch (const std::ios_base::failure&) {
        failure += "O/S error: " + std::generic_category().message(errno);
    } catch (const std::exception& other) {
        failure += std::string("Exception: ") + other.what();
    }
    eventLog_("HessianClientAPI", failure);
    throw trace_exception(failure);
}

void TraceEntry::append(const std::string& text) const {
    const std::string first = prefix();
    const std::string later(first.size(), ' ');
    std::string_view rest = text;
    if (rest.ends_with('\n'))
        rest.remove_suffix(1);

    std::ofstream out;
    out.exceptions(std::ios::failbit | std::ios::badbit);
    out.open(file_, std::ios::out | std::ios::app | std::ios::binary);
    const std::string* indent = &first;
    for (;;) {
        const std::size_t end = rest.find('\n');
        out << *indent << rest.substr(0, end) << '\n';
        if (end == std::string_view::npos)
            break;
        rest.remove_prefix(end + 1);
        indent = &later;
    }
    out.flush();
    out.close();
}

} // namespace hessiancln
