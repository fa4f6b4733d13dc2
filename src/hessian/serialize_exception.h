// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/streamed_exception.h"

namespace hessianser {

/// A message that can't be encoded or decoded.
class serialize_exception final : public base::StreamedException<serialize_exception> {
    using StreamedException::StreamedException;
};

/// Throws `serialize_exception` with `text`. Out of line to keep the fast paths small.
[[noreturn]] void fail(const char* text);

} // namespace hessianser
