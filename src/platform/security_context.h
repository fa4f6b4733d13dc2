// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <span>
#include <string>

/// Integrated logon on the operating system's side: a client-side security context of the
/// "Negotiate" package (SPNEGO, RFC 4178) for the user of this process.
namespace platform {

/// Result of a security operation. A negative value is a failure.
using SecurityStatus = std::int32_t;

inline constexpr SecurityStatus securityOk = 0;
inline constexpr SecurityStatus securityContinueNeeded = 0x90312;
inline constexpr SecurityStatus securityCompleteNeeded = 0x90313;
inline constexpr SecurityStatus securityCompleteAndContinue = 0x90314;

/// A handle of the security interface. Empty if both words are zero.
struct SecurityHandle {
    std::uint64_t lower = 0;
    std::uint64_t upper = 0;

    bool held() const { return lower != 0 || upper != 0; }
};

/// The operations of the security interface, one function each. None of them throws. Those of one
/// logon may run on different threads, one after the other, and several logons at the same time.
class SecurityOperations {
public:
    /// Whether the user of this process can log on now. Asks no other machine. On Linux this
    /// requires a valid Kerberos ticket, or a client key table, with which a logon gets one.
    virtual bool available() { return true; }

    /// The largest token of the "Negotiate" package, in bytes.
    virtual SecurityStatus queryMaxTokenSize(std::uint32_t& maxTokenSize) = 0;

    /// Outbound credentials of the user of this process.
    virtual SecurityStatus acquireCredentials(SecurityHandle& credentials) = 0;

    /// One round. `targetName` is UTF-8. An empty `input` marks the first round: `context` is then
    /// only written. `output` is the buffer for the token to send, `outputSize` the number of bytes
    /// used.
    virtual SecurityStatus initializeContext(SecurityHandle& credentials, SecurityHandle& context,
                                             const std::string& targetName,
                                             std::span<std::uint8_t> input,
                                             std::span<std::uint8_t> output,
                                             std::uint32_t& outputSize) = 0;

    /// Completes the token that the last round wrote.
    virtual SecurityStatus completeToken(SecurityHandle& context,
                                         std::span<std::uint8_t> token) = 0;

    /// Ends a logon: releases and clears the handles. Does nothing where handles end with the
    /// process.
    virtual void release(SecurityHandle& credentials, SecurityHandle& context) {
        static_cast<void>(credentials);
        static_cast<void>(context);
    }

protected:
    /// Not virtual, so that the operations of a system have a trivial destructor.
    ~SecurityOperations() = default;
};

/// The operations of this system. They are never destroyed, not even when the process exits: a
/// logon that was abandoned may still be running.
SecurityOperations* securityOperations();

} // namespace platform
