// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/security_context.h"

#include <algorithm>
#include <filesystem>
#include <vector>

#include <gtest/gtest.h>

#include <gssapi/gssapi_ext.h>

#include "platform/posix/der_token.h"
#include "platform/posix/gss_handles.h"
#include "tests/support/clock_offset.h"
#include "tests/support/heap_in_use.h"
#include "tests/support/kerberos_realm.h"

using namespace std::chrono_literals;

namespace {

namespace gss = platform::gss;
using platform::SecurityHandle;
using platform::SecurityStatus;
using support::ClockOffset;

using Bytes = std::vector<std::uint8_t>;

// Status codes of the interface on its native system.
constexpr auto noCredentials = static_cast<SecurityStatus>(0x8009030E);
constexpr auto internalError = static_cast<SecurityStatus>(0x80090304);
constexpr auto invalidToken = static_cast<SecurityStatus>(0x80090308);
constexpr auto bufferTooSmall = static_cast<SecurityStatus>(0x80090321);

bool isAvailable() {
    return platform::securityOperations()->available();
}

TEST(DerToken, EndsWhereItsLengthSays) {
    const auto sizeOf = [](Bytes room) { return platform::derToken(room).size(); };
    EXPECT_EQ(sizeOf({0x60, 2, 1, 2, 0, 0}), 4u);
    EXPECT_EQ(sizeOf({0x60, 0, 0}), 2u);
    EXPECT_EQ(sizeOf({0x60, 0x81, 2, 1, 2, 0, 0}), 5u);
    EXPECT_EQ(sizeOf({0xA1, 0x82, 0, 1, 7, 0, 0}), 5u);
    Bytes longer(1000);
    longer[0] = 0x60;
    longer[1] = 0x82;
    longer[2] = 0x01;
    longer[3] = 0x02;
    EXPECT_EQ(sizeOf(longer), 4u + 0x102);
}

TEST(DerToken, IsAllThatIsThereWhereNoLengthCanBeRead) {
    const auto sizeOf = [](Bytes room) { return platform::derToken(room).size(); };
    EXPECT_EQ(sizeOf({}), 0u);
    EXPECT_EQ(sizeOf({0x60}), 1u);
    EXPECT_EQ(sizeOf({0x60, 3, 1, 2}), 4u) << "promises too much";
    EXPECT_EQ(sizeOf({0x60, 0x80, 1, 2}), 4u) << "has no length of its own";
    EXPECT_EQ(sizeOf({0x60, 0x82, 1}), 3u) << "ends within its length";
    EXPECT_EQ(sizeOf({0x60, 0x85, 0, 0, 0, 0, 0, 1}), 8u) << "is longer than any token";
    EXPECT_EQ(sizeOf({0x60, 0x84, 0xFF, 0xFF, 0xFF, 0xFF, 1}), 7u);
}

TEST(LogonOffer, FollowsTheTicket) {
    support::KerberosRealm realm;
    EXPECT_FALSE(isAvailable());
    realm.getTicket();
    EXPECT_TRUE(isAvailable());
    realm.destroyTicket();
    EXPECT_FALSE(isAvailable());
}

TEST(LogonOffer, EndsWhenTheTicketExpires) {
    support::KerberosRealm realm;
    realm.getTicket();
    {
        const ClockOffset soon(9h);
        EXPECT_TRUE(isAvailable());
    }
    const ClockOffset later(11h);
    EXPECT_FALSE(isAvailable());
}

TEST(LogonOffer, AsksNobodyForTheTicket) {
    support::KerberosRealm realm;
    realm.getTicket();
    realm.stopKdc();
    EXPECT_TRUE(isAvailable());
}

TEST(LogonOffer, IsMadeWithClientKeys) {
    support::KerberosRealm realm;
    realm.writeClientKeys();
    EXPECT_TRUE(isAvailable());
    EXPECT_FALSE(std::filesystem::exists(realm.file("tickets"))) << "only a logon gets one";
}

TEST(LogonOffer, AsksNoSilentKdcForATicket) {
    support::KerberosRealm realm;
    realm.writeClientKeys();
    realm.silenceKdc();
    EXPECT_TRUE(isAvailable());
    EXPECT_FALSE(realm.silentKdcWasAsked());
}

TEST(LogonOffer, IsNotMadeOnASystemWithoutKerberos) {
    ::setenv("KRB5_CONFIG", "/nonexistent", 1);
    ::setenv("KRB5CCNAME", "FILE:/nonexistent", 1);
    EXPECT_FALSE(isAvailable());
}

/// A context of this system's operations, driven as by the session.
class SecurityContext : public testing::Test {
protected:
    ~SecurityContext() override { operations().release(credentials, context); }

    static platform::SecurityOperations& operations() { return *platform::securityOperations(); }

    SecurityStatus acquire() { return operations().acquireCredentials(credentials); }

    SecurityStatus round(Bytes input = {}, const char* target = "OstrandBakSvc/localhost") {
        std::uint32_t size = 0;
        output.assign(room, 0);
        const SecurityStatus status =
            operations().initializeContext(credentials, context, target, input, output, size);
        output.resize(size);
        return status;
    }

    /// The agent's reply to the last token.
    Bytes accepted() {
        OM_uint32 minor = 0;
        const std::string keyTable = realm.keyTable();
        gss_key_value_element_desc element{"keytab", keyTable.c_str()};
        const gss_key_value_set_desc store{1, &element};
        gss::Credentials keys;
        gss_acquire_cred_from(&minor, GSS_C_NO_NAME, GSS_C_INDEFINITE, GSS_C_NO_OID_SET,
                              GSS_C_ACCEPT, &store, keys.place(), nullptr, nullptr);
        gss_buffer_desc token{output.size(), output.data()};
        gss::Context other;
        gss::Buffer answer;
        EXPECT_EQ(gss_accept_sec_context(&minor, other.place(), keys.get(), &token,
                                         GSS_C_NO_CHANNEL_BINDINGS, nullptr, nullptr,
                                         answer.place(), &acceptedFlags, nullptr, nullptr),
                  OM_uint32{GSS_S_COMPLETE});
        return {answer.bytes().begin(), answer.bytes().end()};
    }

    support::KerberosRealm realm;
    std::size_t room = 48u << 10;
    Bytes output;
    OM_uint32 acceptedFlags = 0;
    SecurityHandle credentials;
    SecurityHandle context;
};

TEST_F(SecurityContext, HasRoomForTheTokensOfALargeDomain) {
    std::uint32_t size = 0;
    EXPECT_EQ(operations().queryMaxTokenSize(size), platform::securityOk);
    EXPECT_GE(size, 65535u);
}

TEST_F(SecurityContext, IsCompleteInTwoRounds) {
    realm.getTicket();
    ASSERT_EQ(acquire(), platform::securityOk);
    EXPECT_TRUE(credentials.held());
    ASSERT_EQ(round(), platform::securityContinueNeeded);
    EXPECT_TRUE(context.held());
    EXPECT_EQ(output[0], 0x60) << "the first token of a mechanism";
    ASSERT_EQ(round(accepted()), platform::securityOk);
    EXPECT_TRUE(output.empty());
    EXPECT_TRUE(acceptedFlags & GSS_C_CONF_FLAG) << "confidentiality is asked for";
    EXPECT_FALSE(acceptedFlags & GSS_C_DELEG_FLAG) << "the ticket isn't handed on";
}

TEST_F(SecurityContext, TakesATokenInARoomThatIsLarger) {
    realm.getTicket();
    ASSERT_EQ(acquire(), platform::securityOk);
    ASSERT_EQ(round(), platform::securityContinueNeeded);
    Bytes answer = accepted();
    answer.resize(room);
    EXPECT_EQ(round(answer), platform::securityOk);
}

TEST_F(SecurityContext, HasNoCredentialsWithoutATicket) {
    EXPECT_EQ(acquire(), noCredentials);
    EXPECT_FALSE(credentials.held());
}

TEST_F(SecurityContext, GetsItsTicketWithClientKeys) {
    realm.writeClientKeys();
    ASSERT_EQ(acquire(), platform::securityOk);
    EXPECT_EQ(round(), platform::securityContinueNeeded);
}

TEST_F(SecurityContext, HasNoCredentialsWhenTheTicketHasExpired) {
    realm.getTicket();
    const ClockOffset later(11h);
    EXPECT_EQ(acquire(), noCredentials);
}

TEST_F(SecurityContext, FailsForAServiceThatTheRealmDoesntKnow) {
    realm.getTicket();
    ASSERT_EQ(acquire(), platform::securityOk);
    EXPECT_EQ(round({}, "Other/localhost"), internalError);
}

TEST_F(SecurityContext, FailsWhenTheKdcIsAway) {
    realm.getTicket();
    realm.stopKdc();
    ASSERT_EQ(acquire(), platform::securityOk);
    EXPECT_EQ(round(), internalError);
}

TEST_F(SecurityContext, NeedsNoKdcOnceItHasATicketForTheService) {
    realm.getTicket();
    realm.getServiceTicket();
    realm.stopKdc();
    ASSERT_EQ(acquire(), platform::securityOk);
    EXPECT_EQ(round(), platform::securityContinueNeeded);
}

TEST_F(SecurityContext, FailsOnAnAnswerThatIsNoToken) {
    realm.getTicket();
    for (const Bytes& answer : {Bytes{0}, Bytes{0xA1, 2, 0x30}, Bytes(100, 0xFF)}) {
        ASSERT_EQ(acquire(), platform::securityOk);
        ASSERT_EQ(round(), platform::securityContinueNeeded);
        EXPECT_EQ(round(answer), invalidToken);
        operations().release(credentials, context);
    }
}

TEST_F(SecurityContext, FailsWhereTheTokenHasNoRoom) {
    realm.getTicket();
    ASSERT_EQ(acquire(), platform::securityOk);
    room = 100;
    EXPECT_EQ(round(), bufferTooSmall);
    EXPECT_TRUE(output.empty());
}

TEST_F(SecurityContext, HoldsNothingAfterItsRelease) {
    realm.getTicket();
    const auto logOn = [this](int times) {
        for (int i = 0; i < times; ++i) {
            ASSERT_EQ(acquire(), platform::securityOk);
            ASSERT_EQ(round(), platform::securityContinueNeeded);
            // Starts again, as after an empty reply.
            ASSERT_EQ(round(), platform::securityContinueNeeded);
            operations().release(credentials, context);
            ASSERT_FALSE(credentials.held());
            ASSERT_FALSE(context.held());
        }
    };
    logOn(20);
    const std::size_t before = support::heapInUse();
    logOn(100);
    EXPECT_LT(support::heapInUse(), before + 100 * 100);
}

} // namespace
