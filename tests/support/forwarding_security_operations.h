// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/security_context.h"

namespace support {

/// Security operations that are those of `target`, for a test to derive from.
class ForwardingSecurityOperations : public platform::SecurityOperations {
public:
    explicit ForwardingSecurityOperations(platform::SecurityOperations& target)
        : target_(target) {}
    virtual ~ForwardingSecurityOperations() = default;

    bool available() override { return target_.available(); }
    platform::SecurityStatus queryMaxTokenSize(std::uint32_t& size) override {
        return target_.queryMaxTokenSize(size);
    }
    platform::SecurityStatus acquireCredentials(platform::SecurityHandle& credentials) override {
        return target_.acquireCredentials(credentials);
    }
    platform::SecurityStatus
    initializeContext(platform::SecurityHandle& credentials, platform::SecurityHandle& context,
                      const std::string& targetName, std::span<std::uint8_t> input,
                      std::span<std::uint8_t> output, std::uint32_t& outputSize) override {
        return target_.initializeContext(credentials, context, targetName, input, output,
                                         outputSize);
    }
    platform::SecurityStatus completeToken(platform::SecurityHandle& context,
                                           std::span<std::uint8_t> token) override {
        return target_.completeToken(context, token);
    }
    void release(platform::SecurityHandle& credentials,
                 platform::SecurityHandle& context) override {
        target_.release(credentials, context);
    }

private:
    platform::SecurityOperations& target_;
};

} // namespace support
