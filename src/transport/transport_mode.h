// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>

#include <boost/shared_ptr.hpp>

namespace hessiancln {

class ICallDispatcher;

/// Which transport `createCallDispatcher` creates: 1 the raw stream with reuse of connections, 2
/// the raw stream without, any other value HTTP. Starts at 0.
extern int transportMode;

/// A new dispatcher of the kind selected by `transportMode`.
boost::shared_ptr<ICallDispatcher> createCallDispatcher(std::uint32_t traceLevel,
                                                        const std::string& traceFile);

} // namespace hessiancln
