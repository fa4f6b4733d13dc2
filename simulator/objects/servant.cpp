// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/objects/servant.h"

namespace simulator {

Servant::Prepared Servant::prepare(std::string_view method, hessianser::Cursor& in,
                                   References& references) {
    if (method == "types") {
        expectEnd(in, 0);
        return {className(), "",
                [types = types_](std::string& reply) { hessianser::writeValue(types, reply); }};
    }
    const auto found = methods_.find(method);
    if (found == methods_.end())
        throw Violation("the class " + types_.back() + " has no method '" + std::string(method) +
                        "'");
    Decoded decoded = found->second.decode(in, references);
    return {found->second.className, std::move(decoded.arguments), std::move(decoded.run)};
}

void Servant::expectArgument(const hessianser::Cursor& in, std::size_t number, std::size_t of) {
    if (in.remaining == 0 || in.at('z'))
        throw Violation("argument " + std::to_string(number) + " of " + std::to_string(of) +
                        " is missing");
}

void Servant::expectEnd(hessianser::Cursor& in, std::size_t count) {
    if (in.remaining == 0)
        throw Violation("the call has no end");
    if (!in.at('z'))
        throw Violation("there is more than " + std::to_string(count) + " argument(s)");
    hessianser::readEnd(in);
    if (in.remaining != 0)
        throw Violation("there are bytes behind the call's end");
}

} // namespace simulator
