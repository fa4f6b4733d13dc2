// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>

#include "simulator/options.h"

namespace simulator {

/// The agent's side of real integrated logons: accepts tokens of any mechanism on this system,
/// SPNEGO or bare Kerberos, with the keys of `keyTable`, or of the environment if it is empty. A
/// rejection throws `Refusal` with the system's own text.
///
/// Tokens on the wire don't identify their logon, so there is one logon at a time: the first token
/// of another logon ends an unfinished one.
///
/// Throws `std::runtime_error` if the keys can't be loaded, or if the system has no such mechanism.
std::function<LogonStep(const std::string& token)> acceptLogons(const std::string& keyTable);

} // namespace simulator
