// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/sspi_client_context.h"

#include <algorithm>

namespace session {

using platform::SecurityStatus;

SspiClientContext::SspiClientContext(platform::SecurityOperations& operations)
    : operations_(operations) {}

SspiClientContext::~SspiClientContext() {
    operations_.release(credentials_, context_);
}

bool SspiClientContext::runRound(const std::string& targetName) {
    if (!credentials_.held() && !acquireCredentials())
        return false;
    // The interface takes the size of the input buffer, not of the token in it.
    const auto input = inToken_.size == 0 ? std::span<std::uint8_t>() : std::span(inToken_.room);
    std::uint32_t written = 0;
    SecurityStatus status = operations_.initializeContext(credentials_, context_, targetName, input,
                                                          outToken_.room, written);
    if (!check(status, "InitializeSecurityContext"))
        return false;
    written = std::min(written, static_cast<std::uint32_t>(outToken_.room.size()));
    if (status == platform::securityCompleteNeeded ||
        status == platform::securityCompleteAndContinue) {
        status = operations_.completeToken(context_, std::span(outToken_.room).first(written));
        if (!check(status, "CompleteAuthToken"))
            return false;
    }
    outToken_.size = written;
    done_ = status != platform::securityContinueNeeded &&
            status != platform::securityCompleteAndContinue;
    return true;
}

void SspiClientContext::setInToken(std::span<const std::uint8_t> token) {
    // Leftovers of an older token must not follow this one.
    std::ranges::fill(inToken_.room, std::uint8_t{0});
    if (token.size() > inToken_.room.size())
        inToken_.room.resize(token.size());
    std::ranges::copy(token, inToken_.room.begin());
    inToken_.size = token.size();
}

std::span<const std::uint8_t> SspiClientContext::outToken() const {
    return std::span(outToken_.room).first(outToken_.size);
}

bool SspiClientContext::acquireCredentials() {
    std::uint32_t maxTokenSize = 0;
    if (!check(operations_.queryMaxTokenSize(maxTokenSize), "QuerySecurityPackageInfo"))
        return false;
    inToken_.room.resize(std::max<std::size_t>(inToken_.room.size(), maxTokenSize));
    outToken_.room.resize(maxTokenSize);
    return operations_.acquireCredentials(credentials_) >= 0;
}

bool SspiClientContext::check(SecurityStatus status, const char* operation) {
    if (status >= 0)
        return true;
    failedStatus_ = status;
    failedOperation_ = operation;
    return false;
}

} // namespace session
