// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "wizards/local_path.h"

#include <QStandardItemModel>
#include <gtest/gtest.h>

#include "session/text.h"

namespace {

using hessiancln::ClientOSType;
using session::fromWire;
using session::toWire;

constexpr auto onWindows = ClientOSType::Windows;
constexpr auto onUnix = static_cast<ClientOSType>(1);

std::string folder(const char* treePath, ClientOSType system) {
    return toWire(wizards::folderOfTreePath(fromWire(treePath), system));
}

std::string treePath(const char* folder, ClientOSType system) {
    return toWire(wizards::treePathOfFolder(fromWire(folder), system));
}

std::string stored(const char* folder) {
    return toWire(wizards::localStoragePath(fromWire(folder)));
}

TEST(LocalPath, AFolderOfWindowsIsItsTreePath) {
    for (const char* path : {"", "D:", R"(D:\Copies)", R"(D:\\two/ways\)", R"(\server\share)"}) {
        EXPECT_EQ(folder(path, onWindows), path);
        EXPECT_EQ(treePath(path, onWindows), path);
    }
}

TEST(LocalPath, AFolderOfUnixHasOneSlashForEachRunOfSeparators) {
    EXPECT_EQ(folder("", onUnix), "");
    EXPECT_EQ(folder("/", onUnix), "/");
    EXPECT_EQ(folder(R"(/\srv)", onUnix), "/srv");
    EXPECT_EQ(folder(R"(/\srv\storage)", onUnix), "/srv/storage");
    EXPECT_EQ(folder(R"(a\/\/b\\c)", onUnix), "a/b/c");
    EXPECT_EQ(folder(R"(/\srv\)", onUnix), "/srv/");
    EXPECT_EQ(folder("/\\Müller\\€", onUnix), "/Müller/€");
}

TEST(LocalPath, ATreePathOfUnixBeginsWithTheRoot) {
    EXPECT_EQ(treePath("", onUnix), "/\\");
    EXPECT_EQ(treePath("/", onUnix), "/\\");
    EXPECT_EQ(treePath("/srv", onUnix), R"(/\srv)");
    EXPECT_EQ(treePath("srv", onUnix), R"(/\srv)");
    EXPECT_EQ(treePath("/srv/storage", onUnix), R"(/\srv\storage)");
    EXPECT_EQ(treePath("//srv///storage", onUnix), R"(/\srv\storage)");
    EXPECT_EQ(treePath(R"(\/srv\/storage)", onUnix), R"(/\srv\storage)");
    EXPECT_EQ(treePath("/srv/storage/", onUnix), "/\\srv\\storage\\");
}

TEST(LocalPath, ThereAndBackAFolderOfUnixStaysWhatItIs) {
    for (const char* path : {"/", "/srv", "/srv/storage", "/home/zoë/Büro"})
        EXPECT_EQ(toWire(wizards::folderOfTreePath(
                      wizards::treePathOfFolder(fromWire(path), onUnix), onUnix)),
                  path);
}

TEST(LocalPath, EverySystemButWindowsDistinguishesNamesByCase) {
    EXPECT_EQ(wizards::caseSensitivityOf(onWindows), Qt::CaseInsensitive);
    for (const int code : {1, 2, 3})
        EXPECT_EQ(wizards::caseSensitivityOf(static_cast<ClientOSType>(code)), Qt::CaseSensitive);
}

TEST(LocalPath, WhatIsStoredEndsInOneBackslash) {
    EXPECT_EQ(stored(R"(D:\Copies)"), "D:\\Copies\\");
    EXPECT_EQ(stored("D:\\Copies\\"), "D:\\Copies\\");
    EXPECT_EQ(stored("D:\\Copies\\\\"), "D:\\Copies\\");
    EXPECT_EQ(stored("D:\\Copies\\ "), "D:\\Copies\\");
    EXPECT_EQ(stored("  D:\\Copies \\ / \\ "), "D:\\Copies\\");
    EXPECT_EQ(stored("D:\\My Copies"), "D:\\My Copies\\");
    EXPECT_EQ(stored("/srv/storage/"), "/srv/storage\\");
    EXPECT_EQ(stored("/srv/storage"), "/srv/storage\\");
    EXPECT_EQ(stored("/"), "\\");
}

/// A tree of folders that is loaded from the start.
class DeepestIndex : public testing::Test {
protected:
    DeepestIndex() {
        add({"D:", "Copies", "Old"});
        add({"D:", "copies", "New"});
        add({"E:", "Müller"});
    }

    /// The index the path leads to, as a path.
    std::string find(const char* path, Qt::CaseSensitivity sensitivity) const {
        std::string found;
        for (auto index = wizards::deepestIndex(tree, fromWire(path), sensitivity); index.isValid();
             index = index.parent())
            found = toWire(index.data().toString()) + (found.empty() ? "" : "|" + found);
        return found;
    }

private:
    void add(const std::vector<const char*>& names) {
        QStandardItem* parent = tree.invisibleRootItem();
        for (const char* name : names) {
            QStandardItem* child = nullptr;
            for (int row = 0; row < parent->rowCount(); ++row)
                if (parent->child(row)->text() == fromWire(name))
                    child = parent->child(row);
            if (!child) {
                child = new QStandardItem(fromWire(name));
                parent->appendRow(child);
            }
            parent = child;
        }
    }

    QStandardItemModel tree;
};

TEST_F(DeepestIndex, IsTheFolderIfItIsThere) {
    EXPECT_EQ(find("D:", Qt::CaseSensitive), "D:");
    EXPECT_EQ(find(R"(D:\Copies\Old)", Qt::CaseSensitive), "D:|Copies|Old");
    EXPECT_EQ(find(R"(D:\copies\New)", Qt::CaseSensitive), "D:|copies|New");
}

TEST_F(DeepestIndex, IsTheLastFolderOnTheWayThatIsThere) {
    EXPECT_EQ(find(R"(D:\Copies\Older\Oldest)", Qt::CaseSensitive), "D:|Copies");
    EXPECT_EQ(find(R"(D:\Nothing\Old)", Qt::CaseSensitive), "D:");
    EXPECT_EQ(find("D:\\\\Copies", Qt::CaseSensitive), "D:");
    EXPECT_EQ(find("D:\\Copies\\", Qt::CaseSensitive), "D:|Copies");
}

TEST_F(DeepestIndex, IsNothingIfNotEvenTheFirstPartIsThere) {
    EXPECT_EQ(find("", Qt::CaseInsensitive), "");
    EXPECT_EQ(find(R"(F:\Copies)", Qt::CaseInsensitive), "");
    EXPECT_EQ(find(R"(\D:)", Qt::CaseInsensitive), "");
}

TEST_F(DeepestIndex, FollowsTheCaseOnRequest) {
    EXPECT_EQ(find(R"(d:\COPIES\old)", Qt::CaseInsensitive), "D:|Copies|Old");
    EXPECT_EQ(find(R"(e:\mÜLLER)", Qt::CaseInsensitive), "E:|Müller");
    EXPECT_EQ(find(R"(d:\Copies)", Qt::CaseSensitive), "");
    EXPECT_EQ(find(R"(D:\COPIES)", Qt::CaseSensitive), "D:");
}

} // namespace
