// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "hessian/serialize_exception.h"

namespace hessianser {

void fail(const char* text) {
    throw serialize_exception(text);
}

} // namespace hessianser
