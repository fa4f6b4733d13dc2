// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/system/process_memory.h"

#include <cstdint>
#include <sstream>

#include <windows.h>

namespace support::process_memory {

namespace {

constexpr DWORD writable =
    PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;

bool isWritable(const MEMORY_BASIC_INFORMATION& part) {
    return part.State == MEM_COMMIT && (part.Protect & writable) && !(part.Protect & PAGE_GUARD);
}

std::string nameOf(const MEMORY_BASIC_INFORMATION& part) {
    std::ostringstream name;
    name << (part.Type == MEM_PRIVATE ? "private"
             : part.Type == MEM_IMAGE ? "a library's"
                                      : "shared")
         << " memory at " << part.BaseAddress;
    return name.str();
}

std::string bytesOf(HANDLE process, const MEMORY_BASIC_INFORMATION& part) {
    std::string bytes(part.RegionSize, '\0');
    SIZE_T read = 0;
    ReadProcessMemory(process, part.BaseAddress, bytes.data(), bytes.size(), &read);
    bytes.resize(read);
    return bytes;
}

} // namespace

bool isReadable() {
    return true;
}

bool visitWritable(long process,
                   const std::function<void(const std::string&, const std::string&)>& visit) {
    const HANDLE handle = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE,
                                      static_cast<DWORD>(process));
    if (!handle)
        return false;
    MEMORY_BASIC_INFORMATION part{};
    for (std::uintptr_t at = 0;
         VirtualQueryEx(handle, reinterpret_cast<void*>(at), &part, sizeof part);
         at = reinterpret_cast<std::uintptr_t>(part.BaseAddress) + part.RegionSize)
        if (isWritable(part))
            visit(nameOf(part), bytesOf(handle, part));
    CloseHandle(handle);
    return true;
}

} // namespace support::process_memory
