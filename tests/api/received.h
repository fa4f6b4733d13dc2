// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "tests/support/proxy_test.h"
#include "transport/invoke_exception.h"

/// Adds the checks that most tests of a remote class make of a result.
class ReceivingTest : public support::ProxyTest {
protected:
    /// Checks that the proxy is the object at `url`, usable, and released on destruction, i.e. now.
    template <class Proxy>
    void expectReceived(boost::shared_ptr<Proxy> proxy, const std::string& url) const {
        ASSERT_TRUE(proxy);
        EXPECT_EQ(proxy->url(), url);
        EXPECT_EQ(proxy->getDispatcher(), agent);
        agent->expectRelease(url);
        proxy.reset();
        EXPECT_EQ(agent->left(), 0u);
    }

    template <class Act>
    void expectFault(Act act, const std::string& text) const {
        try {
            act();
            ADD_FAILURE() << "Nothing raised in place of: " << text;
        } catch (const hessiancln::invoke_exception& e) {
            EXPECT_EQ(e.what(), text);
        }
    }
};
