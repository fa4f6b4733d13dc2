// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "server_process.h"

/// The other way to call over TLS that the transport is held against.
namespace bench {

/// A key and the certificate which it signed itself, both in PEM.
struct Identity {
    std::string key;
    std::string certificate;
};

/// Raises `std::runtime_error`.
Identity makeIdentity();

/// Answers each call with what it brought.
void serveGrpc(const Identity& identity, const ServerProcess::Listening& listening);

/// Calls on the calling thread. Raises `std::runtime_error`.
class GrpcClient {
public:
    /// Calls a server on loopback that shows the certificate of `identity`.
    GrpcClient(const Identity& identity, std::uint16_t port);
    GrpcClient(const GrpcClient&) = delete;
    GrpcClient& operator=(const GrpcClient&) = delete;
    ~GrpcClient();

    std::string call(const std::string& content);

private:
    struct Channel;
    std::unique_ptr<Channel> channel_;
};

} // namespace bench
