// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace platform {

/// Opens the null device for each of standard input, output and error that this process was started
/// without. Otherwise the next file or socket would get its descriptor, and every warning would be
/// written into it. Call before opening anything. Does nothing on systems that don't reuse the
/// descriptors of closed files.
void fillStandardStreams();

} // namespace platform
