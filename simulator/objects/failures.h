// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <stdexcept>

/// The two kinds of failed call. Either way the caller gets the text as a fault.
namespace simulator {

/// A valid call that the agent rejects: a wrong password, a set that no longer exists.
class Refusal : public std::runtime_error {
public:
    using runtime_error::runtime_error;
};

/// A call that a correct client never sends. It is recorded as a violation.
class Violation : public std::runtime_error {
public:
    using runtime_error::runtime_error;
};

} // namespace simulator
