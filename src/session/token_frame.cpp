// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/token_frame.h"

#include <algorithm>

namespace session {

namespace {

constexpr std::size_t headerSize = 4;

} // namespace

hessianser::Binary frameToken(std::span<const std::uint8_t> token) {
    hessianser::Binary frame;
    frame.reserve(headerSize + token.size());
    for (std::size_t i = 0; i < headerSize; ++i)
        frame.push_back(static_cast<std::uint8_t>(token.size() >> (8 * i)));
    frame.insert(frame.end(), token.begin(), token.end());
    return frame;
}

std::span<const std::uint8_t> framedToken(std::span<const std::uint8_t> frame) {
    if (frame.size() < headerSize)
        return {};
    std::size_t length = 0;
    for (std::size_t i = headerSize; i-- > 0;)
        length = length << 8 | frame[i];
    const auto behindHeader = frame.subspan(headerSize);
    return behindHeader.first(std::min(length, behindHeader.size()));
}

} // namespace session
