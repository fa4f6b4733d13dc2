// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <stdexcept>

/// The two ways in which a call fails. Either way the caller gets the text as a fault.
namespace simulator {

/// The call was right, and the agent says no: a wrong password, a set that has gone.
class Refusal : public std::runtime_error {
public:
    using runtime_error::runtime_error;
};

/// No right client sends such a call. It is recorded as a violation.
class Violation : public std::runtime_error {
public:
    using runtime_error::runtime_error;
};

} // namespace simulator
