// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <boost/asio/ssl/context.hpp>

namespace simulator::wire {

/// A server's TLS context with a new key and a self-signed certificate, both in memory only. Throws
/// `std::runtime_error`.
boost::asio::ssl::context selfSignedContext();

} // namespace simulator::wire
