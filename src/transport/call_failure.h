// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <exception>
#include <new>
#include <string_view>

#include "transport/invoke_exception.h"
#include "transport/trace_exception.h"

namespace hessiancln {

/// Failure text of a call that ran out of memory. Short enough not to need an allocation itself.
inline constexpr std::string_view outOfMemory = "Out of memory";

/// The failure text for a call that ended with this exception.
inline std::string_view callFailure(const std::exception& failure) {
    return dynamic_cast<const std::bad_alloc*>(&failure) ? outOfMemory
                                                         : std::string_view(failure.what());
}

/// Runs a caller's request to a dispatcher. Any failure in it, including a lack of memory or of
/// threads, is rethrown as `invoke_exception`; only a broken trace keeps its own type.
template <class Step>
auto asCall(Step step) {
    try {
        return step();
    } catch (const invoke_exception&) {
        throw;
    } catch (const trace_exception&) {
        throw;
    } catch (const std::exception& failure) {
        throw invoke_exception(callFailure(failure));
    }
}

} // namespace hessiancln
