// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <QBuffer>
#include <gmock/gmock.h>

#include "config/cri_file.h"
#include "session/text.h"

using config::CriEntry;
using config::CriKey;
using Entries = std::vector<std::pair<CriKey, std::string>>;

namespace {

Entries read(QByteArray bytes) {
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    Entries entries;
    config::readCri(file, [&entries](const CriEntry& entry) {
        entries.emplace_back(entry.key, session::toWire(entry.value));
        return true;
    });
    return entries;
}

QString keyType(const char* number) {
    return config::keyTypeOfCri(QString::fromLatin1(number));
}

/// A file whose line is too long to be copied into memory.
class LongLine : public QIODevice {
public:
    explicit LongLine(qint64 size, QByteArray end)
        : left_(size)
        , end_(std::move(end)) {}

    bool isSequential() const override { return true; }

    qint64 largestRead = 0;

protected:
    qint64 readData(char* data, qint64 most) override {
        largestRead = std::max(largestRead, most);
        const qint64 size = std::min(most, left_ > 0 ? left_ : qint64(end_.size()));
        if (left_ > 0) {
            std::fill_n(data, size, 'x');
            left_ -= size;
        } else {
            std::copy_n(end_.constData(), size, data);
            end_.remove(0, static_cast<int>(size));
        }
        return size;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    qint64 left_;
    QByteArray end_;
};

} // namespace

TEST(CriFile, HasEightKeys) {
    EXPECT_EQ(read("UserName=a\nAccountName=b\nClientNumber=c\nSystemAddress=d\\;e\n"
                   "PrivateEncType=5\nPrivateEncKey=f\nAccEncType=1\nAccEncKey=g\n"),
              (Entries{{CriKey::customerName, "a"},
                       {CriKey::accountNumber, "b"},
                       {CriKey::clientNumber, "c"},
                       {CriKey::systemAddresses, "d\\;e"},
                       {CriKey::privateKeyType, "5"},
                       {CriKey::privateKey, "f"},
                       {CriKey::accountKeyType, "1"},
                       {CriKey::accountKey, "g"}}));
}

TEST(CriFile, KeepsTheOrderOfTheLinesAndRepeatsThem) {
    EXPECT_EQ(read("PrivateEncKey=k\nPrivateEncType=5\nPrivateEncKey=l\n"),
              (Entries{{CriKey::privateKey, "k"},
                       {CriKey::privateKeyType, "5"},
                       {CriKey::privateKey, "l"}}));
}

TEST(CriFile, MayBeEmpty) {
    EXPECT_EQ(read(""), Entries());
    EXPECT_EQ(read("\n\n\r\n"), Entries());
}

TEST(CriFile, IgnoresLinesWithoutAKeyAndUnknownKeys) {
    EXPECT_EQ(read("UserName\n=UserName\nusername=a\n UserName=b\nUserName =c\nUserNames=d\n"),
              Entries());
}

TEST(CriFile, TakesAllBehindTheFirstEqualsSign) {
    EXPECT_EQ(read("PrivateEncKey==a = b= \n"), (Entries{{CriKey::privateKey, "=a = b= "}}));
    EXPECT_EQ(read("UserName="), (Entries{{CriKey::customerName, ""}}));
}

TEST(CriFile, MayEndItsLinesAsWindowsDoes) {
    EXPECT_EQ(read("UserName=a\r\nAccountName=b\r\n"),
              (Entries{{CriKey::customerName, "a"}, {CriKey::accountNumber, "b"}}));
}

TEST(CriFile, NeedsNoEndOfItsLastLine) {
    EXPECT_EQ(read("AccountName=b"), (Entries{{CriKey::accountNumber, "b"}}));
}

TEST(CriFile, IsUtf8) {
    EXPECT_EQ(read("UserName=Müller & Söhne\n"),
              (Entries{{CriKey::customerName, "Müller & Söhne"}}));
    EXPECT_EQ(read("\xEF\xBB\xBFUserName=a\n"), (Entries{{CriKey::customerName, "a"}}));
}

TEST(CriFile, IsLatin1WhereItIsNotUtf8) {
    EXPECT_EQ(read("UserName=M\xFCller\n"), (Entries{{CriKey::customerName, "Müller"}}));
}

TEST(CriFile, CountsWhatWasTaken) {
    QByteArray bytes("UserName=a\n\n \nNobody=b\nAccountName=c\nClientNumber=d\nUserName\n" +
                     QByteArray(static_cast<int>(config::longestLine), 'x'));
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    const config::LinesRead lines = config::readCri(
        file, [](const CriEntry& entry) { return entry.key != CriKey::clientNumber; });
    EXPECT_EQ(lines.taken, 2);
    EXPECT_EQ(lines.skipped, 4);
}

TEST(CriFile, MayBeNoTextAtAll) {
    QByteArray bytes;
    for (int i = 0; i < 100000; ++i)
        bytes.append(static_cast<char>((i * 7919) >> 3));
    EXPECT_EQ(read(bytes), Entries());
    EXPECT_EQ(read(QByteArray("\0=\0\nUserName=a\n", 15)), (Entries{{CriKey::customerName, "a"}}));
}

TEST(CriFile, PassesOverALineThatIsTooLong) {
    LongLine file(100'000'000, "\nUserName=a\n");
    file.open(QIODevice::ReadOnly);
    Entries entries;
    config::readCri(file, [&entries](const CriEntry& entry) {
        entries.emplace_back(entry.key, session::toWire(entry.value));
        return true;
    });
    EXPECT_EQ(entries, (Entries{{CriKey::customerName, "a"}}));
    EXPECT_LE(file.largestRead, config::longestLine);
}

TEST(CriFile, PassesOverALongLineOfAKnownKeyToo) {
    const QByteArray value(static_cast<int>(config::longestLine), 'x');
    EXPECT_EQ(read("UserName=" + value + "\nAccountName=b\nUserName=" + value),
              (Entries{{CriKey::accountNumber, "b"}}));
}

TEST(CriFile, TakesALineOfTheLongestLength) {
    const QByteArray value(static_cast<int>(config::longestLine) - 10, 'x');
    EXPECT_EQ(read("UserName=" + value + "\nAccountName=b\n"),
              (Entries{{CriKey::customerName, value.toStdString()}, {CriKey::accountNumber, "b"}}));
}

TEST(CriKeyType, IsOneMoreThanOnTheWire) {
    const std::pair<const char*, const char*> names[] = {
        {"1", "NONE"},   {"2", "DES"},    {"3", "AES128"}, {"4", "AES192"},
        {"5", "AES256"}, {"6", "AES128"}, {"7", "AES192"}, {"8", "AES256"}};
    for (const auto& [number, name] : names)
        EXPECT_EQ(keyType(number), QString::fromLatin1(name)) << number;
}

TEST(CriKeyType, OfNoNumberIsNone) {
    for (const char* number :
         {"", "0", "9", "-1", "AES256", "0x5", "99999999999", "-2147483648", "2147483647"})
        EXPECT_EQ(keyType(number), QStringLiteral("NONE")) << number;
}

TEST(CriChoice, BeginsAtTheHomeOfTheUser) {
    EXPECT_EQ(config::homeOfLogin(QStringLiteral("root")), QStringLiteral("/var/root"));
    EXPECT_EQ(config::homeOfLogin(QStringLiteral("anna")), QStringLiteral("/Users/anna"));
    EXPECT_EQ(config::homeOfLogin(QStringLiteral("Root")), QStringLiteral("/Users/Root"));
}
