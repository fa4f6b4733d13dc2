// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include "config/chosen_file.h"

namespace {

class OpenedFile : public testing::Test {
protected:
    QString write(const QByteArray& bytes) {
        const QString path = folder_.filePath(QStringLiteral("a.cri"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            throw std::runtime_error("can't write");
        return path;
    }
    /// Why a file isn't opened; empty if it is.
    static std::string refusalOf(const QString& path) {
        QFile file(path);
        try {
            return config::openChosen(file, QIODevice::Text) ? "" : "no such file";
        } catch (const std::runtime_error& refusal) {
            return refusal.what();
        }
    }

    QTemporaryDir folder_;
};

} // namespace

TEST_F(OpenedFile, IsReadFromItsBeginning) {
    QFile file(write("one\r\ntwo"));
    ASSERT_TRUE(config::openChosen(file, QIODevice::Text | QIODevice::Unbuffered));
    EXPECT_EQ(file.readAll(), QByteArray("one\ntwo"));
}

TEST_F(OpenedFile, MayBeMissing) {
    EXPECT_EQ(refusalOf(folder_.filePath(QStringLiteral("gone.cri"))), "no such file");
}

TEST_F(OpenedFile, IsNoFolder) {
    EXPECT_EQ(refusalOf(folder_.path()),
              "\"" + folder_.path().toStdString() + "\" is not a regular file.");
}

TEST_F(OpenedFile, IsNoDeviceWithoutEnd) {
    const QString device = QStringLiteral("/dev/zero");
    if (!QFile::exists(device))
        GTEST_SKIP() << "this system has no such device";
    EXPECT_EQ(refusalOf(device), "\"/dev/zero\" is not a regular file.");
    const QString link = folder_.filePath(QStringLiteral("zero.cri"));
    ASSERT_TRUE(QFile::link(device, link));
    EXPECT_EQ(refusalOf(link), "\"" + link.toStdString() + "\" is not a regular file.");
}

TEST_F(OpenedFile, HasAtMostOneMebibyte) {
    const QByteArray line(1023, 'x');
    const QByteArray largest = (line + '\n').repeated(1024);
    EXPECT_EQ(refusalOf(write(largest)), "");
    const QString path = write(largest + 'x');
    EXPECT_EQ(refusalOf(path), "\"" + path.toStdString() + "\" is larger than 1 MiB.");
}

TEST_F(OpenedFile, HasAtMostOneMebibyteWhateverItsSizeSays) {
    const QString pages = QStringLiteral("/proc/self/pagemap");
    QFile file(pages);
    if (!file.open(QIODevice::ReadOnly))
        GTEST_SKIP() << "this system has no such file";
    ASSERT_EQ(file.size(), 0);
    EXPECT_EQ(refusalOf(pages), "\"/proc/self/pagemap\" is larger than 1 MiB.");
}

TEST_F(OpenedFile, HasLinesOfAtMost64Kibibytes) {
    const QByteArray line(64 * 1024 - 1, 'x');
    EXPECT_EQ(refusalOf(write("short\n" + line + "\nshort")), "");
    const QString path = write("short\n" + line + "x\nshort");
    EXPECT_EQ(refusalOf(path), "\"" + path.toStdString() + "\" has a line of more than 64 KiB.");
}
