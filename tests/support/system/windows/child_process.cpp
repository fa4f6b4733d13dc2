// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/child_process.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <stdexcept>
#include <thread>

#include <windows.h>

namespace support {

namespace {

constexpr auto limit = std::chrono::seconds(20);
constexpr DWORD limitMilliseconds = 20'000;

std::wstring wide(const std::string& text) {
    return std::filesystem::path(text).wstring();
}

/// For arguments without quotation marks.
std::wstring commandLine(const std::string& program, const std::vector<std::string>& arguments) {
    std::wstring line = L'"' + wide(program) + L'"';
    for (const std::string& argument : arguments)
        line += L" \"" + wide(argument) + L'"';
    return line;
}

BOOL WINAPI ignoreInterruption(DWORD) {
    return TRUE;
}

/// Interruptions reach the processes of a console. A test program may have been started with one
/// that exists only in name.
void shareConsole() {
    static const BOOL shared =
        FreeConsole() && AllocConsole() && SetConsoleCtrlHandler(ignoreInterruption, TRUE);
    if (!shared)
        throw std::runtime_error("no console");
}

struct Pipe {
    Pipe() {
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        if (!CreatePipe(&read, &write, &inherited, 0))
            throw std::runtime_error("no pipe");
    }

    HANDLE read = nullptr;
    HANDLE write = nullptr;
};

} // namespace

struct ChildProcess::Parts {
    PROCESS_INFORMATION process{};
    HANDLE job = nullptr;
    HANDLE output = nullptr;
    std::thread reader;

    std::mutex mutex;
    std::condition_variable changed;
    std::string text; ///< that is read and not yet taken
    bool atEnd = false;

    /// On the reader's thread. Line ends become those of the other systems.
    void readAll() {
        char part[4096];
        DWORD got = 0;
        while (ReadFile(output, part, sizeof part, &got, nullptr) && got > 0) {
            const std::lock_guard lock(mutex);
            std::copy_if(part, part + got, std::back_inserter(text),
                         [](char c) { return c != '\r'; });
            changed.notify_all();
        }
        const std::lock_guard lock(mutex);
        atEnd = true;
        changed.notify_all();
    }

    /// The text up to its first line end, or all of it.
    std::string take(bool all) {
        std::unique_lock lock(mutex);
        const auto isThere = [&] {
            return atEnd || (!all && text.find('\n') != std::string::npos);
        };
        if (!changed.wait_for(lock, limit, isThere))
            throw std::runtime_error("the program writes no more: " + text);
        const std::size_t end = all ? text.size() : text.find('\n') + 1;
        if (!all && end == 0)
            throw std::runtime_error("no whole line: " + text);
        std::string taken = text.substr(0, end);
        text.erase(0, end);
        return taken;
    }

    void start(const std::string& program, const std::vector<std::string>& arguments) {
        const Pipe out;
        SetHandleInformation(out.read, HANDLE_FLAG_INHERIT, 0);
        output = out.read;
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdOutput = startup.hStdError = out.write;
        std::wstring line = commandLine(program, arguments);
        const BOOL started = CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0,
                                            nullptr, nullptr, &startup, &process);
        CloseHandle(out.write);
        if (!started)
            throw std::runtime_error(program + " doesn't start");
        AssignProcessToJobObject(job, process.hProcess);
        reader = std::thread([this] { readAll(); });
    }
};

ChildProcess::ChildProcess(const std::string& program, std::vector<std::string> arguments)
    : parts_(std::make_unique<Parts>()) {
    shareConsole();
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION endsWithUs{};
    endsWithUs.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    parts_->job = CreateJobObjectW(nullptr, nullptr);
    SetInformationJobObject(parts_->job, JobObjectExtendedLimitInformation, &endsWithUs,
                            sizeof endsWithUs);
    parts_->start(program, arguments);
}

ChildProcess::~ChildProcess() {
    TerminateProcess(parts_->process.hProcess, 1);
    parts_->reader.join();
    for (const HANDLE handle :
         {parts_->process.hProcess, parts_->process.hThread, parts_->job, parts_->output})
        CloseHandle(handle);
}

std::string ChildProcess::line() {
    return parts_->take(false);
}

std::string ChildProcess::rest() {
    return parts_->take(true);
}

void ChildProcess::interrupt() {
    if (!GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0))
        throw std::runtime_error("the program can't be interrupted: " +
                                 std::to_string(GetLastError()));
}

int ChildProcess::status() {
    rest();
    DWORD status = 0;
    if (WaitForSingleObject(parts_->process.hProcess, limitMilliseconds) != WAIT_OBJECT_0 ||
        !GetExitCodeProcess(parts_->process.hProcess, &status))
        throw std::runtime_error("the program doesn't end");
    return static_cast<int>(status);
}

} // namespace support
