// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <stdexcept>

#include "simulator/logon/accept_logons.h"

namespace simulator {

std::function<LogonStep(const std::string& token)> acceptLogons(const std::string&) {
    throw std::runtime_error("integrated logons can't be accepted on this system");
}

} // namespace simulator
