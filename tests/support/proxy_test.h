// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

#include "tests/support/scripted_dispatcher.h"

namespace support {

/// Base of tests that run one proxy against a scripted agent.
class ProxyTest : public testing::Test {
protected:
    /// A proxy that is never released, like the entry point's.
    template <class Proxy>
    boost::shared_ptr<Proxy> proxyAt(const std::string& url) const {
        return boost::make_shared<Proxy>(agent, url, false, 0u, std::string());
    }

    /// A proxy as received in a reply.
    template <class Proxy>
    boost::shared_ptr<Proxy> receivedAt(const std::string& url) const {
        return boost::make_shared<Proxy>(agent, url, true, 0u, std::string());
    }

    /// Expects one call of the object under test, at the URL "here".
    void expect(std::string_view request, std::string_view reply) const {
        agent->expect("here", request, reply);
    }

    boost::shared_ptr<ScriptedDispatcher> agent = boost::make_shared<ScriptedDispatcher>();
};

} // namespace support
