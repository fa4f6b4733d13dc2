// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>

#include "simulator/options.h"

namespace simulator {

/// The agent's part of real integrated logons: takes tokens of any mechanism that this system has,
/// SPNEGO or bare Kerberos, with the keys of `keyTable`; those of the environment if that is empty.
/// What it refuses is a `Refusal` with the system's own text.
///
/// Nothing on the wire says whose token it is, so there is one logon at a time: a token that
/// begins another one ends what was left half-way.
///
/// Raises `std::runtime_error` if the keys can't be had, or if the system has no such mechanism.
std::function<LogonStep(const std::string& token)> acceptLogons(const std::string& keyTable);

} // namespace simulator
