// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/secret_text.h"

#include <string>

#include <gtest/gtest.h>

namespace {

TEST(SecretText, LeavesWhatIsSharedToTheOthers) {
    QString text = QString::fromLatin1("key");
    const QString other = text;
    session::wipe(text);
    EXPECT_TRUE(text.isEmpty());
    EXPECT_EQ(other, QString::fromLatin1("key"));
    QString constant = QStringLiteral("key");
    session::wipe(constant);
    EXPECT_TRUE(constant.isEmpty());
    QByteArray bytes("key");
    const QByteArray same = bytes;
    session::wipe(bytes);
    EXPECT_TRUE(bytes.isEmpty());
    EXPECT_EQ(same, QByteArray("key"));
}

TEST(SecretText, IsUtf8OnTheWire) {
    EXPECT_EQ(session::secretToWire(QStringLiteral(" Schlüssel ")).text(), " Schl\xC3\xBCssel ");
    EXPECT_EQ(session::secretToWire(QString()).text(), "");
    EXPECT_EQ(session::secretToWire(QString(2, QChar())).text(), std::string(2, '\0'));
}

} // namespace
