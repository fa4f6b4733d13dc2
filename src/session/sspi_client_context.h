// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <span>
#include <string>
#include <vector>

#include "base/secret.h"
#include "platform/security_context.h"

namespace session {

/// The client side of one integrated logon: turns the agent's last token into the next one to send,
/// round by round, until the context is complete.
class SspiClientContext {
public:
    /// `operations` must outlive this object.
    explicit SspiClientContext(platform::SecurityOperations& operations);
    SspiClientContext(const SspiClientContext&) = delete;
    SspiClientContext& operator=(const SspiClientContext&) = delete;
    ~SspiClientContext();

    /// Runs one round. Returns false if an operation failed; `failedOperation` may then name it.
    bool runRound(const std::string& targetName);

    /// The agent's token for the next round; empty before the first one.
    void setInToken(std::span<const std::uint8_t> token);

    /// The token to send to the agent. Valid until the next round.
    std::span<const std::uint8_t> outToken() const;

    /// Whether the context is complete.
    bool done() const { return done_; }

    /// Status and name of the failed operation. Not set by a failure to acquire credentials.
    platform::SecurityStatus failedStatus() const { return failedStatus_; }
    const std::string& failedOperation() const { return failedOperation_; }

private:
    /// A buffer for the package's largest token, allocated once, and the size used.
    struct Token {
        std::vector<std::uint8_t, base::WipingAllocator<std::uint8_t>> room;
        std::size_t size = 0;
    };

    bool acquireCredentials();
    bool check(platform::SecurityStatus status, const char* operation);

    platform::SecurityOperations& operations_;
    Token inToken_;
    Token outToken_;
    platform::SecurityHandle credentials_;
    platform::SecurityHandle context_;
    bool done_ = false;
    platform::SecurityStatus failedStatus_ = platform::securityOk;
    std::string failedOperation_;
};

} // namespace session
