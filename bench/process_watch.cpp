// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "process_watch.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

namespace bench {

namespace {

using namespace std::chrono_literals;

constexpr auto moment = 100ms;

std::filesystem::path folderOf(pid_t process) {
    return "/proc/" + std::to_string(process);
}

/// The sum of the numbers in the lines with that label.
double sumOf(const std::filesystem::path& file, const std::string& label) {
    std::ifstream in(file);
    double sum = 0;
    for (std::string line; std::getline(in, line);)
        if (line.starts_with(label))
            sum += std::stod(line.substr(label.size()));
    return sum;
}

/// How often its threads have stopped waiting so far.
double wakeUpsOf(pid_t process) {
    double sum = 0;
    for (const auto& thread : std::filesystem::directory_iterator(folderOf(process) / "task"))
        sum += sumOf(thread.path() / "status", "voluntary_ctxt_switches:");
    return sum;
}

} // namespace

double privateMemory(pid_t process) {
    return sumOf(folderOf(process) / "smaps_rollup", "Anonymous:");
}

Idleness watchIdling(pid_t process, std::chrono::seconds time) {
    const double begin = wakeUpsOf(process);
    double before = begin;
    int moments = 0;
    const auto start = std::chrono::steady_clock::now();
    for (auto next = start + moment; next <= start + time; next += moment) {
        std::this_thread::sleep_until(next);
        const double now = wakeUpsOf(process);
        moments += now > before;
        before = now;
    }
    const auto seconds = static_cast<double>(time.count());
    return {(before - begin) / seconds, moments / seconds};
}

} // namespace bench
