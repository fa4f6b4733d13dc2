// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/ignore_case.h"

#include <algorithm>

namespace hessiancln {

namespace {

char lower(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

} // namespace

int compareIgnoringCase(std::string_view left, std::string_view right) {
    const auto [inLeft, inRight] = std::ranges::mismatch(left, right, {}, lower, lower);
    if (inLeft == left.end() || inRight == right.end())
        return static_cast<int>(inLeft != left.end()) - static_cast<int>(inRight != right.end());
    return static_cast<unsigned char>(lower(*inLeft)) < static_cast<unsigned char>(lower(*inRight))
               ? -1
               : 1;
}

} // namespace hessiancln
