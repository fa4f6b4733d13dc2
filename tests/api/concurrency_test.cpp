// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include "api/backup_set.h"
#include "tests/support/bytes.h"
#include "transport/i_call_dispatcher.h"

namespace {

using namespace hessiancln;

/// Answers every call from any thread with the number of its set.
class Echo : public ICallDispatcher {
public:
    Echo()
        : ICallDispatcher(0, "") {}

    std::string sendRequest(const std::string&, const std::string& request) override {
        if (request == support::bytes("c 01 00 m 00 07 'Release' z")) {
            ++releases;
            return support::bytes("r 01 00 z");
        }
        if (request == support::bytes("c 01 00 m 00 07 'getName' z"))
            return support::bytes("r 01 00 S 00 04 'Büro' z");
        return support::bytes("r 01 00 r t 00 17 'com.norvel.api.Schedule' S 00 01 's' z");
    }

    std::atomic<int> releases = 0;
};

TEST(Concurrency, SeveralThreadsMayUseOneProxy) {
    constexpr int rounds = 500;
    const auto echo = boost::make_shared<Echo>();
    const auto set = boost::make_shared<BackupSet>(echo, "u", false, 0u, std::string());
    std::atomic<int> good = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] {
            for (int round = 0; round < rounds; ++round)
                good += set->getName() == "Büro" && set->getSchedule()->getDispatcher() == echo;
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(good, 4 * rounds);
    EXPECT_EQ(echo->releases, 4 * rounds);
}

} // namespace
