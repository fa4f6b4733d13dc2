// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/key_encryption_type.h"

#include <algorithm>
#include <iterator>

namespace hessiancln {
namespace {

struct NamedCode {
    std::int32_t code;
    std::string_view name;
};

/// Of two codes with the same name, the later one is sent.
constexpr NamedCode namedCodes[] = {
    {0, "NONE"},   {1, "DES"},    {2, "AES128"}, {3, "AES192"},
    {4, "AES256"}, {5, "AES128"}, {6, "AES192"}, {7, "AES256"},
};

} // namespace

std::string_view keyEncryptionName(KeyEncryptionType type) {
    const auto found =
        std::find_if(std::begin(namedCodes), std::end(namedCodes), [type](const NamedCode& entry) {
            return entry.code == static_cast<std::int32_t>(type);
        });
    return found == std::end(namedCodes) ? "NONE" : found->name;
}

KeyEncryptionType keyEncryptionFromName(std::string_view name) {
    const auto found = std::find_if(std::rbegin(namedCodes), std::rend(namedCodes),
                                    [name](const NamedCode& entry) { return entry.name == name; });
    return found == std::rend(namedCodes) ? KeyEncryptionType::AES128
                                          : static_cast<KeyEncryptionType>(found->code);
}

} // namespace hessiancln
