// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

// The body of `RemoteObject::call`, for the sources of the proxy classes. Kept apart from the class
// because it includes the whole codec, which is slow to compile.

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "api/bind_proxies.h"
#include "api/remote_object.h"
#include "base/secret.h"
#include "hessian/value.h"

namespace hessiancln {

namespace detail {

/// A request that contains the head of the call, with capacity for all of it.
std::string startRequest(std::string_view method, std::uint32_t sizeOfArguments);

/// Reads up to the start of the result. Throws `invoke_exception` if the reply is a fault.
void readReplyHead(hessianser::Cursor& in);

/// Reads the rest of a reply without a result.
void readEmptyReply(hessianser::Cursor& in);

} // namespace detail

template <class Result, hessianser::Value... Arguments>
Result RemoteObject::call(std::string_view method, const Arguments&... arguments) {
    // Passwords and keys travel in both directions.
    std::string request =
        detail::startRequest(method, (hessianser::sizeOfValue(arguments) + ... + 0u));
    const base::WipedAtEnd requestGuard(request);
    (hessianser::writeValue(arguments, request), ...);
    std::string response = sendFinished(request);
    const base::WipedAtEnd responseGuard(response);

    hessianser::Cursor in(response);
    detail::readReplyHead(in);
    if constexpr (std::is_void_v<Result>) {
        detail::readEmptyReply(in);
    } else {
        auto result = hessianser::readValue<Result>(in);
        hessianser::readEnd(in);
        bindProxies(result, dispatcher_);
        return result;
    }
}

} // namespace hessiancln
