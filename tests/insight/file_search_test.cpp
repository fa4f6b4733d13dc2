// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include <boost/make_shared.hpp>
#include <boost/weak_ptr.hpp>

#include "insight/file_search.h"
#include "tests/support/viewing_agent.h"

using insight::FileSearch;
using insight::FoundFile;
using insight::NamePattern;
using support::storedDrive;
using support::storedFile;
using support::storedFolder;
using support::ViewingAgent;
using testing::ElementsAre;

namespace {

bool matches(const char* pattern, const char* name) {
    return NamePattern(QString::fromUtf8(pattern)).matches(QString::fromUtf8(name));
}

TEST(NamePattern, ATextStandsAnywhereInAnyCase) {
    EXPECT_TRUE(matches("offer", "Old Offer.docx"));
    EXPECT_TRUE(matches("GRÖSSE", "Größe und grösse.jpg"));
    EXPECT_FALSE(matches("offer.", "Offers.docx"));
    EXPECT_TRUE(matches(" offer ", "offer"));
}

TEST(NamePattern, APatternIsForTheWholeName) {
    EXPECT_TRUE(matches("*.docx", "Offer.DOCX"));
    EXPECT_FALSE(matches("*.doc", "Offer.docx"));
    EXPECT_TRUE(matches("O?fer.*", "Offer.docx"));
    EXPECT_FALSE(matches("O?fer.*", "Ofer.docx"));
    EXPECT_TRUE(matches("a[1].*", "A[1].txt"));
    EXPECT_FALSE(matches("a[1].*", "a1.txt"));
    EXPECT_TRUE(matches("*", "two\nlines"));
    EXPECT_TRUE(matches("a\\*", "a\\b"));
    EXPECT_TRUE(matches("\U0001F600*", "\U0001F600 photo.jpg"));
    EXPECT_FALSE(matches("\U0001F600*", "photo.jpg"));
}

class FileSearchTest : public testing::Test {
protected:
    FileSearchTest() {
        agent->items[-1] = {storedDrive(1, "C:"), storedDrive(2, "D:")};
        agent->items[1] = {storedFolder(3, "Users")};
        agent->items[2] = {storedFile(4, "Offer.pdf"), storedFile(5, "Notes.txt")};
        agent->items[3] = {storedFile(6, "Old offer.docx")};
        agent->generations[4] = {{100, 1'000, 11, 0}, {200, 3'000, 33, 0}, {150, 2'000, 22, 0}};
        agent->generations[5] = {};
        agent->generations[6] = {};
    }

    FileSearch search(const char* pattern, std::vector<std::int32_t> sets = {7}) {
        return {NamePattern(QString::fromLatin1(pattern)), std::move(sets),
                [this](std::int32_t set) {
                    if (set == 13)
                        throw std::runtime_error("no such set");
                    opened.push_back(set);
                    auto view = ViewingAgent::view(agent);
                    latest = view;
                    return view;
                }};
    }

    /// The number of steps until it ended.
    int run(FileSearch& search, int most = 1'000) {
        int steps = 0;
        for (; !search.isDone() && steps < most; ++steps)
            search.step();
        return steps;
    }

    static std::vector<std::string> paths(const FileSearch& search) {
        std::vector<std::string> list;
        for (const FoundFile& file : search.found())
            list.push_back(
                (search.folderOf(file).join(QLatin1Char('\\')) + QLatin1Char('\\')).toStdString() +
                file.name);
        return list;
    }

    const boost::shared_ptr<ViewingAgent> agent = boost::make_shared<ViewingAgent>();
    std::vector<std::int32_t> opened;
    boost::weak_ptr<hessiancln::BackupSetDataView> latest;
};

TEST_F(FileSearchTest, LooksIntoFoldersByTheirDepthAndAsksForDetailsInTurn) {
    FileSearch files = search("offer");
    run(files);
    EXPECT_EQ(agent->takeCalls(), "-1 1 2 g4 3 g6");
    EXPECT_THAT(paths(files), ElementsAre("D:\\Offer.pdf", "C:\\Users\\Old offer.docx"));
    EXPECT_EQ(files.foldersSeen(), 4u);
    EXPECT_EQ(files.refused(), 0u);
}

TEST_F(FileSearchTest, LooksNoFurtherThan200000Files) {
    agent->items[-1] = {storedDrive(1, "C:")};
    agent->items[1].assign(200'001, storedFile(2, "Offer.pdf"));
    FileSearch files = search("offer", {7, 8});
    for (int steps = 0; !files.isFull() && steps < 10; ++steps)
        files.step();
    EXPECT_TRUE(files.isFull());
    EXPECT_EQ(files.found().size(), 200'000U);
    files.step();
    EXPECT_EQ(files.found().size(), 200'000U);
    files.cancel();
    EXPECT_THAT(opened, ElementsAre(7));
}

TEST_F(FileSearchTest, TheNewestGenerationIsShown) {
    FileSearch files = search("offer");
    run(files);
    ASSERT_EQ(files.found().size(), 2u);
    EXPECT_EQ(files.found()[0].generations, 3);
    EXPECT_EQ(files.found()[0].newest.data_size, 33);
    EXPECT_EQ(files.found()[1].generations, 0);
    EXPECT_THAT(files.takeDetailed(), ElementsAre(0u, 1u));
    EXPECT_THAT(files.takeDetailed(), ElementsAre());
}

TEST_F(FileSearchTest, EachStepMakesOneCall) {
    FileSearch files = search("offer");
    files.step();
    EXPECT_EQ(agent->takeCalls(), "");
    files.step();
    EXPECT_EQ(agent->takeCalls(), "-1");
    files.step();
    EXPECT_EQ(agent->takeCalls(), "1");
}

TEST_F(FileSearchTest, CancelGivesTheViewBack) {
    FileSearch files = search("offer", {7, 8});
    files.step();
    files.step();
    EXPECT_FALSE(latest.expired());
    files.cancel();
    EXPECT_TRUE(latest.expired());
    EXPECT_TRUE(files.isDone());
    agent->takeCalls();
    files.step();
    EXPECT_EQ(agent->takeCalls(), "");
    EXPECT_THAT(opened, ElementsAre(7));
}

TEST_F(FileSearchTest, OneSetAfterTheOther) {
    FileSearch files = search("Notes", {7, 13, 8});
    run(files);
    EXPECT_THAT(opened, ElementsAre(7, 8));
    EXPECT_TRUE(latest.expired());
    ASSERT_EQ(files.found().size(), 2u);
    EXPECT_EQ(files.found()[0].setId, 7);
    EXPECT_EQ(files.found()[1].setId, 8);
    EXPECT_EQ(files.refused(), 1u);
    EXPECT_EQ(files.failure(), "no such set");
}

TEST_F(FileSearchTest, WhatIsRefusedIsPassedOver) {
    agent->items.erase(1);
    agent->generations.erase(4);
    FileSearch files = search("offer");
    run(files);
    EXPECT_THAT(paths(files), ElementsAre("D:\\Offer.pdf"));
    EXPECT_EQ(files.found()[0].generations, -1);
    EXPECT_EQ(files.refused(), 2u);
}

TEST_F(FileSearchTest, GroupsAreOpenedByTheirOwnIds) {
    agent->items[-1] = {storedFolder(0, "Servers"), storedFolder(-3, "Databases")};
    agent->items[0] = {storedFile(9, "offer")};
    agent->items[-3] = {};
    agent->generations[9] = {};
    FileSearch files = search("offer");
    run(files);
    EXPECT_THAT(paths(files), ElementsAre("Servers\\offer"));
}

TEST_F(FileSearchTest, ACircleIsWalkedOnce) {
    agent->items[3] = {storedFolder(1, "C: again"), storedFolder(3, "itself")};
    FileSearch files = search("offer");
    EXPECT_LT(run(files), 20);
    EXPECT_TRUE(files.isDone());
}

TEST_F(FileSearchTest, ManyRefusalsInARowEndIt) {
    std::vector<hessiancln::SelectableItem> folders;
    for (std::int64_t id = 100; id < 400; ++id)
        folders.push_back(storedFolder(id, "locked"));
    agent->items[-1] = folders;
    FileSearch files = search("offer", {7, 8});
    EXPECT_EQ(run(files), 52);
    EXPECT_EQ(files.refused(), 50u);
    EXPECT_THAT(opened, ElementsAre(7));
}

} // namespace
