// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// Replaces the C library's functions in the program it is linked into.
#include <cstddef>

#include <dlfcn.h>
#include <netdb.h>
#include <pwd.h>

#include "tests/support/held_names.h"

namespace {

using Resolve = int (*)(const char*, const char*, const addrinfo*, addrinfo**);
using FindAccount = int (*)(const char*, passwd*, char*, std::size_t, passwd**);

bool hangs(const char* name) {
    return name && support::HeldNames::hangs(name);
}

} // namespace

extern "C" __attribute__((visibility("default"))) int
getaddrinfo(const char* node, const char* service, const addrinfo* hints, addrinfo** results) {
    static const auto real = reinterpret_cast<Resolve>(dlsym(RTLD_NEXT, "getaddrinfo"));
    return hangs(node) ? EAI_NONAME : real(node, service, hints, results);
}

extern "C" __attribute__((visibility("default"))) int
getpwnam_r(const char* name, passwd* entry, char* texts, std::size_t room, passwd** found) {
    static const auto real = reinterpret_cast<FindAccount>(dlsym(RTLD_NEXT, "getpwnam_r"));
    if (!hangs(name))
        return real(name, entry, texts, room, found);
    *found = nullptr;
    return 0;
}
