// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include <boost/make_shared.hpp>

#include "insight/restore_summary.h"
#include "models/backed_up_node.h"
#include "tests/support/viewing_agent.h"

using insight::ChosenItems;
using insight::RestoreSummary;
using insight::RestoreTarget;
using models::CheckState;
using support::storedDrive;
using support::storedFile;
using support::storedFolder;
using support::ViewingAgent;
using testing::ElementsAre;

namespace {

// Read when the first text is created.
const bool localeIsSet = qputenv("LC_ALL", "en_US.UTF-8") && qputenv("TZ", "UTC");

class ChosenItemsTest : public testing::Test {
protected:
    ChosenItemsTest() {
        agent->items[-1] = {storedDrive(1, "C:"), storedDrive(2, "D:")};
        agent->items[1] = {storedFile(3, "a"), storedFile(4, "b"), storedFolder(5, "c")};
        root.fetch();
        drive().fetch();
    }

    BackedUpNode& drive() { return node(root, 0); }
    static BackedUpNode& node(BackedUpNode& parent, std::size_t row) {
        return static_cast<BackedUpNode&>(*parent.children().at(row));
    }
    static void check(BackedUpNode& node) {
        models::setChecked(node, true, [](auto&) {});
    }
    ChosenItems chosen() {
        return insight::chosenItems(root, [](std::int64_t id) {
            return id == 3 ? std::optional<std::int64_t>(1'024) : std::nullopt;
        });
    }
    insight::ChosenItems chosen(std::int64_t sizeOfEach) {
        return insight::chosenItems(root, [=](std::int64_t) { return std::optional(sizeOfEach); });
    }

    const boost::shared_ptr<ViewingAgent> agent = boost::make_shared<ViewingAgent>();
    BackedUpNode root{ViewingAgent::view(agent)};
};

TEST_F(ChosenItemsTest, FilesWithAndWithoutAKnownSize) {
    check(node(drive(), 0));
    EXPECT_EQ(chosen().files, 1);
    EXPECT_EQ(chosen().folders, 0);
    EXPECT_EQ(chosen().bytes, 1'024);
    EXPECT_EQ(chosen().filesOfUnknownSize, 0);
    check(node(drive(), 1));
    EXPECT_EQ(chosen().files, 2);
    EXPECT_EQ(chosen().filesOfUnknownSize, 1);
    EXPECT_FALSE(chosen().hasUnopened);
}

TEST_F(ChosenItemsTest, SizesOfAnyKindAddUpToOne) {
    check(node(drive(), 0));
    check(node(drive(), 1));
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(chosen(most).bytes, most);
    EXPECT_EQ(chosen(most / 2 + 1).bytes, most);
    EXPECT_EQ(chosen(-1).bytes, 0);
}

TEST_F(ChosenItemsTest, AnUnopenedFolderIsCountedAndNotAskedFor) {
    agent->takeCalls();
    check(drive());
    EXPECT_EQ(chosen().files, 2);
    EXPECT_EQ(chosen().folders, 2);
    EXPECT_TRUE(chosen().hasUnopened);
    EXPECT_EQ(agent->takeCalls(), "");
}

std::vector<std::string> lines(const RestoreSummary& summary) {
    std::vector<std::string> list;
    for (const QString& line : insight::summaryLines(summary))
        list.push_back(line.toStdString());
    return list;
}

TEST(RestoreSummary, SaysWhatIsKnown) {
    ASSERT_TRUE(localeIsSet);
    RestoreSummary summary;
    summary.chosen = {2, 1, false, 3'072, 0};
    EXPECT_THAT(lines(summary),
                ElementsAre("As it was: at the last backup", "What: 2 files, 1 folder",
                            "Size: 3.00 KB", "Where to: the original location",
                            "Existing files: the agent doesn't report whether it replaces them"));
}

TEST(RestoreSummary, SaysWhatIsNotKnown) {
    RestoreSummary summary;
    summary.upTo = 1'700'000'000;
    summary.chosen = {1, 3, true, 2'048, 0};
    summary.target = RestoreTarget::otherDirectory;
    summary.directory = QStringLiteral("D:/back/restore_1/");
    EXPECT_THAT(lines(summary),
                ElementsAre("As it was: 11/14/23 10:13 PM",
                            "What: at least 1 file, 3 folders, as not all folders were opened",
                            "Size: at least 2.00 KB", "Where to: D:/back/restore_1/",
                            "Existing files: kept, because the restore creates its own directory"));
    summary.chosen = {1, 0, false, 0, 1};
    summary.target = RestoreTarget::otherComputer;
    summary.computer = QStringLiteral("HP-8200");
    EXPECT_EQ(lines(summary)[2], "Size: not known before the restore");
    EXPECT_EQ(lines(summary)[3], "Where to: D:/back/restore_1/ on HP-8200");
}

TEST(RestoreSummary, OfAWholeSet) {
    RestoreSummary summary;
    summary.isWholeSet = true;
    summary.chosen = {84'211, 0, false, 3'221'225'472, 0};
    EXPECT_EQ(lines(summary)[1], "What: the whole set, 84,211 files");
    EXPECT_EQ(lines(summary)[2], "Size: 3.00 GB");
}

} // namespace
