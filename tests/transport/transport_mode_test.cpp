// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/transport_mode.h"

#include <gtest/gtest.h>

#include "transport/http_call_dispatcher.h"
#include "transport/raw_stream_dispatcher.h"

namespace {

using namespace hessiancln;

class TransportMode : public testing::Test {
protected:
    ~TransportMode() override { transportMode = 0; }

    template <class Dispatcher>
    static bool makes() {
        return dynamic_cast<Dispatcher*>(createCallDispatcher(0, "").get()) != nullptr;
    }
};

TEST_F(TransportMode, IsHttpAtFirst) {
    EXPECT_EQ(transportMode, 0);
    EXPECT_TRUE(makes<CHttpCallDispatcher>());
}

TEST_F(TransportMode, OneAndTwoAreTheRawStream) {
    transportMode = 1;
    EXPECT_TRUE(makes<CRawStreamDispacher>());
    transportMode = 2;
    EXPECT_TRUE(makes<CRawStreamDispacher>());
}

TEST_F(TransportMode, AnyOtherValueIsHttp) {
    for (const int other : {3, -1, 100}) {
        transportMode = other;
        EXPECT_TRUE(makes<CHttpCallDispatcher>());
    }
}

} // namespace
