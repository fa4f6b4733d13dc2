// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace platform {

/// Lets what this process was started without, of standard input, output and error, lead nowhere.
/// Otherwise the next file or socket would take the place, and get every warning written into it.
/// To be called before anything is opened. Does nothing on systems that don't hand out the places
/// of closed files.
void fillStandardStreams();

} // namespace platform
