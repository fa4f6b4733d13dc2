// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/standard_streams.h"

namespace platform {

void fillStandardStreams() {}

} // namespace platform
