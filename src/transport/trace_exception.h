// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/streamed_exception.h"

namespace hessiancln {

/// A trace entry that couldn't be written. It propagates through the traced operation.
class trace_exception final : public base::StreamedException<trace_exception> {
    using StreamedException::StreamedException;
};

} // namespace hessiancln
