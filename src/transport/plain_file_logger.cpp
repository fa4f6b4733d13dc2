// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/plain_file_logger.h"

#include <boost/date_time/posix_time/posix_time.hpp>

namespace pion {

namespace {

const char* nameOf(std::uint32_t level) {
    switch (level) {
    case PlainFileLogger::debug:
        return "DEBUG";
    case PlainFileLogger::info:
        return "INFO";
    case PlainFileLogger::warning:
        return "WARNING";
    case PlainFileLogger::error:
        return "ERROR";
    case PlainFileLogger::fatal:
        return "FATAL";
    default:
        return "<UNKNOWN>";
    }
}

} // namespace

PlainFileLogger& PlainFileLogger::instance() {
    static PlainFileLogger logger;
    return logger;
}

PlainFileLogger::~PlainFileLogger() {
    close();
}

bool PlainFileLogger::open(const std::string& path) {
    const std::lock_guard lock(mutex_);
    file_.close();
    file_.clear();
    file_.open(path, std::ios::out | std::ios::app);
    return file_.is_open();
}

void PlainFileLogger::close() {
    const std::lock_guard lock(mutex_);
    if (file_.is_open())
        file_.close();
}

void PlainFileLogger::setThreshold(std::uint32_t threshold) {
    const std::lock_guard lock(mutex_);
    threshold_ = threshold;
}

bool PlainFileLogger::admits(std::uint32_t level) const {
    const std::lock_guard lock(mutex_);
    return level >= threshold_;
}

void PlainFileLogger::log(std::uint32_t level, const std::string& message) {
    const std::lock_guard lock(mutex_);
    if (level < threshold_ || !file_.is_open())
        return;
    const auto now = boost::posix_time::microsec_clock::local_time();
    file_ << boost::posix_time::to_simple_string(now) << " : " << nameOf(level) << " : " << message
          << '\n';
    file_.flush();
}

} // namespace pion
