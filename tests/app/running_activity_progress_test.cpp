// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <cstdint>

#include <gtest/gtest.h>

#include <QLocale>

#include "app/running_activity_progress.h"

namespace {

using app::progressOf;
using hessiancln::running_activity_info;

struct Numbers {
    std::int32_t files = 0;
    std::int32_t filesLeft = 0;
    std::int64_t size = 0;
    std::int64_t sizeLeft = 0;
};

running_activity_info activity(Numbers numbers, const char* status = "") {
    running_activity_info info;
    info.files_processed = numbers.files;
    info.files_left = numbers.filesLeft;
    info.size_processed = numbers.size;
    info.size_left = numbers.sizeLeft;
    info.status_msg = status;
    return info;
}

std::string text(Numbers numbers, const char* status = "") {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    return app::progressText(activity(numbers, status)).toStdString();
}

TEST(ProgressText, BeforeTheFirstDataTheStatusCounts) {
    EXPECT_EQ(text({}, "Scanning"), "Scanning");
    EXPECT_EQ(text({}), "");
}

TEST(ProgressText, WhatIsLeftStandsBehindTheStatus) {
    EXPECT_EQ(text({.filesLeft = 1234, .sizeLeft = 2048}, "Scanning"),
              "Scanning (1,234 files / 2.00 KB)");
    EXPECT_EQ(text({.filesLeft = 3}, "Scanning"), "Scanning (3 files)");
    EXPECT_EQ(text({.sizeLeft = 5}, "Scanning"), "Scanning (5 Byte(s))");
}

TEST(ProgressText, AnEmptyStatusStillShowsWhatIsLeft) {
    EXPECT_EQ(text({.filesLeft = 3}), " (3 files)");
}

TEST(ProgressText, NegativeRestsAreNotShown) {
    EXPECT_EQ(text({.filesLeft = -1, .sizeLeft = -1}, "Scanning"), "Scanning");
}

TEST(ProgressText, WhatIsDoneReplacesTheStatus) {
    EXPECT_EQ(text({.files = 5000, .filesLeft = 1, .size = 1048576, .sizeLeft = 1}, "Sending"),
              "5,000 files / 1.00 MB");
    EXPECT_EQ(text({.files = 5}, "Sending"), "5 files");
    EXPECT_EQ(text({.size = 1023}, "Sending"), "1023 Byte(s)");
}

TEST(Progress, ThereIsNoneBeforeTheFirstData) {
    EXPECT_FALSE(progressOf(activity({.filesLeft = 10, .sizeLeft = 10})));
}

TEST(Progress, ThereIsNoneWithNothingLeft) {
    EXPECT_FALSE(progressOf(activity({.files = 10, .size = 10})));
}

TEST(Progress, FilesAloneCountAlone) {
    EXPECT_DOUBLE_EQ(progressOf(activity({.files = 1, .filesLeft = 3})).value(), 0.25);
    EXPECT_DOUBLE_EQ(progressOf(activity({.files = 1, .filesLeft = 3, .size = 7})).value(), 0.25);
}

TEST(Progress, SizeAloneCountsAlone) {
    EXPECT_DOUBLE_EQ(progressOf(activity({.files = 9, .size = 1, .sizeLeft = 1})).value(), 0.5);
}

TEST(Progress, SizeWeighsFourTimesAsMuchAsFiles) {
    EXPECT_DOUBLE_EQ(
        progressOf(activity({.files = 1, .filesLeft = 1, .size = 1, .sizeLeft = 3})).value(),
        0.25 * 0.8 + 0.5 * 0.2);
}

TEST(Progress, NumbersThatDoNotAddUpStayBetweenNoneAndAll) {
    EXPECT_DOUBLE_EQ(progressOf(activity({.files = 10, .filesLeft = -5})).value(), 1);
    EXPECT_DOUBLE_EQ(progressOf(activity({.files = -2, .filesLeft = 10})).value(), 0);
    EXPECT_DOUBLE_EQ(progressOf(activity({.files = 5, .filesLeft = -5})).value(), 0);
}

TEST(Progress, TheLargestNumbersDoNotOverflow) {
    EXPECT_NEAR(progressOf(activity({.files = INT32_MAX,
                                     .filesLeft = INT32_MAX,
                                     .size = INT64_MAX,
                                     .sizeLeft = INT64_MAX}))
                    .value(),
                0.5, 1e-9);
}

} // namespace
