// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/streamed_exception.h"

namespace hessiancln {

/// A failed call: in the transport, or by a fault of the remote side.
class invoke_exception final : public base::StreamedException<invoke_exception> {
    using StreamedException::StreamedException;
};

} // namespace hessiancln
