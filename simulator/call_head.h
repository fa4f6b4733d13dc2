// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "hessian/reader.h"

namespace simulator {

/// The method name, read from the head of a call. Throws `Violation` without a complete head.
std::string readCallHead(hessianser::Cursor& in);

} // namespace simulator
