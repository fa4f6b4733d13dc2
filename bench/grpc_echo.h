// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "server_process.h"

/// The alternative to the raw stream: calls over TLS with gRPC.
namespace bench {

/// A key and its self-signed certificate, both in PEM.
struct Identity {
    std::string key;
    std::string certificate;
};

/// Throws `std::runtime_error`.
Identity makeIdentity();

/// Answers each call with the message it contains.
void serveGrpc(const Identity& identity, const ServerProcess::Listening& listening);

/// Calls on the calling thread. Throws `std::runtime_error`.
class GrpcClient {
public:
    /// Connects to a server on loopback that presents the certificate of `identity`.
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
