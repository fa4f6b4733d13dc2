// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/security_context.h"

#define SECURITY_WIN32
#include <windows.h>

#include <security.h>

#include "platform/windows/wide_text.h"

namespace platform {

namespace {

// The interface takes texts as non-const, though it only reads them.
wchar_t packageName[] = L"Negotiate";

SecHandle toSystem(const SecurityHandle& handle) {
    return {static_cast<ULONG_PTR>(handle.lower), static_cast<ULONG_PTR>(handle.upper)};
}

SecurityHandle fromSystem(const SecHandle& handle) {
    return {handle.dwLower, handle.dwUpper};
}

SecBuffer tokenBuffer(std::span<std::uint8_t> token) {
    return {static_cast<unsigned long>(token.size()), SECBUFFER_TOKEN, token.data()};
}

SecBufferDesc describe(SecBuffer& buffer) {
    return {SECBUFFER_VERSION, 1, &buffer};
}

class NegotiateOperations final : public SecurityOperations {
public:
    SecurityStatus queryMaxTokenSize(std::uint32_t& maxTokenSize) override {
        SecPkgInfoW* package = nullptr;
        const SECURITY_STATUS status = QuerySecurityPackageInfoW(packageName, &package);
        if (status < 0)
            return status;
        maxTokenSize = package->cbMaxToken;
        FreeContextBuffer(package);
        return status;
    }

    SecurityStatus acquireCredentials(SecurityHandle& credentials) override {
        SecHandle acquired{};
        TimeStamp expiry{};
        const SECURITY_STATUS status =
            AcquireCredentialsHandleW(nullptr, packageName, SECPKG_CRED_OUTBOUND, nullptr, nullptr,
                                      nullptr, nullptr, &acquired, &expiry);
        if (status >= 0)
            credentials = fromSystem(acquired);
        return status;
    }

    SecurityStatus initializeContext(SecurityHandle& credentials, SecurityHandle& context,
                                     const std::string& targetName, std::span<std::uint8_t> input,
                                     std::span<std::uint8_t> output,
                                     std::uint32_t& outputSize) override {
        constexpr unsigned long confidentiality = 16;
        constexpr unsigned long nativeRepresentation = 16;
        const bool firstRound = input.empty();

        std::wstring target = toWide(targetName);
        SecBuffer received = tokenBuffer(input);
        SecBufferDesc receivedTokens = describe(received);
        SecBuffer sent = tokenBuffer(output);
        SecBufferDesc sentTokens = describe(sent);
        SecHandle heldCredentials = toSystem(credentials);
        SecHandle heldContext = toSystem(context);
        unsigned long attributes = 0;
        TimeStamp expiry{};
        const SECURITY_STATUS status = InitializeSecurityContextW(
            &heldCredentials, firstRound ? nullptr : &heldContext, target.data(), confidentiality,
            0, nativeRepresentation, firstRound ? nullptr : &receivedTokens, 0, &heldContext,
            &sentTokens, &attributes, &expiry);
        if (status >= 0) {
            context = fromSystem(heldContext);
            outputSize = sent.cbBuffer;
        }
        return status;
    }

    SecurityStatus completeToken(SecurityHandle& context, std::span<std::uint8_t> token) override {
        SecHandle heldContext = toSystem(context);
        SecBuffer sent = tokenBuffer(token);
        SecBufferDesc sentTokens = describe(sent);
        return CompleteAuthToken(&heldContext, &sentTokens);
    }
};

} // namespace

SecurityOperations* securityOperations() {
    static NegotiateOperations operations;
    return &operations;
}

} // namespace platform
