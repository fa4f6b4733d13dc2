// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "insight/end_watch.h"

using hessiancln::activity_log_info;
using insight::EndWatch;

namespace {

activity_log_info row(std::int32_t id, std::int32_t end = 100) {
    activity_log_info made;
    made.id = id;
    made.end_time = end;
    return made;
}

TEST(EndWatch, FindsWhatHasGoneInTheLog) {
    EndWatch watch;
    EXPECT_TRUE(watch.take({row(7)}).empty());
    watch.gone(7);
    const auto ended = watch.take({row(6), row(7)});
    ASSERT_EQ(ended.size(), 1u);
    EXPECT_EQ(ended[0].id, 7);
    EXPECT_TRUE(watch.take({row(7)}).empty());
}

TEST(EndWatch, ALogThatIsLateIsWaitedFor) {
    EndWatch watch;
    watch.gone(7);
    EXPECT_TRUE(watch.take({}).empty());
    // The row exists from the activity's start on.
    EXPECT_TRUE(watch.take({row(7, 0)}).empty());
    EXPECT_EQ(watch.take({row(7)}).size(), 1u);
}

TEST(EndWatch, AfterTheThirdLogNothingIsWaitedFor) {
    EndWatch watch;
    watch.gone(7);
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(watch.take({}).empty());
    EXPECT_TRUE(watch.take({row(7)}).empty());
}

TEST(EndWatch, ErrorsAndRestoresAreNews) {
    activity_log_info ended = row(7);
    EXPECT_FALSE(insight::isNews(ended));
    ended.errors = 1;
    EXPECT_TRUE(insight::isNews(ended));
    ended.errors = 0;
    ended.type = hessiancln::ActivityType::Restore;
    EXPECT_TRUE(insight::isNews(ended));
}

} // namespace
