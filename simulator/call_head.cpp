// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/call_head.h"

#include "hessian/byte_order.h"
#include "simulator/objects/failures.h"

namespace simulator {

std::string readCallHead(hessianser::Cursor& in) {
    constexpr std::string_view start("c\x01\0m", 4);
    if (!in.startsWith(start) || in.remaining < start.size() + 2)
        throw Violation("the message isn't a call");
    const std::size_t size = hessianser::loadBigEndian<std::uint16_t>(in.pos + start.size());
    in.skip(start.size() + 2);
    if (in.remaining < size)
        throw Violation("the method's name is cut short");
    std::string name(in.pos, size);
    in.skip(size);
    return name;
}

} // namespace simulator
