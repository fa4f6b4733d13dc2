// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include "api/remote_object.h"

namespace hessiancln {

/// An activity running on the agent: the result of every method that starts one.
class GenericActivity : public RemoteObject {
public:
    using RemoteObject::RemoteObject;

    /// Asks the agent to stop it, and returns without waiting for the end.
    void Stop();
    std::int32_t getID();
};

} // namespace hessiancln
