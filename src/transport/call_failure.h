// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <exception>
#include <new>
#include <string_view>

#include "transport/invoke_exception.h"
#include "transport/trace_exception.h"

namespace hessiancln {

/// What a call says that the system had no memory for. Short, since a text of this length needs
/// none itself.
inline constexpr std::string_view outOfMemory = "Out of memory";

/// The text with which a failure of this kind ends a call.
inline std::string_view callFailure(const std::exception& failure) {
    return dynamic_cast<const std::bad_alloc*>(&failure) ? outOfMemory
                                                         : std::string_view(failure.what());
}

/// Runs what a caller has asked of a dispatcher. Whatever fails in there, short of memory or of
/// threads included, comes out as `invoke_exception`; only a broken trace keeps its own type.
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
