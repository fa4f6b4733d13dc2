// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <exception>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "hessian/serialize_exception.h"
#include "session/connection.h"

namespace session_tests {

/// Starts and ends without a session, with process-wide values that reveal whether they were
/// written.
class SessionTest : public testing::Test {
protected:
    SessionTest() {
        session::g_connection.reset();
        session::g_clientType = untouchedType;
        session::g_isMobileClient = true;
        session::g_isNotebookClient = true;
        session::g_currentUser = untouchedUser;
    }

    ~SessionTest() override { session::g_connection.reset(); }

    static constexpr std::int32_t untouchedType = -77;
    static constexpr const char* untouchedUser = "nobody yet";

    /// Holds after every failed login, whatever the cause.
    static void expectNoSession() {
        EXPECT_FALSE(session::connectedToAgent());
        EXPECT_EQ(session::currentUser(), untouchedUser);
        EXPECT_TRUE(session::g_connectionMutex.try_lock()) << "The mutex is still held";
        session::g_connectionMutex.unlock();
        try {
            session::getConnection();
            ADD_FAILURE() << "There is a connection";
        } catch (const hessianser::serialize_exception& failure) {
            EXPECT_STREQ(failure.what(), "No API connection exists");
        }
    }

    static void expectStoredKind(std::int32_t type, bool mobile, bool notebook) {
        EXPECT_EQ(session::clientType(), type);
        EXPECT_EQ(session::g_isMobileClient, mobile);
        EXPECT_EQ(session::g_isNotebookClient, notebook);
    }

    static void expectUntouchedKind() { expectStoredKind(untouchedType, true, true); }
};

/// The text of the `Failure` that `act` throws.
template <class Failure>
std::string textOf(const std::function<void()>& act) {
    try {
        act();
    } catch (const Failure& failure) {
        return failure.what();
    } catch (const std::exception& other) {
        ADD_FAILURE() << "Another exception: " << other.what();
        return {};
    }
    ADD_FAILURE() << "No exception";
    return {};
}

} // namespace session_tests
