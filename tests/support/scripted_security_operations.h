// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "platform/security_context.h"

namespace support {

/// Security operations that follow a test's script and record their arguments.
class ScriptedSecurityOperations : public platform::SecurityOperations {
public:
    using Bytes = std::vector<std::uint8_t>;

    /// What one round writes and returns, and what completing its token returns.
    struct Round {
        platform::SecurityStatus status = platform::securityOk;
        Bytes token;
        platform::SecurityStatus completeStatus = platform::securityOk;
    };

    /// The arguments of one call of `initializeContext`.
    struct Asked {
        std::string targetName;
        bool withContext;
        Bytes input;
        std::size_t outputRoom;
    };

    virtual ~ScriptedSecurityOperations() = default;

    std::uint32_t maxTokenSize = 16;
    platform::SecurityStatus queryStatus = platform::securityOk;
    platform::SecurityStatus acquireStatus = platform::securityOk;
    /// Rounds to come. A missing round fails with `roundsUsedUp`.
    std::deque<Round> rounds;
    static constexpr platform::SecurityStatus roundsUsedUp = -1;

    /// Names of the operations in call order.
    std::vector<std::string> operations;
    std::vector<Asked> asked;
    /// The token passed to each completion.
    std::vector<Bytes> completed;

    platform::SecurityStatus queryMaxTokenSize(std::uint32_t& size) override {
        operations.emplace_back("query");
        if (queryStatus >= 0)
            size = maxTokenSize;
        return queryStatus;
    }

    platform::SecurityStatus acquireCredentials(platform::SecurityHandle& credentials) override {
        operations.emplace_back("acquire");
        if (acquireStatus >= 0)
            credentials.lower = 1;
        return acquireStatus;
    }

    platform::SecurityStatus
    initializeContext(platform::SecurityHandle& credentials, platform::SecurityHandle& context,
                      const std::string& targetName, std::span<std::uint8_t> input,
                      std::span<std::uint8_t> output, std::uint32_t& outputSize) override {
        operations.emplace_back(credentials.held() ? "round" : "round without credentials");
        asked.push_back(
            {targetName, context.held(), Bytes(input.begin(), input.end()), output.size()});
        const Round round = rounds.empty() ? Round{roundsUsedUp, {}, 0} : rounds.front();
        if (!rounds.empty())
            rounds.pop_front();
        context.lower = 2;
        std::copy_n(round.token.begin(), std::min(round.token.size(), output.size()),
                    output.begin());
        outputSize = static_cast<std::uint32_t>(round.token.size());
        completeStatus_ = round.completeStatus;
        return round.status;
    }

    platform::SecurityStatus completeToken(platform::SecurityHandle& context,
                                           std::span<std::uint8_t> token) override {
        operations.emplace_back(context.held() ? "complete" : "complete without context");
        completed.emplace_back(token.begin(), token.end());
        return completeStatus_;
    }

private:
    platform::SecurityStatus completeStatus_ = platform::securityOk;
};

} // namespace support
